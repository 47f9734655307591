// Plain loops for what ten functions of the library do, compiled without vectors: what a program would have without it.
// Images are packed.
#pragma once

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

void PlainAdd(const uint8_t* a, const uint8_t* b, uint8_t* dst, int n);
void PlainConvert(const float* src, uint8_t* dst, int n);
void PlainFilter3x3(const uint8_t* src, uint8_t* dst, int width, int height, const int16_t kernel[9], int divisor);
void PlainResizeLinear(const uint8_t* src, int srcWidth, int srcHeight, uint8_t* dst, int width, int height);
void PlainResizeCubicC3(const uint8_t* src, int srcWidth, int srcHeight, uint8_t* dst, int width, int height);
// `inverse` gives the place in the source of a pixel of the destination.
void PlainAffineLinear(const uint8_t* src, uint8_t* dst, int width, int height, const double inverse[2][3]);
void PlainTranspose(const uint8_t* src, uint8_t* dst, int width, int height);
void PlainHistogram(const uint8_t* src, int n, uint32_t counts[256]);
double PlainNormL2(const uint8_t* src, int n);
// Of n rows of n complex numbers, n a power of two; `roots` has n / 2 powers of exp(-2 pi i / n).
void PlainFft2d(const float* src, float* dst, int n, const float* roots);

#ifdef __cplusplus
}
#endif
