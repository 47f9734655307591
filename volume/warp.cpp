// Affine warps of volumes: each voxel takes the value at the point that it comes from.
#include "base/types.h"
#include "geometry/sample_border.h"
#include "qvpi.h"
#include "volume/sample.h"
#include "volume/tile.h"
#include "volume/warp_record.h"

namespace {
using namespace qvp;
using namespace qvp::volume;

template <class T>
struct Call {
  Volume<const T> src;
  Volume<T> dst;
  QvprPoint offset;
  QvprVolume size;
  const QvprWarpSpec* spec;
  const uint8_t* buffer;
};

template <class T>
QvpStatus Check(const Call<T>& call) {
  if (const QvpStatus failed = CheckVolumes({call.src, call.dst}, {call.size}, {call.spec, call.buffer})) return failed;
  const WarpRecord& record = *RecordIn<WarpRecord>(call.spec);
  if (record.identification != WarpRecord::kIdentification || record.dataType != DataTypeOf<T>()) {
    return qvpStatusContextMatch;
  }
  return IsInside(call.offset, record.dst) ? qvpStatusNoError : qvpStatusOutOfRange;
}

int TapsFor(const WarpRecord& record) { return record.isShift ? 1 : TapsOf(record.interpolation); }
// How many voxels around the source are read where they are in memory.
int ReachOf(const WarpRecord& record) {
  return record.interpolation == qvpInterpolationNearest ? 0 : record.interpolation == qvpInterpolationLinear ? 1 : 2;
}

template <class T>
T ValueFor(double value) {
  return sampling::ToElement<T>(value);
}

template <class T>
Source<T> SourceOf(const Call<T>& call, const WarpRecord& record) {
  const bool isInMemory = record.border == qvpBorderInMemVolume;
  const ptrdiff_t reach = isInMemory ? ReachOf(record) : 0;
  const Extent axes[3] = {
      {-reach, record.src.width + reach}, {-reach, record.src.height + reach}, {-reach, record.src.depth + reach}};
  Source<T> source{call.src, {axes[0], axes[1], axes[2]}, BorderKind::kReplicate, {}, {record.cubicB, record.cubicC}};
  if (record.border == qvpBorderConst) {
    source.kind = BorderKind::kConst;
    source.constant = ValueFor<T>(record.value);
  } else if (record.border != qvpBorderReplicate) {
    source.SetBounds(axes);
  }
  return source;
}

// The planes that points of a tile can read: between those of its corners, as each rounded step is monotone.
template <class T>
Extent PlanesOf(const WarpRecord& record, const VolumeTile& tile, const Source<T>& source, int taps) {
  double low = 0, high = 0;
  for (int corner = 0; corner < 8; ++corner) {
    const auto at = [&](ptrdiff_t from, ptrdiff_t length, int bit) {
      return static_cast<double>(from) + (corner & bit ? static_cast<double>(length - 1) : 0.0);
    };
    const double w =
        record.toSource.Of(2, {at(tile.x, tile.width, 1), at(tile.y, tile.height, 2), at(tile.z, tile.depth, 4)});
    low = corner == 0 ? w : std::min(low, w);
    high = corner == 0 ? w : std::max(high, w);
  }
  const Extent all = source.axes[2];
  const auto clamped = [&](double w) {
    return FloorOf(sampling::Clamped(w, static_cast<double>(all.begin), static_cast<double>(all.end - 1)));
  };
  const ptrdiff_t before = sampling::kTapsBefore(taps), behind = taps - 1 - before + (taps == 1);
  return {std::max(clamped(low) - before, all.begin), std::min(clamped(high) + behind + 1, all.end)};
}

// A row by points of its columns, or fixed points from anchors.
template <int kTaps, class T>
class RowWarper {
 public:
  RowWarper(const WarpRecord& record, const Source<T>& source)
      : width_(record.dst.width), steps_(record.toSource), sampler_(source) {}

