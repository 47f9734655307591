// The Jaehne pattern: a wave whose frequency grows with the distance from the middle of the image.
#include <algorithm>

#include "base/channels.h"
#include "base/check.h"
#include "base/export.h"
#include "base/map.h"
#include "qvpi.h"
#include "signal/sin_cos.h"

namespace {
using namespace qvp;

using Doubles = hn::ScalableTag<double>;
using DoubleVector = hn::Vec<Doubles>;

constexpr int kLongestSide = 1 << 24, kLeastPeriod = 2, kLongestPeriod = 65536;

// Columns whose waves are kept at a time, and rows; behind them there is room for as many as make a vector of bytes.
constexpr ptrdiff_t kColumns = 1024, kRows = 64, kRoom = HWY_MAX_BYTES;

struct Pattern {
  QvpiSize size;
  int minPeriod;
  QvpiPoint offset;  // of the region

  bool HasSides() const {
    return std::min(size.width, size.height) >= 1 && std::max(size.width, size.height) <= kLongestSide;
  }
  bool Contains(Size roi) const {
    return offset.x >= 0 && offset.y >= 0 && roi.width <= size.width - offset.x && roi.height <= size.height - offset.y;
  }
  // D of the formula, at most 2^42.
  double Divisor() const { return 4.0 * minPeriod * std::min(size.width, size.height); }
};

// Sine and cosine of 2 pi (Z^2 mod D) / D for places of one side, Z = 2 place - (length - 1).
template <ptrdiff_t kCount>
struct Waves {
  HWY_ALIGN double sin[kCount + kRoom], cos[kCount + kRoom];

