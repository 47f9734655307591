// Tables and passes of transforms of planes.
#include "signal/plane_transform.h"

#include <cstring>

#include "signal/dft_tiles.h"
#include "signal/sin_cos.h"

namespace qvp::dft {
namespace {

// ---- Passes of lengths with factors 2, 3, 4, 5 and 8.

template <Order kOrder, bool kHasTwiddles, class F>
void SmoothPass(F* block, Planes planes, int64_t length, int64_t m, int factor, const F* twiddles) {
  constexpr int kLines = PlaneTransform<F>::kLines;
  const auto pass = factor == 8   ? Pass<8, kOrder, kHasTwiddles, kLines, F>
                    : factor == 4 ? Pass<4, kOrder, kHasTwiddles, kLines, F>
                    : factor == 3 ? Pass<3, kOrder, kHasTwiddles, kLines, F>
                    : factor == 5 ? Pass<5, kOrder, kHasTwiddles, kLines, F>
                                  : Pass<2, kOrder, kHasTwiddles, kLines, F>;
  pass(block, planes, length, m, factor, twiddles, nullptr);
}

// Numbers in order to frequencies at their places.
template <class F>
void RunDown(const SmoothLength& plan, const F* twiddles, F* block) {
  int64_t m = plan.length;
  for (int i = 0; i < plan.factorCount; ++i) {
    const int p = plan.factors[i];
    m = Divided(m, p);
    const auto pass = m == 1 ? SmoothPass<Order::kDown, false, F> : SmoothPass<Order::kDown, true, F>;
    pass(block, Planes{0, 1}, plan.length, m, p, twiddles);
    twiddles += 2 * m * (p - 1);
  }
}

// And back, without the division by the length: the parts exchanged make it the inverse.
template <class F>
void RunUp(const SmoothLength& plan, const F* twiddles, F* block) {
  twiddles += 2 * (plan.length - 1);
  int64_t m = 1;
  for (int i = plan.factorCount - 1; i >= 0; --i) {
    const int p = plan.factors[i];
    twiddles -= 2 * m * (p - 1);
    const auto pass = m == 1 ? SmoothPass<Order::kUp, false, F> : SmoothPass<Order::kUp, true, F>;
    pass(block, Planes{1, 0}, plan.length, m, p, twiddles);
    m *= p;
  }
}

template <class F>
void WritePair(F* to, const SinCos& angle) {
  to[0] = static_cast<F>(angle.cos);
  to[1] = static_cast<F>(-angle.sin);
}

template <class F>
void WriteTwiddles(const SmoothLength& plan, F* to) {
  int64_t length = plan.length;
  for (int i = 0; i < plan.factorCount; ++i) {
    const int p = plan.factors[i];
    const int64_t m = length / p;
    for (int64_t j = 0; j < m; ++j) {
      for (int k = 1; k < p; ++k, to += 2) WritePair(to, SinCosOfTurn(j * k, length));
    }
    length = m;
  }
}

// ---- Numbers of a block: kLines real parts, then as many imaginary ones.

template <class F>
struct Numbers {
  static constexpr int kLines = PlaneTransform<F>::kLines;
  using D = hn::CappedTag<F, kLines>;
  using C = Complex<hn::Vec<D>>;

