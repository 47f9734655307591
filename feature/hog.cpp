// Histograms of oriented gradients (Dalal and Triggs, 2005).
//
// The votes of all pixels are made once a call, in planes of the work buffer; the windows' blocks gather them.
#include <algorithm>
#include <cstring>

#include "base/border.h"
#include "base/check.h"
#include "base/export.h"
#include "base/lanes.h"
#include "feature/hog_record.h"
#include "qvpi.h"
#include "signal/arc_tangent.h"

namespace {
using namespace qvp;

using Floats = hn::ScalableTag<float>;
constexpr ptrdiff_t kLanes = hn::MaxLanes(Floats());

// ---- Rows of the image as floats, with what the border puts around them.

// Pixels are taken by pieces of a row, so that lines of floats fit into the first-level cache.
constexpr ptrdiff_t kPiece = 256, kLineRoom = 3 * (kPiece + 2 + kLanes);

template <class T>
struct BorderedImage {
  const Image<const T>& image;
  Size size;
  QvpiBorderType border;
  const T* outside;  // one value for each channel

  // Samples of pixels [x, x + n) of row y: n >= 1, and all that is not in the region is found through the border.
  void Line(ptrdiff_t y, ptrdiff_t x, ptrdiff_t n, float* to) const {
    const int channels = Channels(image.layout);
    const ptrdiff_t row = BorderPosition(KindOf(border), y, EffectiveRows(border, size.height, 1, 1));
    for (; x < 0; ++x, --n, to += channels) Pixel(row, x, to);
    const ptrdiff_t inside = std::min(n, size.width - x);
    Inside(row, x, inside, to);
    for (ptrdiff_t i = inside; i < n; ++i) Pixel(row, x + i, to + i * channels);
  }

 private:
  void Pixel(ptrdiff_t row, ptrdiff_t x, float* to) const {
    const ptrdiff_t column = BorderPosition(KindOf(border), x, EffectiveColumns(border, size.width, 1, 1));
    if (column == kOutside) return Constant(1, to);
    Inside(row, column, 1, to);
  }

  void Constant(ptrdiff_t n, float* to) const {
    const int channels = Channels(image.layout);
    for (ptrdiff_t i = 0; i < n * channels; ++i) {
      T value;
      std::memcpy(&value, outside + i % channels, sizeof(T));
      to[i] = static_cast<float>(value);
    }
  }

