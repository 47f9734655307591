// Extremes of rectangles: down the lines of a window first, which may be rows of the image as they are, then across.
//
// Low masks are run two rows at a time, which have all lines but two in common. High ones by blocks of as many rows as
// the mask has (van Herk 1992, Gil and Werman 1993): every window is the end of one block and the beginning of the
// next. The ends are found together, at the first row of a block; the beginning grows by a line a row.
#include "filter/extremes.h"

#include "filter/extreme_rows.h"

namespace qvp::filter {
namespace {

// Masks of few lines go by two rows, and columns of few pixels, whose kept rows were longer than what is in them.
constexpr bool IsShared(int64_t height, int64_t regionWidth) { return height <= 8 || regionWidth < 4; }

int KeptCount(int64_t height, int64_t regionWidth) {
  return IsShared(height, regionWidth) ? 3 : static_cast<int>(height) + 1;
}

template <class Op, class T>
class RectangleKernel {
 public:
  using Rows = ExtremeRows<Op, T>;
  using E = typename Rows::E;
  using D = typename Rows::D;

  static constexpr bool kHasKeys = std::is_same_v<T, float>;
  static constexpr ptrdiff_t kLanes = Rows::kLanes;

  static void AcrossKeys(const void*, const void* source, void* line, ptrdiff_t samples) {
    Rows::Load(source, samples, static_cast<E*>(line));
  }

  static void DownShared(const void* context, const Window& window, const ResultRows& rows) {
    const Parts parts(context, window);
    T *const upper = Results(rows.upper), *const lower = Results(rows.lower);
    if (parts.height == 1) {
      parts.Across(parts.Line(1), parts.Kept(1), lower);
      return parts.Across(parts.Line(0), parts.Kept(1), upper);
    }
    if (parts.width == 1) return Share<T>(parts, upper, lower);
    Share<E>(parts, parts.Kept(1), parts.Kept(2));
    if (lower != upper) parts.Across(parts.Kept(2), parts.Kept(2), lower);
    parts.Across(parts.Kept(1), parts.Kept(1), upper);
  }

  static void DownBlocks(const void* context, const Window& window, const ResultRows& rows) {
    const Parts parts(context, window);
    const ptrdiff_t place = window.y % parts.height;
    if (parts.width == 1) return Join<T>(parts, place, Results(rows.upper));
    Join<E>(parts, place, parts.Kept(1));
    parts.Across(parts.Kept(1), parts.Kept(1), Results(rows.upper));
  }

 private:
  static T* Results(const std::array<uint8_t*, kMostOutputs>& rows) { return reinterpret_cast<T*>(rows[0]); }

  // The window of a mask, and the rows kept.
  struct Parts : Rectangle {
    Parts(const void* context, const Window& w) : Rectangle(*static_cast<const Rectangle*>(context)), window(w) {}

    const Window& window;
    ptrdiff_t samples() const { return window.samples + (width - 1) * channels; }
    const E* Line(ptrdiff_t j) const { return static_cast<const E*>(window.lines[j]); }
    E* Kept(ptrdiff_t j) const { return reinterpret_cast<E*>(window.kept + j * window.keptStep); }

    // `spare` may be what it is made from: that is not read then any more.
    void Across(const E* from, E* spare, T* to) const {
      Rows::Across(from, width, channels, {Kept(0), spare}, window.samples, to);
    }
  };

  // Of the lines but the last one, and of those but the first.
  template <class R>
  struct SharedKernel {
    static constexpr ptrdiff_t kLanes = Rows::kLanes;
    static constexpr int kVectors = 4;
    ptrdiff_t height;

    template <int kCount>
    HWY_INLINE void Run(const E* const* lines, ptrdiff_t at, R* upper, R* lower) const {
      const D d;
      hn::Vec<D> v[kCount];
      const auto load = [=](ptrdiff_t j, auto k) QVP_INLINED { return hn::LoadU(d, lines[j] + at + k * kLanes); };
      Unrolled<kCount>([&](auto k) QVP_INLINED { v[k] = load(1, k); });
      for (ptrdiff_t j = 2; j < height; ++j) {
        Unrolled<kCount>([&](auto k) QVP_INLINED { v[k] = Op::Of(v[k], load(j, k)); });
      }
      const auto store = [&](ptrdiff_t j, auto k, R* to) QVP_INLINED {
        const auto result = ResultOf<Op, R>(Op::Of(v[k], load(j, k)));
        hn::StoreU(result, d, reinterpret_cast<E*>(to) + k * kLanes);
      };
      Unrolled<kCount>([&](auto k) QVP_INLINED { store(height, k, lower); });
      Unrolled<kCount>([&](auto k) QVP_INLINED { store(0, k, upper); });
    }
  };
  template <class R>
  static void Share(const Parts& parts, R* upper, R* lower) {
    const auto* const lines = reinterpret_cast<const E* const*>(parts.window.lines);
    FilterRows(SharedKernel<R>{parts.height}, lines, parts.samples(), upper, lower);
  }

