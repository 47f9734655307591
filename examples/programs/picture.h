// Pictures in PNG and JPEG files, for the programs of this folder: copy these two files, or use a reader of your own.
#pragma once

#include <qvptypes.h>

#ifdef __cplusplus
extern "C" {
#endif

// A picture in memory of qvpiMalloc: rows of bytes with the channels of a pixel beside one another.
typedef struct {
  Qvp8u* pixels;
  int step;
  QvpiSize size;
} Picture;

// Loads a file as grey (1 channel) or RGB (3); what is transparent comes out white. Returns 0 where it cannot, and
// tells stderr why.
int LoadPicture(const char* path, int channels, Picture* picture);

// Writes JPEG if the name ends with .jpg or .jpeg, else PNG. Returns 0 where it cannot, and tells stderr why.
int SavePicture(const char* path, int channels, const Qvp8u* pixels, int step, QvpiSize size);

void FreePicture(Picture* picture);

// Ends the program with a message unless the call that returned this status did its work.
void Require(QvpStatus status);

#ifdef __cplusplus
}
#endif
