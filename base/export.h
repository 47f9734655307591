// Spelling of exported names: the signature shapes, each with a one-expression body, and the grids over types.
// Nothing here holds a loop, a check or a kernel.
#pragma once

#include "base/image.h"
#include "qvpi.h"

// One value for each channel, as parameters spell it: a number for one channel, a pointer for more.
#define QVP_VALUES_C1(type) Qvp##type
#define QVP_VALUES_C3(type) const Qvp##type*
#define QVP_VALUES_C4(type) const Qvp##type*
#define QVP_VALUES_AC4(type) const Qvp##type*

namespace qvp {
// The address of such values.
template <class T>
constexpr const T* Values(const T& value) {
  return &value;
}
template <class T>
constexpr const T* Values(const T* const& values) {
  return values;
}
}  // namespace qvp

// Signatures that end with a hint, and those that do not: its parameter, and the argument that is handed on.
#define QVP_PLAIN_PARAMETER
#define QVP_PLAIN_ARGUMENT
#define QVP_HINTED_PARAMETER , QvpHintAlgorithm hint
#define QVP_HINTED_ARGUMENT , hint

// GRID(..., layout) for the layouts of most functions that reduce an image.
#define QVP_C1_C3_C4(GRID, ...) \
  GRID(__VA_ARGS__, C1)         \
  GRID(__VA_ARGS__, C3)         \
  GRID(__VA_ARGS__, C4)

// GRID(..., layout) for the layouts of most element-wise functions.
#define QVP_EACH_LAYOUT(GRID, ...) \
  GRID(__VA_ARGS__, C1)            \
  GRID(__VA_ARGS__, C3)            \
  GRID(__VA_ARGS__, C4)            \
  GRID(__VA_ARGS__, AC4)

// GRID(type, ...) for each of the five types whose pixels are only moved.
#define QVP_EACH_MOVED_TYPE(GRID, ...) \
  GRID(8u __VA_OPT__(, ) __VA_ARGS__)  \
  GRID(16u __VA_OPT__(, ) __VA_ARGS__) \
  GRID(16s __VA_OPT__(, ) __VA_ARGS__) \
  GRID(32s __VA_OPT__(, ) __VA_ARGS__) \
  GRID(32f __VA_OPT__(, ) __VA_ARGS__)

