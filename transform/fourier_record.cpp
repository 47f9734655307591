// Sizes and contents of the records of Fourier transforms.
#include <algorithm>
#include <bit>
#include <cstring>

#include "base/record.h"
#include "base/simd.h"
#include "transform/fourier.h"

namespace qvp::dft {
namespace {

struct Plans {
  DftPlan plan[3];
  int count;
};

// The plans of an image in the order of FourierPlan.
Plans PlansFor(FourierFamily family, QvpiSize size) {
  Plans plans{};
  plans.count = IsReal(family) ? 3 : 2;
  plans.plan[kRows] = LayOutDft(size.width, IsReal(family) ? DftKind::kReal : DftKind::kComplex);
  plans.plan[kColumns] = LayOutDft(size.height, DftKind::kComplex);
  if (IsReal(family)) plans.plan[kRealColumns] = LayOutDft(size.height, DftKind::kReal);
  return plans;
}

// A second plan of the same length and kind is the first one.
bool IsShared(const Plans& plans, int i) {
  const DftPlan &plan = plans.plan[i], &rows = plans.plan[kRows];
  return i != kRows && plan.kind == rows.kind && plan.length == rows.length;
}

ByteCount RecordBytes(const Plans& plans) {
  ByteCount bytes = kRecordBoundary;
  for (int i = 0; i < plans.count; ++i) bytes = bytes + (IsShared(plans, i) ? 0 : plans.plan[i].bytes);
  return bytes + kRecordBoundary;
}

// The largest of the blocks, with room for four rows, for eight complex columns and for four real ones.
ByteCount BufferBytes(const Plans& plans) {
  int64_t bytes = std::max(16 * plans.plan[kRows].length, 64 * plans.plan[kColumns].length);
  for (int i = 0; i < plans.count; ++i) bytes = std::max(bytes, plans.plan[i].BlockBytes());
  return ByteCount(bytes).RoundedTo(kRecordBoundary) + kRecordBoundary;
}

// The factors of forward and inverse results of one dimension.
QvpStatus SetScale(int flag, DftPlan& plan) {
  const double n = static_cast<double>(plan.length);
  const float whole = static_cast<float>(1 / n);
  const hn::FixedTag<double, 2> d;
  const float root = static_cast<float>(1 / hn::GetLane(hn::Sqrt(hn::Set(d, n))));
  plan.scale[0] = flag == 1 ? whole : flag == 4 ? root : 1;
  plan.scale[1] = flag == 2 ? whole : flag == 4 ? root : 1;
  return flag == 1 || flag == 2 || flag == 4 || flag == 8 ? qvpStatusNoError : qvpStatusFftFlag;
}

}  // namespace

QvpStatus FourierGetSizes(FourierFamily family, QvpiSize size, int flag, const FourierSizes& sizes) {
  Plans plans = PlansFor(family, size);
  if (const QvpStatus failed = SetScale(flag, plans.plan[kRows])) return failed;
  const QvpStatus record = RecordBytes(plans).StoreTo(sizes.record);
  const QvpStatus buffer = BufferBytes(plans).StoreTo(sizes.buffer);
  *sizes.initialisation = 0;
  return record ? record : buffer;
}

QvpStatus FourierFill(FourierFamily family, const FourierDemand& demand, void* spec) {
  Plans plans = PlansFor(family, demand.size);
  for (DftPlan& plan : plans.plan) {
    if (const QvpStatus failed = SetScale(demand.flag, plan)) return failed;
  }
  int bytes = 0, bufferBytes = 0;
  if (const QvpStatus failed = RecordBytes(plans).StoreTo(&bytes)) return failed;
  if (const QvpStatus failed = BufferBytes(plans).StoreTo(&bufferBytes)) return failed;
  uint8_t* const base = AtBoundary(static_cast<uint8_t*>(spec));
  const auto side = [&](int length) {
    return IsPower(family) ? std::countr_zero(static_cast<unsigned>(length)) : length;
  };
  FourierRecord record{{}, side(demand.size.width), side(demand.size.height), demand.hint, bufferBytes, 0, {}};
  int64_t end = kRecordBoundary;
  for (int i = 0; i < plans.count; ++i) {
    record.plans[i] = IsShared(plans, i) ? record.plans[kRows] : end;
    if (IsShared(plans, i)) continue;
    WriteDft(plans.plan[i], base + end);
    end += plans.plan[i].bytes;
  }
  static_assert(sizeof(record) <= kRecordBoundary);
  std::memcpy(base, &record, sizeof(record));
  return qvpStatusNoError;
}

}  // namespace qvp::dft
