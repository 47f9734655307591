// What benchmarks of volumes have in common: volumes, with what the peer takes them for, and both forms of a call.
#pragma once

#include <algorithm>
#include <map>
#include <tuple>

#include "bench/filters.h"

namespace bench {

// Planes one below the other: an image to the peer, and to functions that take planes an array of these.
template <class T>
struct Stack {
  QvprVolume size;
  Image<T> all;
  std::vector<T*> planes;

  explicit Stack(QvprVolume s) : size(s), all({s.width, s.height * s.depth}, 1) {
    for (int z = 0; z < s.depth; ++z) planes.push_back(all.data() + ptrdiff_t{z} * s.height * s.width);
  }
  T* data() const { return all.data(); }
  int step() const { return all.step; }
  int planeStep() const { return all.step * size.height; }
  size_t bytes() const { return all.bytes(); }
  cv::Mat Plane(int z) const { return all.mat(cv::Rect(0, z * size.height, size.width, size.height)); }
  cv::Mat PlanesAsRows() const { return all.mat.reshape(0, size.depth); }
};

// Rows are timed one after the other, so those of a size share their memory.
template <class T, int kRole>
const Stack<T>& Shared(QvprVolume size) {
  static std::map<std::tuple<int, int, int>, Stack<T>> made;
  const auto found = made.try_emplace({size.width, size.height, size.depth}, size);
  if (found.second) cv::randu(found.first->second.all.mat, 0, 255);
  return found.first->second;
}
template <class T>
const Stack<T>& Source(QvprVolume size) {
  return Shared<T, 0>(size);
}
template <class T>
const Stack<T>& Destination(QvprVolume size) {
  return Shared<T, 1>(size);
}

constexpr QvprVolume Cube(int side) { return {side, side, side}; }
inline constexpr QvprVolume kCubes[] = {Cube(16), Cube(64), Cube(128)};
inline constexpr QvprVolume kBeyondCaches{512, 512, 64};

template <class T>
constexpr const char* kTypeName = sizeof(T) == 1              ? "8u"
                                  : std::is_same_v<T, Qvp16u> ? "16u"
                                  : std::is_same_v<T, Qvp16s> ? "16s"
                                                              : "32f";

// Both forms of a call: the one of an array of planes may be little slower.
struct Forms {
  std::function<void()> volume, planes;
  double planesAtLeast = 0.91;
};

inline void AddForms(const std::string& what, QvprVolume size, Traffic traffic, const Forms& forms,
                     std::vector<Peer> peers = {}) {
  const auto name = [&](const char* form) {
    return Name("volume, " + what + form + ", " + std::to_string(size.depth) + " planes", {size.width, size.height});
  };
  Add({name(""), traffic, forms.volume, std::move(peers)});
  Add({name(" by planes"), traffic, forms.planes, {{"one volume", forms.volume, forms.planesAtLeast}}});
}

}  // namespace bench