  void Inside(ptrdiff_t row, ptrdiff_t x, ptrdiff_t n, float* to) const {
    if (row == kOutside) return Constant(n, to);
    const int channels = Channels(image.layout);
    const T* from = image.Row(row) + x * channels;
    ptrdiff_t i = 0, samples = n * channels;
    for (; i + kLanes <= samples; i += kLanes) hn::StoreU(LoadWide(Floats(), from + i), Floats(), to + i);
    for (; i < samples; ++i) {
      T value;
      std::memcpy(&value, from + i, sizeof(T));
      to[i] = static_cast<float>(value);
    }
  }
};

// ---- Votes.

// A pixel's vote goes to the bins row - 1 and row, counted round the half turn, in a pair of shares. Rows are kept
// times kRowStep: a CPU's addresses take that times 8, and a row of a histogram has so many bytes.
constexpr int kRowStep = 4;
struct Votes {
  float* shares;
  uint8_t* row;
};

using V = hn::Vec<Floats>;

// The direction of a gradient in [0, pi], whatever its sense. The ends are the same direction: no gradient, and any
// along the rows, may have either. Gradients that the quotient leaves out have no magnitude.
HWY_INLINE V Direction(V gx, V gy) {
  const Floats d;
  const V ax = hn::Abs(gx), ay = hn::Abs(gy), longer = hn::Max(hn::Max(ax, ay), hn::Set(d, 0x1p-126f));
  const V acute = ArcTangent(hn::Div(hn::Min(ax, ay), longer));
  const auto reflected = [&](V angle, V signs, float sum) HWY_ATTR {  // the sum less the angle where the sign is set
    const hn::Rebind<int32_t, Floats> ints;
    const V all = hn::BitCast(d, hn::BroadcastSignBit(hn::BitCast(ints, signs)));
    return hn::Add(hn::Xor(angle, hn::And(signs, hn::Set(d, -0.0f))), hn::And(all, hn::Set(d, sum)));
  };
  return reflected(reflected(acute, hn::Sub(ax, ay), 0x1.921fb6p+0f), hn::Xor(gx, gy), 0x1.921fb6p+1f);
}

// Bins are centred at (k + 1/2) pi / bins; the vote is shared linearly between the two nearest.
HWY_INLINE void Vote(V gx, V gy, int bins, const Votes& to, ptrdiff_t i) {
  const Floats d;
  const hn::Rebind<uint8_t, Floats> bytes;
  const float count = static_cast<float>(bins);
  const V magnitude = hn::Sqrt(hn::Add(hn::Mul(gx, gx), hn::Mul(gy, gy)));
  const V place = hn::Add(hn::Mul(Direction(gx, gy), hn::Set(d, count * 0x1.45f306p-2f)), hn::Set(d, 0.5f));
  const V row = hn::Floor(place);
  const V share = hn::Mul(magnitude, hn::Sub(place, row));
  hn::StoreInterleaved2(hn::Sub(magnitude, share), share, d, to.shares + 2 * i);
  // NaN gives the lowest integer, and that saturates to 0.
  hn::StoreU(hn::DemoteTo(bytes, RoundToInt(hn::Mul(row, hn::Set(d, float{kRowStep})))), bytes, to.row + i);
}

// The lines of three rows, each from one pixel before those of interest to one behind them. What lies further is of
// earlier lines.
class Lines {
 public:
  float* Of(ptrdiff_t y) { return lines_[(y + 3) % 3]; }

 private:
  HWY_ALIGN float lines_[3][kLineRoom] = {};
};

// The lines around a row, from one pixel before those of interest on.
struct Neighbours {
  const float *above, *at, *below;
};

template <int kChannels>
struct Gradient;
template <>
struct Gradient<1> {
  HWY_INLINE Gradient(const Neighbours& lines, ptrdiff_t i) {
    const Floats d;
    x = hn::Sub(hn::LoadU(d, lines.at + i + 2), hn::LoadU(d, lines.at + i));
    y = hn::Sub(hn::LoadU(d, lines.below + i + 1), hn::LoadU(d, lines.above + i + 1));
  }
  V x, y;
};
// The channel with the longest gradient, the first of several.
template <>
struct Gradient<3> {
  HWY_INLINE Gradient(const Neighbours& lines, ptrdiff_t i) {
    const Floats d;
    V left[3], right[3], above[3], below[3];
    hn::LoadInterleaved3(d, lines.at + 3 * i, left[0], left[1], left[2]);
    hn::LoadInterleaved3(d, lines.at + 3 * i + 6, right[0], right[1], right[2]);
    hn::LoadInterleaved3(d, lines.above + 3 * i + 3, above[0], above[1], above[2]);
    hn::LoadInterleaved3(d, lines.below + 3 * i + 3, below[0], below[1], below[2]);
    x = hn::Sub(right[0], left[0]);
    y = hn::Sub(below[0], above[0]);
    V longest = hn::Add(hn::Mul(x, x), hn::Mul(y, y));
    for (int c = 1; c < 3; ++c) {
      const V gx = hn::Sub(right[c], left[c]), gy = hn::Sub(below[c], above[c]);
      const V square = hn::Add(hn::Mul(gx, gx), hn::Mul(gy, gy));
      const auto isLonger = hn::Gt(square, longest);
      x = hn::IfThenElse(isLonger, gx, x);
      y = hn::IfThenElse(isLonger, gy, y);
      longest = hn::Max(square, longest);
    }
  }
  V x, y;
};

// The work buffer, 12 bytes for each pixel of the trimmed region: shares, a byte for the row, and what is left for the
// places of finished blocks. The buffer begins anywhere.
class Planes {
 public:
  Planes(uint8_t* buffer, Size trimmed)
      : shares_(buffer), width_(trimmed.width), area_(trimmed.width * trimmed.height) {}

