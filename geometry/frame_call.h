// What calls that resize frames share: their checks.
#pragma once

#include "geometry/frame_record.h"
#include "geometry/resize_call.h"

namespace qvp::resize {

struct FrameCall {
  Point offset;
  Size size;
  QvpiBorderType border;  // qvpBorderInMem for methods which need none
  const QvpiResizeChromaSpec* spec;
  uint8_t* buffer;
};

template <class T>
inline constexpr QvpDataType kTypeOf = sizeof(T) == 1 ? qvp8u : qvp16u;

// Checks the border, and gives it the name that the method's pass knows.
inline QvpStatus TakeBorder(FrameCall& call, QvpiInterpolationType method) {
  if (!IsBorderOf({BorderKind::kReplicate, BorderKind::kMirror, BorderKind::kReplicateAlt}, call.border)) {
    return qvpStatusBorder;
  }
  const bool isAlternative = KindOf(call.border) == BorderKind::kReplicateAlt;
  if (method == qvpInterpolationLinear && isAlternative) call.border = (call.border & ~0xF) | qvpBorderReplicate;
  return qvpStatusNoError;
}

// What follows the check of pointers, up to the record's own method.
inline QvpStatus CheckTile(const FrameCall& call, const FrameRecord& record, FrameForm form, bool areStepsWhole) {
  if (call.size.width == 0 || call.size.height == 0) return qvpStatusNoOperation;
  if (record.identification != static_cast<uint32_t>(form)) return qvpStatusContextMatch;
  if (!IsFrameSize(form, call.size)) return qvpStatusSize;
  if (!areStepsWhole) return qvpStatusStep;
  return CheckOffset(record, call.offset);
}

}  // namespace qvp::resize
