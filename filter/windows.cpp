// The walk of a window of lines down a region.
#include "filter/windows.h"

#include "base/map.h"

namespace qvp::filter {
namespace {

// Columns that blocks have in common do not count.
constexpr int64_t kFewestColumns = 64;

// Behind a line there is room for a vector. Lines are kept close: there may be thousands of a few pixels.
constexpr int64_t kVectorBytes = 64, kLineBoundary = 32;

ByteCount LineBytes(ByteCount samples, int elementBytes) {
  return (samples * elementBytes + kVectorBytes).RoundedTo(kLineBoundary);
}

// Lines of a window, one more among them, and what is kept beside them, of one column.
ByteCount BytesOfColumn(int64_t maskHeight, int channels, int elementBytes, const KeptRows& kept) {
  return ((ByteCount(maskHeight) + 1) * elementBytes + ByteCount(kept.count) * kept.elementBytes) * channels;
}

// A block of columns with its window.
template <class T, class E>
class Block {
 public:
  // `isNarrow`: rows are in other pages than those before them, where the CPU does not expect what comes next.
  Block(const Windows<T>& windows, const WindowKernel& kernel, Extent columns, bool isNarrow = false)
      : windows_(windows),
        kernel_(kernel),
        samples_((columns.end - columns.begin) * windows.src.channels()),
        window_{nullptr, samples_, 0, nullptr, 0, ColumnsOf(windows, kernel, columns)},
        first_(columns.begin - windows.reach.left),
        lines_(windows.reach.above + windows.reach.below + kernel.rowsAtOnce),
        next_(-windows.reach.above),
        isNarrow_(isNarrow),
        source_(windows.src,
                {first_ + window_.columns.before, columns.end + windows.reach.right - window_.columns.after},
                samples_ >= kFewestInPlace && !kernel.readsBeyond) {
    for (int i = 0; i < kMostOutputs; ++i) {
      const Bytes& output = windows.outputs[i];
      at_[i] = output.data ? output.data + columns.begin * output.PixelBytes() : nullptr;
    }
  }

  int64_t WorkBytes() const {
    const int64_t lines = (kernel_.across ? StageBytes() : 0) + lines_ * WindowLineBytes() +
                          kernel_.kept.count * SourceLineBytes(kernel_.kept.elementBytes);
    return ByteCount(PointerBytes() + source_.TableBytes() + window_.columns.Bytes() + lines + 2 * ColourBytes())
        .RoundedTo(kRecordBoundary)
        .value();
  }

  // Prepares the first lines. Returns where the memory ends that it takes; it begins at a boundary.
  uint8_t* Start(uint8_t* memory) {
    uint8_t* const end = memory + WorkBytes();
    pointers_ = reinterpret_cast<const void**>(memory);
    memory = source_.Start(memory + PointerBytes());
    window_.columns.Find(windows_.src, first_, reinterpret_cast<int32_t*>(memory));
    memory += window_.columns.Bytes();
    for (uint8_t*& colours : colours_) {
      colours = memory;
      memory += ColourBytes();
    }
    if (kernel_.across) {
      stage_ = reinterpret_cast<E*>(memory);
      memory += StageBytes();
    }
    window_.lines = pointers_;
    window_.kept = memory;
    window_.keptStep = static_cast<ptrdiff_t>(SourceLineBytes(kernel_.kept.elementBytes));
    memory += kernel_.kept.count * window_.keptStep;
    ring_ = {memory, static_cast<ptrdiff_t>(WindowLineBytes()), static_cast<int>(lines_)};
    room_ = ring_.at;
    Prepare(0);
    return end;
  }

