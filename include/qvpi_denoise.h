/** @file qvpi_denoise.h
 *  Filters that remove noise and keep edges, and thresholds by what is around each pixel.
 *
 *  The conventions of every function are told in qvpi_core.h.
 */
#ifndef QVPI_DENOISE_H
#define QVPI_DENOISE_H

#include "qvptypes.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @name Median: work buffer
 *  @{ */
/** Tells the size of the work buffer of median filters.
 *
 *  The buffer serves every smaller mask and region too, at any border. It may begin anywhere.
 *
 *  @param maskSize sides of the mask in pixels: odd, 1 to 255
 *  @param roiSize size of the region in pixels
 *  @param dataType type of the images: qvp8u, qvp16u, qvp16s or qvp32f
 *  @param numChannels channels of a pixel: 1, 3 or 4; 4 for AC4
 *  @param pBufferSize size in bytes; 0 if it cannot be represented
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: `pBufferSize` is null
 *  - qvpStatusSize: a side of `roiSize` is below 1
 *  - qvpStatusMaskSize, qvpStatusDataType, qvpStatusNumChannels: `maskSize`, `dataType`, `numChannels` is none of the
 *    above
 *  - qvpStatusSizeOverflow: the size is above 2147483647
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiFilterMedianBorderGetBufferSize(QvpiSize maskSize, QvpiSize roiSize, QvpDataType dataType, int numChannels, int* pBufferSize);
/** @} */

/** @name Median
 *  @{ */
/** Takes the median of a rectangle around each pixel, channel by channel: the value in the middle of all values of
 *  the mask, sorted. It removes impulse noise and dead pixels and keeps edges; a mask larger than the letters leaves
 *  the background of a scan.
 *
 *  Of a mask of w x h pixels, which is centred on the result's, it is the value (w * h - 1) / 2, counted from 0. One
 *  pixel of 200 among 10 becomes 10; so does a line as wide as a pixel, with 3x3.
 *
 *  Pixels are moved, never computed. Floats have a total order here, by which NaN have places, too: NaN with a sign
 *  .. -inf .. -0, +0 .. +inf .. NaN without; among NaN, those farther from zero in their bits stand farther out.
 *
 *  Squares up to 15x15 are sorted by networks (Adams, Fast median filters using separable sorting networks, 2021).
 *  Other masks are counted: 8u takes the same time for all of them (Perreault and Hebert, Median filtering in constant
 *  time, 2007), the other types one that grows with the mask's height (Huang, 1979); 32f is sorted first and counted by
 *  ranks.
 *
 *  Pixels outside of the region are what the border type says: memory on the sides whose flag is set, as far as the
 *  mask reaches; the kind is applied outside of the region so enlarged. Tiles that are joined by these flags give the
 *  bits of the whole image. The destination must not overlap with what is read. AC4 keeps alpha.
 *
 *  @param pSrc,srcStep source, at the first pixel of the region
 *  @param pDst,dstStep destination
 *  @param roiSize size of the region in pixels
 *  @param maskSize sides of the mask in pixels: odd, 1 to 255; the mask may be larger than the region
 *  @param borderType qvpBorderReplicate or qvpBorderConst, with flags of sides in memory, or qvpBorderInMem
 *  @param borderValue one value for each channel, three for AC4; read for qvpBorderConst only
 *  @param pBuffer work buffer of the size that qvpiFilterMedianBorderGetBufferSize() tells for this or a larger
 *         mask and region
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: `pSrc`, `pDst` or `pBuffer` is null, or `borderValue` for qvpBorderConst
 *  - qvpStatusSize: a side of `roiSize` is below 1
 *  - qvpStatusStep: a step is shorter than its row of the region
 *  - qvpStatusMaskSize: `maskSize` is none of the above
 *  - qvpStatusBorder: `borderType` is none of the above
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiFilterMedianBorder_8u_C1R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp8u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterMedianBorder_8u_C3R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp8u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterMedianBorder_8u_C4R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp8u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterMedianBorder_8u_AC4R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp8u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterMedianBorder_16u_C1R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp16u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterMedianBorder_16u_C3R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp16u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterMedianBorder_16u_C4R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp16u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterMedianBorder_16u_AC4R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp16u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterMedianBorder_16s_C1R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp16s* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterMedianBorder_16s_C3R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp16s* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterMedianBorder_16s_C4R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp16s* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterMedianBorder_16s_AC4R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp16s* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterMedianBorder_32f_C1R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp32f* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterMedianBorder_32f_C3R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp32f* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterMedianBorder_32f_C4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp32f* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterMedianBorder_32f_AC4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiBorderType borderType, const Qvp32f* borderValue, Qvp8u* pBuffer);
/** @} */

/** @name Weighted median: work buffer
 *  @{ */
/** Tells the size of the work buffer of weighted median filters.
 *
 *  The buffer serves every smaller mask and region too, at any border. It may begin anywhere.
 *
 *  @param maskSize sides of the mask in pixels: odd, 1 to 255
 *  @param roiSize size of the region in pixels
 *  @param dataType type of the images: qvp8u, qvp16u, qvp16s or qvp32f
 *  @param numChannels channels of a pixel: 1, 3 or 4; 4 for AC4
 *  @param pBufferSize size in bytes; 0 if it cannot be represented
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: `pBufferSize` is null
 *  - qvpStatusSize: a side of `roiSize` is below 1
 *  - qvpStatusMaskSize, qvpStatusDataType, qvpStatusNumChannels: `maskSize`, `dataType`, `numChannels` is none of the
 *    above
 *  - qvpStatusSizeOverflow: the size is above 2147483647
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiFilterMedianCenterBorderGetBufferSize(QvpiSize maskSize, QvpiSize roiSize, QvpDataType dataType, int numChannels, int* pBufferSize);
/** @} */

/** @name Weighted median
 *  @{ */
/** Takes the median of a rectangle around each pixel, in which the pixel itself counts several times, channel by
 *  channel: noise goes, but thin lines and corners stay (Ko and Lee, Center weighted median filters, 1991).
 *
 *  The mask's n = w * h values and weight - 1 more of the centre are sorted; of all n - 1 + weight the result is the
 *  middle one, or the lower of both in the middle. With m = (n + weight) / 2, rounded down, and X(i) the value i of
 *  the n, sorted and counted from 1, that is
 *
 *  @code
 *    dst = max(X(m - weight + 1), min(src, X(m)))
 *  @endcode
 *
 *  where a bound whose place is none from 1 to n is left out. A weight of 1 gives the median; from n on the source is
 *  returned. With 3x3, one pixel of 200 among 10 becomes 10 for weights 1 to 8, and stays from 9 on; a column of 200
 *  among 10 becomes 10 for weights 1 to 4, and stays from 5 on.
 *
 *  Pixels are moved, never computed. Floats have a total order here, by which NaN have places, too: NaN with a sign
 *  .. -inf .. -0, +0 .. +inf .. NaN without; among NaN, those farther from zero in their bits stand farther out.
 *
 *  Pixels outside of the region are what the border type says: memory on the sides whose flag is set, as far as the
 *  mask reaches; the kind is applied outside of the region so enlarged. Tiles that are joined by these flags give the
 *  bits of the whole image. The destination must not overlap with what is read. AC4 keeps alpha.
 *
 *  @param pSrc,srcStep source, at the first pixel of the region
 *  @param pDst,dstStep destination
 *  @param roiSize size of the region in pixels
 *  @param maskSize sides of the mask in pixels: odd, 1 to 255; the mask may be larger than the region
 *  @param weight how often the centre counts: 1 or more
 *  @param borderType qvpBorderReplicate or qvpBorderConst, with flags of sides in memory, or qvpBorderInMem
 *  @param borderValue one value for each channel, three for AC4; read for qvpBorderConst only
 *  @param pBuffer work buffer of the size that qvpiFilterMedianCenterBorderGetBufferSize() tells for this or a larger
 *         mask and region
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: `pSrc`, `pDst` or `pBuffer` is null, or `borderValue` for qvpBorderConst
 *  - qvpStatusSize: a side of `roiSize` is below 1
 *  - qvpStatusStep: a step is shorter than its row of the region
 *  - qvpStatusMaskSize: `maskSize` is none of the above
 *  - qvpStatusWeight: `weight` is below 1
 *  - qvpStatusBorder: `borderType` is none of the above
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiFilterMedianCenterBorder_8u_C1R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, int weight, QvpiBorderType borderType, const Qvp8u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterMedianCenterBorder_8u_C3R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, int weight, QvpiBorderType borderType, const Qvp8u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterMedianCenterBorder_8u_C4R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, int weight, QvpiBorderType borderType, const Qvp8u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterMedianCenterBorder_8u_AC4R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, int weight, QvpiBorderType borderType, const Qvp8u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterMedianCenterBorder_16u_C1R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, int weight, QvpiBorderType borderType, const Qvp16u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterMedianCenterBorder_16u_C3R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, int weight, QvpiBorderType borderType, const Qvp16u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterMedianCenterBorder_16u_C4R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, int weight, QvpiBorderType borderType, const Qvp16u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterMedianCenterBorder_16u_AC4R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, int weight, QvpiBorderType borderType, const Qvp16u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterMedianCenterBorder_16s_C1R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, int weight, QvpiBorderType borderType, const Qvp16s* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterMedianCenterBorder_16s_C3R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, int weight, QvpiBorderType borderType, const Qvp16s* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterMedianCenterBorder_16s_C4R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, int weight, QvpiBorderType borderType, const Qvp16s* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterMedianCenterBorder_16s_AC4R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, int weight, QvpiBorderType borderType, const Qvp16s* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterMedianCenterBorder_32f_C1R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, int weight, QvpiBorderType borderType, const Qvp32f* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterMedianCenterBorder_32f_C3R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, int weight, QvpiBorderType borderType, const Qvp32f* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterMedianCenterBorder_32f_C4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, int weight, QvpiBorderType borderType, const Qvp32f* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterMedianCenterBorder_32f_AC4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, int weight, QvpiBorderType borderType, const Qvp32f* borderValue, Qvp8u* pBuffer);
/** @} */

/** @name Vector median: work buffer
 *  @{ */
/** Tells the size of the work buffer of vector median filters.
 *
 *  The buffer serves every smaller mask and region too, at any border. It may begin anywhere.
 *
 *  @param maskSize sides of the mask in pixels: odd, 1 to 7
 *  @param roiSize size of the region in pixels
 *  @param dataType type of the images: qvp8u, qvp16u or qvp32f
 *  @param numChannels channels of a pixel: 3 or 4; 4 for AC4
 *  @param pBufferSize size in bytes; 0 if it cannot be represented
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: `pBufferSize` is null
 *  - qvpStatusSize: a side of `roiSize` is below 1
 *  - qvpStatusMaskSize, qvpStatusDataType, qvpStatusNumChannels: `maskSize`, `dataType`, `numChannels` is none of the
 *    above
 *  - qvpStatusSizeOverflow: the size is above 2147483647
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiFilterMedianVectorBorderGetBufferSize(QvpiSize maskSize, QvpiSize roiSize, QvpDataType dataType, int numChannels, int* pBufferSize);
/** @} */

/** @name Vector median
 *  @{ */
/** Takes that pixel of a rectangle around each one which is the nearest to all others: a median of colours, which
 *  makes none that were not there (Astola, Haavisto and Neuvo, Vector median filters, 1990).
 *
 *  The result is the pixel whose distances to the pixels of the mask have the least sum. With the differences d of
 *  the three channels, the distance is
 *
 *  @code
 *    qvpNormL1     (|d0| + |d1|) + |d2|
 *    qvpNormL2     sqrt((d0 * d0 + d1 * d1) + d2 * d2)
 *  @endcode
 *
 *  For integers, L1 is exact. All else is computed in single precision, each operation rounded, and distances are
 *  added down each column of the mask, then the columns' sums from left to right. The centre is the first choice;
 *  another pixel replaces it, in the order of rows, if its sum is less than that of the choice. So equal sums leave
 *  the centre, or else the first one, and a NaN or an infinity in the mask gives its centre.
 *
 *  Of three red, three green and three blue pixels, the centre stays. Of the rows (0,60,60) (70,10,0) (70,0,40),
 *  (0,20,40) (30,30,0) (0,10,0) and (60,40,50) (20,50,60) (30,40,80), L1 takes (0,20,40) and L2 (20,50,60).
 *
 *  Pixels outside of the region are what the border type says: memory on the sides whose flag is set, as far as the
 *  mask reaches; the kind is applied outside of the region so enlarged. Tiles that are joined by these flags give the
 *  bits of the whole image. The destination must not overlap with what is read. AC4 keeps alpha, which does not
 *  count.
 *
 *  @param pSrc,srcStep source, at the first pixel of the region
 *  @param pDst,dstStep destination
 *  @param roiSize size of the region in pixels
 *  @param maskSize sides of the mask in pixels: odd, 1 to 7; the mask may be larger than the region
 *  @param normType qvpNormL1 or qvpNormL2
 *  @param borderType qvpBorderReplicate or qvpBorderConst, with flags of sides in memory, or qvpBorderInMem
 *  @param borderValue one value for each channel, three for AC4; read for qvpBorderConst only
 *  @param pBuffer work buffer of the size that qvpiFilterMedianVectorBorderGetBufferSize() tells for this or a larger
 *         mask and region
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: `pSrc`, `pDst` or `pBuffer` is null, or `borderValue` for qvpBorderConst
 *  - qvpStatusSize: a side of `roiSize` is below 1
 *  - qvpStatusStep: a step is shorter than its row of the region
 *  - qvpStatusMaskSize: `maskSize` is none of the above
 *  - qvpStatusNotSupportedMode: `normType` is none of the above
 *  - qvpStatusBorder: `borderType` is none of the above
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiFilterMedianVectorBorder_8u_C3R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpNormType normType, QvpiBorderType borderType, const Qvp8u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterMedianVectorBorder_8u_AC4R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpNormType normType, QvpiBorderType borderType, const Qvp8u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterMedianVectorBorder_16u_C3R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpNormType normType, QvpiBorderType borderType, const Qvp16u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterMedianVectorBorder_16u_AC4R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpNormType normType, QvpiBorderType borderType, const Qvp16u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterMedianVectorBorder_32f_C3R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpNormType normType, QvpiBorderType borderType, const Qvp32f* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterMedianVectorBorder_32f_AC4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpNormType normType, QvpiBorderType borderType, const Qvp32f* borderValue, Qvp8u* pBuffer);
/** @} */

/** @name Bilateral filter: sizes
 *  @{ */
/** Tells the sizes of the record and of the work buffer of a bilateral filter.
 *
 *  The buffer serves smaller radii, too, all borders, and every function of this type and number of channels. It may
 *  begin anywhere.
 *
 *  @param radius radius of the disc in pixels: 1 to 127
 *  @param roiSize size of the region in pixels; the buffer serves smaller regions too
 *  @param dataType type of the images: qvp8u, qvp16u or qvp32f
 *  @param numChannels channels of a pixel: 1, 3 or 4; 4 for AC4
 *  @param pSpecSize,pBufferSize sizes in bytes; 0 for one that cannot be represented
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: `pSpecSize` or `pBufferSize` is null
 *  - qvpStatusSize: a side of `roiSize` is below 1
 *  - qvpStatusMaskSize: `radius` is below 1 or above 127
 *  - qvpStatusDataType, qvpStatusNumChannels: `dataType`, `numChannels` is none of the above
 *  - qvpStatusSizeOverflow: the buffer's size is above 2147483647
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiFilterBilateralBorderGetSize(int radius, QvpiSize roiSize, QvpDataType dataType, int numChannels, int* pSpecSize, int* pBufferSize);
/** @} */

/** @name Bilateral filter: record
 *  @{ */
/** Makes the record of a bilateral filter.
 *
 *  A disc of two or three times `sigmaSpace` has nearly all that counts. `sigmaRange` separates noise from edges: twice
 *  the noise's standard deviation is a good start. An infinite sigma weighs all distances alike: with both infinite the
 *  filter is the mean of a disc, with an infinite `sigmaRange` one of Gauss.
 *
 *  @param radius radius of the disc in pixels: 1 to 127
 *  @param normType how the differences d of three colours make one: qvpNormL1 |d0| + |d1| + |d2|, or qvpNormL2
 *         sqrt(d0^2 + d1^2 + d2^2). Both are the same for one channel
 *  @param sigmaRange standard deviation of the weights by difference, in pixel values: above 0
 *  @param sigmaSpace standard deviation of the weights by distance, in pixels: above 0
 *  @param dataType type of the images: qvp8u, qvp16u or qvp32f
 *  @param numChannels channels of a pixel: 1, 3 or 4; 4 for AC4
 *  @param pSpec the record, of the size that qvpiFilterBilateralBorderGetSize() tells; it must not be moved. After a
 *         failure, whichever it was, every function refuses it
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: `pSpec` is null
 *  - qvpStatusMaskSize: `radius` is below 1 or above 127
 *  - qvpStatusDataType, qvpStatusNumChannels: `dataType`, `numChannels` is none of the above
 *  - qvpStatusNotSupportedMode: `normType` is none of the above
 *  - qvpStatusBadArgument: a sigma is not above 0
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiFilterBilateralBorderInit(int radius, QvpNormType normType, Qvp32f sigmaRange, Qvp32f sigmaSpace, QvpDataType dataType, int numChannels, QvpiFilterBilateralBorderSpec* pSpec);
/** @} */

/** @name Bilateral filter: filtering
 *  @{ */
/** Smooths an image but for its edges: each pixel p becomes a mean of the pixels q of a disc around it, of which those
 *  that are near and similar count most (Tomasi, Manduchi 1998).
 *
 *  @code
 *    dst = p + sum(g * (q - p)) / (1 + sum(g)),  over the q != p with dx * dx + dy * dy <= radius * radius
 *    g   = e(-(dx * dx + dy * dy) / (2 * sigmaSpace^2)) * e(-d * d / (2 * sigmaRange^2))
 *  @endcode
 *
 *  with d = q - p, or for colours the one of their differences that the record's norm makes; e(x) is exp(x), but 0 below
 *  -87. All colours of a pixel share g. So constants pass unchanged, and edges that are much higher than sigmaRange stay
 *  as steep as they are. A row of 0 0 100 100 100, repeated, with radius 1, sigmaSpace 1, sigmaRange 100 and replicated
 *  edges gives 0 12 88 100 100.
 *
 *  All of it is single precision, each operation rounded: the factors 1 / (2 * sigma^2) come from double precision and
 *  are at most the largest float; the pixels at (dx, dy) and (-dx, -dy) are added to each other, then to the sums, those
 *  of dy = 0 first, with dx = 1, 2, ..., then dy = 1, 2, ..., dx ascending. Integers are rounded to the nearest, ties to
 *  even. A NaN in the disc makes all colours of the result NaN, an infinity at least its own. AC4 keeps alpha.
 *
 *  Time grows with the square of the radius, and is a third of that for radii up to 10 (7 for colours) where weights of
 *  pairs are kept. Filter tiles of an image at once rather than rows: a call weighs what is above its region again.
 *
 *  Pixels outside of the region are what the border type says: memory on the sides whose flag is set, as far as the
 *  radius; the kind is applied outside of the region so enlarged. Tiles that are joined by these flags give the bits of
 *  the whole image. The destination must not overlap with what is read.
 *
 *  @param pSrc,srcStep source, at the first pixel of the region
 *  @param pDst,dstStep destination
 *  @param roiSize size of the region in pixels
 *  @param borderType qvpBorderReplicate, qvpBorderMirror or qvpBorderConst, with flags of sides in memory, or
 *         qvpBorderInMem
 *  @param borderValue one value for each channel, three for AC4; read for qvpBorderConst only
 *  @param pSpec the record
 *  @param pBuffer work buffer of the size that qvpiFilterBilateralBorderGetSize() tells for this or a larger region
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: `pSrc`, `pDst`, `pSpec` or `pBuffer` is null, or `borderValue` for qvpBorderConst
 *  - qvpStatusSize: a side of `roiSize` is below 1
 *  - qvpStatusStep: a step is shorter than its row of the region
 *  - qvpStatusBorder: `borderType` is none of the above
 *  - qvpStatusContextMatch: the record was not made by qvpiFilterBilateralBorderInit(), or for another type or number of
 *    channels; AC4 takes a record for 4
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiFilterBilateralBorder_8u_C1R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpiBorderType borderType, const Qvp8u* borderValue, const QvpiFilterBilateralBorderSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFilterBilateralBorder_8u_C3R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpiBorderType borderType, const Qvp8u* borderValue, const QvpiFilterBilateralBorderSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFilterBilateralBorder_8u_AC4R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpiBorderType borderType, const Qvp8u* borderValue, const QvpiFilterBilateralBorderSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFilterBilateralBorder_16u_C1R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpiBorderType borderType, const Qvp16u* borderValue, const QvpiFilterBilateralBorderSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFilterBilateralBorder_16u_C3R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpiBorderType borderType, const Qvp16u* borderValue, const QvpiFilterBilateralBorderSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFilterBilateralBorder_16u_AC4R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpiBorderType borderType, const Qvp16u* borderValue, const QvpiFilterBilateralBorderSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFilterBilateralBorder_32f_C1R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiBorderType borderType, const Qvp32f* borderValue, const QvpiFilterBilateralBorderSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFilterBilateralBorder_32f_C3R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiBorderType borderType, const Qvp32f* borderValue, const QvpiFilterBilateralBorderSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFilterBilateralBorder_32f_AC4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiBorderType borderType, const Qvp32f* borderValue, const QvpiFilterBilateralBorderSpec* pSpec, Qvp8u* pBuffer);
/** @} */

/** @name Iterative least-squares filter: sizes
 *  @{ */
/** Tells the sizes of the record and of the work buffer of an iterative least-squares filter.
 *
 *  @param roiSize size of the images in pixels
 *  @param dataType type of the images: qvp8u, qvp16u or qvp32f
 *  @param numChannels channels of a pixel: 1 or 3
 *  @param pSpecSize,pBufferSize sizes in bytes; 0 for one that cannot be represented. The buffer has about 8 bytes for
 *         each pixel, whatever the number of channels
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: `pSpecSize` or `pBufferSize` is null
 *  - qvpStatusSize: a side of `roiSize` is below 1
 *  - qvpStatusDataType, qvpStatusNumChannels: `dataType`, `numChannels` is none of the above
 *  - qvpStatusSizeOverflow: a size is above 2147483647
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiFilterLeastSquaresGetSize(QvpiSize roiSize, QvpDataType dataType, int numChannels, int* pSpecSize, int* pBufferSize);
/** @} */

/** @name Iterative least-squares filter: record
 *  @{ */
/** Makes the record of an iterative least-squares filter.
 *
 *  A start for photographs: lambda 1, power 0.8, eps 0.0001, 4 iterations. A larger `lambda` smooths more. A `power` near
 *  0 keeps strong edges and flattens all else, 2 smooths edges too; gradients whose square is below `eps` (of values
 *  between 0 and 1) are smoothed as with the power 2. Widths without large prime factors are fastest.
 *
 *  @param roiSize size of the images in pixels: all of an image, as the filter has no borders
 *  @param lambda strength: at least 0 and finite
 *  @param power exponent of the penalty of gradients: above 0, at most 2
 *  @param eps added to the squares of gradients: at least 1e-20 and finite
 *  @param numIterations 1 to 100
 *  @param dataType type of the images: qvp8u, qvp16u or qvp32f
 *  @param numChannels channels of a pixel: 1 or 3
 *  @param pSpec the record, of the size that qvpiFilterLeastSquaresGetSize() tells; it must not be moved. After a
 *         failure, whichever it was, every function refuses it
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: `pSpec` is null
 *  - qvpStatusSize: a side of `roiSize` is below 1
 *  - qvpStatusDataType, qvpStatusNumChannels: `dataType`, `numChannels` is none of the above
 *  - qvpStatusBadArgument: `lambda` or `power` is none of the above
 *  - qvpStatusEps: `eps` is none of the above
 *  - qvpStatusBadArgument: `numIterations` is none of the above, or power * eps^(power / 2 - 1) * lambda / 2 is above
 *    65536
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiFilterLeastSquaresInit(QvpiSize roiSize, Qvp32f lambda, Qvp32f power, Qvp32f eps, int numIterations, QvpDataType dataType, int numChannels, QvpiFilterLeastSquaresSpec* pSpec);
/** @} */

/** @name Iterative least-squares filter: filtering
 *  @{ */
/** Separates what an image is made of from its detail: smooths it everywhere but across edges, with no halo beside them
 *  (Liu, Zhang, Huang, Yang 2020). What it takes away is the detail, to be tripled or dropped.
 *
 *  It looks for the image u that is near the source and has small gradients, channel by channel, with f the source in
 *  units of the type's full range (255, 65535, 1):
 *
 *  @code
 *    minimum of sum (u - f)^2 + lambda * ((ux^2 + eps)^(power / 2) + (uy^2 + eps)^(power / 2))
 *  @endcode
 *
 *  by `numIterations` exact solutions of quadratic problems. ux and uy are differences to the next pixel, 0 over the
 *  edges of the image: unlike in the paper, whose images wrap around, opposite sides have nothing to do with each other.
 *
 *  @code
 *    c = power * eps^(power / 2 - 1), beta = c * lambda / 2, kappa = lambda * power / 2, v = 0
 *    each iteration:  u = f + v;  t = beta * (v(next) - v) - kappa * g * (g^2 + eps)^(power / 2 - 1), g = u(next) - u
 *                     r = t(previous) - t, summed over x and y;  v = solution of (1 + beta * L) v = r
 *    dst = src + v * full range
 *  @endcode
 *
 *  L is the Laplacian of four neighbours with reflecting edges. Single precision: results differ from exact ones by at
 *  most 1e-5 of the full range for beta up to 5000 and 10 iterations, and 1e-4 for all; integers are rounded to the
 *  nearest, ties to even, and saturated. Constants pass unchanged. A NaN or an infinity makes its channel NaN, unless
 *  the image is one pixel. The filter works on all of an image at once: parts of it, filtered apart, do not match.
 *
 *  With lambda 1, power 0.8, eps 0.0001 and 4 iterations a row of 100 104 100 200 204 200 becomes
 *  104 104 104 199 199 199.
 *
 *  @param pSrc,srcStep source, of the size of the record
 *  @param pDst,dstStep destination; it may be the source, and must not overlap with it otherwise
 *  @param pSpec the record
 *  @param pBuffer work buffer of the size that qvpiFilterLeastSquaresGetSize() tells
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: a pointer is null
 *  - qvpStatusContextMatch: the record was not made by qvpiFilterLeastSquaresInit(), or for another type or number of
 *    channels
 *  - qvpStatusStep: a step is shorter than its row
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiFilterLeastSquares_8u_C1R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, const QvpiFilterLeastSquaresSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFilterLeastSquares_8u_C3R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, const QvpiFilterLeastSquaresSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFilterLeastSquares_16u_C1R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, const QvpiFilterLeastSquaresSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFilterLeastSquares_16u_C3R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, const QvpiFilterLeastSquaresSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFilterLeastSquares_32f_C1R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, const QvpiFilterLeastSquaresSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiFilterLeastSquares_32f_C3R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, const QvpiFilterLeastSquaresSpec* pSpec, Qvp8u* pBuffer);
/** @} */

/** @name Wiener filter: work buffer
 *  @{ */
/** Tells the size of the work buffer of the Wiener filter.
 *
 *  The buffer serves smaller masks, too, and all borders. It may begin anywhere.
 *
 *  @param maskSize sides of the mask: odd, 1 to 255
 *  @param roiSize size of the region in pixels; the buffer serves smaller regions too
 *  @param dataType type of the images: qvp8u, qvp16u, qvp16s or qvp32f
 *  @param numChannels channels of a pixel: 1, 3 or 4; 4 for AC4
 *  @param pBufferSize size in bytes; 0 if it cannot be represented
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: `pBufferSize` is null
 *  - qvpStatusSize: a side of `roiSize` is below 1
 *  - qvpStatusMaskSize: a side of `maskSize` is even, below 1 or above 255
 *  - qvpStatusDataType, qvpStatusNumChannels: `dataType`, `numChannels` is none of the above
 *  - qvpStatusSizeOverflow: the size is above 2147483647
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiFilterWienerBorderGetBufferSize(QvpiSize maskSize, QvpiSize roiSize, QvpDataType dataType, int numChannels, int* pBufferSize);
/** @} */

/** @name Wiener filter
 *  @{ */
/** Removes noise of a known variance (film grain, noise of a sensor): where a mask sees no more variance than that, a
 *  pixel becomes the mean under the mask; the more it sees, the nearer the result is to the pixel (Lim 1990).
 *
 *  @code
 *    mean = sum(p) / n,  variance = sum(p^2) / n - mean^2,  over the n pixels p of the mask around the pixel
 *    dst  = mean + (src - mean) * max(0, variance - noise * full range^2) / variance
 *  @endcode
 *
 *  channel by channel, with the full range 255 (8u), 65535 (16u, 16s) or 1 (32f). Noise of a standard deviation of 10
 *  levels of 8 bits is (10 / 255)^2 = 0.0015. With noise 0 integers pass unchanged; constants always do. One pixel of 200
 *  in 10 under a mask of 3x3 with noise 0.01 gives 169, and 14 beside it.
 *
 *  Without divisions on the way, in double precision: s1 = sum(p), s2 = sum(p^2), d = n * s2 - s1^2, which is exact for
 *  integers and rounded once, v = noise * (full range * n)^2, g = d > v ? (d - v) / d : 0,
 *  dst = (s1 + (n * p - s1) * g) / n. Integers are rounded to the nearest, ties to even, and saturated. Floats are summed
 *  along rows, then down columns, in the order that qvpiFilterBoxBorder has. A NaN or an infinity under the mask makes the
 *  result NaN. AC4 keeps alpha.
 *
 *  Pixels outside of the region are what the border type says: memory on the sides whose flag is set, as far as the
 *  mask reaches; the kind is applied outside of the region so enlarged. Tiles that are joined by these flags give the
 *  bits of the whole image. The destination must not overlap with what is read.
 *
 *  @param pSrc,srcStep source, at the first pixel of the region
 *  @param pDst,dstStep destination
 *  @param roiSize size of the region in pixels
 *  @param maskSize sides of the mask: odd, 1 to 255; its middle is at the pixel
 *  @param noise variance of the noise, of pixels between 0 and 1; for colour one for each channel, three for AC4: at least
 *         0, below 1
 *  @param borderType qvpBorderReplicate, qvpBorderMirror or qvpBorderConst, with flags of sides in memory, or
 *         qvpBorderInMem
 *  @param borderValue one value for each channel, three for AC4; read for qvpBorderConst only
 *  @param pBuffer work buffer of the size that qvpiFilterWienerBorderGetBufferSize() tells for this or a larger mask and
 *         region
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: `pSrc`, `pDst`, `noise` or `pBuffer` is null, or `borderValue` for qvpBorderConst
 *  - qvpStatusSize: a side of `roiSize` is below 1
 *  - qvpStatusStep: a step is shorter than its row of the region
 *  - qvpStatusMaskSize, qvpStatusNoiseRange, qvpStatusBorder: `maskSize`, `noise`, `borderType` is none of the above
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiFilterWienerBorder_8u_C1R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, Qvp32f noise, QvpiBorderType borderType, const Qvp8u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterWienerBorder_8u_C3R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, const Qvp32f noise[3], QvpiBorderType borderType, const Qvp8u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterWienerBorder_8u_C4R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, const Qvp32f noise[4], QvpiBorderType borderType, const Qvp8u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterWienerBorder_8u_AC4R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, const Qvp32f noise[3], QvpiBorderType borderType, const Qvp8u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterWienerBorder_16u_C1R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, Qvp32f noise, QvpiBorderType borderType, const Qvp16u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterWienerBorder_16u_C3R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, const Qvp32f noise[3], QvpiBorderType borderType, const Qvp16u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterWienerBorder_16u_C4R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, const Qvp32f noise[4], QvpiBorderType borderType, const Qvp16u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterWienerBorder_16u_AC4R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, const Qvp32f noise[3], QvpiBorderType borderType, const Qvp16u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterWienerBorder_16s_C1R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, Qvp32f noise, QvpiBorderType borderType, const Qvp16s* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterWienerBorder_16s_C3R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, const Qvp32f noise[3], QvpiBorderType borderType, const Qvp16s* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterWienerBorder_16s_C4R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, const Qvp32f noise[4], QvpiBorderType borderType, const Qvp16s* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterWienerBorder_16s_AC4R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, const Qvp32f noise[3], QvpiBorderType borderType, const Qvp16s* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterWienerBorder_32f_C1R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, Qvp32f noise, QvpiBorderType borderType, const Qvp32f* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterWienerBorder_32f_C3R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, const Qvp32f noise[3], QvpiBorderType borderType, const Qvp32f* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterWienerBorder_32f_C4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, const Qvp32f noise[4], QvpiBorderType borderType, const Qvp32f* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterWienerBorder_32f_AC4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, const Qvp32f noise[3], QvpiBorderType borderType, const Qvp32f* borderValue, Qvp8u* pBuffer);
/** @} */

/** @name Guided filter: work buffer
 *  @{ */
/** Tells the size of the work buffer of guided filters.
 *
 *  The buffer serves every smaller mask and region too, at any border. It may begin anywhere.
 *
 *  @param maskSize sides of the mask in pixels: odd, 1 to 255
 *  @param roiSize size of the region in pixels
 *  @param dataType type of the images: qvp8u, qvp16u or qvp32f
 *  @param numChannels channels of a pixel: 1, 3 or 4; 4 for AC4
 *  @param pBufferSize size in bytes; 0 if it cannot be represented
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: `pBufferSize` is null
 *  - qvpStatusSize: a side of `roiSize` is below 1
 *  - qvpStatusMaskSize: a side of `maskSize` is even, below 1 or above 255
 *  - qvpStatusDataType, qvpStatusNumChannels: `dataType`, `numChannels` is none of the above
 *  - qvpStatusSizeOverflow: the size is above 2147483647
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiFilterGuidedBorderGetBufferSize(QvpiSize maskSize, QvpiSize roiSize, QvpDataType dataType, int numChannels, int* pBufferSize);
/** @} */

/** @name Guided filter
 *  @{ */
/** Filters an image so that its edges are those of a guide (He, Sun, Tang, Guided image filtering, 2013), channel by
 *  channel: for mattes, haze and depth, whose edges are to follow a photograph; with the image as its own guide, to
 *  take away noise and small details and keep edges.
 *
 *  In the mask around each pixel the source p is described as a line over the guide I, a * I + b, by least squares that
 *  eps keeps flat. The result is the mean of what all masks that cover a pixel make of it. With sums over a mask of n
 *  pixels:
 *
 *  @code
 *    a   = A / (B + e), or 0 unless B + e > 0,  A = n * sum(I p) - sum(I) * sum(p),  B = n * sum(I I) - sum(I)^2
 *    b   = (sum(p) - a * sum(I)) / n,           e = eps * (unit * n)^2
 *    dst = (sum(a) * I + sum(b)) / n
 *  @endcode
 *
 *  `unit` is 255 for 8u, 65535 for 16u and 1 for 32f, so that one eps serves all types: where the guide's variance is
 *  far above eps * unit^2, edges stay, where it is far below, the result is the mean of means. A step of 0 0 0 0 100
 *  100 100 100 100 by itself, 3x1, replicated, stays for eps 0.0001, becomes 0 0 3 8 92 97 100 100 100 for 0.01 and 0 0
 *  11 32 68 89 100 100 100 for 1. A constant source passes unchanged for any eps above 0.
 *
 *  A and B of integers are exact. The rest is double precision, but for 8u a and b, their sums and dst are single, b
 *  from the a so rounded. Sums of reals are those of rows, then of columns, each in the order that qvpiFilterBoxBorder
 *  has. Integers are rounded to the nearest, ties to even. 8u differs from results in double precision by less than
 *  0.0001 before they are rounded, by 0.003 for eps of 0. Within width - 1 columns and height - 1 rows of a NaN or an
 *  infinity, in either image, results are not finite.
 *
 *  Time grows with the logarithm of the mask's sides. A guide that is the source, by pointer and step, saves time and
 *  changes nothing. AC4 keeps alpha.
 *
 *  Pixels outside of the region are what the border type says, of both images: memory on the sides whose flag is set,
 *  as far as width - 1 columns and height - 1 rows of the mask, twice its reach; the kind is applied outside of the
 *  region so enlarged. Functions beyond the region are made of these pixels. Tiles that are joined by these flags give
 *  the bits of the whole image. The destination must not overlap with what is read.
 *
 *  @param pSrc,srcStep source p, at the first pixel of the region
 *  @param pGuide,guideStep guide I, of the same type and layout; may be the source
 *  @param pDst,dstStep destination
 *  @param roiSize size of the region in pixels
 *  @param maskSize sides of the mask in pixels: odd, 1 to 255; the mask may be larger than the region
 *  @param eps variance of the guide that counts as little, over unit^2: 0 or more, finite
 *  @param borderType qvpBorderReplicate or qvpBorderMirror, with flags of sides in memory, or qvpBorderInMem
 *  @param pBuffer work buffer of the size that qvpiFilterGuidedBorderGetBufferSize() tells for this or a larger mask
 *         and region
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: an image or `pBuffer` is null
 *  - qvpStatusSize: a side of `roiSize` is below 1
 *  - qvpStatusStep: a step is shorter than its row of the region
 *  - qvpStatusMaskSize: `maskSize` is none of the above
 *  - qvpStatusEps: `eps` is negative, infinite or NaN
 *  - qvpStatusBorder: `borderType` is none of the above
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiFilterGuidedBorder_8u_C1R(const Qvp8u* pSrc, int srcStep, const Qvp8u* pGuide, int guideStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, Qvp32f eps, QvpiBorderType borderType, Qvp8u* pBuffer);
QvpStatus qvpiFilterGuidedBorder_8u_C3R(const Qvp8u* pSrc, int srcStep, const Qvp8u* pGuide, int guideStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, Qvp32f eps, QvpiBorderType borderType, Qvp8u* pBuffer);
QvpStatus qvpiFilterGuidedBorder_8u_C4R(const Qvp8u* pSrc, int srcStep, const Qvp8u* pGuide, int guideStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, Qvp32f eps, QvpiBorderType borderType, Qvp8u* pBuffer);
QvpStatus qvpiFilterGuidedBorder_8u_AC4R(const Qvp8u* pSrc, int srcStep, const Qvp8u* pGuide, int guideStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, Qvp32f eps, QvpiBorderType borderType, Qvp8u* pBuffer);
QvpStatus qvpiFilterGuidedBorder_16u_C1R(const Qvp16u* pSrc, int srcStep, const Qvp16u* pGuide, int guideStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, Qvp32f eps, QvpiBorderType borderType, Qvp8u* pBuffer);
QvpStatus qvpiFilterGuidedBorder_16u_C3R(const Qvp16u* pSrc, int srcStep, const Qvp16u* pGuide, int guideStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, Qvp32f eps, QvpiBorderType borderType, Qvp8u* pBuffer);
QvpStatus qvpiFilterGuidedBorder_16u_C4R(const Qvp16u* pSrc, int srcStep, const Qvp16u* pGuide, int guideStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, Qvp32f eps, QvpiBorderType borderType, Qvp8u* pBuffer);
QvpStatus qvpiFilterGuidedBorder_16u_AC4R(const Qvp16u* pSrc, int srcStep, const Qvp16u* pGuide, int guideStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, Qvp32f eps, QvpiBorderType borderType, Qvp8u* pBuffer);
QvpStatus qvpiFilterGuidedBorder_32f_C1R(const Qvp32f* pSrc, int srcStep, const Qvp32f* pGuide, int guideStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, Qvp32f eps, QvpiBorderType borderType, Qvp8u* pBuffer);
QvpStatus qvpiFilterGuidedBorder_32f_C3R(const Qvp32f* pSrc, int srcStep, const Qvp32f* pGuide, int guideStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, Qvp32f eps, QvpiBorderType borderType, Qvp8u* pBuffer);
QvpStatus qvpiFilterGuidedBorder_32f_C4R(const Qvp32f* pSrc, int srcStep, const Qvp32f* pGuide, int guideStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, Qvp32f eps, QvpiBorderType borderType, Qvp8u* pBuffer);
QvpStatus qvpiFilterGuidedBorder_32f_AC4R(const Qvp32f* pSrc, int srcStep, const Qvp32f* pGuide, int guideStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, Qvp32f eps, QvpiBorderType borderType, Qvp8u* pBuffer);
/** @} */

/** @name Guided filter by colours: work buffer
 *  @{ */
/** Tells the size of the work buffer of filters that are guided by colours.
 *
 *  The buffer serves every smaller mask and region too, at any border. It may begin anywhere.
 *
 *  @param maskSize sides of the mask in pixels: odd, 1 to 255
 *  @param roiSize size of the region in pixels
 *  @param dataType type of the images: qvp8u, qvp16u or qvp32f
 *  @param pBufferSize size in bytes; 0 if it cannot be represented
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: `pBufferSize` is null
 *  - qvpStatusSize: a side of `roiSize` is below 1
 *  - qvpStatusMaskSize: a side of `maskSize` is even, below 1 or above 255
 *  - qvpStatusDataType: `dataType` is none of the above
 *  - qvpStatusSizeOverflow: the size is above 2147483647
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiFilterGuidedColorBorderGetBufferSize(QvpiSize maskSize, QvpiSize roiSize, QvpDataType dataType, int* pBufferSize);
/** @} */

/** @name Guided filter by colours
 *  @{ */
/** Filters an image of one channel so that its edges are those of a guide of three: what differs by hue alone is an
 *  edge, too (He, Sun, Tang, Guided image filtering, 2013). For coarse masks and depths of a photograph.
 *
 *  In the mask around each pixel the source p is described by a linear function of the guide's I1, I2, I3, by least
 *  squares that eps keeps flat; the result is the mean of what all masks that cover a pixel make of it. With sums over
 *  a mask of n pixels, e = eps * (unit * n)^2, `unit` 255 for 8u, 65535 for 16u, 1 for 32f:
 *
 *  @code
 *    mij = n * sum(Ii Ij) - sum(Ii) * sum(Ij), with e added to m11, m22, m33;  vi = n * sum(Ii p) - sum(Ii) * sum(p)
 *
 *    d1  = m11             l21 = m12 / d1     l31 = m13 / d1
 *    d2  = m22 - l21 m12   t   = m23 - l31 m12   l32 = t / d2
 *    d3  = (m33 - l31 m13) - l32 t
 *    z2  = v2 - l21 v1     z3  = (v3 - l31 v1) - l32 z2
 *    a3  = z3 / d3         a2  = z2 / d2 - l32 a3     a1 = (v1 / d1 - l21 a2) - l31 a3
 *
 *    b   = (((sum(p) - a1 sum(I1)) - a2 sum(I2)) - a3 sum(I3)) / n
 *    dst = (((sum(a1) I1 + sum(a2) I2) + sum(a3) I3) + sum(b)) / n
 *  @endcode
 *
 *  where a quotient is 0 unless its divisor is above 0. Precision, order of sums, rounding, what is not finite, and
 *  times are those of qvpiFilterGuidedBorder; a1, a2 and a3 of 8u are rounded to single precision once all are known. A
 *  constant source passes unchanged for any eps above 0.
 *
 *  Pixels outside of the region are what the border type says, of both images: memory on the sides whose flag is set,
 *  as far as width - 1 columns and height - 1 rows of the mask, twice its reach; the kind is applied outside of the
 *  region so enlarged. Functions beyond the region are made of these pixels. Tiles that are joined by these flags give
 *  the bits of the whole image. The destination must not overlap with what is read.
 *
 *  @param pSrc,srcStep source p, at the first pixel of the region
 *  @param pGuide,guideStep guide I, of the same type with three channels
 *  @param pDst,dstStep destination
 *  @param roiSize size of the region in pixels
 *  @param maskSize sides of the mask in pixels: odd, 1 to 255; the mask may be larger than the region
 *  @param eps variance of the guide that counts as little, over unit^2: 0 or more, finite
 *  @param borderType qvpBorderReplicate or qvpBorderMirror, with flags of sides in memory, or qvpBorderInMem
 *  @param pBuffer work buffer of the size that qvpiFilterGuidedColorBorderGetBufferSize() tells for this or a larger
 *         mask and region
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: an image or `pBuffer` is null
 *  - qvpStatusSize: a side of `roiSize` is below 1
 *  - qvpStatusStep: a step is shorter than its row of the region
 *  - qvpStatusMaskSize: `maskSize` is none of the above
 *  - qvpStatusEps: `eps` is negative, infinite or NaN
 *  - qvpStatusBorder: `borderType` is none of the above
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiFilterGuidedColorBorder_8u_C1R(const Qvp8u* pSrc, int srcStep, const Qvp8u* pGuide, int guideStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, Qvp32f eps, QvpiBorderType borderType, Qvp8u* pBuffer);
QvpStatus qvpiFilterGuidedColorBorder_16u_C1R(const Qvp16u* pSrc, int srcStep, const Qvp16u* pGuide, int guideStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, Qvp32f eps, QvpiBorderType borderType, Qvp8u* pBuffer);
QvpStatus qvpiFilterGuidedColorBorder_32f_C1R(const Qvp32f* pSrc, int srcStep, const Qvp32f* pGuide, int guideStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, Qvp32f eps, QvpiBorderType borderType, Qvp8u* pBuffer);
/** @} */

/** @name Threshold by the mean around each pixel: work buffer
 *  @{ */
/** Tells the size of the work buffer of qvpiThresholdLocalBoxBorder.
 *
 *  The buffer serves smaller masks, too, and all borders, also in place. It may begin anywhere.
 *
 *  @param maskSize sides of the mask: odd, 1 to 1023
 *  @param roiSize size of the region in pixels; the buffer serves smaller regions too
 *  @param dataType type of the images: qvp8u, qvp16u or qvp32f
 *  @param pBufferSize size in bytes; 0 if it cannot be represented
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: `pBufferSize` is null
 *  - qvpStatusSize: a side of `roiSize` is below 1
 *  - qvpStatusMaskSize: a side of `maskSize` is even, below 1 or above 1023
 *  - qvpStatusDataType: `dataType` is none of the above
 *  - qvpStatusSizeOverflow: the size is above 2147483647
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiThresholdLocalBoxBorderGetBufferSize(QvpiSize maskSize, QvpiSize roiSize, QvpDataType dataType, int* pBufferSize);
/** @} */

/** @name Threshold by the mean around each pixel
 *  @{ */
/** Compares each pixel with the mean under a mask around it: for scans, labels and cells under uneven light.
 *
 *  @code
 *    dst = src > mean - delta ? valueGT : valueLE
 *  @endcode
 *
 *  A mask should be a few times as large as what is looked for; `delta` keeps noise on even ground from being taken for
 *  it: with the ground in `valueGT`, dark marks are those more than `delta` below their surroundings.
 *
 *  Nothing is rounded for integers: n * src - sum > -n * delta is decided exactly, with the sum of the n pixels under the
 *  mask. Floats are compared in double precision, (n * src) > sum - n * delta, with sums along rows, then down columns, in
 *  the order that qvpiFilterBoxBorder has; where a NaN is under the mask, the result is `valueLE`. Under a mask of 3x1 with
 *  replicated edges, delta 0.1, 10 20 30 40 50 60 gives valueLE at first and valueGT for all others.
 *
 *  Pixels outside of the region are what the border type says: memory on the sides whose flag is set, as far as the
 *  mask reaches; the kind is applied outside of the region so enlarged. Tiles that are joined by these flags give the
 *  bits of the whole image. In place, which keeps what it needs of the source in the buffer, neighbouring tiles of one
 *  image would read each other's results. Otherwise the destination must not overlap with what is read.
 *
 *  @param pSrc,srcStep source, at the first pixel of the region
 *  @param pDst,dstStep destination
 *  @param pSrcDst,srcDstStep in place: source and destination
 *  @param roiSize size of the region in pixels
 *  @param maskSize sides of the mask: odd, 1 to 1023; its middle is at the pixel
 *  @param delta what a pixel may be below the mean; finite
 *  @param valueGT,valueLE results for pixels above their threshold, and for all others
 *  @param borderType qvpBorderReplicate, qvpBorderMirror or qvpBorderConst, with flags of sides in memory, or
 *         qvpBorderInMem
 *  @param borderValue the value beyond the image; read for qvpBorderConst only
 *  @param pBuffer work buffer of the size that qvpiThresholdLocalBoxBorderGetBufferSize() tells for this or a larger mask
 *         and region
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: an image or `pBuffer` is null, or `borderValue` for qvpBorderConst
 *  - qvpStatusSize: a side of `roiSize` is below 1
 *  - qvpStatusStep: a step is shorter than its row of the region
 *  - qvpStatusMaskSize: `maskSize` is none of the above
 *  - qvpStatusBadArgument: `delta` is not finite
 *  - qvpStatusBorder: `borderType` is none of the above
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiThresholdLocalBoxBorder_8u_C1R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, Qvp32f delta, Qvp8u valueGT, Qvp8u valueLE, QvpiBorderType borderType, const Qvp8u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiThresholdLocalBoxBorder_8u_C1IR(Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, QvpiSize maskSize, Qvp32f delta, Qvp8u valueGT, Qvp8u valueLE, QvpiBorderType borderType, const Qvp8u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiThresholdLocalBoxBorder_16u_C1R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, Qvp32f delta, Qvp16u valueGT, Qvp16u valueLE, QvpiBorderType borderType, const Qvp16u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiThresholdLocalBoxBorder_16u_C1IR(Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, QvpiSize maskSize, Qvp32f delta, Qvp16u valueGT, Qvp16u valueLE, QvpiBorderType borderType, const Qvp16u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiThresholdLocalBoxBorder_32f_C1R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, Qvp32f delta, Qvp32f valueGT, Qvp32f valueLE, QvpiBorderType borderType, const Qvp32f* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiThresholdLocalBoxBorder_32f_C1IR(Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize, QvpiSize maskSize, Qvp32f delta, Qvp32f valueGT, Qvp32f valueLE, QvpiBorderType borderType, const Qvp32f* borderValue, Qvp8u* pBuffer);
/** @} */

/** @name Threshold by the Gauss mean around each pixel: work buffer
 *  @{ */
/** Tells the size of the work buffer of qvpiThresholdLocalGaussBorder.
 *
 *  The buffer serves smaller masks, too, and all sigmas and borders, also in place. It may begin anywhere.
 *
 *  @param maskSize sides of the mask: odd, 1 to 1023
 *  @param roiSize size of the region in pixels; the buffer serves smaller regions too
 *  @param dataType type of the images: qvp8u, qvp16u or qvp32f
 *  @param pBufferSize size in bytes; 0 if it cannot be represented
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: `pBufferSize` is null
 *  - qvpStatusSize: a side of `roiSize` is below 1
 *  - qvpStatusMaskSize: a side of `maskSize` is even, below 1 or above 1023
 *  - qvpStatusDataType: `dataType` is none of the above
 *  - qvpStatusSizeOverflow: the size is above 2147483647
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiThresholdLocalGaussBorderGetBufferSize(QvpiSize maskSize, QvpiSize roiSize, QvpDataType dataType, int* pBufferSize);
/** @} */

/** @name Threshold by the Gauss mean around each pixel
 *  @{ */
/** Compares each pixel with the mean around it, in which near pixels count for more: for scans, labels and cells under
 *  uneven light whose shadows have edges.
 *
 *  @code
 *    dst = src > mean - delta ? valueGT : valueLE
 *    mean = sum of w(i) * w(j) * src(x + i, y + j),  w(i) proportional to exp(-i^2 / (2 * sigma^2)), sum of all w is 1
 *  @endcode
 *
 *  The mean is that of qvpiFilterGaussBorder with the same sigma on both axes, without its last rounding. For bytes the
 *  weights have 14 to 17 bits, so that w(0) fits 15, and filtered rows are rounded to 1/64; the mean is within 0.01 of the
 *  exact one on pictures, and within 0.2 for the worst of images. Nothing is rounded after
 *  that. 16-bit numbers and floats are weighed and compared as floats, src > mean - delta; where a NaN
 *  is under the mask, the result is `valueLE`. 200 among 10 has a mean of 61.779 under a mask of 3x3 with a sigma of 0.8.
 *
 *  A mask of 3 * sigma to either side holds nearly all weight. `delta` keeps noise on even ground from being taken for a
 *  mark, as for qvpiThresholdLocalBoxBorder().
 *
 *  Pixels outside of the region are what the border type says: memory on the sides whose flag is set, as far as the
 *  mask reaches; the kind is applied outside of the region so enlarged. Tiles that are joined by these flags give the
 *  bits of the whole image. In place, which keeps what it needs of the source in the buffer, neighbouring tiles of one
 *  image would read each other's results. Otherwise the destination must not overlap with what is read.
 *
 *  @param pSrc,srcStep source, at the first pixel of the region
 *  @param pDst,dstStep destination
 *  @param pSrcDst,srcDstStep in place: source and destination
 *  @param roiSize size of the region in pixels
 *  @param maskSize sides of the mask: odd, 1 to 1023; its middle is at the pixel
 *  @param sigma of the Gauss function, in pixels; above 0 and finite
 *  @param delta what a pixel may be below the mean; finite
 *  @param valueGT,valueLE results for pixels above their threshold, and for all others
 *  @param borderType qvpBorderReplicate, qvpBorderMirror or qvpBorderConst, with flags of sides in memory, or
 *         qvpBorderInMem
 *  @param borderValue the value beyond the image; read for qvpBorderConst only
 *  @param pBuffer work buffer of the size that qvpiThresholdLocalGaussBorderGetBufferSize() tells for this or a larger mask
 *         and region
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: an image or `pBuffer` is null, or `borderValue` for qvpBorderConst
 *  - qvpStatusSize: a side of `roiSize` is below 1
 *  - qvpStatusStep: a step is shorter than its row of the region
 *  - qvpStatusMaskSize: `maskSize` is none of the above
 *  - qvpStatusBadArgument: `sigma` is not above 0 or not finite, or `delta` is not finite
 *  - qvpStatusBorder: `borderType` is none of the above
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiThresholdLocalGaussBorder_8u_C1R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, Qvp32f sigma, Qvp32f delta, Qvp8u valueGT, Qvp8u valueLE, QvpiBorderType borderType, const Qvp8u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiThresholdLocalGaussBorder_8u_C1IR(Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, QvpiSize maskSize, Qvp32f sigma, Qvp32f delta, Qvp8u valueGT, Qvp8u valueLE, QvpiBorderType borderType, const Qvp8u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiThresholdLocalGaussBorder_16u_C1R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, Qvp32f sigma, Qvp32f delta, Qvp16u valueGT, Qvp16u valueLE, QvpiBorderType borderType, const Qvp16u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiThresholdLocalGaussBorder_16u_C1IR(Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, QvpiSize maskSize, Qvp32f sigma, Qvp32f delta, Qvp16u valueGT, Qvp16u valueLE, QvpiBorderType borderType, const Qvp16u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiThresholdLocalGaussBorder_32f_C1R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, Qvp32f sigma, Qvp32f delta, Qvp32f valueGT, Qvp32f valueLE, QvpiBorderType borderType, const Qvp32f* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiThresholdLocalGaussBorder_32f_C1IR(Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize, QvpiSize maskSize, Qvp32f sigma, Qvp32f delta, Qvp32f valueGT, Qvp32f valueLE, QvpiBorderType borderType, const Qvp32f* borderValue, Qvp8u* pBuffer);
/** @} */

#ifdef __cplusplus
}
#endif

#endif
