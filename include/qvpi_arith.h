/** @file qvpi_arith.h
 *  Pixel-wise arithmetic, conversion, threshold and comparison.
 *
 *  The conventions of every function are told in qvpi_core.h.
 */
#ifndef QVPI_ARITH_H
#define QVPI_ARITH_H

#include "qvptypes.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @name Threshold
 *  @{ */
/** Bounds values from above or below.
 *
 *  With qvpCmpGreater, dst = min(src, threshold); with qvpCmpLess, dst = max(src, threshold). A pixel that is not a
 *  number stays as it is, and so does a zero of either sign against a threshold of zero. Source and destination may be
 *  the same image.
 *
 *  @param pSrc,srcStep source image
 *  @param pDst,dstStep destination image
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
/** @} */

/** @name Threshold, in place
 *  @{ */
/** Bounds values from above or below, in place.
 *
 *
 *  With qvpCmpGreater, dst = min(src, threshold); with qvpCmpLess, dst = max(src, threshold). A pixel that is not a
 *  number stays as it is, and so does a zero of either sign against a threshold of zero.
 *
 *
 *  @param pSrcDst,srcDstStep the image, source and destination
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
/** @} */

/** @name Threshold: values above become the threshold, in place
 *  @{ */
/** Bounds values from above: dst = min(src, threshold), in place.
 *
 *
 *  The same as qvpiThreshold with qvpCmpGreater: a pixel that is not a number stays as it is.
 *
 *  @param pSrcDst,srcDstStep the image, source and destination
 *  @param roiSize region in pixels
 *  @param threshold the bound: one value for one channel, an array of 3 (C3, AC4) or 4 (C4) otherwise
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: an image or array of values is null
 *  - qvpStatusSize: a side of the region is below 1
 *  - qvpStatusStep: a step is below 1
 *  - qvpStatusNoError: otherwise
 */
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
/** @} */

/** @name Threshold: values below become the threshold, in place
 *  @{ */
/** Bounds values from below: dst = max(src, threshold), in place.
 *
 *
 *  The same as qvpiThreshold with qvpCmpLess: a pixel that is not a number stays as it is.
 *
 *  @param pSrcDst,srcDstStep the image, source and destination
 *  @param roiSize region in pixels
 *  @param threshold the bound: one value for one channel, an array of 3 (C3, AC4) or 4 (C4) otherwise
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: an image or array of values is null
 *  - qvpStatusSize: a side of the region is below 1
 *  - qvpStatusStep: a step is below 1
 *  - qvpStatusNoError: otherwise
 */
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
/** @} */

/** @name Threshold: values above are replaced, in place
 *  @{ */
/** Replaces values above a threshold: dst = src > threshold ? value : src, in place.
 *
 *
 *  A value equal to the threshold stays, and so does a pixel that is not a number.
 *
 *  @param pSrcDst,srcDstStep the image, source and destination
 *  @param roiSize region in pixels
 *  @param threshold the bound: one value for one channel, an array of 3 (C3, AC4) or 4 (C4) otherwise
 *  @param value what stands for values above it, given in the same way
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: an image or array of values is null
 *  - qvpStatusSize: a side of the region is below 1
 *  - qvpStatusStep: a step is below 1
 *  - qvpStatusNoError: otherwise
 */
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
/** @} */

/** @name Threshold: values below are replaced, in place
 *  @{ */
/** Replaces values below a threshold: dst = src < threshold ? value : src, in place.
 *
 *
 *  A value equal to the threshold stays, and so does a pixel that is not a number.
 *
 *  @param pSrcDst,srcDstStep the image, source and destination
 *  @param roiSize region in pixels
 *  @param threshold the bound: one value for one channel, an array of 3 (C3, AC4) or 4 (C4) otherwise
 *  @param value what stands for values below it, given in the same way
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: an image or array of values is null
 *  - qvpStatusSize: a side of the region is below 1
 *  - qvpStatusStep: a step is below 1
 *  - qvpStatusNoError: otherwise
 */
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
 *  @param roiSize region in pixels
 *  @param thresholdLT,thresholdGT lower and upper threshold:
 *          one value for one channel, an array of 3 (C3, AC4) or 4 (C4) otherwise
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
/** @} */

/** @name Threshold: values on both sides are replaced, in place
 *  @{ */
/** Replaces values below a lower and above an upper threshold, in place.
 *
 *
 *  dst = src < thresholdLT ? valueLT : src > thresholdGT ? valueGT : src. A pixel that is not a number stays as it is.
 *  The values need not lie between the thresholds.
 *
 *  @param pSrcDst,srcDstStep the image, source and destination
 *  @param roiSize region in pixels
 *  @param thresholdLT,thresholdGT lower and upper threshold:
 *          one value for one channel, an array of 3 (C3, AC4) or 4 (C4) otherwise
 *  @param valueLT,valueGT what stands for values below and above, given in the same way
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: an image or array of values is null
 *  - qvpStatusSize: a side of the region is below 1
 *  - qvpStatusStep: a step is below 1
 *  - qvpStatusThreshold: not thresholdLT <= thresholdGT in a processed channel
 *  - qvpStatusNoError: otherwise
 */
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
 *  Of all levels k, the one for which the classes [0, k] and [k + 1, 255] have the greatest variance between them, (w1
 *  m - w0 (mean - m))^2 / (w0 w1), where w0 and w1 are the shares of the classes and m is the first moment of the
 *  lower one; levels count as k + 0.5. Computed in double precision, levels in ascending order; the lowest of equal
 *  ones. An image of one value gives 0. For use with qvpiThreshold or qvpiCompareC: values above the threshold are the
 *  upper class. Source: N. Otsu, A threshold selection method from gray-level histograms, 1979.
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
 *  first three of AC4), else 0. Differences are rounded to single precision. NaN equals nothing, and neither do two
 *  infinities.
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
 *  first three of AC4), else 0. Differences are rounded to single precision. NaN equals nothing, and neither do two
 *  infinities.
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

#ifdef __cplusplus
}
#endif

#endif
