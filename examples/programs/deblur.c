// Sharpens a photograph that is out of focus: the blur is a disc, whose spectrum is divided out where it is not lost in
// noise.
#include <math.h>
#include <qvpcore.h>
#include <qvpi.h>
#include <stdio.h>
#include <stdlib.h>

#include "picture.h"

// What a lens makes of a point: a disc with a soft edge of one pixel, whose sum is 1. The caller frees it.
static Qvp32f* MakeDisc(double radius, int* side) {
  const int reach = (int)ceil(radius);
  *side = 2 * reach + 1;
  Qvp32f* disc = qvpMalloc(*side * *side * (int)sizeof *disc);
  double sum = 0;
  for (int y = -reach, i = 0; y <= reach; ++y) {
    for (int x = -reach; x <= reach; ++x, ++i) {
      disc[i] = (Qvp32f)fmin(1, fmax(0, radius + 0.5 - sqrt(x * x + y * y)));
      sum += disc[i];
    }
  }
  for (int i = 0; i < *side * *side; ++i) disc[i] /= (Qvp32f)sum;
  return disc;
}

// Edges are continued as in a mirror; without that, they would ring.
static void Deconvolve(const Qvp32f* src, int srcStep, Qvp32f* dst, int dstStep, QvpiSize size, double radius,
                       Qvp32f noise) {
  int side, recordBytes, initBytes, bufferBytes;
  Qvp32f* disc = MakeDisc(radius, &side);
  const QvpiSize discSize = {side, side};
  Require(qvpiDeconvolveGetSize_32f(size, discSize, qvpBorderMirror, &recordBytes, &initBytes, &bufferBytes));
  QvpiDeconvolveSpec_32f* record = qvpMalloc(recordBytes);
  Qvp8u* init = qvpMalloc(initBytes);
  Qvp8u* buffer = qvpMalloc(bufferBytes);
  Require(qvpiDeconvolveInit_32f(size, disc, side * (int)sizeof *disc, discSize, qvpBorderMirror, record, init));
  Require(qvpiDeconvolveInverse_32f_C3R(src, srcStep, dst, dstStep, noise, 0, record, buffer));
  qvpFree(buffer);
  qvpFree(init);
  qvpFree(record);
  qvpFree(disc);
}

static void Deblur(Picture* photo, double radius, Qvp32f noise) {
  int step;
  Qvp32f* blurred = qvpiMalloc_32f_C3(photo->size.width, photo->size.height, &step);
  Qvp32f* sharp = qvpiMalloc_32f_C3(photo->size.width, photo->size.height, &step);
  Require(qvpiConvert_8u32f_C3R(photo->pixels, photo->step, blurred, step, photo->size));
  Deconvolve(blurred, step, sharp, step, photo->size, radius, noise);
  Require(qvpiConvert_32f8u_C3R(sharp, step, photo->pixels, photo->step, photo->size, qvpRoundNear));
  qvpiFree(sharp);
  qvpiFree(blurred);
}

int main(int count, char** arguments) {
  const double radius = count > 3 ? atof(arguments[3]) : 0, noise = count > 4 ? atof(arguments[4]) : 0.005;
  if (count < 4 || count > 5 || !(radius > 0 && radius < 100)) {
    fprintf(stderr, "usage: %s PHOTO SHARP RADIUS [NOISE]\n", arguments[0]);
    fprintf(stderr, "       RADIUS of the blur in pixels; NOISE 0.0001 to 0.1: less is sharper and rings more\n");
    return 2;
  }
  Picture photo;
  if (!LoadPicture(arguments[1], 3, &photo)) return 1;
  Deblur(&photo, radius, (Qvp32f)noise);
  const int good = SavePicture(arguments[2], 3, photo.pixels, photo.step, photo.size);
  FreePicture(&photo);
  return good ? 0 : 1;
}
