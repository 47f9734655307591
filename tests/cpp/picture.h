// Pictures for the tests of classes with records, and how they are compared.
#pragma once

#include <cstring>

#include "qvpi.hpp"

namespace test {

// Numbers from 0 to 250 that look like noise.
template <class T, int kChannels = 1>
qvp::Image<T, kChannels> Noise(QvpiSize size) {
  qvp::Image<T, kChannels> image(size);
  unsigned state = 1;
  for (int y = 0; y < size.height; ++y) {
    for (int i = 0; i < size.width * kChannels; ++i) {
      state = state * 1664525 + 1013904223;
      image.row(y)[i] = static_cast<T>((state >> 16) % 251);
    }
  }
  return image;
}

template <class T, int kLayout>
bool Same(qvp::View<T, kLayout> a, qvp::View<T, kLayout> b) {
  const size_t row = sizeof(T) * qvp::pixel_stride(kLayout) * a.width();
  for (int y = 0; y < a.height(); ++y) {
    if (std::memcmp(a.row(y), b.row(y), row) != 0) return false;
  }
  return a.height() == b.height() && a.width() == b.width() && !a.empty();
}

template <class T, int kChannels>
bool Same(const qvp::Image<T, kChannels>& a, const qvp::Image<T, kChannels>& b) {
  return Same(a.view(), b.view());
}

// The status that a call throws, or 0.
template <class Call>
QvpStatus Refused(Call call) {
  try {
    call();
  } catch (const qvp::Error& error) {
    return error.status();
  }
  return qvpStatusNoError;
}

}  // namespace test
