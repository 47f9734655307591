// What is derived from the moments of a state: shifted, central and normalised moments, and invariants.
#include "base/scalar.h"
#include "base/simd.h"
#include "qvpi.h"
#include "stats/moment_state.h"

namespace {
using namespace qvp;
using namespace qvp::stats;

// Moments of one channel about one origin.
class Channel {
 public:
  Channel(const MomentState& state, int channel) { std::memcpy(moments_, state.moments[channel], sizeof(moments_)); }

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
  if (!MomentState::IsAt(from)) return qvpStatusContextMatch;
  const MomentState state(from);
  if (m < 0 || n < 0 || static_cast<int64_t>(m) + n > 3) return qvpStatusSize;
  if (channel < 0 || channel >= state.channels) return qvpStatusChannel;
  return use(Channel(state, channel));
}

// Stores value(channel), for moments that are relative to the sum of the pixels.
template <class Value>
QvpStatus AnswerUnlessVanishing(const QvpiMomentState_64f* from, int m, int n, int channel, double* out,
                                const Value& value) {
  return Answer(from, m, n, channel, out, [&](const Channel& moments) -> QvpStatus {
    if (moments.Vanishes()) return qvpStatusMoment00Zero;
    StoreScalar(out, value(moments));
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

QvpStatus qvpiGetSpatialMoment_64f(const QvpiMomentState_64f* pState, int mOrd, int nOrd, int nChannel,
                                   QvpiPoint roiOffset, Qvp64f* pValue) {
  return Answer(pState, mOrd, nOrd, nChannel, pValue, [&](const Channel& moments) {
    StoreScalar(pValue, moments.About(roiOffset.x, roiOffset.y, mOrd, nOrd));
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
