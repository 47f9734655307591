// Values of an image at points between its pixels: what warps and remap share. Points come in blocks of up to kBlock;
// a block is located (pixels and fractions), fetched, weighted and stored. Blocks whose taps all lie in the image are
// fetched without tests; the others pixel by pixel. Both then run the same arithmetic, so that a result depends on its
// point alone.
#pragma once

#include <algorithm>

#include "base/border.h"
#include "base/image.h"
#include "base/lanes.h"
#include "geometry/resize_kernels.h"

namespace qvp {

inline constexpr int kBlock = 64;

// Points up to whole vectors of any build.
constexpr ptrdiff_t Padded(ptrdiff_t n) { return (n + 15) & -16; }

// What can be read, and which points have a value.
struct SampleArea {
  Extent columns, rows;
  BorderKind kind = BorderKind::kReplicate;  // or kConst: what stands for pixels elsewhere
  bool isBounded = false;                    // points beyond the bounds are left alone ...
  bool isSmooth = false;                     // ... but blended in on one pixel around them
  double left = 0, top = 0, right = 0, bottom = 0;
};

template <class T>
struct SampleTask {
  Image<const T> src;
  SampleArea area;
  T constant[4] = {};
  double b = 0, c = 0;   // of the cubic
  bool isShift = false;  // nearest only: points are whole and one apart, so that pixels move in runs
};

// Weights, and sums of weighted pixels, are single precision unless pixels are double.
template <class T>
using WorkOf = std::conditional_t<std::is_same_v<T, double>, double, float>;

// ---- Where points lie

inline int64_t WholeBelow(double x) {
  const auto whole = static_cast<int64_t>(x);
  return static_cast<double>(whole) > x ? whole - 1 : whole;
}

// The pixel that belongs to a coordinate: the nearest one, the upper of two; or the one at or before it. x + 0.5 would
// round 0.49999999999999994 up.
template <int kTaps>
int64_t PixelOf(double x) {
  const int64_t whole = WholeBelow(x);
  return kTaps == 1 && x - static_cast<double>(whole) >= 0.5 ? whole + 1 : whole;
}
template <int kTaps, class D, class V>
HWY_INLINE V PixelOf(D d, V x) {
  using C = hn::TFromD<D>;
  const V whole = hn::Floor(x);
  if constexpr (kTaps > 1) return whole;
  return hn::Add(whole, hn::IfThenElseZero(hn::Ge(hn::Sub(x, whole), hn::Set(d, C{0.5})), hn::Set(d, C{1})));
}

// Pixels [first, last] along one axis.
struct Range {
  int32_t first = 1, last = 0;

  bool Contains(int64_t i) const { return i >= first && i <= last; }
};

constexpr int kTapsBefore(int taps) { return (taps - 1) / 2; }

// The pixels of points inside the bounds that have all taps, and `further` pixels behind these, in the extent.
inline Range InteriorOf(Extent extent, int taps, int further, bool isBounded, double low, double high) {
  const int before = kTapsBefore(taps);
  int64_t first = int64_t{extent.begin} + before, last = int64_t{extent.end} - taps + before - further;
  if (isBounded) {
    first = std::max(first, static_cast<int64_t>(low) + (taps == 1));
    last = std::min(last, static_cast<int64_t>(high) - 1);
  }
  if (first > last || last > INT32_MAX) return {};
  return {static_cast<int32_t>(first), static_cast<int32_t>(last)};
}

struct Interior {
  Range columns, rows;
  int32_t step = 0, pixelBytes = 0, before = 0;

