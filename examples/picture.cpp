#include "examples/picture.h"

#include <png.h>
#include <turbojpeg.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <iterator>
#include <vector>

namespace demo {
namespace {

using Bytes = std::vector<unsigned char>;

Bytes ReadFile(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  file.peek();  // a folder can be opened, but not read
  if (file.fail()) throw std::runtime_error(std::strerror(errno));
  return {std::istreambuf_iterator<char>(file), {}};
}

// Releases what libpng holds, also when an exception leaves the function.
struct Png : png_image {
  Png() : png_image{} { version = PNG_IMAGE_VERSION; }
  ~Png() { png_image_free(this); }
};

Rgb DecodePng(const Bytes& bytes) {
  Png png;
  if (!png_image_begin_read_from_memory(&png, bytes.data(), bytes.size())) throw std::runtime_error(png.message);
  png.format = PNG_FORMAT_RGB;
  Rgb image({static_cast<int>(png.width), static_cast<int>(png.height)});
  const png_color white{255, 255, 255};
  if (!png_image_finish_read(&png, &white, image.data(), image.step(), nullptr)) throw std::runtime_error(png.message);
  return image;
}

Rgb DecodeJpeg(const Bytes& bytes) {
  const std::unique_ptr<void, int (*)(tjhandle)> decoder(tjInitDecompress(), tjDestroy);
  const auto require = [&](int result) {
    if (result != 0) throw std::runtime_error(tjGetErrorStr2(decoder.get()));
  };
  int width = 0, height = 0, subsampling = 0, colours = 0;
  require(tjDecompressHeader3(decoder.get(), bytes.data(), bytes.size(), &width, &height, &subsampling, &colours));
  if (width < 1 || height < 1) throw std::runtime_error("the file holds no picture");  // only tables
  Rgb image({width, height});
  // A file that ends early is only a warning to the decoder, which would fill the rest with grey.
  require(tjDecompress2(decoder.get(), bytes.data(), bytes.size(), image.data(), width, image.step(), height, TJPF_RGB,
                        TJFLAG_STOPONWARNING));
  return image;
}

Rgb Decode(const Bytes& bytes) {
  if (bytes.size() >= 3 && bytes[0] == 0xFF && bytes[1] == 0xD8 && bytes[2] == 0xFF) return DecodeJpeg(bytes);
  if (bytes.size() >= 8 && png_sig_cmp(bytes.data(), 0, 8) == 0) return DecodePng(bytes);
  throw std::runtime_error("the file is neither PNG nor JPEG");
}

}  // namespace

Rgb LoadPicture(const std::string& path) {
  try {
    return Decode(ReadFile(path));
  } catch (const std::exception& failure) {
    throw std::runtime_error("cannot load " + path + ": " + failure.what());
  }
}

void SavePng(const Rgb& image, const std::string& path) {
  const auto require = [&](bool good, const char* reason) {
    if (!good) throw std::runtime_error("cannot write " + path + ": " + reason);
  };
  Png png;
  png.width = image.size().width;
  png.height = image.size().height;
  png.format = PNG_FORMAT_RGB;
  // When libpng opens the file itself, it deletes it after a failure, even a device.
  const std::unique_ptr<FILE, int (*)(FILE*)> file(std::fopen(path.c_str(), "wb"), std::fclose);
  require(file != nullptr, std::strerror(errno));
  require(png_image_write_to_stdio(&png, file.get(), 0, image.data(), image.step(), nullptr), png.message);
  require(std::fflush(file.get()) == 0, std::strerror(errno));
}

}  // namespace demo
