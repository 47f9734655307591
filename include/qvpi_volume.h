/** @file qvpi_volume.h
 *  Volumes: copies with a border, resizing, general filters, medians, affine warps, remap, and transforms in space.
 *
 *  The conventions of every function are told in qvpi_core.h. Beyond them, of volumes:
 *
 *  A volume has one channel and `depth` planes of `height` rows of `width` voxels. x goes right, y down, z to the back;
 *  voxel (0, 0, 0) is the first one of the first plane, and voxels lie at whole coordinates. Its address is that of the
 *  first voxel + x * size of a voxel + y * step + z * planeStep: the steps, in bytes, are independent of each other and
 *  at least 1. With the two exchanged the same memory is seen from above, row by row of all planes: a coronal view
 *  without a copy. Addresses are pointer-wide: a volume may be larger than 2 GiB, a single plane may not.
 *
 *  Functions that end with `V` take such a volume. Those that end with `PV` take an array of plane pointers and one row
 *  step: slices that were loaded one by one, or a window of a long stack. Entry k is plane k; planes in front of the
 *  region, if they are in memory, are entries -1, -2 and so on. Results are the same, to the bit.
 *
 *  Filters take a border type: a kind, combined with the faces that are in memory, of the four sides and of
 *  qvpBorderInMemFront and qvpBorderInMemBack. A face in memory is read where it lies as far as the filter reaches; the
 *  kind applies outside of the region so enlarged, coordinate by coordinate, the constant wherever one is outside.
 *  qvpBorderInMemVolume stands without a kind too.
 */
#ifndef QVPI_VOLUME_H
#define QVPI_VOLUME_H

