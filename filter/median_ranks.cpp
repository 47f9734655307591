// Medians of floats by ranks: the pixels of a tile, and those around it that its masks reach, are sorted once, and
// counted by their places in that order.
#include "base/scalar.h"
#include "filter/median.h"
#include "filter/median_sliding.h"

namespace qvp::filter {
namespace {

// A key in the upper half, so that numbers are sorted by it, and where the pixel is in the lower one.
using Entry = uint64_t;

constexpr int kDigitBits = 8, kDigits = 4, kDigitValues = 1 << kDigitBits, kBinBits = 9;

uint32_t KeyOf(int32_t bits) { return static_cast<uint32_t>(OrderedBits(bits)) ^ 0x80000000; }
int32_t BitsOfKey(uint32_t key) { return OrderedBits(static_cast<int32_t>(key ^ 0x80000000)); }
uint32_t KeyOf(Entry entry) { return static_cast<uint32_t>(entry >> 32); }

// Pixels of a tile, with those around it: twice the mask, so that tiles have about as many results.
struct TileSize {
  int64_t width, height;

  explicit TileSize(QvpiSize mask) : width(SideFor(mask.width)), height(SideFor(mask.height)) {}
  int64_t Pixels() const { return width * height; }
  int64_t Bins() const { return (Pixels() >> kBinBits) + 1; }

 private:
  static int64_t SideFor(int side) { return std::max<int64_t>(2 * side, 128); }
};

// Sorts by digits of the keys, from the lowest on; digits that all keys have in common are left out. Returns where the
// result is, of both.
Entry* SortByKeys(Entry* entries, Entry* spare, ptrdiff_t n) {
  uint32_t counts[kDigits][kDigitValues] = {};
  const auto digit = [](Entry entry, int k) { return (KeyOf(entry) >> (k * kDigitBits)) & (kDigitValues - 1); };
  for (ptrdiff_t i = 0; i < n; ++i) {
    for (int k = 0; k < kDigits; ++k) ++counts[k][digit(entries[i], k)];
  }
  for (int k = 0; k < kDigits; ++k) {
    if (counts[k][digit(entries[0], k)] == static_cast<uint32_t>(n)) continue;
    uint32_t next = 0;
    for (uint32_t& count : counts[k]) next += std::exchange(count, next);
    for (ptrdiff_t i = 0; i < n; ++i) spare[counts[k][digit(entries[i], k)]++] = entries[i];
    std::swap(entries, spare);
  }
  return entries;
}

class RankFilter {
 public:
  explicit RankFilter(const MedianCall<float>& call) : call_(call), most_(call.mask) {
    entries_ = reinterpret_cast<Entry*>(AtBoundary(call.windows.buffer));
    spare_ = entries_ + most_.Pixels();
    auto* const fine = reinterpret_cast<uint16_t*>(spare_ + most_.Pixels());
    counts_ = {fine, fine + most_.Pixels(), kBinBits};
    std::memset(fine, 0, (most_.Pixels() + most_.Bins()) * sizeof(uint16_t));
  }

  void Run() {
    const Size roi = call_.windows.roi;
    const ptrdiff_t width = static_cast<ptrdiff_t>(most_.width) - call_.mask.width + 1,
                    height = static_cast<ptrdiff_t>(most_.height) - call_.mask.height + 1;
    for (ptrdiff_t y = 0; y < roi.height; y += height) {
      for (ptrdiff_t x = 0; x < roi.width; x += width) {
        FilterTile(x, y, {std::min(width, roi.width - x), std::min(height, roi.height - y)});
      }
    }
  }

 private:
  void FilterTile(ptrdiff_t x, ptrdiff_t y, Size size) {
    const int channels = ProcessedChannels(call_.windows.outputs[0].layout);
    for (int c = 0; c < channels; ++c) {
      const ptrdiff_t width = size.width + call_.mask.width - 1, height = size.height + call_.mask.height - 1;
      Gather(x - call_.windows.reach.left, y - call_.windows.reach.above, {width, height}, c);
      const Entry* const sorted = SortByKeys(entries_, spare_, width * height);
      auto* const ranks = reinterpret_cast<uint32_t*>(sorted == entries_ ? spare_ : entries_);
      for (ptrdiff_t i = 0; i < width * height; ++i) {
        ranks[static_cast<uint32_t>(sorted[i])] = static_cast<uint32_t>(i);
      }
      for (ptrdiff_t row = 0; row < size.height; ++row) {
        const Bytes& dst = call_.windows.outputs[0];
        uint8_t* const to = dst.Row(y + row) + x * dst.PixelBytes() + c * int{sizeof(float)};
        const auto filter = call_.ranks.isPlain() ? &RankFilter::FilterRow<true> : &RankFilter::FilterRow<false>;
        (this->*filter)(ranks + row * width, sorted, width, to);
      }
    }
  }

  void Gather(ptrdiff_t x, ptrdiff_t y, Size size, int channel) {
    const auto& src = call_.windows.src;
    Entry* to = entries_;
    for (ptrdiff_t j = 0; j < size.height; ++j) {
      const uint32_t* const row = src.Row(y + j);
      for (ptrdiff_t i = 0; i < size.width; ++i, ++to) {
        const uint32_t bits = LoadScalar(src.PixelOf(row, x + i) + channel);
        *to = Entry{KeyOf(static_cast<int32_t>(bits))} << 32 | static_cast<uint32_t>(to - entries_);
      }
    }
  }

  // A row of results from the ranks whose masks begin there.
  template <bool kIsPlain>
  void FilterRow(const uint32_t* ranks, const Entry* sorted, ptrdiff_t width, uint8_t* to) {
    const QvpiSize mask = call_.mask;
    const uint32_t* const centres = ranks + mask.height / 2 * width + mask.width / 2;
    const ptrdiff_t step = call_.windows.outputs[0].PixelBytes();
    SlideAlong<kIsPlain>(SlidingMask{[=](ptrdiff_t j) { return ranks + j * width; }, mask.width, mask.height, 1},
                         counts_, width - mask.width + 1, call_.ranks.low, call_.ranks.high,
                         [=](ptrdiff_t x, uint32_t low, uint32_t high) {
                           const uint32_t rank = kIsPlain ? low : std::clamp(centres[x], low, high);
                           StoreScalar(reinterpret_cast<int32_t*>(to + x * step), BitsOfKey(KeyOf(sorted[rank])));
                         });
  }

  const MedianCall<float>& call_;
  TileSize most_;
  Entry *entries_, *spare_;
  SlidingCounts counts_;
};

}  // namespace

ByteCount RankBytes(QvpiSize mask) {
  const TileSize most(mask);
  return most.Pixels() * int64_t{2 * sizeof(Entry) + sizeof(uint16_t)} + most.Bins() * int64_t{sizeof(uint16_t)} +
         kRecordBoundary;
}

void FilterByRanks(const MedianCall<float>& call) { RankFilter(call).Run(); }

}  // namespace qvp::filter
