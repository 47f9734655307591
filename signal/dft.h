// One-dimensional discrete Fourier transforms of several lines of floats at once, each line a lane of vectors.
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

enum class DftKind : int32_t { kComplex, kReal };
enum class Direction { kForward, kInverse };

// Lengths with prime factors up to this go through them; others by a chirp (Bluestein, 1970), as a convolution of a
// power of two's length.
inline constexpr int kLargestFactor = 61;

struct DftPlan {
  int64_t length;         // of the lines, in real or complex numbers
  int64_t complexLength;  // of the transform that is made of them: half of an even real length
  int64_t chirpLength;    // 0, or the length of the convolution
  int64_t places, twiddles, realTwiddles, primes, chirp, chirpSpectrum;  // byte offsets of the tables from the plan
  int64_t bytes;                                                         // of the plan with its tables
  DftKind kind;
  float scale[2];  // of forward and inverse results
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

// Transforms lines: real ones forward to packed spectra and back, complex ones as pairs of floats. The block has
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