  void Store(ptrdiff_t x, ptrdiff_t y, ptrdiff_t n, const Votes& votes) const {
    const ptrdiff_t at = y * width_ + x;
    std::memcpy(Shares() + at * kPairBytes, votes.shares, n * kPairBytes);
    std::memcpy(Rows() + at, votes.row, n);
  }

  static constexpr int kPairBytes = 2 * sizeof(float);
  uint8_t* Shares() const { return shares_; }
  uint8_t* Rows() const { return shares_ + area_ * kPairBytes; }
  uint8_t* Rest() const { return Rows() + area_; }
  ptrdiff_t RestBytes() const { return 3 * area_; }
  ptrdiff_t width() const { return width_; }

 private:
  uint8_t* shares_;
  ptrdiff_t width_, area_;
};

// The votes of the pixels [x, x + n) of all rows of a region.
template <int kChannels, class T>
void VoteColumns(const BorderedImage<T>& image, ptrdiff_t x, ptrdiff_t n, ptrdiff_t height, int bins,
                 const Planes& planes) {
  Lines lines;
  HWY_ALIGN float shares[2 * (kPiece + kLanes)];
  uint8_t row[kPiece + kLanes];
  const auto read = [&](ptrdiff_t y) {  // the corners around the region are not looked at
    const ptrdiff_t more = y >= 0 && y < height ? 1 : 0;
    image.Line(y, x - more, n + 2 * more, lines.Of(y) + (1 - more) * kChannels);
  };
  read(-1);
  read(0);
  for (ptrdiff_t y = 0; y < height; ++y) {
    read(y + 1);
    const Neighbours neighbours{lines.Of(y - 1), lines.Of(y), lines.Of(y + 1)};
    for (ptrdiff_t i = 0; i < n; i += kLanes) {
      const Gradient<kChannels> gradient(neighbours, i);
      Vote(gradient.x, gradient.y, bins, {shares, row}, i);
    }
    planes.Store(x, y, n, {shares, row});
  }
}

template <int kChannels, class T>
void VoteRegion(const BorderedImage<T>& image, Size region, int bins, const Planes& planes) {
  for (ptrdiff_t x = 0; x < region.width; x += kPiece) {
    VoteColumns<kChannels>(image, x, std::min(kPiece, region.width - x), region.height, bins, planes);
  }
}

// ---- Blocks.

using Cells = hn::FixedTag<float, kHogCells>;

// Pixels take turns in several histograms, as an addition has to wait for the one before it to the same row. The sides
// of blocks are even.
constexpr int kTurns = 4, kMostBins = 16, kWeightBytes = kHogCells * sizeof(float);

// A row of a histogram: the lower and the upper shares of the four cells.
constexpr int kRowFloats = 2 * kHogCells;

// The two shares of two pixels.
class TwoPixels {
 public:
  HWY_INLINE explicit TwoPixels(const uint8_t* from)
      : shares_(hn::LoadU(Cells(), reinterpret_cast<const float*>(from))) {}

  // Adds one pixel's shares, times its weights, to a row: by one vector where there are such long ones.
  template <int kPixel, class D>
  HWY_INLINE void Add(D d, const uint8_t* weights, float* row) const {
    const auto weight = hn::LoadDup128(d, reinterpret_cast<const float*>(weights));
    if constexpr (hn::MaxLanes(D()) == kRowFloats) {
      constexpr int kLower = 2 * kPixel, kUpper = kLower + 1;
      HWY_ALIGN static constexpr int32_t kOrder[] = {kLower, kLower, kLower, kLower, kUpper, kUpper, kUpper, kUpper};
      const auto both = hn::TableLookupLanes(hn::ZeroExtendVector(d, shares_), hn::SetTableIndices(d, kOrder));
      hn::Store(hn::Add(hn::Load(d, row), hn::Mul(weight, both)), d, row);
    } else {
      const auto lower = hn::Broadcast<2 * kPixel>(shares_), upper = hn::Broadcast<2 * kPixel + 1>(shares_);
      hn::Store(hn::Add(hn::Load(d, row), hn::Mul(weight, lower)), d, row);
      hn::Store(hn::Add(hn::Load(d, row + kHogCells), hn::Mul(weight, upper)), d, row + kHogCells);
    }
  }

