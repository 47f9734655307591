// Convolution by its sum: the kernel is moved over the image, two rows of results at a time.
#include "base/plane_lines.h"
#include "base/row_pairs.h"
#include "base/scalar.h"
#include "filter/border_filter_pairs.h"
#include "filter/border_filter_reals.h"
#include "filter/windows.h"
#include "transform/convolve.h"
#include "transform/convolve_wide.h"

namespace qvp::convolution {
namespace {

// What stands in lines beside the window: staged samples, and two rows of results.
constexpr int kResultLines = 2, kOtherLines = 1 + kResultLines;

// A line is read once for two rows of results, for which the second cache is quick enough.
constexpr int64_t kCacheSamples = 1 << 16;

WindowPlan PlanFor(Size kernel, int64_t width) {
  return {kernel.width, int64_t{kernel.height} + 1 + kOtherLines, 1, width, kLineElementBytes, kCacheSamples};
}

// Columns of the destination that are made down its rows, two at a time.
template <class Kernel, class T>
class ColumnPairs {
 public:
  ColumnPairs(const Convolution<T>& call, Extent columns)
      : call_(call),
        columns_(columns),
        window_(call.image, {call.x + columns.begin - (call.kernel.size.width - 1), call.x + columns.end},
                Samples() >= Kernel::kLanes, call.y - (call.kernel.size.height - 1), LineCount(call.kernel.size)) {}

  int64_t Bytes() const { return window_.Bytes() + kResultLines * window_.LineBytes(); }
  uint8_t* Start(uint8_t* memory) {
    results_ = reinterpret_cast<T*>(window_.Start(memory));
    return memory + Bytes();
  }

  // Calls make(lines, samples, upper, lower); of the last row alone, the lower one is not wanted.
  template <class Make>
  void Run(ptrdiff_t y, const Make& make) {
    if (y > 0) window_.Advance(2 / Form::kRows);
    const ptrdiff_t channels = call_.image.channels(), count = std::min<ptrdiff_t>(2, call_.roi.height - y);
    const bool isDirect = channels == 1;
    const auto to = [&](ptrdiff_t k) { return call_.dst.Row(y + k) + columns_.begin * channels + call_.image.channel; };
    T* rows[] = {results_, results_ + Samples()};
    for (ptrdiff_t k = 0; isDirect && k < count; ++k) rows[k] = to(k);
    make(window_.lines(), Samples(), rows[0], rows[1]);
    for (ptrdiff_t k = 0; !isDirect && k < count; ++k) PutSamples(rows[k], Samples(), channels, to(k));
  }

 private:
  using Form = typename Kernel::Form;

  static int LineCount(Size kernel) {
    return static_cast<int>(Form::kRows == 2 ? kernel.height / 2 + 1 : kernel.height + 1);
  }
  ptrdiff_t Samples() const { return columns_.end - columns_.begin; }

