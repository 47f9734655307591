// The call of a filter with a fixed kernel: its checks in order, and its walk.
#pragma once

#include "base/pack.h"
#include "base/unrolled.h"
#include "filter/fixed_kinds.h"
#include "filter/window_call.h"

namespace qvp::filter {

// Lanes that hold every sum of a fixed kernel over pixels of T.
template <class T>
using FixedLane =
    std::conditional_t<std::is_same_v<T, float>, float, std::conditional_t<sizeof(T) == 1, int16_t, int32_t>>;

// Two vectors of results from vectors of lanes: bytes are taken by twos, those at even places and those at odd ones,
// and their results come so.
template <class R, class D, class V>
HWY_INLINE void StoreEvenOdd(D d, V even, V odd, R* to) {
  if constexpr (sizeof(R) == sizeof(hn::TFromD<D>)) {
    hn::StoreInterleaved2(even, odd, d, to);
  } else {
    const hn::Repartition<R, D> bytes;
    static constexpr auto kTurns = [] {
      std::array<uint8_t, hn::MaxLanes(hn::ScalableTag<uint8_t>())> places{};
      for (size_t i = 0; i < places.size(); ++i) places[i] = static_cast<uint8_t>(i % 16 / 2 + i % 2 * 8);
      return places;
    }();
    hn::StoreU(hn::TableLookupBytes(Packed(R(), even, odd), hn::LoadU(bytes, kTurns.data())), bytes, to);
  }
}

// kCount vectors of lanes, as results.
template <int kCount, class R, class D, class V>
HWY_INLINE void StoreLanes(D d, const V (&v)[kCount], R* to) {
  using L = hn::TFromD<D>;
  constexpr ptrdiff_t kLanes = hn::MaxLanes(D());
  if constexpr (std::is_same_v<R, float> && std::is_integral_v<L>) {
    const hn::Rebind<float, D> f;
    Unrolled<kCount>([&](auto i) QVP_INLINED { hn::StoreU(hn::ConvertTo(f, v[i]), f, to + i * kLanes); });
  } else if constexpr (sizeof(R) < sizeof(L) && kCount == 2) {
    hn::StoreU(PackedInOrder<R>(v[0], v[1]), hn::Repartition<R, D>(), to);
  } else {
    Unrolled<kCount>([&](auto i) QVP_INLINED { hn::StoreU(Narrow<R>(d, v[i]), hn::Rebind<R, D>(), to + i * kLanes); });
  }
}

// For templates, which do not convert.
template <class T>
HWY_INLINE const T* Const(const T* p) {
  return p;
}

// Two rows of results of a kind at a time, from rows of pixels that are taken as they are.
template <class T, class R, class Kind>
class FixedKernel {
 public:
  using Element = T;
  using Result = R;
  using D = hn::ScalableTag<FixedLane<T>>;
  static constexpr ptrdiff_t kLanes = hn::MaxLanes(D());
  static constexpr int kLines = Kind::kHeight + 1;
  static constexpr int kVectors = sizeof(T) == 1 || sizeof(R) < sizeof(FixedLane<T>) ? 2 : 1;  // whose results fill one

  explicit FixedKernel(int channels) : channels_(channels) {}

  template <int kCount>
  HWY_INLINE void Run(const T* const* lines, ptrdiff_t at, R* upper, R* lower) const {
    const D d;
    constexpr bool kIsEvenOdd = sizeof(T) == 1 && kCount == 2;
    hn::Vec<D> above[kCount], below[kCount];
    Unrolled<kCount>([&](auto v) QVP_INLINED {
      Parts<D, Kind::kParts> rows[kLines];
      Unrolled<kLines>([&](auto j) QVP_INLINED {
        const T* first = lines[j] + at + (kIsEvenOdd ? 0 : v * kLanes);
        if constexpr (kIsEvenOdd) first = Unknown(first);  // all sums of the even places come before those of the odd
        rows[j] = Kind::RowOf(d, [&](int k) QVP_INLINED {
          if constexpr (kIsEvenOdd) return EveryOther<v>(first + k * channels_);
          if constexpr (!kIsEvenOdd) return LoadWide(d, first + k * channels_);
        });
      });
      above[v] = Kind::Result(d, Const(rows));
      below[v] = Kind::Result(d, Const(rows + 1));
    });
    if constexpr (kIsEvenOdd) {
      StoreEvenOdd(d, below[0], below[1], lower);
      StoreEvenOdd(d, above[0], above[1], upper);
    } else {
      StoreLanes<kCount>(d, below, lower);
      StoreLanes<kCount>(d, above, upper);
    }
  }

 private:
  // The bytes at even places, or those at odd ones: a mask or a shift takes the place of a conversion.
  template <int kOdd>
  static HWY_INLINE hn::Vec<D> EveryOther(const uint8_t* from) {
    const hn::RebindToUnsigned<D> words;
    const auto pairs = hn::BitCast(words, hn::LoadU(hn::ScalableTag<uint8_t>(), from));
    if constexpr (kOdd) return hn::BitCast(D(), hn::ShiftRight<8>(pairs));
    return hn::BitCast(D(), hn::And(pairs, hn::Set(words, 0xFF)));
  }