  // Empty for images so large that offsets take more than 32 bits.
  template <class T>
  Interior(const SampleTask<T>& task, int taps, int further)
      : pixelBytes(task.src.PixelBytes()), before(kTapsBefore(taps)) {
    const SampleArea& a = task.area;
    const int64_t reach = std::max(-int64_t{a.rows.begin}, int64_t{a.rows.end}) + 8;
    const int64_t across = std::max(-int64_t{a.columns.begin}, int64_t{a.columns.end}) + 8;
    const int64_t size = task.src.step < 0 ? -int64_t{task.src.step} : int64_t{task.src.step};
    if (size > INT32_MAX || size * reach + across * pixelBytes > INT32_MAX) return;
    step = static_cast<int32_t>(task.src.step);
    columns = InteriorOf(a.columns, taps, further, a.isBounded, a.left, a.right);
    rows = InteriorOf(a.rows, taps, 0, a.isBounded, a.top, a.bottom);
  }
};

// A block of points: offsets of their first taps in bytes, and fractions.
template <class W>
struct Places {
  int32_t offset[kBlock];
  W x[kBlock], y[kBlock];
};

template <class D>
HWY_INLINE auto ToInt(D, hn::Vec<D> v) {
  const hn::Rebind<int32_t, D> ints;
  if constexpr (std::is_same_v<hn::TFromD<D>, double>) return hn::DemoteTo(ints, v);
  if constexpr (std::is_same_v<hn::TFromD<D>, float>) return hn::ConvertTo(ints, v);
}
template <class W, class D>
HWY_INLINE void StoreFractions(D d, hn::Vec<D> v, W* to) {
  if constexpr (std::is_same_v<W, hn::TFromD<D>>) hn::StoreU(v, d, to);
  if constexpr (!std::is_same_v<W, hn::TFromD<D>>)
    hn::StoreU(hn::DemoteTo(hn::Rebind<W, D>(), v), hn::Rebind<W, D>(), to);
}

// Locates n points, a multiple of the lanes, and tells whether all are interior. Coordinates beyond 32 bits saturate,
// and those that are no numbers become some number beyond the image.
template <int kTaps, class W, class C>
bool Locate(const C* u, const C* v, ptrdiff_t n, const Interior& interior, Places<W>& places) {
  const hn::ScalableTag<C> d;
  const hn::Rebind<int32_t, decltype(d)> ints;
  const auto left = hn::Set(ints, interior.columns.first), right = hn::Set(ints, interior.columns.last);
  const auto top = hn::Set(ints, interior.rows.first), bottom = hn::Set(ints, interior.rows.last);
  const auto step = hn::Set(ints, interior.step), bytes = hn::Set(ints, interior.pixelBytes);
  const auto before = hn::Set(ints, -interior.before * (interior.step + interior.pixelBytes));
  auto outside = hn::Zero(ints);
  for (ptrdiff_t i = 0; i < n; i += hn::Lanes(d)) {
    const auto x = hn::LoadU(d, u + i), y = hn::LoadU(d, v + i);
    const auto wholeX = PixelOf<kTaps>(d, x), wholeY = PixelOf<kTaps>(d, y);
    const auto px = ToInt(d, wholeX), py = ToInt(d, wholeY);
    const auto isOutside =
        hn::Or(hn::Or(hn::VecFromMask(ints, hn::Gt(left, px)), hn::VecFromMask(ints, hn::Gt(px, right))),
               hn::Or(hn::VecFromMask(ints, hn::Gt(top, py)), hn::VecFromMask(ints, hn::Gt(py, bottom))));
    outside = hn::Or(outside, isOutside);
    hn::StoreU(hn::Add(hn::Add(hn::Mul(py, step), hn::Mul(px, bytes)), before), ints, places.offset + i);
    if constexpr (kTaps > 1) {
      StoreFractions(d, hn::Sub(x, wholeX), places.x + i);
      StoreFractions(d, hn::Sub(y, wholeY), places.y + i);
    }
  }
  return hn::AllTrue(ints, hn::Eq(outside, hn::Zero(ints)));
}

// ---- Points whose taps need a test

enum class Fate : uint8_t { kSkipped, kInterior, kAtBorder, kConstant };

// What becomes of one point. At the border: its first tap. `share` of a point outside smooth bounds is below 1.
struct Verdict {
  Fate fate = Fate::kSkipped;
  int64_t column = 0, row = 0;
  double x = 0, y = 0, share = 1;
};

// The nearest number of [low, high]; not a number gives the lower one.
inline double Bounded(double x, double low, double high) { return x >= low ? x <= high ? x : high : low; }

inline double Beyond(double x, double low, double high) {
  return x < low ? low - x : x > high ? x - high : x == x ? 0 : 1;
}

inline bool AreAllOutside(int64_t first, int taps, Extent extent) {
  return first + taps <= extent.begin || first >= extent.end;
}

// Points are moved to the bounds or, far outside, to where all taps are beyond the extents.
template <int kTaps>
Verdict Judge(const SampleArea& area, double u, double v) {
  Verdict verdict;
  double left = static_cast<double>(area.columns.begin) - kTaps, right = static_cast<double>(area.columns.end) + kTaps;
  double top = static_cast<double>(area.rows.begin) - kTaps, bottom = static_cast<double>(area.rows.end) + kTaps;
  if (area.isBounded) {
    left = area.left, right = area.right, top = area.top, bottom = area.bottom;
    const double dx = Beyond(u, left, right), dy = Beyond(v, top, bottom);
    if (dx >= 1 || dy >= 1 || (!area.isSmooth && (dx > 0 || dy > 0))) return verdict;
    verdict.share = (1 - dx) * (1 - dy);
  }
  const double x = Bounded(u, left, right), y = Bounded(v, top, bottom);
  const int64_t column = PixelOf<kTaps>(x), row = PixelOf<kTaps>(y);
  verdict.column = column - kTapsBefore(kTaps);
  verdict.row = row - kTapsBefore(kTaps);
  verdict.x = x - static_cast<double>(column);
  verdict.y = y - static_cast<double>(row);
  const bool isConstant = area.kind == BorderKind::kConst && (AreAllOutside(verdict.column, kTaps, area.columns) ||
                                                              AreAllOutside(verdict.row, kTaps, area.rows));
  verdict.fate = isConstant ? Fate::kConstant : Fate::kAtBorder;
  return verdict;
}

// The taps of a point at the border: tap k of row r goes to patch + (r * kTaps + k) * channels.
template <int kTaps, class T>
void FetchPatch(const SampleTask<T>& task, const Verdict& verdict, T* patch) {
  const int channels = Channels(task.src.layout);
  ptrdiff_t columns[kTaps];
  for (int k = 0; k < kTaps; ++k) {
    columns[k] = BorderPosition(task.area.kind, static_cast<ptrdiff_t>(verdict.column + k), task.area.columns);
  }
  for (int r = 0; r < kTaps; ++r) {
    const ptrdiff_t y = BorderPosition(task.area.kind, static_cast<ptrdiff_t>(verdict.row + r), task.area.rows);
    const T* row = y == kOutside ? nullptr : task.src.Row(y);
    for (int k = 0; k < kTaps; ++k, patch += channels) {
      const bool isConstant = row == nullptr || columns[k] == kOutside;
      std::memcpy(patch, isConstant ? task.constant : row + columns[k] * channels, channels * sizeof(T));
    }
  }
}

// Fates of a block that is not all interior, from which the stores go on.
struct Fates {
  Fate fate[kBlock];
  double share[kBlock];
  bool isAnyWritten = false;
};

// A coordinate from any address.
template <class C>
double NumberAt(const C* from) {
  C number;
  std::memcpy(&number, from, sizeof(C));
  return static_cast<double>(number);
}

// Calls atInterior(i), atBorder(i, verdict) or skipped(i) for each point.
template <int kTaps, class T, class C, class InteriorCall, class BorderCall, class SkipCall>
void JudgeEach(const SampleTask<T>& task, const Interior& interior, const C* u, const C* v, ptrdiff_t n, Fates& fates,
               const InteriorCall& atInterior, const BorderCall& atBorder, const SkipCall& skipped) {
  for (ptrdiff_t i = 0; i < n; ++i) {
    const double x = NumberAt(u + i), y = NumberAt(v + i);
    const double px = Bounded(x, INT32_MIN, INT32_MAX), py = Bounded(y, INT32_MIN, INT32_MAX);
    fates.share[i] = 1;
    if (x == px && y == py && interior.columns.Contains(PixelOf<kTaps>(px)) &&
        interior.rows.Contains(PixelOf<kTaps>(py))) {
      fates.fate[i] = Fate::kInterior;
      atInterior(i);
    } else {
      const Verdict verdict = Judge<kTaps>(task.area, x, y);
      fates.fate[i] = verdict.fate;
      fates.share[i] = verdict.share;
      if (verdict.fate == Fate::kAtBorder) atBorder(i, verdict);
      if (verdict.fate != Fate::kAtBorder) skipped(i);
    }
    fates.isAnyWritten |= fates.fate[i] != Fate::kSkipped;
  }
}

// ---- Stores

// A number as an element: integers are rounded to the nearest, ties to even, and saturated; NaN gives the lowest one.
template <class T>
T ToElement(double value) {
  if constexpr (std::is_floating_point_v<T>) {
    return static_cast<T>(value);
  } else {
    constexpr double kToWhole = 6755399441055744.0;  // 1.5 * 2^52: numbers of this size have no fraction
    const double bounded = Bounded(value, std::numeric_limits<T>::lowest(), std::numeric_limits<T>::max());
    return static_cast<T>((bounded + kToWhole) - kToWhole);
  }
}

template <class T>
void StorePixel(const T* value, double share, int written, T* dst) {
  if (share == 1) {
    std::memcpy(dst, value, written * sizeof(T));
    return;
  }
  for (int c = 0; c < written; ++c) {
    T old;
    std::memcpy(&old, dst + c, sizeof(T));
    const T mixed = ToElement<T>(share * static_cast<double>(value[c]) + (1 - share) * static_cast<double>(old));
    std::memcpy(dst + c, &mixed, sizeof(T));
  }
}

template <class T>
void StoreBlock(const SampleTask<T>& task, const T* out, ptrdiff_t n, T* dst) {
  const int channels = Channels(task.src.layout), written = ProcessedChannels(task.src.layout);
  if (written == channels) {
    std::memcpy(dst, out, n * channels * sizeof(T));
    return;
  }
  for (ptrdiff_t i = 0; i < n; ++i) std::memcpy(dst + i * channels, out + i * channels, written * sizeof(T));
}

template <class T>
void StoreJudged(const SampleTask<T>& task, const Fates& fates, const T* out, ptrdiff_t n, T* dst) {
  const int channels = Channels(task.src.layout), written = ProcessedChannels(task.src.layout);
  for (ptrdiff_t i = 0; i < n; ++i) {
    if (fates.fate[i] == Fate::kSkipped) continue;
    const bool isConstant = fates.fate[i] == Fate::kConstant;
    StorePixel(isConstant ? task.constant : out + i * channels, fates.share[i], written, dst + i * channels);
  }
}

// Whether no point of a block takes anything from the image. What is no number is left to closer inspection.
template <int kTaps, class C>
bool AreAllBeyond(const SampleArea& a, const C* u, const C* v, ptrdiff_t n) {
  const hn::ScalableTag<C> d;
  const auto at = [d](double place) { return hn::Set(d, static_cast<C>(place)); };
  const auto left = at((a.isBounded ? a.left : static_cast<double>(a.columns.begin)) - kTaps - 1);
  const auto right = at((a.isBounded ? a.right : static_cast<double>(a.columns.end)) + kTaps + 1);
  const auto top = at((a.isBounded ? a.top : static_cast<double>(a.rows.begin)) - kTaps - 1);
  const auto bottom = at((a.isBounded ? a.bottom : static_cast<double>(a.rows.end)) + kTaps + 1);
  for (ptrdiff_t i = 0; i < Padded(n); i += hn::Lanes(d)) {
    const auto x = hn::LoadU(d, u + i), y = hn::LoadU(d, v + i);
    const auto isBeyond = hn::Or(hn::Or(hn::Lt(x, left), hn::Gt(x, right)), hn::Or(hn::Lt(y, top), hn::Gt(y, bottom)));
    if (!hn::AllTrue(d, isBeyond)) return false;
  }
  return true;
}

// Finishes a block that lies beyond the image as a whole: nothing is written, or the constant.
template <int kTaps, class T, class C>
bool FinishBeyond(const SampleTask<T>& task, const C* u, const C* v, ptrdiff_t n, T* dst) {
  const bool isConstant = task.area.kind == BorderKind::kConst;
  if (!(task.area.isBounded || isConstant) || !AreAllBeyond<kTaps>(task.area, u, v, n)) return false;
  if (!isConstant) return true;
  auto* bytes = reinterpret_cast<uint8_t*>(dst);
  const ptrdiff_t all = n * task.src.PixelBytes();
  ptrdiff_t done = task.src.PixelBytes();
  std::memcpy(bytes, task.constant, done);
  for (; done < all; done += std::min(done, all - done)) std::memcpy(bytes + done, bytes, std::min(done, all - done));
  return true;
}

// ---- Nearest

template <int kBytes>
void MovePixels(const uint8_t* src, const int32_t* offset, ptrdiff_t n, uint8_t* dst) {
  for (ptrdiff_t i = 0; i < n; ++i) std::memcpy(dst + i * kBytes, src + offset[i], kBytes);
}

template <class T>
void MovePixels(const SampleTask<T>& task, const int32_t* offset, ptrdiff_t n, T* out) {
  const auto* src = reinterpret_cast<const uint8_t*>(task.src.data);
  auto* dst = reinterpret_cast<uint8_t*>(out);
  if (task.isShift) {
    std::memcpy(dst, src + offset[0], n * task.src.PixelBytes());
    return;
  }
  switch (Channels(task.src.layout)) {
    case 1: return MovePixels<sizeof(T)>(src, offset, n, dst);
    case 3: return MovePixels<3 * sizeof(T)>(src, offset, n, dst);
    default: return MovePixels<4 * sizeof(T)>(src, offset, n, dst);
  }
}

// Coordinates have room for kBlock points; those behind the n-th are copies of it, up to Padded(n).
template <class T, class C>
void SampleNearest(const SampleTask<T>& task, const C* u, const C* v, ptrdiff_t n, T* dst) {
  const Interior interior(task, 1, 0);
  Places<WorkOf<T>> places;
  const int channels = Channels(task.src.layout);
  const bool isWhole = ProcessedChannels(task.src.layout) == channels;
  if (Locate<1>(u, v, Padded(n), interior, places) && isWhole) {
    return MovePixels(task, places.offset, n, dst);
  }
  if (FinishBeyond<1>(task, u, v, n, dst)) return;
  T out[4 * kBlock];
  Fates fates;
  JudgeEach<1>(
      task, interior, u, v, n, fates,
      [&](ptrdiff_t i) {
        std::memcpy(out + i * channels, reinterpret_cast<const uint8_t*>(task.src.data) + places.offset[i],
                    task.src.PixelBytes());
      },
      [&](ptrdiff_t i, const Verdict& verdict) { FetchPatch<1>(task, verdict, out + i * channels); }, [](ptrdiff_t) {});
  if (fates.isAnyWritten) StoreJudged(task, fates, out, n, dst);
}

// ---- Weights

// The weights of a block, tap by tap.
template <int kTaps, class W>
struct BlockWeights {
  W x[kTaps][kBlock], y[kTaps][kBlock];
};

// A cubic's weights are polynomials of the fraction. Mitchell, Netravali: Reconstruction filters in computer graphics
// (1988), expanded for the distances f + 1, f, 1 - f and 2 - f.
struct CubicPolynomials {
  double of[4][4];  // coefficients of 1, f, f^2, f^3

