// Moments of an image up to order 3.
#include "base/check.h"
#include "base/export.h"
#include "base/record.h"
#include "stats/moment_state.h"
#include "stats/power_sums.h"

namespace {
using namespace qvp;
using namespace qvp::stats;

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
        PowerSums<double> more = SumsOfStretch(samples, n);
        if (x > 0 || !std::is_integral_v<T>) more = Shifted<double>(more, static_cast<double>(x));
        for (int m = 0; m < 4; ++m) row[c].s[m] += more.s[m];
      });
    }
    for (int c = 0; c < ProcessedChannels(src.layout); ++c) AddRow(row[c], static_cast<double>(y), moments[c]);
  }
}

template <class T>
QvpStatus Moments(const Image<const T>& src, Size roi, QvpiMomentState_64f* to) {
  if (const QvpStatus failed = Validate<kPointers>(roi, {src}, {to})) return failed;
  if (!MomentState::IsAt(to)) return qvpStatusContextMatch;
  if (const QvpStatus failed = Validate<kSteps, kSize>(roi, {src})) return failed;
  if (static_cast<int64_t>(roi.width) * src.PixelBytes() > src.step) return qvpStatusStride;
  MomentState state(to);
  state.channels = ProcessedChannels(src.layout);
  std::memset(state.moments, 0, sizeof(state.moments));
  AddImage(src, roi, state.moments);
  std::memcpy(to, &state, sizeof(state));
  return qvpStatusNoError;
}

}  // namespace

QvpStatus qvpiMomentGetStateSize_64f(QvpHintAlgorithm, int* pSize) {
  if (pSize == nullptr) return qvpStatusNullPointer;
  *pSize = sizeof(MomentState);
  return qvpStatusNoError;
}

QvpStatus qvpiMomentInit_64f(QvpiMomentState_64f* pState, QvpHintAlgorithm hint) {
  return InitRecord(pState, MomentState::kIdentification, [&]() -> QvpStatus {
    if (pState == nullptr) return qvpStatusNullPointer;
    const int32_t words[2] = {hint, -1};  // no channels yet
    std::memcpy(reinterpret_cast<uint8_t*>(pState) + offsetof(MomentState, hint), words, sizeof(words));
    return qvpStatusNoError;
  });
}

#define MOMENTS(type, layout) \
  QVP_REDUCE(qvpiMoments64f, type, layout, Moments, (QvpiMomentState_64f * pState), (pState))
#define MOMENTS_OF(type) MOMENTS(type, C1) MOMENTS(type, C3) MOMENTS(type, AC4)

MOMENTS_OF(8u)
MOMENTS_OF(16u)
MOMENTS_OF(32f)
