// The iterative least-squares filter (Liu et al. 2020): penalties of gradients are replaced, one iteration after the
// other, by quadratic ones, whose minimum is the solution of a linear system. Images reflect at their edges, and what
// is solved for is the correction v of the source, so that constants pass unchanged.
#include <cstring>

#include "base/channels.h"
#include "base/check.h"
#include "base/export.h"
#include "base/lanes.h"
#include "base/row_vectors.h"
#include "base/scalar.h"
#include "filter/least_squares_system.h"
#include "filter/window_check.h"
#include "signal/exp_log.h"

namespace qvp::filter {
namespace {

// The full range of a type, in which gradients are measured.
template <class T>
constexpr float kUnit = std::is_same_v<T, float> ? 1 : static_cast<float>(std::numeric_limits<T>::max());

// What a gradient of the filtered image and one of the correction give to the right side of the system.
struct Pull {
  float beta, kappa, exponent, eps;

  template <class D, class V>
  HWY_INLINE V operator()(D d, V gradient, V ofCorrection) const {
    V pull = hn::Mul(hn::Set(d, kappa), gradient);
    if (exponent < 0) {
      const V square = hn::Add(hn::Mul(gradient, gradient), hn::Set(d, eps));
      pull = hn::Mul(pull, Exp(hn::Mul(hn::Set(d, exponent), Ln(square))));
    }
    return hn::Sub(hn::Mul(hn::Set(d, beta), ofCorrection), pull);
  }
};

// One channel of an image.
template <class T, int kChannels, int kChannel>
class ChannelFilter {
 public:
  ChannelFilter(const LeastSquaresRecord& record, const Image<const T>& src, const Image<T>& dst,
                const LeastSquaresSystem& system)
      : record_(record),
        src_(src),
        dst_(dst),
        system_(system),
        pull_{record.beta, record.kappa, record.exponent, record.eps} {}

  void Run() const {
    system_.Clear();
    for (int i = 0; i < record_.iterations; ++i) {
      const int most = system_.RowsAtOnce();
      for (ptrdiff_t y = 0; y < record_.height; y += most) {
        const int count = static_cast<int>(std::min<ptrdiff_t>(most, record_.height - y));
        for (int k = 0; k < count; ++k) PullRow(y + k);
        system_.Eliminate(y, count);
      }
      system_.Substitute();
    }
    for (ptrdiff_t y = 0; y < record_.height; ++y) StoreRow(y);
  }

 private:
  using D = hn::ScalableTag<float>;

  // Pixels of the channel, as floats in the full range.
  template <class E>
  static HWY_INLINE hn::Vec<E> Load(E d, const T* row, ptrdiff_t i) {
    const T* const from = row + i * kChannels;
    if constexpr (hn::MaxLanes(E()) == 1) {
      return hn::Set(d, static_cast<float>(LoadScalar(from + kChannel)));
    } else if constexpr (kChannels == 1) {
      return LoadWide(d, from);
    } else {
      const hn::Rebind<T, E> narrow;
      const auto v = LoadChannels<kChannels>(narrow, from).v[kChannel];
      if constexpr (std::is_same_v<T, float>) return v;
      if constexpr (std::is_integral_v<T>) return hn::ConvertTo(d, hn::PromoteTo(hn::RebindToSigned<E>(), v));
    }
  }
  template <class E>
  static HWY_INLINE hn::Vec<E> Scaled(E d, hn::Vec<E> pixels) {
    return hn::Mul(pixels, hn::Set(d, 1 / kUnit<T>));
  }

  // The right side of the system for a row: what comes from the pixels before it less what goes to those behind it,
  // along the row and down the column. It takes the place of v, which the row below does not need any more.
  void PullRow(ptrdiff_t y) const {
    float* const along = system_.Scratch();
    PullAlong(src_.Row(y), system_.Row(y), along);
    PullDown(y, along);
    std::memcpy(system_.Row(y), along, record_.width * sizeof(float));
  }

  // to[i] is what comes over the left edge of pixel i, and over the right edge of the last one: 0 at both ends.
  HWY_NOINLINE void PullAlong(const T* row, const float* v, float* to) const {
    const ptrdiff_t n = record_.width;
    const Pull pull = pull_;
    to[0] = to[n] = 0;
    ForEachElement(D(), n - 1, [=](auto d, ptrdiff_t i) HWY_ATTR {
      const auto ofCorrection = hn::Sub(hn::LoadU(d, v + i + 1), hn::LoadU(d, v + i));
      const auto ofSource = Scaled(d, hn::Sub(Load(d, row, i + 1), Load(d, row, i)));
      hn::StoreU(pull(d, hn::Add(ofSource, ofCorrection), ofCorrection), d, to + i + 1);
    });
  }