  // The rows of results from y on, after those above.
  void Filter(ptrdiff_t y) {
    window_.y = y;
    if (y > 0) Advance();
    const bool isSingle = y + kernel_.rowsAtOnce > windows_.roi.height || kernel_.rowsAtOnce == 1;
    const ResultRows rows = NextRows(isSingle);
    if (isNarrow_) FetchNext();
    if (!KeepsAlpha(windows_.outputs[0].layout)) return kernel_.down(kernel_.context, window_, rows);
    ResultRows colours{};
    colours.upper[0] = colours_[0];
    colours.lower[0] = isSingle ? colours_[0] : colours_[1];
    kernel_.down(kernel_.context, window_, colours);
    PutColours(colours_[0], rows.upper[0]);
    if (!isSingle) PutColours(colours_[1], rows.lower[0]);
  }

 private:
  static BorderColumns ColumnsOf(const Windows<T>& windows, const WindowKernel& kernel, Extent columns) {
    const Extent lines{columns.begin - windows.reach.left, columns.end + windows.reach.right};
    return kernel.isBare ? BorderColumns::Of(windows.src, lines)
                         : BorderColumns{0, lines.end - lines.begin, 0, false, false};
  }

  int64_t PointerBytes() const { return ByteCount(lines_ * 8).RoundedTo(kRecordBoundary).value(); }
  ptrdiff_t SourceSamples() const {
    return samples_ + (windows_.reach.left + windows_.reach.right) * windows_.src.channels();
  }
  ptrdiff_t SamplesAcross() const {
    return kernel_.keepsReach ? window_.columns.inside * windows_.src.channels() : samples_;
  }
  int64_t SourceLineBytes(int elementBytes) const { return LineBytes(SourceSamples(), elementBytes).value(); }
  int64_t StageBytes() const { return source_.isInPlace() ? 0 : SourceLineBytes(sizeof(E)); }
  int64_t WindowLineBytes() const {
    return kernel_.across ? LineBytes(SamplesAcross(), kernel_.elementBytes).value() : StageBytes();
  }
  // A row of results that do not go to the image as they are.
  int64_t ColourBytes() const {
    const Bytes& output = windows_.outputs[0];
    return KeepsAlpha(output.layout) ? LineBytes(samples_, output.elementBytes).value() : 0;
  }

  // Where the next results go, one row or two. Outputs that are not wanted are null.
  ResultRows NextRows(bool isSingle) {
    ResultRows rows{};
    for (int i = 0; i < kMostOutputs; ++i) {
      if (!at_[i]) continue;
      const ptrdiff_t step = windows_.outputs[i].step;
      rows.upper[i] = at_[i];
      rows.lower[i] = isSingle ? at_[i] : at_[i] + step;
      at_[i] += kernel_.rowsAtOnce * step;
    }
    return rows;
  }

  void PutColours(const uint8_t* from, uint8_t* to) const {
    const int bytes = windows_.outputs[0].elementBytes;
    if (bytes == 1) PutColoursOf<uint8_t>(from, to);
    if (bytes == 2) PutColoursOf<uint16_t>(from, to);
    if (bytes == 4) PutColoursOf<uint32_t>(from, to);
  }
  template <class R>
  void PutColoursOf(const uint8_t* from, uint8_t* to) const {
    MapRow<true>(
        hn::ScalableTag<R>(), reinterpret_cast<R*>(to), samples_, [](auto v) HWY_ATTR { return v; },
        reinterpret_cast<const R*>(from));
  }

  // The next line that is in place, and where the next results go.
  void FetchNext() const {
    if (source_.isInPlace() && !kernel_.across) {
      for (int i = 0; i < kernel_.rowsAtOnce; ++i) Fetch(source_.Line(next_ + i, nullptr), samples_ * sizeof(E));
    }
    const Bytes& output = windows_.outputs[0];
    for (int i = 0; i < kernel_.rowsAtOnce && at_[0]; ++i) {
      Fetch(at_[0] + i * output.step, samples_ * output.elementBytes);
    }
  }
  static void Fetch(const void* row, size_t bytes) {
    constexpr size_t kCacheLine = 64;
    for (size_t i = 0; i < bytes; i += kCacheLine) hwy::Prefetch(static_cast<const uint8_t*>(row) + i);
  }

