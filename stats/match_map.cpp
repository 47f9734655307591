// Tiles of results: sums of products by the one method or the other, sums over windows, scores.
#include "stats/match_map.h"

#include "stats/match_direct.h"
#include "stats/match_fourier.h"
#include "stats/match_scores.h"
#include "stats/match_windows.h"

namespace qvp::matching {
namespace {

// What is kept for sums down columns; where templates are so high that this is few columns, there are fewer at a time.
constexpr int64_t kRingBytes = int64_t{1} << 25, kFewestColumns = 4;

int64_t RoundedUp(int64_t n, int64_t unit) { return (n + unit - 1) / unit * unit; }

// How results are cut, and what of the work buffer is for what.
template <class T>
struct Plan {
  bool isByFourier;
  SpectralPlan spectral;  // looked at by Fourier only
  Size tile;
  int64_t columns;  // of sums over windows at a time

  Plan(Size roi, Size tpl, int channels, bool isFourier)
      : isByFourier(isFourier),
        spectral(isFourier ? SpectralPlan::For<T>(roi, tpl) : SpectralPlan{{1, 1}, {}, {}}),
        tile(std::min(roi.width, isFourier ? spectral.MostResults().width : kDirectColumns),
             std::min(roi.height, isFourier ? spectral.MostResults().height : kDirectRows)) {
    const int64_t perColumn = int64_t{tpl.height} * sizeof(double) * (1 + channels);
    columns =
        std::clamp<int64_t>(kRingBytes / perColumn, kFewestColumns, std::max<int64_t>(tile.width, kFewestColumns));
  }

  int64_t Step() const { return RoundedUp(tile.width, kTileUnit); }
  int64_t TileBytes() const { return RoundedUp(tile.height, 2) * Step() * int64_t{sizeof(double)}; }
  int64_t ScoreBytes() const { return RoundedUp(Step() * int64_t{sizeof(float)}, kRecordBoundary); }
  ByteCount WindowBytes(Size tpl, int channels) const { return WindowSums<T, Sum<T>>::Bytes(tpl, columns, channels); }
  ByteCount Bytes(Size tpl, int channels) const {
    ByteCount bytes = WindowBytes(tpl, channels).RoundedTo(kRecordBoundary) + TileBytes() + ScoreBytes();
    if (isByFourier) bytes = bytes + spectral.Bytes(tpl, channels, sizeof(T)).RoundedTo(kRecordBoundary);
    return bytes + (isByFourier && !kIsFloat<T> ? 0 : DirectBytes(tpl, tile.width, channels));
  }
};

// One result of each pixel: of one channel, or of several. Sums over windows are of N.
template <class T, class N>
class ScoreMap {
 public:
  ScoreMap(const Match<T>& call, const Plan<T>& plan, int channels, uint8_t* buffer)
      : call_(call), plan_(plan), channels_(channels) {
    const auto take = [&](ByteCount bytes) {
      uint8_t* const memory = buffer;
      buffer += bytes.RoundedTo(kRecordBoundary).value();
      return memory;
    };
    sums_ = reinterpret_cast<Sum<T>*>(take(plan.TileBytes()));
    staged_ = reinterpret_cast<float*>(take(plan.ScoreBytes()));
    windowMemory_ = take(plan.WindowBytes(call.tplSize, channels));
    productMemory_ = buffer;
  }

  void Run(int first, int count, int dstChannel) {
    SetChannels(first, count);
    const bool isByFourier = call_.isByFourier && IsFinite(set_.tpl, {0, 0}, call_.tplSize);
    isDifference_ = kIsFloat<T> && call_.norm.isDistance && !call_.norm.isCentred && !isByFourier;
    directMemory_ = productMemory_;
    if (!isByFourier) return RunTiles(nullptr, dstChannel);
    const SpectralSums<T> spectral(plan_.spectral, set_, channels_, productMemory_);
    directMemory_ += plan_.spectral.Bytes(call_.tplSize, channels_, sizeof(T)).RoundedTo(kRecordBoundary).value();
    RunTiles(&spectral, dstChannel);
  }

