// One-dimensional discrete Fourier and cosine transforms of several lines of floats at once, each line a lane of
// vectors.
//
// A plan is a block of tables in the caller's record; it holds offsets, not pointers. Lines are gathered into a block
// of the work buffer, transformed there, and scattered. The operations on a line are the same in every lane and for
// every width of the vectors.
#pragma once

#include <cstddef>
#include <cstdint>

namespace qvp::dft {

// Lines that are transformed together. Lengths whose blocks would not stay in the caches go one by one.
inline constexpr int kDftLines = 8;
inline constexpr int64_t kLongestTogether = 1 << 16;

// A complex number.
inline constexpr ptrdiff_t kPairBytes = 2 * sizeof(float);

// kCosine is the cosine transform of real lines, C[k] = sum over n of x[n] cos(pi k (2 n + 1) / (2 N)), and its inverse
// by Fourier transforms of the same length (Makhoul 1980), C[0] + 2 sum over k of C[k] cos(...). With the numbers at
// even places first and those at odd places behind them, backwards, as v, and V its spectrum, C[k] = Re(e^(-i pi k / (2
// N)) V[k]).
enum class DftKind : int32_t { kComplex, kReal, kCosine };
enum class Direction { kForward, kInverse };

// Lengths with prime factors up to this go through them; others by a chirp (Bluestein, 1970), as a convolution of a
// power of two's length.
inline constexpr int kLargestFactor = 61;

struct DftPlan {
  int64_t length;         // of the lines, in real or complex numbers
  int64_t complexLength;  // of the transform that is made of them: half of an even real length
  int64_t chirpLength;    // 0, or the length of the convolution
  // Byte offsets of the tables from the plan.
  int64_t places, twiddles, realTwiddles, cosines, primes, chirp, chirpSpectrum;
  int64_t bytes;  // of the plan with its tables
  DftKind kind;
  float scale[2];   // of forward and inverse results
  float ofMean[2];  // kCosine: what C[0] is multiplied by besides, as a result and as what is transformed back
  int32_t factorCount;
  uint8_t factors[40];  // of chirpLength or complexLength, in the order of the passes

  int64_t BlockLength() const { return chirpLength ? chirpLength : complexLength; }
  int Lines() const { return BlockLength() <= kLongestTogether ? kDftLines : 1; }
  int64_t BlockBytes() const { return BlockLength() * Lines() * 2 * int64_t{sizeof(float)}; }
};

// A plan without its tables, of at least one number.
DftPlan LayOutDft(int64_t length, DftKind kind);
// Writes the plan and its tables to memory at a 64-byte boundary.
void WriteDft(const DftPlan& plan, uint8_t* to);

// `count` lines of floats that are `stride` bytes apart.
template <class T>
struct DftLines {
  T* at[kDftLines];
  ptrdiff_t stride;
  int count;  // at most plan.Lines()
};

// Transforms lines: real ones forward to packed spectra and back, or to cosine transforms, complex ones as pairs of
// floats. The block has
// plan.BlockBytes() at a 64-byte boundary. Source and destination may be the same.
void TransformLines(const DftPlan& plan, Direction direction, const DftLines<const float>& src,
                    const DftLines<float>& dst, float* block);

// Neighbouring columns of complex numbers: the real part of number l of row y is at data + l * pitch + y * step bytes,
// its imaginary part `imaginary` bytes on.
template <class T>
struct DftColumns {
  T* data;
  ptrdiff_t step, pitch, imaginary;
};
void TransformColumns(const DftPlan& plan, Direction direction, const DftColumns<const float>& src,
                      const DftColumns<float>& dst, int count, float* block);

}  // namespace qvp::dft
