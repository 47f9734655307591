// Shifts of the bits of each element, by one count for all channels or by one for each.
#include "base/check.h"
#include "base/export.h"
#include "base/pixelwise.h"
#include "base/scalar.h"

namespace {
using namespace qvp;

template <class T>
constexpr uint32_t kBitsOf = 8 * sizeof(T);

template <class T>
using Vector = hn::Vec<hn::ScalableTag<T>>;

// One count for all channels. Lanes of 16 bits and more are shifted, by less than their width, as CPUs have no other
// shifts in common. What the byte beside has put into a byte is masked off, and everything where no bit is to stay.
template <class T>
struct Uniform {
  using Lane = std::conditional_t<sizeof(T) == 1, uint16_t, T>;
  static constexpr T kAll = static_cast<T>(~T{0});
  int bits;
  T mask;

  Uniform(uint32_t count, T stays) : bits(static_cast<int>(std::min(count, kBitsOf<T> - 1))), mask(stays) {}

  static HWY_INLINE Vector<Lane> AsLanes(Vector<T> v) { return hn::BitCast(hn::ScalableTag<Lane>(), v); }
  HWY_INLINE Vector<T> Masked(Vector<Lane> v) const {
    const hn::ScalableTag<T> d;
    return hn::And(hn::BitCast(d, v), hn::Set(d, mask));
  }
};

// A count for each channel, as the factor of a product: the CPUs that shift each 16-bit lane by a count of its own are
// few. Bytes go two to a lane.
struct PairOfBytes {
  Vector<uint16_t> lower, upper;

  explicit HWY_INLINE PairOfBytes(Vector<uint8_t> v) {
    const hn::ScalableTag<uint16_t> d;
    lower = hn::And(hn::BitCast(d, v), hn::Set(d, 0x00FF));
    upper = hn::ShiftRight<8>(hn::BitCast(d, v));
  }
};

struct Left {
  template <class T>
  struct ByOne : Uniform<T> {
    explicit ByOne(uint32_t count)
        : Uniform<T>(count, count < kBitsOf<T> ? static_cast<T>(std::make_unsigned_t<T>(~T{0}) << count) : T{0}) {}
    HWY_INLINE Vector<T> operator()(Vector<T> v) const {
      return this->Masked(hn::ShiftLeftSame(this->AsLanes(v), this->bits));
    }
  };

  // 2^count, or 0 where no bit stays
  template <class T>
  static T Factor(uint32_t count) {
    return static_cast<T>(count < kBitsOf<T> ? 1u << count : 0u);
  }
  static HWY_INLINE Vector<uint16_t> ByEach(Vector<uint16_t> v, Vector<uint16_t> factor) { return hn::Mul(v, factor); }
  static HWY_INLINE Vector<uint8_t> ByEach(Vector<uint8_t> v, Vector<uint8_t> factor) {
    const PairOfBytes bytes(v), factors(factor);
    const auto low = hn::Set(hn::ScalableTag<uint16_t>(), 0x00FF);
    const auto lower = hn::And(hn::Mul(bytes.lower, factors.lower), low);
    const auto upper = hn::ShiftLeft<8>(hn::Mul(bytes.upper, factors.upper));
    return hn::BitCast(hn::ScalableTag<uint8_t>(), hn::Or(lower, upper));
  }
};

struct Right {
  // Signed elements keep their sign, also where all other bits have left.
  template <class T>
  struct ByOne : Uniform<T> {
    static constexpr T kAll = Uniform<T>::kAll;
    explicit ByOne(uint32_t count)
        : Uniform<T>(count, std::is_signed_v<T>  ? kAll
                            : count < kBitsOf<T> ? static_cast<T>(kAll >> count)
                                                 : T{0}) {}
    HWY_INLINE Vector<T> operator()(Vector<T> v) const {
      return this->Masked(hn::ShiftRightSame(this->AsLanes(v), this->bits));
    }
  };

