// Spelling of exported names: the signature shapes, each with a one-expression body, and the grids over types.
// Nothing here holds a loop, a check or a kernel.
//
// There are a few general shapes. What further parameters a function has, and what is handed on of them, stands in
// parentheses, perhaps empty ones; the shapes of single operations are those with the parentheses filled in.
#pragma once

#include "base/image.h"
#include "qvpi.h"

// One value for each channel, as parameters spell it: a number for one channel, a pointer for more.
#define QVP_VALUES_C1(type) Qvp##type
#define QVP_VALUES_C3(type) const Qvp##type*
#define QVP_VALUES_C4(type) const Qvp##type*
#define QVP_VALUES_AC4(type) const Qvp##type*
#define QVP_VALUES_C3CR(type) Qvp##type
#define QVP_VALUES_C4CR(type) Qvp##type

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

// What is in a pair of parentheses, behind a comma if it is anything.
#define QVP_AND(...) __VA_OPT__(, ) __VA_ARGS__

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

// A shape for those layouts.
#define QVP_C1_C3_C4_AC4(SHAPE, name, type, impl) \
  SHAPE(name, type, C1, impl) SHAPE(name, type, C3, impl) SHAPE(name, type, C4, impl) SHAPE(name, type, AC4, impl)

// GRID(type, ...) for each of the five types whose pixels are only moved.
#define QVP_EACH_MOVED_TYPE(GRID, ...) \
  GRID(8u __VA_OPT__(, ) __VA_ARGS__)  \
  GRID(16u __VA_OPT__(, ) __VA_ARGS__) \
  GRID(16s __VA_OPT__(, ) __VA_ARGS__) \
  GRID(32s __VA_OPT__(, ) __VA_ARGS__) \
  GRID(32f __VA_OPT__(, ) __VA_ARGS__)

