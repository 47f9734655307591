/** @file qvptypes.h
 *  Types, status codes and selectors shared by every function of qvpIP.
 */
#ifndef QVPTYPES_H
#define QVPTYPES_H

#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/** @name Version of these headers
 *  The version of the interface is that of the shared library's name and of the packages: a program runs with any
 *  library of the same major version whose minor version is not lower. The release says when the functions were last
 *  revised; qvpiGetLibVersion() tells it of the library that was loaded.
 *  @{ */
#define QVP_VERSION_MAJOR 10    /**< interface: changes when programs have to be compiled anew */
#define QVP_VERSION_MINOR 0     /**< interface: rises when functions are added */
#define QVP_VERSION "10.0"      /**< interface, as text */
#define QVP_RELEASE_MAJOR 2021  /**< release: its year */
#define QVP_RELEASE_MINOR 11    /**< release: its number in the year */
#define QVP_RELEASE_UPDATE 0    /**< release: the number of the update */
#define QVP_RELEASE "2021.11.0" /**< release, as text */
/** @} */

/** @name Pixel and value types
 *  @{ */
typedef uint8_t Qvp8u;   /**< unsigned 8-bit integer */
typedef int8_t Qvp8s;    /**< signed 8-bit integer */
typedef uint16_t Qvp16u; /**< unsigned 16-bit integer */
typedef int16_t Qvp16s;  /**< signed 16-bit integer */
typedef uint32_t Qvp32u; /**< unsigned 32-bit integer */
typedef int32_t Qvp32s;  /**< signed 32-bit integer */
typedef float Qvp32f;    /**< IEEE 754 single precision */
typedef double Qvp64f;   /**< IEEE 754 double precision */

/** Complex value of two single-precision parts. */
typedef struct {
    Qvp32f re; /**< real part */
    Qvp32f im; /**< imaginary part */
} Qvp32fc;

/** Complex value of two 32-bit integer parts. */
typedef struct {
    Qvp32s re; /**< real part */
    Qvp32s im; /**< imaginary part */
} Qvp32sc;
/** @} */

/** @name Geometry
 *  Sizes and positions count pixels. Row steps, which stand beside every image pointer, count bytes from the start of
 *  one row to the start of the next.
 *  @{ */

/** A length, position or step of the `_L` forms: as wide as a pointer. */
typedef ptrdiff_t QvpSizeL;

/** Size of a region of interest. */
typedef struct {
    int width;  /**< pixels in a row */
    int height; /**< rows */
} QvpiSize;

/** A pixel position. */
typedef struct {
    int x; /**< column, from the left */
    int y; /**< row, from the top */
} QvpiPoint;

/** A rectangle of pixels. */
typedef struct {
    int x;      /**< leftmost column */
    int y;      /**< topmost row */
    int width;  /**< columns */
    int height; /**< rows */
} QvpiRect;

/** Size of a volume. */
typedef struct {
    int width;  /**< voxels in a row */
    int height; /**< rows in a plane */
    int depth;  /**< planes */
} QvprVolume;

/** A voxel position. */
typedef struct {
    int x; /**< column, from the left */
    int y; /**< row, from the top */
    int z; /**< plane, from the front */
} QvprPoint;

/** A cuboid of voxels. */
typedef struct {
    int x;      /**< leftmost column */
    int y;      /**< topmost row */
    int z;      /**< foremost plane */
    int width;  /**< columns */
    int height; /**< rows */
    int depth;  /**< planes */
} QvprCuboid;

/** Size of a region of interest of the `_L` forms. */
typedef struct {
    QvpSizeL width;  /**< pixels in a row */
    QvpSizeL height; /**< rows */
} QvpiSizeL;

/** A pixel position of the `_L` forms. */
typedef struct {
    QvpSizeL x; /**< column, from the left */
    QvpSizeL y; /**< row, from the top */
} QvpiPointL;

/** A rectangle of pixels of the `_L` forms. */
typedef struct {
    QvpSizeL x;      /**< leftmost column */
    QvpSizeL y;      /**< topmost row */
    QvpSizeL width;  /**< columns */
    QvpSizeL height; /**< rows */
} QvpiRectL;

/** Widths of the four borders of a region, in pixels. */
typedef struct {
    Qvp32u left;   /**< columns before the region */
    Qvp32u top;    /**< rows above the region */
    Qvp32u right;  /**< columns after the region */
    Qvp32u bottom; /**< rows below the region */
} QvpiBorderSize;
/** @} */

/** @name Selectors
 *  Plain 32-bit integers: a value that is none of the constants reaches a function's checks unharmed.
 *  @{ */

/** Pixel type, for functions that serve several. */
typedef int QvpDataType;
enum {
    qvp8u = 1,   /**< Qvp8u */
    qvp16u = 5,  /**< Qvp16u */
    qvp16s = 7,  /**< Qvp16s */
    qvp32f = 13, /**< Qvp32f */
    qvp64f = 19, /**< Qvp64f */
};

/** Rounding of results that fall between two integers. */
typedef int QvpRoundMode;
enum {
    qvpRoundZero = 0,      /**< toward zero */
    qvpRoundNear = 1,      /**< to the nearest, ties to even */
    qvpRoundFinancial = 2, /**< to the nearest, ties away from zero */
};

/** Speed or accuracy first. Every value but qvpAlgHintAccurate means the fast way. */
typedef int QvpHintAlgorithm;
enum {
    qvpAlgHintFast = 1,     /**< the fast kernel */
    qvpAlgHintAccurate = 2, /**< double-precision accumulation, or the accurate kernel */
};

/** What a look-up makes of values between two levels. */
typedef int QvpiLookupMethod;
enum {
    qvpLookupStep = 0,   /**< the value at the level below */
    qvpLookupLinear = 1, /**< a line */
    qvpLookupCubic = 2,  /**< a cubic with equal slopes on both sides of a level, which does not overshoot */
};

/** Operator of a composite of two layers: which part of each is in the result.
 *
 *  After Porter and Duff, "Compositing Digital Images", 1984. With alphas a of the first and b of the second layer and M
 *  for 1, the result is F1 first + F2 second, with the factors (F1, F2).
 */
typedef int QvpiCompositeOp;
enum {
    qvpCompositeClear = 0,      /**< (0, 0): nothing */
    qvpCompositeFirst = 1,      /**< (M, 0): the first layer */
    qvpCompositeSecond = 2,     /**< (0, M): the second layer */
    qvpCompositeFirstOver = 3,  /**< (M, M - a): the first layer over the second */
    qvpCompositeSecondOver = 4, /**< (M - b, M): the second layer over the first */
    qvpCompositeFirstIn = 5,    /**< (b, 0): the first layer where the second one is */
    qvpCompositeSecondIn = 6,   /**< (0, a): the second layer where the first one is */
    qvpCompositeFirstOut = 7,   /**< (M - b, 0): the first layer where the second one is not */
    qvpCompositeSecondOut = 8,  /**< (0, M - a): the second layer where the first one is not */
    qvpCompositeFirstAtop = 9,  /**< (b, M - a): the first layer over the second, as far as that reaches */
    qvpCompositeSecondAtop = 10, /**< (M - b, a): the second layer over the first, as far as that reaches */
    qvpCompositeXor = 11,       /**< (M - b, M - a): each layer where the other one is not */
};

/** Relation that two values are tested for. */
typedef int QvpCmpOp;
enum {
    qvpCmpLess = 0,      /**< less than */
    qvpCmpLessEq = 1,    /**< less than or equal */
    qvpCmpEq = 2,        /**< equal */
    qvpCmpGreaterEq = 3, /**< greater than or equal */
    qvpCmpGreater = 4,   /**< greater than */
};

/** How the sums of products of two images are computed. */
typedef int QvpiMethod;
enum {
    qvpMethodAuto = 0,    /**< the way that is expected to be faster; each function tells its rule */
    qvpMethodDirect = 1,  /**< product by product */
    qvpMethodFourier = 2, /**< by Fourier transforms, whose time hardly depends on the smaller image */
};

/** Which windows of an image a template is compared with, and so how large the result is; see
 *  qvpiMatchCorrelation_8u32f_C1R(). */
typedef int QvpiMatchShape;
enum {
    qvpMatchValid = 0, /**< those that lie inside the image */
    qvpMatchSame = 1,  /**< one around each pixel */
    qvpMatchFull = 2,  /**< all that have a pixel of the image */
};

/** What is done to the sums that compare a window with a template; see qvpiMatchCorrelation_8u32f_C1R(). */
typedef int QvpiMatchNorm;
enum {
    qvpMatchPlain = 0,       /**< nothing */
    qvpMatchNormed = 1,      /**< divided by the lengths of both: brightness times a number makes no difference */
    qvpMatchCentred = 2,     /**< of the differences from the means: brightness plus a number makes no difference */
    qvpMatchCoefficient = 3, /**< both: the coefficient of correlation */
};

/** How a window fades towards the edges; see qvpiApplyWindow(). */
typedef int QvpiWindow;
enum {
    qvpWindowBartlett = 0,    /**< linear */
    qvpWindowHann = 1,        /**< a raised cosine */
    qvpWindowHamming = 2,     /**< a raised cosine that ends above 0 */
    qvpWindowBlackman = 3,    /**< of two cosines, narrower */
    qvpWindowPeriodic = 0x10, /**< a flag: without the last place, where the first one comes again */
};

/** Banks of wavelet filters that are known by name; see qvpiWaveletGetBank_32f(). */
typedef int QvpiWaveletKind;
enum {
    qvpWaveletHaar = 0,        /**< orthogonal, 2 taps */
    qvpWaveletDaubechies4 = 1, /**< orthogonal, 4 taps (Daubechies 1988) */
    qvpWaveletDaubechies6 = 2, /**< orthogonal, 6 taps */
    qvpWaveletDaubechies8 = 3, /**< orthogonal, 8 taps */
    qvpWaveletCdf53 = 4,       /**< symmetric, 5 and 3 taps (Le Gall, Tabatabai 1988) */
    qvpWaveletCdf97 = 5,       /**< symmetric, 9 and 7 taps (Cohen, Daubechies, Feauveau 1992) */
};

/** How the derivatives of a gradient make one magnitude, or the differences of colours one distance. */
typedef int QvpNormType;
enum {
    qvpNormL1 = 1,  /**< sum of magnitudes: |x| + |y| */
    qvpNormL2 = 2,  /**< root of the sum of squares: sqrt(x * x + y * y) */
    qvpNormInf = 3, /**< largest magnitude */
};

/** What an operation finds outside a region: a kind, combined with the sides that are in memory.
 *
 *  A side that is in memory is read where it lies, at negative offsets from the pointer or beyond the region, as far as
 *  the operation reaches. The kind then applies outside of the region so enlarged. qvpBorderInMem stands without a kind
 *  too. Each function lists the kinds that it takes; all other values give qvpStatusBorder. */
typedef int QvpiBorderType;
enum {
    qvpBorderReplicate = 1,      /**< the nearest edge pixel */
    qvpBorderMirror = 3,         /**< reflection at the edge pixel, which is not repeated: -1 takes 1, -2 takes 2 */
    qvpBorderReplicateAlt = 4,   /**< qvpBorderReplicate in other words, for resizing and 3x3 fixed kernels */
    qvpBorderConst = 6,          /**< a value that the caller gives */
    qvpBorderTransparent = 7,    /**< warps only: destination pixels that fall outside keep their value */
    qvpBorderWrap = 8,           /**< wavelets and deconvolution only: the image repeats; -1 takes the last pixel */
    qvpBorderInMemTop = 0x10,    /**< the rows above the region are in memory */
    qvpBorderInMemBottom = 0x20, /**< the rows below the region are in memory */
    qvpBorderInMemLeft = 0x40,   /**< the columns left of the region are in memory */
    qvpBorderInMemRight = 0x80,  /**< the columns right of the region are in memory */
    qvpBorderInMem = 0xF0,       /**< all four sides are in memory */
    qvpBorderInMemFront = 0x1000,  /**< volumes: the planes in front of the region are in memory */
    qvpBorderInMemBack = 0x2000,   /**< volumes: the planes behind the region are in memory */
    qvpBorderInMemVolume = 0x30F0, /**< volumes: all six faces are in memory */
};

/** Interpolation between pixels. */
typedef int QvpiInterpolationType;
enum {
    qvpInterpolationNearest = 1,          /**< the nearest pixel */
    qvpInterpolationLinear = 2,           /**< 2x2 pixels, weighted linearly */
    qvpInterpolationCubicClassic = 4,     /**< 4x4 pixels, cubic with B = 0, C = 0.75; remap only */
    qvpInterpolationCubic = 6,            /**< 4x4 pixels, cubic with two parameters */
    qvpInterpolationSuper = 8,            /**< average over the area of a destination pixel */
    qvpInterpolationLanczos = 16,         /**< windowed sinc of 2 or 3 lobes */
    qvpSmoothEdge = (-2147483647 - 1),    /**< flag: blends pixels at the image's edge with the destination */
};

/** Which way the coefficients of a warp map. */
typedef int QvpiWarpDirection;
enum {
    qvpWarpForward = 0,  /**< from source to destination */
    qvpWarpBackward = 1, /**< from destination to source */
};

/** The axis that an image is mirrored about. */
typedef int QvpiAxis;
enum {
    qvpAxisHorizontal = 0, /**< rows change places */
    qvpAxisVertical = 1,   /**< columns change places */
    qvpAxisBoth = 2,       /**< both: a half turn */
    qvpAxis45 = 3,         /**< rows become columns */
    qvpAxis135 = 4,        /**< rows become columns, and both change places */
};

/** Where chroma samples of a video frame lie, seen from the luma samples. */
typedef int QvpiChromaSite;
enum {
    qvpChromaCentre = 0,  /**< between the luma samples on both axes: JPEG, MPEG-1 */
    qvpChromaLeft = 1,    /**< in even luma columns, between the rows: most video */
    qvpChromaTopLeft = 2, /**< in even luma columns and, where rows are halved, even rows: UHD */
};

/** The order of luma and chroma in packed 4:2:2 pixels. */
typedef int QvpiLumaPlace;
enum {
    qvpLumaFirst = 0,  /**< Y U Y V */
    qvpLumaSecond = 1, /**< U Y V Y */
};

/** How many samples of each axis a decimation leaves. */
typedef int QvpiDecimateFraction;
enum {
    qvpDecimate1of2 = 0x12, /**< half */
    qvpDecimate1of3 = 0x13, /**< a third */
    qvpDecimate1of4 = 0x14, /**< a quarter */
    qvpDecimate1of8 = 0x18, /**< an eighth */
    qvpDecimate2of3 = 0x23, /**< two thirds */
    qvpDecimate3of4 = 0x34, /**< three quarters */
    qvpDecimate3of8 = 0x38, /**< three eighths */
};

/** What is stored of a local binary pattern; see qvpiFilterLBPBorder_8u_C1R(). */
typedef int QvpiLBPMode;
enum {
    qvpLBPCode = 0,            /**< the code */
    qvpLBPRotation = 1,        /**< the least of its rotations */
    qvpLBPUniform = 2,         /**< a label for codes with at most two changes */
    qvpLBPUniformRotation = 3, /**< of such codes the number of ones */
};
/** @} */

/** Configuration of the histogram of oriented gradients; see qvpiHOGGetSize(). */
typedef struct {
    int cvCompatible; /**< order of blocks and cells: 0 by rows, else by columns */
    int cellSize;     /**< side of a cell in pixels */
    int blockSize;    /**< side of a block in pixels */
    int blockStride;  /**< pixels from block to block */
    int nbins;        /**< orientations over half a turn */
    Qvp32f sigma;     /**< standard deviation of the weights in a block, in pixels */
    Qvp32f l2thresh;  /**< bound of the values of a block */
    QvpiSize winSize; /**< the window in pixels */
} QvpiHOGConfig;

/** A filter of a wavelet transform. */
typedef struct {
    const Qvp32f* pTaps; /**< the taps */
    int length;          /**< how many, 1 to 64 */
    int anchor;          /**< which of them meets the result's own place, 0 to length - 1 */
} QvpiWaveletFilter;

/** The filters of a wavelet transform; see qvpiWaveletFwd_32f_C1R(). */
typedef struct {
    QvpiWaveletFilter analysisLow;   /**< makes the lower band */
    QvpiWaveletFilter analysisHigh;  /**< makes the higher band */
    QvpiWaveletFilter synthesisLow;  /**< what the lower band adds to the image */
    QvpiWaveletFilter synthesisHigh; /**< what the higher band adds to it */
} QvpiWaveletBank;

/** @name Records
 *  Opaque: in memory of the caller, of the size that a query tells, filled by an Init function, read by any number of
 *  threads. Unless its family says that it may be moved, a record is valid where its Init made it, and not as a copy.
 *  An Init that returns a negative status leaves no record: every function refuses it.
 *  @{ */
typedef struct QvpiFilterBorderSpec QvpiFilterBorderSpec; /**< general filter */
typedef struct QvpiFilterMorphologyBorderSpec QvpiFilterMorphologyBorderSpec; /**< erosion and dilation */
typedef struct QvpiFilterSeparableBorderSpec QvpiFilterSeparableBorderSpec; /**< separable filter */
typedef struct QvpiFilterGaussBorderSpec QvpiFilterGaussBorderSpec; /**< Gauss filter */
typedef struct QvpiFilterBilateralBorderSpec QvpiFilterBilateralBorderSpec; /**< bilateral filter */
typedef struct QvpiFilterLeastSquaresSpec QvpiFilterLeastSquaresSpec; /**< iterative least-squares filter */
typedef struct QvpiResizeSpec QvpiResizeSpec;             /**< resize */
typedef struct QvpiResizeChromaSpec QvpiResizeChromaSpec; /**< resize of chroma-subsampled frames */
typedef struct QvpiWarpSpec QvpiWarpSpec;                 /**< warps */
typedef struct QvprResizeSpec QvprResizeSpec;             /**< resize of volumes */
typedef struct QvpiHistogramSpec QvpiHistogramSpec;       /**< histogram */
typedef struct QvpiLookupSpec QvpiLookupSpec;             /**< look-up through levels */
typedef struct QvpiMomentState_64f QvpiMomentState_64f;   /**< moments */
typedef struct QvpiFFTSpec_R_32f QvpiFFTSpec_R_32f;       /**< Fourier transform of real images, powers of two */
typedef struct QvpiFFTSpec_C_32fc QvpiFFTSpec_C_32fc;     /**< Fourier transform of complex images, powers of two */
typedef struct QvpiDFTSpec_R_32f QvpiDFTSpec_R_32f;       /**< Fourier transform of real images, any size */
typedef struct QvpiDCTSpec_32f QvpiDCTSpec_32f;           /**< cosine transform of images */
typedef struct QvpiDFTSpec_C_32fc QvpiDFTSpec_C_32fc;     /**< Fourier transform of complex images, any size */
typedef struct QvpiWaveletSpec_32f QvpiWaveletSpec_32f;   /**< wavelet transform */
typedef struct QvpiDeconvolveSpec_32f QvpiDeconvolveSpec_32f; /**< deconvolution */
typedef struct QvprWarpSpec QvprWarpSpec;                 /**< warps of volumes */
typedef struct QvpiHOGSpec QvpiHOGSpec;                   /**< histogram of oriented gradients */
typedef struct QvpiNoiseSpec QvpiNoiseSpec;               /**< noise */
typedef struct QvprFilterBorderSpec QvprFilterBorderSpec; /**< general filter of volumes */
/** @} */

/** @name Status codes
 *  @{ */

/** Result of every function: 0 for success, negative for an error, positive for a warning.
 *
 *  A call that fails its argument checks writes nothing, but an Init function makes a record invalid. After a warning
 *  the work was done, unless the warning says that nothing was written. qvpGetStatusString() in
 *  qvpcore.h turns a value into its name and a sentence. */
typedef int QvpStatus;
enum {
    qvpStatusNoError = 0,                   /**< success */
    qvpStatusNoOperation = 1,               /**< warning: nothing to do, nothing written */
    qvpStatusDivideByZero = 2,              /**< warning: an element-wise division met a zero divisor */
    qvpStatusNoIntersection = 29,           /**< warning: the source region has no pixels, nothing written */
    qvpStatusAntialiasIgnored = 46,         /**< warning: antialiasing asked for where it has no effect */
    qvpStatusSizeWarning = 48,              /**< warning: a size condition that the call tolerated */
    qvpStatusAccurateModeNotSupported = 52, /**< warning: the accuracy flag has no effect here */
    qvpStatusBadArgument = -5,              /**< a parameter outside its domain */
    qvpStatusSize = -6,                     /**< a width or height below 1, or a size that is not supported */
    qvpStatusRange = -7,                    /**< a lower bound above the upper bound */
    qvpStatusNullPointer = -8,              /**< a required pointer is null */
    qvpStatusMemoryAllocation = -9,         /**< an allocation failed, or a work buffer is missing */
    qvpStatusDivideByZeroError = -10,       /**< division by a constant that is zero */
    qvpStatusOutOfRange = -11,              /**< a point, offset or bit count outside its range */
    qvpStatusScaleRange = -12,              /**< the upper value of a range is not above the lower */
    qvpStatusContextMatch = -13,            /**< a record that was not made for this function */
    qvpStatusNotSupportedMode = -14,        /**< a mode or combination that is not implemented */
    qvpStatusStep = -16,                    /**< a row step below 1, too short, or not a multiple of the element */
    qvpStatusFftOrder = -17,                /**< a transform order beyond what is supported */
    qvpStatusFftFlag = -18,                 /**< a normalisation flag other than 1, 2, 4 or 8 */
    qvpStatusThreshold = -19,               /**< the lower threshold exceeds the upper */
    qvpStatusMoment00Zero = -21,            /**< the zero-order moment is zero */
    qvpStatusMirrorFlip = -22,              /**< unknown mirror axis */
    qvpStatusInterpolation = -23,           /**< an interpolation kind that is not supported */
    qvpStatusResizeFactor = -24,            /**< a resize factor not above zero */
    qvpStatusMaskSize = -33,                /**< a mask size that is not supported */
    qvpStatusAnchor = -34,                  /**< an anchor outside the mask */
    qvpStatusEps = -36,                     /**< a negative tolerance */
    qvpStatusStride = -37,                  /**< a row step shorter than the values that are read */
    qvpStatusChannel = -47,                 /**< a channel count outside 1 to 4, or not allowed for the type */
    qvpStatusAlphaType = -50,               /**< an unknown alpha-compositing operation */
    qvpStatusDivisor = -51,                 /**< an integer divisor of zero */
    qvpStatusNumChannels = -53,             /**< a channel count that is not supported */
    qvpStatusCoefficient = -56,             /**< degenerate transform coefficients */
    qvpStatusRect = -57,                    /**< a rectangle with a side below one pixel */
    qvpStatusQuad = -58,                    /**< a quadrangle that is degenerate or not convex */
    qvpStatusDataType = -59,                /**< a pixel type that is not supported */
    qvpStatusChannelOrder = -60,            /**< a channel-order entry outside the channel count */
    qvpStatusLutLevels = -106,              /**< a look-up table with fewer than 2 levels */
    qvpStatusHistoLevels = -107,            /**< a histogram with fewer than 2 levels */
    qvpStatusNotEvenStep = -108,            /**< a step that is not a multiple of 4 bytes where it must be */
    qvpStatusNoiseRange = -125,             /**< a noise level outside 0 (inclusive) to 1 (exclusive) */
    qvpStatusQualityIndex = -210,           /**< the denominator of the quality index is zero */
    qvpStatusWeight = -211,                 /**< a median weight below 1 */
    qvpStatusDecimateFraction = -212,       /**< a decimation fraction that is not supported */
    qvpStatusRoundMode = -213,              /**< an unknown rounding mode */
    qvpStatusBorder = -225,                 /**< a border type that is not supported */
    qvpStatusMisalignedOffset = -227,       /**< an odd offset where chroma subsampling needs even ones */
    qvpStatusAlgType = -228,                /**< an algorithm selector that is not supported */
    qvpStatusWarpDirection = -231,          /**< a transform direction other than forward or backward */
    qvpStatusSizeOverflow = -232,           /**< a size beyond what can be represented */
};
/** @} */

/** Version record of a build. */
typedef struct {
    int major;             /**< year of the release, QVP_RELEASE_MAJOR */
    int minor;             /**< number of the release in its year, QVP_RELEASE_MINOR */
    int majorBuild;        /**< number of the update, QVP_RELEASE_UPDATE */
    int build;             /**< revision */
    char targetCpu[4];     /**< CPU code, "g9", "v2", "v3", "v4", "n8" or "w1", filled up with zeros */
    const char *Name;      /**< name of the library and its instruction set */
    const char *Version;   /**< all of the numbers as text */
    const char *BuildDate; /**< date of the release */
} QvpLibraryVersion;

#ifdef __cplusplus
}
#endif

#endif
