#include "bench/wasm/plain.h"

#include <math.h>
#include <stdlib.h>
#include <string.h>

static int Clamped(int x, int low, int high) { return x < low ? low : x > high ? high : x; }

void PlainAdd(const uint8_t* a, const uint8_t* b, uint8_t* dst, int n) {
  for (int i = 0; i < n; ++i) {
    const int sum = a[i] + b[i];
    dst[i] = (uint8_t)(sum > 255 ? 255 : sum);
  }
}

void PlainConvert(const float* src, uint8_t* dst, int n) {
  for (int i = 0; i < n; ++i) {
    const float x = src[i];
    dst[i] = (uint8_t)(x > 0 ? x < 255 ? rintf(x) : 255 : 0);
  }
}

// The outermost pixels are left out: in them are the borders.
void PlainFilter3x3(const uint8_t* src, uint8_t* dst, int width, int height, const int16_t kernel[9], int divisor) {
  for (int y = 1; y + 1 < height; ++y) {
    for (int x = 1; x + 1 < width; ++x) {
      const uint8_t* p = src + (y - 1) * width + x - 1;
      const int sum = p[0] * kernel[8] + p[1] * kernel[7] + p[2] * kernel[6] + p[width] * kernel[5] +
                      p[width + 1] * kernel[4] + p[width + 2] * kernel[3] + p[2 * width] * kernel[2] +
                      p[2 * width + 1] * kernel[1] + p[2 * width + 2] * kernel[0];
      dst[y * width + x] = (uint8_t)Clamped((sum + divisor / 2) / divisor, 0, 255);
    }
  }
}

void PlainResizeLinear(const uint8_t* src, int srcWidth, int srcHeight, uint8_t* dst, int width, int height) {
  int* const places = malloc(2 * sizeof(int) * (size_t)width);  // column, and weight of the next one in 1/2048
  for (int x = 0; x < width; ++x) {
    const float at = fmaxf(((float)x + 0.5f) * (float)srcWidth / (float)width - 0.5f, 0);
    places[2 * x] = Clamped((int)at, 0, srcWidth - 2);
    places[2 * x + 1] = (int)((at - (float)places[2 * x]) * 2048);
  }
  for (int y = 0; y < height; ++y) {
    const float at = fmaxf(((float)y + 0.5f) * (float)srcHeight / (float)height - 0.5f, 0);
    const int row = Clamped((int)at, 0, srcHeight - 2), weight = (int)((at - (float)row) * 2048);
    const uint8_t *upper = src + row * srcWidth, *lower = upper + srcWidth;
    for (int x = 0; x < width; ++x) {
      const int i = places[2 * x], w = places[2 * x + 1];
      const int above = upper[i] * (2048 - w) + upper[i + 1] * w, below = lower[i] * (2048 - w) + lower[i + 1] * w;
      dst[y * width + x] = (uint8_t)(((int64_t)above * (2048 - weight) + (int64_t)below * weight + (1 << 21)) >> 22);
    }
  }
  free(places);
}

static void CubicWeights(float t, float weights[4]) {  // Catmull and Rom's
  weights[0] = ((-0.5f * t + 1) * t - 0.5f) * t;
  weights[1] = (1.5f * t - 2.5f) * t * t + 1;
  weights[2] = ((-1.5f * t + 2) * t + 0.5f) * t;
  weights[3] = (0.5f * t - 0.5f) * t * t;
}

