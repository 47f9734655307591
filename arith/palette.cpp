// Palettes: an entry of one, three or four values for each index. An entry is moved as it is, whatever its values are.
#include <limits>

#include "arith/table_rows.h"
#include "base/check.h"
#include "base/export.h"
#include "base/gather.h"
#include "base/pack.h"
#include "base/rows.h"
#include "base/scalar.h"

namespace {
using namespace qvp;

template <int kBytes, class S>
HWY_INLINE void MoveRow(const uint8_t* palette, size_t mask, ptrdiff_t n, uint8_t* to, const S* from) {
  ForEachOf(n, [=](ptrdiff_t i) HWY_ATTR {
    std::memcpy(to + i * kBytes, palette + (LoadScalar(from + i) & mask) * kBytes, kBytes);
  });
}

template <int kBytes, class S>
void MoveEntries(const uint8_t* palette, int nBits, const Image<const S>& src, const Bytes& dst, Size roi) {
  const size_t mask = (size_t{1} << nBits) - 1;
  Rows(src, dst).ForEach(roi, [=](ptrdiff_t n, const S* from, uint8_t* to) {
    if (mask == std::numeric_limits<S>::max())
      return MoveRow<kBytes>(palette, std::numeric_limits<S>::max(), n, to, from);
    MoveRow<kBytes>(palette, mask, n, to, from);
  });
}

// The entries of all bytes, each in a word, so that pixels are loaded and stored as words. What a word has beyond its
// entry reaches into the next pixel, which is stored later; the last pixels of a row have only their own bytes.
template <int kBytes>
class Words {
 public:
  Words(const uint8_t* palette, int nBits) {
    const int mask = (1 << nBits) - 1;
    for (int i = 0; i < 256; ++i) std::memcpy(words_[i], palette + (i & mask) * kBytes, kBytes);
  }
  HWY_INLINE void MoveRow(ptrdiff_t n, const uint8_t* from, uint8_t* to) const {
    ptrdiff_t i = 0;
    for (; i + kReached <= n; i += kAtOnce) Move(from + i, to + i * kBytes);
    for (; i < n; ++i) std::memcpy(to + i * kBytes, words_[from[i]], kBytes);
  }

 private:
  static constexpr int kWord = kBytes <= 4 ? 4 : kBytes <= 8 ? 8 : 16;
  static constexpr int kAtOnce = kBytes == 2 ? 8 : 4;
  static constexpr int kStored = kWord == 4 ? kBlockBytes : 3 * kBytes + kWord;  // bytes, of so many pixels:
  static constexpr int kReached = (kStored + kBytes - 1) / kBytes;

  HWY_INLINE auto Four(const uint8_t* from) const {
    return LoadWords<int32_t>([=, this](int k) HWY_ATTR { return reinterpret_cast<const int32_t*>(words_[from[k]]); });
  }

  // CPUs store fewer times than they load: several small entries leave together.
  HWY_INLINE void Move(const uint8_t* from, uint8_t* to) const {
    const hn::Full128<uint8_t> d;
    if constexpr (kWord > 4) {
      for (int k = 0; k < kAtOnce; ++k) std::memcpy(to + k * kBytes, words_[from[k]], kWord);
    } else if constexpr (kBytes == 2) {
      hn::StoreU(hn::BitCast(d, Packed(uint16_t(), Four(from), Four(from + 4))), d, to);
    } else if constexpr (kBytes == 3) {
      static constexpr uint8_t kTight[kBlockBytes] = {0, 1, 2, 4, 5, 6, 8, 9, 10, 12, 13, 14};
      hn::StoreU(hn::TableLookupBytes(hn::BitCast(d, Four(from)), hn::LoadU(d, kTight)), d, to);
    } else {
      hn::StoreU(hn::BitCast(d, Four(from)), d, to);
    }
  }

  alignas(16) uint8_t words_[256][kWord] = {};
};

template <int kBytes>
void MoveWords(const uint8_t* palette, int nBits, const Image<const uint8_t>& src, const Bytes& dst, Size roi) {
  const Words<kBytes> words(palette, nBits);
  Rows(src, dst).ForEach(roi, [&](ptrdiff_t n, const uint8_t* from, uint8_t* to) { words.MoveRow(n, from, to); });
}

// Fewer pixels do not make up for the copy.
bool IsWorthCopying(Size roi) { return int64_t{roi.width} * roi.height >= 512; }

// Bytes to bytes are a table of all 256 values.
void MoveBytes(const uint8_t* palette, int nBits, const Image<const uint8_t>& src, const Image<uint8_t>& dst,
               Size roi) {
  const int mask = (1 << nBits) - 1;
  uint8_t table[256];
  for (int i = 0; i < 256; ++i) table[i] = palette[i & mask];
  MapThroughTables({table, table, table, table}, src, dst, roi);
}

template <int kChannels, class S, class T>
QvpStatus Paint(const Image<const S>& src, const Image<T>& dst, Size roi, const T* palette, int nBits) {
  if (const QvpStatus failed = Validate<kPointers, kSize, kSteps>(roi, {src, dst}, {palette})) return failed;
  if (nBits < 1 || nBits > 8 * int{sizeof(S)}) return qvpStatusOutOfRange;
  constexpr int kBytes = kChannels * sizeof(T);
  constexpr bool isByteIndex = sizeof(S) == 1, hasWords = isByteIndex && kBytes != 8 && kBytes != 16;
  const auto* const entries = reinterpret_cast<const uint8_t*>(palette);
  if constexpr (isByteIndex && kBytes == 1) {
    MoveBytes(entries, nBits, src, dst, roi);
  } else {
    if constexpr (hasWords) {
      if (IsWorthCopying(roi)) {
        MoveWords<kBytes>(entries, nBits, src, AsBytes(dst), roi);
        return qvpStatusNoError;
      }
    }
    MoveEntries<kBytes>(entries, nBits, src, AsBytes(dst), roi);
  }
  return qvpStatusNoError;
}

}  // namespace

#define PALETTE(types, from, to, layouts, layout, channels)                                               \
  QVP_MAP(View, qvpiPalette_##types##_##layouts##R, from, C1, to, layout, int, QvpiSize, Paint<channels>, \
          (const Qvp##to* pPalette, int nBits), (pPalette, nBits))
#define PALETTES(types, from, to)       \
  PALETTE(types, from, to, C1, C1, 1)   \
  PALETTE(types, from, to, C1C3, C3, 3) \
  PALETTE(types, from, to, C1C4, C4, 4)

PALETTES(8u, 8u, 8u)
PALETTES(8u16u, 8u, 16u)
PALETTES(8u32f, 8u, 32f)
PALETTES(16u8u, 16u, 8u)
PALETTES(16u, 16u, 16u)
PALETTE(16u32f, 16u, 32f, C1, C1, 1)
