/** @file qvpi_geometry.h
 *  Resize, warps, remap, mirror and transpose.
 *
 *  The conventions of every function are told in qvpi_core.h.
 */
#ifndef QVPI_GEOMETRY_H
#define QVPI_GEOMETRY_H

#include "qvptypes.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @name Mirror
 *  @{ */
/** Mirrors an image of W x H pixels about an axis, bits only.
 *
 *  @code
 *    horizontal  dst(x, y) = src(x, H - 1 - y)
 *    vertical    dst(x, y) = src(W - 1 - x, y)
 *    both        dst(x, y) = src(W - 1 - x, H - 1 - y)
 *    45          dst(x, y) = src(y, x)
 *    135         dst(x, y) = src(W - 1 - y, H - 1 - x)
 *  @endcode
 *
 *  For the axes 45 and 135 the destination is H wide and W high. AC4 keeps the alpha of the destination. With the
 *  first three axes the source may be the destination, with the same step: the call then works in place.
 *
 *  @param pSrc,srcStep source image; with the axes up to both, of any step, also a negative one
 *  @param pDst,dstStep destination image
 *  @param roiSize size of the source in pixels
 *  @param flip the axis
 *  @return, in the order of the checks, for the axes 45 and 135:
 *  - qvpStatusNullPointer: an image is null
 *  - qvpStatusStep: a step is below 1
 *  - qvpStatusSize: a side of the region is below 1
 *  - qvpStatusNotSupportedMode: the images overlap. Regions side by side in one frame do not
 *  - qvpStatusNoError: otherwise
 *
 *  For all others:
 *  - qvpStatusNullPointer: an image is null
 *  - qvpStatusSize: a side of the region is below 1
 *  - qvpStatusMirrorFlip: an unknown axis
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiMirror_8u_C1R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpiAxis flip);
QvpStatus qvpiMirror_8u_C3R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpiAxis flip);
QvpStatus qvpiMirror_8u_C4R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpiAxis flip);
QvpStatus qvpiMirror_8u_AC4R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpiAxis flip);
QvpStatus qvpiMirror_16u_C1R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpiAxis flip);
QvpStatus qvpiMirror_16u_C3R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpiAxis flip);
QvpStatus qvpiMirror_16u_C4R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpiAxis flip);
QvpStatus qvpiMirror_16u_AC4R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpiAxis flip);
QvpStatus qvpiMirror_16s_C1R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpiAxis flip);
QvpStatus qvpiMirror_16s_C3R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpiAxis flip);
QvpStatus qvpiMirror_16s_C4R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpiAxis flip);
QvpStatus qvpiMirror_16s_AC4R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpiAxis flip);
QvpStatus qvpiMirror_32s_C1R(const Qvp32s* pSrc, int srcStep, Qvp32s* pDst, int dstStep, QvpiSize roiSize, QvpiAxis flip);
QvpStatus qvpiMirror_32s_C3R(const Qvp32s* pSrc, int srcStep, Qvp32s* pDst, int dstStep, QvpiSize roiSize, QvpiAxis flip);
QvpStatus qvpiMirror_32s_C4R(const Qvp32s* pSrc, int srcStep, Qvp32s* pDst, int dstStep, QvpiSize roiSize, QvpiAxis flip);
QvpStatus qvpiMirror_32s_AC4R(const Qvp32s* pSrc, int srcStep, Qvp32s* pDst, int dstStep, QvpiSize roiSize, QvpiAxis flip);
QvpStatus qvpiMirror_32f_C1R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiAxis flip);
QvpStatus qvpiMirror_32f_C3R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiAxis flip);
QvpStatus qvpiMirror_32f_C4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiAxis flip);
QvpStatus qvpiMirror_32f_AC4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiAxis flip);
/** @} */

/** @name Mirror in place
 *  @{ */
/** Mirrors an image about an axis in place, bits only, as qvpiMirror does. AC4 keeps the alpha of each pixel's place.
 *
 *  @param pSrcDst,srcDstStep the image
 *  @param roiSize its size in pixels; for the axes 45 and 135 a square
 *  @param flip the axis
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: the image is null
 *  - qvpStatusSize: a side of the region is below 1, or the region is not a square where it has to be
 *  - qvpStatusMirrorFlip: an unknown axis
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiMirror_8u_C1IR(Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, QvpiAxis flip);
QvpStatus qvpiMirror_8u_C3IR(Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, QvpiAxis flip);
QvpStatus qvpiMirror_8u_C4IR(Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, QvpiAxis flip);
QvpStatus qvpiMirror_8u_AC4IR(Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, QvpiAxis flip);
QvpStatus qvpiMirror_16u_C1IR(Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, QvpiAxis flip);
QvpStatus qvpiMirror_16u_C3IR(Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, QvpiAxis flip);
QvpStatus qvpiMirror_16u_C4IR(Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, QvpiAxis flip);
QvpStatus qvpiMirror_16u_AC4IR(Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, QvpiAxis flip);
QvpStatus qvpiMirror_16s_C1IR(Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize, QvpiAxis flip);
QvpStatus qvpiMirror_16s_C3IR(Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize, QvpiAxis flip);
QvpStatus qvpiMirror_16s_C4IR(Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize, QvpiAxis flip);
QvpStatus qvpiMirror_16s_AC4IR(Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize, QvpiAxis flip);
QvpStatus qvpiMirror_32s_C1IR(Qvp32s* pSrcDst, int srcDstStep, QvpiSize roiSize, QvpiAxis flip);
QvpStatus qvpiMirror_32s_C3IR(Qvp32s* pSrcDst, int srcDstStep, QvpiSize roiSize, QvpiAxis flip);
QvpStatus qvpiMirror_32s_C4IR(Qvp32s* pSrcDst, int srcDstStep, QvpiSize roiSize, QvpiAxis flip);
QvpStatus qvpiMirror_32s_AC4IR(Qvp32s* pSrcDst, int srcDstStep, QvpiSize roiSize, QvpiAxis flip);
QvpStatus qvpiMirror_32f_C1IR(Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize, QvpiAxis flip);
QvpStatus qvpiMirror_32f_C3IR(Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize, QvpiAxis flip);
QvpStatus qvpiMirror_32f_C4IR(Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize, QvpiAxis flip);
QvpStatus qvpiMirror_32f_AC4IR(Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize, QvpiAxis flip);
/** @} */

/** @name Transpose
 *  @{ */
/** Exchanges rows and columns, bits only: dst(x, y) = src(y, x).
 *
 *  The source may be the destination, with the same step, where it is a square: the call then works in place.
 *
 *  @param pSrc,srcStep source image
 *  @param pDst,dstStep destination image, `roiSize.height` wide and `roiSize.width` high
 *  @param roiSize size of the source in pixels
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: an image is null
 *  - qvpStatusSize: a side of the region is below 1, or the region is not a square and source and destination are the
 *    same
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiTranspose_8u_C1R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiTranspose_8u_C3R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiTranspose_8u_C4R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiTranspose_16u_C1R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiTranspose_16u_C3R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiTranspose_16u_C4R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiTranspose_16s_C1R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiTranspose_16s_C3R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiTranspose_16s_C4R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiTranspose_32s_C1R(const Qvp32s* pSrc, int srcStep, Qvp32s* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiTranspose_32s_C3R(const Qvp32s* pSrc, int srcStep, Qvp32s* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiTranspose_32s_C4R(const Qvp32s* pSrc, int srcStep, Qvp32s* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiTranspose_32f_C1R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiTranspose_32f_C3R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiTranspose_32f_C4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiTranspose_32fc_C1R(const Qvp32fc* pSrc, int srcStep, Qvp32fc* pDst, int dstStep, QvpiSize roiSize);
/** @} */

/** @name Transpose in place
 *  @{ */
/** Exchanges rows and columns of a square image in place, bits only.
 *
 *  @param pSrcDst,srcDstStep the image
 *  @param roiSize its size in pixels
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: the image is null
 *  - qvpStatusSize: a side of the region is below 1, or the region is not a square
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiTranspose_8u_C1IR(Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiTranspose_8u_C3IR(Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiTranspose_8u_C4IR(Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiTranspose_16u_C1IR(Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiTranspose_16u_C3IR(Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiTranspose_16u_C4IR(Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiTranspose_16s_C1IR(Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiTranspose_16s_C3IR(Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiTranspose_16s_C4IR(Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiTranspose_32s_C1IR(Qvp32s* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiTranspose_32s_C3IR(Qvp32s* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiTranspose_32s_C4IR(Qvp32s* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiTranspose_32f_C1IR(Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiTranspose_32f_C3IR(Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiTranspose_32f_C4IR(Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize);
/** @} */

#ifdef __cplusplus
}
#endif

#endif
