// Sums under a window of rows that are given one after the other, several planes of them, by trees: across each row,
// then down. The latest rows of each level down the columns are kept.
#pragma once

#include "filter/float_sums.h"

namespace qvp::filter {

// Bytes of rows of samples: those of a sample in all rows, and what is between rows besides.
struct RowBytes {
  ByteCount ofSample = 0, between = 0;

  ByteCount For(ByteCount samples) const { return ofSample * samples + between; }
  friend RowBytes operator+(const RowBytes& a, const RowBytes& b) {
    return {a.ofSample + b.ofSample, a.between + b.between};
  }
};

// Rows and planes have room for a vector behind them, or for as much as `spare`. They begin at an odd number of
// boundaries from each other: with powers of two between them all would be in the same few sets of a cache.
constexpr int64_t kVectorRoom = 64;
constexpr int64_t OddBoundaries(int64_t bytes) {
  return ((bytes + kRecordBoundary - 1) / kRecordBoundary | 1) * kRecordBoundary;
}
template <class E>
constexpr ptrdiff_t PlaneSamples(ptrdiff_t samples, int64_t spare = kVectorRoom) {
  constexpr int64_t kBytes = sizeof(E);
  return static_cast<ptrdiff_t>(OddBoundaries(samples * kBytes + spare) / kBytes);
}
template <class E>
constexpr RowBytes BytesOfRows(int64_t rows, int64_t spare = kVectorRoom) {
  return {ByteCount(rows) * int64_t{sizeof(E)}, ByteCount(rows) * (spare + 2 * kRecordBoundary)};
}

template <class E>
class WindowSums {
 public:
  // Of rows of so many sums, for which values are `width - 1` pixels more.
  WindowSums(QvpiSize mask, int channels, int planes, ptrdiff_t samples)
      : across_(TreeAcross(mask.width)),
        down_(TreeDown(mask.height)),
        channels_(channels),
        planes_(planes),
        samples_(samples),
        valueStep_(PlaneSamples<E>(samples + (mask.width - 1) * channels)),
        sumStep_(PlaneSamples<E>(samples)) {}

  static RowBytes Bytes(QvpiSize mask, int planes) {
    const SumTree across = TreeAcross(mask.width);
    const int64_t kept = RowsKept(TreeAcross(1), TreeDown(mask.height));
    return BytesOfRows<E>(int64_t{planes} * (1 + kept) + across.levels()) + RowBytes{0, kept * kRecordBoundary};
  }
  // Returns where the memory ends that it takes; it begins at a boundary.
  uint8_t* Start(uint8_t* memory) {
    values_ = reinterpret_cast<E*>(memory);
    levelsAcross_ = {memory + planes_ * ValueBytes(), ValueBytes()};
    const int64_t sumBytes = OddBoundaries(planes_ * sumStep_ * int64_t{sizeof(E)});
    sums_ = {levelsAcross_.From(across_.levels()).at, static_cast<ptrdiff_t>(sumBytes)};
    return sums_.From(RowsKept(TreeAcross(1), down_)).at;
  }

  // Where the values of the next row go. What was there stays.
  E* Values(int plane) const { return values_ + plane * valueStep_; }

  // Adds the row of values.
  void Add() {
    const ptrdiff_t last = down_.n() - 1, y = std::max<ptrdiff_t>(rows_ - last, 0);
    const LineSums<E> sums = LevelsFor(y).Line(rows_ - y);
    for (int plane = 0; plane < planes_; ++plane) AddPlane(plane, sums);
    ++rows_;
  }

  // The sums of the latest rows, as many as the mask has: those of a plane begin PlaneStep() behind those of the one
  // before it.
  TreeParts<E> Parts() const { return LevelsFor(rows_ - down_.n()).Parts(); }
  ptrdiff_t PlaneStep() const { return sumStep_; }

 private:
  using D = hn::ScalableTag<E>;

  ptrdiff_t ValueBytes() const { return valueStep_ * ptrdiff_t{sizeof(E)}; }
  ColumnLevels<E> LevelsFor(ptrdiff_t y) const {
    Window window{};
    window.y = y;
    return ColumnLevels<E>(down_, window, sums_, true);
  }

  HWY_NOINLINE void AddPlane(int plane, const LineSums<E>& sums) const {
    const auto parts = PartsAcross<E>(across_, Values(plane), channels_, samples_, levelsAcross_);
    ForEachVectors<2, ptrdiff_t{hn::MaxLanes(D())}>(samples_, [&](auto count, ptrdiff_t i) QVP_INLINED {
      sums.template Put<count>(TreeSums<count>(D(), parts, i), plane * sumStep_ + i);
    });
  }

  SumTree across_, down_;
  int channels_, planes_;
  ptrdiff_t samples_, valueStep_, sumStep_;
  ptrdiff_t rows_ = 0;
  E* values_ = nullptr;
  RowRoom<E> levelsAcross_{}, sums_{};
};

}  // namespace qvp::filter
