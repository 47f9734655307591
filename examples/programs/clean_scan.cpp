// Cleans a scanned page of text: black on white whatever the light, lines level, margins cut to one width.
#include <algorithm>
#include <cmath>
#include <cstdio>

#include "picture.hpp"

using Gray = qvp::Image<Qvp8u>;

// 255 where a pixel is darker than its surroundings by 25 at least, else 0. The surroundings are a few letters wide.
Gray FindInk(const Gray& page) {
  const int side = std::clamp(page.width() / 20, 15, 300) | 1;
  Gray ink(page.size());
  qvp::Buffer buffer;
  qvp::local_threshold_box(page, ink, {side, side}, 25, 0, 255, buffer);
  return ink;
}

// Turns an image counter-clockwise about a point; what comes in from outside is 0.
Gray Turn(const Gray& image, double degrees, std::array<double, 2> center) {
  Gray turned(image.size());
  qvp::Warp<Qvp8u> warp(image.size(), image.size(), qvp::rotation(degrees, center, center));
  warp(image, turned);
  return turned;
}

std::array<double, 2> CenterOfMass(const Gray& image) {
  const qvp::Moments moments(image);
  const double mass = moments.spatial(0, 0);
  if (mass == 0) throw std::runtime_error("the page is empty");
  return {moments.spatial(1, 0) / mass, moments.spatial(0, 1) / mass};
}

// The second moment of the sums of rows. It is largest when lines of text are level: ink is then in few rows.
double Levelness(const Gray& ink) {
  double moment = 0;
  for (int y = 0; y < ink.height(); ++y) {
    const double sum = qvp::sum(ink.view({0, y, ink.width(), 1}));
    moment += sum * sum;
  }
  return moment;
}

// The angle that makes lines level, out of so many steps in both directions from a middle.
double BestAngle(const Gray& ink, double middle, int steps, double step) {
  const auto center = CenterOfMass(ink);
  double best = middle, most = -1;
  for (int i = -steps; i <= steps; ++i) {
    const double angle = middle + i * step, levelness = Levelness(Turn(ink, angle, center));
    if (levelness > most) most = levelness, best = angle;
  }
  return best;
}

// By how many degrees the page has to be turned counter-clockwise, up to 15 in both directions: first half a degree by
// half a degree, then finely. A page of 800 pixels tells them as well as a larger one.
double FindSkew(const Gray& ink) {
  const double scale = std::min(1.0, 800.0 / std::max(ink.width(), ink.height()));
  Gray small(std::max(1, static_cast<int>(ink.width() * scale)), std::max(1, static_cast<int>(ink.height() * scale)));
  qvp::resize(ink, small, {.method = qvp::InterpolationType::super});
  return BestAngle(small, BestAngle(small, 0, 30, 0.5), 10, 0.05);
}

// The first and the last of the lines of pixels with at least a few that are ink; specks of dust do not count.
template <class Line>
std::pair<int, int> Extent(int count, Line line) {
  const auto has_ink = [&](int i) { return qvp::sum(line(i)) >= 3 * 255; };
  int first = 0, last = count - 1;
  while (first < last && !has_ink(first)) ++first;
  while (last > first && !has_ink(last)) --last;
  return {first, last};
}

// What holds all ink, and a margin where the page has one.
QvpiRect Crop(const Gray& ink) {
  const int width = ink.width(), height = ink.height(), margin = std::max(width, height) / 40;
  auto [left, right] = Extent(width, [&](int x) { return ink.view({x, 0, 1, height}); });
  auto [top, bottom] = Extent(height, [&](int y) { return ink.view({0, y, width, 1}); });
  left = std::max(left - margin, 0), right = std::min(right + margin, width - 1);
  top = std::max(top - margin, 0), bottom = std::min(bottom + margin, height - 1);
  return {left, top, right - left + 1, bottom - top + 1};
}

int main(int count, char** arguments) try {
  if (count != 3) {
    std::fprintf(stderr, "usage: %s SCAN CLEAN\n", arguments[0]);
    return 2;
  }
  const Gray ink = FindInk(Load<1>(arguments[1]));
  const double skew = FindSkew(ink);
  Gray clean = Turn(ink, skew, CenterOfMass(ink));
  const QvpiRect part = Crop(clean);
  qvp::bitwise_not(clean, clean);
  Save(arguments[2], clean.view(part));
  std::printf("turned by %.2f degrees, cut to %d x %d\n", skew, part.width, part.height);
  return 0;
} catch (const std::exception& failure) {
  std::fprintf(stderr, "%s\n", failure.what());
  return 1;
}
