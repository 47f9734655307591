// The tables of records: which source pixels every destination position takes, with which weights.
#include "geometry/resize_tables.h"

#include <algorithm>
#include <cstring>
#include <numeric>

namespace qvp::resize {
namespace {

// Hands out the places of the tables, one behind the other.
class Tables {
 public:
  explicit Tables(ResizeRecord& record) : base_(reinterpret_cast<uint8_t*>(&record)) {}

  template <class T>
  T* Take(int64_t count, uint32_t* low, uint32_t* high) {
    *low = static_cast<uint32_t>(next_);
    *high = static_cast<uint32_t>(static_cast<uint64_t>(next_) >> 32);
    T* table = reinterpret_cast<T*>(base_ + next_);
    next_ += (count * static_cast<int64_t>(sizeof(T)) + kTableAlignment - 1) & -kTableAlignment;
    return table;
  }
  int32_t* TakeIndex(ResizeAxis& axis, int64_t count) { return Take<int32_t>(count, &axis.indexAt, &axis.indexAtHigh); }
  template <class W>
  W* TakeWeights(ResizeAxis& axis, int64_t count) {
    return Take<W>(count, &axis.weightsAt, &axis.weightsAtHigh);
  }
  template <class W>
  W* TakeNext(int64_t count) {
    uint32_t low, high;
    return Take<W>(count, &low, &high);
  }

 private:
  uint8_t* base_;
  int64_t next_ = kTablesAt;
};

void FillNearest(ResizeAxis& axis, Tables& tables) {
  int32_t* index = tables.TakeIndex(axis, axis.destination);
  for (ptrdiff_t d = 0; d < axis.destination; ++d) index[d] = static_cast<int32_t>(axis.Nearest(d));
}

// Counts positions whose taps [first, first + taps) are not all inside.
void CountBorders(ResizeAxis& axis, ptrdiff_t first, ptrdiff_t taps) {
  axis.leading += first < 0;
  axis.trailing += first + taps > axis.source;
}

void FillLinearIndex(ResizeAxis& axis, Tables& tables) {
  int32_t* index = tables.TakeIndex(axis, axis.destination);
  axis.taps = axis.certainTaps = 2;
  for (ptrdiff_t d = 0; d < axis.destination; ++d) {
    const ptrdiff_t first = FloorOf(axis.Coordinate(d));
    index[d] = static_cast<int32_t>(first);
    CountBorders(axis, first, 2);
  }
}

// The weight of the second pixel in units of 1/16384, less than 16384.
int16_t FixedFraction(double x) {
  return static_cast<int16_t>((x - static_cast<double>(FloorOf(x))) * kFixedOne + 0.0000001);
}

// Rows have the weight of the lower one; columns pairs for the left and the right one.
void FillFixedWeights(ResizeAxis& axis, bool isPairs, Tables& tables) {
  const ptrdiff_t n = axis.destination;
  auto* w = tables.TakeWeights<int16_t>(axis, isPairs ? 2 * n : n);
  for (ptrdiff_t d = 0; d < n; ++d) {
    const int16_t second = FixedFraction(axis.Coordinate(d));
    if (isPairs) *w++ = static_cast<int16_t>(kFixedOne - second);
    *w++ = second;
  }
}

template <class W>
void FillFractions(const ResizeRecord& record, ResizeAxis& axis, Tables& tables) {
  const int32_t* first = record.Index(axis);
  auto* w = tables.TakeWeights<W>(axis, axis.destination);
  for (ptrdiff_t d = 0; d < axis.destination; ++d) w[d] = static_cast<W>(axis.Distance(d, first[d]));
}

void FillLinear(ResizeRecord& record, WeightKind kind, Tables& tables) {
  FillLinearIndex(record.rows, tables);
  FillLinearIndex(record.columns, tables);
  for (ResizeAxis* axis : {&record.rows, &record.columns}) {
    if (kind == WeightKind::kFixed) FillFixedWeights(*axis, axis == &record.columns, tables);
    if (kind == WeightKind::kFloat) FillFractions<float>(record, *axis, tables);
    if (kind == WeightKind::kDouble) FillFractions<double>(record, *axis, tables);
  }
}

// The taps of position d: the source pixels that are nearer than `reach` pixels, widened by the ratio when
// antialiasing. In whole units of 1 / (2 q) pixels, so that pixels exactly at the reach, of weight 0, are never taken.
struct Support {
  ptrdiff_t first, count;

