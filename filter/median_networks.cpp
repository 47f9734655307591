// Medians of small squares by sorting networks.
#include "filter/median_3x3.h"

namespace qvp::filter {
namespace {

template <class T, class Kernel>
void FilterBy(const MedianCall<T>& call, bool isUpperOdd = false) {
  auto* const lists = AtBoundary(call.windows.buffer);
  auto windows = call.windows;
  windows.buffer = lists + kNetworkListBytes;
  const NetworkContext<T> context{call.channels(), isUpperOdd, reinterpret_cast<MedianLane<T>*>(lists)};
  FilterWindows(
      windows,
      {.context = &context, .across = nullptr, .down = Kernel::Down, .elementBytes = sizeof(T), .rowsAtOnce = 2});
}

template <class T, int kSide, int kSpread>
void Filter(const MedianCall<T>& call) {
  FilterBy<T, NetworkKernel<T, kSide, kSpread>>(call, call.ranks.high == kSide * kSide / 2 + kSpread);
}

}  // namespace

ByteCount NetworkBytes() { return kNetworkListBytes + kRecordBoundary; }

template <class T>
bool FilterByNetworks(const MedianCall<T>& call) {
  if (call.mask.width != call.mask.height) return false;
  const int side = call.mask.width, spread = side * side / 2 - call.ranks.low;
  if (spread == 0) {
    if (side == 3) return FilterBy<T, SmallestKernel<T>>(call), true;
    if (side == 5) return Filter<T, 5, 0>(call), true;
    if (side == 7) return Filter<T, 7, 0>(call), true;
    if (side == 9) return Filter<T, 9, 0>(call), true;
    if (side == 11) return Filter<T, 11, 0>(call), true;
  }
  if (spread == 1) {
    if (side == 3) return Filter<T, 3, 1>(call), true;
    if (side == 5) return Filter<T, 5, 1>(call), true;
  }
  return false;
}
template bool FilterByNetworks(const MedianCall<uint8_t>&);
template bool FilterByNetworks(const MedianCall<uint16_t>&);
template bool FilterByNetworks(const MedianCall<int16_t>&);
template bool FilterByNetworks(const MedianCall<float>&);

}  // namespace qvp::filter
