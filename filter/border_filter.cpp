// The general filter: checks, the choice of a kernel, and the walk over a region.
#include "filter/border_filter_pairs.h"
#include "filter/border_filter_reals.h"
#include "filter/window_call.h"
#include "qvpi.h"

namespace qvp::filter {
namespace {

// What a call is about, beside the record.
template <class T>
struct Job {
  BorderedImage<T> src;
  Image<T> dst;
  Size roi;
  uint8_t* buffer;
};

// Columns of a region that are filtered down its rows, two at a time.
template <class Kernel, class T>
class ColumnFilter {
 public:
  ColumnFilter(const FilterRecord& record, const Job<T>& job, Extent columns)
      : job_(job),
        first_(columns.begin * job.src.channels()),
        samples_((columns.end - columns.begin) * job.src.channels()),
        window_(job.src, {columns.begin - record.reach().left, columns.end + record.reach().right},
                samples_ >= Form::kLanes, -record.reach().above,
                static_cast<int>(Form::kRows == 2 ? record.PairsOfRows() : record.height + 1)) {}

  int64_t Bytes() const { return window_.Bytes(); }
  uint8_t* Start(uint8_t* memory) { return window_.Start(memory); }

  void Filter(const Kernel& kernel, ptrdiff_t y) {
    if (y > 0) window_.Advance(2 / Form::kRows);
    const ptrdiff_t next = std::min(y + 1, job_.roi.height - 1);
    FilterRows(kernel, window_.lines(), samples_, job_.dst.Row(y) + first_, job_.dst.Row(next) + first_);
  }

 private:
  using Form = typename Kernel::Form;