  void operator()(const AffineRow& row, ptrdiff_t column, ptrdiff_t width, T* dst) {
    const AffinePoints points(row, column);
    const Extent inner = sampler_.InnerOf(points, width);
    const bool isAnchored = steps_.template IsUsableFor<kTaps>(row, width_);
    const auto sample = [&](ptrdiff_t x, ptrdiff_t n) { Sample(points.From(x), isAnchored, n, dst + x); };
    ForEachBlock(0, inner.begin, sample);
    ForEachBlock(inner.begin, inner.end,
                 [&](ptrdiff_t x, ptrdiff_t n) { SampleInner(points.From(x), isAnchored, n, dst + x); });
    ForEachBlock(inner.end, width, sample);
  }

 private:
  void SampleInner(const AffinePoints& points, bool isAnchored, ptrdiff_t n, T* dst) {
    if (isAnchored && sampler_.SampleInner(AnchoredPoints(points, steps_, n), n, dst)) return;
    sampler_.SampleInner(points, n, dst);
  }
  // Nearest voxels are those of exact points.
  void Sample(const AffinePoints& points, bool isAnchored, ptrdiff_t n, T* dst) {
    if constexpr (kTaps > 1) {
      if (isAnchored) return sampler_.Sample(AnchoredPoints(points, steps_, n), n, dst);
    }
    sampler_.Sample(points, n, dst);
  }

  ptrdiff_t width_;  // of the whole destination
  AnchorSteps steps_;
  BlockSampler<kTaps, T> sampler_;
};

template <int kTaps, class T>
void WarpBy(const Call<T>& call, const WarpRecord& record, const VolumeTile& tile, const Source<T>& source) {
  RowWarper<kTaps, T> warp(record, source);
  for (ptrdiff_t z = 0; z < tile.depth; ++z) {
    const Image<T> dst = call.dst.Plane(z);
    for (ptrdiff_t y = 0; y < tile.height; ++y) {
      warp(AffineRow(record.toSource, tile.y + y, tile.z + z), tile.x, tile.width, dst.Row(y));
    }
  }
}

template <class T>
QvpStatus Warp(const Call<T>& call) {
  if (const QvpStatus failed = Check(call)) return failed;
  const WarpRecord& record = *RecordIn<WarpRecord>(call.spec);
  const VolumeTile tile(call.offset, call.size, record.dst);
  Source<T> source = SourceOf(call, record);
  const int taps = TapsFor(record);
  source.planes = PlanesOf(record, tile, source, taps);
  if (!call.src.HasPlanes(source.planes) || !call.dst.HasPlanes({0, tile.depth})) {
    return qvpStatusNullPointer;
  }
  taps == 1   ? WarpBy<1>(call, record, tile, source)
  : taps == 2 ? WarpBy<2>(call, record, tile, source)
              : WarpBy<4>(call, record, tile, source);
  return tile.isClipped ? qvpStatusSizeWarning : qvpStatusNoError;
}

}  // namespace

#define WARP(type)                                                                                                     \
  QvpStatus qvprWarpAffine_##type##_C1V(const Qvp##type* pSrc, int srcStep, int srcPlaneStep, Qvp##type* pDst,         \
                                        int dstStep, int dstPlaneStep, QvprPoint dstOffset, QvprVolume dstVolume,      \
                                        const QvprWarpSpec* pSpec, Qvp8u* pBuffer) {                                   \
    return Warp(Call<Qvp##type>{ViewVolume<Qvp##type>(pSrc, srcStep, srcPlaneStep),                                    \
                                ViewVolume<Qvp##type>(pDst, dstStep, dstPlaneStep), dstOffset, dstVolume, pSpec,       \
                                pBuffer});                                                                             \
  }                                                                                                                    \
  QvpStatus qvprWarpAffine_##type##_C1PV(const Qvp##type* const pSrc[], int srcStep, Qvp##type* const pDst[],          \
                                         int dstStep, QvprPoint dstOffset, QvprVolume dstVolume,                       \
                                         const QvprWarpSpec* pSpec, Qvp8u* pBuffer) {                                  \
    return Warp(Call<Qvp##type>{ViewVolume<Qvp##type>(pSrc, srcStep), ViewVolume<Qvp##type>(pDst, dstStep), dstOffset, \
                                dstVolume, pSpec, pBuffer});                                                           \
  }
WARP(8u)
WARP(16u)
WARP(16s)
WARP(32f)
