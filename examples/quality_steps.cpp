// Steps of quality and texture: how much of a picture smoothing leaves, and the local binary patterns of its pixels.
#include <cstdio>
#include <string>
#include <vector>

#include "examples/demo.h"

namespace demo {
namespace {

constexpr int kWindow = 11;
constexpr double kSigma = 1.5, kC1 = 6.5025, kC2 = 58.5225;

// The green channel stands for the brightness.
Grey Brightness(const Rgb& photo) {
  Grey grey(photo.size());
  Require(qvpiCopy_8u_C3C1R(photo.data() + 1, photo.step(), grey.data(), grey.step(), photo.size()));
  return grey;
}

std::string Percent(double part) {
  char text[32];
  std::snprintf(text, sizeof(text), "%.1f %%", 100 * part);
  return text;
}

// The median of 5x5 pixels, and what the two measures say of it.
void Quality(Demo& demo, const Grey& grey) {
  const QvpiSize size = grey.size(), mask{5, 5};
  int bytes = 0;
  Require(qvpiFilterMedianBorderGetBufferSize(mask, size, qvp8u, 1, &bytes));
  std::vector<Qvp8u> buffer(bytes);
  Grey smooth(size);
  Require(qvpiFilterMedianBorder_8u_C1R(grey.data(), grey.step(), smooth.data(), smooth.step(), size, mask,
                                        qvpBorderReplicate, nullptr, buffer.data()));
  double index, similarity;
  demo.Time(size, 1 + 1,
            CALL(qvpiQualityIndex_8u_C1R, grey.data(), grey.step(), smooth.data(), smooth.step(), size, &index));
  Require(qvpiSSIMGetBufferSize(size, kWindow, 1, &bytes));
  buffer.resize(bytes);
  demo.Time(size, 1 + 1,
            CALL(qvpiSSIM_8u_C1R, grey.data(), grey.step(), smooth.data(), smooth.step(), size, &similarity, kWindow,
                 kSigma, kC1, kC2, buffer.data()));
  demo.Show("Median: SSIM " + Percent(similarity) + ", index " + Percent(index), smooth);
}

// The 59 labels of uniform patterns as levels of grey.
void Patterns(Demo& demo, const Grey& grey) {
  const QvpiSize size = grey.size(), mask{3, 3};
  int bytes = 0;
  Require(qvpiFilterLBPBorderGetBufferSize(mask, size, qvp8u, 1, &bytes));
  std::vector<Qvp8u> buffer(bytes);
  Grey labels(size);
  demo.Time(size, 1 + 1,
            CALL(qvpiFilterLBPBorder_8u_C1R, grey.data(), grey.step(), labels.data(), labels.step(), size, mask,
                 qvpLBPUniform, qvpBorderReplicate, nullptr, buffer.data()));
  Require(qvpiMulC_8u_C1IRSfs(4, labels.data(), labels.step(), size, 0));
  demo.Show("Uniform local binary patterns", labels);
}

}  // namespace

void QualitySteps(Demo& demo) {
  const Grey grey = Brightness(demo.photo());
  Quality(demo, grey);
  Patterns(demo, grey);
}

}  // namespace demo
