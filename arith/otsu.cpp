// The threshold that separates the grey values of an image into two classes best (Otsu, 1979).
#include <algorithm>

#include "base/byte_counts.h"
#include "base/check.h"
#include "base/rows.h"

namespace {
using namespace qvp;

// Shares of pixels closer to 0 or 1 than this count as an empty class.
constexpr double kSmallestShare = 1.1920928955078125e-7, kLargestShare = 0.9999998807907104;

// The level k for which the classes [0, k] and [k + 1, 255] have the greatest variance between them,
//   (w1 m - w0 (mean - m))^2 / (w0 w1)
// with the shares w0, w1 of the classes and the first moment m of the lower one. Levels stand for the middles of their
// intervals. The lowest of several such levels; 0 when no level has pixels on both sides.
int BestLevel(const ByteCounts<8>::Counts& counts, double pixels) {
  const double share = pixels > kSmallestShare ? 1 / pixels : 0;
  double sum = 0;
  for (int i = 0; i < 256; ++i) sum += (i + 0.5) * counts[i];
  const double mean = share * sum;
  double w0 = 0, moment = 0, best = 0;
  int level = 0;
  for (int k = 0; k < 256; ++k) {
    const double p = share * counts[k];
    w0 += p;
    const double w1 = 1 - w0;
    if (!(std::min(w0, w1) >= kSmallestShare && std::max(w0, w1) <= kLargestShare)) continue;
    moment += p * (k + 0.5);
    const double difference = w1 * moment - w0 * (mean - moment);
    const double score = difference * difference / (w0 * w1);
    if (score > best) {
      best = score;
      level = k;
    }
  }
  return level;
}

}  // namespace

QvpStatus qvpiComputeThreshold_Otsu_8u_C1R(const Qvp8u* pSrc, int srcStep, QvpiSize roiSize, Qvp8u* pThreshold) {
  const ConstBytes src{pSrc, srcStep, Layout::kC1};
  if (const QvpStatus failed = Validate<kPointers, kSize>(roiSize, {src}, {pThreshold})) return failed;
  if (srcStep < roiSize.width) return qvpStatusStep;
  ByteCounts<8> counts;
  Rows(src).ForEach(roiSize, [&](ptrdiff_t width, const uint8_t* row) { counts.Add(row, width); });
  const double pixels = static_cast<double>(roiSize.width) * roiSize.height;
  *pThreshold = static_cast<Qvp8u>(BestLevel(counts.Of(0, 1), pixels));
  return qvpStatusNoError;
}
