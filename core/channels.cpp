// Whole pixels move as blocks of 16-byte vectors: kIn vectors of source become kOut vectors of destination through byte
// shuffles, whatever the width of an element. A block holds 16 elements' worth of bytes per channel, so it has as many
// vectors as a pixel has channels; four channels to four need no more than one vector, as their pixels do not straddle.
#include "core/channels.h"

#include <algorithm>
#include <cstring>

#include "base/rows.h"
#include "base/simd.h"

namespace qvp {
namespace {

using D = hn::CappedTag<uint8_t, 2 * kBlockBytes>;  // two blocks side by side where vectors are wide enough
using V = hn::Vec<D>;
constexpr int kBlocks = static_cast<int>(hn::MaxLanes(D())) / kBlockBytes;

// What the bytes of the destination become that no source channel feeds.
enum class Rest { kNone, kFill, kKeep };

// For each byte of a destination block: its source byte in the source block or kNoSource, and for those without a
// source the fill value (else 0) and whether to keep the byte (0xFF, else 0).
constexpr uint8_t kNoSource = 0xFF;
struct ByteMap {
  alignas(16) uint8_t source[4 * kBlockBytes];
  alignas(16) uint8_t fill[4 * kBlockBytes] = {};
  alignas(16) uint8_t keep[4 * kBlockBytes] = {};
};

ByteMap MakeByteMap(const ChannelMap& map, int inChannels, int outChannels, int elementBytes, int bytes,
                    const uint8_t* fill) {
  ByteMap bytesOf;
  for (int to = 0, pixel = 0; to < bytes; pixel += inChannels * elementBytes) {
    for (int channel = 0; channel < outChannels; ++channel) {
      const int from = map.from[channel];
      for (int i = 0; i < elementBytes; ++i, ++to) {
        bytesOf.source[to] = from < 0 ? kNoSource : static_cast<uint8_t>(pixel + from * elementBytes + i);
        if (from == kFillChannel) bytesOf.fill[to] = fill[i];
        if (from == kKeepChannel) bytesOf.keep[to] = 0xFF;
      }
    }
  }
  return bytesOf;
}

// Whether vector `out` of a destination block can have bytes from vector `in` of the source block. Pixels of four-byte
// elements, of which a block has the fewest, reach as far as any.
template <int kIn, int kOut>
constexpr bool Feeds(int in, int out) {
  const int firstPixel = kBlockBytes * out / (4 * kOut), lastPixel = (kBlockBytes * out + kBlockBytes - 1) / (4 * kOut);
  return kBlockBytes * in < (lastPixel + 1) * 4 * kIn && kBlockBytes * (in + 1) > firstPixel * 4 * kIn;
}

// Loads a vector of each of the blocks, which are `apart` bytes from each other.
HWY_INLINE V LoadBlocks(const uint8_t* from, int apart) {
  const D d;
  if constexpr (kBlocks == 1) {
    return hn::LoadU(d, from);
  } else {
    const hn::Half<D> half;
    return apart == kBlockBytes ? hn::LoadU(d, from)
                                : hn::Combine(d, hn::LoadU(half, from + apart), hn::LoadU(half, from));
  }
}

HWY_INLINE void StoreBlocks(V v, uint8_t* to, int apart) {
  const D d;
  if (kBlocks == 1 || apart == kBlockBytes) return hn::StoreU(v, d, to);
  const hn::Half<D> half;
  hn::StoreU(hn::LowerHalf(half, v), half, to);
  if constexpr (kBlocks == 2) hn::StoreU(hn::UpperHalf(half, v), half, to + apart);
}

// Shuffle indices for source vector `in`: the index itself where the byte is in that vector, else one that yields 0.
HWY_INLINE V IndicesInto(int in, const uint8_t* source) {
  const D d;
  const V relative = hn::Sub(hn::LoadDup128(d, source), hn::Set(d, static_cast<uint8_t>(kBlockBytes * in)));
  return hn::SaturatedAdd(relative, hn::Set(d, uint8_t{0x70}));  // 0..15 keep their low bits; others reach bit 7
}

template <int kIn, int kOut, Rest kRest>
class Mover {
 public:
  static constexpr int kInBytes = kIn * kBlockBytes, kOutBytes = kOut * kBlockBytes;

  explicit Mover(const ByteMap& map) {
    for (int out = 0; out < kOut; ++out) {
      const D d;
      for (int in = 0; in < kIn; ++in) indices_[out][in] = IndicesInto(in, map.source + kBlockBytes * out);
      fill_[out] = hn::LoadDup128(d, map.fill + kBlockBytes * out);
      keep_[out] = hn::LoadDup128(d, map.keep + kBlockBytes * out);
    }
  }

