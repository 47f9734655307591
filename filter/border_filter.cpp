// The general filter: checks, the choice of a kernel, and the walk over a region.
#include "base/check.h"
#include "filter/border_filter_kernels.h"
#include "qvpi.h"

namespace {
using namespace qvp;

// What a call is about, beside the record.
template <class T>
struct Job {
  FilterSource<T> source;
  Image<T> dst;
  Size roi;
  uint8_t* buffer;
};

template <class Kernel, class T>
void FilterBlocks(const FilterRecord& record, const Job<T>& job, const Kernel& kernel, Extent columns) {
  const int channels = job.source.channels;
  const FilterWork work(record.width, record.height, channels, job.roi.width);
  const int64_t width = columns.end - columns.begin, blocks = (width + work.columns() - 1) / work.columns();
  for (int64_t b = 0; b < blocks; ++b) {
    const auto x = static_cast<ptrdiff_t>(columns.begin + width * b / blocks);
    const auto end = static_cast<ptrdiff_t>(columns.begin + width * (b + 1) / blocks);
    FilterWindow<typename Kernel::Form, T> window(record, job.source, {x, end - x}, job.roi.height, work, job.buffer);
    for (ptrdiff_t y = 0; y < job.roi.height; y += 2) {
      if (y > 0) window.Advance();
      T* lower = y + 1 < job.roi.height ? job.dst.Row(y + 1) + x * channels : nullptr;
      FilterRows(kernel, window.lines(), (end - x) * channels, job.dst.Row(y) + x * channels, lower);
    }
  }
}

// Rows that need no conversion are read in place in blocks that do not reach the border: the others are narrow then.
template <class Kernel, class T>
void FilterRegion(const FilterRecord& record, const Job<T>& job, const Kernel& kernel) {
  const ptrdiff_t width = job.roi.width, edge = std::max<ptrdiff_t>(64, 2 * record.width);
  if (!Kernel::Form::template kIsInPlace<T> || width < 4 * edge) {
    return FilterBlocks(record, job, kernel, {0, width});
  }
  FilterBlocks(record, job, kernel, {0, edge});
  FilterBlocks(record, job, kernel, {edge, width - edge});
  FilterBlocks(record, job, kernel, {width - edge, width});
}

// Doubles hold all sums of an integer kernel that can be told from saturated ones, and the coefficients of all kinds.
template <class T>
void FilterInDouble(const FilterRecord& record, const Job<T>& job) {
  FilterRegion(record, job, RealKernel<T, double>(record, record.Doubles(), job.source.channels));
}

// Integer kernels whose sums fit into 32 bits, offset included; none else.
template <class T>
bool FilterInPairs(const FilterRecord& record, const Job<T>& job) {
  constexpr int64_t kLow = std::is_signed_v<T> ? -32768 : 0, kHigh = std::is_signed_v<T> ? 32767 : 255;
  const int64_t offset = int64_t{record.offset} * record.divisor;
  const SumRange range{record.positive * kLow + record.negative * kHigh + offset,
                       record.positive * kHigh + record.negative * kLow + offset};
  const int64_t magnitude = (record.positive - record.negative) * std::max(-kLow, kHigh) + std::abs(offset);
  if (record.pairForm == PairForm::kNone || magnitude > INT32_MAX) return false;
  if (record.pairForm == PairForm::kWords) {
    const WordSums<T> sums(record, range, offset);
    FilterRegion(record, job, PairKernel<T, WordSums<T>>(record, job.source.channels, sums));
    return true;
  }
  if constexpr (std::is_same_v<T, uint8_t>) {
    const ByteSums sums(record, range, offset);
    FilterRegion(record, job, PairKernel<T, ByteSums>(record, job.source.channels, sums));
    return true;
  }
  return false;
}

// The kind of the record tells the form of the kernel; pixels are those of the function.
template <class T>
void FilterByKind(const FilterRecord& record, const Job<T>& job) {
  if constexpr (std::is_same_v<T, uint8_t> || std::is_same_v<T, int16_t>) {
    if (IsInteger(record.kind) && FilterInPairs(record, job)) return;
  }
  if constexpr (!std::is_same_v<T, double>) {
    if (!IsInteger(record.kind) && record.kind != FilterKind::k64f) {
      return FilterRegion(record, job, RealKernel<T, float>(record, record.Floats(), job.source.channels));
    }
  }
  FilterInDouble(record, job);
}

template <class T>
FilterSource<T> SourceFor(const Image<const T>& image, Size roi, QvpiBorderType border, const T* value,
                          const FilterRecord& record) {
  FilterSource<T> source{image,
                         KindOf(border),
                         EffectiveColumns(border, roi.width, record.left(), record.right()),
                         EffectiveRows(border, roi.height, record.above(), record.below()),
                         {},
                         Channels(image.layout)};
  if (source.kind == BorderKind::kConst) std::memcpy(source.value, value, source.channels * sizeof(T));
  return source;
}

template <class T>
QvpStatus FilterBorder(const Image<const T>& src, const Image<T>& dst, Size roi, QvpiBorderType border, const T* value,
                       const QvpiFilterBorderSpec* spec, uint8_t* buffer) {
  if (const QvpStatus failed = Validate<kPointers>(roi, {src, dst}, {spec, buffer})) return failed;
  if (KindOf(border) == BorderKind::kConst && !value) return qvpStatusNullPointer;
  if (const QvpStatus failed = Validate<kSize>(roi, {src})) return failed;
  if (src.step < 1 || dst.step < static_cast<int64_t>(roi.width) * int64_t{sizeof(T)}) return qvpStatusStep;
  if (!IsBorderOf({BorderKind::kReplicate, BorderKind::kMirror, BorderKind::kConst}, border)) return qvpStatusBorder;
  const FilterRecord& record = *FilterRecord::At(spec);
  FilterByKind<T>(record, {SourceFor(src, roi, border, value, record), dst, roi, buffer});
  return qvpStatusNoError;
}

}  // namespace

#define FILTER_BORDER(type, layout)                                                                                    \
  QvpStatus qvpiFilterBorder_##type##_##layout##R(                                                                     \
      const Qvp##type* pSrc, int srcStep, Qvp##type* pDst, int dstStep, QvpiSize dstRoiSize,                           \
      QvpiBorderType borderType, const Qvp##type* borderValue, const QvpiFilterBorderSpec* pSpec, Qvp8u* pBuffer) {    \
    return FilterBorder<Qvp##type>({pSrc, srcStep, Layout::k##layout}, {pDst, dstStep, Layout::k##layout}, dstRoiSize, \
                                   borderType, borderValue, pSpec, pBuffer);                                           \
  }
#define FILTER_BORDERS(type) FILTER_BORDER(type, C1) FILTER_BORDER(type, C3) FILTER_BORDER(type, C4)

FILTER_BORDERS(8u)
FILTER_BORDERS(16u)
FILTER_BORDERS(16s)
FILTER_BORDERS(32f)
FILTER_BORDER(64f, C1)
