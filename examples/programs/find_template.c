// Finds the part of a picture that is most like a template, prints its place and how like it is, and marks it.
#include <qvpcore.h>
#include <qvpi.h>
#include <stdio.h>

#include "picture.h"

typedef struct {
  int x, y;
  Qvp32f likeness;
} Place;

// The coefficient of correlation of the template with each window of the picture, over all three channels: 1 where all
// is alike, whatever the brightness and the contrast. Its largest value is the place.
static Place Find(const Picture* picture, const Picture* pattern) {
  const QvpiSize windows = {picture->size.width - pattern->size.width + 1,
                            picture->size.height - pattern->size.height + 1};
  int bytes = 0, step = 0;
  Require(qvpiMatchGetBufferSize(qvp8u, 3, picture->size, pattern->size, qvpMatchValid, qvpMatchCoefficient,
                                 qvpMethodAuto, &bytes));
  Qvp8u* buffer = qvpMalloc(bytes);
  Qvp32f* likeness = qvpiMalloc_32f_C1(windows.width, windows.height, &step);
  Require(qvpiMatchCorrelation_8u32f_C3C1R(picture->pixels, picture->step, picture->size, pattern->pixels,
                                           pattern->step, pattern->size, likeness, step, qvpMatchValid,
                                           qvpMatchCoefficient, qvpMethodAuto, buffer));
  Place best;
  Require(qvpiMaxIndx_32f_C1R(likeness, step, windows, &best.likeness, &best.x, &best.y));
  qvpiFree(likeness);
  qvpFree(buffer);
  return best;
}

static void Fill(const Picture* picture, int x, int y, int width, int height) {
  static const Qvp8u red[3] = {255, 0, 0};
  Require(qvpiSet_8u_C3R(red, picture->pixels + y * picture->step + 3 * x, picture->step, (QvpiSize){width, height}));
}

static void DrawFrame(const Picture* picture, Place place, QvpiSize size) {
  const int right = place.x + size.width - 1, bottom = place.y + size.height - 1;
  Fill(picture, place.x, place.y, size.width, 1);
  Fill(picture, place.x, bottom, size.width, 1);
  Fill(picture, place.x, place.y, 1, size.height);
  Fill(picture, right, place.y, 1, size.height);
}

int main(int count, char** arguments) {
  if (count < 3 || count > 4) {
    fprintf(stderr, "usage: %s PICTURE TEMPLATE [MARKED]\n", arguments[0]);
    return 2;
  }
  Picture picture, pattern;
  if (!LoadPicture(arguments[1], 3, &picture) || !LoadPicture(arguments[2], 3, &pattern)) return 1;
  const Place place = Find(&picture, &pattern);
  printf("%d %d %.3f\n", place.x, place.y, place.likeness);
  DrawFrame(&picture, place, pattern.size);
  const int good = count < 4 || SavePicture(arguments[3], 3, picture.pixels, picture.step, picture.size);
  FreePicture(&pattern);
  FreePicture(&picture);
  return good ? 0 : 1;
}
