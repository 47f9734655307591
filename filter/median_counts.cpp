// Medians of 16-bit numbers by counts of 256 x 256 values.
#include "base/scalar.h"
#include "filter/median.h"
#include "filter/median_sliding.h"

namespace qvp::filter {
namespace {

constexpr int kValues = 1 << 16, kBins = 1 << 8;

template <class T>
struct CountingKernel {
  // Values as unsigned numbers in their order.
  static constexpr uint16_t kTurned = std::is_signed_v<T> ? 0x8000 : 0;

  QvpiSize mask;
  MedianRanks ranks;
  ptrdiff_t channels;
  SlidingCounts counts;

  static void Down(const void* context, const Window& window, const ResultRows& rows) {
    const auto& kernel = *static_cast<const CountingKernel*>(context);
    for (ptrdiff_t c = 0; c < kernel.channels; ++c) {
      kernel.ranks.isPlain() ? kernel.template Slide<true>(window, rows, c)
                             : kernel.template Slide<false>(window, rows, c);
    }
  }

 private:
  struct Values {
    const uint16_t* at;
    uint32_t operator[](ptrdiff_t i) const { return LoadScalar(at + i) ^ kTurned; }
  };

  template <bool kIsPlain>
  HWY_NOINLINE void Slide(const Window& window, const ResultRows& rows, ptrdiff_t channel) const {
    const auto line = [&](ptrdiff_t j) { return Values{static_cast<const uint16_t*>(window.lines[j]) + channel}; };
    auto* const to = reinterpret_cast<uint16_t*>(rows.upper[0]) + channel;
    const Values centres = line(mask.height / 2);
    const ptrdiff_t step = channels, middle = mask.width / 2;
    SlideAlong<kIsPlain>(SlidingMask{line, mask.width, mask.height, step}, counts, window.samples / step, ranks.low,
                         ranks.high, [&](ptrdiff_t x, uint32_t low, uint32_t high) {
                           const uint32_t value = kIsPlain ? low : std::clamp(centres[(x + middle) * step], low, high);
                           StoreScalar(to + x * step, static_cast<uint16_t>(value ^ kTurned));
                         });
  }
};

}  // namespace

ByteCount SlidingBytes() { return (kValues + kBins) * int64_t{sizeof(uint16_t)} + kRecordBoundary; }

template <class T>
void FilterBySlidingCounts(const MedianCall<T>& call) {
  auto* const fine = reinterpret_cast<uint16_t*>(AtBoundary(call.windows.buffer));
  std::memset(fine, 0, (kValues + kBins) * sizeof(uint16_t));
  auto windows = call.windows;
  windows.buffer = reinterpret_cast<uint8_t*>(fine + kValues + kBins);
  const CountingKernel<T> kernel{call.mask, call.ranks, call.channels(), {fine, fine + kValues, 8}};
  FilterWindows(windows, {.context = &kernel,
                          .across = nullptr,
                          .down = CountingKernel<T>::Down,
                          .elementBytes = sizeof(T),
                          .rowsAtOnce = 1});
}
template void FilterBySlidingCounts(const MedianCall<uint16_t>&);
template void FilterBySlidingCounts(const MedianCall<int16_t>&);

}  // namespace qvp::filter
