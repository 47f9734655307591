// What WebAssembly has and Highway's vectors for it lack, under Highway's names and with its meanings: byte shuffles in
// registers, and doubles, as far as its functions are not written for every type already. Included by simd.h.
#pragma once

#include <hwy/highway.h>

#include <cstdint>

namespace hwy {
namespace HWY_NAMESPACE {

// Highway's own go through memory byte by byte. These are preferred to them, also by its other functions, because they
// are constrained. The instruction gives 0 for every index beyond the block.
template <class T>
concept Lane = sizeof(T) <= sizeof(uint64_t);
template <Lane T, size_t N, Lane TI, size_t NI>
HWY_API Vec128<TI, NI> TableLookupBytes(Vec128<T, N> bytes, Vec128<TI, NI> from) {
  return Vec128<TI, NI>{wasm_i8x16_swizzle(bytes.raw, from.raw)};
}
template <Lane T, size_t N, Lane TI, size_t NI>
HWY_API Vec128<TI, NI> TableLookupBytesOr0(Vec128<T, N> bytes, Vec128<TI, NI> from) {
  return TableLookupBytes(bytes, from);
}

template <size_t N, HWY_IF_LE128(double, N)>
HWY_API Vec128<double, N> Set(Simd<double, N, 0>, double value) {
  return Vec128<double, N>{wasm_f64x2_splat(value)};
}

#define QVP_DOUBLES_1(Name, instruction)                       \
  template <size_t N>                                          \
  HWY_API Vec128<double, N> Name(Vec128<double, N> v) {        \
    return Vec128<double, N>{wasm_f64x2_##instruction(v.raw)}; \
  }
#define QVP_DOUBLES_2(Name, Result, instruction)                             \
  template <size_t N>                                                        \
  HWY_API Result<double, N> Name(Vec128<double, N> a, Vec128<double, N> b) { \
    return Result<double, N>{wasm_f64x2_##instruction(a.raw, b.raw)};        \
  }
QVP_DOUBLES_1(Abs, abs)
QVP_DOUBLES_1(Sqrt, sqrt)
QVP_DOUBLES_1(Round, nearest)
QVP_DOUBLES_1(Trunc, trunc)
QVP_DOUBLES_1(Ceil, ceil)
QVP_DOUBLES_1(Floor, floor)
QVP_DOUBLES_2(operator+, Vec128, add)
QVP_DOUBLES_2(operator-, Vec128, sub)
QVP_DOUBLES_2(operator*, Vec128, mul)
QVP_DOUBLES_2(operator/, Vec128, div)
QVP_DOUBLES_2(Min, Vec128, min)
QVP_DOUBLES_2(Max, Vec128, max)
QVP_DOUBLES_2(operator==, Mask128, eq)
QVP_DOUBLES_2(operator!=, Mask128, ne)
QVP_DOUBLES_2(operator<, Mask128, lt)
QVP_DOUBLES_2(operator>, Mask128, gt)
QVP_DOUBLES_2(operator<=, Mask128, le)
QVP_DOUBLES_2(operator>=, Mask128, ge)
#undef QVP_DOUBLES_1
#undef QVP_DOUBLES_2

template <size_t N>
HWY_API double GetLane(Vec128<double, N> v) {
  return wasm_f64x2_extract_lane(v.raw, 0);
}
HWY_API double ExtractLane(Vec128<double, 1> v, size_t) { return GetLane(v); }
HWY_API double ExtractLane(Vec128<double, 2> v, size_t i) {
  return i == 0 ? GetLane(v) : wasm_f64x2_extract_lane(v.raw, 1);
}

template <size_t N, HWY_IF_LE128(double, N)>
HWY_API Vec128<double, N> PromoteTo(Simd<double, N, 0>, Vec128<float, N> v) {
  return Vec128<double, N>{wasm_f64x2_promote_low_f32x4(v.raw)};
}
template <size_t N>
HWY_API Vec128<float, N> DemoteTo(Simd<float, N, 0>, Vec128<double, N> v) {
  return Vec128<float, N>{wasm_f32x4_demote_f64x2_zero(v.raw)};
}

}  // namespace HWY_NAMESPACE
}  // namespace hwy
