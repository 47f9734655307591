// What cosine transforms are beside Fourier transforms.
#include "signal/dct.h"

#include <algorithm>
#include <cstring>

#include "base/record.h"
#include "base/row_vectors.h"
#include "signal/sin_cos.h"

namespace qvp::dct {
namespace {

using D = hn::ScalableTag<float>;

template <class E>
HWY_INLINE hn::Vec<E> Backwards(E d, hn::Vec<E> v) {
  if constexpr (hn::MaxLanes(E()) == 1) return v;
  if constexpr (hn::MaxLanes(E()) > 1) return hn::Reverse(d, v);
}

// Pairs of neighbours, as two vectors.
template <class E>
HWY_INLINE void LoadPairs(E d, const float* from, hn::Vec<E>& first, hn::Vec<E>& second) {
  if constexpr (hn::MaxLanes(E()) == 1) {
    first = hn::LoadU(d, from);
    second = hn::LoadU(d, from + 1);
  } else {
    hn::LoadInterleaved2(d, from, first, second);
  }
}
template <class E>
HWY_INLINE void StorePairs(E d, hn::Vec<E> first, hn::Vec<E> second, float* to) {
  if constexpr (hn::MaxLanes(E()) == 1) {
    hn::StoreU(first, d, to);
    hn::StoreU(second, d, to + 1);
  } else {
    hn::StoreInterleaved2(first, second, d, to);
  }
}

// The frequency k and its mirror N - k take part together: a pair of numbers is turned by an angle and reflected, which
// is its own inverse. `there` tells whether the numbers come as a packed spectrum, else as a transform.
struct Turns {
  const float *cos, *sin;

  explicit Turns(const DctPlan& plan)
      : cos(reinterpret_cast<const float*>(reinterpret_cast<const uint8_t*>(&plan) + plan.turns)),
        sin(cos + plan.length / 2 + 1) {}

  template <class E, class V>
  HWY_INLINE void operator()(E d, ptrdiff_t k, V& a, V& b) const {
    const V c = hn::LoadU(d, cos + k), s = hn::LoadU(d, sin + k);
    const V near = hn::Add(hn::Mul(a, c), hn::Mul(b, s));
    b = hn::Sub(hn::Mul(a, s), hn::Mul(b, c));
    a = near;
  }
};

}  // namespace

DctPlan LayOutDct(int64_t length) {
  DctPlan plan{};
  plan.length = length;
  plan.turns = kRecordBoundary;
  const int64_t tables = 2 * (length / 2 + 1) * int64_t{sizeof(float)};
  plan.dft = plan.turns + (tables + kRecordBoundary - 1) / kRecordBoundary * kRecordBoundary;
  plan.bytes = plan.dft + dft::LayOutDft(length, dft::DftKind::kReal).bytes;
  return plan;
}

void WriteDct(const DctPlan& plan, uint8_t* to) {
  std::memcpy(to, &plan, sizeof(plan));
  float *const cos = reinterpret_cast<float*>(to + plan.turns), *const sin = cos + plan.length / 2 + 1;
  for (int64_t k = 0; k <= plan.length / 2; ++k) {
    const SinCos angle = SinCosOfTurn(k, 4 * plan.length);
    cos[k] = static_cast<float>(angle.cos);
    sin[k] = static_cast<float>(angle.sin);
  }
  dft::DftPlan fourier = dft::LayOutDft(plan.length, dft::DftKind::kReal);
  fourier.scale[0] = 1;
  fourier.scale[1] = static_cast<float>(1 / static_cast<double>(plan.length));
  dft::WriteDft(fourier, to + plan.dft);
}

void Reorder(const DctPlan& plan, const float* line, float* to) {
  const auto n = static_cast<ptrdiff_t>(plan.length);
  ForEachElement(D(), n / 2, [=](auto d, ptrdiff_t i) HWY_ATTR {
    hn::Vec<decltype(d)> even, odd;
    LoadPairs(d, line + 2 * i, even, odd);
    hn::StoreU(even, d, to + i);
    hn::StoreU(Backwards(d, odd), d, to + n - i - ptrdiff_t{hn::MaxLanes(d)});
  });
  if (n % 2) to[n / 2] = line[n - 1];
}

void Restore(const DctPlan& plan, const float* reordered, float* to) {
  const auto n = static_cast<ptrdiff_t>(plan.length);
  ForEachElement(D(), n / 2, [=](auto d, ptrdiff_t i) HWY_ATTR {
    const auto odd = hn::LoadU(d, reordered + n - i - ptrdiff_t{hn::MaxLanes(d)});
    StorePairs(d, hn::LoadU(d, reordered + i), Backwards(d, odd), to + 2 * i);
  });
  if (n % 2) to[n - 1] = reordered[n / 2];
}

void Turn(const DctPlan& plan, const float* packed, float* to) {
  const auto n = static_cast<ptrdiff_t>(plan.length);
  const Turns turns(plan);
  to[0] = packed[0];
  ForEachElement(D(), (n - 1) / 2, [=](auto d, ptrdiff_t i) HWY_ATTR {
    hn::Vec<decltype(d)> a, b;
    LoadPairs(d, packed + 1 + 2 * i, a, b);
    turns(d, 1 + i, a, b);
    hn::StoreU(a, d, to + 1 + i);
    hn::StoreU(Backwards(d, b), d, to + n - 1 - i - (ptrdiff_t{hn::MaxLanes(d)} - 1));
  });
  if (n % 2 == 0) to[n / 2] = packed[n - 1] * turns.cos[n / 2];
}

void TurnBack(const DctPlan& plan, const float* transform, float* to) {
  const auto n = static_cast<ptrdiff_t>(plan.length);
  const Turns turns(plan);
  to[0] = transform[0];
  ForEachElement(D(), (n - 1) / 2, [=](auto d, ptrdiff_t i) HWY_ATTR {
    auto a = hn::LoadU(d, transform + 1 + i);
    auto b = Backwards(d, hn::LoadU(d, transform + n - 1 - i - (ptrdiff_t{hn::MaxLanes(d)} - 1)));
    turns(d, 1 + i, a, b);
    StorePairs(d, a, b, to + 1 + 2 * i);
  });
  if (n % 2 == 0) to[n - 1] = 2 * (transform[n / 2] * turns.cos[n / 2]);
}

}  // namespace qvp::dct
