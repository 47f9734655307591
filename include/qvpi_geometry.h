/** @file qvpi_geometry.h
 *  Resize, also of video frames, decimation of 4:2:0 frames, warps, remap, mirror, transpose and turns by quarters.
 *
 *  The conventions of every function are told in qvpi_core.h.
 */
#ifndef QVPI_GEOMETRY_H
#define QVPI_GEOMETRY_H

#include "qvptypes.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @name Resize: size of the record
 *  @{ */
/** Bytes of a resize record and of the Init buffer.
 *
 *  An image is resized in these steps: ask for the size of the record (GetSize), let an Init function of the method
 *  fill it, ask for the size of the work buffer (GetBufferSize), and call the method's function, once for the image
 *  or once for each tile. Records and buffers may begin at any address. A record is only read by the calls, so that
 *  any number of threads may share it, each with a buffer of its own; it must not be moved or copied. Functions
 *  without `_L` take records of Inits without `_L`, and the others those with it.
 *
 *  **Coordinates.** Centres of pixels fall on each other: destination column d lies at x = (d + 0.5) * srcWidth
 *  / dstWidth - 0.5 in the source, and rows likewise. Five pixels 10 20 30 40 50 become, with replication at the edges:
 *
 *  | method | taps an axis | 5 to 3: x = 0.33, 2, 3.67 | 5 to 10: x = -0.25, 0.25, 0.75, 1.25 ... |
 *  |---|---|---|---|
 *  | nearest | 1 | 10 30 50 | 10 10 20 20 30 30 40 40 50 50 |
 *  | linear | 2 | 13.3 30 46.7 | 10 12.5 17.5 22.5 ... 47.5 50 |
 *  | cubic, B = 0, C = 0.5 | 4 | 12.6 30 47.4 | 9.3 11.8 17.3 22.5 ... 48.2 50.7 |
 *  | Lanczos, 2 lobes | 4 | 12.8 30 47.3 | 9.2 12.0 17.0 22.8 ... 48.0 50.8 |
 *  | super-sampling | as many as are covered | 14 30 46 | only reductions |
 *  | antialiased linear | 2 * srcWidth / dstWidth | 13.8 30 46.3 | as linear |
 *
 *  Nearest is the fastest and has jagged edges. Linear suits enlargements and mild reductions. Cubic and Lanczos are
 *  sharper and may overshoot. Below half of the size these methods skip pixels; super-sampling and the antialiased
 *  methods then take every pixel into account.
 *
 *  **Small sources.** Width and height of the source must each be at least 2 for linear, 4 for cubic and Lanczos with 2
 *  lobes, 6 for Lanczos with 3; for super-sampling at least those of the destination. GetSize and the Inits return
 *  qvpStatusSize else (GetSize knows no lobes, and asks for 4). But for super-sampling any destination of at least 1x1
 *  will do. Take the best method that the shorter side allows:
 *
 *      int shortest = src.width < src.height ? src.width : src.height;
 *      int method = shortest >= 4 ? qvpInterpolationCubic : shortest >= 2 ? qvpInterpolationLinear
 *                                                         : qvpInterpolationNearest;
 *
 *  or repeat the last row or column, which is what replication at the edges would take anyway. A single row of n bytes,
 *  enlarged smoothly to w x 1:
 *
 *      qvpiCopyReplicateBorder_8u_C1R(row, n, (QvpiSize){n, 1}, two, n, (QvpiSize){n, 2}, 0, 0);
 *      qvpiResizeLinearInit_8u((QvpiSize){n, 2}, (QvpiSize){w, 1}, spec);
 *
 *  **Tiles.** A destination tile with its first pixel at `dstOffset` is computed from a source pointer at the pixel
 *  that GetSrcOffset returns. Every tiling gives the bits of the whole, with every border. GetSrcRoi returns the *core*
 *  of what a tile reads, at least 1x1; linear, cubic, Lanczos and antialiased resizing also read up to GetBorderSize
 *  pixels around it as far as these lie in the image, for example the one before the pointer when enlarging. Borders
 *  apply outside of the whole source image, never at the sides of a tile inside it.
 *
 *  Without antialiasing a record has 4 * (W + H) + 324 bytes for nearest and 8 * (W + H) + 324 for linear, in 64f 12 *
 *  (W + H) + 320, with W and H the destination lengths rounded up to multiples of 32. The 16u, 16s and 32f forms are
 *  that of 8u. Antialiased records for 64f have the size of those for 8u. The Init buffer has 64 bytes.
 *
 *  @param srcSize,dstSize sizes of source and destination
 *  @param dataType `_L`: type of the samples
 *  @param interpolation method: nearest, linear, cubic, super or Lanczos
 *  @param antialiasing not 0 for the antialiased form of linear, cubic and Lanczos
 *  @param pSpecSize,pInitBufSize receive bytes; 0 when these cannot be represented
 *  @return qvpStatusNullPointer. qvpStatusNoOperation: a length is 0; nothing is written. qvpStatusSize: a length is
 *          below 1. qvpStatusInterpolation: an unknown interpolation other than 0. 64f: qvpStatusDataType: another
 *          method than linear; qvpStatusNotSupportedMode: antialiasing. qvpStatusNotSupportedMode: interpolation 0.
 *          qvpStatusSize: the source's width or height is below 2 for linear, 4 for cubic and Lanczos, or below that
 *          of the destination for super-sampling. qvpStatusSizeOverflow: a size of 2147483647 or more. Warning
 *          qvpStatusAntialiasIgnored: antialiasing with nearest or super-sampling. `_L`, after
 *          qvpStatusInterpolation: qvpStatusDataType: a type other than 8u, 16u, 16s and 32f, or 64f with another
 *          method than linear; qvpStatusNotSupportedMode: 64f with antialiasing; qvpStatusSizeOverflow: a length
 *          above 33554431.
 */
QvpStatus qvpiResizeGetSize_8u(QvpiSize srcSize, QvpiSize dstSize, QvpiInterpolationType interpolation, Qvp32u antialiasing, int* pSpecSize, int* pInitBufSize);
QvpStatus qvpiResizeGetSize_16u(QvpiSize srcSize, QvpiSize dstSize, QvpiInterpolationType interpolation, Qvp32u antialiasing, int* pSpecSize, int* pInitBufSize);
QvpStatus qvpiResizeGetSize_16s(QvpiSize srcSize, QvpiSize dstSize, QvpiInterpolationType interpolation, Qvp32u antialiasing, int* pSpecSize, int* pInitBufSize);
QvpStatus qvpiResizeGetSize_32f(QvpiSize srcSize, QvpiSize dstSize, QvpiInterpolationType interpolation, Qvp32u antialiasing, int* pSpecSize, int* pInitBufSize);
QvpStatus qvpiResizeGetSize_64f(QvpiSize srcSize, QvpiSize dstSize, QvpiInterpolationType interpolation, Qvp32u antialiasing, int* pSpecSize, int* pInitBufSize);
QvpStatus qvpiResizeGetSize_L(QvpiSizeL srcSize, QvpiSizeL dstSize, QvpDataType dataType, QvpiInterpolationType interpolation, Qvp32u antialiasing, QvpSizeL* pSpecSize, QvpSizeL* pInitBufSize);
/** @} */

/** @name Resize: size of the work buffer
 *  @{ */
/** Bytes of the buffer for a call.
 *
 *  The query goes by the record's Init: `_L` for those with `_L`, and any without it for those without, whatever its
 *  type. A record of the other kind is refused and no size is written.
 *
 *  @param pSpec record
 *  @param dstSize size of the largest tile; what is beyond the destination does not count
 *  @param numChannels channels of a pixel
 *  @param pBufSize receives bytes; 0 when these cannot be represented
 *  @return qvpStatusNullPointer. qvpStatusContextMatch: not a record of these functions, `_L`: not one of an Init with
 *          `_L`, and else one of such an Init. qvpStatusSize: a length below 1. qvpStatusChannel: not 1 to 4 channels.
 *          qvpStatusSizeOverflow: 2147483647 bytes or more, `_L` on 64 bits: beyond the type. Warning
 *          qvpStatusSizeWarning: `dstSize` is larger than the destination.
 */
QvpStatus qvpiResizeGetBufferSize_8u(const QvpiResizeSpec* pSpec, QvpiSize dstSize, int numChannels, int* pBufSize);
QvpStatus qvpiResizeGetBufferSize_16u(const QvpiResizeSpec* pSpec, QvpiSize dstSize, int numChannels, int* pBufSize);
QvpStatus qvpiResizeGetBufferSize_16s(const QvpiResizeSpec* pSpec, QvpiSize dstSize, int numChannels, int* pBufSize);
QvpStatus qvpiResizeGetBufferSize_32f(const QvpiResizeSpec* pSpec, QvpiSize dstSize, int numChannels, int* pBufSize);
QvpStatus qvpiResizeGetBufferSize_64f(const QvpiResizeSpec* pSpec, QvpiSize dstSize, int numChannels, int* pBufSize);
QvpStatus qvpiResizeGetBufferSize_L(const QvpiResizeSpec* pSpec, QvpiSizeL dstSize, int numChannels, QvpSizeL* pBufSize);
/** @} */

/** @name Resize: border
 *  @{ */
/** How far a method reads around the source rectangle of a tile.
 *
 *  1 pixel on each side for linear, 2 for cubic and Lanczos with 2 lobes, 3 with 3, 0 for nearest and super-sampling;
 *  antialiased as many times the ratio of the lengths, if it is above 1, rounded up.
 *
 *  @param pSpec record
 *  @param pBorderSize receives the widths
 *  @return qvpStatusNullPointer. qvpStatusContextMatch: not a record of these functions.
 */
QvpStatus qvpiResizeGetBorderSize_8u(const QvpiResizeSpec* pSpec, QvpiBorderSize* pBorderSize);
QvpStatus qvpiResizeGetBorderSize_16u(const QvpiResizeSpec* pSpec, QvpiBorderSize* pBorderSize);
QvpStatus qvpiResizeGetBorderSize_16s(const QvpiResizeSpec* pSpec, QvpiBorderSize* pBorderSize);
QvpStatus qvpiResizeGetBorderSize_32f(const QvpiResizeSpec* pSpec, QvpiBorderSize* pBorderSize);
QvpStatus qvpiResizeGetBorderSize_64f(const QvpiResizeSpec* pSpec, QvpiBorderSize* pBorderSize);
QvpStatus qvpiResizeGetBorderSize_L(const QvpiResizeSpec* pSpec, QvpiBorderSize* pBorderSize);
/** @} */

/** @name Resize: source pointer of a tile
 *  @{ */
/** The source pixel that a call takes as its pointer: floor(dstOffset.x * srcWidth / dstWidth), and likewise down; of a
 *  shifted record the first pixel that is covered.
 *
 *  @param pSpec record
 *  @param dstOffset first pixel of the tile
 *  @param pSrcOffset receives the place
 *  @return qvpStatusNullPointer. qvpStatusContextMatch: not a record of these functions. qvpStatusOutOfRange: outside
 *          the destination.
 */
QvpStatus qvpiResizeGetSrcOffset_8u(const QvpiResizeSpec* pSpec, QvpiPoint dstOffset, QvpiPoint* pSrcOffset);
QvpStatus qvpiResizeGetSrcOffset_16u(const QvpiResizeSpec* pSpec, QvpiPoint dstOffset, QvpiPoint* pSrcOffset);
QvpStatus qvpiResizeGetSrcOffset_16s(const QvpiResizeSpec* pSpec, QvpiPoint dstOffset, QvpiPoint* pSrcOffset);
QvpStatus qvpiResizeGetSrcOffset_32f(const QvpiResizeSpec* pSpec, QvpiPoint dstOffset, QvpiPoint* pSrcOffset);
QvpStatus qvpiResizeGetSrcOffset_64f(const QvpiResizeSpec* pSpec, QvpiPoint dstOffset, QvpiPoint* pSrcOffset);
QvpStatus qvpiResizeGetSrcOffset_L(const QvpiResizeSpec* pSpec, QvpiPointL dstOffset, QvpiPointL* pSrcOffset);
/** @} */

/** @name Resize: source rectangle of a tile
 *  @{ */
/** The core of what a tile reads, at least 1x1: from the pixel of GetSrcOffset to that of the tile's last pixel, or to
 *  the end of the image for tiles that reach it; for super-sampling all pixels that are covered.
 *
 *  Linear, cubic, Lanczos and antialiased resizing also read the pixels around it, up to GetBorderSize on each side as
 *  far as these lie in the image: who copies the source of a tile copies them too.
 *
 *  @param pSpec record
 *  @param dstRoi the tile; clipped to the destination
 *  @param pSrcRoiOffset,pSrcRoiSize receive the rectangle
 *  @return qvpStatusNullPointer. qvpStatusContextMatch: not a record of these functions. qvpStatusSize: a length
 *          below 1. qvpStatusOutOfRange: the tile begins outside the destination. Warning qvpStatusSizeWarning: it
 *          was clipped.
 */
QvpStatus qvpiResizeGetSrcRoi_8u(const QvpiResizeSpec* pSpec, QvpiRect dstRoi, QvpiPoint* pSrcRoiOffset, QvpiSize* pSrcRoiSize);
QvpStatus qvpiResizeGetSrcRoi_16u(const QvpiResizeSpec* pSpec, QvpiRect dstRoi, QvpiPoint* pSrcRoiOffset, QvpiSize* pSrcRoiSize);
QvpStatus qvpiResizeGetSrcRoi_16s(const QvpiResizeSpec* pSpec, QvpiRect dstRoi, QvpiPoint* pSrcRoiOffset, QvpiSize* pSrcRoiSize);
QvpStatus qvpiResizeGetSrcRoi_32f(const QvpiResizeSpec* pSpec, QvpiRect dstRoi, QvpiPoint* pSrcRoiOffset, QvpiSize* pSrcRoiSize);
QvpStatus qvpiResizeGetSrcRoi_64f(const QvpiResizeSpec* pSpec, QvpiRect dstRoi, QvpiPoint* pSrcRoiOffset, QvpiSize* pSrcRoiSize);
QvpStatus qvpiResizeGetSrcRoi_L(const QvpiResizeSpec* pSpec, QvpiRectL dstRoi, QvpiPointL* pSrcRoiOffset, QvpiSizeL* pSrcRoiSize);
/** @} */

/** @name Resize: mode
 *  @{ */
/** Switches a linear, cubic or Lanczos record between fast and accurate arithmetic.
 *
 *  Fast: 16-bit weights, for records of 8u Inits, which are fast at first. Accurate: 32-bit float. The tables are
 *  computed again; the Init buffer is not needed for it. A cubic record whose weights do not fit (see
 *  qvpiResizeCubicInit_8u()) stays accurate when it is asked to be fast, with status 0.
 *
 *  @param hint qvpAlgHintFast or qvpAlgHintAccurate
 *  @param pSpec record
 *  @return qvpStatusNotSupportedMode: another hint. qvpStatusNullPointer. qvpStatusContextMatch: not a resize record.
 *          qvpStatusNotSupportedMode: the other mode of another method, or the fast mode of another type's record.
 */
QvpStatus qvpiResizeSetMode(QvpHintAlgorithm hint, QvpiResizeSpec* pSpec);
/** @} */

/** @name Resize: nearest, Init
 *  @{ */
/** Makes a record for resizing by the nearest pixel.
 *
 *  @param srcSize,dstSize sizes of source and destination
 *  @param dataType `_L`: type of the samples
 *  @param pSpec record
 *  @return qvpStatusNullPointer. qvpStatusNoOperation: a length is 0; nothing is written. qvpStatusSize: a length
 *          below 1. `_L`: qvpStatusDataType: not 8u, 16u, 16s or 32f; qvpStatusSizeOverflow: a length above 33554431.
 */
QvpStatus qvpiResizeNearestInit_8u(QvpiSize srcSize, QvpiSize dstSize, QvpiResizeSpec* pSpec);
QvpStatus qvpiResizeNearestInit_16u(QvpiSize srcSize, QvpiSize dstSize, QvpiResizeSpec* pSpec);
QvpStatus qvpiResizeNearestInit_16s(QvpiSize srcSize, QvpiSize dstSize, QvpiResizeSpec* pSpec);
QvpStatus qvpiResizeNearestInit_32f(QvpiSize srcSize, QvpiSize dstSize, QvpiResizeSpec* pSpec);
QvpStatus qvpiResizeNearestInit_L(QvpiSizeL srcSize, QvpiSizeL dstSize, QvpDataType dataType, QvpiResizeSpec* pSpec);
/** @} */

/** @name Resize: nearest
 *  @{ */
/** Resizes by the nearest pixel: column d takes source column floor((d + 0.5) * srcWidth / dstWidth), or the lower of
 *  two that are equally near: ((2 * d + 1) * srcWidth - 1) div (2 * dstWidth). Rows likewise. Not in place.
 *
 *  @param pSrc,srcStep source, at the pixel that GetSrcOffset tells for the tile
 *  @param pDst,dstStep destination tile
 *  @param dstOffset,dstSize place and size of the tile in the destination; clipped to it
 *  @param pSpec record
 *  @param pBuffer work buffer
 *  @return qvpStatusNullPointer. qvpStatusNoOperation: a length of `dstSize` is 0. qvpStatusContextMatch: not a
 *          record of these functions, `_L` also: weights of another method's record. qvpStatusSize: a length below 1.
 *          qvpStatusStep: a step that is no multiple of the element size. qvpStatusOutOfRange: `dstOffset` outside
 *          the destination. qvpStatusNotSupportedMode: an antialiasing record. qvpStatusContextMatch: another
 *          method's record. Warning qvpStatusSizeWarning: the tile reached over the destination; the part inside was
 *          done.
 */
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
/** @} */

/** @name Resize: linear, Init
 *  @{ */
/** Makes a record for linear interpolation. Records of 8u are fast, those of 64f have 64-bit weights.
 *
 *  @param srcSize,dstSize sizes of source and destination
 *  @param dataType `_L`: type of the samples
 *  @param pSpec record
 *  @return qvpStatusNullPointer. qvpStatusNoOperation: a length is 0; nothing is written. qvpStatusSize: a length
 *          below 1, or the source's width or height below 2. `_L`: qvpStatusDataType: not 8u, 16u, 16s, 32f or 64f;
 *          qvpStatusSizeOverflow: a length above 33554431.
 */
QvpStatus qvpiResizeLinearInit_8u(QvpiSize srcSize, QvpiSize dstSize, QvpiResizeSpec* pSpec);
QvpStatus qvpiResizeLinearInit_16u(QvpiSize srcSize, QvpiSize dstSize, QvpiResizeSpec* pSpec);
QvpStatus qvpiResizeLinearInit_16s(QvpiSize srcSize, QvpiSize dstSize, QvpiResizeSpec* pSpec);
QvpStatus qvpiResizeLinearInit_32f(QvpiSize srcSize, QvpiSize dstSize, QvpiResizeSpec* pSpec);
QvpStatus qvpiResizeLinearInit_64f(QvpiSize srcSize, QvpiSize dstSize, QvpiResizeSpec* pSpec);
QvpStatus qvpiResizeLinearInit_8u_L(QvpiSizeL srcSize, QvpiSizeL dstSize, QvpiResizeSpec* pSpec);
QvpStatus qvpiResizeLinearInit_L(QvpiSizeL srcSize, QvpiSizeL dstSize, QvpDataType dataType, QvpiResizeSpec* pSpec);
/** @} */

/** @name Resize: linear
 *  @{ */
/** Resizes by linear interpolation between 2x2 pixels: with i = floor(x) and w = x - i, first each source row,
 *  h = p[i] * (1 - w) + p[i + 1] * w, then down likewise. Not in place.
 *
 *  8u with a fast record: w in units of 1/16384, h = (p[i] * (16384 - w) + p[i + 1] * w + 128) >> 8 and the result
 *  (h0 * (16384 - w) + h1 * w + 2^19) >> 20: within 1 of the exact value. Else w is the fraction rounded once, at any
 *  position, and each operation is rounded, in 32-bit float, or 64-bit for 64f; integers are rounded to the nearest,
 *  ties to even, and saturated. Equal sizes of source and destination copy.
 *
 *  A pixel that is infinite or NaN counts with the weight 0, too: 0 * inf and 0 * NaN are NaN. It reaches every
 *  destination pixel between whose 2x2 pixels it is, even where w is 0.
 *
 *  @param pSrc,srcStep source, at the pixel that GetSrcOffset tells for the tile
 *  @param pDst,dstStep destination tile
 *  @param dstOffset,dstSize place and size of the tile in the destination; clipped to it
 *  @param border replicate or mirror, with any sides in memory, or qvpBorderInMem; qvpBorderReplicateAlt is
 *         replicate. `_L`: replicate only. It applies outside of the whole source image
 *  @param pBorderValue not used, may be null
 *  @param pSpec record
 *  @param pBuffer work buffer
 *  @return qvpStatusBorder: another border. qvpStatusNullPointer. qvpStatusNoOperation: a length of `dstSize` is 0.
 *          qvpStatusContextMatch: not a record of these functions, `_L` but 64f also: one with 64-bit weights.
 *          qvpStatusSize: a length below 1. qvpStatusStep: a step that is no multiple of the element size.
 *          qvpStatusOutOfRange: `dstOffset` outside the destination. qvpStatusNotSupportedMode: an antialiasing
 *          record. qvpStatusContextMatch: another method's record. Warning qvpStatusSizeWarning: the tile reached
 *          over the destination; the part inside was done.
 */
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
/** @} */

/** @name Resize: cubic, Init
 *  @{ */
/** Makes a record for cubic interpolation with the kernel of Mitchell and Netravali ("Reconstruction filters in
 *  computer graphics", 1988).
 *
 *  At the distance t: ((12 - 9*B - 6*C) * t^3 + (-18 + 12*B + 6*C) * t^2 + 6 - 2*B) / 6 below 1, ((-B - 6*C) * t^3 +
 *  (6*B + 30*C) * t^2 + (-12*B - 48*C) * t + 8*B + 24*C) / 6 below 2. B = 0, C = 0.5 is the Catmull-Rom spline, B = C =
 *  1/3 a soft compromise. Records of 8u are fast, unless a weight reaches 2 or the absolute weights of a position sum
 *  to more than 2.8.
 *
 *  @param srcSize,dstSize sizes of source and destination
 *  @param dataType `_L`: type of the samples
 *  @param valueB,valueC parameters of the kernel
 *  @param pSpec record
 *  @param pInitBuf Init buffer; not needed after the call
 *  @return qvpStatusNullPointer. qvpStatusNoOperation: a length is 0; nothing is written. qvpStatusSize: a length
 *          below 1, or the source's width or height below 4. qvpStatusBadArgument: B or C is infinite or NaN. `_L`:
 *          qvpStatusDataType: not 8u, 16u, 16s or 32f; qvpStatusSizeOverflow: a length above 33554431.
 */
QvpStatus qvpiResizeCubicInit_8u(QvpiSize srcSize, QvpiSize dstSize, Qvp32f valueB, Qvp32f valueC, QvpiResizeSpec* pSpec, Qvp8u* pInitBuf);
QvpStatus qvpiResizeCubicInit_16u(QvpiSize srcSize, QvpiSize dstSize, Qvp32f valueB, Qvp32f valueC, QvpiResizeSpec* pSpec, Qvp8u* pInitBuf);
QvpStatus qvpiResizeCubicInit_16s(QvpiSize srcSize, QvpiSize dstSize, Qvp32f valueB, Qvp32f valueC, QvpiResizeSpec* pSpec, Qvp8u* pInitBuf);
QvpStatus qvpiResizeCubicInit_32f(QvpiSize srcSize, QvpiSize dstSize, Qvp32f valueB, Qvp32f valueC, QvpiResizeSpec* pSpec, Qvp8u* pInitBuf);
QvpStatus qvpiResizeCubicInit_8u_L(QvpiSizeL srcSize, QvpiSizeL dstSize, Qvp32f valueB, Qvp32f valueC, QvpiResizeSpec* pSpec, Qvp8u* pInitBuf);
QvpStatus qvpiResizeCubicInit_L(QvpiSizeL srcSize, QvpiSizeL dstSize, QvpDataType dataType, Qvp32f valueB, Qvp32f valueC, QvpiResizeSpec* pSpec, Qvp8u* pInitBuf);
/** @} */

/** @name Resize: cubic and Lanczos
 *  @{ */
/** Resizes by kernels of 4 or 6 taps an axis, first each source row, then down. Not in place.
 *
 *  Cubic and Lanczos with 2 lobes take the pixels floor(x) - 1 to floor(x) + 2, Lanczos with 3 lobes floor(x) - 2 to
 *  floor(x) + 3. 8u with a fast record: weights in units of 1/16384 that sum to 16384; rows are rounded half up to 6
 *  bits of fraction and saturated to 16 bits, results rounded half up and saturated. Else each product and sum is
 *  rounded in 32-bit float, in the order of the pixels; integers are rounded to the nearest, ties to even, and
 *  saturated. A float pixel that is infinite or NaN makes every result NaN that it is a tap of with weight 0, as it is
 *  for all but one tap where centres of pixels meet.
 *
 *  @param pSrc,srcStep source, at the pixel that GetSrcOffset tells for the tile
 *  @param pDst,dstStep destination tile
 *  @param dstOffset,dstSize place and size of the tile in the destination; clipped to it
 *  @param border replicate, qvpBorderReplicateAlt, which is the same, or mirror, with any sides in memory, or
 *         qvpBorderInMem. It applies outside of the whole source image
 *  @param pBorderValue not used, may be null
 *  @param pSpec record
 *  @param pBuffer work buffer
 *  @return qvpStatusBorder: another border. qvpStatusNullPointer. qvpStatusNoOperation: a length of `dstSize` is 0.
 *          qvpStatusContextMatch: not a record of these functions. qvpStatusSize: a length below 1. qvpStatusStep: a
 *          step that is no multiple of the element size. qvpStatusOutOfRange: `dstOffset` outside the destination.
 *          qvpStatusNotSupportedMode: an antialiasing record. qvpStatusContextMatch: another method's record. Warning
 *          qvpStatusSizeWarning: the tile reached over the destination; the part inside was done.
 */
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
/** @} */

/** @name Resize: Lanczos, Init
 *  @{ */
/** Makes a record for resizing with a windowed sinc: L(t) = sinc(t) * sinc(t / lobes), sinc(t) = sin(pi * t) /
 *  (pi * t).
 *
 *  L is interpolated linearly between samples, 200 a unit for 2 lobes and 100 for 3 (within 5e-5), and the weights of
 *  each position are divided by their sum. Records of 8u are fast.
 *
 *  @param srcSize,dstSize sizes of source and destination
 *  @param dataType `_L`: type of the samples
 *  @param numLobes 2 or 3
 *  @param pSpec record
 *  @param pInitBuf Init buffer; not needed after the call
 *  @return qvpStatusNullPointer. qvpStatusNoOperation: a length is 0; nothing is written. qvpStatusSize: a length
 *          below 1, or the source's width or height below 4, with 3 lobes below 6. qvpStatusNotSupportedMode: not 2 or
 *          3 lobes. `_L`: qvpStatusDataType: not 8u, 16u, 16s or 32f; qvpStatusSizeOverflow: a length above 33554431.
 */
QvpStatus qvpiResizeLanczosInit_8u(QvpiSize srcSize, QvpiSize dstSize, Qvp32u numLobes, QvpiResizeSpec* pSpec, Qvp8u* pInitBuf);
QvpStatus qvpiResizeLanczosInit_16u(QvpiSize srcSize, QvpiSize dstSize, Qvp32u numLobes, QvpiResizeSpec* pSpec, Qvp8u* pInitBuf);
QvpStatus qvpiResizeLanczosInit_16s(QvpiSize srcSize, QvpiSize dstSize, Qvp32u numLobes, QvpiResizeSpec* pSpec, Qvp8u* pInitBuf);
QvpStatus qvpiResizeLanczosInit_32f(QvpiSize srcSize, QvpiSize dstSize, Qvp32u numLobes, QvpiResizeSpec* pSpec, Qvp8u* pInitBuf);
QvpStatus qvpiResizeLanczosInit_8u_L(QvpiSizeL srcSize, QvpiSizeL dstSize, Qvp32u numLobes, QvpiResizeSpec* pSpec, Qvp8u* pInitBuf);
QvpStatus qvpiResizeLanczosInit_L(QvpiSizeL srcSize, QvpiSizeL dstSize, QvpDataType dataType, Qvp32u numLobes, QvpiResizeSpec* pSpec, Qvp8u* pInitBuf);
/** @} */

/** @name Resize: super-sampling, Init
 *  @{ */
/** Makes a record for averages over areas.
 *
 *  @param srcSize,dstSize sizes of source and destination
 *  @param dataType `_L`: type of the samples
 *  @param pSpec record
 *  @return qvpStatusNullPointer. qvpStatusNoOperation: a length is 0; nothing is written. qvpStatusSize: a length
 *          below 1, or the source narrower or lower than the destination. `_L`: qvpStatusDataType: not 8u, 16u, 16s or
 *          32f; qvpStatusSizeOverflow: a length above 33554431.
 */
QvpStatus qvpiResizeSuperInit_8u(QvpiSize srcSize, QvpiSize dstSize, QvpiResizeSpec* pSpec);
QvpStatus qvpiResizeSuperInit_16u(QvpiSize srcSize, QvpiSize dstSize, QvpiResizeSpec* pSpec);
QvpStatus qvpiResizeSuperInit_16s(QvpiSize srcSize, QvpiSize dstSize, QvpiResizeSpec* pSpec);
QvpStatus qvpiResizeSuperInit_32f(QvpiSize srcSize, QvpiSize dstSize, QvpiResizeSpec* pSpec);
QvpStatus qvpiResizeSuperInit_L(QvpiSizeL srcSize, QvpiSizeL dstSize, QvpDataType dataType, QvpiResizeSpec* pSpec);
/** @} */

/** @name Resize: super-sampling with a shift, Init
 *  @{ */
/** Makes a record for averages over areas of a grid that is shifted by a part of a destination pixel.
 *
 *  The calls take their source pointer at GetSrcOffset, as ever; with a negative shift that is not the first pixel of
 *  the image even for the tile at (0, 0): with a shift of -1.5 and a ratio of 2 it is column 3.
 *
 *  @param srcSize,dstSize sizes of source and destination
 *  @param shiftX,shiftY shift of the destination grid in destination pixels: pixel d covers what d - shift would
 *  @param pSpec record
 *  @return qvpStatusNullPointer. qvpStatusNoOperation: a length is 0; nothing is written. qvpStatusSize: a length
 *          below 1, or the source narrower or lower than the destination. qvpStatusBadArgument: a shift that is
 *          infinite or NaN.
 */
QvpStatus qvpiResizeSuperShiftInit_8u(QvpiSize srcSize, QvpiSize dstSize, Qvp64f shiftX, Qvp64f shiftY, QvpiResizeSpec* pSpec);
QvpStatus qvpiResizeSuperShiftInit_16u(QvpiSize srcSize, QvpiSize dstSize, Qvp64f shiftX, Qvp64f shiftY, QvpiResizeSpec* pSpec);
QvpStatus qvpiResizeSuperShiftInit_16s(QvpiSize srcSize, QvpiSize dstSize, Qvp64f shiftX, Qvp64f shiftY, QvpiResizeSpec* pSpec);
QvpStatus qvpiResizeSuperShiftInit_32f(QvpiSize srcSize, QvpiSize dstSize, Qvp64f shiftX, Qvp64f shiftY, QvpiResizeSpec* pSpec);
/** @} */

/** @name Resize: super-sampling
 *  @{ */
/** Reduces: each destination pixel is the mean of the source over the area that it covers, partly covered pixels
 *  weighted by their covered part.
 *
 *  Column d covers [d * r, (d + 1) * r) with r = srcWidth / dstWidth, with a shift [(d - shift) * r, (d + 1 - shift) *
 *  r) as far as it lies in the image, and the nearest edge pixel where nothing of it does; rows likewise. Not in place.
 *
 *  Integers: the mean, rounded to the nearest, ties to even. It is exact but where a pixel of 16 bits averages up to
 *  3x3 pixels that p1 * p2 > 256 parts of pixels make up, p1 and p2 the source lengths by their greatest common
 *  divisors with those of the destination (8 bits: 65536): there within 0.57. 32f: within 16 * 2^-24 of the mean of the
 *  magnitudes; a mean that is finite stays finite. Equal pixels have themselves as mean: exactly in integers, within 2
 *  units of the last place in 32f. Infinite and NaN pixels count only in areas that cover a part of them.
 *
 *  @param pSrc,srcStep source, at the pixel that GetSrcOffset tells for the tile
 *  @param pDst,dstStep destination tile
 *  @param dstOffset,dstSize place and size of the tile in the destination; clipped to it
 *  @param pSpec record
 *  @param pBuffer work buffer
 *  @return qvpStatusNullPointer. qvpStatusNoOperation: a length of `dstSize` is 0. qvpStatusContextMatch: not a
 *          record of these functions, `_L` also: weights of another method's record. qvpStatusSize: a length below 1.
 *          qvpStatusStep: a step that is no multiple of the element size. qvpStatusOutOfRange: `dstOffset` outside
 *          the destination. qvpStatusNotSupportedMode: an antialiasing record. qvpStatusContextMatch: another
 *          method's record. Warning qvpStatusSizeWarning: the tile reached over the destination; the part inside was
 *          done.
 */
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
/** @} */

/** @name Resize: antialiased linear, Init
 *  @{ */
/** Makes a record for linear resizing with a kernel that is widened when reducing. One record serves all types.
 *
 *  @param srcSize,dstSize sizes of source and destination
 *  @param dataType `_L`: type of the samples
 *  @param pSpec record
 *  @param pInitBuf Init buffer; not needed after the call
 *  @return qvpStatusNullPointer. qvpStatusNoOperation: a length is 0; nothing is written. qvpStatusSize: a length
 *          below 1, or the source's width or height below 2. `_L`: qvpStatusDataType: not 8u, 16u, 16s, 32f or 64f;
 *          qvpStatusSizeOverflow: a length above 33554431.
 */
QvpStatus qvpiResizeAntialiasingLinearInit(QvpiSize srcSize, QvpiSize dstSize, QvpiResizeSpec* pSpec, Qvp8u* pInitBuf);
QvpStatus qvpiResizeAntialiasingLinearInit_64f(QvpiSize srcSize, QvpiSize dstSize, QvpiResizeSpec* pSpec, Qvp8u* pInitBuf);
QvpStatus qvpiResizeAntialiasingLinearInit_L(QvpiSizeL srcSize, QvpiSizeL dstSize, QvpDataType dataType, QvpiResizeSpec* pSpec, Qvp8u* pInitBuf);
/** @} */

/** @name Resize: antialiased cubic, Init
 *  @{ */
/** Makes a record for cubic resizing with a kernel that is widened when reducing. One record serves all types.
 *
 *  @param srcSize,dstSize sizes of source and destination
 *  @param dataType `_L`: type of the samples
 *  @param valueB,valueC parameters of the kernel, as for qvpiResizeCubicInit_8u()
 *  @param pSpec record
 *  @param pInitBuf Init buffer; not needed after the call
 *  @return qvpStatusNullPointer. qvpStatusNoOperation: a length is 0; nothing is written. qvpStatusSize: a length
 *          below 1, or the source's width or height below 4. qvpStatusBadArgument: B or C is infinite or NaN. `_L`:
 *          qvpStatusDataType: not 8u, 16u, 16s, 32f or 64f; qvpStatusSizeOverflow: a length above 33554431.
 */
QvpStatus qvpiResizeAntialiasingCubicInit(QvpiSize srcSize, QvpiSize dstSize, Qvp32f valueB, Qvp32f valueC, QvpiResizeSpec* pSpec, Qvp8u* pInitBuf);
QvpStatus qvpiResizeAntialiasingCubicInit_64f(QvpiSize srcSize, QvpiSize dstSize, Qvp32f valueB, Qvp32f valueC, QvpiResizeSpec* pSpec, Qvp8u* pInitBuf);
QvpStatus qvpiResizeAntialiasingCubicInit_L(QvpiSizeL srcSize, QvpiSizeL dstSize, QvpDataType dataType, Qvp32f valueB, Qvp32f valueC, QvpiResizeSpec* pSpec, Qvp8u* pInitBuf);
/** @} */

/** @name Resize: antialiased Lanczos, Init
 *  @{ */
/** Makes a record for Lanczos resizing with a kernel that is widened when reducing. One record serves all types.
 *
 *  @param srcSize,dstSize sizes of source and destination
 *  @param dataType `_L`: type of the samples
 *  @param numLobes 2 or 3
 *  @param pSpec record
 *  @param pInitBuf Init buffer; not needed after the call
 *  @return qvpStatusNullPointer. qvpStatusNoOperation: a length is 0; nothing is written. qvpStatusSize: a length
 *          below 1, or the source's width or height below 4, with 3 lobes below 6. qvpStatusNotSupportedMode: not 2 or
 *          3 lobes. `_L`: qvpStatusDataType: not 8u, 16u, 16s, 32f or 64f; qvpStatusSizeOverflow: a length above
 *          33554431.
 */
QvpStatus qvpiResizeAntialiasingLanczosInit(QvpiSize srcSize, QvpiSize dstSize, Qvp32u numLobes, QvpiResizeSpec* pSpec, Qvp8u* pInitBuf);
QvpStatus qvpiResizeAntialiasingLanczosInit_64f(QvpiSize srcSize, QvpiSize dstSize, Qvp32u numLobes, QvpiResizeSpec* pSpec, Qvp8u* pInitBuf);
QvpStatus qvpiResizeAntialiasingLanczosInit_L(QvpiSizeL srcSize, QvpiSizeL dstSize, QvpDataType dataType, Qvp32u numLobes, QvpiResizeSpec* pSpec, Qvp8u* pInitBuf);
/** @} */

/** @name Resize: antialiased
 *  @{ */
/** Resizes with a linear, cubic or Lanczos kernel K that is widened by s = max(1, source length / destination length)
 *  on each axis, so that every source pixel counts.
 *
 *  A position at x takes the pixels i with |i - x| < a * s, a = 1 for linear, 2 for cubic, the lobes for Lanczos, with
 *  weights K(|i - x| / s) divided by their sum. First each source row, then down. Weights, products and sums are
 *  rounded to 32-bit float, and sums of more than 32 products are added up in blocks of 32, without a further error;
 *  for 64f all is in double. Integers are rounded to the nearest, ties to even, and saturated: equal pixels stay what
 *  they are at every ratio. Pixels beyond a * s are not read; an infinite or NaN one within makes the result so. Not in
 *  place.
 *
 *  @param pSrc,srcStep source, at the pixel that GetSrcOffset tells for the tile
 *  @param pDst,dstStep destination tile
 *  @param dstOffset,dstSize place and size of the tile in the destination; clipped to it
 *  @param border replicate, qvpBorderReplicateAlt, which is the same, or mirror, with any sides in memory, or
 *         qvpBorderInMem. It applies outside of the whole source image
 *  @param pBorderValue not used, may be null
 *  @param pSpec record of an antialiasing Init
 *  @param pBuffer work buffer
 *  @return qvpStatusBorder: another border. qvpStatusNullPointer. qvpStatusNoOperation: a length of `dstSize` is 0.
 *          qvpStatusContextMatch: not a record of these functions. qvpStatusSize: a length below 1. qvpStatusStep: a
 *          step that is no multiple of the element size. qvpStatusOutOfRange: `dstOffset` outside the destination.
 *          qvpStatusNotSupportedMode: a record without antialiasing. Warning qvpStatusSizeWarning: the tile reached
 *          over the destination; the part inside was done.
 */
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

/** @name Resize frames: size of the destination
 *  @{ */
/** The size of a frame by a factor on each axis: the nearest even length where chroma is halved, which is 2 or more,
 *  and not above the source's where the factor is at most 1; else the nearest length of 1 or more. Halves go up.
 *
 *  1920x1080 by 0.6 is 1152x648, and a width of 1918 by 0.5 is 960. Other sizes of the destination serve as well: this
 *  one has a ratio near the factors, and whole pairs.
 *
 *  @param srcSize size of the luma
 *  @param xFactor,yFactor destination length by source length
 *  @param pDstSize receives the size of the luma
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: `pDstSize` is null
 *  - qvpStatusSize: a length below 1, or 4:2:2 of odd width
 *  - qvpStatusResizeFactor: a factor that is not finite or not above 0
 *  - qvpStatusSizeOverflow: a length above 2147483647
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiResize420GetDstSize(QvpiSize srcSize, double xFactor, double yFactor, QvpiSize* pDstSize);
QvpStatus qvpiResize422GetDstSize(QvpiSize srcSize, double xFactor, double yFactor, QvpiSize* pDstSize);
/** @} */

/** @name Resize frames: size of the record
 *  @{ */
/** Bytes of the record of a resize of frames whose chroma is subsampled, and of the Init buffer.
 *
 *  The steps are those of qvpiResizeGetSize_8u(): GetSize, an Init, GetBufferSize, calls for the frame or for tiles.
 *  Records and buffers may begin at any address; threads share a record, but not a buffer. All sizes and places are in
 *  luma pixels. A frame is
 *
 *  @code
 *    4:2:0 P2   a plane of luma, and a plane of pairs of chroma of half its columns and rows
 *    4:2:0 P3   a plane of luma, and two such planes of chroma
 *    4:2:2 C2   one plane, of two pixels in four elements: Y U Y V or U Y V Y. Chroma has half of the columns
 *  @endcode
 *
 *  with chroma in any order. 4:2:0 frames may have odd lengths n: their chroma has (n + 1) / 2 samples. 4:2:2 frames
 *  have even widths. 16-bit samples count in all their bits, so that 10 bits may be the high or the low ones.
 *
 *  **Coordinates.** Destination sample d lies at
 *
 *  @code
 *    x = (d + o) * srcLength / dstLength - o
 *  @endcode
 *
 *  in its source plane, with the lengths of the luma, for chroma too: the ratio of its own, rounded lengths would
 *  move it by up to half a pixel. o is 0.5 for luma and for chroma between its luma pixels, and 0.25 for chroma that
 *  lies on every other luma pixel: the site tells which. A wrong site moves the colours of a resized frame against its
 *  luma, by |1 - srcLength / dstLength| / 4 source samples, which coloured edges show. 100 110 120 130 from 8 columns
 *  to 6, linear:
 *
 *  @code
 *    site               o of columns, rows    x                   chroma
 *    qvpChromaCentre    0.5, 0.5              0.167 1.5 2.833     101.67 115 128.33
 *    qvpChromaLeft      0.25, 0.5             0.083 1.417 2.75    100.83 114.17 127.5
 *    qvpChromaTopLeft   0.25, 0.25            as Left
 *  @endcode
 *
 *  Everything else is as for images, plane by plane in the pixels of the plane: qvpiResizeLinear_8u_C1R() and its like
 *  tell taps, rounding and borders. So luma has the bits that these functions give, and chroma too where its site is
 *  qvpChromaCentre and the lengths are even. A frame of the same size is copied.
 *
 *  **Limits.** Each source plane needs 2 samples on each axis for linear, 4 for Lanczos with 2 lobes and 6 with 3. For
 *  super-sampling the destination must not be larger.
 *
 *  **Tiles.** `dstOffset` of a tile is even on the axes on which chroma is halved. Source pointers are at the pixel
 *  that GetSrcOffset tells, those of chroma at half of it. Every even tiling gives the bits of the whole.
 *
 *  A record has 128 + 2 R bytes, R those of a record of qvpiResizeGetSize_8u(). The Init buffer has 64.
 *
 *  @param srcSize,dstSize sizes of the luma
 *  @param dataType qvp8u or qvp16u
 *  @param interpolation qvpInterpolationLinear, qvpInterpolationSuper or qvpInterpolationLanczos
 *  @param antialiasing there is none here: anything but 0 gives the same sizes and a warning
 *  @param pSpecSize,pInitBufSize receive bytes; 0 when these cannot be represented
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: a pointer is null
 *  - qvpStatusNoOperation: a length is 0; nothing is written
 *  - qvpStatusSize: a length below 1, or 4:2:2 of odd width
 *  - qvpStatusDataType: another type
 *  - qvpStatusInterpolation: another method
 *  - qvpStatusSize: a source that is too small (Lanczos: for 2 lobes), or a destination that is too large
 *  - qvpStatusSizeOverflow: 2147483647 bytes or more
 *  - qvpStatusAntialiasIgnored: `antialiasing` is not 0
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiResize420GetSize(QvpiSize srcSize, QvpiSize dstSize, QvpDataType dataType, QvpiInterpolationType interpolation, Qvp32u antialiasing, int* pSpecSize, int* pInitBufSize);
QvpStatus qvpiResize422GetSize(QvpiSize srcSize, QvpiSize dstSize, QvpDataType dataType, QvpiInterpolationType interpolation, Qvp32u antialiasing, int* pSpecSize, int* pInitBufSize);
/** @} */

/** @name Resize frames: Inits
 *  @{ */
/** Makes a record of a resize of frames; see qvpiResize420GetSize().
 *
 *  @param srcSize,dstSize sizes of the luma
 *  @param dataType type of the samples: qvp8u or qvp16u
 *  @param numLobes Lanczos: 2 or 3
 *  @param site where chroma lies
 *  @param lumaPlace 4:2:2: qvpLumaFirst or qvpLumaSecond
 *  @param pSpec receives the record
 *  @param pInitBuf Lanczos: the Init buffer, not read and not written
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: a pointer is null
 *  - qvpStatusNoOperation: a length is 0; nothing is written
 *  - qvpStatusSize: a length below 1, or 4:2:2 of odd width
 *  - qvpStatusDataType: another type
 *  - qvpStatusNotSupportedMode: not 2 or 3 lobes
 *  - qvpStatusSize: a source that is too small, or a destination that is too large
 *  - qvpStatusNotSupportedMode: another site
 *  - qvpStatusChannelOrder: another place
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiResize420LinearInit(QvpiSize srcSize, QvpiSize dstSize, QvpDataType dataType, QvpiChromaSite site, QvpiResizeChromaSpec* pSpec);
QvpStatus qvpiResize422LinearInit(QvpiSize srcSize, QvpiSize dstSize, QvpDataType dataType, QvpiChromaSite site, QvpiLumaPlace lumaPlace, QvpiResizeChromaSpec* pSpec);
QvpStatus qvpiResize420LanczosInit(QvpiSize srcSize, QvpiSize dstSize, QvpDataType dataType, Qvp32u numLobes, QvpiChromaSite site, QvpiResizeChromaSpec* pSpec, Qvp8u* pInitBuf);
QvpStatus qvpiResize422LanczosInit(QvpiSize srcSize, QvpiSize dstSize, QvpDataType dataType, Qvp32u numLobes, QvpiChromaSite site, QvpiLumaPlace lumaPlace, QvpiResizeChromaSpec* pSpec, Qvp8u* pInitBuf);
QvpStatus qvpiResize420SuperInit(QvpiSize srcSize, QvpiSize dstSize, QvpDataType dataType, QvpiChromaSite site, QvpiResizeChromaSpec* pSpec);
QvpStatus qvpiResize422SuperInit(QvpiSize srcSize, QvpiSize dstSize, QvpDataType dataType, QvpiChromaSite site, QvpiLumaPlace lumaPlace, QvpiResizeChromaSpec* pSpec);
/** @} */

/** @name Resize frames: size of the work buffer
 *  @{ */
/** Bytes of the buffer for a call.
 *
 *  @param pSpec record
 *  @param dstSize luma size of the largest tile; what is beyond the destination does not count
 *  @param pBufSize receives bytes; 0 when these cannot be represented
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: a pointer is null
 *  - qvpStatusContextMatch: not a record of these frames
 *  - qvpStatusSize: a length below 1, or 4:2:2 of odd width
 *  - qvpStatusSizeOverflow: 2147483647 bytes or more
 *  - qvpStatusSizeWarning: `dstSize` is larger than the destination
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiResize420GetBufferSize(const QvpiResizeChromaSpec* pSpec, QvpiSize dstSize, int* pBufSize);
QvpStatus qvpiResize422GetBufferSize(const QvpiResizeChromaSpec* pSpec, QvpiSize dstSize, int* pBufSize);
/** @} */

/** @name Resize frames: border
 *  @{ */
/** How far a method reads around the source rectangle of a tile, in luma pixels: 1 for linear, 2 or 3 for Lanczos with
 *  as many lobes, twice as many on the axes on which chroma is halved; 0 for super-sampling.
 *
 *  @param pSpec record
 *  @param pBorderSize receives the widths
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: a pointer is null
 *  - qvpStatusContextMatch: not a record of these frames
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiResize420GetBorderSize(const QvpiResizeChromaSpec* pSpec, QvpiBorderSize* pBorderSize);
QvpStatus qvpiResize422GetBorderSize(const QvpiResizeChromaSpec* pSpec, QvpiBorderSize* pBorderSize);
/** @} */

/** @name Resize frames: source pointer of a tile
 *  @{ */
/** The luma pixel that a call takes as its pointer; on axes on which chroma is halved it is even, and the pointers of
 *  chroma are at half of it. It is floor(d * srcLength / dstLength), made even there by going down; for super-sampling
 *  twice the first chroma sample that is covered.
 *
 *  @param pSpec record
 *  @param dstOffset first pixel of the tile
 *  @param pSrcOffset receives the place
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: a pointer is null
 *  - qvpStatusContextMatch: not a record of these frames
 *  - qvpStatusOutOfRange: outside the destination
 *  - qvpStatusMisalignedOffset: odd on an axis on which chroma is halved
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiResize420GetSrcOffset(const QvpiResizeChromaSpec* pSpec, QvpiPoint dstOffset, QvpiPoint* pSrcOffset);
QvpStatus qvpiResize422GetSrcOffset(const QvpiResizeChromaSpec* pSpec, QvpiPoint dstOffset, QvpiPoint* pSrcOffset);
/** @} */

/** @name Resize frames: source rectangle of a tile
 *  @{ */
/** The core of what a tile reads, of luma and chroma: from the pixel of GetSrcOffset to the end of what either needs,
 *  rounded up to whole pairs or the end of the frame. See qvpiResizeGetSrcRoi_8u() for what is read around it.
 *
 *  @param pSpec record
 *  @param dstRoi the tile; clipped to the destination
 *  @param pSrcRoiOffset,pSrcRoiSize receive the rectangle, in luma pixels
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: a pointer is null
 *  - qvpStatusContextMatch: not a record of these frames
 *  - qvpStatusSize: a length below 1, or 4:2:2 of odd width
 *  - qvpStatusOutOfRange: the tile begins outside the destination
 *  - qvpStatusMisalignedOffset: it begins at an odd place on an axis on which chroma is halved
 *  - qvpStatusSizeWarning: it was clipped
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiResize420GetSrcRoi(const QvpiResizeChromaSpec* pSpec, QvpiRect dstRoi, QvpiPoint* pSrcRoiOffset, QvpiSize* pSrcRoiSize);
QvpStatus qvpiResize422GetSrcRoi(const QvpiResizeChromaSpec* pSpec, QvpiRect dstRoi, QvpiPoint* pSrcRoiOffset, QvpiSize* pSrcRoiSize);
/** @} */

/** @name Resize frames: linear
 *  @{ */
/** Resizes a frame by linear interpolation; see qvpiResize420GetSize() for frames and coordinates. Each sample is that
 *  of qvpiResizeLinear_8u_C1R() or qvpiResizeLinear_16u_C1R() on its plane. Luma 0 10 20 ... 70 to 6 columns becomes,
 *  before rounding, 1.67 15 28.33 41.67 55 68.33.
 *
 *  Borders apply to each plane in its own pixels: sides that are in memory are so around luma and chroma. Steps may be
 *  negative. Not in place.
 *
 *  @param pSrc,srcStep source, at the pixel that GetSrcOffset tells for the tile; of 4:2:0 an array of planes and one
 *         of their steps
 *  @param pDst,dstStep destination tile, likewise
 *  @param dstOffset,dstSize place and size of the tile in the destination's luma; clipped to it
 *  @param border qvpBorderReplicate, qvpBorderReplicateAlt or qvpBorderMirror, with any sides in memory, or
 *         qvpBorderInMem
 *  @param pSpec record
 *  @param pBuffer work buffer
 *  @return, in the order of the checks:
 *  - qvpStatusBorder: another border
 *  - qvpStatusNullPointer: an array, a plane, the record or the buffer is null
 *  - qvpStatusNoOperation: a length of `dstSize` is 0
 *  - qvpStatusContextMatch: not a record of these frames
 *  - qvpStatusSize: a length below 1, or 4:2:2 of odd width
 *  - qvpStatusStep: 16u, and a step that is no multiple of 2
 *  - qvpStatusOutOfRange: `dstOffset` outside the destination
 *  - qvpStatusMisalignedOffset: `dstOffset` odd on an axis on which chroma is halved
 *  - qvpStatusContextMatch: a record for another type or another method
 *  - qvpStatusSizeWarning: the tile reached over the destination; the part inside was done
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiResize420Linear_8u_P2R(const Qvp8u* const pSrc[2], const int srcStep[2], Qvp8u* const pDst[2], const int dstStep[2], QvpiPoint dstOffset, QvpiSize dstSize, QvpiBorderType border, const QvpiResizeChromaSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResize420Linear_8u_P3R(const Qvp8u* const pSrc[3], const int srcStep[3], Qvp8u* const pDst[3], const int dstStep[3], QvpiPoint dstOffset, QvpiSize dstSize, QvpiBorderType border, const QvpiResizeChromaSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResize420Linear_16u_P2R(const Qvp16u* const pSrc[2], const int srcStep[2], Qvp16u* const pDst[2], const int dstStep[2], QvpiPoint dstOffset, QvpiSize dstSize, QvpiBorderType border, const QvpiResizeChromaSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResize420Linear_16u_P3R(const Qvp16u* const pSrc[3], const int srcStep[3], Qvp16u* const pDst[3], const int dstStep[3], QvpiPoint dstOffset, QvpiSize dstSize, QvpiBorderType border, const QvpiResizeChromaSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResize422Linear_8u_C2R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiPoint dstOffset, QvpiSize dstSize, QvpiBorderType border, const QvpiResizeChromaSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResize422Linear_16u_C2R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiPoint dstOffset, QvpiSize dstSize, QvpiBorderType border, const QvpiResizeChromaSpec* pSpec, Qvp8u* pBuffer);
/** @} */

/** @name Resize frames: Lanczos
 *  @{ */
/** Resizes a frame by Lanczos interpolation, which is sharper and may overshoot; see qvpiResize420GetSize() for frames
 *  and coordinates. Each sample is that of qvpiResizeLanczos_8u_C1R() or qvpiResizeLanczos_16u_C1R() on its plane.
 *
 *  Borders apply to each plane in its own pixels: sides that are in memory are so around luma and chroma. Steps may be
 *  negative. Not in place.
 *
 *  @param pSrc,srcStep source, at the pixel that GetSrcOffset tells for the tile; of 4:2:0 an array of planes and one
 *         of their steps
 *  @param pDst,dstStep destination tile, likewise
 *  @param dstOffset,dstSize place and size of the tile in the destination's luma; clipped to it
 *  @param border qvpBorderReplicate, qvpBorderReplicateAlt or qvpBorderMirror, with any sides in memory, or
 *         qvpBorderInMem
 *  @param pSpec record
 *  @param pBuffer work buffer
 *  @return, in the order of the checks:
 *  - qvpStatusBorder: another border
 *  - qvpStatusNullPointer: an array, a plane, the record or the buffer is null
 *  - qvpStatusNoOperation: a length of `dstSize` is 0
 *  - qvpStatusContextMatch: not a record of these frames
 *  - qvpStatusSize: a length below 1, or 4:2:2 of odd width
 *  - qvpStatusStep: 16u, and a step that is no multiple of 2
 *  - qvpStatusOutOfRange: `dstOffset` outside the destination
 *  - qvpStatusMisalignedOffset: `dstOffset` odd on an axis on which chroma is halved
 *  - qvpStatusContextMatch: a record for another type or another method
 *  - qvpStatusSizeWarning: the tile reached over the destination; the part inside was done
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiResize420Lanczos_8u_P2R(const Qvp8u* const pSrc[2], const int srcStep[2], Qvp8u* const pDst[2], const int dstStep[2], QvpiPoint dstOffset, QvpiSize dstSize, QvpiBorderType border, const QvpiResizeChromaSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResize420Lanczos_8u_P3R(const Qvp8u* const pSrc[3], const int srcStep[3], Qvp8u* const pDst[3], const int dstStep[3], QvpiPoint dstOffset, QvpiSize dstSize, QvpiBorderType border, const QvpiResizeChromaSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResize420Lanczos_16u_P2R(const Qvp16u* const pSrc[2], const int srcStep[2], Qvp16u* const pDst[2], const int dstStep[2], QvpiPoint dstOffset, QvpiSize dstSize, QvpiBorderType border, const QvpiResizeChromaSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResize420Lanczos_16u_P3R(const Qvp16u* const pSrc[3], const int srcStep[3], Qvp16u* const pDst[3], const int dstStep[3], QvpiPoint dstOffset, QvpiSize dstSize, QvpiBorderType border, const QvpiResizeChromaSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResize422Lanczos_8u_C2R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiPoint dstOffset, QvpiSize dstSize, QvpiBorderType border, const QvpiResizeChromaSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResize422Lanczos_16u_C2R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiPoint dstOffset, QvpiSize dstSize, QvpiBorderType border, const QvpiResizeChromaSpec* pSpec, Qvp8u* pBuffer);
/** @} */

/** @name Resize frames: super-sampling
 *  @{ */
/** Reduces a frame: each sample is the mean over the area that it covers in its plane, as qvpiResizeSuper_8u_C1R()
 *  takes it with r = srcLength / dstLength; see qvpiResize420GetSize() for frames. Chroma sample d covers [(d - m) r,
 *  (d + 1 - m) r), with m = 0 where it lies between the luma pixels and m = (1 - 1 / r) / 4 where it lies on every
 *  other, as far as that is in the plane. Steps may be negative. Not in place.
 *
 *  @param pSrc,srcStep source, at the pixel that GetSrcOffset tells for the tile; of 4:2:0 an array of planes and one
 *         of their steps
 *  @param pDst,dstStep destination tile, likewise
 *  @param dstOffset,dstSize place and size of the tile in the destination's luma; clipped to it
 *  @param pSpec record
 *  @param pBuffer work buffer
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: an array, a plane, the record or the buffer is null
 *  - qvpStatusNoOperation: a length of `dstSize` is 0
 *  - qvpStatusContextMatch: not a record of these frames
 *  - qvpStatusSize: a length below 1, or 4:2:2 of odd width
 *  - qvpStatusStep: 16u, and a step that is no multiple of 2
 *  - qvpStatusOutOfRange: `dstOffset` outside the destination
 *  - qvpStatusMisalignedOffset: `dstOffset` odd on an axis on which chroma is halved
 *  - qvpStatusContextMatch: a record for another type or another method
 *  - qvpStatusSizeWarning: the tile reached over the destination; the part inside was done
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiResize420Super_8u_P2R(const Qvp8u* const pSrc[2], const int srcStep[2], Qvp8u* const pDst[2], const int dstStep[2], QvpiPoint dstOffset, QvpiSize dstSize, const QvpiResizeChromaSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResize420Super_8u_P3R(const Qvp8u* const pSrc[3], const int srcStep[3], Qvp8u* const pDst[3], const int dstStep[3], QvpiPoint dstOffset, QvpiSize dstSize, const QvpiResizeChromaSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResize420Super_16u_P2R(const Qvp16u* const pSrc[2], const int srcStep[2], Qvp16u* const pDst[2], const int dstStep[2], QvpiPoint dstOffset, QvpiSize dstSize, const QvpiResizeChromaSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResize420Super_16u_P3R(const Qvp16u* const pSrc[3], const int srcStep[3], Qvp16u* const pDst[3], const int dstStep[3], QvpiPoint dstOffset, QvpiSize dstSize, const QvpiResizeChromaSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResize422Super_8u_C2R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiPoint dstOffset, QvpiSize dstSize, const QvpiResizeChromaSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiResize422Super_16u_C2R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiPoint dstOffset, QvpiSize dstSize, const QvpiResizeChromaSpec* pSpec, Qvp8u* pBuffer);
/** @} */

/** @name Decimate 4:2:0 frames
 *  @{ */
/** Frames of a simple fraction of their size, exactly: each sample is the mean of what it covers. For previews and
 *  pyramids; no record is needed.
 *
 *  A frame has a plane of luma and chroma of half its samples on both axes, (n + 1) / 2 of n: as a plane of pairs (P2) or
 *  as two planes (P3), in any order. Pointers and steps are arrays with an entry for each plane. A fraction of M to N
 *  makes M samples of N, on both axes of every plane. Sample j covers [j N / M, (j + 1) N / M), and is S / (N N) of the
 *  sum S with weights in units of 1 / M, to the nearest; halves go up:
 *
 *  @code
 *    result = (2 S + N N) div (2 N N)
 *  @endcode
 *
 *  10 20 30 40 50 60 in all rows becomes 13 27 43 57 by 2 of 3, and 10 20 30 40 becomes 13 25 38 by 3 of 4.
 *
 *  n luma samples of the destination are made of L = ceil(n N / M) of the source, and chroma of (L + 1) / 2. With n odd
 *  the last chroma sample may cover up to 4 more: there the last of these counts again, and nothing beyond is read. So
 *  1080 rows by 3 of 8 become 405, of 540 rows of chroma.
 *
 *  Steps may be negative. Source and destination must not overlap.
 *
 *  @param pSrc,srcStep source planes
 *  @param pDst,dstStep destination planes
 *  @param dstSize size of the destination's luma
 *  @param fraction one of the values of QvpiDecimateFraction
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: an array or a plane is null
 *  - qvpStatusSize: a length below 1
 *  - qvpStatusStep: 16u, and a step that is no multiple of 2
 *  - qvpStatusDecimateFraction: another fraction
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiDecimate420_8u_P2R(const Qvp8u* const pSrc[2], const int srcStep[2], Qvp8u* const pDst[2], const int dstStep[2], QvpiSize dstSize, QvpiDecimateFraction fraction);
QvpStatus qvpiDecimate420_8u_P3R(const Qvp8u* const pSrc[3], const int srcStep[3], Qvp8u* const pDst[3], const int dstStep[3], QvpiSize dstSize, QvpiDecimateFraction fraction);
QvpStatus qvpiDecimate420_16u_P2R(const Qvp16u* const pSrc[2], const int srcStep[2], Qvp16u* const pDst[2], const int dstStep[2], QvpiSize dstSize, QvpiDecimateFraction fraction);
QvpStatus qvpiDecimate420_16u_P3R(const Qvp16u* const pSrc[3], const int srcStep[3], Qvp16u* const pDst[3], const int dstStep[3], QvpiSize dstSize, QvpiDecimateFraction fraction);
/** @} */

/** @name Warp: size of the record, affine
 *  @{ */
/** Bytes of a warp record and of the Init buffer: 576 and 64.
 *
 *  An image is warped in these steps: ask for the size of the record (GetSize), let the Init of the transform and the
 *  method fill it, ask for the size of the work buffer (qvpiWarpGetBufferSize()), and call the function, once for the
 *  image or once for each tile. Records and buffers may begin at any address. A record is only read by the calls, so
 *  that any number of threads may share it, each with a buffer of its own; it must not be moved or copied. Functions
 *  without `_L` take records of Inits without `_L`, and the others those with it. Steps of the calls may be negative.
 *
 *  **Coordinates.** Pixels lie at whole coordinates: (0, 0) is the centre of the top left pixel, x goes right, y down.
 *  Coefficients map source to destination (qvpWarpForward) or destination to source (qvpWarpBackward). A record keeps
 *  the latter, a, and destination pixel (x, y) takes the value at
 *
 *      u = a00 * x + a01 * y + a02,  v = a10 * x + a11 * y + a12
 *
 *  in the source, in double precision, computed for each pixel from its place in the whole destination: every tiling
 *  gives the bits of the whole. A perspective transform divides both by a20 * x + a21 * y + a22. Linear and cubic
 *  interpolation may round u and v to 2^-26 pixel before they weigh the pixels around them (not for 64f); which pixels
 *  of the destination are written depends on the unrounded ones.
 *
 *  For example {1, 0, 3; 0, 1, -2}, forward, moves the image right by 3 and up by 2: destination (5, 7) takes source
 *  (2, 9). A rotation by 10 degrees counter-clockwise about the centre of a 1920x1080 image is made by
 *
 *      double shiftX, shiftY, coeffs[2][3];
 *      qvpiGetRotateShift(959.5, 539.5, 10, &shiftX, &shiftY);
 *      qvpiGetRotateTransform(10, shiftX, shiftY, coeffs);
 *
 *  and maps source (0, 0), forward, to (-79.1, 174.8).
 *
 *  Before C23, C does not take `double[2][3]` for `const double[2][3]`, about which strict compilers warn. A union has
 *  the coefficients under both types, without a cast:
 *
 *      union { double out[2][3]; const double in[2][3]; } turn;
 *      qvpiGetRotateTransform(10, shiftX, shiftY, turn.out);
 *      qvpiWarpAffineLinearInit(srcSize, dstSize, qvp8u, turn.in, qvpWarpForward, ...);
 *
 *  **Methods.** Nearest takes the pixel at floor(u + 0.5), of two equally near ones the right or lower one. Linear
 *  weighs 2x2 pixels, cubic 4x4 (Mitchell, Netravali: Reconstruction filters in computer graphics, 1988; B and C are
 *  the caller's: 0 and 0.5 pass through the pixels), with the exact fraction of u and v as a single-precision number,
 *  for 64f double: sum over rows r of wy[r] * (sum over k of wx[k] * p[r][k]), each operation rounded. Linear
 *  interpolation of 8u is done in integers: fractions are cut to 2^-15 and each step between two values is rounded to
 *  2^-7. Integers are rounded to the nearest, ties to even, and saturated. A NaN or an infinity among the pixels that
 *  are weighed makes a result NaN even where its weight is 0. Nearest is exact. An affine transform that only moves by
 *  whole pixels copies them, whatever the method.
 *
 *  Errors against the same formula in extended precision, for 32f and 64f relative to the largest pixel. That of linear
 *  8u is a bound; the others are above the greatest that were found on random images of the type's whole range:
 *
 *  | | 8u | 16u, 16s | 32f | 64f |
 *  |---|---|---|---|---|
 *  | linear | 1, within 0.024 of a tie | 1, within 0.01 of a tie | 2e-7 | 3e-16 |
 *  | cubic | 1, within 6e-5 of a tie | 1, within 0.02 of a tie | 6e-7 | 1.2e-15 |
 *
 *  (An integer is off by 1 only where the exact value is that close to the middle of two integers.)
 *
 *  **Borders.** What lies outside the source:
 *
 *  | border | pixels outside | destination |
 *  |---|---|---|
 *  | replicate | the nearest pixel of the edge | all pixels are written |
 *  | constant | the given value, rounded and saturated to the type | all are written; edges blend into the value |
 *  | transparent | | only pixels with 0 <= u <= srcWidth - 1 and 0 <= v <= srcHeight - 1 are written |
 *  | qvpBorderInMem | are in memory | as transparent with all sides in memory |
 *
 *  A side that is in memory is read where it lies, as far as the method reaches: 0 pixels for nearest, 1 for linear, 2
 *  for cubic. The kind applies outside of the image so enlarged: transparent with the left side in memory, linear
 *  interpolation writes pixels with -1 <= u <= srcWidth - 1, and smooth edges begin beyond these. Points that are no
 *  numbers lie outside.
 *
 *  @param srcSize,dstSize sizes of source and destination
 *  @param dataType type of the samples
 *  @param coeffs coefficients
 *  @param interpolation nearest, linear or cubic
 *  @param direction what the coefficients map
 *  @param borderType replicate, constant or transparent, with any sides in memory, or qvpBorderInMem
 *  @param pSpecSize,pInitBufSize receive bytes
 *  @return qvpStatusNullPointer. qvpStatusSize: a length below 1. qvpStatusDataType: not 8u, 16u, 16s, 32f or 64f.
 *          qvpStatusInterpolation: not nearest, linear or cubic. qvpStatusWarpDirection: another direction.
 *          qvpStatusCoefficient: degenerate coefficients. qvpStatusBorder: another border. qvpStatusSize: a source
 *          length of 1 with linear or cubic. qvpStatusSizeOverflow: a length above 33554431.
 */
QvpStatus qvpiWarpAffineGetSize(QvpiSize srcSize, QvpiSize dstSize, QvpDataType dataType, const double coeffs[2][3], QvpiInterpolationType interpolation, QvpiWarpDirection direction, QvpiBorderType borderType, int* pSpecSize, int* pInitBufSize);
QvpStatus qvpiWarpAffineGetSize_L(QvpiSizeL srcSize, QvpiSizeL dstSize, QvpDataType dataType, const double coeffs[2][3], QvpiInterpolationType interpolation, QvpiWarpDirection direction, QvpiBorderType borderType, QvpSizeL* pSpecSize, QvpSizeL* pInitBufSize);
/** @} */

/** @name Warp: size of the record, perspective
 *  @{ */
/** Bytes of a warp record and of the Init buffer, as qvpiWarpAffineGetSize().
 *
 *  @param srcSize,dstSize sizes of source and destination
 *  @param dataType type of the samples
 *  @param coeffs coefficients
 *  @param interpolation nearest, linear or cubic
 *  @param direction what the coefficients map
 *  @param borderType replicate, constant or transparent, with any sides in memory, or qvpBorderInMem
 *  @param pSpecSize,pInitBufSize receive bytes
 *  @return qvpStatusNullPointer. qvpStatusSize: a length below 1. qvpStatusDataType: not 8u, 16u, 16s, 32f or 64f.
 *          qvpStatusInterpolation: not nearest, linear or cubic. qvpStatusWarpDirection: another direction.
 *          qvpStatusCoefficient: degenerate coefficients. qvpStatusBorder: another border. qvpStatusSize: a source
 *          length of 1 with linear or cubic. qvpStatusSizeOverflow: a length above 33554431.
 */
QvpStatus qvpiWarpPerspectiveGetSize(QvpiSize srcSize, QvpiSize dstSize, QvpDataType dataType, const double coeffs[3][3], QvpiInterpolationType interpolation, QvpiWarpDirection direction, QvpiBorderType borderType, int* pSpecSize, int* pInitBufSize);
QvpStatus qvpiWarpPerspectiveGetSize_L(QvpiSizeL srcSize, QvpiSizeL dstSize, QvpDataType dataType, const double coeffs[3][3], QvpiInterpolationType interpolation, QvpiWarpDirection direction, QvpiBorderType borderType, QvpSizeL* pSpecSize, QvpSizeL* pInitBufSize);
/** @} */

/** @name Warp: size of the record, quadrangles
 *  @{ */
/** Bytes of a warp record and of the Init buffer, as qvpiWarpAffineGetSize().
 *
 *  @param srcSize,dstSize sizes of source and destination
 *  @param srcQuad,dstQuad corners
 *  @param dataType type of the samples
 *  @param interpolation nearest, linear or cubic
 *  @param borderType replicate, constant or transparent, with any sides in memory, or qvpBorderInMem
 *  @param pSpecSize,pInitBufSize receive bytes
 *  @return qvpStatusNullPointer. qvpStatusSize: a length below 1. qvpStatusDataType: not 8u, 16u, 16s, 32f or 64f.
 *          qvpStatusInterpolation: not nearest, linear or cubic. qvpStatusQuad: a quadrangle that is degenerate or not
 *          convex. qvpStatusBorder: another border. qvpStatusSize: a source length of 1 with linear or cubic.
 *          qvpStatusSizeOverflow: a length above 33554431.
 */
QvpStatus qvpiWarpQuadGetSize(QvpiSize srcSize, const double srcQuad[4][2], QvpiSize dstSize, const double dstQuad[4][2], QvpDataType dataType, QvpiInterpolationType interpolation, QvpiBorderType borderType, int* pSpecSize, int* pInitBufSize);
QvpStatus qvpiWarpQuadGetSize_L(QvpiSizeL srcSize, const double srcQuad[4][2], QvpiSizeL dstSize, const double dstQuad[4][2], QvpDataType dataType, QvpiInterpolationType interpolation, QvpiBorderType borderType, QvpSizeL* pSpecSize, QvpSizeL* pInitBufSize);
/** @} */

/** @name Warp: affine, nearest, Init
 *  @{ */
/** Makes a record for an affine warp by the nearest pixel.
 *
 *  @param srcSize,dstSize sizes of source and destination
 *  @param dataType type of the samples
 *  @param coeffs coefficients
 *  @param direction what the coefficients map
 *  @param numChannels channels of a pixel
 *  @param borderType replicate, constant or transparent, with any sides in memory, or qvpBorderInMem
 *  @param pBorderValue constant border: a value for each channel; else not used, may be null
 *  @param smoothEdge not 0: a point up to one pixel outside, dx across and dy down, gives a * S + (1 - a) * old with
 *         a = (1 - dx) * (1 - dy), the value S at the edge, not rounded, and the old pixel; the sum is rounded once
 *  @param pSpec record
 *  @return qvpStatusBorder: another border. qvpStatusNullPointer. qvpStatusSize: a length below 1. qvpStatusDataType:
 *          not 8u, 16u, 16s, 32f or 64f. qvpStatusWarpDirection: another direction. qvpStatusCoefficient: a
 *          coefficient is no finite number, or |(d1 - d2) / d1| <= 1e-10 with d1 = c00 * c11 and d2 = c01 * c10, |d2|
 *          where |d1| <= 1e-200. qvpStatusNullPointer: a constant border without value. qvpStatusNumChannels: not 1, 3
 *          or 4. qvpStatusNotSupportedMode: smoothEdge with replicate or constant. qvpStatusSizeOverflow: a length
 *          above 33554431. qvpStatusCoefficient: the source becomes a quadrangle without area.
 */
QvpStatus qvpiWarpAffineNearestInit(QvpiSize srcSize, QvpiSize dstSize, QvpDataType dataType, const double coeffs[2][3], QvpiWarpDirection direction, int numChannels, QvpiBorderType borderType, const Qvp64f* pBorderValue, int smoothEdge, QvpiWarpSpec* pSpec);
QvpStatus qvpiWarpAffineNearestInit_L(QvpiSizeL srcSize, QvpiSizeL dstSize, QvpDataType dataType, const double coeffs[2][3], QvpiWarpDirection direction, int numChannels, QvpiBorderType borderType, const Qvp64f* pBorderValue, int smoothEdge, QvpiWarpSpec* pSpec);
/** @} */

/** @name Warp: affine, linear, Init
 *  @{ */
/** Makes a record for an affine warp by linear interpolation.
 *
 *  @param srcSize,dstSize sizes of source and destination
 *  @param dataType type of the samples
 *  @param coeffs coefficients
 *  @param direction what the coefficients map
 *  @param numChannels channels of a pixel
 *  @param borderType replicate, constant or transparent, with any sides in memory, or qvpBorderInMem
 *  @param pBorderValue constant border: a value for each channel; else not used, may be null
 *  @param smoothEdge not 0: a point up to one pixel outside, dx across and dy down, gives a * S + (1 - a) * old with
 *         a = (1 - dx) * (1 - dy), the value S at the edge, not rounded, and the old pixel; the sum is rounded once
 *  @param pSpec record
 *  @return qvpStatusBorder: another border. qvpStatusNullPointer. qvpStatusSize: a length below 1. qvpStatusDataType:
 *          not 8u, 16u, 16s, 32f or 64f. qvpStatusWarpDirection: another direction. qvpStatusCoefficient: a
 *          coefficient is no finite number, or |(d1 - d2) / d1| <= 1e-10 with d1 = c00 * c11 and d2 = c01 * c10, |d2|
 *          where |d1| <= 1e-200. qvpStatusNullPointer: a constant border without value. qvpStatusNumChannels: not 1, 3
 *          or 4. qvpStatusNotSupportedMode: smoothEdge with replicate or constant. qvpStatusSize: a source length of
 *          1. qvpStatusSizeOverflow: a length above 33554431. qvpStatusCoefficient: the source becomes a quadrangle
 *          without area.
 */
QvpStatus qvpiWarpAffineLinearInit(QvpiSize srcSize, QvpiSize dstSize, QvpDataType dataType, const double coeffs[2][3], QvpiWarpDirection direction, int numChannels, QvpiBorderType borderType, const Qvp64f* pBorderValue, int smoothEdge, QvpiWarpSpec* pSpec);
QvpStatus qvpiWarpAffineLinearInit_L(QvpiSizeL srcSize, QvpiSizeL dstSize, QvpDataType dataType, const double coeffs[2][3], QvpiWarpDirection direction, int numChannels, QvpiBorderType borderType, const Qvp64f* pBorderValue, int smoothEdge, QvpiWarpSpec* pSpec);
/** @} */

/** @name Warp: affine, cubic, Init
 *  @{ */
/** Makes a record for an affine warp by cubic interpolation.
 *
 *  @param srcSize,dstSize sizes of source and destination
 *  @param dataType type of the samples
 *  @param coeffs coefficients
 *  @param direction what the coefficients map
 *  @param numChannels channels of a pixel
 *  @param valueB,valueC B and C, finite
 *  @param borderType replicate, constant or transparent, with any sides in memory, or qvpBorderInMem
 *  @param pBorderValue constant border: a value for each channel; else not used, may be null
 *  @param smoothEdge not 0: a point up to one pixel outside, dx across and dy down, gives a * S + (1 - a) * old with
 *         a = (1 - dx) * (1 - dy), the value S at the edge, not rounded, and the old pixel; the sum is rounded once
 *  @param pSpec record
 *  @param pInitBuf Init buffer
 *  @return qvpStatusBorder: another border. qvpStatusNullPointer. qvpStatusSize: a length below 1. qvpStatusDataType:
 *          not 8u, 16u, 16s, 32f or 64f. qvpStatusWarpDirection: another direction. qvpStatusCoefficient: a coefficient
 *          is no finite number, or |(d1 - d2) / d1| <= 1e-10 with d1 = c00 * c11 and d2 = c01 * c10, |d2| where |d1| <=
 *          1e-200. qvpStatusNullPointer: a constant border without value. qvpStatusNumChannels: not 1, 3 or 4.
 *          qvpStatusBadArgument: B or C is not finite. qvpStatusNotSupportedMode: smoothEdge with replicate or
 *          constant. qvpStatusSize: a source length of 1. qvpStatusSizeOverflow: a length above 33554431.
 *          qvpStatusCoefficient: the source becomes a quadrangle without area.
 */
QvpStatus qvpiWarpAffineCubicInit(QvpiSize srcSize, QvpiSize dstSize, QvpDataType dataType, const double coeffs[2][3], QvpiWarpDirection direction, int numChannels, double valueB, double valueC, QvpiBorderType borderType, const Qvp64f* pBorderValue, int smoothEdge, QvpiWarpSpec* pSpec, Qvp8u* pInitBuf);
QvpStatus qvpiWarpAffineCubicInit_L(QvpiSizeL srcSize, QvpiSizeL dstSize, QvpDataType dataType, const double coeffs[2][3], QvpiWarpDirection direction, int numChannels, double valueB, double valueC, QvpiBorderType borderType, const Qvp64f* pBorderValue, int smoothEdge, QvpiWarpSpec* pSpec, Qvp8u* pInitBuf);
/** @} */

/** @name Warp: perspective, nearest, Init
 *  @{ */
/** Makes a record for a perspective warp by the nearest pixel. Coefficients may have any factor in common. A source
 *  that reaches over the horizon is cut there.
 *
 *  @param srcSize,dstSize sizes of source and destination
 *  @param dataType type of the samples
 *  @param coeffs coefficients
 *  @param direction what the coefficients map
 *  @param numChannels channels of a pixel
 *  @param borderType replicate, constant or transparent, with any sides in memory, or qvpBorderInMem
 *  @param pBorderValue constant border: a value for each channel; else not used, may be null
 *  @param smoothEdge not 0: a point up to one pixel outside, dx across and dy down, gives a * S + (1 - a) * old with
 *         a = (1 - dx) * (1 - dy), the value S at the edge, not rounded, and the old pixel; the sum is rounded once
 *  @param pSpec record
 *  @return qvpStatusBorder: another border. qvpStatusNullPointer. qvpStatusSize: a length below 1. qvpStatusDataType:
 *          not 8u, 16u, 16s, 32f or 64f. qvpStatusWarpDirection: another direction. qvpStatusCoefficient: a
 *          coefficient is no finite number, or the determinant is not above 1e-10 times its largest product.
 *          qvpStatusNullPointer: a constant border without value. qvpStatusNumChannels: not 1, 3 or 4.
 *          qvpStatusNotSupportedMode: smoothEdge with replicate or constant. qvpStatusSizeOverflow: a length above
 *          33554431.
 */
QvpStatus qvpiWarpPerspectiveNearestInit(QvpiSize srcSize, QvpiSize dstSize, QvpDataType dataType, const double coeffs[3][3], QvpiWarpDirection direction, int numChannels, QvpiBorderType borderType, const Qvp64f* pBorderValue, int smoothEdge, QvpiWarpSpec* pSpec);
QvpStatus qvpiWarpPerspectiveNearestInit_L(QvpiSizeL srcSize, QvpiSizeL dstSize, QvpDataType dataType, const double coeffs[3][3], QvpiWarpDirection direction, int numChannels, QvpiBorderType borderType, const Qvp64f* pBorderValue, int smoothEdge, QvpiWarpSpec* pSpec);
/** @} */

/** @name Warp: perspective, linear, Init
 *  @{ */
/** Makes a record for a perspective warp by linear interpolation.
 *
 *  @param srcSize,dstSize sizes of source and destination
 *  @param dataType type of the samples
 *  @param coeffs coefficients
 *  @param direction what the coefficients map
 *  @param numChannels channels of a pixel
 *  @param borderType replicate, constant or transparent, with any sides in memory, or qvpBorderInMem
 *  @param pBorderValue constant border: a value for each channel; else not used, may be null
 *  @param smoothEdge not 0: a point up to one pixel outside, dx across and dy down, gives a * S + (1 - a) * old with
 *         a = (1 - dx) * (1 - dy), the value S at the edge, not rounded, and the old pixel; the sum is rounded once
 *  @param pSpec record
 *  @return qvpStatusBorder: another border. qvpStatusNullPointer. qvpStatusSize: a length below 1. qvpStatusDataType:
 *          not 8u, 16u, 16s, 32f or 64f. qvpStatusWarpDirection: another direction. qvpStatusCoefficient: a
 *          coefficient is no finite number, or the determinant is not above 1e-10 times its largest product.
 *          qvpStatusNullPointer: a constant border without value. qvpStatusNumChannels: not 1, 3 or 4.
 *          qvpStatusNotSupportedMode: smoothEdge with replicate or constant. qvpStatusSize: a source length of 1.
 *          qvpStatusSizeOverflow: a length above 33554431.
 */
QvpStatus qvpiWarpPerspectiveLinearInit(QvpiSize srcSize, QvpiSize dstSize, QvpDataType dataType, const double coeffs[3][3], QvpiWarpDirection direction, int numChannels, QvpiBorderType borderType, const Qvp64f* pBorderValue, int smoothEdge, QvpiWarpSpec* pSpec);
QvpStatus qvpiWarpPerspectiveLinearInit_L(QvpiSizeL srcSize, QvpiSizeL dstSize, QvpDataType dataType, const double coeffs[3][3], QvpiWarpDirection direction, int numChannels, QvpiBorderType borderType, const Qvp64f* pBorderValue, int smoothEdge, QvpiWarpSpec* pSpec);
/** @} */

/** @name Warp: perspective, cubic, Init
 *  @{ */
/** Makes a record for a perspective warp by cubic interpolation.
 *
 *  @param srcSize,dstSize sizes of source and destination
 *  @param dataType type of the samples
 *  @param coeffs coefficients
 *  @param direction what the coefficients map
 *  @param numChannels channels of a pixel
 *  @param valueB,valueC B and C, finite
 *  @param borderType replicate, constant or transparent, with any sides in memory, or qvpBorderInMem
 *  @param pBorderValue constant border: a value for each channel; else not used, may be null
 *  @param smoothEdge not 0: a point up to one pixel outside, dx across and dy down, gives a * S + (1 - a) * old with
 *         a = (1 - dx) * (1 - dy), the value S at the edge, not rounded, and the old pixel; the sum is rounded once
 *  @param pSpec record
 *  @param pInitBuf Init buffer
 *  @return qvpStatusBorder: another border. qvpStatusNullPointer. qvpStatusSize: a length below 1. qvpStatusDataType:
 *          not 8u, 16u, 16s, 32f or 64f. qvpStatusWarpDirection: another direction. qvpStatusCoefficient: a coefficient
 *          is no finite number, or the determinant is not above 1e-10 times its largest product. qvpStatusNullPointer:
 *          a constant border without value. qvpStatusNumChannels: not 1, 3 or 4. qvpStatusBadArgument: B or C is not
 *          finite. qvpStatusNotSupportedMode: smoothEdge with replicate or constant. qvpStatusSize: a source length of
 *          1. qvpStatusSizeOverflow: a length above 33554431.
 */
QvpStatus qvpiWarpPerspectiveCubicInit(QvpiSize srcSize, QvpiSize dstSize, QvpDataType dataType, const double coeffs[3][3], QvpiWarpDirection direction, int numChannels, double valueB, double valueC, QvpiBorderType borderType, const Qvp64f* pBorderValue, int smoothEdge, QvpiWarpSpec* pSpec, Qvp8u* pInitBuf);
QvpStatus qvpiWarpPerspectiveCubicInit_L(QvpiSizeL srcSize, QvpiSizeL dstSize, QvpDataType dataType, const double coeffs[3][3], QvpiWarpDirection direction, int numChannels, double valueB, double valueC, QvpiBorderType borderType, const Qvp64f* pBorderValue, int smoothEdge, QvpiWarpSpec* pSpec, Qvp8u* pInitBuf);
/** @} */

/** @name Warp: quadrangle, nearest, Init
 *  @{ */
/** Makes a record for the perspective warp that takes one quadrangle to another, by the nearest pixel. Its functions
 *  are those of perspective warps. What lies outside the quadrangle is warped too.
 *
 *  @param srcSize,dstSize sizes of source and destination
 *  @param srcQuad,dstQuad corners in any order that goes around, the same for both
 *  @param dataType type of the samples
 *  @param numChannels channels of a pixel
 *  @param borderType replicate, constant or transparent, with any sides in memory, or qvpBorderInMem
 *  @param pBorderValue constant border: a value for each channel; else not used, may be null
 *  @param smoothEdge not 0: a point up to one pixel outside, dx across and dy down, gives a * S + (1 - a) * old with
 *         a = (1 - dx) * (1 - dy), the value S at the edge, not rounded, and the old pixel; the sum is rounded once
 *  @param pSpec record
 *  @return qvpStatusBorder: another border. qvpStatusNullPointer. qvpStatusSize: a length below 1. qvpStatusDataType:
 *          not 8u, 16u, 16s, 32f or 64f. qvpStatusQuad: a quadrangle that is degenerate or not convex.
 *          qvpStatusNullPointer: a constant border without value. qvpStatusNumChannels: not 1, 3 or 4.
 *          qvpStatusNotSupportedMode: smoothEdge with replicate or constant. qvpStatusSizeOverflow: a length above
 *          33554431.
 */
QvpStatus qvpiWarpQuadNearestInit(QvpiSize srcSize, const double srcQuad[4][2], QvpiSize dstSize, const double dstQuad[4][2], QvpDataType dataType, int numChannels, QvpiBorderType borderType, const Qvp64f* pBorderValue, int smoothEdge, QvpiWarpSpec* pSpec);
QvpStatus qvpiWarpQuadNearestInit_L(QvpiSizeL srcSize, const double srcQuad[4][2], QvpiSizeL dstSize, const double dstQuad[4][2], QvpDataType dataType, int numChannels, QvpiBorderType borderType, const Qvp64f* pBorderValue, int smoothEdge, QvpiWarpSpec* pSpec);
/** @} */

/** @name Warp: quadrangle, linear, Init
 *  @{ */
/** Makes a record for the perspective warp that takes one quadrangle to another, by linear interpolation. Its
 *  functions are those of perspective warps. What lies outside the quadrangle is warped too.
 *
 *  @param srcSize,dstSize sizes of source and destination
 *  @param srcQuad,dstQuad corners in any order that goes around, the same for both
 *  @param dataType type of the samples
 *  @param numChannels channels of a pixel
 *  @param borderType replicate, constant or transparent, with any sides in memory, or qvpBorderInMem
 *  @param pBorderValue constant border: a value for each channel; else not used, may be null
 *  @param smoothEdge not 0: a point up to one pixel outside, dx across and dy down, gives a * S + (1 - a) * old with
 *         a = (1 - dx) * (1 - dy), the value S at the edge, not rounded, and the old pixel; the sum is rounded once
 *  @param pSpec record
 *  @return qvpStatusBorder: another border. qvpStatusNullPointer. qvpStatusSize: a length below 1. qvpStatusDataType:
 *          not 8u, 16u, 16s, 32f or 64f. qvpStatusQuad: a quadrangle that is degenerate or not convex.
 *          qvpStatusNullPointer: a constant border without value. qvpStatusNumChannels: not 1, 3 or 4.
 *          qvpStatusNotSupportedMode: smoothEdge with replicate or constant. qvpStatusSize: a source length of 1.
 *          qvpStatusSizeOverflow: a length above 33554431.
 */
QvpStatus qvpiWarpQuadLinearInit(QvpiSize srcSize, const double srcQuad[4][2], QvpiSize dstSize, const double dstQuad[4][2], QvpDataType dataType, int numChannels, QvpiBorderType borderType, const Qvp64f* pBorderValue, int smoothEdge, QvpiWarpSpec* pSpec);
QvpStatus qvpiWarpQuadLinearInit_L(QvpiSizeL srcSize, const double srcQuad[4][2], QvpiSizeL dstSize, const double dstQuad[4][2], QvpDataType dataType, int numChannels, QvpiBorderType borderType, const Qvp64f* pBorderValue, int smoothEdge, QvpiWarpSpec* pSpec);
/** @} */

/** @name Warp: quadrangle, cubic, Init
 *  @{ */
/** Makes a record for the perspective warp that takes one quadrangle to another, by cubic interpolation. Its functions
 *  are those of perspective warps. What lies outside the quadrangle is warped too.
 *
 *  @param srcSize,dstSize sizes of source and destination
 *  @param srcQuad,dstQuad corners in any order that goes around, the same for both
 *  @param dataType type of the samples
 *  @param numChannels channels of a pixel
 *  @param valueB,valueC B and C, finite
 *  @param borderType replicate, constant or transparent, with any sides in memory, or qvpBorderInMem
 *  @param pBorderValue constant border: a value for each channel; else not used, may be null
 *  @param smoothEdge not 0: a point up to one pixel outside, dx across and dy down, gives a * S + (1 - a) * old with
 *         a = (1 - dx) * (1 - dy), the value S at the edge, not rounded, and the old pixel; the sum is rounded once
 *  @param pSpec record
 *  @param pInitBuf Init buffer
 *  @return qvpStatusBorder: another border. qvpStatusNullPointer. qvpStatusSize: a length below 1. qvpStatusDataType:
 *          not 8u, 16u, 16s, 32f or 64f. qvpStatusQuad: a quadrangle that is degenerate or not convex.
 *          qvpStatusNullPointer: a constant border without value. qvpStatusNumChannels: not 1, 3 or 4.
 *          qvpStatusBadArgument: B or C is not finite. qvpStatusNotSupportedMode: smoothEdge with replicate or
 *          constant. qvpStatusSize: a source length of 1. qvpStatusSizeOverflow: a length above 33554431.
 */
QvpStatus qvpiWarpQuadCubicInit(QvpiSize srcSize, const double srcQuad[4][2], QvpiSize dstSize, const double dstQuad[4][2], QvpDataType dataType, int numChannels, double valueB, double valueC, QvpiBorderType borderType, const Qvp64f* pBorderValue, int smoothEdge, QvpiWarpSpec* pSpec, Qvp8u* pInitBuf);
QvpStatus qvpiWarpQuadCubicInit_L(QvpiSizeL srcSize, const double srcQuad[4][2], QvpiSizeL dstSize, const double dstQuad[4][2], QvpDataType dataType, int numChannels, double valueB, double valueC, QvpiBorderType borderType, const Qvp64f* pBorderValue, int smoothEdge, QvpiWarpSpec* pSpec, Qvp8u* pInitBuf);
/** @} */

/** @name Warp: size of the work buffer
 *  @{ */
/** Bytes of the buffer for a call: 8 for each row, rounded up to a multiple of 64, and 64.
 *
 *  @param pSpec record
 *  @param dstSize size of the largest tile
 *  @param pBufSize receives bytes; 0 when these cannot be represented
 *  @return qvpStatusNullPointer. qvpStatusContextMatch: not a record of these functions. qvpStatusSize: a length below
 *          1. qvpStatusSizeOverflow: 2147483647 bytes or more, `_L` on 64 bits: beyond the type.
 */
QvpStatus qvpiWarpGetBufferSize(const QvpiWarpSpec* pSpec, QvpiSize dstSize, int* pBufSize);
QvpStatus qvpiWarpGetBufferSize_L(const QvpiWarpSpec* pSpec, QvpiSizeL dstSize, QvpSizeL* pBufSize);
/** @} */

/** @name Warp: affine, nearest
 *  @{ */
/** Warps by an affine transform, by the nearest pixel; see qvpiWarpAffineGetSize(). Not in place.
 *
 *  @param pSrc,srcStep source, at its first pixel
 *  @param pDst,dstStep destination tile
 *  @param dstRoiOffset,dstRoiSize place and size of the tile in the destination; clipped to it
 *  @param pSpec record
 *  @param pBuffer work buffer
 *  @return qvpStatusContextMatch: not a record of these functions. qvpStatusNullPointer. qvpStatusNoOperation: a
 *          length of the tile is 0. qvpStatusSize: a length below 1. qvpStatusStep: a step that is no multiple of the
 *          element size. qvpStatusOutOfRange: `dstRoiOffset` outside the destination. qvpStatusContextMatch: a record
 *          of another transform, method, type or number of channels. Warning qvpStatusSizeWarning: the tile reached
 *          over the destination; the part inside was done.
 */
QvpStatus qvpiWarpAffineNearest_8u_C1R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpAffineNearest_8u_C1R_L(const Qvp8u* pSrc, QvpSizeL srcStep, Qvp8u* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpAffineNearest_8u_C3R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpAffineNearest_8u_C3R_L(const Qvp8u* pSrc, QvpSizeL srcStep, Qvp8u* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpAffineNearest_8u_C4R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpAffineNearest_8u_C4R_L(const Qvp8u* pSrc, QvpSizeL srcStep, Qvp8u* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpAffineNearest_16u_C1R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpAffineNearest_16u_C1R_L(const Qvp16u* pSrc, QvpSizeL srcStep, Qvp16u* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpAffineNearest_16u_C3R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpAffineNearest_16u_C3R_L(const Qvp16u* pSrc, QvpSizeL srcStep, Qvp16u* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpAffineNearest_16u_C4R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpAffineNearest_16u_C4R_L(const Qvp16u* pSrc, QvpSizeL srcStep, Qvp16u* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpAffineNearest_16s_C1R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpAffineNearest_16s_C1R_L(const Qvp16s* pSrc, QvpSizeL srcStep, Qvp16s* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpAffineNearest_16s_C3R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpAffineNearest_16s_C3R_L(const Qvp16s* pSrc, QvpSizeL srcStep, Qvp16s* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpAffineNearest_16s_C4R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpAffineNearest_16s_C4R_L(const Qvp16s* pSrc, QvpSizeL srcStep, Qvp16s* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpAffineNearest_32f_C1R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpAffineNearest_32f_C1R_L(const Qvp32f* pSrc, QvpSizeL srcStep, Qvp32f* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpAffineNearest_32f_C3R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpAffineNearest_32f_C3R_L(const Qvp32f* pSrc, QvpSizeL srcStep, Qvp32f* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpAffineNearest_32f_C4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpAffineNearest_32f_C4R_L(const Qvp32f* pSrc, QvpSizeL srcStep, Qvp32f* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpAffineNearest_64f_C1R(const Qvp64f* pSrc, int srcStep, Qvp64f* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpAffineNearest_64f_C1R_L(const Qvp64f* pSrc, QvpSizeL srcStep, Qvp64f* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpAffineNearest_64f_C3R(const Qvp64f* pSrc, int srcStep, Qvp64f* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpAffineNearest_64f_C3R_L(const Qvp64f* pSrc, QvpSizeL srcStep, Qvp64f* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpAffineNearest_64f_C4R(const Qvp64f* pSrc, int srcStep, Qvp64f* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpAffineNearest_64f_C4R_L(const Qvp64f* pSrc, QvpSizeL srcStep, Qvp64f* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
/** @} */

/** @name Warp: affine, linear
 *  @{ */
/** Warps by an affine transform, by linear interpolation between 2x2 pixels; see qvpiWarpAffineGetSize(). Not in
 *  place.
 *
 *  @param pSrc,srcStep source, at its first pixel
 *  @param pDst,dstStep destination tile
 *  @param dstRoiOffset,dstRoiSize place and size of the tile in the destination; clipped to it
 *  @param pSpec record
 *  @param pBuffer work buffer
 *  @return qvpStatusContextMatch: not a record of these functions. qvpStatusNullPointer. qvpStatusNoOperation: a
 *          length of the tile is 0. qvpStatusSize: a length below 1. qvpStatusStep: a step that is no multiple of the
 *          element size. qvpStatusOutOfRange: `dstRoiOffset` outside the destination. qvpStatusContextMatch: a record
 *          of another transform, method, type or number of channels. Warning qvpStatusSizeWarning: the tile reached
 *          over the destination; the part inside was done.
 */
QvpStatus qvpiWarpAffineLinear_8u_C1R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpAffineLinear_8u_C1R_L(const Qvp8u* pSrc, QvpSizeL srcStep, Qvp8u* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpAffineLinear_8u_C3R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpAffineLinear_8u_C3R_L(const Qvp8u* pSrc, QvpSizeL srcStep, Qvp8u* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpAffineLinear_8u_C4R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpAffineLinear_8u_C4R_L(const Qvp8u* pSrc, QvpSizeL srcStep, Qvp8u* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpAffineLinear_16u_C1R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpAffineLinear_16u_C1R_L(const Qvp16u* pSrc, QvpSizeL srcStep, Qvp16u* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpAffineLinear_16u_C3R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpAffineLinear_16u_C3R_L(const Qvp16u* pSrc, QvpSizeL srcStep, Qvp16u* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpAffineLinear_16u_C4R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpAffineLinear_16u_C4R_L(const Qvp16u* pSrc, QvpSizeL srcStep, Qvp16u* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpAffineLinear_16s_C1R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpAffineLinear_16s_C1R_L(const Qvp16s* pSrc, QvpSizeL srcStep, Qvp16s* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpAffineLinear_16s_C3R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpAffineLinear_16s_C3R_L(const Qvp16s* pSrc, QvpSizeL srcStep, Qvp16s* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpAffineLinear_16s_C4R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpAffineLinear_16s_C4R_L(const Qvp16s* pSrc, QvpSizeL srcStep, Qvp16s* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpAffineLinear_32f_C1R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpAffineLinear_32f_C1R_L(const Qvp32f* pSrc, QvpSizeL srcStep, Qvp32f* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpAffineLinear_32f_C3R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpAffineLinear_32f_C3R_L(const Qvp32f* pSrc, QvpSizeL srcStep, Qvp32f* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpAffineLinear_32f_C4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpAffineLinear_32f_C4R_L(const Qvp32f* pSrc, QvpSizeL srcStep, Qvp32f* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpAffineLinear_64f_C1R(const Qvp64f* pSrc, int srcStep, Qvp64f* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpAffineLinear_64f_C1R_L(const Qvp64f* pSrc, QvpSizeL srcStep, Qvp64f* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpAffineLinear_64f_C3R(const Qvp64f* pSrc, int srcStep, Qvp64f* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpAffineLinear_64f_C3R_L(const Qvp64f* pSrc, QvpSizeL srcStep, Qvp64f* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpAffineLinear_64f_C4R(const Qvp64f* pSrc, int srcStep, Qvp64f* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpAffineLinear_64f_C4R_L(const Qvp64f* pSrc, QvpSizeL srcStep, Qvp64f* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
/** @} */

/** @name Warp: affine, cubic
 *  @{ */
/** Warps by an affine transform, by cubic interpolation between 4x4 pixels; see qvpiWarpAffineGetSize(). Not in place.
 *
 *  @param pSrc,srcStep source, at its first pixel
 *  @param pDst,dstStep destination tile
 *  @param dstRoiOffset,dstRoiSize place and size of the tile in the destination; clipped to it
 *  @param pSpec record
 *  @param pBuffer work buffer
 *  @return qvpStatusContextMatch: not a record of these functions. qvpStatusNullPointer. qvpStatusNoOperation: a
 *          length of the tile is 0. qvpStatusSize: a length below 1. qvpStatusStep: a step that is no multiple of the
 *          element size. qvpStatusOutOfRange: `dstRoiOffset` outside the destination. qvpStatusContextMatch: a record
 *          of another transform, method, type or number of channels. Warning qvpStatusSizeWarning: the tile reached
 *          over the destination; the part inside was done.
 */
QvpStatus qvpiWarpAffineCubic_8u_C1R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpAffineCubic_8u_C1R_L(const Qvp8u* pSrc, QvpSizeL srcStep, Qvp8u* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpAffineCubic_8u_C3R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpAffineCubic_8u_C3R_L(const Qvp8u* pSrc, QvpSizeL srcStep, Qvp8u* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpAffineCubic_8u_C4R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpAffineCubic_8u_C4R_L(const Qvp8u* pSrc, QvpSizeL srcStep, Qvp8u* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpAffineCubic_16u_C1R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpAffineCubic_16u_C1R_L(const Qvp16u* pSrc, QvpSizeL srcStep, Qvp16u* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpAffineCubic_16u_C3R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpAffineCubic_16u_C3R_L(const Qvp16u* pSrc, QvpSizeL srcStep, Qvp16u* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpAffineCubic_16u_C4R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpAffineCubic_16u_C4R_L(const Qvp16u* pSrc, QvpSizeL srcStep, Qvp16u* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpAffineCubic_16s_C1R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpAffineCubic_16s_C1R_L(const Qvp16s* pSrc, QvpSizeL srcStep, Qvp16s* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpAffineCubic_16s_C3R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpAffineCubic_16s_C3R_L(const Qvp16s* pSrc, QvpSizeL srcStep, Qvp16s* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpAffineCubic_16s_C4R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpAffineCubic_16s_C4R_L(const Qvp16s* pSrc, QvpSizeL srcStep, Qvp16s* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpAffineCubic_32f_C1R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpAffineCubic_32f_C1R_L(const Qvp32f* pSrc, QvpSizeL srcStep, Qvp32f* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpAffineCubic_32f_C3R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpAffineCubic_32f_C3R_L(const Qvp32f* pSrc, QvpSizeL srcStep, Qvp32f* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpAffineCubic_32f_C4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpAffineCubic_32f_C4R_L(const Qvp32f* pSrc, QvpSizeL srcStep, Qvp32f* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpAffineCubic_64f_C1R(const Qvp64f* pSrc, int srcStep, Qvp64f* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpAffineCubic_64f_C1R_L(const Qvp64f* pSrc, QvpSizeL srcStep, Qvp64f* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpAffineCubic_64f_C3R(const Qvp64f* pSrc, int srcStep, Qvp64f* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpAffineCubic_64f_C3R_L(const Qvp64f* pSrc, QvpSizeL srcStep, Qvp64f* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpAffineCubic_64f_C4R(const Qvp64f* pSrc, int srcStep, Qvp64f* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpAffineCubic_64f_C4R_L(const Qvp64f* pSrc, QvpSizeL srcStep, Qvp64f* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
/** @} */

/** @name Warp: perspective, nearest
 *  @{ */
/** Warps by a perspective transform, by the nearest pixel; see qvpiWarpAffineGetSize(). Not in place. Records of
 *  quadrangles are taken too.
 *
 *  @param pSrc,srcStep source, at its first pixel
 *  @param pDst,dstStep destination tile
 *  @param dstRoiOffset,dstRoiSize place and size of the tile in the destination; clipped to it
 *  @param pSpec record
 *  @param pBuffer work buffer
 *  @return qvpStatusContextMatch: not a record of these functions. qvpStatusNullPointer. qvpStatusNoOperation: a
 *          length of the tile is 0. qvpStatusSize: a length below 1. qvpStatusStep: a step that is no multiple of the
 *          element size. qvpStatusOutOfRange: `dstRoiOffset` outside the destination. qvpStatusContextMatch: a record
 *          of another transform, method, type or number of channels. Warning qvpStatusSizeWarning: the tile reached
 *          over the destination; the part inside was done.
 */
QvpStatus qvpiWarpPerspectiveNearest_8u_C1R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpPerspectiveNearest_8u_C1R_L(const Qvp8u* pSrc, QvpSizeL srcStep, Qvp8u* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpPerspectiveNearest_8u_C3R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpPerspectiveNearest_8u_C3R_L(const Qvp8u* pSrc, QvpSizeL srcStep, Qvp8u* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpPerspectiveNearest_8u_C4R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpPerspectiveNearest_8u_C4R_L(const Qvp8u* pSrc, QvpSizeL srcStep, Qvp8u* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpPerspectiveNearest_16u_C1R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpPerspectiveNearest_16u_C1R_L(const Qvp16u* pSrc, QvpSizeL srcStep, Qvp16u* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpPerspectiveNearest_16u_C3R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpPerspectiveNearest_16u_C3R_L(const Qvp16u* pSrc, QvpSizeL srcStep, Qvp16u* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpPerspectiveNearest_16u_C4R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpPerspectiveNearest_16u_C4R_L(const Qvp16u* pSrc, QvpSizeL srcStep, Qvp16u* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpPerspectiveNearest_16s_C1R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpPerspectiveNearest_16s_C1R_L(const Qvp16s* pSrc, QvpSizeL srcStep, Qvp16s* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpPerspectiveNearest_16s_C3R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpPerspectiveNearest_16s_C3R_L(const Qvp16s* pSrc, QvpSizeL srcStep, Qvp16s* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpPerspectiveNearest_16s_C4R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpPerspectiveNearest_16s_C4R_L(const Qvp16s* pSrc, QvpSizeL srcStep, Qvp16s* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpPerspectiveNearest_32f_C1R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpPerspectiveNearest_32f_C1R_L(const Qvp32f* pSrc, QvpSizeL srcStep, Qvp32f* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpPerspectiveNearest_32f_C3R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpPerspectiveNearest_32f_C3R_L(const Qvp32f* pSrc, QvpSizeL srcStep, Qvp32f* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpPerspectiveNearest_32f_C4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpPerspectiveNearest_32f_C4R_L(const Qvp32f* pSrc, QvpSizeL srcStep, Qvp32f* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpPerspectiveNearest_64f_C1R(const Qvp64f* pSrc, int srcStep, Qvp64f* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpPerspectiveNearest_64f_C1R_L(const Qvp64f* pSrc, QvpSizeL srcStep, Qvp64f* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpPerspectiveNearest_64f_C3R(const Qvp64f* pSrc, int srcStep, Qvp64f* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpPerspectiveNearest_64f_C3R_L(const Qvp64f* pSrc, QvpSizeL srcStep, Qvp64f* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpPerspectiveNearest_64f_C4R(const Qvp64f* pSrc, int srcStep, Qvp64f* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpPerspectiveNearest_64f_C4R_L(const Qvp64f* pSrc, QvpSizeL srcStep, Qvp64f* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
/** @} */

/** @name Warp: perspective, linear
 *  @{ */
/** Warps by a perspective transform, by linear interpolation between 2x2 pixels; see qvpiWarpAffineGetSize(). Not in
 *  place. Records of quadrangles are taken too.
 *
 *  @param pSrc,srcStep source, at its first pixel
 *  @param pDst,dstStep destination tile
 *  @param dstRoiOffset,dstRoiSize place and size of the tile in the destination; clipped to it
 *  @param pSpec record
 *  @param pBuffer work buffer
 *  @return qvpStatusContextMatch: not a record of these functions. qvpStatusNullPointer. qvpStatusNoOperation: a
 *          length of the tile is 0. qvpStatusSize: a length below 1. qvpStatusStep: a step that is no multiple of the
 *          element size. qvpStatusOutOfRange: `dstRoiOffset` outside the destination. qvpStatusContextMatch: a record
 *          of another transform, method, type or number of channels. Warning qvpStatusSizeWarning: the tile reached
 *          over the destination; the part inside was done.
 */
QvpStatus qvpiWarpPerspectiveLinear_8u_C1R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpPerspectiveLinear_8u_C1R_L(const Qvp8u* pSrc, QvpSizeL srcStep, Qvp8u* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpPerspectiveLinear_8u_C3R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpPerspectiveLinear_8u_C3R_L(const Qvp8u* pSrc, QvpSizeL srcStep, Qvp8u* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpPerspectiveLinear_8u_C4R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpPerspectiveLinear_8u_C4R_L(const Qvp8u* pSrc, QvpSizeL srcStep, Qvp8u* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpPerspectiveLinear_16u_C1R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpPerspectiveLinear_16u_C1R_L(const Qvp16u* pSrc, QvpSizeL srcStep, Qvp16u* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpPerspectiveLinear_16u_C3R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpPerspectiveLinear_16u_C3R_L(const Qvp16u* pSrc, QvpSizeL srcStep, Qvp16u* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpPerspectiveLinear_16u_C4R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpPerspectiveLinear_16u_C4R_L(const Qvp16u* pSrc, QvpSizeL srcStep, Qvp16u* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpPerspectiveLinear_16s_C1R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpPerspectiveLinear_16s_C1R_L(const Qvp16s* pSrc, QvpSizeL srcStep, Qvp16s* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpPerspectiveLinear_16s_C3R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpPerspectiveLinear_16s_C3R_L(const Qvp16s* pSrc, QvpSizeL srcStep, Qvp16s* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpPerspectiveLinear_16s_C4R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpPerspectiveLinear_16s_C4R_L(const Qvp16s* pSrc, QvpSizeL srcStep, Qvp16s* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpPerspectiveLinear_32f_C1R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpPerspectiveLinear_32f_C1R_L(const Qvp32f* pSrc, QvpSizeL srcStep, Qvp32f* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpPerspectiveLinear_32f_C3R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpPerspectiveLinear_32f_C3R_L(const Qvp32f* pSrc, QvpSizeL srcStep, Qvp32f* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpPerspectiveLinear_32f_C4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpPerspectiveLinear_32f_C4R_L(const Qvp32f* pSrc, QvpSizeL srcStep, Qvp32f* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpPerspectiveLinear_64f_C1R(const Qvp64f* pSrc, int srcStep, Qvp64f* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpPerspectiveLinear_64f_C1R_L(const Qvp64f* pSrc, QvpSizeL srcStep, Qvp64f* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpPerspectiveLinear_64f_C3R(const Qvp64f* pSrc, int srcStep, Qvp64f* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpPerspectiveLinear_64f_C3R_L(const Qvp64f* pSrc, QvpSizeL srcStep, Qvp64f* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpPerspectiveLinear_64f_C4R(const Qvp64f* pSrc, int srcStep, Qvp64f* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpPerspectiveLinear_64f_C4R_L(const Qvp64f* pSrc, QvpSizeL srcStep, Qvp64f* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
/** @} */

/** @name Warp: perspective, cubic
 *  @{ */
/** Warps by a perspective transform, by cubic interpolation between 4x4 pixels; see qvpiWarpAffineGetSize(). Not in
 *  place. Records of quadrangles are taken too.
 *
 *  @param pSrc,srcStep source, at its first pixel
 *  @param pDst,dstStep destination tile
 *  @param dstRoiOffset,dstRoiSize place and size of the tile in the destination; clipped to it
 *  @param pSpec record
 *  @param pBuffer work buffer
 *  @return qvpStatusContextMatch: not a record of these functions. qvpStatusNullPointer. qvpStatusNoOperation: a
 *          length of the tile is 0. qvpStatusSize: a length below 1. qvpStatusStep: a step that is no multiple of the
 *          element size. qvpStatusOutOfRange: `dstRoiOffset` outside the destination. qvpStatusContextMatch: a record
 *          of another transform, method, type or number of channels. Warning qvpStatusSizeWarning: the tile reached
 *          over the destination; the part inside was done.
 */
QvpStatus qvpiWarpPerspectiveCubic_8u_C1R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpPerspectiveCubic_8u_C1R_L(const Qvp8u* pSrc, QvpSizeL srcStep, Qvp8u* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpPerspectiveCubic_8u_C3R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpPerspectiveCubic_8u_C3R_L(const Qvp8u* pSrc, QvpSizeL srcStep, Qvp8u* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpPerspectiveCubic_8u_C4R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpPerspectiveCubic_8u_C4R_L(const Qvp8u* pSrc, QvpSizeL srcStep, Qvp8u* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpPerspectiveCubic_16u_C1R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpPerspectiveCubic_16u_C1R_L(const Qvp16u* pSrc, QvpSizeL srcStep, Qvp16u* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpPerspectiveCubic_16u_C3R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpPerspectiveCubic_16u_C3R_L(const Qvp16u* pSrc, QvpSizeL srcStep, Qvp16u* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpPerspectiveCubic_16u_C4R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpPerspectiveCubic_16u_C4R_L(const Qvp16u* pSrc, QvpSizeL srcStep, Qvp16u* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpPerspectiveCubic_16s_C1R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpPerspectiveCubic_16s_C1R_L(const Qvp16s* pSrc, QvpSizeL srcStep, Qvp16s* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpPerspectiveCubic_16s_C3R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpPerspectiveCubic_16s_C3R_L(const Qvp16s* pSrc, QvpSizeL srcStep, Qvp16s* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpPerspectiveCubic_16s_C4R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpPerspectiveCubic_16s_C4R_L(const Qvp16s* pSrc, QvpSizeL srcStep, Qvp16s* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpPerspectiveCubic_32f_C1R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpPerspectiveCubic_32f_C1R_L(const Qvp32f* pSrc, QvpSizeL srcStep, Qvp32f* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpPerspectiveCubic_32f_C3R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpPerspectiveCubic_32f_C3R_L(const Qvp32f* pSrc, QvpSizeL srcStep, Qvp32f* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpPerspectiveCubic_32f_C4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpPerspectiveCubic_32f_C4R_L(const Qvp32f* pSrc, QvpSizeL srcStep, Qvp32f* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpPerspectiveCubic_64f_C1R(const Qvp64f* pSrc, int srcStep, Qvp64f* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpPerspectiveCubic_64f_C1R_L(const Qvp64f* pSrc, QvpSizeL srcStep, Qvp64f* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpPerspectiveCubic_64f_C3R(const Qvp64f* pSrc, int srcStep, Qvp64f* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpPerspectiveCubic_64f_C3R_L(const Qvp64f* pSrc, QvpSizeL srcStep, Qvp64f* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpPerspectiveCubic_64f_C4R(const Qvp64f* pSrc, int srcStep, Qvp64f* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpPerspectiveCubic_64f_C4R_L(const Qvp64f* pSrc, QvpSizeL srcStep, Qvp64f* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
/** @} */

/** @name Warp: size of the record, bilinear
 *  @{ */
/** Bytes of a warp record and of the Init buffer, as qvpiWarpAffineGetSize().
 *
 *  A bilinear map takes the corners of a rectangle to those of any convex quadrangle, and is linear along rows and
 *  along columns: equal steps on an edge stay equal. It corrects keystone, and is the cell of meshes and morphs.
 *  Records are made by qvpiWarpBilinearNearestInit(), qvpiWarpBilinearLinearInit() or qvpiWarpBilinearCubicInit(); a
 *  record knows its method, so that one function serves all three. Coefficients are those of
 *  qvpiGetBilinearTransform(),
 *
 *      x' = c00 * x * y + c01 * x + c02 * y + c03,  y' = c10 * x * y + c11 * x + c12 * y + c13
 *
 *  Methods, borders, tiles and errors are those of qvpiWarpAffineGetSize(); what is new is the source point (u, v) of
 *  destination pixel (X, Y), in double precision, each operation rounded, in the order of the brackets:
 *
 *  **Backward**, by qvpiWarpBilinearBack_8u_C1R() and its kin:
 *
 *      u = ((c00 * Y + c01) * X + c02 * Y) + c03,  v = ((c10 * Y + c11) * X + c12 * Y) + c13
 *
 *  **Forward**, by qvpiWarpBilinear_8u_C1R() and its kin: the inverse, on the image's side of the fold that every
 *  bilinear map but an affine one has somewhere. With a and b the rows of the coefficients, b and Y negated where the
 *  map turns the image over, D = a1 * b2 - a2 * b1, A = a0 * b2 - a2 * b0 and A' = a0 * b1 - a1 * b0,
 *
 *      p = X - a3,  q = Y - b3,  B = (D - q * a0) + p * b0,  B' = B - (D + D)
 *      C = p * b1 - q * a1,  C' = p * b2 - q * a2,  R = sqrt(B * B - (4 * A) * C)
 *      v = B >= 0 ? (-2 * C) / (B + R) : (R - B) / (2 * A)
 *      u = B' <= 0 ? (2 * C') / (R - B') : (R + B') / (-2 * A')
 *
 *  R is the Jacobian. Beyond the fold it is NaN, and the point lies outside (replicate gives pixel (0, 0)). A
 *  coordinate up to 1e-6 outside of [0, srcWidth - 1] or [0, srcHeight - 1] becomes the bound, as rounding would lose
 *  rows of pixels at the edge. u and v are within 2e-8 pixel of the exact ones for quadrangles up to 4000 pixels that
 *  have no angle below 0.001.
 *
 *  For example, {-40 / 9801.0, 1, 20 / 99.0, 0; 0, 0, 1, 0} takes the corners of a 100x100 image to (0, 0), (99, 0),
 *  (79, 99) and (20, 99); forward, destination (50, 60) takes source (50.1621, 60).
 *
 *  A transform that only moves by whole pixels copies them, whatever the method: c00 = c10 = 0, the rest the unit
 *  matrix and whole shifts. With c00 = c10 = 0, backward, nearest and 64f give the bits of
 *  qvpiWarpAffineNearest_8u_C1R() and its kin.
 *
 *  @param srcSize,dstSize sizes of source and destination
 *  @param dataType type of the samples
 *  @param coeffs coefficients
 *  @param interpolation nearest, linear or cubic
 *  @param direction what the coefficients map
 *  @param borderType replicate, constant or transparent, with any sides in memory, or qvpBorderInMem
 *  @param pSpecSize,pInitBufSize receive bytes
 *  @return qvpStatusNullPointer. qvpStatusSize: a length below 1. qvpStatusDataType: not 8u, 16u, 16s, 32f or 64f;
 *          `_L`: 64f, too. qvpStatusInterpolation: not nearest, linear or cubic. qvpStatusWarpDirection: another
 *          direction. qvpStatusCoefficient: a coefficient is no finite number; forward: the source's corner pixels go
 *          to a degenerate quadrangle, one with a corner whose edges have a cross product of at most 1e-10 of their
 *          lengths; backward: the destination's go to one degenerate at all four corners. qvpStatusQuad: forward, the
 *          source's go to one that is not convex. qvpStatusBorder: another border. qvpStatusSize: a source length of 1
 *          with linear or cubic. qvpStatusSizeOverflow: a length above 33554431.
 */
QvpStatus qvpiWarpBilinearGetSize(QvpiSize srcSize, QvpiSize dstSize, QvpDataType dataType, const double coeffs[2][4], QvpiInterpolationType interpolation, QvpiWarpDirection direction, QvpiBorderType borderType, int* pSpecSize, int* pInitBufSize);
QvpStatus qvpiWarpBilinearGetSize_L(QvpiSizeL srcSize, QvpiSizeL dstSize, QvpDataType dataType, const double coeffs[2][4], QvpiInterpolationType interpolation, QvpiWarpDirection direction, QvpiBorderType borderType, QvpSizeL* pSpecSize, QvpSizeL* pInitBufSize);
/** @} */

/** @name Warp: size of the record, bilinear, quadrangles
 *  @{ */
/** Bytes of a warp record and of the Init buffer, as qvpiWarpAffineGetSize().
 *
 *  The warp takes quadrangle S of the source to quadrangle T of the destination, corner i to corner i, bilinearly: (s,
 *  t) is the point of the square (0, 0), (1, 0), (1, 1), (0, 1) that goes to destination pixel (X, Y) when the square's
 *  corners go to T0, T1, T2, T3, and the source point is that of S for it. In double precision, (s, t) solves T by the
 *  formula of qvpiWarpBilinearGetSize() for the coefficients {T0 - T1 + T2 - T3, T1 - T0, T3 - T0, T0}. Pixels with
 *  -1e-9 <= s, t <= 1 + 1e-9 are written, **and no others, whatever the border**: quadrangles can be laid into a
 *  picture, and meshes of them leave no gap. Then s and t move into [0, 1], and
 *
 *      u = ((e0 * t + e1) * s + e2 * t) + e3
 *
 *  with e from S as the coefficients from T, v likewise; both move to the image's edge if they are up to 1e-6 outside.
 *  The border applies outside of the source image, and pixels around S may weigh in. Quadrangles of opposite senses
 *  mirror.
 *
 *  For example, S (10, 5), (69, 5), (79, 49), (0, 49) and T (0, 0), (79, 0), (79, 49), (0, 49): destination (40, 20)
 *  takes source (39.92508, 22.95918).
 *
 *  @param srcSize,dstSize sizes of source and destination
 *  @param dataType type of the samples
 *  @param srcQuad,dstQuad corners, each quadrangle in an order that goes around; corner i goes to corner i
 *  @param interpolation nearest, linear or cubic
 *  @param borderType replicate, constant or transparent, with any sides in memory, or qvpBorderInMem
 *  @param pSpecSize,pInitBufSize receive bytes
 *  @return qvpStatusNullPointer. qvpStatusSize: a length below 1. qvpStatusDataType: not 8u, 16u, 16s, 32f or 64f;
 *          `_L`: 64f, too. qvpStatusInterpolation: not nearest, linear or cubic. qvpStatusQuad: a quadrangle that is
 *          degenerate, with a corner whose edges have a cross product of at most 1e-10 of their lengths, or not convex.
 *          qvpStatusBorder: another border. qvpStatusSize: a source length of 1 with linear or cubic.
 *          qvpStatusSizeOverflow: a length above 33554431.
 */
QvpStatus qvpiWarpBilinearQuadGetSize(QvpiSize srcSize, const double srcQuad[4][2], QvpiSize dstSize, const double dstQuad[4][2], QvpDataType dataType, QvpiInterpolationType interpolation, QvpiBorderType borderType, int* pSpecSize, int* pInitBufSize);
QvpStatus qvpiWarpBilinearQuadGetSize_L(QvpiSizeL srcSize, const double srcQuad[4][2], QvpiSizeL dstSize, const double dstQuad[4][2], QvpDataType dataType, QvpiInterpolationType interpolation, QvpiBorderType borderType, QvpSizeL* pSpecSize, QvpSizeL* pInitBufSize);
/** @} */

/** @name Warp: bilinear, nearest, Init
 *  @{ */
/** Makes a record for a bilinear warp by the nearest pixel; see qvpiWarpBilinearGetSize(). A source or destination
 *  length of 1 counts as 2 in the checks of the quadrangle.
 *
 *  @param srcSize,dstSize sizes of source and destination
 *  @param dataType type of the samples
 *  @param coeffs coefficients of x' and of y', of x y, x, y and 1
 *  @param direction what the coefficients map
 *  @param numChannels channels of a pixel
 *  @param borderType replicate, constant or transparent, with any sides in memory, or qvpBorderInMem
 *  @param pBorderValue constant border: a value for each channel; else not used, may be null
 *  @param smoothEdge not 0: a point up to one pixel outside, dx across and dy down, gives a * S + (1 - a) * old with a
 *         = (1 - dx) * (1 - dy), the value S at the edge, not rounded, and the old pixel; the sum is rounded once
 *  @param pSpec record
 *  @return qvpStatusBorder: another border. qvpStatusNullPointer. qvpStatusSize: a length below 1. qvpStatusDataType:
 *          not 8u, 16u, 16s, 32f or 64f; `_L`: 64f, too. qvpStatusWarpDirection: another direction.
 *          qvpStatusCoefficient: a coefficient is no finite number; forward: the source's corner pixels go to a
 *          degenerate quadrangle, one with a corner whose edges have a cross product of at most 1e-10 of their lengths;
 *          backward: the destination's go to one degenerate at all four corners. qvpStatusQuad: forward, the source's
 *          go to one that is not convex. qvpStatusNullPointer: a constant border without value. qvpStatusNumChannels:
 *          not 1, 3 or 4. qvpStatusNotSupportedMode: smoothEdge with replicate or constant. qvpStatusSizeOverflow: a
 *          length above 33554431.
 */
QvpStatus qvpiWarpBilinearNearestInit(QvpiSize srcSize, QvpiSize dstSize, QvpDataType dataType, const double coeffs[2][4], QvpiWarpDirection direction, int numChannels, QvpiBorderType borderType, const Qvp64f* pBorderValue, int smoothEdge, QvpiWarpSpec* pSpec);
QvpStatus qvpiWarpBilinearNearestInit_L(QvpiSizeL srcSize, QvpiSizeL dstSize, QvpDataType dataType, const double coeffs[2][4], QvpiWarpDirection direction, int numChannels, QvpiBorderType borderType, const Qvp64f* pBorderValue, int smoothEdge, QvpiWarpSpec* pSpec);
/** @} */

/** @name Warp: bilinear, linear, Init
 *  @{ */
/** Makes a record for a bilinear warp by linear interpolation; see qvpiWarpBilinearGetSize(). A source or destination
 *  length of 1 counts as 2 in the checks of the quadrangle.
 *
 *  @param srcSize,dstSize sizes of source and destination
 *  @param dataType type of the samples
 *  @param coeffs coefficients of x' and of y', of x y, x, y and 1
 *  @param direction what the coefficients map
 *  @param numChannels channels of a pixel
 *  @param borderType replicate, constant or transparent, with any sides in memory, or qvpBorderInMem
 *  @param pBorderValue constant border: a value for each channel; else not used, may be null
 *  @param smoothEdge not 0: a point up to one pixel outside, dx across and dy down, gives a * S + (1 - a) * old with a
 *         = (1 - dx) * (1 - dy), the value S at the edge, not rounded, and the old pixel; the sum is rounded once
 *  @param pSpec record
 *  @return qvpStatusBorder: another border. qvpStatusNullPointer. qvpStatusSize: a length below 1. qvpStatusDataType:
 *          not 8u, 16u, 16s, 32f or 64f; `_L`: 64f, too. qvpStatusWarpDirection: another direction.
 *          qvpStatusCoefficient: a coefficient is no finite number; forward: the source's corner pixels go to a
 *          degenerate quadrangle, one with a corner whose edges have a cross product of at most 1e-10 of their lengths;
 *          backward: the destination's go to one degenerate at all four corners. qvpStatusQuad: forward, the source's
 *          go to one that is not convex. qvpStatusNullPointer: a constant border without value. qvpStatusNumChannels:
 *          not 1, 3 or 4. qvpStatusNotSupportedMode: smoothEdge with replicate or constant. qvpStatusSize: a source
 *          length of 1. qvpStatusSizeOverflow: a length above 33554431.
 */
QvpStatus qvpiWarpBilinearLinearInit(QvpiSize srcSize, QvpiSize dstSize, QvpDataType dataType, const double coeffs[2][4], QvpiWarpDirection direction, int numChannels, QvpiBorderType borderType, const Qvp64f* pBorderValue, int smoothEdge, QvpiWarpSpec* pSpec);
QvpStatus qvpiWarpBilinearLinearInit_L(QvpiSizeL srcSize, QvpiSizeL dstSize, QvpDataType dataType, const double coeffs[2][4], QvpiWarpDirection direction, int numChannels, QvpiBorderType borderType, const Qvp64f* pBorderValue, int smoothEdge, QvpiWarpSpec* pSpec);
/** @} */

/** @name Warp: bilinear, cubic, Init
 *  @{ */
/** Makes a record for a bilinear warp by cubic interpolation; see qvpiWarpBilinearGetSize(). A source or destination
 *  length of 1 counts as 2 in the checks of the quadrangle.
 *
 *  @param srcSize,dstSize sizes of source and destination
 *  @param dataType type of the samples
 *  @param coeffs coefficients of x' and of y', of x y, x, y and 1
 *  @param direction what the coefficients map
 *  @param numChannels channels of a pixel
 *  @param valueB,valueC B and C, finite
 *  @param borderType replicate, constant or transparent, with any sides in memory, or qvpBorderInMem
 *  @param pBorderValue constant border: a value for each channel; else not used, may be null
 *  @param smoothEdge not 0: a point up to one pixel outside, dx across and dy down, gives a * S + (1 - a) * old with a
 *         = (1 - dx) * (1 - dy), the value S at the edge, not rounded, and the old pixel; the sum is rounded once
 *  @param pSpec record
 *  @param pInitBuf Init buffer
 *  @return qvpStatusBorder: another border. qvpStatusNullPointer. qvpStatusSize: a length below 1. qvpStatusDataType:
 *          not 8u, 16u, 16s, 32f or 64f; `_L`: 64f, too. qvpStatusWarpDirection: another direction.
 *          qvpStatusCoefficient: a coefficient is no finite number; forward: the source's corner pixels go to a
 *          degenerate quadrangle, one with a corner whose edges have a cross product of at most 1e-10 of their lengths;
 *          backward: the destination's go to one degenerate at all four corners. qvpStatusQuad: forward, the source's
 *          go to one that is not convex. qvpStatusNullPointer: a constant border without value. qvpStatusNumChannels:
 *          not 1, 3 or 4. qvpStatusBadArgument: B or C is not finite. qvpStatusNotSupportedMode: smoothEdge with
 *          replicate or constant. qvpStatusSize: a source length of 1. qvpStatusSizeOverflow: a length above 33554431.
 */
QvpStatus qvpiWarpBilinearCubicInit(QvpiSize srcSize, QvpiSize dstSize, QvpDataType dataType, const double coeffs[2][4], QvpiWarpDirection direction, int numChannels, double valueB, double valueC, QvpiBorderType borderType, const Qvp64f* pBorderValue, int smoothEdge, QvpiWarpSpec* pSpec, Qvp8u* pInitBuf);
QvpStatus qvpiWarpBilinearCubicInit_L(QvpiSizeL srcSize, QvpiSizeL dstSize, QvpDataType dataType, const double coeffs[2][4], QvpiWarpDirection direction, int numChannels, double valueB, double valueC, QvpiBorderType borderType, const Qvp64f* pBorderValue, int smoothEdge, QvpiWarpSpec* pSpec, Qvp8u* pInitBuf);
/** @} */

/** @name Warp: bilinear, quadrangles, nearest, Init
 *  @{ */
/** Makes a record for a bilinear warp of one quadrangle to another by the nearest pixel; see
 *  qvpiWarpBilinearQuadGetSize().
 *
 *  @param srcSize,dstSize sizes of source and destination
 *  @param dataType type of the samples
 *  @param srcQuad,dstQuad corners, each quadrangle in an order that goes around; corner i goes to corner i
 *  @param numChannels channels of a pixel
 *  @param borderType replicate, constant or transparent, with any sides in memory, or qvpBorderInMem
 *  @param pBorderValue constant border: a value for each channel; else not used, may be null
 *  @param smoothEdge not 0: a point up to one pixel outside, dx across and dy down, gives a * S + (1 - a) * old with a
 *         = (1 - dx) * (1 - dy), the value S at the edge, not rounded, and the old pixel; the sum is rounded once
 *  @param pSpec record
 *  @return qvpStatusBorder: another border. qvpStatusNullPointer. qvpStatusSize: a length below 1. qvpStatusDataType:
 *          not 8u, 16u, 16s, 32f or 64f; `_L`: 64f, too. qvpStatusQuad: a quadrangle that is degenerate, with a corner
 *          whose edges have a cross product of at most 1e-10 of their lengths, or not convex. qvpStatusNullPointer: a
 *          constant border without value. qvpStatusNumChannels: not 1, 3 or 4. qvpStatusNotSupportedMode: smoothEdge
 *          with replicate or constant. qvpStatusSizeOverflow: a length above 33554431.
 */
QvpStatus qvpiWarpBilinearQuadNearestInit(QvpiSize srcSize, const double srcQuad[4][2], QvpiSize dstSize, const double dstQuad[4][2], QvpDataType dataType, int numChannels, QvpiBorderType borderType, const Qvp64f* pBorderValue, int smoothEdge, QvpiWarpSpec* pSpec);
QvpStatus qvpiWarpBilinearQuadNearestInit_L(QvpiSizeL srcSize, const double srcQuad[4][2], QvpiSizeL dstSize, const double dstQuad[4][2], QvpDataType dataType, int numChannels, QvpiBorderType borderType, const Qvp64f* pBorderValue, int smoothEdge, QvpiWarpSpec* pSpec);
/** @} */

/** @name Warp: bilinear, quadrangles, linear, Init
 *  @{ */
/** Makes a record for a bilinear warp of one quadrangle to another by linear interpolation; see
 *  qvpiWarpBilinearQuadGetSize().
 *
 *  @param srcSize,dstSize sizes of source and destination
 *  @param dataType type of the samples
 *  @param srcQuad,dstQuad corners, each quadrangle in an order that goes around; corner i goes to corner i
 *  @param numChannels channels of a pixel
 *  @param borderType replicate, constant or transparent, with any sides in memory, or qvpBorderInMem
 *  @param pBorderValue constant border: a value for each channel; else not used, may be null
 *  @param smoothEdge not 0: a point up to one pixel outside, dx across and dy down, gives a * S + (1 - a) * old with a
 *         = (1 - dx) * (1 - dy), the value S at the edge, not rounded, and the old pixel; the sum is rounded once
 *  @param pSpec record
 *  @return qvpStatusBorder: another border. qvpStatusNullPointer. qvpStatusSize: a length below 1. qvpStatusDataType:
 *          not 8u, 16u, 16s, 32f or 64f; `_L`: 64f, too. qvpStatusQuad: a quadrangle that is degenerate, with a corner
 *          whose edges have a cross product of at most 1e-10 of their lengths, or not convex. qvpStatusNullPointer: a
 *          constant border without value. qvpStatusNumChannels: not 1, 3 or 4. qvpStatusNotSupportedMode: smoothEdge
 *          with replicate or constant. qvpStatusSize: a source length of 1. qvpStatusSizeOverflow: a length above
 *          33554431.
 */
QvpStatus qvpiWarpBilinearQuadLinearInit(QvpiSize srcSize, const double srcQuad[4][2], QvpiSize dstSize, const double dstQuad[4][2], QvpDataType dataType, int numChannels, QvpiBorderType borderType, const Qvp64f* pBorderValue, int smoothEdge, QvpiWarpSpec* pSpec);
QvpStatus qvpiWarpBilinearQuadLinearInit_L(QvpiSizeL srcSize, const double srcQuad[4][2], QvpiSizeL dstSize, const double dstQuad[4][2], QvpDataType dataType, int numChannels, QvpiBorderType borderType, const Qvp64f* pBorderValue, int smoothEdge, QvpiWarpSpec* pSpec);
/** @} */

/** @name Warp: bilinear, quadrangles, cubic, Init
 *  @{ */
/** Makes a record for a bilinear warp of one quadrangle to another by cubic interpolation; see
 *  qvpiWarpBilinearQuadGetSize().
 *
 *  @param srcSize,dstSize sizes of source and destination
 *  @param dataType type of the samples
 *  @param srcQuad,dstQuad corners, each quadrangle in an order that goes around; corner i goes to corner i
 *  @param numChannels channels of a pixel
 *  @param valueB,valueC B and C, finite
 *  @param borderType replicate, constant or transparent, with any sides in memory, or qvpBorderInMem
 *  @param pBorderValue constant border: a value for each channel; else not used, may be null
 *  @param smoothEdge not 0: a point up to one pixel outside, dx across and dy down, gives a * S + (1 - a) * old with a
 *         = (1 - dx) * (1 - dy), the value S at the edge, not rounded, and the old pixel; the sum is rounded once
 *  @param pSpec record
 *  @param pInitBuf Init buffer
 *  @return qvpStatusBorder: another border. qvpStatusNullPointer. qvpStatusSize: a length below 1. qvpStatusDataType:
 *          not 8u, 16u, 16s, 32f or 64f; `_L`: 64f, too. qvpStatusQuad: a quadrangle that is degenerate, with a corner
 *          whose edges have a cross product of at most 1e-10 of their lengths, or not convex. qvpStatusNullPointer: a
 *          constant border without value. qvpStatusNumChannels: not 1, 3 or 4. qvpStatusBadArgument: B or C is not
 *          finite. qvpStatusNotSupportedMode: smoothEdge with replicate or constant. qvpStatusSize: a source length of
 *          1. qvpStatusSizeOverflow: a length above 33554431.
 */
QvpStatus qvpiWarpBilinearQuadCubicInit(QvpiSize srcSize, const double srcQuad[4][2], QvpiSize dstSize, const double dstQuad[4][2], QvpDataType dataType, int numChannels, double valueB, double valueC, QvpiBorderType borderType, const Qvp64f* pBorderValue, int smoothEdge, QvpiWarpSpec* pSpec, Qvp8u* pInitBuf);
QvpStatus qvpiWarpBilinearQuadCubicInit_L(QvpiSizeL srcSize, const double srcQuad[4][2], QvpiSizeL dstSize, const double dstQuad[4][2], QvpDataType dataType, int numChannels, double valueB, double valueC, QvpiBorderType borderType, const Qvp64f* pBorderValue, int smoothEdge, QvpiWarpSpec* pSpec, Qvp8u* pInitBuf);
/** @} */

/** @name Warp: bilinear
 *  @{ */
/** Warps by the inverse of a bilinear map, from a record of direction qvpWarpForward; see qvpiWarpBilinearGetSize().
 *  Not in place. Linear 8u takes about twice the time of an affine warp: a root and a division for each pixel.
 *
 *  @param pSrc,srcStep source, at its first pixel
 *  @param pDst,dstStep destination tile
 *  @param dstRoiOffset,dstRoiSize place and size of the tile in the destination; clipped to it
 *  @param pSpec record
 *  @param pBuffer work buffer
 *  @return qvpStatusContextMatch: not a record of these functions. qvpStatusNullPointer. qvpStatusNoOperation: a length
 *          of the tile is 0. qvpStatusSize: a length below 1. qvpStatusStep: a step that is no multiple of the element
 *          size. qvpStatusOutOfRange: `dstRoiOffset` outside the destination. qvpStatusContextMatch: a record of
 *          another transform, type or number of channels. Warning qvpStatusSizeWarning: the tile reached over the
 *          destination; the part inside was done.
 */
QvpStatus qvpiWarpBilinear_8u_C1R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpBilinear_8u_C1R_L(const Qvp8u* pSrc, QvpSizeL srcStep, Qvp8u* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpBilinear_8u_C3R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpBilinear_8u_C3R_L(const Qvp8u* pSrc, QvpSizeL srcStep, Qvp8u* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpBilinear_8u_C4R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpBilinear_8u_C4R_L(const Qvp8u* pSrc, QvpSizeL srcStep, Qvp8u* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpBilinear_16u_C1R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpBilinear_16u_C1R_L(const Qvp16u* pSrc, QvpSizeL srcStep, Qvp16u* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpBilinear_16u_C3R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpBilinear_16u_C3R_L(const Qvp16u* pSrc, QvpSizeL srcStep, Qvp16u* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpBilinear_16u_C4R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpBilinear_16u_C4R_L(const Qvp16u* pSrc, QvpSizeL srcStep, Qvp16u* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpBilinear_16s_C1R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpBilinear_16s_C1R_L(const Qvp16s* pSrc, QvpSizeL srcStep, Qvp16s* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpBilinear_16s_C3R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpBilinear_16s_C3R_L(const Qvp16s* pSrc, QvpSizeL srcStep, Qvp16s* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpBilinear_16s_C4R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpBilinear_16s_C4R_L(const Qvp16s* pSrc, QvpSizeL srcStep, Qvp16s* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpBilinear_32f_C1R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpBilinear_32f_C1R_L(const Qvp32f* pSrc, QvpSizeL srcStep, Qvp32f* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpBilinear_32f_C3R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpBilinear_32f_C3R_L(const Qvp32f* pSrc, QvpSizeL srcStep, Qvp32f* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpBilinear_32f_C4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpBilinear_32f_C4R_L(const Qvp32f* pSrc, QvpSizeL srcStep, Qvp32f* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpBilinear_64f_C1R(const Qvp64f* pSrc, int srcStep, Qvp64f* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpBilinear_64f_C3R(const Qvp64f* pSrc, int srcStep, Qvp64f* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpBilinear_64f_C4R(const Qvp64f* pSrc, int srcStep, Qvp64f* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
/** @} */

/** @name Warp: bilinear, backward
 *  @{ */
/** Warps by a bilinear map from destination to source, from a record of direction qvpWarpBackward; see
 *  qvpiWarpBilinearGetSize(). Not in place.
 *
 *  @param pSrc,srcStep source, at its first pixel
 *  @param pDst,dstStep destination tile
 *  @param dstRoiOffset,dstRoiSize place and size of the tile in the destination; clipped to it
 *  @param pSpec record
 *  @param pBuffer work buffer
 *  @return qvpStatusContextMatch: not a record of these functions. qvpStatusNullPointer. qvpStatusNoOperation: a length
 *          of the tile is 0. qvpStatusSize: a length below 1. qvpStatusStep: a step that is no multiple of the element
 *          size. qvpStatusOutOfRange: `dstRoiOffset` outside the destination. qvpStatusContextMatch: a record of
 *          another transform, type or number of channels. Warning qvpStatusSizeWarning: the tile reached over the
 *          destination; the part inside was done.
 */
QvpStatus qvpiWarpBilinearBack_8u_C1R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpBilinearBack_8u_C1R_L(const Qvp8u* pSrc, QvpSizeL srcStep, Qvp8u* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpBilinearBack_8u_C3R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpBilinearBack_8u_C3R_L(const Qvp8u* pSrc, QvpSizeL srcStep, Qvp8u* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpBilinearBack_8u_C4R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpBilinearBack_8u_C4R_L(const Qvp8u* pSrc, QvpSizeL srcStep, Qvp8u* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpBilinearBack_16u_C1R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpBilinearBack_16u_C1R_L(const Qvp16u* pSrc, QvpSizeL srcStep, Qvp16u* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpBilinearBack_16u_C3R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpBilinearBack_16u_C3R_L(const Qvp16u* pSrc, QvpSizeL srcStep, Qvp16u* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpBilinearBack_16u_C4R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpBilinearBack_16u_C4R_L(const Qvp16u* pSrc, QvpSizeL srcStep, Qvp16u* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpBilinearBack_16s_C1R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpBilinearBack_16s_C1R_L(const Qvp16s* pSrc, QvpSizeL srcStep, Qvp16s* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpBilinearBack_16s_C3R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpBilinearBack_16s_C3R_L(const Qvp16s* pSrc, QvpSizeL srcStep, Qvp16s* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpBilinearBack_16s_C4R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpBilinearBack_16s_C4R_L(const Qvp16s* pSrc, QvpSizeL srcStep, Qvp16s* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpBilinearBack_32f_C1R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpBilinearBack_32f_C1R_L(const Qvp32f* pSrc, QvpSizeL srcStep, Qvp32f* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpBilinearBack_32f_C3R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpBilinearBack_32f_C3R_L(const Qvp32f* pSrc, QvpSizeL srcStep, Qvp32f* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpBilinearBack_32f_C4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpBilinearBack_32f_C4R_L(const Qvp32f* pSrc, QvpSizeL srcStep, Qvp32f* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpBilinearBack_64f_C1R(const Qvp64f* pSrc, int srcStep, Qvp64f* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpBilinearBack_64f_C3R(const Qvp64f* pSrc, int srcStep, Qvp64f* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpBilinearBack_64f_C4R(const Qvp64f* pSrc, int srcStep, Qvp64f* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
/** @} */

/** @name Warp: bilinear, quadrangles
 *  @{ */
/** Warps one quadrangle to another bilinearly; see qvpiWarpBilinearQuadGetSize(). Only pixels of the destination's
 *  quadrangle are written, and cost follows its area. Not in place.
 *
 *  @param pSrc,srcStep source, at its first pixel
 *  @param pDst,dstStep destination tile
 *  @param dstRoiOffset,dstRoiSize place and size of the tile in the destination; clipped to it
 *  @param pSpec record
 *  @param pBuffer work buffer
 *  @return qvpStatusContextMatch: not a record of these functions. qvpStatusNullPointer. qvpStatusNoOperation: a length
 *          of the tile is 0. qvpStatusSize: a length below 1. qvpStatusStep: a step that is no multiple of the element
 *          size. qvpStatusOutOfRange: `dstRoiOffset` outside the destination. qvpStatusContextMatch: a record of
 *          another transform, type or number of channels. Warning qvpStatusSizeWarning: the tile reached over the
 *          destination; the part inside was done.
 */
QvpStatus qvpiWarpBilinearQuad_8u_C1R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpBilinearQuad_8u_C1R_L(const Qvp8u* pSrc, QvpSizeL srcStep, Qvp8u* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpBilinearQuad_8u_C3R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpBilinearQuad_8u_C3R_L(const Qvp8u* pSrc, QvpSizeL srcStep, Qvp8u* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpBilinearQuad_8u_C4R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpBilinearQuad_8u_C4R_L(const Qvp8u* pSrc, QvpSizeL srcStep, Qvp8u* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpBilinearQuad_16u_C1R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpBilinearQuad_16u_C1R_L(const Qvp16u* pSrc, QvpSizeL srcStep, Qvp16u* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpBilinearQuad_16u_C3R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpBilinearQuad_16u_C3R_L(const Qvp16u* pSrc, QvpSizeL srcStep, Qvp16u* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpBilinearQuad_16u_C4R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpBilinearQuad_16u_C4R_L(const Qvp16u* pSrc, QvpSizeL srcStep, Qvp16u* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpBilinearQuad_16s_C1R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpBilinearQuad_16s_C1R_L(const Qvp16s* pSrc, QvpSizeL srcStep, Qvp16s* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpBilinearQuad_16s_C3R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpBilinearQuad_16s_C3R_L(const Qvp16s* pSrc, QvpSizeL srcStep, Qvp16s* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpBilinearQuad_16s_C4R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpBilinearQuad_16s_C4R_L(const Qvp16s* pSrc, QvpSizeL srcStep, Qvp16s* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpBilinearQuad_32f_C1R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpBilinearQuad_32f_C1R_L(const Qvp32f* pSrc, QvpSizeL srcStep, Qvp32f* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpBilinearQuad_32f_C3R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpBilinearQuad_32f_C3R_L(const Qvp32f* pSrc, QvpSizeL srcStep, Qvp32f* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpBilinearQuad_32f_C4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpBilinearQuad_32f_C4R_L(const Qvp32f* pSrc, QvpSizeL srcStep, Qvp32f* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset, QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpBilinearQuad_64f_C1R(const Qvp64f* pSrc, int srcStep, Qvp64f* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpBilinearQuad_64f_C3R(const Qvp64f* pSrc, int srcStep, Qvp64f* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
QvpStatus qvpiWarpBilinearQuad_64f_C4R(const Qvp64f* pSrc, int srcStep, Qvp64f* pDst, int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer);
/** @} */

/** @name Warp: quadrangle of a rectangle, affine
 *  @{ */
/** Where the centres of a rectangle's corner pixels go:
 *
 *  @code
 *    (x, y) to (c00 * x + c01 * y + c02,  c10 * x + c11 * y + c12)
 *  @endcode
 *
 *  @param srcRoi rectangle of pixels
 *  @param quad receives the corners, clockwise from the top left one
 *  @param coeffs coefficients
 *  @return qvpStatusNullPointer. qvpStatusSize: x or y negative, or a length below 1. qvpStatusQuad: the corners are
 *          not those of a convex quadrangle; nothing is written. qvpStatusCoefficient: the quadrangle has no area (the
 *          cross product of two edges is not above 1e-10 times their lengths); it is written all the same.
 */
QvpStatus qvpiGetAffineQuad(QvpiRect srcRoi, double quad[4][2], const double coeffs[2][3]);
/** @} */

/** @name Warp: bound of a rectangle, affine
 *  @{ */
/** The box around the quadrangle of qvpiGetAffineQuad().
 *
 *  @param srcRoi rectangle of pixels
 *  @param bound receives the least x and y, and the greatest
 *  @param coeffs coefficients
 *  @return as qvpiGetAffineQuad(); with qvpStatusCoefficient too the bound is written.
 */
QvpStatus qvpiGetAffineBound(QvpiRect srcRoi, double bound[2][2], const double coeffs[2][3]);
/** @} */

/** @name Warp: transform to a quadrangle, affine
 *  @{ */
/** Coefficients that take the centres of a rectangle's corner pixels to a parallelogram. The third corner is not
 *  looked at, as it follows from the others.
 *
 *  @param srcRoi rectangle of pixels
 *  @param quad corners, clockwise from the one that belongs to the top left pixel
 *  @param coeffs receives the coefficients
 *  @return qvpStatusNullPointer. qvpStatusRect: a length of the rectangle below 1. qvpStatusCoefficient: a length of
 *          1. qvpStatusCoefficient: the parallelogram has no area.
 */
QvpStatus qvpiGetAffineTransform(QvpiRect srcRoi, const double quad[4][2], double coeffs[2][3]);
/** @} */

/** @name Warp: quadrangle of a rectangle, perspective
 *  @{ */
/** Where the centres of a rectangle's corner pixels go:
 *
 *  @code
 *    (x, y) to ((c00 * x + c01 * y + c02) / w,  (c10 * x + c11 * y + c12) / w),  w = c20 * x + c21 * y + c22
 *  @endcode
 *
 *  @param srcRoi rectangle of pixels
 *  @param quad receives the corners, clockwise from the top left one
 *  @param coeffs coefficients
 *  @return qvpStatusNullPointer. qvpStatusSize: x or y negative, or a length below 1. qvpStatusQuad: the corners are
 *          not those of a convex quadrangle; nothing is written. qvpStatusCoefficient: the quadrangle has no area (the
 *          cross product of two edges is not above 1e-10 times their lengths); it is written all the same.
 */
QvpStatus qvpiGetPerspectiveQuad(QvpiRect srcRoi, double quad[4][2], const double coeffs[3][3]);
/** @} */

/** @name Warp: bound of a rectangle, perspective
 *  @{ */
/** The box around the quadrangle of qvpiGetPerspectiveQuad().
 *
 *  @param srcRoi rectangle of pixels
 *  @param bound receives the least x and y, and the greatest
 *  @param coeffs coefficients
 *  @return as qvpiGetAffineQuad(); with qvpStatusCoefficient too the bound is written.
 */
QvpStatus qvpiGetPerspectiveBound(QvpiRect srcRoi, double bound[2][2], const double coeffs[3][3]);
/** @} */

/** @name Warp: transform to a quadrangle, perspective
 *  @{ */
/** Coefficients that take the centres of a rectangle's corner pixels to the corners of a convex quadrangle, with c22 =
 *  1.
 *
 *  @param srcRoi rectangle of pixels
 *  @param quad corners, clockwise from the one that belongs to the top left pixel
 *  @param coeffs receives the coefficients
 *  @return qvpStatusNullPointer. qvpStatusRect: a length of the rectangle below 1. qvpStatusCoefficient: a length of
 *          1. qvpStatusQuad: the quadrangle is degenerate or not convex.
 */
QvpStatus qvpiGetPerspectiveTransform(QvpiRect srcRoi, const double quad[4][2], double coeffs[3][3]);
/** @} */

/** @name Warp: quadrangle of a rectangle, bilinear
 *  @{ */
/** Where the centres of a rectangle's corner pixels go:
 *
 *  @code
 *    (x, y) to (c00 * x * y + c01 * x + c02 * y + c03,  c10 * x * y + c11 * x + c12 * y + c13)
 *  @endcode
 *
 *  @param srcRoi rectangle of pixels
 *  @param quad receives the corners, clockwise from the top left one
 *  @param coeffs coefficients
 *  @return qvpStatusNullPointer. qvpStatusSize: x or y negative, or a length below 1. qvpStatusQuad: the corners are
 *          not those of a convex quadrangle; nothing is written. qvpStatusCoefficient: the quadrangle has no area (the
 *          cross product of two edges is not above 1e-10 times their lengths); it is written all the same.
 */
QvpStatus qvpiGetBilinearQuad(QvpiRect srcRoi, double quad[4][2], const double coeffs[2][4]);
/** @} */

/** @name Warp: bound of a rectangle, bilinear
 *  @{ */
/** The box around the quadrangle of qvpiGetBilinearQuad().
 *
 *  @param srcRoi rectangle of pixels
 *  @param bound receives the least x and y, and the greatest
 *  @param coeffs coefficients
 *  @return as qvpiGetAffineQuad(); with qvpStatusCoefficient too the bound is written.
 */
QvpStatus qvpiGetBilinearBound(QvpiRect srcRoi, double bound[2][2], const double coeffs[2][4]);
/** @} */

/** @name Warp: transform to a quadrangle, bilinear
 *  @{ */
/** Coefficients that take the centres of a rectangle's corner pixels to the corners of a convex quadrangle.
 *
 *  @param srcRoi rectangle of pixels
 *  @param quad corners, clockwise from the one that belongs to the top left pixel
 *  @param coeffs receives the coefficients
 *  @return qvpStatusNullPointer. qvpStatusRect: a length of the rectangle below 1. qvpStatusCoefficient: a length of
 *          1. qvpStatusQuad: the quadrangle is degenerate or not convex.
 */
QvpStatus qvpiGetBilinearTransform(QvpiRect srcRoi, const double quad[4][2], double coeffs[2][4]);
/** @} */

/** @name Warp: transform between quadrangles, affine
 *  @{ */
/** Coefficients that take the corners 0, 1 and 3 of one quadrangle to those of another, and points between them in
 *  proportion: landmarks of one picture to those of another. The corners 2 follow from the others.
 *
 *  @param srcQuad,dstQuad corners; each goes to that of its number
 *  @param coeffs receives the coefficients
 *  @return qvpStatusNullPointer. qvpStatusQuad: a coordinate is no finite number, of the corners 2 too.
 *          qvpStatusCoefficient: the three corners of a quadrangle lie on a line (the cross product of the edges that
 *          meet in corner 0 is not above 1e-10 times their lengths), or a coefficient is no finite number.
 */
QvpStatus qvpiGetAffineQuadTransform(const double srcQuad[4][2], const double dstQuad[4][2], double coeffs[2][3]);
/** @} */

/** @name Warp: transform between quadrangles, perspective
 *  @{ */
/** Coefficients that take the corners of one convex quadrangle to those of another, with c22 = 1: a page in a photograph
 *  to an upright rectangle.
 *
 *  @param srcQuad,dstQuad corners, in an order that goes around; each goes to that of its number
 *  @param coeffs receives the coefficients
 *  @return qvpStatusNullPointer. qvpStatusQuad: a coordinate is no finite number, or a quadrangle is degenerate or not
 *          convex. qvpStatusCoefficient: c22 would be 0, as (0, 0) goes to infinity, or a coefficient is no finite
 *          number.
 */
QvpStatus qvpiGetPerspectiveQuadTransform(const double srcQuad[4][2], const double dstQuad[4][2], double coeffs[3][3]);
/** @} */

/** @name Warp: shift of a rotation
 *  @{ */
/** The shift that makes a rotation by qvpiGetRotateTransform() turn about a centre: ((1 - cos) * xCenter - sin *
 *  yCenter, sin * xCenter + (1 - cos) * yCenter).
 *
 *  @param xCenter,yCenter centre
 *  @param angle degrees, positive for counter-clockwise as one sees the image. Multiples of 90 are exact
 *  @param pShiftX,pShiftY receive the shift
 *  @return qvpStatusNullPointer. qvpStatusCoefficient: an argument is no finite number.
 */
QvpStatus qvpiGetRotateShift(double xCenter, double yCenter, double angle, double* pShiftX, double* pShiftY);
/** @} */

/** @name Warp: transform of a rotation
 *  @{ */
/** The coefficients {cos, sin, shiftX; -sin, cos, shiftY} of a rotation about (0, 0), followed by a shift.
 *
 *  @param angle degrees, positive for counter-clockwise as one sees the image. Multiples of 90 are exact
 *  @param shiftX,shiftY shift
 *  @param coeffs receives the coefficients
 *  @return qvpStatusNullPointer. qvpStatusCoefficient: an argument is no finite number.
 */
QvpStatus qvpiGetRotateTransform(double angle, double shiftX, double shiftY, double coeffs[2][3]);
/** @} */

/** @name Warp: transform of a rotation with a scale
 *  @{ */
/** The coefficients of a rotation by an angle and a scale that takes one point to another, as the centre of an image to
 *  that of a canvas:
 *
 *  @code
 *    {m00, m01, xDst - (m00 * xSrc + m01 * ySrc);  m10, m11, yDst - (m10 * xSrc + m11 * ySrc)}
 *    m = scale * {cos, sin; -sin, cos}
 *  @endcode
 *
 *  @param xSrc,ySrc point of the source
 *  @param xDst,yDst where it goes
 *  @param angle degrees, positive for counter-clockwise as one sees the image. Multiples of 90 are exact
 *  @param scale factor of all lengths
 *  @param coeffs receives the coefficients
 *  @return qvpStatusNullPointer. qvpStatusCoefficient: a point or the angle is no finite number. qvpStatusResizeFactor:
 *          the scale is no finite number above 0.
 */
QvpStatus qvpiGetRotateScaleTransform(double xSrc, double ySrc, double xDst, double yDst, double angle, double scale, double coeffs[2][3]);
/** @} */

/** @name Warp: quadrangle of a rectangle, rotation
 *  @{ */
/** qvpiGetAffineQuad() for the coefficients of qvpiGetRotateTransform().
 *
 *  @param srcRoi rectangle of pixels
 *  @param quad receives the corners, clockwise from the one of the top left pixel
 *  @param angle degrees, positive for counter-clockwise as one sees the image. Multiples of 90 are exact
 *  @param shiftX,shiftY shift
 *  @return qvpStatusNullPointer. qvpStatusSize: x or y negative, or a length below 1. qvpStatusCoefficient: the angle or
 *          the shift is no finite number; nothing is written. qvpStatusCoefficient: the rectangle is one pixel wide or
 *          high, and the quadrangle has no area; it is written all the same.
 */
QvpStatus qvpiGetRotateQuad(QvpiRect srcRoi, double quad[4][2], double angle, double shiftX, double shiftY);
/** @} */

/** @name Warp: bound of a rectangle, rotation
 *  @{ */
/** The box around the quadrangle of qvpiGetRotateQuad().
 *
 *  @param srcRoi rectangle of pixels
 *  @param bound receives the least x and y, and the greatest
 *  @param angle degrees, positive for counter-clockwise as one sees the image. Multiples of 90 are exact
 *  @param shiftX,shiftY shift
 *  @return as qvpiGetRotateQuad(); where a quadrangle without area is written, so is its bound.
 */
QvpStatus qvpiGetRotateBound(QvpiRect srcRoi, double bound[2][2], double angle, double shiftX, double shiftY);
/** @} */

/** @name Warp: canvas of a turned image
 *  @{ */
/** The size of a canvas that holds a whole turned image, and the shift for qvpiGetRotateTransform() that puts the
 *  image's centre into the canvas's:
 *
 *  @code
 *    width  = ceil((W - 1) * |cos| + (H - 1) * |sin| - 1e-9) + 1
 *    height = ceil((W - 1) * |sin| + (H - 1) * |cos| - 1e-9) + 1
 *    shiftX = (width - 1) / 2 - (cos * cx + sin * cy),   cx = (W - 1) / 2
 *    shiftY = (height - 1) / 2 - (cos * cy - sin * cx),  cy = (H - 1) / 2
 *  @endcode
 *
 *  1920 x 1080 pixels turned by 10 degrees need 2079 x 1397, and a shift by (0.39376913, 333.31164372).
 *
 *  @param srcSize size of the image, W x H
 *  @param angle degrees, positive for counter-clockwise as one sees the image. Multiples of 90 are exact
 *  @param pDstSize receives the size of the canvas
 *  @param pShiftX,pShiftY receive the shift
 *  @return qvpStatusNullPointer. qvpStatusSize: a length below 1. qvpStatusCoefficient: the angle is no finite number.
 *          qvpStatusSizeOverflow: a length of the canvas above 2147483647.
 */
QvpStatus qvpiGetRotateFit(QvpiSize srcSize, double angle, QvpiSize* pDstSize, double* pShiftX, double* pShiftY);
/** @} */

/** @name Warp: what a turned image fills of its canvas
 *  @{ */
/** The largest rectangle about the centre of the canvas of qvpiGetRotateFit() that has only pixels of the turned image.
 *  A photograph whose horizon was levelled is cropped to it.
 *
 *  Of 1920 x 1080 pixels turned by 10 degrees it is {134, 310, 1811, 777}.
 *
 *  @param srcSize size of the image
 *  @param angle degrees, positive for counter-clockwise as one sees the image. Multiples of 90 are exact
 *  @param pRoi receives the rectangle, in the canvas
 *  @return qvpStatusNullPointer. qvpStatusSize: a length below 1. qvpStatusCoefficient: the angle is no finite number.
 *          qvpStatusSizeOverflow: a length of the canvas above 2147483647. qvpStatusRect: there is no pixel inside, as
 *          in 3 x 2 pixels turned by 30 degrees.
 */
QvpStatus qvpiGetRotateInside(QvpiSize srcSize, double angle, QvpiRect* pRoi);
/** @} */

/** @name Remap
 *  @{ */
/** Each destination pixel takes the value at the source point that two maps tell: dst(x, y) = src(xMap(x, y), yMap(x,
 *  y)).
 *
 *  Pixels lie at whole coordinates, (0, 0) is the first pixel of the whole source. A pixel is written if its point is
 *  in the region, x0 <= xMap <= x1 and y0 <= yMap <= y1 with the first and the last column and row of `srcRoi`,
 *  clipped to the source; other pixels keep their value, those of maps that are no numbers too. So a map (0, 0), (1,
 *  0), (2.5, 0) ... leaves the third pixel alone where the source is three pixels wide.
 *
 *  Nearest takes the pixel at floor(x + 0.5) and floor(y + 0.5), exact for every number. Linear interpolation keeps to
 *  the pixels of the region. The cubics (B = 0, with C = 0.75 for qvpInterpolationCubicClassic and 0.5 for
 *  qvpInterpolationCubic) and Lanczos (sinc(t) * sinc(t / 3) for |t| < 3, the weights of an axis divided by their sum)
 *  take pixels around it too, and the nearest ones of the edge where the source ends. Lanczos becomes the classic cubic
 *  where the source has a side below 6 pixels, cubics linear below 4, and all methods nearest at 1.
 *
 *  Maps are single precision, for 64f double; weights and sums are as precise as the maps, but for linear
 *  interpolation of 8u, which is done in integers as in warps. Integers are rounded to the nearest, ties to even, and
 *  saturated. A NaN or an infinity among the pixels that are weighed makes a result NaN even where its weight is 0.
 *  Errors, stated as for qvpiWarpAffineGetSize():
 *
 *  | | 8u | 16u, 16s | 32f | 64f |
 *  |---|---|---|---|---|
 *  | linear | 1, within 0.024 of a tie | 1, within 0.008 of a tie | 1.5e-7 | 3e-16 |
 *  | cubics, Lanczos | 1, within 5e-5 of a tie | 1, within 0.02 of a tie | 6e-7 | 1e-15 |
 *
 *  Not in place. AC4 leaves the fourth channel alone.
 *
 *  With qvpSmoothEdge added to the method a point up to one pixel outside the region, dx across and dy down, gives
 *  a * S + (1 - a) * old with a = (1 - dx) * (1 - dy), the value S at the edge of the region, not rounded, and the old
 *  pixel; the sum is rounded once.
 *
 *  @param pSrc,srcStep the whole source, at its first pixel
 *  @param srcSize size of the whole source
 *  @param srcRoi region of points that are sampled
 *  @param pxMap,xMapStep columns, one for each destination pixel
 *  @param pyMap,yMapStep rows
 *  @param pDst,dstStep destination
 *  @param dstRoiSize size of destination and maps
 *  @param interpolation nearest, linear, one of the cubics or Lanczos, with or without qvpSmoothEdge
 *  @return qvpStatusNullPointer. qvpStatusSize: a length below 1, or x or y of the region negative.
 *          qvpStatusInterpolation: another method. qvpStatusStep: a step below 1. Warning qvpStatusNoIntersection: the
 *          region begins outside the source; nothing is written.
 */
QvpStatus qvpiRemap_8u_C1R(const Qvp8u* pSrc, QvpiSize srcSize, int srcStep, QvpiRect srcRoi, const Qvp32f* pxMap, int xMapStep, const Qvp32f* pyMap, int yMapStep, Qvp8u* pDst, int dstStep, QvpiSize dstRoiSize, int interpolation);
QvpStatus qvpiRemap_8u_C3R(const Qvp8u* pSrc, QvpiSize srcSize, int srcStep, QvpiRect srcRoi, const Qvp32f* pxMap, int xMapStep, const Qvp32f* pyMap, int yMapStep, Qvp8u* pDst, int dstStep, QvpiSize dstRoiSize, int interpolation);
QvpStatus qvpiRemap_8u_C4R(const Qvp8u* pSrc, QvpiSize srcSize, int srcStep, QvpiRect srcRoi, const Qvp32f* pxMap, int xMapStep, const Qvp32f* pyMap, int yMapStep, Qvp8u* pDst, int dstStep, QvpiSize dstRoiSize, int interpolation);
QvpStatus qvpiRemap_8u_AC4R(const Qvp8u* pSrc, QvpiSize srcSize, int srcStep, QvpiRect srcRoi, const Qvp32f* pxMap, int xMapStep, const Qvp32f* pyMap, int yMapStep, Qvp8u* pDst, int dstStep, QvpiSize dstRoiSize, int interpolation);
QvpStatus qvpiRemap_16u_C1R(const Qvp16u* pSrc, QvpiSize srcSize, int srcStep, QvpiRect srcRoi, const Qvp32f* pxMap, int xMapStep, const Qvp32f* pyMap, int yMapStep, Qvp16u* pDst, int dstStep, QvpiSize dstRoiSize, int interpolation);
QvpStatus qvpiRemap_16u_C3R(const Qvp16u* pSrc, QvpiSize srcSize, int srcStep, QvpiRect srcRoi, const Qvp32f* pxMap, int xMapStep, const Qvp32f* pyMap, int yMapStep, Qvp16u* pDst, int dstStep, QvpiSize dstRoiSize, int interpolation);
QvpStatus qvpiRemap_16u_C4R(const Qvp16u* pSrc, QvpiSize srcSize, int srcStep, QvpiRect srcRoi, const Qvp32f* pxMap, int xMapStep, const Qvp32f* pyMap, int yMapStep, Qvp16u* pDst, int dstStep, QvpiSize dstRoiSize, int interpolation);
QvpStatus qvpiRemap_16u_AC4R(const Qvp16u* pSrc, QvpiSize srcSize, int srcStep, QvpiRect srcRoi, const Qvp32f* pxMap, int xMapStep, const Qvp32f* pyMap, int yMapStep, Qvp16u* pDst, int dstStep, QvpiSize dstRoiSize, int interpolation);
QvpStatus qvpiRemap_16s_C1R(const Qvp16s* pSrc, QvpiSize srcSize, int srcStep, QvpiRect srcRoi, const Qvp32f* pxMap, int xMapStep, const Qvp32f* pyMap, int yMapStep, Qvp16s* pDst, int dstStep, QvpiSize dstRoiSize, int interpolation);
QvpStatus qvpiRemap_16s_C3R(const Qvp16s* pSrc, QvpiSize srcSize, int srcStep, QvpiRect srcRoi, const Qvp32f* pxMap, int xMapStep, const Qvp32f* pyMap, int yMapStep, Qvp16s* pDst, int dstStep, QvpiSize dstRoiSize, int interpolation);
QvpStatus qvpiRemap_16s_C4R(const Qvp16s* pSrc, QvpiSize srcSize, int srcStep, QvpiRect srcRoi, const Qvp32f* pxMap, int xMapStep, const Qvp32f* pyMap, int yMapStep, Qvp16s* pDst, int dstStep, QvpiSize dstRoiSize, int interpolation);
QvpStatus qvpiRemap_16s_AC4R(const Qvp16s* pSrc, QvpiSize srcSize, int srcStep, QvpiRect srcRoi, const Qvp32f* pxMap, int xMapStep, const Qvp32f* pyMap, int yMapStep, Qvp16s* pDst, int dstStep, QvpiSize dstRoiSize, int interpolation);
QvpStatus qvpiRemap_32f_C1R(const Qvp32f* pSrc, QvpiSize srcSize, int srcStep, QvpiRect srcRoi, const Qvp32f* pxMap, int xMapStep, const Qvp32f* pyMap, int yMapStep, Qvp32f* pDst, int dstStep, QvpiSize dstRoiSize, int interpolation);
QvpStatus qvpiRemap_32f_C3R(const Qvp32f* pSrc, QvpiSize srcSize, int srcStep, QvpiRect srcRoi, const Qvp32f* pxMap, int xMapStep, const Qvp32f* pyMap, int yMapStep, Qvp32f* pDst, int dstStep, QvpiSize dstRoiSize, int interpolation);
QvpStatus qvpiRemap_32f_C4R(const Qvp32f* pSrc, QvpiSize srcSize, int srcStep, QvpiRect srcRoi, const Qvp32f* pxMap, int xMapStep, const Qvp32f* pyMap, int yMapStep, Qvp32f* pDst, int dstStep, QvpiSize dstRoiSize, int interpolation);
QvpStatus qvpiRemap_32f_AC4R(const Qvp32f* pSrc, QvpiSize srcSize, int srcStep, QvpiRect srcRoi, const Qvp32f* pxMap, int xMapStep, const Qvp32f* pyMap, int yMapStep, Qvp32f* pDst, int dstStep, QvpiSize dstRoiSize, int interpolation);
QvpStatus qvpiRemap_64f_C1R(const Qvp64f* pSrc, QvpiSize srcSize, int srcStep, QvpiRect srcRoi, const Qvp64f* pxMap, int xMapStep, const Qvp64f* pyMap, int yMapStep, Qvp64f* pDst, int dstStep, QvpiSize dstRoiSize, int interpolation);
QvpStatus qvpiRemap_64f_C3R(const Qvp64f* pSrc, QvpiSize srcSize, int srcStep, QvpiRect srcRoi, const Qvp64f* pxMap, int xMapStep, const Qvp64f* pyMap, int yMapStep, Qvp64f* pDst, int dstStep, QvpiSize dstRoiSize, int interpolation);
QvpStatus qvpiRemap_64f_C4R(const Qvp64f* pSrc, QvpiSize srcSize, int srcStep, QvpiRect srcRoi, const Qvp64f* pxMap, int xMapStep, const Qvp64f* pyMap, int yMapStep, Qvp64f* pDst, int dstStep, QvpiSize dstRoiSize, int interpolation);
QvpStatus qvpiRemap_64f_AC4R(const Qvp64f* pSrc, QvpiSize srcSize, int srcStep, QvpiRect srcRoi, const Qvp64f* pxMap, int xMapStep, const Qvp64f* pyMap, int yMapStep, Qvp64f* pDst, int dstStep, QvpiSize dstRoiSize, int interpolation);
/** @} */

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
 *  For the axes 45 and 135 the destination is H wide and W high. AC4 keeps the alpha of the destination, in place that
 *  of each pixel's place. With the first three axes the source may be the destination, with the same step: the call
 *  then works in place. Steps may be negative with the first three axes, and in place with all.
 *
 *  @param pSrc,srcStep source image
 *  @param pDst,dstStep destination image
 *  @param pSrcDst,srcDstStep the image, in place
 *  @param roiSize size of the source in pixels; in place for the axes 45 and 135 a square
 *  @param flip the axis
 *  @return, in the order of the checks, for the axes 45 and 135, not in place:
 *  - qvpStatusNullPointer: an image is null
 *  - qvpStatusStep: a step is below 1
 *  - qvpStatusSize: a side of the region is below 1
 *  - qvpStatusNotSupportedMode: the images overlap. Regions side by side in one frame do not
 *  - qvpStatusNoError: otherwise
 *
 *  For all others:
 *  - qvpStatusNullPointer: an image is null
 *  - qvpStatusSize: a side of the region is below 1, or the region is not a square where it has to be
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
 *  The source may be the destination, with the same step, where it is a square: the call then works in place. Steps may
 *  be negative.
 *
 *  @param pSrc,srcStep source image
 *  @param pDst,dstStep destination image, `roiSize.height` wide and `roiSize.width` high
 *  @param pSrcDst,srcDstStep the image, in place
 *  @param roiSize size of the source in pixels; in place a square
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: an image is null
 *  - qvpStatusSize: a side of the region is below 1, or the region is not a square in place
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

/** @name Turn by quarters
 *  @{ */
/** Turns an image of W x H pixels by quarters of a full turn, counter-clockwise on the screen, bits only. Photographs
 *  of cameras held sideways come upright in one pass.
 *
 *  @code
 *    turns modulo 4    destination
 *    0                 W x H   dst(x, y) = src(x, y)
 *    1                 H x W   dst(x, y) = src(W - 1 - y, x)            counter-clockwise
 *    2                 W x H   dst(x, y) = src(W - 1 - x, H - 1 - y)    upside down
 *    3                 H x W   dst(x, y) = src(y, H - 1 - x)            clockwise
 *  @endcode
 *
 *  One turn of {0 1 2; 3 4 5} gives {2 5; 1 4; 0 3}. Negative numbers turn clockwise: -1 is 3. AC4 keeps the alpha of
 *  the destination. With an even number of turns the source may be the destination, with the same step. Steps may be
 *  negative.
 *
 *  @param pSrc,srcStep source image
 *  @param pDst,dstStep destination image
 *  @param roiSize size of the source in pixels
 *  @param turns quarters of a turn: any number
 *  @return, in the order of the checks:
 *  - qvpStatusNullPointer: an image is null
 *  - qvpStatusSize: a side of the region is below 1
 *  - qvpStatusStep: a step is 0
 *  - qvpStatusNotSupportedMode: an odd number of turns, and the images overlap. Regions side by side in one frame do not
 *  - qvpStatusNoError: otherwise
 */
QvpStatus qvpiRotateQuarter_8u_C1R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, int turns);
QvpStatus qvpiRotateQuarter_8u_C3R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, int turns);
QvpStatus qvpiRotateQuarter_8u_C4R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, int turns);
QvpStatus qvpiRotateQuarter_8u_AC4R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize, int turns);
QvpStatus qvpiRotateQuarter_16u_C1R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, int turns);
QvpStatus qvpiRotateQuarter_16u_C3R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, int turns);
QvpStatus qvpiRotateQuarter_16u_C4R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, int turns);
QvpStatus qvpiRotateQuarter_16u_AC4R(const Qvp16u* pSrc, int srcStep, Qvp16u* pDst, int dstStep, QvpiSize roiSize, int turns);
QvpStatus qvpiRotateQuarter_16s_C1R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, int turns);
QvpStatus qvpiRotateQuarter_16s_C3R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, int turns);
QvpStatus qvpiRotateQuarter_16s_C4R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, int turns);
QvpStatus qvpiRotateQuarter_16s_AC4R(const Qvp16s* pSrc, int srcStep, Qvp16s* pDst, int dstStep, QvpiSize roiSize, int turns);
QvpStatus qvpiRotateQuarter_32f_C1R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, int turns);
QvpStatus qvpiRotateQuarter_32f_C3R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, int turns);
QvpStatus qvpiRotateQuarter_32f_C4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, int turns);
QvpStatus qvpiRotateQuarter_32f_AC4R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep, QvpiSize roiSize, int turns);
/** @} */

#ifdef __cplusplus
}
#endif

#endif