  // 2^(bits - 1 - count), or 0 where no bit stays: v >> count is v times the factor, >> (bits - 1)
  template <class T>
  static T Factor(uint32_t count) {
    if (std::is_signed_v<T>) count = std::min(count, kBitsOf<T> - 1);
    return static_cast<T>(count < kBitsOf<T> ? 1u << (kBitsOf<T> - 1 - count) : 0u);
  }
  // The upper half of the product by twice the factor, which is 2^16 for the count 0: then v stays.
  static HWY_INLINE Vector<uint16_t> ByEach(Vector<uint16_t> v, Vector<uint16_t> factor) {
    const hn::ScalableTag<uint16_t> d;
    const auto isCount0 = hn::BroadcastSignBit(hn::BitCast(hn::ScalableTag<int16_t>(), factor));
    return hn::IfVecThenElse(hn::BitCast(d, isCount0), v, hn::MulHigh(v, hn::Add(factor, factor)));
  }
  // floor(v / 2^count) = floor((v + 2^15) / 2^count) - 2^(15 - count), of which the last term is the factor
  static HWY_INLINE Vector<int16_t> ByEach(Vector<int16_t> v, Vector<int16_t> factor) {
    const hn::ScalableTag<uint16_t> d;
    const auto moved = hn::Xor(hn::BitCast(d, v), hn::Set(d, 0x8000)), factors = hn::BitCast(d, factor);
    return hn::BitCast(hn::ScalableTag<int16_t>(), hn::Sub(ByEach(moved, factors), factors));
  }
  static HWY_INLINE Vector<uint8_t> ByEach(Vector<uint8_t> v, Vector<uint8_t> factor) {
    const PairOfBytes bytes(v), factors(factor);
    const auto high = hn::Set(hn::ScalableTag<uint16_t>(), 0xFF00);
    const auto lower = hn::ShiftRight<7>(hn::Mul(bytes.lower, factors.lower));
    const auto upper = hn::And(hn::ShiftLeft<1>(hn::Mul(bytes.upper, factors.upper)), high);
    return hn::BitCast(hn::ScalableTag<uint8_t>(), hn::Or(lower, upper));
  }
};

// Whether the processed channels have the same count.
bool AreEqual(const uint32_t* counts, Layout layout) {
  for (int c = 1; c < ProcessedChannels(layout); ++c) {
    if (LoadScalar(counts + c) != LoadScalar(counts)) return false;
  }
  return true;
}

template <class Direction, class T>
void ShiftByEach(const uint32_t* counts, const Image<const T>& src, const Image<T>& dst, Size roi) {
  T factors[4] = {};
  for (int c = 0; c < ProcessedChannels(dst.layout); ++c) {
    factors[c] = Direction::template Factor<T>(LoadScalar(counts + c));
  }
  const auto op = [](auto factor, auto v) HWY_ATTR { return Direction::ByEach(v, factor); };
  MapImagesWith(hn::ScalableTag<T>(), op, roi, factors, dst, src);
}

template <class Direction, class T>
QvpStatus Shift(const uint32_t* counts, const Image<const T>& src, const Image<T>& dst, Size roi) {
  if (const QvpStatus failed = Validate<kPointers, kSize, kSteps>(roi, {src, dst}, {counts})) return failed;
  if constexpr (sizeof(T) < sizeof(int32_t)) {  // 32-bit images have one channel
    if (!AreEqual(counts, dst.layout)) {
      ShiftByEach<Direction>(counts, src, dst, roi);
      return qvpStatusNoError;
    }
  }
  MapImages(hn::ScalableTag<T>(), typename Direction::template ByOne<T>(LoadScalar(counts)), roi, dst, src);
  return qvpStatusNoError;
}

}  // namespace

QVP_C1_C3_C4_AC4(QVP_COUNT, qvpiShiftLeftC, 8u, Shift<Left>)
QVP_C1_C3_C4_AC4(QVP_COUNT, qvpiShiftLeftC, 16u, Shift<Left>)
QVP_COUNT(qvpiShiftLeftC, 32s, C1, Shift<Left>)

QVP_C1_C3_C4_AC4(QVP_COUNT, qvpiShiftRightC, 8u, Shift<Right>)
QVP_C1_C3_C4_AC4(QVP_COUNT, qvpiShiftRightC, 16u, Shift<Right>)
QVP_C1_C3_C4_AC4(QVP_COUNT, qvpiShiftRightC, 16s, Shift<Right>)
QVP_COUNT(qvpiShiftRightC, 32s, C1, Shift<Right>)
