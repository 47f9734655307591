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
constexpr bool IsShared(int64_t height, int64_t regionWidth) { return height > 1 && (height <= 8 || regionWidth < 4); }

int KeptCount(int64_t height, int64_t regionWidth) {
  return IsShared(height, regionWidth) ? 3 : static_cast<int>(std::min<int64_t>(height + 4, INT32_MAX));
}

template <class Op, class T>
class RectangleKernel {
 public:
  using Rows = ExtremeRows<Op, T>;
  using E = typename Rows::E;
  using D = typename Rows::D;

  static constexpr ptrdiff_t kLanes = Rows::kLanes;

  struct Rectangle {
    ptrdiff_t width, height, channels;
    typename Rows::Windowed across;
    E constant[4];  // of the border
  };

  static void DownShared(const void* context, const Window& window, const ResultRows& rows) {
    const Parts parts(context, window);
    T *const upper = Results(rows.upper), *const lower = Results(rows.lower);
    if (parts.of.width == 1) return Share<T>(parts, upper, lower);
    Share<E>(parts, parts.Inside(1), parts.Inside(2));
    if (lower != upper) parts.Across(2, lower);
    parts.Across(1, upper);
  }

  static void DownBlocks(const void* context, const Window& window, const ResultRows& rows) {
    const Parts parts(context, window);
    T *const upper = Results(rows.upper), *const lower = Results(rows.lower);
    if (parts.of.width == 1) return Join<T>(parts, upper, lower);
    Join<E>(parts, parts.Inside(1), parts.Inside(2));
    if (lower != upper) parts.Across(2, lower);
    parts.Across(1, upper);
  }

 private:
  static HWY_INLINE hn::Vec<D> Load(const E* pixels) { return LanesOf<Op, T>(hn::LoadU(D(), pixels)); }
  static T* Results(const std::array<uint8_t*, kMostOutputs>& rows) { return reinterpret_cast<T*>(rows[0]); }

  // The window of a mask, and the rows kept.
  struct Parts {
    Parts(const void* context, const Window& w) : of(*static_cast<const Rectangle*>(context)), window(w) {}

    const Rectangle& of;
    const Window& window;
    ptrdiff_t samples() const { return window.columns.inside * of.channels; }
    const E* Line(ptrdiff_t j) const { return static_cast<const E*>(window.lines[j]); }
    E* Kept(ptrdiff_t j) const { return reinterpret_cast<E*>(window.kept + j * window.keptStep); }
    // Of a row with its border columns: columns inside begin at a multiple of 32 bytes, if they fill a vector.
    E* Framed(ptrdiff_t j) const {
      constexpr ptrdiff_t kMultiple = 32 / sizeof(E);
      const ptrdiff_t before = window.columns.before * of.channels;
      return Kept(j) + (samples() < kLanes ? 0 : -before & (kMultiple - 1));
    }
    E* Inside(ptrdiff_t j) const { return Framed(j) + window.columns.before * of.channels; }

    // From a kept row whose columns inside are made; it is not needed afterwards.
    void Across(ptrdiff_t j, T* to) const {
      window.columns.Fill(of.channels, of.constant, Framed(j));
      of.across.Run(Framed(j), Kept(0), window.samples, to);
    }
  };

  // Of the lines but the last one, and of those but the first.
  template <class R, int kHeight>
  struct SharedKernel {
    static constexpr ptrdiff_t kLanes = Rows::kLanes;
    static constexpr int kVectors = 4;
    ptrdiff_t anyHeight;

    template <int kCount>
    HWY_INLINE void Run(const E* const* lines, ptrdiff_t at, R* upper, R* lower) const {
      const D d;
      const ptrdiff_t height = kHeight > 0 ? kHeight : anyHeight;
      hn::Vec<D> v[kCount];
      const auto load = [=](ptrdiff_t j, auto k) QVP_INLINED { return Load(lines[j] + at + k * kLanes); };
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
    if (parts.of.height == 3) return ShareAmong<R, 3>(parts, upper, lower);
    if (parts.of.height == 5) return ShareAmong<R, 5>(parts, upper, lower);
    const auto* const lines = reinterpret_cast<const E* const*>(parts.window.lines);
    FilterRows(SharedKernel<R, 0>{parts.of.height}, lines, parts.samples(), upper, lower);
  }
  template <class R, int kHeight>
  static void ShareAmong(const Parts& parts, R* upper, R* lower) {
    const auto lines = LinesOf<E, kHeight + 1>(parts.window.lines);
    FilterRows(SharedKernel<R, kHeight>{kHeight}, lines.data(), parts.samples(), upper, lower);
  }

  // Rows of a block have places in it: at 0 all of it is under the mask, at place p its end from line p on, and p lines
  // of the next block. Ends are kept; the beginning grows from one row to another and back.
  static E* End(const Parts& parts, ptrdiff_t place) { return parts.Kept(4 + place); }
  static E* Beginning(const Parts& parts, ptrdiff_t place) { return parts.Kept(3 + place / 2 % 2); }

  template <class R>
  static void Join(const Parts& parts, R* upper, R* lower) {
    const ptrdiff_t height = parts.of.height, place = parts.window.y % height;
    const auto* const lines = reinterpret_cast<const E* const*>(parts.window.lines);
    if (place > 0 && place < height - 1) return JoinTwo(parts, place, upper, lower);
    JoinOne(parts, lines, place, upper);
    if (lower != upper) JoinOne(parts, lines + 1, place == 0 ? std::min<ptrdiff_t>(1, height - 1) : 0, lower);
  }

