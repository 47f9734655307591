// An image with what lies around it by a border type, and how filters over neighbourhoods are called with it and
// compared with their definitions.
#pragma once

#include "tests/support/element.h"
#include "tests/support/exports.h"
#include "tests/support/name.h"
#include "tests/support/preparation.h"
#include "tests/support/reference.h"

namespace test {

// How far an operation reads beyond a pixel.
struct Reach {
  int left, above, right, below;
};
inline Reach ReachOf(QvpiSize mask, QvpiPoint anchor) {
  return {anchor.x, anchor.y, mask.width - 1 - anchor.x, mask.height - 1 - anchor.y};
}
inline Reach ReachOf(QvpiSize mask) { return ReachOf(mask, {(mask.width - 1) / 2, (mask.height - 1) / 2}); }

struct Region {
  QvpiSize size;
  int channels;
  QvpiBorderType border;
};

// A region and a border that a number stands for: one of the first kinds, with all sides in memory or not.
inline Region RegionOf(int turn, int channels, int kinds = 3) {
  constexpr QvpiBorderType kKinds[] = {qvpBorderReplicate, qvpBorderMirror, qvpBorderConst, qvpBorderReplicateAlt};
  const int width = turn % 5 == 4 ? 257 + turn % 40 : 1 + turn * 7 % 70;
  const int sides = (turn * 3 + turn / 16) % 16 * 16;
  return {{width, 1 + turn % 9}, channels, turn % 17 == 16 ? qvpBorderInMem : kKinds[turn % kinds] | sides};
}

// The image holds just what may be read: the region, and on the sides in memory what the operation reaches.
struct Bordered {
  int left, top, right, bottom;
  Region region;
  Samples image;
  uint8_t value[32];  // beyond the image

  Bordered(const Element& element, const Reach& reach, const Region& r, Guard guard = Guard::kAfter, int gap = 3)
      : left(r.border & qvpBorderInMemLeft ? reach.left : 0),
        top(r.border & qvpBorderInMemTop ? reach.above : 0),
        right(r.border & qvpBorderInMemRight ? reach.right : 0),
        bottom(r.border & qvpBorderInMemBottom ? reach.below : 0),
        region(r),
        image(element, (left + r.size.width + right) * r.channels, top + r.size.height + bottom, gap, guard) {
    Random random(7);
    if (!element.isInteger) image.Fill([&](int, int) { return static_cast<int>(random.Next()) / 1000; });
    constexpr Real kValue[4] = {250, 3, 77, 128};
    for (int c = 0; c < 4; ++c) element.write(value + c * element.bytes, kValue[c]);
  }
  const Element& element() const { return image.element(); }
  const uint8_t* At(int x, int y) const { return image.At((left + x) * region.channels, top + y); }
  Real Pixel(int x, int y, int c) const {
    const int kind = region.border & 15;
    const int column = BorderPosition(kind, x, -left, region.size.width - 1 + right),
              row = BorderPosition(kind, y, -top, region.size.height - 1 + bottom);
    if (column == kConstant || row == kConstant) return element().read(value + c * element().bytes);
    return image((left + column) * region.channels + c, top + row);
  }
};

// Of a scene: where it begins, and what is around it.
struct Part {
  int x, y;
  QvpiSize size;
  QvpiBorderType border;
};
inline Part WholeOf(const Bordered& scene) { return {0, 0, scene.region.size, scene.region.border}; }

// A buffer and a record of the reported sizes. The buffer and every other record end before unreadable pages, so that
// their sizes tell where they begin; the records between begin anywhere.
class Prepared {
 public:
  explicit Prepared(int buffer) : buffer_(std::make_unique<Block>(buffer)) {}
  Prepared(int spec, int buffer) : Prepared(buffer) {
    static int turn = 0;
    ++turn;
    spec_ = std::make_unique<Block>(spec + (turn % 2 != 0 ? turn * 7 % 64 : 0));
  }
  explicit Prepared(const Preparation& preparation, const char* kind = "")
      : Prepared(preparation.sizes().spec, preparation.sizes().buffer) {
    if (preparation.sizes().spec > 0) preparation.Init(record<uint8_t>(), kind);
  }
  template <class Spec>
  Spec* record() const {
    return spec_ ? reinterpret_cast<Spec*>(spec_->data()) : nullptr;
  }
  Qvp8u* buffer() const { return buffer_->data(); }

