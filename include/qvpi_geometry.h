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

/** @name Resize: size and tile queries
 *  @{ */
/** x */
QvpStatus qvpiResizeGetSize_8u(QvpiSize srcSize, QvpiSize dstSize, QvpiInterpolationType interpolation, Qvp32u antialiasing, int* pSpecSize, int* pInitBufSize);
QvpStatus qvpiResizeGetSize_16u(QvpiSize srcSize, QvpiSize dstSize, QvpiInterpolationType interpolation, Qvp32u antialiasing, int* pSpecSize, int* pInitBufSize);
QvpStatus qvpiResizeGetSize_16s(QvpiSize srcSize, QvpiSize dstSize, QvpiInterpolationType interpolation, Qvp32u antialiasing, int* pSpecSize, int* pInitBufSize);
QvpStatus qvpiResizeGetSize_32f(QvpiSize srcSize, QvpiSize dstSize, QvpiInterpolationType interpolation, Qvp32u antialiasing, int* pSpecSize, int* pInitBufSize);
QvpStatus qvpiResizeGetSize_64f(QvpiSize srcSize, QvpiSize dstSize, QvpiInterpolationType interpolation, Qvp32u antialiasing, int* pSpecSize, int* pInitBufSize);
QvpStatus qvpiResizeGetSize_L(QvpiSizeL srcSize, QvpiSizeL dstSize, QvpDataType dataType, QvpiInterpolationType interpolation, Qvp32u antialiasing, QvpSizeL* pSpecSize, QvpSizeL* pInitBufSize);
QvpStatus qvpiResizeGetBufferSize_8u(const QvpiResizeSpec* pSpec, QvpiSize dstSize, int numChannels, int* pBufSize);
QvpStatus qvpiResizeGetBufferSize_16u(const QvpiResizeSpec* pSpec, QvpiSize dstSize, int numChannels, int* pBufSize);
QvpStatus qvpiResizeGetBufferSize_16s(const QvpiResizeSpec* pSpec, QvpiSize dstSize, int numChannels, int* pBufSize);
QvpStatus qvpiResizeGetBufferSize_32f(const QvpiResizeSpec* pSpec, QvpiSize dstSize, int numChannels, int* pBufSize);
QvpStatus qvpiResizeGetBufferSize_64f(const QvpiResizeSpec* pSpec, QvpiSize dstSize, int numChannels, int* pBufSize);
QvpStatus qvpiResizeGetBufferSize_L(const QvpiResizeSpec* pSpec, QvpiSizeL dstSize, int numChannels, QvpSizeL* pBufSize);
QvpStatus qvpiResizeGetBorderSize_8u(const QvpiResizeSpec* pSpec, QvpiBorderSize* pBorderSize);
QvpStatus qvpiResizeGetBorderSize_16u(const QvpiResizeSpec* pSpec, QvpiBorderSize* pBorderSize);
QvpStatus qvpiResizeGetBorderSize_16s(const QvpiResizeSpec* pSpec, QvpiBorderSize* pBorderSize);
QvpStatus qvpiResizeGetBorderSize_32f(const QvpiResizeSpec* pSpec, QvpiBorderSize* pBorderSize);
QvpStatus qvpiResizeGetBorderSize_64f(const QvpiResizeSpec* pSpec, QvpiBorderSize* pBorderSize);
QvpStatus qvpiResizeGetBorderSize_L(const QvpiResizeSpec* pSpec, QvpiBorderSize* pBorderSize);
QvpStatus qvpiResizeGetSrcOffset_8u(const QvpiResizeSpec* pSpec, QvpiPoint dstOffset, QvpiPoint* pSrcOffset);
QvpStatus qvpiResizeGetSrcOffset_16u(const QvpiResizeSpec* pSpec, QvpiPoint dstOffset, QvpiPoint* pSrcOffset);
QvpStatus qvpiResizeGetSrcOffset_16s(const QvpiResizeSpec* pSpec, QvpiPoint dstOffset, QvpiPoint* pSrcOffset);
QvpStatus qvpiResizeGetSrcOffset_32f(const QvpiResizeSpec* pSpec, QvpiPoint dstOffset, QvpiPoint* pSrcOffset);
QvpStatus qvpiResizeGetSrcOffset_64f(const QvpiResizeSpec* pSpec, QvpiPoint dstOffset, QvpiPoint* pSrcOffset);
QvpStatus qvpiResizeGetSrcOffset_L(const QvpiResizeSpec* pSpec, QvpiPointL dstOffset, QvpiPointL* pSrcOffset);
QvpStatus qvpiResizeGetSrcRoi_8u(const QvpiResizeSpec* pSpec, QvpiRect dstRoi, QvpiPoint* pSrcRoiOffset, QvpiSize* pSrcRoiSize);
QvpStatus qvpiResizeGetSrcRoi_16u(const QvpiResizeSpec* pSpec, QvpiRect dstRoi, QvpiPoint* pSrcRoiOffset, QvpiSize* pSrcRoiSize);
QvpStatus qvpiResizeGetSrcRoi_16s(const QvpiResizeSpec* pSpec, QvpiRect dstRoi, QvpiPoint* pSrcRoiOffset, QvpiSize* pSrcRoiSize);
QvpStatus qvpiResizeGetSrcRoi_32f(const QvpiResizeSpec* pSpec, QvpiRect dstRoi, QvpiPoint* pSrcRoiOffset, QvpiSize* pSrcRoiSize);
QvpStatus qvpiResizeGetSrcRoi_64f(const QvpiResizeSpec* pSpec, QvpiRect dstRoi, QvpiPoint* pSrcRoiOffset, QvpiSize* pSrcRoiSize);
QvpStatus qvpiResizeGetSrcRoi_L(const QvpiResizeSpec* pSpec, QvpiRectL dstRoi, QvpiPointL* pSrcRoiOffset, QvpiSizeL* pSrcRoiSize);
/** @} */
/** @name Resize: mode
 *  @{ */
