// Cosine transforms of images: of rows, then of columns, inverse ones in the opposite order. Eight lines are
// transformed at a time, of columns neighbouring ones.
#include <algorithm>

#include "base/check.h"
#include "base/export.h"
#include "base/record.h"
#include "base/simd.h"
#include "qvpi.h"
#include "signal/dft.h"

namespace {
using namespace qvp;
using namespace qvp::dft;

// At the first boundary of the caller's memory; the plans follow.
struct DctRecord {
  uint32_t identification;
  int32_t width, height, hint;
  int64_t rows, columns;  // offsets of the plans

  static constexpr uint32_t kIdentification = 0x51444354;

  const DftPlan& Plan(int64_t offset) const {
    return *reinterpret_cast<const DftPlan*>(reinterpret_cast<const uint8_t*>(this) + offset);
  }
};
static_assert(sizeof(DctRecord) <= kRecordBoundary);

float RootOf(double x) {
  const hn::CappedTag<double, 1> d;
  return static_cast<float>(hn::GetLane(hn::Sqrt(hn::Set(d, x))));
}

// A line's plan with the factors of a flag: of means they differ in the orthonormal transform.
DftPlan PlanFor(int64_t length, int flag) {
  DftPlan plan = LayOutDft(length, DftKind::kCosine);
  const double n = static_cast<double>(length);
  if (flag == 1) plan.scale[0] = static_cast<float>(1 / n);
  if (flag == 2) plan.scale[1] = static_cast<float>(1 / n);
  if (flag == 4 && length > 1) {
    plan.scale[0] = RootOf(2 / n);
    plan.ofMean[0] = RootOf(0.5);
    plan.scale[1] = RootOf(0.5 / n);
    plan.ofMean[1] = RootOf(2);
  }
  return plan;
}

struct Plans {
  DftPlan rows, columns;
  bool isShared;  // one for both

  Plans(QvpiSize size, int flag)
      : rows(PlanFor(size.width, flag)), columns(PlanFor(size.height, flag)), isShared(size.width == size.height) {}

  ByteCount RecordBytes() const { return ByteCount(2 * kRecordBoundary) + rows.bytes + (isShared ? 0 : columns.bytes); }
  ByteCount BufferBytes() const {
    return ByteCount(std::max(rows.BlockBytes(), columns.BlockBytes())).RoundedTo(kRecordBoundary) + kRecordBoundary;
  }
};

QvpStatus CheckSizeAndFlag(QvpiSize size, int flag) {
  if (size.width < 1 || size.height < 1) return qvpStatusSize;
  return flag == 1 || flag == 2 || flag == 4 || flag == 8 ? qvpStatusNoError : qvpStatusFftFlag;
}

QvpStatus FillRecord(QvpiSize size, int flag, QvpHintAlgorithm hint, DctRecord& record) {
  if (const QvpStatus failed = CheckSizeAndFlag(size, flag)) return failed;
  const Plans plans(size, flag);
  int bytes = 0;
  if (const QvpStatus failed = plans.RecordBytes().StoreTo(&bytes)) return failed;
  if (const QvpStatus failed = plans.BufferBytes().StoreTo(&bytes)) return failed;
  record = {0, size.width, size.height, hint, kRecordBoundary, kRecordBoundary};
  uint8_t* const base = reinterpret_cast<uint8_t*>(&record);
  WriteDft(plans.rows, base + record.rows);
  if (plans.isShared) return qvpStatusNoError;
  record.columns += plans.rows.bytes;
  WriteDft(plans.columns, base + record.columns);
  return qvpStatusNoError;
}

// Lines of an image's channel that lie `apart` floats from each other.
struct Lines {
  const float* from;
  float* to;
  ptrdiff_t fromApart, toApart, fromStride, toStride;  // strides in bytes, as dft::DftLines has them
  int64_t count;
};

const float* Beyond(const float* p, ptrdiff_t bytes) {
  return reinterpret_cast<const float*>(reinterpret_cast<const uint8_t*>(p) + bytes);
}
float* Beyond(float* p, ptrdiff_t bytes) { return const_cast<float*>(Beyond(const_cast<const float*>(p), bytes)); }

void TransformAll(const DftPlan& plan, Direction direction, const Lines& lines, float* block) {
  for (int64_t first = 0; first < lines.count; first += plan.Lines()) {
    const int count = static_cast<int>(std::min<int64_t>(plan.Lines(), lines.count - first));
    DftLines<const float> from{{}, lines.fromStride, count};
    DftLines<float> to{{}, lines.toStride, count};
    for (int l = 0; l < count; ++l) {
      from.at[l] = Beyond(lines.from, (first + l) * lines.fromApart);
      to.at[l] = Beyond(lines.to, (first + l) * lines.toApart);
    }
    TransformLines(plan, direction, from, to, block);
  }
}

void TransformChannel(const DctRecord& record, Direction direction, const Image<const float>& src,
                      const Image<float>& dst, int channel, float* block) {
  const ptrdiff_t srcPixel = src.PixelBytes(), dstPixel = dst.PixelBytes();
  float* const to = dst.data + channel;
  const auto rows = [&](const float* from, ptrdiff_t step, ptrdiff_t pixel) {
    TransformAll(record.Plan(record.rows), direction, {from, to, step, dst.step, pixel, dstPixel, record.height},
                 block);
  };
  const auto columns = [&](const float* from, ptrdiff_t step, ptrdiff_t pixel) {
    TransformAll(record.Plan(record.columns), direction, {from, to, pixel, dstPixel, step, dst.step, record.width},
                 block);
  };
  if (direction == Direction::kForward) {
    rows(src.data + channel, src.step, srcPixel);
    columns(to, dst.step, dstPixel);
  } else {
    columns(src.data + channel, src.step, srcPixel);
    rows(to, dst.step, dstPixel);
  }
}

QvpStatus Transform(Direction direction, const Image<const float>& src, const Image<float>& dst,
                    const QvpiDCTSpec_32f* spec, uint8_t* buffer) {
  if (spec == nullptr) return qvpStatusNullPointer;
  const DctRecord& record = *RecordIn<DctRecord>(spec);
  if (record.identification != DctRecord::kIdentification) return qvpStatusContextMatch;
  if (const QvpStatus failed = Validate<kPointers, kSteps>({1, 1}, {src, dst})) return failed;
  if (buffer == nullptr) return qvpStatusNullPointer;
  float* const block = reinterpret_cast<float*>(AtBoundary(buffer));
  for (int c = 0; c < ProcessedChannels(dst.layout); ++c) TransformChannel(record, direction, src, dst, c, block);
  return qvpStatusNoError;
}

}  // namespace

