// Affine warps and remaps of volumes, of a turn by 10 degrees with a tilt of 7. There is no peer in C or C++ here; the
// benchmarks of the Python package have one.
#include "bench/volumes.h"

namespace {
using namespace bench;

constexpr double kAnyForm = 0.8;  // planes are looked up for every voxel

struct Method {
  const char* name;
  QvpiInterpolationType interpolation;
};
constexpr Method kNearest{"nearest", qvpInterpolationNearest}, kLinear{"linear", qvpInterpolationLinear},
    kCubic{"cubic", qvpInterpolationCubic};

struct Turn {
  double coeffs[3][4];

  explicit Turn(QvprVolume size) {
    const double center[] = {(size.width - 1) / 2.0, (size.height - 1) / 2.0, (size.depth - 1) / 2.0};
    const double z[] = {0, 0, 1}, x[] = {1, 0, 0};
    double turn[3][4], tilt[3][4];
    Require(qvprGetRotateTransform(10, z, center, turn));
    Require(qvprGetRotateTransform(7, x, center, tilt));
    Require(qvprGetAffineProduct(turn, tilt, coeffs));
  }
  double At(int axis, int x, int y, int z) const {
    const double* c = coeffs[axis];
    return c[0] * x + c[1] * y + c[2] * z + c[3];
  }
};

using Record = Prepared<QvprWarpSpec>;

Record RecordOf(const Method& method, QvprVolume size, QvpDataType type) {
  const Turn turn(size);
  int spec = 0, buffer = 0;
  Require(qvprWarpAffineGetSize(size, size, type, turn.coeffs, method.interpolation, qvpWarpBackward, kBorder, &spec));
  Record record{Pixels<Qvp8u>(spec), nullptr};
  const auto init =
      method.interpolation == qvpInterpolationLinear ? qvprWarpAffineLinearInit : qvprWarpAffineNearestInit;
  Require(method.interpolation == qvpInterpolationCubic
              ? qvprWarpAffineCubicInit(size, size, type, turn.coeffs, qvpWarpBackward, 0, 0.5, kBorder, nullptr,
                                        record.get())
              : init(size, size, type, turn.coeffs, qvpWarpBackward, kBorder, nullptr, record.get()));
  Require(qvprWarpGetBufferSize(record.get(), size, &buffer));
  record.buffer = Pixels<Qvp8u>(buffer);
  return record;
}

template <class T, class Volume, class Planes>
void AddWarp(const Method& method, QvprVolume size, Volume volume, Planes planes) {
  const auto &src = Source<T>(size), &dst = Destination<T>(size);
  const Record record = RecordOf(method, size, kType<T>);
  const auto byVolume = [=, &src, &dst] {
    Require(volume(src.data(), src.step(), src.planeStep(), dst.data(), dst.step(), dst.planeStep(), {0, 0, 0}, size,
                   record.get(), record.buffer.get()));
  };
  const auto byPlanes = [=, &src, &dst] {
    Require(planes(src.planes.data(), src.step(), dst.planes.data(), dst.step(), {0, 0, 0}, size, record.get(),
                   record.buffer.get()));
  };
  AddForms(std::string("warp ") + method.name + " " + kTypeName<T>, size, {src.bytes(), dst.bytes()},
           {byVolume, byPlanes, kAnyForm});
}

// The positions of the turn.
template <int kAxis>
const Stack<float>& MapOf(QvprVolume size) {
  const auto& map = Shared<float, 2 + kAxis>(size);
  const Turn turn(size);
  for (int z = 0; z < size.depth; ++z) {
    for (int i = 0; i < size.width * size.height; ++i) {
      map.planes[z][i] = static_cast<float>(turn.At(kAxis, i % size.width, i / size.width, z));
    }
  }
  return map;
}

template <class T, class Volume, class Planes>
void AddRemap(const Method& method, QvprVolume size, Volume volume, Planes planes) {
  const auto &src = Source<T>(size), &dst = Destination<T>(size);
  const auto &x = MapOf<0>(size), &y = MapOf<1>(size), &z = MapOf<2>(size);
  const QvprCuboid all{0, 0, 0, size.width, size.height, size.depth};
  const auto byVolume = [=, &src, &dst, &x, &y, &z] {
    Require(volume(src.data(), size, src.step(), src.planeStep(), all, x.data(), y.data(), z.data(), x.step(),
                   x.planeStep(), dst.data(), dst.step(), dst.planeStep(), size, method.interpolation));
  };
  const auto byPlanes = [=, &src, &dst, &x, &y, &z] {
    Require(planes(src.planes.data(), size, src.step(), all, x.planes.data(), y.planes.data(), z.planes.data(),
                   x.step(), dst.planes.data(), dst.step(), size, method.interpolation));
  };
  AddForms(std::string("remap ") + method.name + " " + kTypeName<T>, size, {src.bytes() + 3 * x.bytes(), dst.bytes()},
           {byVolume, byPlanes, kAnyForm});
}

const bool kAdded = [] {
  for (const QvprVolume size : kCubes) {
    AddWarp<Qvp8u>(kNearest, size, qvprWarpAffine_8u_C1V, qvprWarpAffine_8u_C1PV);
    AddWarp<Qvp8u>(kLinear, size, qvprWarpAffine_8u_C1V, qvprWarpAffine_8u_C1PV);
    AddWarp<Qvp16u>(kLinear, size, qvprWarpAffine_16u_C1V, qvprWarpAffine_16u_C1PV);
    AddWarp<Qvp16s>(kLinear, size, qvprWarpAffine_16s_C1V, qvprWarpAffine_16s_C1PV);
    AddWarp<float>(kLinear, size, qvprWarpAffine_32f_C1V, qvprWarpAffine_32f_C1PV);
    AddWarp<float>(kCubic, size, qvprWarpAffine_32f_C1V, qvprWarpAffine_32f_C1PV);
    AddRemap<Qvp8u>(kNearest, size, qvprRemap_8u_C1V, qvprRemap_8u_C1PV);
    AddRemap<Qvp16u>(kLinear, size, qvprRemap_16u_C1V, qvprRemap_16u_C1PV);
    AddRemap<float>(kLinear, size, qvprRemap_32f_C1V, qvprRemap_32f_C1PV);
    AddRemap<float>(kCubic, size, qvprRemap_32f_C1V, qvprRemap_32f_C1PV);
  }
  AddWarp<Qvp16u>(kLinear, kBeyondCaches, qvprWarpAffine_16u_C1V, qvprWarpAffine_16u_C1PV);
  AddRemap<Qvp16u>(kLinear, kBeyondCaches, qvprRemap_16u_C1V, qvprRemap_16u_C1PV);
  return true;
}();

}  // namespace
