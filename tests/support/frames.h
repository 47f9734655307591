// Frames whose chroma is subsampled, in memory that ends or begins with their planes.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "tests/support/exports.h"

namespace test {

// Where the samples of luma or of a chroma component lie: offset + stride * x in a row of a plane.
struct Component {
  int plane, offset, stride;
  bool isChroma;
};

struct Format {
  std::string layout;
  int lumaPlace = qvpLumaFirst;

  bool IsPacked() const { return layout == "C2"; }
  int Planes() const { return IsPacked() ? 1 : layout[1] - '0'; }
  // Samples of a pixel, or of a packed pair of them.
  int UnitOf(int plane) const { return IsPacked() ? 4 : layout == "P2" && plane > 0 ? 2 : 1; }
  std::vector<Component> Components() const {
    const int luma = lumaPlace == qvpLumaFirst ? 0 : 1;
    if (IsPacked()) return {{0, luma, 2, false}, {0, 1 - luma, 4, true}, {0, 3 - luma, 4, true}};
    if (layout == "P2") return {{0, 0, 1, false}, {1, 0, 2, true}, {1, 1, 2, true}};
    return {{0, 0, 1, false}, {1, 0, 1, true}, {2, 0, 1, true}};
  }
  QvpiSize SizeOf(QvpiSize luma, bool isChroma) const {
    if (!isChroma) return luma;
    return {(luma.width + 1) / 2, IsPacked() ? luma.height : (luma.height + 1) / 2};
  }
};

// Planes of random samples, with steps of their own and `margin` units around them; those that go upwards begin with
// the last row in memory.
struct Frame {
  Format format;
  QvpiSize luma;
  std::vector<std::unique_ptr<Samples>> images;
  uint8_t* data[3] = {};
  int step[3] = {};

  Frame(const Element& element, const Format& f, QvpiSize size, int margin = 0, Guard guard = Guard::kAfter,
        bool isUpwards = false)
      : format(f), luma(size) {
    for (int i = 0; i < f.Planes(); ++i) {
      const QvpiSize plane = f.SizeOf(luma, i > 0);
      const int row = f.IsPacked() ? 2 * plane.width : f.UnitOf(i) * plane.width, rows = plane.height + 2 * margin;
      const int around = margin * f.UnitOf(i);
      images.push_back(std::make_unique<Samples>(element, row + 2 * around, rows, (3 * i + 2) * element.bytes, guard));
      step[i] = isUpwards ? -images[i]->step() : images[i]->step();
      data[i] = images[i]->At(around, isUpwards ? margin + plane.height - 1 : margin);
    }
  }

  const Element& element() const { return images[0]->element(); }
  uint8_t* At(int plane, int sample, int y) const {
    return data[plane] + ptrdiff_t{y} * step[plane] + ptrdiff_t{sample} * element().bytes;
  }
  uint8_t* At(const Component& c, int x, int y) const { return At(c.plane, c.offset + c.stride * x, y); }
  Real operator()(const Component& c, int x, int y) const { return element().read(At(c, x, y)); }
  // visit(component, x, y) for each sample of the whole frame or of a part, which begins with whole chroma samples.
  template <class Visit>
  void ForEach(QvpiRect part, const Visit& visit) const {
    for (const Component& c : format.Components()) {
      const QvpiSize first = format.SizeOf({part.x, part.y}, c.isChroma);
      const QvpiSize size = format.SizeOf({part.width, part.height}, c.isChroma);
      for (int i = 0; i < size.width * size.height; ++i) {
        visit(c, first.width + i % size.width, first.height + i / size.width);
      }
    }
  }
  template <class Visit>
  void ForEach(const Visit& visit) const {
    ForEach({0, 0, luma.width, luma.height}, visit);
  }
};

// The arguments that planes are, from the luma pixel at `at` on, whose coordinates are even where chroma is halved.
class FrameArguments {
 public:
  FrameArguments(const Frame& frame, QvpiPoint at) : frame_(frame) {
    const Format& format = frame.format;
    for (int i = 0; i < format.Planes(); ++i) {
      const int column = format.IsPacked() ? 2 * at.x : i > 0 ? at.x / 2 * format.UnitOf(i) : at.x;
      planes_[i] = frame.At(i, column, i > 0 ? at.y / 2 : at.y);
    }
  }
  Argument planes() const { return frame_.format.IsPacked() ? Argument(planes_[0]) : Argument(planes_); }
  Argument steps() const { return frame_.format.IsPacked() ? Argument(frame_.step[0]) : Argument(frame_.step); }

 private:
  const Frame& frame_;
  uint8_t* planes_[3] = {};
};

}  // namespace test
