// Calls of the filters with a window: what all take, the first checks in their order, the windows, the exported form.
#pragma once

#include "base/export.h"
#include "base/record.h"
#include "filter/window_check.h"
#include "filter/windows.h"

namespace qvp::filter {

template <class T, class R = T>
struct WindowCall {
  Image<const T> src;
  Image<R> dst;
  Size roi;
  QvpiBorderType border;
  const T* value;
  uint8_t* buffer;

  int channels() const { return Channels(src.layout); }

  // Pointers, among them the value of a constant border, and the region.
  QvpStatus CheckPointersAndSize(const void* record) const {
    if (const QvpStatus failed = Validate<kPointers>(roi, {src, dst}, {record, buffer})) return failed;
    if (KindOf(border) == BorderKind::kConst && !value) return qvpStatusNullPointer;
    return Validate<kSize>(roi, {});
  }
  // The same and steps.
  QvpStatus Check(const void* record) const {
    if (const QvpStatus failed = CheckPointersAndSize(record)) return failed;
    return CoversRow(src, roi) && CoversRow(dst, roi) ? qvpStatusNoError : qvpStatusStep;
  }
  QvpStatus Check() const { return Check(buffer); }

  template <class Pixel = BitsOf<T>>
  Windows<Pixel> Reaching(const Reach& reach) const {
    auto windows = WindowsAs<Pixel>(src, roi, border, value, reach, buffer);
    windows.outputs[0] = AsBytes(dst);
    return windows;
  }
};

// The checks of a filter whose records tell whether they are for images of these types, and run(record).
template <class Record, class T, class R, class Spec, class Run>
QvpStatus FilterByRecord(const WindowCall<T, R>& call, const Spec* spec, const Run& run) {
  if (const QvpStatus failed = call.Check(spec)) return failed;
  if (const QvpStatus failed = CheckBorder(call.border)) return failed;
  const Record& record = *RecordIn<Record>(spec);
  if (record.identification != Record::kIdentification) return qvpStatusContextMatch;
  if (!record.IsFor(kDataTypeOf<T>, kDataTypeOf<R>, call.channels())) return qvpStatusContextMatch;
  run(record);
  return qvpStatusNoError;
}

}  // namespace qvp::filter

// A function impl(call, arguments), with parameters of its own before those of the border and behind them.
#define QVP_WINDOW(name, from, to, types, layout, impl, before, behind, arguments)                                \
  QvpStatus qvpiFilter##name##Border_##types##_##layout##R(                                                       \
      const Qvp##from* pSrc, int srcStep, Qvp##to* pDst, int dstStep, QvpiSize roiSize QVP_AND before,            \
      QvpiBorderType borderType, const Qvp##from* borderValue QVP_AND behind, Qvp8u* pBuffer) {                   \
    return qvp::filter::impl(qvp::filter::WindowCall<Qvp##from, Qvp##to>{{pSrc, srcStep, qvp::Layout::k##layout}, \
                                                                         {pDst, dstStep, qvp::Layout::k##layout}, \
                                                                         roiSize,                                 \
                                                                         borderType,                              \
                                                                         borderValue,                             \
                                                                         pBuffer} QVP_AND arguments);             \
  }
// With a record, or with a mask that is placed by its anchor.
#define QVP_WINDOW_BY_RECORD(name, from, to, types, layout, impl, Record) \
  QVP_WINDOW(name, from, to, types, layout, impl, (), (const Record* pSpec), (pSpec))
#define QVP_ANCHORED_WINDOW(name, type, layout, impl) \
  QVP_WINDOW(name, type, type, type, layout, impl, (QvpiSize maskSize, QvpiPoint anchor), (), (maskSize, anchor))