  const Convolution<T>& call_;
  Extent columns_;
  LineWindow<Form, T> window_;
  T* results_ = nullptr;
};

// Rows that need no conversion are read in place but for the columns that reach the edges. False if their lines would
// not stay in the cache, or the memory is too small for both edges together.
template <class Kernel, class T, class Make>
bool WalkInPlace(const Convolution<T>& call, uint8_t* memory, const Make& make) {
  const Size kernel = call.kernel.size;
  const ptrdiff_t width = call.roi.width, edge = std::max<ptrdiff_t>(Kernel::kLanes, kernel.width);
  if (call.image.channels() != 1 || width < 4 * edge || width > kCacheSamples / (kernel.height + 1)) return false;
  ColumnPairs<Kernel, T> left(call, {0, edge}), middle(call, {edge, width - edge}), right(call, {width - edge, width});
  if (left.Bytes() + middle.Bytes() + right.Bytes() > PlanFor(kernel, width).Bytes().value()) return false;
  right.Start(middle.Start(left.Start(memory)));
  for (ptrdiff_t y = 0; y < call.roi.height; y += 2) {
    for (auto* const columns : {&left, &middle, &right}) columns->Run(y, make);
  }
  return true;
}

// Calls make(lines, samples, upper, lower) for each two rows of results of columns.
template <class Kernel, class T, class Make>
void ForEachTwoRows(const Convolution<T>& call, uint8_t* memory, const Make& make) {
  if constexpr (Kernel::Form::kIsInPlace) {
    if (WalkInPlace<Kernel>(call, memory, make)) return;
  }
  PlanFor(call.kernel.size, call.roi.width).ForEachBlock([&](Extent columns) {
    ColumnPairs<Kernel, T> block(call, columns);
    block.Start(memory);
    for (ptrdiff_t y = 0; y < call.roi.height; y += 2) block.Run(y, make);
  });
}

// ---- Integers: the kernel rotated, its rows in pairs.

ptrdiff_t PairCount(Size kernel) { return (kernel.height / 2 + 1) * kernel.width * 2; }
constexpr int64_t TableBytes(int64_t elements) {
  return ByteCount(elements * int64_t{sizeof(int32_t)}).RoundedTo(kRecordBoundary).value();
}

template <class T>
constexpr int kLargest = std::is_signed_v<T> ? 32768 : 255;

template <class T>
int CoefficientAt(const Plane<T>& kernel, ptrdiff_t j, ptrdiff_t i) {
  if (!kernel.HasRow(kernel.size.height - 1 - j)) return 0;
  return LoadScalar(kernel.At(kernel.size.width - 1 - i, kernel.size.height - 1 - j));
}

template <class T, class Part>
void WritePairs(const Plane<T>& kernel, const Part& part, int32_t* to) {
  WriteRowPairs(
      kernel.size, [&](ptrdiff_t j, ptrdiff_t i) { return part(CoefficientAt(kernel, j, i)); }, to);
}

template <class T>
int64_t SumOfMagnitudes(const Plane<T>& kernel) {
  int64_t sum = 0;
  for (ptrdiff_t y = 0; y < kernel.size.height; ++y) {
    for (ptrdiff_t x = 0; x < kernel.size.width; ++x) sum += std::abs(int{LoadScalar(kernel.At(x, y))});
  }
  return sum;
}

template <class Kernel, class T>
void ConvolveBy(const Kernel& kernel, const Convolution<T>& call, uint8_t* memory) {
  ForEachTwoRows<Kernel>(call, memory, [&](auto lines, ptrdiff_t n, T* upper, T* lower) {
    filter::FilterRows(kernel, lines, n, upper, lower);
  });
}

template <class T>
void ConvolveChannel(const Convolution<T>& call) {
  const Size size = call.kernel.size;
  auto* const pairs = reinterpret_cast<int32_t*>(call.buffer);
  uint8_t* const memory = call.buffer + TableBytes(PairCount(size));
  const int64_t largest = kLargest<T> * SumOfMagnitudes(call.kernel);
  if (largest <= INT32_MAX) {
    WritePairs(
        call.kernel, [](int b) { return b; }, pairs);
    const filter::WordSums<T> sums(filter::IntegerQuotient(qvpRoundNear, call.divisor, largest));
    return ConvolveBy(filter::PairKernel<T, filter::WordSums<T>>(pairs, size, sums), call, memory);
  }
  auto* const low = reinterpret_cast<int32_t*>(memory);
  WritePairs(call.kernel, HighPart, pairs);
  WritePairs(call.kernel, LowPart, low);
  ConvolveBy(WideKernel<T>(pairs, low, size, call.divisor), call, memory + TableBytes(PairCount(size)));
}

// ---- Floats: products are added in the order of the second image.

template <int kWidth, int kHeight>
void ConvolveFloats(const Convolution<float>& call) {
  using Kernel = filter::RealKernel<float, float, false, kWidth, kHeight>;
  const Size size = call.kernel.size;
  const ptrdiff_t taps = size.width * size.height, last = size.height, right = size.width - 1;
  auto* const coefficients = reinterpret_cast<float*>(call.buffer);
  auto** const reversed = reinterpret_cast<const float**>(call.buffer + TableBytes(taps));
  uint8_t* const memory = call.buffer + TableBytes(taps) + TableBytes(2 * (size.height + 1));
  for (ptrdiff_t i = 0; i < taps; ++i) {
    const ptrdiff_t at = call.isKernelFirst ? taps - 1 - i : i;
    coefficients[i] = LoadScalar(call.kernel.At(at % size.width, at / size.width));
  }
  const Kernel kernel(coefficients, size, call.isKernelFirst ? 1 : -1);
  ForEachTwoRows<Kernel>(call, memory, [&](auto lines, ptrdiff_t n, float* upper, float* lower) {
    if (call.isKernelFirst) return filter::FilterRows(kernel, lines, n, upper, lower);
    for (ptrdiff_t j = 0; j <= last; ++j) reversed[j] = lines[last - j] + right;
    filter::FilterRows(kernel, reversed, n, lower, upper);
  });
}

void ConvolveChannel(const Convolution<float>& call) {
  const Size size = call.kernel.size;
  if (size.width == 3 && size.height == 3) return ConvolveFloats<3, 3>(call);
  if (size.width == 5 && size.height == 5) return ConvolveFloats<5, 5>(call);
  ConvolveFloats<0, 0>(call);
}

}  // namespace

template <class T>
ByteCount DirectBytes(Size image, Size kernel) {
  const ByteCount taps = ByteCount(kernel.width) * kernel.height;
  ByteCount tables =
      (taps * 4).RoundedTo(kRecordBoundary) + (ByteCount(kernel.height) * 8 + 8).RoundedTo(kRecordBoundary);
  if constexpr (!std::is_same_v<T, float>) {
    const bool mayBeWide = taps.value() > INT32_MAX / (kLargest<T> * kLargest<T>);
    const ByteCount pairs = ByteCount(kernel.height / 2 + 1) * kernel.width * 8;
    tables = pairs.RoundedTo(kRecordBoundary) * (mayBeWide ? 2 : 1);
  }
  return tables + PlanFor(kernel, int64_t{image.width} + kernel.width - 1).Bytes();
}

template <class T>
void ConvolveDirectly(const Convolution<T>& call) {
  Convolution<T> one = call;
  for (int c = 0; c < call.image.channels(); ++c) {
    one.image.channel = one.kernel.channel = c;
    ConvolveChannel(one);
  }
}

#define QVP_INSTANTIATE(T)                       \
  template ByteCount DirectBytes<T>(Size, Size); \
  template void ConvolveDirectly(const Convolution<T>&);
QVP_INSTANTIATE(uint8_t)
QVP_INSTANTIATE(int16_t)
QVP_INSTANTIATE(float)

}  // namespace qvp::convolution