  void Advance() {
    const ptrdiff_t count = kernel_.rowsAtOnce;
    std::memmove(pointers_, pointers_ + count, (lines_ - count) * sizeof(*pointers_));
    Prepare(lines_ - count);
  }

  // The lines from one of the window to its last.
  void Prepare(ptrdiff_t line) {
    for (; line < lines_; ++line, ++next_, room_ = ring_.Next(room_)) {
      if (!kernel_.across) {
        pointers_[line] = source_.Line(next_, reinterpret_cast<E*>(room_));
        continue;
      }
      pointers_[line] = room_;
      if (windows_.isInPlace && HasResults(next_)) {
        CopyLine(line);
      } else {
        kernel_.across(kernel_.context, source_.Line(next_, stage_), room_, SamplesAcross());
      }
    }
  }

  // Whether the row that stands for row y has been overwritten.
  bool HasResults(ptrdiff_t y) const {
    const ptrdiff_t row = BorderPosition(windows_.src.kind, y, windows_.src.rows);
    return row >= 0 && row < window_.y;
  }
  // From the line of the row that stands for it. Above a border that reflects it is in the window, as the reflection of
  // a row below the last results is no farther above them; the line behind a single last row is not used.
  void CopyLine(ptrdiff_t line) {
    const ptrdiff_t row = BorderPosition(windows_.src.kind, next_, windows_.src.rows), from = line - (next_ - row);
    if (from >= 0) std::memcpy(room_, pointers_[from], WindowLineBytes());
  }

