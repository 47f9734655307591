// Moments of an image up to order 3, and what is derived from them.
#include "base/check.h"
#include "base/export.h"
#include "base/map.h"
#include "qvpi.h"

namespace {
using namespace qvp;

// The record, at any address of the caller: it is read and written by copying. Moments begin at byte 16 on every ABI.
struct State {
  int32_t identification, hint, channels, unused;
  double moments[3][16];  // M(m, n) at m + 4 n

  static constexpr int kIdentification = 35;
  explicit State(const QvpiMomentState_64f* from) { std::memcpy(this, from, sizeof(*this)); }
};
static_assert(sizeof(State) == 400 && offsetof(State, moments) == 16);

// Sums of x^m v over a stretch of a row, for m = 0 to 3.
template <class V>
struct PowerSums {
  V s[4] = {};
};

// The same sums for columns counted from a place that is `by` further left.
template <class V>
PowerSums<V> Shifted(const PowerSums<V>& p, V by) {
  return {{p.s[0], p.s[1] + by * p.s[0], p.s[2] + by * (2 * p.s[1] + by * p.s[0]),
           p.s[3] + by * (3 * p.s[2] + by * (3 * p.s[1] + by * p.s[0]))}};
}

// Integers. A row is cut into groups of 64 columns, in which a column is u from -32 to 31, so that u^3 fits 16 bits.
// With values up to 255, products of pairs are added up over a group in 32-bit lanes:
//   t0 = sum v, t1 = sum u v, t2 = sum u^2 v, t3 = sum u^3 v
// With k for the number of the group, counted from the last one, running sums give what the groups' places weigh:
//   sum t, sum k t, sum C(k, 2) t, sum C(k, 3) t
// For 32 groups the largest lane stays below 2^31, even with vectors of four lanes: 4177920 t2 times C(32, 2) = 496.
constexpr int kGroup = 64;
constexpr ptrdiff_t kIntegerStretch = 32 * kGroup;

struct GroupPowers {
  HWY_ALIGN int16_t u[3][kGroup];
};
constexpr GroupPowers kPowers = [] {
  GroupPowers powers{};
  for (int i = 0; i < kGroup; ++i) {
    const int u = i - kGroup / 2;
    powers.u[0][i] = static_cast<int16_t>(u);
    powers.u[1][i] = static_cast<int16_t>(u * u);
    powers.u[2][i] = static_cast<int16_t>(u * u * u);
  }
  return powers;
}();

class GroupSums {
 public:
  using D = hn::ScalableTag<int16_t>;
  using Sums = hn::ScalableTag<int32_t>;
  using V = hn::Vec<Sums>;

  // `groups` groups; at(place) gives the vector of values of 0 to 255 at a place of the stretch.
  template <class At>
  PowerSums<int64_t> Of(ptrdiff_t groups, const At& at) {
    V a0 = hn::Zero(Sums()), a1 = a0, a2 = a0, a3 = a0, b0 = a0, b1 = a0, b2 = a0, c0 = a0, c1 = a0, d0 = a0;
    for (ptrdiff_t g = 0; g < groups; ++g) {
      V t0 = hn::Zero(Sums()), t1 = t0, t2 = t0, t3 = t0;
      for (int i = 0; i < kGroup; i += kLanes) {
        const auto v = at(g * kGroup + i);
        t0 = MultiplyAdd(v, hn::Set(D(), int16_t{1}), t0);
        t1 = MultiplyAdd(v, hn::Load(D(), kPowers.u[0] + i), t1);
        t2 = MultiplyAdd(v, hn::Load(D(), kPowers.u[1] + i), t2);
        t3 = MultiplyAdd(v, hn::Load(D(), kPowers.u[2] + i), t3);
      }
      a3 = hn::Add(a3, a2), a2 = hn::Add(a2, a1), a1 = hn::Add(a1, a0), a0 = hn::Add(a0, t0);
      b2 = hn::Add(b2, b1), b1 = hn::Add(b1, b0), b0 = hn::Add(b0, t1);
      c1 = hn::Add(c1, c0), c0 = hn::Add(c0, t2);
      d0 = hn::Add(d0, t3);
    }
    if (groups == 1) return Shifted<int64_t>({{Sum(a0), Sum(b0), Sum(c0), Sum(d0)}}, kGroup / 2);
    // Powers of k from its binomials: k^2 = 2 C(k, 2) + k, k^3 = 6 C(k, 3) + 6 C(k, 2) + k.
    const int64_t k0 = Sum(a0), k1 = Sum(a1), k2 = 2 * Sum(a2) + k1, k3 = 6 * (Sum(a3) + Sum(a2)) + k1;
    const int64_t u0 = Sum(b0), u1 = Sum(b1), u2 = 2 * Sum(b2) + u1, w0 = Sum(c0), w1 = Sum(c1);
    // A column is u - 64 k from the middle of the last group.
    constexpr int64_t kW = kGroup;
    const PowerSums<int64_t> fromLast{{k0, u0 - kW * k1, w0 - 2 * kW * u1 + kW * kW * k2,
                                       Sum(d0) - 3 * kW * w1 + 3 * kW * kW * u2 - kW * kW * kW * k3}};
    return Shifted<int64_t>(fromLast, (groups - 1) * kGroup + kGroup / 2);
  }

