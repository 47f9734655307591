// The choice of a network. Each type is compiled by itself, as that takes long.
#pragma once

#include "filter/median_3x3.h"

namespace qvp::filter {

template <class T, class Kernel>
void FilterByNetwork(const MedianCall<T>& call, bool isUpperOdd = false) {
  auto* const lists = AtBoundary(call.windows.buffer);
  auto windows = call.windows;
  windows.buffer = lists + ListBytes(kLongestNetworkSide);
  const NetworkContext<T> context{call.channels(), isUpperOdd, reinterpret_cast<MedianLane<T>*>(lists)};
  FilterWindows(
      windows,
      {.context = &context, .across = nullptr, .down = Kernel::Down, .elementBytes = sizeof(T), .rowsAtOnce = 2});
}

template <class T>
void FilterSmallest(const MedianCall<T>& call) {
  const SmallestKernel<T> kernel(call.channels());
  constexpr bool kIsFloat = std::is_same_v<T, float>;  // keys are made once, though they are not where the rows are
  FilterWindows(call.windows, {.context = &kernel,
                               .across = kIsFloat ? SmallestKernel<T>::Across : nullptr,
                               .down = DownBy<SmallestKernel<T>>,
                               .elementBytes = sizeof(T),
                               .rowsAtOnce = 2,
                               .keepsReach = kIsFloat,
                               .cacheBytes = kSecondCacheBytes});
}

template <class T, int kSide, int kSpread>
void FilterSquare(const MedianCall<T>& call) {
  FilterByNetwork<T, NetworkKernel<T, kSide, kSpread>>(call, call.ranks.high == kSide * kSide / 2 + kSpread);
}

template <class T>
bool FilterByAnyNetwork(const MedianCall<T>& call) {
  if (call.mask.width != call.mask.height) return false;
  const int side = call.mask.width, spread = side * side / 2 - call.ranks.low;
  if (spread == 0) {
    switch (side) {
      case 3: return FilterSmallest(call), true;
      case 5: return FilterSquare<T, 5, 0>(call), true;
      case 7: return FilterSquare<T, 7, 0>(call), true;
      case 9: return FilterSquare<T, 9, 0>(call), true;
      case 11: return FilterSquare<T, 11, 0>(call), true;
      case 13: return FilterSquare<T, 13, 0>(call), true;
      case 15: return FilterSquare<T, 15, 0>(call), true;
    }
  }
  if (spread == 1) {
    if (side == 3) return FilterSquare<T, 3, 1>(call), true;
    if (side == 5) return FilterSquare<T, 5, 1>(call), true;
  }
  return false;
}

}  // namespace qvp::filter
