/** @file qvpi_feature.h
 *  Features that describe an image: local binary patterns, histograms of oriented gradients; images made by formulas:
 *  ramps, the Jaehne pattern, noise.
 *
 *  The conventions of every function are told in qvpi_core.h.
 */
#ifndef QVPI_FEATURE_H
#define QVPI_FEATURE_H

#include "qvptypes.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @name Local binary patterns
 *  @{ */
/** Describes the texture around each pixel: which of its neighbours are no darker than the pixel itself.
 *
 *  Bit k of a pixel's code is set where neighbour k >= the pixel; where either is NaN it is not. Neighbours count
 *  counter-clockwise from the one to the right, as (x, y) with y downwards:
 *
 *  @code
 *    result  maskSize  P   neighbours
 *    8u      3x3       8   (1,0) (1,-1) (0,-1) (-1,-1) (-1,0) (-1,1) (0,1) (1,1)
 *    8u      5x5       8   the same directions at twice the distance: (2,0) (2,-2) (0,-2) ... (2,2)
 *    16u     5x5       16  all of the rim: (2,0) (2,-1) (2,-2) (1,-2) (0,-2) ... (2,2) (2,1)
 *  @endcode
 *
 *  The mode says what is stored:
 *
 *  @code
 *    qvpLBPCode             the code
 *    qvpLBPRotation         the least of the P rotations of its bits: the same however the texture is turned by steps
 *                           of the circle
 *    qvpLBPUniform          a label for codes that change at most twice around the circle: 0 without ones,
 *                           P (P - 1) + 1 of ones only, else 1 + (ones - 1) P + r where the run of ones begins at bit
 *                           r (bit r is set, the one before it is not, bit P - 1 coming before bit 0);
 *                           P (P - 1) + 2 for all other codes. 59 labels of 8 neighbours, 243 of 16
 *    qvpLBPUniformRotation  of the same codes the number of ones, P + 1 for all others: 10 labels, 18
 *  @endcode
 *
 *  A histogram of the results is what textures are compared by. C3: each channel by itself. Results are exact for all
 *  pixel values. Beyond the image the border type says what is found: qvpBorderReplicate, qvpBorderMirror or
 *  qvpBorderConst, on all sides that are not in memory, or all of them in memory. In place (pDst = pSrc) and
 *  overlapping images are not supported.
 *
 *  Source: T. Ojala, M. Pietikainen, T. Maenpaa, Multiresolution gray-scale and rotation invariant texture
 *  classification with local binary patterns, IEEE PAMI, 2002; there the neighbours lie on a circle, here on pixels.
 *
 *  @param pSrc,srcStep source image
 *  @param pDst,dstStep destination image
 *  @param roiSize size of both in pixels
 *  @param maskSize the square that the neighbours lie on
 *  @param mode what is stored
 *  @param borderType what is outside of the image
 *  @param borderValue the value of qvpBorderConst, one for each channel; else it may be null
 *  @param pBuffer work buffer of qvpiFilterLBPBorderGetBufferSize() bytes, at any address
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: an image or the work buffer is null, or borderValue where the low four bits of borderType
 *    are those of qvpBorderConst
 *  - qvpStatusSize: a side of the region is below 1
 *  - qvpStatusStep: a step is below 1
 *  - qvpStatusMaskSize: maskSize is neither 3x3 nor 5x5, or it is 3x3 with 16u results
 *  - qvpStatusNotSupportedMode: a mode other than those above
 *  - qvpStatusBorder: a border type other than those above
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiFilterLBPBorder_8u_C1R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiLBPMode mode, QvpiBorderType borderType, const Qvp8u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterLBPBorder_8u_C3R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiLBPMode mode, QvpiBorderType borderType, const Qvp8u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterLBPBorder_16u8u_C1R(const Qvp16u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiLBPMode mode, QvpiBorderType borderType, const Qvp16u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterLBPBorder_16u8u_C3R(const Qvp16u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiLBPMode mode, QvpiBorderType borderType, const Qvp16u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterLBPBorder_16s8u_C1R(const Qvp16s* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiLBPMode mode, QvpiBorderType borderType, const Qvp16s* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterLBPBorder_16s8u_C3R(const Qvp16s* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiLBPMode mode, QvpiBorderType borderType, const Qvp16s* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterLBPBorder_32f8u_C1R(const Qvp32f* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiLBPMode mode, QvpiBorderType borderType, const Qvp32f* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterLBPBorder_32f8u_C3R(const Qvp32f* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiLBPMode mode, QvpiBorderType borderType, const Qvp32f* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterLBPBorder_8u16u_C1R(const Qvp8u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiLBPMode mode, QvpiBorderType borderType, const Qvp8u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterLBPBorder_8u16u_C3R(const Qvp8u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiLBPMode mode, QvpiBorderType borderType, const Qvp8u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterLBPBorder_16u_C1R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiLBPMode mode, QvpiBorderType borderType, const Qvp16u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterLBPBorder_16u_C3R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiLBPMode mode, QvpiBorderType borderType, const Qvp16u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterLBPBorder_16s16u_C1R(const Qvp16s* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiLBPMode mode, QvpiBorderType borderType, const Qvp16s* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterLBPBorder_16s16u_C3R(const Qvp16s* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiLBPMode mode, QvpiBorderType borderType, const Qvp16s* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterLBPBorder_32f16u_C1R(const Qvp32f* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiLBPMode mode, QvpiBorderType borderType, const Qvp32f* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiFilterLBPBorder_32f16u_C3R(const Qvp32f* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize, QvpiLBPMode mode, QvpiBorderType borderType, const Qvp32f* borderValue, Qvp8u* pBuffer);
/** @} */

/** @name Local binary patterns: work buffer
 *  @{ */
/** Size of the work buffer of qvpiFilterLBPBorder, which serves any smaller region as well.
 *
 *  @param maskSize,roiSize as the call has them
 *  @param dataType type of the source: qvp8u, qvp16u, qvp16s or qvp32f
 *  @param numChannels 1 or 3
 *  @param pBufferSize receives the size in bytes, at most 8 rows of width + 4 pixels and 4096 bytes; 0 if it cannot be
 *    represented
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: pBufferSize is null
 *  - qvpStatusDataType: a type other than those above
 *  - qvpStatusNumChannels: numChannels is neither 1 nor 3
 *  - qvpStatusSize: a side of the region is below 1
 *  - qvpStatusMaskSize: maskSize is neither 3x3 nor 5x5
 *  - qvpStatusSizeOverflow: the size is above 2147483647
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiFilterLBPBorderGetBufferSize(QvpiSize maskSize, QvpiSize roiSize, QvpDataType dataType, int numChannels, int* pBufferSize);
/** @} */

/** @name Histogram of oriented gradients: record
 *  @{ */
/** Size of the record that qvpiHOGInit() fills: 72 + 16 * blockSize^2 bytes.
 *
 *  The configuration, with what it has to be:
 *
 *  @code
 *    cvCompatible  0: blocks and cells row by row; else both column by column
 *    cellSize      side of a cell in pixels, 2 to 16
 *    blockSize     side of a block in pixels: 2 * cellSize
 *    blockStride   pixels from block to block, a positive multiple of cellSize
 *    nbins         orientations over half a turn, 2 to 16
 *    sigma         standard deviation of the weights around the middle of a block, in pixels, above 0
 *    l2thresh      where the values of a block are clipped, above 0
 *    winSize       the window in pixels: blockSize and any number of blockStrides, both ways
 *  @endcode
 *
 *  @param pConfig the configuration
 *  @param pSpecSize receives the size in bytes
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: a pointer is null
 *  - qvpStatusNotSupportedMode: cellSize, blockSize, blockStride, nbins, sigma or l2thresh is none of the above
 *  - qvpStatusSize: winSize is none of the above
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiHOGGetSize(const QvpiHOGConfig* pConfig, int* pSpecSize);
/** @} */

/** @name Histogram of oriented gradients: initialisation
 *  @{ */
/** Fills a record. It may lie at any address, may be moved or copied as bytes, and is read only afterwards.
 *
 *  A pixel (i, j) of a block has a weight for each of the four cells, a Gaussian times the linear share of the cell in
 *  either direction:
 *
 *    weight = exp(-(dx^2 + dy^2) / (2 * sigma^2)) * a(i) * a(j)
 *
 *  with dx = i - blockSize / 2 + 0.5, dy alike, and a(i) = max(0, 1 - |(i + 0.5) / cellSize - m|), m = 0.5 for the
 *  first and 1.5 for the second cell. Single precision.
 *
 *  @param pConfig the configuration; see qvpiHOGGetSize()
 *  @param pHOGSpec the record. After a failure, whichever it was, every function refuses it
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: a pointer is null
 *  - qvpStatusNotSupportedMode, qvpStatusSize: as qvpiHOGGetSize()
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiHOGInit(const QvpiHOGConfig* pConfig, QvpiHOGSpec* pHOGSpec);
/** @} */

/** @name Histogram of oriented gradients: work buffer
 *  @{ */
/** Size of the work buffer for a region: 12 * width * height bytes, at any address.
 *
 *  @param pHOGSpec the record
 *  @param roiSize the region in pixels
 *  @param pBufferSize receives the size in bytes; 0 if it cannot be represented
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: a pointer is null
 *  - qvpStatusContextMatch: the record was not made by qvpiHOGInit()
 *  - qvpStatusSize: the region is smaller than the window
 *  - qvpStatusSizeOverflow: the size is above 2147483647
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiHOGGetBufferSize(const QvpiHOGSpec* pHOGSpec, QvpiSize roiSize, int* pBufferSize);
/** @} */

/** @name Histogram of oriented gradients: descriptor
 *  @{ */
/** Size of the descriptor of one window: 16 nbins bytes for each block.
 *
 *  @param pHOGSpec the record
 *  @param pDescriptorSize receives the size in bytes; 0 if it cannot be represented
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: a pointer is null
 *  - qvpStatusContextMatch: the record was not made by qvpiHOGInit()
 *  - qvpStatusSizeOverflow: the size is above 2147483647
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiHOGGetDescriptorSize(const QvpiHOGSpec* pHOGSpec, int* pDescriptorSize);
/** @} */

/** @name Histogram of oriented gradients
 *  @{ */
/** Describes windows of an image by the directions of its gradients.
 *
 *  1. The gradient of each pixel: gx = I(x + 1, y) - I(x - 1, y), gy = I(x, y + 1) - I(x, y - 1), as floats; for C3,
 *  of the channel where gx^2 + gy^2 is greatest, the first of several. Beyond the image the border type says what is
 *  found: qvpBorderReplicate, qvpBorderMirror or qvpBorderConst, and one pixel on each side that is in memory.
 *
 *  2. Its vote of sqrt(gx^2 + gy^2) for the direction t = atan2(gy, gx) modulo pi, shared linearly between the two
 *  nearest of nbins bins, the centres of which are at (k + 1/2) * pi / nbins; the last bin and the first are
 *  neighbours. Directions are exact to 1e-5.
 *
 *  3. For each block of a window the votes of its pixels, times their weights for the four cells, summed by cells and
 *  bins; then divided by sqrt(2^-23 + the sum of the squares), bounded by l2thresh, and divided by the same root
 *  again.
 *
 *  A gradient is not finite where one of the four neighbours is NaN or infinite (in 32f, any channel of C3), or where
 *  gx^2 + gy^2 is beyond the range of floats, which it is not for pixels up to 10^18 in magnitude. All values of every
 *  block with such a gradient are NaN; other blocks are not touched by it, and the status is qvpStatusNoError.
 *
 *  The descriptor of a window is nbins floats for each cell of each block:
 *
 *  @code
 *    order of           cvCompatible = 0       cvCompatible != 0
 *    blocks             row by row             column by column
 *    cells of a block   (0,0) (1,0) (0,1) (1,1)   (0,0) (0,1) (1,0) (1,1)   as (across, down)
 *  @endcode
 *
 *  The region is trimmed at the right and below to whole blocks. Windows that do not lie within it are skipped:
 *  nothing is written for them, and the next descriptor takes their place. Source: N. Dalal and B. Triggs, Histograms
 *  of oriented gradients for human detection, 2005.
 *
 *  @param pSrc,srcStep source image; row starts need no alignment
 *  @param roiSize its size in pixels
 *  @param pLocation the first pixels of the windows. Null stands for one window at (0, 0)
 *  @param nLocations how many there are
 *  @param pDst receives the descriptors
 *  @param pHOGSpec the record
 *  @param borderID what is outside of the image
 *  @param borderValue the value of qvpBorderConst, one for each channel; never null
 *  @param pBuffer work buffer of qvpiHOGGetBufferSize() bytes for the region
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: the record, source, destination, border value or work buffer is null
 *  - qvpStatusContextMatch: the record was not made by qvpiHOGInit()
 *  - qvpStatusStep: the step is below 1
 *  - qvpStatusSize: the region is smaller than the window
 *  - qvpStatusBadArgument: nLocations is below 1
 *  - qvpStatusNullPointer: pLocation is null and nLocations is not 1
 *  - qvpStatusBorder: a border type other than those above
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiHOG_8u32f_C1R(const Qvp8u* pSrc, int srcStep, QvpiSize roiSize, const QvpiPoint* pLocation, int nLocations, Qvp32f* pDst, const QvpiHOGSpec* pHOGSpec, QvpiBorderType borderID, const Qvp8u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiHOG_8u32f_C3R(const Qvp8u* pSrc, int srcStep, QvpiSize roiSize, const QvpiPoint* pLocation, int nLocations, Qvp32f* pDst, const QvpiHOGSpec* pHOGSpec, QvpiBorderType borderID, const Qvp8u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiHOG_16u32f_C1R(const Qvp16u* pSrc, int srcStep, QvpiSize roiSize, const QvpiPoint* pLocation, int nLocations, Qvp32f* pDst, const QvpiHOGSpec* pHOGSpec, QvpiBorderType borderID, const Qvp16u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiHOG_16u32f_C3R(const Qvp16u* pSrc, int srcStep, QvpiSize roiSize, const QvpiPoint* pLocation, int nLocations, Qvp32f* pDst, const QvpiHOGSpec* pHOGSpec, QvpiBorderType borderID, const Qvp16u* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiHOG_16s32f_C1R(const Qvp16s* pSrc, int srcStep, QvpiSize roiSize, const QvpiPoint* pLocation, int nLocations, Qvp32f* pDst, const QvpiHOGSpec* pHOGSpec, QvpiBorderType borderID, const Qvp16s* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiHOG_16s32f_C3R(const Qvp16s* pSrc, int srcStep, QvpiSize roiSize, const QvpiPoint* pLocation, int nLocations, Qvp32f* pDst, const QvpiHOGSpec* pHOGSpec, QvpiBorderType borderID, const Qvp16s* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiHOG_32f_C1R(const Qvp32f* pSrc, int srcStep, QvpiSize roiSize, const QvpiPoint* pLocation, int nLocations, Qvp32f* pDst, const QvpiHOGSpec* pHOGSpec, QvpiBorderType borderID, const Qvp32f* borderValue, Qvp8u* pBuffer);
QvpStatus qvpiHOG_32f_C3R(const Qvp32f* pSrc, int srcStep, QvpiSize roiSize, const QvpiPoint* pLocation, int nLocations, Qvp32f* pDst, const QvpiHOGSpec* pHOGSpec, QvpiBorderType borderID, const Qvp32f* borderValue, Qvp8u* pBuffer);
/** @} */

/** @name Ramps
 *  @{ */
/** Fills a region with a plane: gradients, tables to try look-ups with, masks against vignetting.
 *
 *    v(x, y) = (start + slopeY * Y) + slopeX * X,    X = dstOffset.x + x,  Y = dstOffset.y + y
 *
 *  in double precision, each operation rounded; X and Y are exact. Stored as (float)v, or as an integer: to the
 *  nearest, ties to even, saturated; NaN gives the lowest value of the type. Every offset and every number is taken.
 *  With 8u, start 0 and slopeX 0.5 a row is 0 0 1 2 2 2 3 4.
 *
 *  A tile of a larger ramp has the place of its first pixel there as `dstOffset`, and the same bits.
 *
 *  @param start the value at (0, 0), one for each channel
 *  @param slopeX what is added from column to column, one for each channel
 *  @param slopeY what is added from row to row, one for each channel
 *  @param pDst,dstStep destination. The fourth channel of AC4 stays as it is
 *  @param roiSize size of the region
 *  @param dstOffset the place of the region's first pixel
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: a pointer is null
 *  - qvpStatusSize: a side of `roiSize` is below 1
 *  - qvpStatusStep: `dstStep` is below 1
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiRamp_8u_C1R(Qvp64f start, Qvp64f slopeX, Qvp64f slopeY, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpiPoint dstOffset);
QvpStatus qvpiRamp_8u_C3R(const Qvp64f start[3], const Qvp64f slopeX[3], const Qvp64f slopeY[3], Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpiPoint dstOffset);
QvpStatus qvpiRamp_8u_C4R(const Qvp64f start[4], const Qvp64f slopeX[4], const Qvp64f slopeY[4], Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpiPoint dstOffset);
QvpStatus qvpiRamp_8u_AC4R(const Qvp64f start[3], const Qvp64f slopeX[3], const Qvp64f slopeY[3], Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpiPoint dstOffset);
QvpStatus qvpiRamp_16u_C1R(Qvp64f start, Qvp64f slopeX, Qvp64f slopeY, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpiPoint dstOffset);
QvpStatus qvpiRamp_16u_C3R(const Qvp64f start[3], const Qvp64f slopeX[3], const Qvp64f slopeY[3], Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpiPoint dstOffset);
QvpStatus qvpiRamp_16u_C4R(const Qvp64f start[4], const Qvp64f slopeX[4], const Qvp64f slopeY[4], Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpiPoint dstOffset);
QvpStatus qvpiRamp_16u_AC4R(const Qvp64f start[3], const Qvp64f slopeX[3], const Qvp64f slopeY[3], Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpiPoint dstOffset);
QvpStatus qvpiRamp_16s_C1R(Qvp64f start, Qvp64f slopeX, Qvp64f slopeY, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpiPoint dstOffset);
QvpStatus qvpiRamp_16s_C3R(const Qvp64f start[3], const Qvp64f slopeX[3], const Qvp64f slopeY[3], Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpiPoint dstOffset);
QvpStatus qvpiRamp_16s_C4R(const Qvp64f start[4], const Qvp64f slopeX[4], const Qvp64f slopeY[4], Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpiPoint dstOffset);
QvpStatus qvpiRamp_16s_AC4R(const Qvp64f start[3], const Qvp64f slopeX[3], const Qvp64f slopeY[3], Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpiPoint dstOffset);
QvpStatus qvpiRamp_32f_C1R(Qvp64f start, Qvp64f slopeX, Qvp64f slopeY, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiPoint dstOffset);
QvpStatus qvpiRamp_32f_C3R(const Qvp64f start[3], const Qvp64f slopeX[3], const Qvp64f slopeY[3], Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiPoint dstOffset);
QvpStatus qvpiRamp_32f_C4R(const Qvp64f start[4], const Qvp64f slopeX[4], const Qvp64f slopeY[4], Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiPoint dstOffset);
QvpStatus qvpiRamp_32f_AC4R(const Qvp64f start[3], const Qvp64f slopeX[3], const Qvp64f slopeY[3], Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiPoint dstOffset);
/** @} */

/** @name Jaehne pattern
 *  @{ */
/** Draws the Jaehne pattern: rings whose frequency grows with the distance from the middle, so that all frequencies and
 *  directions are in one image. What a filter or a resize does to each of them is seen at its place, and aliasing shows
 *  as rings that are not there.
 *
 *  For an image of W x H pixels, m the lesser of the two, and X = 2 (dstOffset.x + x) - (W - 1), Y alike:
 *
 *    c = cos(2 pi (X^2 + Y^2) / (4 * minPeriod * m))
 *
 *  The period falls to `minPeriod` pixels at the distance m / 2 from the middle. What is stored:
 *
 *  @code
 *    8u    127.5 + 127.5 c        rounded
 *    16u   32767.5 + 32767.5 c    rounded
 *    16s   32767.5 c - 0.5        rounded
 *    32f   0.5 + 0.5 c            as float
 *  @endcode
 *
 *  to the nearest, ties to even. All channels are alike. c is made in double precision as cos f(X) cos f(Y) -
 *  sin f(X) sin f(Y), with f(Z) = 2 pi (Z^2 mod D) / D, D = 4 * minPeriod * m, reduced in whole numbers: exact to
 *  1e-14, so that integers are those of the formula but at ties, where they may be the other neighbour. Source: B.
 *  Jaehne, Digital Image Processing.
 *
 *  A tile of the image has the place of its first pixel as `dstOffset`, and the same bits.
 *
 *  @param imageSize size of the whole image
 *  @param minPeriod the shortest period in pixels
 *  @param pDst,dstStep destination
 *  @param roiSize size of the region that is drawn
 *  @param dstOffset the place of the region's first pixel in the image
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: `pDst` is null
 *  - qvpStatusSize: a side of `roiSize` is below 1, or one of `imageSize` outside 1 to 16777216
 *  - qvpStatusStep: `dstStep` is below 1
 *  - qvpStatusBadArgument: `minPeriod` is outside 2 to 65536
 *  - qvpStatusOutOfRange: the region is not within the image
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiJaehne_8u_C1R(QvpiSize imageSize, int minPeriod, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpiPoint dstOffset);
QvpStatus qvpiJaehne_8u_C3R(QvpiSize imageSize, int minPeriod, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpiPoint dstOffset);
QvpStatus qvpiJaehne_16u_C1R(QvpiSize imageSize, int minPeriod, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpiPoint dstOffset);
QvpStatus qvpiJaehne_16u_C3R(QvpiSize imageSize, int minPeriod, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpiPoint dstOffset);
QvpStatus qvpiJaehne_16s_C1R(QvpiSize imageSize, int minPeriod, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpiPoint dstOffset);
QvpStatus qvpiJaehne_16s_C3R(QvpiSize imageSize, int minPeriod, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpiPoint dstOffset);
QvpStatus qvpiJaehne_32f_C1R(QvpiSize imageSize, int minPeriod, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiPoint dstOffset);
QvpStatus qvpiJaehne_32f_C3R(QvpiSize imageSize, int minPeriod, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiPoint dstOffset);
/** @} */

/** @name Noise: records
 *  @{ */
/** Size of a record of noise of any kind: 128 bytes.
 *
 *  @param pSpecSize receives the size in bytes
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: `pSpecSize` is null
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiNoiseGetSize(int* pSpecSize);

/** Makes a record of uniform noise: qvpiNoise_8u_C1R() adds numbers from `low` to `high`.
 *
 *    v + (low + u * (high - low)),    u = (word >> 8) * 2^-24
 *
 *  @param low,high the bounds; as floats, and so is their difference
 *  @param seed,stream the key of the random numbers; see qvpiNoise_8u_C1R()
 *  @param pSpec the record. After a failure every function refuses it
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: `pSpec` is null
 *  - qvpStatusBadArgument: a bound or high - low is not a finite float
 *  - qvpStatusRange: `low` is above `high`
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiNoiseUniformInit(Qvp64f low, Qvp64f high, Qvp32u seed, Qvp32u stream, QvpiNoiseSpec* pSpec);

/** Makes a record of Gaussian noise: qvpiNoise_8u_C1R() adds numbers of a normal distribution.
 *
 *    v + (mean + sigma * g)
 *
 *  @param mean,sigma mean and standard deviation of what is added; as floats
 *  @param seed,stream the key of the random numbers; see qvpiNoise_8u_C1R()
 *  @param pSpec the record. After a failure every function refuses it
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: `pSpec` is null
 *  - qvpStatusBadArgument: a parameter is not a finite float, or `sigma` is below 0
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiNoiseGaussInit(Qvp64f mean, Qvp64f sigma, Qvp32u seed, Qvp32u stream, QvpiNoiseSpec* pSpec);

/** Makes a record of speckle: noise in proportion to the pixel, as of ultrasound and radar.
 *
 *    v + v * (sigma * g)
 *
 *  @param sigma standard deviation of a pixel of value 1; as float
 *  @param seed,stream the key of the random numbers; see qvpiNoise_8u_C1R()
 *  @param pSpec the record. After a failure every function refuses it
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: `pSpec` is null
 *  - qvpStatusBadArgument: `sigma` is not a finite float, or below 0
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiNoiseSpeckleInit(Qvp64f sigma, Qvp32u seed, Qvp32u stream, QvpiNoiseSpec* pSpec);

/** Makes a record of the noise of a camera: of photons, whose variance grows with the light, and of the read-out.
 *
 *    v + sqrt(gain * max(v, 0) + sigma^2) * g
 *
 *  @param gain what one photon adds to a pixel; as float
 *  @param sigma standard deviation of the read-out, where there is no light; as float, and so is its square
 *  @param seed,stream the key of the random numbers; see qvpiNoise_8u_C1R()
 *  @param pSpec the record. After a failure every function refuses it
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: `pSpec` is null
 *  - qvpStatusBadArgument: `gain`, `sigma` or sigma^2 is not a finite float, or below 0
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiNoiseShotInit(Qvp64f gain, Qvp64f sigma, Qvp32u seed, Qvp32u stream, QvpiNoiseSpec* pSpec);

/** Makes a record of salt and pepper: single pixels that are lost, dark or bright.
 *
 *  With hit = trunc(level * 2^32) and top = trunc((level * saltShare) * 2^32), in double precision, pixels whose word
 *  is below top become `salt`, others whose word is below hit `pepper`, in all channels that are processed; the rest
 *  stays as it is.
 *
 *  @param level the share of pixels that are lost, 0 to below 1
 *  @param saltShare the share of salt among these, 0 to 1
 *  @param pepper,salt the values of dark and of bright pixels: rounded to the type, ties to even, saturated
 *  @param seed,stream the key of the random numbers; see qvpiNoise_8u_C1R()
 *  @param pSpec the record. After a failure every function refuses it
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: `pSpec` is null
 *  - qvpStatusNoiseRange: `level` is not at least 0 and below 1
 *  - qvpStatusBadArgument: `saltShare` is not from 0 to 1, or `pepper` or `salt` is NaN
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiNoiseSaltPepperInit(Qvp64f level, Qvp64f saltShare, Qvp64f pepper, Qvp64f salt, Qvp32u seed, Qvp32u stream, QvpiNoiseSpec* pSpec);
/** @} */

/** @name Noise
 *  @{ */
/** Adds noise of the record's kind: to augment data, to test filters, to hide steps of grey.
 *
 *  Noise is a function of seed, stream, frame and place, and of nothing else: the same on every machine, for tiles in
 *  any order and on any number of threads. Another stream or frame gives noise that is independent of the first.
 *
 *  Random words are those of Philox 4x32-10. Sample i = (dstOffset.x + x) * channels + channel takes word i mod 4 of
 *  the block with the counter {i div 4, dstOffset.y + y, frame, 0} and the key {seed, stream}. AC4 counts as 4
 *  channels. Salt and pepper take one word for a pixel, i = dstOffset.x + x. With everything 0 the first words are
 *  6627E8D5 E169C58D BC57AC4C 9B00DBD8.
 *
 *  Normal numbers g come two from the words p, q of samples 2k and 2k + 1, of variance 1:
 *
 *    r = sqrt(-2 ln(((float)(p >> 1) + 1) * 2^-31)),    r * cos(2 pi q / 2^32) and r * sin(2 pi q / 2^32)
 *
 *  with the logarithm of qvpiLn_32f_C1R(), and sine and cosine exact to 2^-23. g is exact to 2e-6 and at most 6.56.
 *
 *  The formulas of the Init functions are evaluated in single precision, v the pixel. Integers are rounded to the
 *  nearest, ties to even, and saturated; a float pixel that is NaN stays NaN. Sources: J. Salmon, M. Moraes, R. Dror,
 *  D. Shaw, Parallel random numbers: as easy as 1, 2, 3, 2011; G. Box, M. Muller, A note on the generation of random
 *  normal deviates, 1958.
 *
 *  Source and destination may be the same image, else they must not overlap.
 *
 *  @param pSrc,srcStep source
 *  @param pDst,dstStep destination. The fourth channel of AC4 stays as it is
 *  @param pSrcDst,srcDstStep in place: source and destination
 *  @param roiSize size of the region
 *  @param dstOffset the place of the region's first pixel in the whole image
 *  @param frame number of the image, for sequences
 *  @param pSpec the record
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: an image or the record is null
 *  - qvpStatusSize: a side of `roiSize` is below 1
 *  - qvpStatusStep: a step is below 1
 *  - qvpStatusOutOfRange: `dstOffset` is negative, or the region ends beyond 2147483647
 *  - qvpStatusContextMatch: the record was not made by an Init function of noise
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiNoise_8u_C1R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpiPoint dstOffset, Qvp32u frame, const QvpiNoiseSpec* pSpec);
QvpStatus qvpiNoise_8u_C1IR(Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, QvpiPoint dstOffset, Qvp32u frame, const QvpiNoiseSpec* pSpec);
QvpStatus qvpiNoise_8u_C3R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpiPoint dstOffset, Qvp32u frame, const QvpiNoiseSpec* pSpec);
QvpStatus qvpiNoise_8u_C3IR(Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, QvpiPoint dstOffset, Qvp32u frame, const QvpiNoiseSpec* pSpec);
QvpStatus qvpiNoise_8u_C4R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpiPoint dstOffset, Qvp32u frame, const QvpiNoiseSpec* pSpec);
QvpStatus qvpiNoise_8u_C4IR(Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, QvpiPoint dstOffset, Qvp32u frame, const QvpiNoiseSpec* pSpec);
QvpStatus qvpiNoise_8u_AC4R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, QvpiPoint dstOffset, Qvp32u frame, const QvpiNoiseSpec* pSpec);
QvpStatus qvpiNoise_8u_AC4IR(Qvp8u* pSrcDst, int srcDstStep, QvpiSize roiSize, QvpiPoint dstOffset, Qvp32u frame, const QvpiNoiseSpec* pSpec);
QvpStatus qvpiNoise_16u_C1R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpiPoint dstOffset, Qvp32u frame, const QvpiNoiseSpec* pSpec);
QvpStatus qvpiNoise_16u_C1IR(Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, QvpiPoint dstOffset, Qvp32u frame, const QvpiNoiseSpec* pSpec);
QvpStatus qvpiNoise_16u_C3R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpiPoint dstOffset, Qvp32u frame, const QvpiNoiseSpec* pSpec);
QvpStatus qvpiNoise_16u_C3IR(Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, QvpiPoint dstOffset, Qvp32u frame, const QvpiNoiseSpec* pSpec);
QvpStatus qvpiNoise_16u_C4R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpiPoint dstOffset, Qvp32u frame, const QvpiNoiseSpec* pSpec);
QvpStatus qvpiNoise_16u_C4IR(Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, QvpiPoint dstOffset, Qvp32u frame, const QvpiNoiseSpec* pSpec);
QvpStatus qvpiNoise_16u_AC4R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, QvpiPoint dstOffset, Qvp32u frame, const QvpiNoiseSpec* pSpec);
QvpStatus qvpiNoise_16u_AC4IR(Qvp16u* pSrcDst, int srcDstStep, QvpiSize roiSize, QvpiPoint dstOffset, Qvp32u frame, const QvpiNoiseSpec* pSpec);
QvpStatus qvpiNoise_16s_C1R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpiPoint dstOffset, Qvp32u frame, const QvpiNoiseSpec* pSpec);
QvpStatus qvpiNoise_16s_C1IR(Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize, QvpiPoint dstOffset, Qvp32u frame, const QvpiNoiseSpec* pSpec);
QvpStatus qvpiNoise_16s_C3R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpiPoint dstOffset, Qvp32u frame, const QvpiNoiseSpec* pSpec);
QvpStatus qvpiNoise_16s_C3IR(Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize, QvpiPoint dstOffset, Qvp32u frame, const QvpiNoiseSpec* pSpec);
QvpStatus qvpiNoise_16s_C4R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpiPoint dstOffset, Qvp32u frame, const QvpiNoiseSpec* pSpec);
QvpStatus qvpiNoise_16s_C4IR(Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize, QvpiPoint dstOffset, Qvp32u frame, const QvpiNoiseSpec* pSpec);
QvpStatus qvpiNoise_16s_AC4R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, QvpiPoint dstOffset, Qvp32u frame, const QvpiNoiseSpec* pSpec);
QvpStatus qvpiNoise_16s_AC4IR(Qvp16s* pSrcDst, int srcDstStep, QvpiSize roiSize, QvpiPoint dstOffset, Qvp32u frame, const QvpiNoiseSpec* pSpec);
QvpStatus qvpiNoise_32f_C1R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiPoint dstOffset, Qvp32u frame, const QvpiNoiseSpec* pSpec);
QvpStatus qvpiNoise_32f_C1IR(Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize, QvpiPoint dstOffset, Qvp32u frame, const QvpiNoiseSpec* pSpec);
QvpStatus qvpiNoise_32f_C3R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiPoint dstOffset, Qvp32u frame, const QvpiNoiseSpec* pSpec);
QvpStatus qvpiNoise_32f_C3IR(Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize, QvpiPoint dstOffset, Qvp32u frame, const QvpiNoiseSpec* pSpec);
QvpStatus qvpiNoise_32f_C4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiPoint dstOffset, Qvp32u frame, const QvpiNoiseSpec* pSpec);
QvpStatus qvpiNoise_32f_C4IR(Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize, QvpiPoint dstOffset, Qvp32u frame, const QvpiNoiseSpec* pSpec);
QvpStatus qvpiNoise_32f_AC4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiPoint dstOffset, Qvp32u frame, const QvpiNoiseSpec* pSpec);
QvpStatus qvpiNoise_32f_AC4IR(Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize, QvpiPoint dstOffset, Qvp32u frame, const QvpiNoiseSpec* pSpec);
/** @} */

#ifdef __cplusplus
}
#endif

#endif
