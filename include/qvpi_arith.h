/** @file qvpi_arith.h
 *  Pixel-wise arithmetic, logic, look-up tables, conversion, threshold, comparison, compositing and color keys.
 *
 *  The conventions of every function are told in qvpi_core.h.
 */
#ifndef QVPI_ARITH_H
#define QVPI_ARITH_H

#include "qvptypes.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @name Addition
 *  @{ */
/** Adds two images: dst = src1 + src2; in place, srcDst = src + srcDst.
 *
 *  The exact sum, times 2^-scaleFactor, is rounded to the nearest integer, ties to even, and saturated to the type, so
 *  that any scale factor is valid.
 *
 *  AC4 keeps the alpha of the destination. Steps are not checked.
 *
 *  @param pSrc1,src1Step first operand
 *  @param pSrc2,src2Step second operand
 *  @param pDst,dstStep destination image; it may be either operand
 *  @param pSrc,srcStep in place: first operand
 *  @param pSrcDst,srcDstStep in place: second operand and destination
 *  @param roiSize size of the region in pixels
 *  @param scaleFactor the result is multiplied by 2^-scaleFactor; any value
 *  @return qvpStatusNullPointer: an image is null. qvpStatusSize: a side of `roiSize` is below 1. qvpStatusNoError
 *          otherwise.
 */
QvpStatus qvpiAdd_8u_C1RSfs(const Qvp8u* pSrc1, int src1Step, const Qvp8u* pSrc2, int src2Step, Qvp8u* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiAdd_8u_C3RSfs(const Qvp8u* pSrc1, int src1Step, const Qvp8u* pSrc2, int src2Step, Qvp8u* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiAdd_8u_C4RSfs(const Qvp8u* pSrc1, int src1Step, const Qvp8u* pSrc2, int src2Step, Qvp8u* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiAdd_8u_AC4RSfs(const Qvp8u* pSrc1, int src1Step, const Qvp8u* pSrc2, int src2Step, Qvp8u* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiAdd_16u_C1RSfs(const Qvp16u* pSrc1, int src1Step, const Qvp16u* pSrc2, int src2Step, Qvp16u* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiAdd_16u_C3RSfs(const Qvp16u* pSrc1, int src1Step, const Qvp16u* pSrc2, int src2Step, Qvp16u* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiAdd_16u_C4RSfs(const Qvp16u* pSrc1, int src1Step, const Qvp16u* pSrc2, int src2Step, Qvp16u* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiAdd_16u_AC4RSfs(const Qvp16u* pSrc1, int src1Step, const Qvp16u* pSrc2, int src2Step, Qvp16u* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiAdd_16s_C1RSfs(const Qvp16s* pSrc1, int src1Step, const Qvp16s* pSrc2, int src2Step, Qvp16s* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiAdd_16s_C3RSfs(const Qvp16s* pSrc1, int src1Step, const Qvp16s* pSrc2, int src2Step, Qvp16s* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiAdd_16s_C4RSfs(const Qvp16s* pSrc1, int src1Step, const Qvp16s* pSrc2, int src2Step, Qvp16s* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiAdd_16s_AC4RSfs(const Qvp16s* pSrc1, int src1Step, const Qvp16s* pSrc2, int src2Step, Qvp16s* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiAdd_8u_C1IRSfs(const Qvp8u* pSrc, int srcStep, Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiAdd_8u_C3IRSfs(const Qvp8u* pSrc, int srcStep, Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiAdd_8u_C4IRSfs(const Qvp8u* pSrc, int srcStep, Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiAdd_8u_AC4IRSfs(const Qvp8u* pSrc, int srcStep, Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiAdd_16u_C1IRSfs(const Qvp16u* pSrc, int srcStep, Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiAdd_16u_C3IRSfs(const Qvp16u* pSrc, int srcStep, Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiAdd_16u_C4IRSfs(const Qvp16u* pSrc, int srcStep, Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiAdd_16u_AC4IRSfs(const Qvp16u* pSrc, int srcStep, Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiAdd_16s_C1IRSfs(const Qvp16s* pSrc, int srcStep, Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiAdd_16s_C3IRSfs(const Qvp16s* pSrc, int srcStep, Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiAdd_16s_C4IRSfs(const Qvp16s* pSrc, int srcStep, Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiAdd_16s_AC4IRSfs(const Qvp16s* pSrc, int srcStep, Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
/** @} */

/** @name Addition of floats
 *  @{ */
/** Adds two images: dst = src1 + src2; in place, srcDst = src + srcDst.
 *
 *  The result in single precision, rounded once.
 *
 *  AC4 keeps the alpha of the destination. Steps are not checked.
 *
 *  @param pSrc1,src1Step first operand
 *  @param pSrc2,src2Step second operand
 *  @param pDst,dstStep destination image; it may be either operand
 *  @param pSrc,srcStep in place: first operand
 *  @param pSrcDst,srcDstStep in place: second operand and destination
 *  @param roiSize size of the region in pixels
 *  @return qvpStatusNullPointer: an image is null. qvpStatusSize: a side of `roiSize` is below 1. qvpStatusNoError
 *          otherwise.
 */
QvpStatus qvpiAdd_32f_C1R(const Qvp32f* pSrc1, int src1Step, const Qvp32f* pSrc2, int src2Step, Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiAdd_32f_C3R(const Qvp32f* pSrc1, int src1Step, const Qvp32f* pSrc2, int src2Step, Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiAdd_32f_C4R(const Qvp32f* pSrc1, int src1Step, const Qvp32f* pSrc2, int src2Step, Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiAdd_32f_AC4R(const Qvp32f* pSrc1, int src1Step, const Qvp32f* pSrc2, int src2Step, Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiAdd_32f_C1IR(const Qvp32f* pSrc, int srcStep, Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiAdd_32f_C3IR(const Qvp32f* pSrc, int srcStep, Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiAdd_32f_C4IR(const Qvp32f* pSrc, int srcStep, Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiAdd_32f_AC4IR(const Qvp32f* pSrc, int srcStep, Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize);
/** @} */

/** @name Addition of a constant
 *  @{ */
/** Adds a constant to an image: dst = src + value; in place, srcDst = srcDst + value.
 *
 *  The exact sum, times 2^-scaleFactor, is rounded to the nearest integer, ties to even, and saturated to the type, so
 *  that any scale factor is valid.
 *
 *  AC4 keeps the alpha of the destination. Steps are not checked.
 *
 *  @param pSrc,srcStep source image
 *  @param value the constant: a number for C1, one for each channel otherwise; three for AC4
 *  @param pDst,dstStep destination image; it may be the source
 *  @param pSrcDst,srcDstStep in place: the image
 *  @param roiSize size of the region in pixels
 *  @param scaleFactor the result is multiplied by 2^-scaleFactor; any value
 *  @return qvpStatusNullPointer: an image or `value` is null. qvpStatusSize: a side of `roiSize` is below 1.
 *          qvpStatusNoError otherwise.
 */
QvpStatus qvpiAddC_8u_C1RSfs(const Qvp8u* pSrc, int srcStep, Qvp8u value, Qvp8u* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiAddC_8u_C3RSfs(const Qvp8u* pSrc, int srcStep, const Qvp8u value[3], Qvp8u* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiAddC_8u_C4RSfs(const Qvp8u* pSrc, int srcStep, const Qvp8u value[4], Qvp8u* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiAddC_8u_AC4RSfs(const Qvp8u* pSrc, int srcStep, const Qvp8u value[3], Qvp8u* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiAddC_16u_C1RSfs(const Qvp16u* pSrc, int srcStep, Qvp16u value, Qvp16u* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiAddC_16u_C3RSfs(const Qvp16u* pSrc, int srcStep, const Qvp16u value[3], Qvp16u* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiAddC_16u_C4RSfs(const Qvp16u* pSrc, int srcStep, const Qvp16u value[4], Qvp16u* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiAddC_16u_AC4RSfs(const Qvp16u* pSrc, int srcStep, const Qvp16u value[3], Qvp16u* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiAddC_16s_C1RSfs(const Qvp16s* pSrc, int srcStep, Qvp16s value, Qvp16s* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiAddC_16s_C3RSfs(const Qvp16s* pSrc, int srcStep, const Qvp16s value[3], Qvp16s* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiAddC_16s_C4RSfs(const Qvp16s* pSrc, int srcStep, const Qvp16s value[4], Qvp16s* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiAddC_16s_AC4RSfs(const Qvp16s* pSrc, int srcStep, const Qvp16s value[3], Qvp16s* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiAddC_8u_C1IRSfs(Qvp8u value, Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiAddC_8u_C3IRSfs(const Qvp8u value[3], Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiAddC_8u_C4IRSfs(const Qvp8u value[4], Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiAddC_8u_AC4IRSfs(const Qvp8u value[3], Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiAddC_16u_C1IRSfs(Qvp16u value, Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiAddC_16u_C3IRSfs(const Qvp16u value[3], Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiAddC_16u_C4IRSfs(const Qvp16u value[4], Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiAddC_16u_AC4IRSfs(const Qvp16u value[3], Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiAddC_16s_C1IRSfs(Qvp16s value, Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiAddC_16s_C3IRSfs(const Qvp16s value[3], Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiAddC_16s_C4IRSfs(const Qvp16s value[4], Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiAddC_16s_AC4IRSfs(const Qvp16s value[3], Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
/** @} */

/** @name Addition of a constant of floats
 *  @{ */
/** Adds a constant to an image: dst = src + value; in place, srcDst = srcDst + value.
 *
 *  The result in single precision, rounded once.
 *
 *  AC4 keeps the alpha of the destination. Steps are not checked.
 *
 *  @param pSrc,srcStep source image
 *  @param value the constant: a number for C1, one for each channel otherwise; three for AC4
 *  @param pDst,dstStep destination image; it may be the source
 *  @param pSrcDst,srcDstStep in place: the image
 *  @param roiSize size of the region in pixels
 *  @return qvpStatusNullPointer: an image or `value` is null. qvpStatusSize: a side of `roiSize` is below 1.
 *          qvpStatusNoError otherwise.
 */
QvpStatus qvpiAddC_32f_C1R(const Qvp32f* pSrc, int srcStep, Qvp32f value, Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiAddC_32f_C3R(const Qvp32f* pSrc, int srcStep, const Qvp32f value[3], Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiAddC_32f_C4R(const Qvp32f* pSrc, int srcStep, const Qvp32f value[4], Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiAddC_32f_AC4R(const Qvp32f* pSrc, int srcStep, const Qvp32f value[3], Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiAddC_32f_C1IR(Qvp32f value, Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiAddC_32f_C3IR(const Qvp32f value[3], Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiAddC_32f_C4IR(const Qvp32f value[4], Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiAddC_32f_AC4IR(const Qvp32f value[3], Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize);
/** @} */

/** @name Subtraction
 *  @{ */
/** Subtracts the first image from the second: **dst = src2 - src1**; in place, srcDst = srcDst - src.
 *
 *  The exact difference, times 2^-scaleFactor, is rounded to the nearest integer, ties to even, and saturated to the
 *  type, so that any scale factor is valid. Unsigned results saturate at 0.
 *
 *  AC4 keeps the alpha of the destination. Steps are not checked.
 *
 *  @param pSrc1,src1Step subtrahend
 *  @param pSrc2,src2Step minuend
 *  @param pDst,dstStep destination image; it may be either operand
 *  @param pSrc,srcStep in place: subtrahend
 *  @param pSrcDst,srcDstStep in place: minuend and destination
 *  @param roiSize size of the region in pixels
 *  @param scaleFactor the result is multiplied by 2^-scaleFactor; any value
 *  @return qvpStatusNullPointer: an image is null. qvpStatusSize: a side of `roiSize` is below 1. qvpStatusNoError
 *          otherwise.
 */
QvpStatus qvpiSub_8u_C1RSfs(const Qvp8u* pSrc1, int src1Step, const Qvp8u* pSrc2, int src2Step, Qvp8u* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiSub_8u_C3RSfs(const Qvp8u* pSrc1, int src1Step, const Qvp8u* pSrc2, int src2Step, Qvp8u* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiSub_8u_C4RSfs(const Qvp8u* pSrc1, int src1Step, const Qvp8u* pSrc2, int src2Step, Qvp8u* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiSub_8u_AC4RSfs(const Qvp8u* pSrc1, int src1Step, const Qvp8u* pSrc2, int src2Step, Qvp8u* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiSub_16u_C1RSfs(const Qvp16u* pSrc1, int src1Step, const Qvp16u* pSrc2, int src2Step, Qvp16u* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiSub_16u_C3RSfs(const Qvp16u* pSrc1, int src1Step, const Qvp16u* pSrc2, int src2Step, Qvp16u* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiSub_16u_C4RSfs(const Qvp16u* pSrc1, int src1Step, const Qvp16u* pSrc2, int src2Step, Qvp16u* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiSub_16u_AC4RSfs(const Qvp16u* pSrc1, int src1Step, const Qvp16u* pSrc2, int src2Step, Qvp16u* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiSub_16s_C1RSfs(const Qvp16s* pSrc1, int src1Step, const Qvp16s* pSrc2, int src2Step, Qvp16s* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiSub_16s_C3RSfs(const Qvp16s* pSrc1, int src1Step, const Qvp16s* pSrc2, int src2Step, Qvp16s* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiSub_16s_C4RSfs(const Qvp16s* pSrc1, int src1Step, const Qvp16s* pSrc2, int src2Step, Qvp16s* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiSub_16s_AC4RSfs(const Qvp16s* pSrc1, int src1Step, const Qvp16s* pSrc2, int src2Step, Qvp16s* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiSub_8u_C1IRSfs(const Qvp8u* pSrc, int srcStep, Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiSub_8u_C3IRSfs(const Qvp8u* pSrc, int srcStep, Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiSub_8u_C4IRSfs(const Qvp8u* pSrc, int srcStep, Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiSub_8u_AC4IRSfs(const Qvp8u* pSrc, int srcStep, Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiSub_16u_C1IRSfs(const Qvp16u* pSrc, int srcStep, Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiSub_16u_C3IRSfs(const Qvp16u* pSrc, int srcStep, Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiSub_16u_C4IRSfs(const Qvp16u* pSrc, int srcStep, Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiSub_16u_AC4IRSfs(const Qvp16u* pSrc, int srcStep, Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiSub_16s_C1IRSfs(const Qvp16s* pSrc, int srcStep, Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiSub_16s_C3IRSfs(const Qvp16s* pSrc, int srcStep, Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiSub_16s_C4IRSfs(const Qvp16s* pSrc, int srcStep, Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiSub_16s_AC4IRSfs(const Qvp16s* pSrc, int srcStep, Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
/** @} */

/** @name Subtraction of floats
 *  @{ */
/** Subtracts the first image from the second: **dst = src2 - src1**; in place, srcDst = srcDst - src.
 *
 *  The result in single precision, rounded once.
 *
 *  AC4 keeps the alpha of the destination. Steps are not checked.
 *
 *  @param pSrc1,src1Step subtrahend
 *  @param pSrc2,src2Step minuend
 *  @param pDst,dstStep destination image; it may be either operand
 *  @param pSrc,srcStep in place: subtrahend
 *  @param pSrcDst,srcDstStep in place: minuend and destination
 *  @param roiSize size of the region in pixels
 *  @return qvpStatusNullPointer: an image is null. qvpStatusSize: a side of `roiSize` is below 1. qvpStatusNoError
 *          otherwise.
 */
QvpStatus qvpiSub_32f_C1R(const Qvp32f* pSrc1, int src1Step, const Qvp32f* pSrc2, int src2Step, Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiSub_32f_C3R(const Qvp32f* pSrc1, int src1Step, const Qvp32f* pSrc2, int src2Step, Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiSub_32f_C4R(const Qvp32f* pSrc1, int src1Step, const Qvp32f* pSrc2, int src2Step, Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiSub_32f_AC4R(const Qvp32f* pSrc1, int src1Step, const Qvp32f* pSrc2, int src2Step, Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiSub_32f_C1IR(const Qvp32f* pSrc, int srcStep, Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiSub_32f_C3IR(const Qvp32f* pSrc, int srcStep, Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiSub_32f_C4IR(const Qvp32f* pSrc, int srcStep, Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiSub_32f_AC4IR(const Qvp32f* pSrc, int srcStep, Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize);
/** @} */

/** @name Subtraction of a constant
 *  @{ */
/** Subtracts a constant from an image: dst = src - value; in place, srcDst = srcDst - value.
 *
 *  The exact difference, times 2^-scaleFactor, is rounded to the nearest integer, ties to even, and saturated to the
 *  type, so that any scale factor is valid. Unsigned results saturate at 0.
 *
 *  AC4 keeps the alpha of the destination. Steps are not checked.
 *
 *  @param pSrc,srcStep source image
 *  @param value the constant: a number for C1, one for each channel otherwise; three for AC4
 *  @param pDst,dstStep destination image; it may be the source
 *  @param pSrcDst,srcDstStep in place: the image
 *  @param roiSize size of the region in pixels
 *  @param scaleFactor the result is multiplied by 2^-scaleFactor; any value
 *  @return qvpStatusNullPointer: an image or `value` is null. qvpStatusSize: a side of `roiSize` is below 1.
 *          qvpStatusNoError otherwise.
 */
QvpStatus qvpiSubC_8u_C1RSfs(const Qvp8u* pSrc, int srcStep, Qvp8u value, Qvp8u* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiSubC_8u_C3RSfs(const Qvp8u* pSrc, int srcStep, const Qvp8u value[3], Qvp8u* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiSubC_8u_C4RSfs(const Qvp8u* pSrc, int srcStep, const Qvp8u value[4], Qvp8u* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiSubC_8u_AC4RSfs(const Qvp8u* pSrc, int srcStep, const Qvp8u value[3], Qvp8u* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiSubC_16u_C1RSfs(const Qvp16u* pSrc, int srcStep, Qvp16u value, Qvp16u* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiSubC_16u_C3RSfs(const Qvp16u* pSrc, int srcStep, const Qvp16u value[3], Qvp16u* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiSubC_16u_C4RSfs(const Qvp16u* pSrc, int srcStep, const Qvp16u value[4], Qvp16u* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiSubC_16u_AC4RSfs(const Qvp16u* pSrc, int srcStep, const Qvp16u value[3], Qvp16u* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiSubC_16s_C1RSfs(const Qvp16s* pSrc, int srcStep, Qvp16s value, Qvp16s* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiSubC_16s_C3RSfs(const Qvp16s* pSrc, int srcStep, const Qvp16s value[3], Qvp16s* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiSubC_16s_C4RSfs(const Qvp16s* pSrc, int srcStep, const Qvp16s value[4], Qvp16s* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiSubC_16s_AC4RSfs(const Qvp16s* pSrc, int srcStep, const Qvp16s value[3], Qvp16s* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiSubC_8u_C1IRSfs(Qvp8u value, Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiSubC_8u_C3IRSfs(const Qvp8u value[3], Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiSubC_8u_C4IRSfs(const Qvp8u value[4], Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiSubC_8u_AC4IRSfs(const Qvp8u value[3], Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiSubC_16u_C1IRSfs(Qvp16u value, Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiSubC_16u_C3IRSfs(const Qvp16u value[3], Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiSubC_16u_C4IRSfs(const Qvp16u value[4], Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiSubC_16u_AC4IRSfs(const Qvp16u value[3], Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiSubC_16s_C1IRSfs(Qvp16s value, Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiSubC_16s_C3IRSfs(const Qvp16s value[3], Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiSubC_16s_C4IRSfs(const Qvp16s value[4], Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiSubC_16s_AC4IRSfs(const Qvp16s value[3], Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
/** @} */

/** @name Subtraction of a constant of floats
 *  @{ */
/** Subtracts a constant from an image: dst = src - value; in place, srcDst = srcDst - value.
 *
 *  The result in single precision, rounded once.
 *
 *  AC4 keeps the alpha of the destination. Steps are not checked.
 *
 *  @param pSrc,srcStep source image
 *  @param value the constant: a number for C1, one for each channel otherwise; three for AC4
 *  @param pDst,dstStep destination image; it may be the source
 *  @param pSrcDst,srcDstStep in place: the image
 *  @param roiSize size of the region in pixels
 *  @return qvpStatusNullPointer: an image or `value` is null. qvpStatusSize: a side of `roiSize` is below 1.
 *          qvpStatusNoError otherwise.
 */
QvpStatus qvpiSubC_32f_C1R(const Qvp32f* pSrc, int srcStep, Qvp32f value, Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiSubC_32f_C3R(const Qvp32f* pSrc, int srcStep, const Qvp32f value[3], Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiSubC_32f_C4R(const Qvp32f* pSrc, int srcStep, const Qvp32f value[4], Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiSubC_32f_AC4R(const Qvp32f* pSrc, int srcStep, const Qvp32f value[3], Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiSubC_32f_C1IR(Qvp32f value, Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiSubC_32f_C3IR(const Qvp32f value[3], Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiSubC_32f_C4IR(const Qvp32f value[4], Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiSubC_32f_AC4IR(const Qvp32f value[3], Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize);
/** @} */

/** @name Multiplication
 *  @{ */
/** Multiplies two images: dst = src1 * src2; in place, srcDst = src * srcDst.
 *
 *  The exact product, times 2^-scaleFactor, is rounded to the nearest integer, ties to even, and saturated to the type,
 *  so that any scale factor is valid.
 *
 *  AC4 keeps the alpha of the destination. Steps are not checked.
 *
 *  @param pSrc1,src1Step first operand
 *  @param pSrc2,src2Step second operand
 *  @param pDst,dstStep destination image; it may be either operand
 *  @param pSrc,srcStep in place: first operand
 *  @param pSrcDst,srcDstStep in place: second operand and destination
 *  @param roiSize size of the region in pixels
 *  @param scaleFactor the result is multiplied by 2^-scaleFactor; any value
 *  @return qvpStatusNullPointer: an image is null. qvpStatusSize: a side of `roiSize` is below 1. qvpStatusNoError
 *          otherwise.
 */
QvpStatus qvpiMul_8u_C1RSfs(const Qvp8u* pSrc1, int src1Step, const Qvp8u* pSrc2, int src2Step, Qvp8u* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiMul_8u_C3RSfs(const Qvp8u* pSrc1, int src1Step, const Qvp8u* pSrc2, int src2Step, Qvp8u* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiMul_8u_C4RSfs(const Qvp8u* pSrc1, int src1Step, const Qvp8u* pSrc2, int src2Step, Qvp8u* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiMul_8u_AC4RSfs(const Qvp8u* pSrc1, int src1Step, const Qvp8u* pSrc2, int src2Step, Qvp8u* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiMul_16u_C1RSfs(const Qvp16u* pSrc1, int src1Step, const Qvp16u* pSrc2, int src2Step, Qvp16u* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiMul_16u_C3RSfs(const Qvp16u* pSrc1, int src1Step, const Qvp16u* pSrc2, int src2Step, Qvp16u* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiMul_16u_C4RSfs(const Qvp16u* pSrc1, int src1Step, const Qvp16u* pSrc2, int src2Step, Qvp16u* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiMul_16u_AC4RSfs(const Qvp16u* pSrc1, int src1Step, const Qvp16u* pSrc2, int src2Step, Qvp16u* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiMul_16s_C1RSfs(const Qvp16s* pSrc1, int src1Step, const Qvp16s* pSrc2, int src2Step, Qvp16s* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiMul_16s_C3RSfs(const Qvp16s* pSrc1, int src1Step, const Qvp16s* pSrc2, int src2Step, Qvp16s* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiMul_16s_C4RSfs(const Qvp16s* pSrc1, int src1Step, const Qvp16s* pSrc2, int src2Step, Qvp16s* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiMul_16s_AC4RSfs(const Qvp16s* pSrc1, int src1Step, const Qvp16s* pSrc2, int src2Step, Qvp16s* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiMul_8u_C1IRSfs(const Qvp8u* pSrc, int srcStep, Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiMul_8u_C3IRSfs(const Qvp8u* pSrc, int srcStep, Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiMul_8u_C4IRSfs(const Qvp8u* pSrc, int srcStep, Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiMul_8u_AC4IRSfs(const Qvp8u* pSrc, int srcStep, Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiMul_16u_C1IRSfs(const Qvp16u* pSrc, int srcStep, Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiMul_16u_C3IRSfs(const Qvp16u* pSrc, int srcStep, Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiMul_16u_C4IRSfs(const Qvp16u* pSrc, int srcStep, Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiMul_16u_AC4IRSfs(const Qvp16u* pSrc, int srcStep, Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiMul_16s_C1IRSfs(const Qvp16s* pSrc, int srcStep, Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiMul_16s_C3IRSfs(const Qvp16s* pSrc, int srcStep, Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiMul_16s_C4IRSfs(const Qvp16s* pSrc, int srcStep, Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiMul_16s_AC4IRSfs(const Qvp16s* pSrc, int srcStep, Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
/** @} */

/** @name Multiplication of floats
 *  @{ */
/** Multiplies two images: dst = src1 * src2; in place, srcDst = src * srcDst.
 *
 *  The result in single precision, rounded once.
 *
 *  AC4 keeps the alpha of the destination. Steps are not checked.
 *
 *  @param pSrc1,src1Step first operand
 *  @param pSrc2,src2Step second operand
 *  @param pDst,dstStep destination image; it may be either operand
 *  @param pSrc,srcStep in place: first operand
 *  @param pSrcDst,srcDstStep in place: second operand and destination
 *  @param roiSize size of the region in pixels
 *  @return qvpStatusNullPointer: an image is null. qvpStatusSize: a side of `roiSize` is below 1. qvpStatusNoError
 *          otherwise.
 */
QvpStatus qvpiMul_32f_C1R(const Qvp32f* pSrc1, int src1Step, const Qvp32f* pSrc2, int src2Step, Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiMul_32f_C3R(const Qvp32f* pSrc1, int src1Step, const Qvp32f* pSrc2, int src2Step, Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiMul_32f_C4R(const Qvp32f* pSrc1, int src1Step, const Qvp32f* pSrc2, int src2Step, Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiMul_32f_AC4R(const Qvp32f* pSrc1, int src1Step, const Qvp32f* pSrc2, int src2Step, Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiMul_32f_C1IR(const Qvp32f* pSrc, int srcStep, Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiMul_32f_C3IR(const Qvp32f* pSrc, int srcStep, Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiMul_32f_C4IR(const Qvp32f* pSrc, int srcStep, Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiMul_32f_AC4IR(const Qvp32f* pSrc, int srcStep, Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize);
/** @} */

/** @name Multiplication by a constant
 *  @{ */
/** Multiplies an image by a constant: dst = src * value; in place, srcDst = srcDst * value.
 *
 *  The exact product, times 2^-scaleFactor, is rounded to the nearest integer, ties to even, and saturated to the type,
 *  so that any scale factor is valid.
 *
 *  AC4 keeps the alpha of the destination. Steps are not checked.
 *
 *  @param pSrc,srcStep source image
 *  @param value the constant: a number for C1, one for each channel otherwise; three for AC4
 *  @param pDst,dstStep destination image; it may be the source
 *  @param pSrcDst,srcDstStep in place: the image
 *  @param roiSize size of the region in pixels
 *  @param scaleFactor the result is multiplied by 2^-scaleFactor; any value
 *  @return qvpStatusNullPointer: an image or `value` is null. qvpStatusSize: a side of `roiSize` is below 1.
 *          qvpStatusNoError otherwise.
 */
QvpStatus qvpiMulC_8u_C1RSfs(const Qvp8u* pSrc, int srcStep, Qvp8u value, Qvp8u* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiMulC_8u_C3RSfs(const Qvp8u* pSrc, int srcStep, const Qvp8u value[3], Qvp8u* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiMulC_8u_C4RSfs(const Qvp8u* pSrc, int srcStep, const Qvp8u value[4], Qvp8u* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiMulC_8u_AC4RSfs(const Qvp8u* pSrc, int srcStep, const Qvp8u value[3], Qvp8u* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiMulC_16u_C1RSfs(const Qvp16u* pSrc, int srcStep, Qvp16u value, Qvp16u* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiMulC_16u_C3RSfs(const Qvp16u* pSrc, int srcStep, const Qvp16u value[3], Qvp16u* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiMulC_16u_C4RSfs(const Qvp16u* pSrc, int srcStep, const Qvp16u value[4], Qvp16u* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiMulC_16u_AC4RSfs(const Qvp16u* pSrc, int srcStep, const Qvp16u value[3], Qvp16u* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiMulC_16s_C1RSfs(const Qvp16s* pSrc, int srcStep, Qvp16s value, Qvp16s* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiMulC_16s_C3RSfs(const Qvp16s* pSrc, int srcStep, const Qvp16s value[3], Qvp16s* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiMulC_16s_C4RSfs(const Qvp16s* pSrc, int srcStep, const Qvp16s value[4], Qvp16s* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiMulC_16s_AC4RSfs(const Qvp16s* pSrc, int srcStep, const Qvp16s value[3], Qvp16s* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiMulC_8u_C1IRSfs(Qvp8u value, Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiMulC_8u_C3IRSfs(const Qvp8u value[3], Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiMulC_8u_C4IRSfs(const Qvp8u value[4], Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiMulC_8u_AC4IRSfs(const Qvp8u value[3], Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiMulC_16u_C1IRSfs(Qvp16u value, Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiMulC_16u_C3IRSfs(const Qvp16u value[3], Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiMulC_16u_C4IRSfs(const Qvp16u value[4], Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiMulC_16u_AC4IRSfs(const Qvp16u value[3], Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiMulC_16s_C1IRSfs(Qvp16s value, Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiMulC_16s_C3IRSfs(const Qvp16s value[3], Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiMulC_16s_C4IRSfs(const Qvp16s value[4], Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiMulC_16s_AC4IRSfs(const Qvp16s value[3], Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
/** @} */

/** @name Multiplication by a constant of floats
 *  @{ */
/** Multiplies an image by a constant: dst = src * value; in place, srcDst = srcDst * value.
 *
 *  The result in single precision, rounded once.
 *
 *  AC4 keeps the alpha of the destination. Steps are not checked.
 *
 *  @param pSrc,srcStep source image
 *  @param value the constant: a number for C1, one for each channel otherwise; three for AC4
 *  @param pDst,dstStep destination image; it may be the source
 *  @param pSrcDst,srcDstStep in place: the image
 *  @param roiSize size of the region in pixels
 *  @return qvpStatusNullPointer: an image or `value` is null. qvpStatusSize: a side of `roiSize` is below 1.
 *          qvpStatusNoError otherwise.
 */
QvpStatus qvpiMulC_32f_C1R(const Qvp32f* pSrc, int srcStep, Qvp32f value, Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiMulC_32f_C3R(const Qvp32f* pSrc, int srcStep, const Qvp32f value[3], Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiMulC_32f_C4R(const Qvp32f* pSrc, int srcStep, const Qvp32f value[4], Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiMulC_32f_AC4R(const Qvp32f* pSrc, int srcStep, const Qvp32f value[3], Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiMulC_32f_C1IR(Qvp32f value, Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiMulC_32f_C3IR(const Qvp32f value[3], Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiMulC_32f_C4IR(const Qvp32f value[4], Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiMulC_32f_AC4IR(const Qvp32f value[3], Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize);
/** @} */

/** @name Division
 *  @{ */
/** Divides the second image by the first: **dst = src2 / src1**; in place, srcDst = srcDst / src, of integers.
 *
 *  The exact quotient, times 2^-scaleFactor, is rounded to the nearest integer, ties to even, and saturated to the
 *  type, so that any scale factor is valid.
 *
 *  Every pixel is written. A divisor of zero gives the largest value of the type for a positive dividend, the smallest
 *  one for a negative dividend and 0 for 0, whatever the scale factor, and the call returns the warning
 *  qvpStatusDivideByZero.
 *
 *  AC4 keeps the alpha of the destination, and alpha divides nothing.
 *
 *  @param pSrc1,src1Step divisor
 *  @param pSrc2,src2Step dividend
 *  @param pDst,dstStep destination image; it may be either operand
 *  @param pSrc,srcStep in place: divisor
 *  @param pSrcDst,srcDstStep in place: dividend and destination
 *  @param roiSize size of the region in pixels
 *  @param scaleFactor the result is multiplied by 2^-scaleFactor; any value
 *  @return qvpStatusNullPointer: an image is null. qvpStatusSize: a side of `roiSize` is below 1. qvpStatusStep: a step
 *          is below 1. qvpStatusDivideByZero, a warning: there is a divisor of zero. qvpStatusNoError otherwise.
 */
QvpStatus qvpiDiv_8u_C1RSfs(const Qvp8u* pSrc1, int src1Step, const Qvp8u* pSrc2, int src2Step, Qvp8u* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiDiv_8u_C3RSfs(const Qvp8u* pSrc1, int src1Step, const Qvp8u* pSrc2, int src2Step, Qvp8u* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiDiv_8u_C4RSfs(const Qvp8u* pSrc1, int src1Step, const Qvp8u* pSrc2, int src2Step, Qvp8u* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiDiv_8u_AC4RSfs(const Qvp8u* pSrc1, int src1Step, const Qvp8u* pSrc2, int src2Step, Qvp8u* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiDiv_16u_C1RSfs(const Qvp16u* pSrc1, int src1Step, const Qvp16u* pSrc2, int src2Step, Qvp16u* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiDiv_16u_C3RSfs(const Qvp16u* pSrc1, int src1Step, const Qvp16u* pSrc2, int src2Step, Qvp16u* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiDiv_16u_C4RSfs(const Qvp16u* pSrc1, int src1Step, const Qvp16u* pSrc2, int src2Step, Qvp16u* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiDiv_16u_AC4RSfs(const Qvp16u* pSrc1, int src1Step, const Qvp16u* pSrc2, int src2Step, Qvp16u* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiDiv_16s_C1RSfs(const Qvp16s* pSrc1, int src1Step, const Qvp16s* pSrc2, int src2Step, Qvp16s* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiDiv_16s_C3RSfs(const Qvp16s* pSrc1, int src1Step, const Qvp16s* pSrc2, int src2Step, Qvp16s* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiDiv_16s_C4RSfs(const Qvp16s* pSrc1, int src1Step, const Qvp16s* pSrc2, int src2Step, Qvp16s* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiDiv_16s_AC4RSfs(const Qvp16s* pSrc1, int src1Step, const Qvp16s* pSrc2, int src2Step, Qvp16s* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiDiv_8u_C1IRSfs(const Qvp8u* pSrc, int srcStep, Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiDiv_8u_C3IRSfs(const Qvp8u* pSrc, int srcStep, Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiDiv_8u_C4IRSfs(const Qvp8u* pSrc, int srcStep, Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiDiv_8u_AC4IRSfs(const Qvp8u* pSrc, int srcStep, Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiDiv_16u_C1IRSfs(const Qvp16u* pSrc, int srcStep, Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiDiv_16u_C3IRSfs(const Qvp16u* pSrc, int srcStep, Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiDiv_16u_C4IRSfs(const Qvp16u* pSrc, int srcStep, Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiDiv_16u_AC4IRSfs(const Qvp16u* pSrc, int srcStep, Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiDiv_16s_C1IRSfs(const Qvp16s* pSrc, int srcStep, Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiDiv_16s_C3IRSfs(const Qvp16s* pSrc, int srcStep, Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiDiv_16s_C4IRSfs(const Qvp16s* pSrc, int srcStep, Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiDiv_16s_AC4IRSfs(const Qvp16s* pSrc, int srcStep, Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
/** @} */

/** @name Division of floats
 *  @{ */
/** Divides the second image by the first: **dst = src2 / src1**; in place, srcDst = srcDst / src, in single precision.
 *
 *  The quotient is the correctly rounded one of IEEE 754, and its sign, that of a zero or an infinity too, the
 *  exclusive or of the signs.
 *
 *  Every pixel is written. With a divisor of 0 or -0 the quotient is infinite, or NaN of a dividend that is 0 or NaN,
 *  and the call returns the warning qvpStatusDivideByZero.
 *
 *  AC4 keeps the alpha of the destination, and alpha divides nothing.
 *
 *  @param pSrc1,src1Step divisor
 *  @param pSrc2,src2Step dividend
 *  @param pDst,dstStep destination image; it may be either operand
 *  @param pSrc,srcStep in place: divisor
 *  @param pSrcDst,srcDstStep in place: dividend and destination
 *  @param roiSize size of the region in pixels
 *  @return qvpStatusNullPointer: an image is null. qvpStatusSize: a side of `roiSize` is below 1. qvpStatusStep: a step
 *          is below 1. qvpStatusDivideByZero, a warning: there is a divisor of zero. qvpStatusNoError otherwise.
 */
QvpStatus qvpiDiv_32f_C1R(const Qvp32f* pSrc1, int src1Step, const Qvp32f* pSrc2, int src2Step, Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiDiv_32f_C3R(const Qvp32f* pSrc1, int src1Step, const Qvp32f* pSrc2, int src2Step, Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiDiv_32f_C4R(const Qvp32f* pSrc1, int src1Step, const Qvp32f* pSrc2, int src2Step, Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiDiv_32f_AC4R(const Qvp32f* pSrc1, int src1Step, const Qvp32f* pSrc2, int src2Step, Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiDiv_32f_C1IR(const Qvp32f* pSrc, int srcStep, Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiDiv_32f_C3IR(const Qvp32f* pSrc, int srcStep, Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiDiv_32f_C4IR(const Qvp32f* pSrc, int srcStep, Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiDiv_32f_AC4IR(const Qvp32f* pSrc, int srcStep, Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize);
/** @} */

/** @name Division by a constant
 *  @{ */
/** Divides an image by a constant: dst = src / value; in place, srcDst = srcDst / value.
 *
 *  The exact quotient, times 2^-scaleFactor, is rounded to the nearest integer, ties to even, and saturated to the
 *  type, so that any scale factor is valid.
 *
 *  AC4 keeps the alpha of the destination.
 *
 *  @param pSrc,srcStep source image
 *  @param value the constant: a number for C1, one for each channel otherwise; three for AC4
 *  @param pDst,dstStep destination image; it may be the source
 *  @param pSrcDst,srcDstStep in place: the image
 *  @param roiSize size of the region in pixels
 *  @param scaleFactor the result is multiplied by 2^-scaleFactor; any value
 *  @return qvpStatusNullPointer: an image or `value` is null. qvpStatusSize: a side of `roiSize` is below 1.
 *          qvpStatusStep: a step is below 1. qvpStatusDivideByZeroError: the constant of a channel is 0 or -0.
 *          qvpStatusNoError otherwise.
 */
QvpStatus qvpiDivC_8u_C1RSfs(const Qvp8u* pSrc, int srcStep, Qvp8u value, Qvp8u* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiDivC_8u_C3RSfs(const Qvp8u* pSrc, int srcStep, const Qvp8u value[3], Qvp8u* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiDivC_8u_C4RSfs(const Qvp8u* pSrc, int srcStep, const Qvp8u value[4], Qvp8u* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiDivC_8u_AC4RSfs(const Qvp8u* pSrc, int srcStep, const Qvp8u value[3], Qvp8u* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiDivC_16u_C1RSfs(const Qvp16u* pSrc, int srcStep, Qvp16u value, Qvp16u* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiDivC_16u_C3RSfs(const Qvp16u* pSrc, int srcStep, const Qvp16u value[3], Qvp16u* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiDivC_16u_C4RSfs(const Qvp16u* pSrc, int srcStep, const Qvp16u value[4], Qvp16u* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiDivC_16u_AC4RSfs(const Qvp16u* pSrc, int srcStep, const Qvp16u value[3], Qvp16u* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiDivC_16s_C1RSfs(const Qvp16s* pSrc, int srcStep, Qvp16s value, Qvp16s* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiDivC_16s_C3RSfs(const Qvp16s* pSrc, int srcStep, const Qvp16s value[3], Qvp16s* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiDivC_16s_C4RSfs(const Qvp16s* pSrc, int srcStep, const Qvp16s value[4], Qvp16s* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiDivC_16s_AC4RSfs(const Qvp16s* pSrc, int srcStep, const Qvp16s value[3], Qvp16s* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiDivC_8u_C1IRSfs(Qvp8u value, Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiDivC_8u_C3IRSfs(const Qvp8u value[3], Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiDivC_8u_C4IRSfs(const Qvp8u value[4], Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiDivC_8u_AC4IRSfs(const Qvp8u value[3], Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiDivC_16u_C1IRSfs(Qvp16u value, Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiDivC_16u_C3IRSfs(const Qvp16u value[3], Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiDivC_16u_C4IRSfs(const Qvp16u value[4], Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiDivC_16u_AC4IRSfs(const Qvp16u value[3], Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiDivC_16s_C1IRSfs(Qvp16s value, Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiDivC_16s_C3IRSfs(const Qvp16s value[3], Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiDivC_16s_C4IRSfs(const Qvp16s value[4], Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiDivC_16s_AC4IRSfs(const Qvp16s value[3], Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
/** @} */

/** @name Division by a constant of floats
 *  @{ */
/** Divides an image by a constant: dst = src / value; in place, srcDst = srcDst / value.
 *
 *  The quotient is the correctly rounded one of IEEE 754.
 *
 *  AC4 keeps the alpha of the destination.
 *
 *  @param pSrc,srcStep source image
 *  @param value the constant: a number for C1, one for each channel otherwise; three for AC4
 *  @param pDst,dstStep destination image; it may be the source
 *  @param pSrcDst,srcDstStep in place: the image
 *  @param roiSize size of the region in pixels
 *  @return qvpStatusNullPointer: an image or `value` is null. qvpStatusSize: a side of `roiSize` is below 1.
 *          qvpStatusStep: a step is below 1. qvpStatusDivideByZeroError: the constant of a channel is 0 or -0.
 *          qvpStatusNoError otherwise.
 */
QvpStatus qvpiDivC_32f_C1R(const Qvp32f* pSrc, int srcStep, Qvp32f value, Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiDivC_32f_C3R(const Qvp32f* pSrc, int srcStep, const Qvp32f value[3], Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiDivC_32f_C4R(const Qvp32f* pSrc, int srcStep, const Qvp32f value[4], Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiDivC_32f_AC4R(const Qvp32f* pSrc, int srcStep, const Qvp32f value[3], Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiDivC_32f_C1IR(Qvp32f value, Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiDivC_32f_C3IR(const Qvp32f value[3], Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiDivC_32f_C4IR(const Qvp32f value[4], Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiDivC_32f_AC4IR(const Qvp32f value[3], Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize);
/** @} */

/** @name Division with a rounding mode
 *  @{ */
/** Divides the second image by the first: **dst = src2 / src1**; in place, srcDst = srcDst / src, rounded as asked.
 *
 *  The exact quotient, times 2^-scaleFactor, becomes an integer by the rounding mode and is saturated to the type, so
 *  that any scale factor is valid.
 *
 *  Every pixel is written. A divisor of zero gives the largest value of the type for a positive dividend, the smallest
 *  one for a negative dividend and 0 for 0, whatever the scale factor, and the call returns the warning
 *  qvpStatusDivideByZero.
 *
 *  AC4 keeps the alpha of the destination, and alpha divides nothing.
 *
 *  @param pSrc1,src1Step divisor
 *  @param pSrc2,src2Step dividend
 *  @param pDst,dstStep destination image; it may be either operand
 *  @param pSrc,srcStep in place: divisor
 *  @param pSrcDst,srcDstStep in place: dividend and destination
 *  @param roiSize size of the region in pixels
 *  @param roundMode qvpRoundZero, qvpRoundNear (ties to even) or qvpRoundFinancial (ties away from zero)
 *  @param scaleFactor the result is multiplied by 2^-scaleFactor; any value
 *  @return qvpStatusNullPointer: an image is null. qvpStatusSize: a side of `roiSize` is below 1. qvpStatusStep: a step
 *          is below 1. qvpStatusRoundMode: `roundMode` is none of the three. qvpStatusDivideByZero, a warning: there is
 *          a divisor of zero. qvpStatusNoError otherwise.
 */
QvpStatus qvpiDiv_Round_8u_C1RSfs(const Qvp8u* pSrc1, int src1Step, const Qvp8u* pSrc2, int src2Step, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpRoundMode roundMode, int scaleFactor);
QvpStatus qvpiDiv_Round_8u_C3RSfs(const Qvp8u* pSrc1, int src1Step, const Qvp8u* pSrc2, int src2Step, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpRoundMode roundMode, int scaleFactor);
QvpStatus qvpiDiv_Round_8u_C4RSfs(const Qvp8u* pSrc1, int src1Step, const Qvp8u* pSrc2, int src2Step, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpRoundMode roundMode, int scaleFactor);
QvpStatus qvpiDiv_Round_8u_AC4RSfs(const Qvp8u* pSrc1, int src1Step, const Qvp8u* pSrc2, int src2Step, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpRoundMode roundMode, int scaleFactor);
QvpStatus qvpiDiv_Round_16u_C1RSfs(const Qvp16u* pSrc1, int src1Step, const Qvp16u* pSrc2, int src2Step, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpRoundMode roundMode, int scaleFactor);
QvpStatus qvpiDiv_Round_16u_C3RSfs(const Qvp16u* pSrc1, int src1Step, const Qvp16u* pSrc2, int src2Step, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpRoundMode roundMode, int scaleFactor);
QvpStatus qvpiDiv_Round_16u_C4RSfs(const Qvp16u* pSrc1, int src1Step, const Qvp16u* pSrc2, int src2Step, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpRoundMode roundMode, int scaleFactor);
QvpStatus qvpiDiv_Round_16u_AC4RSfs(const Qvp16u* pSrc1, int src1Step, const Qvp16u* pSrc2, int src2Step, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpRoundMode roundMode, int scaleFactor);
QvpStatus qvpiDiv_Round_16s_C1RSfs(const Qvp16s* pSrc1, int src1Step, const Qvp16s* pSrc2, int src2Step, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpRoundMode roundMode, int scaleFactor);
QvpStatus qvpiDiv_Round_16s_C3RSfs(const Qvp16s* pSrc1, int src1Step, const Qvp16s* pSrc2, int src2Step, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpRoundMode roundMode, int scaleFactor);
QvpStatus qvpiDiv_Round_16s_C4RSfs(const Qvp16s* pSrc1, int src1Step, const Qvp16s* pSrc2, int src2Step, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpRoundMode roundMode, int scaleFactor);
QvpStatus qvpiDiv_Round_16s_AC4RSfs(const Qvp16s* pSrc1, int src1Step, const Qvp16s* pSrc2, int src2Step, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpRoundMode roundMode, int scaleFactor);
QvpStatus qvpiDiv_Round_8u_C1IRSfs(const Qvp8u* pSrc, int srcStep, Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, QvpRoundMode roundMode, int scaleFactor);
QvpStatus qvpiDiv_Round_8u_C3IRSfs(const Qvp8u* pSrc, int srcStep, Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, QvpRoundMode roundMode, int scaleFactor);
QvpStatus qvpiDiv_Round_8u_C4IRSfs(const Qvp8u* pSrc, int srcStep, Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, QvpRoundMode roundMode, int scaleFactor);
QvpStatus qvpiDiv_Round_8u_AC4IRSfs(const Qvp8u* pSrc, int srcStep, Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, QvpRoundMode roundMode, int scaleFactor);
QvpStatus qvpiDiv_Round_16u_C1IRSfs(const Qvp16u* pSrc, int srcStep, Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, QvpRoundMode roundMode, int scaleFactor);
QvpStatus qvpiDiv_Round_16u_C3IRSfs(const Qvp16u* pSrc, int srcStep, Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, QvpRoundMode roundMode, int scaleFactor);
QvpStatus qvpiDiv_Round_16u_C4IRSfs(const Qvp16u* pSrc, int srcStep, Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, QvpRoundMode roundMode, int scaleFactor);
QvpStatus qvpiDiv_Round_16u_AC4IRSfs(const Qvp16u* pSrc, int srcStep, Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, QvpRoundMode roundMode, int scaleFactor);
QvpStatus qvpiDiv_Round_16s_C1IRSfs(const Qvp16s* pSrc, int srcStep, Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize, QvpRoundMode roundMode, int scaleFactor);
QvpStatus qvpiDiv_Round_16s_C3IRSfs(const Qvp16s* pSrc, int srcStep, Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize, QvpRoundMode roundMode, int scaleFactor);
QvpStatus qvpiDiv_Round_16s_C4IRSfs(const Qvp16s* pSrc, int srcStep, Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize, QvpRoundMode roundMode, int scaleFactor);
QvpStatus qvpiDiv_Round_16s_AC4IRSfs(const Qvp16s* pSrc, int srcStep, Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize, QvpRoundMode roundMode, int scaleFactor);
/** @} */

/** @name Multiplication of fractions
 *  @{ */
/** Multiplies two images of fractions: dst = src1 * src2 / max; in place, srcDst = src * srcDst / max.
 *
 *  The product is divided by the largest value of the type, max, 255 for 8u and 65535 for 16u, and rounded to the
 *  nearest integer; there are no ties. Values thus stand for fractions from 0 to 1, and full times full is full.
 *
 *  AC4 keeps the alpha of the destination. Steps are not checked.
 *
 *  @param pSrc1,src1Step first operand
 *  @param pSrc2,src2Step second operand
 *  @param pDst,dstStep destination image; it may be either operand
 *  @param pSrc,srcStep in place: first operand
 *  @param pSrcDst,srcDstStep in place: second operand and destination
 *  @param roiSize size of the region in pixels
 *  @return qvpStatusNullPointer: an image is null. qvpStatusSize: a side of `roiSize` is below 1. qvpStatusNoError
 *          otherwise.
 */
QvpStatus qvpiMulScale_8u_C1R(const Qvp8u* pSrc1, int src1Step, const Qvp8u* pSrc2, int src2Step, Qvp8u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiMulScale_8u_C3R(const Qvp8u* pSrc1, int src1Step, const Qvp8u* pSrc2, int src2Step, Qvp8u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiMulScale_8u_C4R(const Qvp8u* pSrc1, int src1Step, const Qvp8u* pSrc2, int src2Step, Qvp8u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiMulScale_8u_AC4R(const Qvp8u* pSrc1, int src1Step, const Qvp8u* pSrc2, int src2Step, Qvp8u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiMulScale_16u_C1R(const Qvp16u* pSrc1, int src1Step, const Qvp16u* pSrc2, int src2Step, Qvp16u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiMulScale_16u_C3R(const Qvp16u* pSrc1, int src1Step, const Qvp16u* pSrc2, int src2Step, Qvp16u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiMulScale_16u_C4R(const Qvp16u* pSrc1, int src1Step, const Qvp16u* pSrc2, int src2Step, Qvp16u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiMulScale_16u_AC4R(const Qvp16u* pSrc1, int src1Step, const Qvp16u* pSrc2, int src2Step, Qvp16u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiMulScale_8u_C1IR(const Qvp8u* pSrc, int srcStep, Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiMulScale_8u_C3IR(const Qvp8u* pSrc, int srcStep, Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiMulScale_8u_C4IR(const Qvp8u* pSrc, int srcStep, Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiMulScale_8u_AC4IR(const Qvp8u* pSrc, int srcStep, Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiMulScale_16u_C1IR(const Qvp16u* pSrc, int srcStep, Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiMulScale_16u_C3IR(const Qvp16u* pSrc, int srcStep, Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiMulScale_16u_C4IR(const Qvp16u* pSrc, int srcStep, Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiMulScale_16u_AC4IR(const Qvp16u* pSrc, int srcStep, Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize);
/** @} */

/** @name Multiplication of fractions by a constant
 *  @{ */
/** Multiplies an image of fractions by a constant: dst = src * value / max; in place, srcDst = srcDst * value / max.
 *
 *  The product is divided by the largest value of the type, max, 255 for 8u and 65535 for 16u, and rounded to the
 *  nearest integer; there are no ties. Values thus stand for fractions from 0 to 1, and full times full is full.
 *
 *  AC4 keeps the alpha of the destination. Steps are not checked.
 *
 *  @param pSrc,srcStep source image
 *  @param value the constant: a number for C1, one for each channel otherwise; three for AC4
 *  @param pDst,dstStep destination image; it may be the source
 *  @param pSrcDst,srcDstStep in place: the image
 *  @param roiSize size of the region in pixels
 *  @return qvpStatusNullPointer: an image or `value` is null. qvpStatusSize: a side of `roiSize` is below 1.
 *          qvpStatusNoError otherwise.
 */
QvpStatus qvpiMulCScale_8u_C1R(const Qvp8u* pSrc, int srcStep, Qvp8u value, Qvp8u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiMulCScale_8u_C3R(const Qvp8u* pSrc, int srcStep, const Qvp8u value[3], Qvp8u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiMulCScale_8u_C4R(const Qvp8u* pSrc, int srcStep, const Qvp8u value[4], Qvp8u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiMulCScale_8u_AC4R(const Qvp8u* pSrc, int srcStep, const Qvp8u value[3], Qvp8u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiMulCScale_16u_C1R(const Qvp16u* pSrc, int srcStep, Qvp16u value, Qvp16u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiMulCScale_16u_C3R(const Qvp16u* pSrc, int srcStep, const Qvp16u value[3], Qvp16u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiMulCScale_16u_C4R(const Qvp16u* pSrc, int srcStep, const Qvp16u value[4], Qvp16u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiMulCScale_16u_AC4R(const Qvp16u* pSrc, int srcStep, const Qvp16u value[3], Qvp16u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiMulCScale_8u_C1IR(Qvp8u value, Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiMulCScale_8u_C3IR(const Qvp8u value[3], Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiMulCScale_8u_C4IR(const Qvp8u value[4], Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiMulCScale_8u_AC4IR(const Qvp8u value[3], Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiMulCScale_16u_C1IR(Qvp16u value, Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiMulCScale_16u_C3IR(const Qvp16u value[3], Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiMulCScale_16u_C4IR(const Qvp16u value[4], Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiMulCScale_16u_AC4IR(const Qvp16u value[3], Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize);
/** @} */

/** @name Absolute value
 *  @{ */
/** Absolute value: dst = |src|; in place, srcDst = |srcDst|.
 *
 *  The exact value, times 2^-scaleFactor, is rounded to the nearest integer, ties to even, and saturated, so that
 *  -32768 becomes 32767 without a scale factor, or with 0.
 *
 *  AC4 keeps the alpha of the destination. Steps are not checked.
 *
 *  @param pSrc,srcStep source image
 *  @param pDst,dstStep destination image; it may be the source
 *  @param pSrcDst,srcDstStep in place: the image
 *  @param roiSize size of the region in pixels
 *  @param scaleFactor the result is multiplied by 2^-scaleFactor; any value
 *  @return qvpStatusNullPointer: an image is null. qvpStatusSize: a side of `roiSize` is below 1. qvpStatusNoError
 *          otherwise.
 */
QvpStatus qvpiAbs_16s_C1RSfs(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiAbs_16s_C3RSfs(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiAbs_16s_C4RSfs(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiAbs_16s_AC4RSfs(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiAbs_16s_C1IRSfs(Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiAbs_16s_C3IRSfs(Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiAbs_16s_C4IRSfs(Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiAbs_16s_AC4IRSfs(Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
/** @} */

/** @name Absolute value of floats
 *  @{ */
/** Absolute value: dst = |src|; in place, srcDst = |srcDst|.
 *
 *  The sign bit is cleared.
 *
 *  AC4 keeps the alpha of the destination. Steps are not checked.
 *
 *  @param pSrc,srcStep source image
 *  @param pDst,dstStep destination image; it may be the source
 *  @param pSrcDst,srcDstStep in place: the image
 *  @param roiSize size of the region in pixels
 *  @return qvpStatusNullPointer: an image is null. qvpStatusSize: a side of `roiSize` is below 1. qvpStatusNoError
 *          otherwise.
 */
QvpStatus qvpiAbs_32f_C1R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiAbs_32f_C3R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiAbs_32f_C4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiAbs_32f_AC4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiAbs_32f_C1IR(Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiAbs_32f_C3IR(Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiAbs_32f_C4IR(Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiAbs_32f_AC4IR(Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize);
/** @} */

/** @name Absolute value without a scale factor
 *  @{ */
/** Absolute value: dst = |src|; in place, srcDst = |srcDst|.
 *
 *  The exact value is saturated: -32768 becomes 32767.
 *
 *  AC4 keeps the alpha of the destination. Steps are not checked.
 *
 *  @param pSrc,srcStep source image
 *  @param pDst,dstStep destination image; it may be the source
 *  @param pSrcDst,srcDstStep in place: the image
 *  @param roiSize size of the region in pixels
 *  @return qvpStatusNullPointer: an image is null. qvpStatusSize: a side of `roiSize` is below 1. qvpStatusNoError
 *          otherwise.
 */
QvpStatus qvpiAbs_16s_C1R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiAbs_16s_C3R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiAbs_16s_C4R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiAbs_16s_AC4R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiAbs_16s_C1IR(Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiAbs_16s_C3IR(Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiAbs_16s_C4IR(Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiAbs_16s_AC4IR(Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize);
/** @} */

/** @name Square
 *  @{ */
/** Square: dst = src * src; in place, srcDst = srcDst * srcDst.
 *
 *  The exact square, times 2^-scaleFactor, is rounded to the nearest integer, ties to even, and saturated to the type,
 *  so that any scale factor is valid.
 *
 *  AC4 keeps the alpha of the destination. Steps are not checked.
 *
 *  @param pSrc,srcStep source image
 *  @param pDst,dstStep destination image; it may be the source
 *  @param pSrcDst,srcDstStep in place: the image
 *  @param roiSize size of the region in pixels
 *  @param scaleFactor the result is multiplied by 2^-scaleFactor; any value
 *  @return qvpStatusNullPointer: an image is null. qvpStatusSize: a side of `roiSize` is below 1. qvpStatusNoError
 *          otherwise.
 */
QvpStatus qvpiSqr_8u_C1RSfs(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiSqr_8u_C3RSfs(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiSqr_8u_C4RSfs(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiSqr_8u_AC4RSfs(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiSqr_16u_C1RSfs(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiSqr_16u_C3RSfs(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiSqr_16u_C4RSfs(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiSqr_16u_AC4RSfs(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiSqr_16s_C1RSfs(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiSqr_16s_C3RSfs(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiSqr_16s_C4RSfs(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiSqr_16s_AC4RSfs(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiSqr_8u_C1IRSfs(Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiSqr_8u_C3IRSfs(Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiSqr_8u_C4IRSfs(Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiSqr_8u_AC4IRSfs(Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiSqr_16u_C1IRSfs(Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiSqr_16u_C3IRSfs(Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiSqr_16u_C4IRSfs(Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiSqr_16u_AC4IRSfs(Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiSqr_16s_C1IRSfs(Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiSqr_16s_C3IRSfs(Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiSqr_16s_C4IRSfs(Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiSqr_16s_AC4IRSfs(Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
/** @} */

/** @name Square of floats
 *  @{ */
/** Square: dst = src * src; in place, srcDst = srcDst * srcDst.
 *
 *  The result in single precision, rounded once.
 *
 *  AC4 keeps the alpha of the destination. Steps are not checked.
 *
 *  @param pSrc,srcStep source image
 *  @param pDst,dstStep destination image; it may be the source
 *  @param pSrcDst,srcDstStep in place: the image
 *  @param roiSize size of the region in pixels
 *  @return qvpStatusNullPointer: an image is null. qvpStatusSize: a side of `roiSize` is below 1. qvpStatusNoError
 *          otherwise.
 */
QvpStatus qvpiSqr_32f_C1R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiSqr_32f_C3R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiSqr_32f_C4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiSqr_32f_AC4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiSqr_32f_C1IR(Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiSqr_32f_C3IR(Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiSqr_32f_C4IR(Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiSqr_32f_AC4IR(Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize);
/** @} */

/** @name Square root
 *  @{ */
/** Square root: dst = sqrt(src); in place, srcDst = sqrt(srcDst).
 *
 *  The exact root, times 2^-scaleFactor, is rounded to the nearest integer, ties to even, and saturated to the type, so
 *  that any scale factor is valid; negative values give 0.
 *
 *  AC4 keeps the alpha of the destination. Steps are not checked.
 *
 *  @param pSrc,srcStep source image
 *  @param pDst,dstStep destination image; it may be the source
 *  @param pSrcDst,srcDstStep in place: the image
 *  @param roiSize size of the region in pixels
 *  @param scaleFactor the result is multiplied by 2^-scaleFactor; any value
 *  @return qvpStatusNullPointer: an image is null. qvpStatusSize: a side of `roiSize` is below 1. qvpStatusNoError
 *          otherwise.
 */
QvpStatus qvpiSqrt_8u_C1RSfs(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiSqrt_8u_C3RSfs(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiSqrt_8u_AC4RSfs(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiSqrt_16u_C1RSfs(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiSqrt_16u_C3RSfs(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiSqrt_16u_AC4RSfs(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiSqrt_16s_C1RSfs(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiSqrt_16s_C3RSfs(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiSqrt_16s_AC4RSfs(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiSqrt_8u_C1IRSfs(Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiSqrt_8u_C3IRSfs(Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiSqrt_8u_AC4IRSfs(Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiSqrt_16u_C1IRSfs(Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiSqrt_16u_C3IRSfs(Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiSqrt_16u_AC4IRSfs(Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiSqrt_16s_C1IRSfs(Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiSqrt_16s_C3IRSfs(Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiSqrt_16s_AC4IRSfs(Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
/** @} */

/** @name Square root of floats
 *  @{ */
/** Square root: dst = sqrt(src); in place, srcDst = sqrt(srcDst).
 *
 *  The IEEE square root, NaN for negative values.
 *
 *  AC4 keeps the alpha of the destination. Steps are not checked.
 *
 *  @param pSrc,srcStep source image
 *  @param pDst,dstStep destination image; it may be the source
 *  @param pSrcDst,srcDstStep in place: the image
 *  @param roiSize size of the region in pixels
 *  @return qvpStatusNullPointer: an image is null. qvpStatusSize: a side of `roiSize` is below 1. qvpStatusNoError
 *          otherwise.
 */
QvpStatus qvpiSqrt_32f_C1R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiSqrt_32f_C3R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiSqrt_32f_AC4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiSqrt_32f_C4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiSqrt_32f_C1IR(Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiSqrt_32f_C3IR(Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiSqrt_32f_AC4IR(Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiSqrt_32f_C4IR(Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize);
/** @} */

/** @name Natural logarithm
 *  @{ */
/** Natural logarithm: dst = ln(src); in place, srcDst = ln(srcDst).
 *
 *  The logarithm, times 2^-scaleFactor, is rounded to the nearest integer and saturated to the type, so that any scale
 *  factor is valid; 0 and negative values give the smallest value of the type. No build takes it from the mathematics
 *  library, so that all give the same bits.
 *
 *  Steps are not checked.
 *
 *  @param pSrc,srcStep source image
 *  @param pDst,dstStep destination image; it may be the source
 *  @param pSrcDst,srcDstStep in place: the image
 *  @param roiSize size of the region in pixels
 *  @param scaleFactor the result is multiplied by 2^-scaleFactor; any value
 *  @return qvpStatusNullPointer: an image is null. qvpStatusSize: a side of `roiSize` is below 1. qvpStatusNoError
 *          otherwise.
 */
QvpStatus qvpiLn_8u_C1RSfs(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiLn_8u_C3RSfs(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiLn_16u_C1RSfs(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiLn_16u_C3RSfs(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiLn_16s_C1RSfs(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiLn_16s_C3RSfs(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiLn_8u_C1IRSfs(Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiLn_8u_C3IRSfs(Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiLn_16u_C1IRSfs(Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiLn_16u_C3IRSfs(Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiLn_16s_C1IRSfs(Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiLn_16s_C3IRSfs(Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
/** @} */

/** @name Natural logarithm of floats
 *  @{ */
/** Natural logarithm: dst = ln(src); in place, srcDst = ln(srcDst).
 *
 *  Within 1 unit in the last place; 0 gives minus infinity, negative values NaN. No build takes it from the mathematics
 *  library, so that all give the same bits.
 *
 *  Steps are not checked.
 *
 *  @param pSrc,srcStep source image
 *  @param pDst,dstStep destination image; it may be the source
 *  @param pSrcDst,srcDstStep in place: the image
 *  @param roiSize size of the region in pixels
 *  @return qvpStatusNullPointer: an image is null. qvpStatusSize: a side of `roiSize` is below 1. qvpStatusNoError
 *          otherwise.
 */
QvpStatus qvpiLn_32f_C1R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiLn_32f_C3R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiLn_32f_C1IR(Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiLn_32f_C3IR(Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize);
/** @} */

/** @name Exponent
 *  @{ */
/** Exponent: dst = e^src; in place, srcDst = e^srcDst.
 *
 *  The power, times 2^-scaleFactor, is rounded to the nearest integer and saturated to the type. Any scale factor is
 *  valid, and large powers may be scaled back into the range. No build takes it from the mathematics library, so that
 *  all give the same bits.
 *
 *  Steps are not checked.
 *
 *  @param pSrc,srcStep source image
 *  @param pDst,dstStep destination image; it may be the source
 *  @param pSrcDst,srcDstStep in place: the image
 *  @param roiSize size of the region in pixels
 *  @param scaleFactor the result is multiplied by 2^-scaleFactor; any value
 *  @return qvpStatusNullPointer: an image is null. qvpStatusSize: a side of `roiSize` is below 1. qvpStatusNoError
 *          otherwise.
 */
QvpStatus qvpiExp_8u_C1RSfs(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiExp_8u_C3RSfs(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiExp_16u_C1RSfs(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiExp_16u_C3RSfs(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiExp_16s_C1RSfs(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiExp_16s_C3RSfs(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiExp_8u_C1IRSfs(Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiExp_8u_C3IRSfs(Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiExp_16u_C1IRSfs(Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiExp_16u_C3IRSfs(Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiExp_16s_C1IRSfs(Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
QvpStatus qvpiExp_16s_C3IRSfs(Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor);
/** @} */

/** @name Exponent of floats
 *  @{ */
/** Exponent: dst = e^src; in place, srcDst = e^srcDst.
 *
 *  The error is below 1.03 units in the last place, as tried for every float; the result is infinite above the range of
 *  floats and 0 below it. No build takes it from the mathematics library, so that all give the same bits.
 *
 *  Steps are not checked.
 *
 *  @param pSrc,srcStep source image
 *  @param pDst,dstStep destination image; it may be the source
 *  @param pSrcDst,srcDstStep in place: the image
 *  @param roiSize size of the region in pixels
 *  @return qvpStatusNullPointer: an image is null. qvpStatusSize: a side of `roiSize` is below 1. qvpStatusNoError
 *          otherwise.
 */
QvpStatus qvpiExp_32f_C1R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiExp_32f_C3R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiExp_32f_C1IR(Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiExp_32f_C3IR(Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize);
/** @} */

/** @name Conversion to a wider type
 *  @{ */
/** Converts to a type that holds every value of the source's, or to floats: dst = src.
 *
 *  32-bit integers as floats are rounded to the nearest, ties to even. AC4 keeps the alpha of the destination. Steps
 *  are not checked.
 *
 *  @param pSrc,srcStep source image
 *  @param pDst,dstStep destination image
 *  @param roiSize region in pixels
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: an image is null
 *  - qvpStatusSize: a side of the region is below 1
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiConvert_8u16u_C1R(const Qvp8u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiConvert_8u16u_C3R(const Qvp8u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiConvert_8u16u_C4R(const Qvp8u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiConvert_8u16u_AC4R(const Qvp8u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiConvert_8u16s_C1R(const Qvp8u* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiConvert_8u16s_C3R(const Qvp8u* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiConvert_8u16s_C4R(const Qvp8u* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiConvert_8u16s_AC4R(const Qvp8u* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiConvert_8u32s_C1R(const Qvp8u* pSrc, int srcStep, Qvp32s* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiConvert_8u32s_C3R(const Qvp8u* pSrc, int srcStep, Qvp32s* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiConvert_8u32s_C4R(const Qvp8u* pSrc, int srcStep, Qvp32s* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiConvert_8u32s_AC4R(const Qvp8u* pSrc, int srcStep, Qvp32s* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiConvert_8u32f_C1R(const Qvp8u* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiConvert_8u32f_C3R(const Qvp8u* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiConvert_8u32f_C4R(const Qvp8u* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiConvert_8u32f_AC4R(const Qvp8u* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiConvert_8s32s_C1R(const Qvp8s* pSrc, int srcStep, Qvp32s* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiConvert_8s32s_C3R(const Qvp8s* pSrc, int srcStep, Qvp32s* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiConvert_8s32s_C4R(const Qvp8s* pSrc, int srcStep, Qvp32s* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiConvert_8s32s_AC4R(const Qvp8s* pSrc, int srcStep, Qvp32s* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiConvert_8s32f_C1R(const Qvp8s* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiConvert_8s32f_C3R(const Qvp8s* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiConvert_8s32f_C4R(const Qvp8s* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiConvert_8s32f_AC4R(const Qvp8s* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiConvert_16u32s_C1R(const Qvp16u* pSrc, int srcStep, Qvp32s* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiConvert_16u32s_C3R(const Qvp16u* pSrc, int srcStep, Qvp32s* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiConvert_16u32s_C4R(const Qvp16u* pSrc, int srcStep, Qvp32s* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiConvert_16u32s_AC4R(const Qvp16u* pSrc, int srcStep, Qvp32s* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiConvert_16u32f_C1R(const Qvp16u* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiConvert_16u32f_C3R(const Qvp16u* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiConvert_16u32f_C4R(const Qvp16u* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiConvert_16u32f_AC4R(const Qvp16u* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiConvert_16s32s_C1R(const Qvp16s* pSrc, int srcStep, Qvp32s* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiConvert_16s32s_C3R(const Qvp16s* pSrc, int srcStep, Qvp32s* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiConvert_16s32s_C4R(const Qvp16s* pSrc, int srcStep, Qvp32s* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiConvert_16s32s_AC4R(const Qvp16s* pSrc, int srcStep, Qvp32s* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiConvert_16s32f_C1R(const Qvp16s* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiConvert_16s32f_C3R(const Qvp16s* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiConvert_16s32f_C4R(const Qvp16s* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiConvert_16s32f_AC4R(const Qvp16s* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiConvert_16u32u_C1R(const Qvp16u* pSrc, int srcStep, Qvp32u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiConvert_32s32f_C1R(const Qvp32s* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiConvert_32u32f_C1R(const Qvp32u* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiConvert_8s16s_C1R(const Qvp8s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiConvert_8s64f_C1R(const Qvp8s* pSrc, int srcStep, Qvp64f* pDst, int dstStep, QvpiSize roiSize);
/** @} */

/** @name Conversion to a narrower integer
 *  @{ */
/** Converts to a narrower type, saturated: dst = src within the type, else the nearest value of it.
 *
 *  AC4 keeps the alpha of the destination. Steps are not checked.
 *
 *  @param pSrc,srcStep source image
 *  @param pDst,dstStep destination image
 *  @param roiSize region in pixels
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: an image is null
 *  - qvpStatusSize: a side of the region is below 1
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiConvert_16u8u_C1R(const Qvp16u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiConvert_16u8u_C3R(const Qvp16u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiConvert_16u8u_C4R(const Qvp16u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiConvert_16u8u_AC4R(const Qvp16u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiConvert_16s8u_C1R(const Qvp16s* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiConvert_16s8u_C3R(const Qvp16s* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiConvert_16s8u_C4R(const Qvp16s* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiConvert_16s8u_AC4R(const Qvp16s* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiConvert_32s8u_C1R(const Qvp32s* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiConvert_32s8u_C3R(const Qvp32s* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiConvert_32s8u_C4R(const Qvp32s* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiConvert_32s8u_AC4R(const Qvp32s* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiConvert_32s8s_C1R(const Qvp32s* pSrc, int srcStep, Qvp8s* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiConvert_32s8s_C3R(const Qvp32s* pSrc, int srcStep, Qvp8s* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiConvert_32s8s_C4R(const Qvp32s* pSrc, int srcStep, Qvp8s* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiConvert_32s8s_AC4R(const Qvp32s* pSrc, int srcStep, Qvp8s* pDst, int dstStep, QvpiSize roiSize);
/** @} */

/** @name Conversion to unsigned numbers
 *  @{ */
/** Converts signed numbers to unsigned ones: dst = max(src, 0). Steps are not checked. Source and destination of one
 *  width may be the same image.
 *
 *  @param pSrc,srcStep source image
 *  @param pDst,dstStep destination image
 *  @param roiSize region in pixels
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: an image is null
 *  - qvpStatusSize: a side of the region is below 1
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiConvert_8s8u_C1Rs(const Qvp8s* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiConvert_8s16u_C1Rs(const Qvp8s* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiConvert_8s32u_C1Rs(const Qvp8s* pSrc, int srcStep, Qvp32u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiConvert_16s16u_C1Rs(const Qvp16s* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiConvert_16s32u_C1Rs(const Qvp16s* pSrc, int srcStep, Qvp32u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiConvert_32s32u_C1Rs(const Qvp32s* pSrc, int srcStep, Qvp32u* pDst, int dstStep, QvpiSize roiSize);
/** @} */

/** @name Conversion of floats to integers
 *  @{ */
/** Rounds floats to integers, saturated: dst = round(src).
 *
 *  The modes round exactly: qvpRoundZero toward zero, qvpRoundNear to the nearest with ties to even, and
 *  qvpRoundFinancial, which any other value means too, to the nearest with ties away from zero. Infinities give the
 *  limits of the type, NaN its least value. AC4 keeps the alpha of the destination. Steps are not checked.
 *
 *  @param pSrc,srcStep source image
 *  @param pDst,dstStep destination image
 *  @param roiSize region in pixels
 *  @param roundMode how to round
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: an image is null
 *  - qvpStatusSize: a side of the region is below 1
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiConvert_32f8u_C1R(const Qvp32f* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpRoundMode roundMode);
QvpStatus qvpiConvert_32f8u_C3R(const Qvp32f* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpRoundMode roundMode);
QvpStatus qvpiConvert_32f8u_C4R(const Qvp32f* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpRoundMode roundMode);
QvpStatus qvpiConvert_32f8u_AC4R(const Qvp32f* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpRoundMode roundMode);
QvpStatus qvpiConvert_32f8s_C1R(const Qvp32f* pSrc, int srcStep, Qvp8s* pDst, int dstStep, QvpiSize roiSize, QvpRoundMode roundMode);
QvpStatus qvpiConvert_32f8s_C3R(const Qvp32f* pSrc, int srcStep, Qvp8s* pDst, int dstStep, QvpiSize roiSize, QvpRoundMode roundMode);
QvpStatus qvpiConvert_32f8s_C4R(const Qvp32f* pSrc, int srcStep, Qvp8s* pDst, int dstStep, QvpiSize roiSize, QvpRoundMode roundMode);
QvpStatus qvpiConvert_32f8s_AC4R(const Qvp32f* pSrc, int srcStep, Qvp8s* pDst, int dstStep, QvpiSize roiSize, QvpRoundMode roundMode);
QvpStatus qvpiConvert_32f16u_C1R(const Qvp32f* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpRoundMode roundMode);
QvpStatus qvpiConvert_32f16u_C3R(const Qvp32f* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpRoundMode roundMode);
QvpStatus qvpiConvert_32f16u_C4R(const Qvp32f* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpRoundMode roundMode);
QvpStatus qvpiConvert_32f16u_AC4R(const Qvp32f* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpRoundMode roundMode);
QvpStatus qvpiConvert_32f16s_C1R(const Qvp32f* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpRoundMode roundMode);
QvpStatus qvpiConvert_32f16s_C3R(const Qvp32f* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpRoundMode roundMode);
QvpStatus qvpiConvert_32f16s_C4R(const Qvp32f* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpRoundMode roundMode);
QvpStatus qvpiConvert_32f16s_AC4R(const Qvp32f* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpRoundMode roundMode);
/** @} */

/** @name Conversion of integers by a scale factor
 *  @{ */
/** Divides by a power of two and converts: dst = round(src * 2^-scaleFactor), saturated.
 *
 *  Exact in every mode: qvpRoundZero rounds toward zero, qvpRoundNear to the nearest with ties to even,
 *  qvpRoundFinancial to the nearest with ties away from zero. Any scale factor is valid. Steps are not checked.
 *
 *  @param pSrc,srcStep source image
 *  @param pDst,dstStep destination image
 *  @param roiSize region in pixels
 *  @param roundMode how to round
 *  @param scaleFactor the power of two
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: an image is null
 *  - qvpStatusSize: a side of the region is below 1
 *  - qvpStatusRoundMode: an unknown rounding mode
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiConvert_8u8s_C1RSfs(const Qvp8u* pSrc, int srcStep, Qvp8s* pDst, int dstStep, QvpiSize roiSize, QvpRoundMode roundMode, int scaleFactor);
QvpStatus qvpiConvert_16u8s_C1RSfs(const Qvp16u* pSrc, int srcStep, Qvp8s* pDst, int dstStep, QvpiSize roiSize, QvpRoundMode roundMode, int scaleFactor);
QvpStatus qvpiConvert_16s8s_C1RSfs(const Qvp16s* pSrc, int srcStep, Qvp8s* pDst, int dstStep, QvpiSize roiSize, QvpRoundMode roundMode, int scaleFactor);
QvpStatus qvpiConvert_16u16s_C1RSfs(const Qvp16u* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpRoundMode roundMode, int scaleFactor);
QvpStatus qvpiConvert_32s16s_C1RSfs(const Qvp32s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpRoundMode roundMode, int scaleFactor);
QvpStatus qvpiConvert_32s16u_C1RSfs(const Qvp32s* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpRoundMode roundMode, int scaleFactor);
QvpStatus qvpiConvert_32u8u_C1RSfs(const Qvp32u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpRoundMode roundMode, int scaleFactor);
QvpStatus qvpiConvert_32u8s_C1RSfs(const Qvp32u* pSrc, int srcStep, Qvp8s* pDst, int dstStep, QvpiSize roiSize, QvpRoundMode roundMode, int scaleFactor);
QvpStatus qvpiConvert_32u16u_C1RSfs(const Qvp32u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpRoundMode roundMode, int scaleFactor);
QvpStatus qvpiConvert_32u16s_C1RSfs(const Qvp32u* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpRoundMode roundMode, int scaleFactor);
QvpStatus qvpiConvert_32u32s_C1RSfs(const Qvp32u* pSrc, int srcStep, Qvp32s* pDst, int dstStep, QvpiSize roiSize, QvpRoundMode roundMode, int scaleFactor);
/** @} */

/** @name Conversion of floats by a scale factor
 *  @{ */
/** Divides by a power of two and converts: dst = round(src * 2^-scaleFactor), saturated. In place, the image holds
 *  floats before and unsigned integers afterwards.
 *
 *  The modes round exactly: qvpRoundZero toward zero, qvpRoundNear to the nearest with ties to even, and
 *  qvpRoundFinancial, which any other value means too, to the nearest with ties away from zero. Infinities give the
 *  limits of the type, NaN its least value. Any scale factor is valid. Steps are not checked.
 *
 *  @param pSrc,srcStep source image
 *  @param pDst,dstStep destination image
 *  @param pSrcDst,srcDstStep in place: the image
 *  @param roiSize region in pixels
 *  @param roundMode how to round
 *  @param scaleFactor the power of two
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: an image is null
 *  - qvpStatusSize: a side of the region is below 1
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiConvert_32f8u_C1RSfs(const Qvp32f* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpRoundMode roundMode, int scaleFactor);
QvpStatus qvpiConvert_32f8s_C1RSfs(const Qvp32f* pSrc, int srcStep, Qvp8s* pDst, int dstStep, QvpiSize roiSize, QvpRoundMode roundMode, int scaleFactor);
QvpStatus qvpiConvert_32f16u_C1RSfs(const Qvp32f* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpRoundMode roundMode, int scaleFactor);
QvpStatus qvpiConvert_32f16s_C1RSfs(const Qvp32f* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpRoundMode roundMode, int scaleFactor);
QvpStatus qvpiConvert_32f32s_C1RSfs(const Qvp32f* pSrc, int srcStep, Qvp32s* pDst, int dstStep, QvpiSize roiSize, QvpRoundMode roundMode, int scaleFactor);
QvpStatus qvpiConvert_32f32u_C1RSfs(const Qvp32f* pSrc, int srcStep, Qvp32u* pDst, int dstStep, QvpiSize roiSize, QvpRoundMode roundMode, int scaleFactor);
QvpStatus qvpiConvert_64f8u_C1RSfs(const Qvp64f* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpRoundMode roundMode, int scaleFactor);
QvpStatus qvpiConvert_64f8s_C1RSfs(const Qvp64f* pSrc, int srcStep, Qvp8s* pDst, int dstStep, QvpiSize roiSize, QvpRoundMode roundMode, int scaleFactor);
QvpStatus qvpiConvert_64f16u_C1RSfs(const Qvp64f* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpRoundMode roundMode, int scaleFactor);
QvpStatus qvpiConvert_64f16s_C1RSfs(const Qvp64f* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpRoundMode roundMode, int scaleFactor);
QvpStatus qvpiConvert_32f32u_C1IRSfs(Qvp32u* pSrcDst, int srcDstStep, QvpiSize roiSize, QvpRoundMode roundMode, int scaleFactor);
/** @} */

/** @name Bits to grey values
 *  @{ */
/** Gives each pixel of an image of bits one of two values: dst = bit ? hiVal : loVal.
 *
 *  Eight pixels lie in a byte, the leftmost in the highest bit. Steps are not checked.
 *
 *  @param pSrc,srcStep image of bits; the byte that holds the first pixel of a row
 *  @param srcBitOffset place of a row's first pixel in its byte, 0 (highest bit) to 7
 *  @param pDst,dstStep destination image
 *  @param roiSize region in pixels
 *  @param loVal,hiVal values for 0 and 1
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: an image is null
 *  - qvpStatusSize: a side of the region is below 1
 *  - qvpStatusOutOfRange: the bit offset is not 0 to 7
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiBinToGray_1u8u_C1R(const Qvp8u* pSrc, int srcStep, int srcBitOffset, Qvp8u* pDst, int dstStep, QvpiSize roiSize, Qvp8u loVal, Qvp8u hiVal);
QvpStatus qvpiBinToGray_1u16u_C1R(const Qvp8u* pSrc, int srcStep, int srcBitOffset, Qvp16u* pDst, int dstStep, QvpiSize roiSize, Qvp16u loVal, Qvp16u hiVal);
QvpStatus qvpiBinToGray_1u16s_C1R(const Qvp8u* pSrc, int srcStep, int srcBitOffset, Qvp16s* pDst, int dstStep, QvpiSize roiSize, Qvp16s loVal, Qvp16s hiVal);
QvpStatus qvpiBinToGray_1u32f_C1R(const Qvp8u* pSrc, int srcStep, int srcBitOffset, Qvp32f* pDst, int dstStep, QvpiSize roiSize, Qvp32f loVal, Qvp32f hiVal);
/** @} */

/** @name Grey values to bits
 *  @{ */
/** Gives each pixel a bit: src > threshold ? 1 : 0.
 *
 *  Eight pixels lie in a byte, the leftmost in the highest bit; bits of the first and the last byte of a row that
 *  belong to no pixel stay, and are rewritten: threads must not write bits of one byte at once. What is not a number
 *  gives 0. Steps are not checked.
 *
 *  @param pSrc,srcStep source image
 *  @param pDst,dstStep image of bits; the byte that holds the first pixel of a row
 *  @param dstBitOffset place of a row's first pixel in its byte, 0 (highest bit) to 7
 *  @param roiSize region in pixels
 *  @param threshold values above it give 1
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: an image is null
 *  - qvpStatusSize: a side of the region is below 1
 *  - qvpStatusOutOfRange: the bit offset is not 0 to 7
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiGrayToBin_8u1u_C1R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, int dstBitOffset, QvpiSize roiSize, Qvp8u threshold);
QvpStatus qvpiGrayToBin_16u1u_C1R(const Qvp16u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, int dstBitOffset, QvpiSize roiSize, Qvp16u threshold);
QvpStatus qvpiGrayToBin_16s1u_C1R(const Qvp16s* pSrc, int srcStep, Qvp8u* pDst, int dstStep, int dstBitOffset, QvpiSize roiSize, Qvp16s threshold);
QvpStatus qvpiGrayToBin_32f1u_C1R(const Qvp32f* pSrc, int srcStep, Qvp8u* pDst, int dstStep, int dstBitOffset, QvpiSize roiSize, Qvp32f threshold);
/** @} */

/** @name Scale between integer types
 *  @{ */
/** Maps the full range of one integer type linearly to that of another, rounded to the nearest.
 *
 *  From 8 bits: 257 * v for 16u, 257 * v - 32768 for 16s, 16843009 * v - 2^31 for 32s; to 8 bits the inverse, v / 257,
 *  (v + 32768) / 257 or (v + 2^31) / 16843009, in which no ties occur. To a wider type and back changes nothing. AC4
 *  keeps the alpha of the destination. Steps are not checked.
 *
 *  @param pSrc,srcStep source image
 *  @param pDst,dstStep destination image
 *  @param roiSize region in pixels
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: an image is null
 *  - qvpStatusSize: a side of the region is below 1
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiScale_8u16u_C1R(const Qvp8u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiScale_8u16u_C3R(const Qvp8u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiScale_8u16u_C4R(const Qvp8u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiScale_8u16u_AC4R(const Qvp8u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiScale_8u16s_C1R(const Qvp8u* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiScale_8u16s_C3R(const Qvp8u* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiScale_8u16s_C4R(const Qvp8u* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiScale_8u16s_AC4R(const Qvp8u* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiScale_8u32s_C1R(const Qvp8u* pSrc, int srcStep, Qvp32s* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiScale_8u32s_C3R(const Qvp8u* pSrc, int srcStep, Qvp32s* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiScale_8u32s_C4R(const Qvp8u* pSrc, int srcStep, Qvp32s* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiScale_8u32s_AC4R(const Qvp8u* pSrc, int srcStep, Qvp32s* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiScale_16u8u_C1R(const Qvp16u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiScale_16u8u_C3R(const Qvp16u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiScale_16u8u_C4R(const Qvp16u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiScale_16u8u_AC4R(const Qvp16u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiScale_16s8u_C1R(const Qvp16s* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiScale_16s8u_C3R(const Qvp16s* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiScale_16s8u_C4R(const Qvp16s* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiScale_16s8u_AC4R(const Qvp16s* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiScale_32s8u_C1R(const Qvp32s* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiScale_32s8u_C3R(const Qvp32s* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiScale_32s8u_C4R(const Qvp32s* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiScale_32s8u_AC4R(const Qvp32s* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize);
/** @} */

/** @name Scale to and from a range of floats
 *  @{ */
/** Maps 0 to 255 linearly to a range of floats, or the range to 0 to 255.
 *
 *  8u32f: vMin + v * ((vMax - vMin) / 255), in double precision and then rounded to the nearest float; 255 gives vMax
 *  exactly. 32f8u: (v - vMin) * 255 / (vMax - vMin), each operation in double precision, then rounded to the nearest
 *  integer, ties to even, and saturated; NaN gives 0. AC4 keeps the alpha of the destination. Steps are not checked.
 *
 *  @param pSrc,srcStep source image
 *  @param pDst,dstStep destination image
 *  @param roiSize region in pixels
 *  @param vMin,vMax the range; vMax above vMin
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: an image is null
 *  - qvpStatusSize: a side of the region is below 1
 *  - qvpStatusScaleRange: not vMin < vMax, or one of them is infinite or NaN
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiScale_8u32f_C1R(const Qvp8u* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, Qvp32f vMin, Qvp32f vMax);
QvpStatus qvpiScale_8u32f_C3R(const Qvp8u* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, Qvp32f vMin, Qvp32f vMax);
QvpStatus qvpiScale_8u32f_C4R(const Qvp8u* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, Qvp32f vMin, Qvp32f vMax);
QvpStatus qvpiScale_8u32f_AC4R(const Qvp8u* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, Qvp32f vMin, Qvp32f vMax);
QvpStatus qvpiScale_32f8u_C1R(const Qvp32f* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, Qvp32f vMin, Qvp32f vMax);
QvpStatus qvpiScale_32f8u_C3R(const Qvp32f* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, Qvp32f vMin, Qvp32f vMax);
QvpStatus qvpiScale_32f8u_C4R(const Qvp32f* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, Qvp32f vMin, Qvp32f vMax);
QvpStatus qvpiScale_32f8u_AC4R(const Qvp32f* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, Qvp32f vMin, Qvp32f vMax);
/** @} */

/** @name Scale by a constant
 *  @{ */
/** Multiplies by a number and adds one: dst = src * mVal + aVal; in place, srcDst = srcDst * mVal + aVal.
 *
 *  Integer results are rounded to the nearest, ties to even, and saturated; NaN gives the least value of the type. With
 *  the hint qvpAlgHintAccurate, and wherever 32s or 64f take part, the product and the sum are each rounded to double
 *  precision. Otherwise `mVal` and `aVal` are rounded to single precision first, and the product and the sum
 *  afterwards: a factor like 0.1 is then off by up to 2^-24 of itself, and pixels near the middle between two integers
 *  may become the other one. Source and destination of one type may be the same image.
 *
 *  @param pSrc,srcStep source image
 *  @param mVal,aVal factor and addend
 *  @param pDst,dstStep destination image
 *  @param pSrcDst,srcDstStep in place: the image
 *  @param roiSize region in pixels
 *  @param hint speed or accuracy
 *  @return, in the order of the checks; where both types are the same, and |mVal - 1| and |aVal| are below 2^-52, the
 *          image is copied, in place left as it is, and steps are not checked:
 *  - qvpStatusNullPointer: an image is null
 *  - qvpStatusSize: a side of the region is below 1
 *  - qvpStatusStep: a step is below 1
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiScaleC_8u_C1R(const Qvp8u* pSrc, int srcStep, Qvp64f mVal, Qvp64f aVal, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpHintAlgorithm hint);
QvpStatus qvpiScaleC_8u8s_C1R(const Qvp8u* pSrc, int srcStep, Qvp64f mVal, Qvp64f aVal, Qvp8s* pDst, int dstStep, QvpiSize roiSize, QvpHintAlgorithm hint);
QvpStatus qvpiScaleC_8u16u_C1R(const Qvp8u* pSrc, int srcStep, Qvp64f mVal, Qvp64f aVal, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpHintAlgorithm hint);
QvpStatus qvpiScaleC_8u16s_C1R(const Qvp8u* pSrc, int srcStep, Qvp64f mVal, Qvp64f aVal, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpHintAlgorithm hint);
QvpStatus qvpiScaleC_8u32s_C1R(const Qvp8u* pSrc, int srcStep, Qvp64f mVal, Qvp64f aVal, Qvp32s* pDst, int dstStep, QvpiSize roiSize, QvpHintAlgorithm hint);
QvpStatus qvpiScaleC_8u32f_C1R(const Qvp8u* pSrc, int srcStep, Qvp64f mVal, Qvp64f aVal, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpHintAlgorithm hint);
QvpStatus qvpiScaleC_8u64f_C1R(const Qvp8u* pSrc, int srcStep, Qvp64f mVal, Qvp64f aVal, Qvp64f* pDst, int dstStep, QvpiSize roiSize, QvpHintAlgorithm hint);
QvpStatus qvpiScaleC_8s8u_C1R(const Qvp8s* pSrc, int srcStep, Qvp64f mVal, Qvp64f aVal, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpHintAlgorithm hint);
QvpStatus qvpiScaleC_8s_C1R(const Qvp8s* pSrc, int srcStep, Qvp64f mVal, Qvp64f aVal, Qvp8s* pDst, int dstStep, QvpiSize roiSize, QvpHintAlgorithm hint);
QvpStatus qvpiScaleC_8s16u_C1R(const Qvp8s* pSrc, int srcStep, Qvp64f mVal, Qvp64f aVal, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpHintAlgorithm hint);
QvpStatus qvpiScaleC_8s16s_C1R(const Qvp8s* pSrc, int srcStep, Qvp64f mVal, Qvp64f aVal, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpHintAlgorithm hint);
QvpStatus qvpiScaleC_8s32s_C1R(const Qvp8s* pSrc, int srcStep, Qvp64f mVal, Qvp64f aVal, Qvp32s* pDst, int dstStep, QvpiSize roiSize, QvpHintAlgorithm hint);
QvpStatus qvpiScaleC_8s32f_C1R(const Qvp8s* pSrc, int srcStep, Qvp64f mVal, Qvp64f aVal, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpHintAlgorithm hint);
QvpStatus qvpiScaleC_8s64f_C1R(const Qvp8s* pSrc, int srcStep, Qvp64f mVal, Qvp64f aVal, Qvp64f* pDst, int dstStep, QvpiSize roiSize, QvpHintAlgorithm hint);
QvpStatus qvpiScaleC_16u8u_C1R(const Qvp16u* pSrc, int srcStep, Qvp64f mVal, Qvp64f aVal, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpHintAlgorithm hint);
QvpStatus qvpiScaleC_16u8s_C1R(const Qvp16u* pSrc, int srcStep, Qvp64f mVal, Qvp64f aVal, Qvp8s* pDst, int dstStep, QvpiSize roiSize, QvpHintAlgorithm hint);
QvpStatus qvpiScaleC_16u_C1R(const Qvp16u* pSrc, int srcStep, Qvp64f mVal, Qvp64f aVal, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpHintAlgorithm hint);
QvpStatus qvpiScaleC_16u16s_C1R(const Qvp16u* pSrc, int srcStep, Qvp64f mVal, Qvp64f aVal, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpHintAlgorithm hint);
QvpStatus qvpiScaleC_16u32s_C1R(const Qvp16u* pSrc, int srcStep, Qvp64f mVal, Qvp64f aVal, Qvp32s* pDst, int dstStep, QvpiSize roiSize, QvpHintAlgorithm hint);
QvpStatus qvpiScaleC_16u32f_C1R(const Qvp16u* pSrc, int srcStep, Qvp64f mVal, Qvp64f aVal, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpHintAlgorithm hint);
QvpStatus qvpiScaleC_16u64f_C1R(const Qvp16u* pSrc, int srcStep, Qvp64f mVal, Qvp64f aVal, Qvp64f* pDst, int dstStep, QvpiSize roiSize, QvpHintAlgorithm hint);
QvpStatus qvpiScaleC_16s8u_C1R(const Qvp16s* pSrc, int srcStep, Qvp64f mVal, Qvp64f aVal, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpHintAlgorithm hint);
QvpStatus qvpiScaleC_16s8s_C1R(const Qvp16s* pSrc, int srcStep, Qvp64f mVal, Qvp64f aVal, Qvp8s* pDst, int dstStep, QvpiSize roiSize, QvpHintAlgorithm hint);
QvpStatus qvpiScaleC_16s16u_C1R(const Qvp16s* pSrc, int srcStep, Qvp64f mVal, Qvp64f aVal, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpHintAlgorithm hint);
QvpStatus qvpiScaleC_16s_C1R(const Qvp16s* pSrc, int srcStep, Qvp64f mVal, Qvp64f aVal, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpHintAlgorithm hint);
QvpStatus qvpiScaleC_16s32s_C1R(const Qvp16s* pSrc, int srcStep, Qvp64f mVal, Qvp64f aVal, Qvp32s* pDst, int dstStep, QvpiSize roiSize, QvpHintAlgorithm hint);
QvpStatus qvpiScaleC_16s32f_C1R(const Qvp16s* pSrc, int srcStep, Qvp64f mVal, Qvp64f aVal, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpHintAlgorithm hint);
QvpStatus qvpiScaleC_16s64f_C1R(const Qvp16s* pSrc, int srcStep, Qvp64f mVal, Qvp64f aVal, Qvp64f* pDst, int dstStep, QvpiSize roiSize, QvpHintAlgorithm hint);
QvpStatus qvpiScaleC_32s8u_C1R(const Qvp32s* pSrc, int srcStep, Qvp64f mVal, Qvp64f aVal, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpHintAlgorithm hint);
QvpStatus qvpiScaleC_32s8s_C1R(const Qvp32s* pSrc, int srcStep, Qvp64f mVal, Qvp64f aVal, Qvp8s* pDst, int dstStep, QvpiSize roiSize, QvpHintAlgorithm hint);
QvpStatus qvpiScaleC_32s16u_C1R(const Qvp32s* pSrc, int srcStep, Qvp64f mVal, Qvp64f aVal, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpHintAlgorithm hint);
QvpStatus qvpiScaleC_32s16s_C1R(const Qvp32s* pSrc, int srcStep, Qvp64f mVal, Qvp64f aVal, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpHintAlgorithm hint);
QvpStatus qvpiScaleC_32s_C1R(const Qvp32s* pSrc, int srcStep, Qvp64f mVal, Qvp64f aVal, Qvp32s* pDst, int dstStep, QvpiSize roiSize, QvpHintAlgorithm hint);
QvpStatus qvpiScaleC_32s32f_C1R(const Qvp32s* pSrc, int srcStep, Qvp64f mVal, Qvp64f aVal, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpHintAlgorithm hint);
QvpStatus qvpiScaleC_32s64f_C1R(const Qvp32s* pSrc, int srcStep, Qvp64f mVal, Qvp64f aVal, Qvp64f* pDst, int dstStep, QvpiSize roiSize, QvpHintAlgorithm hint);
QvpStatus qvpiScaleC_32f8u_C1R(const Qvp32f* pSrc, int srcStep, Qvp64f mVal, Qvp64f aVal, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpHintAlgorithm hint);
QvpStatus qvpiScaleC_32f8s_C1R(const Qvp32f* pSrc, int srcStep, Qvp64f mVal, Qvp64f aVal, Qvp8s* pDst, int dstStep, QvpiSize roiSize, QvpHintAlgorithm hint);
QvpStatus qvpiScaleC_32f16u_C1R(const Qvp32f* pSrc, int srcStep, Qvp64f mVal, Qvp64f aVal, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpHintAlgorithm hint);
QvpStatus qvpiScaleC_32f16s_C1R(const Qvp32f* pSrc, int srcStep, Qvp64f mVal, Qvp64f aVal, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpHintAlgorithm hint);
QvpStatus qvpiScaleC_32f32s_C1R(const Qvp32f* pSrc, int srcStep, Qvp64f mVal, Qvp64f aVal, Qvp32s* pDst, int dstStep, QvpiSize roiSize, QvpHintAlgorithm hint);
QvpStatus qvpiScaleC_32f_C1R(const Qvp32f* pSrc, int srcStep, Qvp64f mVal, Qvp64f aVal, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpHintAlgorithm hint);
QvpStatus qvpiScaleC_32f64f_C1R(const Qvp32f* pSrc, int srcStep, Qvp64f mVal, Qvp64f aVal, Qvp64f* pDst, int dstStep, QvpiSize roiSize, QvpHintAlgorithm hint);
QvpStatus qvpiScaleC_64f8u_C1R(const Qvp64f* pSrc, int srcStep, Qvp64f mVal, Qvp64f aVal, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpHintAlgorithm hint);
QvpStatus qvpiScaleC_64f8s_C1R(const Qvp64f* pSrc, int srcStep, Qvp64f mVal, Qvp64f aVal, Qvp8s* pDst, int dstStep, QvpiSize roiSize, QvpHintAlgorithm hint);
QvpStatus qvpiScaleC_64f16u_C1R(const Qvp64f* pSrc, int srcStep, Qvp64f mVal, Qvp64f aVal, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpHintAlgorithm hint);
QvpStatus qvpiScaleC_64f16s_C1R(const Qvp64f* pSrc, int srcStep, Qvp64f mVal, Qvp64f aVal, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpHintAlgorithm hint);
QvpStatus qvpiScaleC_64f32s_C1R(const Qvp64f* pSrc, int srcStep, Qvp64f mVal, Qvp64f aVal, Qvp32s* pDst, int dstStep, QvpiSize roiSize, QvpHintAlgorithm hint);
QvpStatus qvpiScaleC_64f32f_C1R(const Qvp64f* pSrc, int srcStep, Qvp64f mVal, Qvp64f aVal, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpHintAlgorithm hint);
QvpStatus qvpiScaleC_64f_C1R(const Qvp64f* pSrc, int srcStep, Qvp64f mVal, Qvp64f aVal, Qvp64f* pDst, int dstStep, QvpiSize roiSize, QvpHintAlgorithm hint);
QvpStatus qvpiScaleC_8u_C1IR(Qvp8u* pSrcDst, int srcDstStep, Qvp64f mVal, Qvp64f aVal, QvpiSize roiSize, QvpHintAlgorithm hint);
QvpStatus qvpiScaleC_8s_C1IR(Qvp8s* pSrcDst, int srcDstStep, Qvp64f mVal, Qvp64f aVal, QvpiSize roiSize, QvpHintAlgorithm hint);
QvpStatus qvpiScaleC_16u_C1IR(Qvp16u* pSrcDst, int srcDstStep, Qvp64f mVal, Qvp64f aVal, QvpiSize roiSize, QvpHintAlgorithm hint);
QvpStatus qvpiScaleC_16s_C1IR(Qvp16s* pSrcDst, int srcDstStep, Qvp64f mVal, Qvp64f aVal, QvpiSize roiSize, QvpHintAlgorithm hint);
QvpStatus qvpiScaleC_32s_C1IR(Qvp32s* pSrcDst, int srcDstStep, Qvp64f mVal, Qvp64f aVal, QvpiSize roiSize, QvpHintAlgorithm hint);
QvpStatus qvpiScaleC_32f_C1IR(Qvp32f* pSrcDst, int srcDstStep, Qvp64f mVal, Qvp64f aVal, QvpiSize roiSize, QvpHintAlgorithm hint);
QvpStatus qvpiScaleC_64f_C1IR(Qvp64f* pSrcDst, int srcDstStep, Qvp64f mVal, Qvp64f aVal, QvpiSize roiSize, QvpHintAlgorithm hint);
/** @} */

/** @name Bitwise and
 *  @{ */
/** Bitwise and of two images: dst = src1 & src2; in place, srcDst = src & srcDst.
 *
 *  Keeps the bits of one image that are set in the other: a mask of 255 and 0 cuts pixels out.
 *
 *  Only bits count, so that the 16u functions serve 16s pixels too, and the 32s ones 32u and 32f, by a cast of the
 *  pointers; wider images of other layouts are images of bytes with the width times the bytes of a pixel.
 *
 *  AC4 keeps the alpha of the destination. Steps need not be multiples of an element.
 *
 *  @param pSrc1,src1Step first operand
 *  @param pSrc2,src2Step second operand
 *  @param pDst,dstStep destination image; it may be either operand
 *  @param pSrc,srcStep in place: first operand
 *  @param pSrcDst,srcDstStep in place: second operand and destination
 *  @param roiSize size of the region in pixels
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: an image is null
 *  - qvpStatusSize: a side of the region is below 1
 *  - qvpStatusStep: a step is below 1
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiAnd_8u_C1R(const Qvp8u* pSrc1, int src1Step, const Qvp8u* pSrc2, int src2Step, Qvp8u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiAnd_8u_C3R(const Qvp8u* pSrc1, int src1Step, const Qvp8u* pSrc2, int src2Step, Qvp8u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiAnd_8u_C4R(const Qvp8u* pSrc1, int src1Step, const Qvp8u* pSrc2, int src2Step, Qvp8u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiAnd_8u_AC4R(const Qvp8u* pSrc1, int src1Step, const Qvp8u* pSrc2, int src2Step, Qvp8u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiAnd_16u_C1R(const Qvp16u* pSrc1, int src1Step, const Qvp16u* pSrc2, int src2Step, Qvp16u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiAnd_16u_C3R(const Qvp16u* pSrc1, int src1Step, const Qvp16u* pSrc2, int src2Step, Qvp16u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiAnd_16u_C4R(const Qvp16u* pSrc1, int src1Step, const Qvp16u* pSrc2, int src2Step, Qvp16u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiAnd_16u_AC4R(const Qvp16u* pSrc1, int src1Step, const Qvp16u* pSrc2, int src2Step, Qvp16u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiAnd_32s_C1R(const Qvp32s* pSrc1, int src1Step, const Qvp32s* pSrc2, int src2Step, Qvp32s* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiAnd_8u_C1IR(const Qvp8u* pSrc, int srcStep, Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiAnd_8u_C3IR(const Qvp8u* pSrc, int srcStep, Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiAnd_8u_C4IR(const Qvp8u* pSrc, int srcStep, Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiAnd_8u_AC4IR(const Qvp8u* pSrc, int srcStep, Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiAnd_16u_C1IR(const Qvp16u* pSrc, int srcStep, Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiAnd_16u_C3IR(const Qvp16u* pSrc, int srcStep, Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiAnd_16u_C4IR(const Qvp16u* pSrc, int srcStep, Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiAnd_16u_AC4IR(const Qvp16u* pSrc, int srcStep, Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiAnd_32s_C1IR(const Qvp32s* pSrc, int srcStep, Qvp32s* pSrcDst, int srcDstStep, QvpiSize roiSize);
/** @} */

/** @name Bitwise and with a constant
 *  @{ */
/** Bitwise and of an image and a constant: dst = src & value; in place, srcDst = srcDst & value.
 *
 *  Selects bits: 0xF0 keeps the upper four bits of a byte, 0x80 its highest bit plane.
 *
 *  Only bits count, so that the 16u functions serve 16s pixels too, and the 32s ones 32u and 32f, by a cast.
 *
 *  AC4 keeps the alpha of the destination. Steps need not be multiples of an element.
 *
 *  @param pSrc,srcStep source image
 *  @param value the constant: a number for C1, one for each channel otherwise; three for AC4
 *  @param pDst,dstStep destination image; it may be the source
 *  @param pSrcDst,srcDstStep in place: the image
 *  @param roiSize size of the region in pixels
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: an image or `value` is null
 *  - qvpStatusSize: a side of the region is below 1
 *  - qvpStatusStep: a step is below 1
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiAndC_8u_C1R(const Qvp8u* pSrc, int srcStep, Qvp8u value, Qvp8u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiAndC_8u_C3R(const Qvp8u* pSrc, int srcStep, const Qvp8u value[3], Qvp8u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiAndC_8u_C4R(const Qvp8u* pSrc, int srcStep, const Qvp8u value[4], Qvp8u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiAndC_8u_AC4R(const Qvp8u* pSrc, int srcStep, const Qvp8u value[3], Qvp8u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiAndC_16u_C1R(const Qvp16u* pSrc, int srcStep, Qvp16u value, Qvp16u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiAndC_16u_C3R(const Qvp16u* pSrc, int srcStep, const Qvp16u value[3], Qvp16u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiAndC_16u_C4R(const Qvp16u* pSrc, int srcStep, const Qvp16u value[4], Qvp16u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiAndC_16u_AC4R(const Qvp16u* pSrc, int srcStep, const Qvp16u value[3], Qvp16u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiAndC_32s_C1R(const Qvp32s* pSrc, int srcStep, Qvp32s value, Qvp32s* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiAndC_8u_C1IR(Qvp8u value, Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiAndC_8u_C3IR(const Qvp8u value[3], Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiAndC_8u_C4IR(const Qvp8u value[4], Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiAndC_8u_AC4IR(const Qvp8u value[3], Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiAndC_16u_C1IR(Qvp16u value, Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiAndC_16u_C3IR(const Qvp16u value[3], Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiAndC_16u_C4IR(const Qvp16u value[4], Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiAndC_16u_AC4IR(const Qvp16u value[3], Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiAndC_32s_C1IR(Qvp32s value, Qvp32s* pSrcDst, int srcDstStep, QvpiSize roiSize);
/** @} */

/** @name Bitwise or
 *  @{ */
/** Bitwise or of two images: dst = src1 | src2; in place, srcDst = src | srcDst.
 *
 *  Joins masks, and puts together bit planes or labels that have no bit in common.
 *
 *  Only bits count, so that the 16u functions serve 16s pixels too, and the 32s ones 32u and 32f, by a cast of the
 *  pointers; wider images of other layouts are images of bytes with the width times the bytes of a pixel.
 *
 *  AC4 keeps the alpha of the destination. Steps need not be multiples of an element.
 *
 *  @param pSrc1,src1Step first operand
 *  @param pSrc2,src2Step second operand
 *  @param pDst,dstStep destination image; it may be either operand
 *  @param pSrc,srcStep in place: first operand
 *  @param pSrcDst,srcDstStep in place: second operand and destination
 *  @param roiSize size of the region in pixels
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: an image is null
 *  - qvpStatusSize: a side of the region is below 1
 *  - qvpStatusStep: a step is below 1
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiOr_8u_C1R(const Qvp8u* pSrc1, int src1Step, const Qvp8u* pSrc2, int src2Step, Qvp8u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiOr_8u_C3R(const Qvp8u* pSrc1, int src1Step, const Qvp8u* pSrc2, int src2Step, Qvp8u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiOr_8u_C4R(const Qvp8u* pSrc1, int src1Step, const Qvp8u* pSrc2, int src2Step, Qvp8u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiOr_8u_AC4R(const Qvp8u* pSrc1, int src1Step, const Qvp8u* pSrc2, int src2Step, Qvp8u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiOr_16u_C1R(const Qvp16u* pSrc1, int src1Step, const Qvp16u* pSrc2, int src2Step, Qvp16u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiOr_16u_C3R(const Qvp16u* pSrc1, int src1Step, const Qvp16u* pSrc2, int src2Step, Qvp16u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiOr_16u_C4R(const Qvp16u* pSrc1, int src1Step, const Qvp16u* pSrc2, int src2Step, Qvp16u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiOr_16u_AC4R(const Qvp16u* pSrc1, int src1Step, const Qvp16u* pSrc2, int src2Step, Qvp16u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiOr_32s_C1R(const Qvp32s* pSrc1, int src1Step, const Qvp32s* pSrc2, int src2Step, Qvp32s* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiOr_8u_C1IR(const Qvp8u* pSrc, int srcStep, Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiOr_8u_C3IR(const Qvp8u* pSrc, int srcStep, Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiOr_8u_C4IR(const Qvp8u* pSrc, int srcStep, Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiOr_8u_AC4IR(const Qvp8u* pSrc, int srcStep, Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiOr_16u_C1IR(const Qvp16u* pSrc, int srcStep, Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiOr_16u_C3IR(const Qvp16u* pSrc, int srcStep, Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiOr_16u_C4IR(const Qvp16u* pSrc, int srcStep, Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiOr_16u_AC4IR(const Qvp16u* pSrc, int srcStep, Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiOr_32s_C1IR(const Qvp32s* pSrc, int srcStep, Qvp32s* pSrcDst, int srcDstStep, QvpiSize roiSize);
/** @} */

/** @name Bitwise or with a constant
 *  @{ */
/** Bitwise or of an image and a constant: dst = src | value; in place, srcDst = srcDst | value.
 *
 *  Sets bits: labels, flags, the least significant bits of values that were shifted to the left.
 *
 *  Only bits count, so that the 16u functions serve 16s pixels too, and the 32s ones 32u and 32f, by a cast.
 *
 *  AC4 keeps the alpha of the destination. Steps need not be multiples of an element.
 *
 *  @param pSrc,srcStep source image
 *  @param value the constant: a number for C1, one for each channel otherwise; three for AC4
 *  @param pDst,dstStep destination image; it may be the source
 *  @param pSrcDst,srcDstStep in place: the image
 *  @param roiSize size of the region in pixels
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: an image or `value` is null
 *  - qvpStatusSize: a side of the region is below 1
 *  - qvpStatusStep: a step is below 1
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiOrC_8u_C1R(const Qvp8u* pSrc, int srcStep, Qvp8u value, Qvp8u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiOrC_8u_C3R(const Qvp8u* pSrc, int srcStep, const Qvp8u value[3], Qvp8u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiOrC_8u_C4R(const Qvp8u* pSrc, int srcStep, const Qvp8u value[4], Qvp8u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiOrC_8u_AC4R(const Qvp8u* pSrc, int srcStep, const Qvp8u value[3], Qvp8u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiOrC_16u_C1R(const Qvp16u* pSrc, int srcStep, Qvp16u value, Qvp16u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiOrC_16u_C3R(const Qvp16u* pSrc, int srcStep, const Qvp16u value[3], Qvp16u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiOrC_16u_C4R(const Qvp16u* pSrc, int srcStep, const Qvp16u value[4], Qvp16u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiOrC_16u_AC4R(const Qvp16u* pSrc, int srcStep, const Qvp16u value[3], Qvp16u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiOrC_32s_C1R(const Qvp32s* pSrc, int srcStep, Qvp32s value, Qvp32s* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiOrC_8u_C1IR(Qvp8u value, Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiOrC_8u_C3IR(const Qvp8u value[3], Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiOrC_8u_C4IR(const Qvp8u value[4], Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiOrC_8u_AC4IR(const Qvp8u value[3], Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiOrC_16u_C1IR(Qvp16u value, Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiOrC_16u_C3IR(const Qvp16u value[3], Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiOrC_16u_C4IR(const Qvp16u value[4], Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiOrC_16u_AC4IR(const Qvp16u value[3], Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiOrC_32s_C1IR(Qvp32s value, Qvp32s* pSrcDst, int srcDstStep, QvpiSize roiSize);
/** @} */

/** @name Bitwise exclusive or
 *  @{ */
/** Bitwise exclusive or of two images: dst = src1 ^ src2; in place, srcDst = src ^ srcDst.
 *
 *  Tells which bits differ, and puts a mark on that a second call takes off.
 *
 *  Only bits count, so that the 16u functions serve 16s pixels too, and the 32s ones 32u and 32f, by a cast of the
 *  pointers; wider images of other layouts are images of bytes with the width times the bytes of a pixel.
 *
 *  AC4 keeps the alpha of the destination. Steps need not be multiples of an element.
 *
 *  @param pSrc1,src1Step first operand
 *  @param pSrc2,src2Step second operand
 *  @param pDst,dstStep destination image; it may be either operand
 *  @param pSrc,srcStep in place: first operand
 *  @param pSrcDst,srcDstStep in place: second operand and destination
 *  @param roiSize size of the region in pixels
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: an image is null
 *  - qvpStatusSize: a side of the region is below 1
 *  - qvpStatusStep: a step is below 1
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiXor_8u_C1R(const Qvp8u* pSrc1, int src1Step, const Qvp8u* pSrc2, int src2Step, Qvp8u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiXor_8u_C3R(const Qvp8u* pSrc1, int src1Step, const Qvp8u* pSrc2, int src2Step, Qvp8u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiXor_8u_C4R(const Qvp8u* pSrc1, int src1Step, const Qvp8u* pSrc2, int src2Step, Qvp8u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiXor_8u_AC4R(const Qvp8u* pSrc1, int src1Step, const Qvp8u* pSrc2, int src2Step, Qvp8u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiXor_16u_C1R(const Qvp16u* pSrc1, int src1Step, const Qvp16u* pSrc2, int src2Step, Qvp16u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiXor_16u_C3R(const Qvp16u* pSrc1, int src1Step, const Qvp16u* pSrc2, int src2Step, Qvp16u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiXor_16u_C4R(const Qvp16u* pSrc1, int src1Step, const Qvp16u* pSrc2, int src2Step, Qvp16u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiXor_16u_AC4R(const Qvp16u* pSrc1, int src1Step, const Qvp16u* pSrc2, int src2Step, Qvp16u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiXor_32s_C1R(const Qvp32s* pSrc1, int src1Step, const Qvp32s* pSrc2, int src2Step, Qvp32s* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiXor_8u_C1IR(const Qvp8u* pSrc, int srcStep, Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiXor_8u_C3IR(const Qvp8u* pSrc, int srcStep, Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiXor_8u_C4IR(const Qvp8u* pSrc, int srcStep, Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiXor_8u_AC4IR(const Qvp8u* pSrc, int srcStep, Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiXor_16u_C1IR(const Qvp16u* pSrc, int srcStep, Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiXor_16u_C3IR(const Qvp16u* pSrc, int srcStep, Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiXor_16u_C4IR(const Qvp16u* pSrc, int srcStep, Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiXor_16u_AC4IR(const Qvp16u* pSrc, int srcStep, Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiXor_32s_C1IR(const Qvp32s* pSrc, int srcStep, Qvp32s* pSrcDst, int srcDstStep, QvpiSize roiSize);
/** @} */

/** @name Bitwise exclusive or with a constant
 *  @{ */
/** Bitwise exclusive or of an image and a constant: dst = src ^ value; in place, srcDst = srcDst ^ value.
 *
 *  Turns bits over: 255 inverts a byte, 0x8000 changes 16-bit numbers between signed and unsigned with an offset.
 *
 *  Only bits count, so that the 16u functions serve 16s pixels too, and the 32s ones 32u and 32f, by a cast.
 *
 *  AC4 keeps the alpha of the destination. Steps need not be multiples of an element.
 *
 *  @param pSrc,srcStep source image
 *  @param value the constant: a number for C1, one for each channel otherwise; three for AC4
 *  @param pDst,dstStep destination image; it may be the source
 *  @param pSrcDst,srcDstStep in place: the image
 *  @param roiSize size of the region in pixels
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: an image or `value` is null
 *  - qvpStatusSize: a side of the region is below 1
 *  - qvpStatusStep: a step is below 1
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiXorC_8u_C1R(const Qvp8u* pSrc, int srcStep, Qvp8u value, Qvp8u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiXorC_8u_C3R(const Qvp8u* pSrc, int srcStep, const Qvp8u value[3], Qvp8u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiXorC_8u_C4R(const Qvp8u* pSrc, int srcStep, const Qvp8u value[4], Qvp8u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiXorC_8u_AC4R(const Qvp8u* pSrc, int srcStep, const Qvp8u value[3], Qvp8u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiXorC_16u_C1R(const Qvp16u* pSrc, int srcStep, Qvp16u value, Qvp16u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiXorC_16u_C3R(const Qvp16u* pSrc, int srcStep, const Qvp16u value[3], Qvp16u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiXorC_16u_C4R(const Qvp16u* pSrc, int srcStep, const Qvp16u value[4], Qvp16u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiXorC_16u_AC4R(const Qvp16u* pSrc, int srcStep, const Qvp16u value[3], Qvp16u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiXorC_32s_C1R(const Qvp32s* pSrc, int srcStep, Qvp32s value, Qvp32s* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiXorC_8u_C1IR(Qvp8u value, Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiXorC_8u_C3IR(const Qvp8u value[3], Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiXorC_8u_C4IR(const Qvp8u value[4], Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiXorC_8u_AC4IR(const Qvp8u value[3], Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiXorC_16u_C1IR(Qvp16u value, Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiXorC_16u_C3IR(const Qvp16u value[3], Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiXorC_16u_C4IR(const Qvp16u value[4], Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiXorC_16u_AC4IR(const Qvp16u value[3], Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiXorC_32s_C1IR(Qvp32s value, Qvp32s* pSrcDst, int srcDstStep, QvpiSize roiSize);
/** @} */

/** @name Bitwise not
 *  @{ */
/** Bitwise not: dst = ~src; in place, srcDst = ~srcDst.
 *
 *  Of bytes that is 255 - src, the negative of an image, and of masks of 255 and 0 the opposite. An image of wider
 *  elements is one of bytes, C1, whose width is that times the bytes of a pixel.
 *
 *  AC4 keeps the alpha of the destination. Steps need not be multiples of an element.
 *
 *  @param pSrc,srcStep source image
 *  @param pDst,dstStep destination image; it may be the source
 *  @param pSrcDst,srcDstStep in place: the image
 *  @param roiSize size of the region in pixels
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: an image is null
 *  - qvpStatusSize: a side of the region is below 1
 *  - qvpStatusStep: a step is below 1
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiNot_8u_C1R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiNot_8u_C3R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiNot_8u_C4R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiNot_8u_AC4R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiNot_8u_C1IR(Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiNot_8u_C3IR(Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiNot_8u_C4IR(Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiNot_8u_AC4IR(Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize);
/** @} */

/** @name Shift to the left
 *  @{ */
/** Shifts bits to the left: dst = src << value; in place, srcDst = srcDst << value.
 *
 *  Zeros come in from the right, and bits that leave the element on the left are lost: 0x81 << 1 is 0x02 in a byte.
 *  That is a product with 2^value modulo 2^bits; a product that saturates is qvpiAddC with the constant 0 and the scale
 *  factor -value. A shift by 0 is a copy, and by all bits of an element or more gives 0.
 *
 *  It spreads values over more bits: of sensors of 12 bits, a shift by 4 makes full 16-bit numbers. 32s serves 32u by a
 *  cast, 16u serves 16s.
 *
 *  AC4 keeps the alpha of the destination. Steps need not be multiples of an element.
 *
 *  @param pSrc,srcStep source image
 *  @param value by how many bits: a number for C1, one for each channel otherwise, three for AC4. Every number is
 *         valid
 *  @param pDst,dstStep destination image; it may be the source
 *  @param pSrcDst,srcDstStep in place: the image
 *  @param roiSize size of the region in pixels
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: an image or `value` is null
 *  - qvpStatusSize: a side of the region is below 1
 *  - qvpStatusStep: a step is below 1
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiShiftLeftC_8u_C1R(const Qvp8u* pSrc, int srcStep, Qvp32u value, Qvp8u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiShiftLeftC_8u_C3R(const Qvp8u* pSrc, int srcStep, const Qvp32u value[3], Qvp8u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiShiftLeftC_8u_C4R(const Qvp8u* pSrc, int srcStep, const Qvp32u value[4], Qvp8u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiShiftLeftC_8u_AC4R(const Qvp8u* pSrc, int srcStep, const Qvp32u value[3], Qvp8u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiShiftLeftC_16u_C1R(const Qvp16u* pSrc, int srcStep, Qvp32u value, Qvp16u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiShiftLeftC_16u_C3R(const Qvp16u* pSrc, int srcStep, const Qvp32u value[3], Qvp16u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiShiftLeftC_16u_C4R(const Qvp16u* pSrc, int srcStep, const Qvp32u value[4], Qvp16u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiShiftLeftC_16u_AC4R(const Qvp16u* pSrc, int srcStep, const Qvp32u value[3], Qvp16u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiShiftLeftC_32s_C1R(const Qvp32s* pSrc, int srcStep, Qvp32u value, Qvp32s* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiShiftLeftC_8u_C1IR(Qvp32u value, Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiShiftLeftC_8u_C3IR(const Qvp32u value[3], Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiShiftLeftC_8u_C4IR(const Qvp32u value[4], Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiShiftLeftC_8u_AC4IR(const Qvp32u value[3], Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiShiftLeftC_16u_C1IR(Qvp32u value, Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiShiftLeftC_16u_C3IR(const Qvp32u value[3], Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiShiftLeftC_16u_C4IR(const Qvp32u value[4], Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiShiftLeftC_16u_AC4IR(const Qvp32u value[3], Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiShiftLeftC_32s_C1IR(Qvp32u value, Qvp32s* pSrcDst, int srcDstStep, QvpiSize roiSize);
/** @} */

/** @name Shift to the right
 *  @{ */
/** Shifts bits to the right: dst = src >> value; in place, srcDst = srcDst >> value.
 *
 *  The quotient floor(src / 2^value), rounded toward minus infinity: zeros come in from the left for unsigned elements,
 *  the sign for signed ones, so that -5 >> 1 is -3. A quotient that is rounded to the nearest is qvpiAddC with the
 *  constant 0 and the scale factor value. A shift by 0 is a copy; by all bits of an element or more it gives 0, or -1
 *  for negative values.
 *
 *  AC4 keeps the alpha of the destination. Steps need not be multiples of an element.
 *
 *  @param pSrc,srcStep source image
 *  @param value by how many bits: a number for C1, one for each channel otherwise, three for AC4. Every number is
 *         valid
 *  @param pDst,dstStep destination image; it may be the source
 *  @param pSrcDst,srcDstStep in place: the image
 *  @param roiSize size of the region in pixels
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: an image or `value` is null
 *  - qvpStatusSize: a side of the region is below 1
 *  - qvpStatusStep: a step is below 1
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiShiftRightC_8u_C1R(const Qvp8u* pSrc, int srcStep, Qvp32u value, Qvp8u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiShiftRightC_8u_C3R(const Qvp8u* pSrc, int srcStep, const Qvp32u value[3], Qvp8u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiShiftRightC_8u_C4R(const Qvp8u* pSrc, int srcStep, const Qvp32u value[4], Qvp8u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiShiftRightC_8u_AC4R(const Qvp8u* pSrc, int srcStep, const Qvp32u value[3], Qvp8u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiShiftRightC_16u_C1R(const Qvp16u* pSrc, int srcStep, Qvp32u value, Qvp16u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiShiftRightC_16u_C3R(const Qvp16u* pSrc, int srcStep, const Qvp32u value[3], Qvp16u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiShiftRightC_16u_C4R(const Qvp16u* pSrc, int srcStep, const Qvp32u value[4], Qvp16u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiShiftRightC_16u_AC4R(const Qvp16u* pSrc, int srcStep, const Qvp32u value[3], Qvp16u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiShiftRightC_16s_C1R(const Qvp16s* pSrc, int srcStep, Qvp32u value, Qvp16s* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiShiftRightC_16s_C3R(const Qvp16s* pSrc, int srcStep, const Qvp32u value[3], Qvp16s* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiShiftRightC_16s_C4R(const Qvp16s* pSrc, int srcStep, const Qvp32u value[4], Qvp16s* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiShiftRightC_16s_AC4R(const Qvp16s* pSrc, int srcStep, const Qvp32u value[3], Qvp16s* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiShiftRightC_32s_C1R(const Qvp32s* pSrc, int srcStep, Qvp32u value, Qvp32s* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiShiftRightC_8u_C1IR(Qvp32u value, Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiShiftRightC_8u_C3IR(const Qvp32u value[3], Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiShiftRightC_8u_C4IR(const Qvp32u value[4], Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiShiftRightC_8u_AC4IR(const Qvp32u value[3], Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiShiftRightC_16u_C1IR(Qvp32u value, Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiShiftRightC_16u_C3IR(const Qvp32u value[3], Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiShiftRightC_16u_C4IR(const Qvp32u value[4], Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiShiftRightC_16u_AC4IR(const Qvp32u value[3], Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiShiftRightC_16s_C1IR(Qvp32u value, Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiShiftRightC_16s_C3IR(const Qvp32u value[3], Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiShiftRightC_16s_C4IR(const Qvp32u value[4], Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiShiftRightC_16s_AC4IR(const Qvp32u value[3], Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiShiftRightC_32s_C1IR(Qvp32u value, Qvp32s* pSrcDst, int srcDstStep, QvpiSize roiSize);
/** @} */

/** @name Look-up table
 *  @{ */
/** Looks each value up in a table: dst = table[src]; in place, srcDst = table[srcDst].
 *
 *  For any function of a value, such as gamma, calibration or a threshold with steps, computed once for each of the 256
 *  values of 8 bits or the 65536 of 16 bits. Each channel has a table of its own; passing the same pointer for all
 *  channels is the fastest. For curves through a few points, use qvpiLookup; for tables of fewer bits or other types
 *  than the image's, qvpiPalette.
 *
 *  Tables need not be aligned. Where one overlaps the destination, results are undefined. AC4 keeps the alpha of the
 *  destination. Steps need not be multiples of an element.
 *
 *  @param pSrc,srcStep source image
 *  @param pDst,dstStep destination image; it may be the source
 *  @param pSrcDst,srcDstStep in place: the image
 *  @param roiSize size of the region in pixels
 *  @param pTable 256 entries for 8u, 65536 for 16u: the table for C1, otherwise an array of pointers to one table for
 *         each channel, three for AC4
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: an image, `pTable` or a pointer in it is null
 *  - qvpStatusSize: a side of the region is below 1
 *  - qvpStatusStep: a step is below 1
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiLookupTable_8u_C1R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, const Qvp8u* pTable);
QvpStatus qvpiLookupTable_8u_C3R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, const Qvp8u* const pTable[3]);
QvpStatus qvpiLookupTable_8u_C4R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, const Qvp8u* const pTable[4]);
QvpStatus qvpiLookupTable_8u_AC4R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, const Qvp8u* const pTable[3]);
QvpStatus qvpiLookupTable_16u_C1R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, const Qvp16u* pTable);
QvpStatus qvpiLookupTable_16u_C3R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, const Qvp16u* const pTable[3]);
QvpStatus qvpiLookupTable_16u_C4R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, const Qvp16u* const pTable[4]);
QvpStatus qvpiLookupTable_16u_AC4R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, const Qvp16u* const pTable[3]);
QvpStatus qvpiLookupTable_8u_C1IR(Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, const Qvp8u* pTable);
QvpStatus qvpiLookupTable_8u_C3IR(Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, const Qvp8u* const pTable[3]);
QvpStatus qvpiLookupTable_8u_C4IR(Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, const Qvp8u* const pTable[4]);
QvpStatus qvpiLookupTable_8u_AC4IR(Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, const Qvp8u* const pTable[3]);
QvpStatus qvpiLookupTable_16u_C1IR(Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, const Qvp16u* pTable);
QvpStatus qvpiLookupTable_16u_C3IR(Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, const Qvp16u* const pTable[3]);
QvpStatus qvpiLookupTable_16u_C4IR(Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, const Qvp16u* const pTable[4]);
QvpStatus qvpiLookupTable_16u_AC4IR(Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, const Qvp16u* const pTable[3]);
/** @} */

/** @name Look-up through levels: size
 *  @{ */
/** Bytes of the record of a look-up through levels.
 *
 *  That is 192 and for each channel 256 (8u), 131072 (16u, 16s), or, of floats, 3 (steps), 5 (linear) or 7 (cubic)
 *  arrays of 4 bytes a level, each rounded up to a multiple of 64. For integers the number of levels does not matter.
 *
 *  @param dataType pixel type: qvp8u, qvp16u, qvp16s or qvp32f
 *  @param method qvpLookupStep, qvpLookupLinear or qvpLookupCubic
 *  @param nLevels number of levels of each channel's curve
 *  @param numChannels number of curves: 1, 3 or 4
 *  @param pSpecSize receives the size in bytes
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: a pointer is null
 *  - qvpStatusDataType: another pixel type
 *  - qvpStatusInterpolation: another method
 *  - qvpStatusNumChannels: another number of channels
 *  - qvpStatusLutLevels: a channel has fewer than 2 levels
 *  - qvpStatusSizeOverflow: more than 2147483647 bytes; the size is set to 0
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiLookupGetSize(QvpDataType dataType, QvpiLookupMethod method, const int nLevels[], int numChannels, int* pSpecSize);
/** @} */

/** @name Look-up through levels: record
 *  @{ */
/** Makes the record of a look-up through levels: of curves y(v) through points (level, value).
 *
 *  A channel has n levels x[0] < x[1] < ... < x[n-1] and values y[0] ... y[n-1], which need be neither in the range of
 *  the pixel type nor whole. Below x[0] the curve is y[0], from x[n-1] on it is y[n-1]; between x[k] and x[k+1] it is
 *
 *  @code
 *    qvpLookupStep    y[k]
 *    qvpLookupLinear  y[k] + (v - x[k]) * D / h               D = y[k+1] - y[k], h = x[k+1] - x[k]
 *    qvpLookupCubic   y[k] + a u + (3 D - 2 a - b) u^2 + (a + b - 2 D) u^3
 *                     u = (v - x[k]) / h, a = h * slope at x[k], b = h * slope at x[k+1]
 *  @endcode
 *
 *  Steps make a poster of an image, lines are what calibration tables mean, and cubics are tone curves: smooth, with no
 *  value outside of y[k] to y[k+1], so that the curve rises where the values rise (F. N. Fritsch and R. E. Carlson,
 *  "Monotone Piecewise Cubic Interpolation", 1980). The slope at an inner level is 0 unless the steepness before and
 *  after it, d and e, have one sign, otherwise their weighted harmonic mean (w + z) / (w / d + z / e), w = 2 h + g,
 *  z = h + 2 g, with g and h the distances to the levels before and after (F. N. Fritsch and J. Butland, 1984). At an
 *  end it is ((2 h + g) d - h e) / (h + g), with h and d of the interval at the end, g and e of the next one: 0 if that
 *  has another sign than d, and 3 d if d and e have opposite signs and it is steeper. Two levels make a line.
 *
 *  Integer types: all results are computed here, in double precision, rounded to the nearest, ties to even, and
 *  saturated. Lines through whole numbers below 2^17 are the exact fractions, rounded. Calls only use a table of all
 *  values.
 *
 *  Floats: coefficients and 1 / h are computed in double precision and kept in single. A call differs from the curve by
 *  no more than 12 (linear) or 72 (cubic) times 2^-24 max(|y[k]|, |y[k+1]|), subnormal numbers aside.
 *
 *  The record keeps nothing of the caller's and is used where it was made.
 *
 *  @param dataType pixel type: qvp8u, qvp16u, qvp16s or qvp32f
 *  @param method qvpLookupStep, qvpLookupLinear or qvpLookupCubic
 *  @param pLevels the levels of each channel's curve, strictly increasing
 *  @param pValues the value at each level
 *  @param nLevels number of levels of each channel's curve
 *  @param numChannels number of curves: 1, 3 or 4
 *  @param pSpec receives the record, of the size that qvpiLookupGetSize() tells; at any address
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: `pLevels`, `pValues`, `nLevels` or `pSpec` is null
 *  - qvpStatusDataType: another pixel type
 *  - qvpStatusInterpolation: another method
 *  - qvpStatusNumChannels: another number of channels
 *  - qvpStatusNullPointer: the levels or the values of a channel are null
 *  - qvpStatusLutLevels: a channel has fewer than 2 levels
 *  - qvpStatusSizeOverflow: the record would have more than 2147483647 bytes
 *  - then, for each channel: qvpStatusRange: a level is not finite, or not above the one before
 *  - qvpStatusBadArgument: a value is not finite; of floats, linear and cubic, also: the distance of two levels is
 *    outside 2^-126 to 2^126, or a coefficient is beyond single precision
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiLookupInit(QvpDataType dataType, QvpiLookupMethod method, const Qvp32f* const pLevels[], const Qvp32f* const pValues[], const int nLevels[], int numChannels, QvpiLookupSpec* pSpec);
/** @} */

/** @name Look-up through levels
 *  @{ */
/** Maps each value by a curve through levels: dst = y(src), with the curves of a record; in place, srcDst = y(srcDst).
 *
 *  The curves are described with qvpiLookupInit(). A record with one curve uses it for all channels and serves every
 *  layout; a record with three is for C3 and AC4, one with four for C4.
 *
 *  Floats, in single precision: for s between the levels x[k] and x[k+1], u = (s - x[k]) * r, then c0 + u * c1 (linear)
 *  or ((c3 * u + c2) * u + c1) * u + c0 (cubic), r and c0 to c3 from the record. NaN gives NaN, infinities give the
 *  values at the ends.
 *
 *  AC4 keeps the alpha of the destination. Steps need not be multiples of an element.
 *
 *  @param pSrc,srcStep source image
 *  @param pDst,dstStep destination image; it may be the source
 *  @param pSrcDst,srcDstStep in place: the image
 *  @param roiSize size of the region in pixels
 *  @param pSpec the record
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: an image or the record is null
 *  - qvpStatusSize: a side of the region is below 1
 *  - qvpStatusStep: a step is below 1
 *  - qvpStatusContextMatch: no record of qvpiLookupInit(), or one for another pixel type or number of channels
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiLookup_8u_C1R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, const QvpiLookupSpec* pSpec);
QvpStatus qvpiLookup_8u_C3R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, const QvpiLookupSpec* pSpec);
QvpStatus qvpiLookup_8u_C4R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, const QvpiLookupSpec* pSpec);
QvpStatus qvpiLookup_8u_AC4R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, const QvpiLookupSpec* pSpec);
QvpStatus qvpiLookup_16u_C1R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, const QvpiLookupSpec* pSpec);
QvpStatus qvpiLookup_16u_C3R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, const QvpiLookupSpec* pSpec);
QvpStatus qvpiLookup_16u_C4R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, const QvpiLookupSpec* pSpec);
QvpStatus qvpiLookup_16u_AC4R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, const QvpiLookupSpec* pSpec);
QvpStatus qvpiLookup_16s_C1R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, const QvpiLookupSpec* pSpec);
QvpStatus qvpiLookup_16s_C3R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, const QvpiLookupSpec* pSpec);
QvpStatus qvpiLookup_16s_C4R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, const QvpiLookupSpec* pSpec);
QvpStatus qvpiLookup_16s_AC4R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, const QvpiLookupSpec* pSpec);
QvpStatus qvpiLookup_32f_C1R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, const QvpiLookupSpec* pSpec);
QvpStatus qvpiLookup_32f_C3R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, const QvpiLookupSpec* pSpec);
QvpStatus qvpiLookup_32f_C4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, const QvpiLookupSpec* pSpec);
QvpStatus qvpiLookup_32f_AC4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, const QvpiLookupSpec* pSpec);
QvpStatus qvpiLookup_8u_C1IR(Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, const QvpiLookupSpec* pSpec);
QvpStatus qvpiLookup_8u_C3IR(Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, const QvpiLookupSpec* pSpec);
QvpStatus qvpiLookup_8u_C4IR(Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, const QvpiLookupSpec* pSpec);
QvpStatus qvpiLookup_8u_AC4IR(Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, const QvpiLookupSpec* pSpec);
QvpStatus qvpiLookup_16u_C1IR(Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, const QvpiLookupSpec* pSpec);
QvpStatus qvpiLookup_16u_C3IR(Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, const QvpiLookupSpec* pSpec);
QvpStatus qvpiLookup_16u_C4IR(Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, const QvpiLookupSpec* pSpec);
QvpStatus qvpiLookup_16u_AC4IR(Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, const QvpiLookupSpec* pSpec);
QvpStatus qvpiLookup_16s_C1IR(Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize, const QvpiLookupSpec* pSpec);
QvpStatus qvpiLookup_16s_C3IR(Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize, const QvpiLookupSpec* pSpec);
QvpStatus qvpiLookup_16s_C4IR(Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize, const QvpiLookupSpec* pSpec);
QvpStatus qvpiLookup_16s_AC4IR(Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize, const QvpiLookupSpec* pSpec);
QvpStatus qvpiLookup_32f_C1IR(Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize, const QvpiLookupSpec* pSpec);
QvpStatus qvpiLookup_32f_C3IR(Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize, const QvpiLookupSpec* pSpec);
QvpStatus qvpiLookup_32f_C4IR(Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize, const QvpiLookupSpec* pSpec);
QvpStatus qvpiLookup_32f_AC4IR(Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize, const QvpiLookupSpec* pSpec);
/** @} */

/** @name Palette
 *  @{ */
/** Replaces indices by the entries of a palette: dst = palette[src mod 2^nBits].
 *
 *  The lowest `nBits` bits of a pixel of the source are the index, and the others do not count. An entry is a whole
 *  pixel of the destination: one value, or three (C1C3) or four (C1C4) side by side. Values are copied bit for bit,
 *  NaN too. Index images become colour ones that way, brightness becomes false colour, sensor counts become physical
 *  units, and of 12-bit images a table with 4096 entries shows a window of levels. qvpiLookupTable has a table for each
 *  channel, of all values.
 *
 *  The palette need not be aligned, and no byte behind its last entry is read. Where it overlaps the destination,
 *  results are undefined. Steps need not be multiples of an element.
 *
 *  @param pSrc,srcStep source image of indices
 *  @param pDst,dstStep destination image; it may be the source where both have pixels of the same size
 *  @param roiSize size of the region in pixels
 *  @param pPalette 2^nBits entries
 *  @param nBits how many bits an index has: 1 to 8 for 8u sources, 1 to 16 for 16u ones
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: an image or the palette is null
 *  - qvpStatusSize: a side of the region is below 1
 *  - qvpStatusStep: a step is below 1
 *  - qvpStatusOutOfRange: `nBits` is outside its range
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiPalette_8u_C1R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, const Qvp8u* pPalette, int nBits);
QvpStatus qvpiPalette_8u_C1C3R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, const Qvp8u* pPalette, int nBits);
QvpStatus qvpiPalette_8u_C1C4R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, const Qvp8u* pPalette, int nBits);
QvpStatus qvpiPalette_8u16u_C1R(const Qvp8u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, const Qvp16u* pPalette, int nBits);
QvpStatus qvpiPalette_8u16u_C1C3R(const Qvp8u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, const Qvp16u* pPalette, int nBits);
QvpStatus qvpiPalette_8u16u_C1C4R(const Qvp8u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, const Qvp16u* pPalette, int nBits);
QvpStatus qvpiPalette_8u32f_C1R(const Qvp8u* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, const Qvp32f* pPalette, int nBits);
QvpStatus qvpiPalette_8u32f_C1C3R(const Qvp8u* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, const Qvp32f* pPalette, int nBits);
QvpStatus qvpiPalette_8u32f_C1C4R(const Qvp8u* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, const Qvp32f* pPalette, int nBits);
QvpStatus qvpiPalette_16u8u_C1R(const Qvp16u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, const Qvp8u* pPalette, int nBits);
QvpStatus qvpiPalette_16u8u_C1C3R(const Qvp16u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, const Qvp8u* pPalette, int nBits);
QvpStatus qvpiPalette_16u8u_C1C4R(const Qvp16u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, const Qvp8u* pPalette, int nBits);
QvpStatus qvpiPalette_16u_C1R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, const Qvp16u* pPalette, int nBits);
QvpStatus qvpiPalette_16u_C1C3R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, const Qvp16u* pPalette, int nBits);
QvpStatus qvpiPalette_16u_C1C4R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, const Qvp16u* pPalette, int nBits);
QvpStatus qvpiPalette_16u32f_C1R(const Qvp16u* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, const Qvp32f* pPalette, int nBits);
/** @} */

/** @name Threshold
 *  @{ */
/** Bounds values from above or below: it clamps them, and makes no image of two values.
 *
 *  With qvpCmpGreater, dst = min(src, threshold); with qvpCmpLess, dst = max(src, threshold). A pixel that is not a
 *  number stays as it is, and so does a zero of either sign against a threshold of zero. Source and destination may be
 *  the same image.
 *
 *  @param pSrc,srcStep source image
 *  @param pDst,dstStep destination image
 *  @param pSrcDst,srcDstStep in place: the image
 *  @param roiSize region in pixels
 *  @param threshold the bound: one value for one channel, an array of 3 (C3, AC4) or 4 (C4) otherwise
 *  @param cmpOp qvpCmpGreater or qvpCmpLess
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: an image or array of values is null
 *  - qvpStatusSize: a side of the region is below 1
 *  - qvpStatusStep: a step is below 1
 *  - qvpStatusNotSupportedMode: `cmpOp` is neither of the two
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiThreshold_8u_C1R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, Qvp8u threshold, QvpCmpOp cmpOp);
QvpStatus qvpiThreshold_8u_C3R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, const Qvp8u threshold[3], QvpCmpOp cmpOp);
QvpStatus qvpiThreshold_8u_C4R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, const Qvp8u threshold[4], QvpCmpOp cmpOp);
QvpStatus qvpiThreshold_8u_AC4R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, const Qvp8u threshold[3], QvpCmpOp cmpOp);
QvpStatus qvpiThreshold_16u_C1R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, Qvp16u threshold, QvpCmpOp cmpOp);
QvpStatus qvpiThreshold_16u_C3R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, const Qvp16u threshold[3], QvpCmpOp cmpOp);
QvpStatus qvpiThreshold_16u_C4R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, const Qvp16u threshold[4], QvpCmpOp cmpOp);
QvpStatus qvpiThreshold_16u_AC4R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, const Qvp16u threshold[3], QvpCmpOp cmpOp);
QvpStatus qvpiThreshold_16s_C1R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, Qvp16s threshold, QvpCmpOp cmpOp);
QvpStatus qvpiThreshold_16s_C3R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, const Qvp16s threshold[3], QvpCmpOp cmpOp);
QvpStatus qvpiThreshold_16s_C4R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, const Qvp16s threshold[4], QvpCmpOp cmpOp);
QvpStatus qvpiThreshold_16s_AC4R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, const Qvp16s threshold[3], QvpCmpOp cmpOp);
QvpStatus qvpiThreshold_32f_C1R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, Qvp32f threshold, QvpCmpOp cmpOp);
QvpStatus qvpiThreshold_32f_C3R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, const Qvp32f threshold[3], QvpCmpOp cmpOp);
QvpStatus qvpiThreshold_32f_C4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, const Qvp32f threshold[4], QvpCmpOp cmpOp);
QvpStatus qvpiThreshold_32f_AC4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, const Qvp32f threshold[3], QvpCmpOp cmpOp);
QvpStatus qvpiThreshold_8u_C1IR(Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, Qvp8u threshold, QvpCmpOp cmpOp);
QvpStatus qvpiThreshold_8u_C3IR(Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, const Qvp8u threshold[3], QvpCmpOp cmpOp);
QvpStatus qvpiThreshold_8u_C4IR(Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, const Qvp8u threshold[4], QvpCmpOp cmpOp);
QvpStatus qvpiThreshold_8u_AC4IR(Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, const Qvp8u threshold[3], QvpCmpOp cmpOp);
QvpStatus qvpiThreshold_16u_C1IR(Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, Qvp16u threshold, QvpCmpOp cmpOp);
QvpStatus qvpiThreshold_16u_C3IR(Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, const Qvp16u threshold[3], QvpCmpOp cmpOp);
QvpStatus qvpiThreshold_16u_C4IR(Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, const Qvp16u threshold[4], QvpCmpOp cmpOp);
QvpStatus qvpiThreshold_16u_AC4IR(Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, const Qvp16u threshold[3], QvpCmpOp cmpOp);
QvpStatus qvpiThreshold_16s_C1IR(Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize, Qvp16s threshold, QvpCmpOp cmpOp);
QvpStatus qvpiThreshold_16s_C3IR(Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize, const Qvp16s threshold[3], QvpCmpOp cmpOp);
QvpStatus qvpiThreshold_16s_C4IR(Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize, const Qvp16s threshold[4], QvpCmpOp cmpOp);
QvpStatus qvpiThreshold_16s_AC4IR(Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize, const Qvp16s threshold[3], QvpCmpOp cmpOp);
QvpStatus qvpiThreshold_32f_C1IR(Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize, Qvp32f threshold, QvpCmpOp cmpOp);
QvpStatus qvpiThreshold_32f_C3IR(Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize, const Qvp32f threshold[3], QvpCmpOp cmpOp);
QvpStatus qvpiThreshold_32f_C4IR(Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize, const Qvp32f threshold[4], QvpCmpOp cmpOp);
QvpStatus qvpiThreshold_32f_AC4IR(Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize, const Qvp32f threshold[3], QvpCmpOp cmpOp);
/** @} */

/** @name Threshold: values above become the threshold
 *  @{ */
/** Bounds values from above: dst = min(src, threshold).
 *
 *  The same as qvpiThreshold with qvpCmpGreater: a pixel that is not a number stays as it is. Source and destination
 *  may be the same image.
 *
 *  @param pSrc,srcStep source image
 *  @param pDst,dstStep destination image
 *  @param pSrcDst,srcDstStep in place: the image
 *  @param roiSize region in pixels
 *  @param threshold the bound: one value for one channel, an array of 3 (C3, AC4) or 4 (C4) otherwise
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: an image or array of values is null
 *  - qvpStatusSize: a side of the region is below 1
 *  - qvpStatusStep: a step is below 1
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiThreshold_GT_8u_C1R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, Qvp8u threshold);
QvpStatus qvpiThreshold_GT_8u_C3R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, const Qvp8u threshold[3]);
QvpStatus qvpiThreshold_GT_8u_C4R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, const Qvp8u threshold[4]);
QvpStatus qvpiThreshold_GT_8u_AC4R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, const Qvp8u threshold[3]);
QvpStatus qvpiThreshold_GT_16u_C1R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, Qvp16u threshold);
QvpStatus qvpiThreshold_GT_16u_C3R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, const Qvp16u threshold[3]);
QvpStatus qvpiThreshold_GT_16u_C4R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, const Qvp16u threshold[4]);
QvpStatus qvpiThreshold_GT_16u_AC4R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, const Qvp16u threshold[3]);
QvpStatus qvpiThreshold_GT_16s_C1R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, Qvp16s threshold);
QvpStatus qvpiThreshold_GT_16s_C3R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, const Qvp16s threshold[3]);
QvpStatus qvpiThreshold_GT_16s_C4R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, const Qvp16s threshold[4]);
QvpStatus qvpiThreshold_GT_16s_AC4R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, const Qvp16s threshold[3]);
QvpStatus qvpiThreshold_GT_32f_C1R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, Qvp32f threshold);
QvpStatus qvpiThreshold_GT_32f_C3R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, const Qvp32f threshold[3]);
QvpStatus qvpiThreshold_GT_32f_C4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, const Qvp32f threshold[4]);
QvpStatus qvpiThreshold_GT_32f_AC4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, const Qvp32f threshold[3]);
QvpStatus qvpiThreshold_GT_8u_C1IR(Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, Qvp8u threshold);
QvpStatus qvpiThreshold_GT_8u_C3IR(Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, const Qvp8u threshold[3]);
QvpStatus qvpiThreshold_GT_8u_C4IR(Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, const Qvp8u threshold[4]);
QvpStatus qvpiThreshold_GT_8u_AC4IR(Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, const Qvp8u threshold[3]);
QvpStatus qvpiThreshold_GT_16u_C1IR(Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, Qvp16u threshold);
QvpStatus qvpiThreshold_GT_16u_C3IR(Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, const Qvp16u threshold[3]);
QvpStatus qvpiThreshold_GT_16u_C4IR(Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, const Qvp16u threshold[4]);
QvpStatus qvpiThreshold_GT_16u_AC4IR(Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, const Qvp16u threshold[3]);
QvpStatus qvpiThreshold_GT_16s_C1IR(Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize, Qvp16s threshold);
QvpStatus qvpiThreshold_GT_16s_C3IR(Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize, const Qvp16s threshold[3]);
QvpStatus qvpiThreshold_GT_16s_C4IR(Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize, const Qvp16s threshold[4]);
QvpStatus qvpiThreshold_GT_16s_AC4IR(Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize, const Qvp16s threshold[3]);
QvpStatus qvpiThreshold_GT_32f_C1IR(Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize, Qvp32f threshold);
QvpStatus qvpiThreshold_GT_32f_C3IR(Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize, const Qvp32f threshold[3]);
QvpStatus qvpiThreshold_GT_32f_C4IR(Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize, const Qvp32f threshold[4]);
QvpStatus qvpiThreshold_GT_32f_AC4IR(Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize, const Qvp32f threshold[3]);
/** @} */

/** @name Threshold: values below become the threshold
 *  @{ */
/** Bounds values from below: dst = max(src, threshold).
 *
 *  The same as qvpiThreshold with qvpCmpLess: a pixel that is not a number stays as it is. Source and destination may
 *  be the same image.
 *
 *  @param pSrc,srcStep source image
 *  @param pDst,dstStep destination image
 *  @param pSrcDst,srcDstStep in place: the image
 *  @param roiSize region in pixels
 *  @param threshold the bound: one value for one channel, an array of 3 (C3, AC4) or 4 (C4) otherwise
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: an image or array of values is null
 *  - qvpStatusSize: a side of the region is below 1
 *  - qvpStatusStep: a step is below 1
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiThreshold_LT_8u_C1R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, Qvp8u threshold);
QvpStatus qvpiThreshold_LT_8u_C3R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, const Qvp8u threshold[3]);
QvpStatus qvpiThreshold_LT_8u_C4R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, const Qvp8u threshold[4]);
QvpStatus qvpiThreshold_LT_8u_AC4R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, const Qvp8u threshold[3]);
QvpStatus qvpiThreshold_LT_16u_C1R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, Qvp16u threshold);
QvpStatus qvpiThreshold_LT_16u_C3R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, const Qvp16u threshold[3]);
QvpStatus qvpiThreshold_LT_16u_C4R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, const Qvp16u threshold[4]);
QvpStatus qvpiThreshold_LT_16u_AC4R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, const Qvp16u threshold[3]);
QvpStatus qvpiThreshold_LT_16s_C1R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, Qvp16s threshold);
QvpStatus qvpiThreshold_LT_16s_C3R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, const Qvp16s threshold[3]);
QvpStatus qvpiThreshold_LT_16s_C4R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, const Qvp16s threshold[4]);
QvpStatus qvpiThreshold_LT_16s_AC4R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, const Qvp16s threshold[3]);
QvpStatus qvpiThreshold_LT_32f_C1R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, Qvp32f threshold);
QvpStatus qvpiThreshold_LT_32f_C3R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, const Qvp32f threshold[3]);
QvpStatus qvpiThreshold_LT_32f_C4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, const Qvp32f threshold[4]);
QvpStatus qvpiThreshold_LT_32f_AC4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, const Qvp32f threshold[3]);
QvpStatus qvpiThreshold_LT_8u_C1IR(Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, Qvp8u threshold);
QvpStatus qvpiThreshold_LT_8u_C3IR(Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, const Qvp8u threshold[3]);
QvpStatus qvpiThreshold_LT_8u_C4IR(Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, const Qvp8u threshold[4]);
QvpStatus qvpiThreshold_LT_8u_AC4IR(Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, const Qvp8u threshold[3]);
QvpStatus qvpiThreshold_LT_16u_C1IR(Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, Qvp16u threshold);
QvpStatus qvpiThreshold_LT_16u_C3IR(Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, const Qvp16u threshold[3]);
QvpStatus qvpiThreshold_LT_16u_C4IR(Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, const Qvp16u threshold[4]);
QvpStatus qvpiThreshold_LT_16u_AC4IR(Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, const Qvp16u threshold[3]);
QvpStatus qvpiThreshold_LT_16s_C1IR(Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize, Qvp16s threshold);
QvpStatus qvpiThreshold_LT_16s_C3IR(Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize, const Qvp16s threshold[3]);
QvpStatus qvpiThreshold_LT_16s_C4IR(Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize, const Qvp16s threshold[4]);
QvpStatus qvpiThreshold_LT_16s_AC4IR(Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize, const Qvp16s threshold[3]);
QvpStatus qvpiThreshold_LT_32f_C1IR(Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize, Qvp32f threshold);
QvpStatus qvpiThreshold_LT_32f_C3IR(Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize, const Qvp32f threshold[3]);
QvpStatus qvpiThreshold_LT_32f_C4IR(Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize, const Qvp32f threshold[4]);
QvpStatus qvpiThreshold_LT_32f_AC4IR(Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize, const Qvp32f threshold[3]);
/** @} */

/** @name Threshold: values above are replaced
 *  @{ */
/** Replaces values above a threshold: dst = src > threshold ? value : src.
 *
 *  A value equal to the threshold stays, and so does a pixel that is not a number. Source and destination may be the
 *  same image.
 *
 *  @param pSrc,srcStep source image
 *  @param pDst,dstStep destination image
 *  @param pSrcDst,srcDstStep in place: the image
 *  @param roiSize region in pixels
 *  @param threshold the bound: one value for one channel, an array of 3 (C3, AC4) or 4 (C4) otherwise
 *  @param value what stands for values above it, given in the same way
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: an image or array of values is null
 *  - qvpStatusSize: a side of the region is below 1
 *  - qvpStatusStep: a step is below 1
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiThreshold_GTVal_8u_C1R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, Qvp8u threshold, Qvp8u value);
QvpStatus qvpiThreshold_GTVal_8u_C3R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, const Qvp8u threshold[3], const Qvp8u value[3]);
QvpStatus qvpiThreshold_GTVal_8u_C4R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, const Qvp8u threshold[4], const Qvp8u value[4]);
QvpStatus qvpiThreshold_GTVal_8u_AC4R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, const Qvp8u threshold[3], const Qvp8u value[3]);
QvpStatus qvpiThreshold_GTVal_16u_C1R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, Qvp16u threshold, Qvp16u value);
QvpStatus qvpiThreshold_GTVal_16u_C3R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, const Qvp16u threshold[3], const Qvp16u value[3]);
QvpStatus qvpiThreshold_GTVal_16u_C4R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, const Qvp16u threshold[4], const Qvp16u value[4]);
QvpStatus qvpiThreshold_GTVal_16u_AC4R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, const Qvp16u threshold[3], const Qvp16u value[3]);
QvpStatus qvpiThreshold_GTVal_16s_C1R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, Qvp16s threshold, Qvp16s value);
QvpStatus qvpiThreshold_GTVal_16s_C3R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, const Qvp16s threshold[3], const Qvp16s value[3]);
QvpStatus qvpiThreshold_GTVal_16s_C4R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, const Qvp16s threshold[4], const Qvp16s value[4]);
QvpStatus qvpiThreshold_GTVal_16s_AC4R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, const Qvp16s threshold[3], const Qvp16s value[3]);
QvpStatus qvpiThreshold_GTVal_32f_C1R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, Qvp32f threshold, Qvp32f value);
QvpStatus qvpiThreshold_GTVal_32f_C3R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, const Qvp32f threshold[3], const Qvp32f value[3]);
QvpStatus qvpiThreshold_GTVal_32f_C4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, const Qvp32f threshold[4], const Qvp32f value[4]);
QvpStatus qvpiThreshold_GTVal_32f_AC4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, const Qvp32f threshold[3], const Qvp32f value[3]);
QvpStatus qvpiThreshold_GTVal_8u_C1IR(Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, Qvp8u threshold, Qvp8u value);
QvpStatus qvpiThreshold_GTVal_8u_C3IR(Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, const Qvp8u threshold[3], const Qvp8u value[3]);
QvpStatus qvpiThreshold_GTVal_8u_C4IR(Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, const Qvp8u threshold[4], const Qvp8u value[4]);
QvpStatus qvpiThreshold_GTVal_8u_AC4IR(Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, const Qvp8u threshold[3], const Qvp8u value[3]);
QvpStatus qvpiThreshold_GTVal_16u_C1IR(Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, Qvp16u threshold, Qvp16u value);
QvpStatus qvpiThreshold_GTVal_16u_C3IR(Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, const Qvp16u threshold[3], const Qvp16u value[3]);
QvpStatus qvpiThreshold_GTVal_16u_C4IR(Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, const Qvp16u threshold[4], const Qvp16u value[4]);
QvpStatus qvpiThreshold_GTVal_16u_AC4IR(Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, const Qvp16u threshold[3], const Qvp16u value[3]);
QvpStatus qvpiThreshold_GTVal_16s_C1IR(Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize, Qvp16s threshold, Qvp16s value);
QvpStatus qvpiThreshold_GTVal_16s_C3IR(Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize, const Qvp16s threshold[3], const Qvp16s value[3]);
QvpStatus qvpiThreshold_GTVal_16s_C4IR(Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize, const Qvp16s threshold[4], const Qvp16s value[4]);
QvpStatus qvpiThreshold_GTVal_16s_AC4IR(Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize, const Qvp16s threshold[3], const Qvp16s value[3]);
QvpStatus qvpiThreshold_GTVal_32f_C1IR(Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize, Qvp32f threshold, Qvp32f value);
QvpStatus qvpiThreshold_GTVal_32f_C3IR(Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize, const Qvp32f threshold[3], const Qvp32f value[3]);
QvpStatus qvpiThreshold_GTVal_32f_C4IR(Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize, const Qvp32f threshold[4], const Qvp32f value[4]);
QvpStatus qvpiThreshold_GTVal_32f_AC4IR(Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize, const Qvp32f threshold[3], const Qvp32f value[3]);
/** @} */

/** @name Threshold: values below are replaced
 *  @{ */
/** Replaces values below a threshold: dst = src < threshold ? value : src.
 *
 *  A value equal to the threshold stays, and so does a pixel that is not a number. Source and destination may be the
 *  same image.
 *
 *  @param pSrc,srcStep source image
 *  @param pDst,dstStep destination image
 *  @param pSrcDst,srcDstStep in place: the image
 *  @param roiSize region in pixels
 *  @param threshold the bound: one value for one channel, an array of 3 (C3, AC4) or 4 (C4) otherwise
 *  @param value what stands for values below it, given in the same way
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: an image or array of values is null
 *  - qvpStatusSize: a side of the region is below 1
 *  - qvpStatusStep: a step is below 1
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiThreshold_LTVal_8u_C1R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, Qvp8u threshold, Qvp8u value);
QvpStatus qvpiThreshold_LTVal_8u_C3R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, const Qvp8u threshold[3], const Qvp8u value[3]);
QvpStatus qvpiThreshold_LTVal_8u_C4R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, const Qvp8u threshold[4], const Qvp8u value[4]);
QvpStatus qvpiThreshold_LTVal_8u_AC4R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, const Qvp8u threshold[3], const Qvp8u value[3]);
QvpStatus qvpiThreshold_LTVal_16u_C1R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, Qvp16u threshold, Qvp16u value);
QvpStatus qvpiThreshold_LTVal_16u_C3R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, const Qvp16u threshold[3], const Qvp16u value[3]);
QvpStatus qvpiThreshold_LTVal_16u_C4R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, const Qvp16u threshold[4], const Qvp16u value[4]);
QvpStatus qvpiThreshold_LTVal_16u_AC4R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, const Qvp16u threshold[3], const Qvp16u value[3]);
QvpStatus qvpiThreshold_LTVal_16s_C1R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, Qvp16s threshold, Qvp16s value);
QvpStatus qvpiThreshold_LTVal_16s_C3R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, const Qvp16s threshold[3], const Qvp16s value[3]);
QvpStatus qvpiThreshold_LTVal_16s_C4R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, const Qvp16s threshold[4], const Qvp16s value[4]);
QvpStatus qvpiThreshold_LTVal_16s_AC4R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, const Qvp16s threshold[3], const Qvp16s value[3]);
QvpStatus qvpiThreshold_LTVal_32f_C1R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, Qvp32f threshold, Qvp32f value);
QvpStatus qvpiThreshold_LTVal_32f_C3R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, const Qvp32f threshold[3], const Qvp32f value[3]);
QvpStatus qvpiThreshold_LTVal_32f_C4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, const Qvp32f threshold[4], const Qvp32f value[4]);
QvpStatus qvpiThreshold_LTVal_32f_AC4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, const Qvp32f threshold[3], const Qvp32f value[3]);
QvpStatus qvpiThreshold_LTVal_8u_C1IR(Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, Qvp8u threshold, Qvp8u value);
QvpStatus qvpiThreshold_LTVal_8u_C3IR(Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, const Qvp8u threshold[3], const Qvp8u value[3]);
QvpStatus qvpiThreshold_LTVal_8u_C4IR(Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, const Qvp8u threshold[4], const Qvp8u value[4]);
QvpStatus qvpiThreshold_LTVal_8u_AC4IR(Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, const Qvp8u threshold[3], const Qvp8u value[3]);
QvpStatus qvpiThreshold_LTVal_16u_C1IR(Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, Qvp16u threshold, Qvp16u value);
QvpStatus qvpiThreshold_LTVal_16u_C3IR(Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, const Qvp16u threshold[3], const Qvp16u value[3]);
QvpStatus qvpiThreshold_LTVal_16u_C4IR(Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, const Qvp16u threshold[4], const Qvp16u value[4]);
QvpStatus qvpiThreshold_LTVal_16u_AC4IR(Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, const Qvp16u threshold[3], const Qvp16u value[3]);
QvpStatus qvpiThreshold_LTVal_16s_C1IR(Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize, Qvp16s threshold, Qvp16s value);
QvpStatus qvpiThreshold_LTVal_16s_C3IR(Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize, const Qvp16s threshold[3], const Qvp16s value[3]);
QvpStatus qvpiThreshold_LTVal_16s_C4IR(Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize, const Qvp16s threshold[4], const Qvp16s value[4]);
QvpStatus qvpiThreshold_LTVal_16s_AC4IR(Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize, const Qvp16s threshold[3], const Qvp16s value[3]);
QvpStatus qvpiThreshold_LTVal_32f_C1IR(Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize, Qvp32f threshold, Qvp32f value);
QvpStatus qvpiThreshold_LTVal_32f_C3IR(Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize, const Qvp32f threshold[3], const Qvp32f value[3]);
QvpStatus qvpiThreshold_LTVal_32f_C4IR(Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize, const Qvp32f threshold[4], const Qvp32f value[4]);
QvpStatus qvpiThreshold_LTVal_32f_AC4IR(Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize, const Qvp32f threshold[3], const Qvp32f value[3]);
/** @} */

/** @name Threshold: values on both sides are replaced
 *  @{ */
/** Replaces values below a lower and above an upper threshold.
 *
 *  dst = src < thresholdLT ? valueLT : src > thresholdGT ? valueGT : src. A pixel that is not a number stays as it is.
 *  The values need not lie between the thresholds. Source and destination may be the same image.
 *
 *  @param pSrc,srcStep source image
 *  @param pDst,dstStep destination image
 *  @param pSrcDst,srcDstStep in place: the image
 *  @param roiSize region in pixels
 *  @param thresholdLT,thresholdGT lower and upper threshold: one value for one channel, an array of 3 (C3, AC4) or 4
 *         (C4) otherwise
 *  @param valueLT,valueGT what stands for values below and above, given in the same way
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: an image or array of values is null
 *  - qvpStatusSize: a side of the region is below 1
 *  - qvpStatusStep: a step is below 1
 *  - qvpStatusThreshold: not thresholdLT <= thresholdGT in a processed channel
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiThreshold_LTValGTVal_8u_C1R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, Qvp8u thresholdLT, Qvp8u valueLT, Qvp8u thresholdGT, Qvp8u valueGT);
QvpStatus qvpiThreshold_LTValGTVal_8u_C3R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, const Qvp8u thresholdLT[3], const Qvp8u valueLT[3], const Qvp8u thresholdGT[3], const Qvp8u valueGT[3]);
QvpStatus qvpiThreshold_LTValGTVal_8u_C4R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, const Qvp8u thresholdLT[4], const Qvp8u valueLT[4], const Qvp8u thresholdGT[4], const Qvp8u valueGT[4]);
QvpStatus qvpiThreshold_LTValGTVal_8u_AC4R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, const Qvp8u thresholdLT[3], const Qvp8u valueLT[3], const Qvp8u thresholdGT[3], const Qvp8u valueGT[3]);
QvpStatus qvpiThreshold_LTValGTVal_16u_C1R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, Qvp16u thresholdLT, Qvp16u valueLT, Qvp16u thresholdGT, Qvp16u valueGT);
QvpStatus qvpiThreshold_LTValGTVal_16u_C3R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, const Qvp16u thresholdLT[3], const Qvp16u valueLT[3], const Qvp16u thresholdGT[3], const Qvp16u valueGT[3]);
QvpStatus qvpiThreshold_LTValGTVal_16u_C4R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, const Qvp16u thresholdLT[4], const Qvp16u valueLT[4], const Qvp16u thresholdGT[4], const Qvp16u valueGT[4]);
QvpStatus qvpiThreshold_LTValGTVal_16u_AC4R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, const Qvp16u thresholdLT[3], const Qvp16u valueLT[3], const Qvp16u thresholdGT[3], const Qvp16u valueGT[3]);
QvpStatus qvpiThreshold_LTValGTVal_16s_C1R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, Qvp16s thresholdLT, Qvp16s valueLT, Qvp16s thresholdGT, Qvp16s valueGT);
QvpStatus qvpiThreshold_LTValGTVal_16s_C3R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, const Qvp16s thresholdLT[3], const Qvp16s valueLT[3], const Qvp16s thresholdGT[3], const Qvp16s valueGT[3]);
QvpStatus qvpiThreshold_LTValGTVal_16s_C4R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, const Qvp16s thresholdLT[4], const Qvp16s valueLT[4], const Qvp16s thresholdGT[4], const Qvp16s valueGT[4]);
QvpStatus qvpiThreshold_LTValGTVal_16s_AC4R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, const Qvp16s thresholdLT[3], const Qvp16s valueLT[3], const Qvp16s thresholdGT[3], const Qvp16s valueGT[3]);
QvpStatus qvpiThreshold_LTValGTVal_32f_C1R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, Qvp32f thresholdLT, Qvp32f valueLT, Qvp32f thresholdGT, Qvp32f valueGT);
QvpStatus qvpiThreshold_LTValGTVal_32f_C3R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, const Qvp32f thresholdLT[3], const Qvp32f valueLT[3], const Qvp32f thresholdGT[3], const Qvp32f valueGT[3]);
QvpStatus qvpiThreshold_LTValGTVal_32f_C4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, const Qvp32f thresholdLT[4], const Qvp32f valueLT[4], const Qvp32f thresholdGT[4], const Qvp32f valueGT[4]);
QvpStatus qvpiThreshold_LTValGTVal_32f_AC4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, const Qvp32f thresholdLT[3], const Qvp32f valueLT[3], const Qvp32f thresholdGT[3], const Qvp32f valueGT[3]);
QvpStatus qvpiThreshold_LTValGTVal_8u_C1IR(Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, Qvp8u thresholdLT, Qvp8u valueLT, Qvp8u thresholdGT, Qvp8u valueGT);
QvpStatus qvpiThreshold_LTValGTVal_8u_C3IR(Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, const Qvp8u thresholdLT[3], const Qvp8u valueLT[3], const Qvp8u thresholdGT[3], const Qvp8u valueGT[3]);
QvpStatus qvpiThreshold_LTValGTVal_8u_C4IR(Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, const Qvp8u thresholdLT[4], const Qvp8u valueLT[4], const Qvp8u thresholdGT[4], const Qvp8u valueGT[4]);
QvpStatus qvpiThreshold_LTValGTVal_8u_AC4IR(Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, const Qvp8u thresholdLT[3], const Qvp8u valueLT[3], const Qvp8u thresholdGT[3], const Qvp8u valueGT[3]);
QvpStatus qvpiThreshold_LTValGTVal_16u_C1IR(Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, Qvp16u thresholdLT, Qvp16u valueLT, Qvp16u thresholdGT, Qvp16u valueGT);
QvpStatus qvpiThreshold_LTValGTVal_16u_C3IR(Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, const Qvp16u thresholdLT[3], const Qvp16u valueLT[3], const Qvp16u thresholdGT[3], const Qvp16u valueGT[3]);
QvpStatus qvpiThreshold_LTValGTVal_16u_C4IR(Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, const Qvp16u thresholdLT[4], const Qvp16u valueLT[4], const Qvp16u thresholdGT[4], const Qvp16u valueGT[4]);
QvpStatus qvpiThreshold_LTValGTVal_16u_AC4IR(Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, const Qvp16u thresholdLT[3], const Qvp16u valueLT[3], const Qvp16u thresholdGT[3], const Qvp16u valueGT[3]);
QvpStatus qvpiThreshold_LTValGTVal_16s_C1IR(Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize, Qvp16s thresholdLT, Qvp16s valueLT, Qvp16s thresholdGT, Qvp16s valueGT);
QvpStatus qvpiThreshold_LTValGTVal_16s_C3IR(Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize, const Qvp16s thresholdLT[3], const Qvp16s valueLT[3], const Qvp16s thresholdGT[3], const Qvp16s valueGT[3]);
QvpStatus qvpiThreshold_LTValGTVal_16s_C4IR(Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize, const Qvp16s thresholdLT[4], const Qvp16s valueLT[4], const Qvp16s thresholdGT[4], const Qvp16s valueGT[4]);
QvpStatus qvpiThreshold_LTValGTVal_16s_AC4IR(Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize, const Qvp16s thresholdLT[3], const Qvp16s valueLT[3], const Qvp16s thresholdGT[3], const Qvp16s valueGT[3]);
QvpStatus qvpiThreshold_LTValGTVal_32f_C1IR(Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize, Qvp32f thresholdLT, Qvp32f valueLT, Qvp32f thresholdGT, Qvp32f valueGT);
QvpStatus qvpiThreshold_LTValGTVal_32f_C3IR(Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize, const Qvp32f thresholdLT[3], const Qvp32f valueLT[3], const Qvp32f thresholdGT[3], const Qvp32f valueGT[3]);
QvpStatus qvpiThreshold_LTValGTVal_32f_C4IR(Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize, const Qvp32f thresholdLT[4], const Qvp32f valueLT[4], const Qvp32f thresholdGT[4], const Qvp32f valueGT[4]);
QvpStatus qvpiThreshold_LTValGTVal_32f_AC4IR(Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize, const Qvp32f thresholdLT[3], const Qvp32f valueLT[3], const Qvp32f thresholdGT[3], const Qvp32f valueGT[3]);
/** @} */

/** @name Threshold: Otsu
 *  @{ */
/** The threshold that separates the grey values of an image best.
 *
 *  Of all levels k, the one for which the classes [0, k] and [k + 1, 255] have the greatest variance between them,
 *
 *  @code
 *    (w1 * m - w0 * (mean - m))^2 / (w0 * w1)
 *  @endcode
 *
 *  where w0 and w1 are the shares of the classes and m is the first moment of the lower one; levels count as k + 0.5.
 *  Computed in double precision, levels in ascending order; the lowest of equal ones. Levels at which either class has
 *  less than 2^-23 of the pixels are passed over, and what lies at such levels at the lower end is no part of m. An
 *  image of one value gives 0.
 *
 *  Values above the threshold are the upper class: qvpiCompareC with qvpCmpGreater makes it an image of 0 and 255. With
 *  both its thresholds at the level, qvpiThreshold_LTValGTVal replaces the classes by two values, but leaves pixels
 *  that equal the level; qvpiThreshold only clamps.
 *
 *  Source: N. Otsu, A threshold selection method from gray-level histograms, 1979.
 *
 *  @param pSrc,srcStep source image
 *  @param roiSize region in pixels
 *  @param pThreshold receives the threshold
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: a pointer is null
 *  - qvpStatusSize: a side of the region is below 1
 *  - qvpStatusStep: the step is below the width
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiComputeThreshold_Otsu_8u_C1R(const Qvp8u* pSrc, int srcStep, QvpiSize roiSize, Qvp8u* pThreshold);
/** @} */

/** @name Compare two images
 *  @{ */
/** Tests a relation between two images: dst = (src1 relation src2) ? 255 : 0.
 *
 *  A pixel of the destination, a one-channel 8-bit image, is 255 where the relation holds for all channels of the
 *  pixel (the first three of AC4), else 0. What is not a number stands in no relation, not even to itself.
 *
 *  @param pSrc1,src1Step image on the left of the relation
 *  @param pSrc2,src2Step image on its right
 *  @param pDst,dstStep destination image, one byte a pixel
 *  @param roiSize region in pixels
 *  @param cmpOp the relation; any other value succeeds without doing anything
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: an image or array of values is null
 *  - qvpStatusSize: a side of the region is below 1
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiCompare_8u_C1R(const Qvp8u* pSrc1, int src1Step, const Qvp8u* pSrc2, int src2Step, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpCmpOp cmpOp);
QvpStatus qvpiCompare_8u_C3R(const Qvp8u* pSrc1, int src1Step, const Qvp8u* pSrc2, int src2Step, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpCmpOp cmpOp);
QvpStatus qvpiCompare_8u_C4R(const Qvp8u* pSrc1, int src1Step, const Qvp8u* pSrc2, int src2Step, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpCmpOp cmpOp);
QvpStatus qvpiCompare_8u_AC4R(const Qvp8u* pSrc1, int src1Step, const Qvp8u* pSrc2, int src2Step, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpCmpOp cmpOp);
QvpStatus qvpiCompare_16u_C1R(const Qvp16u* pSrc1, int src1Step, const Qvp16u* pSrc2, int src2Step, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpCmpOp cmpOp);
QvpStatus qvpiCompare_16u_C3R(const Qvp16u* pSrc1, int src1Step, const Qvp16u* pSrc2, int src2Step, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpCmpOp cmpOp);
QvpStatus qvpiCompare_16u_C4R(const Qvp16u* pSrc1, int src1Step, const Qvp16u* pSrc2, int src2Step, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpCmpOp cmpOp);
QvpStatus qvpiCompare_16u_AC4R(const Qvp16u* pSrc1, int src1Step, const Qvp16u* pSrc2, int src2Step, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpCmpOp cmpOp);
QvpStatus qvpiCompare_16s_C1R(const Qvp16s* pSrc1, int src1Step, const Qvp16s* pSrc2, int src2Step, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpCmpOp cmpOp);
QvpStatus qvpiCompare_16s_C3R(const Qvp16s* pSrc1, int src1Step, const Qvp16s* pSrc2, int src2Step, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpCmpOp cmpOp);
QvpStatus qvpiCompare_16s_C4R(const Qvp16s* pSrc1, int src1Step, const Qvp16s* pSrc2, int src2Step, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpCmpOp cmpOp);
QvpStatus qvpiCompare_16s_AC4R(const Qvp16s* pSrc1, int src1Step, const Qvp16s* pSrc2, int src2Step, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpCmpOp cmpOp);
QvpStatus qvpiCompare_32f_C1R(const Qvp32f* pSrc1, int src1Step, const Qvp32f* pSrc2, int src2Step, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpCmpOp cmpOp);
QvpStatus qvpiCompare_32f_C3R(const Qvp32f* pSrc1, int src1Step, const Qvp32f* pSrc2, int src2Step, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpCmpOp cmpOp);
QvpStatus qvpiCompare_32f_C4R(const Qvp32f* pSrc1, int src1Step, const Qvp32f* pSrc2, int src2Step, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpCmpOp cmpOp);
QvpStatus qvpiCompare_32f_AC4R(const Qvp32f* pSrc1, int src1Step, const Qvp32f* pSrc2, int src2Step, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpCmpOp cmpOp);
/** @} */

/** @name Compare with a constant
 *  @{ */
/** Tests a relation between an image and a constant: dst = (src relation value) ? 255 : 0.
 *
 *  A pixel of the destination, a one-channel 8-bit image, is 255 where the relation holds for all channels of the
 *  pixel (the first three of AC4), else 0. What is not a number stands in no relation, not even to itself.
 *
 *  @param pSrc,srcStep image on the left of the relation
 *  @param value what stands on its right: one value for one channel, an array of 3 (C3, AC4) or 4 (C4) otherwise
 *  @param pDst,dstStep destination image, one byte a pixel
 *  @param roiSize region in pixels
 *  @param cmpOp the relation; any other value succeeds without doing anything
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: an image or array of values is null
 *  - qvpStatusSize: a side of the region is below 1
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiCompareC_8u_C1R(const Qvp8u* pSrc, int srcStep, Qvp8u value, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpCmpOp cmpOp);
QvpStatus qvpiCompareC_8u_C3R(const Qvp8u* pSrc, int srcStep, const Qvp8u value[3], Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpCmpOp cmpOp);
QvpStatus qvpiCompareC_8u_C4R(const Qvp8u* pSrc, int srcStep, const Qvp8u value[4], Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpCmpOp cmpOp);
QvpStatus qvpiCompareC_8u_AC4R(const Qvp8u* pSrc, int srcStep, const Qvp8u value[3], Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpCmpOp cmpOp);
QvpStatus qvpiCompareC_16u_C1R(const Qvp16u* pSrc, int srcStep, Qvp16u value, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpCmpOp cmpOp);
QvpStatus qvpiCompareC_16u_C3R(const Qvp16u* pSrc, int srcStep, const Qvp16u value[3], Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpCmpOp cmpOp);
QvpStatus qvpiCompareC_16u_C4R(const Qvp16u* pSrc, int srcStep, const Qvp16u value[4], Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpCmpOp cmpOp);
QvpStatus qvpiCompareC_16u_AC4R(const Qvp16u* pSrc, int srcStep, const Qvp16u value[3], Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpCmpOp cmpOp);
QvpStatus qvpiCompareC_16s_C1R(const Qvp16s* pSrc, int srcStep, Qvp16s value, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpCmpOp cmpOp);
QvpStatus qvpiCompareC_16s_C3R(const Qvp16s* pSrc, int srcStep, const Qvp16s value[3], Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpCmpOp cmpOp);
QvpStatus qvpiCompareC_16s_C4R(const Qvp16s* pSrc, int srcStep, const Qvp16s value[4], Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpCmpOp cmpOp);
QvpStatus qvpiCompareC_16s_AC4R(const Qvp16s* pSrc, int srcStep, const Qvp16s value[3], Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpCmpOp cmpOp);
QvpStatus qvpiCompareC_32f_C1R(const Qvp32f* pSrc, int srcStep, Qvp32f value, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpCmpOp cmpOp);
QvpStatus qvpiCompareC_32f_C3R(const Qvp32f* pSrc, int srcStep, const Qvp32f value[3], Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpCmpOp cmpOp);
QvpStatus qvpiCompareC_32f_C4R(const Qvp32f* pSrc, int srcStep, const Qvp32f value[4], Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpCmpOp cmpOp);
QvpStatus qvpiCompareC_32f_AC4R(const Qvp32f* pSrc, int srcStep, const Qvp32f value[3], Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpCmpOp cmpOp);
/** @} */

/** @name Compare two images within a tolerance
 *  @{ */
/** Tests whether two images are equal but for a tolerance: dst = |src1 - src2| <= eps ? 255 : 0.
 *
 *  A pixel of the destination, a one-channel 8-bit image, is 255 where this holds for all channels of the pixel (the
 *  first three of AC4), else 0. Differences are rounded to single precision. NaN equals nothing. Infinities of one sign
 *  are not equal either, as their difference is NaN; any other difference with an infinity is infinite, and within an
 *  infinite tolerance only.
 *
 *  @param pSrc1,src1Step first image
 *  @param pSrc2,src2Step second image
 *  @param pDst,dstStep destination image, one byte a pixel
 *  @param roiSize region in pixels
 *  @param eps tolerance, at least 0
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: an image or array of values is null
 *  - qvpStatusSize: a side of the region is below 1
 *  - qvpStatusEps: the tolerance is negative or not a number
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiCompareEqualEps_32f_C1R(const Qvp32f* pSrc1, int src1Step, const Qvp32f* pSrc2, int src2Step, Qvp8u* pDst, int dstStep, QvpiSize roiSize, Qvp32f eps);
QvpStatus qvpiCompareEqualEps_32f_C3R(const Qvp32f* pSrc1, int src1Step, const Qvp32f* pSrc2, int src2Step, Qvp8u* pDst, int dstStep, QvpiSize roiSize, Qvp32f eps);
QvpStatus qvpiCompareEqualEps_32f_C4R(const Qvp32f* pSrc1, int src1Step, const Qvp32f* pSrc2, int src2Step, Qvp8u* pDst, int dstStep, QvpiSize roiSize, Qvp32f eps);
QvpStatus qvpiCompareEqualEps_32f_AC4R(const Qvp32f* pSrc1, int src1Step, const Qvp32f* pSrc2, int src2Step, Qvp8u* pDst, int dstStep, QvpiSize roiSize, Qvp32f eps);
/** @} */

/** @name Compare with a constant within a tolerance
 *  @{ */
/** Tests whether an image equals a constant but for a tolerance: dst = |src - value| <= eps ? 255 : 0.
 *
 *  A pixel of the destination, a one-channel 8-bit image, is 255 where this holds for all channels of the pixel (the
 *  first three of AC4), else 0. Differences are rounded to single precision. NaN equals nothing. Infinities of one sign
 *  are not equal either, as their difference is NaN; any other difference with an infinity is infinite, and within an
 *  infinite tolerance only.
 *
 *  @param pSrc,srcStep source image
 *  @param value the constant: one value for one channel, an array of 3 (C3, AC4) or 4 (C4) otherwise
 *  @param pDst,dstStep destination image, one byte a pixel
 *  @param roiSize region in pixels
 *  @param eps tolerance, at least 0
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: an image or array of values is null
 *  - qvpStatusSize: a side of the region is below 1
 *  - qvpStatusEps: the tolerance is negative or not a number
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiCompareEqualEpsC_32f_C1R(const Qvp32f* pSrc, int srcStep, Qvp32f value, Qvp8u* pDst, int dstStep, QvpiSize roiSize, Qvp32f eps);
QvpStatus qvpiCompareEqualEpsC_32f_C3R(const Qvp32f* pSrc, int srcStep, const Qvp32f value[3], Qvp8u* pDst, int dstStep, QvpiSize roiSize, Qvp32f eps);
QvpStatus qvpiCompareEqualEpsC_32f_C4R(const Qvp32f* pSrc, int srcStep, const Qvp32f value[4], Qvp8u* pDst, int dstStep, QvpiSize roiSize, Qvp32f eps);
QvpStatus qvpiCompareEqualEpsC_32f_AC4R(const Qvp32f* pSrc, int srcStep, const Qvp32f value[3], Qvp8u* pDst, int dstStep, QvpiSize roiSize, Qvp32f eps);
/** @} */

/** @name Count in range
 *  @{ */
/** Counts the pixels whose values lie in a range: lowerBound <= src <= upperBound.
 *
 *  C3 and AC4 count each of three channels on its own. What is not a number lies in no range. A count beyond
 *  2147483647 is given as that.
 *
 *  @param pSrc,srcStep source image
 *  @param roiSize region in pixels
 *  @param pCounts receives the count, or three of them
 *  @param lowerBound,upperBound the range, both ends inclusive: one value each for one channel, arrays of 3 otherwise
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: an image, the counts or an array of bounds is null
 *  - qvpStatusStep: the step is below 1
 *  - qvpStatusSize: a side of the region is below 1
 *  - qvpStatusRange: not lowerBound <= upperBound in a channel
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiCountInRange_8u_C1R(const Qvp8u* pSrc, int srcStep, QvpiSize roiSize, int* pCounts, Qvp8u lowerBound, Qvp8u upperBound);
QvpStatus qvpiCountInRange_8u_C3R(const Qvp8u* pSrc, int srcStep, QvpiSize roiSize, int pCounts[3], const Qvp8u lowerBound[3], const Qvp8u upperBound[3]);
QvpStatus qvpiCountInRange_8u_AC4R(const Qvp8u* pSrc, int srcStep, QvpiSize roiSize, int pCounts[3], const Qvp8u lowerBound[3], const Qvp8u upperBound[3]);
QvpStatus qvpiCountInRange_32f_C1R(const Qvp32f* pSrc, int srcStep, QvpiSize roiSize, int* pCounts, Qvp32f lowerBound, Qvp32f upperBound);
QvpStatus qvpiCountInRange_32f_C3R(const Qvp32f* pSrc, int srcStep, QvpiSize roiSize, int pCounts[3], const Qvp32f lowerBound[3], const Qvp32f upperBound[3]);
QvpStatus qvpiCountInRange_32f_AC4R(const Qvp32f* pSrc, int srcStep, QvpiSize roiSize, int pCounts[3], const Qvp32f lowerBound[3], const Qvp32f upperBound[3]);
/** @} */

/** @name Premultiplication
 *  @{ */
/** Multiplies colors by the alpha of their pixel: color = color alpha / M, which is what qvpiComposite works on.
 *
 *  M, the largest value of the type, stands for an alpha of 1: 255 or 65535. The quotient is rounded to the nearest
 *  integer; there are no ties. Floats have M = 1, and their product is rounded once. Alpha is copied.
 *
 *  AC4 are four values to a pixel, the last one alpha; AP4 are four planes with one step, the last one alpha. All four
 *  are written. Planes do not overlap each other.
 *
 *  @param pSrc,srcStep source image
 *  @param pDst,dstStep destination image; it may be the source
 *  @param pSrcDst,srcDstStep in place: source and destination
 *  @param roiSize size of the region in pixels
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: an image, an array of planes or a plane is null
 *  - qvpStatusSize: a side of the region is below 1
 *  - qvpStatusStep: a step is below 1
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiPremultiply_8u_AC4R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiPremultiply_8u_AC4IR(Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiPremultiply_8u_AP4R(const Qvp8u* const pSrc[4], int srcStep, Qvp8u* const pDst[4], int dstStep, QvpiSize roiSize);
QvpStatus qvpiPremultiply_8u_AP4IR(Qvp8u* const pSrcDst[4], int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiPremultiply_16u_AC4R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiPremultiply_16u_AC4IR(Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiPremultiply_32f_AC4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiPremultiply_32f_AC4IR(Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize);
/** @} */

/** @name Premultiplication undone
 *  @{ */
/** Divides premultiplied colors by the alpha of their pixel: color = min(M, color M / alpha); 0 where alpha is 0.
 *
 *  M, the largest value of the type, stands for an alpha of 1: 255 or 65535. The quotient is rounded to the nearest
 *  integer, halves up: 100 of alpha 128 becomes 199, 1 of alpha 2 becomes 128. Colors of 8 bits that were
 *  premultiplied come back exactly where alpha is 255, and otherwise with an error of about 128 / alpha: 1 for an alpha
 *  of 128, 2 for 64, 8 for 16.
 *
 *  Floats have M = 1: color / alpha, rounded once and not bounded; +0 where alpha is +0 or -0. Alpha is copied.
 *
 *  AC4 are four values to a pixel, the last one alpha; AP4 are four planes with one step, the last one alpha. All four
 *  are written. Planes do not overlap each other.
 *
 *  @param pSrc,srcStep source image
 *  @param pDst,dstStep destination image; it may be the source
 *  @param pSrcDst,srcDstStep in place: source and destination
 *  @param roiSize size of the region in pixels
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: an image, an array of planes or a plane is null
 *  - qvpStatusSize: a side of the region is below 1
 *  - qvpStatusStep: a step is below 1
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiUnpremultiply_8u_AC4R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiUnpremultiply_8u_AC4IR(Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiUnpremultiply_8u_AP4R(const Qvp8u* const pSrc[4], int srcStep, Qvp8u* const pDst[4], int dstStep, QvpiSize roiSize);
QvpStatus qvpiUnpremultiply_8u_AP4IR(Qvp8u* const pSrcDst[4], int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiUnpremultiply_16u_AC4R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiUnpremultiply_16u_AC4IR(Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiUnpremultiply_32f_AC4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiUnpremultiply_32f_AC4IR(Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize);
/** @} */

/** @name Compositing of premultiplied images
 *  @{ */
/** Combines two layers whose pixels have an alpha: dst = F1 src1 + F2 src2, with the factors of an operator.
 *
 *  M, the largest value of the type, stands for an alpha of 1: 255 or 65535; floats have M = 1. Colors are premultiplied,
 *  that is times their alpha (qvpiPremultiply), so that alpha is treated like them: each of the four values is
 *  min(M, (F1 src1 + F2 src2) / M), rounded once to the nearest integer; there are no ties. The factors depend on the
 *  alphas a and b of both pixels and are told with QvpiCompositeOp. Colors above their alpha, which give light but cover
 *  less, are valid and saturate: (255, 0, 0, 10) over white is (255, 245, 245, 255).
 *
 *  Floats: both products are rounded, then their sum, and nothing is bounded. Where the operator has a factor of M, the
 *  layer itself is the term, and where it has 0, there is none: qvpCompositeClear gives +0 whatever the layers hold.
 *
 *  AC4 are four values to a pixel, the last one alpha; AP4 are four planes with one step, the last one alpha. All four
 *  are read and written. Planes do not overlap each other. Layers that are not premultiplied: qvpiCompositeStraight.
 *
 *  Source: Porter and Duff, "Compositing Digital Images", 1984.
 *
 *  @param pSrc1,src1Step first layer
 *  @param pSrc2,src2Step second layer
 *  @param pDst,dstStep destination image; it may be either layer
 *  @param pSrc,srcStep in place: first layer
 *  @param pSrcDst,srcDstStep in place: second layer and destination
 *  @param roiSize size of the region in pixels
 *  @param op operator: any of QvpiCompositeOp
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: an image, an array of planes or a plane is null
 *  - qvpStatusSize: a side of the region is below 1
 *  - qvpStatusStep: a step is below 1
 *  - qvpStatusAlphaType: `op` is not among the operators
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiComposite_8u_AC4R(const Qvp8u* pSrc1, int src1Step, const Qvp8u* pSrc2, int src2Step, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpiCompositeOp op);
QvpStatus qvpiComposite_8u_AC4IR(const Qvp8u* pSrc, int srcStep, Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, QvpiCompositeOp op);
QvpStatus qvpiComposite_8u_AP4R(const Qvp8u* const pSrc1[4], int src1Step, const Qvp8u* const pSrc2[4], int src2Step, Qvp8u* const pDst[4], int dstStep, QvpiSize roiSize, QvpiCompositeOp op);
QvpStatus qvpiComposite_8u_AP4IR(const Qvp8u* const pSrc[4], int srcStep, Qvp8u* const pSrcDst[4], int srcDstStep, QvpiSize roiSize, QvpiCompositeOp op);
QvpStatus qvpiComposite_16u_AC4R(const Qvp16u* pSrc1, int src1Step, const Qvp16u* pSrc2, int src2Step, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpiCompositeOp op);
QvpStatus qvpiComposite_16u_AC4IR(const Qvp16u* pSrc, int srcStep, Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, QvpiCompositeOp op);
QvpStatus qvpiComposite_16u_AP4R(const Qvp16u* const pSrc1[4], int src1Step, const Qvp16u* const pSrc2[4], int src2Step, Qvp16u* const pDst[4], int dstStep, QvpiSize roiSize, QvpiCompositeOp op);
QvpStatus qvpiComposite_16u_AP4IR(const Qvp16u* const pSrc[4], int srcStep, Qvp16u* const pSrcDst[4], int srcDstStep, QvpiSize roiSize, QvpiCompositeOp op);
QvpStatus qvpiComposite_32f_AC4R(const Qvp32f* pSrc1, int src1Step, const Qvp32f* pSrc2, int src2Step, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiCompositeOp op);
QvpStatus qvpiComposite_32f_AC4IR(const Qvp32f* pSrc, int srcStep, Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize, QvpiCompositeOp op);
/** @} */

/** @name Compositing of images that are not premultiplied
 *  @{ */
/** Combines two layers whose pixels have an alpha and colors that are not times it.
 *
 *  M, the largest value of the type, stands for an alpha of 1: 255 or 65535; floats have M = 1. With the alphas a and b
 *  of both pixels and the factors F1 and F2 of the operator, told with QvpiCompositeOp, the layers have the weights
 *  w1 = F1 a and w2 = F2 b:
 *
 *      alpha = (w1 + w2) / M, to the nearest integer; there are no ties
 *      color = (w1 src1 + w2 src2) / (w1 + w2), to the nearest integer, halves up
 *
 *  All four values are 0 where that alpha is 0. Over an opaque background, which need not be premultiplied, colors are
 *  the same as those of qvpiComposite with a premultiplied first layer, but rounded once.
 *
 *  Floats: weights, alpha = w1 + w2 and color = (w1 src1 + w2 src2) / alpha, each operation rounded, nothing bounded.
 *  Operators with one layer alone move its colors. All four values are +0 where that alpha is +0 or -0.
 *
 *  AC4 are four values to a pixel, the last one alpha; AP4 are four planes with one step, the last one alpha. All four
 *  are read and written. Planes do not overlap each other.
 *
 *  Source: Porter and Duff, "Compositing Digital Images", 1984.
 *
 *  @param pSrc1,src1Step first layer
 *  @param pSrc2,src2Step second layer
 *  @param pDst,dstStep destination image; it may be either layer
 *  @param pSrc,srcStep in place: first layer
 *  @param pSrcDst,srcDstStep in place: second layer and destination
 *  @param roiSize size of the region in pixels
 *  @param op operator: any of QvpiCompositeOp
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: an image, an array of planes or a plane is null
 *  - qvpStatusSize: a side of the region is below 1
 *  - qvpStatusStep: a step is below 1
 *  - qvpStatusAlphaType: `op` is not among the operators
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiCompositeStraight_8u_AC4R(const Qvp8u* pSrc1, int src1Step, const Qvp8u* pSrc2, int src2Step, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpiCompositeOp op);
QvpStatus qvpiCompositeStraight_8u_AC4IR(const Qvp8u* pSrc, int srcStep, Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, QvpiCompositeOp op);
QvpStatus qvpiCompositeStraight_8u_AP4R(const Qvp8u* const pSrc1[4], int src1Step, const Qvp8u* const pSrc2[4], int src2Step, Qvp8u* const pDst[4], int dstStep, QvpiSize roiSize, QvpiCompositeOp op);
QvpStatus qvpiCompositeStraight_8u_AP4IR(const Qvp8u* const pSrc[4], int srcStep, Qvp8u* const pSrcDst[4], int srcDstStep, QvpiSize roiSize, QvpiCompositeOp op);
QvpStatus qvpiCompositeStraight_16u_AC4R(const Qvp16u* pSrc1, int src1Step, const Qvp16u* pSrc2, int src2Step, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpiCompositeOp op);
QvpStatus qvpiCompositeStraight_16u_AC4IR(const Qvp16u* pSrc, int srcStep, Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, QvpiCompositeOp op);
QvpStatus qvpiCompositeStraight_16u_AP4R(const Qvp16u* const pSrc1[4], int src1Step, const Qvp16u* const pSrc2[4], int src2Step, Qvp16u* const pDst[4], int dstStep, QvpiSize roiSize, QvpiCompositeOp op);
QvpStatus qvpiCompositeStraight_16u_AP4IR(const Qvp16u* const pSrc[4], int srcStep, Qvp16u* const pSrcDst[4], int srcDstStep, QvpiSize roiSize, QvpiCompositeOp op);
QvpStatus qvpiCompositeStraight_32f_AC4R(const Qvp32f* pSrc1, int src1Step, const Qvp32f* pSrc2, int src2Step, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiCompositeOp op);
QvpStatus qvpiCompositeStraight_32f_AC4IR(const Qvp32f* pSrc, int srcStep, Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize, QvpiCompositeOp op);
/** @} */

/** @name Compositing with constant opacities
 *  @{ */
/** Combines two layers that have one opacity each: cross-fades, watermarks.
 *
 *  M, the largest value of the type, stands for an opacity of 1: 255 or 65535. With the factors F1 and F2 that the
 *  operator has for these opacities, told with QvpiCompositeOp, the weights are W1 = alpha1 F1 / M and
 *  W2 = alpha2 F2 / M, and dst = (W1 src1 + W2 src2) / M, each to the nearest integer; there are no ties. W1 + W2 is M
 *  at most, so that nothing saturates; the result is less than 1.5 from that with weights that are not rounded. The
 *  first layer at 40 % over the second: alpha1 = 102, alpha2 = 255, qvpCompositeFirstOver.
 *
 *  Floats have M = 1: W = alpha F, dst = src1 W1 + src2 W2, each operation rounded. Where the operator has a factor of 0
 *  there is no term, so that what that layer holds does not matter.
 *
 *  The result is times its opacity W1 + W2, as premultiplied colors are; over an opaque layer that is M. All channels
 *  are colors; AC4 keeps the alpha of the destination.
 *
 *  Source: Porter and Duff, "Compositing Digital Images", 1984.
 *
 *  @param pSrc1,src1Step first layer
 *  @param pSrc2,src2Step second layer
 *  @param pDst,dstStep destination image; it may be either layer
 *  @param pSrc,srcStep in place: first layer
 *  @param pSrcDst,srcDstStep in place: second layer and destination
 *  @param roiSize size of the region in pixels
 *  @param alpha1,alpha2 opacities of the layers; floats from 0 to 1
 *  @param op operator: any of QvpiCompositeOp
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: an image is null
 *  - qvpStatusSize: a side of the region is below 1
 *  - qvpStatusStep: a step is below 1
 *  - qvpStatusBadArgument: floats only: not 0 <= alpha <= 1
 *  - qvpStatusAlphaType: `op` is not among the operators
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiCompositeC_8u_C1R(const Qvp8u* pSrc1, int src1Step, Qvp8u alpha1, const Qvp8u* pSrc2, int src2Step, Qvp8u alpha2, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpiCompositeOp op);
QvpStatus qvpiCompositeC_8u_C1IR(const Qvp8u* pSrc, int srcStep, Qvp8u alpha1, Qvp8u* pSrcDst, int srcDstStep, Qvp8u alpha2, QvpiSize roiSize, QvpiCompositeOp op);
QvpStatus qvpiCompositeC_8u_C3R(const Qvp8u* pSrc1, int src1Step, Qvp8u alpha1, const Qvp8u* pSrc2, int src2Step, Qvp8u alpha2, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpiCompositeOp op);
QvpStatus qvpiCompositeC_8u_C3IR(const Qvp8u* pSrc, int srcStep, Qvp8u alpha1, Qvp8u* pSrcDst, int srcDstStep, Qvp8u alpha2, QvpiSize roiSize, QvpiCompositeOp op);
QvpStatus qvpiCompositeC_8u_AC4R(const Qvp8u* pSrc1, int src1Step, Qvp8u alpha1, const Qvp8u* pSrc2, int src2Step, Qvp8u alpha2, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpiCompositeOp op);
QvpStatus qvpiCompositeC_8u_AC4IR(const Qvp8u* pSrc, int srcStep, Qvp8u alpha1, Qvp8u* pSrcDst, int srcDstStep, Qvp8u alpha2, QvpiSize roiSize, QvpiCompositeOp op);
QvpStatus qvpiCompositeC_16u_C1R(const Qvp16u* pSrc1, int src1Step, Qvp16u alpha1, const Qvp16u* pSrc2, int src2Step, Qvp16u alpha2, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpiCompositeOp op);
QvpStatus qvpiCompositeC_16u_C1IR(const Qvp16u* pSrc, int srcStep, Qvp16u alpha1, Qvp16u* pSrcDst, int srcDstStep, Qvp16u alpha2, QvpiSize roiSize, QvpiCompositeOp op);
QvpStatus qvpiCompositeC_16u_C3R(const Qvp16u* pSrc1, int src1Step, Qvp16u alpha1, const Qvp16u* pSrc2, int src2Step, Qvp16u alpha2, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpiCompositeOp op);
QvpStatus qvpiCompositeC_16u_C3IR(const Qvp16u* pSrc, int srcStep, Qvp16u alpha1, Qvp16u* pSrcDst, int srcDstStep, Qvp16u alpha2, QvpiSize roiSize, QvpiCompositeOp op);
QvpStatus qvpiCompositeC_16u_AC4R(const Qvp16u* pSrc1, int src1Step, Qvp16u alpha1, const Qvp16u* pSrc2, int src2Step, Qvp16u alpha2, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpiCompositeOp op);
QvpStatus qvpiCompositeC_16u_AC4IR(const Qvp16u* pSrc, int srcStep, Qvp16u alpha1, Qvp16u* pSrcDst, int srcDstStep, Qvp16u alpha2, QvpiSize roiSize, QvpiCompositeOp op);
QvpStatus qvpiCompositeC_32f_C1R(const Qvp32f* pSrc1, int src1Step, Qvp32f alpha1, const Qvp32f* pSrc2, int src2Step, Qvp32f alpha2, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiCompositeOp op);
QvpStatus qvpiCompositeC_32f_C1IR(const Qvp32f* pSrc, int srcStep, Qvp32f alpha1, Qvp32f* pSrcDst, int srcDstStep, Qvp32f alpha2, QvpiSize roiSize, QvpiCompositeOp op);
QvpStatus qvpiCompositeC_32f_C3R(const Qvp32f* pSrc1, int src1Step, Qvp32f alpha1, const Qvp32f* pSrc2, int src2Step, Qvp32f alpha2, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiCompositeOp op);
QvpStatus qvpiCompositeC_32f_C3IR(const Qvp32f* pSrc, int srcStep, Qvp32f alpha1, Qvp32f* pSrcDst, int srcDstStep, Qvp32f alpha2, QvpiSize roiSize, QvpiCompositeOp op);
QvpStatus qvpiCompositeC_32f_AC4R(const Qvp32f* pSrc1, int src1Step, Qvp32f alpha1, const Qvp32f* pSrc2, int src2Step, Qvp32f alpha2, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiCompositeOp op);
QvpStatus qvpiCompositeC_32f_AC4IR(const Qvp32f* pSrc, int srcStep, Qvp32f alpha1, Qvp32f* pSrcDst, int srcDstStep, Qvp32f alpha2, QvpiSize roiSize, QvpiCompositeOp op);
/** @} */

/** @name Color key
 *  @{ */
/** Replaces pixels within a range of colors by those of another image: dst = src1 inside ? src2 : src1.
 *
 *  A pixel is inside if lowerBound <= value <= upperBound in all its channels; equal bounds are one exact color. In
 *  place, the background keeps its pixels where the source is inside and takes those of the source elsewhere.
 *
 *  Of AC4, three channels decide and are written, and the alpha of the destination stays.
 *
 *  @param pSrc1,src1Step image with the colors that are replaced
 *  @param pSrc2,src2Step background, which replaces them
 *  @param pDst,dstStep destination image; it may be either of these
 *  @param pSrc,srcStep in place: image with the colors that are replaced
 *  @param pSrcDst,srcDstStep in place: background and destination
 *  @param roiSize size of the region in pixels
 *  @param lowerBound,upperBound the range, both ends inclusive: one value each for one channel, else arrays of one for
 *         each channel, 3 of AC4
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: an image or an array of bounds is null
 *  - qvpStatusSize: a side of the region is below 1
 *  - qvpStatusStep: a step is below 1
 *  - qvpStatusRange: lowerBound > upperBound in a channel
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiColorKey_8u_C1R(const Qvp8u* pSrc1, int src1Step, const Qvp8u* pSrc2, int src2Step, Qvp8u* pDst, int dstStep, QvpiSize roiSize, Qvp8u lowerBound, Qvp8u upperBound);
QvpStatus qvpiColorKey_8u_C1IR(const Qvp8u* pSrc, int srcStep, Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, Qvp8u lowerBound, Qvp8u upperBound);
QvpStatus qvpiColorKey_8u_C3R(const Qvp8u* pSrc1, int src1Step, const Qvp8u* pSrc2, int src2Step, Qvp8u* pDst, int dstStep, QvpiSize roiSize, const Qvp8u lowerBound[3], const Qvp8u upperBound[3]);
QvpStatus qvpiColorKey_8u_C3IR(const Qvp8u* pSrc, int srcStep, Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, const Qvp8u lowerBound[3], const Qvp8u upperBound[3]);
QvpStatus qvpiColorKey_8u_C4R(const Qvp8u* pSrc1, int src1Step, const Qvp8u* pSrc2, int src2Step, Qvp8u* pDst, int dstStep, QvpiSize roiSize, const Qvp8u lowerBound[4], const Qvp8u upperBound[4]);
QvpStatus qvpiColorKey_8u_C4IR(const Qvp8u* pSrc, int srcStep, Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, const Qvp8u lowerBound[4], const Qvp8u upperBound[4]);
QvpStatus qvpiColorKey_8u_AC4R(const Qvp8u* pSrc1, int src1Step, const Qvp8u* pSrc2, int src2Step, Qvp8u* pDst, int dstStep, QvpiSize roiSize, const Qvp8u lowerBound[3], const Qvp8u upperBound[3]);
QvpStatus qvpiColorKey_8u_AC4IR(const Qvp8u* pSrc, int srcStep, Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, const Qvp8u lowerBound[3], const Qvp8u upperBound[3]);
QvpStatus qvpiColorKey_16u_C1R(const Qvp16u* pSrc1, int src1Step, const Qvp16u* pSrc2, int src2Step, Qvp16u* pDst, int dstStep, QvpiSize roiSize, Qvp16u lowerBound, Qvp16u upperBound);
QvpStatus qvpiColorKey_16u_C1IR(const Qvp16u* pSrc, int srcStep, Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, Qvp16u lowerBound, Qvp16u upperBound);
QvpStatus qvpiColorKey_16u_C3R(const Qvp16u* pSrc1, int src1Step, const Qvp16u* pSrc2, int src2Step, Qvp16u* pDst, int dstStep, QvpiSize roiSize, const Qvp16u lowerBound[3], const Qvp16u upperBound[3]);
QvpStatus qvpiColorKey_16u_C3IR(const Qvp16u* pSrc, int srcStep, Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, const Qvp16u lowerBound[3], const Qvp16u upperBound[3]);
QvpStatus qvpiColorKey_16u_AC4R(const Qvp16u* pSrc1, int src1Step, const Qvp16u* pSrc2, int src2Step, Qvp16u* pDst, int dstStep, QvpiSize roiSize, const Qvp16u lowerBound[3], const Qvp16u upperBound[3]);
QvpStatus qvpiColorKey_16u_AC4IR(const Qvp16u* pSrc, int srcStep, Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, const Qvp16u lowerBound[3], const Qvp16u upperBound[3]);
/** @} */

/** @name Color key: a constant
 *  @{ */
/** Replaces pixels within a range of colors by one color: dst = src inside ? value : src.
 *
 *  A pixel is inside if lowerBound <= value <= upperBound in all its channels; equal bounds are one exact color.
 *
 *  Of AC4, three channels decide and are written, and the alpha of the destination stays.
 *
 *  @param pSrc,srcStep source image
 *  @param value what replaces the pixels: one value for one channel, else an array of one for each channel, 3 of AC4
 *  @param pDst,dstStep destination image; it may be the source
 *  @param pSrcDst,srcDstStep in place: source and destination
 *  @param roiSize size of the region in pixels
 *  @param lowerBound,upperBound the range, both ends inclusive, in the form of `value`
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: an image, the array of the value or one of bounds is null
 *  - qvpStatusSize: a side of the region is below 1
 *  - qvpStatusStep: a step is below 1
 *  - qvpStatusRange: lowerBound > upperBound in a channel
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiColorKeyC_8u_C1R(const Qvp8u* pSrc, int srcStep, Qvp8u value, Qvp8u* pDst, int dstStep, QvpiSize roiSize, Qvp8u lowerBound, Qvp8u upperBound);
QvpStatus qvpiColorKeyC_8u_C1IR(Qvp8u value, Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, Qvp8u lowerBound, Qvp8u upperBound);
QvpStatus qvpiColorKeyC_8u_C3R(const Qvp8u* pSrc, int srcStep, const Qvp8u value[3], Qvp8u* pDst, int dstStep, QvpiSize roiSize, const Qvp8u lowerBound[3], const Qvp8u upperBound[3]);
QvpStatus qvpiColorKeyC_8u_C3IR(const Qvp8u value[3], Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, const Qvp8u lowerBound[3], const Qvp8u upperBound[3]);
QvpStatus qvpiColorKeyC_8u_C4R(const Qvp8u* pSrc, int srcStep, const Qvp8u value[4], Qvp8u* pDst, int dstStep, QvpiSize roiSize, const Qvp8u lowerBound[4], const Qvp8u upperBound[4]);
QvpStatus qvpiColorKeyC_8u_C4IR(const Qvp8u value[4], Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, const Qvp8u lowerBound[4], const Qvp8u upperBound[4]);
QvpStatus qvpiColorKeyC_8u_AC4R(const Qvp8u* pSrc, int srcStep, const Qvp8u value[3], Qvp8u* pDst, int dstStep, QvpiSize roiSize, const Qvp8u lowerBound[3], const Qvp8u upperBound[3]);
QvpStatus qvpiColorKeyC_8u_AC4IR(const Qvp8u value[3], Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, const Qvp8u lowerBound[3], const Qvp8u upperBound[3]);
QvpStatus qvpiColorKeyC_16u_C1R(const Qvp16u* pSrc, int srcStep, Qvp16u value, Qvp16u* pDst, int dstStep, QvpiSize roiSize, Qvp16u lowerBound, Qvp16u upperBound);
QvpStatus qvpiColorKeyC_16u_C1IR(Qvp16u value, Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, Qvp16u lowerBound, Qvp16u upperBound);
QvpStatus qvpiColorKeyC_16u_C3R(const Qvp16u* pSrc, int srcStep, const Qvp16u value[3], Qvp16u* pDst, int dstStep, QvpiSize roiSize, const Qvp16u lowerBound[3], const Qvp16u upperBound[3]);
QvpStatus qvpiColorKeyC_16u_C3IR(const Qvp16u value[3], Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, const Qvp16u lowerBound[3], const Qvp16u upperBound[3]);
QvpStatus qvpiColorKeyC_16u_AC4R(const Qvp16u* pSrc, int srcStep, const Qvp16u value[3], Qvp16u* pDst, int dstStep, QvpiSize roiSize, const Qvp16u lowerBound[3], const Qvp16u upperBound[3]);
QvpStatus qvpiColorKeyC_16u_AC4IR(const Qvp16u value[3], Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, const Qvp16u lowerBound[3], const Qvp16u upperBound[3]);
/** @} */

/** @name Color key: a composite
 *  @{ */
/** Combines two layers as qvpiCompositeStraight does, where pixels of the first one within a range of colors are clear.
 *
 *  A pixel is inside if lowerBound <= value <= upperBound in all three colors; its alpha is then taken as 0. With
 *  qvpCompositeFirstOver and an opaque background such a pixel gives the background exactly. All four values are written.
 *
 *  @param pSrc1,src1Step first layer
 *  @param pSrc2,src2Step second layer
 *  @param pDst,dstStep destination image; it may be either layer
 *  @param pSrc,srcStep in place: first layer
 *  @param pSrcDst,srcDstStep in place: second layer and destination
 *  @param roiSize size of the region in pixels
 *  @param lowerBound,upperBound the range, both ends inclusive
 *  @param op operator: any of QvpiCompositeOp
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: an image or an array of bounds is null
 *  - qvpStatusSize: a side of the region is below 1
 *  - qvpStatusStep: a step is below 1
 *  - qvpStatusRange: lowerBound > upperBound in a channel
 *  - qvpStatusAlphaType: `op` is not among the operators
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiColorKeyComposite_8u_AC4R(const Qvp8u* pSrc1, int src1Step, const Qvp8u* pSrc2, int src2Step, Qvp8u* pDst, int dstStep, QvpiSize roiSize, const Qvp8u lowerBound[3], const Qvp8u upperBound[3], QvpiCompositeOp op);
QvpStatus qvpiColorKeyComposite_8u_AC4IR(const Qvp8u* pSrc, int srcStep, Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, const Qvp8u lowerBound[3], const Qvp8u upperBound[3], QvpiCompositeOp op);
QvpStatus qvpiColorKeyComposite_16u_AC4R(const Qvp16u* pSrc1, int src1Step, const Qvp16u* pSrc2, int src2Step, Qvp16u* pDst, int dstStep, QvpiSize roiSize, const Qvp16u lowerBound[3], const Qvp16u upperBound[3], QvpiCompositeOp op);
QvpStatus qvpiColorKeyComposite_16u_AC4IR(const Qvp16u* pSrc, int srcStep, Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, const Qvp16u lowerBound[3], const Qvp16u upperBound[3], QvpiCompositeOp op);
/** @} */

#ifdef __cplusplus
}
#endif

#endif
