/** @file qvpcore.h
 *  The companion library qvpcore: aligned memory, facts about the processor, and texts for status codes.
 *
 *  qvpIP itself calls only qvpMalloc(), qvpMalloc_L(), qvpFree() and qvpGetMaxCacheSizeB(), and the build for every
 *  x86-64 ownGetFeature() when it is loaded. All functions may be called from any number of threads at once.
 */
#ifndef QVPCORE_H
#define QVPCORE_H

#include "qvptypes.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @name Memory
 *  @{ */
/** Allocates `length` bytes at an address that is a multiple of 64.
 *
 *  @param length number of bytes; below 1, nothing is allocated
 *  @return the block, which only qvpFree() may release, or null when there is not enough memory
 */
void* qvpMalloc(int length);
void* qvpMalloc_L(QvpSizeL length);

/** Releases a block that qvpMalloc() or qvpMalloc_L() returned.
 *
 *  @param ptr the block; null is allowed and does nothing
 */
void qvpFree(void* ptr);
/** @} */

/** @name Processor
 *  The facts come from the processor's own identification and are read once per process.
 *  @{ */
/** Writes the size in bytes of the largest data cache that the processor has.
 *
 *  @param pSizeByte receives the size
 *  @return qvpStatusNullPointer: the pointer is null. qvpStatusNotSupportedMode: the processor does not tell its cache
 *          sizes, as on AArch64 and WebAssembly; nothing is written. qvpStatusNoError otherwise.
 */
QvpStatus qvpGetMaxCacheSizeB(int* pSizeByte);

/** Size in bytes of a cache line. */
int qvp_get_cache_line_size(void);

/** Bits of the instruction-set extensions of x86 that both the processor and the operating system support. */
enum {
    qvpFeatureSSE2 = 0x1,      /**< SSE and SSE2 */
    qvpFeatureSSE3 = 0x2,      /**< SSE3 */
    qvpFeatureSSSE3 = 0x4,     /**< SSSE3 */
    qvpFeatureSSE41 = 0x8,     /**< SSE4.1 */
    qvpFeatureSSE42 = 0x10,    /**< SSE4.2 */
    qvpFeaturePOPCNT = 0x20,   /**< POPCNT */
    qvpFeatureAVX = 0x40,      /**< AVX, with its registers enabled */
    qvpFeatureAVX2 = 0x80,     /**< AVX2 */
    qvpFeatureFMA = 0x100,     /**< FMA3 */
    qvpFeatureF16C = 0x200,    /**< half-precision conversions */
    qvpFeatureBMI = 0x400,     /**< BMI1, BMI2 and LZCNT */
    qvpFeatureMOVBE = 0x800,   /**< MOVBE */
    qvpFeatureAVX512 = 0x1000, /**< AVX-512 F, BW, CD, DQ and VL, with their registers enabled */
};

/** The processor's feature bits, a combination of the `qvpFeature` constants. */
uint64_t ownGetFeature(void);
/** @} */

/** @name Status texts
 *  @{ */
/** Name and meaning of a status code as one line of text, for logs and error messages.
 *
 *  @param status any value
 *  @return a constant text, such as "qvpStatusNoError: The call succeeded."; never null
 */
const char* qvpGetStatusString(QvpStatus status);
/** @} */

#ifdef __cplusplus
}
#endif

#endif