  static constexpr int kLanes = static_cast<int>(hn::MaxLanes(D()));

 private:
  static HWY_INLINE V MultiplyAdd(hn::Vec<D> v, hn::Vec<D> powers, V sum) {
    V unused = hn::Zero(Sums());
    return hn::ReorderWidenMulAccumulate(Sums(), v, powers, sum, unused);
  }
  static HWY_INLINE int64_t Sum(V v) {
    const hn::RepartitionToWide<Sums> wide;
    const hn::Half<Sums> half;
    const auto pairs =
        hn::Add(hn::PromoteTo(wide, hn::LowerHalf(half, v)), hn::PromoteTo(wide, hn::UpperHalf(half, v)));
    return hn::GetLane(hn::SumOfLanes(wide, pairs));
  }
};

// Whole groups of samples. Those of 16 bits are 256 times their upper bytes plus their lower ones.
PowerSums<int64_t> SumsOfGroups(const uint8_t* row, ptrdiff_t groups) {
  return GroupSums().Of(groups, [&](ptrdiff_t i) HWY_ATTR { return LoadWide(GroupSums::D(), row + i); });
}
PowerSums<int64_t> SumsOfGroups(const uint16_t* row, ptrdiff_t groups) {
  const hn::ScalableTag<uint16_t> d;
  const GroupSums::D signedD;
  PowerSums<int64_t> sums = GroupSums().Of(groups, [&](ptrdiff_t i) HWY_ATTR {
    return hn::BitCast(signedD, hn::And(hn::LoadU(d, row + i), hn::Set(d, uint16_t{0xFF})));
  });
  const PowerSums<int64_t> upper = GroupSums().Of(
      groups, [&](ptrdiff_t i) HWY_ATTR { return hn::BitCast(signedD, hn::ShiftRight<8>(hn::LoadU(d, row + i))); });
  for (int m = 0; m < 4; ++m) sums.s[m] += 256 * upper.s[m];
  return sums;
}

// A stretch of n integers, the last group filled up with zeros.
template <class T>
PowerSums<double> SumsOfStretch(const T* row, ptrdiff_t n) {
  const ptrdiff_t groups = n / kGroup, whole = groups * kGroup;
  PowerSums<int64_t> sums;
  if (groups > 0) sums = SumsOfGroups(row, groups);
  if (whole < n) {
    HWY_ALIGN T rest[kGroup] = {};
    std::memcpy(rest, row + whole, (n - whole) * sizeof(T));
    const PowerSums<int64_t> more = Shifted<int64_t>(SumsOfGroups(rest, 1), whole);
    for (int m = 0; m < 4; ++m) sums.s[m] += more.s[m];
  }
  PowerSums<double> exact;
  for (int m = 0; m < 4; ++m) exact.s[m] = static_cast<double>(sums.s[m]);
  return exact;
}

// Floats: in double precision, in eight partial sums on every build.
constexpr int kPartials = 8;
PowerSums<double> SumsOfStretch(const float* row, ptrdiff_t n) {
  const hn::ScalableTag<double> d;
  constexpr int kLanes = static_cast<int>(hn::MaxLanes(d)), kVectors = kPartials / kLanes;
  HWY_ALIGN double partials[4][kPartials] = {};
  hn::Vec<decltype(d)> sums[4][kVectors], x[kVectors];
  for (int v = 0; v < kVectors; ++v) {
    x[v] = hn::Iota(d, static_cast<double>(v * kLanes));
    for (auto& sum : sums) sum[v] = hn::Zero(d);
  }
  const auto add = [&](const float* from) HWY_ATTR {
    for (int v = 0; v < kVectors; ++v) {
      auto term = LoadWide(d, from + v * kLanes);
      for (int m = 0; m < 4; ++m) {
        sums[m][v] = hn::Add(sums[m][v], term);
        if (m < 3) term = hn::Mul(term, x[v]);
      }
      x[v] = hn::Add(x[v], hn::Set(d, static_cast<double>(kPartials)));
    }
  };
  ptrdiff_t i = 0;
  for (; i + kPartials <= n; i += kPartials) add(row + i);
  if (i < n) add(Partial<float>(row + i, n - i).lanes);
  PowerSums<double> total;
  for (int m = 0; m < 4; ++m) {
    for (int v = 0; v < kVectors; ++v) hn::Store(sums[m][v], d, partials[m] + v * kLanes);
    for (const double partial : partials[m]) total.s[m] += partial;
  }
  return total;
}

// Columns whose sums are exact, and for which there is room when channels are taken apart.
template <class T>
constexpr ptrdiff_t kStretch = std::is_integral_v<T> ? kIntegerStretch : 1024;

template <class T>
constexpr auto kSplit3 = nullptr;
template <>
constexpr auto kSplit3<uint8_t> = qvpiCopy_8u_C3P3R;
template <>
constexpr auto kSplit3<uint16_t> = qvpiCopy_16u_C3P3R;
template <>
constexpr auto kSplit3<float> = qvpiCopy_32f_C3P3R;
template <class T>
constexpr auto kSplit4 = nullptr;
template <>
constexpr auto kSplit4<uint8_t> = qvpiCopy_8u_C4P4R;
template <>
constexpr auto kSplit4<uint16_t> = qvpiCopy_16u_C4P4R;
template <>
constexpr auto kSplit4<float> = qvpiCopy_32f_C4P4R;

// Gives use(channel, samples) for each processed channel of n pixels.
template <class T, class Use>
void ForEachChannel(const T* pixels, int n, Layout layout, const Use& use) {
  if (layout == Layout::kC1) return use(0, pixels);
  HWY_ALIGN T planes[4][kStretch<T>];
  T* const rows[4] = {planes[0], planes[1], planes[2], planes[3]};
  (void)(layout == Layout::kC3 ? kSplit3<T> : kSplit4<T>)(pixels, 1 << 20, rows, 1 << 20, QvpiSize{n, 1});
  for (int c = 0; c < 3; ++c) use(c, planes[c]);
}

// M(m, n) += y^n sum of x^m v, for a row.
void AddRow(const PowerSums<double>& row, double y, double* moments) {
  double power = 1;
  for (int n = 0; n < 4; ++n, power *= y) {
    for (int m = 0; m + n < 4; ++m) moments[m + 4 * n] += power * row.s[m];
  }
}

template <class T>
void AddImage(const Image<const T>& src, Size roi, double (*moments)[16]) {
  for (ptrdiff_t y = 0; y < roi.height; ++y) {
    PowerSums<double> row[3];
    for (ptrdiff_t x = 0; x < roi.width; x += kStretch<T>) {
      const int n = static_cast<int>(std::min(kStretch<T>, roi.width - x));
      ForEachChannel(src.Row(y) + x * Channels(src.layout), n, src.layout, [&](int c, const T* samples) {
        const PowerSums<double> more = Shifted<double>(SumsOfStretch(samples, n), static_cast<double>(x));
        for (int m = 0; m < 4; ++m) row[c].s[m] += more.s[m];
      });
    }
    for (int c = 0; c < ProcessedChannels(src.layout); ++c) AddRow(row[c], static_cast<double>(y), moments[c]);
  }
}

template <class T>
QvpStatus Moments(const Image<const T>& src, Size roi, QvpiMomentState_64f* to) {
  if (const QvpStatus failed = Validate<kPointers>(roi, {src}, {to})) return failed;
  State state(to);
  if (state.identification != State::kIdentification) return qvpStatusContextMatch;
  if (const QvpStatus failed = Validate<kSteps, kSize>(roi, {src})) return failed;
  if (static_cast<int64_t>(roi.width) * src.PixelBytes() > src.step) return qvpStatusStride;
  state.channels = ProcessedChannels(src.layout);
  std::memset(state.moments, 0, sizeof(state.moments));
  AddImage(src, roi, state.moments);
  for (auto& channel : state.moments) {
    for (double& m : channel) m = m != m ? __builtin_bit_cast(double, 0xFFF8000000000000) : m;
  }
  std::memcpy(to, &state, sizeof(state));
  return qvpStatusNoError;
}

// Moments of one channel about one origin.
class Channel {
 public:
  Channel(const State& state, int channel) { std::memcpy(moments_, state.moments[channel], sizeof(moments_)); }

