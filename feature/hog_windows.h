// The windows of a region: their blocks, in order.
#pragma once

#include "feature/hog_block.h"

namespace qvp::hog {

// Sixteen bytes n times. Blocks are too short for the time that a call of memcpy takes.
inline void CopyVectors(const uint8_t* from, uint8_t* to, int n) {
  const hn::Full128<uint8_t> d;
  for (int i = 0; i < n; ++i) hn::StoreU(hn::LoadU(d, from + i * kBlockBytes), d, to + i * kBlockBytes);
}

// Where blocks that were written already lie, by the place of their first pixel: windows overlap, and a block that is
// copied has the bits of one that is computed. A hash table in what the work buffer has left; a block that finds kWays
// others where it belongs takes the entry of one.
class BlockCache {
 public:
  explicit BlockCache(const Planes& planes) : table_(planes.Rest()) {
    while (2 * (mask_ + 1) * kEntryBytes <= planes.RestBytes()) mask_ = 2 * mask_ + 1;
    std::memset(table_, 0, (mask_ + 1) * kEntryBytes);
  }

  // The entry of the block at a place, or the one that it may take.
  uint8_t* Entry(ptrdiff_t place) const {
    const int64_t first = Hash(place);
    for (int way = 0; way < kWays; ++way) {
      uint8_t* const entry = table_ + ((first + way) & mask_) * kEntryBytes;
      const int64_t key = Word(entry, 0);
      if (key == place + 1 || key == 0) return entry;
    }
    return table_ + (first & mask_) * kEntryBytes;
  }

  // The byte offset of the block among the descriptors, or -1.
  static int64_t Find(const uint8_t* entry, ptrdiff_t place) {
    return Word(entry, 0) == place + 1 ? Word(entry, 1) : -1;
  }
  static void Put(uint8_t* entry, ptrdiff_t place, int64_t offset) {
    const int64_t words[2] = {place + 1, offset};
    std::memcpy(entry, words, kEntryBytes);
  }

 private:
  static constexpr int kEntryBytes = 2 * sizeof(int64_t), kWays = 4;

  // Two products with 2^64 divided by the golden ratio: one alone would keep the lattice of the places.
  static int64_t Hash(ptrdiff_t place) {
    constexpr uint64_t kFactor = 0x9E3779B97F4A7C15u;
    const uint64_t once = static_cast<uint64_t>(place) * kFactor;
    return static_cast<int64_t>((once ^ once >> 32) * kFactor >> 32);
  }

  static int64_t Word(const uint8_t* entry, int i) {
    int64_t word;
    std::memcpy(&word, entry + i * sizeof(word), sizeof(word));
    return word;
  }

  uint8_t* table_;
  int64_t mask_ = 0;
};

class Windows {
 public:
  Windows(const Record& record, const uint8_t* weights, const Planes& planes, uint8_t* dst)
      : record_(record), weights_(weights), planes_(planes), dst_(dst), block_(record.config.nbins) {}

  // The blocks of the window at a pixel. `cache` may be null.
  void Write(ptrdiff_t x, ptrdiff_t y, BlockCache* cache) {
    const bool byColumns = record_.config.cvCompatible != 0;
    const int outer = byColumns ? record_.blocksAcross : record_.blocksDown;
    const int inner = byColumns ? record_.blocksDown : record_.blocksAcross;
    for (int o = 0; o < outer; ++o) {
      for (int i = 0; i < inner; ++i) {
        const int across = byColumns ? o : i, down = byColumns ? i : o;
        WriteBlock((y + ptrdiff_t{down} * record_.config.blockStride) * planes_.width() + x +
                       ptrdiff_t{across} * record_.config.blockStride,
                   cache);
      }
    }
  }

 private:
  void WriteBlock(ptrdiff_t first, BlockCache* cache) {
    const int bytes = kCells * record_.config.nbins * static_cast<int>(sizeof(float));
    uint8_t* const entry = cache ? cache->Entry(first) : nullptr;
    const int64_t found = entry ? BlockCache::Find(entry, first) : -1;
    if (found >= 0) {
      CopyVectors(dst_ + found, dst_ + offset_, record_.config.nbins);
    } else {
      block_.Gather(planes_, first, weights_, record_.config.blockSize);
      block_.Normalise(record_.config.l2thresh);
      block_.Write(record_.config.cvCompatible != 0, dst_ + offset_);
    }
    if (entry) BlockCache::Put(entry, first, offset_);
    offset_ += bytes;
  }

  const Record& record_;
  const uint8_t* weights_;
  const Planes& planes_;
  uint8_t* dst_;
  int64_t offset_ = 0;
  Block block_;
};

}  // namespace qvp::hog
