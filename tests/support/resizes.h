// Resizing by its definition, which images, frames and volumes share: how much each sample of an axis counts for one of
// the destination; and records for resizes of images.
#pragma once

#include <string>
#include <vector>

#include "tests/support/bordered.h"
#include "tests/support/exports.h"
#include "tests/support/name.h"
#include "tests/support/same.h"

namespace test {

// A method with its parameters.
struct Resizing {
  const char* name;  // in those of functions
  QvpiInterpolationType interpolation;
  bool isAntialiasing = false;
  double b = 0, c = 0;
  int lobes = 0;
  double shift[2] = {};

  bool Is(QvpiInterpolationType other) const { return interpolation == other; }
  std::string Operation() const { return std::string("Resize") + (isAntialiasing ? "Antialiasing" : name); }
  int Reach() const;
  // Whether there are resizes of a length to another.
  bool Fits(int from, int to) const;
};
inline const Resizing kNearest{"Nearest", qvpInterpolationNearest}, kLinear{"Linear", qvpInterpolationLinear},
    kSpline{"Cubic", qvpInterpolationCubic, false, 0, 0.5},
    kCubic{"Cubic", qvpInterpolationCubic, false, 1 / 3.0f, 1 / 3.0f},
    kLanczos2{"Lanczos", qvpInterpolationLanczos, false, 0, 0, 2},
    kLanczos3{"Lanczos", qvpInterpolationLanczos, false, 0, 0, 3}, kSuper{"Super", qvpInterpolationSuper},
    kShifted{"Super", qvpInterpolationSuper, false, 0, 0, 0, {0.25, -1.5}},
    kSmoothLinear{"Linear", qvpInterpolationLinear, true}, kSmoothCubic{"Cubic", qvpInterpolationCubic, true, 0, 0.5},
    kSmoothLanczos{"Lanczos", qvpInterpolationLanczos, true, 0, 0, 3};

// Of images, with sizes of 32 bits.
inline const Export& FunctionOf(const Resizing& method, std::string_view type, int channels) {
  return FunctionOf(method.Operation(), ElementOf(type), channels);
}

struct Axis {
  int from, to;
  int length = from;    // of the source where that is not what the ratio is made of
  double origin = 0.5;  // of samples
  double shift = 0;     // of areas
};
struct Tap {
  int at;
  double weight;
};
// Positions may be outside of the source.
std::vector<Tap> TapsOf(const Resizing& method, const Axis& axis, int d);
// Those for each sample of the destination.
std::vector<std::vector<Tap>> AllTapsOf(const Resizing& method, const Axis& axis, int n);

// The sum of at(x, y) with weights; where bytes are interpolated linearly, with whole weights and two roundings.
template <class At>
double Interpolated(const std::vector<Tap>& across, const std::vector<Tap>& down, const At& at) {
  double sum = 0;
  for (const Tap& y : down) {
    for (const Tap& x : across) sum += y.weight * x.weight * static_cast<double>(at(x.at, y.at));
  }
  return sum;
}
template <class At>
int InterpolatedBytes(const std::vector<Tap>& across, const std::vector<Tap>& down, const At& at) {
  const auto second = [](const std::vector<Tap>& taps) {
    return taps.size() < 2 ? 0 : static_cast<int>(taps[1].weight * 16384 + 1e-7);
  };
  const int w = second(across), v = second(down);
  const auto row = [&](int y) {
    return (static_cast<int>(at(across.front().at, y)) * (16384 - w) + static_cast<int>(at(across.back().at, y)) * w +
            128) >>
           8;
  };
  return (row(down.front().at) * (16384 - v) + row(down.back().at) * v + (1 << 19)) >> 20;
}

// Makes a record for pixels of a type, with lengths of 64 bits or those of 32.
QvpStatus InitResize(const Resizing& method, std::string_view type, QvpiSize from, QvpiSize to, bool isWide, void* spec,
                     uint8_t* buffer);

// A record in memory of the reported size, which begins at any address.
class ImageResize {
 public:
  ImageResize(const Resizing& method, std::string_view type, QvpiSize from, QvpiSize to, bool isWide = false);

  QvpiResizeSpec* spec() const { return reinterpret_cast<QvpiResizeSpec*>(memory_->data()); }
  QvpStatus status() const { return status_; }
  QvpiSize to() const { return to_; }
  Reach ReachOf() const;
  QvpiPoint SourceOf(QvpiPoint tile) const;
  size_t BufferSize(QvpiSize tile, int channels) const;
  // `src` begins with the first pixel that the tile reads.
  QvpStatus operator()(const Export& function, const Argument& src, const Argument& dst, QvpiRect tile,
                       int border) const;

 private:
  QvpStatus Query(const std::string& query, const std::vector<Named>& arguments) const;

  std::string type_;
  QvpiSize to_;
  bool isWide_;
  std::unique_ptr<Block> memory_;
  QvpStatus status_;
};

// All of an image.
Samples Resized(const Export& function, const ImageResize& resize, const Bordered& src);

}  // namespace test