  double operator()(int m, int n) const { return moments_[m + 4 * n]; }
  bool Vanishes() const { return !(__builtin_fabs(moments_[0]) > 2.220446049250313e-16); }

  // sum over (x, y) of (x + x0)^m (y + y0)^n v(x, y), by the binomials of both powers.
  double About(double x0, double y0, int m, int n) const {
    static constexpr double kBinomials[4][4] = {{1}, {1, 1}, {1, 2, 1}, {1, 3, 3, 1}};
    double sum = 0, powerY = 1;
    for (int j = n; j >= 0; --j, powerY *= y0) {
      double powerX = 1;
      for (int i = m; i >= 0; --i, powerX *= x0) {
        sum += kBinomials[m][i] * kBinomials[n][j] * powerX * powerY * (*this)(i, j);
      }
    }
    return sum;
  }

  double Central(int m, int n) const {
    const Channel& M = *this;
    const double inverse = 1 / M(0, 0), xc = M(1, 0) * inverse, yc = M(0, 1) * inverse;
    switch (4 * n + m) {
      case 0: return M(0, 0);
      case 2: return M(2, 0) - xc * M(1, 0);
      case 3: return M(3, 0) + xc * (2 * xc * M(1, 0) - 3 * M(2, 0));
      case 4 + 1: return M(1, 1) - yc * M(1, 0);
      case 4 + 2: return M(2, 1) - yc * M(2, 0) + 2 * xc * (xc * M(0, 1) - M(1, 1));
      case 8: return M(0, 2) - yc * M(0, 1);
      case 8 + 1: return M(1, 2) - xc * M(0, 2) + 2 * yc * (yc * M(1, 0) - M(1, 1));
      case 12: return M(0, 3) + yc * (2 * yc * M(0, 1) - 3 * M(0, 2));
      default: return 0;  // of order 1
    }
  }

