// What all warp calls share: their checks, and their forms.
#pragma once

#include "base/types.h"
#include "geometry/sample_task.h"
#include "geometry/warp_passes.h"

namespace qvp::warp {

template <class T>
QvpStatus Check(const Call<T>& call) {
  const Record* record = call.spec ? RecordOf(call.spec) : nullptr;
  if (record && !IsOf(call.form, record)) return qvpStatusContextMatch;
  if (!call.src.data || !call.dst.data || !call.spec || !call.buffer) return qvpStatusNullPointer;
  if (call.size.width == 0 || call.size.height == 0) return qvpStatusNoOperation;
  if (call.size.width < 1 || call.size.height < 1) return qvpStatusSize;
  constexpr ptrdiff_t kElement = sizeof(T);
  if (call.src.step % kElement != 0 || call.dst.step % kElement != 0) return qvpStatusStep;
  if (call.x < 0 || call.y < 0 || call.x >= record->width || call.y >= record->height) return qvpStatusOutOfRange;
  const bool isMeant =
      record->kind == call.kind && record->type == DataTypeOf<T>() && record->channels == Channels(call.src.layout);
  return isMeant ? qvpStatusNoError : qvpStatusContextMatch;
}

// Makes a tile by a function of the record and its size.
template <class T, class Make>
QvpStatus MakeTile(const Call<T>& call, const Make& make) {
  const Record& record = *RecordOf(call.spec);
  const Size size(std::min<ptrdiff_t>(call.size.width, record.width - call.x),
                  std::min<ptrdiff_t>(call.size.height, record.height - call.y));
  make(record, size);
  const bool isClipped = size.width < call.size.width || size.height < call.size.height;
  return isClipped ? qvpStatusSizeWarning : qvpStatusNoError;
}

// By one method, which the record must be of.
template <QvpiInterpolationType kMethod>
struct By {
  template <class T>
  static QvpStatus Warp(const Call<T>& call) {
    if (const QvpStatus failed = Check(call)) return failed;
    if (RecordOf(call.spec)->interpolation != kMethod) return qvpStatusContextMatch;
    return MakeTile(call,
                    [&](const Record& record, Size size) { WarpTile<sampling::TapsOf(kMethod)>(call, record, size); });
  }
};

// By the record's method.
struct ByRecord {
  template <class T>
  static QvpStatus Warp(const Call<T>& call) {
    if (const QvpStatus failed = Check(call)) return failed;
    return MakeTile(call, [&](const Record& record, Size size) {
      switch (sampling::TapsOf(record.interpolation)) {
        case 1: return WarpTile<1>(call, record, size);
        case 2: return WarpTile<2>(call, record, size);
        default: return WarpTile<4>(call, record, size);
      }
    });
  }
};

}  // namespace qvp::warp

// Each function twice: SUFFIX is empty or `_L`, Width empty or the letter behind the types of points and sizes.
#define QVP_WARP_CALL(name, Kind_, Method, type, layout, Step, Width, form)                                         \
  QvpStatus name(const Qvp##type* pSrc, Step srcStep, Qvp##type* pDst, Step dstStep, QvpiPoint##Width dstRoiOffset, \
                 QvpiSize##Width dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer) {                           \
    return Method::Warp(Call<Qvp##type>{View(pSrc, srcStep, Layout::k##layout),                                     \
                                        View(pDst, dstStep, Layout::k##layout), dstRoiOffset.x, dstRoiOffset.y,     \
                                        dstRoiSize, pSpec, pBuffer, Kind::k##Kind_, form});                         \
  }
#define QVP_WARP(Kind_, Method, type, layout, SUFFIX, Step, Width, form)                                           \
  QVP_WARP_CALL(qvpiWarp##Kind_##Method##_##type##_##layout##R##SUFFIX, Kind_, By<qvpInterpolation##Method>, type, \
                layout, Step, Width, form)
#define QVP_WARP_LAYOUT(Kind_, Method, type, layout)           \
  QVP_WARP(Kind_, Method, type, layout, , int, , Form::kPlain) \
  QVP_WARP(Kind_, Method, type, layout, _L, QvpSizeL, L, Form::kWide)
#define QVP_WARP_TYPE(Method, type)                                                                                    \
  template void qvp::warp::WarpTile<sampling::TapsOf(qvpInterpolation##Method)>(const Call<Qvp##type>&, const Record&, \
                                                                                Size);                                 \
  QVP_C1_C3_C4(QVP_WARP_LAYOUT, Affine, Method, type)                                                                  \
  QVP_C1_C3_C4(QVP_WARP_LAYOUT, Perspective, Method, type)
#define QVP_WARP_TYPES(Method) \
  QVP_WARP_TYPE(Method, 8u)    \
  QVP_WARP_TYPE(Method, 16u)   \
  QVP_WARP_TYPE(Method, 16s)   \
  QVP_WARP_TYPE(Method, 32f)   \
  QVP_WARP_TYPE(Method, 64f)
