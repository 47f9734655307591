// Gathers lines into the block, transforms it, and scatters it.
#include "signal/dft.h"

#include <algorithm>
#include <cstring>

#include "signal/dft_passes.h"

namespace qvp {
namespace {

template <class T>
const T* Table(const DftPlan& plan, int64_t offset) {
  return reinterpret_cast<const T*>(reinterpret_cast<const uint8_t*>(&plan) + offset);
}

template <class T>
T* At(T* p, ptrdiff_t bytes) {
  using Byte = std::conditional_t<std::is_const_v<T>, const uint8_t, uint8_t>;
  return reinterpret_cast<T*>(reinterpret_cast<Byte*>(p) + bytes);
}

void Copy(const float* from, float* to) { std::memcpy(to, from, sizeof(float)); }

// ---- Floats of lines to rows of lanes and back. A map gives the row of lanes of each float of a line.

// Four floats of each of eight lines are turned in registers: with eight lanes, a vector has a line of the first four
// and one of the others in its halves.
constexpr int kTile = 4;
using Quad = hn::FixedTag<float, kTile>;
using Lanes = hn::CappedTag<float, kDftLines>;
constexpr int kQuads = static_cast<int>(hn::MaxLanes(Lanes())) / kTile;
using V = hn::Vec<Lanes>;

HWY_INLINE void Transpose(V (&v)[kTile]) {
  const Lanes d;
  const hn::Repartition<uint64_t, Lanes> pairs;
  const auto as = [&](V a) { return hn::BitCast(pairs, a); };
  const V a = hn::InterleaveLower(d, v[0], v[1]), b = hn::InterleaveLower(d, v[2], v[3]);
  const V c = hn::InterleaveUpper(d, v[0], v[1]), e = hn::InterleaveUpper(d, v[2], v[3]);
  v[0] = hn::BitCast(d, hn::InterleaveLower(pairs, as(a), as(b)));
  v[1] = hn::BitCast(d, hn::InterleaveUpper(pairs, as(a), as(b)));
  v[2] = hn::BitCast(d, hn::InterleaveLower(pairs, as(c), as(e)));
  v[3] = hn::BitCast(d, hn::InterleaveUpper(pairs, as(c), as(e)));
}

HWY_INLINE hn::Vec<Quad> LoadQuad(const float* from, ptrdiff_t stride) {
  if (stride == sizeof(float)) return hn::LoadU(Quad(), from);
  HWY_ALIGN float four[kTile];
  for (int i = 0; i < kTile; ++i) Copy(At(from, i * stride), four + i);
  return hn::Load(Quad(), four);
}

HWY_INLINE void StoreQuad(hn::Vec<Quad> v, float* to, ptrdiff_t stride) {
  if (stride == sizeof(float)) return hn::StoreU(v, Quad(), to);
  HWY_ALIGN float four[kTile];
  hn::Store(v, Quad(), four);
  for (int i = 0; i < kTile; ++i) Copy(four + i, At(to, i * stride));
}

// Vectors of one line or of two.
template <class D>
HWY_INLINE hn::Vec<D> LoadQuads(D d, const float* lower, const float* upper, ptrdiff_t stride) {
  if constexpr (hn::MaxLanes(D()) == kTile) {
    return LoadQuad(lower, stride);
  } else {
    return hn::Combine(d, LoadQuad(upper, stride), LoadQuad(lower, stride));
  }
}

template <class D>
HWY_INLINE void StoreLower(D, hn::Vec<D> v, bool isLine, float* to, ptrdiff_t stride) {
  if (!isLine) return;
  if constexpr (hn::MaxLanes(D()) == kTile) {
    StoreQuad(v, to, stride);
  } else {
    StoreQuad(hn::LowerHalf(Quad(), v), to, stride);
  }
}

template <class D>
HWY_INLINE void StoreUpper(D, hn::Vec<D> v, bool isLine, float* to, ptrdiff_t stride) {
  if constexpr (hn::MaxLanes(D()) != kTile) {
    if (isLine) StoreQuad(hn::UpperHalf(Quad(), v), to, stride);
  }
}

template <int kLines, class Map>
void Gather(const DftLines<const float>& lines, ptrdiff_t first, ptrdiff_t end, const Map& rowOf, float* block) {
  ptrdiff_t i = first;
  const ptrdiff_t stride = lines.stride;
  if constexpr (kLines == kDftLines) {
    const float* from[kDftLines];  // the last line stands for those that are not there
    for (int l = 0; l < kDftLines; ++l) from[l] = lines.at[std::min(l, lines.count - 1)];
    for (; i + kTile <= end; i += kTile) {
      for (int l = 0; l < kDftLines; l += kTile * kQuads) {
        V v[kTile];
        for (int t = 0; t < kTile; ++t) {
          v[t] = LoadQuads(Lanes(), At(from[l + t], i * stride), At(from[(l + t + kTile) % kDftLines], i * stride),
                           stride);
        }
        Transpose(v);
        for (int t = 0; t < kTile; ++t) hn::StoreU(v[t], Lanes(), block + rowOf(i + t) * kLines + l);
      }
    }
  }
  for (; i < end; ++i) {
    for (int l = 0; l < kLines; ++l) {
      Copy(At(lines.at[std::min(l, lines.count - 1)], i * stride), block + rowOf(i) * kLines + l);
    }
  }
}

template <int kLines, class Map>
void Scatter(const float* block, float scale, const DftLines<float>& lines, ptrdiff_t first, ptrdiff_t end,
             const Map& rowOf) {
  ptrdiff_t i = first;
  const ptrdiff_t stride = lines.stride;
  if constexpr (kLines == kDftLines) {
    const V factor = hn::Set(Lanes(), scale);
    for (; i + kTile <= end; i += kTile) {
      for (int l = 0; l < lines.count; l += kTile * kQuads) {
        V v[kTile];
        for (int t = 0; t < kTile; ++t) {
          v[t] = hn::Mul(hn::LoadU(Lanes(), block + rowOf(i + t) * kLines + l), factor);
        }
        Transpose(v);
        for (int t = 0; t < kTile; ++t) {
          StoreLower(Lanes(), v[t], l + t < lines.count, At(lines.at[std::min(l + t, lines.count - 1)], i * stride),
                     stride);
          StoreUpper(Lanes(), v[t], l + t + kTile < lines.count,
                     At(lines.at[std::min(l + t + kTile, lines.count - 1)], i * stride), stride);
        }
      }
    }
  }
  for (; i < end; ++i) {
    for (int l = 0; l < lines.count; ++l) {
      const float scaled = block[rowOf(i) * kLines + l] * scale;
      Copy(&scaled, At(lines.at[l], i * stride));
    }
  }
}

// ---- What is before and after the complex transform. Row 2 k of the block has real parts, row 2 k + 1 imaginary ones.

// The packed spectrum of a line: Re 0, Re 1, Im 1, Re 2, Im 2, ..., and of even lengths the last, real, frequency.
// Even lengths have that one in the imaginary part of frequency 0.
template <int kLines>
void GatherPacked(const DftPlan& plan, const DftLines<const float>& lines, float* block) {
  const ptrdiff_t pairsEnd = plan.length - (plan.length % 2 == 0);
  Gather<kLines>(
      lines, 0, 1, [](ptrdiff_t) { return 0; }, block);
  Gather<kLines>(
      lines, 1, pairsEnd, [](ptrdiff_t i) { return i + 1; }, block);
  Gather<kLines>(
      lines, pairsEnd, plan.length, [](ptrdiff_t) { return 1; }, block);
}

template <int kLines>
void ScatterPacked(const DftPlan& plan, float scale, const float* block, const DftLines<float>& lines) {
  const int32_t* const places = Table<int32_t>(plan, plan.places);
  const ptrdiff_t pairsEnd = plan.length - (plan.length % 2 == 0);
  const auto rowOf = [places](ptrdiff_t i) {
    return 2 * static_cast<ptrdiff_t>(places[(i + 1) / 2]) + (i != 0 && i % 2 == 0);
  };
  Scatter<kLines>(block, scale, lines, 0, pairsEnd, rowOf);
  Scatter<kLines>(block, scale, lines, pairsEnd, plan.length, [](ptrdiff_t) { return 1; });
}

template <int kLines>
HWY_INLINE Complex<hn::Vec<hn::CappedTag<float, kLines>>> LoadNumber(const float* block, ptrdiff_t place,
                                                                     ptrdiff_t lane) {
  const hn::CappedTag<float, kLines> d;
  return {hn::LoadU(d, block + 2 * place * kLines + lane), hn::LoadU(d, block + (2 * place + 1) * kLines + lane)};
}

template <int kLines, class C>
HWY_INLINE void StoreNumber(const C& x, float* block, ptrdiff_t place, ptrdiff_t lane) {
  const hn::CappedTag<float, kLines> d;
  hn::StoreU(x.re, d, block + 2 * place * kLines + lane);
  hn::StoreU(x.im, d, block + (2 * place + 1) * kLines + lane);
}

// Calls visit(first lane of a vector) for all lanes.
template <int kLines, class Visit>
HWY_INLINE void ForEachLane(const Visit& visit) {
  for (ptrdiff_t lane = 0; lane < kLines;
       lane += static_cast<ptrdiff_t>(hn::MaxLanes(hn::CappedTag<float, kLines>()))) {
    visit(lane);
  }
}

// Z, the spectrum of x[2 j] + i x[2 j + 1], to X, that of the real x of n = 2 m numbers, and X to 2 Z:
//   X[k] = E + w^k O, X[m - k] = conj(E - w^k O), w = e^(-2 pi i / n),
//   2 E = Z[k] + conj(Z[m - k]), 2 i O = Z[k] - conj(Z[m - k]).
template <Direction kDirection, int kLines>
void ConvertHalved(const DftPlan& plan, float* block) {
  const hn::CappedTag<float, kLines> d;
  const int32_t* const places = Table<int32_t>(plan, plan.places);
  const float* const twiddles = Table<float>(plan, plan.realTwiddles);
  constexpr bool kForward = kDirection == Direction::kForward;
  const auto placeOf = [&](int64_t k) { return kForward ? ptrdiff_t{places[k]} : static_cast<ptrdiff_t>(k); };
  ForEachLane<kLines>([&](ptrdiff_t lane) {
    const auto zero = LoadNumber<kLines>(block, placeOf(0), lane);
    using C = std::remove_const_t<decltype(zero)>;
    StoreNumber<kLines>(C{hn::Add(zero.re, zero.im), hn::Sub(zero.re, zero.im)}, block, placeOf(0), lane);
  });
  const auto half = hn::Set(d, kForward ? 0.5f : 1.0f);
  for (int64_t k = 1, m = plan.complexLength; k <= m / 2; ++k) {
    const auto w = Factor(d, twiddles + 2 * k);
    const ptrdiff_t near = placeOf(k), far = placeOf(m - k);
    ForEachLane<kLines>([&](ptrdiff_t lane) {
      const auto a = LoadNumber<kLines>(block, near, lane), b = LoadNumber<kLines>(block, far, lane);
      using C = std::remove_const_t<decltype(a)>;
      const C conjugate{b.re, hn::Neg(b.im)};
      const C even = half * (a + conjugate), difference = half * (a - conjugate);
      C turned;  // w O forward, i O back
      if constexpr (kForward) {
        turned = C{difference.im, hn::Neg(difference.re)} * w;
      } else {
        const C odd = difference * C{w.re, hn::Neg(w.im)};
        turned = C{hn::Neg(odd.im), odd.re};
      }
      const C other = even - turned;
      StoreNumber<kLines>(C{other.re, hn::Neg(other.im)}, block, far, lane);
      StoreNumber<kLines>(even + turned, block, near, lane);
    });
  }
}

// Of odd lengths, the second half of the spectrum is the first one's mirrored conjugate.
template <int kLines>
void Mirror(const DftPlan& plan, float* block) {
  ForEachLane<kLines>([&](ptrdiff_t lane) {
    const hn::CappedTag<float, kLines> d;
    hn::StoreU(hn::Zero(d), d, block + kLines + lane);
    for (int64_t k = 1; k <= plan.length / 2; ++k) {
      auto x = LoadNumber<kLines>(block, k, lane);
      x.im = hn::Neg(x.im);
      StoreNumber<kLines>(x, block, plan.length - k, lane);
    }
  });
}

// ---- The complex transform of a block in order, to frequencies at their places.

template <int kLines>
void MultiplyBy(const float* factors, Planes planes, int64_t count, float* block) {
  const hn::CappedTag<float, kLines> d;
  for (int64_t j = 0; j < count; ++j) {
    const auto factor = Factor(d, factors + 2 * j);
    float* const number = block + 2 * j * kLines;
    ForEachLane<kLines>([&](ptrdiff_t lane) {
      float *const re = number + planes.re * kLines + lane, *const im = number + planes.im * kLines + lane;
      const Complex<hn::Vec<decltype(d)>> product =
          Complex<hn::Vec<decltype(d)>>{hn::LoadU(d, re), hn::LoadU(d, im)} * factor;
      hn::StoreU(product.re, d, re);
      hn::StoreU(product.im, d, im);
    });
  }
}

// X[k] = c[k] sum over j of (x[j] c[j]) conj(c[k - j]), c[j] = e^(-i pi j^2 / n): a convolution, which is a product of
// spectra.
template <int kLines>
void RunChirp(const DftPlan& plan, Planes planes, float* block) {
  const int64_t n = plan.complexLength, m = plan.chirpLength;
  const float* const chirp = Table<float>(plan, plan.chirp);
  const uint8_t* const base = reinterpret_cast<const uint8_t*>(&plan);
  MultiplyBy<kLines>(chirp, planes, n, block);
  std::memset(block + 2 * n * kLines, 0, (m - n) * 2 * kLines * sizeof(float));
  RunPasses<kLines>(plan, base, planes, block);
  MultiplyBy<kLines>(Table<float>(plan, plan.chirpSpectrum), planes, m, block);
  RunPassesUpward<kLines>(plan, base, Planes{planes.im, planes.re}, block);
  MultiplyBy<kLines>(chirp, planes, n, block);
}

template <int kLines>
void Run(const DftPlan& plan, Direction direction, float* block) {
  const Planes planes = direction == Direction::kForward ? Planes{0, 1} : Planes{1, 0};
  if (plan.chirpLength) return RunChirp<kLines>(plan, planes, block);
  RunPasses<kLines>(plan, reinterpret_cast<const uint8_t*>(&plan), planes, block);
}

// ---- Lines.

template <int kLines>
void GatherLines(const DftPlan& plan, Direction direction, const DftLines<const float>& src, float* block) {
  const auto inOrder = [](ptrdiff_t i) { return i; };
  const auto realPart = [](ptrdiff_t i) { return 2 * i; };
  if (plan.kind == DftKind::kComplex) return Gather<kLines>(src, 0, 2 * plan.length, inOrder, block);
  if (direction == Direction::kInverse) return GatherPacked<kLines>(plan, src, block);
  if (plan.length % 2 == 0) return Gather<kLines>(src, 0, plan.length, inOrder, block);
  Gather<kLines>(src, 0, plan.length, realPart, block);
  for (int64_t i = 0; i < plan.length; ++i) std::memset(block + (2 * i + 1) * kLines, 0, kLines * sizeof(float));
}

template <int kLines>
void ScatterLines(const DftPlan& plan, Direction direction, const float* block, const DftLines<float>& dst) {
  const int32_t* const places = Table<int32_t>(plan, plan.places);
  const float scale = plan.scale[direction == Direction::kInverse];
  const auto parts = [places](ptrdiff_t i) { return 2 * static_cast<ptrdiff_t>(places[i / 2]) + i % 2; };
  const auto realPart = [places](ptrdiff_t i) { return 2 * static_cast<ptrdiff_t>(places[i]); };
  if (plan.kind == DftKind::kComplex) return Scatter<kLines>(block, scale, dst, 0, 2 * plan.length, parts);
  if (direction == Direction::kForward) return ScatterPacked<kLines>(plan, scale, block, dst);
  if (plan.length % 2 == 0) return Scatter<kLines>(block, scale, dst, 0, plan.length, parts);
  Scatter<kLines>(block, scale, dst, 0, plan.length, realPart);
}

template <int kLines>
void TransformLinesOf(const DftPlan& plan, Direction direction, const DftLines<const float>& src,
                      const DftLines<float>& dst, float* block) {
  const bool isReal = plan.kind == DftKind::kReal, isHalved = plan.complexLength != plan.length;
  GatherLines<kLines>(plan, direction, src, block);
  if (isReal && direction == Direction::kInverse) {
    isHalved ? ConvertHalved<Direction::kInverse, kLines>(plan, block) : Mirror<kLines>(plan, block);
  }
  Run<kLines>(plan, direction, block);
  if (isHalved && direction == Direction::kForward) ConvertHalved<Direction::kForward, kLines>(plan, block);
  ScatterLines<kLines>(plan, direction, block, dst);
}

// ---- Columns.

// Whether all numbers of a row lie in eight pairs of floats.
template <class T>
bool AreAllNeighbours(const DftColumns<T>& columns, int count) {
  return count == kDftLines && columns.pitch == 2 * sizeof(float) && columns.imaginary == sizeof(float);
}

template <int kLines>
void GatherColumns(const DftColumns<const float>& src, int64_t rows, int count, float* block) {
  const bool areNeighbours = kLines == kDftLines && AreAllNeighbours(src, count);
  for (int64_t y = 0; y < rows; ++y, block += 2 * kLines) {
    const float* const row = At(src.data, y * src.step);
    if (areNeighbours) {
      const Lanes d;
      ForEachLane<kDftLines>([&](ptrdiff_t lane) {
        V re, im;
        hn::LoadInterleaved2(d, row + 2 * lane, re, im);
        hn::StoreU(re, d, block + lane);
        hn::StoreU(im, d, block + kLines + lane);
      });
    } else {
      for (int l = 0; l < kLines; ++l) {
        const float* const number = At(row, std::min(l, count - 1) * src.pitch);
        Copy(number, block + l);
        Copy(At(number, src.imaginary), block + kLines + l);
      }
    }
  }
}

template <int kLines>
void ScatterColumns(const DftPlan& plan, float scale, const float* block, const DftColumns<float>& dst, int count) {
  const int32_t* const places = Table<int32_t>(plan, plan.places);
  const bool areNeighbours = kLines == kDftLines && AreAllNeighbours(dst, count);
  for (int64_t y = 0; y < plan.length; ++y) {
    float* const row = At(dst.data, y * dst.step);
    const float* const number = block + 2 * static_cast<ptrdiff_t>(places[y]) * kLines;
    if (areNeighbours) {
      const Lanes d;
      const V factor = hn::Set(d, scale);
      ForEachLane<kDftLines>([&](ptrdiff_t lane) {
        const V re = hn::Mul(hn::LoadU(d, number + lane), factor);
        const V im = hn::Mul(hn::LoadU(d, number + kLines + lane), factor);
        hn::StoreInterleaved2(re, im, d, row + 2 * lane);
      });
    } else {
      for (int l = 0; l < count; ++l) {
        const float re = number[l] * scale, im = number[kLines + l] * scale;
        Copy(&re, At(row, l * dst.pitch));
        Copy(&im, At(row, l * dst.pitch + dst.imaginary));
      }
    }
  }
}

template <int kLines>
void TransformColumnsOf(const DftPlan& plan, Direction direction, const DftColumns<const float>& src,
                        const DftColumns<float>& dst, int count, float* block) {
  GatherColumns<kLines>(src, plan.length, count, block);
  Run<kLines>(plan, direction, block);
  ScatterColumns<kLines>(plan, plan.scale[direction == Direction::kInverse], block, dst, count);
}

}  // namespace

void TransformLines(const DftPlan& plan, Direction direction, const DftLines<const float>& src,
                    const DftLines<float>& dst, float* block) {
  const auto transform = plan.Lines() == 1 ? TransformLinesOf<1> : TransformLinesOf<kDftLines>;
  transform(plan, direction, src, dst, block);
}

void TransformColumns(const DftPlan& plan, Direction direction, const DftColumns<const float>& src,
                      const DftColumns<float>& dst, int count, float* block) {
  const auto transform = plan.Lines() == 1 ? TransformColumnsOf<1> : TransformColumnsOf<kDftLines>;
  transform(plan, direction, src, dst, count, block);
}

}  // namespace qvp