  // Divided by M(0, 0)^(order / 2 + 1).
  double Normalised(double moment, int order) const {
    const hn::CappedTag<double, 1> d;
    double divisor = moments_[0];
    for (int i = 0; i < order / 2; ++i) divisor *= moments_[0];
    if (order % 2) divisor *= hn::GetLane(hn::Sqrt(hn::Set(d, __builtin_fabs(moments_[0]))));
    return moment / divisor;
  }
  double NormalisedCentral(int m, int n) const { return Normalised(Central(m, n), m + n); }

 private:
  double moments_[16];
};

// Opens a record for a question about moments of a channel, and hands use(moments) its answer.
template <class Use>
QvpStatus Answer(const QvpiMomentState_64f* from, int m, int n, int channel, void* out, const Use& use) {
  if (from == nullptr || out == nullptr) return qvpStatusNullPointer;
  const State state(from);
  if (state.identification != State::kIdentification) return qvpStatusContextMatch;
  if (m < 0 || n < 0 || static_cast<int64_t>(m) + n > 3) return qvpStatusSize;
  if (channel < 0 || channel >= state.channels) return qvpStatusChannel;
  return use(Channel(state, channel));
}

void Store(double* to, double v) { std::memcpy(to, &v, sizeof(v)); }

// Stores value(channel), for moments that are relative to the sum of the pixels.
template <class Value>
QvpStatus AnswerUnlessVanishing(const QvpiMomentState_64f* from, int m, int n, int channel, double* out,
                                const Value& value) {
  return Answer(from, m, n, channel, out, [&](const Channel& moments) -> QvpStatus {
    if (moments.Vanishes()) return qvpStatusMoment00Zero;
    Store(out, value(moments));
    return qvpStatusNoError;
  });
}

// Hu's invariants of the normalised central moments.
void HuInvariants(const Channel& moments, double* h) {
  const auto eta = [&](int m, int n) { return moments.NormalisedCentral(m, n); };
  const double n20 = eta(2, 0), n02 = eta(0, 2), n11 = eta(1, 1);
  const double n30 = eta(3, 0), n21 = eta(2, 1), n12 = eta(1, 2), n03 = eta(0, 3);
  const double p = n30 + n12, q = n21 + n03, r = n30 - 3 * n12, s = 3 * n21 - n03, difference = n20 - n02;
  const double pp = p * p, qq = q * q;
  h[0] = n20 + n02;
  h[1] = difference * difference + 4 * n11 * n11;
  h[2] = r * r + s * s;
  h[3] = pp + qq;
  h[4] = r * p * (pp - 3 * qq) + s * q * (3 * pp - qq);
  h[5] = difference * (pp - qq) + 4 * n11 * p * q;
  h[6] = s * p * (pp - 3 * qq) - r * q * (3 * pp - qq);
}

}  // namespace

