/** @file qvpi_core.h
 *  Version, image memory, and the functions that move pixels without changing their values: copy, set, channel order
 *  and channel duplication.
 *
 *  Conventions of every function in this library:
 *
 *  - An image is a pointer to the first pixel of the region of interest, a row step in bytes, and a region size in
 *    pixels, which holds for source and destination alike. Row y starts `y * step` bytes after the pointer. Nothing
 *    outside the region is read or written. Pointers and steps need no alignment unless a function says so.
 *  - C1, C3 and C4 pixels have 1, 3 and 4 interleaved channels. AC4 pixels have 4, of which three are processed: the
 *    fourth, alpha, of the destination keeps its value, and may be rewritten with that same value.
 *  - `_L` forms take pointer-wide sizes and steps, for images beyond 2 GiB; they are otherwise the same.
 *  - In-place forms, with an I before the R, have one image as source and destination. They do what the plain form does
 *    that is given this image as both, and are documented with it. Of two sources, the second is the destination too.
 *  - Checks are made in the order in which a function lists its statuses. The first failure is returned and nothing is
 *    written, except that an Init function which is given a record and returns a negative status clears the
 *    identification of that record, whichever check failed. Every function that is handed such a record refuses it.
 *  - No function allocates (but qvpiMalloc), starts a thread, takes a lock or keeps state between calls. Any number of
 *    threads may call at once, on tiles of one image too, as long as the pixels that they write are disjoint, and none
 *    of them reads what another writes. What a function says that it may rewrite with the value that it has counts as
 *    written.
 *  - A float result that is NaN has no promised sign and no promised payload: they differ from one kind of CPU to
 *    another. Functions that only move pixels (copy, set, mirror, transpose, channel order, borders) keep every bit, of
 *    NaN too. An integer result made from NaN is the least value of its type, which is 0 if that is unsigned.
 *
 *  What row steps a function takes; for others it returns qvpStatusStep. Steps that are not checked are used as they
 *  are, row 0 first, then the next one a step further on: with a step of 0 that is the first row again and again, with
 *  a negative one the rows upwards.
 *
 *  @code
 *    steps                                 functions
 *    any, not checked                      Copy, Set, Dup; Add, Sub, Mul, MulScale, Abs, Sqr, Sqrt, Ln, Exp, with
 *                                          constants too; Convert, Scale, BinToGray, GrayToBin; Compare; Sum, Mean,
 *                                          Min, Max, MinMax, MinIndx, MaxIndx; Transpose, Mirror
 *    any but 0                             SwapChannels, RotateQuarter; DotProd, where 0 gives qvpStatusSize
 *    1 or more                             Div, DivC, Div_Round, ScaleC, Threshold, CountInRange; And, Or, Xor, Not,
 *                                          ShiftLeftC, ShiftRightC, with constants too; LookupTable, Lookup,
 *                                          Palette; Norm; FFT, DFT, packed spectra; copies with a border; Remap;
 *                                          HOG; Ramp, Jaehne, Noise; FilterBorder's source; Mirror about the axes
 *                                          45 and 135, unless in place
 *    at least a row                        Histogram, ComputeThreshold_Otsu; FilterBorder's destination; Moments,
 *                                          which return qvpStatusStride for steps from 1 on
 *    multiples of an element, of any sign  Resize, Decimate420, Warp
 *  @endcode
 */
#ifndef QVPI_CORE_H
#define QVPI_CORE_H