QvpStatus qvpiDCTGetSize_32f(QvpiSize roiSize, int flag, QvpHintAlgorithm, int* pSpecSize, int* pSpecBufferSize,
                             int* pBufferSize) {
  if (!pSpecSize || !pSpecBufferSize || !pBufferSize) return qvpStatusNullPointer;
  if (const QvpStatus failed = CheckSizeAndFlag(roiSize, flag)) return failed;
  const Plans plans(roiSize, flag);
  const QvpStatus record = plans.RecordBytes().StoreTo(pSpecSize), buffer = plans.BufferBytes().StoreTo(pBufferSize);
  *pSpecBufferSize = 0;
  return record ? record : buffer;
}

QvpStatus qvpiDCTInit_32f(QvpiSize roiSize, int flag, QvpHintAlgorithm hint, QvpiDCTSpec_32f* pSpec, Qvp8u*) {
  return InitRecordIn<DctRecord>(pSpec, [&](DctRecord& record) { return FillRecord(roiSize, flag, hint, record); });
}

#define QVP_DCT(name, direction, layout)                                                                             \
  QvpStatus name##_32f_##layout##R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep,                       \
                                   const QvpiDCTSpec_32f* pSpec, Qvp8u* pBuffer) {                                   \
    return Transform(Direction::direction, View(pSrc, srcStep, Layout::k##layout),                                   \
                     View(pDst, dstStep, Layout::k##layout), pSpec, pBuffer);                                        \
  }                                                                                                                  \
  QvpStatus name##_32f_##layout##IR(Qvp32f* pSrcDst, int srcDstStep, const QvpiDCTSpec_32f* pSpec, Qvp8u* pBuffer) { \
    return Transform(Direction::direction, View<const Qvp32f>(pSrcDst, srcDstStep, Layout::k##layout),               \
                     View(pSrcDst, srcDstStep, Layout::k##layout), pSpec, pBuffer);                                  \
  }
#define QVP_DCT_OF(name, direction) \
  QVP_DCT(name, direction, C1)      \
  QVP_DCT(name, direction, C3)      \
  QVP_DCT(name, direction, C4)      \
  QVP_DCT(name, direction, AC4)
QVP_DCT_OF(qvpiDCTFwd, kForward)
QVP_DCT_OF(qvpiDCTInv, kInverse)
