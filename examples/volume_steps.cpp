// Steps of qvpi_volume.h: the photograph as a relief, whose height is its brightness.
#include <algorithm>
#include <cmath>
#include <vector>

#include "examples/demo.h"

namespace demo {
namespace {

constexpr int kDepth = 64;

// Planes one below the other in an image.
struct Volume {
  QvprVolume size;
  Grey planes;

  explicit Volume(QvprVolume s) : size(s), planes({s.width, s.height * s.depth}) {}
  Qvp8u* data() { return planes.data(); }
  int step() const { return planes.step(); }
  int planeStep() const { return planes.step() * size.height; }
  QvpiSize All() const { return planes.size(); }
};

Volume Relief(const Rgb& photo) {
  const int side = std::min({photo.size().width, photo.size().height, 160});
  const int stride = std::min(photo.size().width, photo.size().height) / side;
  Volume relief({side, side, kDepth});
  for (int z = 0; z < kDepth; ++z) {
    for (int y = 0; y < side; ++y) {
      for (int x = 0; x < side; ++x) {
        const Qvp8u grey = photo.At(x * stride, y * stride)[1];
        *relief.planes.At(x, z * side + y) = z <= grey / 4 ? grey : Qvp8u{0};
      }
    }
  }
  return relief;
}

// The greatest value along z.
Grey Projected(Volume& volume) {
  const QvpiSize size{volume.size.width, volume.size.height};
  Grey most(size);
  Require(qvpiSet_8u_C1R(0, most.data(), most.step(), size));
  for (int z = 0; z < volume.size.depth; ++z) {
    const Qvp8u* const plane = volume.planes.At(0, z * size.height);
    for (int y = 0; y < size.height; ++y) {
      for (int x = 0; x < size.width; ++x) {
        *most.At(x, y) = std::max(*most.At(x, y), plane[ptrdiff_t{y} * volume.step() + x]);
      }
    }
  }
  return most;
}

Volume Salted(Demo& demo, Volume& relief) {
  std::vector<Qvp8u> record(256);
  auto* const noise = reinterpret_cast<QvpiNoiseSpec*>(record.data());
  Require(qvpiNoiseSaltPepperInit(0.001, 1, 0, 255, 1, 0, noise));
  Volume salted(relief.size);
  demo.Time(relief.All(), 1 + 1,
            CALL(qvpiNoise_8u_C1R, relief.data(), relief.step(), salted.data(), salted.step(), relief.All(), {0, 0}, 0,
                 noise));
  demo.Show("A relief with salt, from the front", Projected(salted));
  return salted;
}

void ShowMedian(Demo& demo, Volume& relief) {
  const QvprVolume mask{3, 3, 3};
  int bytes = 0;
  Require(qvprFilterMedianBorderGetBufferSize(mask, relief.size, qvp8u, &bytes));
  std::vector<Qvp8u> buffer(bytes);
  Volume salted = Salted(demo, relief), clean(relief.size);
  demo.Time(relief.All(), 1 + 1,
            CALL(qvprFilterMedianBorder_8u_C1V, salted.data(), salted.step(), salted.planeStep(), clean.data(),
                 clean.step(), clean.planeStep(), relief.size, mask, qvpBorderReplicate, nullptr, buffer.data()));
  demo.Show("Medians of 3x3x3", Projected(clean));
}

void ShowSmoothed(Demo& demo, Volume& relief) {
  constexpr Qvp32f kTaps[] = {1 / 16.0f, 4 / 16.0f, 6 / 16.0f, 4 / 16.0f, 1 / 16.0f};
  const QvprVolume kernel{5, 5, 5};
  int recordBytes = 0, bufferBytes = 0;
  Require(qvprFilterBorderGetSize(kernel, relief.size, qvp8u, qvp32f, &recordBytes, &bufferBytes));
  std::vector<Qvp8u> record(recordBytes), buffer(bufferBytes);
  auto* const spec = reinterpret_cast<QvprFilterBorderSpec*>(record.data());
  Require(qvprFilterBorderSeparableInit_32f(kTaps, kTaps, kTaps, kernel, {2, 2, 2}, qvp8u, qvpRoundNear, spec));
  Volume smooth(relief.size);
  demo.Time(relief.All(), 1 + 1,
            CALL(qvprFilterBorder_8u_C1V, relief.data(), relief.step(), relief.planeStep(), smooth.data(),
                 smooth.step(), smooth.planeStep(), relief.size, qvpBorderReplicate, nullptr, spec, buffer.data()));
  demo.Show("Smoothed in space", Projected(smooth));
}

void ShowEnlarged(Demo& demo, Volume& relief) {
  const QvprVolume part{48, 48, kDepth}, to{144, 144, kDepth};
  int bytes = 0;
  Require(qvprResizeGetSize(part, to, qvp8u, qvpInterpolationCubic, &bytes));
  std::vector<Qvp8u> record(bytes);
  auto* const spec = reinterpret_cast<QvprResizeSpec*>(record.data());
  Require(qvprResizeCubicInit(part, to, qvp8u, 0, 0.5f, spec));
  Require(qvprResizeGetBufferSize(spec, to, &bytes));
  std::vector<Qvp8u> buffer(bytes);
  Volume large(to);
  const Qvp8u* const from = relief.planes.At(relief.size.width / 2 - 24, relief.size.height / 3 - 24);
  demo.Time(large.All(), 1,
            CALL(qvprResize_8u_C1V, from, relief.step(), relief.planeStep(), large.data(), large.step(),
                 large.planeStep(), {0, 0, 0}, to, qvpBorderReplicate, spec, buffer.data()));
  demo.Show("A part, enlarged by cubic splines", Projected(large));
}

// About the vertical axis.
void ShowTurned(Demo& demo, Volume& relief, int degrees) {
  const QvprVolume to{relief.size.width, relief.size.height, relief.size.width};
  const double axis[] = {0, 1, 0}, shift[3][4] = {{1, 0, 0, 0}, {0, 1, 0, 0}, {0, 0, 1, (to.depth - kDepth) / 2.0}};
  const double center[] = {(to.width - 1) / 2.0, (to.height - 1) / 2.0, (to.depth - 1) / 2.0};
  double turn[3][4], coeffs[3][4];
  Require(qvprGetRotateTransform(degrees, axis, center, turn));
  Require(qvprGetAffineProduct(shift, turn, coeffs));
  int bytes = 0;
  Require(qvprWarpAffineGetSize(relief.size, to, qvp8u, coeffs, qvpInterpolationLinear, qvpWarpForward, qvpBorderConst,
                                &bytes));
  std::vector<Qvp8u> record(bytes);
  auto* const spec = reinterpret_cast<QvprWarpSpec*>(record.data());
  const double black = 0;
  Require(qvprWarpAffineLinearInit(relief.size, to, qvp8u, coeffs, qvpWarpForward, qvpBorderConst, &black, spec));
  Require(qvprWarpGetBufferSize(spec, to, &bytes));
  std::vector<Qvp8u> buffer(bytes);
  Volume turned(to);
  demo.Time(turned.All(), 1,
            CALL(qvprWarpAffine_8u_C1V, relief.data(), relief.step(), relief.planeStep(), turned.data(), turned.step(),
                 turned.planeStep(), {0, 0, 0}, to, spec, buffer.data()));
  demo.Show("Turned by " + std::to_string(degrees) + " degrees", Projected(turned));
}

using Map = Image<qvpiMalloc_32f_C1, 1>;

void ShowWave(Demo& demo, Volume& relief) {
  const QvprVolume size = relief.size;
  Map x(relief.All()), y(relief.All()), z(relief.All());
  for (int row = 0; row < relief.All().height; ++row) {
    const auto down = static_cast<Qvp32f>(row % size.height), back = static_cast<Qvp32f>(row / size.height);
    for (int column = 0; column < size.width; ++column) {
      *x.At(column, row) = static_cast<Qvp32f>(column) + 5 * std::sin(down / 9 + back / 20);
      *y.At(column, row) = down;
      *z.At(column, row) = back;
    }
  }
  Volume wave(size);
  Require(qvpiSet_8u_C1R(0, wave.data(), wave.step(), wave.All()));
  demo.Time(wave.All(), 1 + 12,
            CALL(qvprRemap_8u_C1V, relief.data(), size, relief.step(), relief.planeStep(),
                 {0, 0, 0, size.width, size.height, size.depth}, x.data(), y.data(), z.data(), x.step(),
                 x.step() * size.height, wave.data(), wave.step(), wave.planeStep(), size, qvpInterpolationLinear));
  demo.Show("Along a wave", Projected(wave));
}

// A row of each plane: the same memory with the plane step as its row step.
void ShowCoronal(Demo& demo, Volume& relief) {
  const QvpiSize size{relief.size.width, kDepth};
  Grey section(size);
  const Qvp8u* const row = relief.planes.At(0, relief.size.height / 3);
  demo.Time(size, 1 + 1, CALL(qvpiCopy_8u_C1R, row, relief.planeStep(), section.data(), section.step(), size));
  demo.Show("A section seen from above", section);
}

}  // namespace

void VolumeSteps(Demo& demo) {
  Volume relief = Relief(demo.photo());
  ShowMedian(demo, relief);
  ShowSmoothed(demo, relief);
  ShowEnlarged(demo, relief);
  for (const int degrees : {20, 40}) ShowTurned(demo, relief, degrees);
  ShowWave(demo, relief);
  ShowCoronal(demo, relief);
}

}  // namespace demo