  template <class R>
  static void JoinTwo(const Parts& parts, ptrdiff_t place, R* upper, R* lower) {
    const ptrdiff_t n = parts.samples(), height = parts.of.height;
    const auto lines = LinesOf<E, 2>(parts.window.lines + height - 1);
    E *const from = Beginning(parts, place), *const to = Beginning(parts, place + 2);
    if (place == 1) Rows::Load(lines[0], n, from);
    const JoiningKernel<R> kernel{from, to, {End(parts, place), End(parts, place + 1)}};
    FilterRows(kernel, lines.data(), n, upper, lower);
  }
  template <class R>
  struct JoiningKernel {
    static constexpr ptrdiff_t kLanes = Rows::kLanes;
    static constexpr int kVectors = 2;
    const E* from;
    E* to;
    const E* ends[2];

    template <int kCount>
    HWY_INLINE void Run(const E* const* added, ptrdiff_t at, R* upper, R* lower) const {
      const D d;
      const auto store = [=](hn::Vec<D> v, R* out)
                             QVP_INLINED { hn::StoreU(ResultOf<Op, R>(v), d, reinterpret_cast<E*>(out)); };
      Unrolled<kCount>([&](auto k) QVP_INLINED {
        const ptrdiff_t i = at + k * kLanes;
        const auto once = Op::Of(hn::LoadU(d, from + i), Load(added[0] + i)), twice = Op::Of(once, Load(added[1] + i));
        hn::StoreU(twice, d, to + i);
        store(Op::Of(twice, hn::LoadU(d, ends[1] + i)), lower + k * kLanes);
        store(Op::Of(once, hn::LoadU(d, ends[0] + i)), upper + k * kLanes);
      });
    }
  };

  // A row alone, from the lines of its window.
  template <class R>
  static void JoinOne(const Parts& parts, const E* const* lines, ptrdiff_t place, R* to) {
    const D d;
    if (place == 0) return Begin(parts, lines, to);
    const E* const added = lines[parts.of.height - 1];
    E *const beginning = Beginning(parts, place == 1 ? 2 : place), *const end = End(parts, place);
    if (place == 1) Rows::Load(added, parts.samples(), beginning);
    MakeRow<4, kLanes>(parts.samples(), reinterpret_cast<E*>(to), [=](auto count, ptrdiff_t i, E* out) HWY_ATTR {
      Unrolled<count>([&](auto k) QVP_INLINED {
        const ptrdiff_t at = i + k * kLanes;
        const auto v = Op::Of(Op::Of(hn::LoadU(d, beginning + at), Load(added + at)), hn::LoadU(d, end + at));
        hn::StoreU(ResultOf<Op, R>(v), d, out + k * kLanes);
      });
    });
  }

  // The first row of a block, and its ends.
  template <class R>
  static void Begin(const Parts& parts, const E* const* lines, R* to) {
    const D d;
    const ptrdiff_t last = parts.of.height - 1, step = parts.window.keptStep / ptrdiff_t{sizeof(E)};
    E* const ends = End(parts, 0);
    MakeRow<4, kLanes>(parts.samples(), reinterpret_cast<E*>(to), [=](auto count, ptrdiff_t i, E* out) HWY_ATTR {
      hn::Vec<D> v[count];
      const auto take = [&](ptrdiff_t j, auto k) QVP_INLINED { v[k] = Op::Of(v[k], Load(lines[j] + i + k * kLanes)); };
      Unrolled<count>([&](auto k) QVP_INLINED { v[k] = Load(lines[last] + i + k * kLanes); });
      for (ptrdiff_t j = last; j > 0; --j) {
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
void FilterRectangles(const Windows<BitsOf<T>>& windows, ptrdiff_t width, ptrdiff_t height) {
  using Kernel = RectangleKernel<Op, T>;
  using E = typename Kernel::E;
  const ptrdiff_t channels = windows.src.channels();
  typename Kernel::Rectangle rectangle{width, height, channels, {width, channels}, {}};
  std::memcpy(rectangle.constant, windows.src.constant, sizeof(rectangle.constant));
  for (E& c : rectangle.constant) c = hn::GetLane(LanesOf<Op, T>(hn::Set(hn::CappedTag<E, 1>(), c)));
  const bool isShared = IsShared(height, windows.roi.width);
  FilterWindows(windows, {.context = &rectangle,
                          .across = nullptr,
                          .down = isShared ? Kernel::DownShared : Kernel::DownBlocks,
                          .elementBytes = sizeof(T),
                          .rowsAtOnce = 2,
                          .kept = {KeptCount(height, windows.roi.width), sizeof(T)},
                          .isBare = true,
                          .cacheBytes = kSecondCacheBytes});
}

ByteCount RectangleBytes(Size mask, int64_t regionWidth, int channels, int elementBytes) {
  return WindowBytes(mask, regionWidth, channels, elementBytes, {KeptCount(mask.height, regionWidth), elementBytes},
                     kSecondCacheBytes);
}

#define EXTREMES(T)                                                                          \
  template void FilterRectangles<Least, T>(const Windows<BitsOf<T>>&, ptrdiff_t, ptrdiff_t); \
  template void FilterRectangles<Greatest, T>(const Windows<BitsOf<T>>&, ptrdiff_t, ptrdiff_t);
EXTREMES(uint8_t)
EXTREMES(uint16_t)
EXTREMES(int16_t)
EXTREMES(float)

}  // namespace qvp::filter