/** x */
QvpStatus qvpiResizeSetMode(QvpHintAlgorithm hint, QvpiResizeSpec* pSpec);
QvpStatus qvpiResizeNearestInit_8u(QvpiSize srcSize, QvpiSize dstSize, QvpiResizeSpec* pSpec);
QvpStatus qvpiResizeNearestInit_16u(QvpiSize srcSize, QvpiSize dstSize, QvpiResizeSpec* pSpec);
QvpStatus qvpiResizeNearestInit_16s(QvpiSize srcSize, QvpiSize dstSize, QvpiResizeSpec* pSpec);
QvpStatus qvpiResizeNearestInit_32f(QvpiSize srcSize, QvpiSize dstSize, QvpiResizeSpec* pSpec);
QvpStatus qvpiResizeNearestInit_L(QvpiSizeL srcSize, QvpiSizeL dstSize, QvpDataType dataType, QvpiResizeSpec* pSpec);
QvpStatus qvpiResizeNearest_8u_C1R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiPoint dstOffset, QvpiSize dstSize, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeNearest_8u_C1R_L(const Qvp8u* pSrc, QvpSizeL srcStep, Qvp8u* pDst, QvpSizeL dstStep, QvpiPointL dstOffset, QvpiSizeL dstSize, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeNearest_8u_C3R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiPoint dstOffset, QvpiSize dstSize, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeNearest_8u_C3R_L(const Qvp8u* pSrc, QvpSizeL srcStep, Qvp8u* pDst, QvpSizeL dstStep, QvpiPointL dstOffset, QvpiSizeL dstSize, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeNearest_8u_C4R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiPoint dstOffset, QvpiSize dstSize, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeNearest_8u_C4R_L(const Qvp8u* pSrc, QvpSizeL srcStep, Qvp8u* pDst, QvpSizeL dstStep, QvpiPointL dstOffset, QvpiSizeL dstSize, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeNearest_16u_C1R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiPoint dstOffset, QvpiSize dstSize, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeNearest_16u_C1R_L(const Qvp16u* pSrc, QvpSizeL srcStep, Qvp16u* pDst, QvpSizeL dstStep, QvpiPointL dstOffset, QvpiSizeL dstSize, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeNearest_16u_C3R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiPoint dstOffset, QvpiSize dstSize, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeNearest_16u_C3R_L(const Qvp16u* pSrc, QvpSizeL srcStep, Qvp16u* pDst, QvpSizeL dstStep, QvpiPointL dstOffset, QvpiSizeL dstSize, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeNearest_16u_C4R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiPoint dstOffset, QvpiSize dstSize, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeNearest_16u_C4R_L(const Qvp16u* pSrc, QvpSizeL srcStep, Qvp16u* pDst, QvpSizeL dstStep, QvpiPointL dstOffset, QvpiSizeL dstSize, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeNearest_16s_C1R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiPoint dstOffset, QvpiSize dstSize, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeNearest_16s_C1R_L(const Qvp16s* pSrc, QvpSizeL srcStep, Qvp16s* pDst, QvpSizeL dstStep, QvpiPointL dstOffset, QvpiSizeL dstSize, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeNearest_16s_C3R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiPoint dstOffset, QvpiSize dstSize, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeNearest_16s_C3R_L(const Qvp16s* pSrc, QvpSizeL srcStep, Qvp16s* pDst, QvpSizeL dstStep, QvpiPointL dstOffset, QvpiSizeL dstSize, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeNearest_16s_C4R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiPoint dstOffset, QvpiSize dstSize, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeNearest_16s_C4R_L(const Qvp16s* pSrc, QvpSizeL srcStep, Qvp16s* pDst, QvpSizeL dstStep, QvpiPointL dstOffset, QvpiSizeL dstSize, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeNearest_32f_C1R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiPoint dstOffset, QvpiSize dstSize, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeNearest_32f_C1R_L(const Qvp32f* pSrc, QvpSizeL srcStep, Qvp32f* pDst, QvpSizeL dstStep, QvpiPointL dstOffset, QvpiSizeL dstSize, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeNearest_32f_C3R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiPoint dstOffset, QvpiSize dstSize, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeNearest_32f_C3R_L(const Qvp32f* pSrc, QvpSizeL srcStep, Qvp32f* pDst, QvpSizeL dstStep, QvpiPointL dstOffset, QvpiSizeL dstSize, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeNearest_32f_C4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiPoint dstOffset, QvpiSize dstSize, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeNearest_32f_C4R_L(const Qvp32f* pSrc, QvpSizeL srcStep, Qvp32f* pDst, QvpSizeL dstStep, QvpiPointL dstOffset, QvpiSizeL dstSize, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeLinearInit_8u(QvpiSize srcSize, QvpiSize dstSize, QvpiResizeSpec* pSpec);
QvpStatus qvpiResizeLinearInit_16u(QvpiSize srcSize, QvpiSize dstSize, QvpiResizeSpec* pSpec);
QvpStatus qvpiResizeLinearInit_16s(QvpiSize srcSize, QvpiSize dstSize, QvpiResizeSpec* pSpec);
QvpStatus qvpiResizeLinearInit_32f(QvpiSize srcSize, QvpiSize dstSize, QvpiResizeSpec* pSpec);
QvpStatus qvpiResizeLinearInit_64f(QvpiSize srcSize, QvpiSize dstSize, QvpiResizeSpec* pSpec);
QvpStatus qvpiResizeLinearInit_8u_L(QvpiSizeL srcSize, QvpiSizeL dstSize, QvpiResizeSpec* pSpec);
QvpStatus qvpiResizeLinearInit_L(QvpiSizeL srcSize, QvpiSizeL dstSize, QvpDataType dataType, QvpiResizeSpec* pSpec);
QvpStatus qvpiResizeLinear_8u_C1R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiPoint dstOffset, QvpiSize dstSize, QvpiBorderType border, const Qvp8u* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeLinear_8u_C1R_L(const Qvp8u* pSrc, QvpSizeL srcStep, Qvp8u* pDst, QvpSizeL dstStep, QvpiPointL dstOffset, QvpiSizeL dstSize, QvpiBorderType border, const Qvp8u* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeLinear_8u_C3R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiPoint dstOffset, QvpiSize dstSize, QvpiBorderType border, const Qvp8u* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeLinear_8u_C3R_L(const Qvp8u* pSrc, QvpSizeL srcStep, Qvp8u* pDst, QvpSizeL dstStep, QvpiPointL dstOffset, QvpiSizeL dstSize, QvpiBorderType border, const Qvp8u* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeLinear_8u_C4R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiPoint dstOffset, QvpiSize dstSize, QvpiBorderType border, const Qvp8u* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeLinear_8u_C4R_L(const Qvp8u* pSrc, QvpSizeL srcStep, Qvp8u* pDst, QvpSizeL dstStep, QvpiPointL dstOffset, QvpiSizeL dstSize, QvpiBorderType border, const Qvp8u* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeLinear_16u_C1R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiPoint dstOffset, QvpiSize dstSize, QvpiBorderType border, const Qvp16u* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeLinear_16u_C1R_L(const Qvp16u* pSrc, QvpSizeL srcStep, Qvp16u* pDst, QvpSizeL dstStep, QvpiPointL dstOffset, QvpiSizeL dstSize, QvpiBorderType border, const Qvp16u* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeLinear_16u_C3R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiPoint dstOffset, QvpiSize dstSize, QvpiBorderType border, const Qvp16u* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeLinear_16u_C3R_L(const Qvp16u* pSrc, QvpSizeL srcStep, Qvp16u* pDst, QvpSizeL dstStep, QvpiPointL dstOffset, QvpiSizeL dstSize, QvpiBorderType border, const Qvp16u* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeLinear_16u_C4R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiPoint dstOffset, QvpiSize dstSize, QvpiBorderType border, const Qvp16u* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeLinear_16u_C4R_L(const Qvp16u* pSrc, QvpSizeL srcStep, Qvp16u* pDst, QvpSizeL dstStep, QvpiPointL dstOffset, QvpiSizeL dstSize, QvpiBorderType border, const Qvp16u* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeLinear_16s_C1R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiPoint dstOffset, QvpiSize dstSize, QvpiBorderType border, const Qvp16s* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeLinear_16s_C1R_L(const Qvp16s* pSrc, QvpSizeL srcStep, Qvp16s* pDst, QvpSizeL dstStep, QvpiPointL dstOffset, QvpiSizeL dstSize, QvpiBorderType border, const Qvp16s* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeLinear_16s_C3R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiPoint dstOffset, QvpiSize dstSize, QvpiBorderType border, const Qvp16s* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeLinear_16s_C3R_L(const Qvp16s* pSrc, QvpSizeL srcStep, Qvp16s* pDst, QvpSizeL dstStep, QvpiPointL dstOffset, QvpiSizeL dstSize, QvpiBorderType border, const Qvp16s* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeLinear_16s_C4R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiPoint dstOffset, QvpiSize dstSize, QvpiBorderType border, const Qvp16s* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeLinear_16s_C4R_L(const Qvp16s* pSrc, QvpSizeL srcStep, Qvp16s* pDst, QvpSizeL dstStep, QvpiPointL dstOffset, QvpiSizeL dstSize, QvpiBorderType border, const Qvp16s* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeLinear_32f_C1R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiPoint dstOffset, QvpiSize dstSize, QvpiBorderType border, const Qvp32f* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeLinear_32f_C1R_L(const Qvp32f* pSrc, QvpSizeL srcStep, Qvp32f* pDst, QvpSizeL dstStep, QvpiPointL dstOffset, QvpiSizeL dstSize, QvpiBorderType border, const Qvp32f* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeLinear_32f_C3R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiPoint dstOffset, QvpiSize dstSize, QvpiBorderType border, const Qvp32f* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeLinear_32f_C3R_L(const Qvp32f* pSrc, QvpSizeL srcStep, Qvp32f* pDst, QvpSizeL dstStep, QvpiPointL dstOffset, QvpiSizeL dstSize, QvpiBorderType border, const Qvp32f* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeLinear_32f_C4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiPoint dstOffset, QvpiSize dstSize, QvpiBorderType border, const Qvp32f* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeLinear_32f_C4R_L(const Qvp32f* pSrc, QvpSizeL srcStep, Qvp32f* pDst, QvpSizeL dstStep, QvpiPointL dstOffset, QvpiSizeL dstSize, QvpiBorderType border, const Qvp32f* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeLinear_64f_C1R(const Qvp64f* pSrc, int srcStep, Qvp64f* pDst, int dstStep, QvpiPoint dstOffset, QvpiSize dstSize, QvpiBorderType border, const Qvp64f* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeLinear_64f_C1R_L(const Qvp64f* pSrc, QvpSizeL srcStep, Qvp64f* pDst, QvpSizeL dstStep, QvpiPointL dstOffset, QvpiSizeL dstSize, QvpiBorderType border, const Qvp64f* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeLinear_64f_C3R(const Qvp64f* pSrc, int srcStep, Qvp64f* pDst, int dstStep, QvpiPoint dstOffset, QvpiSize dstSize, QvpiBorderType border, const Qvp64f* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeLinear_64f_C3R_L(const Qvp64f* pSrc, QvpSizeL srcStep, Qvp64f* pDst, QvpSizeL dstStep, QvpiPointL dstOffset, QvpiSizeL dstSize, QvpiBorderType border, const Qvp64f* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeLinear_64f_C4R(const Qvp64f* pSrc, int srcStep, Qvp64f* pDst, int dstStep, QvpiPoint dstOffset, QvpiSize dstSize, QvpiBorderType border, const Qvp64f* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeLinear_64f_C4R_L(const Qvp64f* pSrc, QvpSizeL srcStep, Qvp64f* pDst, QvpSizeL dstStep, QvpiPointL dstOffset, QvpiSizeL dstSize, QvpiBorderType border, const Qvp64f* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeCubicInit_8u(QvpiSize srcSize, QvpiSize dstSize, Qvp32f valueB, Qvp32f valueC, QvpiResizeSpec* pSpec, Qvp8u* pInitBuf);
QvpStatus qvpiResizeCubicInit_16u(QvpiSize srcSize, QvpiSize dstSize, Qvp32f valueB, Qvp32f valueC, QvpiResizeSpec* pSpec, Qvp8u* pInitBuf);
QvpStatus qvpiResizeCubicInit_16s(QvpiSize srcSize, QvpiSize dstSize, Qvp32f valueB, Qvp32f valueC, QvpiResizeSpec* pSpec, Qvp8u* pInitBuf);
QvpStatus qvpiResizeCubicInit_32f(QvpiSize srcSize, QvpiSize dstSize, Qvp32f valueB, Qvp32f valueC, QvpiResizeSpec* pSpec, Qvp8u* pInitBuf);
QvpStatus qvpiResizeCubicInit_8u_L(QvpiSizeL srcSize, QvpiSizeL dstSize, Qvp32f valueB, Qvp32f valueC, QvpiResizeSpec* pSpec, Qvp8u* pInitBuf);
QvpStatus qvpiResizeCubicInit_L(QvpiSizeL srcSize, QvpiSizeL dstSize, QvpDataType dataType, Qvp32f valueB, Qvp32f valueC, QvpiResizeSpec* pSpec, Qvp8u* pInitBuf);
QvpStatus qvpiResizeCubic_8u_C1R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiPoint dstOffset, QvpiSize dstSize, QvpiBorderType border, const Qvp8u* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeCubic_8u_C1R_L(const Qvp8u* pSrc, QvpSizeL srcStep, Qvp8u* pDst, QvpSizeL dstStep, QvpiPointL dstOffset, QvpiSizeL dstSize, QvpiBorderType border, const Qvp8u* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeCubic_8u_C3R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiPoint dstOffset, QvpiSize dstSize, QvpiBorderType border, const Qvp8u* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeCubic_8u_C3R_L(const Qvp8u* pSrc, QvpSizeL srcStep, Qvp8u* pDst, QvpSizeL dstStep, QvpiPointL dstOffset, QvpiSizeL dstSize, QvpiBorderType border, const Qvp8u* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeCubic_8u_C4R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiPoint dstOffset, QvpiSize dstSize, QvpiBorderType border, const Qvp8u* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeCubic_8u_C4R_L(const Qvp8u* pSrc, QvpSizeL srcStep, Qvp8u* pDst, QvpSizeL dstStep, QvpiPointL dstOffset, QvpiSizeL dstSize, QvpiBorderType border, const Qvp8u* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeCubic_16u_C1R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiPoint dstOffset, QvpiSize dstSize, QvpiBorderType border, const Qvp16u* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeCubic_16u_C1R_L(const Qvp16u* pSrc, QvpSizeL srcStep, Qvp16u* pDst, QvpSizeL dstStep, QvpiPointL dstOffset, QvpiSizeL dstSize, QvpiBorderType border, const Qvp16u* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeCubic_16u_C3R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiPoint dstOffset, QvpiSize dstSize, QvpiBorderType border, const Qvp16u* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeCubic_16u_C3R_L(const Qvp16u* pSrc, QvpSizeL srcStep, Qvp16u* pDst, QvpSizeL dstStep, QvpiPointL dstOffset, QvpiSizeL dstSize, QvpiBorderType border, const Qvp16u* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeCubic_16u_C4R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiPoint dstOffset, QvpiSize dstSize, QvpiBorderType border, const Qvp16u* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeCubic_16u_C4R_L(const Qvp16u* pSrc, QvpSizeL srcStep, Qvp16u* pDst, QvpSizeL dstStep, QvpiPointL dstOffset, QvpiSizeL dstSize, QvpiBorderType border, const Qvp16u* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeCubic_16s_C1R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiPoint dstOffset, QvpiSize dstSize, QvpiBorderType border, const Qvp16s* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeCubic_16s_C1R_L(const Qvp16s* pSrc, QvpSizeL srcStep, Qvp16s* pDst, QvpSizeL dstStep, QvpiPointL dstOffset, QvpiSizeL dstSize, QvpiBorderType border, const Qvp16s* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeCubic_16s_C3R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiPoint dstOffset, QvpiSize dstSize, QvpiBorderType border, const Qvp16s* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeCubic_16s_C3R_L(const Qvp16s* pSrc, QvpSizeL srcStep, Qvp16s* pDst, QvpSizeL dstStep, QvpiPointL dstOffset, QvpiSizeL dstSize, QvpiBorderType border, const Qvp16s* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeCubic_16s_C4R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiPoint dstOffset, QvpiSize dstSize, QvpiBorderType border, const Qvp16s* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeCubic_16s_C4R_L(const Qvp16s* pSrc, QvpSizeL srcStep, Qvp16s* pDst, QvpSizeL dstStep, QvpiPointL dstOffset, QvpiSizeL dstSize, QvpiBorderType border, const Qvp16s* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeCubic_32f_C1R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiPoint dstOffset, QvpiSize dstSize, QvpiBorderType border, const Qvp32f* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeCubic_32f_C1R_L(const Qvp32f* pSrc, QvpSizeL srcStep, Qvp32f* pDst, QvpSizeL dstStep, QvpiPointL dstOffset, QvpiSizeL dstSize, QvpiBorderType border, const Qvp32f* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeCubic_32f_C3R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiPoint dstOffset, QvpiSize dstSize, QvpiBorderType border, const Qvp32f* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeCubic_32f_C3R_L(const Qvp32f* pSrc, QvpSizeL srcStep, Qvp32f* pDst, QvpSizeL dstStep, QvpiPointL dstOffset, QvpiSizeL dstSize, QvpiBorderType border, const Qvp32f* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeCubic_32f_C4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiPoint dstOffset, QvpiSize dstSize, QvpiBorderType border, const Qvp32f* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeCubic_32f_C4R_L(const Qvp32f* pSrc, QvpSizeL srcStep, Qvp32f* pDst, QvpSizeL dstStep, QvpiPointL dstOffset, QvpiSizeL dstSize, QvpiBorderType border, const Qvp32f* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeLanczosInit_8u(QvpiSize srcSize, QvpiSize dstSize, Qvp32u numLobes, QvpiResizeSpec* pSpec, Qvp8u* pInitBuf);
QvpStatus qvpiResizeLanczosInit_16u(QvpiSize srcSize, QvpiSize dstSize, Qvp32u numLobes, QvpiResizeSpec* pSpec, Qvp8u* pInitBuf);
QvpStatus qvpiResizeLanczosInit_16s(QvpiSize srcSize, QvpiSize dstSize, Qvp32u numLobes, QvpiResizeSpec* pSpec, Qvp8u* pInitBuf);
QvpStatus qvpiResizeLanczosInit_32f(QvpiSize srcSize, QvpiSize dstSize, Qvp32u numLobes, QvpiResizeSpec* pSpec, Qvp8u* pInitBuf);
QvpStatus qvpiResizeLanczosInit_8u_L(QvpiSizeL srcSize, QvpiSizeL dstSize, Qvp32u numLobes, QvpiResizeSpec* pSpec, Qvp8u* pInitBuf);
QvpStatus qvpiResizeLanczosInit_L(QvpiSizeL srcSize, QvpiSizeL dstSize, QvpDataType dataType, Qvp32u numLobes, QvpiResizeSpec* pSpec, Qvp8u* pInitBuf);
QvpStatus qvpiResizeLanczos_8u_C1R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiPoint dstOffset, QvpiSize dstSize, QvpiBorderType border, const Qvp8u* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeLanczos_8u_C1R_L(const Qvp8u* pSrc, QvpSizeL srcStep, Qvp8u* pDst, QvpSizeL dstStep, QvpiPointL dstOffset, QvpiSizeL dstSize, QvpiBorderType border, const Qvp8u* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeLanczos_8u_C3R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiPoint dstOffset, QvpiSize dstSize, QvpiBorderType border, const Qvp8u* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeLanczos_8u_C3R_L(const Qvp8u* pSrc, QvpSizeL srcStep, Qvp8u* pDst, QvpSizeL dstStep, QvpiPointL dstOffset, QvpiSizeL dstSize, QvpiBorderType border, const Qvp8u* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeLanczos_8u_C4R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiPoint dstOffset, QvpiSize dstSize, QvpiBorderType border, const Qvp8u* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeLanczos_8u_C4R_L(const Qvp8u* pSrc, QvpSizeL srcStep, Qvp8u* pDst, QvpSizeL dstStep, QvpiPointL dstOffset, QvpiSizeL dstSize, QvpiBorderType border, const Qvp8u* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeLanczos_16u_C1R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiPoint dstOffset, QvpiSize dstSize, QvpiBorderType border, const Qvp16u* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeLanczos_16u_C1R_L(const Qvp16u* pSrc, QvpSizeL srcStep, Qvp16u* pDst, QvpSizeL dstStep, QvpiPointL dstOffset, QvpiSizeL dstSize, QvpiBorderType border, const Qvp16u* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeLanczos_16u_C3R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiPoint dstOffset, QvpiSize dstSize, QvpiBorderType border, const Qvp16u* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeLanczos_16u_C3R_L(const Qvp16u* pSrc, QvpSizeL srcStep, Qvp16u* pDst, QvpSizeL dstStep, QvpiPointL dstOffset, QvpiSizeL dstSize, QvpiBorderType border, const Qvp16u* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeLanczos_16u_C4R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiPoint dstOffset, QvpiSize dstSize, QvpiBorderType border, const Qvp16u* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeLanczos_16u_C4R_L(const Qvp16u* pSrc, QvpSizeL srcStep, Qvp16u* pDst, QvpSizeL dstStep, QvpiPointL dstOffset, QvpiSizeL dstSize, QvpiBorderType border, const Qvp16u* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeLanczos_16s_C1R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiPoint dstOffset, QvpiSize dstSize, QvpiBorderType border, const Qvp16s* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeLanczos_16s_C1R_L(const Qvp16s* pSrc, QvpSizeL srcStep, Qvp16s* pDst, QvpSizeL dstStep, QvpiPointL dstOffset, QvpiSizeL dstSize, QvpiBorderType border, const Qvp16s* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeLanczos_16s_C3R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiPoint dstOffset, QvpiSize dstSize, QvpiBorderType border, const Qvp16s* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeLanczos_16s_C3R_L(const Qvp16s* pSrc, QvpSizeL srcStep, Qvp16s* pDst, QvpSizeL dstStep, QvpiPointL dstOffset, QvpiSizeL dstSize, QvpiBorderType border, const Qvp16s* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeLanczos_16s_C4R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiPoint dstOffset, QvpiSize dstSize, QvpiBorderType border, const Qvp16s* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeLanczos_16s_C4R_L(const Qvp16s* pSrc, QvpSizeL srcStep, Qvp16s* pDst, QvpSizeL dstStep, QvpiPointL dstOffset, QvpiSizeL dstSize, QvpiBorderType border, const Qvp16s* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeLanczos_32f_C1R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiPoint dstOffset, QvpiSize dstSize, QvpiBorderType border, const Qvp32f* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeLanczos_32f_C1R_L(const Qvp32f* pSrc, QvpSizeL srcStep, Qvp32f* pDst, QvpSizeL dstStep, QvpiPointL dstOffset, QvpiSizeL dstSize, QvpiBorderType border, const Qvp32f* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeLanczos_32f_C3R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiPoint dstOffset, QvpiSize dstSize, QvpiBorderType border, const Qvp32f* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeLanczos_32f_C3R_L(const Qvp32f* pSrc, QvpSizeL srcStep, Qvp32f* pDst, QvpSizeL dstStep, QvpiPointL dstOffset, QvpiSizeL dstSize, QvpiBorderType border, const Qvp32f* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeLanczos_32f_C4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiPoint dstOffset, QvpiSize dstSize, QvpiBorderType border, const Qvp32f* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeLanczos_32f_C4R_L(const Qvp32f* pSrc, QvpSizeL srcStep, Qvp32f* pDst, QvpSizeL dstStep, QvpiPointL dstOffset, QvpiSizeL dstSize, QvpiBorderType border, const Qvp32f* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeSuperInit_8u(QvpiSize srcSize, QvpiSize dstSize, QvpiResizeSpec* pSpec);
QvpStatus qvpiResizeSuperInit_16u(QvpiSize srcSize, QvpiSize dstSize, QvpiResizeSpec* pSpec);
QvpStatus qvpiResizeSuperInit_16s(QvpiSize srcSize, QvpiSize dstSize, QvpiResizeSpec* pSpec);
QvpStatus qvpiResizeSuperInit_32f(QvpiSize srcSize, QvpiSize dstSize, QvpiResizeSpec* pSpec);
QvpStatus qvpiResizeSuperInit_L(QvpiSizeL srcSize, QvpiSizeL dstSize, QvpDataType dataType, QvpiResizeSpec* pSpec);
QvpStatus qvpiResizeSuperShiftInit_8u(QvpiSize srcSize, QvpiSize dstSize, Qvp64f shiftX, Qvp64f shiftY, QvpiResizeSpec* pSpec);
QvpStatus qvpiResizeSuperShiftInit_16u(QvpiSize srcSize, QvpiSize dstSize, Qvp64f shiftX, Qvp64f shiftY, QvpiResizeSpec* pSpec);
QvpStatus qvpiResizeSuperShiftInit_16s(QvpiSize srcSize, QvpiSize dstSize, Qvp64f shiftX, Qvp64f shiftY, QvpiResizeSpec* pSpec);
QvpStatus qvpiResizeSuperShiftInit_32f(QvpiSize srcSize, QvpiSize dstSize, Qvp64f shiftX, Qvp64f shiftY, QvpiResizeSpec* pSpec);
QvpStatus qvpiResizeSuper_8u_C1R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiPoint dstOffset, QvpiSize dstSize, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeSuper_8u_C1R_L(const Qvp8u* pSrc, QvpSizeL srcStep, Qvp8u* pDst, QvpSizeL dstStep, QvpiPointL dstOffset, QvpiSizeL dstSize, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeSuper_8u_C3R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiPoint dstOffset, QvpiSize dstSize, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeSuper_8u_C3R_L(const Qvp8u* pSrc, QvpSizeL srcStep, Qvp8u* pDst, QvpSizeL dstStep, QvpiPointL dstOffset, QvpiSizeL dstSize, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeSuper_8u_C4R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiPoint dstOffset, QvpiSize dstSize, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeSuper_8u_C4R_L(const Qvp8u* pSrc, QvpSizeL srcStep, Qvp8u* pDst, QvpSizeL dstStep, QvpiPointL dstOffset, QvpiSizeL dstSize, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeSuper_16u_C1R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiPoint dstOffset, QvpiSize dstSize, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeSuper_16u_C1R_L(const Qvp16u* pSrc, QvpSizeL srcStep, Qvp16u* pDst, QvpSizeL dstStep, QvpiPointL dstOffset, QvpiSizeL dstSize, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeSuper_16u_C3R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiPoint dstOffset, QvpiSize dstSize, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeSuper_16u_C3R_L(const Qvp16u* pSrc, QvpSizeL srcStep, Qvp16u* pDst, QvpSizeL dstStep, QvpiPointL dstOffset, QvpiSizeL dstSize, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeSuper_16u_C4R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiPoint dstOffset, QvpiSize dstSize, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeSuper_16u_C4R_L(const Qvp16u* pSrc, QvpSizeL srcStep, Qvp16u* pDst, QvpSizeL dstStep, QvpiPointL dstOffset, QvpiSizeL dstSize, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeSuper_16s_C1R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiPoint dstOffset, QvpiSize dstSize, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeSuper_16s_C1R_L(const Qvp16s* pSrc, QvpSizeL srcStep, Qvp16s* pDst, QvpSizeL dstStep, QvpiPointL dstOffset, QvpiSizeL dstSize, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeSuper_16s_C3R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiPoint dstOffset, QvpiSize dstSize, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeSuper_16s_C3R_L(const Qvp16s* pSrc, QvpSizeL srcStep, Qvp16s* pDst, QvpSizeL dstStep, QvpiPointL dstOffset, QvpiSizeL dstSize, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeSuper_16s_C4R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiPoint dstOffset, QvpiSize dstSize, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeSuper_16s_C4R_L(const Qvp16s* pSrc, QvpSizeL srcStep, Qvp16s* pDst, QvpSizeL dstStep, QvpiPointL dstOffset, QvpiSizeL dstSize, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeSuper_32f_C1R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiPoint dstOffset, QvpiSize dstSize, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeSuper_32f_C1R_L(const Qvp32f* pSrc, QvpSizeL srcStep, Qvp32f* pDst, QvpSizeL dstStep, QvpiPointL dstOffset, QvpiSizeL dstSize, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeSuper_32f_C3R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiPoint dstOffset, QvpiSize dstSize, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeSuper_32f_C3R_L(const Qvp32f* pSrc, QvpSizeL srcStep, Qvp32f* pDst, QvpSizeL dstStep, QvpiPointL dstOffset, QvpiSizeL dstSize, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeSuper_32f_C4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiPoint dstOffset, QvpiSize dstSize, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeSuper_32f_C4R_L(const Qvp32f* pSrc, QvpSizeL srcStep, Qvp32f* pDst, QvpSizeL dstStep, QvpiPointL dstOffset, QvpiSizeL dstSize, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeAntialiasingLinearInit(QvpiSize srcSize, QvpiSize dstSize, QvpiResizeSpec* pSpec, Qvp8u* pInitBuf);
QvpStatus qvpiResizeAntialiasingLinearInit_64f(QvpiSize srcSize, QvpiSize dstSize, QvpiResizeSpec* pSpec, Qvp8u* pInitBuf);
QvpStatus qvpiResizeAntialiasingLinearInit_L(QvpiSizeL srcSize, QvpiSizeL dstSize, QvpDataType dataType, QvpiResizeSpec* pSpec, Qvp8u* pInitBuf);
QvpStatus qvpiResizeAntialiasingCubicInit(QvpiSize srcSize, QvpiSize dstSize, Qvp32f valueB, Qvp32f valueC, QvpiResizeSpec* pSpec, Qvp8u* pInitBuf);
QvpStatus qvpiResizeAntialiasingCubicInit_64f(QvpiSize srcSize, QvpiSize dstSize, Qvp32f valueB, Qvp32f valueC, QvpiResizeSpec* pSpec, Qvp8u* pInitBuf);
QvpStatus qvpiResizeAntialiasingCubicInit_L(QvpiSizeL srcSize, QvpiSizeL dstSize, QvpDataType dataType, Qvp32f valueB, Qvp32f valueC, QvpiResizeSpec* pSpec, Qvp8u* pInitBuf);
QvpStatus qvpiResizeAntialiasingLanczosInit(QvpiSize srcSize, QvpiSize dstSize, Qvp32u numLobes, QvpiResizeSpec* pSpec, Qvp8u* pInitBuf);
QvpStatus qvpiResizeAntialiasingLanczosInit_64f(QvpiSize srcSize, QvpiSize dstSize, Qvp32u numLobes, QvpiResizeSpec* pSpec, Qvp8u* pInitBuf);
QvpStatus qvpiResizeAntialiasingLanczosInit_L(QvpiSizeL srcSize, QvpiSizeL dstSize, QvpDataType dataType, Qvp32u numLobes, QvpiResizeSpec* pSpec, Qvp8u* pInitBuf);
QvpStatus qvpiResizeAntialiasing_8u_C1R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiPoint dstOffset, QvpiSize dstSize, QvpiBorderType border, const Qvp8u* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeAntialiasing_8u_C1R_L(const Qvp8u* pSrc, QvpSizeL srcStep, Qvp8u* pDst, QvpSizeL dstStep, QvpiPointL dstOffset, QvpiSizeL dstSize, QvpiBorderType border, const Qvp8u* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeAntialiasing_8u_C3R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiPoint dstOffset, QvpiSize dstSize, QvpiBorderType border, const Qvp8u* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeAntialiasing_8u_C3R_L(const Qvp8u* pSrc, QvpSizeL srcStep, Qvp8u* pDst, QvpSizeL dstStep, QvpiPointL dstOffset, QvpiSizeL dstSize, QvpiBorderType border, const Qvp8u* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeAntialiasing_8u_C4R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiPoint dstOffset, QvpiSize dstSize, QvpiBorderType border, const Qvp8u* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeAntialiasing_8u_C4R_L(const Qvp8u* pSrc, QvpSizeL srcStep, Qvp8u* pDst, QvpSizeL dstStep, QvpiPointL dstOffset, QvpiSizeL dstSize, QvpiBorderType border, const Qvp8u* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeAntialiasing_16u_C1R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiPoint dstOffset, QvpiSize dstSize, QvpiBorderType border, const Qvp16u* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeAntialiasing_16u_C1R_L(const Qvp16u* pSrc, QvpSizeL srcStep, Qvp16u* pDst, QvpSizeL dstStep, QvpiPointL dstOffset, QvpiSizeL dstSize, QvpiBorderType border, const Qvp16u* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeAntialiasing_16u_C3R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiPoint dstOffset, QvpiSize dstSize, QvpiBorderType border, const Qvp16u* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeAntialiasing_16u_C3R_L(const Qvp16u* pSrc, QvpSizeL srcStep, Qvp16u* pDst, QvpSizeL dstStep, QvpiPointL dstOffset, QvpiSizeL dstSize, QvpiBorderType border, const Qvp16u* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeAntialiasing_16u_C4R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiPoint dstOffset, QvpiSize dstSize, QvpiBorderType border, const Qvp16u* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeAntialiasing_16u_C4R_L(const Qvp16u* pSrc, QvpSizeL srcStep, Qvp16u* pDst, QvpSizeL dstStep, QvpiPointL dstOffset, QvpiSizeL dstSize, QvpiBorderType border, const Qvp16u* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeAntialiasing_16s_C1R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiPoint dstOffset, QvpiSize dstSize, QvpiBorderType border, const Qvp16s* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeAntialiasing_16s_C1R_L(const Qvp16s* pSrc, QvpSizeL srcStep, Qvp16s* pDst, QvpSizeL dstStep, QvpiPointL dstOffset, QvpiSizeL dstSize, QvpiBorderType border, const Qvp16s* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeAntialiasing_16s_C3R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiPoint dstOffset, QvpiSize dstSize, QvpiBorderType border, const Qvp16s* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeAntialiasing_16s_C3R_L(const Qvp16s* pSrc, QvpSizeL srcStep, Qvp16s* pDst, QvpSizeL dstStep, QvpiPointL dstOffset, QvpiSizeL dstSize, QvpiBorderType border, const Qvp16s* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeAntialiasing_16s_C4R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiPoint dstOffset, QvpiSize dstSize, QvpiBorderType border, const Qvp16s* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeAntialiasing_16s_C4R_L(const Qvp16s* pSrc, QvpSizeL srcStep, Qvp16s* pDst, QvpSizeL dstStep, QvpiPointL dstOffset, QvpiSizeL dstSize, QvpiBorderType border, const Qvp16s* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeAntialiasing_32f_C1R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiPoint dstOffset, QvpiSize dstSize, QvpiBorderType border, const Qvp32f* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeAntialiasing_32f_C1R_L(const Qvp32f* pSrc, QvpSizeL srcStep, Qvp32f* pDst, QvpSizeL dstStep, QvpiPointL dstOffset, QvpiSizeL dstSize, QvpiBorderType border, const Qvp32f* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeAntialiasing_32f_C3R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiPoint dstOffset, QvpiSize dstSize, QvpiBorderType border, const Qvp32f* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeAntialiasing_32f_C3R_L(const Qvp32f* pSrc, QvpSizeL srcStep, Qvp32f* pDst, QvpSizeL dstStep, QvpiPointL dstOffset, QvpiSizeL dstSize, QvpiBorderType border, const Qvp32f* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeAntialiasing_32f_C4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiPoint dstOffset, QvpiSize dstSize, QvpiBorderType border, const Qvp32f* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeAntialiasing_32f_C4R_L(const Qvp32f* pSrc, QvpSizeL srcStep, Qvp32f* pDst, QvpSizeL dstStep, QvpiPointL dstOffset, QvpiSizeL dstSize, QvpiBorderType border, const Qvp32f* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeAntialiasing_64f_C1R(const Qvp64f* pSrc, int srcStep, Qvp64f* pDst, int dstStep, QvpiPoint dstOffset, QvpiSize dstSize, QvpiBorderType border, const Qvp64f* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeAntialiasing_64f_C1R_L(const Qvp64f* pSrc, QvpSizeL srcStep, Qvp64f* pDst, QvpSizeL dstStep, QvpiPointL dstOffset, QvpiSizeL dstSize, QvpiBorderType border, const Qvp64f* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeAntialiasing_64f_C3R(const Qvp64f* pSrc, int srcStep, Qvp64f* pDst, int dstStep, QvpiPoint dstOffset, QvpiSize dstSize, QvpiBorderType border, const Qvp64f* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeAntialiasing_64f_C3R_L(const Qvp64f* pSrc, QvpSizeL srcStep, Qvp64f* pDst, QvpSizeL dstStep, QvpiPointL dstOffset, QvpiSizeL dstSize, QvpiBorderType border, const Qvp64f* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeAntialiasing_64f_C4R(const Qvp64f* pSrc, int srcStep, Qvp64f* pDst, int dstStep, QvpiPoint dstOffset, QvpiSize dstSize, QvpiBorderType border, const Qvp64f* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResizeAntialiasing_64f_C4R_L(const Qvp64f* pSrc, QvpSizeL srcStep, Qvp64f* pDst, QvpSizeL dstStep, QvpiPointL dstOffset, QvpiSizeL dstSize, QvpiBorderType border, const Qvp64f* pBorderValue, const QvpiResizeSpec* pSpec, Qvp8u* pBuffer);
/** @} */

#ifdef __cplusplus
}
#endif

#endif
