// Look-ups through levels: integers by the table that Init has made, floats by the curve.
#include "arith/channel_rows.h"
#include "arith/lookup_levels.h"
#include "arith/table_rows.h"
#include "base/check.h"
#include "base/export.h"
#include "base/pixelwise.h"
#include "base/types.h"

namespace {
using namespace qvp;
using namespace qvp::lookup;

// The curves of the channels, of which one may serve all.
int CurveOf(const Record& record, int channel) { return record.channels == 1 ? 0 : channel; }

// Curves are too large to be copied into kernels.
template <QvpiLookupMethod kMethod, int kChannels, int kProcessed>
void MapChannelsBy(const Record& record, const Image<const float>& src, const Image<float>& dst, Size roi) {
  using Curve = FloatCurve<kMethod>;
  const Curve curves[] = {Curve(record, 0), Curve(record, 1), Curve(record, 2), Curve(record, kProcessed - 1)};
  const auto row = [at = &curves[0]](ptrdiff_t n, float* to, const float* from) HWY_ATTR {
    const auto look = [=](int c, auto v) HWY_ATTR { return at[c](v); };
    MapChannelsOfRow<kChannels, kProcessed>(Floats(), to, n, look, from);
  };
  ForEachPiece(roi, row, dst, src);
}

template <QvpiLookupMethod kMethod>
void MapAllBy(const Record& record, const Image<const float>& src, const Image<float>& dst, Size roi) {
  const FloatCurve<kMethod> curve(record, 0);
  MapImages(
      Floats(), [at = &curve](auto v) HWY_ATTR { return (*at)(v); }, roi, dst, src);
}

template <QvpiLookupMethod kMethod>
void MapBy(const Record& record, const Image<const float>& src, const Image<float>& dst, Size roi) {
  if (record.channels == 1) return MapAllBy<kMethod>(record, src, dst, roi);
  switch (dst.layout) {
    case Layout::kC3: return MapChannelsBy<kMethod, 3, 3>(record, src, dst, roi);
    case Layout::kAC4: return MapChannelsBy<kMethod, 4, 3>(record, src, dst, roi);
    default: return MapChannelsBy<kMethod, 4, 4>(record, src, dst, roi);
  }
}

void Map(const Record& record, const Image<const float>& src, const Image<float>& dst, Size roi) {
  switch (record.method) {
    case qvpLookupStep: return MapBy<qvpLookupStep>(record, src, dst, roi);
    case qvpLookupLinear: return MapBy<qvpLookupLinear>(record, src, dst, roi);
    default: return MapBy<qvpLookupCubic>(record, src, dst, roi);
  }
}

// Tables are in the order of the bits, so that signs do not matter.
template <class T>
void Map(const Record& record, const Image<const T>& src, const Image<T>& dst, Size roi) {
  using Bits = std::make_unsigned_t<T>;
  Tables<Bits> tables = {};
  for (int c = 0; c < ProcessedChannels(dst.layout); ++c) {
    tables[c] = reinterpret_cast<const Bits*>(record.Table(CurveOf(record, c)));
  }
  MapThroughTables(tables, View(reinterpret_cast<const Bits*>(src.data), src.step, src.layout),
                   View(reinterpret_cast<Bits*>(dst.data), dst.step, dst.layout), roi);
}

template <class T>
QvpStatus LookUp(const Image<const T>& src, const Image<T>& dst, Size roi, const QvpiLookupSpec* spec) {
  if (const QvpStatus failed = Validate<kPointers, kSize, kSteps>(roi, {src, dst}, {spec})) return failed;
  const Record& record = *RecordIn<Record>(spec);
  if (record.tag != kTag || record.type != DataTypeOf<T>()) return qvpStatusContextMatch;
  if (record.channels != 1 && record.channels != ProcessedChannels(dst.layout)) return qvpStatusContextMatch;
  Map(record, src, dst, roi);
  return qvpStatusNoError;
}

}  // namespace

#define LOOKUP(type, layout) QVP_BOTH_PLACES(qvpiLookup, , type, layout, LookUp, (const QvpiLookupSpec* pSpec), (pSpec))

QVP_EACH_LAYOUT(LOOKUP, 8u)
QVP_EACH_LAYOUT(LOOKUP, 16u)
QVP_EACH_LAYOUT(LOOKUP, 16s)
QVP_EACH_LAYOUT(LOOKUP, 32f)