  // What came over the upper edges is kept; it gives way to what goes over the lower ones.
  HWY_NOINLINE void PullDown(ptrdiff_t y, float* along) const {
    const ptrdiff_t n = record_.width;
    const Pull pull = pull_;
    float* const above = system_.Kept();
    if (y == 0) std::memset(above, 0, n * sizeof(float));
    const bool isLast = y + 1 == record_.height;
    const T *const row = src_.Row(y), *const below = isLast ? row : src_.Row(y + 1);
    const float *const v = system_.Row(y), *const vBelow = isLast ? v : system_.Row(y + 1);
    ForEachElement(D(), n, [=](auto d, ptrdiff_t i) HWY_ATTR {
      auto down = hn::Zero(d);
      if (!isLast) {
        const auto ofCorrection = hn::Sub(hn::LoadU(d, vBelow + i), hn::LoadU(d, v + i));
        const auto ofSource = Scaled(d, hn::Sub(Load(d, below, i), Load(d, row, i)));
        down = pull(d, hn::Add(ofSource, ofCorrection), ofCorrection);
      }
      const auto across = hn::Sub(hn::LoadU(d, along + i), hn::LoadU(d, along + i + 1));
      hn::StoreU(hn::Add(across, hn::Sub(hn::LoadU(d, above + i), down)), d, along + i);
      hn::StoreU(down, d, above + i);
    });
  }

  void StoreRow(ptrdiff_t y) const {
    const T* const from = src_.Row(y);
    T* const to = dst_.Row(y);
    const float* const v = system_.Row(y);
    ForEachElement(D(), record_.width, [=](auto d, ptrdiff_t i) HWY_ATTR {
      const auto result = Narrow<T>(d, hn::Add(Load(d, from, i), hn::Mul(hn::LoadU(d, v + i), hn::Set(d, kUnit<T>))));
      T lanes[hn::MaxLanes(D())];
      hn::StoreU(result, hn::Rebind<T, decltype(d)>(), lanes);
      for (ptrdiff_t k = 0; k < ptrdiff_t{hn::MaxLanes(d)}; ++k) {
        StoreScalar(to + (i + k) * kChannels + kChannel, lanes[k]);
      }
    });
  }

  const LeastSquaresRecord& record_;
  const Image<const T>& src_;
  const Image<T>& dst_;
  const LeastSquaresSystem& system_;
  const Pull pull_;
};

template <class T>
QvpStatus LeastSquares(const Image<const T>& src, const Image<T>& dst, const QvpiFilterLeastSquaresSpec* spec,
                       uint8_t* buffer) {
  if (!src.data || !dst.data || !spec || !buffer) return qvpStatusNullPointer;
  const LeastSquaresRecord& r = *RecordIn<LeastSquaresRecord>(spec);
  const bool isOurs = r.identification == LeastSquaresRecord::kIdentification && r.type == kDataTypeOf<T> &&
                      r.channels == Channels(src.layout);
  if (!isOurs) return qvpStatusContextMatch;
  const Size roi(r.width, r.height);
  if (!CoversRow(src, roi) || !CoversRow(dst, roi)) return qvpStatusStep;
  const LeastSquaresSystem system(r, buffer);
  if (r.channels == 1) {
    ChannelFilter<T, 1, 0>(r, src, dst, system).Run();
  } else {
    ChannelFilter<T, 3, 0>(r, src, dst, system).Run();
    ChannelFilter<T, 3, 1>(r, src, dst, system).Run();
    ChannelFilter<T, 3, 2>(r, src, dst, system).Run();
  }
  return qvpStatusNoError;
}

}  // namespace
}  // namespace qvp::filter

using namespace qvp;

#define LEAST_SQUARES(type, layout)                                                                                \
  QvpStatus qvpiFilterLeastSquares_##type##_##layout##R(const Qvp##type* pSrc, int srcStep, Qvp##type* pDst,       \
                                                        int dstStep, const QvpiFilterLeastSquaresSpec* pSpec,      \
                                                        Qvp8u* pBuffer) {                                          \
    return filter::LeastSquares<Qvp##type>({pSrc, srcStep, Layout::k##layout}, {pDst, dstStep, Layout::k##layout}, \
                                           pSpec, pBuffer);                                                        \
  }
LEAST_SQUARES(8u, C1)
LEAST_SQUARES(8u, C3)
LEAST_SQUARES(16u, C1)
LEAST_SQUARES(16u, C3)
LEAST_SQUARES(32f, C1)
LEAST_SQUARES(32f, C3)