  CubicPolynomials(double b, double c)
      : of{{b / 6, -b / 2 - c, b / 2 + 2 * c, -b / 6 - c},
           {1 - b / 3, 0, -3 + 2 * b + c, 2 - 1.5 * b - c},
           {b / 6, b / 2 + c, 3 - 2.5 * b - 2 * c, -2 + 1.5 * b + c},
           {0, 0, -c, b / 6 + c}} {}
};

template <class W>
void WeighCubic(const CubicPolynomials& cubic, const W* fraction, ptrdiff_t n, W (*to)[kBlock]) {
  const hn::ScalableTag<W> d;
  for (int k = 0; k < 4; ++k) {
    const double* p = cubic.of[k];
    const auto p0 = hn::Set(d, static_cast<W>(p[0])), p1 = hn::Set(d, static_cast<W>(p[1]));
    const auto p2 = hn::Set(d, static_cast<W>(p[2])), p3 = hn::Set(d, static_cast<W>(p[3]));
    for (ptrdiff_t i = 0; i < n; i += hn::Lanes(d)) {
      const auto f = hn::LoadU(d, fraction + i);
      hn::StoreU(hn::Add(hn::Mul(hn::Add(hn::Mul(hn::Add(hn::Mul(p3, f), p2), f), p1), f), p0), d, to[k] + i);
    }
  }
}

// Lanczos of three lobes, divided by the sum of the weights.
template <class W>
void WeighLanczos(const W* fraction, ptrdiff_t n, W (*to)[kBlock]) {
  const ResizeKernel kernel{qvpInterpolationLanczos, 0, 0, 3};
  for (ptrdiff_t i = 0; i < n; ++i) {
    const double f = static_cast<double>(fraction[i]);
    double weights[6], sum = 0;
    for (int k = 0; k < 6; ++k) sum += weights[k] = kernel.At(k < 3 ? f + (2 - k) : (k - 2) - f);
    for (int k = 0; k < 6; ++k) to[k][i] = static_cast<W>(weights[k] / sum);
  }
}

template <class W>
void WeighLinear(const W* fraction, ptrdiff_t n, W (*to)[kBlock]) {
  const hn::ScalableTag<W> d;
  for (ptrdiff_t i = 0; i < n; i += hn::Lanes(d)) {
    const auto f = hn::LoadU(d, fraction + i);
    hn::StoreU(hn::Sub(hn::Set(d, W{1}), f), d, to[0] + i);
    hn::StoreU(f, d, to[1] + i);
  }
}

template <int kTaps, class T, class W>
void Weigh(const SampleTask<T>& task, const Places<W>& places, ptrdiff_t n, BlockWeights<kTaps, W>& weights) {
  if constexpr (kTaps == 2) {
    WeighLinear(places.x, n, weights.x);
    WeighLinear(places.y, n, weights.y);
  } else if constexpr (kTaps == 4) {
    const CubicPolynomials cubic(task.b, task.c);
    WeighCubic(cubic, places.x, n, weights.x);
    WeighCubic(cubic, places.y, n, weights.y);
  } else {
    WeighLanczos(places.x, n, weights.x);
    WeighLanczos(places.y, n, weights.y);
  }
}

// ---- One channel: lanes are points

// Taps as they come from memory: kPack neighbours of each point, one point behind the other.
template <int kTaps, class T>
struct PackedTaps {
  static constexpr int kPack = sizeof(T) == 1 ? kTaps : 2, kPacks = kTaps / kPack;
  T at[kTaps][kPacks][kBlock * kPack];