// ---- One image to another: impl(source, destination, size, arguments...). `view` is View, or AsBytes where only bits
// are moved; Int and Roi are int and QvpiSize, or their pointer-wide forms.
#define QVP_MAP(view, name, from, fromLayout, to, toLayout, Int, Roi, impl, parameters, arguments)                 \
  QvpStatus name(const Qvp##from* pSrc, Int srcStep, Qvp##to* pDst, Int dstStep, Roi roiSize QVP_AND parameters) { \
    return impl(view(pSrc, srcStep, Layout::k##fromLayout), view(pDst, dstStep, Layout::k##toLayout),              \
                roiSize QVP_AND arguments);                                                                        \
  }
#define QVP_MOVE(name, type, from, to, impl) QVP_MAP(AsBytes, name, type, from, type, to, int, QvpiSize, impl, (), ())
#define QVP_MOVE_L(name, type, from, to, impl) \
  QVP_MAP(AsBytes, name, type, from, type, to, QvpSizeL, QvpiSizeL, impl, (), ())
#define QVP_MASKED_MOVE(name, type, layout, impl)                                                             \
  QVP_MAP(AsBytes, name, type, layout, type, layout, int, QvpiSize, impl, (const Qvp8u* pMask, int maskStep), \
          (AsBytes(pMask, maskStep, Layout::kC1)))
#define QVP_CONVERT(name, from, to, layout, impl, parameters, arguments) \
  QVP_MAP(View, name, from, layout, to, layout, int, QvpiSize, impl, parameters, arguments)

// The same, and in place.
#define QVP_BOTH_PLACES(name, end, type, layout, impl, parameters, arguments)                    \
  QVP_CONVERT(name##_##type##_##layout##R##end, type, type, layout, impl, parameters, arguments) \
  QvpStatus name##_##type##_##layout##IR##end(Qvp##type* pSrcDst, int srcDstStep,                \
                                              QvpiSize roiSize QVP_AND parameters) {             \
    return impl(View<const Qvp##type>(pSrcDst, srcDstStep, Layout::k##layout),                   \
                View(pSrcDst, srcDstStep, Layout::k##layout), roiSize QVP_AND arguments);        \
  }
#define QVP_UNARY(name, type, layout, impl) QVP_BOTH_PLACES(name, , type, layout, impl, (), ())
#define QVP_UNARY_SFS(name, type, layout, impl) \
  QVP_BOTH_PLACES(name, Sfs, type, layout, impl, (int scaleFactor), (scaleFactor))

// ---- A constant, whose type may be another one, and an image: impl(values, source, destination, size, arguments...).
#define QVP_WITH_VALUES(name, of, type, to, layout, toLayout, impl, parameters, arguments)                       \
  QvpStatus name(const Qvp##type* pSrc, int srcStep, QVP_VALUES_##layout(of) value, Qvp##to* pDst, int dstStep,  \
                 QvpiSize roiSize QVP_AND parameters) {                                                          \
    return impl(Values(value), View(pSrc, srcStep, Layout::k##layout), View(pDst, dstStep, Layout::k##toLayout), \
                roiSize QVP_AND arguments);                                                                      \
  }
#define QVP_CONSTANT_FORM(name, end, of, type, layout, impl, parameters, arguments)                              \
  QVP_WITH_VALUES(name##_##type##_##layout##R##end, of, type, type, layout, layout, impl, parameters, arguments) \
  QvpStatus name##_##type##_##layout##IR##end(QVP_VALUES_##layout(of) value, Qvp##type* pSrcDst, int srcDstStep, \
                                              QvpiSize roiSize QVP_AND parameters) {                             \
    return impl(Values(value), View<const Qvp##type>(pSrcDst, srcDstStep, Layout::k##layout),                    \
                View(pSrcDst, srcDstStep, Layout::k##layout), roiSize QVP_AND arguments);                        \
  }
#define QVP_CONSTANT(name, type, layout, impl) QVP_CONSTANT_FORM(name, , type, type, layout, impl, (), ())
#define QVP_CONSTANT_SFS(name, type, layout, impl) \
  QVP_CONSTANT_FORM(name, Sfs, type, type, layout, impl, (int scaleFactor), (scaleFactor))
#define QVP_COUNT(name, type, layout, impl) QVP_CONSTANT_FORM(name, , 32u, type, layout, impl, (), ())

// ---- Two images to a third: impl(first, second, destination, size, arguments...).
#define QVP_TWO_TO_ONE(name, type, to, layout, toLayout, impl, parameters, arguments)                       \
  QvpStatus name(const Qvp##type* pSrc1, int src1Step, const Qvp##type* pSrc2, int src2Step, Qvp##to* pDst, \
                 int dstStep, QvpiSize roiSize QVP_AND parameters) {                                        \
    return impl(View(pSrc1, src1Step, Layout::k##layout), View(pSrc2, src2Step, Layout::k##layout),         \
                View(pDst, dstStep, Layout::k##toLayout), roiSize QVP_AND arguments);                       \
  }
// And in place, where the second one is the destination too.
#define QVP_BINARY_FORM(name, end, type, layout, impl, parameters, arguments)                                          \
  QVP_TWO_TO_ONE(name##_##type##_##layout##R##end, type, type, layout, layout, impl, parameters, arguments)            \
  QvpStatus name##_##type##_##layout##IR##end(const Qvp##type* pSrc, int srcStep, Qvp##type* pSrcDst, int srcDstStep,  \
                                              QvpiSize roiSize QVP_AND parameters) {                                   \
    return impl(View(pSrc, srcStep, Layout::k##layout), View<const Qvp##type>(pSrcDst, srcDstStep, Layout::k##layout), \
                View(pSrcDst, srcDstStep, Layout::k##layout), roiSize QVP_AND arguments);                              \
  }
#define QVP_BINARY(name, type, layout, impl) QVP_BINARY_FORM(name, , type, layout, impl, (), ())
#define QVP_BINARY_SFS(name, type, layout, impl) \
  QVP_BINARY_FORM(name, Sfs, type, layout, impl, (int scaleFactor), (scaleFactor))
#define QVP_BINARY_ROUND_SFS(name, type, layout, impl) \
  QVP_BINARY_FORM(name, Sfs, type, layout, impl, (QvpRoundMode roundMode, int scaleFactor), (roundMode, scaleFactor))

// ---- A constant to a destination, bits only: impl(values, destination, size, arguments...).
#define QVP_FILL_FORM(name, type, layout, Int, Roi, impl, parameters, arguments)                                  \
  QvpStatus name(QVP_VALUES_##layout(type) value, Qvp##type* pDst, Int dstStep, Roi roiSize QVP_AND parameters) { \
    return impl(Values(value), AsBytes(pDst, dstStep, Layout::k##layout), roiSize QVP_AND arguments);             \
  }
#define QVP_FILL(name, type, layout, impl) QVP_FILL_FORM(name, type, layout, int, QvpiSize, impl, (), ())
#define QVP_FILL_L(name, type, layout, impl) QVP_FILL_FORM(name, type, layout, QvpSizeL, QvpiSizeL, impl, (), ())
#define QVP_MASKED_FILL(name, type, layout, impl)                                            \
  QVP_FILL_FORM(name, type, layout, int, QvpiSize, impl, (const Qvp8u* pMask, int maskStep), \
                (AsBytes(pMask, maskStep, Layout::kC1)))

// ---- An image, or two, to numbers: impl(source..., size, arguments...).
#define QVP_REDUCE(name, type, layout, impl, parameters, arguments)                                                \
  QvpStatus name##_##type##_##layout##R(const Qvp##type* pSrc, int srcStep, QvpiSize roiSize QVP_AND parameters) { \
    return impl(View(pSrc, srcStep, Layout::k##layout), roiSize QVP_AND arguments);                                \
  }
#define QVP_TWO_TO_NUMBERS(name, type, layout, impl, parameters, arguments)                         \
  QvpStatus name(const Qvp##type* pSrc1, int src1Step, const Qvp##type* pSrc2, int src2Step,        \
                 QvpiSize roiSize QVP_AND parameters) {                                             \
    return impl(View(pSrc1, src1Step, Layout::k##layout), View(pSrc2, src2Step, Layout::k##layout), \
                roiSize QVP_AND arguments);                                                         \
  }
#define QVP_REDUCE_TWO(name, type, layout, impl, parameters, arguments) \
  QVP_TWO_TO_NUMBERS(name##_##type##_##layout##R, type, layout, impl, parameters, arguments)

// What a function of floats that takes a hint has more than those of integers.
#define QVP_PLAIN_PARAMETER
#define QVP_PLAIN_ARGUMENT
#define QVP_HINTED_PARAMETER , QvpHintAlgorithm hint
#define QVP_HINTED_ARGUMENT , hint