  HWY_INLINE void Row(const uint8_t* src, ptrdiff_t srcBytes, uint8_t* dst, ptrdiff_t dstBytes) const {
    const ptrdiff_t whole = std::min(srcBytes / (kBlocks * kInBytes), dstBytes / (kBlocks * kOutBytes));
    for (ptrdiff_t i = 0; i < whole; ++i, src += kBlocks * kInBytes, dst += kBlocks * kOutBytes) Move(src, dst);
    srcBytes -= whole * kBlocks * kInBytes;
    dstBytes -= whole * kBlocks * kOutBytes;
    if (dstBytes > 0) MoveRest(src, srcBytes, dst, dstBytes);
  }

 private:
  HWY_INLINE void Move(const uint8_t* src, uint8_t* dst) const {
    V in[kIn], out[kOut];
    for (int i = 0; i < kIn; ++i) in[i] = LoadBlocks(src + kBlockBytes * i, kInBytes);
    for (int i = 0; i < kOut; ++i) out[i] = Gather(in, i, dst + kBlockBytes * i);
    for (int i = 0; i < kOut; ++i) StoreBlocks(out[i], dst + kBlockBytes * i, kOutBytes);
  }

  HWY_INLINE V Gather(const V (&in)[kIn], int out, const uint8_t* dst) const {
    V sum = kRest == Rest::kNone ? hn::Zero(D()) : fill_[out];
    for (int i = 0; i < kIn; ++i) {
      if (Feeds<kIn, kOut>(i, out)) sum = hn::Or(sum, hn::TableLookupBytesOr0(in[i], indices_[out][i]));
    }
    if constexpr (kRest == Rest::kKeep) sum = hn::IfVecThenElse(keep_[out], LoadBlocks(dst, kOutBytes), sum);
    return sum;
  }

  // The bytes at the end of a row that fill no block, through copies on the stack.
  HWY_NOINLINE void MoveRest(const uint8_t* src, ptrdiff_t srcBytes, uint8_t* dst, ptrdiff_t dstBytes) const {
    uint8_t in[kBlocks * kInBytes] = {}, out[kBlocks * kOutBytes] = {};
    std::memcpy(in, src, srcBytes);
    if constexpr (kRest == Rest::kKeep) std::memcpy(out, dst, dstBytes);
    Move(in, out);
    std::memcpy(dst, out, dstBytes);
  }

  V indices_[kOut][kIn], fill_[kOut], keep_[kOut];
};

struct Task {
  ConstBytes src;
  Bytes dst;
  Size roi;
  ByteMap map;
};

template <int kIn, int kOut, Rest kRest>
void MoveRows(const Task& task) {
  const Mover<kIn, kOut, kRest> mover(task.map);
  ForEachRow(task.roi, [&](ptrdiff_t width, const uint8_t* src, uint8_t* dst) {
    mover.Row(src, task.src.RowBytes(width), dst, task.dst.RowBytes(width));
  }, task.src, task.dst);
}

template <int kIn, int kOut>
void MoveRows(const Task& task, const ChannelMap& map) {
  const auto has = [&](int kind) { return std::find(map.from, map.from + Channels(task.dst.layout), kind) !=
                                          map.from + Channels(task.dst.layout); };
  if (has(kKeepChannel)) return MoveRows<kIn, kOut, Rest::kKeep>(task);
  if constexpr (kOut > kIn) {
    if (has(kFillChannel)) return MoveRows<kIn, kOut, Rest::kFill>(task);
  }
  MoveRows<kIn, kOut, Rest::kNone>(task);
}

}  // namespace

void MoveChannels(ConstBytes src, Bytes dst, Size roi, const ChannelMap& map, const void* fill) {
  const int in = Channels(src.layout), out = Channels(dst.layout);
  const int vectors = in == 4 && out == 4 ? 1 : out;
  const Task task{src, dst, roi, MakeByteMap(map, in, out, dst.elementBytes, vectors * kBlockBytes,
                                             static_cast<const uint8_t*>(fill))};
  switch (10 * in + out) {
    case 13: return MoveRows<1, 3>(task, map);
    case 14: return MoveRows<1, 4>(task, map);
    case 31: return MoveRows<3, 1>(task, map);
    case 33: return MoveRows<3, 3>(task, map);
    case 34: return MoveRows<3, 4>(task, map);
    case 41: return MoveRows<4, 1>(task, map);
    case 43: return MoveRows<4, 3>(task, map);
    default: return MoveRows<1, 1>(task, map);  // 44
  }
}

}  // namespace qvp
