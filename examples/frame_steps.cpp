// Frames with subsampled chroma: the picture as 4:2:0, as video and JPEG files have it.
#include <algorithm>
#include <utility>
#include <vector>

#include "examples/demo.h"

namespace demo {
namespace {

Qvp8u Rounded(double value) { return static_cast<Qvp8u>(std::clamp(value + 0.5, 0.0, 255.0)); }

// Luma and two planes of chroma, each half as wide and high.
struct Frame {
  Grey y, u, v;
  const Qvp8u* from[3];
  Qvp8u* to[3];
  int step[3];

  explicit Frame(QvpiSize size)
      : y(size),
        u({(size.width + 1) / 2, (size.height + 1) / 2}),
        v(u.size()),
        from{y.data(), u.data(), v.data()},
        to{y.data(), u.data(), v.data()},
        step{y.step(), u.step(), v.step()} {}
};

// By the coefficients of JPEG files; chroma is that of the first of four pixels.
Frame FrameOf(const Rgb& photo) {
  Frame frame(photo.size());
  for (int y = 0; y < photo.size().height; ++y) {
    for (int x = 0; x < photo.size().width; ++x) {
      const Qvp8u* const c = photo.At(x, y);
      *frame.y.At(x, y) = Rounded(0.299 * c[0] + 0.587 * c[1] + 0.114 * c[2]);
      if (x % 2 != 0 || y % 2 != 0) continue;
      *frame.u.At(x / 2, y / 2) = Rounded(128 - 0.168736 * c[0] - 0.331264 * c[1] + 0.5 * c[2]);
      *frame.v.At(x / 2, y / 2) = Rounded(128 + 0.5 * c[0] - 0.418688 * c[1] - 0.081312 * c[2]);
    }
  }
  return frame;
}

Rgb PhotoOf(const Frame& frame) {
  Rgb photo(frame.y.size());
  for (int y = 0; y < photo.size().height; ++y) {
    for (int x = 0; x < photo.size().width; ++x) {
      const double luma = *frame.y.At(x, y), u = *frame.u.At(x / 2, y / 2) - 128, v = *frame.v.At(x / 2, y / 2) - 128;
      Qvp8u* const c = photo.At(x, y);
      c[0] = Rounded(luma + 1.402 * v);
      c[1] = Rounded(luma - 0.344136 * u - 0.714136 * v);
      c[2] = Rounded(luma + 1.772 * u);
    }
  }
  return photo;
}

void Decimations(Demo& demo, const Frame& frame) {
  constexpr struct {
    const char* caption;
    QvpiDecimateFraction code;
    int to, of;
  } kFractions[] = {{"4:2:0, three quarters", qvpDecimate3of4, 3, 4},
                    {"4:2:0, three eighths", qvpDecimate3of8, 3, 8},
                    {"4:2:0, an eighth", qvpDecimate1of8, 1, 8}};
  for (const auto& fraction : kFractions) {
    const QvpiSize all = frame.y.size();
    const Frame small({all.width * fraction.to / fraction.of, all.height * fraction.to / fraction.of});
    demo.Time(
        all, 1,
        CALL(qvpiDecimate420_8u_P3R, frame.from, frame.step, small.to, small.step, small.y.size(), fraction.code));
    demo.Show(fraction.caption, PhotoOf(small));
  }
}

// A record and a work buffer for frames of bytes.
class FrameResizer {
 public:
  FrameResizer(QvpiSize from, QvpiSize to, int method, int site) {
    int record = 0, initBuffer = 0, buffer = 0;
    Require(qvpiResize420GetSize(from, to, qvp8u, method, 0, &record, &initBuffer));
    record_.resize(record);
    std::vector<Qvp8u> temporary(initBuffer);
    if (method == qvpInterpolationLinear) Require(qvpiResize420LinearInit(from, to, qvp8u, site, spec()));
    if (method == qvpInterpolationSuper) Require(qvpiResize420SuperInit(from, to, qvp8u, site, spec()));
    if (method == qvpInterpolationLanczos) {
      Require(qvpiResize420LanczosInit(from, to, qvp8u, 3, site, spec(), temporary.data()));
    }
    Require(qvpiResize420GetBufferSize(spec(), to, &buffer));
    buffer_.resize(buffer);
  }

  QvpiResizeChromaSpec* spec() { return reinterpret_cast<QvpiResizeChromaSpec*>(record_.data()); }
  Qvp8u* buffer() { return buffer_.data(); }

 private:
  std::vector<Qvp8u> record_, buffer_;
};

void Resizes(Demo& demo, const Frame& frame) {
  const QvpiSize all = frame.y.size();
  QvpiSize size{};
  Require(qvpiResize420GetDstSize(all, 0.3, 0.3, &size));
  const Frame small(size);
  FrameResizer linear(all, size, qvpInterpolationLinear, qvpChromaTopLeft);
  demo.Time(size, 1,
            CALL(qvpiResize420Linear_8u_P3R, frame.from, frame.step, small.to, small.step, {0, 0}, size,
                 qvpBorderReplicate, linear.spec(), linear.buffer()));
  demo.Show("4:2:0 to 0.3, linear", PhotoOf(small));
  FrameResizer lanczos(all, size, qvpInterpolationLanczos, qvpChromaTopLeft);
  demo.Time(size, 1,
            CALL(qvpiResize420Lanczos_8u_P3R, frame.from, frame.step, small.to, small.step, {0, 0}, size,
                 qvpBorderReplicate, lanczos.spec(), lanczos.buffer()));
  demo.Show("4:2:0 to 0.3, Lanczos", PhotoOf(small));
  FrameResizer super(all, size, qvpInterpolationSuper, qvpChromaTopLeft);
  demo.Time(size, 1,
            CALL(qvpiResize420Super_8u_P3R, frame.from, frame.step, small.to, small.step, {0, 0}, size, super.spec(),
                 super.buffer()));
  demo.Show("4:2:0 to 0.3, means", PhotoOf(small));
}

// A detail, four times as large: colours move against luma where the site is not the frame's.
void Sites(Demo& demo, const Frame& frame) {
  const QvpiSize all = frame.y.size(), part{all.width / 8 * 2, all.height / 8 * 2};
  const QvpiSize size{4 * part.width, 4 * part.height};
  if (part.width < 4 || part.height < 4) return;
  const Qvp8u* const from[] = {frame.y.At(all.width / 4 * 2 - part.width, part.height),
                               frame.u.At(all.width / 4 - part.width / 2, part.height / 2),
                               frame.v.At(all.width / 4 - part.width / 2, part.height / 2)};
  for (const auto& [caption, site] : {std::pair{"Four times, chroma left", qvpChromaLeft},
                                      std::pair{"Four times, chroma centred", qvpChromaCentre}}) {
    const Frame large(size);
    FrameResizer resizer(part, size, qvpInterpolationLinear, site);
    demo.Time(size, 1,
              CALL(qvpiResize420Linear_8u_P3R, from, frame.step, large.to, large.step, {0, 0}, size, qvpBorderReplicate,
                   resizer.spec(), resizer.buffer()));
    demo.Show(caption, PhotoOf(large));
  }
}

}  // namespace

void FrameSteps(Demo& demo) {
  if (demo.photo().size().width < 16 || demo.photo().size().height < 16) return;
  const Frame frame = FrameOf(demo.photo());
  Decimations(demo, frame);
  Resizes(demo, frame);
  Sites(demo, frame);
}

}  // namespace demo
