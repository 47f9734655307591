// Images in memory from the library, and the check of its status codes.
#pragma once

#include <memory>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <utility>

#include "qvpcore.h"
#include "qvpi.h"

namespace demo {

// Every step fits its data to its call, so a warning is as much a fault as an error.
inline void Require(QvpStatus status, const std::string& function = "qvpIP") {
  if (status != qvpStatusNoError) throw std::runtime_error(function + ": " + qvpGetStatusString(status));
}

inline std::string ToString(QvpiSize size) { return std::to_string(size.width) + "x" + std::to_string(size.height); }

// `kMalloc` is the library's allocation function for the pixel type. The pixels are not initialised.
template <auto kMalloc, int kChannels>
class Image {
 public:
  using Sample = std::remove_pointer_t<decltype(kMalloc(1, 1, nullptr))>;
  static constexpr int kPixelBytes = kChannels * sizeof(Sample);

  explicit Image(QvpiSize size) : size_(size), data_(kMalloc(size.width, size.height, &step_)) {
    if (!data_) throw std::runtime_error("no memory for an image of " + ToString(size));
  }

  Sample* data() { return data_.get(); }
  const Sample* data() const { return data_.get(); }
  int step() const { return step_; }
  QvpiSize size() const { return size_; }

  Sample* At(int x, int y) { return const_cast<Sample*>(std::as_const(*this).At(x, y)); }
  const Sample* At(int x, int y) const {
    const char* row = reinterpret_cast<const char*>(data()) + ptrdiff_t{y} * step_;
    return reinterpret_cast<const Sample*>(row) + x * kChannels;
  }

 private:
  struct Free {
    void operator()(void* data) const { qvpiFree(data); }
  };

  QvpiSize size_;
  int step_ = 0;
  std::unique_ptr<Sample, Free> data_;
};

using Grey = Image<qvpiMalloc_8u_C1, 1>;
using Rgb = Image<qvpiMalloc_8u_C3, 3>;
using Rgba = Image<qvpiMalloc_8u_C4, 4>;

}  // namespace demo
