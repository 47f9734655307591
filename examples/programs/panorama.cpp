// Joins two photographs to one: the right one is brought into the perspective of the left one, and fades in where both
// show the same. The left third of RIGHT has to be seen in LEFT, at about the same size and level.
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <qvpi/parallel.hpp>

#include "picture.hpp"

using Photo = qvp::Image<Qvp8u, 3>;
using Point = std::array<double, 2>;

// How far the top of a parabola through three values in a row lies from the middle one, which is the largest.
double TopOfParabola(double before, double top, double behind) {
  const double curvature = before - 2 * top + behind;
  return curvature < 0 ? (before - behind) / (2 * curvature) : 0;
}

// Where the photograph is most like a patch, to parts of a pixel: the middle of that place.
Point Find(const Photo& photo, qvp::View<const Qvp8u, 3> patch) {
  qvp::Image<Qvp32f> likeness(photo.width() - patch.width() + 1, photo.height() - patch.height() + 1);
  qvp::Buffer buffer;
  qvp::match_correlation(photo, patch, likeness, qvp::MatchShape::valid, qvp::MatchNorm::coefficient, buffer);
  const auto best = qvp::argmax(likeness);
  if (best.value < 0.5F || likeness.width() < 3 || likeness.height() < 3)
    throw std::runtime_error("the photographs do not show the same");
  const int x = std::clamp(best.x, 1, likeness.width() - 2), y = std::clamp(best.y, 1, likeness.height() - 2);
  const auto at = [&](int column, int row) { return likeness.row(row)[column]; };
  return {x + TopOfParabola(at(x - 1, y), at(x, y), at(x + 1, y)) + (patch.width() - 1) / 2.0,
          y + TopOfParabola(at(x, y - 1), at(x, y), at(x, y + 1)) + (patch.height() - 1) / 2.0};
}

// From positions in the right photograph to those of the same things in the left one: four patches at the corners of
// its left third tell.
qvp::Matrix<3, 3> FindPerspective(const Photo& left, const Photo& right) {
  const int side = std::min(right.width(), right.height()) / 8 + 1;
  const int near = right.width() / 50, far = right.width() / 3 - side;
  const int high = right.height() / 10, low = right.height() - high - side;
  const QvpiPoint places[4] = {{near, high}, {far, high}, {far, low}, {near, low}};
  qvp::Quad from, to;
  for (int i = 0; i < 4; ++i) {
    const auto [x, y] = places[i];
    from[i] = {x + (side - 1) / 2.0, y + (side - 1) / 2.0};
    to[i] = Find(left, right.view({x, y, side, side}));
  }
  return qvp::perspective_transform(from, to);
}

Point Map(const qvp::Matrix<3, 3>& m, double x, double y) {
  const auto row = [&](int i) { return m[i][0] * x + m[i][1] * y + m[i][2]; };
  return {row(0) / row(2), row(1) / row(2)};
}

// What is seen of both in the left one's coordinates: from its first column on, rows `top` to `bottom`; the right one
// begins at `seam` in all of them.
struct Frame {
  int seam, width, top, bottom;
};

Frame FindFrame(const qvp::Matrix<3, 3>& map, QvpiSize left, QvpiSize right) {
  const double x = right.width - 1, y = right.height - 1;
  const Point a = Map(map, 0, 0), b = Map(map, x, 0), c = Map(map, x, y), d = Map(map, 0, y);
  const auto up = [](double value) { return static_cast<int>(std::ceil(value)); };
  const auto down = [](double value) { return static_cast<int>(std::floor(value)); };
  const Frame frame = {up(std::max(a[0], d[0])), down(std::min(b[0], c[0])) + 1, std::max(0, up(std::max(a[1], b[1]))),
                       std::min(left.height, down(std::min(c[1], d[1])) + 1)};
  const bool makes_sense = frame.seam > 0 && frame.seam < left.width && frame.width > left.width &&
                           frame.width < left.width + 2 * right.width && frame.top < frame.bottom;
  if (!makes_sense) throw std::runtime_error("the photographs do not lie beside one another");
  return frame;
}

// From all of `left` at the first column to all of `right` at the last one, into `right`.
void FadeIn(qvp::View<const Qvp8u, 3> left, qvp::View<Qvp8u, 3> right) {
  Photo weights(right.size()), part(right.size());
  const double slope = 255.0 / (right.width() - 1);
  qvp::ramp(weights, {0, 0, 0}, {slope, slope, slope}, {0, 0, 0});
  qvp::multiply_full_scale(right, weights, right);
  qvp::bitwise_not(weights, weights);
  qvp::multiply_full_scale(left, weights, part);
  qvp::add(part, right, right);
}

Photo Join(const Photo& left, const Photo& right) {
  const auto map = FindPerspective(left, right);
  const Frame frame = FindFrame(map, left.size(), right.size());
  Photo all(frame.width, left.height());
  const qvp::Warp<Qvp8u, 3> warp(right.size(), all.size(), map);
  qvp::Parallel().run(warp, right, all);
  const QvpiRect before = {0, 0, frame.seam, left.height()};
  const QvpiRect both = {frame.seam, 0, left.width() - frame.seam, left.height()};
  qvp::copy_to(left.view(before), all.view(before));
  FadeIn(left.view(both), all.view(both));
  Photo joined(frame.width, frame.bottom - frame.top);
  qvp::copy_to(all.view({0, frame.top, frame.width, joined.height()}), joined);
  return joined;
}

int main(int count, char** arguments) try {
  if (count != 4) {
    std::fprintf(stderr, "usage: %s LEFT RIGHT JOINED\n", arguments[0]);
    return 2;
  }
  const Photo joined = Join(Load<3>(arguments[1]), Load<3>(arguments[2]));
  Save(arguments[3], joined.view());
  return 0;
} catch (const std::exception& failure) {
  std::fprintf(stderr, "%s\n", failure.what());
  return 1;
}
