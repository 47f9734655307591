// A program that uses five functions, one of them before its own start.
#include <qvpi.h>
#include <stdio.h>
#include <string.h>

static const char* early;
__attribute__((constructor(101))) static void ask_early(void) { early = qvpiGetLibVersion()->targetCpu; }

int main(void) {
  const QvpiSize size = {5, 1};
  const Qvp8u colour[3] = {1, 2, 3};
  const int order[3] = {2, 1, 0};
  Qvp8u image[15], other[15];
  qvpiSet_8u_C3R(colour, image, 15, size);
  qvpiSwapChannels_8u_C3IR(image, 15, size, order);
  qvpiMirror_8u_C3R(image, 15, other, 15, size, qvpAxisVertical);
  qvpiAdd_8u_C3RSfs(image, 15, other, 15, image, 15, size, 0);
  printf("%s %s %d %d %d\n", early, qvpiGetLibVersion()->targetCpu, image[0], image[1], image[14]);
  return 0;
}