#include "qvptypes.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @name Version
 *  @{ */
/** The version record of the build that was loaded.
 *
 *  @return a constant record, never null, that must be neither modified nor freed
 */
const QvpLibraryVersion* qvpiGetLibVersion(void);
/** @} */

/** @name Image allocation
 *  @{ */
/** Allocates an image whose rows start at multiples of 64 bytes.
 *
 *  The step is the row length, `width` x bytes per pixel, rounded up to a multiple of 64; the block has step x `height`
 *  bytes and is not initialised. Release it with qvpiFree(). The layout only sets the bytes per pixel: C2 has two
 *  channels, AC4 four.
 *
 *  @param width,height size in pixels
 *  @param pStepBytes receives the row step in bytes
 *  @return the first pixel, or null: when `pStepBytes` is null (nothing is written); when a side is below 1 or a row is
 *          longer than the type of the step can tell (the step is set to 0); when the whole image is larger than that,
 *          or memory is short (the step is set all the same)
 */
Qvp8u* qvpiMalloc_8u_C1(int width, int height, int* pStepBytes);
Qvp8u* qvpiMalloc_8u_C1_L(QvpSizeL width, QvpSizeL height, QvpSizeL* pStepBytes);
Qvp8u* qvpiMalloc_8u_C2(int width, int height, int* pStepBytes);
Qvp8u* qvpiMalloc_8u_C2_L(QvpSizeL width, QvpSizeL height, QvpSizeL* pStepBytes);
Qvp8u* qvpiMalloc_8u_C3(int width, int height, int* pStepBytes);
Qvp8u* qvpiMalloc_8u_C3_L(QvpSizeL width, QvpSizeL height, QvpSizeL* pStepBytes);
Qvp8u* qvpiMalloc_8u_C4(int width, int height, int* pStepBytes);
Qvp8u* qvpiMalloc_8u_C4_L(QvpSizeL width, QvpSizeL height, QvpSizeL* pStepBytes);
Qvp8u* qvpiMalloc_8u_AC4(int width, int height, int* pStepBytes);
Qvp8u* qvpiMalloc_8u_AC4_L(QvpSizeL width, QvpSizeL height, QvpSizeL* pStepBytes);
Qvp16u* qvpiMalloc_16u_C1(int width, int height, int* pStepBytes);
Qvp16u* qvpiMalloc_16u_C1_L(QvpSizeL width, QvpSizeL height, QvpSizeL* pStepBytes);
Qvp16u* qvpiMalloc_16u_C2(int width, int height, int* pStepBytes);
Qvp16u* qvpiMalloc_16u_C2_L(QvpSizeL width, QvpSizeL height, QvpSizeL* pStepBytes);
Qvp16u* qvpiMalloc_16u_C3(int width, int height, int* pStepBytes);
Qvp16u* qvpiMalloc_16u_C3_L(QvpSizeL width, QvpSizeL height, QvpSizeL* pStepBytes);
Qvp16u* qvpiMalloc_16u_C4(int width, int height, int* pStepBytes);
Qvp16u* qvpiMalloc_16u_C4_L(QvpSizeL width, QvpSizeL height, QvpSizeL* pStepBytes);
Qvp16u* qvpiMalloc_16u_AC4(int width, int height, int* pStepBytes);
Qvp16u* qvpiMalloc_16u_AC4_L(QvpSizeL width, QvpSizeL height, QvpSizeL* pStepBytes);
Qvp16s* qvpiMalloc_16s_C1(int width, int height, int* pStepBytes);
Qvp16s* qvpiMalloc_16s_C1_L(QvpSizeL width, QvpSizeL height, QvpSizeL* pStepBytes);
Qvp16s* qvpiMalloc_16s_C2(int width, int height, int* pStepBytes);
Qvp16s* qvpiMalloc_16s_C2_L(QvpSizeL width, QvpSizeL height, QvpSizeL* pStepBytes);
Qvp16s* qvpiMalloc_16s_C3(int width, int height, int* pStepBytes);
Qvp16s* qvpiMalloc_16s_C3_L(QvpSizeL width, QvpSizeL height, QvpSizeL* pStepBytes);
Qvp16s* qvpiMalloc_16s_C4(int width, int height, int* pStepBytes);
Qvp16s* qvpiMalloc_16s_C4_L(QvpSizeL width, QvpSizeL height, QvpSizeL* pStepBytes);
Qvp16s* qvpiMalloc_16s_AC4(int width, int height, int* pStepBytes);
Qvp16s* qvpiMalloc_16s_AC4_L(QvpSizeL width, QvpSizeL height, QvpSizeL* pStepBytes);
Qvp32s* qvpiMalloc_32s_C1(int width, int height, int* pStepBytes);
Qvp32s* qvpiMalloc_32s_C1_L(QvpSizeL width, QvpSizeL height, QvpSizeL* pStepBytes);
Qvp32s* qvpiMalloc_32s_C2(int width, int height, int* pStepBytes);
Qvp32s* qvpiMalloc_32s_C2_L(QvpSizeL width, QvpSizeL height, QvpSizeL* pStepBytes);
Qvp32s* qvpiMalloc_32s_C3(int width, int height, int* pStepBytes);
Qvp32s* qvpiMalloc_32s_C3_L(QvpSizeL width, QvpSizeL height, QvpSizeL* pStepBytes);
Qvp32s* qvpiMalloc_32s_C4(int width, int height, int* pStepBytes);
Qvp32s* qvpiMalloc_32s_C4_L(QvpSizeL width, QvpSizeL height, QvpSizeL* pStepBytes);
Qvp32s* qvpiMalloc_32s_AC4(int width, int height, int* pStepBytes);
Qvp32s* qvpiMalloc_32s_AC4_L(QvpSizeL width, QvpSizeL height, QvpSizeL* pStepBytes);
Qvp32f* qvpiMalloc_32f_C1(int width, int height, int* pStepBytes);
Qvp32f* qvpiMalloc_32f_C1_L(QvpSizeL width, QvpSizeL height, QvpSizeL* pStepBytes);
Qvp32f* qvpiMalloc_32f_C2(int width, int height, int* pStepBytes);
Qvp32f* qvpiMalloc_32f_C2_L(QvpSizeL width, QvpSizeL height, QvpSizeL* pStepBytes);
Qvp32f* qvpiMalloc_32f_C3(int width, int height, int* pStepBytes);
Qvp32f* qvpiMalloc_32f_C3_L(QvpSizeL width, QvpSizeL height, QvpSizeL* pStepBytes);
Qvp32f* qvpiMalloc_32f_C4(int width, int height, int* pStepBytes);
Qvp32f* qvpiMalloc_32f_C4_L(QvpSizeL width, QvpSizeL height, QvpSizeL* pStepBytes);
Qvp32f* qvpiMalloc_32f_AC4(int width, int height, int* pStepBytes);
Qvp32f* qvpiMalloc_32f_AC4_L(QvpSizeL width, QvpSizeL height, QvpSizeL* pStepBytes);
Qvp32sc* qvpiMalloc_32sc_C1(int width, int height, int* pStepBytes);
Qvp32sc* qvpiMalloc_32sc_C1_L(QvpSizeL width, QvpSizeL height, QvpSizeL* pStepBytes);
Qvp32sc* qvpiMalloc_32sc_C2(int width, int height, int* pStepBytes);
Qvp32sc* qvpiMalloc_32sc_C2_L(QvpSizeL width, QvpSizeL height, QvpSizeL* pStepBytes);
Qvp32sc* qvpiMalloc_32sc_C3(int width, int height, int* pStepBytes);
Qvp32sc* qvpiMalloc_32sc_C3_L(QvpSizeL width, QvpSizeL height, QvpSizeL* pStepBytes);
Qvp32sc* qvpiMalloc_32sc_C4(int width, int height, int* pStepBytes);
Qvp32sc* qvpiMalloc_32sc_C4_L(QvpSizeL width, QvpSizeL height, QvpSizeL* pStepBytes);
Qvp32sc* qvpiMalloc_32sc_AC4(int width, int height, int* pStepBytes);
Qvp32sc* qvpiMalloc_32sc_AC4_L(QvpSizeL width, QvpSizeL height, QvpSizeL* pStepBytes);
Qvp32fc* qvpiMalloc_32fc_C1(int width, int height, int* pStepBytes);
Qvp32fc* qvpiMalloc_32fc_C1_L(QvpSizeL width, QvpSizeL height, QvpSizeL* pStepBytes);
Qvp32fc* qvpiMalloc_32fc_C2(int width, int height, int* pStepBytes);
Qvp32fc* qvpiMalloc_32fc_C2_L(QvpSizeL width, QvpSizeL height, QvpSizeL* pStepBytes);
Qvp32fc* qvpiMalloc_32fc_C3(int width, int height, int* pStepBytes);
Qvp32fc* qvpiMalloc_32fc_C3_L(QvpSizeL width, QvpSizeL height, QvpSizeL* pStepBytes);
Qvp32fc* qvpiMalloc_32fc_C4(int width, int height, int* pStepBytes);
Qvp32fc* qvpiMalloc_32fc_C4_L(QvpSizeL width, QvpSizeL height, QvpSizeL* pStepBytes);
Qvp32fc* qvpiMalloc_32fc_AC4(int width, int height, int* pStepBytes);
Qvp32fc* qvpiMalloc_32fc_AC4_L(QvpSizeL width, QvpSizeL height, QvpSizeL* pStepBytes);

/** Releases an image that a qvpiMalloc function returned.
 *
 *  @param ptr the first pixel; null is allowed and does nothing
 */
void qvpiFree(void* ptr);
/** @} */

/** @name Copy
 *  @{ */
/** Copies a region: dst(x, y) = src(x, y).
 *
 *  AC4 copies three channels and keeps the fourth of the destination. Source and destination may be the same image; any
 *  other overlap gives undefined pixels. Steps are not checked. When source and destination together have more than
 *  524288 bytes, and at least as many as the largest cache or 33554432, the stores bypass the caches.
 *
 *  @param pSrc,srcStep source image
 *  @param pDst,dstStep destination image
 *  @param roiSize size of the region in pixels
 *  @return qvpStatusNullPointer: `pSrc` or `pDst` is null. qvpStatusSize: a side of `roiSize` is below 1.
 *          qvpStatusNoError otherwise.
 */
QvpStatus qvpiCopy_8u_C1R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiCopy_8u_C1R_L(const Qvp8u* pSrc, QvpSizeL srcStep, Qvp8u* pDst, QvpSizeL dstStep, QvpiSizeL roiSize);
QvpStatus qvpiCopy_8u_C3R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiCopy_8u_C3R_L(const Qvp8u* pSrc, QvpSizeL srcStep, Qvp8u* pDst, QvpSizeL dstStep, QvpiSizeL roiSize);
QvpStatus qvpiCopy_8u_C4R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiCopy_8u_C4R_L(const Qvp8u* pSrc, QvpSizeL srcStep, Qvp8u* pDst, QvpSizeL dstStep, QvpiSizeL roiSize);
QvpStatus qvpiCopy_8u_AC4R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiCopy_8u_AC4R_L(const Qvp8u* pSrc, QvpSizeL srcStep, Qvp8u* pDst, QvpSizeL dstStep, QvpiSizeL roiSize);
QvpStatus qvpiCopy_16u_C1R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiCopy_16u_C1R_L(const Qvp16u* pSrc, QvpSizeL srcStep, Qvp16u* pDst, QvpSizeL dstStep, QvpiSizeL roiSize);
QvpStatus qvpiCopy_16u_C3R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiCopy_16u_C3R_L(const Qvp16u* pSrc, QvpSizeL srcStep, Qvp16u* pDst, QvpSizeL dstStep, QvpiSizeL roiSize);
QvpStatus qvpiCopy_16u_C4R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiCopy_16u_C4R_L(const Qvp16u* pSrc, QvpSizeL srcStep, Qvp16u* pDst, QvpSizeL dstStep, QvpiSizeL roiSize);
QvpStatus qvpiCopy_16u_AC4R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiCopy_16u_AC4R_L(const Qvp16u* pSrc, QvpSizeL srcStep, Qvp16u* pDst, QvpSizeL dstStep, QvpiSizeL roiSize);
QvpStatus qvpiCopy_16s_C1R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiCopy_16s_C1R_L(const Qvp16s* pSrc, QvpSizeL srcStep, Qvp16s* pDst, QvpSizeL dstStep, QvpiSizeL roiSize);
QvpStatus qvpiCopy_16s_C3R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiCopy_16s_C3R_L(const Qvp16s* pSrc, QvpSizeL srcStep, Qvp16s* pDst, QvpSizeL dstStep, QvpiSizeL roiSize);
QvpStatus qvpiCopy_16s_C4R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiCopy_16s_C4R_L(const Qvp16s* pSrc, QvpSizeL srcStep, Qvp16s* pDst, QvpSizeL dstStep, QvpiSizeL roiSize);
QvpStatus qvpiCopy_16s_AC4R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiCopy_16s_AC4R_L(const Qvp16s* pSrc, QvpSizeL srcStep, Qvp16s* pDst, QvpSizeL dstStep, QvpiSizeL roiSize);
QvpStatus qvpiCopy_32s_C1R(const Qvp32s* pSrc, int srcStep, Qvp32s* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiCopy_32s_C1R_L(const Qvp32s* pSrc, QvpSizeL srcStep, Qvp32s* pDst, QvpSizeL dstStep, QvpiSizeL roiSize);
QvpStatus qvpiCopy_32s_C3R(const Qvp32s* pSrc, int srcStep, Qvp32s* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiCopy_32s_C3R_L(const Qvp32s* pSrc, QvpSizeL srcStep, Qvp32s* pDst, QvpSizeL dstStep, QvpiSizeL roiSize);
QvpStatus qvpiCopy_32s_C4R(const Qvp32s* pSrc, int srcStep, Qvp32s* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiCopy_32s_C4R_L(const Qvp32s* pSrc, QvpSizeL srcStep, Qvp32s* pDst, QvpSizeL dstStep, QvpiSizeL roiSize);
QvpStatus qvpiCopy_32s_AC4R(const Qvp32s* pSrc, int srcStep, Qvp32s* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiCopy_32s_AC4R_L(const Qvp32s* pSrc, QvpSizeL srcStep, Qvp32s* pDst, QvpSizeL dstStep, QvpiSizeL roiSize);
QvpStatus qvpiCopy_32f_C1R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiCopy_32f_C1R_L(const Qvp32f* pSrc, QvpSizeL srcStep, Qvp32f* pDst, QvpSizeL dstStep, QvpiSizeL roiSize);
QvpStatus qvpiCopy_32f_C3R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiCopy_32f_C3R_L(const Qvp32f* pSrc, QvpSizeL srcStep, Qvp32f* pDst, QvpSizeL dstStep, QvpiSizeL roiSize);
QvpStatus qvpiCopy_32f_C4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiCopy_32f_C4R_L(const Qvp32f* pSrc, QvpSizeL srcStep, Qvp32f* pDst, QvpSizeL dstStep, QvpiSizeL roiSize);
QvpStatus qvpiCopy_32f_AC4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiCopy_32f_AC4R_L(const Qvp32f* pSrc, QvpSizeL srcStep, Qvp32f* pDst, QvpSizeL dstStep, QvpiSizeL roiSize);
/** @} */

/** @name Copy under a mask
 *  @{ */
/** Copies the pixels whose mask is not zero: dst(x, y) = src(x, y) where mask(x, y) != 0.
 *
 *  Any non-zero byte selects a pixel, all of its channels, or three for AC4. Other pixels of the destination keep their
 *  values, and may be rewritten with those same values. Steps are not checked.
 *
 *  @param pSrc,srcStep source image
 *  @param pDst,dstStep destination image; it may be the source
 *  @param roiSize size of the region in pixels
 *  @param pMask,maskStep mask, one byte per pixel
 *  @return qvpStatusNullPointer: `pSrc`, `pDst` or `pMask` is null. qvpStatusSize: a side of `roiSize` is below 1.
 *          qvpStatusNoError otherwise.
 */
QvpStatus qvpiCopy_8u_C1MR(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, const Qvp8u* pMask, int maskStep);
QvpStatus qvpiCopy_8u_C3MR(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, const Qvp8u* pMask, int maskStep);
QvpStatus qvpiCopy_8u_C4MR(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, const Qvp8u* pMask, int maskStep);
QvpStatus qvpiCopy_8u_AC4MR(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, const Qvp8u* pMask, int maskStep);
QvpStatus qvpiCopy_16u_C1MR(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, const Qvp8u* pMask, int maskStep);
QvpStatus qvpiCopy_16u_C3MR(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, const Qvp8u* pMask, int maskStep);
QvpStatus qvpiCopy_16u_C4MR(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, const Qvp8u* pMask, int maskStep);
QvpStatus qvpiCopy_16u_AC4MR(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, const Qvp8u* pMask, int maskStep);
QvpStatus qvpiCopy_16s_C1MR(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, const Qvp8u* pMask, int maskStep);
QvpStatus qvpiCopy_16s_C3MR(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, const Qvp8u* pMask, int maskStep);
QvpStatus qvpiCopy_16s_C4MR(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, const Qvp8u* pMask, int maskStep);
QvpStatus qvpiCopy_16s_AC4MR(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, const Qvp8u* pMask, int maskStep);
QvpStatus qvpiCopy_32s_C1MR(const Qvp32s* pSrc, int srcStep, Qvp32s* pDst, int dstStep, QvpiSize roiSize, const Qvp8u* pMask, int maskStep);
QvpStatus qvpiCopy_32s_C3MR(const Qvp32s* pSrc, int srcStep, Qvp32s* pDst, int dstStep, QvpiSize roiSize, const Qvp8u* pMask, int maskStep);
QvpStatus qvpiCopy_32s_C4MR(const Qvp32s* pSrc, int srcStep, Qvp32s* pDst, int dstStep, QvpiSize roiSize, const Qvp8u* pMask, int maskStep);
QvpStatus qvpiCopy_32s_AC4MR(const Qvp32s* pSrc, int srcStep, Qvp32s* pDst, int dstStep, QvpiSize roiSize, const Qvp8u* pMask, int maskStep);
QvpStatus qvpiCopy_32f_C1MR(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, const Qvp8u* pMask, int maskStep);
QvpStatus qvpiCopy_32f_C3MR(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, const Qvp8u* pMask, int maskStep);
QvpStatus qvpiCopy_32f_C4MR(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, const Qvp8u* pMask, int maskStep);
QvpStatus qvpiCopy_32f_AC4MR(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, const Qvp8u* pMask, int maskStep);
/** @} */

/** @name Copy of one channel
 *  @{ */
/** Copies one channel of the source into one channel of the destination.
 *
 *  For an image of several channels the pointer selects the channel: it points at that channel's value in the first
 *  pixel. C3CR and C4CR copy between two images of 3 or 4 channels, C3C1R and C4C1R extract a channel into an image of
 *  its own, C1C3R and C1C4R insert one. The other channels of the destination keep their values; those between the
 *  first and the last value of a row may be rewritten with the same values, so threads must not write different
 *  channels of one row at once. Nothing before the first or after the last value of a row is touched. Source and
 *  destination may be the same image: one channel of it is then copied over another, or over itself; both pointers are
 *  in its first pixel, and the steps are the same. Steps are not checked.
 *
 *  @param pSrc,srcStep source, its pointer at the channel to copy
 *  @param pDst,dstStep destination, its pointer at the channel to write
 *  @param roiSize size of the region in pixels
 *  @return qvpStatusNullPointer: `pSrc` or `pDst` is null. qvpStatusSize: a side of `roiSize` is below 1.
 *          qvpStatusNoError otherwise.
 */
QvpStatus qvpiCopy_8u_C3CR(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiCopy_8u_C4CR(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiCopy_8u_C3C1R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiCopy_8u_C4C1R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiCopy_8u_C1C3R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiCopy_8u_C1C4R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiCopy_16u_C3CR(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiCopy_16u_C4CR(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiCopy_16u_C3C1R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiCopy_16u_C4C1R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiCopy_16u_C1C3R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiCopy_16u_C1C4R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiCopy_16s_C3CR(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiCopy_16s_C4CR(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiCopy_16s_C3C1R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiCopy_16s_C4C1R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiCopy_16s_C1C3R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiCopy_16s_C1C4R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiCopy_32s_C3CR(const Qvp32s* pSrc, int srcStep, Qvp32s* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiCopy_32s_C4CR(const Qvp32s* pSrc, int srcStep, Qvp32s* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiCopy_32s_C3C1R(const Qvp32s* pSrc, int srcStep, Qvp32s* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiCopy_32s_C4C1R(const Qvp32s* pSrc, int srcStep, Qvp32s* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiCopy_32s_C1C3R(const Qvp32s* pSrc, int srcStep, Qvp32s* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiCopy_32s_C1C4R(const Qvp32s* pSrc, int srcStep, Qvp32s* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiCopy_32f_C3CR(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiCopy_32f_C4CR(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiCopy_32f_C3C1R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiCopy_32f_C4C1R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiCopy_32f_C1C3R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiCopy_32f_C1C4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize);
/** @} */

/** @name Copy between three and four channels
 *  @{ */
/** Copies the three colour channels between C3 and AC4 pixels; the alpha channel of an AC4 destination keeps its value.
 *
 *  The images must not overlap. Steps are not checked.
 *
 *  @param pSrc,srcStep source image
 *  @param pDst,dstStep destination image
 *  @param roiSize size of the region in pixels
 *  @return qvpStatusNullPointer: `pSrc` or `pDst` is null. qvpStatusSize: a side of `roiSize` is below 1.
 *          qvpStatusNoError otherwise.
 */
QvpStatus qvpiCopy_8u_C3AC4R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiCopy_8u_AC4C3R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiCopy_16u_C3AC4R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiCopy_16u_AC4C3R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiCopy_16s_C3AC4R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiCopy_16s_AC4C3R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiCopy_32s_C3AC4R(const Qvp32s* pSrc, int srcStep, Qvp32s* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiCopy_32s_AC4C3R(const Qvp32s* pSrc, int srcStep, Qvp32s* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiCopy_32f_C3AC4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiCopy_32f_AC4C3R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize);
/** @} */

/** @name Copy between interleaved and planar
 *  @{ */
/** Splits pixels into one plane per channel (C3P3, C4P4), or merges planes into pixels (P3C3, P4C4).
 *
 *  A planar image is an array of pointers to the first value of each plane; all planes share one step. No two of the
 *  images may overlap. Steps are not checked. When source and destination together have more than 524288 bytes, and at
 *  least as many as the largest cache or 33554432, the stores bypass the caches, provided that the rows of the
 *  destination are aligned to 64 bytes, as those of qvpiMalloc are.
 *
 *  @param pSrc,srcStep source image, or array of planes
 *  @param pDst,dstStep destination image, or array of planes
 *  @param roiSize size of the region in pixels
 *  @return qvpStatusNullPointer: `pSrc`, `pDst` or one of the planes is null. qvpStatusSize: a side of `roiSize` is
 *          below 1. qvpStatusNoError otherwise.
 */
QvpStatus qvpiCopy_8u_C3P3R(const Qvp8u* pSrc, int srcStep, Qvp8u* const pDst[3], int dstStep, QvpiSize roiSize);
QvpStatus qvpiCopy_8u_C4P4R(const Qvp8u* pSrc, int srcStep, Qvp8u* const pDst[4], int dstStep, QvpiSize roiSize);
QvpStatus qvpiCopy_16u_C3P3R(const Qvp16u* pSrc, int srcStep, Qvp16u* const pDst[3], int dstStep, QvpiSize roiSize);
QvpStatus qvpiCopy_16u_C4P4R(const Qvp16u* pSrc, int srcStep, Qvp16u* const pDst[4], int dstStep, QvpiSize roiSize);
QvpStatus qvpiCopy_16s_C3P3R(const Qvp16s* pSrc, int srcStep, Qvp16s* const pDst[3], int dstStep, QvpiSize roiSize);
QvpStatus qvpiCopy_16s_C4P4R(const Qvp16s* pSrc, int srcStep, Qvp16s* const pDst[4], int dstStep, QvpiSize roiSize);
QvpStatus qvpiCopy_32s_C3P3R(const Qvp32s* pSrc, int srcStep, Qvp32s* const pDst[3], int dstStep, QvpiSize roiSize);
QvpStatus qvpiCopy_32s_C4P4R(const Qvp32s* pSrc, int srcStep, Qvp32s* const pDst[4], int dstStep, QvpiSize roiSize);
QvpStatus qvpiCopy_32f_C3P3R(const Qvp32f* pSrc, int srcStep, Qvp32f* const pDst[3], int dstStep, QvpiSize roiSize);
QvpStatus qvpiCopy_32f_C4P4R(const Qvp32f* pSrc, int srcStep, Qvp32f* const pDst[4], int dstStep, QvpiSize roiSize);
QvpStatus qvpiCopy_8u_P3C3R(const Qvp8u* const pSrc[3], int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiCopy_8u_P4C4R(const Qvp8u* const pSrc[4], int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiCopy_16u_P3C3R(const Qvp16u* const pSrc[3], int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiCopy_16u_P4C4R(const Qvp16u* const pSrc[4], int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiCopy_16s_P3C3R(const Qvp16s* const pSrc[3], int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiCopy_16s_P4C4R(const Qvp16s* const pSrc[4], int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiCopy_32s_P3C3R(const Qvp32s* const pSrc[3], int srcStep, Qvp32s* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiCopy_32s_P4C4R(const Qvp32s* const pSrc[4], int srcStep, Qvp32s* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiCopy_32f_P3C3R(const Qvp32f* const pSrc[3], int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiCopy_32f_P4C4R(const Qvp32f* const pSrc[4], int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize);
/** @} */

/** @name Copy with cache control
 *  @{ */
/** Copies bytes, dst(x, y) = src(x, y), with a say in how the caches are used.
 *
 *  Rows shorter than 64 bytes are always copied the ordinary way. Steps are not checked.
 *
 *  @param pSrc,srcStep source image
 *  @param pDst,dstStep destination image; it may be the source
 *  @param roiSize size of the region in bytes and rows
 *  @param flags 0 for an ordinary copy; 1 to write past the caches; 2 to read with streaming loads, where the source is
 *         aligned to 16 bytes when the destination is; 3 for both. Other bits are ignored.
 *  @return qvpStatusNullPointer: `pSrc` or `pDst` is null. qvpStatusSize: a side of `roiSize` is below 1.
 *          qvpStatusNoError otherwise.
 */
QvpStatus qvpiCopyManaged_8u_C1R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, int flags);
/** @} */

/** @name Set
 *  @{ */
/** Fills a region: dst(x, y) = value.
 *
 *  AC4 sets three channels and keeps the fourth. Steps are not checked. When the region has more than 524288 bytes and
 *  at least as many as the largest cache, the stores bypass the caches.
 *
 *  @param value the value, or one value for each channel that is set
 *  @param pDst,dstStep destination image
 *  @param roiSize size of the region in pixels
 *  @return qvpStatusNullPointer: `value` (where it is a pointer) or `pDst` is null. qvpStatusSize: a side of `roiSize`
 *          is below 1. qvpStatusNoError otherwise.
 */
QvpStatus qvpiSet_8u_C1R(Qvp8u value, Qvp8u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiSet_8u_C1R_L(Qvp8u value, Qvp8u* pDst, QvpSizeL dstStep, QvpiSizeL roiSize);
QvpStatus qvpiSet_8u_C3R(const Qvp8u value[3], Qvp8u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiSet_8u_C3R_L(const Qvp8u value[3], Qvp8u* pDst, QvpSizeL dstStep, QvpiSizeL roiSize);
QvpStatus qvpiSet_8u_C4R(const Qvp8u value[4], Qvp8u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiSet_8u_C4R_L(const Qvp8u value[4], Qvp8u* pDst, QvpSizeL dstStep, QvpiSizeL roiSize);
QvpStatus qvpiSet_8u_AC4R(const Qvp8u value[3], Qvp8u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiSet_8u_AC4R_L(const Qvp8u value[3], Qvp8u* pDst, QvpSizeL dstStep, QvpiSizeL roiSize);
QvpStatus qvpiSet_16u_C1R(Qvp16u value, Qvp16u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiSet_16u_C1R_L(Qvp16u value, Qvp16u* pDst, QvpSizeL dstStep, QvpiSizeL roiSize);
QvpStatus qvpiSet_16u_C3R(const Qvp16u value[3], Qvp16u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiSet_16u_C3R_L(const Qvp16u value[3], Qvp16u* pDst, QvpSizeL dstStep, QvpiSizeL roiSize);
QvpStatus qvpiSet_16u_C4R(const Qvp16u value[4], Qvp16u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiSet_16u_C4R_L(const Qvp16u value[4], Qvp16u* pDst, QvpSizeL dstStep, QvpiSizeL roiSize);
QvpStatus qvpiSet_16u_AC4R(const Qvp16u value[3], Qvp16u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiSet_16u_AC4R_L(const Qvp16u value[3], Qvp16u* pDst, QvpSizeL dstStep, QvpiSizeL roiSize);
QvpStatus qvpiSet_16s_C1R(Qvp16s value, Qvp16s* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiSet_16s_C1R_L(Qvp16s value, Qvp16s* pDst, QvpSizeL dstStep, QvpiSizeL roiSize);
QvpStatus qvpiSet_16s_C3R(const Qvp16s value[3], Qvp16s* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiSet_16s_C3R_L(const Qvp16s value[3], Qvp16s* pDst, QvpSizeL dstStep, QvpiSizeL roiSize);
QvpStatus qvpiSet_16s_C4R(const Qvp16s value[4], Qvp16s* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiSet_16s_C4R_L(const Qvp16s value[4], Qvp16s* pDst, QvpSizeL dstStep, QvpiSizeL roiSize);
QvpStatus qvpiSet_16s_AC4R(const Qvp16s value[3], Qvp16s* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiSet_16s_AC4R_L(const Qvp16s value[3], Qvp16s* pDst, QvpSizeL dstStep, QvpiSizeL roiSize);
QvpStatus qvpiSet_32s_C1R(Qvp32s value, Qvp32s* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiSet_32s_C1R_L(Qvp32s value, Qvp32s* pDst, QvpSizeL dstStep, QvpiSizeL roiSize);
QvpStatus qvpiSet_32s_C3R(const Qvp32s value[3], Qvp32s* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiSet_32s_C3R_L(const Qvp32s value[3], Qvp32s* pDst, QvpSizeL dstStep, QvpiSizeL roiSize);
QvpStatus qvpiSet_32s_C4R(const Qvp32s value[4], Qvp32s* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiSet_32s_C4R_L(const Qvp32s value[4], Qvp32s* pDst, QvpSizeL dstStep, QvpiSizeL roiSize);
QvpStatus qvpiSet_32s_AC4R(const Qvp32s value[3], Qvp32s* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiSet_32s_AC4R_L(const Qvp32s value[3], Qvp32s* pDst, QvpSizeL dstStep, QvpiSizeL roiSize);
QvpStatus qvpiSet_32f_C1R(Qvp32f value, Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiSet_32f_C1R_L(Qvp32f value, Qvp32f* pDst, QvpSizeL dstStep, QvpiSizeL roiSize);
QvpStatus qvpiSet_32f_C3R(const Qvp32f value[3], Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiSet_32f_C3R_L(const Qvp32f value[3], Qvp32f* pDst, QvpSizeL dstStep, QvpiSizeL roiSize);
QvpStatus qvpiSet_32f_C4R(const Qvp32f value[4], Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiSet_32f_C4R_L(const Qvp32f value[4], Qvp32f* pDst, QvpSizeL dstStep, QvpiSizeL roiSize);
QvpStatus qvpiSet_32f_AC4R(const Qvp32f value[3], Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiSet_32f_AC4R_L(const Qvp32f value[3], Qvp32f* pDst, QvpSizeL dstStep, QvpiSizeL roiSize);
/** @} */

/** @name Set under a mask
 *  @{ */
/** Fills the pixels whose mask is not zero: dst(x, y) = value where mask(x, y) != 0.
 *
 *  Any non-zero byte selects a pixel, all of its channels, or three for AC4. Other pixels keep their values, and may be
 *  rewritten with those same values. Steps are not checked.
 *
 *  @param value the value, or one value for each channel that is set
 *  @param pDst,dstStep destination image
 *  @param roiSize size of the region in pixels
 *  @param pMask,maskStep mask, one byte per pixel
 *  @return qvpStatusNullPointer: `value` (where it is a pointer), `pDst` or `pMask` is null. qvpStatusSize: a side of
 *          `roiSize` is below 1. qvpStatusNoError otherwise.
 */
QvpStatus qvpiSet_8u_C1MR(Qvp8u value, Qvp8u* pDst, int dstStep, QvpiSize roiSize, const Qvp8u* pMask, int maskStep);
QvpStatus qvpiSet_8u_C3MR(const Qvp8u value[3], Qvp8u* pDst, int dstStep, QvpiSize roiSize, const Qvp8u* pMask, int maskStep);
QvpStatus qvpiSet_8u_C4MR(const Qvp8u value[4], Qvp8u* pDst, int dstStep, QvpiSize roiSize, const Qvp8u* pMask, int maskStep);
QvpStatus qvpiSet_8u_AC4MR(const Qvp8u value[3], Qvp8u* pDst, int dstStep, QvpiSize roiSize, const Qvp8u* pMask, int maskStep);
QvpStatus qvpiSet_16u_C1MR(Qvp16u value, Qvp16u* pDst, int dstStep, QvpiSize roiSize, const Qvp8u* pMask, int maskStep);
QvpStatus qvpiSet_16u_C3MR(const Qvp16u value[3], Qvp16u* pDst, int dstStep, QvpiSize roiSize, const Qvp8u* pMask, int maskStep);
QvpStatus qvpiSet_16u_C4MR(const Qvp16u value[4], Qvp16u* pDst, int dstStep, QvpiSize roiSize, const Qvp8u* pMask, int maskStep);
QvpStatus qvpiSet_16u_AC4MR(const Qvp16u value[3], Qvp16u* pDst, int dstStep, QvpiSize roiSize, const Qvp8u* pMask, int maskStep);
QvpStatus qvpiSet_16s_C1MR(Qvp16s value, Qvp16s* pDst, int dstStep, QvpiSize roiSize, const Qvp8u* pMask, int maskStep);
QvpStatus qvpiSet_16s_C3MR(const Qvp16s value[3], Qvp16s* pDst, int dstStep, QvpiSize roiSize, const Qvp8u* pMask, int maskStep);
QvpStatus qvpiSet_16s_C4MR(const Qvp16s value[4], Qvp16s* pDst, int dstStep, QvpiSize roiSize, const Qvp8u* pMask, int maskStep);
QvpStatus qvpiSet_16s_AC4MR(const Qvp16s value[3], Qvp16s* pDst, int dstStep, QvpiSize roiSize, const Qvp8u* pMask, int maskStep);
QvpStatus qvpiSet_32s_C1MR(Qvp32s value, Qvp32s* pDst, int dstStep, QvpiSize roiSize, const Qvp8u* pMask, int maskStep);
QvpStatus qvpiSet_32s_C3MR(const Qvp32s value[3], Qvp32s* pDst, int dstStep, QvpiSize roiSize, const Qvp8u* pMask, int maskStep);
QvpStatus qvpiSet_32s_C4MR(const Qvp32s value[4], Qvp32s* pDst, int dstStep, QvpiSize roiSize, const Qvp8u* pMask, int maskStep);
QvpStatus qvpiSet_32s_AC4MR(const Qvp32s value[3], Qvp32s* pDst, int dstStep, QvpiSize roiSize, const Qvp8u* pMask, int maskStep);
QvpStatus qvpiSet_32f_C1MR(Qvp32f value, Qvp32f* pDst, int dstStep, QvpiSize roiSize, const Qvp8u* pMask, int maskStep);
QvpStatus qvpiSet_32f_C3MR(const Qvp32f value[3], Qvp32f* pDst, int dstStep, QvpiSize roiSize, const Qvp8u* pMask, int maskStep);
QvpStatus qvpiSet_32f_C4MR(const Qvp32f value[4], Qvp32f* pDst, int dstStep, QvpiSize roiSize, const Qvp8u* pMask, int maskStep);
QvpStatus qvpiSet_32f_AC4MR(const Qvp32f value[3], Qvp32f* pDst, int dstStep, QvpiSize roiSize, const Qvp8u* pMask, int maskStep);
/** @} */

/** @name Set of one channel
 *  @{ */
/** Fills one channel of an image of three or four.
 *
 *  The pointer selects the channel: it points at that channel's value in the first pixel. The other channels keep their
 *  values; those between the first and the last value of a row may be rewritten with the same values, so threads must
 *  not write different channels of one row at once. Nothing before the first or after the last value of a row is
 *  touched. Steps are not checked.
 *
 *  @param value the value
 *  @param pDst,dstStep destination, its pointer at the channel to fill
 *  @param roiSize size of the region in pixels
 *  @return qvpStatusNullPointer: `pDst` is null. qvpStatusSize: a side of `roiSize` is below 1. qvpStatusNoError
 *          otherwise.
 */
QvpStatus qvpiSet_8u_C3CR(Qvp8u value, Qvp8u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiSet_8u_C4CR(Qvp8u value, Qvp8u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiSet_16u_C3CR(Qvp16u value, Qvp16u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiSet_16u_C4CR(Qvp16u value, Qvp16u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiSet_16s_C3CR(Qvp16s value, Qvp16s* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiSet_16s_C4CR(Qvp16s value, Qvp16s* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiSet_32s_C3CR(Qvp32s value, Qvp32s* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiSet_32s_C4CR(Qvp32s value, Qvp32s* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiSet_32f_C3CR(Qvp32f value, Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiSet_32f_C4CR(Qvp32f value, Qvp32f* pDst, int dstStep, QvpiSize roiSize);
/** @} */

/** @name Swap channels
 *  @{ */
/** Reorders channels: channel i of a destination pixel becomes channel `dstOrder[i]` of the source pixel.
 *
 *  Channels may be repeated. C4C3 chooses three of four source channels. AC4 reads three entries, of which each may
 *  name any of the four source channels, and keeps the fourth channel of the destination. Order {2, 1, 0} turns BGR
 *  into RGB. Except for C4C3, source and destination may be the same image with the same step; the in-place forms are
 *  these calls.
 *
 *  @param pSrc,srcStep source image
 *  @param pDst,dstStep destination image
 *  @param pSrcDst,srcDstStep in place: the image
 *  @param roiSize size of the region in pixels
 *  @param dstOrder source channel of each destination channel: 0 to 2 for C3, otherwise 0 to 3
 *  @return qvpStatusNullPointer: an image is null. qvpStatusStep: a step is zero. qvpStatusSize: a side of `roiSize` is
 *          below 1. qvpStatusNullPointer: `dstOrder` is null. qvpStatusChannelOrder: an entry is out of range.
 *          qvpStatusNoError otherwise.
 */
QvpStatus qvpiSwapChannels_8u_C3R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, const int dstOrder[3]);
QvpStatus qvpiSwapChannels_8u_C4R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, const int dstOrder[4]);
QvpStatus qvpiSwapChannels_8u_AC4R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, const int dstOrder[3]);
QvpStatus qvpiSwapChannels_8u_C4C3R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, const int dstOrder[3]);
QvpStatus qvpiSwapChannels_16u_C3R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, const int dstOrder[3]);
QvpStatus qvpiSwapChannels_16u_C4R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, const int dstOrder[4]);
QvpStatus qvpiSwapChannels_16u_AC4R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, const int dstOrder[3]);
QvpStatus qvpiSwapChannels_16u_C4C3R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, const int dstOrder[3]);
QvpStatus qvpiSwapChannels_16s_C3R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, const int dstOrder[3]);
QvpStatus qvpiSwapChannels_16s_C4R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, const int dstOrder[4]);
QvpStatus qvpiSwapChannels_16s_AC4R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, const int dstOrder[3]);
QvpStatus qvpiSwapChannels_16s_C4C3R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, const int dstOrder[3]);
QvpStatus qvpiSwapChannels_32s_C3R(const Qvp32s* pSrc, int srcStep, Qvp32s* pDst, int dstStep, QvpiSize roiSize, const int dstOrder[3]);
QvpStatus qvpiSwapChannels_32s_C4R(const Qvp32s* pSrc, int srcStep, Qvp32s* pDst, int dstStep, QvpiSize roiSize, const int dstOrder[4]);
QvpStatus qvpiSwapChannels_32s_AC4R(const Qvp32s* pSrc, int srcStep, Qvp32s* pDst, int dstStep, QvpiSize roiSize, const int dstOrder[3]);
QvpStatus qvpiSwapChannels_32s_C4C3R(const Qvp32s* pSrc, int srcStep, Qvp32s* pDst, int dstStep, QvpiSize roiSize, const int dstOrder[3]);
QvpStatus qvpiSwapChannels_32f_C3R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, const int dstOrder[3]);
QvpStatus qvpiSwapChannels_32f_C4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, const int dstOrder[4]);
QvpStatus qvpiSwapChannels_32f_AC4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, const int dstOrder[3]);
QvpStatus qvpiSwapChannels_32f_C4C3R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, const int dstOrder[3]);
QvpStatus qvpiSwapChannels_8u_C3IR(Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, const int dstOrder[3]);
QvpStatus qvpiSwapChannels_8u_C4IR(Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, const int dstOrder[4]);
/** @} */

/** @name Swap channels, three to four
 *  @{ */
/** Reorders the three channels of the source into four: channel i of a destination pixel becomes channel `dstOrder[i]`
 *  of the source pixel, `val` where the entry is 3, and stays as it was where the entry is greater.
 *
 *  Order {2, 1, 0, 3} with value 255 turns BGR into opaque RGBA. The images must not overlap.
 *
 *  @param pSrc,srcStep source image
 *  @param pDst,dstStep destination image
 *  @param roiSize size of the region in pixels
 *  @param dstOrder what becomes of each destination channel
 *  @param val value for channels whose entry is 3
 *  @return qvpStatusNullPointer: `pSrc` or `pDst` is null. qvpStatusStep: a step is zero. qvpStatusSize: a side of
 *          `roiSize` is below 1. qvpStatusNullPointer: `dstOrder` is null. qvpStatusChannelOrder: an entry is negative.
 *          qvpStatusNoError otherwise.
 */
QvpStatus qvpiSwapChannels_8u_C3C4R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, const int dstOrder[4], Qvp8u val);
QvpStatus qvpiSwapChannels_16u_C3C4R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, const int dstOrder[4], Qvp16u val);
QvpStatus qvpiSwapChannels_16s_C3C4R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, const int dstOrder[4], Qvp16s val);
QvpStatus qvpiSwapChannels_32s_C3C4R(const Qvp32s* pSrc, int srcStep, Qvp32s* pDst, int dstStep, QvpiSize roiSize, const int dstOrder[4], Qvp32s val);
QvpStatus qvpiSwapChannels_32f_C3C4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, const int dstOrder[4], Qvp32f val);
/** @} */

/** @name Duplicate a channel
 *  @{ */
/** Writes each source value into every channel of the destination pixel, as from grey to colour.
 *
 *  The images must not overlap. Steps are not checked.
 *
 *  @param pSrc,srcStep source image of one channel
 *  @param pDst,dstStep destination image of three or four channels
 *  @param roiSize size of the region in pixels
 *  @return qvpStatusNullPointer: `pSrc` or `pDst` is null. qvpStatusSize: a side of `roiSize` is below 1.
 *          qvpStatusNoError otherwise.
 */
QvpStatus qvpiDup_8u_C1C3R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiDup_8u_C1C4R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize);
/** @} */

#ifdef __cplusplus
}
#endif

#endif
