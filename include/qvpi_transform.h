/** @file qvpi_transform.h
 *  Two-dimensional Fourier transforms, operations on their packed spectra, cosine transforms of images and of blocks,
 *  wavelet transforms, convolutions and deconvolution, and windows.
 *
 *  The conventions of every function are told in qvpi_core.h.
 *
 *  The transform of a W x H image x is, with v the frequency down and u the one across,
 *
 *      X(u, v) = sum over r < H, c < W of x(r, c) * e^(-2 * pi * i * (u * c / W + v * r / H))
 *
 *  and the inverse one is the same sum with the opposite sign in the exponent. A normalisation flag tells by which
 *  factor the results are multiplied, once for each of the two passes; N is the length of the pass, W or H:
 *
 *  | flag | forward    | inverse    |
 *  |------|------------|------------|
 *  | 1    | 1/N        | 1          |
 *  | 2    | 1          | 1/N        |
 *  | 4    | 1/sqrt(N)  | 1/sqrt(N)  |
 *  | 8    | 1          | 1          |
 *
 *  The spectrum of a real image is symmetric, X(W - u, H - v) = conj(X(u, v)), so half of it is enough: the packed
 *  spectrum has as many floats as the image. Of an 8 x 4 image (R is the real, I the imaginary part of X(u, v)):
 *
 *  | row | 0       | 1       | 2       | 3       | 4       | 5       | 6       | 7       |
 *  |-----|---------|---------|---------|---------|---------|---------|---------|---------|
 *  | 0   | R(0, 0) | R(1, 0) | I(1, 0) | R(2, 0) | I(2, 0) | R(3, 0) | I(3, 0) | R(4, 0) |
 *  | 1   | R(0, 1) | R(1, 1) | I(1, 1) | R(2, 1) | I(2, 1) | R(3, 1) | I(3, 1) | R(4, 1) |
 *  | 2   | I(0, 1) | R(1, 2) | I(1, 2) | R(2, 2) | I(2, 2) | R(3, 2) | I(3, 2) | I(4, 1) |
 *  | 3   | R(0, 2) | R(1, 3) | I(1, 3) | R(2, 3) | I(2, 3) | R(3, 3) | I(3, 3) | R(4, 2) |
 *
 *  Columns 2 * u - 1 and 2 * u hold frequency u of every row. The first column, and of even widths the last one, hold
 *  u = 0 and u = W / 2, down the rows as a single row would across: real v = 0, pairs, and of even heights v = H / 2,
 *  real too. An odd width has no last real column, an odd height no last real row of these columns.
 */
#ifndef QVPI_TRANSFORM_H
#define QVPI_TRANSFORM_H

