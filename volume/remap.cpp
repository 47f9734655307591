// Remap of volumes: each voxel takes the value at a point that three maps tell.
#include "qvpi.h"
#include "volume/sample.h"
#include "volume/tile.h"

namespace {
using namespace qvp;
using namespace qvp::volume;

template <class T>
struct Call {
  Volume<const T> src;
  QvprVolume srcSize;
  QvprCuboid cuboid;
  Volume<const float> maps[3];
  Volume<T> dst;
  QvprVolume size;
  int interpolation;

  // One that starts at a negative position counts as empty.
  VolumeSize CuboidSize() const {
    const bool isNegative = std::min({cuboid.x, cuboid.y, cuboid.z}) < 0;
    return isNegative ? QvprVolume{} : QvprVolume{cuboid.width, cuboid.height, cuboid.depth};
  }
  bool IsBeyond() const { return cuboid.x >= srcSize.width || cuboid.y >= srcSize.height || cuboid.z >= srcSize.depth; }
  // Of one axis: the cuboid within the source.
  static Extent Clipped(int start, int length, int most) {
    return {start, ptrdiff_t{start} + std::min(length, most - start)};
  }
};

template <class T>
QvpStatus Check(const Call<T>& call) {
  const std::initializer_list<VolumeOperand> volumes = {call.src, call.maps[0], call.maps[1], call.maps[2], call.dst};
  const std::initializer_list<VolumeSize> sizes = {call.srcSize, call.CuboidSize(), call.size};
  if (const QvpStatus failed = CheckVolumes(volumes, sizes)) return failed;
  switch (call.interpolation) {
    case qvpInterpolationNearest:
    case qvpInterpolationLinear:
    case qvpInterpolationCubicClassic:
    case qvpInterpolationCubic: return call.IsBeyond() ? qvpStatusNoIntersection : qvpStatusNoError;
    default: return qvpStatusInterpolation;
  }
}

// All planes of the source that taps of points in the cuboid lie in.
template <class T>
Extent PlanesOf(const Call<T>& call, Extent planes, int taps) {
  const ptrdiff_t before = sampling::kTapsBefore(taps), behind = taps - 1 - before, depth = call.srcSize.depth;
  return {std::max<ptrdiff_t>(planes.begin - before, 0), std::min(planes.end + behind, depth)};
}

template <class T>
bool HasPlanes(const Call<T>& call, Extent read) {
  const Extent written{0, call.size.depth};
  return call.src.HasPlanes(read) && call.maps[0].HasPlanes(written) && call.maps[1].HasPlanes(written) &&
         call.maps[2].HasPlanes(written) && call.dst.HasPlanes(written);
}

// A row by blocks; what a last one has less than whole vectors is copied, for loads that reach beyond it.
template <int kTaps, class T>
void RemapRow(BlockSampler<kTaps, T>& sampler, const float* const (&maps)[3], ptrdiff_t width, T* dst) {
  alignas(64) float copies[3][kBlockRoom];
  ForEachBlock(0, width, [&](ptrdiff_t x, ptrdiff_t n) {
    const float* rows[3] = {maps[0] + x, maps[1] + x, maps[2] + x};
    for (int k = 0; k < 3 && n % hn::MaxLanes(FloatLanes()) != 0; ++k) {
      std::memcpy(copies[k], rows[k], n * sizeof(float));
      std::fill(copies[k] + n, copies[k] + n + hn::MaxLanes(FloatLanes()), 0.0F);
      rows[k] = copies[k];
    }
    sampler.Sample(MappedPoints(rows), n, dst + x);
  });
}

template <int kTaps, class T>
void RemapBy(const Call<T>& call, const Source<T>& source) {
  BlockSampler<kTaps, T> sampler(source);
  for (int z = 0; z < call.size.depth; ++z) {
    const Image<const float> maps[3] = {call.maps[0].Plane(z), call.maps[1].Plane(z), call.maps[2].Plane(z)};
    const Image<T> dst = call.dst.Plane(z);
    for (int y = 0; y < call.size.height; ++y) {
      RemapRow(sampler, {maps[0].Row(y), maps[1].Row(y), maps[2].Row(y)}, call.size.width, dst.Row(y));
    }
  }
}

template <class T>
QvpStatus Remap(const Call<T>& call) {
  if (const QvpStatus status = Check(call)) return status;
  const int taps = TapsOf(call.interpolation);
  const QvprCuboid c = call.cuboid;
  const Extent bounds[3] = {call.Clipped(c.x, c.width, call.srcSize.width),
                            call.Clipped(c.y, c.height, call.srcSize.height),
                            call.Clipped(c.z, c.depth, call.srcSize.depth)};
  const Extent planes = PlanesOf(call, bounds[2], taps);
  if (!HasPlanes(call, planes)) return qvpStatusNullPointer;
  Source<T> source{call.src,
                   {{0, call.srcSize.width}, {0, call.srcSize.height}, {0, call.srcSize.depth}},
                   BorderKind::kReplicate,
                   {},
                   {0, call.interpolation == qvpInterpolationCubicClassic ? 0.75 : 0.5}};
  source.SetBounds(bounds);
  source.planes = planes;
  taps == 1 ? RemapBy<1>(call, source) : taps == 2 ? RemapBy<2>(call, source) : RemapBy<4>(call, source);
  return qvpStatusNoError;
}

}  // namespace

#define REMAP(type)                                                                                                  \
  QvpStatus qvprRemap_##type##_C1V(const Qvp##type* pSrc, QvprVolume srcVolume, int srcStep, int srcPlaneStep,       \
                                   QvprCuboid srcCuboid, const Qvp32f* pxMap, const Qvp32f* pyMap,                   \
                                   const Qvp32f* pzMap, int mapStep, int mapPlaneStep, Qvp##type* pDst, int dstStep, \
                                   int dstPlaneStep, QvprVolume dstVolume, int interpolation) {                      \
    const auto map = [=](const Qvp32f* p) { return ViewVolume<float>(p, mapStep, mapPlaneStep); };                   \
    return Remap(Call<Qvp##type>{ViewVolume<Qvp##type>(pSrc, srcStep, srcPlaneStep),                                 \
                                 srcVolume,                                                                          \
                                 srcCuboid,                                                                          \
                                 {map(pxMap), map(pyMap), map(pzMap)},                                               \
                                 ViewVolume<Qvp##type>(pDst, dstStep, dstPlaneStep),                                 \
                                 dstVolume,                                                                          \
                                 interpolation});                                                                    \
  }                                                                                                                  \
  QvpStatus qvprRemap_##type##_C1PV(const Qvp##type* const pSrc[], QvprVolume srcVolume, int srcStep,                \
                                    QvprCuboid srcCuboid, const Qvp32f* const pxMap[], const Qvp32f* const pyMap[],  \
                                    const Qvp32f* const pzMap[], int mapStep, Qvp##type* const pDst[], int dstStep,  \
                                    QvprVolume dstVolume, int interpolation) {                                       \
    const auto map = [=](const Qvp32f* const* p) { return ViewVolume<float>(p, mapStep); };                          \
    return Remap(Call<Qvp##type>{ViewVolume<Qvp##type>(pSrc, srcStep),                                               \
                                 srcVolume,                                                                          \
                                 srcCuboid,                                                                          \
                                 {map(pxMap), map(pyMap), map(pzMap)},                                               \
                                 ViewVolume<Qvp##type>(pDst, dstStep),                                               \
                                 dstVolume,                                                                          \
                                 interpolation});                                                                    \
  }
REMAP(8u)
REMAP(16u)
REMAP(16s)
REMAP(32f)