// Rows first, each source row once, then columns.
void PlainResizeCubicC3(const uint8_t* src, int srcWidth, int srcHeight, uint8_t* dst, int width, int height) {
  const size_t samples = 3 * (size_t)width;
  float* const rows = malloc(samples * (size_t)srcHeight * sizeof(float));
  for (int x = 0; x < width; ++x) {
    const float at = ((float)x + 0.5f) * (float)srcWidth / (float)width - 0.5f;
    const int column = (int)floorf(at);
    float w[4];
    int place[4];
    CubicWeights(at - (float)column, w);
    for (int k = 0; k < 4; ++k) place[k] = 3 * Clamped(column - 1 + k, 0, srcWidth - 1);
    for (int y = 0; y < srcHeight; ++y) {
      const uint8_t* p = src + (size_t)y * 3 * (size_t)srcWidth;
      for (int c = 0; c < 3; ++c) {
        rows[(size_t)y * samples + 3 * (size_t)x + (size_t)c] =
            p[place[0] + c] * w[0] + p[place[1] + c] * w[1] + p[place[2] + c] * w[2] + p[place[3] + c] * w[3];
      }
    }
  }
  for (int y = 0; y < height; ++y) {
    const float at = ((float)y + 0.5f) * (float)srcHeight / (float)height - 0.5f;
    const int row = (int)floorf(at);
    float w[4];
    const float* r[4];
    CubicWeights(at - (float)row, w);
    for (int k = 0; k < 4; ++k) r[k] = rows + (size_t)Clamped(row - 1 + k, 0, srcHeight - 1) * samples;
    for (size_t i = 0; i < samples; ++i) {
      const float v = r[0][i] * w[0] + r[1][i] * w[1] + r[2][i] * w[2] + r[3][i] * w[3];
      dst[(size_t)y * samples + i] = (uint8_t)(v > 0 ? v < 255 ? rintf(v) : 255 : 0);
    }
  }
  free(rows);
}

void PlainAffineLinear(const uint8_t* src, uint8_t* dst, int width, int height, const double inverse[2][3]) {
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      const double u = inverse[0][0] * x + inverse[0][1] * y + inverse[0][2];
      const double v = inverse[1][0] * x + inverse[1][1] * y + inverse[1][2];
      if (!(u >= 0 && v >= 0 && u < width - 1 && v < height - 1)) {
        dst[y * width + x] = 0;
        continue;
      }
      const int column = (int)u, row = (int)v;
      const float fx = (float)(u - column), fy = (float)(v - row);
      const uint8_t* p = src + row * width + column;
      const float above = p[0] + fx * (float)(p[1] - p[0]);
      const float below = p[width] + fx * (float)(p[width + 1] - p[width]);
      dst[y * width + x] = (uint8_t)(above + fy * (below - above) + 0.5f);
    }
  }
}

void PlainTranspose(const uint8_t* src, uint8_t* dst, int width, int height) {
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) dst[x * height + y] = src[y * width + x];
  }
}

void PlainHistogram(const uint8_t* src, int n, uint32_t counts[256]) {
  memset(counts, 0, 256 * sizeof(*counts));
  for (int i = 0; i < n; ++i) ++counts[src[i]];
}

double PlainNormL2(const uint8_t* src, int n) {
  uint64_t sum = 0;
  for (int i = 0; i < n; ++i) sum += (uint32_t)(src[i] * src[i]);
  return sqrt((double)sum);
}

static void ReverseBits(float* data, int n) {
  for (int i = 1, j = 0; i < n; ++i) {
    int bit = n >> 1;
    for (; j & bit; bit >>= 1) j ^= bit;
    j ^= bit;
    if (i >= j) continue;
    for (int part = 0; part < 2; ++part) {
      const float kept = data[2 * i + part];
      data[2 * i + part] = data[2 * j + part];
      data[2 * j + part] = kept;
    }
  }
}

static void Fft(float* data, int n, const float* roots) {
  ReverseBits(data, n);
  for (int half = 1; half < n; half *= 2) {
    for (int begin = 0; begin < n; begin += 2 * half) {
      for (int k = 0; k < half; ++k) {
        float *a = data + 2 * (begin + k), *b = a + 2 * half;
        const float* w = roots + 2 * (n / (2 * half)) * k;
        const float re = b[0] * w[0] - b[1] * w[1], im = b[0] * w[1] + b[1] * w[0];
        b[0] = a[0] - re, b[1] = a[1] - im;
        a[0] += re, a[1] += im;
      }
    }
  }
}

void PlainFft2d(const float* src, float* dst, int n, const float* roots) {
  float* const column = malloc(2 * sizeof(float) * (size_t)n);
  memcpy(dst, src, 2 * sizeof(float) * (size_t)n * (size_t)n);
  for (int y = 0; y < n; ++y) Fft(dst + 2 * n * y, n, roots);
  for (int x = 0; x < n; ++x) {
    for (int y = 0; y < n; ++y) memcpy(column + 2 * y, dst + 2 * (n * y + x), 2 * sizeof(float));
    Fft(column, n, roots);
    for (int y = 0; y < n; ++y) memcpy(dst + 2 * (n * y + x), column + 2 * y, 2 * sizeof(float));
  }
  free(column);
}
