// Channel order and channel duplication.
#include <cstring>

#include "base/check.h"
#include "base/export.h"
#include "core/channels.h"

namespace {
using namespace qvp;

constexpr int kFillEntry = 3;  // in an order for four channels from three; greater entries keep the channel

// Reads one order entry for each channel that is written. False when one is not below `limit`, or negative.
bool ReadOrder(const int* order, int count, unsigned limit, ChannelMap& map) {
  for (int i = 0; i < count; ++i) {
    std::memcpy(&map.from[i], order + i, sizeof(int));
    if (static_cast<unsigned>(map.from[i]) >= limit) return false;
  }
  return true;
}

QvpStatus Check(const ConstBytes& src, const Bytes& dst, Size roi, const int* dstOrder) {
  if (const QvpStatus failed = Validate<kPointers, kStepsNotZero, kSize>(roi, {src, dst})) return failed;
  return Validate<kPointers>(roi, {}, {dstOrder});
}

QvpStatus SwapChannels(const ConstBytes& src, const Bytes& dst, Size roi, const int* dstOrder) {
  if (const QvpStatus failed = Check(src, dst, roi, dstOrder)) return failed;
  const int written = dst.layout == Layout::kC4 ? 4 : 3;
  ChannelMap map{{0, 0, 0, kKeepChannel}};
  if (!ReadOrder(dstOrder, written, Channels(src.layout), map)) return qvpStatusChannelOrder;
  MoveChannels(src, dst, roi, map);
  return qvpStatusNoError;
}

QvpStatus SwapThreeToFour(const ConstBytes& src, const Bytes& dst, Size roi, const int* dstOrder, const void* value) {
  if (const QvpStatus failed = Check(src, dst, roi, dstOrder)) return failed;
  ChannelMap map;
  if (!ReadOrder(dstOrder, 4, 1u << 31, map)) return qvpStatusChannelOrder;
  for (int& from : map.from) {
    if (from >= kFillEntry) from = from == kFillEntry ? kFillChannel : kKeepChannel;
  }
  MoveChannels(src, dst, roi, map, value);
  return qvpStatusNoError;
}

QvpStatus Duplicate(const ConstBytes& src, const Bytes& dst, Size roi) {
  if (const QvpStatus failed = Validate<kPointers, kSize>(roi, {src, dst})) return failed;
  MoveChannels(src, dst, roi, {{0, 0, 0, 0}});
  return qvpStatusNoError;
}

}  // namespace

#define SWAP(type, from, to, name)                                                                      \
  QVP_MAP(AsBytes, qvpiSwapChannels_##type##_##name, type, from, type, to, int, QvpiSize, SwapChannels, \
          (const int* dstOrder), (dstOrder))
#define SWAP_LAYOUTS(type)                                                                              \
  SWAP(type, C3, C3, C3R)                                                                               \
  SWAP(type, C4, C4, C4R)                                                                               \
  SWAP(type, AC4, AC4, AC4R)                                                                            \
  SWAP(type, C4, C3, C4C3R)                                                                             \
  QVP_MAP(AsBytes, qvpiSwapChannels_##type##_C3C4R, type, C3, type, C4, int, QvpiSize, SwapThreeToFour, \
          (const int* dstOrder, Qvp##type val), (dstOrder, &val))

QVP_EACH_MOVED_TYPE(SWAP_LAYOUTS)

QvpStatus qvpiSwapChannels_8u_C3IR(Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, const int* dstOrder) {
  return qvpiSwapChannels_8u_C3R(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, dstOrder);
}
QvpStatus qvpiSwapChannels_8u_C4IR(Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, const int* dstOrder) {
  return qvpiSwapChannels_8u_C4R(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, dstOrder);
}

QVP_MOVE(qvpiDup_8u_C1C3R, 8u, C1, C3, Duplicate)
QVP_MOVE(qvpiDup_8u_C1C4R, 8u, C1, C4, Duplicate)
