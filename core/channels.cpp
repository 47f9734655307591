// Whole pixels move as blocks of 16-byte vectors: kIn vectors of source become kOut vectors of destination through byte
// shuffles, whatever the width of an element. A block holds 16 elements' worth of bytes per channel, so it has as many
// vectors as a pixel has channels; four channels to four need no more than one vector, as their pixels do not straddle.
#include "core/channels.h"

#include <algorithm>
#include <cstring>

#include "base/blocks.h"
#include "base/rows.h"

namespace qvp {
namespace {

using D = hn::CappedTag<uint8_t, 2 * kBlockBytes>;  // two blocks side by side where vectors are wide enough
using V = hn::Vec<D>;
constexpr int kBlocks = static_cast<int>(hn::MaxLanes(D())) / kBlockBytes;

// What the bytes of the destination become that no source channel feeds.
enum class Rest { kNone, kFill, kKeep };

// For each byte of a destination pixel: its byte in the source pixel or kNoSource, and for those without a source the
// fill value (else 0) and whether to keep the byte (0xFF, else 0).
constexpr uint8_t kNoSource = 0xFF;
struct PixelMap {
  alignas(16) uint8_t source[kBlockBytes], fill[kBlockBytes] = {}, keep[kBlockBytes] = {};

  PixelMap(const ChannelMap& map, int channels, int elementBytes, const uint8_t* fillElement) {
    for (int channel = 0, to = 0; channel < channels; ++channel) {
      const int from = map.from[channel];
      for (int i = 0; i < elementBytes; ++i, ++to) {
        source[to] = from < 0 ? kNoSource : static_cast<uint8_t>(from * elementBytes + i);
        if (from == kFillChannel) fill[to] = fillElement[i];
        if (from == kKeepChannel) keep[to] = 0xFF;
      }
    }
  }
};

// For each byte of a destination block: which byte of its pixel it is, and where in the source block that pixel starts.
struct BlockMap {
  alignas(16) uint8_t byteOfPixel[4 * kBlockBytes], pixelStart[4 * kBlockBytes];

