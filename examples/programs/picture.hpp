// Files as images of qvpi.hpp.
#pragma once

#include <memory>
#include <qvpi.hpp>
#include <stdexcept>
#include <string>

#include "picture.h"

template <int kChannels>
qvp::Image<Qvp8u, kChannels> Load(const std::string& path) {
  Picture file;
  if (!LoadPicture(path.c_str(), kChannels, &file)) throw std::runtime_error("cannot load " + path);
  const std::unique_ptr<Picture, void (*)(Picture*)> release(&file, FreePicture);
  qvp::Image<Qvp8u, kChannels> image(file.size);
  qvp::copy_to(qvp::View<Qvp8u, kChannels>(file.pixels, file.step, file.size), image);
  return image;
}

template <class T, int kChannels>
void Save(const std::string& path, qvp::View<T, kChannels> image) {
  if (!SavePicture(path.c_str(), kChannels, image.data(), image.step(), image.size())) {
    throw std::runtime_error("cannot save " + path);
  }
}