  const Job<T>& job_;
  ptrdiff_t first_, samples_;
  RowWindow<Form, T> window_;
};

template <class Kernel, class T>
void FilterBlocks(const FilterRecord& record, const Job<T>& job, const Kernel& kernel) {
  PlanFor(record.size(), job.src.channels(), job.roi.width).ForEachBlock([&](Extent columns) {
    ColumnFilter<Kernel, T> block(record, job, columns);
    block.Start(AtBoundary(job.buffer));
    for (ptrdiff_t y = 0; y < job.roi.height; y += 2) block.Filter(kernel, y);
  });
}

// Rows that need no conversion are read in place but for the columns that reach the border. False if their lines would
// not stay in the second-level cache, or the work buffer is too small for both edges together.
template <class Kernel, class T>
bool FilterInPlace(const FilterRecord& record, const Job<T>& job, const Kernel& kernel) {
  constexpr int64_t kCacheBytes = 1 << 19;
  const int channels = job.src.channels();
  const ptrdiff_t width = job.roi.width, edge = std::max<ptrdiff_t>(Kernel::kLanes, record.width);
  const int64_t lineBytes = int64_t{width} * channels * int64_t{sizeof(T)};
  if (width < 4 * edge || lineBytes > kCacheBytes / (record.height + 1)) return false;
  ColumnFilter<Kernel, T> left(record, job, {0, edge}), middle(record, job, {edge, width - edge}),
      right(record, job, {width - edge, width});
  const int64_t bytes = left.Bytes() + middle.Bytes() + right.Bytes() + kRecordBoundary;
  if (bytes > PlanFor(record.size(), channels, width).Bytes().value()) return false;
  right.Start(middle.Start(left.Start(AtBoundary(job.buffer))));
  for (ptrdiff_t y = 0; y < job.roi.height; y += 2) {
    left.Filter(kernel, y);
    middle.Filter(kernel, y);
    right.Filter(kernel, y);
  }
  return true;
}

template <class Kernel, class T>
void FilterRegion(const FilterRecord& record, const Job<T>& job, const Kernel& kernel) {
  if constexpr (Kernel::Form::kIsInPlace) {
    if (FilterInPlace(record, job, kernel)) return;
  }
  FilterBlocks(record, job, kernel);
}

// Doubles hold all sums of an integer kernel that can be told from saturated ones, and the coefficients of all kinds.
template <class T>
void FilterInDouble(const FilterRecord& record, const Job<T>& job) {
  FilterRegion(record, job, RealKernel<T, double, true>(record, record.Doubles(), job.src.channels()));
}

// Calls filter with the sides of the kernel as constants: for bytes and floats those of two common squares, and the
// width alone if the height is another; 0 for what is not constant.
template <class T, class Filter>
void WithSides(const FilterRecord& record, const Filter& filter) {
  const auto withWidth = [&](auto width) {
    record.height == width ? filter(width, width) : filter(width, std::integral_constant<int, 0>());
  };
  if constexpr (std::is_same_v<T, uint8_t> || std::is_same_v<T, float>) {
    if (record.width == 3) return withWidth(std::integral_constant<int, 3>());
    if (record.width == 5) return withWidth(std::integral_constant<int, 5>());
  }
  filter(std::integral_constant<int, 0>(), std::integral_constant<int, 0>());
}

template <class T, int kWidth, int kHeight>
void FilterByFloats(const FilterRecord& record, const Job<T>& job) {
  using Kernel = RealKernel<T, float, !std::is_same_v<T, float>, kWidth, kHeight>;
  FilterRegion(record, job, Kernel(record, record.Floats(), job.src.channels()));
}

// Records for float images have no offset, but one for integers may be used with them.
template <class T>
void FilterInFloat(const FilterRecord& record, const Job<T>& job) {
  constexpr bool kIsFloat = std::is_same_v<T, float>;
  if (kIsFloat && record.offset != 0) {
    return FilterRegion(record, job, RealKernel<T, float, true>(record, record.Floats(), job.src.channels()));
  }
  WithSides<std::conditional_t<kIsFloat, float, void>>(
      record, [&](auto width, auto height) { FilterByFloats<T, width, height>(record, job); });
}

template <class Sums, class T>
void FilterBySums(const FilterRecord& record, const Job<T>& job, const Sums& sums) {
  WithSides<T>(record, [&](auto width, auto height) {
    FilterRegion(record, job, PairKernel<T, Sums, width, height>(record, job.src.channels(), sums));
  });
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
    FilterBySums(record, job, WordSums<T>(record, range, offset));
    return true;
  }
  if constexpr (std::is_same_v<T, uint8_t>) {
    FilterBySums(record, job, ByteSums(record, range, offset));
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
      return FilterInFloat(record, job);
    }
  }
  FilterInDouble(record, job);
}

// Steps are looked at less closely than those of other filters: that of the source may be any that goes forward, that
// of the destination has an element for each pixel.
template <class T>
QvpStatus CheckSteps(const WindowCall<T>& call) {
  const bool areGood = call.src.step >= 1 && call.dst.step >= call.roi.width * ptrdiff_t{sizeof(T)};
  return areGood ? qvpStatusNoError : qvpStatusStep;
}

template <class T>
QvpStatus General(const WindowCall<T>& call, const QvpiFilterBorderSpec* spec) {
  const auto& [src, dst, roi, border, value, buffer] = call;
  if (const QvpStatus failed = call.CheckPointersAndSize(spec)) return failed;
  if (const QvpStatus failed = CheckSteps(call)) return failed;
  if (const QvpStatus failed = CheckBorder(border)) return failed;
  const FilterRecord& record = *RecordIn<FilterRecord>(spec);
  if (!record.IsReady()) return qvpStatusContextMatch;
  FilterByKind<T>(record, {WithBorder(src, roi, border, value, record.reach()), dst, roi, buffer});
  return qvpStatusNoError;
}

}  // namespace
}  // namespace qvp::filter

using namespace qvp;

#define FILTER(type, layout) QVP_WINDOW_BY_RECORD(, type, type, type, layout, General, QvpiFilterBorderSpec)
QVP_C1_C3_C4(FILTER, 8u)
QVP_C1_C3_C4(FILTER, 16u)
QVP_C1_C3_C4(FILTER, 16s)
QVP_C1_C3_C4(FILTER, 32f)
FILTER(64f, C1)
