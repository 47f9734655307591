// A chain of four functions over a large picture: over whole images, which go out to memory and back between any two;
// over strips of rows that stay in the cache; and as one loop. Prints what each takes; all give the same bytes.
#include <qvpcore.h>
#include <qvpi.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <time.h>

#include "picture.h"

enum { kChannels = 3, kRounds = 5 };
static const Qvp32f kGain[3] = {1.9F, 1.2F, 0.7F}, kWhite[3] = {235, 235, 235};

// What a strip of at most `rows` rows goes through between bytes and bytes.
typedef struct {
  Qvp32f* pixels;
  int step, rows;
} Between;

// Bytes to floats, times a gain, at most white, and back to bytes: chains of functions that make each pixel from the
// one at its place may be cut anywhere.
static void RunChain(const Qvp8u* src, Qvp8u* dst, int step, QvpiSize size, Qvp32f* floats, int floatStep) {
  Require(qvpiConvert_8u32f_C3R(src, step, floats, floatStep, size));
  Require(qvpiMulC_32f_C3IR(kGain, floats, floatStep, size));
  Require(qvpiThreshold_GT_32f_C3IR(floats, floatStep, size, kWhite));
  Require(qvpiConvert_32f8u_C3R(floats, floatStep, dst, step, size, qvpRoundNear));
}

static void RunStrips(const Picture* src, Picture* dst, const Between* between) {
  for (int y = 0; y < src->size.height; y += between->rows) {
    const int left = src->size.height - y, rows = left < between->rows ? left : between->rows;
    const ptrdiff_t first = (ptrdiff_t)y * src->step;
    RunChain(src->pixels + first, dst->pixels + first, src->step, (QvpiSize){src->size.width, rows}, between->pixels,
             between->step);
  }
}

// The same by hand. Adding 1.5 * 2^23 rounds a float to a whole number, ties to even, as the functions do.
static void RunLoop(const Picture* src, Picture* dst, const Between* unused) {
  (void)unused;
  const int width = src->size.width, height = src->size.height;  // bytes that are stored could change src's
  for (int y = 0; y < height; ++y) {
    const Qvp8u* from = src->pixels + (ptrdiff_t)y * src->step;
    Qvp8u* to = dst->pixels + (ptrdiff_t)y * dst->step;
    for (int x = 0; x < width; ++x) {
      for (int c = 0; c < kChannels; ++c) {
        const Qvp32f scaled = from[kChannels * x + c] * kGain[c], bounded = scaled > kWhite[c] ? kWhite[c] : scaled;
        to[kChannels * x + c] = (Qvp8u)((bounded + 12582912) - 12582912);
      }
    }
  }
}

static double Milliseconds(void) {
  struct timespec now;
  timespec_get(&now, TIME_UTC);
  return 1e3 * (double)now.tv_sec + 1e-6 * (double)now.tv_nsec;
}

typedef void (*Way)(const Picture* src, Picture* dst, const Between* between);

// Runs a way with strips of so many rows, and prints the least time of several.
static void Time(const char* name, Way way, const Picture* src, Picture* dst, int rows) {
  Between between = {NULL, 0, rows};
  between.pixels = qvpiMalloc_32f_C3(src->size.width, rows, &between.step);
  double least = 0;
  for (int i = 0; i < kRounds; ++i) {
    const double begin = Milliseconds();
    way(src, dst, &between);
    const double time = Milliseconds() - begin;
    if (i == 0 || time < least) least = time;
  }
  printf("%-20s %8.2f ms\n", name, least);
  qvpiFree(between.pixels);
}

static Picture MakePicture(QvpiSize size) {
  Picture picture = {NULL, 0, size};
  picture.pixels = qvpiMalloc_8u_C3(size.width, size.height, &picture.step);
  if (!picture.pixels) Require(qvpStatusMemoryAllocation);
  memset(picture.pixels, 0, (size_t)picture.step * size.height);  // the gaps between rows are compared too
  return picture;
}

static void FillPicture(Picture* picture) {
  for (int y = 0; y < picture->size.height; ++y) {
    Qvp8u* row = picture->pixels + (ptrdiff_t)y * picture->step;
    for (int i = 0; i < kChannels * picture->size.width; ++i) row[i] = (Qvp8u)(i * 7 + y * 13);
  }
}

static int AreSame(const Picture* a, const Picture* b) {
  return memcmp(a->pixels, b->pixels, (size_t)a->step * a->size.height) == 0;
}

int main(int count, char** arguments) {
  const QvpiSize size = {count == 3 ? atoi(arguments[1]) : 3840, count == 3 ? atoi(arguments[2]) : 2160};
  if ((count != 1 && count != 3) || size.width < 1 || size.height < 1) {
    fprintf(stderr, "usage: %s [WIDTH HEIGHT]\n", arguments[0]);
    return 2;
  }
  Picture src = MakePicture(size), whole = MakePicture(size), strips = MakePicture(size), loop = MakePicture(size);
  FillPicture(&src);
  Time("whole images", RunStrips, &src, &whole, size.height);
  Time("strips of 64 rows", RunStrips, &src, &strips, 64);
  Time("strips of 16 rows", RunStrips, &src, &strips, 16);
  Time("one loop", RunLoop, &src, &loop, 1);
  const int same = AreSame(&whole, &strips) && AreSame(&whole, &loop);
  printf("%s\n", same ? "All are equal." : "They differ.");
  FreePicture(&src), FreePicture(&whole), FreePicture(&strips), FreePicture(&loop);
  return same ? 0 : 1;
}
