// A program of a user of the installed library, in what C11 and C++17 have in common.
#include <qvpcore.h>
#include <qvpi.h>
#include <stdio.h>

// Whether a 5 x 3 image can be filled with one colour and have its channels swapped.
static int swaps_channels(void) {
  const QvpiSize size = {5, 3};
  const Qvp8u rgb[3] = {1, 2, 3};
  const int order[3] = {2, 1, 0};
  int step, right = 1;
  Qvp8u* image = qvpiMalloc_8u_C3(size.width, size.height, &step);
  if (!image || qvpiSet_8u_C3R(rgb, image, step, size) || qvpiSwapChannels_8u_C3IR(image, step, size, order)) return 0;
  for (int y = 0; y < size.height; ++y) {
    for (int i = 0; i < 3 * size.width; ++i) right &= image[y * step + i] == 3 - i % 3;
  }
  qvpiFree(image);
  return right;
}

int main(void) {
  const QvpiSize empty = {0, 1};
  printf("%s\n%s\n", qvpiGetLibVersion()->targetCpu, qvpGetStatusString(qvpiSet_8u_C1R(0, NULL, 0, empty)));
  return swaps_channels() ? 0 : 1;
}
