// Steps of qvpi_filter.h: borders, and the general filter.
#include <vector>

#include "examples/demo.h"

namespace demo {
namespace {

// A quarter of the picture in the middle of a tile that is as large as the picture: the border is what is seen best.
struct Framed {
  QvpiSize inner;
  int top, left;
  explicit Framed(QvpiSize size)
      : inner{(size.width + 1) / 2, (size.height + 1) / 2}, top(size.height / 4), left(size.width / 4) {}
};

// What a copy into a border reads and writes for each pixel of the result.
constexpr int kFramedBytes = 1 + 3;

void Borders(Demo& demo) {
  const Rgb& photo = demo.photo();
  const QvpiSize size = photo.size();
  const Framed f(size);
  const Qvp8u* const src = photo.At(f.left, f.top);
  const Qvp8u blue[3] = {52, 92, 140};
  Rgb image(size);
  demo.Time(size, kFramedBytes,
            CALL(qvpiCopyConstBorder_8u_C3R, src, photo.step(), f.inner, image.data(), image.step(), size, f.top,
                 f.left, blue));
  demo.Show("Middle in a constant border", image);
  demo.Time(size, kFramedBytes,
            CALL(qvpiCopyReplicateBorder_8u_C3R, src, photo.step(), f.inner, image.data(), image.step(), size, f.top,
                 f.left));
  demo.Show("Edge pixels repeated", image);
  demo.Time(
      size, kFramedBytes,
      CALL(qvpiCopyMirrorBorder_8u_C3R, src, photo.step(), f.inner, image.data(), image.step(), size, f.top, f.left));
  demo.Show("Mirrored at the edges", image);
}

// Pixels as single numbers, which is what there is to wrap: RGBA as 32 bits.
void WrappedBorder(Demo& demo) {
  const Rgb& photo = demo.photo();
  const QvpiSize size = photo.size();
  const Framed f(size);
  const int order[4] = {0, 1, 2, 3};
  Rgba from(size), image(size);
  Require(qvpiSwapChannels_8u_C3C4R(photo.data(), photo.step(), from.data(), from.step(), size, order, 255));
  const auto* src = reinterpret_cast<const Qvp32s*>(from.At(f.left, f.top));
  auto* dst = reinterpret_cast<Qvp32s*>(image.data());
  demo.Time(size, 1 + 4,
            CALL(qvpiCopyWrapBorder_32s_C1R, src, from.step(), f.inner, dst, image.step(), size, f.top, f.left));
  demo.Show("Wrapped around", image);
}

struct Kernel {
  const char* caption;
  QvpiSize size;
  std::vector<Qvp16s> values;
  int divisor, offset;
};

void Filter(Demo& demo, const Kernel& kernel) {
  const Rgb& photo = demo.photo();
  const QvpiSize size = photo.size();
  int specSize, bufferSize;
  Require(qvpiFilterBorderGetSize(kernel.size, size, qvp8u, qvp16s, 3, &specSize, &bufferSize));
  std::vector<Qvp8u> memory(specSize), buffer(bufferSize);
  auto* spec = reinterpret_cast<QvpiFilterBorderSpec*>(memory.data());
  Require(qvpiFilterBorderInit_16s(kernel.values.data(), kernel.size, kernel.divisor, qvp8u, 3, qvpRoundNear, spec));
  Require(qvpiFilterBorderSetMode(qvpAlgHintFast, kernel.offset, spec));
  Rgb image(size);
  demo.Time(size, 3 + 3,
            CALL(qvpiFilterBorder_8u_C3R, photo.data(), photo.step(), image.data(), image.step(), size,
                 qvpBorderReplicate, nullptr, spec, buffer.data()));
  demo.Show(kernel.caption, image);
}

}  // namespace

void FilterSteps(Demo& demo) {
  Borders(demo);
  WrappedBorder(demo);
  Filter(demo, {"Blurred, box of 15x15", {15, 15}, std::vector<Qvp16s>(15 * 15, 1), 15 * 15, 0});
  Filter(demo, {"Sharpened", {3, 3}, {0, -1, 0, -1, 5, -1, 0, -1, 0}, 1, 0});
  Filter(demo, {"Embossed", {3, 3}, {2, 1, 0, 1, 0, -1, 0, -1, -2}, 1, 128});
  Filter(demo, {"Edges", {3, 3}, {-1, -1, -1, -1, 8, -1, -1, -1, -1}, 1, 0});
}

}  // namespace demo
