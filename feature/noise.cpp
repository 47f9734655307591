// Noise: each pixel with a random number of its place.
#include <cmath>

#include "base/check.h"
#include "base/export.h"
#include "base/map.h"
#include "feature/noise_numbers.h"
#include "feature/noise_record.h"
#include "qvpi.h"

namespace {
using namespace qvp;
using noise::FloatTag;
using noise::IntTag;
using noise::Kind;
using noise::NumberRow;
using noise::Record;

// Samples whose numbers are kept at a time: whole pixels of any layout, and whole blocks of words.
constexpr ptrdiff_t kChunk = 1536;
static_assert(kChunk % 12 == 0);
// Before them up to three words of their first block, and behind them the rest of what is written at once.
using NumberBuffer = float[kChunk + (3 + noise::kRoom) * 4];

// ---- What becomes of n samples and their numbers.
template <class T>
using RowFunction = void (*)(const Record& record, const T* from, const float* numbers, ptrdiff_t n, T* to);

template <bool kKeepAlpha, class T>
void AddScaled(const Record& record, const T* from, const float* numbers, ptrdiff_t n, T* to) {
  const FloatTag d;
  const auto offset = hn::Set(d, record.offset), scale = hn::Set(d, record.scale);
  const auto add = [=](auto v, auto number) HWY_ATTR { return hn::Add(v, hn::Add(offset, hn::Mul(scale, number))); };
  MapRow<kKeepAlpha>(d, to, n, add, from, numbers);
}

template <bool kKeepAlpha, class T>
void AddSpeckle(const Record& record, const T* from, const float* numbers, ptrdiff_t n, T* to) {
  const FloatTag d;
  const auto scale = hn::Set(d, record.scale);
  const auto add = [=](auto v, auto number) HWY_ATTR { return hn::Add(v, hn::Mul(v, hn::Mul(scale, number))); };
  MapRow<kKeepAlpha>(d, to, n, add, from, numbers);
}

template <bool kKeepAlpha, class T>
void AddShot(const Record& record, const T* from, const float* numbers, ptrdiff_t n, T* to) {
  const FloatTag d;
  const auto gain = hn::Set(d, record.offset), variance = hn::Set(d, record.scale);
  const auto add = [=](auto v, auto number) HWY_ATTR {
    const auto light = MaxOrSecond(v, hn::Zero(d));
    return hn::Add(v, hn::Mul(hn::Sqrt(hn::Add(hn::Mul(gain, light), variance)), number));
  };
  MapRow<kKeepAlpha>(d, to, n, add, from, numbers);
}

// Lanes that hold every value of T, for which it is only moved.
template <class T>
using MovedTag = std::conditional_t<std::is_integral_v<T>, IntTag, FloatTag>;

// A number as an element of T: rounded, saturated.
template <class T>
auto Level(double value) {
  const MovedTag<T> d;
  const hn::CappedTag<double, 1> one;
  return hn::Set(d, static_cast<hn::TFromD<MovedTag<T>>>(hn::GetLane(Narrow<T>(one, hn::Set(one, value)))));
}

template <bool kKeepAlpha, class T>
void PutSaltPepper(const Record& record, const T* from, const float* numbers, ptrdiff_t n, T* to) {
  const MovedTag<T> d;
  const IntTag ints;
  const auto ordered = [&](uint32_t word) { return hn::Set(ints, static_cast<int32_t>(word ^ 0x80000000)); };
  const auto hit = ordered(record.hit), top = ordered(record.top);
  const auto pepper = Level<T>(record.pepper), salt = Level<T>(record.salt);
  const auto put = [=](auto v, auto number) HWY_ATTR {
    const auto word = hn::BitCast(ints, number);
    const auto isHit = hn::RebindMask(d, hn::Lt(word, hit)), isSalt = hn::RebindMask(d, hn::Lt(word, top));
    return hn::IfThenElse(isHit, hn::IfThenElse(isSalt, salt, pepper), v);
  };
  MapRow<kKeepAlpha>(d, to, n, put, from, reinterpret_cast<const hn::TFromD<decltype(d)>*>(numbers));
}

template <bool kKeepAlpha, class T>
RowFunction<T> RowFor(Kind kind) {
  switch (kind) {
    case Kind::kSpeckle: return AddSpeckle<kKeepAlpha, T>;
    case Kind::kShot: return AddShot<kKeepAlpha, T>;
    case Kind::kSaltPepper: return PutSaltPepper<kKeepAlpha, T>;
    default: return AddScaled<kKeepAlpha, T>;
  }
}

// ---- The numbers that a kind takes.
using NumberFunction = void (*)(const NumberRow& row, uint32_t block, ptrdiff_t n, float* to);

NumberFunction NumbersFor(Kind kind, int channels) {
  if (kind == Kind::kUniform) return noise::FillNumbers<noise::Uniform>;
  if (kind != Kind::kSaltPepper) return noise::FillNormal;
  using noise::Ordered;
  return channels == 1   ? noise::FillNumbers<Ordered>
         : channels == 3 ? noise::FillNumbers<Ordered, 3>
                         : noise::FillNumbers<Ordered, 4>;
}

template <class T>
void AddNoise(const Image<const T>& src, const Image<T>& dst, Size roi, QvpiPoint offset, uint32_t frame,
              const Record& record) {
  const int channels = Channels(dst.layout), copies = record.kind == Kind::kSaltPepper ? channels : 1;
  const auto fill = NumbersFor(record.kind, channels);
  const auto apply = KeepsAlpha(dst.layout) ? RowFor<true, T>(record.kind) : RowFor<false, T>(record.kind);
  const ptrdiff_t most = kChunk / channels;
  const noise::Philox philox(record.seed, record.stream, frame);
  HWY_ALIGN NumberBuffer numbers;
  for (ptrdiff_t y = 0; y < roi.height; ++y) {
    const NumberRow row{philox, static_cast<uint32_t>(offset.y + y)};
    for (ptrdiff_t x = 0; x < roi.width; x += most) {
      const ptrdiff_t n = std::min(most, roi.width - x) * channels;
      const int64_t first = (int64_t{offset.x} + x) * (channels / copies);
      const auto before = static_cast<ptrdiff_t>(first % 4);
      fill(row, static_cast<uint32_t>(first / 4), before + n / copies, numbers);
      apply(record, src.Row(y) + x * channels, numbers + before * copies, n, dst.Row(y) + x * channels);
    }
  }
}

bool IsWithin(QvpiPoint offset, Size roi) {
  return offset.x >= 0 && offset.y >= 0 && roi.width <= INT32_MAX - offset.x && roi.height <= INT32_MAX - offset.y;
}

template <class T>
QvpStatus Noise(const Image<const T>& src, const Image<T>& dst, Size roi, QvpiPoint offset, uint32_t frame,
                const QvpiNoiseSpec* spec) {
  if (const QvpStatus failed = Validate<kPointers, kSize, kSteps>(roi, {src, dst}, {spec})) return failed;
  if (!IsWithin(offset, roi)) return qvpStatusOutOfRange;
  const Record& record = *RecordIn<Record>(spec);
  if (record.identification != Record::kIdentification) return qvpStatusContextMatch;
  AddNoise(src, dst, roi, offset, frame, record);
  return qvpStatusNoError;
}

}  // namespace

#define NOISE(type, layout)                                                                                          \
  QVP_BOTH_PLACES(qvpiNoise, , type, layout, Noise, (QvpiPoint dstOffset, Qvp32u frame, const QvpiNoiseSpec* pSpec), \
                  (dstOffset, frame, pSpec))
QVP_EACH_LAYOUT(NOISE, 8u)
QVP_EACH_LAYOUT(NOISE, 16u)
QVP_EACH_LAYOUT(NOISE, 16s)
QVP_EACH_LAYOUT(NOISE, 32f)
