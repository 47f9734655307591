// Vectors of the CPU that this build is for.
#pragma once

#include <hwy/highway.h>

#if HWY_TARGET == HWY_WASM
#include "base/simd_wasm.h"
#endif

static_assert(HWY_TARGET == QVP_VECTOR_TARGET, "the compiler's flags do not select this build's vector target");

// For lambdas: one that is called makes memory of what it refers to.
#define QVP_INLINED __attribute__((always_inline))

// QVP_SCATTERED is for loops over words that lie apart: AVX-512 has instructions that load and store a vector of them,
// which take longer than one word after the other.
// QVP_ROLLED is for loops that are taken a few times only: what compilers make of others has a long way to the first
// turn.
#ifdef __clang__
#define QVP_ROLLED _Pragma("clang loop vectorize(disable) unroll(disable)")
#define QVP_SCATTERED _Pragma("clang loop vectorize(disable)")
#else
#define QVP_ROLLED _Pragma("GCC unroll 1")
#define QVP_SCATTERED _Pragma("GCC unroll 4")
#endif

namespace qvp {
namespace hn = hwy::HWY_NAMESPACE;

// Bytes of one 128-bit block, within which byte shuffles work on every CPU.
inline constexpr int kBlockBytes = 16;

// A load that keeps out of the caches where memory is write-combining, if the CPU has such a load. The address must be
// a multiple of 16.
HWY_INLINE hn::Vec128<uint8_t> LoadStreaming(const uint8_t* from) {
#if HWY_ARCH_X86
  return hn::Vec128<uint8_t>{_mm_stream_load_si128(reinterpret_cast<__m128i*>(const_cast<uint8_t*>(from)))};
#else
  return hn::Load(hn::Full128<uint8_t>(), from);
#endif
}

}  // namespace qvp