  Support(const ResizeAxis& axis, const Method& method, ptrdiff_t d) {
    const int64_t p = axis.p, q = axis.q, centre = (2 * static_cast<int64_t>(d) + 1) * p - q;
    const int reach = method.Kernel().Reach();
    if (!method.isAntialiasing) {
      first = FloorOf(axis.Coordinate(d)) - (reach - 1);
      count = 2 * reach;
      return;
    }
    const int64_t half = 2 * reach * std::max(p, q);
    first = static_cast<ptrdiff_t>(FloorOfQuotient(centre - half, 2 * q) + 1);
    count = static_cast<ptrdiff_t>(-FloorOfQuotient(-centre - half, 2 * q)) - first;
  }
};

double ScaleOf(const ResizeAxis& axis, const Method& method) {
  return method.isAntialiasing && axis.p > axis.q ? static_cast<double>(axis.p) / axis.q : 1.0;
}

// Most and fewest taps of any position, and the positions that need a border.
void FillTapIndex(ResizeAxis& axis, const Method& method, Tables& tables) {
  int32_t* index = tables.TakeIndex(axis, axis.destination);
  axis.taps = 0;
  axis.certainTaps = INT32_MAX;
  for (ptrdiff_t d = 0; d < axis.destination; ++d) {
    const Support support(axis, method, d);
    index[d] = static_cast<int32_t>(support.first);
    axis.taps = std::max(axis.taps, static_cast<int32_t>(support.count));
    axis.certainTaps = std::min(axis.certainTaps, static_cast<int32_t>(support.count));
    CountBorders(axis, support.first, support.count);
  }
}

// Weights of position d, divided by their sum where the kernel does not itself sum to 1.
class TapWeights {
 public:
  TapWeights(const ResizeAxis& axis, const Method& method, ptrdiff_t d)
      : axis_(axis), kernel_(method.Kernel()), scale_(ScaleOf(axis, method)), d_(d), support_(axis, method, d) {
    if (!method.isAntialiasing && method.interpolation == qvpInterpolationCubic) return;
    double sum = 0;
    for (int k = 0; k < support_.count; ++k) sum += Unscaled(k);
    sum_ = sum;
  }
  double At(int k) const { return k < support_.count ? Unscaled(k) / sum_ : 0; }

 private:
  double Unscaled(int k) const {
    const double distance = axis_.Distance(d_, support_.first + k);
    return kernel_.At((distance < 0 ? -distance : distance) / scale_);
  }

