// Gathers lines into the block, transforms it, and scatters it.
#include "signal/dft.h"

#include "signal/dft_cosine.h"
#include "signal/dft_gather.h"

namespace qvp::dft {
namespace {

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
  RunPasses<kLines>(plan, base, planes, block, 0, plan.factorCount);
  MultiplyBy<kLines>(Table<float>(plan, plan.chirpSpectrum), planes, m, block);
  RunPassesUpward<kLines>(plan, base, Planes{planes.im, planes.re}, block);
  MultiplyBy<kLines>(chirp, planes, n, block);
}

const float* FirstTwiddles(const DftPlan& plan) { return Table<float>(plan, plan.twiddles); }

Planes PlanesFor(Direction direction) { return direction == Direction::kForward ? Planes{0, 1} : Planes{1, 0}; }

// All passes, or those between the first and the last one where these are done with the ends.
struct Passes {
  bool withFirst = true, withLast = true;
};

template <int kLines>
void Run(const DftPlan& plan, Direction direction, Passes passes, float* block) {
  if (plan.chirpLength) return RunChirp<kLines>(plan, PlanesFor(direction), block);
  RunPasses<kLines>(plan, reinterpret_cast<const uint8_t*>(&plan), PlanesFor(direction), block, !passes.withFirst,
                    plan.factorCount - !passes.withLast);
}

// ---- Lines.

template <int kLines>
void ClearImaginary(int64_t numbers, float* block) {
  for (int64_t i = 0; i < numbers; ++i) std::memset(block + (2 * i + 1) * kLines, 0, kLines * sizeof(float));
}

// Numbers in the order that is transformed, or cosines.
template <int kLines>
void GatherForCosines(const DftPlan& plan, Direction direction, const DftLines<const float>& src, float* block) {
  const auto n = static_cast<ptrdiff_t>(plan.length);
  if (direction == Direction::kInverse) {
    const auto rowOf = [n](ptrdiff_t k) { return RowOfCosine(k, n, [](ptrdiff_t j) { return j; }); };
    return Gather<kLines>(src, 0, n, rowOf, block);
  }
  const ptrdiff_t rows = n % 2 == 0 ? 1 : 2;  // of a number of the line
  Gather<kLines>(
      src, 0, n, [=](ptrdiff_t i) { return rows * OrderOf(i, n); }, block);
  if (n % 2 != 0) ClearImaginary<kLines>(n, block);
}

template <int kLines>
void ScatterCosines(const DftPlan& plan, Direction direction, const float* block, const DftLines<float>& dst) {
  const int32_t* const places = Table<int32_t>(plan, plan.places);
  const float scale = plan.scale[direction == Direction::kInverse];
  const auto n = static_cast<ptrdiff_t>(plan.length);
  const auto placeOf = [places](ptrdiff_t j) { return static_cast<ptrdiff_t>(places[j]); };
  if (direction == Direction::kForward) {
    const auto rowOf = [=](ptrdiff_t k) { return RowOfCosine(k, n, placeOf); };
    return Scatter<kLines>(block, scale, dst, 0, n, rowOf);
  }
  const auto rowOf = [=](ptrdiff_t i) {
    const ptrdiff_t j = OrderOf(i, n);
    return n % 2 == 0 ? 2 * placeOf(j / 2) + j % 2 : 2 * placeOf(j);
  };
  Scatter<kLines>(block, scale, dst, 0, n, rowOf);
}

template <int kLines>
void GatherLines(const DftPlan& plan, Direction direction, const DftLines<const float>& src, float* block) {
  const auto inOrder = [](ptrdiff_t i) { return i; };
  const auto realPart = [](ptrdiff_t i) { return 2 * i; };
  if (plan.kind == DftKind::kComplex) return Gather<kLines>(src, 0, 2 * plan.length, inOrder, block);
  if (plan.kind == DftKind::kCosine) return GatherForCosines<kLines>(plan, direction, src, block);
  if (direction == Direction::kInverse) return GatherPacked<kLines>(plan, src, block);
  if (plan.length % 2 == 0) return Gather<kLines>(src, 0, plan.length, inOrder, block);
  Gather<kLines>(src, 0, plan.length, realPart, block);
  ClearImaginary<kLines>(plan.length, block);
}

template <int kLines>
void ScatterLines(const DftPlan& plan, Direction direction, const float* block, const DftLines<float>& dst) {
  const int32_t* const places = Table<int32_t>(plan, plan.places);
  const float scale = plan.scale[direction == Direction::kInverse];
  const auto parts = [places](ptrdiff_t i) { return 2 * static_cast<ptrdiff_t>(places[i / 2]) + i % 2; };
  const auto realPart = [places](ptrdiff_t i) { return 2 * static_cast<ptrdiff_t>(places[i]); };
  if (plan.kind == DftKind::kComplex) return Scatter<kLines>(block, scale, dst, 0, 2 * plan.length, parts);
  if (plan.kind == DftKind::kCosine) return ScatterCosines<kLines>(plan, direction, block, dst);
  if (direction == Direction::kForward) return ScatterPacked<kLines>(plan, scale, block, dst);
  if (plan.length % 2 == 0) return Scatter<kLines>(block, scale, dst, 0, plan.length, parts);
  Scatter<kLines>(block, scale, dst, 0, plan.length, realPart);
}

// The last pass writes pieces of 16 bytes at as many places of each line as it has factors. Of lines this long these
// places share sets of the first-level cache, and their pieces would leave it one by one.
constexpr int64_t kLongLine = 1024;

// Whether the first pass can read the lines, and whether the last one can write them: packed spectra are no numbers in
// order.
Passes LinePassesInBlock(const DftPlan& plan, Direction direction, ptrdiff_t srcStride, ptrdiff_t dstStride) {
  if (plan.kind == DftKind::kCosine) return {};
  const bool isReal = plan.kind == DftKind::kReal, isForward = direction == Direction::kForward;
  const bool isInOrder = plan.kind == DftKind::kComplex || plan.length % 2 == 0;
  return {!isInOrder || (isReal && !isForward) || !HasLineEnds(plan, srcStride),
          !isInOrder || (isReal && isForward) || plan.complexLength >= kLongLine || !HasLineEnds(plan, dstStride)};
}

template <Direction kDirection>
void FirstPassOfLines(const DftPlan& plan, const DftLines<const float>& src, float* block) {
  const auto pass = plan.factors[0] == 4 ? FirstLinePass<kDirection, 4> : FirstLinePass<kDirection, 8>;
  pass(plan, src, FirstTwiddles(plan), {block, PlanesFor(kDirection)});
}

template <Direction kDirection>
void LastPassOfLines(const DftPlan& plan, float* block, const DftLines<float>& dst) {
  const int32_t* const places = Table<int32_t>(plan, plan.places);
  WithFactor(plan.factors[plan.factorCount - 1], [&](auto factor) {
    LastLinePass<kDirection, factor>(plan, places, plan.scale[kDirection == Direction::kInverse],
                                     {block, PlanesFor(kDirection)}, dst);
  });
}

template <Direction kDirection, int kLines>
void TransformLinesOf(const DftPlan& plan, const DftLines<const float>& src, const DftLines<float>& dst, float* block) {
  constexpr bool kForward = kDirection == Direction::kForward;
  const bool isReal = plan.kind != DftKind::kComplex, isHalved = plan.complexLength != plan.length;
  const bool isCosine = plan.kind == DftKind::kCosine;
  const Passes passes = LinePassesInBlock(plan, kDirection, src.stride, dst.stride);
  if (passes.withFirst) {
    GatherLines<kLines>(plan, kDirection, src, block);
  } else {
    FirstPassOfLines<kDirection>(plan, src, block);
  }
  if (isCosine && !kForward) TurnSpectrum<Direction::kInverse, kLines>(plan, block);
  if (isReal && !kForward) {
    isHalved ? ConvertHalved<Direction::kInverse, kLines>(plan, block) : Mirror<kLines>(plan, block);
  }
  Run<kLines>(plan, kDirection, passes, block);
  if (isHalved && kForward) ConvertHalved<Direction::kForward, kLines>(plan, block);
  if (isCosine && kForward) TurnSpectrum<Direction::kForward, kLines>(plan, block);
  if (!passes.withLast) return LastPassOfLines<kDirection>(plan, block, dst);
  ScatterLines<kLines>(plan, kDirection, block, dst);
}

// ---- Columns.

template <int kLines>
void GatherColumns(const DftColumns<const float>& src, int64_t rows, int count, float* block) {
  for (int64_t y = 0; y < rows; ++y, block += 2 * kLines) {
    for (int l = 0; l < kLines; ++l) {
      const float* const number = At(src.data, y * src.step + std::min(l, count - 1) * src.pitch);
      Copy(number, block + l);
      Copy(At(number, src.imaginary), block + kLines + l);
    }
  }
}

template <int kLines>
void ScatterColumns(const DftPlan& plan, float scale, const float* block, const DftColumns<float>& dst, int count) {
  const int32_t* const places = Table<int32_t>(plan, plan.places);
  for (int64_t y = 0; y < plan.length; ++y) {
    const float* const number = block + 2 * static_cast<ptrdiff_t>(places[y]) * kLines;
    for (int l = 0; l < count; ++l) {
      const float re = number[l] * scale, im = number[kLines + l] * scale;
      float* const to = At(dst.data, y * dst.step + l * dst.pitch);
      Copy(&re, to);
      Copy(&im, At(to, dst.imaginary));
    }
  }
}

template <Direction kDirection, int kLines>
void TransformColumnsOf(const DftPlan& plan, const DftColumns<const float>& src, const DftColumns<float>& dst,
                        int count, float* block) {
  const float scale = plan.scale[kDirection == Direction::kInverse];
  const Passes passes{!HasColumnEnds(plan, src, count), !HasColumnEnds(plan, dst, count)};
  if (passes.withFirst) {
    GatherColumns<kLines>(src, plan.length, count, block);
  } else {
    const auto pass = plan.factors[0] == 4 ? FirstColumnPass<kDirection, 4> : FirstColumnPass<kDirection, 8>;
    pass(plan, src, count, FirstTwiddles(plan), {block, PlanesFor(kDirection)});
  }
  Run<kLines>(plan, kDirection, passes, block);
  if (passes.withLast) return ScatterColumns<kLines>(plan, scale, block, dst, count);
  WithFactor(plan.factors[plan.factorCount - 1], [&](auto factor) {
    LastColumnPass<kDirection, factor>(plan, Table<int32_t>(plan, plan.places), scale, {block, PlanesFor(kDirection)},
                                       dst, count);
  });
}

}  // namespace