  HWY_INLINE void Put(ptrdiff_t i, const uint8_t* first, ptrdiff_t step) {
    for (int r = 0; r < kTaps; ++r) {
      for (int p = 0; p < kPacks; ++p) {
        std::memcpy(at[r][p] + i * kPack, first + r * step + p * kPack * sizeof(T), kPack * sizeof(T));
      }
    }
  }
};

// kPack taps of as many points as there are lanes, as numbers.
template <int kPack, class D, class T>
HWY_INLINE void LoadPack(D d, const T* from, hn::Vec<D>* taps) {
  using W = hn::TFromD<D>;
  if constexpr (std::is_same_v<T, W>) {
    hn::LoadInterleaved2(d, from, taps[0], taps[1]);
  } else {
    constexpr int kBits = 8 * sizeof(T), kRoom = 32 - kBits;
    const hn::Rebind<int32_t, D> ints;
    const hn::Rebind<uint32_t, D> unsignedInts;
    const hn::Rebind<std::conditional_t<kPack * kBits == 16, uint16_t, uint32_t>, D> packs;
    auto pack = hn::LoadU(packs, reinterpret_cast<const hn::TFromD<decltype(packs)>*>(from));
    const auto wide = [&] {
      if constexpr (kPack * kBits == 16) return hn::PromoteTo(unsignedInts, pack);
      if constexpr (kPack * kBits == 32) return pack;
    }();
    const auto tap = [&](auto number) HWY_ATTR {
      constexpr int k = decltype(number)::value, kUp = kRoom - k * kBits;
      const auto top = hn::ShiftLeft<kUp>(wide);
      if constexpr (std::is_signed_v<T>) return hn::ConvertTo(d, hn::ShiftRight<kRoom>(hn::BitCast(ints, top)));
      if constexpr (std::is_unsigned_v<T>) return hn::ConvertTo(d, hn::BitCast(ints, hn::ShiftRight<kRoom>(top)));
    };
    taps[0] = tap(std::integral_constant<int, 0>());
    taps[1] = tap(std::integral_constant<int, 1>());
    if constexpr (kPack == 4) {
      taps[2] = tap(std::integral_constant<int, 2>());
      taps[3] = tap(std::integral_constant<int, 3>());
    }
  }
}

template <int kTaps, class T, class W>
void BlendPoints(const PackedTaps<kTaps, T>& taps, const BlockWeights<kTaps, W>& weights, ptrdiff_t n, T* out) {
  const hn::ScalableTag<W> d;
  using V = hn::Vec<decltype(d)>;
  constexpr int kPack = PackedTaps<kTaps, T>::kPack;
  for (ptrdiff_t i = 0; i < n; i += hn::Lanes(d)) {
    V total;
    for (int r = 0; r < kTaps; ++r) {
      V row;
      for (int k = 0; k < kTaps; k += kPack) {
        V values[kPack];
        LoadPack<kPack>(d, taps.at[r][k / kPack] + i * kPack, values);
        for (int j = 0; j < kPack; ++j) {
          const V part = hn::Mul(values[j], hn::LoadU(d, weights.x[k + j] + i));
          row = k + j == 0 ? part : hn::Add(row, part);
        }
      }
      const V part = hn::Mul(row, hn::LoadU(d, weights.y[r] + i));
      total = r == 0 ? part : hn::Add(total, part);
    }
    hn::StoreU(Narrow<T>(d, total), hn::Rebind<T, decltype(d)>(), out + i);
  }
}

// ---- Several channels, or many taps: lanes are channels

// Four channels of a pixel.
template <class W>
struct Quad {
  static constexpr int kVectors = 4 * sizeof(W) / kBlockBytes, kLanes = 4 / kVectors;
  hn::Full128<W> d;
  hn::Vec<hn::Full128<W>> v[kVectors];