 private:
  Products products() const { return isDifference_ ? Products::kOfDifferences : Products::kOf; }

  // Sums over the template are those of its only window.
  TemplateSums<T> SumsOfTemplate() {
    ChannelSet<T> set = set_;
    for (int c = 0; c < set.count; ++c) set.image[c] = set.tpl[c];
    WindowSums<T, N> sums(set, call_.tplSize, true, true);
    sums.Start(windowMemory_, {0, 1}, 0);
    sums.Advance();
    TemplateSums<T> result{static_cast<Sum<T>>(*sums.Squares()), {}};
    for (int c = 0; c < set.count; ++c) result.samples[c] = static_cast<Sum<T>>(*sums.Samples(c));
    return result;
  }

  void SetChannels(int first, int count) {
    const double middle = call_.isByFourier ? kMiddleOfSpectra<T> : kMiddle<T>;
    set_.count = count;
    for (int c = 0; c < count; ++c) {
      set_.image[c] = {call_.src, call_.srcSize, first + c}, set_.tpl[c] = {call_.tpl, call_.tplSize, first + c};
      set_.less[c] = middle;
    }
    template_ = SumsOfTemplate();
    if (!kIsFloat<T> || !call_.norm.isCentred) return;
    const double pixels = static_cast<double>(int64_t{call_.tplSize.width} * call_.tplSize.height);
    for (int c = 0; c < count; ++c) {
      set_.less[c] = static_cast<float>(static_cast<double>(template_.samples[c]) / pixels);
    }
    template_ = SumsOfTemplate();
  }

  // Whether all samples of planes from a position on are numbers; of integers they are.
  struct Place {
    ptrdiff_t x, y;
  };
  bool IsFinite(const Plane<T> (&planes)[kMostJoint], Place at, Size size) const {
    if constexpr (kIsFloat<T>) {
      for (int c = 0; c < set_.count; ++c) {
        if (!IsPlaneFinite(planes[c], at, size)) return false;
      }
    }
    return true;
  }
  static bool IsPlaneFinite(const Plane<T>& plane, Place at, Size size) {
    const ptrdiff_t left = std::max<ptrdiff_t>(at.x, 0), right = std::min(at.x + size.width, plane.size.width);
    const ptrdiff_t top = std::max<ptrdiff_t>(at.y, 0), bottom = std::min(at.y + size.height, plane.size.height);
    constexpr uint32_t kExponent = 0x7F800000;
    uint32_t isOther = 0;
    for (ptrdiff_t y = top; y < bottom && isOther == 0; ++y) {
      const T* const row = left < right ? plane.At(left, y) : nullptr;
      for (ptrdiff_t i = 0; i < right - left; ++i) {
        uint32_t bits;
        std::memcpy(&bits, row + i * plane.channels(), sizeof(bits));
        isOther |= (bits & kExponent) == kExponent ? 1 : 0;
      }
    }
    return isOther == 0;
  }

  void RunTiles(const SpectralSums<T>* spectral, int dstChannel) {
    const Scores<T> scores(call_.norm, products(), set_, call_.tplSize, template_);
    WindowSums<T, N> windows(set_, call_.tplSize, Scores<T>::NeedsSquares(call_.norm, products()),
                             Scores<T>::NeedsSamples(call_.norm, set_.less[0]));
    const auto [width, height] = call_.roi;
    for (ptrdiff_t x = 0; x < width; x += plan_.tile.width) {
      for (ptrdiff_t y = 0; y < height; y += plan_.tile.height) {
        const Size size{std::min(plan_.tile.width, width - x), std::min(plan_.tile.height, height - y)};
        const Tile<T> tile{call_.x + x, call_.y + y, size, sums_, static_cast<ptrdiff_t>(plan_.Step())};
        SumProducts(spectral, tile);
        Finish(scores, windows, tile, x, y, dstChannel);
      }
    }
  }

