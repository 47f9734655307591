// Resizes of frames, by the definition: taps and weights of each sample, in double.
#include <utility>
#include <vector>

#include "tests/support/frames.h"
#include "tests/support/name.h"
#include "tests/support/resizes.h"

namespace {
using test::Axis;
using test::CallNamed;
using test::Component;
using test::Element;
using test::ElementOf;
using test::Format;
using test::Frame;
using test::kLinear;
using test::kSuper;
using test::Resizing;

struct Manner {
  Resizing resizing;
  int site = qvpChromaCentre, border = qvpBorderReplicate;
};

std::ostream& operator<<(std::ostream& out, const Manner& m) {
  return out << m.resizing.name << m.resizing.lobes << ", site " << m.site << ", border " << m.border;
}

// A record at the end of a page.
class FrameResize {
 public:
  FrameResize(const Element& element, const Format& f, const Manner& m, QvpiSize from, QvpiSize to)
      : format_(f), manner_(m) {
    int bytes = 0, init = 0;
    std::vector<test::Named> arguments{{"srcSize", from},          {"dstSize", to},
                                       {"dataType", element.code}, {"interpolation", m.resizing.interpolation},
                                       {"antialiasing", 0},        {"numLobes", m.resizing.lobes},
                                       {"site", m.site},           {"lumaPlace", f.lumaPlace},
                                       {"pSpecSize", {&bytes}},    {"pInitBufSize", {&init}}};
    EXPECT_EQ(CallNamed(Prefix() + "GetSize", arguments), 0);
    memory_ = std::make_unique<test::Block>(bytes);
    const test::Block buffer(init);
    arguments.insert(arguments.end(), {{"pSpec", {spec()}}, {"pInitBuf", {buffer.data()}}});
    EXPECT_EQ(CallNamed(Prefix() + m.resizing.name + "Init", arguments), 0) << m;
  }
  QvpiResizeChromaSpec* spec() const { return reinterpret_cast<QvpiResizeChromaSpec*>(memory_->data()); }

  // A tile to where it belongs in `dst`, with a buffer at the end of a page.
  QvpStatus operator()(const Frame& src, const Frame& dst, QvpiRect tile) const {
    QvpiPoint at{};
    int bytes = 0;
    const QvpiPoint offset{tile.x, tile.y};
    const QvpiSize size{tile.width, tile.height};
    EXPECT_EQ(CallNamed(Prefix() + "GetSrcOffset", {{"pSpec", {spec()}}, {"dstOffset", offset}, {"pSrcOffset", {&at}}}),
              0);
    EXPECT_EQ(CallNamed(Prefix() + "GetBufferSize", {{"pSpec", {spec()}}, {"dstSize", size}, {"pBufSize", {&bytes}}}),
              0);
    const test::Block buffer(bytes);
    const test::FrameArguments from(src, at), to(dst, offset);
    return CallNamed(
        Prefix() + manner_.resizing.name + "_" + std::string(src.element().name) + "_" + format_.layout + "R",
        {{"pSrc", from.planes()},
         {"srcStep", from.steps()},
         {"pDst", to.planes()},
         {"dstStep", to.steps()},
         {"dstOffset", offset},
         {"dstSize", size},
         {"border", manner_.border},
         {"pSpec", {spec()}},
         {"pBuffer", {buffer.data()}}});
  }

 private:
  std::string Prefix() const { return format_.IsPacked() ? "qvpiResize422" : "qvpiResize420"; }

