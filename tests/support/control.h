// The control state of floating point: rounding, subnormals, traps; apart from that, the flags of what happened.
#pragma once

#include <cstdint>

#if defined(__x86_64__) || defined(__i386__)
#include <xmmintrin.h>
#endif

namespace test {

struct Control {
  uint64_t vectors = 0;
  uint16_t x87 = 0;
  bool operator==(const Control&) const = default;
};

#if defined(__x86_64__) || defined(__i386__)
inline Control GetControl() {
  Control control{_mm_getcsr() & 0xFFC0};
  __asm__ volatile("fnstcw %0" : "=m"(control.x87));
  return control;
}
inline void SetControl(const Control& control) { _mm_setcsr(static_cast<unsigned>(control.vectors)); }
inline Control TowardZeroWithoutSubnormals(const Control& usual) { return {usual.vectors | 0xE040, usual.x87}; }
inline void RaiseExceptionFlags() { _mm_setcsr(_mm_getcsr() | 0x3F); }
#elif defined(__aarch64__)
inline Control GetControl() {
  Control control;
  __asm__ volatile("mrs %0, fpcr" : "=r"(control.vectors));
  return control;
}
inline void SetControl(const Control& control) { __asm__ volatile("msr fpcr, %0" : : "r"(control.vectors)); }
inline Control TowardZeroWithoutSubnormals(const Control& usual) { return {usual.vectors | 7u << 22}; }
inline void RaiseExceptionFlags() { __asm__ volatile("msr fpsr, %0" : : "r"(uint64_t{0x9F})); }
#else  // no such state
inline Control GetControl() { return {}; }
inline void SetControl(const Control&) {}
inline Control TowardZeroWithoutSubnormals(const Control& usual) { return usual; }
inline void RaiseExceptionFlags() {}
#endif

}  // namespace test