 private:
  hn::Vec<Cells> shares_;
};
using RowTag = hn::CappedTag<float, kRowFloats>;

class Block {
 public:
  explicit Block(int bins) : bins_(bins) {}

  // The weighted votes of the pixels of the block whose first pixel is at `first`, by bins, a lane for each cell.
  void Gather(const Planes& planes, ptrdiff_t first, const uint8_t* weights, int side) {
    HWY_ALIGN Turn turns[kTurns];
    for (int i = 0; i < (bins_ + 1) * kRowFloats; i += hn::MaxLanes(RowTag())) {
      for (auto& turn : turns) hn::Store(hn::Zero(RowTag()), RowTag(), turn + i);
    }
    const ptrdiff_t width = planes.width();
    const uint8_t *rows = planes.Rows() + first, *shares = planes.Shares() + first * Planes::kPairBytes;
    const ptrdiff_t rowBytes = ptrdiff_t{side} * kWeightBytes;
    for (int j = 0; j < side; j += 2) {
      for (ptrdiff_t i = 0; i < side; i += 2) {
        AddPair(rows + i, shares + i * Planes::kPairBytes, weights + i * kWeightBytes, turns);
        AddPair(rows + width + i, shares + (width + i) * Planes::kPairBytes, weights + rowBytes + i * kWeightBytes,
                turns + 2);
      }
      rows += 2 * width;
      shares += 2 * width * Planes::kPairBytes;
      weights += 2 * rowBytes;
    }
    Sum(turns);
  }

  // Divided by the length, clipped, and divided by the length again.
  void Normalise(float most) {
    const Cells d;
    const auto scale = hn::Set(d, InverseLength()), bound = hn::Set(d, most);
    for (int b = 0; b < bins_; ++b) {
      hn::Store(hn::Min(hn::Mul(hn::Load(d, Bin(b)), scale), bound), d, Bin(b));
    }
    const auto second = hn::Set(d, InverseLength());
    for (int b = 0; b < bins_; ++b) hn::Store(hn::Mul(hn::Load(d, Bin(b)), second), d, Bin(b));
  }

  // Cell after cell: row by row, or column by column.
  void Write(bool byColumns, uint8_t* to) const {
    static constexpr int kOrder[2][kHogCells] = {{0, 1, 2, 3}, {0, 2, 1, 3}};
    float values[kHogCells * kMostBins];
    for (int b = 0; b < bins_; ++b) {
      for (int c = 0; c < kHogCells; ++c) values[c * bins_ + b] = votes_[b * kHogCells + kOrder[byColumns][c]];
    }
    std::memcpy(to, values, kHogCells * bins_ * sizeof(float));
  }

 private:
  using Turn = float[(kMostBins + 1) * kRowFloats];

  static HWY_INLINE void AddPair(const uint8_t* rows, const uint8_t* shares, const uint8_t* weights, Turn* turns) {
    const TwoPixels pixels(shares);
    pixels.Add<0>(RowTag(), weights, turns[0] + ptrdiff_t{rows[0]} * (kRowFloats / kRowStep));
    pixels.Add<1>(RowTag(), weights + kWeightBytes, turns[1] + ptrdiff_t{rows[1]} * (kRowFloats / kRowStep));
  }

  float* Bin(int b) { return votes_ + b * kHogCells; }

  // Bin b has the lower shares of row b + 1 and the upper ones of row b. Beyond either end are the rows where the half
  // turn closes.
  void Sum(const Turn (&turns)[kTurns]) {
    const Cells d;
    const auto at = [&](int row, int half) HWY_ATTR {
      const auto of = [&](int turn) { return hn::Load(d, turns[turn] + row * kRowFloats + half * kHogCells); };
      return hn::Add(hn::Add(of(0), of(1)), hn::Add(of(2), of(3)));
    };
    for (int b = 0; b < bins_; ++b) hn::Store(hn::Add(at(b + 1, 0), at(b, 1)), d, Bin(b));
    hn::Store(hn::Add(hn::Load(d, Bin(0)), at(bins_, 1)), d, Bin(0));
    hn::Store(hn::Add(hn::Load(d, Bin(bins_ - 1)), at(0, 0)), d, Bin(bins_ - 1));
  }