  constexpr BlockMap(int inPixel, int outPixel) : byteOfPixel(), pixelStart() {
    for (int i = 0; i < 4 * kBlockBytes; ++i) {
      byteOfPixel[i] = static_cast<uint8_t>(i % outPixel);
      pixelStart[i] = static_cast<uint8_t>(i / outPixel * inPixel);
    }
  }
};

constexpr int ChannelsOf(int vectors, bool fourToFour) { return fourToFour ? 4 : vectors; }

// Those of elements of 1, 2 and 4 bytes.
template <int kIn, int kOut>
const BlockMap& BlockMapFor(int elementBytes) {
  constexpr bool kFourToFour = kIn == 1 && kOut == 1;
  constexpr int kInChannels = ChannelsOf(kIn, kFourToFour), kOutChannels = ChannelsOf(kOut, kFourToFour);
  static constexpr BlockMap kMaps[] = {
      {kInChannels, kOutChannels}, {2 * kInChannels, 2 * kOutChannels}, {4 * kInChannels, 4 * kOutChannels}};
  return kMaps[elementBytes / 2];
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

// From vectors that hold one part of each block to vectors in the order of memory.
template <int kVectors>
HWY_INLINE void ToMemoryOrder(V (&v)[kVectors]) {
  if constexpr (kBlocks == 2 && kVectors > 1) {
    const D d;
    V parts[kVectors];
    std::copy(v, v + kVectors, parts);
    for (int i = 0; i < kVectors; ++i) {  // memory vector i holds parts 2 i and 2 i + 1, those of one block in a row
      const V& low = parts[2 * i % kVectors];
      const V& high = parts[(2 * i + 1) % kVectors];
      const bool lowOfSecond = 2 * i >= kVectors, highOfSecond = 2 * i + 1 >= kVectors;
      v[i] = lowOfSecond    ? hn::ConcatUpperUpper(d, high, low)
             : highOfSecond ? hn::ConcatUpperLower(d, high, low)
                            : hn::ConcatLowerLower(d, high, low);
    }
  }
}

// Turns places in the source block into shuffle indices for its vector `in`: those outside it yield zeros.
HWY_INLINE V IndicesInto(int in, V source) {
  return IndicesOr0(hn::Sub(source, hn::Set(D(), static_cast<uint8_t>(kBlockBytes * in))));
}

template <int kIn, int kOut, Rest kRest>
class Mover {
 public:
  static constexpr int kInBytes = kIn * kBlockBytes, kOutBytes = kOut * kBlockBytes;

  Mover(const PixelMap& pixel, const BlockMap& block) {
    for (int out = 0; out < kOut; ++out) {
      const D d;
      const V byte = hn::LoadDup128(d, block.byteOfPixel + kBlockBytes * out);
      const V source = hn::SaturatedAdd(hn::LoadDup128(d, block.pixelStart + kBlockBytes * out),
                                        hn::TableLookupBytes(hn::LoadDup128(d, pixel.source), byte));
      for (int in = 0; in < kIn; ++in) indices_[out][in] = IndicesInto(in, source);
      fill_[out] = hn::TableLookupBytes(hn::LoadDup128(d, pixel.fill), byte);
      keep_[out] = hn::TableLookupBytes(hn::LoadDup128(d, pixel.keep), byte);
    }
    ToMemoryOrder(keep_);
  }

  HWY_INLINE void Row(const uint8_t* src, ptrdiff_t srcBytes, uint8_t* dst, ptrdiff_t dstBytes) const {
    const Mover tables = *this;  // in registers: stores of bytes might change what *this points at
    const ptrdiff_t whole = std::min(srcBytes / (kBlocks * kInBytes), dstBytes / (kBlocks * kOutBytes));
    for (ptrdiff_t i = 0; i < whole; ++i, src += kBlocks * kInBytes, dst += kBlocks * kOutBytes) tables.Move(src, dst);
    srcBytes -= whole * kBlocks * kInBytes;
    dstBytes -= whole * kBlocks * kOutBytes;
    if (dstBytes > 0) MoveRest(src, srcBytes, dst, dstBytes);
  }

 private:
  HWY_INLINE void Move(const uint8_t* src, uint8_t* dst) const {
    const D d;
    V in[kIn], out[kOut];
    for (int i = 0; i < kIn; ++i) in[i] = LoadBlocks(src + kBlockBytes * i, kInBytes);
    for (int i = 0; i < kOut; ++i) out[i] = Gather(in, i);
    ToMemoryOrder(out);
    for (int i = 0; i < kOut; ++i) {
      uint8_t* to = dst + kBlocks * kBlockBytes * i;
      if constexpr (kRest == Rest::kKeep) out[i] = hn::IfVecThenElse(keep_[i], hn::LoadU(d, to), out[i]);
      hn::StoreU(out[i], d, to);
    }
  }

  HWY_INLINE V Gather(const V (&in)[kIn], int out) const {
    V sum = kRest == Rest::kNone ? hn::Zero(D()) : fill_[out];
    for (int i = 0; i < kIn; ++i) {
      if (Feeds<kIn, kOut>(i, out)) sum = hn::Or(sum, hn::TableLookupBytesOr0(in[i], indices_[out][i]));
    }
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

template <int kIn, int kOut, Rest kRest>
void MoveRows(const ConstBytes& src, const Bytes& dst, Size roi, const PixelMap& map) {
  const Mover<kIn, kOut, kRest> mover(map, BlockMapFor<kIn, kOut>(dst.elementBytes));
  Rows(src, dst).ForEach(roi, [&](ptrdiff_t width, const uint8_t* from, uint8_t* to) {
    mover.Row(from, src.RowBytes(width), to, dst.RowBytes(width));
  });
}

Rest RestOf(const ChannelMap& map, int channels) {
  Rest rest = Rest::kNone;
  for (int i = 0; i < channels; ++i) {
    if (map.from[i] == kKeepChannel) return Rest::kKeep;
    if (map.from[i] == kFillChannel) rest = Rest::kFill;
  }
  return rest;
}

template <int kIn, int kOut>
void MoveRows(const ConstBytes& src, const Bytes& dst, Size roi, const PixelMap& map, Rest rest) {
  switch (rest) {
    case Rest::kNone: return MoveRows<kIn, kOut, Rest::kNone>(src, dst, roi, map);
    case Rest::kFill:  // only for more channels than there were
      if constexpr (kIn == 3 && kOut == 4) MoveRows<kIn, kOut, Rest::kFill>(src, dst, roi, map);
      return;
    case Rest::kKeep: return MoveRows<kIn, kOut, Rest::kKeep>(src, dst, roi, map);
  }
}

}  // namespace

void MoveChannels(const ConstBytes& src, const Bytes& dst, Size roi, const ChannelMap& map, const void* fill) {
  const int in = Channels(src.layout), out = Channels(dst.layout);
  const PixelMap pixel(map, out, dst.elementBytes, static_cast<const uint8_t*>(fill));
  const Rest rest = RestOf(map, out);
  switch (10 * in + out) {
    case 13: return MoveRows<1, 3>(src, dst, roi, pixel, rest);
    case 14: return MoveRows<1, 4>(src, dst, roi, pixel, rest);
    case 31: return MoveRows<3, 1>(src, dst, roi, pixel, rest);
    case 33: return MoveRows<3, 3>(src, dst, roi, pixel, rest);
    case 34: return MoveRows<3, 4>(src, dst, roi, pixel, rest);
    case 41: return MoveRows<4, 1>(src, dst, roi, pixel, rest);
    case 43: return MoveRows<4, 3>(src, dst, roi, pixel, rest);
    default: return MoveRows<1, 1>(src, dst, roi, pixel, rest);  // 44
  }
}

}  // namespace qvp
