// Volumes in memory that ends with their last voxel.
#pragma once

#include <cstring>
#include <memory>
#include <utility>
#include <vector>

#include "tests/support/exports.h"
#include "tests/support/reference.h"

namespace test {

// Steps may be exchanged: a row's neighbours are then in the planes before and behind it.
struct Voxels {
  QvprVolume size;
  int bytes, step, planeStep;
  Block block;

  Voxels(QvprVolume s, int voxel, int gap, bool isCoronal)
      : size(s),
        bytes(voxel),
        step(isCoronal ? (s.width * voxel + gap) * s.depth : s.width * voxel + gap),
        planeStep(isCoronal ? s.width * voxel + gap : (s.width * voxel + gap) * s.height),
        block((s.height - 1) * step + (s.depth - 1) * planeStep + s.width * voxel) {}
  uint8_t* At(int x, int y, int z) const {
    return block.data() + x * bytes + ptrdiff_t{y} * step + ptrdiff_t{z} * planeStep;
  }
  // With value(element, random).
  void Fill(const Element& element, Scene::Value value) const {
    Random random(size.width);
    ForEach([&](int x, int y, int z) { element.write(At(x, y, z), value(element, random)); });
  }
  template <class Visit>
  void ForEach(const Visit& visit) const {
    for (int z = 0; z < size.depth; ++z) {
      for (int y = 0; y < size.height; ++y) {
        for (int x = 0; x < size.width; ++x) visit(x, y, z);
      }
    }
  }
};

// A region of a volume that has voxels around it on those faces that a border type says are in memory: as many as an
// operation reaches before and behind.
struct Surrounded {
  QvprVolume size;
  QvprPoint before, behind;
  int border;
  Voxels all;

  Surrounded(QvprVolume region, QvprPoint b, QvprPoint a, int type, int bytes, bool isCoronal)
      : size(region),
        before(b),
        behind(a),
        border(type),
        all({region.width + On(qvpBorderInMemLeft, b.x) + On(qvpBorderInMemRight, a.x),
             region.height + On(qvpBorderInMemTop, b.y) + On(qvpBorderInMemBottom, a.y),
             region.depth + On(qvpBorderInMemFront, b.z) + On(qvpBorderInMemBack, a.z)},
            bytes, 3, isCoronal) {}

  QvprPoint origin() const {
    return {On(qvpBorderInMemLeft, before.x), On(qvpBorderInMemTop, before.y), On(qvpBorderInMemFront, before.z)};
  }
  uint8_t* first() const { return all.At(origin().x, origin().y, origin().z); }
  // What stands for a voxel of the region or around it; null for the constant.
  const uint8_t* At(int x, int y, int z) const {
    const int kind = border & 0xF;
    const int u = BorderPosition(kind, x + origin().x, 0, all.size.width - 1);
    const int v = BorderPosition(kind, y + origin().y, 0, all.size.height - 1);
    const int w = BorderPosition(kind, z + origin().z, 0, all.size.depth - 1);
    return u == kConstant || v == kConstant || w == kConstant ? nullptr : all.At(u, v, w);
  }

 private:
  int On(int flag, int r) const { return (border & flag) != 0 ? r : 0; }
};

// The planes of a volume in memory of their own, in any order, and the array of their pointers.
class Planes {
 public:
  Planes(const Voxels& from, int first) : from_(from), first_(first) {
    for (int z = 0; z < from.size.depth; ++z) {
      blocks_.push_back(std::make_unique<Block>((from.size.height - 1) * step() + from.size.width * from.bytes));
    }
    Random random(from.size.depth);
    for (size_t i = blocks_.size(); i > 1; --i) std::swap(blocks_[i - 1], blocks_[random.Next() % i]);
    for (const auto& block : blocks_) pointers_.push_back(block->data());
    Move([](uint8_t* plane, uint8_t* volume, size_t bytes) { std::memcpy(plane, volume, bytes); });
  }
  int step() const { return from_.size.width * from_.bytes + 5; }
  const void* at(int x, int y) {
    for (const auto& block : blocks_) moved_.push_back(block->data() + y * step() + x * from_.bytes);
    return moved_.data() + first_;
  }
  void CopyBack() {
    Move([](uint8_t* plane, uint8_t* volume, size_t bytes) { std::memcpy(volume, plane, bytes); });
  }

 private:
  template <class Copy>
  void Move(const Copy& copy) {
    for (int z = 0; z < from_.size.depth; ++z) {
      for (int y = 0; y < from_.size.height; ++y) {
        copy(pointers_[z] + y * step(), from_.At(0, y, z), from_.size.width * from_.bytes);
      }
    }
  }

  const Voxels& from_;
  int first_;
  std::vector<std::unique_ptr<Block>> blocks_;
  std::vector<uint8_t*> pointers_, moved_;
};

// A call with volumes as its function takes them: voxels with two steps, or the planes.
class VolumeCall {
 public:
  explicit VolumeCall(const Export& function) : function_(function) {}

  // The argument of a name, which begins at a voxel.
  void Add(std::string_view name, const Voxels& voxels, QvprPoint at = {}) {
    const std::string_view step = name == "pSrc" ? "srcStep" : name == "pDst" ? "dstStep" : "mapStep";
    const std::string_view planeStep = name == "pSrc"   ? "srcPlaneStep"
                                       : name == "pDst" ? "dstPlaneStep"
                                                        : "mapPlaneStep";
    if (function_.name.ends_with("PV")) {
      planes_.push_back(std::make_unique<Planes>(voxels, at.z));
      arguments_.insert(arguments_.end(), {{name, {planes_.back()->at(at.x, at.y)}}, {step, planes_.back()->step()}});
    } else {
      arguments_.insert(arguments_.end(), {{name, {voxels.At(at.x, at.y, at.z)}}, {step, voxels.step}});
    }
    arguments_.push_back({planeStep, voxels.planeStep});
  }
  QvpStatus operator()(const std::vector<Named>& others) {
    arguments_.insert(arguments_.end(), others.begin(), others.end());
    const QvpStatus status = function_(arguments_);
    for (const auto& planes : planes_) planes->CopyBack();
    return status;
  }

 private:
  const Export& function_;
  std::vector<Named> arguments_;
  std::vector<std::unique_ptr<Planes>> planes_;
};

// Integers of any value, and modest floats.
inline Real ModestVoxel(const Element& element, Random& random) {
  const uint32_t number = random.Next();
  if (element.isInteger) return element.lowest + number % static_cast<int>(element.highest - element.lowest + 1);
  return static_cast<float>(number % 20001) / 100 - 100;
}

inline std::string Shown(QvprVolume v) {
  return std::to_string(v.width) + 'x' + std::to_string(v.height) + 'x' + std::to_string(v.depth);
}

}  // namespace test
