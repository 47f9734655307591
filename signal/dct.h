// Cosine transforms of real lines by Fourier transforms of the same length (Makhoul 1980):
//
//   C[k] = sum over n of x[n] cos(pi k (2 n + 1) / (2 N))
//
// With the numbers at even places first and those at odd places behind them, backwards, as v, and V its spectrum,
//   C[k] = Re(e^(-i pi k / (2 N)) V[k]).
// A line is reordered, transformed to a packed spectrum, and turned; and back the same way.
#pragma once

#include "signal/dft.h"

namespace qvp::dct {

// A plan is a block of tables, as that of a Fourier transform, which it contains.
struct DctPlan {
  int64_t length;
  int64_t turns, dft;  // offsets in bytes: cosines, then sines, of pi k / (2 N) for k up to N / 2; the other plan
  int64_t bytes;       // of the plan with its tables

  const dft::DftPlan& Dft() const {
    return *reinterpret_cast<const dft::DftPlan*>(reinterpret_cast<const uint8_t*>(this) + dft);
  }
};

DctPlan LayOutDct(int64_t length);
void WriteDct(const DctPlan& plan, uint8_t* to);

// A line in the order that is transformed, and back. Source and destination do not overlap.
void Reorder(const DctPlan& plan, const float* line, float* to);
void Restore(const DctPlan& plan, const float* reordered, float* to);

// A packed spectrum as cosine transform, and back, likewise.
void Turn(const DctPlan& plan, const float* packed, float* to);
void TurnBack(const DctPlan& plan, const float* transform, float* to);

}  // namespace qvp::dct
