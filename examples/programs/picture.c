#include "picture.h"

#include <png.h>
#include <qvpcore.h>
#include <qvpi_core.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <strings.h>
#include <turbojpeg.h>

static int Fail(const char* path, const char* reason) {
  fprintf(stderr, "%s: %s\n", path, reason);
  return 0;
}

static unsigned char* ReadFile(const char* path, size_t* size) {
  FILE* file = fopen(path, "rb");
  const long length = file && !fseek(file, 0, SEEK_END) ? ftell(file) : -1;
  unsigned char* bytes = length > 0 && length < 1L << 30 ? malloc(length) : NULL;  // of a folder it is enormous
  if (bytes) {
    rewind(file);
    *size = fread(bytes, 1, length, file);
  }
  if (file) fclose(file);
  return bytes;
}

static int Allocate(int channels, int width, int height, Picture* picture) {
  picture->size = (QvpiSize){width, height};
  picture->pixels =
      channels == 1 ? qvpiMalloc_8u_C1(width, height, &picture->step) : qvpiMalloc_8u_C3(width, height, &picture->step);
  return picture->pixels != NULL;
}

static int DecodePng(const unsigned char* bytes, size_t size, int channels, Picture* picture, const char* path) {
  const png_color white = {255, 255, 255};
  png_image file = {.version = PNG_IMAGE_VERSION};
  int good = png_image_begin_read_from_memory(&file, bytes, size);
  if (good) {
    file.format = channels == 1 ? PNG_FORMAT_GRAY : PNG_FORMAT_RGB;
    good = Allocate(channels, file.width, file.height, picture) &&
           png_image_finish_read(&file, &white, picture->pixels, picture->step, NULL);
  }
  png_image_free(&file);
  return good || Fail(path, file.message[0] ? file.message : "there is no memory for it");
}

static int DecodeJpeg(const unsigned char* bytes, size_t size, int channels, Picture* picture, const char* path) {
  tjhandle decoder = tjInitDecompress();
  int width, height, subsampling, colors;
  const int good = !tjDecompressHeader3(decoder, bytes, size, &width, &height, &subsampling, &colors) &&
                   Allocate(channels, width, height, picture) &&
                   !tjDecompress2(decoder, bytes, size, picture->pixels, width, picture->step, height,
                                  channels == 1 ? TJPF_GRAY : TJPF_RGB, TJFLAG_STOPONWARNING);
  if (!good) Fail(path, tjGetErrorStr2(decoder));
  tjDestroy(decoder);
  return good;
}

int LoadPicture(const char* path, int channels, Picture* picture) {
  size_t size = 0;
  unsigned char* bytes = ReadFile(path, &size);
  *picture = (Picture){0};
  if (!bytes) return Fail(path, "it cannot be read, is empty, or above 1 GB");
  const int is_jpeg = size > 2 && bytes[0] == 0xFF && bytes[1] == 0xD8;
  const int good = (is_jpeg ? DecodeJpeg : DecodePng)(bytes, size, channels, picture, path);
  free(bytes);
  if (!good) FreePicture(picture);
  return good;
}

static int SaveJpeg(const char* path, int channels, const Qvp8u* pixels, int step, QvpiSize size) {
  tjhandle encoder = tjInitCompress();
  unsigned char* bytes = NULL;
  unsigned long length = 0;
  const int is_gray = channels == 1, quality = 92;
  int good = !tjCompress2(encoder, pixels, size.width, step, size.height, is_gray ? TJPF_GRAY : TJPF_RGB, &bytes,
                          &length, is_gray ? TJSAMP_GRAY : TJSAMP_420, quality, 0);
  FILE* file = good ? fopen(path, "wb") : NULL;
  good = file && fwrite(bytes, 1, length, file) == length;
  if (file) good = !fclose(file) && good;
  tjFree(bytes);
  tjDestroy(encoder);
  return good || Fail(path, "it cannot be written");
}

static int SavePng(const char* path, int channels, const Qvp8u* pixels, int step, QvpiSize size) {
  png_image file = {.version = PNG_IMAGE_VERSION, .width = size.width, .height = size.height};
  file.format = channels == 1 ? PNG_FORMAT_GRAY : PNG_FORMAT_RGB;
  return png_image_write_to_file(&file, path, 0, pixels, step, NULL) || Fail(path, file.message);
}

int SavePicture(const char* path, int channels, const Qvp8u* pixels, int step, QvpiSize size) {
  const char* ending = strrchr(path, '.');
  const int is_jpeg = ending && (!strcasecmp(ending, ".jpg") || !strcasecmp(ending, ".jpeg"));
  return (is_jpeg ? SaveJpeg : SavePng)(path, channels, pixels, step, size);
}

void FreePicture(Picture* picture) {
  qvpiFree(picture->pixels);
  *picture = (Picture){0};
}

void Require(QvpStatus status) {
  if (status >= qvpStatusNoError) return;
  fprintf(stderr, "%s\n", qvpGetStatusString(status));
  exit(1);
}
