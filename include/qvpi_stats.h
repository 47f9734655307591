/** @file qvpi_stats.h
 *  Numbers that sum up an image: norms, sums, extrema, dot products, quality, histograms and moments.
 *
 *  The conventions of every function are told in qvpi_core.h.
 *
 *  Sums of float images, and what is made of them, are computed in two ways. Samples are counted through all rows and
 *  channels of the region, and sample i goes to partial sum i mod 48, in single precision, or with the hint
 *  qvpAlgHintAccurate i mod 24, in double precision; at the end the partial sums of a channel are added in ascending
 *  order. So a result depends neither on the step nor on how wide an image of as many pixels is. Of n samples, those of
 *  all channels, the error is below
 *
 *  @code
 *    fast      (n / 48 + 100) * 2^-24
 *    accurate  (n / 24 + 100) * 2^-53
 *  @endcode
 *
 *  times the sum of the magnitudes of what is added in the channel, for up to 2^29 samples; of a relative norm that
 *  holds for both sums. Of a 1920 x 1080 image of one channel the first is 0.26 %, where of random pixels the error was
 *  5e-6. In the fast way, products and squares below 2^-126 add up to 2^-150 each, a partial sum beyond 3.4e38 is
 *  infinite, and one of ones stays at 2^24, which takes 805306368 samples.
 */
#ifndef QVPI_STATS_H
#define QVPI_STATS_H