  HWY_INLINE static C Load(const F* number, ptrdiff_t lane) {
    return {hn::LoadU(D(), number + lane), hn::LoadU(D(), number + kLines + lane)};
  }
  HWY_INLINE static void Store(const C& x, F* number, ptrdiff_t lane) {
    hn::StoreU(x.re, D(), number + lane);
    hn::StoreU(x.im, D(), number + kLines + lane);
  }
  // number = of(number) for each, with its place.
  template <class Of>
  HWY_INLINE static void Map(F* block, ptrdiff_t count, const Of& of) {
    for (ptrdiff_t i = 0; i < count; ++i, block += 2 * kLines) {
      for (ptrdiff_t lane = 0; lane < kLines; lane += ptrdiff_t{hn::MaxLanes(D())}) {
        Store(of(Load(block, lane), i, lane), block, lane);
      }
    }
  }
};

// Multiplies number n by e^(i pi n / 2h), or divides by it.
template <class F>
void Twist(const F* twist, ptrdiff_t count, bool isBack, F* block) {
  using D = typename Numbers<F>::D;
  const auto sign = hn::Set(D(), static_cast<F>(isBack ? 1 : -1));
  Numbers<F>::Map(block, count, [=](auto x, ptrdiff_t n, ptrdiff_t) HWY_ATTR {
    auto factor = Factor(D(), twist + 2 * n);
    factor.im = hn::Mul(factor.im, sign);
    return x * factor;
  });
}

// ---- Squares of kLines rows, as columns.

HWY_INLINE void TransposeBlocks(V (&v)[kTile]) { Transpose(v); }
template <class D = hn::CappedTag<double, PlaneTransform<double>::kLines>>
HWY_INLINE void TransposeBlocks(hn::Vec<D> (&v)[2]) {
  const auto first = hn::InterleaveLower(D(), v[0], v[1]);
  v[1] = hn::InterleaveUpper(D(), v[0], v[1]);
  v[0] = first;
}

// A vector of a block of one row, and, if it has two, of a block of another one.
template <class D, class F>
HWY_INLINE hn::Vec<D> LoadBlocks(D d, const F* lower, const F* upper) {
  using Block = hn::FixedTag<F, kBlockBytes / sizeof(F)>;
  if constexpr (hn::MaxLanes(D()) == hn::MaxLanes(Block())) {
    return hn::LoadU(d, lower);
  } else {
    return hn::Combine(d, hn::LoadU(Block(), upper), hn::LoadU(Block(), lower));
  }
}

// The rows are 2 kLines apart.
template <class F>
HWY_INLINE void TransposeSquare(const F* from, F* to) {
  constexpr int kLines = PlaneTransform<F>::kLines, kSide = kBlockBytes / sizeof(F);
  const hn::CappedTag<F, kLines> d;
  constexpr ptrdiff_t kLanes = hn::MaxLanes(d), kStep = 2 * kLines;
  for (ptrdiff_t column = 0; column < kLines; column += kSide) {
    for (ptrdiff_t row = 0; row < kLines; row += kLanes) {
      hn::Vec<decltype(d)> v[kSide];
      for (ptrdiff_t t = 0; t < kSide; ++t) {
        const F* const lower = from + (row + t) * kStep + column;
        v[t] = LoadBlocks(d, lower, lower + kSide * kStep);
      }
      TransposeBlocks(v);
      for (ptrdiff_t t = 0; t < kSide; ++t) hn::StoreU(v[t], d, to + (column + t) * kStep + row);
    }
  }
}

template <class F>
void TransposeNumbers(const F* from, F* to) {
  TransposeSquare(from, to);
  TransposeSquare(from + PlaneTransform<F>::kLines, to + PlaneTransform<F>::kLines);
}

int64_t PairBytes(int64_t count, int64_t elementBytes) {
  return (count * 2 * elementBytes + kRecordBoundary - 1) / kRecordBoundary * kRecordBoundary;
}

}  // namespace

SmoothLength SmoothLength::Of(int64_t length) {
  SmoothLength plan{length, 0, {}};
  const auto take = [&](int factor) {
    for (; length % factor == 0; length /= factor) plan.factors[plan.factorCount++] = static_cast<uint8_t>(factor);
  };
  while (length % 8 == 0 && length != 16) {
    plan.factors[plan.factorCount++] = 8;
    length /= 8;
  }
  for (const int factor : {4, 2, 3, 5}) take(factor);
  return plan;
}

template <class F>
PlaneTransform<F>::PlaneTransform(int64_t width, int64_t height)
    : across_(SmoothLength::Of(width)), down_(SmoothLength::Of(height / 2)) {}

template <class F>
int64_t PlaneTransform<F>::TableBytes() const {
  return PairBytes(width(), sizeof(F)) + 2 * PairBytes(half(), sizeof(F));
}

template <class F>
void PlaneTransform<F>::Start(uint8_t* memory) {
  twiddlesAcross_ = reinterpret_cast<F*>(memory);
  twiddlesDown_ = reinterpret_cast<F*>(memory + PairBytes(width(), sizeof(F)));
  twist_ = reinterpret_cast<F*>(memory + PairBytes(width(), sizeof(F)) + PairBytes(half(), sizeof(F)));
  WriteTwiddles(across_, twiddlesAcross_);
  WriteTwiddles(down_, twiddlesDown_);
  for (int64_t n = 0; n < half(); ++n) WritePair(twist_ + 2 * n, SinCosOfTurn(n, 4 * int64_t{half()}));
}

template <class F>
void PlaneTransform<F>::PutColumns(F* block, ptrdiff_t x, F* plane) const {
  Twist(twist_, half(), false, block);
  RunDown(down_, twiddlesDown_, block);
  F* to = plane + x * 2 * kLines;
  for (ptrdiff_t y = 0; y < half(); y += kLines, to += GroupStep()) TransposeNumbers(block + y * 2 * kLines, to);
}

template <class F>
void PlaneTransform<F>::GetColumns(const F* plane, ptrdiff_t x, F* block) const {
  const F* from = plane + x * 2 * kLines;
  for (ptrdiff_t y = 0; y < half(); y += kLines, from += GroupStep()) TransposeNumbers(from, block + y * 2 * kLines);
  RunUp(down_, twiddlesDown_, block);
  Twist(twist_, half(), true, block);
}

template <class F>
void PlaneTransform<F>::TransformRows(F scale, F* plane) const {
  using N = Numbers<F>;
  const auto factor = hn::Set(typename N::D(), scale);
  for (ptrdiff_t y = 0; y < half(); y += kLines, plane += GroupStep()) {
    RunDown(across_, twiddlesAcross_, plane);
    N::Map(plane, width(), [=](auto x, ptrdiff_t, ptrdiff_t) HWY_ATTR { return factor * x; });
  }
}

template <class F>
void PlaneTransform<F>::MultiplyRows(const F* spectrum, bool isPut, F* plane, F* out) const {
  using N = Numbers<F>;
  for (ptrdiff_t y = 0; y < half(); y += kLines) {
    if (isPut) RunDown(across_, twiddlesAcross_, plane);
    N::Map(out, width(), [=](auto, ptrdiff_t i, ptrdiff_t lane) HWY_ATTR {
      const ptrdiff_t at = i * 2 * kLines;
      return N::Load(plane + at, lane) * N::Load(spectrum + at, lane);
    });
    RunUp(across_, twiddlesAcross_, out);
    plane += GroupStep(), spectrum += GroupStep(), out += GroupStep();
  }
}

template class PlaneTransform<float>;
template class PlaneTransform<double>;

}  // namespace qvp::dft
