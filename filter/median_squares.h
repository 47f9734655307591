// The choice of a network. Each type is compiled by itself, as that takes long.
#pragma once

#include "filter/median_3x3.h"

namespace qvp::filter {

template <class T>
bool FilterSmallest(const MedianCall<T>& call) {
  const SmallestKernel<T> kernel(call.channels());
  constexpr bool kIsFloat = std::is_same_v<T, float>;  // keys are made once, though they are not where the rows are
  FilterWindows(call.windows, {.context = &kernel,
                               .across = kIsFloat ? SmallestKernel<T>::Across : nullptr,
                               .down = DownBy<SmallestKernel<T>>,
                               .elementBytes = sizeof(T),
                               .rowsAtOnce = 2,
                               .keepsReach = kIsFloat,
                               .cacheBytes = kSecondCacheBytes});
  return true;
}

template <class T, int kSide, int kSpread>
bool FilterSquare(const MedianCall<T>& call) {
  constexpr int kFirst = kSide * kSide / 2 - kSpread;
  auto* const lists = AtBoundary(call.windows.buffer);
  auto windows = call.windows;
  windows.buffer = lists + kMostListBytes;
  const NetworkContext<T> context{call.channels(), call.ranks.low - kFirst, call.ranks.high - kFirst,
                                  reinterpret_cast<MedianLane<T>*>(lists)};
  FilterWindows(windows, {.context = &context,
                          .across = nullptr,
                          .down = NetworkKernel<T, kSide, kSpread>::Down,
                          .elementBytes = sizeof(T),
                          .rowsAtOnce = 2});
  return true;
}

template <class T>
bool FilterPlainSquare(const MedianCall<T>& call) {
  switch (call.mask.width) {
    case 3: return FilterSmallest(call);
    case 5: return FilterSquare<T, 5, 0>(call);
    case 7: return FilterSquare<T, 7, 0>(call);
    case 9: return FilterSquare<T, 9, 0>(call);
    case 11: return FilterSquare<T, 11, 0>(call);
    case 13: return FilterSquare<T, 13, 0>(call);
    case 15: return FilterSquare<T, 15, 0>(call);
    default: return false;
  }
}

template <class T>
bool FilterByAnyNetwork(const MedianCall<T>& call) {
  if (call.mask.width != call.mask.height) return false;
  if (call.ranks.isPlain()) return FilterPlainSquare(call);
  const int side = call.mask.width, spread = side * side / 2 - call.ranks.low;
  if (side == 3) return spread > 1 ? FilterSquare<T, 3, 4>(call) : FilterSquare<T, 3, 1>(call);
  if (side == 5 && spread == 1) return FilterSquare<T, 5, 1>(call);
  if (side == 5) return spread > 4 ? FilterSquare<T, 5, 12>(call) : FilterSquare<T, 5, 4>(call);
  if (side == 7 && spread <= 4) return FilterSquare<T, 7, 4>(call);
  return false;
}

}  // namespace qvp::filter