 private:
  std::unique_ptr<Block> buffer_, spec_;
};

// Bytes of a buffer: for each sample of the rows under a mask, and others.
struct Bound {
  int64_t perSample, others;
};
constexpr Bound kPlain{64, 65536}, kAmple{192, 1 << 20};

inline void ExpectModest(int buffer, const Bound& most, QvpiSize mask, QvpiSize roi, int channels) {
  EXPECT_LE(buffer, most.perSample * (mask.height + 4) * (roi.width + mask.width) * channels + most.others);
}

// Filters a part of a scene; `others` are its destination and what else it takes.
inline QvpStatus Filter(const Export& function, const Bordered& scene, const Part& part, const Prepared& prepared,
                        std::vector<Named> others) {
  const Named shared[] = {{"pSrc", {scene.At(part.x, part.y), scene.image.step()}},
                          {"roiSize", part.size},
                          {"dstRoiSize", part.size},
                          {"borderType", part.border},
                          {"borderValue", {scene.value}},
                          {"pSpec", {prepared.record<uint8_t>()}},
                          {"pBuffer", {prepared.buffer()}}};
  others.insert(others.end(), std::begin(shared), std::end(shared));
  return function(others);
}

// Filters all of a scene, with what a filter of a mask is asked for by name. `kind` is that of an Init of several.
inline auto FilterAll(const Export& function, const Bordered& scene, QvpiSize mask, const Bound& most,
                      std::vector<Named> demand, const char* kind = "") {
  const QvpiSize roi = scene.region.size;
  const Preparation preparation(function, roi, demand);
  const int channels = function.name.find("Color") == std::string::npos ? scene.region.channels : 3;
  ExpectModest(preparation.sizes().buffer, most, mask, roi, channels);
  const auto prepared = std::make_shared<Prepared>(preparation, kind);
  return [=, &function, &scene](const Argument& dst) {
    std::vector<Named> others = demand;
    others.push_back({"pDst", dst});
    return Filter(function, scene, WholeOf(scene), *prepared, others);
  };
}

// Compares what run(dst) makes of a scene with expected(x, y, c); alpha that a function keeps is as it was.
template <class Run, class Expected, class Same = bool (*)(Real, Real)>
void ExpectResults(const Export& function, const Bordered& scene, const Run& run, const Expected& expected,
                   const std::string& about = "", Guard guard = Guard::kAfter, const Same& isSame = AreSame) {
  const Name name(function.name);
  const Region& r = scene.region;
  const Samples dst(name.To(), r.size.width * r.channels, r.size.height, 8, guard), before(dst);
  ASSERT_EQ(run(dst), 0) << function.name;
  for (int y = 0; y < r.size.height; ++y) {
    for (int i = 0; i < r.size.width * r.channels; ++i) {
      const int x = i / r.channels, c = i % r.channels;
      const bool isKept = name.written == 3 && c == 3;
      const Real value = isKept ? before(i, y) : expected(x, y, c);
      ASSERT_TRUE(isKept ? AreSame(dst(i, y), value) : isSame(dst(i, y), value))
          << dst(i, y) << " for " << value << " of " << function.name << ' ' << about << " border " << r.border
          << " region " << r.size.width << 'x' << r.size.height << " at " << x << ',' << y << " channel " << c;
    }
  }
}

// The same for an operation that is told by its window: expected(pixel) with pixel(dx, dy) around the result's place.
template <class Run, class Expected>
void ExpectWindows(const Export& function, const Bordered& scene, const Run& run, const Expected& expected,
                   const std::string& about = "", Guard guard = Guard::kAfter) {
  const auto at = [&](int x, int y, int c) -> Real {
    return expected([&](int dx, int dy) { return scene.Pixel(x + dx, y + dy, c); });
  };
  ExpectResults(function, scene, run, at, about, guard);
}

inline std::string Shown(QvpiSize mask) { return std::to_string(mask.width) + "x" + std::to_string(mask.height); }

}  // namespace test