  ptrdiff_t channels_;
};

// The same from lines of parts: a line has all first parts, then all second ones.
template <class T, class R, class Kind>
class FixedKernelOfParts {
 public:
  using Element = FixedLane<T>;
  using D = hn::ScalableTag<Element>;
  static constexpr ptrdiff_t kLanes = hn::MaxLanes(D());
  static constexpr int kLines = Kind::kHeight + 1, kVectors = sizeof(R) < sizeof(Element) ? 2 : 1;

  // The context is the number of channels. Rows that are shorter than a vector are in the lines' room, in order, so
  // that what is behind the first parts is overwritten by the second ones.
  static void Across(const void* context, const void* source, void* line, ptrdiff_t samples) {
    const D d;
    const ptrdiff_t channels = *static_cast<const int*>(context);
    const auto* const from = static_cast<const T*>(source);
    auto* const to = static_cast<Element*>(line);
    ForEachVector<kLanes>(std::max(samples, kLanes), [&](ptrdiff_t i) HWY_ATTR {
      const auto parts = Kind::RowOf(d, [&](int k) QVP_INLINED { return LoadWide(d, from + i + k * channels); });
      for (int p = 0; p < Kind::kParts; ++p) hn::StoreU(parts[p], d, to + p * samples + i);
    });
  }

  static void Down(const void*, const Window& window, const ResultRows& rows) {
    const auto from = LinesOf<Element, kLines>(window.lines);
    FilterRows(FixedKernelOfParts(window.samples), from.data(), window.samples, reinterpret_cast<R*>(rows.upper[0]),
               reinterpret_cast<R*>(rows.lower[0]));
  }

  template <int kCount>
  HWY_INLINE void Run(const Element* const* lines, ptrdiff_t at, R* upper, R* lower) const {
    const D d;
    hn::Vec<D> above[kCount], below[kCount];
    Unrolled<kCount>([&](auto v) QVP_INLINED {
      Parts<D, Kind::kParts> rows[kLines];
      Unrolled<kLines>([&](auto j) QVP_INLINED {
        for (int p = 0; p < Kind::kParts; ++p) {
          rows[j][p] = hn::LoadU(d, lines[j] + p * samples_ + at + v * kLanes);
        }
      });
      above[v] = Kind::Result(d, Const(rows));
      below[v] = Kind::Result(d, Const(rows + 1));
    });
    StoreLanes<kCount>(d, below, lower);
    StoreLanes<kCount>(d, above, upper);
  }

 private:
  explicit FixedKernelOfParts(ptrdiff_t samples) : samples_(samples) {}

  ptrdiff_t samples_;
};

constexpr bool IsMask(QvpiSize mask, int width, int height) { return mask.width == width && mask.height == height; }

// Replicating the pixel itself too is asked for by masks of 3 x 3 only, and is the same for them.
inline QvpStatus CheckFixedBorder(QvpiSize mask, QvpiBorderType* border) {
  using enum BorderKind;
  const bool takesAlternative = IsMask(mask, 3, 3) && IsBorderOf({kReplicateAlt}, *border);
  if (takesAlternative && KindOf(*border) == kReplicateAlt) *border = (*border & ~0xF) | qvpBorderReplicate;
  return CheckBorder(*border);
}

// Where results are longer than pixels of two bytes, the step must be a multiple of theirs.
template <class T, class R>
QvpStatus CheckFixed(const WindowCall<T, R>& call) {
  if (const QvpStatus failed = call.Check()) return failed;
  return sizeof(T) == 2 && std::is_same_v<R, float> && call.dst.step % 4 != 0 ? qvpStatusNotEvenStep : qvpStatusNoError;
}

template <class Kind, class T, class R>
void FilterFixed(const WindowCall<T, R>& call) {
  constexpr Reach kReach{(Kind::kWidth - 1) / 2, (Kind::kHeight - 1) / 2, Kind::kWidth / 2, Kind::kHeight / 2};
  const int channels = call.channels();
  const auto windows = call.Reaching(kReach);
  if constexpr (kKeepsParts<Kind>) {
    using Kernel = FixedKernelOfParts<T, R, Kind>;
    constexpr int kBytes = Kind::kParts * sizeof(typename Kernel::Element);
    FilterWindows(windows, {&channels, Kernel::Across, Kernel::Down, kBytes, 2});
  } else {
    const FixedKernel<T, R, Kind> kernel(channels);
    FilterWindows(windows, {&kernel, nullptr, DownBy<FixedKernel<T, R, Kind>>, sizeof(T), 2});
  }
}

// The kinds of the masks that a function knows.
template <class... Kinds>
struct Masks {};

template <class T, class R, class... Kinds>
QvpStatus Fixed(WindowCall<T, R> call, QvpiSize mask, Masks<Kinds...>) {
  if (const QvpStatus failed = CheckFixed(call)) return failed;
  if (!(IsMask(mask, Kinds::kWidth, Kinds::kHeight) || ...)) return qvpStatusMaskSize;
  if (const QvpStatus failed = CheckFixedBorder(mask, &call.border)) return failed;
  (void)((IsMask(mask, Kinds::kWidth, Kinds::kHeight) && (FilterFixed<Kinds>(call), true)) || ...);
  return qvpStatusNoError;
}

}  // namespace qvp::filter

// A function of the grid, by the kinds of its masks.
#define QVP_FIXED(name, from, to, layout, types, ...) \
  QVP_WINDOW(name, from, to, types, layout, Fixed, (QvpiSize maskSize), (), (maskSize, Masks<__VA_ARGS__>()))