  // The quotient may be rounded up to the next whole number; all others are exact, below 2^50.
  void Fill(ptrdiff_t first, ptrdiff_t count, int length, double divisor) {
    const Doubles d;
    constexpr ptrdiff_t kLanes = hn::MaxLanes(d);
    const DoubleVector n = hn::Set(d, divisor), middle = hn::Set(d, length - 1.0);
    for (ptrdiff_t i = 0; i < count; i += kLanes) {
      const DoubleVector place = hn::Iota(d, static_cast<double>(first + i)),
                         z = hn::Sub(hn::Add(place, place), middle);
      const DoubleVector square = hn::Mul(z, z), whole = hn::Floor(hn::Div(square, n));
      const DoubleVector rest = hn::Sub(square, hn::Mul(whole, n));
      const DoubleVector k = hn::Add(rest, hn::IfThenElseZero(hn::Lt(rest, hn::Zero(d)), n));
      const SinCosLanes<DoubleVector> wave = SinCosOfTurns(k, n);
      hn::StoreU(wave.sin, d, sin + i);
      hn::StoreU(wave.cos, d, cos + i);
    }
    std::fill_n(sin + count, kRoom, 0.0);
    std::fill_n(cos + count, kRoom, 0.0);
  }
};
using Columns = Waves<kColumns>;

// scale * c + offset is what an element of T holds.
template <class T>
struct Levels {
  static constexpr double kScale = std::is_integral_v<T> ? (sizeof(T) == 1 ? 127.5 : 32767.5) : 0.5;
  static constexpr double kOffset = std::is_signed_v<T> && std::is_integral_v<T> ? -0.5 : kScale;
};

// As many pixels as a vector holds. Their whole numbers are within the type, so that nothing is to be bounded.
template <class T>
HWY_INLINE auto Levelled(const double* sinX, const double* cosX, DoubleVector sinY, DoubleVector cosY) {
  using Lane = std::conditional_t<std::is_integral_v<T>, int32_t, float>;
  const Doubles d;
  constexpr ptrdiff_t kDoubles = hn::MaxLanes(d);
  const auto level = [&](ptrdiff_t i) QVP_INLINED {
    const DoubleVector c = hn::Sub(hn::Mul(hn::LoadU(d, cosX + i), cosY), hn::Mul(hn::LoadU(d, sinX + i), sinY));
    return hn::Add(hn::Mul(c, hn::Set(d, Levels<T>::kScale)), hn::Set(d, Levels<T>::kOffset));
  };
  return NarrowParts<T>(hn::ScalableTag<Lane>(), [&](ptrdiff_t k) QVP_INLINED {
    const DoubleVector lower = level(2 * k * kDoubles), upper = level((2 * k + 1) * kDoubles);
    if constexpr (std::is_integral_v<T>) return RoundedPair(lower, upper);
    if constexpr (!std::is_integral_v<T>) return FloatPair(lower, upper);
  });
}

template <int kChannels, class T>
void WriteRow(const Columns& columns, double sin, double cos, ptrdiff_t n, T* to) {
  const hn::ScalableTag<T> d;
  constexpr ptrdiff_t kLanes = hn::MaxLanes(d);
  const DoubleVector sinY = hn::Set(Doubles(), sin), cosY = hn::Set(Doubles(), cos);
  const auto write = [&](ptrdiff_t i, T* at) QVP_INLINED {
    const auto v = Levelled<T>(columns.sin + i, columns.cos + i, sinY, cosY);
    Pixels<kChannels, hn::Vec<decltype(d)>> pixels;
    for (auto& channel : pixels.v) channel = v;
    StoreChannels<kChannels>(pixels, d, at);
  };
  if (n < kLanes) {
    T staged[kChannels * kLanes];
    write(0, staged);
    std::memcpy(to, staged, kChannels * n * sizeof(T));
  } else {
    ForEachVector<kLanes>(n, [&](ptrdiff_t i) QVP_INLINED { write(i, to + kChannels * i); });
  }
}

template <class T>
void Draw(const Pattern& pattern, const Image<T>& dst, Size roi) {
  const int channels = Channels(dst.layout);
  const auto writeRow = channels == 1 ? WriteRow<1, T> : WriteRow<3, T>;
  const double divisor = pattern.Divisor();
  Columns columns;
  Waves<kRows> rows;
  for (ptrdiff_t x = 0; x < roi.width; x += kColumns) {
    const ptrdiff_t n = std::min(kColumns, roi.width - x);
    columns.Fill(pattern.offset.x + x, n, pattern.size.width, divisor);
    for (ptrdiff_t y = 0; y < roi.height; ++y) {
      const ptrdiff_t at = y % kRows;
      if (at == 0) rows.Fill(pattern.offset.y + y, std::min(kRows, roi.height - y), pattern.size.height, divisor);
      writeRow(columns, rows.sin[at], rows.cos[at], n, dst.Row(y) + x * channels);
    }
  }
}

template <class T>
QvpStatus Jaehne(const Pattern& pattern, const Image<T>& dst, Size roi) {
  if (const QvpStatus failed = Validate<kPointers, kSize>(roi, {dst})) return failed;
  if (!pattern.HasSides()) return qvpStatusSize;
  if (const QvpStatus failed = Validate<kSteps>(roi, {dst})) return failed;
  if (pattern.minPeriod < kLeastPeriod || pattern.minPeriod > kLongestPeriod) return qvpStatusBadArgument;
  if (!pattern.Contains(roi)) return qvpStatusOutOfRange;
  Draw(pattern, dst, roi);
  return qvpStatusNoError;
}

}  // namespace

#define JAEHNE(type, layout)                                                                                 \
  QvpStatus qvpiJaehne_##type##_##layout##R(QvpiSize imageSize, int minPeriod, Qvp##type* pDst, int dstStep, \
                                            QvpiSize roiSize, QvpiPoint dstOffset) {                         \
    return Jaehne({imageSize, minPeriod, dstOffset}, View(pDst, dstStep, Layout::k##layout), roiSize);       \
  }
#define JAEHNE_LAYOUTS(type) JAEHNE(type, C1) JAEHNE(type, C3)
JAEHNE_LAYOUTS(8u)
JAEHNE_LAYOUTS(16u)
JAEHNE_LAYOUTS(16s)
JAEHNE_LAYOUTS(32f)
