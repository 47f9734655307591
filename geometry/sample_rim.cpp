// Copies of small sources with a rim around them.
#include "geometry/sample_rim.h"

namespace qvp::sampling {
namespace {

// The row y of the copy, whose columns are these.
template <class T>
void CopyRow(const Task<T>& source, Extent columns, ptrdiff_t y, T* to) {
  const Area& area = source.area;
  const int channels = Channels(source.src.layout);
  const ptrdiff_t from = BorderPosition(area.kind, y, area.rows);
  const auto fill = [&](const T* pixel, ptrdiff_t n) {
    for (ptrdiff_t i = 0; i < n; ++i, to += channels) CopyPixel(to, pixel, channels);
  };
  if (from == kOutside) return fill(source.constant, columns.end - columns.begin);
  const bool isConst = area.kind == BorderKind::kConst;
  const T* const row = source.src.Row(from);
  const T *const first = row + area.columns.begin * channels, *const end = row + area.columns.end * channels;
  fill(isConst ? source.constant : first, area.columns.begin - columns.begin);
  std::memcpy(to, first, (end - first) * sizeof(T));
  to += end - first;
  fill(isConst ? source.constant : end - channels, columns.end - area.columns.end);
}

}  // namespace

template <class T>
void Rimmed<T>::Copy(Extent columns, Extent rows, ptrdiff_t step, int taps) {
  const Task<T> source(task_);
  Area& area = task_.area;
  const uint8_t* const first = bytes_;  // the pixel at 0 may lie outside of the copy
  task_.src.data = reinterpret_cast<const T*>(first - rows.begin * step - columns.begin * source.src.PixelBytes());
  task_.src.step = step;
  task_.ahead = 0;
  for (ptrdiff_t y = rows.begin; y < rows.end; ++y) {
    CopyRow(source, columns, y, reinterpret_cast<T*>(bytes_ + (y - rows.begin) * step));
  }
  const int further = kFurther(taps, Channels(source.src.layout));
  const auto inner = [&](Extent rimmed, Extent extent, double low, double high) {
    const Interval all = InteriorOf(rimmed, taps, further, false, 0, 0);
    if (area.isBounded) return Common(all, {low, high});
    return Common(
        all, area.kind == BorderKind::kConst ? TouchingOf(area, taps, extent, low, high) : FarthestOf(extent, taps));
  };
  task_.interior = {inner(columns, area.columns, area.left, area.right), inner(rows, area.rows, area.top, area.bottom)};
  area.columns = columns, area.rows = rows;
}

template void Rimmed<uint8_t>::Copy(Extent, Extent, ptrdiff_t, int);
template void Rimmed<uint16_t>::Copy(Extent, Extent, ptrdiff_t, int);
template void Rimmed<int16_t>::Copy(Extent, Extent, ptrdiff_t, int);
template void Rimmed<float>::Copy(Extent, Extent, ptrdiff_t, int);
template void Rimmed<double>::Copy(Extent, Extent, ptrdiff_t, int);

}  // namespace qvp::sampling