  // Tiles of what is no number are done directly, which spoils only what it goes into.
  void SumProducts(const SpectralSums<T>* spectral, const Tile<T>& tile) const {
    const Size covered{tile.size.width + call_.tplSize.width - 1, tile.size.height + call_.tplSize.height - 1};
    if (spectral && IsFinite(set_.image, {tile.x, tile.y}, covered)) return spectral->Sum(tile);
    SumDirectly(set_, products(), tile, directMemory_);
  }

  void Finish(const Scores<T>& scores, WindowSums<T, N>& windows, const Tile<T>& tile, ptrdiff_t x, ptrdiff_t y,
              int dstChannel) const {
    const auto step = static_cast<ptrdiff_t>(plan_.columns);
    for (ptrdiff_t at = 0; at < tile.size.width; at += step) {
      const ptrdiff_t n = std::min(step, tile.size.width - at);
      const bool goesOn = y > 0 && n == tile.size.width;  // down from the tile above
      if (!goesOn) windows.Start(windowMemory_, {tile.x + at, tile.x + at + n}, tile.y);
      for (ptrdiff_t row = 0; row < tile.size.height; ++row) {
        windows.Advance();
        const WindowRow<T, N> sums{
            tile.Row(row) + at, windows.Squares(), {windows.Samples(0), windows.Samples(1), windows.Samples(2)}};
        PutRow(scores, sums, n, call_.dst.Row(y + row) + (x + at) * Channels(call_.dst.layout) + dstChannel);
      }
    }
  }

  void PutRow(const Scores<T>& scores, const WindowRow<T, N>& sums, ptrdiff_t n, float* to) const {
    const int channels = Channels(call_.dst.layout);
    if (channels == 1) return scores.Row(sums, n, to);
    scores.Row(sums, n, staged_);
    PutSamples(staged_, n, channels, to);
  }

  const Match<T>& call_;
  const Plan<T>& plan_;
  int channels_;
  ChannelSet<T> set_;
  TemplateSums<T> template_{};
  bool isDifference_ = false;
  Sum<T>* sums_;
  float* staged_;
  uint8_t *windowMemory_, *productMemory_, *directMemory_ = nullptr;
};

}  // namespace

template <class T>
ByteCount MapBytes(Size roi, Size tpl, int channels, bool isByFourier) {
  return Plan<T>(roi, tpl, std::min(channels, kMostJoint), isByFourier).Bytes(tpl, std::min(channels, kMostJoint));
}

template <class T, class N>
void MapScoresBy(const Match<T>& call, uint8_t* buffer) {
  const int channels = std::min(Channels(call.src.layout), kMostJoint), processed = ProcessedChannels(call.src.layout);
  const Plan<T> plan(call.roi, call.tplSize, channels, call.isByFourier);
  ScoreMap<T, N> map(call, plan, channels, buffer);
  if (Channels(call.dst.layout) == 1) return map.Run(0, processed, 0);
  for (int c = 0; c < processed; ++c) map.Run(c, 1, c);
}

template <class T>
void MapScores(const Match<T>& call, uint8_t* buffer) {
  if constexpr (sizeof(T) == 1) {
    // Sums of bytes and of their squares in 32 bits, which is enough for most templates.
    const int64_t samples = int64_t{call.tplSize.width} * call.tplSize.height * ProcessedChannels(call.src.layout);
    if (samples <= INT32_MAX / (255 * 255)) return MapScoresBy<T, int32_t>(call, buffer);
  }
  MapScoresBy<T, Sum<T>>(call, buffer);
}

#define QVP_INSTANTIATE(T)                               \
  template ByteCount MapBytes<T>(Size, Size, int, bool); \
  template void MapScores(const Match<T>&, uint8_t*);
QVP_INSTANTIATE(uint8_t)
QVP_INSTANTIATE(uint16_t)
QVP_INSTANTIATE(int16_t)
QVP_INSTANTIATE(float)

}  // namespace qvp::matching