  Format format_;
  Manner manner_;
  std::unique_ptr<test::Block> memory_;
};

// How far a result may be from the exact value: half a unit for the last rounding, and what inner ones make. Those of
// linear interpolation are five along each axis, of weights, products and a sum: each at most 2^-9 below 65536.
double ToleranceOf(const Resizing& r, bool isByte) {
  if (r.Is(qvpInterpolationLinear)) return isByte ? 0 : 0.5 + 10 * 0x1p-9;
  if (r.Is(qvpInterpolationSuper)) return 0.58;
  return isByte ? 0.6 : 12;  // the kernel comes from a table
}

// Of a component: where chroma lies on luma samples, its own positions and areas are moved.
Axis AxisOf(int from, int to, int length, bool isCosited) {
  Axis axis{from, to, length};
  if (isCosited) axis.origin = 0.25, axis.shift = (1 - static_cast<double>(to) / from) / 4;
  return axis;
}

void ExpectByDefinition(const Frame& src, const Frame& dst, const Manner& m) {
  const Resizing& r = m.resizing;
  const bool isByte = src.element().bytes == 1;
  std::vector<std::vector<test::Tap>> across[2], down[2];
  for (const bool isChroma : {false, true}) {
    const QvpiSize s = src.format.SizeOf(src.luma, isChroma), d = src.format.SizeOf(dst.luma, isChroma);
    const bool isLeft = isChroma && m.site != qvpChromaCentre;
    const bool isTop = isChroma && m.site == qvpChromaTopLeft && !src.format.IsPacked();
    across[isChroma] = AllTapsOf(r, AxisOf(src.luma.width, dst.luma.width, s.width, isLeft), d.width);
    down[isChroma] = AllTapsOf(r, AxisOf(src.luma.height, dst.luma.height, s.height, isTop), d.height);
  }
  const auto place = [&](int i, int length, int before, int after) {
    const int high = length - 1 + (m.border & after ? r.Reach() : 0);
    return test::BorderPosition(m.border & 15, i, m.border & before ? -r.Reach() : 0, high);
  };
  dst.ForEach([&](const Component& c, int x, int y) {
    const QvpiSize size = src.format.SizeOf(src.luma, c.isChroma);
    const auto at = [&](int u, int v) {
      return src(c, place(u, size.width, qvpBorderInMemLeft, qvpBorderInMemRight),
                 place(v, size.height, qvpBorderInMemTop, qvpBorderInMemBottom));
    };
    const auto &columns = across[c.isChroma][x], &rows = down[c.isChroma][y];
    const double sum =
        isByte && r.Is(qvpInterpolationLinear) ? InterpolatedBytes(columns, rows, at) : Interpolated(columns, rows, at);
    const double expected = std::clamp(sum, 0.0, static_cast<double>(src.element().highest));
    ASSERT_NEAR(static_cast<double>(dst(c, x, y)), expected, ToleranceOf(r, isByte))
        << src.format.layout << ' ' << m << ", " << src.luma.width << 'x' << src.luma.height << " to " << dst.luma.width
        << 'x' << dst.luma.height << ", plane " << c.plane << " at " << x << ',' << y;
  });
}

// The whole by the definition, and tiles by the whole.
void Check(const Element& element, const Format& format, const Manner& m, QvpiSize from, QvpiSize to, QvpiSize tile) {
  const int margin = m.border & qvpBorderInMem ? m.resizing.Reach() : 0;
  const auto guard = from.width % 4 < 2 ? test::Guard::kAfter : test::Guard::kBefore;
  const Frame src(element, format, from, margin, guard, from.height % 2 != 0),
      dst(element, format, to, 0, guard, to.height % 3 == 0), tiled(element, format, to, 0, guard);
  const FrameResize resize(element, format, m, from, to);
  ASSERT_EQ(resize(src, dst, {0, 0, to.width, to.height}), 0);
  ExpectByDefinition(src, dst, m);
  for (int y = 0; y < to.height; y += tile.height) {
    for (int x = 0; x < to.width; x += tile.width) {
      ASSERT_EQ(resize(src, tiled, {x, y, std::min(tile.width, to.width - x), std::min(tile.height, to.height - y)}),
                0);
    }
  }
  dst.ForEach([&](const Component& c, int x, int y) {
    ASSERT_EQ(tiled(c, x, y), dst(c, x, y))
        << format.layout << ' ' << m << " plane " << c.plane << ' ' << x << ',' << y;
  });
}

const Format kFormats[] = {{"P2"}, {"P3"}, {"C2"}, {"C2", qvpLumaSecond}};
const Resizing kMethods[] = {kLinear, test::kLanczos2, test::kLanczos3, kSuper};

// Packed frames have whole pairs of columns.
struct Sizes {
  QvpiSize from, to;
};
const std::vector<Sizes> kAny = {{{12, 12}, {70, 21}}, {{150, 12}, {46, 11}}, {{22, 24}, {23, 14}},
                                 {{13, 11}, {24, 24}}, {{133, 13}, {80, 8}},  {{91, 15}, {210, 7}},
                                 {{22, 7}, {24, 14}},  {{20, 6}, {2100, 5}}},
                         kReduced = {{{150, 20}, {90, 12}}, {{24, 23}, {22, 14}}, {{300, 8}, {150, 4}},
                                     {{92, 15}, {6, 3}},    {{72, 15}, {72, 15}}, {{90, 14}, {90, 7}},
                                     {{70, 14}, {50, 14}},  {{133, 13}, {80, 8}}, {{91, 15}, {7, 3}},
                                     {{5, 5}, {3, 4}},      {{71, 15}, {71, 15}}, {{150, 12}, {46, 11}}};

void CheckSizes(const Element& element, const Format& format, const Manner& m) {
  const bool isSuper = m.resizing.Is(qvpInterpolationSuper);
  for (const auto& [from, to] : isSuper ? kReduced : kAny) {
    const bool isPairs = from.width % 2 == 0 && to.width % 2 == 0;
    if (format.IsPacked() ? !isPairs : !m.resizing.Fits((std::min(from.width, from.height) + 1) / 2, 1)) continue;
    Check(element, format, m, from, to, {6, 4});
    Check(element, format, m, from, to, {(to.width / 2 + 1) / 2 * 2, 2});
  }
}

TEST(FrameResize, IsEachComponentByItsDefinition) {
  for (const Format& format : kFormats) {
    for (const char* type : {"8u", "16u"}) {
      for (const int site : {qvpChromaCentre, qvpChromaLeft, qvpChromaTopLeft}) {
        for (const Resizing& r : kMethods) {
          const int border = r.lobes == 3 ? qvpBorderMirror | (0x10 << site) : +qvpBorderReplicate;
          CheckSizes(ElementOf(type), format, {r, site, border});
          if (r.Is(qvpInterpolationLinear)) {
            CheckSizes(ElementOf(type), format, {r, site, qvpBorderMirror | (0x10 << site)});
          }
          if (r.Reach() > 0 && r.lobes < 3) CheckSizes(ElementOf(type), format, {r, site, qvpBorderInMem});
          if (HasFatalFailure()) return;
        }
      }
    }
  }
}

// Luma, and with even sizes chroma between it, has the bits of its own resize as an image.
TEST(FrameResize, HasTheBitsOfImages) {
  constexpr QvpiSize kSizes[][2] = {{{190, 60}, {114, 36}},
                                    {{256, 34}, {128, 18}},
                                    {{194, 26}, {62, 22}},
                                    {{700, 40}, {16, 10}},
                                    {{88, 32}, {88, 32}}};
  for (const Format& format : kFormats) {
    for (const char* type : {"8u", "16u"}) {
      for (const Resizing& r : kMethods) {
        for (const auto& [from, to] : kSizes) {
          const Element& element = ElementOf(type);
          const Frame src(element, format, from), dst(element, format, to);
          const FrameResize resize(element, format, {r}, from, to);
          ASSERT_EQ(resize(src, dst, {0, 0, to.width, to.height}), 0);
          for (const Component& c : format.Components()) {
            const QvpiSize s = format.SizeOf(from, c.isChroma), d = format.SizeOf(to, c.isChroma);
            test::Bordered plane(element, {}, {s, 1, qvpBorderReplicate}, test::Guard::kAfter, 2);
            plane.image.Fill([&](int x, int y) { return src(c, x, y); });
            test::Samples found(element, d.width, d.height, 0);
            found.Fill([&](int x, int y) { return dst(c, x, y); });
            ExpectSame(found, Resized(FunctionOf(r, type, 1), test::ImageResize(r, type, s, d), plane),
                       format.layout + ' ' + r.name + ' ' + type + ", plane " + std::to_string(c.plane));
          }
        }
      }
    }
  }
}

TEST(FrameResize, GivesTheValuesOfItsText) {
  const auto chroma = [](int site) {
    const Element& words = ElementOf("16u");
    const Frame src(words, {"P3"}, {8, 4}), dst(words, {"P3"}, {6, 4});
    for (int i = 0; i < 8; ++i) src.images[1]->Put(i % 4, i / 4, 60000 + 600 * (i % 4));
    const FrameResize resize(words, {"P3"}, {kLinear, site}, {8, 4}, {6, 4});
    EXPECT_EQ(resize(src, dst, {0, 0, 6, 4}), 0);
    const Component u = src.format.Components()[1];
    return std::vector<test::Real>{dst(u, 0, 0), dst(u, 1, 0), dst(u, 2, 1)};
  };
  EXPECT_EQ(chroma(qvpChromaCentre), (std::vector<test::Real>{60100, 60900, 61700}));
  EXPECT_EQ(chroma(qvpChromaLeft), (std::vector<test::Real>{60050, 60850, 61650}));
  const auto size = [](QvpiSize src, double x, double y) {
    QvpiSize dst{};
    EXPECT_EQ(qvpiResize420GetDstSize(src, x, y, &dst), 0);
    return std::pair(dst.width, dst.height);
  };
  EXPECT_EQ(size({1920, 1080}, 0.6, 0.6), std::pair(1152, 648));
  EXPECT_EQ(size({1918, 5}, 0.5, 1), std::pair(960, 5));
  EXPECT_EQ(size({1, 7}, 0.01, 1.5), std::pair(1, 10));
  QvpiSize dst{};
  EXPECT_EQ(qvpiResize422GetDstSize({1920, 1081}, 0.3, 0.5, &dst), 0);
  EXPECT_EQ(std::pair(dst.width, dst.height), std::pair(576, 541));
}

TEST(FrameResize, HasLimitsOfSizesAndFactors) {
  QvpiSize size{};
  EXPECT_EQ(qvpiResize422GetDstSize({3, 2}, 1, 1, &size), qvpStatusSize);
  for (const double factor : {2147483648.0, 1e300, 6e8}) {
    EXPECT_EQ(qvpiResize420GetDstSize({4, 4}, 1, factor, &size), qvpStatusSizeOverflow) << factor;
  }
  int bytes = 0, init = 0;
  const auto get = [&](QvpiSize s, QvpiSize d, int method, int type = qvp8u) {
    return qvpiResize420GetSize(s, d, type, method, 1, &bytes, &init);
  };
  EXPECT_EQ(get({0, -1}, {1, 1}, 0), qvpStatusNoOperation);
  for (const QvpiSize empty : {QvpiSize{0, 8}, {8, 0}}) {
    EXPECT_EQ(get(empty, {8, 8}, 2), qvpStatusNoOperation);
    EXPECT_EQ(get({8, 8}, empty, 2), qvpStatusNoOperation);
  }
  EXPECT_EQ(get({8, 8}, {1, 1}, qvpInterpolationCubic), qvpStatusInterpolation);
  EXPECT_EQ(get({2, 2}, {1, 1}, qvpInterpolationLinear), qvpStatusSize);
  EXPECT_EQ(get({3, 3}, {1, 1}, qvpInterpolationLinear), qvpStatusAntialiasIgnored);
  EXPECT_EQ(get({6, 7}, {1, 1}, qvpInterpolationLanczos), qvpStatusSize);
  EXPECT_EQ(get({7, 7}, {8, 8}, qvpInterpolationSuper), qvpStatusSize);
  EXPECT_EQ(get({8, 8}, {INT32_MAX, 8}, qvpInterpolationLinear), qvpStatusSizeOverflow);
  EXPECT_EQ(bytes, 0);
  int image = 0;
  EXPECT_EQ(get({80, 8}, {31, 5}, qvpInterpolationLanczos, qvp16u), qvpStatusAntialiasIgnored);
  qvpiResizeGetSize_8u({80, 8}, {31, 5}, qvpInterpolationLanczos, 0, &image, &init);
  EXPECT_EQ(bytes, 128 + 2 * image);
  EXPECT_EQ(qvpiResize422GetSize({8, 8}, {5, 8}, qvp8u, 2, 0, &bytes, &init), qvpStatusSize);
}

TEST(FrameResize, TellsRecordsApart) {
  alignas(64) uint8_t memory[8192];
  Qvp8u buffer[64];
  auto* const spec = reinterpret_cast<QvpiResizeChromaSpec*>(memory);
  const auto lanczos = [&](QvpiSize s, unsigned lobes) {
    return qvpiResize422LanczosInit(s, {2, 2}, qvp8u, lobes, qvpChromaLeft, qvpLumaSecond, spec, buffer);
  };
  int bytes = 0;
  EXPECT_EQ(lanczos({12, 6}, 3), 0);
  EXPECT_EQ(lanczos({0, -1}, 0), qvpStatusNoOperation);
  EXPECT_EQ(qvpiResize422GetBufferSize(spec, {2, 2}, &bytes), 0) << "a length of 0 leaves the record";
  EXPECT_EQ(qvpiResize420GetBufferSize(spec, {2, 2}, &bytes), qvpStatusContextMatch);
  EXPECT_EQ(lanczos({12, 5}, 2), 0);
  EXPECT_EQ(lanczos({12, 5}, 3), qvpStatusSize);
  EXPECT_EQ(qvpiResize422GetBufferSize(spec, {2, 2}, &bytes), qvpStatusContextMatch);
}

TEST(FrameResize, ChecksCallsInOrder) {
  const Element &two = ElementOf("16u"), &one = ElementOf("8u");
  const FrameResize words(two, {"P3"}, {kLinear}, {16, 16}, {10, 10}),
      bytes(one, {"P3"}, {kLinear}, {16, 16}, {10, 10});
  const Frame src(two, {"P3"}, {16, 16}), dst(two, {"P3"}, {10, 10});
  Qvp8u buffer[4096];
  const int odd[] = {32, 17, 16};
  const Qvp16u* from[3];
  Qvp16u* to[3];
  for (int i = 0; i < 3; ++i) from[i] = src.images[i]->As<Qvp16u>(), to[i] = dst.images[i]->As<Qvp16u>();
  const auto call = [&](const int* step, QvpiPoint at, QvpiSize size, const FrameResize& resize) {
    return qvpiResize420Linear_16u_P3R(from, step, to, dst.step, at, size, qvpBorderMirror, resize.spec(), buffer);
  };
  EXPECT_EQ(call(odd, {1, -1}, {0, -1}, bytes), qvpStatusNoOperation);
  EXPECT_EQ(call(odd, {1, -1}, {1, 1}, words), qvpStatusStep);
  EXPECT_EQ(call(src.step, {1, 10}, {1, 1}, words), qvpStatusOutOfRange);
  EXPECT_EQ(call(src.step, {2, 1}, {1, 1}, bytes), qvpStatusMisalignedOffset);
  EXPECT_EQ(call(src.step, {2, 2}, {1, 1}, bytes), qvpStatusContextMatch);
  EXPECT_EQ(call(src.step, {0, 0}, {11, 4}, words), qvpStatusSizeWarning);
  EXPECT_EQ(qvpiResize420Super_16u_P3R(from, src.step, to, dst.step, {0, 0}, {1, 1}, words.spec(), buffer),
            qvpStatusContextMatch);
}

// What a tile reads lies in the rectangle that is told for it, widened by the border: pixels elsewhere do not count.
TEST(FrameResize, ReadsWhatItTells) {
  const Element& bytes = ElementOf("8u");
  const QvpiSize from{61, 45}, to{38, 31};
  for (const Resizing& r : {kLinear, test::kLanczos3, kSuper}) {
    for (const int site : {qvpChromaCentre, qvpChromaLeft, qvpChromaTopLeft}) {
      const FrameResize resize(bytes, {"P2"}, {r, site}, from, to);
      QvpiBorderSize border{};
      ASSERT_EQ(qvpiResize420GetBorderSize(resize.spec(), &border), 0);
      for (int x = 0; x < to.width; x += 10) {
        const QvpiRect tile{x, 12, std::min(10, to.width - x), 6};
        QvpiPoint at{};
        QvpiSize size{};
        ASSERT_EQ(qvpiResize420GetSrcRoi(resize.spec(), tile, &at, &size), 0);
        const Frame src(bytes, {"P2"}, from), other(bytes, {"P2"}, from), dst(bytes, {"P2"}, to),
            again(bytes, {"P2"}, to);
        const auto isTold = [](int i, int first, int n, unsigned before, unsigned after) {
          return i >= first - static_cast<int>(before) && i < first + n + static_cast<int>(after);
        };
        src.ForEach([&](const Component& c, int u, int v) {
          const int half = c.isChroma ? 2 : 1;
          if (isTold(u * half, at.x, size.width, border.left, border.right) &&
              isTold(v * half, at.y, size.height, border.top, border.bottom)) {
            *other.At(c, u, v) = *src.At(c, u, v);
          }
        });
        ASSERT_EQ(resize(src, dst, tile), 0);
        ASSERT_EQ(resize(other, again, tile), 0);
        dst.ForEach(tile, [&](const Component& c, int u, int v) {
          ASSERT_EQ(dst(c, u, v), again(c, u, v)) << r.name << ", tile at " << x << ", plane " << c.plane;
        });
      }
    }
  }
}

}  // namespace
