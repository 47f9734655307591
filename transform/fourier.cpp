// Transforms of rows, then of columns; inverse ones in the opposite order. Columns are never walked with their stride
// by the passes: eight at a time are gathered into the work buffer and scattered from it.
#include "transform/fourier.h"

#include <algorithm>

#include "base/check.h"
#include "base/record.h"

namespace qvp::dft {
namespace {

// A call: one channel of the images. A complex image is one channel of pairs.
struct Call {
  const uint8_t* base;
  const FourierRecord& record;
  Direction direction;
  float* block;

  const DftPlan& Plan(FourierPlan which) const { return *reinterpret_cast<const DftPlan*>(base + record.plans[which]); }
};

template <class T>
struct Channel {
  const Image<T>& image;
  int channel;

  T* Row(ptrdiff_t y) const { return image.Row(y) + channel; }
  ptrdiff_t Pitch() const { return image.PixelBytes(); }
};

void TransformRows(const Call& call, const Channel<const float>& src, const Channel<float>& dst) {
  const DftPlan& plan = call.Plan(kRows);
  const bool isReal = plan.kind == DftKind::kReal;
  for (int64_t y = 0; y < call.record.height(); y += plan.Lines()) {
    DftLines<const float> from;
    DftLines<float> to;
    from.count = to.count = static_cast<int>(std::min<int64_t>(plan.Lines(), call.record.height() - y));
    for (int l = 0; l < to.count; ++l) {
      from.at[l] = src.Row(y + l);
      to.at[l] = dst.Row(y + l);
    }
    from.stride = isReal ? src.Pitch() : sizeof(float);
    to.stride = isReal ? dst.Pitch() : sizeof(float);
    TransformLines(plan, call.direction, from, to, call.block);
  }
}

// The first column of a packed spectrum, and the last one of even widths, are spectra of real columns.
void TransformRealColumns(const Call& call, const Channel<const float>& src, const Channel<float>& dst) {
  const DftPlan& plan = call.Plan(kRealColumns);
  const int columns = call.record.width() % 2 == 0 ? 2 : 1;
  const ptrdiff_t last = call.record.width() - 1;
  DftLines<const float> from{{src.Row(0), src.Row(0) + last * Channels(src.image.layout)}, src.image.step, columns};
  DftLines<float> to{{dst.Row(0), dst.Row(0) + last * Channels(dst.image.layout)}, dst.image.step, columns};
  if (plan.Lines() > 1) return TransformLines(plan, call.direction, from, to, call.block);
  from.count = to.count = 1;
  for (int c = 0; c < columns; ++c) {
    std::swap(from.at[0], from.at[c]);
    std::swap(to.at[0], to.at[c]);
    TransformLines(plan, call.direction, from, to, call.block);
  }
}

// The columns of complex numbers, from float `first` of a row on.
void TransformComplexColumns(const Call& call, const Channel<const float>& src, const Channel<float>& dst,
                             ptrdiff_t first, int64_t count) {
  const DftPlan& plan = call.Plan(kColumns);
  const bool isReal = IsReal(call.record.identification);
  const ptrdiff_t pitch = isReal ? 2 * src.Pitch() : src.Pitch(), imaginary = pitch / 2;
  for (int64_t u = 0; u < count; u += plan.Lines()) {
    const ptrdiff_t at = first + u * (pitch / static_cast<ptrdiff_t>(sizeof(float)));
    const DftColumns<const float> from{src.Row(0) + at, src.image.step, pitch, imaginary};
    const DftColumns<float> to{dst.Row(0) + at, dst.image.step, pitch, imaginary};
    TransformColumns(plan, call.direction, from, to, static_cast<int>(std::min<int64_t>(plan.Lines(), count - u)),
                     call.block);
  }
}

void TransformAllColumns(const Call& call, bool isReal, const Channel<const float>& src, const Channel<float>& dst) {
  if (!isReal) return TransformComplexColumns(call, src, dst, 0, call.record.width());
  TransformRealColumns(call, src, dst);
  TransformComplexColumns(call, src, dst, Channels(src.image.layout), (call.record.width() - 1) / 2);
}

void TransformChannel(const Call& call, bool isReal, const Channel<const float>& src, const Channel<float>& dst) {
  const Image<const float> result = View<const float>(dst.image.data, dst.image.step, dst.image.layout);
  const Channel<const float> done{result, dst.channel};
  const bool hasColumns = call.record.height() > 1;
  if (call.direction == Direction::kForward) {
    TransformRows(call, src, dst);
    if (hasColumns) TransformAllColumns(call, isReal, done, dst);
  } else {
    if (hasColumns) TransformAllColumns(call, isReal, src, dst);
    TransformRows(call, hasColumns ? done : src, dst);
  }
}

}  // namespace

QvpStatus FourierTransform(FourierFamily family, Direction direction, const Image<const float>& src,
                           const Image<float>& dst, const void* spec, uint8_t* buffer) {
  if (spec == nullptr) return qvpStatusNullPointer;
  const uint8_t* const base = AtBoundary(static_cast<const uint8_t*>(spec));
  const FourierRecord& record = *reinterpret_cast<const FourierRecord*>(base);
  if (record.identification != family) return qvpStatusContextMatch;
  if (const QvpStatus failed = Validate<kPointers, kSteps>({1, 1}, {src, dst})) return failed;
  if (buffer == nullptr) return qvpStatusNullPointer;
  const Call call{base, record, direction, reinterpret_cast<float*>(AtBoundary(buffer))};
  const int channels = IsReal(family) ? ProcessedChannels(dst.layout) : 1;
  for (int c = 0; c < channels; ++c) TransformChannel(call, IsReal(family), {src, c}, {dst, c});
  return qvpStatusNoError;
}

}  // namespace qvp::dft
