// Medians of bytes in a time that does not depend on the mask (Perreault and Hebert, Median filtering in constant time,
// 2007): counts of each column are kept from row to row, and those of the mask are sums of the columns', of which each
// pixel adds one and takes one away.
//
// Bytes fall into 16 bins of 16 values. Bins are followed at each pixel, values only of the bin that the median is in:
// its counts are brought up from where they were needed last. All counts are cumulative, so that comparing them with a
// place tells at once where it is.
#include "base/unrolled.h"
#include "filter/median.h"

namespace qvp::filter {
namespace {

constexpr int kBins = 16, kBinBits = 4, kBinMask = kBins - 1;

// Counts of a column have a byte each, as masks have up to 255 rows.
using ColumnTag = hn::Full128<uint8_t>;
using Tag = hn::CappedTag<uint16_t, kBins>;
constexpr int kLanes = hn::MaxLanes(Tag()), kVectors = kBins / kLanes;

// Cumulative counts of 16 bins or values under a mask.
struct Counts {
  std::array<hn::Vec<Tag>, kVectors> lanes;

  static HWY_INLINE Counts None() {
    return Each([](auto) QVP_INLINED { return hn::Zero(Tag()); });
  }
  static HWY_INLINE Counts At(const uint16_t* from) {
    return Each([=](auto v) QVP_INLINED { return hn::LoadU(Tag(), from + v * kLanes); });
  }
  HWY_INLINE void StoreTo(uint16_t* to) const {
    Unrolled<kVectors>([&](auto v) QVP_INLINED { hn::StoreU(lanes[v], Tag(), to + v * kLanes); });
  }
  HWY_INLINE Counts Plus(const uint8_t* column) const {
    return Each([&](auto v) QVP_INLINED { return hn::Add(lanes[v], OfColumn(column, v)); });
  }
  HWY_INLINE Counts Moved(const uint8_t* from, const uint8_t* to) const {
    return Each([&](auto v) QVP_INLINED { return hn::Add(lanes[v], hn::Sub(OfColumn(to, v), OfColumn(from, v))); });
  }
  // How many are at most `place`: the bin or value that has it.
  HWY_INLINE size_t AtMost(int place) const {
    const auto top = hn::Set(Tag(), static_cast<uint16_t>(place));
    size_t count = 0;
    Unrolled<kVectors>([&](auto v) QVP_INLINED {
      count += hn::CountTrue(Tag(), hn::Eq(hn::SaturatedSub(lanes[v], top), hn::Zero(Tag())));
    });
    return count;
  }

 private:
  template <class Make>
  static HWY_INLINE Counts Each(const Make& make) {
    Counts counts;
    Unrolled<kVectors>([&](auto v) QVP_INLINED { counts.lanes[v] = make(v); });
    return counts;
  }
  static HWY_INLINE hn::Vec<Tag> OfColumn(const uint8_t* column, int v) {
    return hn::PromoteTo(Tag(), hn::LoadU(hn::Rebind<uint8_t, Tag>(), column + v * kLanes));
  }
};

// The counts of columns: one row of memory for each bin's values, and one for the bins.
struct Columns {
  uint8_t* first;
  ptrdiff_t rowStep;

  HWY_INLINE uint8_t* Values(ptrdiff_t bin, ptrdiff_t i) const { return first + bin * rowStep + i * kBins; }
  HWY_INLINE uint8_t* Bins(ptrdiff_t i) const { return Values(kBins, i); }

  void Clear(ptrdiff_t n) const {
    for (int row = 0; row <= kBins; ++row) std::memset(Values(row, 0), 0, n * kBins);
  }
  // Counts the pixels of a line once more, or once less.
  template <bool kIsMore>
  void Count(const uint8_t* line, ptrdiff_t n) const {
    static constexpr auto kSteps = [] {
      std::array<uint8_t, 2 * kBins> steps{};
      std::fill_n(steps.begin() + kBins, kBins, uint8_t{1});
      return steps;
    }();
    const ColumnTag d;
    const auto count = [=](uint8_t* counts, int from) QVP_INLINED {
      const auto before = hn::LoadU(d, counts), ones = hn::LoadU(d, kSteps.data() + kBins - from);
      hn::StoreU(kIsMore ? hn::Add(before, ones) : hn::Sub(before, ones), d, counts);
    };
    for (ptrdiff_t i = 0; i < n; ++i) {
      const int bin = line[i] >> kBinBits;
      count(Bins(i), bin);
      count(Values(bin, i), line[i] & kBinMask);
    }
  }
};

// A mask that moves along a row: the counts of its bins, and those of each bin's values for where they were made.
class MovingMask {
 public:
  MovingMask(const Columns& columns, ptrdiff_t width, ptrdiff_t channel, ptrdiff_t channels)
      : columns_(columns), width_(width), channel_(channel), channels_(channels), bins_(Counts::None()) {
    std::fill_n(madeAt_, kBins, -width);
    for (ptrdiff_t x = 0; x < width; ++x) bins_ = bins_.Plus(columns_.Bins(Sample(x)));
  }