  // The row at a place of its block: the end of this block from there on, and as many lines of the next one.
  template <class R>
  static void Join(const Parts& parts, ptrdiff_t place, R* to) {
    const D d;
    const ptrdiff_t last = parts.height - 1;
    if (place == 0) return Begin(parts, to);
    E* const beginning = parts.Kept(2);
    const E *const line = parts.Line(last), *const before = place == 1 ? line : beginning,
                   *const end = place == last ? parts.Line(0) : parts.Kept(2 + place);
    MakeRow<4, kLanes>(parts.samples(), reinterpret_cast<E*>(to), [=](auto count, ptrdiff_t i, E* out) HWY_ATTR {
      Unrolled<count>([&](auto k) QVP_INLINED {
        const ptrdiff_t at = i + k * kLanes;
        const auto grown = Op::Of(hn::LoadU(d, before + at), hn::LoadU(d, line + at));
        hn::StoreU(grown, d, beginning + at);
        hn::StoreU(ResultOf<Op, R>(Op::Of(grown, hn::LoadU(d, end + at))), d, out + k * kLanes);
      });
    });
  }

  // The first row of a block, which is all of it. Ends from the second row on are kept, but for the last line alone.
  template <class R>
  static void Begin(const Parts& parts, R* to) {
    const D d;
    const auto* const lines = reinterpret_cast<const E* const*>(parts.window.lines);
    const ptrdiff_t last = parts.height - 1, step = parts.window.keptStep / ptrdiff_t{sizeof(E)};
    E* const ends = parts.Kept(2);
    MakeRow<4, kLanes>(parts.samples(), reinterpret_cast<E*>(to), [=](auto count, ptrdiff_t i, E* out) HWY_ATTR {
      hn::Vec<D> v[count];
      const auto take = [&](ptrdiff_t j, auto k)
                            QVP_INLINED { v[k] = Op::Of(v[k], hn::LoadU(d, lines[j] + i + k * kLanes)); };
      Unrolled<count>([&](auto k) QVP_INLINED { v[k] = hn::LoadU(d, lines[last] + i + k * kLanes); });
      for (ptrdiff_t j = last - 1; j > 0; --j) {
        Unrolled<count>([&](auto k) QVP_INLINED {
          take(j, k);
          hn::StoreU(v[k], d, ends + j * step + i + k * kLanes);
        });
      }
      Unrolled<count>([&](auto k) QVP_INLINED {
        take(0, k);
        hn::StoreU(ResultOf<Op, R>(v[k]), d, out + k * kLanes);
      });
    });
  }
};

}  // namespace

template <class Op, class T>
void FilterRectangles(const Windows<BitsOf<T>>& windows, const Rectangle& rectangle) {
  using Kernel = RectangleKernel<Op, T>;
  const bool isShared = IsShared(rectangle.height, windows.roi.width);
  FilterWindows(windows, {.context = &rectangle,
                          .across = Kernel::kHasKeys ? Kernel::AcrossKeys : nullptr,
                          .down = isShared ? Kernel::DownShared : Kernel::DownBlocks,
                          .elementBytes = sizeof(T),
                          .rowsAtOnce = isShared ? 2 : 1,
                          .kept = {KeptCount(rectangle.height, windows.roi.width), sizeof(T)},
                          .keepsReach = true});
}

ByteCount RectangleBytes(Size mask, int64_t regionWidth, int channels, int elementBytes) {
  return WindowBytes(mask, regionWidth, channels, elementBytes, {KeptCount(mask.height, regionWidth), elementBytes});
}

#define EXTREMES(T)                                                                      \
  template void FilterRectangles<Least, T>(const Windows<BitsOf<T>>&, const Rectangle&); \
  template void FilterRectangles<Greatest, T>(const Windows<BitsOf<T>>&, const Rectangle&);
EXTREMES(uint8_t)
EXTREMES(uint16_t)
EXTREMES(int16_t)
EXTREMES(float)

}  // namespace qvp::filter