#include "qvptypes.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @name FFT: sizes
 *  @{ */
/** Tells the sizes of what a transform of images whose sides are powers of two needs: a record, memory for its
 *  initialisation, and a work buffer.
 *
 *  Every size has 64 bytes to spare, so memory of any alignment will do.
 *
 *  @param orderX the width is 2^orderX, 0 to 29
 *  @param orderY the height is 2^orderY, 0 to 29
 *  @param flag normalisation: 1, 2, 4 or 8
 *  @param hint ignored
 *  @param pSpecSize size of the record in bytes
 *  @param pSpecBufferSize size in bytes of memory that the initialisation needs: 0
 *  @param pBufferSize size in bytes of the work buffer of each call
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: an output pointer is null
 *  - qvpStatusFftOrder: an order is not within 0 to 29
 *  - qvpStatusFftFlag: the flag is none of 1, 2, 4 and 8
 *  - qvpStatusSizeOverflow: a size is beyond 2147483647 bytes; 0 is written for it
 *  - qvpStatusNoError: the sizes are written
 */
QvpStatus qvpiFFTGetSize_R_32f(int orderX, int orderY, int flag, QvpHintAlgorithm hint, int* pSpecSize, int* pSpecBufferSize, int* pBufferSize);
QvpStatus qvpiFFTGetSize_C_32fc(int orderX, int orderY, int flag, QvpHintAlgorithm hint, int* pSpecSize, int* pSpecBufferSize, int* pBufferSize);
/** @} */

/** @name FFT: records
 *  @{ */
/** Writes a record for transforms of images whose sides are powers of two.
 *
 *  The record is read-only afterwards: any number of calls may use it at a time, each with a work buffer of its own.
 *
 *  @param orderX the width is 2^orderX, 0 to 29
 *  @param orderY the height is 2^orderY, 0 to 29
 *  @param flag normalisation: 1, 2, 4 or 8
 *  @param hint ignored
 *  @param pSpec receives the record
 *  @param pMemInit not needed, may be null
 *  @return, in the order of the checks:
 *  - qvpStatusFftOrder: an order is not within 0 to 30
 *  - qvpStatusNullPointer: the record is null
 *  - qvpStatusFftOrder: an order is 30
 *  - qvpStatusFftFlag: the flag is none of 1, 2, 4 and 8
 *  - qvpStatusSizeOverflow: a size is beyond 2147483647 bytes
 *  - qvpStatusNoError: the record is ready
 */
QvpStatus qvpiFFTInit_R_32f(int orderX, int orderY, int flag, QvpHintAlgorithm hint, QvpiFFTSpec_R_32f* pSpec, Qvp8u* pMemInit);
QvpStatus qvpiFFTInit_C_32fc(int orderX, int orderY, int flag, QvpHintAlgorithm hint, QvpiFFTSpec_C_32fc* pSpec, Qvp8u* pMemInit);
/** @} */

/** @name FFT: forward, real
 *  @{ */
/** Transforms a real image to its packed spectrum. Each channel is an image of its own; of AC4 images the fourth
 *  channel of the destination stays.
 *
 *  The destination may be the source, with equal steps. NaN and infinite values spread as the sums tell.
 *
 *  Method: mixed radix in place (Gentleman and Sande, 1966), of rows and then of columns, in single precision with
 *  factors that were computed in double precision.
 *
 *  @param pSrc,srcStep source image
 *  @param pDst,dstStep destination image
 *  @param pSrcDst,srcDstStep in place: the image
 *  @param pSpec record of the same kind of transform and image
 *  @param pBuffer work buffer of the size that the size query told, of any alignment
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: the record is null
 *  - qvpStatusContextMatch: the record is not one of this family, or its initialisation failed
 *  - qvpStatusNullPointer: an image is null
 *  - qvpStatusStep: a step is less than 1
 *  - qvpStatusNullPointer: the buffer is null
 *  - qvpStatusNoError: the result is written
 */
QvpStatus qvpiFFTFwd_RToPack_32f_C1R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, const QvpiFFTSpec_R_32f* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFFTFwd_RToPack_32f_C3R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, const QvpiFFTSpec_R_32f* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFFTFwd_RToPack_32f_C4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, const QvpiFFTSpec_R_32f* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFFTFwd_RToPack_32f_AC4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, const QvpiFFTSpec_R_32f* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFFTFwd_RToPack_32f_C1IR(Qvp32f* pSrcDst, int srcDstStep, const QvpiFFTSpec_R_32f* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFFTFwd_RToPack_32f_C3IR(Qvp32f* pSrcDst, int srcDstStep, const QvpiFFTSpec_R_32f* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFFTFwd_RToPack_32f_C4IR(Qvp32f* pSrcDst, int srcDstStep, const QvpiFFTSpec_R_32f* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFFTFwd_RToPack_32f_AC4IR(Qvp32f* pSrcDst, int srcDstStep, const QvpiFFTSpec_R_32f* pSpec, Qvp8u* pBuffer);
/** @} */

/** @name FFT: inverse, real
 *  @{ */
/** Transforms a packed spectrum to a real image. Each channel is an image of its own; of AC4 images the fourth channel
 *  of the destination stays.
 *
 *  The destination may be the source, with equal steps. NaN and infinite values spread as the sums tell.
 *
 *  Method: mixed radix in place (Gentleman and Sande, 1966), of columns and then of rows, in single precision with
 *  factors that were computed in double precision.
 *
 *  @param pSrc,srcStep source image
 *  @param pDst,dstStep destination image
 *  @param pSrcDst,srcDstStep in place: the image
 *  @param pSpec record of the same kind of transform and image
 *  @param pBuffer work buffer of the size that the size query told, of any alignment
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: the record is null
 *  - qvpStatusContextMatch: the record is not one of this family, or its initialisation failed
 *  - qvpStatusNullPointer: an image is null
 *  - qvpStatusStep: a step is less than 1
 *  - qvpStatusNullPointer: the buffer is null
 *  - qvpStatusNoError: the result is written
 */
QvpStatus qvpiFFTInv_PackToR_32f_C1R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, const QvpiFFTSpec_R_32f* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFFTInv_PackToR_32f_C3R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, const QvpiFFTSpec_R_32f* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFFTInv_PackToR_32f_C4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, const QvpiFFTSpec_R_32f* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFFTInv_PackToR_32f_AC4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, const QvpiFFTSpec_R_32f* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFFTInv_PackToR_32f_C1IR(Qvp32f* pSrcDst, int srcDstStep, const QvpiFFTSpec_R_32f* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFFTInv_PackToR_32f_C3IR(Qvp32f* pSrcDst, int srcDstStep, const QvpiFFTSpec_R_32f* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFFTInv_PackToR_32f_C4IR(Qvp32f* pSrcDst, int srcDstStep, const QvpiFFTSpec_R_32f* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFFTInv_PackToR_32f_AC4IR(Qvp32f* pSrcDst, int srcDstStep, const QvpiFFTSpec_R_32f* pSpec, Qvp8u* pBuffer);
/** @} */

/** @name FFT: forward, complex
 *  @{ */
/** Transforms a complex image to its spectrum, X(u, v) in row v and column u.
 *
 *  The destination may be the source, with equal steps. NaN and infinite values spread as the sums tell.
 *
 *  Method: mixed radix in place (Gentleman and Sande, 1966), of rows and then of columns, in single precision with
 *  factors that were computed in double precision.
 *
 *  @param pSrc,srcStep source image
 *  @param pDst,dstStep destination image
 *  @param pSrcDst,srcDstStep in place: the image
 *  @param pSpec record of the same kind of transform and image
 *  @param pBuffer work buffer of the size that the size query told, of any alignment
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: the record is null
 *  - qvpStatusContextMatch: the record is not one of this family, or its initialisation failed
 *  - qvpStatusNullPointer: an image is null
 *  - qvpStatusStep: a step is less than 1
 *  - qvpStatusNullPointer: the buffer is null
 *  - qvpStatusNoError: the result is written
 */
QvpStatus qvpiFFTFwd_CToC_32fc_C1R(const Qvp32fc* pSrc, int srcStep, Qvp32fc* pDst, int dstStep, const QvpiFFTSpec_C_32fc* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFFTFwd_CToC_32fc_C1IR(Qvp32fc* pSrcDst, int srcDstStep, const QvpiFFTSpec_C_32fc* pSpec, Qvp8u* pBuffer);
/** @} */

/** @name FFT: inverse, complex
 *  @{ */
/** Transforms a spectrum, X(u, v) in row v and column u, to a complex image.
 *
 *  The destination may be the source, with equal steps. NaN and infinite values spread as the sums tell.
 *
 *  Method: mixed radix in place (Gentleman and Sande, 1966), of columns and then of rows, in single precision with
 *  factors that were computed in double precision.
 *
 *  @param pSrc,srcStep source image
 *  @param pDst,dstStep destination image
 *  @param pSrcDst,srcDstStep in place: the image
 *  @param pSpec record of the same kind of transform and image
 *  @param pBuffer work buffer of the size that the size query told, of any alignment
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: the record is null
 *  - qvpStatusContextMatch: the record is not one of this family, or its initialisation failed
 *  - qvpStatusNullPointer: an image is null
 *  - qvpStatusStep: a step is less than 1
 *  - qvpStatusNullPointer: the buffer is null
 *  - qvpStatusNoError: the result is written
 */
QvpStatus qvpiFFTInv_CToC_32fc_C1R(const Qvp32fc* pSrc, int srcStep, Qvp32fc* pDst, int dstStep, const QvpiFFTSpec_C_32fc* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFFTInv_CToC_32fc_C1IR(Qvp32fc* pSrcDst, int srcDstStep, const QvpiFFTSpec_C_32fc* pSpec, Qvp8u* pBuffer);
/** @} */

/** @name DFT: sizes
 *  @{ */
/** Tells the sizes of what a transform of images of any size needs: a record, memory for its initialisation, and a
 *  work buffer.
 *
 *  Every size has 64 bytes to spare, so memory of any alignment will do.
 *
 *  @param roiSize size of the images in pixels
 *  @param flag normalisation: 1, 2, 4 or 8
 *  @param hint ignored
 *  @param pSpecSize size of the record in bytes
 *  @param pSpecBufferSize size in bytes of memory that the initialisation needs: 0
 *  @param pBufferSize size in bytes of the work buffer of each call
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: an output pointer is null
 *  - qvpStatusSize: a side is less than 1
 *  - qvpStatusFftFlag: the flag is none of 1, 2, 4 and 8
 *  - qvpStatusSizeOverflow: a size is beyond 2147483647 bytes; 0 is written for it
 *  - qvpStatusNoError: the sizes are written
 */
QvpStatus qvpiDFTGetSize_R_32f(QvpiSize roiSize, int flag, QvpHintAlgorithm hint, int* pSpecSize, int* pSpecBufferSize, int* pBufferSize);
QvpStatus qvpiDFTGetSize_C_32fc(QvpiSize roiSize, int flag, QvpHintAlgorithm hint, int* pSpecSize, int* pSpecBufferSize, int* pBufferSize);
/** @} */

/** @name DFT: records
 *  @{ */
/** Writes a record for transforms of images of any size.
 *
 *  The record is read-only afterwards: any number of calls may use it at a time, each with a work buffer of its own.
 *
 *  @param roiSize size of the images in pixels
 *  @param flag normalisation: 1, 2, 4 or 8
 *  @param hint ignored
 *  @param pSpec receives the record
 *  @param pMemInit not needed, may be null
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: the record is null
 *  - qvpStatusSize: a side is less than 1
 *  - qvpStatusFftFlag: the flag is none of 1, 2, 4 and 8
 *  - qvpStatusSizeOverflow: a size is beyond 2147483647 bytes
 *  - qvpStatusNoError: the record is ready
 */
QvpStatus qvpiDFTInit_R_32f(QvpiSize roiSize, int flag, QvpHintAlgorithm hint, QvpiDFTSpec_R_32f* pSpec, Qvp8u* pMemInit);
QvpStatus qvpiDFTInit_C_32fc(QvpiSize roiSize, int flag, QvpHintAlgorithm hint, QvpiDFTSpec_C_32fc* pSpec, Qvp8u* pMemInit);
/** @} */

/** @name DFT: forward, real
 *  @{ */
/** Transforms a real image to its packed spectrum. Each channel is an image of its own; of AC4 images the fourth
 *  channel of the destination stays.
 *
 *  The destination may be the source, with equal steps. NaN and infinite values spread as the sums tell.
 *
 *  Method: mixed radix in place (Gentleman and Sande, 1966), of rows and then of columns, in single precision with
 *  factors that were computed in double precision; prime factors up to 61 have passes of their own, lengths with a
 *  greater one go by a chirp (Bluestein, 1970).
 *
 *  @param pSrc,srcStep source image
 *  @param pDst,dstStep destination image
 *  @param pSrcDst,srcDstStep in place: the image
 *  @param pSpec record of the same kind of transform and image
 *  @param pBuffer work buffer of the size that the size query told, of any alignment
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: the record is null
 *  - qvpStatusContextMatch: the record is not one of this family, or its initialisation failed
 *  - qvpStatusNullPointer: an image is null
 *  - qvpStatusStep: a step is less than 1
 *  - qvpStatusNullPointer: the buffer is null
 *  - qvpStatusNoError: the result is written
 */
QvpStatus qvpiDFTFwd_RToPack_32f_C1R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, const QvpiDFTSpec_R_32f* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiDFTFwd_RToPack_32f_C3R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, const QvpiDFTSpec_R_32f* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiDFTFwd_RToPack_32f_C4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, const QvpiDFTSpec_R_32f* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiDFTFwd_RToPack_32f_AC4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, const QvpiDFTSpec_R_32f* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiDFTFwd_RToPack_32f_C1IR(Qvp32f* pSrcDst, int srcDstStep, const QvpiDFTSpec_R_32f* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiDFTFwd_RToPack_32f_C3IR(Qvp32f* pSrcDst, int srcDstStep, const QvpiDFTSpec_R_32f* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiDFTFwd_RToPack_32f_C4IR(Qvp32f* pSrcDst, int srcDstStep, const QvpiDFTSpec_R_32f* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiDFTFwd_RToPack_32f_AC4IR(Qvp32f* pSrcDst, int srcDstStep, const QvpiDFTSpec_R_32f* pSpec, Qvp8u* pBuffer);
/** @} */

/** @name DFT: inverse, real
 *  @{ */
/** Transforms a packed spectrum to a real image. Each channel is an image of its own; of AC4 images the fourth channel
 *  of the destination stays.
 *
 *  The destination may be the source, with equal steps. NaN and infinite values spread as the sums tell.
 *
 *  Method: mixed radix in place (Gentleman and Sande, 1966), of columns and then of rows, in single precision with
 *  factors that were computed in double precision; prime factors up to 61 have passes of their own, lengths with a
 *  greater one go by a chirp (Bluestein, 1970).
 *
 *  @param pSrc,srcStep source image
 *  @param pDst,dstStep destination image
 *  @param pSrcDst,srcDstStep in place: the image
 *  @param pSpec record of the same kind of transform and image
 *  @param pBuffer work buffer of the size that the size query told, of any alignment
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: the record is null
 *  - qvpStatusContextMatch: the record is not one of this family, or its initialisation failed
 *  - qvpStatusNullPointer: an image is null
 *  - qvpStatusStep: a step is less than 1
 *  - qvpStatusNullPointer: the buffer is null
 *  - qvpStatusNoError: the result is written
 */
QvpStatus qvpiDFTInv_PackToR_32f_C1R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, const QvpiDFTSpec_R_32f* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiDFTInv_PackToR_32f_C3R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, const QvpiDFTSpec_R_32f* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiDFTInv_PackToR_32f_C4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, const QvpiDFTSpec_R_32f* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiDFTInv_PackToR_32f_AC4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, const QvpiDFTSpec_R_32f* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiDFTInv_PackToR_32f_C1IR(Qvp32f* pSrcDst, int srcDstStep, const QvpiDFTSpec_R_32f* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiDFTInv_PackToR_32f_C3IR(Qvp32f* pSrcDst, int srcDstStep, const QvpiDFTSpec_R_32f* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiDFTInv_PackToR_32f_C4IR(Qvp32f* pSrcDst, int srcDstStep, const QvpiDFTSpec_R_32f* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiDFTInv_PackToR_32f_AC4IR(Qvp32f* pSrcDst, int srcDstStep, const QvpiDFTSpec_R_32f* pSpec, Qvp8u* pBuffer);
/** @} */

/** @name DFT: forward, complex
 *  @{ */
/** Transforms a complex image to its spectrum, X(u, v) in row v and column u.
 *
 *  The destination may be the source, with equal steps. NaN and infinite values spread as the sums tell.
 *
 *  Method: mixed radix in place (Gentleman and Sande, 1966), of rows and then of columns, in single precision with
 *  factors that were computed in double precision; prime factors up to 61 have passes of their own, lengths with a
 *  greater one go by a chirp (Bluestein, 1970).
 *
 *  @param pSrc,srcStep source image
 *  @param pDst,dstStep destination image
 *  @param pSrcDst,srcDstStep in place: the image
 *  @param pSpec record of the same kind of transform and image
 *  @param pBuffer work buffer of the size that the size query told, of any alignment
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: the record is null
 *  - qvpStatusContextMatch: the record is not one of this family, or its initialisation failed
 *  - qvpStatusNullPointer: an image is null
 *  - qvpStatusStep: a step is less than 1
 *  - qvpStatusNullPointer: the buffer is null
 *  - qvpStatusNoError: the result is written
 */
QvpStatus qvpiDFTFwd_CToC_32fc_C1R(const Qvp32fc* pSrc, int srcStep, Qvp32fc* pDst, int dstStep, const QvpiDFTSpec_C_32fc* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiDFTFwd_CToC_32fc_C1IR(Qvp32fc* pSrcDst, int srcDstStep, const QvpiDFTSpec_C_32fc* pSpec, Qvp8u* pBuffer);
/** @} */

/** @name DFT: inverse, complex
 *  @{ */
/** Transforms a spectrum, X(u, v) in row v and column u, to a complex image.
 *
 *  The destination may be the source, with equal steps. NaN and infinite values spread as the sums tell.
 *
 *  Method: mixed radix in place (Gentleman and Sande, 1966), of columns and then of rows, in single precision with
 *  factors that were computed in double precision; prime factors up to 61 have passes of their own, lengths with a
 *  greater one go by a chirp (Bluestein, 1970).
 *
 *  @param pSrc,srcStep source image
 *  @param pDst,dstStep destination image
 *  @param pSrcDst,srcDstStep in place: the image
 *  @param pSpec record of the same kind of transform and image
 *  @param pBuffer work buffer of the size that the size query told, of any alignment
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: the record is null
 *  - qvpStatusContextMatch: the record is not one of this family, or its initialisation failed
 *  - qvpStatusNullPointer: an image is null
 *  - qvpStatusStep: a step is less than 1
 *  - qvpStatusNullPointer: the buffer is null
 *  - qvpStatusNoError: the result is written
 */
QvpStatus qvpiDFTInv_CToC_32fc_C1R(const Qvp32fc* pSrc, int srcStep, Qvp32fc* pDst, int dstStep, const QvpiDFTSpec_C_32fc* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiDFTInv_CToC_32fc_C1IR(Qvp32fc* pSrcDst, int srcDstStep, const QvpiDFTSpec_C_32fc* pSpec, Qvp8u* pBuffer);
/** @} */

/** @name MulPack
 *  @{ */
/** Multiplies packed spectra of real images: dst = src1 * src2; in place, srcDst = src * srcDst.
 *
 *  Each frequency is a product of complex numbers in single precision, the real ones one of real numbers.
 *
 *  Each channel is a spectrum of its own; of AC4 images the fourth channel of the destination stays. Any size, odd ones
 *  too. The destination may be either source.
 *
 *  @param pSrc1,src1Step first spectrum
 *  @param pSrc2,src2Step second spectrum
 *  @param pDst,dstStep destination
 *  @param pSrc,srcStep in place: first spectrum
 *  @param pSrcDst,srcDstStep in place: second spectrum and destination
 *  @param roiSize size in pixels of the images that the spectra are of
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: a pointer is null
 *  - qvpStatusSize: a side is less than 1
 *  - qvpStatusStep: a step is less than 1
 *  - qvpStatusNoError: the result is written
 */
QvpStatus qvpiMulPack_32f_C1R(const Qvp32f* pSrc1, int src1Step, const Qvp32f* pSrc2, int src2Step, Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiMulPack_32f_C3R(const Qvp32f* pSrc1, int src1Step, const Qvp32f* pSrc2, int src2Step, Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiMulPack_32f_C4R(const Qvp32f* pSrc1, int src1Step, const Qvp32f* pSrc2, int src2Step, Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiMulPack_32f_AC4R(const Qvp32f* pSrc1, int src1Step, const Qvp32f* pSrc2, int src2Step, Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiMulPack_32f_C1IR(const Qvp32f* pSrc, int srcStep, Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiMulPack_32f_C3IR(const Qvp32f* pSrc, int srcStep, Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiMulPack_32f_C4IR(const Qvp32f* pSrc, int srcStep, Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiMulPack_32f_AC4IR(const Qvp32f* pSrc, int srcStep, Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize);
/** @} */

/** @name MulPackConj
 *  @{ */
/** Multiplies a packed spectrum of a real image by the conjugate of another: dst = src1 * conj(src2); in place,
 *  srcDst = src * conj(srcDst): it is the image that receives the product whose conjugate is taken.
 *
 *  Each frequency is a product of complex numbers in single precision, the real ones one of real numbers.
 *
 *  Each channel is a spectrum of its own; of AC4 images the fourth channel of the destination stays. Any size, odd ones
 *  too. The destination may be either source.
 *
 *  @param pSrc1,src1Step first spectrum
 *  @param pSrc2,src2Step second spectrum
 *  @param pDst,dstStep destination
 *  @param pSrc,srcStep in place: first spectrum
 *  @param pSrcDst,srcDstStep in place: second spectrum and destination
 *  @param roiSize size in pixels of the images that the spectra are of
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: a pointer is null
 *  - qvpStatusSize: a side is less than 1
 *  - qvpStatusStep: a step is less than 1
 *  - qvpStatusNoError: the result is written
 */
QvpStatus qvpiMulPackConj_32f_C1R(const Qvp32f* pSrc1, int src1Step, const Qvp32f* pSrc2, int src2Step, Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiMulPackConj_32f_C3R(const Qvp32f* pSrc1, int src1Step, const Qvp32f* pSrc2, int src2Step, Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiMulPackConj_32f_C4R(const Qvp32f* pSrc1, int src1Step, const Qvp32f* pSrc2, int src2Step, Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiMulPackConj_32f_AC4R(const Qvp32f* pSrc1, int src1Step, const Qvp32f* pSrc2, int src2Step, Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiMulPackConj_32f_C1IR(const Qvp32f* pSrc, int srcStep, Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiMulPackConj_32f_C3IR(const Qvp32f* pSrc, int srcStep, Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiMulPackConj_32f_C4IR(const Qvp32f* pSrc, int srcStep, Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize);
QvpStatus qvpiMulPackConj_32f_AC4IR(const Qvp32f* pSrc, int srcStep, Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize);
/** @} */

/** @name MagnitudePack: size of the buffer
 *  @{ */
/** Tells the size of the buffer that MagnitudePack takes: a row of floats.
 *
 *  @param numChannels 1, 3 or 4
 *  @param roiSize size in pixels
 *  @param pBufferSize size in bytes
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: the output pointer is null
 *  - qvpStatusSize: a side is less than 1
 *  - qvpStatusNumChannels: the number of channels is none of 1, 3 and 4
 *  - qvpStatusSizeOverflow: the size is beyond 2147483647 bytes; 0 is written
 *  - qvpStatusNoError: the size is written
 */
QvpStatus qvpiMagnitudePackGetBufferSize_32f(int numChannels, QvpiSize roiSize, int* pBufferSize);
/** @} */

/** @name MagnitudePack
 *  @{ */
/** Magnitudes |X| of a packed spectrum, computed in double precision and rounded to the nearest float.
 *
 *  The whole spectrum is written: row v, column u has the value of X(u, v). The images must not overlap.
 *  Each channel is a spectrum of its own; of AC4 images the fourth channel of the destination stays. Any size, odd ones
 *  too.
 *
 *  @param pSrc,srcStep packed spectrum
 *  @param pDst,dstStep destination, of the same size
 *  @param roiSize size in pixels
 *  @param pBuffer buffer of the size that the size query told
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: a pointer is null
 *  - qvpStatusSize: a side is less than 1
 *  - qvpStatusStep: a step is less than 1
 *  - qvpStatusNoError: the result is written
 */
QvpStatus qvpiMagnitudePack_32f_C1R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, Qvp8u* pBuffer);
QvpStatus qvpiMagnitudePack_32f_C3R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, Qvp8u* pBuffer);
QvpStatus qvpiMagnitudePack_32f_C4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, Qvp8u* pBuffer);
QvpStatus qvpiMagnitudePack_32f_AC4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, Qvp8u* pBuffer);
/** @} */

/** @name PhasePack
 *  @{ */
/** Phases of a packed spectrum in (-pi, pi]: the angle of X(u, v), computed in double precision and rounded to float.
 *  That of 0 is 0, that of negative real numbers pi. An infinite part outweighs every finite one, and two of them are
 *  equally long: the phase of inf + i * y is 0 for every finite y, that of -inf + i * inf is 3 * pi / 4.
 *
 *  The whole spectrum is written: row v, column u has the value of X(u, v). The images must not overlap.
 *  Each channel is a spectrum of its own; of AC4 images the fourth channel of the destination stays. Any size, odd ones
 *  too.
 *
 *  @param pSrc,srcStep packed spectrum
 *  @param pDst,dstStep destination, of the same size
 *  @param roiSize size in pixels
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: a pointer is null
 *  - qvpStatusSize: a side is less than 1
 *  - qvpStatusStep: a step is less than 1
 *  - qvpStatusNoError: the result is written
 */
QvpStatus qvpiPhasePack_32f_C1R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiPhasePack_32f_C3R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiPhasePack_32f_C4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiPhasePack_32f_AC4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize);
/** @} */

/** @name PackToCplxExtend
 *  @{ */
/** Writes a packed spectrum as a whole complex one: row v, column u gets X(u, v).
 *
 *  @param pSrc,srcStep packed spectrum
 *  @param pDst,dstStep complex spectrum; must not overlap the source
 *  @param roiSize size in pixels of both
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: a pointer is null
 *  - qvpStatusSize: a side is less than 1
 *  - qvpStatusStep: a step is less than 1
 *  - qvpStatusNoError: the result is written
 */
QvpStatus qvpiPackToCplxExtend_32f32fc_C1R(const Qvp32f* pSrc, int srcStep, Qvp32fc* pDst, int dstStep, QvpiSize roiSize);
/** @} */

/** @name CplxExtendToPack
 *  @{ */
/** Packs the spectrum of a real image: what the packed spectrum stores is taken from the complex one, the mirrored
 *  half of that is not looked at.
 *
 *  @param pSrc,srcStep complex spectrum, X(u, v) in row v and column u
 *  @param pDst,dstStep packed spectrum; must not overlap the source
 *  @param roiSize size in pixels of both
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: a pointer is null
 *  - qvpStatusSize: a side is less than 1
 *  - qvpStatusStep: a step is less than 1
 *  - qvpStatusNoError: the result is written
 */
QvpStatus qvpiCplxExtendToPack_32fc32f_C1R(const Qvp32fc* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize);
/** @} */

/** @name Cosine transform: sizes and record
 *  @{ */
/** Tells the sizes of what a cosine transform needs: a record, memory for its initialisation, and a work buffer.
 *
 *  Every size has 64 bytes to spare, so memory of any alignment will do.
 *
 *  @param roiSize size of the images
 *  @param flag normalisation: 1, 2, 4 or 8; see qvpiDCTFwd_32f_C1R()
 *  @param hint ignored
 *  @param pSpecSize size of the record in bytes
 *  @param pSpecBufferSize size in bytes of memory that the initialisation needs: 0
 *  @param pBufferSize size in bytes of the work buffer of each call
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: an output pointer is null
 *  - qvpStatusSize: a side of `roiSize` is below 1
 *  - qvpStatusFftFlag: the flag is none of 1, 2, 4 and 8
 *  - qvpStatusSizeOverflow: a size is above 2147483647; it is 0 then
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiDCTGetSize_32f(QvpiSize roiSize, int flag, QvpHintAlgorithm hint, int* pSpecSize, int* pSpecBufferSize, int* pBufferSize);

/** Makes the record of cosine transforms of images of one size. It holds no pointers, any number of threads may use it.
 *
 *  @param roiSize size of the images
 *  @param flag normalisation: 1, 2, 4 or 8
 *  @param hint ignored
 *  @param pSpec the record, of the size that qvpiDCTGetSize_32f() tells
 *  @param pMemInit ignored, may be null
 *  @return, in the order of the checks; a record whose initialisation fails is refused by every transform:
 *  - qvpStatusNullPointer: `pSpec` is null
 *  - qvpStatusSize: a side of `roiSize` is below 1
 *  - qvpStatusFftFlag: the flag is none of 1, 2, 4 and 8
 *  - qvpStatusSizeOverflow: a size is above 2147483647
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiDCTInit_32f(QvpiSize roiSize, int flag, QvpHintAlgorithm hint, QvpiDCTSpec_32f* pSpec, Qvp8u* pMemInit);
/** @} */

/** @name Cosine transform
 *  @{ */
/** Cosine transforms of images, forward (type II) and inverse (type III), of any size: for compression, and for linear
 *  systems whose images reflect at their edges.
 *
 *  Of a line of N numbers, along rows and then down columns, and back in the opposite order:
 *
 *  @code
 *    forward   X(u) = a(u) * sum over n of x(n) * cos(pi * (2 n + 1) * u / (2 N))
 *    inverse   x(n) = b(0) * X(0) + sum over u >= 1 of b(u) * X(u) * cos(pi * (2 n + 1) * u / (2 N))
 *  @endcode
 *
 *  | flag | a(0)      | a(u)      | b(0)      | b(u)      |
 *  |------|-----------|-----------|-----------|-----------|
 *  | 1    | 1/N       | 1/N       | 1         | 2         |
 *  | 2    | 1         | 1         | 1/N       | 2/N       |
 *  | 4    | sqrt(1/N) | sqrt(2/N) | sqrt(1/N) | sqrt(2/N) |
 *  | 8    | 1         | 1         | 1         | 2         |
 *
 *  There and back gives the image, with flag 8 width times height of it; flag 4 keeps sums of squares. Single precision:
 *  the rms error is at most 4 * 2^-24 * log2(2 * width * height) of the rms of the result. Each channel is an image of
 *  its own; one with a NaN or an infinity is not finite anywhere. AC4 keeps the destination's alpha. By Fourier transforms
 *  of the same length (Makhoul 1980); lengths whose prime factors are small are quicker.
 *
 *  Source and destination may be the same image, else they must not overlap.
 *
 *  @param pSrc,srcStep source
 *  @param pDst,dstStep destination
 *  @param pSrcDst,srcDstStep in place: source and destination
 *  @param pSpec record from qvpiDCTInit_32f()
 *  @param pBuffer work buffer of the size that qvpiDCTGetSize_32f() tells
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: `pSpec` is null
 *  - qvpStatusContextMatch: `pSpec` is no such record
 *  - qvpStatusNullPointer: an image is null
 *  - qvpStatusStep: a step is below 1
 *  - qvpStatusNullPointer: `pBuffer` is null
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiDCTFwd_32f_C1R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, const QvpiDCTSpec_32f* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiDCTFwd_32f_C1IR(Qvp32f* pSrcDst, int srcDstStep, const QvpiDCTSpec_32f* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiDCTFwd_32f_C3R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, const QvpiDCTSpec_32f* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiDCTFwd_32f_C3IR(Qvp32f* pSrcDst, int srcDstStep, const QvpiDCTSpec_32f* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiDCTFwd_32f_C4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, const QvpiDCTSpec_32f* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiDCTFwd_32f_C4IR(Qvp32f* pSrcDst, int srcDstStep, const QvpiDCTSpec_32f* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiDCTFwd_32f_AC4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, const QvpiDCTSpec_32f* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiDCTFwd_32f_AC4IR(Qvp32f* pSrcDst, int srcDstStep, const QvpiDCTSpec_32f* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiDCTInv_32f_C1R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, const QvpiDCTSpec_32f* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiDCTInv_32f_C1IR(Qvp32f* pSrcDst, int srcDstStep, const QvpiDCTSpec_32f* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiDCTInv_32f_C3R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, const QvpiDCTSpec_32f* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiDCTInv_32f_C3IR(Qvp32f* pSrcDst, int srcDstStep, const QvpiDCTSpec_32f* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiDCTInv_32f_C4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, const QvpiDCTSpec_32f* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiDCTInv_32f_C4IR(Qvp32f* pSrcDst, int srcDstStep, const QvpiDCTSpec_32f* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiDCTInv_32f_AC4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, const QvpiDCTSpec_32f* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiDCTInv_32f_AC4IR(Qvp32f* pSrcDst, int srcDstStep, const QvpiDCTSpec_32f* pSpec, Qvp8u* pBuffer);
/** @} */

/** @name Cosine transform of blocks
 *  @{ */
/** Transforms an image by blocks of 8 x 8 pixels, as image and video codecs do plane by plane.
 *
 *  Forward, of the pixels x(r, c) of a block; inverse, of its coefficients X(u, v), v down and u across; a(0) is
 *  sqrt(1 / 8), and 1 / 2 for all others:
 *
 *  @code
 *    X(u, v) = a(u) a(v) * sum over r, c of x(r, c) * cos(pi (2 c + 1) u / 16) * cos(pi (2 r + 1) v / 16)
 *    x(r, c) = sum over u, v of a(u) a(v) * X(u, v) * cos(pi (2 c + 1) u / 16) * cos(pi (2 r + 1) v / 16)
 *  @endcode
 *
 *  The blocks lie one after the other in the coefficients' image: row b of it has those of the eight pixel rows from 8
 *  b on, each with its 64 values, v major, so that it is 64 * ceil(W / 8) wide and ceil(H / 8) high for an image of W x
 *  H. Where a side is no multiple of 8, the forward transform repeats the last column and row, and the inverse leaves
 *  out what lies outside.
 *
 *  Bytes x are taken as x - 128. With a quantizer Q, by position in the block, coefficients are X / Q, as X times the
 *  float 1 / Q, and are multiplied by Q before the inverse. Everything is computed in floats in one order, the same
 *  bits for all types; integers are rounded to the nearest, ties to even, and saturated. Of 8-bit pixels five
 *  coefficients in a million differ by 1 from the exact ones, of 13-bit ones two in ten thousand, exact ties aside;
 *  bytes there and back are off by 1 at most. A byte block of 8 r + c has -772 -18 0 -2 0 -1 0 0 in its first row of
 *  coefficients.
 *
 *  Source and destination must not overlap.
 *
 *  @param pSrc,srcStep source: pixels (Fwd) or coefficients (Inv)
 *  @param pDst,dstStep destination: coefficients (Fwd) or pixels (Inv)
 *  @param roiSize size of the image in pixels
 *  @param quantizer 64 steps, v major; not 0 in a forward transform
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: an image or `quantizer` is null
 *  - qvpStatusSize: a side of `roiSize` is below 1
 *  - qvpStatusStep: a step is below 1
 *  - qvpStatusDivideByZeroError: forward, an entry of `quantizer` is 0
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiDCTBlocksFwd_8u16s_C1R(const Qvp8u* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiDCTBlocksFwd_16s_C1R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiDCTBlocksFwd_32f_C1R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiDCTBlocksInv_16s8u_C1R(const Qvp16s* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiDCTBlocksInv_16s_C1R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiDCTBlocksInv_32f_C1R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize);
QvpStatus qvpiDCTBlocksQuantFwd_8u16s_C1R(const Qvp8u* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, const Qvp16u quantizer[64]);
QvpStatus qvpiDCTBlocksQuantFwd_16s_C1R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, const Qvp16u quantizer[64]);
QvpStatus qvpiDCTBlocksQuantInv_16s8u_C1R(const Qvp16s* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, const Qvp16u quantizer[64]);
QvpStatus qvpiDCTBlocksQuantInv_16s_C1R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, const Qvp16u quantizer[64]);
/** @} */

/** @name Wavelet transform: filters, record and size of the buffer
 *  @{ */
/** Gives a bank of wavelet filters by name. Its taps are the library's own and stay where they are.
 *
 *  The lower filters have the gain sqrt(2), so that the lower band of an image is brighter by 2 at each level. Haar's
 *  and Daubechies's transforms are orthogonal: they keep sums of squares. The others are symmetric, and nearly so.
 *
 *  | kind | taps of the lower and the higher analysis | gives the image back |
 *  |------|-------------------------------------------|----------------------|
 *  | qvpWaveletHaar | 2, 2 | even sides, either border |
 *  | qvpWaveletDaubechies4, 6, 8 | 4, 4; 6, 6; 8, 8 | even sides, qvpBorderWrap |
 *  | qvpWaveletCdf53 | 5, 3 | any sides with qvpBorderMirror, even ones with qvpBorderWrap |
 *  | qvpWaveletCdf97 | 9, 7 | any sides with qvpBorderMirror, even ones with qvpBorderWrap |
 *
 *  With several levels the sides of each are meant, which are half of those before, rounded up.
 *
 *  @param wavelet which one
 *  @param pBank the filters, for qvpiWaveletInit_32f()
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: `pBank` is null
 *  - qvpStatusNotSupportedMode: `wavelet` is no such kind
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiWaveletGetBank_32f(QvpiWaveletKind wavelet, QvpiWaveletBank* pBank);

/** Tells the size of the record for a bank of filters: with 64 bytes to spare, so memory of any alignment will do.
 *
 *  @param pBank the filters
 *  @param pSpecSize size of the record in bytes
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: a pointer is null, or that to a filter's taps
 *  - qvpStatusMaskSize: a filter's length is not within 1 to 64
 *  - qvpStatusAnchor: a filter's anchor is not within 0 to length - 1
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiWaveletGetSize_32f(const QvpiWaveletBank* pBank, int* pSpecSize);

/** Makes the record of wavelet transforms, for images of any size. It holds copies of the taps and no pointers, any
 *  number of threads may use it.
 *
 *  @param pBank the filters: from qvpiWaveletGetBank_32f(), or others
 *  @param borderType qvpBorderMirror or qvpBorderWrap, without flags
 *  @param pSpec the record, of the size that qvpiWaveletGetSize_32f() tells
 *  @return, in the order of the checks; a record whose initialisation fails is refused by every transform:
 *  - qvpStatusNullPointer: a pointer is null, or that to a filter's taps
 *  - qvpStatusMaskSize: a filter's length is not within 1 to 64
 *  - qvpStatusAnchor: a filter's anchor is not within 0 to length - 1
 *  - qvpStatusBorder: the border type is neither of the two
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiWaveletInit_32f(const QvpiWaveletBank* pBank, QvpiBorderType borderType, QvpiWaveletSpec_32f* pSpec);

/** Tells the size of the work buffer of a wavelet transform: of images up to this size, with any number of levels. It
 *  is at most 300 * ((width + 128) * numChannels + height + 128) bytes, and has 64 bytes to spare, so memory of any
 *  alignment will do.
 *
 *  @param pSpec record from qvpiWaveletInit_32f()
 *  @param roiSize size of the images
 *  @param numChannels 1, 3 or 4
 *  @param pBufferSize size of the buffer in bytes
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: a pointer is null
 *  - qvpStatusSize: a side of `roiSize` is below 1
 *  - qvpStatusNumChannels: `numChannels` is none of 1, 3 and 4
 *  - qvpStatusContextMatch: `pSpec` is no such record
 *  - qvpStatusSizeOverflow: the size is above 2147483647; it is 0 then
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiWaveletGetBufferSize_32f(const QvpiWaveletSpec_32f* pSpec, QvpiSize roiSize, int numChannels, int* pBufferSize);
/** @} */

/** @name Wavelet transform
 *  @{ */
/** Wavelet transforms of images, forward and inverse: for denoising, compression, and detail by its scale.
 *
 *  A line of N numbers x becomes ceil(N / 2) numbers of a lower band and floor(N / 2) of a higher one, and these the
 *  line again. With the filters' taps h (analysis) and g (synthesis) and anchors a:
 *
 *  @code
 *    low(k)  = sum over j of hLow[j] * x(2 k + j - aLow)
 *    high(k) = sum over j of hHigh[j] * x(2 k + 1 + j - aHigh)
 *
 *    z(2 k) = low(k), z(2 k + 1) = high(k)
 *    x(n) = (sum over even p of gLow[n - p + aLow] * z(p)) + (sum over odd p of gHigh[n - p + aHigh] * z(p))
 *  @endcode
 *
 *  Sums are over the taps that there are, j and p ascending, in single precision; a sum of nothing is 0. Beyond its
 *  ends a line goes on by the record's border, and z as well. A line of one number is its lower band.
 *
 *  Rows, then columns: the result is one image of the same size, with the lower bands left and above, the higher ones
 *  right and below. Each further level transforms the corner with both lower bands again, of ceil(width / 2) x
 *  ceil(height / 2). The inverse transform goes the same way back. So each band is a region of the image, and a
 *  transform of n levels equals, to the bit, one of a single level and then one of n - 1 in place on the corner.
 *
 *  1 2 3 4 5 6 7 8 becomes, by qvpWaveletHaar, 2.12 4.95 7.78 10.61 and -0.71 four times. With the banks by name, there
 *  and back gives the image where qvpiWaveletGetBank_32f() says so, within 16 * 2^-24 of its largest magnitude for each
 *  level.
 *
 *  Each channel is an image of its own. Source and destination may be the same image, else they must not overlap.
 *
 *  @param pSrc,srcStep source
 *  @param pDst,dstStep destination
 *  @param pSrcDst,srcDstStep in place: source and destination
 *  @param roiSize size of the images
 *  @param levels how many, 1 to 30; a corner of one pixel stays as it is
 *  @param pSpec record from qvpiWaveletInit_32f()
 *  @param pBuffer work buffer of the size that qvpiWaveletGetBufferSize_32f() tells
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: a pointer is null
 *  - qvpStatusSize: a side of `roiSize` is below 1
 *  - qvpStatusStep: a step is below 1
 *  - qvpStatusBadArgument: `levels` is not within 1 to 30
 *  - qvpStatusContextMatch: `pSpec` is no such record
 *  - qvpStatusSize: the border is qvpBorderWrap, and a side neither 1 nor a multiple of 2^levels
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiWaveletFwd_32f_C1R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, int levels, const QvpiWaveletSpec_32f* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWaveletFwd_32f_C1IR(Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize, int levels, const QvpiWaveletSpec_32f* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWaveletFwd_32f_C3R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, int levels, const QvpiWaveletSpec_32f* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWaveletFwd_32f_C3IR(Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize, int levels, const QvpiWaveletSpec_32f* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWaveletFwd_32f_C4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, int levels, const QvpiWaveletSpec_32f* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWaveletInv_32f_C1R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, int levels, const QvpiWaveletSpec_32f* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWaveletInv_32f_C1IR(Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize, int levels, const QvpiWaveletSpec_32f* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWaveletInv_32f_C3R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, int levels, const QvpiWaveletSpec_32f* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWaveletInv_32f_C3IR(Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize, int levels, const QvpiWaveletSpec_32f* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWaveletInv_32f_C4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, int levels, const QvpiWaveletSpec_32f* pSpec, Qvp8u* pBuffer);
/** @} */

/** @name Convolution: size of the buffer
 *  @{ */
/** Tells the size of the work buffer of the convolution of two images, for any of its shapes.
 *
 *  The size has 63 bytes to spare, so memory of any alignment will do. It is exactly what calls with the same sizes,
 *  type, channels and method may use.
 *
 *  @param src1Size size of the first image
 *  @param src2Size size of the second image
 *  @param dataType qvp8u, qvp16s or qvp32f
 *  @param numChannels 1, 3 or 4
 *  @param method as the convolution is given
 *  @param pBufferSize size of the work buffer in bytes
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: `pBufferSize` is null
 *  - qvpStatusSize: a side is below 1
 *  - qvpStatusDataType: `dataType` is none of the above
 *  - qvpStatusNumChannels: `numChannels` is none of the above
 *  - qvpStatusAlgType: `method` is none of the QvpiMethod ones
 *  - qvpStatusSizeOverflow: the buffer, or a side of the full convolution, would be above 2147483647; the size is 0 then
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiConvolveGetBufferSize(QvpiSize src1Size, QvpiSize src2Size, QvpDataType dataType, int numChannels, QvpiMethod method, int* pBufferSize);
/** @} */

/** @name Convolution
 *  @{ */
/** Convolves two images: the second one, a measured kernel, an aperture, a pattern, spreads every pixel of the first.
 *
 *  With a and b the images, W1 x H1 and W2 x H2, and zeros around both,
 *
 *  @code
 *    full(x, y) = sum over j < H2, i < W2 of a(x - i, y - j) * b(i, j)
 *  @endcode
 *
 *  of which the destination has
 *
 *  | function          | pixels                    | from (x, y) on                               |
 *  |-------------------|---------------------------|----------------------------------------------|
 *  | qvpiConvolveFull  | W1 + W2 - 1 x H1 + H2 - 1 | (0, 0): all that is not zero                 |
 *  | qvpiConvolveSame  | W1 x H1                   | ((W2 - 1) / 2, (H2 - 1) / 2), whole division |
 *  | qvpiConvolveValid | W1 - W2 + 1 x H1 - H2 + 1 | (W2 - 1, H2 - 1): where b lies within a      |
 *
 *  Each channel is convolved with the same channel of the other image. Rows 1 2 3 and 4 5 6 with 1 2 and 3 4 become
 *  1 4 7 6, 7 23 33 24 and 12 31 38 24, of which "same" has 1 4 7 and 7 23 33, "valid" 23 33.
 *
 *  Integers: the exact sum is divided by `divisor`, of either sign, rounded to the nearest, ties to even, and saturated.
 *  Every method gives the same bits. By 2, the rows above become 0 2 4 3, 4 12 16 12 and 6 16 19 12.
 *
 *  Floats, qvpMethodDirect: products are added to +0 one by one, in single precision without fused operations, j and
 *  within it i ascending. qvpMethodFourier: tiles of the image of more pixels are multiplied by the other image as
 *  spectra in single precision. With |a| the root of the sum of the squares of the pixels of a tile, |b| that of all of
 *  the other image, the root mean square of the errors is at most 2^-23 |a| |b|, the largest 10 * 2^-24 |a| |b|. A NaN
 *  or an infinity spoils all results of its tile; by the sum, those that it goes into. Whether one in b meets the zeros
 *  around a is not promised.
 *
 *  qvpMethodAuto takes Fourier transforms if the image of fewer pixels has more than 120 (32f) or 200 (8u, 16s) of
 *  them, and sums otherwise; the same on all machines.
 *
 *  The destination must not overlap with a source; the sources may be one image.
 *
 *  @param pSrc1,src1Step,src1Size first image, its size in pixels
 *  @param pSrc2,src2Step,src2Size second image, its size in pixels
 *  @param pDst,dstStep destination, of the size above
 *  @param divisor of integers: any but 0
 *  @param method qvpMethodAuto, qvpMethodDirect or qvpMethodFourier
 *  @param pBuffer work buffer of the size that qvpiConvolveGetBufferSize() tells for the same images and method
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: an image or `pBuffer` is null
 *  - qvpStatusSize: a side is below 1; a side of the full convolution is above 2147483647; qvpiConvolveValid: a side of
 *    the second image is above the first one's
 *  - qvpStatusStep: a step is below 1
 *  - qvpStatusDivisor: `divisor` is 0
 *  - qvpStatusAlgType: `method` is none of the above
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiConvolveFull_8u_C1R(const Qvp8u* pSrc1, int src1Step, QvpiSize src1Size, const Qvp8u* pSrc2, int src2Step, QvpiSize src2Size, Qvp8u* pDst, int dstStep, int divisor, QvpiMethod method, Qvp8u* pBuffer);
QvpStatus qvpiConvolveFull_8u_C3R(const Qvp8u* pSrc1, int src1Step, QvpiSize src1Size, const Qvp8u* pSrc2, int src2Step, QvpiSize src2Size, Qvp8u* pDst, int dstStep, int divisor, QvpiMethod method, Qvp8u* pBuffer);
QvpStatus qvpiConvolveFull_8u_C4R(const Qvp8u* pSrc1, int src1Step, QvpiSize src1Size, const Qvp8u* pSrc2, int src2Step, QvpiSize src2Size, Qvp8u* pDst, int dstStep, int divisor, QvpiMethod method, Qvp8u* pBuffer);
QvpStatus qvpiConvolveFull_16s_C1R(const Qvp16s* pSrc1, int src1Step, QvpiSize src1Size, const Qvp16s* pSrc2, int src2Step, QvpiSize src2Size, Qvp16s* pDst, int dstStep, int divisor, QvpiMethod method, Qvp8u* pBuffer);
QvpStatus qvpiConvolveFull_16s_C3R(const Qvp16s* pSrc1, int src1Step, QvpiSize src1Size, const Qvp16s* pSrc2, int src2Step, QvpiSize src2Size, Qvp16s* pDst, int dstStep, int divisor, QvpiMethod method, Qvp8u* pBuffer);
QvpStatus qvpiConvolveFull_16s_C4R(const Qvp16s* pSrc1, int src1Step, QvpiSize src1Size, const Qvp16s* pSrc2, int src2Step, QvpiSize src2Size, Qvp16s* pDst, int dstStep, int divisor, QvpiMethod method, Qvp8u* pBuffer);
QvpStatus qvpiConvolveFull_32f_C1R(const Qvp32f* pSrc1, int src1Step, QvpiSize src1Size, const Qvp32f* pSrc2, int src2Step, QvpiSize src2Size, Qvp32f* pDst, int dstStep, QvpiMethod method, Qvp8u* pBuffer);
QvpStatus qvpiConvolveFull_32f_C3R(const Qvp32f* pSrc1, int src1Step, QvpiSize src1Size, const Qvp32f* pSrc2, int src2Step, QvpiSize src2Size, Qvp32f* pDst, int dstStep, QvpiMethod method, Qvp8u* pBuffer);
QvpStatus qvpiConvolveFull_32f_C4R(const Qvp32f* pSrc1, int src1Step, QvpiSize src1Size, const Qvp32f* pSrc2, int src2Step, QvpiSize src2Size, Qvp32f* pDst, int dstStep, QvpiMethod method, Qvp8u* pBuffer);
QvpStatus qvpiConvolveSame_8u_C1R(const Qvp8u* pSrc1, int src1Step, QvpiSize src1Size, const Qvp8u* pSrc2, int src2Step, QvpiSize src2Size, Qvp8u* pDst, int dstStep, int divisor, QvpiMethod method, Qvp8u* pBuffer);
QvpStatus qvpiConvolveSame_8u_C3R(const Qvp8u* pSrc1, int src1Step, QvpiSize src1Size, const Qvp8u* pSrc2, int src2Step, QvpiSize src2Size, Qvp8u* pDst, int dstStep, int divisor, QvpiMethod method, Qvp8u* pBuffer);
QvpStatus qvpiConvolveSame_8u_C4R(const Qvp8u* pSrc1, int src1Step, QvpiSize src1Size, const Qvp8u* pSrc2, int src2Step, QvpiSize src2Size, Qvp8u* pDst, int dstStep, int divisor, QvpiMethod method, Qvp8u* pBuffer);
QvpStatus qvpiConvolveSame_16s_C1R(const Qvp16s* pSrc1, int src1Step, QvpiSize src1Size, const Qvp16s* pSrc2, int src2Step, QvpiSize src2Size, Qvp16s* pDst, int dstStep, int divisor, QvpiMethod method, Qvp8u* pBuffer);
QvpStatus qvpiConvolveSame_16s_C3R(const Qvp16s* pSrc1, int src1Step, QvpiSize src1Size, const Qvp16s* pSrc2, int src2Step, QvpiSize src2Size, Qvp16s* pDst, int dstStep, int divisor, QvpiMethod method, Qvp8u* pBuffer);
QvpStatus qvpiConvolveSame_16s_C4R(const Qvp16s* pSrc1, int src1Step, QvpiSize src1Size, const Qvp16s* pSrc2, int src2Step, QvpiSize src2Size, Qvp16s* pDst, int dstStep, int divisor, QvpiMethod method, Qvp8u* pBuffer);
QvpStatus qvpiConvolveSame_32f_C1R(const Qvp32f* pSrc1, int src1Step, QvpiSize src1Size, const Qvp32f* pSrc2, int src2Step, QvpiSize src2Size, Qvp32f* pDst, int dstStep, QvpiMethod method, Qvp8u* pBuffer);
QvpStatus qvpiConvolveSame_32f_C3R(const Qvp32f* pSrc1, int src1Step, QvpiSize src1Size, const Qvp32f* pSrc2, int src2Step, QvpiSize src2Size, Qvp32f* pDst, int dstStep, QvpiMethod method, Qvp8u* pBuffer);
QvpStatus qvpiConvolveSame_32f_C4R(const Qvp32f* pSrc1, int src1Step, QvpiSize src1Size, const Qvp32f* pSrc2, int src2Step, QvpiSize src2Size, Qvp32f* pDst, int dstStep, QvpiMethod method, Qvp8u* pBuffer);
QvpStatus qvpiConvolveValid_8u_C1R(const Qvp8u* pSrc1, int src1Step, QvpiSize src1Size, const Qvp8u* pSrc2, int src2Step, QvpiSize src2Size, Qvp8u* pDst, int dstStep, int divisor, QvpiMethod method, Qvp8u* pBuffer);
QvpStatus qvpiConvolveValid_8u_C3R(const Qvp8u* pSrc1, int src1Step, QvpiSize src1Size, const Qvp8u* pSrc2, int src2Step, QvpiSize src2Size, Qvp8u* pDst, int dstStep, int divisor, QvpiMethod method, Qvp8u* pBuffer);
QvpStatus qvpiConvolveValid_8u_C4R(const Qvp8u* pSrc1, int src1Step, QvpiSize src1Size, const Qvp8u* pSrc2, int src2Step, QvpiSize src2Size, Qvp8u* pDst, int dstStep, int divisor, QvpiMethod method, Qvp8u* pBuffer);
QvpStatus qvpiConvolveValid_16s_C1R(const Qvp16s* pSrc1, int src1Step, QvpiSize src1Size, const Qvp16s* pSrc2, int src2Step, QvpiSize src2Size, Qvp16s* pDst, int dstStep, int divisor, QvpiMethod method, Qvp8u* pBuffer);
QvpStatus qvpiConvolveValid_16s_C3R(const Qvp16s* pSrc1, int src1Step, QvpiSize src1Size, const Qvp16s* pSrc2, int src2Step, QvpiSize src2Size, Qvp16s* pDst, int dstStep, int divisor, QvpiMethod method, Qvp8u* pBuffer);
QvpStatus qvpiConvolveValid_16s_C4R(const Qvp16s* pSrc1, int src1Step, QvpiSize src1Size, const Qvp16s* pSrc2, int src2Step, QvpiSize src2Size, Qvp16s* pDst, int dstStep, int divisor, QvpiMethod method, Qvp8u* pBuffer);
QvpStatus qvpiConvolveValid_32f_C1R(const Qvp32f* pSrc1, int src1Step, QvpiSize src1Size, const Qvp32f* pSrc2, int src2Step, QvpiSize src2Size, Qvp32f* pDst, int dstStep, QvpiMethod method, Qvp8u* pBuffer);
QvpStatus qvpiConvolveValid_32f_C3R(const Qvp32f* pSrc1, int src1Step, QvpiSize src1Size, const Qvp32f* pSrc2, int src2Step, QvpiSize src2Size, Qvp32f* pDst, int dstStep, QvpiMethod method, Qvp8u* pBuffer);
QvpStatus qvpiConvolveValid_32f_C4R(const Qvp32f* pSrc1, int src1Step, QvpiSize src1Size, const Qvp32f* pSrc2, int src2Step, QvpiSize src2Size, Qvp32f* pDst, int dstStep, QvpiMethod method, Qvp8u* pBuffer);
/** @} */

/** @name Deconvolution: sizes and record
 *  @{ */
/** Tells the sizes of the record and of the buffers of a deconvolution, and makes the record for a known blur.
 *
 *  The blur is told by a point-spread image: what it makes of a single bright pixel, whose place is column
 *  (psfSize.width - 1) / 2 and row (psfSize.height - 1) / 2, whole division. It is of one channel, serves all channels
 *  of an image, and is taken as it is: if its sum is not 1, the blur also changes the brightness. The record has a
 *  spectrum of it; calls only read the record, so that any number of threads may share it.
 *
 *  What lies beyond the edges of the image is told by `borderType`, and goes on until the image can be taken as a torus,
 *  whose columns and rows begin anew after the last. Its sides are the image's with qvpBorderWrap, else the smallest
 *  even numbers without other prime factors than 2, 3 and 5 from roiSize + psfSize - 1 on; behind the last column, half
 *  of the further ones continue the image to the right, the others lead up to the first one. Rows likewise.
 *
 *  The sizes have 63 bytes to spare, so memory of any alignment will do.
 *
 *  @param roiSize size of the images
 *  @param pPsf,psfStep,psfSize point-spread image, not larger than `roiSize`
 *  @param borderType qvpBorderReplicate, qvpBorderMirror, qvpBorderConst (zeros) or qvpBorderWrap, without flags
 *  @param pSpecSize size of the record in bytes
 *  @param pInitBufSize size of the buffer of Init in bytes
 *  @param pBufferSize size of the work buffer of calls in bytes: three planes of the torus and what its Fourier transform
 *    takes
 *  @param pSpec record
 *  @param pInitBuf buffer of Init, free afterwards
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: a pointer is null
 *  - qvpStatusSize: a side is below 1; a side of the point-spread image is above the image's
 *  - qvpStatusStep: `psfStep` is below 1
 *  - qvpStatusBorder: `borderType` is none of the above
 *  - qvpStatusBadArgument: a pixel of the point-spread image is not finite
 *  - qvpStatusSizeOverflow: a size would be above 2147483647; the sizes are 0 then
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiDeconvolveGetSize_32f(QvpiSize roiSize, QvpiSize psfSize, QvpiBorderType borderType, int* pSpecSize, int* pInitBufSize, int* pBufferSize);
QvpStatus qvpiDeconvolveInit_32f(QvpiSize roiSize, const Qvp32f* pPsf, int psfStep, QvpiSize psfSize, QvpiBorderType borderType, QvpiDeconvolveSpec_32f* pSpec, Qvp8u* pInitBuf);
/** @} */

/** @name Deconvolution
 *  @{ */
/** Restores an image from a known blur: of a lens out of focus, of a motion, of an aperture.
 *
 *  With y the image on its torus (qvpiDeconvolveInit_32f()), Y its Fourier transform, K that of the point-spread image,
 *  S the sum of the latter,
 *
 *  **qvpiDeconvolveInverse** divides by the blur where it has left something, all at once:
 *
 *  @code
 *    X = conj(K) * Y / D,   D = |K|^2 + noise + smoothness * L^2,   0 where D is 0
 *    L(u, v) = (2 - 2 cos(2 pi u / width)) + (2 - 2 cos(2 pi v / height))   of the torus
 *  @endcode
 *
 *  `noise` is the power of the noise over that of the picture (Wiener), 0.0001 to 0.1; `smoothness` weighs fine detail
 *  more than coarse (Hunt 1973). The less of both, the sharper the result, and the noisier. A NaN or an infinity spoils
 *  the whole channel. The root mean square of the errors is at most 4 * 2^-24 times that of y times the largest
 *  (|K| + |h|) / D, where |h| is the root of the sum of the squared pixels of the point-spread image.
 *
 *  **qvpiDeconvolveIterative** looks for the picture without negative pixels whose blur is most likely to have given the
 *  image, in so many steps (Richardson 1972, Lucy 1974): slower, with fewer rings at edges. From a constant on,
 *
 *  @code
 *    e <- max(e * correlation of h with q / S, 0),   q = y / (h convolved with e), 0 where the divisor is not above threshold
 *  @endcode
 *
 *  Pixels of the image that are not above 0, NaN too, count as 0. 10 to 50 iterations are usual; more bring out noise.
 *  For pictures within 0 to 1, `threshold` may be 0.000001. After 20 iterations of such pictures the root mean square of
 *  the errors is at most 32 * 2^-24.
 *
 *  The row 0 4 0 0 with 1/4 1/2 1/4 and qvpBorderWrap becomes 1 2 1 0 by one iteration, 2/3 8/3 2/3 0 by two,
 *  0.8 2.8 0.8 -1.2 by a noise of 1/4, and 1 1.8 1 0.2 by a smoothness of 1/4.
 *
 *  Takes two Fourier transforms of the torus in single precision, the iteration 4 * iterations - 2. Each channel is an
 *  image of its own. Source and destination must not overlap.
 *
 *  @param pSrc,srcStep source, of the size that the record was made for
 *  @param pDst,dstStep destination, of the same size
 *  @param noise,smoothness at least 0, and not both 0
 *  @param iterations at least 1
 *  @param threshold at least 0
 *  @param pSpec record from qvpiDeconvolveInit_32f()
 *  @param pBuffer work buffer of the size that qvpiDeconvolveGetSize_32f() tells
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: a pointer is null
 *  - qvpStatusStep: a step is below 1
 *  - qvpStatusBadArgument: `noise` or `smoothness` is negative or not finite, or both are 0; `iterations` is below 1 or
 *    `threshold` not at least 0
 *  - qvpStatusContextMatch: `pSpec` is no such record
 *  - qvpStatusBadArgument: qvpiDeconvolveIterative: the sum of the point-spread image is not above 0
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiDeconvolveInverse_32f_C1R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, Qvp32f noise, Qvp32f smoothness, const QvpiDeconvolveSpec_32f* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiDeconvolveInverse_32f_C3R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, Qvp32f noise, Qvp32f smoothness, const QvpiDeconvolveSpec_32f* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiDeconvolveInverse_32f_C4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, Qvp32f noise, Qvp32f smoothness, const QvpiDeconvolveSpec_32f* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiDeconvolveIterative_32f_C1R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, int iterations, Qvp32f threshold, const QvpiDeconvolveSpec_32f* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiDeconvolveIterative_32f_C3R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, int iterations, Qvp32f threshold, const QvpiDeconvolveSpec_32f* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiDeconvolveIterative_32f_C4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, int iterations, Qvp32f threshold, const QvpiDeconvolveSpec_32f* pSpec, Qvp8u* pBuffer);
/** @} */

/** @name Window functions
 *  @{ */
/** Multiplies an image by a window, which fades it towards its edges: so that spectra do not show the jump from one
 *  edge to the opposite one, and phase correlation does not find it.
 *
 *  The weight of pixel (x, y) is w(y) * w(x), with, for place n of N, M = N - 1, or M = N with qvpWindowPeriodic:
 *
 *  @code
 *    qvpWindowBartlett   2 n / M up to the middle, then 2 - 2 n / M
 *    qvpWindowHann       0.5 - 0.5 cos(2 pi n / M)
 *    qvpWindowHamming    0.54 - 0.46 cos(2 pi n / M)
 *    qvpWindowBlackman   0.42 - 0.5 cos(2 pi n / M) + 0.08 cos(4 pi n / M), at least 0
 *  @endcode
 *
 *  A side of one pixel has the weight 1. Windows are symmetric; with the flag they lack the last place, as a transform
 *  wants it whose image repeats. Weights are made in double precision and rounded to floats, within a float's unit in
 *  the last place of the formula; their product and its product with the pixel are rounded to floats, integers to the
 *  nearest, ties to even. 255 255 255 255 255 in one row becomes 0 128 255 128 0 by Hann's.
 *
 *  Each channel is weighed alike. Source and destination may be the same image, else they must not overlap.
 *
 *  @param pSrc,srcStep source
 *  @param pDst,dstStep destination
 *  @param pSrcDst,srcDstStep in place: source and destination
 *  @param roiSize size of the image, and of the window
 *  @param window one of the above, alone or with the flag qvpWindowPeriodic
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: an image is null
 *  - qvpStatusSize: a side of `roiSize` is below 1
 *  - qvpStatusStep: a step is below 1
 *  - qvpStatusNotSupportedMode: `window` is none of the above
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiApplyWindow_8u_C1R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpiWindow window);
QvpStatus qvpiApplyWindow_8u_C1IR(Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, QvpiWindow window);
QvpStatus qvpiApplyWindow_8u_C3R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpiWindow window);
QvpStatus qvpiApplyWindow_8u_C3IR(Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, QvpiWindow window);
QvpStatus qvpiApplyWindow_8u_C4R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpiWindow window);
QvpStatus qvpiApplyWindow_8u_C4IR(Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, QvpiWindow window);
QvpStatus qvpiApplyWindow_16u_C1R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpiWindow window);
QvpStatus qvpiApplyWindow_16u_C1IR(Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, QvpiWindow window);
QvpStatus qvpiApplyWindow_16u_C3R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpiWindow window);
QvpStatus qvpiApplyWindow_16u_C3IR(Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, QvpiWindow window);
QvpStatus qvpiApplyWindow_16u_C4R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpiWindow window);
QvpStatus qvpiApplyWindow_16u_C4IR(Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, QvpiWindow window);
QvpStatus qvpiApplyWindow_16s_C1R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpiWindow window);
QvpStatus qvpiApplyWindow_16s_C1IR(Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize, QvpiWindow window);
QvpStatus qvpiApplyWindow_16s_C3R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpiWindow window);
QvpStatus qvpiApplyWindow_16s_C3IR(Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize, QvpiWindow window);
QvpStatus qvpiApplyWindow_16s_C4R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpiWindow window);
QvpStatus qvpiApplyWindow_16s_C4IR(Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize, QvpiWindow window);
QvpStatus qvpiApplyWindow_32f_C1R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiWindow window);
QvpStatus qvpiApplyWindow_32f_C1IR(Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize, QvpiWindow window);
QvpStatus qvpiApplyWindow_32f_C3R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiWindow window);
QvpStatus qvpiApplyWindow_32f_C3IR(Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize, QvpiWindow window);
QvpStatus qvpiApplyWindow_32f_C4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiWindow window);
QvpStatus qvpiApplyWindow_32f_C4IR(Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize, QvpiWindow window);

/** Writes the weights of a window, w(y) * w(x), as qvpiApplyWindow() multiplies by them.
 *
 *  @param pDst,dstStep destination
 *  @param roiSize size of the window
 *  @param window as for qvpiApplyWindow()
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: `pDst` is null
 *  - qvpStatusSize: a side of `roiSize` is below 1
 *  - qvpStatusStep: `dstStep` is below 1
 *  - qvpStatusNotSupportedMode: `window` is none of the above
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiSetWindow_32f_C1R(Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiWindow window);
/** @} */

#ifdef __cplusplus
}
#endif

#endif