  HWY_INLINE void Advance() {
    bins_ = bins_.Moved(columns_.Bins(Sample(x_)), columns_.Bins(Sample(x_ + width_)));
    ++x_;
  }

  HWY_INLINE uint8_t ValueAt(int place) {
    const size_t bin = bins_.AtMost(place);
    uint16_t below[1 + kBins];
    below[0] = 0;
    bins_.StoreTo(below + 1);
    return static_cast<uint8_t>(bin << kBinBits | ValuesOf(bin).AtMost(place - below[bin]));
  }

 private:
  HWY_INLINE ptrdiff_t Sample(ptrdiff_t x) const { return x * channels_ + channel_; }

  HWY_INLINE Counts ValuesOf(size_t bin) {
    uint16_t* const kept = values_[bin];
    ptrdiff_t x = madeAt_[bin];
    madeAt_[bin] = x_;
    if (x == x_) return Counts::At(kept);
    const Counts values = x_ - x < width_ ? Moved(bin, x, Counts::At(kept)) : Made(bin);
    values.StoreTo(kept);
    return values;
  }
  HWY_INLINE Counts Moved(size_t bin, ptrdiff_t x, Counts values) const {
    for (; x < x_; ++x)
      values = values.Moved(columns_.Values(bin, Sample(x)), columns_.Values(bin, Sample(x + width_)));
    return values;
  }
  HWY_INLINE Counts Made(size_t bin) const {
    Counts values = Counts::None();
    for (ptrdiff_t x = x_; x < x_ + width_; ++x) values = values.Plus(columns_.Values(bin, Sample(x)));
    return values;
  }

  const Columns columns_;
  const ptrdiff_t width_, channel_, channels_;
  ptrdiff_t x_ = 0;
  Counts bins_;
  uint16_t values_[kBins][kBins];
  ptrdiff_t madeAt_[kBins];
};

struct ColumnKernel {
  QvpiSize mask;
  MedianRanks ranks;
  ptrdiff_t channels;

  static void Down(const void* context, const Window& window, const ResultRows& rows) {
    const auto& kernel = *static_cast<const ColumnKernel*>(context);
    const Columns columns{window.kept, window.keptStep};
    const ptrdiff_t n = window.samples + (kernel.mask.width - 1) * kernel.channels, last = kernel.mask.height - 1;
    const auto line = [&](ptrdiff_t j) { return static_cast<const uint8_t*>(window.lines[j]); };
    if (window.y == 0) {
      columns.Clear(n);
      for (ptrdiff_t j = 0; j < last; ++j) columns.Count<true>(line(j), n);
    }
    columns.Count<true>(line(last), n);
    for (ptrdiff_t c = 0; c < kernel.channels; ++c) {
      const uint8_t* const centres = line(last / 2) + kernel.mask.width / 2 * kernel.channels + c;
      kernel.Filter(columns, centres, window.samples / kernel.channels, c, rows.upper[0] + c);
    }
    columns.Count<false>(line(0), n);
  }

 private:
  void Filter(const Columns& columns, const uint8_t* centres, ptrdiff_t n, ptrdiff_t channel, uint8_t* to) const {
    MovingMask moving(columns, mask.width, channel, channels);
    const ptrdiff_t step = channels;
    const MedianRanks places = ranks;
    for (ptrdiff_t x = 0; x < n; ++x) {
      if (x > 0) moving.Advance();
      const uint8_t low = moving.ValueAt(places.low);
      to[x * step] = places.isPlain() ? low : std::clamp(centres[x * step], low, moving.ValueAt(places.high));
    }
  }
};

}  // namespace

void FilterByColumnCounts(const MedianCall<uint8_t>& call) {
  const ColumnKernel kernel{call.mask, call.ranks, call.channels()};
  FilterWindows(call.windows, {.context = &kernel,
                               .across = nullptr,
                               .down = ColumnKernel::Down,
                               .elementBytes = 1,
                               .rowsAtOnce = 1,
                               .kept = kColumnCounts,
                               .cacheBytes = kColumnCacheBytes});
}

}  // namespace qvp::filter
