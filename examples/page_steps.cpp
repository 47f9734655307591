// Steps of qvpi_denoise.h: a page under a shadow made black and white by one threshold, and by local ones.
#include <algorithm>
#include <cmath>
#include <vector>

#include "examples/demo.h"
#include "examples/text.h"

namespace demo {
namespace {

constexpr QvpiSize kPage{480, 320};

// Lines of text on paper, which is multiplied by what light falls on it.
Grey ShadowedPage() {
  static constexpr const char* kLines[] = {"Each pixel is compared with the", "mean of its surroundings, less a",
                                           "small number, so that ink stays", "ink in the shadow, and paper",
                                           "stays paper in both."};
  const Font font(QVP_DEMO_FONT);
  Grey page(kPage);
  Require(qvpiSet_8u_C1R(240, page.data(), page.step(), kPage));
  int top = 24;
  for (const char* const text : kLines) {
    const Grey line = font.Line(text, {28, 50, 240}, kPage.width - 24);
    const QvpiSize size{line.size().width, std::min(line.size().height, kPage.height - top)};
    Require(qvpiCopy_8u_C1R(line.data(), line.step(), page.At(24, top), page.step(), size));
    top += 56;
  }
  for (int y = 0; y < kPage.height; ++y) {
    for (int x = 0; x < kPage.width; ++x) {
      const double shadow = 1 / (1 + std::exp((x - y - 120) / 40.0));
      *page.At(x, y) = static_cast<Qvp8u>(*page.At(x, y) * (1 - 0.75 * shadow));
    }
  }
  return page;
}

}  // namespace

void PageSteps(Demo& demo) {
  const Grey page = ShadowedPage();
  Grey result(kPage);
  Qvp8u threshold = 0;
  demo.Time(kPage, 1, CALL(qvpiComputeThreshold_Otsu_8u_C1R, page.data(), page.step(), kPage, &threshold));
  demo.Show("A page under a shadow", page);
  Require(qvpiCompareC_8u_C1R(page.data(), page.step(), threshold, result.data(), result.step(), kPage, qvpCmpGreater));
  demo.Show("Above Otsu's threshold, " + std::to_string(threshold), result);

  constexpr QvpiSize kMask{31, 31};
  int box, gauss;
  Require(qvpiThresholdLocalBoxBorderGetBufferSize(kMask, kPage, qvp8u, &box));
  Require(qvpiThresholdLocalGaussBorderGetBufferSize(kMask, kPage, qvp8u, &gauss));
  std::vector<Qvp8u> buffer(std::max(box, gauss));
  demo.Time(kPage, 2,
            CALL(qvpiThresholdLocalBoxBorder_8u_C1R, page.data(), page.step(), result.data(), result.step(), kPage,
                 kMask, 10, 255, 0, qvpBorderReplicate, nullptr, buffer.data()));
  demo.Show("Above the mean around less 10", result);
  demo.Time(kPage, 2,
            CALL(qvpiThresholdLocalGaussBorder_8u_C1R, page.data(), page.step(), result.data(), result.step(), kPage,
                 kMask, 6, 10, 255, 0, qvpBorderReplicate, nullptr, buffer.data()));
  demo.Show("Above the Gauss mean less 10", result);
}

}  // namespace demo
