/** @file qvpi_filter.h
 *  Borders, and filters over the neighbourhood of each pixel.
 *
 *  The conventions of every function are told in qvpi_core.h.
 */
#ifndef QVPI_FILTER_H
#define QVPI_FILTER_H

#include "qvptypes.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @name Copy with a constant border
 *  @{ */
/** Copies an image into a larger one, with a constant around it; also in place.
 *
 *  The source goes to row `topBorderHeight` and column `leftBorderWidth` of the destination. In place (I) it is there
 *  already: the border begins `topBorderHeight` rows above and `leftBorderWidth` pixels left of `pSrcDst`, and nothing
 *  but border pixels is written.
 *
 *  Border pixels take `value`, in the corners too. AC4 keeps alpha, in the border too.
 *
 *  The two images must not overlap.
 *
 *  @param pSrc,srcStep source image
 *  @param pSrcDst,srcDstStep in place: the source, at its first pixel, inside of the image that gets the border
 *  @param srcRoiSize size of the source in pixels
 *  @param pDst,dstStep destination image, at the first pixel of its border
 *  @param dstRoiSize size of the destination, its border included
 *  @param topBorderHeight rows above the source; those below are what is left of the destination's height
 *  @param leftBorderWidth columns left of the source; those to the right are what is left of the destination's width
 *  @param value the constant: a number for C1, else a pointer to one number for each channel, three for AC4
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: an image or `value` is null
 *  - qvpStatusStep: a step is below 1
 *  - qvpStatusSize: a side of `srcRoiSize` or `dstRoiSize` is below 1, `topBorderHeight` or `leftBorderWidth` is
 *    negative, or the destination is narrower than `leftBorderWidth` plus the source or lower than `topBorderHeight`
 *    plus the source
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiCopyConstBorder_8u_C1R(const Qvp8u* pSrc, int srcStep, QvpiSize srcRoiSize, Qvp8u* pDst, int dstStep, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, Qvp8u value);
QvpStatus qvpiCopyConstBorder_8u_C1R_L(const Qvp8u* pSrc, QvpSizeL srcStep, QvpiSizeL srcRoiSize, Qvp8u* pDst, QvpSizeL dstStep, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth, Qvp8u value);
QvpStatus qvpiCopyConstBorder_8u_C3R(const Qvp8u* pSrc, int srcStep, QvpiSize srcRoiSize, Qvp8u* pDst, int dstStep, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Qvp8u value[3]);
QvpStatus qvpiCopyConstBorder_8u_C3R_L(const Qvp8u* pSrc, QvpSizeL srcStep, QvpiSizeL srcRoiSize, Qvp8u* pDst, QvpSizeL dstStep, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth, const Qvp8u value[3]);
QvpStatus qvpiCopyConstBorder_8u_C4R(const Qvp8u* pSrc, int srcStep, QvpiSize srcRoiSize, Qvp8u* pDst, int dstStep, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Qvp8u value[4]);
QvpStatus qvpiCopyConstBorder_8u_C4R_L(const Qvp8u* pSrc, QvpSizeL srcStep, QvpiSizeL srcRoiSize, Qvp8u* pDst, QvpSizeL dstStep, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth, const Qvp8u value[4]);
QvpStatus qvpiCopyConstBorder_8u_AC4R(const Qvp8u* pSrc, int srcStep, QvpiSize srcRoiSize, Qvp8u* pDst, int dstStep, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Qvp8u value[3]);
QvpStatus qvpiCopyConstBorder_8u_AC4R_L(const Qvp8u* pSrc, QvpSizeL srcStep, QvpiSizeL srcRoiSize, Qvp8u* pDst, QvpSizeL dstStep, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth, const Qvp8u value[3]);
QvpStatus qvpiCopyConstBorder_16u_C1R(const Qvp16u* pSrc, int srcStep, QvpiSize srcRoiSize, Qvp16u* pDst, int dstStep, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, Qvp16u value);
QvpStatus qvpiCopyConstBorder_16u_C1R_L(const Qvp16u* pSrc, QvpSizeL srcStep, QvpiSizeL srcRoiSize, Qvp16u* pDst, QvpSizeL dstStep, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth, Qvp16u value);
QvpStatus qvpiCopyConstBorder_16u_C3R(const Qvp16u* pSrc, int srcStep, QvpiSize srcRoiSize, Qvp16u* pDst, int dstStep, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Qvp16u value[3]);
QvpStatus qvpiCopyConstBorder_16u_C3R_L(const Qvp16u* pSrc, QvpSizeL srcStep, QvpiSizeL srcRoiSize, Qvp16u* pDst, QvpSizeL dstStep, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth, const Qvp16u value[3]);
QvpStatus qvpiCopyConstBorder_16u_C4R(const Qvp16u* pSrc, int srcStep, QvpiSize srcRoiSize, Qvp16u* pDst, int dstStep, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Qvp16u value[4]);
QvpStatus qvpiCopyConstBorder_16u_C4R_L(const Qvp16u* pSrc, QvpSizeL srcStep, QvpiSizeL srcRoiSize, Qvp16u* pDst, QvpSizeL dstStep, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth, const Qvp16u value[4]);
QvpStatus qvpiCopyConstBorder_16u_AC4R(const Qvp16u* pSrc, int srcStep, QvpiSize srcRoiSize, Qvp16u* pDst, int dstStep, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Qvp16u value[3]);
QvpStatus qvpiCopyConstBorder_16u_AC4R_L(const Qvp16u* pSrc, QvpSizeL srcStep, QvpiSizeL srcRoiSize, Qvp16u* pDst, QvpSizeL dstStep, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth, const Qvp16u value[3]);
QvpStatus qvpiCopyConstBorder_16s_C1R(const Qvp16s* pSrc, int srcStep, QvpiSize srcRoiSize, Qvp16s* pDst, int dstStep, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, Qvp16s value);
QvpStatus qvpiCopyConstBorder_16s_C1R_L(const Qvp16s* pSrc, QvpSizeL srcStep, QvpiSizeL srcRoiSize, Qvp16s* pDst, QvpSizeL dstStep, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth, Qvp16s value);
QvpStatus qvpiCopyConstBorder_16s_C3R(const Qvp16s* pSrc, int srcStep, QvpiSize srcRoiSize, Qvp16s* pDst, int dstStep, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Qvp16s value[3]);
QvpStatus qvpiCopyConstBorder_16s_C3R_L(const Qvp16s* pSrc, QvpSizeL srcStep, QvpiSizeL srcRoiSize, Qvp16s* pDst, QvpSizeL dstStep, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth, const Qvp16s value[3]);
QvpStatus qvpiCopyConstBorder_16s_C4R(const Qvp16s* pSrc, int srcStep, QvpiSize srcRoiSize, Qvp16s* pDst, int dstStep, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Qvp16s value[4]);
QvpStatus qvpiCopyConstBorder_16s_C4R_L(const Qvp16s* pSrc, QvpSizeL srcStep, QvpiSizeL srcRoiSize, Qvp16s* pDst, QvpSizeL dstStep, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth, const Qvp16s value[4]);
QvpStatus qvpiCopyConstBorder_16s_AC4R(const Qvp16s* pSrc, int srcStep, QvpiSize srcRoiSize, Qvp16s* pDst, int dstStep, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Qvp16s value[3]);
QvpStatus qvpiCopyConstBorder_16s_AC4R_L(const Qvp16s* pSrc, QvpSizeL srcStep, QvpiSizeL srcRoiSize, Qvp16s* pDst, QvpSizeL dstStep, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth, const Qvp16s value[3]);
QvpStatus qvpiCopyConstBorder_32s_C1R(const Qvp32s* pSrc, int srcStep, QvpiSize srcRoiSize, Qvp32s* pDst, int dstStep, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, Qvp32s value);
QvpStatus qvpiCopyConstBorder_32s_C1R_L(const Qvp32s* pSrc, QvpSizeL srcStep, QvpiSizeL srcRoiSize, Qvp32s* pDst, QvpSizeL dstStep, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth, Qvp32s value);
QvpStatus qvpiCopyConstBorder_32s_C3R(const Qvp32s* pSrc, int srcStep, QvpiSize srcRoiSize, Qvp32s* pDst, int dstStep, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Qvp32s value[3]);
QvpStatus qvpiCopyConstBorder_32s_C3R_L(const Qvp32s* pSrc, QvpSizeL srcStep, QvpiSizeL srcRoiSize, Qvp32s* pDst, QvpSizeL dstStep, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth, const Qvp32s value[3]);
QvpStatus qvpiCopyConstBorder_32s_C4R(const Qvp32s* pSrc, int srcStep, QvpiSize srcRoiSize, Qvp32s* pDst, int dstStep, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Qvp32s value[4]);
QvpStatus qvpiCopyConstBorder_32s_C4R_L(const Qvp32s* pSrc, QvpSizeL srcStep, QvpiSizeL srcRoiSize, Qvp32s* pDst, QvpSizeL dstStep, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth, const Qvp32s value[4]);
QvpStatus qvpiCopyConstBorder_32s_AC4R(const Qvp32s* pSrc, int srcStep, QvpiSize srcRoiSize, Qvp32s* pDst, int dstStep, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Qvp32s value[3]);
QvpStatus qvpiCopyConstBorder_32s_AC4R_L(const Qvp32s* pSrc, QvpSizeL srcStep, QvpiSizeL srcRoiSize, Qvp32s* pDst, QvpSizeL dstStep, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth, const Qvp32s value[3]);
QvpStatus qvpiCopyConstBorder_32f_C1R(const Qvp32f* pSrc, int srcStep, QvpiSize srcRoiSize, Qvp32f* pDst, int dstStep, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, Qvp32f value);
QvpStatus qvpiCopyConstBorder_32f_C1R_L(const Qvp32f* pSrc, QvpSizeL srcStep, QvpiSizeL srcRoiSize, Qvp32f* pDst, QvpSizeL dstStep, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth, Qvp32f value);
QvpStatus qvpiCopyConstBorder_32f_C3R(const Qvp32f* pSrc, int srcStep, QvpiSize srcRoiSize, Qvp32f* pDst, int dstStep, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Qvp32f value[3]);
QvpStatus qvpiCopyConstBorder_32f_C3R_L(const Qvp32f* pSrc, QvpSizeL srcStep, QvpiSizeL srcRoiSize, Qvp32f* pDst, QvpSizeL dstStep, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth, const Qvp32f value[3]);
QvpStatus qvpiCopyConstBorder_32f_C4R(const Qvp32f* pSrc, int srcStep, QvpiSize srcRoiSize, Qvp32f* pDst, int dstStep, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Qvp32f value[4]);
QvpStatus qvpiCopyConstBorder_32f_C4R_L(const Qvp32f* pSrc, QvpSizeL srcStep, QvpiSizeL srcRoiSize, Qvp32f* pDst, QvpSizeL dstStep, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth, const Qvp32f value[4]);
QvpStatus qvpiCopyConstBorder_32f_AC4R(const Qvp32f* pSrc, int srcStep, QvpiSize srcRoiSize, Qvp32f* pDst, int dstStep, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Qvp32f value[3]);
QvpStatus qvpiCopyConstBorder_32f_AC4R_L(const Qvp32f* pSrc, QvpSizeL srcStep, QvpiSizeL srcRoiSize, Qvp32f* pDst, QvpSizeL dstStep, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth, const Qvp32f value[3]);
QvpStatus qvpiCopyConstBorder_8u_C1IR(Qvp8u* pSrcDst, int srcDstStep, QvpiSize srcRoiSize, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, Qvp8u value);
QvpStatus qvpiCopyConstBorder_8u_C1IR_L(Qvp8u* pSrcDst, QvpSizeL srcDstStep, QvpiSizeL srcRoiSize, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth, Qvp8u value);
QvpStatus qvpiCopyConstBorder_8u_C3IR(Qvp8u* pSrcDst, int srcDstStep, QvpiSize srcRoiSize, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Qvp8u value[3]);
QvpStatus qvpiCopyConstBorder_8u_C3IR_L(Qvp8u* pSrcDst, QvpSizeL srcDstStep, QvpiSizeL srcRoiSize, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth, const Qvp8u value[3]);
QvpStatus qvpiCopyConstBorder_8u_C4IR(Qvp8u* pSrcDst, int srcDstStep, QvpiSize srcRoiSize, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Qvp8u value[4]);
QvpStatus qvpiCopyConstBorder_8u_C4IR_L(Qvp8u* pSrcDst, QvpSizeL srcDstStep, QvpiSizeL srcRoiSize, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth, const Qvp8u value[4]);
QvpStatus qvpiCopyConstBorder_8u_AC4IR(Qvp8u* pSrcDst, int srcDstStep, QvpiSize srcRoiSize, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Qvp8u value[3]);
QvpStatus qvpiCopyConstBorder_8u_AC4IR_L(Qvp8u* pSrcDst, QvpSizeL srcDstStep, QvpiSizeL srcRoiSize, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth, const Qvp8u value[3]);
QvpStatus qvpiCopyConstBorder_16u_C1IR(Qvp16u* pSrcDst, int srcDstStep, QvpiSize srcRoiSize, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, Qvp16u value);
QvpStatus qvpiCopyConstBorder_16u_C1IR_L(Qvp16u* pSrcDst, QvpSizeL srcDstStep, QvpiSizeL srcRoiSize, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth, Qvp16u value);
QvpStatus qvpiCopyConstBorder_16u_C3IR(Qvp16u* pSrcDst, int srcDstStep, QvpiSize srcRoiSize, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Qvp16u value[3]);
QvpStatus qvpiCopyConstBorder_16u_C3IR_L(Qvp16u* pSrcDst, QvpSizeL srcDstStep, QvpiSizeL srcRoiSize, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth, const Qvp16u value[3]);
QvpStatus qvpiCopyConstBorder_16u_C4IR(Qvp16u* pSrcDst, int srcDstStep, QvpiSize srcRoiSize, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Qvp16u value[4]);
QvpStatus qvpiCopyConstBorder_16u_C4IR_L(Qvp16u* pSrcDst, QvpSizeL srcDstStep, QvpiSizeL srcRoiSize, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth, const Qvp16u value[4]);
QvpStatus qvpiCopyConstBorder_16u_AC4IR(Qvp16u* pSrcDst, int srcDstStep, QvpiSize srcRoiSize, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Qvp16u value[3]);
QvpStatus qvpiCopyConstBorder_16u_AC4IR_L(Qvp16u* pSrcDst, QvpSizeL srcDstStep, QvpiSizeL srcRoiSize, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth, const Qvp16u value[3]);
QvpStatus qvpiCopyConstBorder_16s_C1IR(Qvp16s* pSrcDst, int srcDstStep, QvpiSize srcRoiSize, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, Qvp16s value);
QvpStatus qvpiCopyConstBorder_16s_C1IR_L(Qvp16s* pSrcDst, QvpSizeL srcDstStep, QvpiSizeL srcRoiSize, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth, Qvp16s value);
QvpStatus qvpiCopyConstBorder_16s_C3IR(Qvp16s* pSrcDst, int srcDstStep, QvpiSize srcRoiSize, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Qvp16s value[3]);
QvpStatus qvpiCopyConstBorder_16s_C3IR_L(Qvp16s* pSrcDst, QvpSizeL srcDstStep, QvpiSizeL srcRoiSize, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth, const Qvp16s value[3]);
QvpStatus qvpiCopyConstBorder_16s_C4IR(Qvp16s* pSrcDst, int srcDstStep, QvpiSize srcRoiSize, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Qvp16s value[4]);
QvpStatus qvpiCopyConstBorder_16s_C4IR_L(Qvp16s* pSrcDst, QvpSizeL srcDstStep, QvpiSizeL srcRoiSize, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth, const Qvp16s value[4]);
QvpStatus qvpiCopyConstBorder_16s_AC4IR(Qvp16s* pSrcDst, int srcDstStep, QvpiSize srcRoiSize, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Qvp16s value[3]);
QvpStatus qvpiCopyConstBorder_16s_AC4IR_L(Qvp16s* pSrcDst, QvpSizeL srcDstStep, QvpiSizeL srcRoiSize, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth, const Qvp16s value[3]);
QvpStatus qvpiCopyConstBorder_32s_C1IR(Qvp32s* pSrcDst, int srcDstStep, QvpiSize srcRoiSize, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, Qvp32s value);
QvpStatus qvpiCopyConstBorder_32s_C1IR_L(Qvp32s* pSrcDst, QvpSizeL srcDstStep, QvpiSizeL srcRoiSize, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth, Qvp32s value);
QvpStatus qvpiCopyConstBorder_32s_C3IR(Qvp32s* pSrcDst, int srcDstStep, QvpiSize srcRoiSize, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Qvp32s value[3]);
QvpStatus qvpiCopyConstBorder_32s_C3IR_L(Qvp32s* pSrcDst, QvpSizeL srcDstStep, QvpiSizeL srcRoiSize, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth, const Qvp32s value[3]);
QvpStatus qvpiCopyConstBorder_32s_C4IR(Qvp32s* pSrcDst, int srcDstStep, QvpiSize srcRoiSize, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Qvp32s value[4]);
QvpStatus qvpiCopyConstBorder_32s_C4IR_L(Qvp32s* pSrcDst, QvpSizeL srcDstStep, QvpiSizeL srcRoiSize, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth, const Qvp32s value[4]);
QvpStatus qvpiCopyConstBorder_32s_AC4IR(Qvp32s* pSrcDst, int srcDstStep, QvpiSize srcRoiSize, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Qvp32s value[3]);
QvpStatus qvpiCopyConstBorder_32s_AC4IR_L(Qvp32s* pSrcDst, QvpSizeL srcDstStep, QvpiSizeL srcRoiSize, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth, const Qvp32s value[3]);
QvpStatus qvpiCopyConstBorder_32f_C1IR(Qvp32f* pSrcDst, int srcDstStep, QvpiSize srcRoiSize, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, Qvp32f value);
QvpStatus qvpiCopyConstBorder_32f_C1IR_L(Qvp32f* pSrcDst, QvpSizeL srcDstStep, QvpiSizeL srcRoiSize, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth, Qvp32f value);
QvpStatus qvpiCopyConstBorder_32f_C3IR(Qvp32f* pSrcDst, int srcDstStep, QvpiSize srcRoiSize, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Qvp32f value[3]);
QvpStatus qvpiCopyConstBorder_32f_C3IR_L(Qvp32f* pSrcDst, QvpSizeL srcDstStep, QvpiSizeL srcRoiSize, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth, const Qvp32f value[3]);
QvpStatus qvpiCopyConstBorder_32f_C4IR(Qvp32f* pSrcDst, int srcDstStep, QvpiSize srcRoiSize, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Qvp32f value[4]);
QvpStatus qvpiCopyConstBorder_32f_C4IR_L(Qvp32f* pSrcDst, QvpSizeL srcDstStep, QvpiSizeL srcRoiSize, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth, const Qvp32f value[4]);
QvpStatus qvpiCopyConstBorder_32f_AC4IR(Qvp32f* pSrcDst, int srcDstStep, QvpiSize srcRoiSize, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Qvp32f value[3]);
QvpStatus qvpiCopyConstBorder_32f_AC4IR_L(Qvp32f* pSrcDst, QvpSizeL srcDstStep, QvpiSizeL srcRoiSize, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth, const Qvp32f value[3]);
/** @} */

/** @name Copy with a replicated border
 *  @{ */
/** Copies an image into a larger one, with the nearest edge pixel around it; also in place.
 *
 *  The source goes to row `topBorderHeight` and column `leftBorderWidth` of the destination. In place (I) it is there
 *  already: the border begins `topBorderHeight` rows above and `leftBorderWidth` pixels left of `pSrcDst`, and nothing
 *  but border pixels is written.
 *
 *  A border pixel takes the nearest pixel of the source: column x takes column clamp(x, 0, W - 1), rows likewise, so
 *  that the corners take the corner pixels. W is the width of the source. AC4 keeps alpha, in the border too.
 *
 *  If `pSrc` equals `pDst` the call is the in-place form before anything is checked: the source is then taken to lie at
 *  `pDst` with `dstStep`, and the border is written around it, also above and left of `pDst`. Otherwise the two images
 *  must not overlap.
 *
 *  @param pSrc,srcStep source image
 *  @param pSrcDst,srcDstStep in place: the source, at its first pixel, inside of the image that gets the border
 *  @param srcRoiSize size of the source in pixels
 *  @param pDst,dstStep destination image, at the first pixel of its border
 *  @param dstRoiSize size of the destination, its border included
 *  @param topBorderHeight rows above the source; those below are what is left of the destination's height
 *  @param leftBorderWidth columns left of the source; those to the right are what is left of the destination's width
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: an image is null
 *  - qvpStatusStep: a step is below 1
 *  - qvpStatusSize: a side of `srcRoiSize` or `dstRoiSize` is below 1, `topBorderHeight` or `leftBorderWidth` is
 *    negative, or the destination is narrower than `leftBorderWidth` plus the source or lower than `topBorderHeight`
 *    plus the source
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiCopyReplicateBorder_8u_C1R(const Qvp8u* pSrc, int srcStep, QvpiSize srcRoiSize, Qvp8u* pDst, int dstStep, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QvpStatus qvpiCopyReplicateBorder_8u_C1R_L(const Qvp8u* pSrc, QvpSizeL srcStep, QvpiSizeL srcRoiSize, Qvp8u* pDst, QvpSizeL dstStep, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth);
QvpStatus qvpiCopyReplicateBorder_8u_C3R(const Qvp8u* pSrc, int srcStep, QvpiSize srcRoiSize, Qvp8u* pDst, int dstStep, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QvpStatus qvpiCopyReplicateBorder_8u_C3R_L(const Qvp8u* pSrc, QvpSizeL srcStep, QvpiSizeL srcRoiSize, Qvp8u* pDst, QvpSizeL dstStep, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth);
QvpStatus qvpiCopyReplicateBorder_8u_C4R(const Qvp8u* pSrc, int srcStep, QvpiSize srcRoiSize, Qvp8u* pDst, int dstStep, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QvpStatus qvpiCopyReplicateBorder_8u_C4R_L(const Qvp8u* pSrc, QvpSizeL srcStep, QvpiSizeL srcRoiSize, Qvp8u* pDst, QvpSizeL dstStep, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth);
QvpStatus qvpiCopyReplicateBorder_8u_AC4R(const Qvp8u* pSrc, int srcStep, QvpiSize srcRoiSize, Qvp8u* pDst, int dstStep, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QvpStatus qvpiCopyReplicateBorder_8u_AC4R_L(const Qvp8u* pSrc, QvpSizeL srcStep, QvpiSizeL srcRoiSize, Qvp8u* pDst, QvpSizeL dstStep, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth);
QvpStatus qvpiCopyReplicateBorder_16u_C1R(const Qvp16u* pSrc, int srcStep, QvpiSize srcRoiSize, Qvp16u* pDst, int dstStep, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QvpStatus qvpiCopyReplicateBorder_16u_C1R_L(const Qvp16u* pSrc, QvpSizeL srcStep, QvpiSizeL srcRoiSize, Qvp16u* pDst, QvpSizeL dstStep, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth);
QvpStatus qvpiCopyReplicateBorder_16u_C3R(const Qvp16u* pSrc, int srcStep, QvpiSize srcRoiSize, Qvp16u* pDst, int dstStep, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QvpStatus qvpiCopyReplicateBorder_16u_C3R_L(const Qvp16u* pSrc, QvpSizeL srcStep, QvpiSizeL srcRoiSize, Qvp16u* pDst, QvpSizeL dstStep, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth);
QvpStatus qvpiCopyReplicateBorder_16u_C4R(const Qvp16u* pSrc, int srcStep, QvpiSize srcRoiSize, Qvp16u* pDst, int dstStep, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QvpStatus qvpiCopyReplicateBorder_16u_C4R_L(const Qvp16u* pSrc, QvpSizeL srcStep, QvpiSizeL srcRoiSize, Qvp16u* pDst, QvpSizeL dstStep, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth);
QvpStatus qvpiCopyReplicateBorder_16u_AC4R(const Qvp16u* pSrc, int srcStep, QvpiSize srcRoiSize, Qvp16u* pDst, int dstStep, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QvpStatus qvpiCopyReplicateBorder_16u_AC4R_L(const Qvp16u* pSrc, QvpSizeL srcStep, QvpiSizeL srcRoiSize, Qvp16u* pDst, QvpSizeL dstStep, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth);
QvpStatus qvpiCopyReplicateBorder_16s_C1R(const Qvp16s* pSrc, int srcStep, QvpiSize srcRoiSize, Qvp16s* pDst, int dstStep, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QvpStatus qvpiCopyReplicateBorder_16s_C1R_L(const Qvp16s* pSrc, QvpSizeL srcStep, QvpiSizeL srcRoiSize, Qvp16s* pDst, QvpSizeL dstStep, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth);
QvpStatus qvpiCopyReplicateBorder_16s_C3R(const Qvp16s* pSrc, int srcStep, QvpiSize srcRoiSize, Qvp16s* pDst, int dstStep, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QvpStatus qvpiCopyReplicateBorder_16s_C3R_L(const Qvp16s* pSrc, QvpSizeL srcStep, QvpiSizeL srcRoiSize, Qvp16s* pDst, QvpSizeL dstStep, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth);
QvpStatus qvpiCopyReplicateBorder_16s_C4R(const Qvp16s* pSrc, int srcStep, QvpiSize srcRoiSize, Qvp16s* pDst, int dstStep, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QvpStatus qvpiCopyReplicateBorder_16s_C4R_L(const Qvp16s* pSrc, QvpSizeL srcStep, QvpiSizeL srcRoiSize, Qvp16s* pDst, QvpSizeL dstStep, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth);
QvpStatus qvpiCopyReplicateBorder_16s_AC4R(const Qvp16s* pSrc, int srcStep, QvpiSize srcRoiSize, Qvp16s* pDst, int dstStep, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QvpStatus qvpiCopyReplicateBorder_16s_AC4R_L(const Qvp16s* pSrc, QvpSizeL srcStep, QvpiSizeL srcRoiSize, Qvp16s* pDst, QvpSizeL dstStep, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth);
QvpStatus qvpiCopyReplicateBorder_32s_C1R(const Qvp32s* pSrc, int srcStep, QvpiSize srcRoiSize, Qvp32s* pDst, int dstStep, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QvpStatus qvpiCopyReplicateBorder_32s_C1R_L(const Qvp32s* pSrc, QvpSizeL srcStep, QvpiSizeL srcRoiSize, Qvp32s* pDst, QvpSizeL dstStep, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth);
QvpStatus qvpiCopyReplicateBorder_32s_C3R(const Qvp32s* pSrc, int srcStep, QvpiSize srcRoiSize, Qvp32s* pDst, int dstStep, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QvpStatus qvpiCopyReplicateBorder_32s_C3R_L(const Qvp32s* pSrc, QvpSizeL srcStep, QvpiSizeL srcRoiSize, Qvp32s* pDst, QvpSizeL dstStep, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth);
QvpStatus qvpiCopyReplicateBorder_32s_C4R(const Qvp32s* pSrc, int srcStep, QvpiSize srcRoiSize, Qvp32s* pDst, int dstStep, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QvpStatus qvpiCopyReplicateBorder_32s_C4R_L(const Qvp32s* pSrc, QvpSizeL srcStep, QvpiSizeL srcRoiSize, Qvp32s* pDst, QvpSizeL dstStep, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth);
QvpStatus qvpiCopyReplicateBorder_32s_AC4R(const Qvp32s* pSrc, int srcStep, QvpiSize srcRoiSize, Qvp32s* pDst, int dstStep, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QvpStatus qvpiCopyReplicateBorder_32s_AC4R_L(const Qvp32s* pSrc, QvpSizeL srcStep, QvpiSizeL srcRoiSize, Qvp32s* pDst, QvpSizeL dstStep, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth);
QvpStatus qvpiCopyReplicateBorder_32f_C1R(const Qvp32f* pSrc, int srcStep, QvpiSize srcRoiSize, Qvp32f* pDst, int dstStep, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QvpStatus qvpiCopyReplicateBorder_32f_C1R_L(const Qvp32f* pSrc, QvpSizeL srcStep, QvpiSizeL srcRoiSize, Qvp32f* pDst, QvpSizeL dstStep, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth);
QvpStatus qvpiCopyReplicateBorder_32f_C3R(const Qvp32f* pSrc, int srcStep, QvpiSize srcRoiSize, Qvp32f* pDst, int dstStep, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QvpStatus qvpiCopyReplicateBorder_32f_C3R_L(const Qvp32f* pSrc, QvpSizeL srcStep, QvpiSizeL srcRoiSize, Qvp32f* pDst, QvpSizeL dstStep, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth);
QvpStatus qvpiCopyReplicateBorder_32f_C4R(const Qvp32f* pSrc, int srcStep, QvpiSize srcRoiSize, Qvp32f* pDst, int dstStep, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QvpStatus qvpiCopyReplicateBorder_32f_C4R_L(const Qvp32f* pSrc, QvpSizeL srcStep, QvpiSizeL srcRoiSize, Qvp32f* pDst, QvpSizeL dstStep, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth);
QvpStatus qvpiCopyReplicateBorder_32f_AC4R(const Qvp32f* pSrc, int srcStep, QvpiSize srcRoiSize, Qvp32f* pDst, int dstStep, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QvpStatus qvpiCopyReplicateBorder_32f_AC4R_L(const Qvp32f* pSrc, QvpSizeL srcStep, QvpiSizeL srcRoiSize, Qvp32f* pDst, QvpSizeL dstStep, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth);
QvpStatus qvpiCopyReplicateBorder_8u_C1IR(Qvp8u* pSrcDst, int srcDstStep, QvpiSize srcRoiSize, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QvpStatus qvpiCopyReplicateBorder_8u_C1IR_L(Qvp8u* pSrcDst, QvpSizeL srcDstStep, QvpiSizeL srcRoiSize, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth);
QvpStatus qvpiCopyReplicateBorder_8u_C3IR(Qvp8u* pSrcDst, int srcDstStep, QvpiSize srcRoiSize, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QvpStatus qvpiCopyReplicateBorder_8u_C3IR_L(Qvp8u* pSrcDst, QvpSizeL srcDstStep, QvpiSizeL srcRoiSize, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth);
QvpStatus qvpiCopyReplicateBorder_8u_C4IR(Qvp8u* pSrcDst, int srcDstStep, QvpiSize srcRoiSize, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QvpStatus qvpiCopyReplicateBorder_8u_C4IR_L(Qvp8u* pSrcDst, QvpSizeL srcDstStep, QvpiSizeL srcRoiSize, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth);
QvpStatus qvpiCopyReplicateBorder_8u_AC4IR(Qvp8u* pSrcDst, int srcDstStep, QvpiSize srcRoiSize, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QvpStatus qvpiCopyReplicateBorder_8u_AC4IR_L(Qvp8u* pSrcDst, QvpSizeL srcDstStep, QvpiSizeL srcRoiSize, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth);
QvpStatus qvpiCopyReplicateBorder_16u_C1IR(Qvp16u* pSrcDst, int srcDstStep, QvpiSize srcRoiSize, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QvpStatus qvpiCopyReplicateBorder_16u_C1IR_L(Qvp16u* pSrcDst, QvpSizeL srcDstStep, QvpiSizeL srcRoiSize, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth);
QvpStatus qvpiCopyReplicateBorder_16u_C3IR(Qvp16u* pSrcDst, int srcDstStep, QvpiSize srcRoiSize, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QvpStatus qvpiCopyReplicateBorder_16u_C3IR_L(Qvp16u* pSrcDst, QvpSizeL srcDstStep, QvpiSizeL srcRoiSize, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth);
QvpStatus qvpiCopyReplicateBorder_16u_C4IR(Qvp16u* pSrcDst, int srcDstStep, QvpiSize srcRoiSize, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QvpStatus qvpiCopyReplicateBorder_16u_C4IR_L(Qvp16u* pSrcDst, QvpSizeL srcDstStep, QvpiSizeL srcRoiSize, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth);
QvpStatus qvpiCopyReplicateBorder_16u_AC4IR(Qvp16u* pSrcDst, int srcDstStep, QvpiSize srcRoiSize, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QvpStatus qvpiCopyReplicateBorder_16u_AC4IR_L(Qvp16u* pSrcDst, QvpSizeL srcDstStep, QvpiSizeL srcRoiSize, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth);
QvpStatus qvpiCopyReplicateBorder_16s_C1IR(Qvp16s* pSrcDst, int srcDstStep, QvpiSize srcRoiSize, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QvpStatus qvpiCopyReplicateBorder_16s_C1IR_L(Qvp16s* pSrcDst, QvpSizeL srcDstStep, QvpiSizeL srcRoiSize, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth);
QvpStatus qvpiCopyReplicateBorder_16s_C3IR(Qvp16s* pSrcDst, int srcDstStep, QvpiSize srcRoiSize, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QvpStatus qvpiCopyReplicateBorder_16s_C3IR_L(Qvp16s* pSrcDst, QvpSizeL srcDstStep, QvpiSizeL srcRoiSize, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth);
QvpStatus qvpiCopyReplicateBorder_16s_C4IR(Qvp16s* pSrcDst, int srcDstStep, QvpiSize srcRoiSize, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QvpStatus qvpiCopyReplicateBorder_16s_C4IR_L(Qvp16s* pSrcDst, QvpSizeL srcDstStep, QvpiSizeL srcRoiSize, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth);
QvpStatus qvpiCopyReplicateBorder_16s_AC4IR(Qvp16s* pSrcDst, int srcDstStep, QvpiSize srcRoiSize, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QvpStatus qvpiCopyReplicateBorder_16s_AC4IR_L(Qvp16s* pSrcDst, QvpSizeL srcDstStep, QvpiSizeL srcRoiSize, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth);
QvpStatus qvpiCopyReplicateBorder_32s_C1IR(Qvp32s* pSrcDst, int srcDstStep, QvpiSize srcRoiSize, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QvpStatus qvpiCopyReplicateBorder_32s_C1IR_L(Qvp32s* pSrcDst, QvpSizeL srcDstStep, QvpiSizeL srcRoiSize, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth);
QvpStatus qvpiCopyReplicateBorder_32s_C3IR(Qvp32s* pSrcDst, int srcDstStep, QvpiSize srcRoiSize, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QvpStatus qvpiCopyReplicateBorder_32s_C3IR_L(Qvp32s* pSrcDst, QvpSizeL srcDstStep, QvpiSizeL srcRoiSize, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth);
QvpStatus qvpiCopyReplicateBorder_32s_C4IR(Qvp32s* pSrcDst, int srcDstStep, QvpiSize srcRoiSize, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QvpStatus qvpiCopyReplicateBorder_32s_C4IR_L(Qvp32s* pSrcDst, QvpSizeL srcDstStep, QvpiSizeL srcRoiSize, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth);
QvpStatus qvpiCopyReplicateBorder_32s_AC4IR(Qvp32s* pSrcDst, int srcDstStep, QvpiSize srcRoiSize, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QvpStatus qvpiCopyReplicateBorder_32s_AC4IR_L(Qvp32s* pSrcDst, QvpSizeL srcDstStep, QvpiSizeL srcRoiSize, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth);
QvpStatus qvpiCopyReplicateBorder_32f_C1IR(Qvp32f* pSrcDst, int srcDstStep, QvpiSize srcRoiSize, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QvpStatus qvpiCopyReplicateBorder_32f_C1IR_L(Qvp32f* pSrcDst, QvpSizeL srcDstStep, QvpiSizeL srcRoiSize, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth);
QvpStatus qvpiCopyReplicateBorder_32f_C3IR(Qvp32f* pSrcDst, int srcDstStep, QvpiSize srcRoiSize, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QvpStatus qvpiCopyReplicateBorder_32f_C3IR_L(Qvp32f* pSrcDst, QvpSizeL srcDstStep, QvpiSizeL srcRoiSize, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth);
QvpStatus qvpiCopyReplicateBorder_32f_C4IR(Qvp32f* pSrcDst, int srcDstStep, QvpiSize srcRoiSize, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QvpStatus qvpiCopyReplicateBorder_32f_C4IR_L(Qvp32f* pSrcDst, QvpSizeL srcDstStep, QvpiSizeL srcRoiSize, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth);
QvpStatus qvpiCopyReplicateBorder_32f_AC4IR(Qvp32f* pSrcDst, int srcDstStep, QvpiSize srcRoiSize, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QvpStatus qvpiCopyReplicateBorder_32f_AC4IR_L(Qvp32f* pSrcDst, QvpSizeL srcDstStep, QvpiSizeL srcRoiSize, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth);
/** @} */

/** @name Copy with a mirrored border
 *  @{ */
/** Copies an image into a larger one, with a reflection around it; also in place.
 *
 *  The source goes to row `topBorderHeight` and column `leftBorderWidth` of the destination. In place (I) it is there
 *  already: the border begins `topBorderHeight` rows above and `leftBorderWidth` pixels left of `pSrcDst`, and nothing
 *  but border pixels is written.
 *
 *  Columns are reflected about the edge pixel, which is not repeated: column -k takes column k and column W - 1 + k
 *  takes column W - 1 - k, where W is the width of the source. Borders wider than W - 1 fold again, with period
 *  2 W - 2; a source of one column gives all columns. Rows are reflected in the same way and on their own, in the
 *  corners too.
 *
 *  If `pSrc` equals `pDst` the call is the in-place form before anything is checked: the source is then taken to lie at
 *  `pDst` with `dstStep`, and the border is written around it, also above and left of `pDst`. Otherwise the two images
 *  must not overlap.
 *
 *  @param pSrc,srcStep source image
 *  @param pSrcDst,srcDstStep in place: the source, at its first pixel, inside of the image that gets the border
 *  @param srcRoiSize size of the source in pixels
 *  @param pDst,dstStep destination image, at the first pixel of its border
 *  @param dstRoiSize size of the destination, its border included
 *  @param topBorderHeight rows above the source; those below are what is left of the destination's height
 *  @param leftBorderWidth columns left of the source; those to the right are what is left of the destination's width
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: an image is null
 *  - qvpStatusStep: a step is below 1
 *  - qvpStatusSize: a side of `srcRoiSize` or `dstRoiSize` is below 1, `topBorderHeight` or `leftBorderWidth` is
 *    negative, or the destination is narrower than `leftBorderWidth` plus the source or lower than `topBorderHeight`
 *    plus the source
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiCopyMirrorBorder_8u_C1R(const Qvp8u* pSrc, int srcStep, QvpiSize srcRoiSize, Qvp8u* pDst, int dstStep, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QvpStatus qvpiCopyMirrorBorder_8u_C1R_L(const Qvp8u* pSrc, QvpSizeL srcStep, QvpiSizeL srcRoiSize, Qvp8u* pDst, QvpSizeL dstStep, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth);
QvpStatus qvpiCopyMirrorBorder_8u_C3R(const Qvp8u* pSrc, int srcStep, QvpiSize srcRoiSize, Qvp8u* pDst, int dstStep, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QvpStatus qvpiCopyMirrorBorder_8u_C3R_L(const Qvp8u* pSrc, QvpSizeL srcStep, QvpiSizeL srcRoiSize, Qvp8u* pDst, QvpSizeL dstStep, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth);
QvpStatus qvpiCopyMirrorBorder_8u_C4R(const Qvp8u* pSrc, int srcStep, QvpiSize srcRoiSize, Qvp8u* pDst, int dstStep, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QvpStatus qvpiCopyMirrorBorder_8u_C4R_L(const Qvp8u* pSrc, QvpSizeL srcStep, QvpiSizeL srcRoiSize, Qvp8u* pDst, QvpSizeL dstStep, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth);
QvpStatus qvpiCopyMirrorBorder_16u_C1R(const Qvp16u* pSrc, int srcStep, QvpiSize srcRoiSize, Qvp16u* pDst, int dstStep, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QvpStatus qvpiCopyMirrorBorder_16u_C1R_L(const Qvp16u* pSrc, QvpSizeL srcStep, QvpiSizeL srcRoiSize, Qvp16u* pDst, QvpSizeL dstStep, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth);
QvpStatus qvpiCopyMirrorBorder_16u_C3R(const Qvp16u* pSrc, int srcStep, QvpiSize srcRoiSize, Qvp16u* pDst, int dstStep, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QvpStatus qvpiCopyMirrorBorder_16u_C3R_L(const Qvp16u* pSrc, QvpSizeL srcStep, QvpiSizeL srcRoiSize, Qvp16u* pDst, QvpSizeL dstStep, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth);
QvpStatus qvpiCopyMirrorBorder_16u_C4R(const Qvp16u* pSrc, int srcStep, QvpiSize srcRoiSize, Qvp16u* pDst, int dstStep, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QvpStatus qvpiCopyMirrorBorder_16u_C4R_L(const Qvp16u* pSrc, QvpSizeL srcStep, QvpiSizeL srcRoiSize, Qvp16u* pDst, QvpSizeL dstStep, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth);
QvpStatus qvpiCopyMirrorBorder_16s_C1R(const Qvp16s* pSrc, int srcStep, QvpiSize srcRoiSize, Qvp16s* pDst, int dstStep, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QvpStatus qvpiCopyMirrorBorder_16s_C1R_L(const Qvp16s* pSrc, QvpSizeL srcStep, QvpiSizeL srcRoiSize, Qvp16s* pDst, QvpSizeL dstStep, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth);
QvpStatus qvpiCopyMirrorBorder_16s_C3R(const Qvp16s* pSrc, int srcStep, QvpiSize srcRoiSize, Qvp16s* pDst, int dstStep, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QvpStatus qvpiCopyMirrorBorder_16s_C3R_L(const Qvp16s* pSrc, QvpSizeL srcStep, QvpiSizeL srcRoiSize, Qvp16s* pDst, QvpSizeL dstStep, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth);
QvpStatus qvpiCopyMirrorBorder_16s_C4R(const Qvp16s* pSrc, int srcStep, QvpiSize srcRoiSize, Qvp16s* pDst, int dstStep, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QvpStatus qvpiCopyMirrorBorder_16s_C4R_L(const Qvp16s* pSrc, QvpSizeL srcStep, QvpiSizeL srcRoiSize, Qvp16s* pDst, QvpSizeL dstStep, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth);
QvpStatus qvpiCopyMirrorBorder_32s_C1R(const Qvp32s* pSrc, int srcStep, QvpiSize srcRoiSize, Qvp32s* pDst, int dstStep, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QvpStatus qvpiCopyMirrorBorder_32s_C1R_L(const Qvp32s* pSrc, QvpSizeL srcStep, QvpiSizeL srcRoiSize, Qvp32s* pDst, QvpSizeL dstStep, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth);
QvpStatus qvpiCopyMirrorBorder_32s_C3R(const Qvp32s* pSrc, int srcStep, QvpiSize srcRoiSize, Qvp32s* pDst, int dstStep, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QvpStatus qvpiCopyMirrorBorder_32s_C3R_L(const Qvp32s* pSrc, QvpSizeL srcStep, QvpiSizeL srcRoiSize, Qvp32s* pDst, QvpSizeL dstStep, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth);
QvpStatus qvpiCopyMirrorBorder_32s_C4R(const Qvp32s* pSrc, int srcStep, QvpiSize srcRoiSize, Qvp32s* pDst, int dstStep, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QvpStatus qvpiCopyMirrorBorder_32s_C4R_L(const Qvp32s* pSrc, QvpSizeL srcStep, QvpiSizeL srcRoiSize, Qvp32s* pDst, QvpSizeL dstStep, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth);
QvpStatus qvpiCopyMirrorBorder_32f_C1R(const Qvp32f* pSrc, int srcStep, QvpiSize srcRoiSize, Qvp32f* pDst, int dstStep, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QvpStatus qvpiCopyMirrorBorder_32f_C1R_L(const Qvp32f* pSrc, QvpSizeL srcStep, QvpiSizeL srcRoiSize, Qvp32f* pDst, QvpSizeL dstStep, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth);
QvpStatus qvpiCopyMirrorBorder_32f_C3R(const Qvp32f* pSrc, int srcStep, QvpiSize srcRoiSize, Qvp32f* pDst, int dstStep, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QvpStatus qvpiCopyMirrorBorder_32f_C3R_L(const Qvp32f* pSrc, QvpSizeL srcStep, QvpiSizeL srcRoiSize, Qvp32f* pDst, QvpSizeL dstStep, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth);
QvpStatus qvpiCopyMirrorBorder_32f_C4R(const Qvp32f* pSrc, int srcStep, QvpiSize srcRoiSize, Qvp32f* pDst, int dstStep, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QvpStatus qvpiCopyMirrorBorder_32f_C4R_L(const Qvp32f* pSrc, QvpSizeL srcStep, QvpiSizeL srcRoiSize, Qvp32f* pDst, QvpSizeL dstStep, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth);
QvpStatus qvpiCopyMirrorBorder_8u_C1IR(Qvp8u* pSrcDst, int srcDstStep, QvpiSize srcRoiSize, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QvpStatus qvpiCopyMirrorBorder_8u_C1IR_L(Qvp8u* pSrcDst, QvpSizeL srcDstStep, QvpiSizeL srcRoiSize, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth);
QvpStatus qvpiCopyMirrorBorder_8u_C3IR(Qvp8u* pSrcDst, int srcDstStep, QvpiSize srcRoiSize, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QvpStatus qvpiCopyMirrorBorder_8u_C3IR_L(Qvp8u* pSrcDst, QvpSizeL srcDstStep, QvpiSizeL srcRoiSize, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth);
QvpStatus qvpiCopyMirrorBorder_8u_C4IR(Qvp8u* pSrcDst, int srcDstStep, QvpiSize srcRoiSize, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QvpStatus qvpiCopyMirrorBorder_8u_C4IR_L(Qvp8u* pSrcDst, QvpSizeL srcDstStep, QvpiSizeL srcRoiSize, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth);
QvpStatus qvpiCopyMirrorBorder_16u_C1IR(Qvp16u* pSrcDst, int srcDstStep, QvpiSize srcRoiSize, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QvpStatus qvpiCopyMirrorBorder_16u_C1IR_L(Qvp16u* pSrcDst, QvpSizeL srcDstStep, QvpiSizeL srcRoiSize, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth);
QvpStatus qvpiCopyMirrorBorder_16u_C3IR(Qvp16u* pSrcDst, int srcDstStep, QvpiSize srcRoiSize, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QvpStatus qvpiCopyMirrorBorder_16u_C3IR_L(Qvp16u* pSrcDst, QvpSizeL srcDstStep, QvpiSizeL srcRoiSize, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth);
QvpStatus qvpiCopyMirrorBorder_16u_C4IR(Qvp16u* pSrcDst, int srcDstStep, QvpiSize srcRoiSize, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QvpStatus qvpiCopyMirrorBorder_16u_C4IR_L(Qvp16u* pSrcDst, QvpSizeL srcDstStep, QvpiSizeL srcRoiSize, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth);
QvpStatus qvpiCopyMirrorBorder_16s_C1IR(Qvp16s* pSrcDst, int srcDstStep, QvpiSize srcRoiSize, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QvpStatus qvpiCopyMirrorBorder_16s_C1IR_L(Qvp16s* pSrcDst, QvpSizeL srcDstStep, QvpiSizeL srcRoiSize, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth);
QvpStatus qvpiCopyMirrorBorder_16s_C3IR(Qvp16s* pSrcDst, int srcDstStep, QvpiSize srcRoiSize, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QvpStatus qvpiCopyMirrorBorder_16s_C3IR_L(Qvp16s* pSrcDst, QvpSizeL srcDstStep, QvpiSizeL srcRoiSize, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth);
QvpStatus qvpiCopyMirrorBorder_16s_C4IR(Qvp16s* pSrcDst, int srcDstStep, QvpiSize srcRoiSize, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QvpStatus qvpiCopyMirrorBorder_16s_C4IR_L(Qvp16s* pSrcDst, QvpSizeL srcDstStep, QvpiSizeL srcRoiSize, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth);
QvpStatus qvpiCopyMirrorBorder_32s_C1IR(Qvp32s* pSrcDst, int srcDstStep, QvpiSize srcRoiSize, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QvpStatus qvpiCopyMirrorBorder_32s_C1IR_L(Qvp32s* pSrcDst, QvpSizeL srcDstStep, QvpiSizeL srcRoiSize, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth);
QvpStatus qvpiCopyMirrorBorder_32s_C3IR(Qvp32s* pSrcDst, int srcDstStep, QvpiSize srcRoiSize, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QvpStatus qvpiCopyMirrorBorder_32s_C3IR_L(Qvp32s* pSrcDst, QvpSizeL srcDstStep, QvpiSizeL srcRoiSize, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth);
QvpStatus qvpiCopyMirrorBorder_32s_C4IR(Qvp32s* pSrcDst, int srcDstStep, QvpiSize srcRoiSize, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QvpStatus qvpiCopyMirrorBorder_32s_C4IR_L(Qvp32s* pSrcDst, QvpSizeL srcDstStep, QvpiSizeL srcRoiSize, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth);
QvpStatus qvpiCopyMirrorBorder_32f_C1IR(Qvp32f* pSrcDst, int srcDstStep, QvpiSize srcRoiSize, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QvpStatus qvpiCopyMirrorBorder_32f_C1IR_L(Qvp32f* pSrcDst, QvpSizeL srcDstStep, QvpiSizeL srcRoiSize, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth);
QvpStatus qvpiCopyMirrorBorder_32f_C3IR(Qvp32f* pSrcDst, int srcDstStep, QvpiSize srcRoiSize, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QvpStatus qvpiCopyMirrorBorder_32f_C3IR_L(Qvp32f* pSrcDst, QvpSizeL srcDstStep, QvpiSizeL srcRoiSize, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth);
QvpStatus qvpiCopyMirrorBorder_32f_C4IR(Qvp32f* pSrcDst, int srcDstStep, QvpiSize srcRoiSize, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QvpStatus qvpiCopyMirrorBorder_32f_C4IR_L(Qvp32f* pSrcDst, QvpSizeL srcDstStep, QvpiSizeL srcRoiSize, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth);
/** @} */

/** @name Copy with a wrapped border
 *  @{ */
/** Copies an image into a larger one, with a periodic continuation around it; also in place.
 *
 *  The source goes to row `topBorderHeight` and column `leftBorderWidth` of the destination. In place (I) it is there
 *  already: the border begins `topBorderHeight` rows above and `leftBorderWidth` pixels left of `pSrcDst`, and nothing
 *  but border pixels is written.
 *
 *  Column x takes column x modulo W, where W is the width of the source and the remainder is not negative: the image is
 *  repeated, as often as it takes. Rows likewise.
 *
 *  If `pSrc` equals `pDst`, and all checks are passed, the call is the in-place form: the source is then taken to lie
 *  at `pDst` with `dstStep`, and the border is written around it, also above and left of `pDst`. Otherwise the two
 *  images must not overlap.
 *
 *  @param pSrc,srcStep source image
 *  @param pSrcDst,srcDstStep in place: the source, at its first pixel, inside of the image that gets the border
 *  @param srcRoiSize size of the source in pixels
 *  @param pDst,dstStep destination image, at the first pixel of its border
 *  @param dstRoiSize size of the destination, its border included
 *  @param topBorderHeight rows above the source; those below are what is left of the destination's height
 *  @param leftBorderWidth columns left of the source; those to the right are what is left of the destination's width
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: an image is null
 *  - qvpStatusStep: a step is below 1
 *  - qvpStatusSize: a side of `srcRoiSize` or `dstRoiSize` is below 1, `topBorderHeight` or `leftBorderWidth` is
 *    negative, or the destination is narrower than `leftBorderWidth` plus the source or lower than `topBorderHeight`
 *    plus the source
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiCopyWrapBorder_32s_C1R(const Qvp32s* pSrc, int srcStep, QvpiSize srcRoiSize, Qvp32s* pDst, int dstStep, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QvpStatus qvpiCopyWrapBorder_32s_C1R_L(const Qvp32s* pSrc, QvpSizeL srcStep, QvpiSizeL srcRoiSize, Qvp32s* pDst, QvpSizeL dstStep, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth);
QvpStatus qvpiCopyWrapBorder_32f_C1R(const Qvp32f* pSrc, int srcStep, QvpiSize srcRoiSize, Qvp32f* pDst, int dstStep, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QvpStatus qvpiCopyWrapBorder_32f_C1R_L(const Qvp32f* pSrc, QvpSizeL srcStep, QvpiSizeL srcRoiSize, Qvp32f* pDst, QvpSizeL dstStep, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth);
QvpStatus qvpiCopyWrapBorder_32s_C1IR(Qvp32s* pSrcDst, int srcDstStep, QvpiSize srcRoiSize, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QvpStatus qvpiCopyWrapBorder_32s_C1IR_L(Qvp32s* pSrcDst, QvpSizeL srcDstStep, QvpiSizeL srcRoiSize, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth);
QvpStatus qvpiCopyWrapBorder_32f_C1IR(Qvp32f* pSrcDst, int srcDstStep, QvpiSize srcRoiSize, QvpiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
QvpStatus qvpiCopyWrapBorder_32f_C1IR_L(Qvp32f* pSrcDst, QvpSizeL srcDstStep, QvpiSizeL srcRoiSize, QvpiSizeL dstRoiSize, QvpSizeL topBorderHeight, QvpSizeL leftBorderWidth);
/** @} */

/** @name General filter
 *  @{ */
/** Tells the sizes of the record and of the work buffer of a general filter.
 *
 *  The general filter convolves an image with a kernel of any size. It is used in three calls: qvpiFilterBorderGetSize,
 *  a qvpiFilterBorderInit function that fills a record from the kernel, and a qvpiFilterBorder function for each image
 *  or tile. The caller owns record and buffer; neither needs any alignment. A record serves any number of threads at a
 *  time, a buffer one call. A buffer serves every region that is neither wider nor higher than `dstRoiSize`.
 *
 *  Kernels of 16-bit integers are for images of 8u, 16u and 16s, kernels of 32f for those and 32f, kernels of 64f for
 *  one channel of 64f. A size beyond 2147483647 bytes is written as 0.
 *
 *  @param kernelSize size of the kernel
 *  @param dstRoiSize size of the largest region that will be filtered
 *  @param dataType type of the image: qvp8u, qvp16u, qvp16s, qvp32f or qvp64f
 *  @param kernelType type of the kernel: qvp16s, qvp32f or qvp64f
 *  @param numChannels channels of a pixel, 1 to 4
 *  @param pSpecSize receives the size of the record in bytes
 *  @param pBufferSize receives the size of the work buffer in bytes
 *  @return, in the order of the checks:
 *  - qvpStatusSize: a side of `kernelSize` or `dstRoiSize` is below 1
 *  - qvpStatusDataType: the type of the image or of the kernel is none of those above, or just one of them is qvp64f
 *  - qvpStatusChannel: `numChannels` is outside 1 to 4, or not 1 for qvp64f
 *  - qvpStatusNullPointer: `pSpecSize` or `pBufferSize` is null
 *  - qvpStatusSizeOverflow: a size is beyond 2147483647; those that are not are written
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiFilterBorderGetSize(QvpiSize kernelSize, QvpiSize dstRoiSize, QvpDataType dataType, QvpDataType kernelType, int numChannels, int* pSpecSize, int* pBufferSize);
/** @} */

/** @name General filter: integer kernels
 *  @{ */
/** Makes the record of a general filter from a kernel of integers and a divisor.
 *
 *  The filter is a convolution, which turns the kernel by 180 degrees; to correlate, hand it over turned. Of one row:
 *
 *  @code
 *    const Qvp16s kernel[3] = {1, 2, 5};  // dst(x) = 5 * src(x - 1) + 2 * src(x) + 1 * src(x + 1)
 *  @endcode
 *
 *  For images of 8u, and of 16s with one channel and a kernel at least 3 wide and 2 high, or with two channels and a
 *  kernel at least 2 wide and high, results are exact whatever the coefficients: the sum of products is formed without
 *  loss, the quotient (sum + offset * divisor) / divisor is rounded once, and saturated.
 *
 *  For all other images, 16u among them, the kernel becomes one of 32f, with the coefficients
 *  (float)(coefficient / divisor); see qvpiFilterBorderInit_32f(). These and their sums are rounded then, so that a
 *  quotient halfway between two integers may go to either side. They are exact if the divisor is a power of two and
 *  sums of products, before they are divided, stay below 2^24 in magnitude.
 *
 *  @param pKernel coefficients, row by row
 *  @param kernelSize size of the kernel
 *  @param divisor what sums are divided by, any number but 0
 *  @param dataType type of the image: qvp8u, qvp16u or qvp16s
 *  @param numChannels channels of a pixel, 1 to 4
 *  @param roundMode qvpRoundZero, qvpRoundNear (ties to even) or qvpRoundFinancial (ties away from zero); 16 may be
 *         added to ask for accuracy, which changes no result
 *  @param pSpec the record, of the size that qvpiFilterBorderGetSize() tells; it must not be moved. After a failure,
 *         whichever it was, every function refuses it
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: `pKernel` or `pSpec` is null
 *  - qvpStatusSize: a side of `kernelSize` is below 1
 *  - qvpStatusDataType, qvpStatusChannel, qvpStatusRoundMode, qvpStatusDivisor: `dataType`, `numChannels`, `roundMode`,
 *    `divisor` is none of the above
 *  - qvpStatusAccurateModeNotSupported, a warning: accuracy was asked for, but the image is neither 8u nor 16s of one
 *    channel. The record is good
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiFilterBorderInit_16s(const Qvp16s* pKernel, QvpiSize kernelSize, int divisor, QvpDataType dataType, int numChannels, QvpRoundMode roundMode, QvpiFilterBorderSpec* pSpec);
/** @} */

/** @name General filter: kernels of single precision
 *  @{ */
/** Makes the record of a general filter from a kernel of single precision.
 *
 *  The filter is a convolution, which turns the kernel by 180 degrees; to correlate, hand it over turned. Of one row:
 *
 *  @code
 *    const Qvp32f kernel[3] = {1, 2, 5};  // dst(x) = 5 * src(x - 1) + 2 * src(x) + 1 * src(x + 1)
 *  @endcode
 *
 *  Products and sums are of single precision. Each result is the sum of +0 and the products in the order of rows and
 *  columns of the image, from the top left. A result of zero is therefore +0, also where the kernel only copies a
 *  pixel of -0, and a NaN or an infinity in reach of the kernel makes a NaN even if its coefficient is 0, as 0 times
 *  either is NaN. Integer results are rounded and saturated; NaN gives the lowest value.
 *
 *  @param pKernel coefficients, row by row
 *  @param kernelSize size of the kernel
 *  @param dataType type of the image: qvp8u, qvp16u, qvp16s or qvp32f
 *  @param numChannels channels of a pixel, 1 to 4
 *  @param roundMode qvpRoundZero, qvpRoundNear (ties to even) or qvpRoundFinancial (ties away from zero), for integer
 *         results; 16 may be added to ask for accuracy, which changes no result
 *  @param pSpec the record, of the size that qvpiFilterBorderGetSize() tells; it must not be moved. After a failure,
 *         whichever it was, every function refuses it
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: `pKernel` or `pSpec` is null
 *  - qvpStatusSize: a side of `kernelSize` is below 1
 *  - qvpStatusDataType, qvpStatusChannel, qvpStatusRoundMode: `dataType`, `numChannels`, `roundMode` is none of the
 *    above
 *  - qvpStatusAccurateModeNotSupported, a warning: accuracy was asked for. The record is good
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiFilterBorderInit_32f(const Qvp32f* pKernel, QvpiSize kernelSize, QvpDataType dataType, int numChannels, QvpRoundMode roundMode, QvpiFilterBorderSpec* pSpec);
/** @} */

/** @name General filter: kernels of double precision
 *  @{ */
/** Makes the record of a general filter from a kernel of double precision.
 *
 *  The filter is a convolution, which turns the kernel by 180 degrees; to correlate, hand it over turned. Of one row:
 *
 *  @code
 *    const Qvp64f kernel[3] = {1, 2, 5};  // dst(x) = 5 * src(x - 1) + 2 * src(x) + 1 * src(x + 1)
 *  @endcode
 *
 *  Products and sums are of double precision, added up as qvpiFilterBorderInit_32f() tells.
 *
 *  @param pKernel coefficients, row by row
 *  @param kernelSize size of the kernel
 *  @param dataType type of the image: qvp64f
 *  @param numChannels channels of a pixel: 1
 *  @param roundMode qvpRoundNear; 16 may be added
 *  @param pSpec the record, of the size that qvpiFilterBorderGetSize() tells; it must not be moved. After a failure,
 *         whichever it was, every function refuses it
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: `pKernel` or `pSpec` is null
 *  - qvpStatusSize: a side of `kernelSize` is below 1
 *  - qvpStatusDataType, qvpStatusChannel, qvpStatusRoundMode: `dataType`, `numChannels`, `roundMode` is none of the
 *    above
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiFilterBorderInit_64f(const Qvp64f* pKernel, QvpiSize kernelSize, QvpDataType dataType, int numChannels, QvpRoundMode roundMode, QvpiFilterBorderSpec* pSpec);
/** @} */

/** @name General filter: mode
 *  @{ */
/** Sets a hint and an offset that is added to every result, before it is rounded and saturated.
 *
 *  An Init function sets the offset to 0. The hint is accepted and changes no result: qvpAlgHintAccurate and
 *  qvpAlgHintFast are the same here, as integer kernels are exact and the others have one order of additions.
 *
 *  @param hint any number
 *  @param offset what is added: for integer kernels the result is round((sum + offset * divisor) / divisor), for others
 *         round(sum + offset); float images filtered with a record for integers take it too, sum + offset
 *  @param pSpec a record for 8u or 16u images; for others the offset must be 0
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: `pSpec` is null
 *  - qvpStatusContextMatch: the record was not made by an Init function of the general filter
 *  - qvpStatusNotSupportedMode: `offset` is not 0 and the record is neither for 8u nor for 16u images
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiFilterBorderSetMode(QvpHintAlgorithm hint, int offset, QvpiFilterBorderSpec* pSpec);
/** @} */

/** @name General filter: filtering
 *  @{ */
/** Convolves an image with the kernel of a record.
 *
 *  For each channel, over the rows j and the columns i of the kernel K, kw wide and kh high:
 *
 *  @code
 *    dst(x, y) = sum of K[kh - 1 - j][kw - 1 - i] * src(x - ax + i, y - ay + j),  ax = (kw - 1) / 2, ay = (kh - 1) / 2
 *  @endcode
 *
 *  with ax and ay rounded down: a kernel of even width reaches one column further to the right than to the left, rows
 *  likewise. How sums are formed, divided and rounded is told at the Init functions.
 *
 *  Pixels outside of the region are what the border type says: memory on the sides whose flag is set, as far as the
 *  kernel reaches; the kind is applied outside of the region so enlarged.
 *
 *  A tile is filtered like the whole image, to the bit, if the flags of its inner sides are set. With qvpBorderMirror
 *  and an even side of the kernel, tiles at the right or the lower edge must be at least two pixels long that way, as
 *  the reflection there needs one pixel more than what is in memory before the tile. The destination must not overlap
 *  with what is read.
 *
 *  A record that was made for another pixel type, with no more channels than it says, computes the same filter, slower.
 *
 *  @param pSrc,srcStep source, at the first pixel of the region
 *  @param pDst,dstStep destination
 *  @param dstRoiSize size of the region in pixels
 *  @param borderType qvpBorderReplicate, qvpBorderMirror or qvpBorderConst, with flags of sides in memory, or
 *         qvpBorderInMem
 *  @param borderValue one value for each channel; read for qvpBorderConst only
 *  @param pSpec the record
 *  @param pBuffer work buffer of the size that qvpiFilterBorderGetSize() tells
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: `pSrc`, `pDst`, `pSpec` or `pBuffer` is null, or `borderValue` for qvpBorderConst
 *  - qvpStatusSize: a side of `dstRoiSize` is below 1
 *  - qvpStatusStep: `srcStep` is below 1, or `dstStep` below the width of the region times the size of one channel
 *  - qvpStatusBorder: `borderType` is none of the above
 *  - qvpStatusContextMatch: the record was not made by an Init function of the general filter
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiFilterBorder_8u_C1R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize dstRoiSize, QvpiBorderType borderType, const Qvp8u* borderValue, const QvpiFilterBorderSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFilterBorder_8u_C3R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize dstRoiSize, QvpiBorderType borderType, const Qvp8u* borderValue, const QvpiFilterBorderSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFilterBorder_8u_C4R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize dstRoiSize, QvpiBorderType borderType, const Qvp8u* borderValue, const QvpiFilterBorderSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFilterBorder_16u_C1R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize dstRoiSize, QvpiBorderType borderType, const Qvp16u* borderValue, const QvpiFilterBorderSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFilterBorder_16u_C3R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize dstRoiSize, QvpiBorderType borderType, const Qvp16u* borderValue, const QvpiFilterBorderSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFilterBorder_16u_C4R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize dstRoiSize, QvpiBorderType borderType, const Qvp16u* borderValue, const QvpiFilterBorderSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFilterBorder_16s_C1R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize dstRoiSize, QvpiBorderType borderType, const Qvp16s* borderValue, const QvpiFilterBorderSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFilterBorder_16s_C3R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize dstRoiSize, QvpiBorderType borderType, const Qvp16s* borderValue, const QvpiFilterBorderSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFilterBorder_16s_C4R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize dstRoiSize, QvpiBorderType borderType, const Qvp16s* borderValue, const QvpiFilterBorderSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFilterBorder_32f_C1R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize dstRoiSize, QvpiBorderType borderType, const Qvp32f* borderValue, const QvpiFilterBorderSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFilterBorder_32f_C3R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize dstRoiSize, QvpiBorderType borderType, const Qvp32f* borderValue, const QvpiFilterBorderSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFilterBorder_32f_C4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize dstRoiSize, QvpiBorderType borderType, const Qvp32f* borderValue, const QvpiFilterBorderSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFilterBorder_64f_C1R(const Qvp64f* pSrc, int srcStep, Qvp64f* pDst, int dstStep, QvpiSize dstRoiSize, QvpiBorderType borderType, const Qvp64f* borderValue, const QvpiFilterBorderSpec* pSpec, Qvp8u* pBuffer);
/** @} */

/** @name Fixed kernels: work buffer
 *  @{ */
/** Tells the size of the work buffer of filters with fixed kernels: binomial, sharpen, derivatives and gradients.
 *
 *  One buffer serves every such filter, with the same or a smaller mask and region, of that type and number of
 *  channels, at any border. It may begin anywhere.
 *
 *  @param maskSize 2x2, 3x3 or 5x5
 *  @param roiSize size of the region in pixels
 *  @param dataType type of the source: qvp8u, qvp16u, qvp16s or qvp32f
 *  @param numChannels channels of a source pixel: 1, 3 or 4; 4 for AC4
 *  @param pBufferSize size in bytes; 0 if it cannot be represented
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: `pBufferSize` is null
 *  - qvpStatusSize: a side of `roiSize` is below 1
 *  - qvpStatusMaskSize, qvpStatusDataType, qvpStatusNumChannels: `maskSize`, `dataType`, `numChannels` is none of the
 *    above
 *  - qvpStatusSizeOverflow: the size is above 2147483647
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiFilterFixedBorderGetBufferSize(QvpiSize maskSize, QvpiSize roiSize, QvpDataType dataType, int numChannels, int* pBufferSize);
/** @} */

/** @name Fixed kernels: smoothing and sharpening
 *  @{ */
/** Smooths with binomial weights, or sharpens by twice the pixel minus that.
 *
 *  Binomial weighs each axis by [1 2 1] / 4 or [1 4 6 4 1] / 16:
 *
 *  @code
 *    3x3    dst = (1 2 1            5x5    dst = ( 1  4  6  4  1
 *                  2 4 2                           4 16 24 16  4
 *                  1 2 1) / 16                     6 24 36 24  6
 *                                                  4 16 24 16  4
 *                                                  1  4  6  4  1) / 256
 *  @endcode
 *
 *  Sharpen is 2 * src - binomial, an unsharp mask: plane areas stay, edges get steeper. Integers are summed exactly,
 *  rounded once to the nearest, ties to even, and saturated: around a single 255, Binomial 3x3 gives 64, beside it 32
 *  and at the corners 16. Floats are added along rows, then down columns, the middle first and then by pairs; results
 *  differ from exact ones by at most 12 * 2^-24 times the sum of the absolute products. A NaN or an infinity reaches
 *  exactly the results whose mask covers it. AC4 keeps alpha.
 *
 *  Pixels outside of the region are what the border type says: memory on the sides whose flag is set, as far as the
 *  mask reaches; the kind is applied outside of the region so enlarged. Tiles that are joined by these flags give the
 *  bits of the whole image. The destination must not overlap with what is read.
 *
 *  @param pSrc,srcStep source, at the first pixel of the region
 *  @param pDst,dstStep destination
 *  @param roiSize size of the region in pixels
 *  @param maskSize 3x3 or 5x5
 *  @param borderType qvpBorderReplicate, qvpBorderMirror or qvpBorderConst, with flags of sides in memory, or
 *         qvpBorderInMem; with 3x3 qvpBorderReplicateAlt too, which is the same as qvpBorderReplicate here
 *  @param borderValue one value for each channel, three for AC4; read for qvpBorderConst only
 *  @param pBuffer work buffer of the size that qvpiFilterFixedBorderGetBufferSize() tells for this or a larger region
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: `pSrc`, `pDst` or `pBuffer` is null, or `borderValue` for qvpBorderConst
 *  - qvpStatusSize: a side of `roiSize` is below 1
 *  - qvpStatusStep: a step is shorter than its row of the region
 *  - qvpStatusMaskSize: `maskSize` is none of the above
 *  - qvpStatusBorder: `borderType` is none of the above
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiFilterBinomialBorder_8u_C1R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp8u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterBinomialBorder_8u_C3R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp8u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterBinomialBorder_8u_C4R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp8u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterBinomialBorder_8u_AC4R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp8u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterBinomialBorder_16u_C1R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp16u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterBinomialBorder_16u_C3R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp16u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterBinomialBorder_16u_C4R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp16u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterBinomialBorder_16u_AC4R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp16u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterBinomialBorder_16s_C1R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp16s* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterBinomialBorder_16s_C3R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp16s* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterBinomialBorder_16s_C4R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp16s* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterBinomialBorder_16s_AC4R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp16s* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterBinomialBorder_32f_C1R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp32f* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterBinomialBorder_32f_C3R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp32f* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterBinomialBorder_32f_C4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp32f* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterBinomialBorder_32f_AC4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp32f* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterSharpenBorder_8u_C1R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp8u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterSharpenBorder_8u_C3R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp8u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterSharpenBorder_8u_C4R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp8u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterSharpenBorder_8u_AC4R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp8u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterSharpenBorder_16u_C1R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp16u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterSharpenBorder_16u_C3R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp16u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterSharpenBorder_16u_C4R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp16u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterSharpenBorder_16u_AC4R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp16u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterSharpenBorder_16s_C1R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp16s* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterSharpenBorder_16s_C3R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp16s* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterSharpenBorder_16s_C4R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp16s* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterSharpenBorder_16s_AC4R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp16s* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterSharpenBorder_32f_C1R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp32f* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterSharpenBorder_32f_C3R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp32f* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterSharpenBorder_32f_C4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp32f* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterSharpenBorder_32f_AC4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp32f* borderValue, Qvp8u* pBuffer);
/** @} */

/** @name Fixed kernels: derivatives
 *  @{ */
/** Derivatives by fixed kernels, positive where values grow to the right (X) or downward (Y).
 *
 *  Each is the product of a row of coefficients and a column; nothing is divided. Y is X with both exchanged.
 *
 *  @code
 *    name                    mask   row                column            use
 *    SobelX, SobelY          3x3    [-1 0 1]           [1 2 1]           first derivative
 *                            5x5    [-1 -2 0 2 1]      [1 4 6 4 1]
 *    SobelXX, SobelYY        3x3    [1 -2 1]           [1 2 1]           second derivative
 *                            5x5    [1 0 -2 0 1]       [1 4 6 4 1]
 *    SobelXY                 3x3    [-1 0 1]           [-1 0 1]          mixed derivative
 *                            5x5    [-1 -2 0 2 1]      [-1 -2 0 2 1]
 *    ScharrX, ScharrY        3x3    [-1 0 1]           [3 10 3]          first derivative, truer in its direction
 *    PrewittX, PrewittY      3x3    [-1 0 1]           [1 1 1]           slope of the plane fitted to the mask
 *                            5x5    [-2 -1 0 1 2]      [1 1 1 1 1]
 *    RobertsDown             2x2    src(x + 1, y + 1) - src(x, y)        diagonals of the smallest mask
 *    RobertsUp               2x2    src(x + 1, y) - src(x, y + 1)
 *    Laplace                 3x3    the four neighbours - 4 * src        spots, focus
 *                            5x5    SobelXX + SobelYY
 *    HighPass                3x3    9 * src - the sum of the mask        points, defects
 *                            5x5    25 * src - the sum of the mask
 *  @endcode
 *
 *  On an image of 3 x + 4 y, SobelX 3x3 gives 24, SobelY 32. Integers give exact results, which always fit: 8u gives
 *  16s, 16u and 16s give 32f. From 32f sums are formed along rows, then down columns, the middle first and then by
 *  pairs, in single precision; they differ from exact ones by at most 12 * 2^-24 times the sum of the absolute
 *  products. A NaN or an infinity reaches exactly the results that have it under a coefficient other than 0.
 *
 *  Pixels outside of the region are what the border type says: memory on the sides whose flag is set, as far as the
 *  mask reaches; the kind is applied outside of the region so enlarged. Tiles that are joined by these flags give the
 *  bits of the whole image. The destination must not overlap with what is read.
 *
 *  @param pSrc,srcStep source, at the first pixel of the region
 *  @param pDst,dstStep destination
 *  @param roiSize size of the region in pixels
 *  @param maskSize as in the table
 *  @param borderType qvpBorderReplicate, qvpBorderMirror or qvpBorderConst, with flags of sides in memory, or
 *         qvpBorderInMem; with 3x3 qvpBorderReplicateAlt too, which is the same as qvpBorderReplicate here
 *  @param borderValue one value for each channel, three for AC4; read for qvpBorderConst only
 *  @param pBuffer work buffer of the size that qvpiFilterFixedBorderGetBufferSize() tells for this or a larger region
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: `pSrc`, `pDst` or `pBuffer` is null, or `borderValue` for qvpBorderConst
 *  - qvpStatusSize: a side of `roiSize` is below 1
 *  - qvpStatusStep: a step is shorter than its row of the region
 *  - qvpStatusNotEvenStep: from 16u or 16s, `dstStep` is no multiple of 4
 *  - qvpStatusMaskSize: `maskSize` is none of the above
 *  - qvpStatusBorder: `borderType` is none of the above
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiFilterSobelXBorder_8u16s_C1R(const Qvp8u* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp8u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterSobelXBorder_8u16s_C3R(const Qvp8u* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp8u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterSobelXBorder_16u32f_C1R(const Qvp16u* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp16u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterSobelXBorder_16u32f_C3R(const Qvp16u* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp16u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterSobelXBorder_16s32f_C1R(const Qvp16s* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp16s* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterSobelXBorder_16s32f_C3R(const Qvp16s* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp16s* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterSobelXBorder_32f_C1R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp32f* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterSobelXBorder_32f_C3R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp32f* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterSobelYBorder_8u16s_C1R(const Qvp8u* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp8u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterSobelYBorder_8u16s_C3R(const Qvp8u* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp8u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterSobelYBorder_16u32f_C1R(const Qvp16u* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp16u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterSobelYBorder_16u32f_C3R(const Qvp16u* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp16u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterSobelYBorder_16s32f_C1R(const Qvp16s* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp16s* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterSobelYBorder_16s32f_C3R(const Qvp16s* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp16s* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterSobelYBorder_32f_C1R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp32f* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterSobelYBorder_32f_C3R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp32f* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterSobelXXBorder_8u16s_C1R(const Qvp8u* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp8u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterSobelXXBorder_8u16s_C3R(const Qvp8u* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp8u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterSobelXXBorder_16u32f_C1R(const Qvp16u* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp16u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterSobelXXBorder_16u32f_C3R(const Qvp16u* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp16u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterSobelXXBorder_16s32f_C1R(const Qvp16s* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp16s* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterSobelXXBorder_16s32f_C3R(const Qvp16s* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp16s* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterSobelXXBorder_32f_C1R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp32f* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterSobelXXBorder_32f_C3R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp32f* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterSobelYYBorder_8u16s_C1R(const Qvp8u* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp8u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterSobelYYBorder_8u16s_C3R(const Qvp8u* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp8u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterSobelYYBorder_16u32f_C1R(const Qvp16u* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp16u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterSobelYYBorder_16u32f_C3R(const Qvp16u* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp16u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterSobelYYBorder_16s32f_C1R(const Qvp16s* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp16s* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterSobelYYBorder_16s32f_C3R(const Qvp16s* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp16s* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterSobelYYBorder_32f_C1R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp32f* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterSobelYYBorder_32f_C3R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp32f* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterSobelXYBorder_8u16s_C1R(const Qvp8u* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp8u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterSobelXYBorder_8u16s_C3R(const Qvp8u* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp8u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterSobelXYBorder_16u32f_C1R(const Qvp16u* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp16u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterSobelXYBorder_16u32f_C3R(const Qvp16u* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp16u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterSobelXYBorder_16s32f_C1R(const Qvp16s* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp16s* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterSobelXYBorder_16s32f_C3R(const Qvp16s* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp16s* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterSobelXYBorder_32f_C1R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp32f* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterSobelXYBorder_32f_C3R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp32f* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterScharrXBorder_8u16s_C1R(const Qvp8u* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp8u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterScharrXBorder_8u16s_C3R(const Qvp8u* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp8u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterScharrXBorder_16u32f_C1R(const Qvp16u* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp16u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterScharrXBorder_16u32f_C3R(const Qvp16u* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp16u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterScharrXBorder_16s32f_C1R(const Qvp16s* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp16s* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterScharrXBorder_16s32f_C3R(const Qvp16s* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp16s* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterScharrXBorder_32f_C1R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp32f* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterScharrXBorder_32f_C3R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp32f* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterScharrYBorder_8u16s_C1R(const Qvp8u* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp8u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterScharrYBorder_8u16s_C3R(const Qvp8u* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp8u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterScharrYBorder_16u32f_C1R(const Qvp16u* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp16u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterScharrYBorder_16u32f_C3R(const Qvp16u* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp16u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterScharrYBorder_16s32f_C1R(const Qvp16s* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp16s* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterScharrYBorder_16s32f_C3R(const Qvp16s* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp16s* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterScharrYBorder_32f_C1R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp32f* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterScharrYBorder_32f_C3R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp32f* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterPrewittXBorder_8u16s_C1R(const Qvp8u* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp8u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterPrewittXBorder_8u16s_C3R(const Qvp8u* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp8u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterPrewittXBorder_16u32f_C1R(const Qvp16u* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp16u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterPrewittXBorder_16u32f_C3R(const Qvp16u* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp16u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterPrewittXBorder_16s32f_C1R(const Qvp16s* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp16s* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterPrewittXBorder_16s32f_C3R(const Qvp16s* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp16s* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterPrewittXBorder_32f_C1R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp32f* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterPrewittXBorder_32f_C3R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp32f* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterPrewittYBorder_8u16s_C1R(const Qvp8u* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp8u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterPrewittYBorder_8u16s_C3R(const Qvp8u* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp8u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterPrewittYBorder_16u32f_C1R(const Qvp16u* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp16u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterPrewittYBorder_16u32f_C3R(const Qvp16u* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp16u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterPrewittYBorder_16s32f_C1R(const Qvp16s* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp16s* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterPrewittYBorder_16s32f_C3R(const Qvp16s* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp16s* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterPrewittYBorder_32f_C1R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp32f* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterPrewittYBorder_32f_C3R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp32f* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterRobertsDownBorder_8u16s_C1R(const Qvp8u* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp8u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterRobertsDownBorder_16u32f_C1R(const Qvp16u* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp16u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterRobertsDownBorder_16s32f_C1R(const Qvp16s* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp16s* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterRobertsDownBorder_32f_C1R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp32f* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterRobertsUpBorder_8u16s_C1R(const Qvp8u* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp8u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterRobertsUpBorder_16u32f_C1R(const Qvp16u* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp16u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterRobertsUpBorder_16s32f_C1R(const Qvp16s* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp16s* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterRobertsUpBorder_32f_C1R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp32f* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterLaplaceBorder_8u16s_C1R(const Qvp8u* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp8u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterLaplaceBorder_8u16s_C3R(const Qvp8u* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp8u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterLaplaceBorder_16u32f_C1R(const Qvp16u* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp16u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterLaplaceBorder_16u32f_C3R(const Qvp16u* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp16u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterLaplaceBorder_16s32f_C1R(const Qvp16s* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp16s* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterLaplaceBorder_16s32f_C3R(const Qvp16s* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp16s* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterLaplaceBorder_32f_C1R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp32f* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterLaplaceBorder_32f_C3R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp32f* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterHighPassBorder_8u16s_C1R(const Qvp8u* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp8u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterHighPassBorder_8u16s_C3R(const Qvp8u* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp8u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterHighPassBorder_16u32f_C1R(const Qvp16u* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp16u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterHighPassBorder_16u32f_C3R(const Qvp16u* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp16u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterHighPassBorder_16s32f_C1R(const Qvp16s* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp16s* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterHighPassBorder_16s32f_C3R(const Qvp16s* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp16s* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterHighPassBorder_32f_C1R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp32f* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterHighPassBorder_32f_C3R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp32f* borderValue, Qvp8u* pBuffer);
/** @} */

/** @name Gradients: magnitude
 *  @{ */
/** The magnitude of the gradient, as one picture.
 *
 *  gx and gy are the results of SobelX and SobelY with the same mask. `normType` tells what becomes of them:
 *
 *  @code
 *    qvpNormL1     |gx| + |gy|
 *    qvpNormL2     sqrt(gx * gx + gy * gy)
 *    qvpNormInf    the larger of |gx| and |gy|
 *  @endcode
 *
 *  Integers are exact for L1 and Inf; L2 is computed in single precision, each operation rounded, and rounded to the
 *  nearest, ties to even. Results saturate. On an image of 30 x + 40 y, L2 with 3x3 gives 400, so that 8u has 255. In
 *  32f squares may overflow to infinity; NaN in gx or gy gives NaN.
 *
 *  Pixels outside of the region are what the border type says: memory on the sides whose flag is set, as far as the
 *  mask reaches; the kind is applied outside of the region so enlarged. Tiles that are joined by these flags give the
 *  bits of the whole image. No destination may overlap with what is read.
 *
 *  @param pSrc,srcStep source, at the first pixel of the region
 *  @param pDst,dstStep destination
 *  @param roiSize size of the region in pixels
 *  @param maskSize 3x3 or 5x5
 *  @param normType qvpNormL1, qvpNormL2 or qvpNormInf
 *  @param borderType qvpBorderReplicate or qvpBorderConst, with flags of sides in memory, or qvpBorderInMem
 *  @param borderValue the pixel outside; read for qvpBorderConst only
 *  @param pBuffer work buffer of the size that qvpiFilterFixedBorderGetBufferSize() tells for this or a larger region
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: `pSrc`, `pDst` or `pBuffer` is null, or `borderValue` for qvpBorderConst
 *  - qvpStatusSize: a side of `roiSize` is below 1
 *  - qvpStatusStep: a step is shorter than its row of the region
 *  - qvpStatusMaskSize: `maskSize` is none of the above
 *  - qvpStatusNotSupportedMode: `normType` is none of the above
 *  - qvpStatusBorder: `borderType` is none of the above
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiFilterSobel_8u_C1R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpNormType normType, QvpiBorderType borderType, const Qvp8u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterSobel_8u16s_C1R(const Qvp8u* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpNormType normType, QvpiBorderType borderType, const Qvp8u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterSobel_16u_C1R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpNormType normType, QvpiBorderType borderType, const Qvp16u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterSobel_16s_C1R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpNormType normType, QvpiBorderType borderType, const Qvp16s* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterSobel_32f_C1R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpNormType normType, QvpiBorderType borderType, const Qvp32f* borderValue, Qvp8u* pBuffer);
/** @} */

/** @name Gradients: vectors
 *  @{ */
/** The gradient by Sobel's or Scharr's kernels: both derivatives, magnitude and angle, each of which may be left out.
 *
 *  - `pGx`, `pGy`: what the functions SobelX and SobelY, or ScharrX and ScharrY, give.
 *  - `pMagnitude`, in single precision: for qvpNormL1 |gx| + |gy|, for qvpNormL2 sqrt(gx * gx + gy * gy), each
 *    operation rounded, for qvpNormInf the larger of |gx| and |gy|. Squares may overflow to infinity.
 *  - `pAngle`: the direction of growth, atan2(gy, gx), in radians from -pi to pi, clockwise on the screen, as y grows
 *    downward. Of no gradient it is 0. It is off by 5e-6 at most.
 *
 *  NaN in gx or gy gives NaN for both. From three channels (C3C1) the channel with the largest gradient decides, by
 *  |gx| + |gy|, gx * gx + gy * gy or the larger of |gx| and |gy|, as the norm says, in single precision; of equal ones
 *  the first.
 *
 *  On an image of 3 x + 4 y, Sobel 3x3 gives gx 24, gy 32, magnitudes 56, 40 and 32, and the angle 0.9272952.
 *
 *  Pixels outside of the region are what the border type says: memory on the sides whose flag is set, as far as the
 *  mask reaches; the kind is applied outside of the region so enlarged. Tiles that are joined by these flags give the
 *  bits of the whole image. No destination may overlap with what is read.
 *
 *  @param pSrc,srcStep source, at the first pixel of the region
 *  @param pGx,gxStep,pGy,gyStep derivatives to the right and downward; null: not wanted, the step is not looked at
 *  @param pMagnitude,magnitudeStep,pAngle,angleStep magnitude and angle; null: not wanted
 *  @param roiSize size of the region in pixels
 *  @param maskSize Sobel: 3x3 or 5x5; Scharr: 3x3
 *  @param normType qvpNormL1, qvpNormL2 or qvpNormInf
 *  @param borderType qvpBorderReplicate, qvpBorderMirror or qvpBorderConst, with flags of sides in memory, or
 *         qvpBorderInMem; with 3x3 qvpBorderReplicateAlt too, which is the same as qvpBorderReplicate here
 *  @param borderValue one value for each channel; read for qvpBorderConst only
 *  @param pBuffer work buffer of the size that qvpiFilterFixedBorderGetBufferSize() tells for this or a larger region
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: `pSrc` or `pBuffer` is null, or all destinations are, or `borderValue` for qvpBorderConst
 *  - qvpStatusSize: a side of `roiSize` is below 1
 *  - qvpStatusStep: the step of the source or of a destination that is wanted is shorter than its row of the region
 *  - qvpStatusNotEvenStep: from 16u or 16s, such a destination step is no multiple of 4
 *  - qvpStatusMaskSize: `maskSize` is none of the above
 *  - qvpStatusNotSupportedMode: `normType` is none of the above
 *  - qvpStatusBorder: `borderType` is none of the above
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiFilterGradientSobelBorder_8u16s_C1R(const Qvp8u* pSrc, int srcStep, Qvp16s* pGx, int gxStep, Qvp16s* pGy, int gyStep, Qvp32f* pMagnitude, int magnitudeStep, Qvp32f* pAngle, int angleStep, QvpiSize roiSize, QvpiSize maskSize, QvpNormType normType, QvpiBorderType borderType, const Qvp8u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterGradientSobelBorder_8u16s_C3C1R(const Qvp8u* pSrc, int srcStep, Qvp16s* pGx, int gxStep, Qvp16s* pGy, int gyStep, Qvp32f* pMagnitude, int magnitudeStep, Qvp32f* pAngle, int angleStep, QvpiSize roiSize, QvpiSize maskSize, QvpNormType normType, QvpiBorderType borderType, const Qvp8u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterGradientSobelBorder_16u32f_C1R(const Qvp16u* pSrc, int srcStep, Qvp32f* pGx, int gxStep, Qvp32f* pGy, int gyStep, Qvp32f* pMagnitude, int magnitudeStep, Qvp32f* pAngle, int angleStep, QvpiSize roiSize, QvpiSize maskSize, QvpNormType normType, QvpiBorderType borderType, const Qvp16u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterGradientSobelBorder_16u32f_C3C1R(const Qvp16u* pSrc, int srcStep, Qvp32f* pGx, int gxStep, Qvp32f* pGy, int gyStep, Qvp32f* pMagnitude, int magnitudeStep, Qvp32f* pAngle, int angleStep, QvpiSize roiSize, QvpiSize maskSize, QvpNormType normType, QvpiBorderType borderType, const Qvp16u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterGradientSobelBorder_16s32f_C1R(const Qvp16s* pSrc, int srcStep, Qvp32f* pGx, int gxStep, Qvp32f* pGy, int gyStep, Qvp32f* pMagnitude, int magnitudeStep, Qvp32f* pAngle, int angleStep, QvpiSize roiSize, QvpiSize maskSize, QvpNormType normType, QvpiBorderType borderType, const Qvp16s* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterGradientSobelBorder_16s32f_C3C1R(const Qvp16s* pSrc, int srcStep, Qvp32f* pGx, int gxStep, Qvp32f* pGy, int gyStep, Qvp32f* pMagnitude, int magnitudeStep, Qvp32f* pAngle, int angleStep, QvpiSize roiSize, QvpiSize maskSize, QvpNormType normType, QvpiBorderType borderType, const Qvp16s* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterGradientSobelBorder_32f_C1R(const Qvp32f* pSrc, int srcStep, Qvp32f* pGx, int gxStep, Qvp32f* pGy, int gyStep, Qvp32f* pMagnitude, int magnitudeStep, Qvp32f* pAngle, int angleStep, QvpiSize roiSize, QvpiSize maskSize, QvpNormType normType, QvpiBorderType borderType, const Qvp32f* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterGradientSobelBorder_32f_C3C1R(const Qvp32f* pSrc, int srcStep, Qvp32f* pGx, int gxStep, Qvp32f* pGy, int gyStep, Qvp32f* pMagnitude, int magnitudeStep, Qvp32f* pAngle, int angleStep, QvpiSize roiSize, QvpiSize maskSize, QvpNormType normType, QvpiBorderType borderType, const Qvp32f* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterGradientScharrBorder_8u16s_C1R(const Qvp8u* pSrc, int srcStep, Qvp16s* pGx, int gxStep, Qvp16s* pGy, int gyStep, Qvp32f* pMagnitude, int magnitudeStep, Qvp32f* pAngle, int angleStep, QvpiSize roiSize, QvpiSize maskSize, QvpNormType normType, QvpiBorderType borderType, const Qvp8u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterGradientScharrBorder_8u16s_C3C1R(const Qvp8u* pSrc, int srcStep, Qvp16s* pGx, int gxStep, Qvp16s* pGy, int gyStep, Qvp32f* pMagnitude, int magnitudeStep, Qvp32f* pAngle, int angleStep, QvpiSize roiSize, QvpiSize maskSize, QvpNormType normType, QvpiBorderType borderType, const Qvp8u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterGradientScharrBorder_16u32f_C1R(const Qvp16u* pSrc, int srcStep, Qvp32f* pGx, int gxStep, Qvp32f* pGy, int gyStep, Qvp32f* pMagnitude, int magnitudeStep, Qvp32f* pAngle, int angleStep, QvpiSize roiSize, QvpiSize maskSize, QvpNormType normType, QvpiBorderType borderType, const Qvp16u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterGradientScharrBorder_16u32f_C3C1R(const Qvp16u* pSrc, int srcStep, Qvp32f* pGx, int gxStep, Qvp32f* pGy, int gyStep, Qvp32f* pMagnitude, int magnitudeStep, Qvp32f* pAngle, int angleStep, QvpiSize roiSize, QvpiSize maskSize, QvpNormType normType, QvpiBorderType borderType, const Qvp16u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterGradientScharrBorder_16s32f_C1R(const Qvp16s* pSrc, int srcStep, Qvp32f* pGx, int gxStep, Qvp32f* pGy, int gyStep, Qvp32f* pMagnitude, int magnitudeStep, Qvp32f* pAngle, int angleStep, QvpiSize roiSize, QvpiSize maskSize, QvpNormType normType, QvpiBorderType borderType, const Qvp16s* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterGradientScharrBorder_16s32f_C3C1R(const Qvp16s* pSrc, int srcStep, Qvp32f* pGx, int gxStep, Qvp32f* pGy, int gyStep, Qvp32f* pMagnitude, int magnitudeStep, Qvp32f* pAngle, int angleStep, QvpiSize roiSize, QvpiSize maskSize, QvpNormType normType, QvpiBorderType borderType, const Qvp16s* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterGradientScharrBorder_32f_C1R(const Qvp32f* pSrc, int srcStep, Qvp32f* pGx, int gxStep, Qvp32f* pGy, int gyStep, Qvp32f* pMagnitude, int magnitudeStep, Qvp32f* pAngle, int angleStep, QvpiSize roiSize, QvpiSize maskSize, QvpNormType normType, QvpiBorderType borderType, const Qvp32f* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterGradientScharrBorder_32f_C3C1R(const Qvp32f* pSrc, int srcStep, Qvp32f* pGx, int gxStep, Qvp32f* pGy, int gyStep, Qvp32f* pMagnitude, int magnitudeStep, Qvp32f* pAngle, int angleStep, QvpiSize roiSize, QvpiSize maskSize, QvpNormType normType, QvpiBorderType borderType, const Qvp32f* borderValue, Qvp8u* pBuffer);
/** @} */

/** @name Minimum and maximum: work buffer
 *  @{ */
/** Tells the size of the work buffer of minimum and maximum filters.
 *
 *  The buffer serves every smaller mask and region too, at any anchor and border. It may begin anywhere.
 *
 *  @param maskSize sides of the mask in pixels: 1 or more
 *  @param roiSize size of the region in pixels
 *  @param dataType type of the images: qvp8u, qvp16u, qvp16s or qvp32f
 *  @param numChannels channels of a pixel: 1, 3 or 4; 4 for AC4
 *  @param pBufferSize size in bytes; 0 if it cannot be represented
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: `pBufferSize` is null
 *  - qvpStatusSize: a side of `roiSize` is below 1
 *  - qvpStatusMaskSize: a side of `maskSize` is below 1
 *  - qvpStatusDataType, qvpStatusNumChannels: `dataType`, `numChannels` is none of the above
 *  - qvpStatusSizeOverflow: the size is above 2147483647
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiFilterMinBorderGetBufferSize(QvpiSize maskSize, QvpiSize roiSize, QvpDataType dataType, int numChannels, int* pBufferSize);
QvpStatus qvpiFilterMaxBorderGetBufferSize(QvpiSize maskSize, QvpiSize roiSize, QvpDataType dataType, int numChannels, int* pBufferSize);
/** @} */

/** @name Minimum and maximum: filtering
 *  @{ */
/** Takes the least (Min) or the greatest (Max) value of a rectangle around each pixel, channel by channel:
 *
 *  @code
 *    dst(x, y) = least or greatest src(x - anchor.x + i, y - anchor.y + j), 0 <= i < maskSize.width,
 *                                                                           0 <= j < maskSize.height
 *  @endcode
 *
 *  A pixel's time depends on the mask's width by its logarithm only, and from 9 rows on not on its height. By masks
 *  that are no rectangles, qvpiFilterErodeBorder and qvpiFilterDilateBorder do the same.
 *
 *  Max less Min is the local contrast. The opening by a rectangle is Min, then Max with the mirrored anchor (w - 1 - x,
 *  h - 1 - y).
 *
 *  Floats have a total order here: -inf .. -0 is below +0 .. +inf. A NaN counts as +inf where the least value is taken,
 *  and as -inf where the greatest is: it is not taken while there is a number. Results depend on nothing but these
 *  values.
 *
 *  Pixels outside of the region are what the border type says: memory on the sides whose flag is set, as far as the
 *  mask reaches; the kind is applied outside of the region so enlarged. Tiles that are joined by these flags give the
 *  bits of the whole image. A constant border that is never taken is the greatest value of the type for the least one,
 *  and the lowest for the greatest: 255 and 0, or +inf and -inf. The destination must not overlap with what is read.
 *  AC4 keeps alpha.
 *
 *  @param pSrc,srcStep source, at the first pixel of the region
 *  @param pDst,dstStep destination
 *  @param roiSize size of the region in pixels
 *  @param maskSize sides of the mask in pixels: 1 or more; the mask may be larger than the region
 *  @param anchor the mask's pixel that lies on the result's: 0, 0 is the upper left one
 *  @param borderType qvpBorderReplicate, qvpBorderMirror or qvpBorderConst, with flags of sides in memory, or
 *         qvpBorderInMem
 *  @param borderValue one value for each channel, three for AC4; read for qvpBorderConst only
 *  @param pBuffer work buffer of the size that qvpiFilterMinBorderGetBufferSize() or qvpiFilterMaxBorderGetBufferSize()
 *         tells for this or a larger region
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: `pSrc`, `pDst` or `pBuffer` is null, or `borderValue` for qvpBorderConst
 *  - qvpStatusSize: a side of `roiSize` is below 1
 *  - qvpStatusStep: a step is shorter than its row of the region
 *  - qvpStatusMaskSize: a side of `maskSize` is below 1
 *  - qvpStatusAnchor: `anchor` is outside of the mask
 *  - qvpStatusBorder: `borderType` is none of the above
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiFilterMinBorder_8u_C1R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiPoint anchor, QvpiBorderType borderType, const Qvp8u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterMinBorder_8u_C3R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiPoint anchor, QvpiBorderType borderType, const Qvp8u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterMinBorder_8u_C4R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiPoint anchor, QvpiBorderType borderType, const Qvp8u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterMinBorder_8u_AC4R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiPoint anchor, QvpiBorderType borderType, const Qvp8u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterMinBorder_16u_C1R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiPoint anchor, QvpiBorderType borderType, const Qvp16u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterMinBorder_16u_C3R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiPoint anchor, QvpiBorderType borderType, const Qvp16u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterMinBorder_16u_C4R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiPoint anchor, QvpiBorderType borderType, const Qvp16u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterMinBorder_16u_AC4R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiPoint anchor, QvpiBorderType borderType, const Qvp16u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterMinBorder_16s_C1R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiPoint anchor, QvpiBorderType borderType, const Qvp16s* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterMinBorder_16s_C3R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiPoint anchor, QvpiBorderType borderType, const Qvp16s* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterMinBorder_16s_C4R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiPoint anchor, QvpiBorderType borderType, const Qvp16s* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterMinBorder_16s_AC4R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiPoint anchor, QvpiBorderType borderType, const Qvp16s* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterMinBorder_32f_C1R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiPoint anchor, QvpiBorderType borderType, const Qvp32f* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterMinBorder_32f_C3R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiPoint anchor, QvpiBorderType borderType, const Qvp32f* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterMinBorder_32f_C4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiPoint anchor, QvpiBorderType borderType, const Qvp32f* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterMinBorder_32f_AC4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiPoint anchor, QvpiBorderType borderType, const Qvp32f* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterMaxBorder_8u_C1R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiPoint anchor, QvpiBorderType borderType, const Qvp8u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterMaxBorder_8u_C3R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiPoint anchor, QvpiBorderType borderType, const Qvp8u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterMaxBorder_8u_C4R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiPoint anchor, QvpiBorderType borderType, const Qvp8u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterMaxBorder_8u_AC4R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiPoint anchor, QvpiBorderType borderType, const Qvp8u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterMaxBorder_16u_C1R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiPoint anchor, QvpiBorderType borderType, const Qvp16u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterMaxBorder_16u_C3R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiPoint anchor, QvpiBorderType borderType, const Qvp16u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterMaxBorder_16u_C4R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiPoint anchor, QvpiBorderType borderType, const Qvp16u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterMaxBorder_16u_AC4R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiPoint anchor, QvpiBorderType borderType, const Qvp16u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterMaxBorder_16s_C1R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiPoint anchor, QvpiBorderType borderType, const Qvp16s* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterMaxBorder_16s_C3R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiPoint anchor, QvpiBorderType borderType, const Qvp16s* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterMaxBorder_16s_C4R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiPoint anchor, QvpiBorderType borderType, const Qvp16s* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterMaxBorder_16s_AC4R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiPoint anchor, QvpiBorderType borderType, const Qvp16s* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterMaxBorder_32f_C1R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiPoint anchor, QvpiBorderType borderType, const Qvp32f* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterMaxBorder_32f_C3R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiPoint anchor, QvpiBorderType borderType, const Qvp32f* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterMaxBorder_32f_C4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiPoint anchor, QvpiBorderType borderType, const Qvp32f* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterMaxBorder_32f_AC4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiPoint anchor, QvpiBorderType borderType, const Qvp32f* borderValue, Qvp8u* pBuffer);
/** @} */

/** @name Erosion and dilation: sizes
 *  @{ */
/** Tells the sizes of the record and of the work buffer of erosion and dilation.
 *
 *  @param maskSize sides of the mask in pixels: 1 or more
 *  @param roiSize size of the region in pixels; the buffer serves smaller regions too, at any mask of that size, for
 *         erosion and for dilation
 *  @param dataType type of the images: qvp8u, qvp16u, qvp16s or qvp32f
 *  @param numChannels channels of a pixel: 1, 3 or 4; 4 for AC4
 *  @param pSpecSize,pBufferSize sizes in bytes; 0 for one that cannot be represented
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: `pSpecSize` or `pBufferSize` is null
 *  - qvpStatusSize: a side of `roiSize` is below 1
 *  - qvpStatusMaskSize: a side of `maskSize` is below 1
 *  - qvpStatusDataType, qvpStatusNumChannels: `dataType`, `numChannels` is none of the above
 *  - qvpStatusSizeOverflow: a size is above 2147483647
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiFilterMorphologyBorderGetSize(QvpiSize maskSize, QvpiSize roiSize, QvpDataType dataType, int numChannels, int* pSpecSize, int* pBufferSize);
/** @} */

/** @name Erosion and dilation: record
 *  @{ */
/** Makes the record of erosion and dilation by a mask.
 *
 *  The record serves both functions, for every type, layout, region and border. It has the mask's chords, the runs of
 *  selected pixels of each row.
 *
 *  @param pMask `maskSize.width` * `maskSize.height` bytes, row by row without gaps: those that are not 0 are selected.
 *         It is not needed any more afterwards
 *  @param maskSize sides of the mask in pixels: 1 or more
 *  @param anchor the mask's pixel that lies on the result's: 0, 0 is the upper left one; it need not be selected
 *  @param pSpec the record, of the size that qvpiFilterMorphologyBorderGetSize() tells; it must not be moved. After a
 *         failure, whichever it was, every function refuses it
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: `pMask` or `pSpec` is null
 *  - qvpStatusMaskSize: a side of `maskSize` is below 1
 *  - qvpStatusAnchor: `anchor` is outside of the mask
 *  - qvpStatusBadArgument: nothing is selected
 *  - qvpStatusSizeOverflow: the size of the record is above 2147483647
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiFilterMorphologyBorderInit(const Qvp8u* pMask, QvpiSize maskSize, QvpiPoint anchor, QvpiFilterMorphologyBorderSpec* pSpec);
/** @} */

/** @name Erosion and dilation: filtering
 *  @{ */
/** Takes the least (Erode) or the greatest (Dilate) value of the pixels that a mask selects, channel by channel:
 *
 *  @code
 *    dst(x, y) = least or greatest src(x - anchor.x + i, y - anchor.y + j) over the selected (i, j)
 *  @endcode
 *
 *  Both look at the same pixels: dilation does not turn the mask. The opening of an image, which takes away what is
 *  brighter and too small for the mask, is Erode, then Dilate with the mask turned by 180 degrees and the mirrored
 *  anchor (w - 1 - x, h - 1 - y); the closing, Dilate, then Erode, takes away what is darker. A second opening changes
 *  nothing, and no pixel becomes brighter. (Soille, Morphological Image Analysis, 2003.)
 *
 *  A chord, a run of selected pixels in a row, costs one or two operations a pixel, however long it is (Urbach and
 *  Wilkinson, 2008). A mask that selects all runs as qvpiFilterMinBorder and qvpiFilterMaxBorder do.
 *
 *  Floats have a total order here: -inf .. -0 is below +0 .. +inf. A NaN counts as +inf where the least value is taken,
 *  and as -inf where the greatest is: it is not taken while there is a number. Results depend on nothing but these
 *  values.
 *
 *  Pixels outside of the region are what the border type says: memory on the sides whose flag is set, as far as the
 *  mask reaches; the kind is applied outside of the region so enlarged. Tiles that are joined by these flags give the
 *  bits of the whole image. A constant border that is never taken is the greatest value of the type for the least one,
 *  and the lowest for the greatest: 255 and 0, or +inf and -inf. The destination must not overlap with what is read.
 *  AC4 keeps alpha.
 *
 *  @param pSrc,srcStep source, at the first pixel of the region
 *  @param pDst,dstStep destination
 *  @param roiSize size of the region in pixels
 *  @param borderType qvpBorderReplicate, qvpBorderMirror or qvpBorderConst, with flags of sides in memory, or
 *         qvpBorderInMem
 *  @param borderValue one value for each channel, three for AC4; read for qvpBorderConst only
 *  @param pSpec the record
 *  @param pBuffer work buffer of the size that qvpiFilterMorphologyBorderGetSize() tells for this or a larger region
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: `pSrc`, `pDst`, `pSpec` or `pBuffer` is null, or `borderValue` for qvpBorderConst
 *  - qvpStatusSize: a side of `roiSize` is below 1
 *  - qvpStatusStep: a step is shorter than its row of the region
 *  - qvpStatusBorder: `borderType` is none of the above
 *  - qvpStatusContextMatch: the record was not made by qvpiFilterMorphologyBorderInit()
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiFilterErodeBorder_8u_C1R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpiBorderType borderType, const Qvp8u* borderValue, const QvpiFilterMorphologyBorderSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFilterErodeBorder_8u_C3R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpiBorderType borderType, const Qvp8u* borderValue, const QvpiFilterMorphologyBorderSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFilterErodeBorder_8u_C4R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpiBorderType borderType, const Qvp8u* borderValue, const QvpiFilterMorphologyBorderSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFilterErodeBorder_8u_AC4R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpiBorderType borderType, const Qvp8u* borderValue, const QvpiFilterMorphologyBorderSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFilterErodeBorder_16u_C1R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpiBorderType borderType, const Qvp16u* borderValue, const QvpiFilterMorphologyBorderSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFilterErodeBorder_16u_C3R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpiBorderType borderType, const Qvp16u* borderValue, const QvpiFilterMorphologyBorderSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFilterErodeBorder_16u_C4R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpiBorderType borderType, const Qvp16u* borderValue, const QvpiFilterMorphologyBorderSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFilterErodeBorder_16u_AC4R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpiBorderType borderType, const Qvp16u* borderValue, const QvpiFilterMorphologyBorderSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFilterErodeBorder_16s_C1R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpiBorderType borderType, const Qvp16s* borderValue, const QvpiFilterMorphologyBorderSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFilterErodeBorder_16s_C3R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpiBorderType borderType, const Qvp16s* borderValue, const QvpiFilterMorphologyBorderSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFilterErodeBorder_16s_C4R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpiBorderType borderType, const Qvp16s* borderValue, const QvpiFilterMorphologyBorderSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFilterErodeBorder_16s_AC4R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpiBorderType borderType, const Qvp16s* borderValue, const QvpiFilterMorphologyBorderSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFilterErodeBorder_32f_C1R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiBorderType borderType, const Qvp32f* borderValue, const QvpiFilterMorphologyBorderSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFilterErodeBorder_32f_C3R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiBorderType borderType, const Qvp32f* borderValue, const QvpiFilterMorphologyBorderSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFilterErodeBorder_32f_C4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiBorderType borderType, const Qvp32f* borderValue, const QvpiFilterMorphologyBorderSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFilterErodeBorder_32f_AC4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiBorderType borderType, const Qvp32f* borderValue, const QvpiFilterMorphologyBorderSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFilterDilateBorder_8u_C1R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpiBorderType borderType, const Qvp8u* borderValue, const QvpiFilterMorphologyBorderSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFilterDilateBorder_8u_C3R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpiBorderType borderType, const Qvp8u* borderValue, const QvpiFilterMorphologyBorderSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFilterDilateBorder_8u_C4R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpiBorderType borderType, const Qvp8u* borderValue, const QvpiFilterMorphologyBorderSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFilterDilateBorder_8u_AC4R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpiBorderType borderType, const Qvp8u* borderValue, const QvpiFilterMorphologyBorderSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFilterDilateBorder_16u_C1R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpiBorderType borderType, const Qvp16u* borderValue, const QvpiFilterMorphologyBorderSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFilterDilateBorder_16u_C3R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpiBorderType borderType, const Qvp16u* borderValue, const QvpiFilterMorphologyBorderSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFilterDilateBorder_16u_C4R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpiBorderType borderType, const Qvp16u* borderValue, const QvpiFilterMorphologyBorderSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFilterDilateBorder_16u_AC4R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpiBorderType borderType, const Qvp16u* borderValue, const QvpiFilterMorphologyBorderSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFilterDilateBorder_16s_C1R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpiBorderType borderType, const Qvp16s* borderValue, const QvpiFilterMorphologyBorderSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFilterDilateBorder_16s_C3R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpiBorderType borderType, const Qvp16s* borderValue, const QvpiFilterMorphologyBorderSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFilterDilateBorder_16s_C4R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpiBorderType borderType, const Qvp16s* borderValue, const QvpiFilterMorphologyBorderSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFilterDilateBorder_16s_AC4R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpiBorderType borderType, const Qvp16s* borderValue, const QvpiFilterMorphologyBorderSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFilterDilateBorder_32f_C1R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiBorderType borderType, const Qvp32f* borderValue, const QvpiFilterMorphologyBorderSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFilterDilateBorder_32f_C3R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiBorderType borderType, const Qvp32f* borderValue, const QvpiFilterMorphologyBorderSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFilterDilateBorder_32f_C4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiBorderType borderType, const Qvp32f* borderValue, const QvpiFilterMorphologyBorderSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFilterDilateBorder_32f_AC4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiBorderType borderType, const Qvp32f* borderValue, const QvpiFilterMorphologyBorderSpec* pSpec, Qvp8u* pBuffer);
/** @} */

/** @name Separable filter: sizes
 *  @{ */
/** Tells the sizes of the record and of the work buffer of a separable filter.
 *
 *  @param kernelSize taps of the row kernel (width) and of the column kernel (height); 65536 for their product at most
 *  @param roiSize size of the region in pixels; the buffer serves smaller regions too
 *  @param srcType,dstType types of the images: both qvp8u, both qvp16u, both qvp16s, qvp8u and qvp16s, or both qvp32f
 *  @param kernelType qvp16s, which does not serve qvp32f images, or qvp32f
 *  @param numChannels channels of a pixel: 1, 3 or 4; 4 for AC4
 *  @param pSpecSize,pBufferSize sizes in bytes; 0 for one that cannot be represented
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: `pSpecSize` or `pBufferSize` is null
 *  - qvpStatusSize: a side of `roiSize` is below 1
 *  - qvpStatusMaskSize: a side of `kernelSize` is below 1, or their product above 65536
 *  - qvpStatusDataType, qvpStatusNumChannels: the types, `numChannels` are none of the above
 *  - qvpStatusSizeOverflow: a size is above 2147483647
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiFilterSeparableBorderGetSize(QvpiSize kernelSize, QvpiSize roiSize, QvpDataType srcType, QvpDataType dstType, QvpDataType kernelType, int numChannels, int* pSpecSize, int* pBufferSize);
/** @} */

/** @name Separable filter: integer kernels
 *  @{ */
/** Makes the record of a separable filter from two integer kernels.
 *
 *  The filter is a convolution with the product of both: it turns them. Of a row [1 2 3], with a column of [1]:
 *
 *  @code
 *    dst(x) = 3 * src(x - 1) + 2 * src(x) + 1 * src(x + 1)     10 20 30 gives 70 100 150
 *  @endcode
 *
 *  Sums are exact, whatever their size. The result is the sum divided by `divisor`, rounded once by `roundMode`, and
 *  saturated: the same bits as the general filter with the product kernel.
 *
 *  @param pRowKernel,pColumnKernel taps along the rows, and along the columns
 *  @param kernelSize taps of the row kernel (width) and of the column kernel (height); 65536 for their product at most
 *  @param divisor any number but 0
 *  @param srcType,dstType types of the images: both qvp8u, both qvp16u, both qvp16s, or qvp8u and qvp16s
 *  @param numChannels channels of a pixel: 1, 3 or 4; 4 for AC4
 *  @param roundMode qvpRoundZero, qvpRoundNear (ties to even) or qvpRoundFinancial (ties away from zero)
 *  @param pSpec the record, of the size that qvpiFilterSeparableBorderGetSize() tells; it must not be moved. After a
 *         failure, whichever it was, every function refuses it
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: `pRowKernel`, `pColumnKernel` or `pSpec` is null
 *  - qvpStatusMaskSize: a side of `kernelSize` is below 1, or their product above 65536
 *  - qvpStatusDataType, qvpStatusNumChannels, qvpStatusRoundMode: the types, `numChannels`, `roundMode` are none of the
 *    above
 *  - qvpStatusDivisor: `divisor` is 0
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiFilterSeparableBorderInit_16s(const Qvp16s* pRowKernel, const Qvp16s* pColumnKernel, QvpiSize kernelSize, int divisor, QvpDataType srcType, QvpDataType dstType, int numChannels, QvpRoundMode roundMode, QvpiFilterSeparableBorderSpec* pSpec);
/** @} */

/** @name Separable filter: kernels of single precision
 *  @{ */
/** Makes the record of a separable filter from two kernels of single precision.
 *
 *  The filter is a convolution with the product of both, as qvpiFilterSeparableBorderInit_16s() tells. Rows are
 *  filtered first, then columns, in single precision: a sum begins with its first product, and the others are added in
 *  the order of the pixels, each operation rounded. No tap is left out, so that an infinite pixel under a tap of 0
 *  gives NaN. Results of integer images are rounded by `roundMode` and saturated; NaN becomes the lowest value.
 *
 *  @param pRowKernel,pColumnKernel taps along the rows, and along the columns
 *  @param kernelSize taps of the row kernel (width) and of the column kernel (height); 65536 for their product at most
 *  @param srcType,dstType types of the images: both qvp8u, both qvp16u, both qvp16s, qvp8u and qvp16s, or both qvp32f
 *  @param numChannels channels of a pixel: 1, 3 or 4; 4 for AC4
 *  @param roundMode qvpRoundZero, qvpRoundNear (ties to even) or qvpRoundFinancial (ties away from zero); checked for
 *         qvp32f results too, where it has no effect
 *  @param pSpec the record, of the size that qvpiFilterSeparableBorderGetSize() tells; it must not be moved. After a
 *         failure, whichever it was, every function refuses it
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: `pRowKernel`, `pColumnKernel` or `pSpec` is null
 *  - qvpStatusMaskSize: a side of `kernelSize` is below 1, or their product above 65536
 *  - qvpStatusDataType, qvpStatusNumChannels, qvpStatusRoundMode: the types, `numChannels`, `roundMode` are none of the
 *    above
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiFilterSeparableBorderInit_32f(const Qvp32f* pRowKernel, const Qvp32f* pColumnKernel, QvpiSize kernelSize, QvpDataType srcType, QvpDataType dstType, int numChannels, QvpRoundMode roundMode, QvpiFilterSeparableBorderSpec* pSpec);
/** @} */

/** @name Separable filter: filtering
 *  @{ */
/** Convolves an image with a row kernel and a column kernel, which its record has.
 *
 *  For each channel, over the taps j of the column kernel, h of them, and i of the row kernel, w of them:
 *
 *  @code
 *    dst(x, y) = sum of column[h - 1 - j] * row[w - 1 - i] * src(x - ax + i, y - ay + j)
 *    ax = (w - 1) / 2, ay = (h - 1) / 2
 *  @endcode
 *
 *  with ax and ay rounded down: a kernel of even length reaches one pixel further to the right than to the left, or
 *  down than up. How sums are formed, divided and rounded is told at the Init functions. AC4 keeps alpha.
 *
 *  Pixels outside of the region are what the border type says: memory on the sides whose flag is set, as far as the
 *  kernel reaches; the kind is applied outside of the region so enlarged. Tiles that are joined by these flags give the
 *  bits of the whole image; with qvpBorderMirror and an even side of the kernel, tiles at the right or the lower edge
 *  must be at least two pixels long that way. The destination must not overlap with what is read.
 *
 *  @param pSrc,srcStep source, at the first pixel of the region
 *  @param pDst,dstStep destination
 *  @param roiSize size of the region in pixels
 *  @param borderType qvpBorderReplicate, qvpBorderMirror or qvpBorderConst, with flags of sides in memory, or
 *         qvpBorderInMem
 *  @param borderValue one value for each channel, three for AC4; read for qvpBorderConst only
 *  @param pSpec the record
 *  @param pBuffer work buffer of the size that qvpiFilterSeparableBorderGetSize() tells for this or a larger region
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: `pSrc`, `pDst`, `pSpec` or `pBuffer` is null, or `borderValue` for qvpBorderConst
 *  - qvpStatusSize: a side of `roiSize` is below 1
 *  - qvpStatusStep: a step is shorter than its row of the region
 *  - qvpStatusBorder: `borderType` is none of the above
 *  - qvpStatusContextMatch: the record was not made by an Init function of the separable filter, or for other types or
 *    another number of channels; AC4 takes a record for 4
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiFilterSeparableBorder_8u_C1R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpiBorderType borderType, const Qvp8u* borderValue, const QvpiFilterSeparableBorderSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFilterSeparableBorder_8u_C3R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpiBorderType borderType, const Qvp8u* borderValue, const QvpiFilterSeparableBorderSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFilterSeparableBorder_8u_C4R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpiBorderType borderType, const Qvp8u* borderValue, const QvpiFilterSeparableBorderSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFilterSeparableBorder_8u_AC4R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpiBorderType borderType, const Qvp8u* borderValue, const QvpiFilterSeparableBorderSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFilterSeparableBorder_16u_C1R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpiBorderType borderType, const Qvp16u* borderValue, const QvpiFilterSeparableBorderSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFilterSeparableBorder_16u_C3R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpiBorderType borderType, const Qvp16u* borderValue, const QvpiFilterSeparableBorderSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFilterSeparableBorder_16u_C4R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpiBorderType borderType, const Qvp16u* borderValue, const QvpiFilterSeparableBorderSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFilterSeparableBorder_16u_AC4R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpiBorderType borderType, const Qvp16u* borderValue, const QvpiFilterSeparableBorderSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFilterSeparableBorder_16s_C1R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpiBorderType borderType, const Qvp16s* borderValue, const QvpiFilterSeparableBorderSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFilterSeparableBorder_16s_C3R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpiBorderType borderType, const Qvp16s* borderValue, const QvpiFilterSeparableBorderSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFilterSeparableBorder_16s_C4R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpiBorderType borderType, const Qvp16s* borderValue, const QvpiFilterSeparableBorderSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFilterSeparableBorder_16s_AC4R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpiBorderType borderType, const Qvp16s* borderValue, const QvpiFilterSeparableBorderSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFilterSeparableBorder_32f_C1R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiBorderType borderType, const Qvp32f* borderValue, const QvpiFilterSeparableBorderSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFilterSeparableBorder_32f_C3R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiBorderType borderType, const Qvp32f* borderValue, const QvpiFilterSeparableBorderSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFilterSeparableBorder_32f_C4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiBorderType borderType, const Qvp32f* borderValue, const QvpiFilterSeparableBorderSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFilterSeparableBorder_32f_AC4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiBorderType borderType, const Qvp32f* borderValue, const QvpiFilterSeparableBorderSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFilterSeparableBorder_8u16s_C1R(const Qvp8u* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpiBorderType borderType, const Qvp8u* borderValue, const QvpiFilterSeparableBorderSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFilterSeparableBorder_8u16s_C3R(const Qvp8u* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpiBorderType borderType, const Qvp8u* borderValue, const QvpiFilterSeparableBorderSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFilterSeparableBorder_8u16s_C4R(const Qvp8u* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpiBorderType borderType, const Qvp8u* borderValue, const QvpiFilterSeparableBorderSpec* pSpec, Qvp8u* pBuffer);
/** @} */

/** @name Gauss filter: sizes
 *  @{ */
/** Tells the sizes of the record and of the work buffer of a Gauss filter.
 *
 *  @param maskSize sides of the mask: odd, 1 to 1023
 *  @param roiSize size of the region in pixels; the buffer serves smaller regions too
 *  @param dataType type of the images: qvp8u, qvp16u, qvp16s or qvp32f
 *  @param numChannels channels of a pixel: 1, 3 or 4; 4 for AC4
 *  @param pSpecSize,pBufferSize sizes in bytes; 0 for one that cannot be represented
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: `pSpecSize` or `pBufferSize` is null
 *  - qvpStatusSize: a side of `roiSize` is below 1
 *  - qvpStatusMaskSize: a side of `maskSize` is even, below 1 or above 1023
 *  - qvpStatusDataType, qvpStatusNumChannels: `dataType`, `numChannels` is none of the above
 *  - qvpStatusSizeOverflow: a size is above 2147483647
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiFilterGaussBorderGetSize(QvpiSize maskSize, QvpiSize roiSize, QvpDataType dataType, int numChannels, int* pSpecSize, int* pBufferSize);
/** @} */

/** @name Gauss filter: record
 *  @{ */
/** Makes the record of a Gauss filter.
 *
 *  The weight of a pixel at distance (i, j) is exp(-i * i / (2 * sigmaX^2)) * exp(-j * j / (2 * sigmaY^2)), divided by
 *  the sum of all weights of the mask. A mask of 2 * ceil(3 * sigma) + 1 leaves out less than 0.3 % of the bell.
 *
 *  @param maskSize sides of the mask: odd, 1 to 1023; with the width 1 rows are not filtered, with the height 1 columns
 *  @param sigmaX,sigmaY standard deviations along rows and along columns, in pixels: above 0 and finite
 *  @param dataType type of the images: qvp8u, qvp16u, qvp16s or qvp32f
 *  @param numChannels channels of a pixel: 1, 3 or 4; 4 for AC4
 *  @param pSpec the record, of the size that qvpiFilterGaussBorderGetSize() tells; it must not be moved. After a
 *         failure, whichever it was, every function refuses it
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: `pSpec` is null
 *  - qvpStatusMaskSize: a side of `maskSize` is even, below 1 or above 1023
 *  - qvpStatusDataType, qvpStatusNumChannels: `dataType`, `numChannels` is none of the above
 *  - qvpStatusBadArgument: a sigma is not above 0, or infinite
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiFilterGaussBorderInit(QvpiSize maskSize, Qvp32f sigmaX, Qvp32f sigmaY, QvpDataType dataType, int numChannels, QvpiFilterGaussBorderSpec* pSpec);
/** @} */

/** @name Gauss filter: filtering
 *  @{ */
/** Smooths an image with the bell of Gauss that its record has.
 *
 *  Rows are filtered first, then columns. Constant images stay, mirrored images give mirrored results.
 *  - 8u: in integers, with weights of 14 to 17 bits and rows of 6 bits behind the point. Results differ from exact ones
 *    by at most 0.54 for masks up to 31, 0.57 up to 63, 0.71 up to 255 and 1.25 up to 1023.
 *  - 16u, 16s, 32f: in single precision, the middle first, then the sums of the pairs at each distance times their
 *    weight, each operation rounded; integers are rounded to the nearest, ties to even, and saturated. Results differ
 *    from exact ones by at most (w / 2 + h / 2 + 6) * 2^-24 of the largest magnitude under the mask. A NaN or an
 *    infinity reaches exactly the results whose mask covers it.
 *
 *  AC4 keeps alpha.
 *
 *  Pixels outside of the region are what the border type says: memory on the sides whose flag is set, as far as the
 *  mask reaches; the kind is applied outside of the region so enlarged. Tiles that are joined by these flags give the
 *  bits of the whole image. The destination must not overlap with what is read.
 *
 *  @param pSrc,srcStep source, at the first pixel of the region
 *  @param pDst,dstStep destination
 *  @param roiSize size of the region in pixels
 *  @param borderType qvpBorderReplicate, qvpBorderMirror or qvpBorderConst, with flags of sides in memory, or
 *         qvpBorderInMem
 *  @param borderValue one value for each channel, three for AC4; read for qvpBorderConst only
 *  @param pSpec the record
 *  @param pBuffer work buffer of the size that qvpiFilterGaussBorderGetSize() tells for this or a larger region
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: `pSrc`, `pDst`, `pSpec` or `pBuffer` is null, or `borderValue` for qvpBorderConst
 *  - qvpStatusSize: a side of `roiSize` is below 1
 *  - qvpStatusStep: a step is shorter than its row of the region
 *  - qvpStatusBorder: `borderType` is none of the above
 *  - qvpStatusContextMatch: the record was not made by qvpiFilterGaussBorderInit(), or for other types or another
 *    number of channels; AC4 takes a record for 4
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiFilterGaussBorder_8u_C1R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpiBorderType borderType, const Qvp8u* borderValue, const QvpiFilterGaussBorderSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFilterGaussBorder_8u_C3R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpiBorderType borderType, const Qvp8u* borderValue, const QvpiFilterGaussBorderSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFilterGaussBorder_8u_C4R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpiBorderType borderType, const Qvp8u* borderValue, const QvpiFilterGaussBorderSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFilterGaussBorder_8u_AC4R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpiBorderType borderType, const Qvp8u* borderValue, const QvpiFilterGaussBorderSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFilterGaussBorder_16u_C1R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpiBorderType borderType, const Qvp16u* borderValue, const QvpiFilterGaussBorderSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFilterGaussBorder_16u_C3R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpiBorderType borderType, const Qvp16u* borderValue, const QvpiFilterGaussBorderSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFilterGaussBorder_16u_C4R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpiBorderType borderType, const Qvp16u* borderValue, const QvpiFilterGaussBorderSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFilterGaussBorder_16u_AC4R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpiBorderType borderType, const Qvp16u* borderValue, const QvpiFilterGaussBorderSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFilterGaussBorder_16s_C1R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpiBorderType borderType, const Qvp16s* borderValue, const QvpiFilterGaussBorderSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFilterGaussBorder_16s_C3R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpiBorderType borderType, const Qvp16s* borderValue, const QvpiFilterGaussBorderSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFilterGaussBorder_16s_C4R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpiBorderType borderType, const Qvp16s* borderValue, const QvpiFilterGaussBorderSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFilterGaussBorder_16s_AC4R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpiBorderType borderType, const Qvp16s* borderValue, const QvpiFilterGaussBorderSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFilterGaussBorder_32f_C1R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiBorderType borderType, const Qvp32f* borderValue, const QvpiFilterGaussBorderSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFilterGaussBorder_32f_C3R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiBorderType borderType, const Qvp32f* borderValue, const QvpiFilterGaussBorderSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFilterGaussBorder_32f_C4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiBorderType borderType, const Qvp32f* borderValue, const QvpiFilterGaussBorderSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFilterGaussBorder_32f_AC4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiBorderType borderType, const Qvp32f* borderValue, const QvpiFilterGaussBorderSpec* pSpec, Qvp8u* pBuffer);
/** @} */

/** @name Box filter: work buffer
 *  @{ */
/** Tells the size of the work buffer of the box filter.
 *
 *  One buffer serves every mask of this size, with the same or a smaller region of that type and number of channels,
 *  at any border. It may begin anywhere.
 *
 *  @param maskSize width and height of the mask, each at least 1 and their product at most 2147483647
 *  @param roiSize size of the region in pixels
 *  @param dataType type of the source: qvp8u, qvp16u, qvp16s or qvp32f
 *  @param numChannels channels of a pixel: 1, 3 or 4; 4 for AC4
 *  @param pBufferSize size in bytes; 0 if it cannot be represented
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: `pBufferSize` is null
 *  - qvpStatusSize: a side of `roiSize` is below 1
 *  - qvpStatusMaskSize, qvpStatusDataType, qvpStatusNumChannels: `maskSize`, `dataType`, `numChannels` is none of these
 *  - qvpStatusSizeOverflow: the size is above 2147483647
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiFilterBoxBorderGetBufferSize(QvpiSize maskSize, QvpiSize roiSize, QvpDataType dataType, int numChannels, int* pBufferSize);
/** @} */

/** @name Box filter
 *  @{ */
/** Gives each pixel the mean of the pixels under a rectangular mask, channel by channel.
 *
 *  @code
 *    dst(x, y) = sum / (maskSize.width * maskSize.height), of the sum of src(x - anchor.x + i, y - anchor.y + j)
 *                over 0 <= i < maskSize.width, 0 <= j < maskSize.height
 *  @endcode
 *
 *  Use it for local means and variances, and as the fastest smoothing: it takes about as long for any height of the
 *  mask, and little longer for wide ones. It leaves traces of its edges; three times in a row, or
 *  qvpiFilterGaussBorder, it does not.
 *
 *  Integers are summed exactly at any size of the mask, divided, and rounded to the nearest, ties to even: under a
 *  mask of 3x1 with replicated edges, 10 20 40 gives 13 23 33. Floats are added in single precision as a tree, first
 *  along rows, then down columns: Sum(n) of n values is the first of them if n is 1, else Sum(m) of the first m and
 *  Sum(n - m) of the others, with m = n / 2 if n is a power of two, else the largest power of two below n. The sum is
 *  divided once. A result differs from the exact mean by at most (2 log2 width + 2 log2 height + 2) * 2^-24 times the
 *  mean of the magnitudes. A NaN or an infinity reaches exactly the results whose mask covers it. AC4 keeps alpha.
 *
 *  Pixels outside of the region are what the border type says: memory on the sides whose flag is set, as far as the
 *  mask reaches; the kind is applied outside of the region so enlarged. The mask may be larger than the region. Tiles
 *  that are joined by these flags give the bits of the whole image; with qvpBorderMirror, a tile at an edge must be
 *  wider than |maskSize.width - 1 - 2 * anchor.x|, and likewise higher. The destination must not overlap with what is
 *  read.
 *
 *  @param pSrc,srcStep source, at the first pixel of the region
 *  @param pDst,dstStep destination
 *  @param roiSize size of the region in pixels
 *  @param maskSize width and height of the mask, each at least 1 and their product at most 2147483647
 *  @param anchor the pixel of the mask that is at the pixel of the result; {0, 0} is its upper left one
 *  @param borderType qvpBorderReplicate, qvpBorderMirror or qvpBorderConst, with flags of sides in memory, or
 *         qvpBorderInMem
 *  @param borderValue one value for each channel, three for AC4; read for qvpBorderConst only
 *  @param pBuffer work buffer of the size that qvpiFilterBoxBorderGetBufferSize() tells
 *         for this or a larger region
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: `pSrc`, `pDst` or `pBuffer` is null, or `borderValue` for qvpBorderConst
 *  - qvpStatusSize: a side of `roiSize` is below 1
 *  - qvpStatusStep: a step is shorter than its row of the region
 *  - qvpStatusMaskSize: `maskSize` is none of the above
 *  - qvpStatusAnchor: `anchor` is outside of the mask
 *  - qvpStatusBorder: `borderType` is none of the above
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiFilterBoxBorder_8u_C1R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiPoint anchor, QvpiBorderType borderType, const Qvp8u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterBoxBorder_8u_C3R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiPoint anchor, QvpiBorderType borderType, const Qvp8u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterBoxBorder_8u_C4R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiPoint anchor, QvpiBorderType borderType, const Qvp8u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterBoxBorder_8u_AC4R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiPoint anchor, QvpiBorderType borderType, const Qvp8u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterBoxBorder_16u_C1R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiPoint anchor, QvpiBorderType borderType, const Qvp16u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterBoxBorder_16u_C3R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiPoint anchor, QvpiBorderType borderType, const Qvp16u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterBoxBorder_16u_C4R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiPoint anchor, QvpiBorderType borderType, const Qvp16u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterBoxBorder_16u_AC4R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiPoint anchor, QvpiBorderType borderType, const Qvp16u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterBoxBorder_16s_C1R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiPoint anchor, QvpiBorderType borderType, const Qvp16s* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterBoxBorder_16s_C3R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiPoint anchor, QvpiBorderType borderType, const Qvp16s* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterBoxBorder_16s_C4R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiPoint anchor, QvpiBorderType borderType, const Qvp16s* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterBoxBorder_16s_AC4R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiPoint anchor, QvpiBorderType borderType, const Qvp16s* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterBoxBorder_32f_C1R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiPoint anchor, QvpiBorderType borderType, const Qvp32f* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterBoxBorder_32f_C3R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiPoint anchor, QvpiBorderType borderType, const Qvp32f* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterBoxBorder_32f_C4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiPoint anchor, QvpiBorderType borderType, const Qvp32f* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterBoxBorder_32f_AC4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiPoint anchor, QvpiBorderType borderType, const Qvp32f* borderValue, Qvp8u* pBuffer);
/** @} */

/** @name Sums along rows or columns: work buffer
 *  @{ */
/** Tells the size of the work buffer of sums along rows, or along columns.
 *
 *  One buffer serves every mask of this size, with the same or a smaller region of that type and number of channels,
 *  at any border. It may begin anywhere.
 *
 *  @param maskSize pixels that are summed, at least 1
 *  @param roiSize size of the region in pixels
 *  @param dataType type of the source: qvp8u, qvp16u, qvp16s or qvp32f
 *  @param numChannels channels of a pixel: 1, 3 or 4
 *  @param pBufferSize size in bytes; 0 if it cannot be represented
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: `pBufferSize` is null
 *  - qvpStatusSize: a side of `roiSize` is below 1
 *  - qvpStatusMaskSize, qvpStatusDataType, qvpStatusNumChannels: `maskSize`, `dataType`, `numChannels` is none of these
 *  - qvpStatusSizeOverflow: the size is above 2147483647
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiFilterSumRowBorderGetBufferSize(int maskSize, QvpiSize roiSize, QvpDataType dataType, int numChannels, int* pBufferSize);
QvpStatus qvpiFilterSumColumnBorderGetBufferSize(int maskSize, QvpiSize roiSize, QvpDataType dataType, int numChannels, int* pBufferSize);
/** @} */

/** @name Sums along rows or columns
 *  @{ */
/** Gives each pixel the sum of the pixels around it in its row, or in its column, channel by channel.
 *
 *  @code
 *    Row       dst(x, y) = sum of src(x - anchor + i, y) over 0 <= i < maskSize
 *    Column    dst(x, y) = sum of src(x, y - anchor + i) over 0 <= i < maskSize
 *  @endcode
 *
 *  Use them for projections and profiles, and one after the other for sums over rectangles. Sums of integers are
 *  exact, and rounded once to the nearest float, ties to even: 1 2 3 under a mask of 3 with anchor 1 and mirrored
 *  edges gives 5 6 7; 257 times 65535 gives 16842496. Floats are added in single precision as a tree: Sum(n) of n
 *  values is the first of them if n is 1, else Sum(m) of the first m and Sum(n - m) of the others, with m = n / 2 if n
 *  is a power of two, else the largest power of two below n. A sum differs from the exact one by at most 2 log2 n *
 *  2^-24 times the sum of the magnitudes. A NaN or an infinity reaches exactly the results whose mask covers it.
 *
 *  Pixels outside of the region are what the border type says: memory on the sides whose flag is set, as far as the
 *  mask reaches; the kind is applied outside of the region so enlarged. The mask may be longer than the region. Tiles
 *  that are joined by these flags give the bits of the whole image; with qvpBorderMirror, a tile at an edge must be
 *  longer than |maskSize - 1 - 2 * anchor|. The destination must not overlap with what is read.
 *
 *  @param pSrc,srcStep source, at the first pixel of the region
 *  @param pDst,dstStep destination
 *  @param roiSize size of the region in pixels
 *  @param maskSize pixels that are summed, at least 1
 *  @param anchor the pixel of the mask that is at the pixel of the result; 0 is its first one
 *  @param borderType qvpBorderReplicate, qvpBorderMirror or qvpBorderConst, with flags of sides in memory, or
 *         qvpBorderInMem
 *  @param borderValue one value for each channel; read for qvpBorderConst only
 *  @param pBuffer work buffer of the size that qvpiFilterSumRowBorderGetBufferSize() or
 *         qvpiFilterSumColumnBorderGetBufferSize() tells
 *         for this or a larger region
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: `pSrc`, `pDst` or `pBuffer` is null, or `borderValue` for qvpBorderConst
 *  - qvpStatusSize: a side of `roiSize` is below 1
 *  - qvpStatusStep: a step is shorter than its row of the region
 *  - qvpStatusMaskSize: `maskSize` is none of the above
 *  - qvpStatusAnchor: `anchor` is outside of the mask
 *  - qvpStatusBorder: `borderType` is none of the above
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiFilterSumRowBorder_8u32f_C1R(const Qvp8u* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, int maskSize, int anchor, QvpiBorderType borderType, const Qvp8u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterSumRowBorder_8u32f_C3R(const Qvp8u* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, int maskSize, int anchor, QvpiBorderType borderType, const Qvp8u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterSumRowBorder_8u32f_C4R(const Qvp8u* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, int maskSize, int anchor, QvpiBorderType borderType, const Qvp8u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterSumRowBorder_16u32f_C1R(const Qvp16u* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, int maskSize, int anchor, QvpiBorderType borderType, const Qvp16u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterSumRowBorder_16u32f_C3R(const Qvp16u* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, int maskSize, int anchor, QvpiBorderType borderType, const Qvp16u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterSumRowBorder_16u32f_C4R(const Qvp16u* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, int maskSize, int anchor, QvpiBorderType borderType, const Qvp16u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterSumRowBorder_16s32f_C1R(const Qvp16s* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, int maskSize, int anchor, QvpiBorderType borderType, const Qvp16s* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterSumRowBorder_16s32f_C3R(const Qvp16s* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, int maskSize, int anchor, QvpiBorderType borderType, const Qvp16s* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterSumRowBorder_16s32f_C4R(const Qvp16s* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, int maskSize, int anchor, QvpiBorderType borderType, const Qvp16s* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterSumRowBorder_32f_C1R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, int maskSize, int anchor, QvpiBorderType borderType, const Qvp32f* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterSumRowBorder_32f_C3R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, int maskSize, int anchor, QvpiBorderType borderType, const Qvp32f* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterSumRowBorder_32f_C4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, int maskSize, int anchor, QvpiBorderType borderType, const Qvp32f* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterSumColumnBorder_8u32f_C1R(const Qvp8u* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, int maskSize, int anchor, QvpiBorderType borderType, const Qvp8u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterSumColumnBorder_8u32f_C3R(const Qvp8u* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, int maskSize, int anchor, QvpiBorderType borderType, const Qvp8u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterSumColumnBorder_8u32f_C4R(const Qvp8u* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, int maskSize, int anchor, QvpiBorderType borderType, const Qvp8u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterSumColumnBorder_16u32f_C1R(const Qvp16u* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, int maskSize, int anchor, QvpiBorderType borderType, const Qvp16u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterSumColumnBorder_16u32f_C3R(const Qvp16u* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, int maskSize, int anchor, QvpiBorderType borderType, const Qvp16u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterSumColumnBorder_16u32f_C4R(const Qvp16u* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, int maskSize, int anchor, QvpiBorderType borderType, const Qvp16u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterSumColumnBorder_16s32f_C1R(const Qvp16s* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, int maskSize, int anchor, QvpiBorderType borderType, const Qvp16s* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterSumColumnBorder_16s32f_C3R(const Qvp16s* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, int maskSize, int anchor, QvpiBorderType borderType, const Qvp16s* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterSumColumnBorder_16s32f_C4R(const Qvp16s* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, int maskSize, int anchor, QvpiBorderType borderType, const Qvp16s* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterSumColumnBorder_32f_C1R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, int maskSize, int anchor, QvpiBorderType borderType, const Qvp32f* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterSumColumnBorder_32f_C3R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, int maskSize, int anchor, QvpiBorderType borderType, const Qvp32f* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterSumColumnBorder_32f_C4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, int maskSize, int anchor, QvpiBorderType borderType, const Qvp32f* borderValue, Qvp8u* pBuffer);
/** @} */

#ifdef __cplusplus
}
#endif

#endif