#include "qvptypes.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @name Volumes: copies with a border
 *  @{ */
/** Copies a volume into a larger one and fills the rest: qvprCopyReplicateBorder with the nearest voxel of the source,
 *  qvprCopyConstBorder with a value.
 *
 *  @code
 *    dst(x, y, z) = src(clamp(x - leftBorderWidth), clamp(y - topBorderHeight), clamp(z - frontBorderDepth))
 *  @endcode
 *
 *  or `value` where one of the three is outside of the source. What the source and these borders leave of the
 *  destination is the border to the right, below and behind. Bits are moved. A voxel of 5 in the middle of 3 x 3 x 3
 *  with the value 9 around it gives the sum 239.
 *
 *  The source may lie at its place in the destination, with the same steps: then only the border is written. Else the
 *  volumes must not overlap.
 *
 *  @param pSrc,srcStep,srcPlaneStep,srcVolume source and its size
 *  @param pDst,dstStep,dstPlaneStep,dstVolume destination and its size
 *  @param topBorderHeight rows above the source in each plane
 *  @param leftBorderWidth columns left of it
 *  @param frontBorderDepth planes in front of it
 *  @param value of the border
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: a volume's pointer is null
 *  - qvpStatusSize: a length of a volume is below 1
 *  - qvpStatusStep: a step is below 1
 *  - qvpStatusSize: a border is below 0; a length of the destination is below that of the source and its border
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvprCopyReplicateBorder_8u_C1V(const Qvp8u* pSrc, int srcStep, int srcPlaneStep, QvprVolume srcVolume, Qvp8u* pDst, int dstStep, int dstPlaneStep, QvprVolume dstVolume, int topBorderHeight, int leftBorderWidth, int frontBorderDepth);
QvpStatus qvprCopyReplicateBorder_16u_C1V(const Qvp16u* pSrc, int srcStep, int srcPlaneStep, QvprVolume srcVolume, Qvp16u* pDst, int dstStep, int dstPlaneStep, QvprVolume dstVolume, int topBorderHeight, int leftBorderWidth, int frontBorderDepth);
QvpStatus qvprCopyReplicateBorder_16s_C1V(const Qvp16s* pSrc, int srcStep, int srcPlaneStep, QvprVolume srcVolume, Qvp16s* pDst, int dstStep, int dstPlaneStep, QvprVolume dstVolume, int topBorderHeight, int leftBorderWidth, int frontBorderDepth);
QvpStatus qvprCopyReplicateBorder_32f_C1V(const Qvp32f* pSrc, int srcStep, int srcPlaneStep, QvprVolume srcVolume, Qvp32f* pDst, int dstStep, int dstPlaneStep, QvprVolume dstVolume, int topBorderHeight, int leftBorderWidth, int frontBorderDepth);
QvpStatus qvprCopyConstBorder_8u_C1V(const Qvp8u* pSrc, int srcStep, int srcPlaneStep, QvprVolume srcVolume, Qvp8u* pDst, int dstStep, int dstPlaneStep, QvprVolume dstVolume, int topBorderHeight, int leftBorderWidth, int frontBorderDepth, Qvp8u value);
QvpStatus qvprCopyConstBorder_16u_C1V(const Qvp16u* pSrc, int srcStep, int srcPlaneStep, QvprVolume srcVolume, Qvp16u* pDst, int dstStep, int dstPlaneStep, QvprVolume dstVolume, int topBorderHeight, int leftBorderWidth, int frontBorderDepth, Qvp16u value);
QvpStatus qvprCopyConstBorder_16s_C1V(const Qvp16s* pSrc, int srcStep, int srcPlaneStep, QvprVolume srcVolume, Qvp16s* pDst, int dstStep, int dstPlaneStep, QvprVolume dstVolume, int topBorderHeight, int leftBorderWidth, int frontBorderDepth, Qvp16s value);
QvpStatus qvprCopyConstBorder_32f_C1V(const Qvp32f* pSrc, int srcStep, int srcPlaneStep, QvprVolume srcVolume, Qvp32f* pDst, int dstStep, int dstPlaneStep, QvprVolume dstVolume, int topBorderHeight, int leftBorderWidth, int frontBorderDepth, Qvp32f value);
/** @} */

/** @name Volumes: resizing, records
 *  @{ */
/** Prepares a change of spacing: of a whole source to a whole destination, of which the resizing functions then make any
 *  part.
 *
 *  With n voxels of the source and m of the destination along an axis, destination voxel d lies at the source's
 *  coordinate (d + 0.5) n / m - 0.5, computed in double with n / m in lowest terms: the outer faces of the two volumes
 *  coincide. The methods:
 *  - **Nearest** takes voxel ((2 d + 1) n - 1) div (2 m), the lower one of two equally near. 5 to 3 takes 0, 2, 4.
 *  - **Linear** weights the two voxels around the coordinate by their distances. 2 voxels of 0 and 100 become 0, 25, 75
 *    and 100 of 4.
 *  - **Cubic** weights four voxels by the splines of Mitchell and Netravali (Reconstruction filters in computer graphics,
 *    1988) with B and C. B = 0, C = 0.5 is the Catmull-Rom spline, which passes through the voxels.
 *  - **Lanczos** weights four or six voxels by sinc(t) sinc(t / lobes), divided by the sum of the weights.
 *  - **Super** averages what a destination voxel covers of the source, partly covered voxels by their parts. It only
 *    reduces. 3 voxels of 10, 20 and 60 become 13 and 47 of 2.
 *
 *  The weights are those of qvpiResize, and so is the result of an image of one plane. There is no least length: one
 *  plane is enough. qvprResizeGetSize tells the size of a record, with 64 spare bytes, so memory of any alignment will
 *  do. A record holds no address and can be copied to memory of the same alignment to 64 bytes.
 *
 *  @param srcVolume size of the whole source
 *  @param dstVolume size of the whole destination
 *  @param dataType of the voxels: qvp8u, qvp16u, qvp16s or qvp32f
 *  @param interpolation qvpInterpolationNearest, ...Linear, ...Cubic, ...Super or ...Lanczos
 *  @param valueB,valueC parameters of the splines
 *  @param numLobes 2 or 3
 *  @param pSpecSize size of a record in bytes
 *  @param pSpec record to be made; no function takes what a refused call leaves
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: the last argument is null
 *  - qvpStatusSize: a length is below 1
 *  - qvpStatusDataType: `dataType` is none of the above
 *  - qvpStatusInterpolation: qvprResizeGetSize: `interpolation` is none of the above
 *  - qvpStatusBadArgument: `valueB` or `valueC` is not finite
 *  - qvpStatusNotSupportedMode: `numLobes` is neither 2 nor 3
 *  - qvpStatusSizeOverflow: a length is above 33554431; qvprResizeGetSize: the size is above 2147483647. The size is 0
 *    then
 *  - qvpStatusSize: averages, and a length of the destination is above that of the source
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvprResizeGetSize(QvprVolume srcVolume, QvprVolume dstVolume, QvpDataType dataType, QvpiInterpolationType interpolation, int* pSpecSize);
QvpStatus qvprResizeNearestInit(QvprVolume srcVolume, QvprVolume dstVolume, QvpDataType dataType, QvprResizeSpec* pSpec);
QvpStatus qvprResizeLinearInit(QvprVolume srcVolume, QvprVolume dstVolume, QvpDataType dataType, QvprResizeSpec* pSpec);
QvpStatus qvprResizeCubicInit(QvprVolume srcVolume, QvprVolume dstVolume, QvpDataType dataType, Qvp32f valueB, Qvp32f valueC, QvprResizeSpec* pSpec);
QvpStatus qvprResizeLanczosInit(QvprVolume srcVolume, QvprVolume dstVolume, QvpDataType dataType, Qvp32u numLobes, QvprResizeSpec* pSpec);
QvpStatus qvprResizeSuperInit(QvprVolume srcVolume, QvprVolume dstVolume, QvpDataType dataType, QvprResizeSpec* pSpec);
/** @} */

/** @name Volumes: resizing, work buffer and source
 *  @{ */
/** **qvprResizeGetBufferSize** tells the size of the work buffer for a part of the destination, and every part that is
 *  not larger. The size has 63 bytes to spare, so memory of any alignment will do.
 *
 *  **qvprResizeGetSrcCuboid** tells what a part of the destination reads inside the source, with either kind of border.
 *  Planes of an array outside of it may be null. With linear weights planes 2 and 3 of 8, made from 4, read planes 0
 *  to 2: depth 3 from 0 on.
 *
 *  @param pSpec record
 *  @param dstVolume size of a part of the destination
 *  @param dstCuboid part of the destination
 *  @param pBufSize size of the work buffer in bytes
 *  @param pSrcCuboid what is read
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: a pointer is null
 *  - qvpStatusSize: a length is below 1
 *  - qvpStatusContextMatch: `pSpec` is not a record of resizing volumes
 *  - qvpStatusOutOfRange: `dstCuboid` begins outside of the destination
 *  - qvpStatusSizeOverflow: the size is above 2147483647; it is 0 then
 *  - qvpStatusSizeWarning: a warning: the part reaches over the destination; the result is that of what lies inside
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvprResizeGetBufferSize(const QvprResizeSpec* pSpec, QvprVolume dstVolume, int* pBufSize);
QvpStatus qvprResizeGetSrcCuboid(const QvprResizeSpec* pSpec, QvprCuboid dstCuboid, QvprCuboid* pSrcCuboid);
/** @} */

/** @name Volumes: resizing
 *  @{ */
/** Resizes a volume, or makes a part of the result, by the method of a record.
 *
 *  Axes are filtered one after the other: across, down, and through the planes; averages through the planes, down, and
 *  across, then times (float)(1 / the voxels of a cuboid). An axis of equal lengths is passed over, and its neighbours
 *  are not read, unless the method is the cubic one with B other than 0. Parts, put together, are the whole, to the bit.
 *
 *  Products and sums are single floats, in the order of the voxels; the result is rounded to the nearest, ties to even,
 *  and saturated, NaN to the lowest value (0 if unsigned). Errors before that, relative to the largest voxel: linear
 *  3.6e-7; cubic with B and C in 0 to 1, and Lanczos 10^-6; averages of tx, ty and tz voxels an axis (tx + ty + tz + 2)
 *  2^-24. Where only planes are resized, and their number stays, averages of integers are exact before they are rounded.
 *  qvpInterpolationLinear of 8u works in integers, with the weights of the second voxels w = floor(16384 f) of the
 *  fraction f of the coordinate (10^-7 added to the product), at most 0.57 from the exact value:
 *
 *  @code
 *    h   = (p0 (16384 - wx) + p1 wx + 128) >> 8          across
 *    v   = (h0 (16384 - wy) + h1 wy + 8192) >> 14        down
 *    dst = (v0 (16384 - wz) + v1 wz + 2^19) >> 20        through the planes; if these are passed over, of h and wy
 *  @endcode
 *
 *  Voxels that are not in the source are taken by the border type. In memory that may be 1 voxel beyond a face for
 *  linear, 2 for cubic and two lobes, 3 for three lobes. The other methods need none, and check the type alone.
 *
 *  The volumes must not overlap.
 *
 *  @param pSrc,srcStep,srcPlaneStep source, at voxel (0, 0, 0) of the whole; of planes, entry k is plane k
 *  @param pDst,dstStep,dstPlaneStep destination, at the first voxel of the part
 *  @param dstOffset where the part begins in the whole destination
 *  @param dstVolume size of the part; what reaches over the destination is left as it is
 *  @param borderType qvpBorderReplicate or qvpBorderMirror, with any faces in memory, or qvpBorderInMemVolume
 *  @param pSpec record
 *  @param pBuffer work buffer of the size that qvprResizeGetBufferSize() tells
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: a volume, an array of planes, `pSpec` or `pBuffer` is null
 *  - qvpStatusSize: a length of `dstVolume` is below 1
 *  - qvpStatusStep: a step is below 1
 *  - qvpStatusBorder: `borderType` is none of the above
 *  - qvpStatusContextMatch: `pSpec` is not a record of resizing volumes, or is one of another data type
 *  - qvpStatusOutOfRange: `dstOffset` is not in the destination
 *  - qvpStatusNullPointer: a plane is null that is read or written
 *  - qvpStatusSizeWarning: a warning: the part reaches over the destination; what lies inside has been made
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvprResize_8u_C1V(const Qvp8u* pSrc, int srcStep, int srcPlaneStep, Qvp8u* pDst, int dstStep, int dstPlaneStep, QvprPoint dstOffset, QvprVolume dstVolume, QvpiBorderType borderType, const QvprResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvprResize_8u_C1PV(const Qvp8u* const pSrc[], int srcStep, Qvp8u* const pDst[], int dstStep, QvprPoint dstOffset, QvprVolume dstVolume, QvpiBorderType borderType, const QvprResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvprResize_16u_C1V(const Qvp16u* pSrc, int srcStep, int srcPlaneStep, Qvp16u* pDst, int dstStep, int dstPlaneStep, QvprPoint dstOffset, QvprVolume dstVolume, QvpiBorderType borderType, const QvprResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvprResize_16u_C1PV(const Qvp16u* const pSrc[], int srcStep, Qvp16u* const pDst[], int dstStep, QvprPoint dstOffset, QvprVolume dstVolume, QvpiBorderType borderType, const QvprResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvprResize_16s_C1V(const Qvp16s* pSrc, int srcStep, int srcPlaneStep, Qvp16s* pDst, int dstStep, int dstPlaneStep, QvprPoint dstOffset, QvprVolume dstVolume, QvpiBorderType borderType, const QvprResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvprResize_16s_C1PV(const Qvp16s* const pSrc[], int srcStep, Qvp16s* const pDst[], int dstStep, QvprPoint dstOffset, QvprVolume dstVolume, QvpiBorderType borderType, const QvprResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvprResize_32f_C1V(const Qvp32f* pSrc, int srcStep, int srcPlaneStep, Qvp32f* pDst, int dstStep, int dstPlaneStep, QvprPoint dstOffset, QvprVolume dstVolume, QvpiBorderType borderType, const QvprResizeSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvprResize_32f_C1PV(const Qvp32f* const pSrc[], int srcStep, Qvp32f* const pDst[], int dstStep, QvprPoint dstOffset, QvprVolume dstVolume, QvpiBorderType borderType, const QvprResizeSpec* pSpec, Qvp8u* pBuffer);
/** @} */

/** @name Volumes: general filter, sizes
 *  @{ */
/** Tells the sizes of the record and of the work buffer of a general filter of volumes: for this size of the kernel,
 *  every Init function with such coefficients, and every region not larger.
 *
 *  Sizes have 63 bytes to spare, so memory of any alignment will do.
 *
 *  @param kernelVolume size of the kernel; of a separable one the lengths along x, y and z
 *  @param dstVolume size of the region
 *  @param dataType qvp8u, qvp16u, qvp16s, or with coefficients of 32f also qvp32f
 *  @param kernelType type of the coefficients: qvp16s or qvp32f
 *  @param pSpecSize size of the record in bytes
 *  @param pBufferSize size of the work buffer in bytes
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: a pointer is null
 *  - qvpStatusSize: a length of `kernelVolume` or `dstVolume` is below 1
 *  - qvpStatusDataType: `dataType` or `kernelType` is none of the above
 *  - qvpStatusSizeOverflow: a length is above 33554431, or a size above 2147483647; the size is 0 then
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvprFilterBorderGetSize(QvprVolume kernelVolume, QvprVolume dstVolume, QvpDataType dataType, QvpDataType kernelType, int* pSpecSize, int* pBufferSize);
/** @} */

/** @name Volumes: general filter, records
 *  @{ */
/** Makes the record of a general filter of volumes from the coefficients of its kernel.
 *
 *  **qvprFilterBorderInit_16s** takes whole numbers and a divisor, **qvprFilterBorderInit_32f** floats. Both are stored
 *  by columns, rows and planes: the coefficient at (x, y, z) is pKernel[(z * height + y) * width + x].
 *  **qvprFilterBorderSeparableInit_32f** takes the three factors of a kernel K(x, y, z) = X(x) Y(y) Z(z).
 *
 *  The record may be moved. The coefficients are copied.
 *
 *  @param pKernel coefficients
 *  @param pKernelX,pKernelY,pKernelZ coefficients along x, y and z
 *  @param kernelVolume size of the kernel; of a separable one the lengths along x, y and z
 *  @param anchor cell of the kernel, as it is stored, that meets the result's own voxel
 *  @param divisor what sums are divided by; may be negative
 *  @param dataType type of the voxels: qvp8u, qvp16u, qvp16s, or with coefficients of 32f also qvp32f
 *  @param roundMode how results become whole: qvpRoundZero, qvpRoundNear or qvpRoundFinancial; voxels of 32f are not
 *  rounded
 *  @param pSpec record of the size that qvprFilterBorderGetSize() tells
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: a pointer is null
 *  - qvpStatusSize: a length of `kernelVolume` is below 1
 *  - qvpStatusAnchor: `anchor` is outside the kernel
 *  - qvpStatusDivisor: `divisor` is 0
 *  - qvpStatusDataType: `dataType` is none of the above
 *  - qvpStatusRoundMode: `roundMode` is none of the above
 *  - qvpStatusSizeOverflow: a length is above 33554431, or the record would be larger than 2147483647 bytes
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvprFilterBorderInit_16s(const Qvp16s* pKernel, QvprVolume kernelVolume, QvprPoint anchor, int divisor, QvpDataType dataType, QvpRoundMode roundMode, QvprFilterBorderSpec* pSpec);
QvpStatus qvprFilterBorderInit_32f(const Qvp32f* pKernel, QvprVolume kernelVolume, QvprPoint anchor, QvpDataType dataType, QvpRoundMode roundMode, QvprFilterBorderSpec* pSpec);
QvpStatus qvprFilterBorderSeparableInit_32f(const Qvp32f* pKernelX, const Qvp32f* pKernelY, const Qvp32f* pKernelZ, QvprVolume kernelVolume, QvprPoint anchor, QvpDataType dataType, QvpRoundMode roundMode, QvprFilterBorderSpec* pSpec);
/** @} */

/** @name Volumes: general filter
 *  @{ */
/** Convolves a volume with a kernel: smoothing, derivatives, any linear filter.
 *
 *  @code
 *    dst(p) = sum over the cells c of the kernel: K(c) * src(p + anchor - c)
 *  @endcode
 *
 *  With the anchor (width / 2, height / 2, depth / 2), rounded down, planes are filtered as by the general filter of
 *  images, with even sizes too. K = (1, 2, 3) along x, the voxels 10, 20, 30 and the constant 0 around them give
 *  10 40 100 with the anchor 0, 40 100 120 with 1, and 100 120 90 with 2.
 *
 *  - Coefficients of 16s: the exact sum is divided by the divisor, rounded once by the mode of the record, saturated.
 *  - Coefficients of 32f: products and sums are single precision, each rounded, in the order of the source: planes,
 *    rows, columns. The sum of n products is off by at most 1.01 n 2^-24 times the sum of their magnitudes.
 *  - Separable: such sums across, then down, then through the planes, single precision between them; n is the sum of
 *    the three lengths.
 *
 *  Sums that become whole numbers are rounded once by the mode of the record and saturated; NaN gives the lowest value.
 *  Results of 32f are the sums.
 *
 *  The volumes must not overlap.
 *
 *  @param pSrc,srcStep,srcPlaneStep source, at the first voxel of the region
 *  @param pDst,dstStep,dstPlaneStep destination
 *  @param dstVolume size of the region
 *  @param borderType qvpBorderReplicate, qvpBorderMirror or qvpBorderConst, with any faces in memory, or
 *  qvpBorderInMemVolume
 *  @param borderValue the constant; other kinds do not look at it
 *  @param pSpec record for voxels of this type
 *  @param pBuffer work buffer of the size that qvprFilterBorderGetSize() tells
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: a volume, an array of planes, `pSpec` or `pBuffer` is null; `borderValue` is, and the kind
 *    is qvpBorderConst
 *  - qvpStatusSize: a length of `dstVolume` is below 1
 *  - qvpStatusStep: a step is below 1
 *  - qvpStatusBorder: `borderType` is none of the above
 *  - qvpStatusContextMatch: `pSpec` is no record of a filter of such volumes
 *  - qvpStatusNullPointer: a plane is null that is in the region, or in memory and covered by the kernel
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvprFilterBorder_8u_C1V(const Qvp8u* pSrc, int srcStep, int srcPlaneStep, Qvp8u* pDst, int dstStep, int dstPlaneStep, QvprVolume dstVolume, QvpiBorderType borderType, const Qvp8u* borderValue, const QvprFilterBorderSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvprFilterBorder_8u_C1PV(const Qvp8u* const pSrc[], int srcStep, Qvp8u* const pDst[], int dstStep, QvprVolume dstVolume, QvpiBorderType borderType, const Qvp8u* borderValue, const QvprFilterBorderSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvprFilterBorder_16u_C1V(const Qvp16u* pSrc, int srcStep, int srcPlaneStep, Qvp16u* pDst, int dstStep, int dstPlaneStep, QvprVolume dstVolume, QvpiBorderType borderType, const Qvp16u* borderValue, const QvprFilterBorderSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvprFilterBorder_16u_C1PV(const Qvp16u* const pSrc[], int srcStep, Qvp16u* const pDst[], int dstStep, QvprVolume dstVolume, QvpiBorderType borderType, const Qvp16u* borderValue, const QvprFilterBorderSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvprFilterBorder_16s_C1V(const Qvp16s* pSrc, int srcStep, int srcPlaneStep, Qvp16s* pDst, int dstStep, int dstPlaneStep, QvprVolume dstVolume, QvpiBorderType borderType, const Qvp16s* borderValue, const QvprFilterBorderSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvprFilterBorder_16s_C1PV(const Qvp16s* const pSrc[], int srcStep, Qvp16s* const pDst[], int dstStep, QvprVolume dstVolume, QvpiBorderType borderType, const Qvp16s* borderValue, const QvprFilterBorderSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvprFilterBorder_32f_C1V(const Qvp32f* pSrc, int srcStep, int srcPlaneStep, Qvp32f* pDst, int dstStep, int dstPlaneStep, QvprVolume dstVolume, QvpiBorderType borderType, const Qvp32f* borderValue, const QvprFilterBorderSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvprFilterBorder_32f_C1PV(const Qvp32f* const pSrc[], int srcStep, Qvp32f* const pDst[], int dstStep, QvprVolume dstVolume, QvpiBorderType borderType, const Qvp32f* borderValue, const QvprFilterBorderSpec* pSpec, Qvp8u* pBuffer);
/** @} */

/** @name Volumes: medians, size of the buffer
 *  @{ */
/** Tells the size of the work buffer of a median filter of volumes, for this mask and every region not larger.
 *
 *  The size has 63 bytes to spare, so memory of any alignment will do.
 *
 *  @param maskVolume size of the mask
 *  @param dstVolume size of the region
 *  @param dataType qvp8u, qvp16u, qvp16s or qvp32f
 *  @param pBufferSize size of the work buffer in bytes
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: `pBufferSize` is null
 *  - qvpStatusSize: a length of `dstVolume` is below 1
 *  - qvpStatusMaskSize: a side of the mask is even or below 1, or it has more than 32767 cells
 *  - qvpStatusDataType: `dataType` is none of the above
 *  - qvpStatusSizeOverflow: a length is above 33554431, or the size above 2147483647; the size is 0 then
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvprFilterMedianBorderGetBufferSize(QvprVolume maskVolume, QvprVolume dstVolume, QvpDataType dataType, int* pBufferSize);
/** @} */

/** @name Volumes: medians
 *  @{ */
/** Takes the middle one of the voxels that a mask around each voxel covers, in their order: against speckle, and salt and
 *  pepper.
 *
 *  Floats are moved as they are, and ordered as -NaN, -infinity ... -0, +0 ... infinity, NaN. A volume of ones, 3 x 3 x 3
 *  with the constant 0 around it, keeps seven of them with a mask of 3 x 3 x 3: the centre and the faces. 1, NaN, 2 in a
 *  row, with a mask of 3 x 1 x 1 and replicated ends, become 1, 2, 2.
 *
 *  The volumes must not overlap.
 *
 *  @param pSrc,srcStep,srcPlaneStep source, at the first voxel of the region
 *  @param pDst,dstStep,dstPlaneStep destination
 *  @param dstVolume size of the region
 *  @param maskVolume size of the mask, whose middle is at the voxel: odd sides, at most 32767 cells
 *  @param borderType qvpBorderReplicate or qvpBorderConst, with any faces in memory, or qvpBorderInMemVolume
 *  @param borderValue the constant; other kinds do not look at it
 *  @param pBuffer work buffer of the size that qvprFilterMedianBorderGetBufferSize() tells
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: a volume, an array of planes or `pBuffer` is null; `borderValue` is, and the kind is
 *    qvpBorderConst
 *  - qvpStatusSize: a length of `dstVolume` is below 1
 *  - qvpStatusStep: a step is below 1
 *  - qvpStatusMaskSize: a side of the mask is even or below 1, or it has more than 32767 cells
 *  - qvpStatusBorder: `borderType` is none of the above
 *  - qvpStatusNullPointer: a plane is null that is in the region, or in memory and covered by the mask
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvprFilterMedianBorder_8u_C1V(const Qvp8u* pSrc, int srcStep, int srcPlaneStep, Qvp8u* pDst, int dstStep, int dstPlaneStep, QvprVolume dstVolume, QvprVolume maskVolume, QvpiBorderType borderType, const Qvp8u* borderValue, Qvp8u* pBuffer);
QvpStatus qvprFilterMedianBorder_8u_C1PV(const Qvp8u* const pSrc[], int srcStep, Qvp8u* const pDst[], int dstStep, QvprVolume dstVolume, QvprVolume maskVolume, QvpiBorderType borderType, const Qvp8u* borderValue, Qvp8u* pBuffer);
QvpStatus qvprFilterMedianBorder_16u_C1V(const Qvp16u* pSrc, int srcStep, int srcPlaneStep, Qvp16u* pDst, int dstStep, int dstPlaneStep, QvprVolume dstVolume, QvprVolume maskVolume, QvpiBorderType borderType, const Qvp16u* borderValue, Qvp8u* pBuffer);
QvpStatus qvprFilterMedianBorder_16u_C1PV(const Qvp16u* const pSrc[], int srcStep, Qvp16u* const pDst[], int dstStep, QvprVolume dstVolume, QvprVolume maskVolume, QvpiBorderType borderType, const Qvp16u* borderValue, Qvp8u* pBuffer);
QvpStatus qvprFilterMedianBorder_16s_C1V(const Qvp16s* pSrc, int srcStep, int srcPlaneStep, Qvp16s* pDst, int dstStep, int dstPlaneStep, QvprVolume dstVolume, QvprVolume maskVolume, QvpiBorderType borderType, const Qvp16s* borderValue, Qvp8u* pBuffer);
QvpStatus qvprFilterMedianBorder_16s_C1PV(const Qvp16s* const pSrc[], int srcStep, Qvp16s* const pDst[], int dstStep, QvprVolume dstVolume, QvprVolume maskVolume, QvpiBorderType borderType, const Qvp16s* borderValue, Qvp8u* pBuffer);
QvpStatus qvprFilterMedianBorder_32f_C1V(const Qvp32f* pSrc, int srcStep, int srcPlaneStep, Qvp32f* pDst, int dstStep, int dstPlaneStep, QvprVolume dstVolume, QvprVolume maskVolume, QvpiBorderType borderType, const Qvp32f* borderValue, Qvp8u* pBuffer);
QvpStatus qvprFilterMedianBorder_32f_C1PV(const Qvp32f* const pSrc[], int srcStep, Qvp32f* const pDst[], int dstStep, QvprVolume dstVolume, QvprVolume maskVolume, QvpiBorderType borderType, const Qvp32f* borderValue, Qvp8u* pBuffer);
/** @} */

/** @name Volumes: affine warps, record and size of the buffer
 *  @{ */
/** Tells the size of the record of an affine warp, makes it, and tells the size of the work buffer.
 *
 *  The coefficients are those of qvprGetRotateTransform(). The record keeps the transform from the destination to the
 *  source: with qvpWarpForward the given one is inverted as by qvprGetAffineInverse(). It is read only, by any number of
 *  threads. The sizes have 63 bytes to spare, so memory of any alignment will do.
 *
 *  @param srcVolume size of the source
 *  @param dstVolume size of the whole destination; for the buffer that of a tile, or larger
 *  @param dataType qvp8u, qvp16u, qvp16s or qvp32f
 *  @param coeffs the transform
 *  @param interpolation qvpInterpolationNearest, qvpInterpolationLinear or qvpInterpolationCubic
 *  @param direction qvpWarpForward or qvpWarpBackward
 *  @param valueB,valueC parameters of cubic interpolation: 0, 0.5 goes through the voxels
 *  @param borderType qvpBorderReplicate, qvpBorderConst, qvpBorderTransparent or qvpBorderInMemVolume
 *  @param pBorderValue the constant, rounded and saturated; other kinds do not look at it
 *  @param pSpec record
 *  @param pSpecSize size of the record in bytes
 *  @param pBufSize size of the work buffer in bytes
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: a pointer is null that is looked at
 *  - qvpStatusSize: a length is below 1
 *  - qvpStatusContextMatch: qvprWarpGetBufferSize: `pSpec` is no such record
 *  - qvpStatusDataType: `dataType` is none of the above
 *  - qvpStatusCoefficient: a coefficient, or one of the inverse, is not finite, or the transform is degenerate
 *  - qvpStatusInterpolation: qvprWarpAffineGetSize: `interpolation` is none of the above
 *  - qvpStatusWarpDirection: `direction` is none of the above
 *  - qvpStatusBadArgument: `valueB` or `valueC` is not finite
 *  - qvpStatusBorder: `borderType` is none of the above
 *  - qvpStatusSizeOverflow: a length is above 33554431, or a size above 2147483647; the size is 0 then
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvprWarpAffineGetSize(QvprVolume srcVolume, QvprVolume dstVolume, QvpDataType dataType, const double coeffs[3][4], QvpiInterpolationType interpolation, QvpiWarpDirection direction, QvpiBorderType borderType, int* pSpecSize);
QvpStatus qvprWarpAffineNearestInit(QvprVolume srcVolume, QvprVolume dstVolume, QvpDataType dataType, const double coeffs[3][4], QvpiWarpDirection direction, QvpiBorderType borderType, const Qvp64f* pBorderValue, QvprWarpSpec* pSpec);
QvpStatus qvprWarpAffineLinearInit(QvprVolume srcVolume, QvprVolume dstVolume, QvpDataType dataType, const double coeffs[3][4], QvpiWarpDirection direction, QvpiBorderType borderType, const Qvp64f* pBorderValue, QvprWarpSpec* pSpec);
QvpStatus qvprWarpAffineCubicInit(QvprVolume srcVolume, QvprVolume dstVolume, QvpDataType dataType, const double coeffs[3][4], QvpiWarpDirection direction, double valueB, double valueC, QvpiBorderType borderType, const Qvp64f* pBorderValue, QvprWarpSpec* pSpec);
QvpStatus qvprWarpGetBufferSize(const QvprWarpSpec* pSpec, QvprVolume dstVolume, int* pBufSize);
/** @} */

/** @name Volumes: affine warps
 *  @{ */
/** Warps a volume by an affine transform: registration, oblique slices.
 *
 *  Voxel (x, y, z) of the whole destination comes from the point (u, v, w) of the source, in double precision,
 *
 *  @code
 *    u = (c[0][0] * x + c[0][1] * y) + (c[0][2] * z + c[0][3])
 *  @endcode
 *
 *  and v and w likewise. Its value is that of the nearest voxel, the upper of two; or the sum over planes, rows and
 *  columns of 2 x 2 x 2 voxels with linear weights, or of 4 x 4 x 4 with cubic ones,
 *
 *  @code
 *    sum of wz * (sum of wy * (sum of wx * p))
 *  @endcode
 *
 *  in single precision, rounded for integers to the nearest, ties to even, and saturated: within 4e-7 (linear) or 1e-6
 *  (cubic) of the largest voxel, at points that are rounded to 2^-26 voxel at most. 8u linear: in integers, less than
 *  0.036 off before the rounding. A shift by whole voxels copies them. Where depth is left alone the result is that of
 *  the same warp of each plane.
 *
 *  | border               | beyond the source                                                                        |
 *  |----------------------|------------------------------------------------------------------------------------------|
 *  | qvpBorderReplicate   | the nearest voxel                                                                        |
 *  | qvpBorderConst       | the constant, which blends in over what a voxel takes part in                            |
 *  | qvpBorderTransparent | voxels that come from beyond 0 .. width - 1, height - 1, depth - 1 keep their value      |
 *  | qvpBorderInMemVolume | the source has 0 (nearest), 1 (linear) or 2 (cubic) voxels more on each face, which are in memory; voxels that come from beyond these keep their value |
 *
 *  The volumes must not overlap. A tile that reaches beyond the destination is cut.
 *
 *  @param pSrc,srcStep,srcPlaneStep source, at its voxel (0, 0, 0); an array has plane z as entry z, of which only those
 *    are looked at that the tile can read
 *  @param pDst,dstStep,dstPlaneStep destination, at the first voxel of the tile
 *  @param dstOffset where the tile begins in the whole destination
 *  @param dstVolume size of the tile
 *  @param pSpec record from an Init of this type of voxels
 *  @param pBuffer work buffer of the size that qvprWarpGetBufferSize() tells
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: a volume, an array of planes, `pSpec` or `pBuffer` is null
 *  - qvpStatusSize: a length of `dstVolume` is below 1
 *  - qvpStatusStep: a step is below 1
 *  - qvpStatusContextMatch: `pSpec` is no such record, or of another type of voxels
 *  - qvpStatusOutOfRange: `dstOffset` is not in the destination
 *  - qvpStatusNullPointer: a plane is null that the tile can read or has
 *  - qvpStatusSizeWarning: the tile was cut
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvprWarpAffine_8u_C1V(const Qvp8u* pSrc, int srcStep, int srcPlaneStep, Qvp8u* pDst, int dstStep, int dstPlaneStep, QvprPoint dstOffset, QvprVolume dstVolume, const QvprWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvprWarpAffine_8u_C1PV(const Qvp8u* const pSrc[], int srcStep, Qvp8u* const pDst[], int dstStep, QvprPoint dstOffset, QvprVolume dstVolume, const QvprWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvprWarpAffine_16u_C1V(const Qvp16u* pSrc, int srcStep, int srcPlaneStep, Qvp16u* pDst, int dstStep, int dstPlaneStep, QvprPoint dstOffset, QvprVolume dstVolume, const QvprWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvprWarpAffine_16u_C1PV(const Qvp16u* const pSrc[], int srcStep, Qvp16u* const pDst[], int dstStep, QvprPoint dstOffset, QvprVolume dstVolume, const QvprWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvprWarpAffine_16s_C1V(const Qvp16s* pSrc, int srcStep, int srcPlaneStep, Qvp16s* pDst, int dstStep, int dstPlaneStep, QvprPoint dstOffset, QvprVolume dstVolume, const QvprWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvprWarpAffine_16s_C1PV(const Qvp16s* const pSrc[], int srcStep, Qvp16s* const pDst[], int dstStep, QvprPoint dstOffset, QvprVolume dstVolume, const QvprWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvprWarpAffine_32f_C1V(const Qvp32f* pSrc, int srcStep, int srcPlaneStep, Qvp32f* pDst, int dstStep, int dstPlaneStep, QvprPoint dstOffset, QvprVolume dstVolume, const QvprWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvprWarpAffine_32f_C1PV(const Qvp32f* const pSrc[], int srcStep, Qvp32f* const pDst[], int dstStep, QvprPoint dstOffset, QvprVolume dstVolume, const QvprWarpSpec* pSpec, Qvp8u* pBuffer);
/** @} */

/** @name Volumes: remap
 *  @{ */
/** Takes each voxel from the point of the source that three maps tell: deformation fields.
 *
 *  The value at the point (x, y, z) is that of qvprWarpAffine with the same interpolation; voxels beyond the source are
 *  the nearest ones of the whole source. Written is where the point lies in the cuboid, cut to the source:
 *  srcCuboid.x <= x <= srcCuboid.x + srcCuboid.width - 1, and so on. Else, and where a coordinate is NaN, the destination
 *  keeps its value. Between planes of 10 and 20, z = 0.5, linear: 15; z = depth - 1 takes the last plane, the next float
 *  above nothing.
 *
 *  @param pSrc,srcStep,srcPlaneStep,srcVolume source and its size
 *  @param srcCuboid where points have a value
 *  @param pxMap,pyMap,pzMap,mapStep,mapPlaneStep coordinates, of the destination's size, with the same steps
 *  @param pDst,dstStep,dstPlaneStep,dstVolume destination and its size
 *  @param interpolation qvpInterpolationNearest, qvpInterpolationLinear, qvpInterpolationCubicClassic (B = 0, C = 0.75)
 *    or qvpInterpolationCubic (B = 0, C = 0.5)
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: a volume, a map or an array of planes is null
 *  - qvpStatusSize: a length is below 1, or `srcCuboid` starts at a negative position
 *  - qvpStatusStep: a step is below 1
 *  - qvpStatusInterpolation: `interpolation` is none of the above
 *  - qvpStatusNoIntersection: a warning: `srcCuboid` starts beyond the source; nothing is read or written
 *  - qvpStatusNullPointer: a plane of the maps or of the destination is null, or one of the source that lies in the
 *    cuboid, or 1 behind it (linear), or 1 before and 2 behind it (cubic)
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvprRemap_8u_C1V(const Qvp8u* pSrc, QvprVolume srcVolume, int srcStep, int srcPlaneStep, QvprCuboid srcCuboid, const Qvp32f* pxMap, const Qvp32f* pyMap, const Qvp32f* pzMap, int mapStep, int mapPlaneStep, Qvp8u* pDst, int dstStep, int dstPlaneStep, QvprVolume dstVolume, int interpolation);
QvpStatus qvprRemap_8u_C1PV(const Qvp8u* const pSrc[], QvprVolume srcVolume, int srcStep, QvprCuboid srcCuboid, const Qvp32f* const pxMap[], const Qvp32f* const pyMap[], const Qvp32f* const pzMap[], int mapStep, Qvp8u* const pDst[], int dstStep, QvprVolume dstVolume, int interpolation);
QvpStatus qvprRemap_16u_C1V(const Qvp16u* pSrc, QvprVolume srcVolume, int srcStep, int srcPlaneStep, QvprCuboid srcCuboid, const Qvp32f* pxMap, const Qvp32f* pyMap, const Qvp32f* pzMap, int mapStep, int mapPlaneStep, Qvp16u* pDst, int dstStep, int dstPlaneStep, QvprVolume dstVolume, int interpolation);
QvpStatus qvprRemap_16u_C1PV(const Qvp16u* const pSrc[], QvprVolume srcVolume, int srcStep, QvprCuboid srcCuboid, const Qvp32f* const pxMap[], const Qvp32f* const pyMap[], const Qvp32f* const pzMap[], int mapStep, Qvp16u* const pDst[], int dstStep, QvprVolume dstVolume, int interpolation);
QvpStatus qvprRemap_16s_C1V(const Qvp16s* pSrc, QvprVolume srcVolume, int srcStep, int srcPlaneStep, QvprCuboid srcCuboid, const Qvp32f* pxMap, const Qvp32f* pyMap, const Qvp32f* pzMap, int mapStep, int mapPlaneStep, Qvp16s* pDst, int dstStep, int dstPlaneStep, QvprVolume dstVolume, int interpolation);
QvpStatus qvprRemap_16s_C1PV(const Qvp16s* const pSrc[], QvprVolume srcVolume, int srcStep, QvprCuboid srcCuboid, const Qvp32f* const pxMap[], const Qvp32f* const pyMap[], const Qvp32f* const pzMap[], int mapStep, Qvp16s* const pDst[], int dstStep, QvprVolume dstVolume, int interpolation);
QvpStatus qvprRemap_32f_C1V(const Qvp32f* pSrc, QvprVolume srcVolume, int srcStep, int srcPlaneStep, QvprCuboid srcCuboid, const Qvp32f* pxMap, const Qvp32f* pyMap, const Qvp32f* pzMap, int mapStep, int mapPlaneStep, Qvp32f* pDst, int dstStep, int dstPlaneStep, QvprVolume dstVolume, int interpolation);
QvpStatus qvprRemap_32f_C1PV(const Qvp32f* const pSrc[], QvprVolume srcVolume, int srcStep, QvprCuboid srcCuboid, const Qvp32f* const pxMap[], const Qvp32f* const pyMap[], const Qvp32f* const pzMap[], int mapStep, Qvp32f* const pDst[], int dstStep, QvprVolume dstVolume, int interpolation);
/** @} */

/** @name Volumes: transforms
 *  @{ */
/** Coefficients of affine transforms in space, in double precision:
 *
 *  @code
 *    x' = (c[0][0] * x + c[0][1] * y) + (c[0][2] * z + c[0][3])
 *    y' = (c[1][0] * x + c[1][1] * y) + (c[1][2] * z + c[1][3])
 *    z' = (c[2][0] * x + c[2][1] * y) + (c[2][2] * z + c[2][3])
 *  @endcode
 *
 *  **qvprGetRotateTransform** turns by `angle` degrees about an axis through `center`, counter-clockwise for who looks
 *  along the axis: (0, 0, 1) turns each plane as qvpiGetRotateTransform() does. Multiples of 90 degrees about an axis of
 *  coordinates are exact. With n the axis divided by its length, c_ii = n_i^2 + cos (1 - n_i^2) and
 *  c_ij = (1 - cos) n_i n_j +- n_k sin. 10 degrees about (959.5, 539.5, 0) shift by -79.1062309, 174.811644 and 0.
 *
 *  **qvprGetAffineTransform** takes the centres of four voxels of a cuboid to the given points: of the voxel where it
 *  starts to corners[0], of those at the ends of its edges along x, y and z to corners[1] to [3].
 *
 *  **qvprGetAffineBound** tells the least and the greatest coordinates of the centres of the eight voxels in the
 *  corners of a cuboid: bound[0] and bound[1]. A cuboid of 15 x 13 x 11 voxels at (0, 0, 0), turned by 90 degrees about
 *  the axis (0, 0, 1) through (7, 6, 5), reaches from (1, -1, 0) to (13, 13, 10).
 *
 *  **qvprGetAffineProduct** tells the transform that does `first`, then `second`.
 *
 *  **qvprGetAffineInverse** tells the transform that undoes another one, by cofactors.
 *
 *  A transform is degenerate if the magnitude of the determinant of its first three columns is not above 10^-10 times the
 *  product of their rows' sums of magnitudes: it flattens space.
 *
 *  Arrays may be the same.
 *
 *  @param angle in degrees
 *  @param axis direction of the axis, of any length but 0
 *  @param center point on the axis
 *  @param srcCuboid cuboid of voxels
 *  @param corners where four of its voxels go
 *  @param bound least and greatest coordinates
 *  @param first,second transforms to be done one after the other
 *  @param coeffs,inverse coefficients
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: an array is null
 *  - qvpStatusRect: qvprGetAffineTransform: a length of `srcCuboid` is below 1
 *  - qvpStatusSize: qvprGetAffineBound: `srcCuboid` starts at a negative position, or a length is below 1
 *  - qvpStatusCoefficient: a number is not finite; qvprGetAffineTransform: a length of `srcCuboid` is 1, or the result is
 *    degenerate; qvprGetAffineInverse: `coeffs` is degenerate; a coefficient of the result is not finite. Nothing is
 *    written
 *  - qvpStatusBadArgument: qvprGetRotateTransform: `axis` is 0
 *  - qvpStatusCoefficient: qvprGetAffineBound: `coeffs` is degenerate; the bound is written
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvprGetRotateTransform(double angle, const double axis[3], const double center[3], double coeffs[3][4]);
QvpStatus qvprGetAffineTransform(QvprCuboid srcCuboid, const double corners[4][3], double coeffs[3][4]);
QvpStatus qvprGetAffineBound(QvprCuboid srcCuboid, double bound[2][3], const double coeffs[3][4]);
QvpStatus qvprGetAffineProduct(const double first[3][4], const double second[3][4], double coeffs[3][4]);
QvpStatus qvprGetAffineInverse(const double coeffs[3][4], double inverse[3][4]);
/** @} */

#ifdef __cplusplus
}
#endif

#endif