  const ResizeAxis& axis_;
  InterpolationKernel kernel_;
  double scale_;
  ptrdiff_t d_;
  Support support_;
  double sum_ = 1;
};

// A plane of weights for each tap; antialiasing records have a second table, in double.
bool FillFloatTaps(ResizeAxis& axis, const Method& method, Tables& tables) {
  const ptrdiff_t plane = PlaneOf(axis.destination);
  auto* weights = tables.TakeWeights<float>(axis, plane * axis.taps);
  double* precise = method.isAntialiasing ? tables.TakeNext<double>(plane * axis.taps) : nullptr;
  for (ptrdiff_t d = 0; d < axis.destination; ++d) {
    const TapWeights taps(axis, method, d);
    for (int k = 0; k < axis.taps; ++k) {
      const double weight = taps.At(k);
      weights[k * plane + d] = static_cast<float>(weight);
      if (precise) precise[k * plane + d] = weight;
    }
  }
  return true;
}

constexpr int kMostFixedTaps = 6;

// Weights in units of 1/16384, which sum to one exactly: the largest takes the residue. False where 16-bit weights or
// 32-bit sums could overflow: a weight of 2 or more, or absolute values that sum to more than 2.8.
bool FixTaps(const TapWeights& taps, int count, int (&fixed)[kMostFixedTaps]) {
  double absolute = 0;
  int sum = 0, largest = 0;
  for (int k = 0; k < count; ++k) {
    const double w = taps.At(k), magnitude = w < 0 ? -w : w;
    absolute += magnitude;
    if (!(magnitude < 2)) return false;
    fixed[k] = static_cast<int>(w * kFixedOne + (w < 0 ? -0.5 : 0.5));
    sum += fixed[k];
    if (std::abs(fixed[k]) > std::abs(fixed[largest])) largest = k;
  }
  fixed[largest] += kFixedOne - sum;
  return absolute <= 2.8 && fixed[largest] <= INT16_MAX && fixed[largest] >= INT16_MIN;
}

// A plane for each pair of taps.
bool FillFixedTaps(ResizeAxis& axis, const Method& method, Tables& tables) {
  const ptrdiff_t plane = PlaneOf(axis.destination);
  auto* weights = tables.TakeWeights<int16_t>(axis, plane * axis.taps);
  for (ptrdiff_t d = 0; d < axis.destination; ++d) {
    int fixed[kMostFixedTaps];
    if (!FixTaps(TapWeights(axis, method, d), axis.taps, fixed)) return false;
    for (int k = 0; k < axis.taps; ++k) weights[k / 2 * 2 * plane + 2 * d + k % 2] = static_cast<int16_t>(fixed[k]);
  }
  return true;
}

bool FillTaps(ResizeRecord& record, const Method& method, Tables& tables) {
  FillTapIndex(record.rows, method, tables);
  FillTapIndex(record.columns, method, tables);
  const auto fill = method.weights == WeightKind::kFixed ? FillFixedTaps : FillFloatTaps;
  return fill(record.rows, method, tables) && fill(record.columns, method, tables);
}

// One period: destination position j covers [j p, (j + 1) p) in units of 1 / q source pixels.
void FillSuper(ResizeAxis& axis, Tables& tables) {
  const int64_t p = axis.p, q = axis.q;
  axis.taps = axis.certainTaps = static_cast<int32_t>(p / q + std::min<int64_t>(p % q, 2));
  int32_t* index = tables.TakeIndex(axis, q);
  auto* weights = tables.TakeWeights<float>(axis, q * (p / q + 2));
  for (int64_t j = 0; j < q; ++j) {
    index[j] = static_cast<int32_t>(j * p / q);
    for (int64_t k = 0; k < axis.taps; ++k) {
      weights[k * q + j] = static_cast<float>(Overlap(axis, j, k));
    }
  }
}

bool FillTables(ResizeRecord& record, const Method& method) {
  Tables tables(record);
  if (method.HasPlainTaps()) return FillTaps(record, method, tables);
  switch (method.interpolation) {
    case qvpInterpolationNearest:
      FillNearest(record.rows, tables);
      FillNearest(record.columns, tables);
      break;
    case qvpInterpolationLinear: FillLinear(record, method.weights, tables); break;
    default:
      FillSuper(record.rows, tables);
      FillSuper(record.columns, tables);
      break;
  }
  return true;
}

void SetLengths(ResizeAxis& axis, ptrdiff_t source, ptrdiff_t destination) {
  axis.source = static_cast<int32_t>(source);
  axis.destination = static_cast<int32_t>(destination);
  const int32_t g = std::gcd(axis.source, axis.destination);
  axis.p = axis.source / g;
  axis.q = axis.destination / g;
}

int32_t TapPairs(const Method& method, const ResizeAxis& axis) {
  if (method.interpolation == qvpInterpolationNearest || method.interpolation == qvpInterpolationSuper) return 0;
  if (!method.isAntialiasing) return method.Kernel().Reach();
  return static_cast<int32_t>(ReservedTaps(method.interpolation, true, axis.source, axis.destination) / 2);
}

// Pixels around the source rectangle of a tile that its taps may reach.
uint32_t BorderOf(const Method& method, const ResizeAxis& axis) {
  if (method.interpolation == qvpInterpolationNearest || method.interpolation == qvpInterpolationSuper) return 0;
  const double reach = method.Kernel().Reach() * ScaleOf(axis, method);
  return static_cast<uint32_t>(-FloorOf(-reach));
}

void FillHeader(ResizeRecord& record, Size src, Size dst, const Method& method) {
  std::memset(&record, 0, sizeof(record));
  SetLengths(record.rows, src.height, dst.height);
  SetLengths(record.columns, src.width, dst.width);
  record.weights = method.weights;
  record.interpolation = method.interpolation;
  record.tapPairsAcross = TapPairs(method, record.columns);
  record.tapPairsDown = TapPairs(method, record.rows);
  record.isAntialiasing = method.isAntialiasing;
  record.border.left = record.border.right = BorderOf(method, record.columns);
  record.border.top = record.border.bottom = BorderOf(method, record.rows);
  record.mode = method.weights == WeightKind::kFixed ? qvpAlgHintFast : qvpAlgHintAccurate;
  record.sourceWidth = record.columns.source;
  record.sourceHeight = record.rows.source;
  record.width = record.columns.destination;
  record.height = record.rows.destination;
  record.isFastCapable = method.isFor8u;
  record.b = method.b;
  record.c = method.c;
  record.lobes = method.lobes;
  std::memcpy(record.shift, method.shift, sizeof(record.shift));
}

}  // namespace

void FillRecord(ResizeRecord& record, Size src, Size dst, Method method) {
  FillHeader(record, src, dst, method);
  if (FillTables(record, method)) return;
  method.weights = WeightKind::kFloat;
  FillHeader(record, src, dst, method);
  FillTables(record, method);
}

}  // namespace qvp::resize
