// Steps of norms, sums, extrema, histograms, moments and matching.
#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <vector>

#include "examples/demo.h"

namespace demo {
namespace {

constexpr Qvp8u kWhite[3] = {255, 255, 255};

void FillBox(Rgb& image, int x, int y, QvpiSize size, const Qvp8u* colour) {
  const int left = std::clamp(x, 0, image.size().width), top = std::clamp(y, 0, image.size().height);
  const QvpiSize inside{std::min(x + size.width, image.size().width) - left,
                        std::min(y + size.height, image.size().height) - top};
  if (inside.width < 1 || inside.height < 1) return;
  Require(qvpiSet_8u_C3R(colour, image.At(left, top), image.step(), inside));
}

// How often each value of each channel occurs, as three curves one above the other.
void Histogram(Demo& demo) {
  const Rgb& photo = demo.photo();
  const float lower[3] = {0, 0, 0}, upper[3] = {256, 256, 256};
  const int levels[3] = {257, 257, 257};
  int recordBytes, bufferBytes;
  Require(qvpiHistogramGetBufferSize(qvp8u, photo.size(), levels, 3, 1, &recordBytes, &bufferBytes));
  std::vector<Qvp8u> record(recordBytes), buffer(bufferBytes);
  auto* const spec = reinterpret_cast<QvpiHistogramSpec*>(record.data());
  Require(qvpiHistogramUniformInit(qvp8u, lower, upper, levels, 3, spec));
  std::array<std::array<Qvp32u, 256>, 3> counts;
  Qvp32u* const bins[3] = {counts[0].data(), counts[1].data(), counts[2].data()};
  demo.Time(photo.size(), 3,
            CALL(qvpiHistogram_8u_C3R, photo.data(), photo.step(), photo.size(), bins, spec, buffer.data()));

  constexpr int kHeight = 160, kBar = 2;
  constexpr Qvp8u kColours[3][3] = {{208, 64, 56}, {48, 152, 80}, {56, 96, 200}};
  Rgb plot({256 * kBar, 3 * kHeight});
  FillBox(plot, 0, 0, plot.size(), kWhite);
  for (int c = 0; c < 3; ++c) {
    const Qvp32u highest = *std::max_element(counts[c].begin() + 1, counts[c].end() - 1);
    for (int v = 0; v < 256; ++v) {
      const double share = std::min(1.0, counts[c][v] / std::max(1.0, double(highest)));
      const int height = static_cast<int>(share * (kHeight - 12));
      FillBox(plot, v * kBar, (c + 1) * kHeight - height, {kBar, height}, kColours[c]);
    }
  }
  demo.Show("Histograms of red, green and blue", plot);
}

// The picture with fewer and fewer bits in each sample, and how far each version is from the original.
void Norms(Demo& demo) {
  const Rgb& photo = demo.photo();
  const QvpiSize size = photo.size(), half{std::max(1, size.width / 2), size.height};
  Rgb poster(size);
  std::printf("  bits  largest error  mean error  root mean square  relative to the picture\n");
  double errors[3];
  for (const int bits : {7, 6, 5, 4, 3, 2}) {
    const int levels = 1 << (8 - bits);
    for (int y = 0; y < size.height; ++y) {
      for (int i = 0; i < 3 * size.width; ++i) {
        poster.At(0, y)[i] = static_cast<Qvp8u>(photo.At(0, y)[i] / levels * levels + levels / 2);
      }
    }
    double largest[3], sums[3], roots[3];
    Require(qvpiNormDiff_Inf_8u_C3R(photo.data(), photo.step(), poster.data(), poster.step(), size, largest));
    Require(qvpiNormDiff_L1_8u_C3R(photo.data(), photo.step(), poster.data(), poster.step(), size, sums));
    Require(qvpiNormDiff_L2_8u_C3R(photo.data(), photo.step(), poster.data(), poster.step(), size, roots));
    Require(qvpiNormRel_L2_8u_C3R(photo.data(), photo.step(), poster.data(), poster.step(), size, errors));
    const double pixels = 1.0 * size.width * size.height;
    std::printf("  %4d  %13.0f  %10.2f  %16.2f  %23.4f\n", bits, largest[1], sums[1] / pixels,
                roots[1] / std::sqrt(pixels), errors[1]);
  }
  demo.Time(size, 3 + 3,
            CALL(qvpiNormDiff_L2_8u_C3R, photo.data(), photo.step(), poster.data(), poster.step(), size, errors));
  Require(qvpiCopy_8u_C3R(photo.data(), photo.step(), poster.data(), poster.step(), half));
  demo.Show("Left of 8 bits, right of 2", poster);
}

// The brightness of the picture has a centre of mass, and axes along which it is spread most and least.
void Moments(Demo& demo) {
  const Rgb& photo = demo.photo();
  const QvpiSize size = photo.size();
  Grey bright(size);
  Require(qvpiCopy_8u_C3C1R(photo.data() + 1, photo.step(), bright.data(), bright.step(), size));
  Require(qvpiThreshold_LTVal_8u_C1R(bright.data(), bright.step(), bright.data(), bright.step(), size, 160, 0));
  int bytes;
  Require(qvpiMomentGetStateSize_64f(qvpAlgHintAccurate, &bytes));
  std::vector<Qvp8u> record(bytes);
  auto* const state = reinterpret_cast<QvpiMomentState_64f*>(record.data());
  Require(qvpiMomentInit_64f(state, qvpAlgHintAccurate));
  demo.Time(size, 1, CALL(qvpiMoments64f_8u_C1R, bright.data(), bright.step(), size, state));
  double m00, m10, m01;
  Require(qvpiGetSpatialMoment_64f(state, 0, 0, 0, {0, 0}, &m00));
  if (m00 == 0) return;
  Require(qvpiGetSpatialMoment_64f(state, 1, 0, 0, {0, 0}, &m10));
  Require(qvpiGetSpatialMoment_64f(state, 0, 1, 0, {0, 0}, &m01));
  double mu20, mu02, mu11;
  Require(qvpiGetCentralMoment_64f(state, 2, 0, 0, &mu20));
  Require(qvpiGetCentralMoment_64f(state, 0, 2, 0, &mu02));
  Require(qvpiGetCentralMoment_64f(state, 1, 1, 0, &mu11));
  const double angle = std::atan2(2 * mu11, mu20 - mu02) / 2;

  Rgb drawn(size);
  Require(qvpiDup_8u_C1C3R(bright.data(), bright.step(), drawn.data(), drawn.step(), size));
  constexpr Qvp8u kRed[3] = {232, 40, 32};
  const double cosine = std::cos(angle), sine = std::sin(angle);
  const auto spread = [&](double c, double s) {
    return std::sqrt(std::max(0.0, (c * c * mu20 + s * s * mu02 + 2 * c * s * mu11) / m00));
  };
  const auto axis = [&](double c, double s) {
    const double length = spread(c, s);
    for (double t = -length; t <= length; t += 0.5) {
      FillBox(drawn, static_cast<int>(m10 / m00 + t * c) - 1, static_cast<int>(m01 / m00 + t * s) - 1, {4, 4}, kRed);
    }
  };
  axis(cosine, sine);
  axis(-sine, cosine);
  FillBox(drawn, static_cast<int>(m10 / m00) - 6, static_cast<int>(m01 / m00) - 6, {13, 13}, kRed);
  demo.Show("Centre and axes of the bright parts", drawn);
}

// A piece of the picture is looked for in all of it; where it fits best there is a frame.
void Matching(Demo& demo) {
  const Rgb& photo = demo.photo();
  const QvpiSize size = photo.size(), piece{std::max(1, size.width / 12), std::max(1, size.height / 12)};
  const QvpiSize places{size.width - piece.width + 1, size.height - piece.height + 1};
  const Qvp8u* const from = photo.At(places.width * 2 / 3, places.height * 2 / 5);
  Image<qvpiMalloc_32f_C1, 1> fits(places);
  int bytes, x, y;
  Require(qvpiMatchGetBufferSize(qvp8u, 3, size, piece, qvpMatchValid, qvpMatchCoefficient, qvpMethodAuto, &bytes));
  std::vector<Qvp8u> buffer(bytes);
  demo.Time(size, 3 + 4,
            CALL(qvpiMatchCorrelation_8u32f_C3C1R, photo.data(), photo.step(), size, from, photo.step(), piece,
                 fits.data(), fits.step(), qvpMatchValid, qvpMatchCoefficient, qvpMethodAuto, buffer.data()));
  float best;
  Require(qvpiMaxIndx_32f_C1R(fits.data(), fits.step(), places, &best, &x, &y));
  std::printf("  a piece of %s fits best at (%d, %d), with %.3f\n", ToString(piece).c_str(), x, y, best);

  Grey map(places);
  Rgb drawn(places);
  Require(qvpiScale_32f8u_C1R(fits.data(), fits.step(), map.data(), map.step(), places, -1, 1));
  Require(qvpiDup_8u_C1C3R(map.data(), map.step(), drawn.data(), drawn.step(), places));
  constexpr Qvp8u kRed[3] = {232, 40, 32};
  constexpr int kFar = 12, kThick = 4;
  for (const int side : {-kFar, kFar}) {
    FillBox(drawn, x - kFar, y + side, {2 * kFar + kThick, kThick}, kRed);
    FillBox(drawn, x + side, y - kFar, {kThick, 2 * kFar + kThick}, kRed);
  }
  demo.Show("How well a piece fits, and where best", drawn);
}

void Extrema(Demo& demo) {
  const Rgb& photo = demo.photo();
  Qvp8u least[3];
  int x[3], y[3];
  demo.Time(photo.size(), 3, CALL(qvpiMinIndx_8u_C3R, photo.data(), photo.step(), photo.size(), least, x, y));
  double means[3];
  demo.Time(photo.size(), 3, CALL(qvpiMean_8u_C3R, photo.data(), photo.step(), photo.size(), means));
  std::printf("  mean colour %.2f %.2f %.2f; darkest red %d at (%d, %d)\n", means[0], means[1], means[2], least[0],
              x[0], y[0]);
}

}  // namespace

void StatsSteps(Demo& demo) {
  Histogram(demo);
  Norms(demo);
  Moments(demo);
  Matching(demo);
  Extrema(demo);
}

}  // namespace demo