void TransformLines(const DftPlan& plan, Direction direction, const DftLines<const float>& src,
                    const DftLines<float>& dst, float* block) {
  constexpr auto kForward = Direction::kForward, kInverse = Direction::kInverse;
  const bool isAlone = plan.Lines() == 1, isForward = direction == kForward;
  const auto transform = isAlone     ? isForward ? TransformLinesOf<kForward, 1> : TransformLinesOf<kInverse, 1>
                             : isForward ? TransformLinesOf<kForward, kDftLines>
                                     : TransformLinesOf<kInverse, kDftLines>;
  transform(plan, src, dst, block);
}

void TransformColumns(const DftPlan& plan, Direction direction, const DftColumns<const float>& src,
                      const DftColumns<float>& dst, int count, float* block) {
  constexpr auto kForward = Direction::kForward, kInverse = Direction::kInverse;
  const bool isAlone = plan.Lines() == 1, isForward = direction == kForward;
  const auto transform = isAlone     ? isForward ? TransformColumnsOf<kForward, 1> : TransformColumnsOf<kInverse, 1>
                             : isForward ? TransformColumnsOf<kForward, kDftLines>
                                     : TransformColumnsOf<kInverse, kDftLines>;
  transform(plan, src, dst, count, block);
}

}  // namespace qvp::dft