  const Windows<T>& windows_;
  const WindowKernel& kernel_;
  ptrdiff_t samples_;
  Window window_;
  ptrdiff_t first_;  // column of lines, with those of the border
  int64_t lines_;
  ptrdiff_t next_;  // row of the next line
  bool isNarrow_;
  BorderRows<SingleRows<T, E>, T> source_;
  const void** pointers_ = nullptr;
  RowRing<uint8_t> ring_{};
  uint8_t* room_ = nullptr;                // for the next line
  E* stage_ = nullptr;                     // where a line of the source is made for `across`
  uint8_t* colours_[2] = {};               // rows of results of images that keep their alpha
  std::array<uint8_t*, kMostOutputs> at_;  // the next rows of results
};

int64_t MaskWidth(const Reach& reach) { return reach.left + reach.right + 1; }
int64_t MaskHeight(const Reach& reach) { return reach.above + reach.below + 1; }

// Lines of the source are its rows but for the columns that reach the border. False if they would not stay in the
// second-level cache, or the work buffer is too small for both edges together.
template <class T>
bool FilterRowsThemselves(const Windows<T>& windows, const WindowKernel& kernel) {
  const Reach& reach = windows.reach;
  const ptrdiff_t width = windows.roi.width, edge = std::max<ptrdiff_t>(kFewestInPlace, MaskWidth(reach));
  const int64_t lineBytes = int64_t{width} * windows.src.image.PixelBytes(),
                keptBytes = int64_t{width} * windows.src.channels() * kernel.kept.count * kernel.kept.elementBytes;
  if (width < 4 * edge || lineBytes > kSecondCacheBytes / (MaskHeight(reach) + 1)) return false;
  if (keptBytes > kernel.cacheBytes) return false;
  Block<T, T> left(windows, kernel, {0, edge}), middle(windows, kernel, {edge, width - edge}),
      right(windows, kernel, {width - edge, width});
  const int64_t bytes = left.WorkBytes() + middle.WorkBytes() + right.WorkBytes() + kRecordBoundary;
  const int elementBytes =
      std::max({static_cast<int>(sizeof(T)), kernel.elementBytes, windows.outputs[0].elementBytes});
  const Size mask(static_cast<ptrdiff_t>(MaskWidth(reach)), static_cast<ptrdiff_t>(MaskHeight(reach)));
  if (bytes > WindowBytes(mask, width, windows.src.channels(), elementBytes, kernel.kept, kernel.cacheBytes).value()) {
    return false;
  }
  right.Start(middle.Start(left.Start(AtBoundary(windows.buffer))));
  for (ptrdiff_t y = 0; y < windows.roi.height; y += kernel.rowsAtOnce) {
    left.Filter(y);
    middle.Filter(y);
    right.Filter(y);
  }
  return true;
}

template <class T, class E>
void FilterBlocks(const Windows<T>& windows, const WindowKernel& kernel) {
  const Reach& reach = windows.reach;
  const ptrdiff_t width = windows.roi.width;
  const int64_t columnBytes =
      BytesOfColumn(MaskHeight(reach), windows.src.channels(), kernel.elementBytes, kernel.kept).value();
  const int64_t fitting = std::max({kernel.cacheBytes / columnBytes, 4 * MaskWidth(reach), kFewestColumns});
  const int64_t most = windows.isInPlace ? int64_t{width} : fitting;  // a block would read results of the one before it
  const int64_t blocks = (width + most - 1) / most;
  for (int64_t b = 0; b < blocks; ++b) {
    Block<T, E> block(windows, kernel,
                      {static_cast<ptrdiff_t>(width * b / blocks), static_cast<ptrdiff_t>(width * (b + 1) / blocks)},
                      blocks > 1 && kernel.kept.count > 0);
    block.Start(AtBoundary(windows.buffer));
    for (ptrdiff_t y = 0; y < windows.roi.height; y += kernel.rowsAtOnce) block.Filter(y);
  }
}

}  // namespace

// Of each line there are at most the columns of the region, or of a block and beyond it; the cache's bytes are all
// lines' together. Beside the window's there are four lines: one of the source, one of constants, two of kept results.
ByteCount WindowBytes(Size mask, int64_t regionWidth, int channels, int elementBytes, KeptRows kept,
                      int64_t cacheBytes) {
  const ByteCount lines = ByteCount(mask.height) + 1 + kept.count;
  const ByteCount pixelBytes = channels * std::max(elementBytes, kept.elementBytes);
  const int64_t columns = 4 * int64_t{mask.width} + kFewestColumns;
  const ByteCount ofColumn = BytesOfColumn(mask.height, channels, elementBytes, kept);
  const ByteCount whole = ofColumn * regionWidth, ofBlocks = ofColumn * columns + cacheBytes;
  const ByteCount others = pixelBytes * (4 * std::min(regionWidth, cacheBytes / (2 * channels) + columns));
  const ByteCount beyond = (lines + 4) * (pixelBytes * mask.width + kVectorBytes + kLineBoundary + 8);
  return std::min(whole.value(), ofBlocks.value()) + others + beyond + ByteCount(mask.width) * 4 + 8 * kRecordBoundary +
         kLineSpare;
}

template <class T, class E>
void FilterWindows(const Windows<T>& windows, const WindowKernel& kernel) {
  if constexpr (std::is_same_v<T, E>) {
    const bool isWorthEdges = !kernel.across || sizeof(T) == 4;  // those of less are copied sooner than cut in three
    if (isWorthEdges && !kernel.isBare && !windows.isInPlace && FilterRowsThemselves(windows, kernel)) return;
  }
  FilterBlocks<T, E>(windows, kernel);
}

template void FilterWindows<uint8_t>(const Windows<uint8_t>&, const WindowKernel&);
template void FilterWindows<uint16_t>(const Windows<uint16_t>&, const WindowKernel&);
template void FilterWindows<uint32_t>(const Windows<uint32_t>&, const WindowKernel&);
template void FilterWindows<uint8_t, int16_t>(const Windows<uint8_t>&, const WindowKernel&);
template void FilterWindows<uint8_t, float>(const Windows<uint8_t>&, const WindowKernel&);
template void FilterWindows<uint16_t, float>(const Windows<uint16_t>&, const WindowKernel&);
template void FilterWindows<int16_t, float>(const Windows<int16_t>&, const WindowKernel&);

}  // namespace qvp::filter
