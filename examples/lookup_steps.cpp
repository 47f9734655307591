// Steps of look-up tables, look-ups through levels and palettes.
#include <algorithm>
#include <array>
#include <vector>

#include "examples/demo.h"

namespace demo {
namespace {

// Levels and values of one curve, or of one for each channel, as a record for bytes.
class Curves {
 public:
  Curves(QvpiLookupMethod method, const std::vector<float>& levels, const std::vector<std::vector<float>>& values) {
    std::vector<const float*> x, y;
    for (const auto& of : values) {
      x.push_back(levels.data());
      y.push_back(of.data());
    }
    const std::vector<int> counts(values.size(), static_cast<int>(levels.size()));
    const int channels = static_cast<int>(values.size());
    int bytes;
    Require(qvpiLookupGetSize(qvp8u, method, counts.data(), channels, &bytes));
    record_.resize(bytes);
    Require(qvpiLookupInit(qvp8u, method, x.data(), y.data(), counts.data(), channels, spec()));
  }
  QvpiLookupSpec* spec() { return reinterpret_cast<QvpiLookupSpec*>(record_.data()); }

 private:
  std::vector<Qvp8u> record_;
};

constexpr int kPlot = 256;

// All values of a byte in each of three channels.
std::array<Qvp8u, 768> Ramp() {
  std::array<Qvp8u, 768> ramp;
  for (int i = 0; i < 768; ++i) ramp[i] = static_cast<Qvp8u>(i / 3);
  return ramp;
}

// The curve of a record, drawn over a corner.
void Plot(Curves& curves, Qvp8u* corner, int step) {
  constexpr int kDot = 6;
  constexpr Qvp8u kWhite[3] = {255, 255, 255}, kBlack[3] = {0, 0, 0};
  std::array<Qvp8u, 768> y = Ramp();
  Require(qvpiLookup_8u_C3IR(y.data(), 768, {256, 1}, curves.spec()));
  Require(qvpiSet_8u_C3R(kWhite, corner, step, {kPlot, kPlot}));
  for (int x = 0; x + kDot <= kPlot; ++x) {
    const int top = std::max(0, kPlot - kDot - y[3 * x]);
    Require(qvpiSet_8u_C3R(kBlack, corner + ptrdiff_t{top} * step + 3 * x, step, {kDot, kDot}));
  }
}

// More contrast by the same five points, joined by lines and by cubics.
void ToneCurve(Demo& demo, QvpiLookupMethod method, const char* caption) {
  const Rgb& photo = demo.photo();
  const QvpiSize size = photo.size();
  Rgb toned(size);
  Curves curves(method, {0, 60, 128, 190, 255}, {{0, 20, 128, 236, 255}});
  demo.Time(size, 3 + 3,
            CALL(qvpiLookup_8u_C3R, photo.data(), photo.step(), toned.data(), toned.step(), size, curves.spec()));
  if (std::min(size.width, size.height) >= kPlot) Plot(curves, toned.At(0, size.height - kPlot), toned.step());
  demo.Show(caption, toned);
}

void Posterise(Demo& demo) {
  const Rgb& photo = demo.photo();
  Rgb poster(photo.size());
  Curves curves(qvpLookupStep, {0, 51, 102, 153, 204}, {{0, 64, 128, 191, 255}});
  demo.Time(
      photo.size(), 3 + 3,
      CALL(qvpiLookup_8u_C3R, photo.data(), photo.step(), poster.data(), poster.step(), photo.size(), curves.spec()));
  demo.Show("Posterised by five steps", poster);
}

// Weighted channels, each by a table, and their sum.
Grey Brightness(Demo& demo) {
  const Rgb& photo = demo.photo();
  const QvpiSize size = photo.size();
  std::array<std::array<Qvp8u, 256>, 3> tables;
  for (int v = 0; v < 256; ++v) {
    tables[0][v] = static_cast<Qvp8u>(0.299 * v + 0.5);
    tables[1][v] = static_cast<Qvp8u>(0.587 * v + 0.5);
    tables[2][v] = static_cast<Qvp8u>(0.114 * v + 0.5);
  }
  const Qvp8u* const pointers[3] = {tables[0].data(), tables[1].data(), tables[2].data()};
  Rgb weighted(size);
  demo.Time(size, 3 + 3,
            CALL(qvpiLookupTable_8u_C3R, photo.data(), photo.step(), weighted.data(), weighted.step(), size, pointers));
  Grey sum(size), green(size), blue(size);
  Qvp8u* const planes[3] = {sum.data(), green.data(), blue.data()};
  Require(qvpiCopy_8u_C3P3R(weighted.data(), weighted.step(), planes, sum.step(), size));
  Require(qvpiAdd_8u_C1IRSfs(green.data(), green.step(), sum.data(), sum.step(), size, 0));
  Require(qvpiAdd_8u_C1IRSfs(blue.data(), blue.step(), sum.data(), sum.step(), size, 0));
  return sum;
}

// From dark blue through green to yellow: a palette that is itself made by curves.
void FalseColour(Demo& demo) {
  const Grey brightness = Brightness(demo);
  const QvpiSize size = brightness.size();
  demo.Show("Brightness by weights in tables", brightness);
  Curves curves(qvpLookupCubic, {0, 64, 128, 192, 255},
                {{68, 58, 33, 94, 253}, {1, 82, 145, 201, 231}, {84, 139, 140, 98, 37}});
  std::array<Qvp8u, 768> palette = Ramp();
  Require(qvpiLookup_8u_C3IR(palette.data(), 768, {256, 1}, curves.spec()));
  Rgb colours(size);
  demo.Time(size, 1 + 3,
            CALL(qvpiPalette_8u_C1C3R, brightness.data(), brightness.step(), colours.data(), colours.step(), size,
                 palette.data(), 8));
  demo.Show("False colour of the brightness", colours);
}

}  // namespace

void LookupSteps(Demo& demo) {
  ToneCurve(demo, qvpLookupLinear, "Tone curve: lines");
  ToneCurve(demo, qvpLookupCubic, "Tone curve: cubics");
  Posterise(demo);
  FalseColour(demo);
}

}  // namespace demo