  float InverseLength() const {
    const Cells d;
    auto squares = hn::Zero(d);
    for (int b = 0; b < bins_; ++b) {
      const auto v = hn::Load(d, votes_ + b * kHogCells);
      squares = hn::Add(squares, hn::Mul(v, v));
    }
    HWY_ALIGN float cells[kHogCells];
    hn::Store(squares, d, cells);
    const float sum = 0x1p-23f + ((cells[0] + cells[1]) + (cells[2] + cells[3]));
    return hn::GetLane(hn::Div(hn::Set(d, 1.0f), hn::Sqrt(hn::Set(d, sum))));
  }

  int bins_;
  HWY_ALIGN float votes_[kMostBins * kHogCells];
};

// Sixteen bytes n times. Blocks are too short for the time that a call of memcpy takes.
inline void CopyVectors(const uint8_t* from, uint8_t* to, int n) {
  const hn::Full128<uint8_t> d;
  for (int i = 0; i < n; ++i) hn::StoreU(hn::LoadU(d, from + i * kBlockBytes), d, to + i * kBlockBytes);
}

// Where blocks that were written already lie, by the place of their first pixel: windows overlap, and a block that is
// copied has the bits of one that is computed. A hash table in what the work buffer has left; a block that finds kWays
// others where it belongs takes the entry of one.
class FinishedBlocks {
 public:
  explicit FinishedBlocks(const Planes& planes) : table_(planes.Rest()) {
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

// ---- Windows.

class Windows {
 public:
  Windows(const HogRecord& record, const uint8_t* weights, const Planes& planes, uint8_t* dst)
      : record_(record), weights_(weights), planes_(planes), dst_(dst), block_(record.config.nbins) {}

  // The blocks of the window at a pixel. `finished` may be null.
  void Write(ptrdiff_t x, ptrdiff_t y, FinishedBlocks* finished) {
    const bool byColumns = record_.config.cvCompatible != 0;
    const int outer = byColumns ? record_.blocksAcross : record_.blocksDown;
    const int inner = byColumns ? record_.blocksDown : record_.blocksAcross;
    for (int o = 0; o < outer; ++o) {
      for (int i = 0; i < inner; ++i) {
        const int across = byColumns ? o : i, down = byColumns ? i : o;
        WriteBlock((y + ptrdiff_t{down} * record_.config.blockStride) * planes_.width() + x +
                       ptrdiff_t{across} * record_.config.blockStride,
                   finished);
      }
    }
  }

 private:
  void WriteBlock(ptrdiff_t first, FinishedBlocks* finished) {
    const int bytes = kHogCells * record_.config.nbins * static_cast<int>(sizeof(float));
    uint8_t* const entry = finished ? finished->Entry(first) : nullptr;
    const int64_t found = entry ? FinishedBlocks::Find(entry, first) : -1;
    if (found >= 0) {
      CopyVectors(dst_ + found, dst_ + offset_, record_.config.nbins);
    } else {
      block_.Gather(planes_, first, weights_, record_.config.blockSize);
      block_.Normalise(record_.config.l2thresh);
      block_.Write(record_.config.cvCompatible != 0, dst_ + offset_);
    }
    if (entry) FinishedBlocks::Put(entry, first, offset_);
    offset_ += bytes;
  }

  const HogRecord& record_;
  const uint8_t* weights_;
  const Planes& planes_;
  uint8_t* dst_;
  int64_t offset_ = 0;
  Block block_;
};

// As many whole blocks as fit.
Size Trimmed(Size roi, const QvpiHOGConfig& c) {
  const auto trim = [&](ptrdiff_t n) { return (n - c.blockSize) / c.blockStride * c.blockStride + c.blockSize; };
  return Size(trim(roi.width), trim(roi.height));
}

QvpiPoint LocationAt(const QvpiPoint* locations, int i) {
  QvpiPoint location;
  std::memcpy(&location, locations + i, sizeof(location));
  return location;
}

void Describe(const HogRecord& record, const uint8_t* weights, const Planes& planes, Size trimmed,
              const QvpiPoint* locations, int count, uint8_t* dst) {
  Windows windows(record, weights, planes, dst);
  if (locations == nullptr) return windows.Write(0, 0, nullptr);
  const QvpiSize size = record.config.winSize;
  const auto isInside = [&](QvpiPoint p) {
    return p.x >= 0 && p.y >= 0 && p.x <= trimmed.width - size.width && p.y <= trimmed.height - size.height;
  };
  if (count == 1) {
    const QvpiPoint only = LocationAt(locations, 0);
    return isInside(only) ? windows.Write(only.x, only.y, nullptr) : void();
  }
  FinishedBlocks finished(planes);
  for (int i = 0; i < count; ++i) {
    const QvpiPoint location = LocationAt(locations, i);
    if (isInside(location)) windows.Write(location.x, location.y, &finished);
  }
}

struct Call {
  const QvpiPoint* locations;
  int count;
  Qvp32f* dst;
  const QvpiHOGSpec* spec;
  QvpiBorderType border;
  uint8_t* buffer;
};

template <class T>
QvpStatus Validate(const Image<const T>& src, Size roi, const T* outside, const Call& call, HogRecord& record) {
  if (const QvpStatus failed = qvp::Validate<kPointers>(roi, {src}, {call.spec, call.dst, call.buffer, outside}))
    return failed;
  if (const QvpStatus failed = OpenHogRecord(call.spec, record)) return failed;
  if (src.step < 1) return qvpStatusStep;
  if (roi.width < record.config.winSize.width || roi.height < record.config.winSize.height) return qvpStatusSize;
  if (call.count < 1) return qvpStatusBadArgument;
  if (call.locations == nullptr && call.count >= 2) return qvpStatusNullPointer;
  const bool isKnown = IsBorderOf({BorderKind::kReplicate, BorderKind::kMirror, BorderKind::kConst}, call.border);
  return isKnown ? qvpStatusNoError : qvpStatusBorder;
}

template <class T>
QvpStatus Hog(const Image<const T>& src, Size roi, const T* outside, const Call& call) {
  HogRecord record;
  if (const QvpStatus failed = Validate(src, roi, outside, call, record)) return failed;
  const Size trimmed = Trimmed(roi, record.config);
  const Planes planes(call.buffer, trimmed);
  const BorderedImage<T> image{src, roi, call.border, outside};
  (Channels(src.layout) == 1 ? VoteRegion<1, T> : VoteRegion<3, T>)(image, trimmed, record.config.nbins, planes);
  const uint8_t* const weights = reinterpret_cast<const uint8_t*>(call.spec) + kHogTableOffset;
  Describe(record, weights, planes, trimmed, call.locations, call.count, reinterpret_cast<uint8_t*>(call.dst));
  return qvpStatusNoError;
}

}  // namespace

#define HOG(type, name, layout)                                                                                       \
  QvpStatus qvpiHOG_##name##_##layout##R(                                                                             \
      const Qvp##type* pSrc, int srcStep, QvpiSize roiSize, const QvpiPoint* pLocation, int nLocations, Qvp32f* pDst, \
      const QvpiHOGSpec* pHOGSpec, QvpiBorderType borderID, const Qvp##type* borderValue, Qvp8u* pBuffer) {           \
    return Hog(Image<const Qvp##type>{pSrc, srcStep, Layout::k##layout}, roiSize, borderValue,                        \
               Call{pLocation, nLocations, pDst, pHOGSpec, borderID, pBuffer});                                       \
  }

HOG(8u, 8u32f, C1)
HOG(8u, 8u32f, C3)
HOG(16u, 16u32f, C1)
HOG(16u, 16u32f, C3)
HOG(16s, 16s32f, C1)
HOG(16s, 16s32f, C3)
HOG(32f, 32f, C1)
HOG(32f, 32f, C3)
