// Remap: each destination pixel takes the value at a point that two maps tell.
#include "base/export.h"
#include "geometry/sampler.h"

namespace qvp::remap {
namespace {

using namespace sampling;

template <class T>
struct Call {
  using Map = WorkOf<T>;

  Image<const T> src;
  QvpiSize srcSize;
  QvpiRect roi;
  Image<const Map> x, y;
  Image<T> dst;
  Size size;
  int interpolation;
};

template <class T>
QvpStatus Check(const Call<T>& call, int method) {
  if (!call.src.data || !call.dst.data || !call.x.data || !call.y.data) return qvpStatusNullPointer;
  const QvpiRect roi = call.roi;
  if (call.srcSize.width < 1 || call.srcSize.height < 1) return qvpStatusSize;
  if (roi.x < 0 || roi.y < 0 || roi.width < 1 || roi.height < 1) return qvpStatusSize;
  if (call.size.width < 1 || call.size.height < 1) return qvpStatusSize;
  switch (method) {
    case qvpInterpolationNearest:
    case qvpInterpolationLinear:
    case qvpInterpolationCubicClassic:
    case qvpInterpolationCubic:
    case qvpInterpolationLanczos: break;
    default: return qvpStatusInterpolation;
  }
  if (call.src.step < 1 || call.dst.step < 1 || call.x.step < 1 || call.y.step < 1) return qvpStatusStep;
  return roi.x >= call.srcSize.width || roi.y >= call.srcSize.height ? qvpStatusNoIntersection : qvpStatusNoError;
}

// Small images have too few pixels for the larger methods.
int MethodFor(QvpiSize size, int method) {
  const int shortest = std::min(size.width, size.height);
  if (shortest < 6 && method == qvpInterpolationLanczos) method = qvpInterpolationCubicClassic;
  const bool isCubic = method == qvpInterpolationCubicClassic || method == qvpInterpolationCubic;
  if (shortest < 4 && isCubic) method = qvpInterpolationLinear;
  return shortest == 1 ? qvpInterpolationNearest : method;
}

// Points of the region have a value. Linear interpolation keeps to its pixels; the larger methods read around it.
template <class T>
Task<T> TaskOf(const Call<T>& call, int method) {
  const QvpiRect roi = call.roi;
  const Extent columns{roi.x, ptrdiff_t{roi.x} + std::min(roi.width, call.srcSize.width - roi.x)};
  const Extent rows{roi.y, ptrdiff_t{roi.y} + std::min(roi.height, call.srcSize.height - roi.y)};
  Task<T> task{call.src, {{0, call.srcSize.width}, {0, call.srcSize.height}},
               {},       {0, method == qvpInterpolationCubicClassic ? 0.75 : 0.5},
               false,    {}};
  if (TapsOf(method) <= 2) {
    task.area.columns = columns;
    task.area.rows = rows;
  }
  task.area.isBounded = true;
  task.area.isSmooth = call.interpolation < 0;
  task.area.SetBounds(columns, rows);
  task.SetInterior(TapsOf(method));
  return task;
}

// Points of a row, with copies of the last one behind them.
template <class Map>
void Stage(const Map* from, ptrdiff_t n, Map* to) {
  std::memcpy(to, from, n * sizeof(Map));
  std::fill(to + n, to + Padded(n) + kSpare, to[n - 1]);
}

// Where the rows that follow take their pixels, told by one of their points.
template <class T>
void FetchAhead(Task<T>& task, const Call<T>& call, ptrdiff_t y) {
  const ptrdiff_t x = call.size.width / 2, below = std::min<ptrdiff_t>(y + kRowsAhead, call.size.height - 1);
  const auto change = [&](const auto& map) {
    return double{LoadScalar(map.Row(below) + x)} - double{LoadScalar(map.Row(y) + x)};
  };
  task.FetchAhead(change(call.x), change(call.y));
}

template <int kTaps, class T>
void RemapRows(const Task<T>& task, const Call<T>& call) {
  using Map = WorkOf<T>;
  const int channels = Channels(call.dst.layout);
  Rimmed<T> rimmed(task, kTaps);
  const Sources<T> sources = rimmed.sources(task);
  Map u[kBlock + kSpare], v[kBlock + kSpare];
  for (ptrdiff_t y = 0; y < call.size.height; ++y) {
    const Map *mapX = call.x.Row(y), *mapY = call.y.Row(y);
    T* row = call.dst.Row(y);
    if (!rimmed.isCopy()) FetchAhead(rimmed.task(), call, y);
    for (ptrdiff_t x = 0, n; x < call.size.width; x += n) {
      n = std::min<ptrdiff_t>(kBlock, call.size.width - x);
      Stage(mapX + x, n, u);
      Stage(mapY + x, n, v);
      Sample<kTaps>(sources, u, v, n, row + x * channels);
    }
  }
}

template <class T>
QvpStatus Remap(const Call<T>& call) {
  const int asked = call.interpolation & INT32_MAX;
  if (const QvpStatus failed = Check(call, asked)) return failed;
  const int method = MethodFor(call.srcSize, asked);
  const Task<T> task = TaskOf(call, method);
  switch (TapsOf(method)) {
    case 1: RemapRows<1>(task, call); break;
    case 2: RemapRows<2>(task, call); break;
    case 6: RemapRows<6>(task, call); break;
    default: RemapRows<4>(task, call); break;
  }
  return qvpStatusNoError;
}

}  // namespace
}  // namespace qvp::remap

using namespace qvp;
using namespace qvp::remap;

#define REMAP(type, mapType, layout)                                                                                   \
  QvpStatus qvpiRemap_##type##_##layout##R(                                                                            \
      const Qvp##type* pSrc, QvpiSize srcSize, int srcStep, QvpiRect srcRoi, const Qvp##mapType* pxMap, int xMapStep,  \
      const Qvp##mapType* pyMap, int yMapStep, Qvp##type* pDst, int dstStep, QvpiSize dstRoiSize, int interpolation) { \
    return Remap(Call<Qvp##type>{View(pSrc, srcStep, Layout::k##layout), srcSize, srcRoi,                              \
                                 View(pxMap, xMapStep, Layout::kC1), View(pyMap, yMapStep, Layout::kC1),               \
                                 View(pDst, dstStep, Layout::k##layout), dstRoiSize, interpolation});                  \
  }
#define REMAP_LAYOUTS(type, mapType) QVP_EACH_LAYOUT(REMAP, type, mapType)
REMAP_LAYOUTS(8u, 32f)
REMAP_LAYOUTS(16u, 32f)
REMAP_LAYOUTS(16s, 32f)
REMAP_LAYOUTS(32f, 32f)
REMAP_LAYOUTS(64f, 64f)