QvpStatus qvpiMomentGetStateSize_64f(QvpHintAlgorithm, int* pSize) {
  if (pSize == nullptr) return qvpStatusNullPointer;
  *pSize = sizeof(State);
  return qvpStatusNoError;
}

QvpStatus qvpiMomentInit_64f(QvpiMomentState_64f* pState, QvpHintAlgorithm hint) {
  if (pState == nullptr) return qvpStatusNullPointer;
  const int32_t words[3] = {State::kIdentification, hint, -1};
  std::memcpy(pState, words, sizeof(words));
  return qvpStatusNoError;
}

#define MOMENTS(type, layout)                                                                         \
  QvpStatus qvpiMoments64f_##type##_##layout##R(const Qvp##type* pSrc, int srcStep, QvpiSize roiSize, \
                                                QvpiMomentState_64f* pState) {                        \
    return Moments(Image<const Qvp##type>{pSrc, srcStep, Layout::k##layout}, roiSize, pState);        \
  }
#define MOMENTS_OF(type) MOMENTS(type, C1) MOMENTS(type, C3) MOMENTS(type, AC4)

MOMENTS_OF(8u)
MOMENTS_OF(16u)
MOMENTS_OF(32f)

QvpStatus qvpiGetSpatialMoment_64f(const QvpiMomentState_64f* pState, int mOrd, int nOrd, int nChannel,
                                   QvpiPoint roiOffset, Qvp64f* pValue) {
  return Answer(pState, mOrd, nOrd, nChannel, pValue, [&](const Channel& moments) {
    Store(pValue, moments.About(roiOffset.x, roiOffset.y, mOrd, nOrd));
    return qvpStatusNoError;
  });
}

QvpStatus qvpiGetCentralMoment_64f(const QvpiMomentState_64f* pState, int mOrd, int nOrd, int nChannel,
                                   Qvp64f* pValue) {
  return AnswerUnlessVanishing(pState, mOrd, nOrd, nChannel, pValue,
                               [&](const Channel& moments) { return moments.Central(mOrd, nOrd); });
}

QvpStatus qvpiGetNormalizedSpatialMoment_64f(const QvpiMomentState_64f* pState, int mOrd, int nOrd, int nChannel,
                                             QvpiPoint roiOffset, Qvp64f* pValue) {
  return AnswerUnlessVanishing(pState, mOrd, nOrd, nChannel, pValue, [&](const Channel& moments) {
    return moments.Normalised(moments.About(roiOffset.x, roiOffset.y, mOrd, nOrd), mOrd + nOrd);
  });
}

QvpStatus qvpiGetNormalizedCentralMoment_64f(const QvpiMomentState_64f* pState, int mOrd, int nOrd, int nChannel,
                                             Qvp64f* pValue) {
  return AnswerUnlessVanishing(pState, mOrd, nOrd, nChannel, pValue,
                               [&](const Channel& moments) { return moments.NormalisedCentral(mOrd, nOrd); });
}

QvpStatus qvpiGetHuMoments_64f(const QvpiMomentState_64f* pState, int nChannel, Qvp64f* pHm) {
  return Answer(pState, 0, 0, nChannel, pHm, [&](const Channel& moments) -> QvpStatus {
    if (moments.Vanishes()) return qvpStatusMoment00Zero;
    double invariants[7];
    HuInvariants(moments, invariants);
    std::memcpy(pHm, invariants, sizeof(invariants));
    return qvpStatusNoError;
  });
}