// Source to destination, bits only: impl(source, destination, size).
#define QVP_MOVE(name, type, from, to, impl)                                                              \
  QvpStatus name(const Qvp##type* pSrc, int srcStep, Qvp##type* pDst, int dstStep, QvpiSize roiSize) {    \
    return impl(AsBytes(pSrc, srcStep, Layout::k##from), AsBytes(pDst, dstStep, Layout::k##to), roiSize); \
  }
#define QVP_MOVE_L(name, type, from, to, impl)                                                                    \
  QvpStatus name(const Qvp##type* pSrc, QvpSizeL srcStep, Qvp##type* pDst, QvpSizeL dstStep, QvpiSizeL roiSize) { \
    return impl(AsBytes(pSrc, srcStep, Layout::k##from), AsBytes(pDst, dstStep, Layout::k##to), roiSize);         \
  }

// The same under a mask: impl(source, destination, size, mask).
#define QVP_MASKED_MOVE(name, type, layout, impl)                                                              \
  QvpStatus name(const Qvp##type* pSrc, int srcStep, Qvp##type* pDst, int dstStep, QvpiSize roiSize,           \
                 const Qvp8u* pMask, int maskStep) {                                                           \
    return impl(AsBytes(pSrc, srcStep, Layout::k##layout), AsBytes(pDst, dstStep, Layout::k##layout), roiSize, \
                AsBytes(pMask, maskStep, Layout::kC1));                                                        \
  }

// A constant to a destination: impl(values, destination, size). `value` is one number for one channel, a pointer else.
#define QVP_FILL(name, type, layout, impl)                                          \
  QvpStatus name(Qvp##type value, Qvp##type* pDst, int dstStep, QvpiSize roiSize) { \
    return impl(&value, AsBytes(pDst, dstStep, Layout::k##layout), roiSize);        \
  }
#define QVP_FILL_L(name, type, layout, impl)                                              \
  QvpStatus name(Qvp##type value, Qvp##type* pDst, QvpSizeL dstStep, QvpiSizeL roiSize) { \
    return impl(&value, AsBytes(pDst, dstStep, Layout::k##layout), roiSize);              \
  }
#define QVP_FILL_CHANNELS(name, type, layout, impl)                                        \
  QvpStatus name(const Qvp##type* value, Qvp##type* pDst, int dstStep, QvpiSize roiSize) { \
    return impl(value, AsBytes(pDst, dstStep, Layout::k##layout), roiSize);                \
  }
#define QVP_FILL_CHANNELS_L(name, type, layout, impl)                                            \
  QvpStatus name(const Qvp##type* value, Qvp##type* pDst, QvpSizeL dstStep, QvpiSizeL roiSize) { \
    return impl(value, AsBytes(pDst, dstStep, Layout::k##layout), roiSize);                      \
  }

// The same under a mask: impl(values, destination, size, mask).
#define QVP_MASKED_FILL(name, type, layout, impl)                                                                     \
  QvpStatus name(Qvp##type value, Qvp##type* pDst, int dstStep, QvpiSize roiSize, const Qvp8u* pMask, int maskStep) { \
    return impl(&value, AsBytes(pDst, dstStep, Layout::k##layout), roiSize, AsBytes(pMask, maskStep, Layout::kC1));   \
  }
#define QVP_MASKED_FILL_CHANNELS(name, type, layout, impl)                                                         \
  QvpStatus name(const Qvp##type* value, Qvp##type* pDst, int dstStep, QvpiSize roiSize, const Qvp8u* pMask,       \
                 int maskStep) {                                                                                   \
    return impl(value, AsBytes(pDst, dstStep, Layout::k##layout), roiSize, AsBytes(pMask, maskStep, Layout::kC1)); \
  }

// Two images to a third, and in place, where the second one is the destination too:
// impl(first, second, destination, size[, scale factor]).
#define QVP_BINARY(name, type, layout, impl)                                                                           \
  QvpStatus name##_##type##_##layout##R(const Qvp##type* pSrc1, int src1Step, const Qvp##type* pSrc2, int src2Step,    \
                                        Qvp##type* pDst, int dstStep, QvpiSize roiSize) {                              \
    return impl(View(pSrc1, src1Step, Layout::k##layout), View(pSrc2, src2Step, Layout::k##layout),                    \
                View(pDst, dstStep, Layout::k##layout), roiSize);                                                      \
  }                                                                                                                    \
  QvpStatus name##_##type##_##layout##IR(const Qvp##type* pSrc, int srcStep, Qvp##type* pSrcDst, int srcDstStep,       \
                                         QvpiSize roiSize) {                                                           \
    return impl(View(pSrc, srcStep, Layout::k##layout), View<const Qvp##type>(pSrcDst, srcDstStep, Layout::k##layout), \
                View(pSrcDst, srcDstStep, Layout::k##layout), roiSize);                                                \
  }
#define QVP_BINARY_SFS(name, type, layout, impl)                                                                       \
  QvpStatus name##_##type##_##layout##RSfs(const Qvp##type* pSrc1, int src1Step, const Qvp##type* pSrc2, int src2Step, \
                                           Qvp##type* pDst, int dstStep, QvpiSize roiSize, int scaleFactor) {          \
    return impl(View(pSrc1, src1Step, Layout::k##layout), View(pSrc2, src2Step, Layout::k##layout),                    \
                View(pDst, dstStep, Layout::k##layout), roiSize, scaleFactor);                                         \
  }                                                                                                                    \
  QvpStatus name##_##type##_##layout##IRSfs(const Qvp##type* pSrc, int srcStep, Qvp##type* pSrcDst, int srcDstStep,    \
                                            QvpiSize roiSize, int scaleFactor) {                                       \
    return impl(View(pSrc, srcStep, Layout::k##layout), View<const Qvp##type>(pSrcDst, srcDstStep, Layout::k##layout), \
                View(pSrcDst, srcDstStep, Layout::k##layout), roiSize, scaleFactor);                                   \
  }

// The same with a rounding mode: impl(first, second, destination, size, mode, scale factor).
#define QVP_BINARY_ROUND_SFS(name, type, layout, impl)                                                                 \
  QvpStatus name##_##type##_##layout##RSfs(const Qvp##type* pSrc1, int src1Step, const Qvp##type* pSrc2, int src2Step, \
                                           Qvp##type* pDst, int dstStep, QvpiSize roiSize, QvpRoundMode roundMode,     \
                                           int scaleFactor) {                                                          \
    return impl(View(pSrc1, src1Step, Layout::k##layout), View(pSrc2, src2Step, Layout::k##layout),                    \
                View(pDst, dstStep, Layout::k##layout), roiSize, roundMode, scaleFactor);                              \
  }                                                                                                                    \
  QvpStatus name##_##type##_##layout##IRSfs(const Qvp##type* pSrc, int srcStep, Qvp##type* pSrcDst, int srcDstStep,    \
                                            QvpiSize roiSize, QvpRoundMode roundMode, int scaleFactor) {               \
    return impl(View(pSrc, srcStep, Layout::k##layout), View<const Qvp##type>(pSrcDst, srcDstStep, Layout::k##layout), \
                View(pSrcDst, srcDstStep, Layout::k##layout), roiSize, roundMode, scaleFactor);                        \
  }

// One image to another, and in place: impl(source, destination, size[, scale factor]).
#define QVP_UNARY(name, type, layout, impl)                                                               \
  QvpStatus name##_##type##_##layout##R(const Qvp##type* pSrc, int srcStep, Qvp##type* pDst, int dstStep, \
                                        QvpiSize roiSize) {                                               \
    return impl(View(pSrc, srcStep, Layout::k##layout), View(pDst, dstStep, Layout::k##layout), roiSize); \
  }                                                                                                       \
  QvpStatus name##_##type##_##layout##IR(Qvp##type* pSrcDst, int srcDstStep, QvpiSize roiSize) {          \
    return impl(View<const Qvp##type>(pSrcDst, srcDstStep, Layout::k##layout),                            \
                View(pSrcDst, srcDstStep, Layout::k##layout), roiSize);                                   \
  }
#define QVP_UNARY_SFS(name, type, layout, impl)                                                                        \
  QvpStatus name##_##type##_##layout##RSfs(const Qvp##type* pSrc, int srcStep, Qvp##type* pDst, int dstStep,           \
                                           QvpiSize roiSize, int scaleFactor) {                                        \
    return impl(View(pSrc, srcStep, Layout::k##layout), View(pDst, dstStep, Layout::k##layout), roiSize, scaleFactor); \
  }                                                                                                                    \
  QvpStatus name##_##type##_##layout##IRSfs(Qvp##type* pSrcDst, int srcDstStep, QvpiSize roiSize, int scaleFactor) {   \
    return impl(View<const Qvp##type>(pSrcDst, srcDstStep, Layout::k##layout),                                         \
                View(pSrcDst, srcDstStep, Layout::k##layout), roiSize, scaleFactor);                                   \
  }

// The same with a constant: impl(values, source, destination, size[, scale factor]).
#define QVP_CONSTANT(name, type, layout, impl)                                                                 \
  QvpStatus name##_##type##_##layout##R(const Qvp##type* pSrc, int srcStep, QVP_VALUES_##layout(type) value,   \
                                        Qvp##type* pDst, int dstStep, QvpiSize roiSize) {                      \
    return impl(Values(value), View(pSrc, srcStep, Layout::k##layout), View(pDst, dstStep, Layout::k##layout), \
                roiSize);                                                                                      \
  }                                                                                                            \
  QvpStatus name##_##type##_##layout##IR(QVP_VALUES_##layout(type) value, Qvp##type* pSrcDst, int srcDstStep,  \
                                         QvpiSize roiSize) {                                                   \
    return impl(Values(value), View<const Qvp##type>(pSrcDst, srcDstStep, Layout::k##layout),                  \
                View(pSrcDst, srcDstStep, Layout::k##layout), roiSize);                                        \
  }
#define QVP_CONSTANT_SFS(name, type, layout, impl)                                                               \
  QvpStatus name##_##type##_##layout##RSfs(const Qvp##type* pSrc, int srcStep, QVP_VALUES_##layout(type) value,  \
                                           Qvp##type* pDst, int dstStep, QvpiSize roiSize, int scaleFactor) {    \
    return impl(Values(value), View(pSrc, srcStep, Layout::k##layout), View(pDst, dstStep, Layout::k##layout),   \
                roiSize, scaleFactor);                                                                           \
  }                                                                                                              \
  QvpStatus name##_##type##_##layout##IRSfs(QVP_VALUES_##layout(type) value, Qvp##type* pSrcDst, int srcDstStep, \
                                            QvpiSize roiSize, int scaleFactor) {                                 \
    return impl(Values(value), View<const Qvp##type>(pSrcDst, srcDstStep, Layout::k##layout),                    \
                View(pSrcDst, srcDstStep, Layout::k##layout), roiSize, scaleFactor);                             \
  }

// A shape for the layouts C1, C3, C4 and AC4.
#define QVP_C1_C3_C4_AC4(SHAPE, name, type, impl) \
  SHAPE(name, type, C1, impl) SHAPE(name, type, C3, impl) SHAPE(name, type, C4, impl) SHAPE(name, type, AC4, impl)