  template <class T>
  HWY_INLINE static Quad Weighted(const T* pixel, W weight) {
    Quad q;
    for (int i = 0; i < kVectors; ++i) q.v[i] = hn::Mul(LoadWide(q.d, pixel + i * kLanes), hn::Set(q.d, weight));
    return q;
  }
  HWY_INLINE void Scale(W weight) {
    for (int i = 0; i < kVectors; ++i) v[i] = hn::Mul(v[i], hn::Set(d, weight));
  }
  HWY_INLINE void Add(const Quad& other) {
    for (int i = 0; i < kVectors; ++i) v[i] = hn::Add(v[i], other.v[i]);
  }
  template <class T>
  HWY_INLINE void StoreTo(T* pixel) const {
    for (int i = 0; i < kVectors; ++i) {
      hn::StoreU(Narrow<T>(d, v[i]), hn::Rebind<T, hn::Full128<W>>(), pixel + i * kLanes);
    }
  }
};

// The weighted sum of one point's taps. Four elements are read at each tap and written, however many channels there
// are.
template <int kTaps, int kChannels, class T, class W>
HWY_INLINE void BlendPixel(const uint8_t* first, ptrdiff_t step, const BlockWeights<kTaps, W>& weights, ptrdiff_t i,
                           T* out) {
  Quad<W> total;
  for (int r = 0; r < kTaps; ++r) {
    const T* taps = reinterpret_cast<const T*>(first + r * step);
    Quad<W> row = Quad<W>::Weighted(taps, weights.x[0][i]);
    for (int k = 1; k < kTaps; ++k) row.Add(Quad<W>::Weighted(taps + k * kChannels, weights.x[k][i]));
    row.Scale(weights.y[r][i]);
    if (r == 0) total = row;
    if (r != 0) total.Add(row);
  }
  total.StoreTo(out);
}

// ---- Blocks

template <int kTaps, class T, class C>
void SampleOneChannel(const SampleTask<T>& task, const C* u, const C* v, ptrdiff_t n, T* dst) {
  using W = WorkOf<T>;
  const Interior interior(task, kTaps, 0);
  const auto* src = reinterpret_cast<const uint8_t*>(task.src.data);
  const ptrdiff_t step = task.src.step, padded = Padded(n);
  Places<W> places;
  PackedTaps<kTaps, T> taps;
  BlockWeights<kTaps, W> weights;
  T out[kBlock];
  Fates fates;
  const bool isInterior = Locate<kTaps>(u, v, padded, interior, places);
  if (isInterior) {
    for (ptrdiff_t i = 0; i < padded; ++i) taps.Put(i, src + places.offset[i], step);
  } else {
    if (FinishBeyond<kTaps>(task, u, v, n, dst)) return;
    const T zeros[kTaps * kTaps] = {};
    const auto put = [&](ptrdiff_t i, const T* patch) {
      taps.Put(i, reinterpret_cast<const uint8_t*>(patch), kTaps * sizeof(T));
    };
    for (ptrdiff_t i = n; i < padded; ++i) put(i, zeros);
    JudgeEach<kTaps>(
        task, interior, u, v, n, fates, [&](ptrdiff_t i) { taps.Put(i, src + places.offset[i], step); },
        [&](ptrdiff_t i, const Verdict& verdict) {
          T patch[kTaps * kTaps];
          FetchPatch<kTaps>(task, verdict, patch);
          put(i, patch);
          places.x[i] = static_cast<W>(verdict.x);
          places.y[i] = static_cast<W>(verdict.y);
        },
        [&](ptrdiff_t i) { put(i, zeros); });
    if (!fates.isAnyWritten) return;
  }
  Weigh<kTaps>(task, places, padded, weights);
  BlendPoints(taps, weights, padded, out);
  if (isInterior) return StoreBlock(task, out, n, dst);
  StoreJudged(task, fates, out, n, dst);
}

template <int kTaps, int kChannels, class T, class C>
void SampleChannels(const SampleTask<T>& task, const C* u, const C* v, ptrdiff_t n, T* dst) {
  using W = WorkOf<T>;
  constexpr int kFurther = (4 - kChannels + kChannels - 1) / kChannels;  // pixels that four elements reach over
  const Interior interior(task, kTaps, kFurther);
  const auto* src = reinterpret_cast<const uint8_t*>(task.src.data);
  const ptrdiff_t step = task.src.step, padded = Padded(n);
  Places<W> places;
  BlockWeights<kTaps, W> weights;
  T out[kBlock * kChannels + 4];
  if (Locate<kTaps>(u, v, padded, interior, places)) {
    Weigh<kTaps>(task, places, padded, weights);
    for (ptrdiff_t i = 0; i < n; ++i) {
      BlendPixel<kTaps, kChannels>(src + places.offset[i], step, weights, i, out + i * kChannels);
    }
    return StoreBlock(task, out, n, dst);
  }
  if (FinishBeyond<kTaps>(task, u, v, n, dst)) return;
  Fates fates;
  Verdict verdicts[kBlock];
  JudgeEach<kTaps>(
      task, interior, u, v, n, fates, [](ptrdiff_t) {},
      [&](ptrdiff_t i, const Verdict& verdict) {
        verdicts[i] = verdict;
        places.x[i] = static_cast<W>(verdict.x);
        places.y[i] = static_cast<W>(verdict.y);
      },
      [](ptrdiff_t) {});
  if (!fates.isAnyWritten) return;
  Weigh<kTaps>(task, places, padded, weights);
  for (ptrdiff_t i = 0; i < n; ++i) {
    T patch[kTaps * kTaps * kChannels + 4] = {};
    const bool isAtBorder = fates.fate[i] == Fate::kAtBorder;
    if (!isAtBorder && fates.fate[i] != Fate::kInterior) continue;
    if (isAtBorder) FetchPatch<kTaps>(task, verdicts[i], patch);
    BlendPixel<kTaps, kChannels>(isAtBorder ? reinterpret_cast<const uint8_t*>(patch) : src + places.offset[i],
                                 isAtBorder ? kTaps * kChannels * sizeof(T) : step, weights, i, out + i * kChannels);
  }
  StoreJudged(task, fates, out, n, dst);
}

// Values at n points, up to kBlock, to as many pixels. Coordinates as for SampleNearest.
template <int kTaps, class T, class C>
void Sample(const SampleTask<T>& task, const C* u, const C* v, ptrdiff_t n, T* dst) {
  if constexpr (kTaps == 1) {
    SampleNearest(task, u, v, n, dst);
  } else {
    switch (Channels(task.src.layout)) {
      case 1:
        if constexpr (kTaps == 6) return SampleChannels<kTaps, 1>(task, u, v, n, dst);
        if constexpr (kTaps != 6) return SampleOneChannel<kTaps>(task, u, v, n, dst);
        break;
      case 3: return SampleChannels<kTaps, 3>(task, u, v, n, dst);
      default: return SampleChannels<kTaps, 4>(task, u, v, n, dst);
    }
  }
}

}  // namespace qvp