#include "qvptypes.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @name Norms
 *  @{ */
/** Norm of each channel of an image, over its values v:
 *
 *  @code
 *    Inf  max |v|
 *    L1   sum |v|
 *    L2   sqrt(sum v^2)
 *  @endcode
 *
 *  All four channels of C4 are measured. Integers are measured exactly, |-32768| = 32768 and differences up to 65535
 *  included, and rounded to double once. L2 of 8-bit images wider than 32768 pixels adds the squares of the norms of
 *  strips of 32768 columns. Of floats, NaN pixels are skipped and infinite ones count; without any number the norm is
 *  0.
 *
 *  @param pSrc,srcStep source image
 *  @param roiSize size of the region in pixels
 *  @param pValue receives one norm for each channel
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: an image or `pValue` is null
 *  - qvpStatusSize: a side of the region is below 1
 *  - qvpStatusStep: a step is below 1
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiNorm_Inf_8u_C1R(const Qvp8u* pSrc, int srcStep, QvpiSize roiSize, Qvp64f* pValue);
QvpStatus qvpiNorm_Inf_8u_C3R(const Qvp8u* pSrc, int srcStep, QvpiSize roiSize, Qvp64f pValue[3]);
QvpStatus qvpiNorm_Inf_8u_C4R(const Qvp8u* pSrc, int srcStep, QvpiSize roiSize, Qvp64f pValue[4]);
QvpStatus qvpiNorm_Inf_16s_C1R(const Qvp16s* pSrc, int srcStep, QvpiSize roiSize, Qvp64f* pValue);
QvpStatus qvpiNorm_Inf_16s_C3R(const Qvp16s* pSrc, int srcStep, QvpiSize roiSize, Qvp64f pValue[3]);
QvpStatus qvpiNorm_Inf_16s_C4R(const Qvp16s* pSrc, int srcStep, QvpiSize roiSize, Qvp64f pValue[4]);
QvpStatus qvpiNorm_Inf_16u_C1R(const Qvp16u* pSrc, int srcStep, QvpiSize roiSize, Qvp64f* pValue);
QvpStatus qvpiNorm_Inf_16u_C3R(const Qvp16u* pSrc, int srcStep, QvpiSize roiSize, Qvp64f pValue[3]);
QvpStatus qvpiNorm_Inf_16u_C4R(const Qvp16u* pSrc, int srcStep, QvpiSize roiSize, Qvp64f pValue[4]);
QvpStatus qvpiNorm_Inf_32f_C1R(const Qvp32f* pSrc, int srcStep, QvpiSize roiSize, Qvp64f* pValue);
QvpStatus qvpiNorm_Inf_32f_C3R(const Qvp32f* pSrc, int srcStep, QvpiSize roiSize, Qvp64f pValue[3]);
QvpStatus qvpiNorm_Inf_32f_C4R(const Qvp32f* pSrc, int srcStep, QvpiSize roiSize, Qvp64f pValue[4]);
QvpStatus qvpiNorm_L1_8u_C1R(const Qvp8u* pSrc, int srcStep, QvpiSize roiSize, Qvp64f* pValue);
QvpStatus qvpiNorm_L1_8u_C3R(const Qvp8u* pSrc, int srcStep, QvpiSize roiSize, Qvp64f pValue[3]);
QvpStatus qvpiNorm_L1_8u_C4R(const Qvp8u* pSrc, int srcStep, QvpiSize roiSize, Qvp64f pValue[4]);
QvpStatus qvpiNorm_L1_16s_C1R(const Qvp16s* pSrc, int srcStep, QvpiSize roiSize, Qvp64f* pValue);
QvpStatus qvpiNorm_L1_16s_C3R(const Qvp16s* pSrc, int srcStep, QvpiSize roiSize, Qvp64f pValue[3]);
QvpStatus qvpiNorm_L1_16s_C4R(const Qvp16s* pSrc, int srcStep, QvpiSize roiSize, Qvp64f pValue[4]);
QvpStatus qvpiNorm_L1_16u_C1R(const Qvp16u* pSrc, int srcStep, QvpiSize roiSize, Qvp64f* pValue);
QvpStatus qvpiNorm_L1_16u_C3R(const Qvp16u* pSrc, int srcStep, QvpiSize roiSize, Qvp64f pValue[3]);
QvpStatus qvpiNorm_L1_16u_C4R(const Qvp16u* pSrc, int srcStep, QvpiSize roiSize, Qvp64f pValue[4]);
QvpStatus qvpiNorm_L2_8u_C1R(const Qvp8u* pSrc, int srcStep, QvpiSize roiSize, Qvp64f* pValue);
QvpStatus qvpiNorm_L2_8u_C3R(const Qvp8u* pSrc, int srcStep, QvpiSize roiSize, Qvp64f pValue[3]);
QvpStatus qvpiNorm_L2_8u_C4R(const Qvp8u* pSrc, int srcStep, QvpiSize roiSize, Qvp64f pValue[4]);
QvpStatus qvpiNorm_L2_16s_C1R(const Qvp16s* pSrc, int srcStep, QvpiSize roiSize, Qvp64f* pValue);
QvpStatus qvpiNorm_L2_16s_C3R(const Qvp16s* pSrc, int srcStep, QvpiSize roiSize, Qvp64f pValue[3]);
QvpStatus qvpiNorm_L2_16s_C4R(const Qvp16s* pSrc, int srcStep, QvpiSize roiSize, Qvp64f pValue[4]);
QvpStatus qvpiNorm_L2_16u_C1R(const Qvp16u* pSrc, int srcStep, QvpiSize roiSize, Qvp64f* pValue);
QvpStatus qvpiNorm_L2_16u_C3R(const Qvp16u* pSrc, int srcStep, QvpiSize roiSize, Qvp64f pValue[3]);
QvpStatus qvpiNorm_L2_16u_C4R(const Qvp16u* pSrc, int srcStep, QvpiSize roiSize, Qvp64f pValue[4]);
/** @} */

/** @name Norms of float images
 *  @{ */
/** Norm of each channel of an image, over its values v:
 *
 *  @code
 *    Inf  max |v|
 *    L1   sum |v|
 *    L2   sqrt(sum v^2)
 *  @endcode
 *
 *  NaN and infinite pixels go through the arithmetic.
 *
 *  @param pSrc,srcStep source image
 *  @param roiSize size of the region in pixels
 *  @param pValue receives one norm for each channel
 *  @param hint qvpAlgHintAccurate for double precision; any other value is the fast way, in single precision. The head
 *         of this file tells the errors of both
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: an image or `pValue` is null
 *  - qvpStatusSize: a side of the region is below 1
 *  - qvpStatusStep: a step is below 1
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiNorm_L1_32f_C1R(const Qvp32f* pSrc, int srcStep, QvpiSize roiSize, Qvp64f* pValue, QvpHintAlgorithm hint);
QvpStatus qvpiNorm_L1_32f_C3R(const Qvp32f* pSrc, int srcStep, QvpiSize roiSize, Qvp64f pValue[3], QvpHintAlgorithm hint);
QvpStatus qvpiNorm_L1_32f_C4R(const Qvp32f* pSrc, int srcStep, QvpiSize roiSize, Qvp64f pValue[4], QvpHintAlgorithm hint);
QvpStatus qvpiNorm_L2_32f_C1R(const Qvp32f* pSrc, int srcStep, QvpiSize roiSize, Qvp64f* pValue, QvpHintAlgorithm hint);
QvpStatus qvpiNorm_L2_32f_C3R(const Qvp32f* pSrc, int srcStep, QvpiSize roiSize, Qvp64f pValue[3], QvpHintAlgorithm hint);
QvpStatus qvpiNorm_L2_32f_C4R(const Qvp32f* pSrc, int srcStep, QvpiSize roiSize, Qvp64f pValue[4], QvpHintAlgorithm hint);
/** @} */

/** @name Norms of differences
 *  @{ */
/** Norm of each channel of the difference of two images, over its values v = src1 - src2:
 *
 *  @code
 *    Inf  max |v|
 *    L1   sum |v|
 *    L2   sqrt(sum v^2)
 *  @endcode
 *
 *  Integers are measured exactly, |-32768| = 32768 and differences up to 65535 included, and rounded to double once. Of
 *  floats, NaN pixels are skipped and infinite ones count; without any number the norm is 0.
 *
 *  @param pSrc1,src1Step first image
 *  @param pSrc2,src2Step second image
 *  @param roiSize size of the regions in pixels
 *  @param pValue receives one norm for each channel
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: an image or `pValue` is null
 *  - qvpStatusSize: a side of the region is below 1
 *  - qvpStatusStep: a step is below 1
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiNormDiff_Inf_8u_C1R(const Qvp8u* pSrc1, int src1Step, const Qvp8u* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f* pValue);
QvpStatus qvpiNormDiff_Inf_8u_C3R(const Qvp8u* pSrc1, int src1Step, const Qvp8u* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f pValue[3]);
QvpStatus qvpiNormDiff_Inf_8u_C4R(const Qvp8u* pSrc1, int src1Step, const Qvp8u* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f pValue[4]);
QvpStatus qvpiNormDiff_Inf_16s_C1R(const Qvp16s* pSrc1, int src1Step, const Qvp16s* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f* pValue);
QvpStatus qvpiNormDiff_Inf_16s_C3R(const Qvp16s* pSrc1, int src1Step, const Qvp16s* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f pValue[3]);
QvpStatus qvpiNormDiff_Inf_16s_C4R(const Qvp16s* pSrc1, int src1Step, const Qvp16s* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f pValue[4]);
QvpStatus qvpiNormDiff_Inf_16u_C1R(const Qvp16u* pSrc1, int src1Step, const Qvp16u* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f* pValue);
QvpStatus qvpiNormDiff_Inf_16u_C3R(const Qvp16u* pSrc1, int src1Step, const Qvp16u* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f pValue[3]);
QvpStatus qvpiNormDiff_Inf_16u_C4R(const Qvp16u* pSrc1, int src1Step, const Qvp16u* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f pValue[4]);
QvpStatus qvpiNormDiff_Inf_32f_C1R(const Qvp32f* pSrc1, int src1Step, const Qvp32f* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f* pValue);
QvpStatus qvpiNormDiff_Inf_32f_C3R(const Qvp32f* pSrc1, int src1Step, const Qvp32f* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f pValue[3]);
QvpStatus qvpiNormDiff_Inf_32f_C4R(const Qvp32f* pSrc1, int src1Step, const Qvp32f* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f pValue[4]);
QvpStatus qvpiNormDiff_L1_8u_C1R(const Qvp8u* pSrc1, int src1Step, const Qvp8u* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f* pValue);
QvpStatus qvpiNormDiff_L1_8u_C3R(const Qvp8u* pSrc1, int src1Step, const Qvp8u* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f pValue[3]);
QvpStatus qvpiNormDiff_L1_8u_C4R(const Qvp8u* pSrc1, int src1Step, const Qvp8u* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f pValue[4]);
QvpStatus qvpiNormDiff_L1_16s_C1R(const Qvp16s* pSrc1, int src1Step, const Qvp16s* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f* pValue);
QvpStatus qvpiNormDiff_L1_16s_C3R(const Qvp16s* pSrc1, int src1Step, const Qvp16s* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f pValue[3]);
QvpStatus qvpiNormDiff_L1_16s_C4R(const Qvp16s* pSrc1, int src1Step, const Qvp16s* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f pValue[4]);
QvpStatus qvpiNormDiff_L1_16u_C1R(const Qvp16u* pSrc1, int src1Step, const Qvp16u* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f* pValue);
QvpStatus qvpiNormDiff_L1_16u_C3R(const Qvp16u* pSrc1, int src1Step, const Qvp16u* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f pValue[3]);
QvpStatus qvpiNormDiff_L1_16u_C4R(const Qvp16u* pSrc1, int src1Step, const Qvp16u* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f pValue[4]);
QvpStatus qvpiNormDiff_L2_8u_C1R(const Qvp8u* pSrc1, int src1Step, const Qvp8u* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f* pValue);
QvpStatus qvpiNormDiff_L2_8u_C3R(const Qvp8u* pSrc1, int src1Step, const Qvp8u* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f pValue[3]);
QvpStatus qvpiNormDiff_L2_8u_C4R(const Qvp8u* pSrc1, int src1Step, const Qvp8u* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f pValue[4]);
QvpStatus qvpiNormDiff_L2_16s_C1R(const Qvp16s* pSrc1, int src1Step, const Qvp16s* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f* pValue);
QvpStatus qvpiNormDiff_L2_16s_C3R(const Qvp16s* pSrc1, int src1Step, const Qvp16s* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f pValue[3]);
QvpStatus qvpiNormDiff_L2_16s_C4R(const Qvp16s* pSrc1, int src1Step, const Qvp16s* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f pValue[4]);
QvpStatus qvpiNormDiff_L2_16u_C1R(const Qvp16u* pSrc1, int src1Step, const Qvp16u* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f* pValue);
QvpStatus qvpiNormDiff_L2_16u_C3R(const Qvp16u* pSrc1, int src1Step, const Qvp16u* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f pValue[3]);
QvpStatus qvpiNormDiff_L2_16u_C4R(const Qvp16u* pSrc1, int src1Step, const Qvp16u* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f pValue[4]);
/** @} */

/** @name Norms of differences of float images
 *  @{ */
/** Norm of each channel of the difference of two images, over its values v = src1 - src2:
 *
 *  @code
 *    Inf  max |v|
 *    L1   sum |v|
 *    L2   sqrt(sum v^2)
 *  @endcode
 *
 *  NaN and infinite pixels go through the arithmetic.
 *
 *  @param pSrc1,src1Step first image
 *  @param pSrc2,src2Step second image
 *  @param roiSize size of the regions in pixels
 *  @param pValue receives one norm for each channel
 *  @param hint qvpAlgHintAccurate for double precision; any other value is the fast way, in single precision. The head
 *         of this file tells the errors of both
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: an image or `pValue` is null
 *  - qvpStatusSize: a side of the region is below 1
 *  - qvpStatusStep: a step is below 1
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiNormDiff_L1_32f_C1R(const Qvp32f* pSrc1, int src1Step, const Qvp32f* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f* pValue, QvpHintAlgorithm hint);
QvpStatus qvpiNormDiff_L1_32f_C3R(const Qvp32f* pSrc1, int src1Step, const Qvp32f* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f pValue[3], QvpHintAlgorithm hint);
QvpStatus qvpiNormDiff_L1_32f_C4R(const Qvp32f* pSrc1, int src1Step, const Qvp32f* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f pValue[4], QvpHintAlgorithm hint);
QvpStatus qvpiNormDiff_L2_32f_C1R(const Qvp32f* pSrc1, int src1Step, const Qvp32f* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f* pValue, QvpHintAlgorithm hint);
QvpStatus qvpiNormDiff_L2_32f_C3R(const Qvp32f* pSrc1, int src1Step, const Qvp32f* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f pValue[3], QvpHintAlgorithm hint);
QvpStatus qvpiNormDiff_L2_32f_C4R(const Qvp32f* pSrc1, int src1Step, const Qvp32f* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f pValue[4], QvpHintAlgorithm hint);
/** @} */

/** @name Relative norms
 *  @{ */
/** Norm of each channel of the difference of two images, divided by the norm of the second one:
 *
 *  @code
 *    Inf, L1  norm(src1 - src2) / norm(src2)
 *    L2       sqrt(sum (src1 - src2)^2 / sum src2^2)
 *  @endcode
 *
 *  Where the second image has norm 0, the value is infinity, or NaN when the difference has it too, or is NaN. Of
 *  floats, NaN pixels are skipped and infinite ones count; without any number the norm is 0.
 *
 *  @param pSrc1,src1Step first image
 *  @param pSrc2,src2Step second image, which the difference is related to
 *  @param roiSize size of the regions in pixels
 *  @param pValue receives one value for each channel
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: an image or `pValue` is null
 *  - qvpStatusSize: a side of the region is below 1
 *  - qvpStatusStep: a step is below 1
 *  - qvpStatusDivideByZero: a warning, the second image has norm 0 in a channel; all values are written
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiNormRel_Inf_8u_C1R(const Qvp8u* pSrc1, int src1Step, const Qvp8u* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f* pValue);
QvpStatus qvpiNormRel_Inf_8u_C3R(const Qvp8u* pSrc1, int src1Step, const Qvp8u* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f pValue[3]);
QvpStatus qvpiNormRel_Inf_8u_C4R(const Qvp8u* pSrc1, int src1Step, const Qvp8u* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f pValue[4]);
QvpStatus qvpiNormRel_Inf_16s_C1R(const Qvp16s* pSrc1, int src1Step, const Qvp16s* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f* pValue);
QvpStatus qvpiNormRel_Inf_16s_C3R(const Qvp16s* pSrc1, int src1Step, const Qvp16s* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f pValue[3]);
QvpStatus qvpiNormRel_Inf_16s_C4R(const Qvp16s* pSrc1, int src1Step, const Qvp16s* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f pValue[4]);
QvpStatus qvpiNormRel_Inf_16u_C1R(const Qvp16u* pSrc1, int src1Step, const Qvp16u* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f* pValue);
QvpStatus qvpiNormRel_Inf_16u_C3R(const Qvp16u* pSrc1, int src1Step, const Qvp16u* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f pValue[3]);
QvpStatus qvpiNormRel_Inf_16u_C4R(const Qvp16u* pSrc1, int src1Step, const Qvp16u* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f pValue[4]);
QvpStatus qvpiNormRel_Inf_32f_C1R(const Qvp32f* pSrc1, int src1Step, const Qvp32f* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f* pValue);
QvpStatus qvpiNormRel_Inf_32f_C3R(const Qvp32f* pSrc1, int src1Step, const Qvp32f* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f pValue[3]);
QvpStatus qvpiNormRel_Inf_32f_C4R(const Qvp32f* pSrc1, int src1Step, const Qvp32f* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f pValue[4]);
QvpStatus qvpiNormRel_L1_8u_C1R(const Qvp8u* pSrc1, int src1Step, const Qvp8u* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f* pValue);
QvpStatus qvpiNormRel_L1_8u_C3R(const Qvp8u* pSrc1, int src1Step, const Qvp8u* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f pValue[3]);
QvpStatus qvpiNormRel_L1_8u_C4R(const Qvp8u* pSrc1, int src1Step, const Qvp8u* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f pValue[4]);
QvpStatus qvpiNormRel_L1_16s_C1R(const Qvp16s* pSrc1, int src1Step, const Qvp16s* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f* pValue);
QvpStatus qvpiNormRel_L1_16s_C3R(const Qvp16s* pSrc1, int src1Step, const Qvp16s* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f pValue[3]);
QvpStatus qvpiNormRel_L1_16s_C4R(const Qvp16s* pSrc1, int src1Step, const Qvp16s* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f pValue[4]);
QvpStatus qvpiNormRel_L1_16u_C1R(const Qvp16u* pSrc1, int src1Step, const Qvp16u* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f* pValue);
QvpStatus qvpiNormRel_L1_16u_C3R(const Qvp16u* pSrc1, int src1Step, const Qvp16u* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f pValue[3]);
QvpStatus qvpiNormRel_L1_16u_C4R(const Qvp16u* pSrc1, int src1Step, const Qvp16u* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f pValue[4]);
QvpStatus qvpiNormRel_L2_8u_C1R(const Qvp8u* pSrc1, int src1Step, const Qvp8u* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f* pValue);
QvpStatus qvpiNormRel_L2_8u_C3R(const Qvp8u* pSrc1, int src1Step, const Qvp8u* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f pValue[3]);
QvpStatus qvpiNormRel_L2_8u_C4R(const Qvp8u* pSrc1, int src1Step, const Qvp8u* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f pValue[4]);
QvpStatus qvpiNormRel_L2_16s_C1R(const Qvp16s* pSrc1, int src1Step, const Qvp16s* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f* pValue);
QvpStatus qvpiNormRel_L2_16s_C3R(const Qvp16s* pSrc1, int src1Step, const Qvp16s* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f pValue[3]);
QvpStatus qvpiNormRel_L2_16s_C4R(const Qvp16s* pSrc1, int src1Step, const Qvp16s* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f pValue[4]);
QvpStatus qvpiNormRel_L2_16u_C1R(const Qvp16u* pSrc1, int src1Step, const Qvp16u* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f* pValue);
QvpStatus qvpiNormRel_L2_16u_C3R(const Qvp16u* pSrc1, int src1Step, const Qvp16u* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f pValue[3]);
QvpStatus qvpiNormRel_L2_16u_C4R(const Qvp16u* pSrc1, int src1Step, const Qvp16u* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f pValue[4]);
/** @} */

/** @name Relative norms of float images
 *  @{ */
/** Norm of each channel of the difference of two images, divided by the norm of the second one:
 *
 *  @code
 *    Inf, L1  norm(src1 - src2) / norm(src2)
 *    L2       sqrt(sum (src1 - src2)^2 / sum src2^2)
 *  @endcode
 *
 *  Where the second image has norm 0, or below the smallest normal double, the value is infinity, or NaN
 *  when the difference has it too, or is NaN. NaN and infinite pixels go through the arithmetic.
 *
 *  @param pSrc1,src1Step first image
 *  @param pSrc2,src2Step second image, which the difference is related to
 *  @param roiSize size of the regions in pixels
 *  @param pValue receives one value for each channel
 *  @param hint qvpAlgHintAccurate for double precision; any other value is the fast way, in single precision. The head
 *         of this file tells the errors of both
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: an image or `pValue` is null
 *  - qvpStatusSize: a side of the region is below 1
 *  - qvpStatusStep: a step is below 1
 *  - qvpStatusDivideByZero: a warning, the second image has norm 0 in a channel; all values are written
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiNormRel_L1_32f_C1R(const Qvp32f* pSrc1, int src1Step, const Qvp32f* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f* pValue, QvpHintAlgorithm hint);
QvpStatus qvpiNormRel_L1_32f_C3R(const Qvp32f* pSrc1, int src1Step, const Qvp32f* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f pValue[3], QvpHintAlgorithm hint);
QvpStatus qvpiNormRel_L1_32f_C4R(const Qvp32f* pSrc1, int src1Step, const Qvp32f* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f pValue[4], QvpHintAlgorithm hint);
QvpStatus qvpiNormRel_L2_32f_C1R(const Qvp32f* pSrc1, int src1Step, const Qvp32f* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f* pValue, QvpHintAlgorithm hint);
QvpStatus qvpiNormRel_L2_32f_C3R(const Qvp32f* pSrc1, int src1Step, const Qvp32f* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f pValue[3], QvpHintAlgorithm hint);
QvpStatus qvpiNormRel_L2_32f_C4R(const Qvp32f* pSrc1, int src1Step, const Qvp32f* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f pValue[4], QvpHintAlgorithm hint);
/** @} */

/** @name Sums
 *  @{ */
/** Sum of each channel of an image. The sum is exact, and rounded to double once.
 *
 *  @param pSrc,srcStep source image, of any step: one of 0 repeats the first row, a negative one goes upwards
 *  @param roiSize size of the region in pixels
 *  @param pSum receives one value for each channel
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: the image or `pSum` is null
 *  - qvpStatusSize: a side of the region is below 1
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiSum_8u_C1R(const Qvp8u* pSrc, int srcStep, QvpiSize roiSize, Qvp64f* pSum);
QvpStatus qvpiSum_8u_C3R(const Qvp8u* pSrc, int srcStep, QvpiSize roiSize, Qvp64f pSum[3]);
QvpStatus qvpiSum_8u_C4R(const Qvp8u* pSrc, int srcStep, QvpiSize roiSize, Qvp64f pSum[4]);
QvpStatus qvpiSum_16s_C1R(const Qvp16s* pSrc, int srcStep, QvpiSize roiSize, Qvp64f* pSum);
QvpStatus qvpiSum_16s_C3R(const Qvp16s* pSrc, int srcStep, QvpiSize roiSize, Qvp64f pSum[3]);
QvpStatus qvpiSum_16s_C4R(const Qvp16s* pSrc, int srcStep, QvpiSize roiSize, Qvp64f pSum[4]);
QvpStatus qvpiSum_16u_C1R(const Qvp16u* pSrc, int srcStep, QvpiSize roiSize, Qvp64f* pSum);
QvpStatus qvpiSum_16u_C3R(const Qvp16u* pSrc, int srcStep, QvpiSize roiSize, Qvp64f pSum[3]);
QvpStatus qvpiSum_16u_C4R(const Qvp16u* pSrc, int srcStep, QvpiSize roiSize, Qvp64f pSum[4]);
/** @} */

/** @name Sums of float images
 *  @{ */
/** Sum of each channel of an image. NaN and infinite pixels go through the arithmetic.
 *
 *  @param pSrc,srcStep source image, of any step: one of 0 repeats the first row, a negative one goes upwards
 *  @param roiSize size of the region in pixels
 *  @param pSum receives one value for each channel
 *  @param hint qvpAlgHintAccurate for double precision; any other value is the fast way, in single precision. The head
 *         of this file tells the errors of both
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: the image or `pSum` is null
 *  - qvpStatusSize: a side of the region is below 1
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiSum_32f_C1R(const Qvp32f* pSrc, int srcStep, QvpiSize roiSize, Qvp64f* pSum, QvpHintAlgorithm hint);
QvpStatus qvpiSum_32f_C3R(const Qvp32f* pSrc, int srcStep, QvpiSize roiSize, Qvp64f pSum[3], QvpHintAlgorithm hint);
QvpStatus qvpiSum_32f_C4R(const Qvp32f* pSrc, int srcStep, QvpiSize roiSize, Qvp64f pSum[4], QvpHintAlgorithm hint);
/** @} */

/** @name Means
 *  @{ */
/** Mean of each channel of an image: its sum divided by the number of pixels. The sum is exact, and rounded to double
 *  once.
 *
 *  @param pSrc,srcStep source image, of any step: one of 0 repeats the first row, a negative one goes upwards
 *  @param roiSize size of the region in pixels
 *  @param pMean receives one value for each channel
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: the image or `pMean` is null
 *  - qvpStatusSize: a side of the region is below 1
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiMean_8u_C1R(const Qvp8u* pSrc, int srcStep, QvpiSize roiSize, Qvp64f* pMean);
QvpStatus qvpiMean_8u_C3R(const Qvp8u* pSrc, int srcStep, QvpiSize roiSize, Qvp64f pMean[3]);
QvpStatus qvpiMean_8u_C4R(const Qvp8u* pSrc, int srcStep, QvpiSize roiSize, Qvp64f pMean[4]);
QvpStatus qvpiMean_16s_C1R(const Qvp16s* pSrc, int srcStep, QvpiSize roiSize, Qvp64f* pMean);
QvpStatus qvpiMean_16s_C3R(const Qvp16s* pSrc, int srcStep, QvpiSize roiSize, Qvp64f pMean[3]);
QvpStatus qvpiMean_16s_C4R(const Qvp16s* pSrc, int srcStep, QvpiSize roiSize, Qvp64f pMean[4]);
QvpStatus qvpiMean_16u_C1R(const Qvp16u* pSrc, int srcStep, QvpiSize roiSize, Qvp64f* pMean);
QvpStatus qvpiMean_16u_C3R(const Qvp16u* pSrc, int srcStep, QvpiSize roiSize, Qvp64f pMean[3]);
QvpStatus qvpiMean_16u_C4R(const Qvp16u* pSrc, int srcStep, QvpiSize roiSize, Qvp64f pMean[4]);
/** @} */

/** @name Means of float images
 *  @{ */
/** Mean of each channel of an image: its sum divided by the number of pixels. NaN and infinite pixels go through the
 *  arithmetic.
 *
 *  @param pSrc,srcStep source image, of any step: one of 0 repeats the first row, a negative one goes upwards
 *  @param roiSize size of the region in pixels
 *  @param pMean receives one value for each channel
 *  @param hint qvpAlgHintAccurate for double precision; any other value is the fast way, in single precision. The head
 *         of this file tells the errors of both
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: the image or `pMean` is null
 *  - qvpStatusSize: a side of the region is below 1
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiMean_32f_C1R(const Qvp32f* pSrc, int srcStep, QvpiSize roiSize, Qvp64f* pMean, QvpHintAlgorithm hint);
QvpStatus qvpiMean_32f_C3R(const Qvp32f* pSrc, int srcStep, QvpiSize roiSize, Qvp64f pMean[3], QvpHintAlgorithm hint);
QvpStatus qvpiMean_32f_C4R(const Qvp32f* pSrc, int srcStep, QvpiSize roiSize, Qvp64f pMean[4], QvpHintAlgorithm hint);
/** @} */

/** @name Minimum
 *  @{ */
/** Least value of each channel of an image.
 *
 *  AC4 leaves the fourth channel out. NaN pixels are skipped; when there is nothing else, the value is that of the
 *  first pixel. Of zeros with different signs the first one counts.
 *
 *  @param pSrc,srcStep source image, of any step: one of 0 repeats the first row, a negative one goes upwards
 *  @param roiSize size of the region in pixels
 *  @param pMin receives one value for each channel
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: the image or `pMin` is null
 *  - qvpStatusSize: a side of the region is below 1
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiMin_8u_C1R(const Qvp8u* pSrc, int srcStep, QvpiSize roiSize, Qvp8u* pMin);
QvpStatus qvpiMin_8u_C3R(const Qvp8u* pSrc, int srcStep, QvpiSize roiSize, Qvp8u pMin[3]);
QvpStatus qvpiMin_8u_C4R(const Qvp8u* pSrc, int srcStep, QvpiSize roiSize, Qvp8u pMin[4]);
QvpStatus qvpiMin_8u_AC4R(const Qvp8u* pSrc, int srcStep, QvpiSize roiSize, Qvp8u pMin[3]);
QvpStatus qvpiMin_16s_C1R(const Qvp16s* pSrc, int srcStep, QvpiSize roiSize, Qvp16s* pMin);
QvpStatus qvpiMin_16s_C3R(const Qvp16s* pSrc, int srcStep, QvpiSize roiSize, Qvp16s pMin[3]);
QvpStatus qvpiMin_16s_C4R(const Qvp16s* pSrc, int srcStep, QvpiSize roiSize, Qvp16s pMin[4]);
QvpStatus qvpiMin_16s_AC4R(const Qvp16s* pSrc, int srcStep, QvpiSize roiSize, Qvp16s pMin[3]);
QvpStatus qvpiMin_16u_C1R(const Qvp16u* pSrc, int srcStep, QvpiSize roiSize, Qvp16u* pMin);
QvpStatus qvpiMin_16u_C3R(const Qvp16u* pSrc, int srcStep, QvpiSize roiSize, Qvp16u pMin[3]);
QvpStatus qvpiMin_16u_C4R(const Qvp16u* pSrc, int srcStep, QvpiSize roiSize, Qvp16u pMin[4]);
QvpStatus qvpiMin_16u_AC4R(const Qvp16u* pSrc, int srcStep, QvpiSize roiSize, Qvp16u pMin[3]);
QvpStatus qvpiMin_32f_C1R(const Qvp32f* pSrc, int srcStep, QvpiSize roiSize, Qvp32f* pMin);
QvpStatus qvpiMin_32f_C3R(const Qvp32f* pSrc, int srcStep, QvpiSize roiSize, Qvp32f pMin[3]);
QvpStatus qvpiMin_32f_C4R(const Qvp32f* pSrc, int srcStep, QvpiSize roiSize, Qvp32f pMin[4]);
QvpStatus qvpiMin_32f_AC4R(const Qvp32f* pSrc, int srcStep, QvpiSize roiSize, Qvp32f pMin[3]);
/** @} */

/** @name Maximum
 *  @{ */
/** Greatest value of each channel of an image.
 *
 *  AC4 leaves the fourth channel out. NaN pixels are skipped; when there is nothing else, the value is that of the
 *  first pixel. Of zeros with different signs the first one counts.
 *
 *  @param pSrc,srcStep source image, of any step: one of 0 repeats the first row, a negative one goes upwards
 *  @param roiSize size of the region in pixels
 *  @param pMax receives one value for each channel
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: the image or `pMax` is null
 *  - qvpStatusSize: a side of the region is below 1
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiMax_8u_C1R(const Qvp8u* pSrc, int srcStep, QvpiSize roiSize, Qvp8u* pMax);
QvpStatus qvpiMax_8u_C3R(const Qvp8u* pSrc, int srcStep, QvpiSize roiSize, Qvp8u pMax[3]);
QvpStatus qvpiMax_8u_C4R(const Qvp8u* pSrc, int srcStep, QvpiSize roiSize, Qvp8u pMax[4]);
QvpStatus qvpiMax_8u_AC4R(const Qvp8u* pSrc, int srcStep, QvpiSize roiSize, Qvp8u pMax[3]);
QvpStatus qvpiMax_16s_C1R(const Qvp16s* pSrc, int srcStep, QvpiSize roiSize, Qvp16s* pMax);
QvpStatus qvpiMax_16s_C3R(const Qvp16s* pSrc, int srcStep, QvpiSize roiSize, Qvp16s pMax[3]);
QvpStatus qvpiMax_16s_C4R(const Qvp16s* pSrc, int srcStep, QvpiSize roiSize, Qvp16s pMax[4]);
QvpStatus qvpiMax_16s_AC4R(const Qvp16s* pSrc, int srcStep, QvpiSize roiSize, Qvp16s pMax[3]);
QvpStatus qvpiMax_16u_C1R(const Qvp16u* pSrc, int srcStep, QvpiSize roiSize, Qvp16u* pMax);
QvpStatus qvpiMax_16u_C3R(const Qvp16u* pSrc, int srcStep, QvpiSize roiSize, Qvp16u pMax[3]);
QvpStatus qvpiMax_16u_C4R(const Qvp16u* pSrc, int srcStep, QvpiSize roiSize, Qvp16u pMax[4]);
QvpStatus qvpiMax_16u_AC4R(const Qvp16u* pSrc, int srcStep, QvpiSize roiSize, Qvp16u pMax[3]);
QvpStatus qvpiMax_32f_C1R(const Qvp32f* pSrc, int srcStep, QvpiSize roiSize, Qvp32f* pMax);
QvpStatus qvpiMax_32f_C3R(const Qvp32f* pSrc, int srcStep, QvpiSize roiSize, Qvp32f pMax[3]);
QvpStatus qvpiMax_32f_C4R(const Qvp32f* pSrc, int srcStep, QvpiSize roiSize, Qvp32f pMax[4]);
QvpStatus qvpiMax_32f_AC4R(const Qvp32f* pSrc, int srcStep, QvpiSize roiSize, Qvp32f pMax[3]);
/** @} */

/** @name Minimum and maximum
 *  @{ */
/** Least and greatest value of each channel of an image.
 *
 *  AC4 leaves the fourth channel out. NaN pixels are skipped; when there is nothing else, the value is that of the
 *  first pixel. Of zeros with different signs the first one counts.
 *
 *  @param pSrc,srcStep source image, of any step: one of 0 repeats the first row, a negative one goes upwards
 *  @param roiSize size of the region in pixels
 *  @param pMin,pMax receive one value for each channel
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: the image or a result is null
 *  - qvpStatusSize: a side of the region is below 1
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiMinMax_8u_C1R(const Qvp8u* pSrc, int srcStep, QvpiSize roiSize, Qvp8u* pMin, Qvp8u* pMax);
QvpStatus qvpiMinMax_8u_C3R(const Qvp8u* pSrc, int srcStep, QvpiSize roiSize, Qvp8u pMin[3], Qvp8u pMax[3]);
QvpStatus qvpiMinMax_8u_C4R(const Qvp8u* pSrc, int srcStep, QvpiSize roiSize, Qvp8u pMin[4], Qvp8u pMax[4]);
QvpStatus qvpiMinMax_8u_AC4R(const Qvp8u* pSrc, int srcStep, QvpiSize roiSize, Qvp8u pMin[3], Qvp8u pMax[3]);
QvpStatus qvpiMinMax_16s_C1R(const Qvp16s* pSrc, int srcStep, QvpiSize roiSize, Qvp16s* pMin, Qvp16s* pMax);
QvpStatus qvpiMinMax_16s_C3R(const Qvp16s* pSrc, int srcStep, QvpiSize roiSize, Qvp16s pMin[3], Qvp16s pMax[3]);
QvpStatus qvpiMinMax_16s_C4R(const Qvp16s* pSrc, int srcStep, QvpiSize roiSize, Qvp16s pMin[4], Qvp16s pMax[4]);
QvpStatus qvpiMinMax_16s_AC4R(const Qvp16s* pSrc, int srcStep, QvpiSize roiSize, Qvp16s pMin[3], Qvp16s pMax[3]);
QvpStatus qvpiMinMax_16u_C1R(const Qvp16u* pSrc, int srcStep, QvpiSize roiSize, Qvp16u* pMin, Qvp16u* pMax);
QvpStatus qvpiMinMax_16u_C3R(const Qvp16u* pSrc, int srcStep, QvpiSize roiSize, Qvp16u pMin[3], Qvp16u pMax[3]);
QvpStatus qvpiMinMax_16u_C4R(const Qvp16u* pSrc, int srcStep, QvpiSize roiSize, Qvp16u pMin[4], Qvp16u pMax[4]);
QvpStatus qvpiMinMax_16u_AC4R(const Qvp16u* pSrc, int srcStep, QvpiSize roiSize, Qvp16u pMin[3], Qvp16u pMax[3]);
QvpStatus qvpiMinMax_32f_C1R(const Qvp32f* pSrc, int srcStep, QvpiSize roiSize, Qvp32f* pMin, Qvp32f* pMax);
QvpStatus qvpiMinMax_32f_C3R(const Qvp32f* pSrc, int srcStep, QvpiSize roiSize, Qvp32f pMin[3], Qvp32f pMax[3]);
QvpStatus qvpiMinMax_32f_C4R(const Qvp32f* pSrc, int srcStep, QvpiSize roiSize, Qvp32f pMin[4], Qvp32f pMax[4]);
QvpStatus qvpiMinMax_32f_AC4R(const Qvp32f* pSrc, int srcStep, QvpiSize roiSize, Qvp32f pMin[3], Qvp32f pMax[3]);
/** @} */

/** @name Minimum with position
 *  @{ */
/** Least value of each channel of an image, and the first pixel that has it: the leftmost one of the topmost row.
 *
 *  AC4 leaves the fourth channel out. NaN pixels are skipped; when there is nothing else, the value is that of the
 *  first pixel. Of zeros with different signs the first one counts. The position is then (0, 0).
 *
 *  @param pSrc,srcStep source image, of any step: one of 0 repeats the first row, a negative one goes upwards
 *  @param roiSize size of the region in pixels
 *  @param pMin receives one value for each channel
 *  @param pIndexX,pIndexY receive column and row for each channel, counted from the first pixel of the region
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: the image or a result is null
 *  - qvpStatusSize: a side of the region is below 1
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiMinIndx_8u_C1R(const Qvp8u* pSrc, int srcStep, QvpiSize roiSize, Qvp8u* pMin, int* pIndexX, int* pIndexY);
QvpStatus qvpiMinIndx_8u_C3R(const Qvp8u* pSrc, int srcStep, QvpiSize roiSize, Qvp8u pMin[3], int pIndexX[3], int pIndexY[3]);
QvpStatus qvpiMinIndx_8u_C4R(const Qvp8u* pSrc, int srcStep, QvpiSize roiSize, Qvp8u pMin[4], int pIndexX[4], int pIndexY[4]);
QvpStatus qvpiMinIndx_8u_AC4R(const Qvp8u* pSrc, int srcStep, QvpiSize roiSize, Qvp8u pMin[3], int pIndexX[3], int pIndexY[3]);
QvpStatus qvpiMinIndx_16s_C1R(const Qvp16s* pSrc, int srcStep, QvpiSize roiSize, Qvp16s* pMin, int* pIndexX, int* pIndexY);
QvpStatus qvpiMinIndx_16s_C3R(const Qvp16s* pSrc, int srcStep, QvpiSize roiSize, Qvp16s pMin[3], int pIndexX[3], int pIndexY[3]);
QvpStatus qvpiMinIndx_16s_C4R(const Qvp16s* pSrc, int srcStep, QvpiSize roiSize, Qvp16s pMin[4], int pIndexX[4], int pIndexY[4]);
QvpStatus qvpiMinIndx_16s_AC4R(const Qvp16s* pSrc, int srcStep, QvpiSize roiSize, Qvp16s pMin[3], int pIndexX[3], int pIndexY[3]);
QvpStatus qvpiMinIndx_16u_C1R(const Qvp16u* pSrc, int srcStep, QvpiSize roiSize, Qvp16u* pMin, int* pIndexX, int* pIndexY);
QvpStatus qvpiMinIndx_16u_C3R(const Qvp16u* pSrc, int srcStep, QvpiSize roiSize, Qvp16u pMin[3], int pIndexX[3], int pIndexY[3]);
QvpStatus qvpiMinIndx_16u_C4R(const Qvp16u* pSrc, int srcStep, QvpiSize roiSize, Qvp16u pMin[4], int pIndexX[4], int pIndexY[4]);
QvpStatus qvpiMinIndx_16u_AC4R(const Qvp16u* pSrc, int srcStep, QvpiSize roiSize, Qvp16u pMin[3], int pIndexX[3], int pIndexY[3]);
QvpStatus qvpiMinIndx_32f_C1R(const Qvp32f* pSrc, int srcStep, QvpiSize roiSize, Qvp32f* pMin, int* pIndexX, int* pIndexY);
QvpStatus qvpiMinIndx_32f_C3R(const Qvp32f* pSrc, int srcStep, QvpiSize roiSize, Qvp32f pMin[3], int pIndexX[3], int pIndexY[3]);
QvpStatus qvpiMinIndx_32f_C4R(const Qvp32f* pSrc, int srcStep, QvpiSize roiSize, Qvp32f pMin[4], int pIndexX[4], int pIndexY[4]);
QvpStatus qvpiMinIndx_32f_AC4R(const Qvp32f* pSrc, int srcStep, QvpiSize roiSize, Qvp32f pMin[3], int pIndexX[3], int pIndexY[3]);
/** @} */

/** @name Maximum with position
 *  @{ */
/** Greatest value of each channel of an image, and the first pixel that has it: the leftmost one of the topmost row.
 *
 *  AC4 leaves the fourth channel out. NaN pixels are skipped; when there is nothing else, the value is that of the
 *  first pixel. Of zeros with different signs the first one counts. The position is then (0, 0).
 *
 *  @param pSrc,srcStep source image, of any step: one of 0 repeats the first row, a negative one goes upwards
 *  @param roiSize size of the region in pixels
 *  @param pMax receives one value for each channel
 *  @param pIndexX,pIndexY receive column and row for each channel, counted from the first pixel of the region
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: the image or a result is null
 *  - qvpStatusSize: a side of the region is below 1
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiMaxIndx_8u_C1R(const Qvp8u* pSrc, int srcStep, QvpiSize roiSize, Qvp8u* pMax, int* pIndexX, int* pIndexY);
QvpStatus qvpiMaxIndx_8u_C3R(const Qvp8u* pSrc, int srcStep, QvpiSize roiSize, Qvp8u pMax[3], int pIndexX[3], int pIndexY[3]);
QvpStatus qvpiMaxIndx_8u_C4R(const Qvp8u* pSrc, int srcStep, QvpiSize roiSize, Qvp8u pMax[4], int pIndexX[4], int pIndexY[4]);
QvpStatus qvpiMaxIndx_8u_AC4R(const Qvp8u* pSrc, int srcStep, QvpiSize roiSize, Qvp8u pMax[3], int pIndexX[3], int pIndexY[3]);
QvpStatus qvpiMaxIndx_16s_C1R(const Qvp16s* pSrc, int srcStep, QvpiSize roiSize, Qvp16s* pMax, int* pIndexX, int* pIndexY);
QvpStatus qvpiMaxIndx_16s_C3R(const Qvp16s* pSrc, int srcStep, QvpiSize roiSize, Qvp16s pMax[3], int pIndexX[3], int pIndexY[3]);
QvpStatus qvpiMaxIndx_16s_C4R(const Qvp16s* pSrc, int srcStep, QvpiSize roiSize, Qvp16s pMax[4], int pIndexX[4], int pIndexY[4]);
QvpStatus qvpiMaxIndx_16s_AC4R(const Qvp16s* pSrc, int srcStep, QvpiSize roiSize, Qvp16s pMax[3], int pIndexX[3], int pIndexY[3]);
QvpStatus qvpiMaxIndx_16u_C1R(const Qvp16u* pSrc, int srcStep, QvpiSize roiSize, Qvp16u* pMax, int* pIndexX, int* pIndexY);
QvpStatus qvpiMaxIndx_16u_C3R(const Qvp16u* pSrc, int srcStep, QvpiSize roiSize, Qvp16u pMax[3], int pIndexX[3], int pIndexY[3]);
QvpStatus qvpiMaxIndx_16u_C4R(const Qvp16u* pSrc, int srcStep, QvpiSize roiSize, Qvp16u pMax[4], int pIndexX[4], int pIndexY[4]);
QvpStatus qvpiMaxIndx_16u_AC4R(const Qvp16u* pSrc, int srcStep, QvpiSize roiSize, Qvp16u pMax[3], int pIndexX[3], int pIndexY[3]);
QvpStatus qvpiMaxIndx_32f_C1R(const Qvp32f* pSrc, int srcStep, QvpiSize roiSize, Qvp32f* pMax, int* pIndexX, int* pIndexY);
QvpStatus qvpiMaxIndx_32f_C3R(const Qvp32f* pSrc, int srcStep, QvpiSize roiSize, Qvp32f pMax[3], int pIndexX[3], int pIndexY[3]);
QvpStatus qvpiMaxIndx_32f_C4R(const Qvp32f* pSrc, int srcStep, QvpiSize roiSize, Qvp32f pMax[4], int pIndexX[4], int pIndexY[4]);
QvpStatus qvpiMaxIndx_32f_AC4R(const Qvp32f* pSrc, int srcStep, QvpiSize roiSize, Qvp32f pMax[3], int pIndexX[3], int pIndexY[3]);
/** @} */

/** @name Dot product
 *  @{ */
/** Sum of the products of two images, for each channel: sum src1(x, y) * src2(x, y).
 *
 *  Exact for 8-bit and 16-bit integers, and rounded to double once. Products and sums of the other types are in double
 *  precision, with the errors of the accurate way. AC4 leaves the fourth channel out.
 *
 *  @param pSrc1,src1Step first image, of any step but 0
 *  @param pSrc2,src2Step second image, of any step but 0
 *  @param roiSize size of the regions in pixels
 *  @param pDp receives one value for each channel
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: an image or `pDp` is null
 *  - qvpStatusSize: a side of the region is below 1, or a step is 0
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiDotProd_8u64f_C1R(const Qvp8u* pSrc1, int src1Step, const Qvp8u* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f* pDp);
QvpStatus qvpiDotProd_8u64f_C3R(const Qvp8u* pSrc1, int src1Step, const Qvp8u* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f pDp[3]);
QvpStatus qvpiDotProd_8u64f_C4R(const Qvp8u* pSrc1, int src1Step, const Qvp8u* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f pDp[4]);
QvpStatus qvpiDotProd_8u64f_AC4R(const Qvp8u* pSrc1, int src1Step, const Qvp8u* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f pDp[3]);
QvpStatus qvpiDotProd_16s64f_C1R(const Qvp16s* pSrc1, int src1Step, const Qvp16s* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f* pDp);
QvpStatus qvpiDotProd_16s64f_C3R(const Qvp16s* pSrc1, int src1Step, const Qvp16s* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f pDp[3]);
QvpStatus qvpiDotProd_16s64f_C4R(const Qvp16s* pSrc1, int src1Step, const Qvp16s* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f pDp[4]);
QvpStatus qvpiDotProd_16s64f_AC4R(const Qvp16s* pSrc1, int src1Step, const Qvp16s* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f pDp[3]);
QvpStatus qvpiDotProd_16u64f_C1R(const Qvp16u* pSrc1, int src1Step, const Qvp16u* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f* pDp);
QvpStatus qvpiDotProd_16u64f_C3R(const Qvp16u* pSrc1, int src1Step, const Qvp16u* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f pDp[3]);
QvpStatus qvpiDotProd_16u64f_C4R(const Qvp16u* pSrc1, int src1Step, const Qvp16u* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f pDp[4]);
QvpStatus qvpiDotProd_16u64f_AC4R(const Qvp16u* pSrc1, int src1Step, const Qvp16u* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f pDp[3]);
QvpStatus qvpiDotProd_32s64f_C1R(const Qvp32s* pSrc1, int src1Step, const Qvp32s* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f* pDp);
QvpStatus qvpiDotProd_32s64f_C3R(const Qvp32s* pSrc1, int src1Step, const Qvp32s* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f pDp[3]);
QvpStatus qvpiDotProd_32s64f_C4R(const Qvp32s* pSrc1, int src1Step, const Qvp32s* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f pDp[4]);
QvpStatus qvpiDotProd_32s64f_AC4R(const Qvp32s* pSrc1, int src1Step, const Qvp32s* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f pDp[3]);
QvpStatus qvpiDotProd_32u64f_C1R(const Qvp32u* pSrc1, int src1Step, const Qvp32u* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f* pDp);
QvpStatus qvpiDotProd_32u64f_C3R(const Qvp32u* pSrc1, int src1Step, const Qvp32u* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f pDp[3]);
QvpStatus qvpiDotProd_32u64f_C4R(const Qvp32u* pSrc1, int src1Step, const Qvp32u* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f pDp[4]);
QvpStatus qvpiDotProd_32u64f_AC4R(const Qvp32u* pSrc1, int src1Step, const Qvp32u* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f pDp[3]);
QvpStatus qvpiDotProd_32f64f_C4R(const Qvp32f* pSrc1, int src1Step, const Qvp32f* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f pDp[4]);
QvpStatus qvpiDotProd_32f64f_AC4R(const Qvp32f* pSrc1, int src1Step, const Qvp32f* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f pDp[3]);
/** @} */

/** @name Dot product of float images
 *  @{ */
/** Sum of the products of two images, for each channel: sum src1(x, y) * src2(x, y).
 *
 *  NaN and infinite pixels go through the arithmetic.
 *
 *  @param pSrc1,src1Step first image, of any step but 0
 *  @param pSrc2,src2Step second image, of any step but 0
 *  @param roiSize size of the regions in pixels
 *  @param pDp receives one value for each channel
 *  @param hint qvpAlgHintAccurate for double precision; any other value is the fast way, in single precision. The head
 *         of this file tells the errors of both
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: an image or `pDp` is null
 *  - qvpStatusSize: a side of the region is below 1, or a step is 0
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiDotProd_32f64f_C1R(const Qvp32f* pSrc1, int src1Step, const Qvp32f* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f* pDp, QvpHintAlgorithm hint);
QvpStatus qvpiDotProd_32f64f_C3R(const Qvp32f* pSrc1, int src1Step, const Qvp32f* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f pDp[3], QvpHintAlgorithm hint);
/** @} */

/** @name Weighted sum of rows
 *  @{ */
/** Adds rows, each times its tap: dst[x] = sum over k of taps[k] * rows[k][x].
 *
 *  Products and sums are in the type of the elements, in ascending order of k. The destination may be one of the rows.
 *
 *  @param ppSrcRow pointers to `numRows` rows of `len` elements
 *  @param pDst destination row of `len` elements
 *  @param numRows number of rows
 *  @param pTaps one factor for each row
 *  @param len elements in a row
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: an argument is null
 *  - qvpStatusSize: `len` or `numRows` is below 1
 *  - qvpStatusNullPointer: a row is null
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiDotProdCol_32f_L2(const Qvp32f* const ppSrcRow[], Qvp32f* pDst, int numRows, const Qvp32f* pTaps, int len);
QvpStatus qvpiDotProdCol_64f_L2(const Qvp64f* const ppSrcRow[], Qvp64f* pDst, int numRows, const Qvp64f* pTaps, int len);
/** @} */

/** @name Quality index
 *  @{ */
/** How much of a picture is left in another one: 1 for the same picture, less the more it has lost in structure,
 *  contrast and brightness, down to -1. The region is one window; for the mean over windows that slide over it see
 *  qvpiSSIM_8u_C1R().
 *
 *  With the N pixels x and y of a channel and their sums:
 *
 *  @code
 *    C = N Sxy - Sx Sy
 *    V = (N Sxx - Sx^2) + (N Syy - Sy^2)
 *    M = Sx^2 + Sy^2
 *    value = ((2 C) / V) ((2 (Sx Sy)) / M)
 *  @endcode
 *
 *  A factor whose denominator, V or M, is 0 counts as 1. AC4 compares the three colour channels.
 *
 *  Integers: sums, C and V are exact and rounded to double once, the rest is in double precision: 4 units in the last
 *  place of the exact value. Beyond 2^32 pixels blocks of rows have exact sums, which are added in double precision,
 *  as all that follows is then computed. 32f: in double precision, of the differences from the first pixels, which are
 *  summed in the fixed order of the accurate statistics, so that flat images have no variance; the error is below
 *  1e-11 up to 2^22 pixels where the first pixels lie within 10 standard deviations of the means. NaN and infinity in a
 *  channel give NaN.
 *
 *  Source: Z. Wang, A. C. Bovik, A universal image quality index, IEEE Signal Processing Letters, 2002.
 *
 *  @param pSrc1,src1Step first image
 *  @param pSrc2,src2Step second image
 *  @param roiSize size of both in pixels
 *  @param pValue receives one value for each channel, three of AC4
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: an image or `pValue` is null
 *  - qvpStatusSize: a side of the region is below 1
 *  - qvpStatusStep: a step is below 1
 *  - qvpStatusQualityIndex: V or M of a channel is 0, as of flat or black images; all values are written all the same
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiQualityIndex_8u_C1R(const Qvp8u* pSrc1, int src1Step, const Qvp8u* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f* pValue);
QvpStatus qvpiQualityIndex_8u_C3R(const Qvp8u* pSrc1, int src1Step, const Qvp8u* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f pValue[3]);
QvpStatus qvpiQualityIndex_8u_C4R(const Qvp8u* pSrc1, int src1Step, const Qvp8u* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f pValue[4]);
QvpStatus qvpiQualityIndex_8u_AC4R(const Qvp8u* pSrc1, int src1Step, const Qvp8u* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f pValue[3]);
QvpStatus qvpiQualityIndex_16u_C1R(const Qvp16u* pSrc1, int src1Step, const Qvp16u* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f* pValue);
QvpStatus qvpiQualityIndex_16u_C3R(const Qvp16u* pSrc1, int src1Step, const Qvp16u* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f pValue[3]);
QvpStatus qvpiQualityIndex_16u_C4R(const Qvp16u* pSrc1, int src1Step, const Qvp16u* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f pValue[4]);
QvpStatus qvpiQualityIndex_16u_AC4R(const Qvp16u* pSrc1, int src1Step, const Qvp16u* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f pValue[3]);
QvpStatus qvpiQualityIndex_16s_C1R(const Qvp16s* pSrc1, int src1Step, const Qvp16s* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f* pValue);
QvpStatus qvpiQualityIndex_16s_C3R(const Qvp16s* pSrc1, int src1Step, const Qvp16s* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f pValue[3]);
QvpStatus qvpiQualityIndex_16s_C4R(const Qvp16s* pSrc1, int src1Step, const Qvp16s* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f pValue[4]);
QvpStatus qvpiQualityIndex_16s_AC4R(const Qvp16s* pSrc1, int src1Step, const Qvp16s* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f pValue[3]);
QvpStatus qvpiQualityIndex_32f_C1R(const Qvp32f* pSrc1, int src1Step, const Qvp32f* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f* pValue);
QvpStatus qvpiQualityIndex_32f_C3R(const Qvp32f* pSrc1, int src1Step, const Qvp32f* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f pValue[3]);
QvpStatus qvpiQualityIndex_32f_C4R(const Qvp32f* pSrc1, int src1Step, const Qvp32f* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f pValue[4]);
QvpStatus qvpiQualityIndex_32f_AC4R(const Qvp32f* pSrc1, int src1Step, const Qvp32f* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f pValue[3]);
/** @} */

/** @name Structural similarity
 *  @{ */
/** How alike two pictures look: the mean, for each channel, of an index over square windows at every position where
 *  they lie inside the region. 1 for equal images, less the more they differ.
 *
 *  A window has w = windowSize pixels a side, of the weights g(j) g(i): a Gaussian of standard deviation `sigma`
 *  pixels, whose weights add up to 1, or with sigma 0 equal ones:
 *
 *  @code
 *    g(k) = e(k) / sum of all e,   e(k) = exp(-(k - (w - 1) / 2)^2 / (2 sigma^2))
 *    g(k) = 1 / w                  for sigma 0
 *  @endcode
 *
 *  With E the weighted mean over a window, of the pixels x of the first and y of the second image:
 *
 *  @code
 *    mx = E[x]   my = E[y]   V = E[x^2 + y^2] - (mx^2 + my^2)   C = E[x y] - mx my
 *    index = ((2 mx my + c1) / (mx^2 + my^2 + c1)) ((2 C + c2) / (V + c2))
 *  @endcode
 *
 *  c1 and c2 keep dark and flat windows from counting too much; they go with the square of the largest value L of the
 *  pixels: (0.01 L)^2 and (0.03 L)^2 are usual. The paper's choice for 8u is a window of 11, sigma 1.5, c1 = 6.5025,
 *  c2 = 58.5225. Windows of 8 with sigma 0 and c1 = c2 = 1e-6 give the mean of the quality index of 2002 over sliding
 *  windows, to 1e-9 (qvpiQualityIndex_8u_C1R() is that of one window).
 *
 *  All is computed in double precision; the error is below 1e-9 for 8u and 16u with the usual c1 and c2, and for 32f
 *  where the square of the largest magnitude is at most 1e5 c2. Equal images give exactly 1. NaN in a channel gives
 *  NaN. AC4 compares the three colour channels.
 *
 *  Source: Z. Wang, A. C. Bovik, H. R. Sheikh, E. P. Simoncelli, Image quality assessment: from error visibility to
 *  structural similarity, IEEE Transactions on Image Processing, 2004.
 *
 *  @param pSrc1,src1Step first image
 *  @param pSrc2,src2Step second image
 *  @param roiSize size of both in pixels
 *  @param pValue receives one mean for each channel, three of AC4
 *  @param windowSize side of a window in pixels, 2 to 31
 *  @param sigma 0, or the standard deviation of the weights in pixels, 0.1 to 1000
 *  @param c1,c2 above 0
 *  @param pBuffer work buffer of qvpiSSIMGetBufferSize() bytes, at any address
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: an image, `pValue` or the work buffer is null
 *  - qvpStatusSize: a side of the region is below 1
 *  - qvpStatusStep: a step is below 1
 *  - qvpStatusMaskSize: windowSize is outside 2 to 31
 *  - qvpStatusSize: a side of the region is below windowSize
 *  - qvpStatusBadArgument: sigma is neither 0 nor within its range, or c1 or c2 is not above 0 or not finite
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiSSIM_8u_C1R(const Qvp8u* pSrc1, int src1Step, const Qvp8u* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f* pValue, int windowSize, Qvp64f sigma, Qvp64f c1, Qvp64f c2, Qvp8u* pBuffer);
QvpStatus qvpiSSIM_8u_C3R(const Qvp8u* pSrc1, int src1Step, const Qvp8u* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f pValue[3], int windowSize, Qvp64f sigma, Qvp64f c1, Qvp64f c2, Qvp8u* pBuffer);
QvpStatus qvpiSSIM_8u_C4R(const Qvp8u* pSrc1, int src1Step, const Qvp8u* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f pValue[4], int windowSize, Qvp64f sigma, Qvp64f c1, Qvp64f c2, Qvp8u* pBuffer);
QvpStatus qvpiSSIM_8u_AC4R(const Qvp8u* pSrc1, int src1Step, const Qvp8u* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f pValue[3], int windowSize, Qvp64f sigma, Qvp64f c1, Qvp64f c2, Qvp8u* pBuffer);
QvpStatus qvpiSSIM_16u_C1R(const Qvp16u* pSrc1, int src1Step, const Qvp16u* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f* pValue, int windowSize, Qvp64f sigma, Qvp64f c1, Qvp64f c2, Qvp8u* pBuffer);
QvpStatus qvpiSSIM_16u_C3R(const Qvp16u* pSrc1, int src1Step, const Qvp16u* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f pValue[3], int windowSize, Qvp64f sigma, Qvp64f c1, Qvp64f c2, Qvp8u* pBuffer);
QvpStatus qvpiSSIM_16u_C4R(const Qvp16u* pSrc1, int src1Step, const Qvp16u* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f pValue[4], int windowSize, Qvp64f sigma, Qvp64f c1, Qvp64f c2, Qvp8u* pBuffer);
QvpStatus qvpiSSIM_16u_AC4R(const Qvp16u* pSrc1, int src1Step, const Qvp16u* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f pValue[3], int windowSize, Qvp64f sigma, Qvp64f c1, Qvp64f c2, Qvp8u* pBuffer);
QvpStatus qvpiSSIM_32f_C1R(const Qvp32f* pSrc1, int src1Step, const Qvp32f* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f* pValue, int windowSize, Qvp64f sigma, Qvp64f c1, Qvp64f c2, Qvp8u* pBuffer);
QvpStatus qvpiSSIM_32f_C3R(const Qvp32f* pSrc1, int src1Step, const Qvp32f* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f pValue[3], int windowSize, Qvp64f sigma, Qvp64f c1, Qvp64f c2, Qvp8u* pBuffer);
QvpStatus qvpiSSIM_32f_C4R(const Qvp32f* pSrc1, int src1Step, const Qvp32f* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f pValue[4], int windowSize, Qvp64f sigma, Qvp64f c1, Qvp64f c2, Qvp8u* pBuffer);
QvpStatus qvpiSSIM_32f_AC4R(const Qvp32f* pSrc1, int src1Step, const Qvp32f* pSrc2, int src2Step, QvpiSize roiSize, Qvp64f pValue[3], int windowSize, Qvp64f sigma, Qvp64f c1, Qvp64f c2, Qvp8u* pBuffer);
/** @} */

/** @name Structural similarity: work buffer
 *  @{ */
/** Size of the work buffer of qvpiSSIM for any type of pixel, which serves smaller regions and windows as well.
 *
 *  @param roiSize,windowSize as the call has them
 *  @param numChannels channels of a pixel: 1, 3 or 4; 4 for AC4
 *  @param pBufferSize receives the size in bytes
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: pBufferSize is null
 *  - qvpStatusNumChannels: numChannels is none of the above
 *  - qvpStatusSize: a side of the region is below 1
 *  - qvpStatusMaskSize: windowSize is outside 2 to 31
 *  - qvpStatusSize: a side of the region is below windowSize
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiSSIMGetBufferSize(QvpiSize roiSize, int windowSize, int numChannels, int* pBufferSize);
/** @} */

/** @name Histogram: sizes
 *  @{ */
/** Bytes of the record and of the work buffer of a histogram.
 *
 *  @param dataType pixel type: qvp8u, qvp16u, qvp16s or qvp32f
 *  @param roiSize size of the region in pixels
 *  @param nLevels number of levels of each channel, one more than it has bins
 *  @param numChannels 1, 3 or 4
 *  @param uniform no influence on the sizes
 *  @param pSpecSize receives the size of the record: 64 bytes and 4 for each level. The record begins at any address
 *  @param pBufferSize receives the size of the work buffer: 1024 bytes a channel for 8 bits, 262144 for 16 bits, none
 *         for floats
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: a pointer is null
 *  - qvpStatusSize: a side of the region is below 1
 *  - qvpStatusNumChannels: a number of channels other than 1, 3 and 4
 *  - qvpStatusHistoLevels: a channel has fewer than 2 levels
 *  - qvpStatusSizeOverflow: the record is larger than 2147483647 bytes; its size is set to 0
 *  - qvpStatusDataType: another pixel type; the record's size has been written, the buffer's is set to 0
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiHistogramGetBufferSize(QvpDataType dataType, QvpiSize roiSize, const int nLevels[], int numChannels, int uniform, int* pSpecSize, int* pBufferSize);
/** @} */

/** @name Histogram: any levels
 *  @{ */
/** Makes the record of a histogram whose bins lie between levels of the caller: bin i of a channel counts the values v
 *  with level[i] <= v < level[i + 1].
 *
 *  For integer pixels each level is replaced by the least integer that is not below it, which changes no count, and
 *  brought into the range of 32 bits.
 *
 *  @param dataType pixel type: qvp8u, qvp16u, qvp16s or qvp32f
 *  @param pLevels the levels of each channel, strictly increasing
 *  @param nLevels number of levels of each channel
 *  @param numChannels 1, 3 or 4
 *  @param pSpec receives the record
 *  @return, in the order of the checks:
 *  - qvpStatusDataType: another pixel type
 *  - qvpStatusNullPointer: `pLevels`, `nLevels` or `pSpec` is null
 *  - qvpStatusNumChannels: a number of channels other than 1, 3 and 4
 *  - then, for each channel: qvpStatusNullPointer: its levels are null
 *  - qvpStatusHistoLevels: fewer than 2 levels
 *  - qvpStatusRange: the levels do not increase strictly, or one is NaN
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiHistogramInit(QvpDataType dataType, const Qvp32f* const pLevels[], const int nLevels[], int numChannels, QvpiHistogramSpec* pSpec);
/** @} */

/** @name Histogram: equal bins
 *  @{ */
/** Makes the record of a histogram with bins of equal width: level[k] = lower + k * (upper - lower) / (n - 1), in
 *  double precision.
 *
 *  For integer pixels the levels are cut off toward zero, and brought into the range of 32 bits.
 *
 *  @param dataType pixel type: qvp8u, qvp16u, qvp16s or qvp32f
 *  @param lowerLevel first level of each channel
 *  @param upperLevel last level of each channel
 *  @param nLevels number of levels of each channel, n
 *  @param numChannels 1, 3 or 4
 *  @param pSpec receives the record
 *  @return, in the order of the checks:
 *  - qvpStatusDataType: another pixel type
 *  - qvpStatusNullPointer: a pointer is null
 *  - qvpStatusNumChannels: a number of channels other than 1, 3 and 4
 *  - then, for each channel: qvpStatusHistoLevels: fewer than 2 levels
 *  - qvpStatusRange: not lower < upper, or an infinite bound with levels in between
 *  - qvpStatusSizeWarning: a warning, bins of integer pixels are narrower than 1; the record is valid
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiHistogramUniformInit(QvpDataType dataType, const Qvp32f lowerLevel[], const Qvp32f upperLevel[], const int nLevels[], int numChannels, QvpiHistogramSpec* pSpec);
/** @} */

/** @name Histogram: levels
 *  @{ */
/** Copies the levels out of a record, those of integer pixels as they are used.
 *
 *  @param pSpec the record
 *  @param pLevels receive the levels of each channel
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: `pSpec` or `pLevels` is null
 *  - qvpStatusBadArgument: the record was not made by an Init function
 *  - qvpStatusNullPointer: an array for a channel is null
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiHistogramGetLevels(const QvpiHistogramSpec* pSpec, Qvp32f* const pLevels[]);
/** @} */

/** @name Histogram
 *  @{ */
/** Counts the pixels of each channel by bins: bin i has the values v with level[i] <= v < level[i + 1]. Values outside
 *  the levels are counted nowhere. Counts are modulo 2^32.
 *
 *  @param pSrc,srcStep source image
 *  @param roiSize size of the region in pixels
 *  @param pHist one array of counts for each channel, also for one channel; one count less than the channel has levels
 *  @param pSpec the record
 *  @param pBuffer work buffer, at any address
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: a pointer or an array of counts is null
 *  - qvpStatusSize: a side of the region is below 1
 *  - qvpStatusStep: the step is shorter than a row
 *  - qvpStatusBadArgument: the record was not made by an Init function, or for another pixel type or fewer channels
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiHistogram_8u_C1R(const Qvp8u* pSrc, int srcStep, QvpiSize roiSize, Qvp32u* const pHist[], const QvpiHistogramSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiHistogram_8u_C3R(const Qvp8u* pSrc, int srcStep, QvpiSize roiSize, Qvp32u* const pHist[], const QvpiHistogramSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiHistogram_8u_C4R(const Qvp8u* pSrc, int srcStep, QvpiSize roiSize, Qvp32u* const pHist[], const QvpiHistogramSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiHistogram_16u_C1R(const Qvp16u* pSrc, int srcStep, QvpiSize roiSize, Qvp32u* const pHist[], const QvpiHistogramSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiHistogram_16u_C3R(const Qvp16u* pSrc, int srcStep, QvpiSize roiSize, Qvp32u* const pHist[], const QvpiHistogramSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiHistogram_16u_C4R(const Qvp16u* pSrc, int srcStep, QvpiSize roiSize, Qvp32u* const pHist[], const QvpiHistogramSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiHistogram_16s_C1R(const Qvp16s* pSrc, int srcStep, QvpiSize roiSize, Qvp32u* const pHist[], const QvpiHistogramSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiHistogram_16s_C3R(const Qvp16s* pSrc, int srcStep, QvpiSize roiSize, Qvp32u* const pHist[], const QvpiHistogramSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiHistogram_16s_C4R(const Qvp16s* pSrc, int srcStep, QvpiSize roiSize, Qvp32u* const pHist[], const QvpiHistogramSpec* pSpec, Qvp8u* pBuffer);
/** @} */

/** @name Histogram of float images
 *  @{ */
/** Counts the pixels of each channel by bins: bin i has the values v with level[i] <= v < level[i + 1]. Values outside
 *  the levels and NaN are counted nowhere. Counts are modulo 2^32.
 *
 *  @param pSrc,srcStep source image
 *  @param roiSize size of the region in pixels
 *  @param pHist one array of counts for each channel, also for one channel; one count less than the channel has levels
 *  @param pSpec the record
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: a pointer or an array of counts is null
 *  - qvpStatusSize: a side of the region is below 1
 *  - qvpStatusStep: the step is shorter than a row
 *  - qvpStatusBadArgument: the record was not made by an Init function, or for another pixel type or fewer channels
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiHistogram_32f_C1R(const Qvp32f* pSrc, int srcStep, QvpiSize roiSize, Qvp32u* const pHist[], const QvpiHistogramSpec* pSpec);
QvpStatus qvpiHistogram_32f_C3R(const Qvp32f* pSrc, int srcStep, QvpiSize roiSize, Qvp32u* const pHist[], const QvpiHistogramSpec* pSpec);
QvpStatus qvpiHistogram_32f_C4R(const Qvp32f* pSrc, int srcStep, QvpiSize roiSize, Qvp32u* const pHist[], const QvpiHistogramSpec* pSpec);
/** @} */

/** @name Moments: record
 *  @{ */
/** Bytes of a record of moments.
 *
 *  @param hint no influence
 *  @param pSize receives the size, 400 bytes. The record begins at any address
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: `pSize` is null
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiMomentGetStateSize_64f(QvpHintAlgorithm hint, int* pSize);
/** @} */

/** @name Moments: initialisation
 *  @{ */
/** Makes an empty record of moments. It can be filled any number of times.
 *
 *  @param pState receives the record
 *  @param hint is stored, and has no influence: moments are always computed in double precision
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: `pState` is null
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiMomentInit_64f(QvpiMomentState_64f* pState, QvpHintAlgorithm hint);
/** @} */

/** @name Moments
 *  @{ */
/** Computes the moments M(m, n) = sum over (x, y) of x^m * y^n * v(x, y) of each channel up to m + n = 3. Columns x and
 *  rows y count from the first pixel of the region. AC4 leaves the fourth channel out.
 *
 *  Sums along a row are exact for integers, in double precision for floats; then everything is in double precision.
 *
 *  @param pSrc,srcStep source image
 *  @param roiSize size of the region in pixels
 *  @param pState receives the moments; those of an earlier call go
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: the image or `pState` is null
 *  - qvpStatusContextMatch: `pState` is not initialised
 *  - qvpStatusStep: the step is below 1
 *  - qvpStatusSize: a side of the region is below 1
 *  - qvpStatusStride: the step is shorter than a row
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiMoments64f_8u_C1R(const Qvp8u* pSrc, int srcStep, QvpiSize roiSize, QvpiMomentState_64f* pState);
QvpStatus qvpiMoments64f_8u_C3R(const Qvp8u* pSrc, int srcStep, QvpiSize roiSize, QvpiMomentState_64f* pState);
QvpStatus qvpiMoments64f_8u_AC4R(const Qvp8u* pSrc, int srcStep, QvpiSize roiSize, QvpiMomentState_64f* pState);
QvpStatus qvpiMoments64f_16u_C1R(const Qvp16u* pSrc, int srcStep, QvpiSize roiSize, QvpiMomentState_64f* pState);
QvpStatus qvpiMoments64f_16u_C3R(const Qvp16u* pSrc, int srcStep, QvpiSize roiSize, QvpiMomentState_64f* pState);
QvpStatus qvpiMoments64f_16u_AC4R(const Qvp16u* pSrc, int srcStep, QvpiSize roiSize, QvpiMomentState_64f* pState);
QvpStatus qvpiMoments64f_32f_C1R(const Qvp32f* pSrc, int srcStep, QvpiSize roiSize, QvpiMomentState_64f* pState);
QvpStatus qvpiMoments64f_32f_C3R(const Qvp32f* pSrc, int srcStep, QvpiSize roiSize, QvpiMomentState_64f* pState);
QvpStatus qvpiMoments64f_32f_AC4R(const Qvp32f* pSrc, int srcStep, QvpiSize roiSize, QvpiMomentState_64f* pState);
/** @} */

/** @name Moments: spatial
 *  @{ */
/** Moment about an origin of the caller: the sum over (x, y) of (x + x0)^m * (y + y0)^n * v(x, y).
 *
 *  @param pState the record
 *  @param mOrd,nOrd orders m and n, at most 3 together
 *  @param nChannel channel, from 0 on
 *  @param roiOffset position (x0, y0) of the region's first pixel
 *  @param pValue receives the moment
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: `pState` or `pValue` is null
 *  - qvpStatusContextMatch: `pState` is not initialised
 *  - qvpStatusSize: an order is negative, or their sum is above 3
 *  - qvpStatusChannel: the record has no such channel; before any computation it has none
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiGetSpatialMoment_64f(const QvpiMomentState_64f* pState, int mOrd, int nOrd, int nChannel, QvpiPoint roiOffset, Qvp64f* pValue);
/** @} */

/** @name Moments: central
 *  @{ */
/** Moment about the centre of mass: the sum over (x, y) of (x - xc)^m * (y - yc)^n * v(x, y), with xc = M(1, 0) / M(0,
 *  0) and yc = M(0, 1) / M(0, 0).
 *
 *  @param pState the record
 *  @param mOrd,nOrd orders m and n, at most 3 together
 *  @param nChannel channel, from 0 on
 *  @param pValue receives the moment
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: `pState` or `pValue` is null
 *  - qvpStatusContextMatch: `pState` is not initialised
 *  - qvpStatusSize: an order is negative, or their sum is above 3
 *  - qvpStatusChannel: the record has no such channel; before any computation it has none
 *  - qvpStatusMoment00Zero: |M(0, 0)| is not above 2.220446049250313e-16
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiGetCentralMoment_64f(const QvpiMomentState_64f* pState, int mOrd, int nOrd, int nChannel, Qvp64f* pValue);
/** @} */

/** @name Moments: normalised spatial
 *  @{ */
/** Moment about an origin of the caller, as qvpiGetSpatialMoment_64f gives it, divided by M(0, 0)^((m + n) / 2 + 1).
 *  The root of odd orders is that of |M(0, 0)|.
 *
 *  @param pState the record
 *  @param mOrd,nOrd orders m and n, at most 3 together
 *  @param nChannel channel, from 0 on
 *  @param roiOffset position (x0, y0) of the region's first pixel
 *  @param pValue receives the moment
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: `pState` or `pValue` is null
 *  - qvpStatusContextMatch: `pState` is not initialised
 *  - qvpStatusSize: an order is negative, or their sum is above 3
 *  - qvpStatusChannel: the record has no such channel; before any computation it has none
 *  - qvpStatusMoment00Zero: |M(0, 0)| is not above 2.220446049250313e-16
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiGetNormalizedSpatialMoment_64f(const QvpiMomentState_64f* pState, int mOrd, int nOrd, int nChannel, QvpiPoint roiOffset, Qvp64f* pValue);
/** @} */

/** @name Moments: normalised central
 *  @{ */
/** Moment about the centre of mass divided by M(0, 0)^((m + n) / 2 + 1), which does not depend on the scale of a shape.
 *  The root of odd orders is that of |M(0, 0)|.
 *
 *  @param pState the record
 *  @param mOrd,nOrd orders m and n, at most 3 together
 *  @param nChannel channel, from 0 on
 *  @param pValue receives the moment
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: `pState` or `pValue` is null
 *  - qvpStatusContextMatch: `pState` is not initialised
 *  - qvpStatusSize: an order is negative, or their sum is above 3
 *  - qvpStatusChannel: the record has no such channel; before any computation it has none
 *  - qvpStatusMoment00Zero: |M(0, 0)| is not above 2.220446049250313e-16
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiGetNormalizedCentralMoment_64f(const QvpiMomentState_64f* pState, int mOrd, int nOrd, int nChannel, Qvp64f* pValue);
/** @} */

/** @name Moments: Hu's invariants
 *  @{ */
/** The seven polynomials of the normalised central moments of orders 2 and 3 that depend on neither place, scale nor
 *  rotation of a shape (Hu, 1962), in Hu's order.
 *
 *  @param pState the record
 *  @param nChannel channel, from 0 on
 *  @param pHm receives the seven values
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: `pState` or `pHm` is null
 *  - qvpStatusContextMatch: `pState` is not initialised
 *  - qvpStatusChannel: the record has no such channel; before any computation it has none
 *  - qvpStatusMoment00Zero: |M(0, 0)| is not above 2.220446049250313e-16
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiGetHuMoments_64f(const QvpiMomentState_64f* pState, int nChannel, Qvp64f pHm[7]);
/** @} */

/** @name Matching: size of the buffer
 *  @{ */
/** Tells the size of the work buffer that template matching needs, for distances and correlations of any layout with so
 *  many channels.
 *
 *  The size has 63 bytes to spare, so memory of any alignment will do. It is for calls with just these sizes, and at
 *  most 96 MiB and 64 bytes for each column and row of the template, and each column of the image, in each channel.
 *
 *  @param dataType qvp8u, qvp16u, qvp16s or qvp32f
 *  @param numChannels channels of the images: 1, 3 or 4, alpha among them
 *  @param srcRoiSize size of the image
 *  @param tplRoiSize size of the template
 *  @param shape,norm,method as the call is given
 *  @param pBufferSize size of the work buffer in bytes
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: `pBufferSize` is null
 *  - qvpStatusDataType: `dataType` is none of the above
 *  - qvpStatusNumChannels: `numChannels` is none of the above
 *  - qvpStatusSize: a side is below 1; the template has more than 2147483647 pixels; qvpMatchValid: it is wider or higher
 *    than the image; qvpMatchFull: a side of the result is above 2147483647
 *  - qvpStatusNotSupportedMode: `shape` or `norm` is none of the constants
 *  - qvpStatusAlgType: `method` is none of the QvpiMethod ones
 *  - qvpStatusSizeOverflow: the size would be above 2147483647; it is 0 then
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiMatchGetBufferSize(QvpDataType dataType, int numChannels, QvpiSize srcRoiSize, QvpiSize tplRoiSize, QvpiMatchShape shape, QvpiMatchNorm norm, QvpiMethod method, int* pBufferSize);
/** @} */

/** @name Matching: correlation
 *  @{ */
/** Moves a template over an image and tells for each place how alike they are there: where is the template, how far is
 *  one picture shifted against another? The best place has the largest result.
 *
 *  The result at (x, y) belongs to the window, of the template's size w x h, whose first pixel is that at
 *  (x - ox, y - oy) of the image, which is W x H. Pixels outside of the image are 0 and count like all others.
 *
 *  | shape         | result               | ox, oy                                |
 *  |---------------|----------------------|---------------------------------------|
 *  | qvpMatchValid | W - w + 1, H - h + 1 | 0, 0                                  |
 *  | qvpMatchSame  | W, H                 | (w - 1) / 2, (h - 1) / 2, rounded down |
 *  | qvpMatchFull  | W + w - 1, H + h - 1 | w - 1, h - 1                          |
 *
 *  With s the pixels of a window, t those of the template, n = w h their number, and sums over all of them,
 *
 *  @code
 *    P = sum of s t,  A = sum of s^2,  B = sum of t^2,  S = sum of s,  T = sum of t
 *    centred and coefficient:  P <- n P - S T,  A <- n A - S^2,  B <- n B - T^2
 *  @endcode
 *
 *  | norm                | result            | what makes no difference to the best place |
 *  |---------------------|-------------------|--------------------------------------------|
 *  | qvpMatchPlain       | P                 |                                            |
 *  | qvpMatchNormed      | P / sqrt(A B)     | contrast, by which both are multiplied     |
 *  | qvpMatchCentred     | P / n             | brightness that is added                   |
 *  | qvpMatchCoefficient | P / sqrt(A B)     | both; from -1 to 1, 1 where all is alike   |
 *
 *  A quotient whose A B is 0, as that of flat windows, is 0. Forms with one layout take each channel by itself; C3C1 and
 *  AC4C1 make one result of all channels, of AC4 the first three: sums go over them too, and S T, S^2 and T^2 are sums
 *  of those of each channel. Alpha of an AC4 destination stays.
 *
 *  Integers: P, A, B and what is made of them are exact, each rounded to double once; then the root and the quotient are
 *  taken in double, and the result is rounded to float. All methods, shapes and parts of an image give the same bits, a
 *  perfect match gives exactly 1, no normed result passes 1.
 *
 *  Floats: sums are in double. Centred, every sample, zeros outside too, is taken less (float)(T / n) of its channel
 *  first. Directly, P is summed row by row, channels of a pixel in their order; A, S, B and T by doubling: sums of k
 *  samples make those of 2k, and with one more sample of 2k + 1, along rows and then down columns. By Fourier, P is
 *  within 1e-12 n max|s| max|t| before it is rounded to float. Normed results are clamped to [-1, 1]. A window counts as
 *  flat where A is, but for rounding, 0 when it is centred: at most 2^-40 of n A as it was before; the template likewise.
 *  NaN and infinities touch the results alone whose windows hold them.
 *
 *  qvpMethodAuto takes Fourier transforms if the template has more than 256 (8u), 128 (16u, 16s) or 64 (32f) pixels, and
 *  products otherwise; the same on all machines.
 *
 *  Rows 1 2 3, 4 5 6, 7 8 9 and the template 1 0, 0 2: valid 11 14, 20 23; same 11 14 3, 20 23 6, 7 8 9; the coefficient
 *  is 0.38138503 for all windows that lie inside. The destination must not overlap with a source; the sources may be one
 *  image.
 *
 *  @param pSrc,srcStep,srcRoiSize image, its size in pixels
 *  @param pTpl,tplStep,tplRoiSize template, its size in pixels
 *  @param pDst,dstStep destination, of the size above
 *  @param shape qvpMatchValid, qvpMatchSame or qvpMatchFull
 *  @param norm qvpMatchPlain, qvpMatchNormed, qvpMatchCentred or qvpMatchCoefficient
 *  @param method qvpMethodAuto, qvpMethodDirect or qvpMethodFourier
 *  @param pBuffer work buffer of the size that qvpiMatchGetBufferSize() tells for the same images and selectors
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: an image or `pBuffer` is null
 *  - qvpStatusSize: a side is below 1; the template has more than 2147483647 pixels; qvpMatchValid: it is wider or higher
 *    than the image; qvpMatchFull: a side of the result is above 2147483647
 *  - qvpStatusStep: a step is below 1
 *  - qvpStatusNotSupportedMode: `shape` or `norm` is none of the above
 *  - qvpStatusAlgType: `method` is none of the above
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiMatchCorrelation_8u32f_C1R(const Qvp8u* pSrc, int srcStep, QvpiSize srcRoiSize, const Qvp8u* pTpl, int tplStep, QvpiSize tplRoiSize, Qvp32f* pDst, int dstStep, QvpiMatchShape shape, QvpiMatchNorm norm, QvpiMethod method, Qvp8u* pBuffer);
QvpStatus qvpiMatchCorrelation_8u32f_C3R(const Qvp8u* pSrc, int srcStep, QvpiSize srcRoiSize, const Qvp8u* pTpl, int tplStep, QvpiSize tplRoiSize, Qvp32f* pDst, int dstStep, QvpiMatchShape shape, QvpiMatchNorm norm, QvpiMethod method, Qvp8u* pBuffer);
QvpStatus qvpiMatchCorrelation_8u32f_C4R(const Qvp8u* pSrc, int srcStep, QvpiSize srcRoiSize, const Qvp8u* pTpl, int tplStep, QvpiSize tplRoiSize, Qvp32f* pDst, int dstStep, QvpiMatchShape shape, QvpiMatchNorm norm, QvpiMethod method, Qvp8u* pBuffer);
QvpStatus qvpiMatchCorrelation_8u32f_AC4R(const Qvp8u* pSrc, int srcStep, QvpiSize srcRoiSize, const Qvp8u* pTpl, int tplStep, QvpiSize tplRoiSize, Qvp32f* pDst, int dstStep, QvpiMatchShape shape, QvpiMatchNorm norm, QvpiMethod method, Qvp8u* pBuffer);
QvpStatus qvpiMatchCorrelation_8u32f_C3C1R(const Qvp8u* pSrc, int srcStep, QvpiSize srcRoiSize, const Qvp8u* pTpl, int tplStep, QvpiSize tplRoiSize, Qvp32f* pDst, int dstStep, QvpiMatchShape shape, QvpiMatchNorm norm, QvpiMethod method, Qvp8u* pBuffer);
QvpStatus qvpiMatchCorrelation_8u32f_AC4C1R(const Qvp8u* pSrc, int srcStep, QvpiSize srcRoiSize, const Qvp8u* pTpl, int tplStep, QvpiSize tplRoiSize, Qvp32f* pDst, int dstStep, QvpiMatchShape shape, QvpiMatchNorm norm, QvpiMethod method, Qvp8u* pBuffer);
QvpStatus qvpiMatchCorrelation_16u32f_C1R(const Qvp16u* pSrc, int srcStep, QvpiSize srcRoiSize, const Qvp16u* pTpl, int tplStep, QvpiSize tplRoiSize, Qvp32f* pDst, int dstStep, QvpiMatchShape shape, QvpiMatchNorm norm, QvpiMethod method, Qvp8u* pBuffer);
QvpStatus qvpiMatchCorrelation_16u32f_C3R(const Qvp16u* pSrc, int srcStep, QvpiSize srcRoiSize, const Qvp16u* pTpl, int tplStep, QvpiSize tplRoiSize, Qvp32f* pDst, int dstStep, QvpiMatchShape shape, QvpiMatchNorm norm, QvpiMethod method, Qvp8u* pBuffer);
QvpStatus qvpiMatchCorrelation_16u32f_C4R(const Qvp16u* pSrc, int srcStep, QvpiSize srcRoiSize, const Qvp16u* pTpl, int tplStep, QvpiSize tplRoiSize, Qvp32f* pDst, int dstStep, QvpiMatchShape shape, QvpiMatchNorm norm, QvpiMethod method, Qvp8u* pBuffer);
QvpStatus qvpiMatchCorrelation_16u32f_AC4R(const Qvp16u* pSrc, int srcStep, QvpiSize srcRoiSize, const Qvp16u* pTpl, int tplStep, QvpiSize tplRoiSize, Qvp32f* pDst, int dstStep, QvpiMatchShape shape, QvpiMatchNorm norm, QvpiMethod method, Qvp8u* pBuffer);
QvpStatus qvpiMatchCorrelation_16u32f_C3C1R(const Qvp16u* pSrc, int srcStep, QvpiSize srcRoiSize, const Qvp16u* pTpl, int tplStep, QvpiSize tplRoiSize, Qvp32f* pDst, int dstStep, QvpiMatchShape shape, QvpiMatchNorm norm, QvpiMethod method, Qvp8u* pBuffer);
QvpStatus qvpiMatchCorrelation_16u32f_AC4C1R(const Qvp16u* pSrc, int srcStep, QvpiSize srcRoiSize, const Qvp16u* pTpl, int tplStep, QvpiSize tplRoiSize, Qvp32f* pDst, int dstStep, QvpiMatchShape shape, QvpiMatchNorm norm, QvpiMethod method, Qvp8u* pBuffer);
QvpStatus qvpiMatchCorrelation_16s32f_C1R(const Qvp16s* pSrc, int srcStep, QvpiSize srcRoiSize, const Qvp16s* pTpl, int tplStep, QvpiSize tplRoiSize, Qvp32f* pDst, int dstStep, QvpiMatchShape shape, QvpiMatchNorm norm, QvpiMethod method, Qvp8u* pBuffer);
QvpStatus qvpiMatchCorrelation_16s32f_C3R(const Qvp16s* pSrc, int srcStep, QvpiSize srcRoiSize, const Qvp16s* pTpl, int tplStep, QvpiSize tplRoiSize, Qvp32f* pDst, int dstStep, QvpiMatchShape shape, QvpiMatchNorm norm, QvpiMethod method, Qvp8u* pBuffer);
QvpStatus qvpiMatchCorrelation_16s32f_C4R(const Qvp16s* pSrc, int srcStep, QvpiSize srcRoiSize, const Qvp16s* pTpl, int tplStep, QvpiSize tplRoiSize, Qvp32f* pDst, int dstStep, QvpiMatchShape shape, QvpiMatchNorm norm, QvpiMethod method, Qvp8u* pBuffer);
QvpStatus qvpiMatchCorrelation_16s32f_AC4R(const Qvp16s* pSrc, int srcStep, QvpiSize srcRoiSize, const Qvp16s* pTpl, int tplStep, QvpiSize tplRoiSize, Qvp32f* pDst, int dstStep, QvpiMatchShape shape, QvpiMatchNorm norm, QvpiMethod method, Qvp8u* pBuffer);
QvpStatus qvpiMatchCorrelation_16s32f_C3C1R(const Qvp16s* pSrc, int srcStep, QvpiSize srcRoiSize, const Qvp16s* pTpl, int tplStep, QvpiSize tplRoiSize, Qvp32f* pDst, int dstStep, QvpiMatchShape shape, QvpiMatchNorm norm, QvpiMethod method, Qvp8u* pBuffer);
QvpStatus qvpiMatchCorrelation_16s32f_AC4C1R(const Qvp16s* pSrc, int srcStep, QvpiSize srcRoiSize, const Qvp16s* pTpl, int tplStep, QvpiSize tplRoiSize, Qvp32f* pDst, int dstStep, QvpiMatchShape shape, QvpiMatchNorm norm, QvpiMethod method, Qvp8u* pBuffer);
QvpStatus qvpiMatchCorrelation_32f_C1R(const Qvp32f* pSrc, int srcStep, QvpiSize srcRoiSize, const Qvp32f* pTpl, int tplStep, QvpiSize tplRoiSize, Qvp32f* pDst, int dstStep, QvpiMatchShape shape, QvpiMatchNorm norm, QvpiMethod method, Qvp8u* pBuffer);
QvpStatus qvpiMatchCorrelation_32f_C3R(const Qvp32f* pSrc, int srcStep, QvpiSize srcRoiSize, const Qvp32f* pTpl, int tplStep, QvpiSize tplRoiSize, Qvp32f* pDst, int dstStep, QvpiMatchShape shape, QvpiMatchNorm norm, QvpiMethod method, Qvp8u* pBuffer);
QvpStatus qvpiMatchCorrelation_32f_C4R(const Qvp32f* pSrc, int srcStep, QvpiSize srcRoiSize, const Qvp32f* pTpl, int tplStep, QvpiSize tplRoiSize, Qvp32f* pDst, int dstStep, QvpiMatchShape shape, QvpiMatchNorm norm, QvpiMethod method, Qvp8u* pBuffer);
QvpStatus qvpiMatchCorrelation_32f_AC4R(const Qvp32f* pSrc, int srcStep, QvpiSize srcRoiSize, const Qvp32f* pTpl, int tplStep, QvpiSize tplRoiSize, Qvp32f* pDst, int dstStep, QvpiMatchShape shape, QvpiMatchNorm norm, QvpiMethod method, Qvp8u* pBuffer);
QvpStatus qvpiMatchCorrelation_32f_C3C1R(const Qvp32f* pSrc, int srcStep, QvpiSize srcRoiSize, const Qvp32f* pTpl, int tplStep, QvpiSize tplRoiSize, Qvp32f* pDst, int dstStep, QvpiMatchShape shape, QvpiMatchNorm norm, QvpiMethod method, Qvp8u* pBuffer);
QvpStatus qvpiMatchCorrelation_32f_AC4C1R(const Qvp32f* pSrc, int srcStep, QvpiSize srcRoiSize, const Qvp32f* pTpl, int tplStep, QvpiSize tplRoiSize, Qvp32f* pDst, int dstStep, QvpiMatchShape shape, QvpiMatchNorm norm, QvpiMethod method, Qvp8u* pBuffer);
/** @} */

/** @name Matching: squared distance
 *  @{ */
/** Moves a template over an image and tells for each place how far apart they are there: the sum of the squares of their
 *  differences. The best place has the smallest result.
 *
 *  Windows, shapes, sums, centring, channels, exactness and methods are those of qvpiMatchCorrelation_8u32f_C1R(). With
 *  P, A and B from there,
 *
 *  | norm                | result                         |
 *  |---------------------|--------------------------------|
 *  | qvpMatchPlain       | A - 2 P + B                    |
 *  | qvpMatchNormed      | (A - 2 P + B) / sqrt(A B)      |
 *  | qvpMatchCentred     | (A - 2 P + B) / n              |
 *  | qvpMatchCoefficient | (A - 2 P + B) / sqrt(A B)      |
 *
 *  A quotient whose A B is 0 is 0 if A - 2 P + B is, else infinity. Integers: A - 2 P + B is exact, too, and 0 for a
 *  perfect match. Floats: one below 0 counts as 0; plain and normed ones are sums of (s - t)^2, in the order of P, where
 *  they are computed directly.
 *
 *  Rows 1 2 3, 4 5 6, 7 8 9 and the template 1 0, 0 2: valid 29 51, 119 165.
 *
 *  @param pSrc,srcStep,srcRoiSize image, its size in pixels
 *  @param pTpl,tplStep,tplRoiSize template, its size in pixels
 *  @param pDst,dstStep destination, of the size of that shape
 *  @param shape qvpMatchValid, qvpMatchSame or qvpMatchFull
 *  @param norm qvpMatchPlain, qvpMatchNormed, qvpMatchCentred or qvpMatchCoefficient
 *  @param method qvpMethodAuto, qvpMethodDirect or qvpMethodFourier
 *  @param pBuffer work buffer of the size that qvpiMatchGetBufferSize() tells for the same images and selectors
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: an image or `pBuffer` is null
 *  - qvpStatusSize: a side is below 1; the template has more than 2147483647 pixels; qvpMatchValid: it is wider or higher
 *    than the image; qvpMatchFull: a side of the result is above 2147483647
 *  - qvpStatusStep: a step is below 1
 *  - qvpStatusNotSupportedMode: `shape` or `norm` is none of the above
 *  - qvpStatusAlgType: `method` is none of the above
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiMatchDistance_8u32f_C1R(const Qvp8u* pSrc, int srcStep, QvpiSize srcRoiSize, const Qvp8u* pTpl, int tplStep, QvpiSize tplRoiSize, Qvp32f* pDst, int dstStep, QvpiMatchShape shape, QvpiMatchNorm norm, QvpiMethod method, Qvp8u* pBuffer);
QvpStatus qvpiMatchDistance_8u32f_C3R(const Qvp8u* pSrc, int srcStep, QvpiSize srcRoiSize, const Qvp8u* pTpl, int tplStep, QvpiSize tplRoiSize, Qvp32f* pDst, int dstStep, QvpiMatchShape shape, QvpiMatchNorm norm, QvpiMethod method, Qvp8u* pBuffer);
QvpStatus qvpiMatchDistance_8u32f_C4R(const Qvp8u* pSrc, int srcStep, QvpiSize srcRoiSize, const Qvp8u* pTpl, int tplStep, QvpiSize tplRoiSize, Qvp32f* pDst, int dstStep, QvpiMatchShape shape, QvpiMatchNorm norm, QvpiMethod method, Qvp8u* pBuffer);
QvpStatus qvpiMatchDistance_8u32f_AC4R(const Qvp8u* pSrc, int srcStep, QvpiSize srcRoiSize, const Qvp8u* pTpl, int tplStep, QvpiSize tplRoiSize, Qvp32f* pDst, int dstStep, QvpiMatchShape shape, QvpiMatchNorm norm, QvpiMethod method, Qvp8u* pBuffer);
QvpStatus qvpiMatchDistance_8u32f_C3C1R(const Qvp8u* pSrc, int srcStep, QvpiSize srcRoiSize, const Qvp8u* pTpl, int tplStep, QvpiSize tplRoiSize, Qvp32f* pDst, int dstStep, QvpiMatchShape shape, QvpiMatchNorm norm, QvpiMethod method, Qvp8u* pBuffer);
QvpStatus qvpiMatchDistance_8u32f_AC4C1R(const Qvp8u* pSrc, int srcStep, QvpiSize srcRoiSize, const Qvp8u* pTpl, int tplStep, QvpiSize tplRoiSize, Qvp32f* pDst, int dstStep, QvpiMatchShape shape, QvpiMatchNorm norm, QvpiMethod method, Qvp8u* pBuffer);
QvpStatus qvpiMatchDistance_16u32f_C1R(const Qvp16u* pSrc, int srcStep, QvpiSize srcRoiSize, const Qvp16u* pTpl, int tplStep, QvpiSize tplRoiSize, Qvp32f* pDst, int dstStep, QvpiMatchShape shape, QvpiMatchNorm norm, QvpiMethod method, Qvp8u* pBuffer);
QvpStatus qvpiMatchDistance_16u32f_C3R(const Qvp16u* pSrc, int srcStep, QvpiSize srcRoiSize, const Qvp16u* pTpl, int tplStep, QvpiSize tplRoiSize, Qvp32f* pDst, int dstStep, QvpiMatchShape shape, QvpiMatchNorm norm, QvpiMethod method, Qvp8u* pBuffer);
QvpStatus qvpiMatchDistance_16u32f_C4R(const Qvp16u* pSrc, int srcStep, QvpiSize srcRoiSize, const Qvp16u* pTpl, int tplStep, QvpiSize tplRoiSize, Qvp32f* pDst, int dstStep, QvpiMatchShape shape, QvpiMatchNorm norm, QvpiMethod method, Qvp8u* pBuffer);
QvpStatus qvpiMatchDistance_16u32f_AC4R(const Qvp16u* pSrc, int srcStep, QvpiSize srcRoiSize, const Qvp16u* pTpl, int tplStep, QvpiSize tplRoiSize, Qvp32f* pDst, int dstStep, QvpiMatchShape shape, QvpiMatchNorm norm, QvpiMethod method, Qvp8u* pBuffer);
QvpStatus qvpiMatchDistance_16u32f_C3C1R(const Qvp16u* pSrc, int srcStep, QvpiSize srcRoiSize, const Qvp16u* pTpl, int tplStep, QvpiSize tplRoiSize, Qvp32f* pDst, int dstStep, QvpiMatchShape shape, QvpiMatchNorm norm, QvpiMethod method, Qvp8u* pBuffer);
QvpStatus qvpiMatchDistance_16u32f_AC4C1R(const Qvp16u* pSrc, int srcStep, QvpiSize srcRoiSize, const Qvp16u* pTpl, int tplStep, QvpiSize tplRoiSize, Qvp32f* pDst, int dstStep, QvpiMatchShape shape, QvpiMatchNorm norm, QvpiMethod method, Qvp8u* pBuffer);
QvpStatus qvpiMatchDistance_16s32f_C1R(const Qvp16s* pSrc, int srcStep, QvpiSize srcRoiSize, const Qvp16s* pTpl, int tplStep, QvpiSize tplRoiSize, Qvp32f* pDst, int dstStep, QvpiMatchShape shape, QvpiMatchNorm norm, QvpiMethod method, Qvp8u* pBuffer);
QvpStatus qvpiMatchDistance_16s32f_C3R(const Qvp16s* pSrc, int srcStep, QvpiSize srcRoiSize, const Qvp16s* pTpl, int tplStep, QvpiSize tplRoiSize, Qvp32f* pDst, int dstStep, QvpiMatchShape shape, QvpiMatchNorm norm, QvpiMethod method, Qvp8u* pBuffer);
QvpStatus qvpiMatchDistance_16s32f_C4R(const Qvp16s* pSrc, int srcStep, QvpiSize srcRoiSize, const Qvp16s* pTpl, int tplStep, QvpiSize tplRoiSize, Qvp32f* pDst, int dstStep, QvpiMatchShape shape, QvpiMatchNorm norm, QvpiMethod method, Qvp8u* pBuffer);
QvpStatus qvpiMatchDistance_16s32f_AC4R(const Qvp16s* pSrc, int srcStep, QvpiSize srcRoiSize, const Qvp16s* pTpl, int tplStep, QvpiSize tplRoiSize, Qvp32f* pDst, int dstStep, QvpiMatchShape shape, QvpiMatchNorm norm, QvpiMethod method, Qvp8u* pBuffer);
QvpStatus qvpiMatchDistance_16s32f_C3C1R(const Qvp16s* pSrc, int srcStep, QvpiSize srcRoiSize, const Qvp16s* pTpl, int tplStep, QvpiSize tplRoiSize, Qvp32f* pDst, int dstStep, QvpiMatchShape shape, QvpiMatchNorm norm, QvpiMethod method, Qvp8u* pBuffer);
QvpStatus qvpiMatchDistance_16s32f_AC4C1R(const Qvp16s* pSrc, int srcStep, QvpiSize srcRoiSize, const Qvp16s* pTpl, int tplStep, QvpiSize tplRoiSize, Qvp32f* pDst, int dstStep, QvpiMatchShape shape, QvpiMatchNorm norm, QvpiMethod method, Qvp8u* pBuffer);
QvpStatus qvpiMatchDistance_32f_C1R(const Qvp32f* pSrc, int srcStep, QvpiSize srcRoiSize, const Qvp32f* pTpl, int tplStep, QvpiSize tplRoiSize, Qvp32f* pDst, int dstStep, QvpiMatchShape shape, QvpiMatchNorm norm, QvpiMethod method, Qvp8u* pBuffer);
QvpStatus qvpiMatchDistance_32f_C3R(const Qvp32f* pSrc, int srcStep, QvpiSize srcRoiSize, const Qvp32f* pTpl, int tplStep, QvpiSize tplRoiSize, Qvp32f* pDst, int dstStep, QvpiMatchShape shape, QvpiMatchNorm norm, QvpiMethod method, Qvp8u* pBuffer);
QvpStatus qvpiMatchDistance_32f_C4R(const Qvp32f* pSrc, int srcStep, QvpiSize srcRoiSize, const Qvp32f* pTpl, int tplStep, QvpiSize tplRoiSize, Qvp32f* pDst, int dstStep, QvpiMatchShape shape, QvpiMatchNorm norm, QvpiMethod method, Qvp8u* pBuffer);
QvpStatus qvpiMatchDistance_32f_AC4R(const Qvp32f* pSrc, int srcStep, QvpiSize srcRoiSize, const Qvp32f* pTpl, int tplStep, QvpiSize tplRoiSize, Qvp32f* pDst, int dstStep, QvpiMatchShape shape, QvpiMatchNorm norm, QvpiMethod method, Qvp8u* pBuffer);
QvpStatus qvpiMatchDistance_32f_C3C1R(const Qvp32f* pSrc, int srcStep, QvpiSize srcRoiSize, const Qvp32f* pTpl, int tplStep, QvpiSize tplRoiSize, Qvp32f* pDst, int dstStep, QvpiMatchShape shape, QvpiMatchNorm norm, QvpiMethod method, Qvp8u* pBuffer);
QvpStatus qvpiMatchDistance_32f_AC4C1R(const Qvp32f* pSrc, int srcStep, QvpiSize srcRoiSize, const Qvp32f* pTpl, int tplStep, QvpiSize tplRoiSize, Qvp32f* pDst, int dstStep, QvpiMatchShape shape, QvpiMatchNorm norm, QvpiMethod method, Qvp8u* pBuffer);
/** @} */

#ifdef __cplusplus
}
#endif

#endif
