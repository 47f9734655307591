// Resizes of frames, by the definition: taps and weights of each sample, in double.
#include <cmath>
#include <memory>
#include <stdexcept>
#include <utility>
#include <vector>

#include "tests/support/name.h"
#include "tests/support/reference.h"

namespace {
using test::Export;
using test::Name;

// Where the samples of luma and of both chroma components lie: place(x) = offset + stride * x in a row of a plane.
struct Component {
  int plane, offset, stride;
  bool isChroma;
};

struct Format {
  std::string layout;
  int lumaPlace = qvpLumaFirst;

  bool IsPacked() const { return layout == "C2"; }
  int Planes() const { return IsPacked() ? 1 : layout[1] - '0'; }
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

// Planes with steps of their own and pixels around them; those that go upwards begin with the last row in memory.
template <class T>
struct Frame {
  Format format;
  int margin;  // in the pixels of each plane, or in pairs of packed ones
  std::vector<std::unique_ptr<test::Image<T>>> images;
  T* data[3] = {};
  int step[3] = {};

  Frame(const Format& f, QvpiSize luma, int around, test::Guard guard, bool isUpwards = false)
      : format(f), margin(around) {
    for (int i = 0; i < f.Planes(); ++i) {
      const QvpiSize size = f.SizeOf(luma, i > 0);
      const int unit = UnitOf(i), rows = size.height + 2 * margin, gap = (3 * i + 2) * static_cast<int>(sizeof(T));
      images.push_back(std::make_unique<test::Image<T>>(RowOf(i, size.width) + 2 * margin * unit, rows, gap, guard));
      step[i] = images[i]->step();
      data[i] = reinterpret_cast<T*>(images[i]->bytes() + ptrdiff_t{margin} * step[i]) + margin * unit;
      if (!isUpwards) continue;
      data[i] = At(i, 0, size.height - 1);
      step[i] = -step[i];
    }
  }

  int UnitOf(int plane) const { return format.IsPacked() ? 4 : format.layout == "P2" && plane > 0 ? 2 : 1; }
  int RowOf(int plane, int width) const { return format.IsPacked() ? 2 * width : UnitOf(plane) * width; }
  T* At(int plane, int sample, int y) const {
    return reinterpret_cast<T*>(reinterpret_cast<uint8_t*>(data[plane]) + ptrdiff_t{y} * step[plane]) + sample;
  }
  T operator()(const Component& c, int x, int y) const {
    T value;
    std::memcpy(&value, At(c.plane, c.offset + c.stride * x, y), sizeof(T));
    return value;
  }
  // Pointers at the luma pixel x, y, whose coordinates are even on the axes on which chroma is halved.
  void PointTo(int x, int y, T** out) const {
    for (int i = 0; i < format.Planes(); ++i) {
      const int column = format.IsPacked() ? 2 * x : i > 0 ? x / 2 * UnitOf(i) : x;
      out[i] = At(i, column, i > 0 ? y / 2 : y);
    }
  }
};

struct Manner {
  int method = qvpInterpolationLinear, lobes = 2, site = qvpChromaCentre, border = qvpBorderReplicate;
};

int LobesOf(const Manner& m) { return m.method == qvpInterpolationLinear ? 1 : m.lobes; }

// One axis of a component.
struct Axis {
  int from, to;  // of luma
  int length;    // of the source
  bool isCosited;
  bool isBeforeInMemory, isAfterInMemory;
};

struct Tap {
  int at;
  double weight;
};

double Lanczos(double t, int lobes) {
  const double pi = 3.14159265358979323846;
  if (t == 0) return 1;
  if (std::abs(t) >= lobes) return 0;
  return std::sin(pi * t) / (pi * t) * std::sin(pi * t / lobes) / (pi * t / lobes);
}

std::vector<Tap> TapsOf(const Manner& m, const Axis& axis, int d) {
  std::vector<Tap> taps;
  const double ratio = static_cast<double>(axis.from) / axis.to;
  if (m.method == qvpInterpolationSuper) {
    const double shift = axis.isCosited ? (1 - 1 / ratio) / 4 : 0;
    const double begin = std::max(0.0, (d - shift) * ratio),
                 end = std::min<double>(axis.length, (d + 1 - shift) * ratio);
    for (int i = static_cast<int>(begin); i < end; ++i) {
      taps.push_back({i, (std::min<double>(end, i + 1) - std::max<double>(begin, i)) / (end - begin)});
    }
    return taps;
  }
  const double o = axis.isCosited ? 0.25 : 0.5, x = (d + o) * axis.from / axis.to - o;
  const int reach = LobesOf(m), first = static_cast<int>(std::floor(x)) - (reach - 1);
  double sum = 0;
  for (int i = first; i < first + 2 * reach; ++i) {
    const double t = x - i;
    const double weight = reach == 1 ? 1 - std::abs(t) : Lanczos(t, reach);
    const int low = axis.isBeforeInMemory ? -reach : 0, high = axis.length - 1 + (axis.isAfterInMemory ? reach : 0);
    const int kind = (m.border & 0xF) == qvpBorderMirror ? +qvpBorderMirror : +qvpBorderReplicate;
    taps.push_back({test::BorderPosition(kind, i, low, high), weight});
    sum += weight;
  }
  for (Tap& tap : taps) tap.weight /= sum;
  return taps;
}

// Linear interpolation of bytes has integer weights and two roundings.
int FixedWeight(const Tap& second) { return static_cast<int>(second.weight * 16384 + 1e-7); }

template <class T>
double Expected(const Frame<T>& src, const Manner& m, const Component& c, const std::vector<Tap>& across,
                const std::vector<Tap>& down) {
  if (sizeof(T) == 1 && m.method == qvpInterpolationLinear) {
    const int w = FixedWeight(across[1]), v = FixedWeight(down[1]);
    const auto row = [&](int y) {
      return (src(c, across[0].at, y) * (16384 - w) + src(c, across[1].at, y) * w + 128) >> 8;
    };
    return (row(down[0].at) * (16384 - v) + row(down[1].at) * v + (1 << 19)) >> 20;
  }
  double sum = 0;
  for (const Tap& y : down) {
    for (const Tap& x : across) sum += y.weight * x.weight * src(c, x.at, y.at);
  }
  return std::clamp<double>(sum, 0, std::numeric_limits<T>::max());
}

// How far a result may be from the exact value: half a unit for the last rounding, and what inner ones make.
template <class T>
double ToleranceOf(const Manner& m) {
  const bool isByte = sizeof(T) == 1;
  if (m.method == qvpInterpolationLinear) return isByte ? 0 : 0.51;
  if (m.method == qvpInterpolationSuper) return 0.58;
  return isByte ? 0.6 : 12;  // the kernel comes from a table
}

class Record {
 public:
  Record(const Format& f, const Manner& m, QvpiSize src, QvpiSize dst, int type) : format_(f) {
    int bytes = 0, init = 0;
    const auto query = f.IsPacked() ? qvpiResize422GetSize : qvpiResize420GetSize;
    EXPECT_EQ(query(src, dst, type, m.method, 0, &bytes, &init), 0) << src.width << 'x' << src.height;
    memory_ = std::make_unique<test::Block>(bytes, test::Guard::kAfter);
    status = Init(m, src, dst, type);
  }
  QvpiResizeChromaSpec* get() const { return reinterpret_cast<QvpiResizeChromaSpec*>(memory_->data()); }

  // At the end of a page.
  test::Block Buffer(QvpiSize tile) const {
    int bytes = 0;
    const auto query = format_.IsPacked() ? qvpiResize422GetBufferSize : qvpiResize420GetBufferSize;
    EXPECT_EQ(query(get(), tile, &bytes), 0);
    return test::Block(bytes, test::Guard::kAfter);
  }

  QvpStatus status;

 private:
  QvpStatus Init(const Manner& m, QvpiSize s, QvpiSize d, int type) const {
    Qvp8u buffer[64];
    if (format_.IsPacked()) return InitPacked(m, s, d, type, buffer);
    if (m.method == qvpInterpolationLanczos) {
      return qvpiResize420LanczosInit(s, d, type, m.lobes, m.site, get(), buffer);
    }
    const auto init = m.method == qvpInterpolationLinear ? qvpiResize420LinearInit : qvpiResize420SuperInit;
    return init(s, d, type, m.site, get());
  }

  QvpStatus InitPacked(const Manner& m, QvpiSize s, QvpiSize d, int type, Qvp8u* buffer) const {
    if (m.method == qvpInterpolationLanczos) {
      return qvpiResize422LanczosInit(s, d, type, m.lobes, m.site, format_.lumaPlace, get(), buffer);
    }
    const auto init = m.method == qvpInterpolationLinear ? qvpiResize422LinearInit : qvpiResize422SuperInit;
    return init(s, d, type, m.site, format_.lumaPlace, get());
  }

  Format format_;
  std::unique_ptr<test::Block> memory_;
};

const Export& FunctionOf(const Format& f, const Manner& m, std::string_view type) {
  const char* const method = m.method == qvpInterpolationLinear    ? "Linear"
                             : m.method == qvpInterpolationLanczos ? "Lanczos"
                                                                   : "Super";
  const std::string operation = std::string(f.IsPacked() ? "Resize422" : "Resize420") + method;
  for (const Export* function : test::FunctionsOf({operation})) {
    if (Name(function->name).type == type && Name(function->name).layout == f.layout) return *function;
  }
  throw std::runtime_error(operation);
}

// A tile to where it belongs in `dst`.
template <class T>
QvpStatus RunTile(const Frame<T>& src, const Frame<T>& dst, const Manner& m, const Record& record, QvpiRect tile) {
  const Export& function = FunctionOf(src.format, m, sizeof(T) == 1 ? "8u" : "16u");
  QvpiPoint at{};
  const auto query = src.format.IsPacked() ? qvpiResize422GetSrcOffset : qvpiResize420GetSrcOffset;
  EXPECT_EQ(query(record.get(), {tile.x, tile.y}, &at), 0);
  T *from[3], *to[3];
  src.PointTo(at.x, at.y, from);
  dst.PointTo(tile.x, tile.y, to);
  const test::Block buffer = record.Buffer({tile.width, tile.height});
  std::vector<test::Argument> arguments;
  if (src.format.IsPacked()) {
    arguments = {{from[0]}, src.step[0], {to[0]}, dst.step[0]};
  } else {
    arguments = {{from}, {src.step}, {to}, {dst.step}};
  }
  arguments.push_back(QvpiPoint{tile.x, tile.y});
  arguments.push_back(QvpiSize{tile.width, tile.height});
  if (m.method != qvpInterpolationSuper) arguments.push_back(m.border);
  arguments.push_back({record.get()});
  arguments.push_back({buffer.data()});
  return function.call(arguments.data());
}

std::ostream& operator<<(std::ostream& out, const Manner& m) {
  return out << "method " << m.method << ", lobes " << m.lobes << ", site " << m.site << ", border " << m.border;
}

template <class T>
void ExpectByDefinition(const Frame<T>& src, const Frame<T>& dst, const Manner& m, QvpiSize from, QvpiSize to) {
  for (const Component& c : src.format.Components()) {
    const QvpiSize s = src.format.SizeOf(from, c.isChroma), d = src.format.SizeOf(to, c.isChroma);
    const bool isLeft = c.isChroma && m.site != qvpChromaCentre;
    const bool isTop = c.isChroma && m.site == qvpChromaTopLeft && !src.format.IsPacked();
    const Axis columns{from.width,
                       to.width,
                       s.width,
                       isLeft,
                       (m.border & qvpBorderInMemLeft) != 0,
                       (m.border & qvpBorderInMemRight) != 0};
    const Axis rows{from.height,
                    to.height,
                    s.height,
                    isTop,
                    (m.border & qvpBorderInMemTop) != 0,
                    (m.border & qvpBorderInMemBottom) != 0};
    for (int y = 0; y < d.height; ++y) {
      const std::vector<Tap> down = TapsOf(m, rows, y);
      for (int x = 0; x < d.width; ++x) {
        const double expected = Expected(src, m, c, TapsOf(m, columns, x), down);
        ASSERT_LE(std::abs(dst(c, x, y) - expected), ToleranceOf<T>(m))
            << src.format.layout << ' ' << m << ", " << from.width << 'x' << from.height << " to " << to.width << 'x'
            << to.height << ", plane " << c.plane << " at " << x << ',' << y << ": " << +dst(c, x, y) << ", "
            << expected;
      }
    }
  }
}

template <class T>
void ExpectEqual(const Frame<T>& a, const Frame<T>& b, QvpiSize luma, const Manner& m) {
  for (const Component& c : a.format.Components()) {
    const QvpiSize size = a.format.SizeOf(luma, c.isChroma);
    for (int y = 0; y < size.height; ++y) {
      for (int x = 0; x < size.width; ++x) {
        ASSERT_EQ(a(c, x, y), b(c, x, y)) << a.format.layout << ' ' << m << ", plane " << c.plane << " at " << x << ','
                                          << y << " of " << luma.width << 'x' << luma.height;
      }
    }
  }
}

// The whole by the definition, and tiles by the whole.
template <class T>
void Check(const Format& format, const Manner& m, QvpiSize from, QvpiSize to, QvpiSize tile) {
  const int margin = m.border & qvpBorderInMem ? LobesOf(m) : 0;
  const auto guard = from.width % 4 < 2 ? test::Guard::kAfter : test::Guard::kBefore;
  const Frame<T> src(format, from, margin, guard, from.height % 2 != 0), dst(format, to, 0, guard, to.height % 3 == 0);
  const Frame<T> tiled(format, to, 0, guard);
  const Record record(format, m, from, to, sizeof(T) == 1 ? qvp8u : qvp16u);
  ASSERT_EQ(record.status, 0) << m << ' ' << from.width << 'x' << from.height;
  ASSERT_EQ(RunTile(src, dst, m, record, {0, 0, to.width, to.height}), 0);
  ExpectByDefinition(src, dst, m, from, to);
  for (int y = 0; y < to.height; y += tile.height) {
    for (int x = 0; x < to.width; x += tile.width) {
      const QvpiRect part{x, y, std::min(tile.width, to.width - x), std::min(tile.height, to.height - y)};
      ASSERT_EQ(RunTile(src, tiled, m, record, part), 0);
    }
  }
  ExpectEqual(tiled, dst, to, m);
}

std::vector<Manner> Manners(int method) {
  std::vector<Manner> manners;
  for (const int site : {qvpChromaCentre, qvpChromaLeft, qvpChromaTopLeft}) {
    manners.push_back({method, 2, site, qvpBorderReplicate});
    if (method != qvpInterpolationSuper) manners.push_back({method, 3, site, qvpBorderMirror | (0x10 << site)});
    if (method != qvpInterpolationSuper) manners.push_back({method, 2, site, qvpBorderInMem});
  }
  return manners;
}

std::vector<Format> Formats() { return {{"P2"}, {"P3"}, {"C2"}, {"C2", qvpLumaSecond}}; }

template <class T>
void CheckSizes(const Format& format, int method, std::initializer_list<std::pair<QvpiSize, QvpiSize>> sizes) {
  for (const Manner& m : Manners(method)) {
    for (const auto& [from, to] : sizes) {
      Check<T>(format, m, from, to, {6, 4});
      Check<T>(format, m, from, to, {(to.width / 2 + 1) / 2 * 2, 2});
      if (testing::Test::HasFatalFailure()) return;
    }
  }
}

template <class T>
void CheckPacked(const Format& format, int method) {
  if (method != qvpInterpolationSuper) {
    CheckSizes<T>(format, method,
                  {{{12, 12}, {70, 21}}, {{22, 7}, {24, 14}}, {{150, 12}, {46, 11}}, {{20, 6}, {2100, 5}}});
  } else {
    CheckSizes<T>(format, method,
                  {{{150, 20}, {90, 12}},
                   {{24, 23}, {22, 14}},
                   {{300, 8}, {150, 4}},
                   {{92, 15}, {6, 3}},
                   {{72, 15}, {72, 15}},
                   {{90, 14}, {90, 7}},
                   {{70, 14}, {50, 14}}});
  }
}

template <class T>
void CheckMethod(const Format& format, int method) {
  if (format.IsPacked()) return CheckPacked<T>(format, method);
  if (method != qvpInterpolationSuper) {
    CheckSizes<T>(format, method, {{{12, 12}, {70, 21}}, {{22, 24}, {23, 14}}, {{150, 12}, {46, 11}}});
    CheckSizes<T>(format, method, {{{13, 11}, {24, 24}}, {{133, 13}, {80, 8}}, {{91, 15}, {210, 7}}});
  } else {
    CheckSizes<T>(format, method, {{{150, 20}, {90, 12}}, {{24, 22}, {22, 14}}, {{150, 12}, {46, 11}}});
    CheckSizes<T>(format, method,
                  {{{133, 13}, {80, 8}},
                   {{91, 15}, {7, 3}},
                   {{300, 8}, {150, 4}},
                   {{5, 5}, {3, 4}},
                   {{71, 15}, {71, 15}},
                   {{90, 14}, {90, 7}},
                   {{70, 14}, {50, 14}}});
  }
}

TEST(FrameResize, IsEachComponentByItsDefinition) {
  for (const Format& format : Formats()) {
    for (const int method : {qvpInterpolationLinear, qvpInterpolationLanczos, qvpInterpolationSuper}) {
      CheckMethod<uint8_t>(format, method);
      CheckMethod<uint16_t>(format, method);
      if (HasFatalFailure()) return;
    }
  }
}

// A component as an image of one channel.
template <class T>
std::vector<T> PlaneOf(const Frame<T>& frame, const Component& c, QvpiSize size) {
  std::vector<T> plane;
  for (int y = 0; y < size.height; ++y) {
    for (int x = 0; x < size.width; ++x) plane.push_back(frame(c, x, y));
  }
  return plane;
}

template <class T>
std::vector<T> Resized(const std::vector<T>& src, const Manner& m, QvpiSize from, QvpiSize to) {
  std::vector<T> dst(to.width * to.height);
  int bytes = 0, init = 0;
  EXPECT_EQ(qvpiResizeGetSize_8u(from, to, m.method, 0, &bytes, &init), 0);
  std::vector<uint8_t> memory(bytes), scratch(init);
  auto* const spec = reinterpret_cast<QvpiResizeSpec*>(memory.data());
  constexpr bool kIsByte = sizeof(T) == 1;
  if (m.method == qvpInterpolationLinear) {
    EXPECT_EQ((kIsByte ? qvpiResizeLinearInit_8u : qvpiResizeLinearInit_16u)(from, to, spec), 0);
  } else if (m.method == qvpInterpolationSuper) {
    EXPECT_EQ(qvpiResizeSuperInit_8u(from, to, spec), 0);
  } else {
    const auto make = kIsByte ? qvpiResizeLanczosInit_8u : qvpiResizeLanczosInit_16u;
    EXPECT_EQ(make(from, to, m.lobes, spec, scratch.data()), 0);
  }
  EXPECT_EQ(qvpiResizeGetBufferSize_8u(spec, to, 1, &bytes), 0);
  std::vector<uint8_t> buffer(bytes);
  const char* const method = m.method == qvpInterpolationLinear  ? "Linear"
                             : m.method == qvpInterpolationSuper ? "Super"
                                                                 : "Lanczos";
  const int srcStep = from.width * static_cast<int>(sizeof(T)), dstStep = to.width * static_cast<int>(sizeof(T));
  std::vector<test::Argument> arguments{{src.data()}, srcStep, {dst.data()}, dstStep, QvpiPoint{0, 0}, to};
  if (m.method != qvpInterpolationSuper) arguments.insert(arguments.end(), {m.border, {nullptr}});
  arguments.insert(arguments.end(), {{spec}, {buffer.data()}});
  for (const Export* function : test::FunctionsOf({std::string("Resize") + method})) {
    const std::string end = kIsByte ? "_8u_C1R" : "_16u_C1R";
    if (function->name.ends_with(end)) {
      EXPECT_EQ(function->call(arguments.data()), 0);
    }
  }
  return dst;
}

template <class T>
void CheckBits(const Format& format, const Manner& m, QvpiSize from, QvpiSize to) {
  const Frame<T> src(format, from, 0, test::Guard::kAfter), dst(format, to, 0, test::Guard::kAfter);
  const Record record(format, m, from, to, sizeof(T) == 1 ? qvp8u : qvp16u);
  ASSERT_EQ(RunTile(src, dst, m, record, {0, 0, to.width, to.height}), 0);
  for (const Component& c : format.Components()) {
    const QvpiSize s = format.SizeOf(from, c.isChroma), d = format.SizeOf(to, c.isChroma);
    ASSERT_EQ(PlaneOf(dst, c, d), Resized(PlaneOf(src, c, s), m, s, d))
        << format.layout << ' ' << m << ' ' << sizeof(T) << ", plane " << c.plane << ", " << from.width << " to "
        << to.width;
  }
}

// Luma, and with even sizes chroma between it, has the bits of its own resize as an image.
TEST(FrameResize, HasTheBitsOfImages) {
  for (const Format& format : Formats()) {
    for (const int method : {qvpInterpolationLinear, qvpInterpolationLanczos, qvpInterpolationSuper}) {
      for (const int lobes : {2, 3}) {
        const Manner m{method, lobes};
        for (const auto& [from, to] : {std::pair<QvpiSize, QvpiSize>{{190, 60}, {114, 36}},
                                       {{256, 34}, {128, 18}},
                                       {{194, 26}, {62, 22}},
                                       {{700, 40}, {16, 10}},
                                       {{88, 32}, {88, 32}}}) {
          CheckBits<uint8_t>(format, m, from, to);
          CheckBits<uint16_t>(format, m, from, to);
          if (HasFatalFailure()) return;
        }
      }
    }
  }
}

TEST(FrameResize, GivesTheValuesOfItsText) {
  const auto chroma = [](int site) {
    const Frame<uint16_t> src({"P3"}, {8, 4}, 0, test::Guard::kAfter), dst({"P3"}, {6, 4}, 0, test::Guard::kAfter);
    for (int i = 0; i < 8; ++i) src.images[1]->Put(i % 4, i / 4, static_cast<uint16_t>(60000 + 600 * (i % 4)));
    const Manner m{qvpInterpolationLinear, 2, site};
    const Record record({"P3"}, m, {8, 4}, {6, 4}, qvp16u);
    EXPECT_EQ(RunTile(src, dst, m, record, {0, 0, 6, 4}), 0);
    return std::vector<int>{dst({1, 0, 1, true}, 0, 0), dst({1, 0, 1, true}, 1, 0), dst({1, 0, 1, true}, 2, 1)};
  };
  EXPECT_EQ(chroma(qvpChromaCentre), (std::vector<int>{60100, 60900, 61700}));
  EXPECT_EQ(chroma(qvpChromaLeft), (std::vector<int>{60050, 60850, 61650}));
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

TEST(FrameResize, ChecksSizesInOrder) {
  QvpiSize size{};
  const double none = std::numeric_limits<double>::quiet_NaN();
  EXPECT_EQ(qvpiResize422GetDstSize({3, 0}, none, 1, nullptr), qvpStatusNullPointer);
  EXPECT_EQ(qvpiResize422GetDstSize({3, 2}, none, 1, &size), qvpStatusSize);
  EXPECT_EQ(qvpiResize420GetDstSize({3, 2}, none, 1, &size), qvpStatusResizeFactor);
  EXPECT_EQ(qvpiResize420GetDstSize({3, 2}, 1, 0, &size), qvpStatusResizeFactor);
  for (const double factor : {2147483648.0, 1e300, 6e8}) {
    EXPECT_EQ(qvpiResize420GetDstSize({4, 4}, 1, factor, &size), qvpStatusSizeOverflow) << factor;
  }
  int bytes = 0, init = 0;
  const auto get = [&](QvpiSize s, QvpiSize d, int type, int method, unsigned anti = 0) {
    return qvpiResize420GetSize(s, d, type, method, anti, &bytes, &init);
  };
  EXPECT_EQ(get({0, -1}, {1, 1}, 0, 0), qvpStatusNoOperation);
  EXPECT_EQ(get({8, -1}, {1, 1}, 0, 0), qvpStatusSize);
  EXPECT_EQ(get({8, 8}, {1, 1}, qvp16s, 0), qvpStatusDataType);
  EXPECT_EQ(get({8, 8}, {1, 1}, qvp8u, qvpInterpolationCubic), qvpStatusInterpolation);
  EXPECT_EQ(get({2, 2}, {1, 1}, qvp8u, qvpInterpolationLinear), qvpStatusSize);
  EXPECT_EQ(get({3, 3}, {1, 1}, qvp8u, qvpInterpolationLinear), 0);
  EXPECT_EQ(get({6, 7}, {1, 1}, qvp8u, qvpInterpolationLanczos), qvpStatusSize);
  EXPECT_EQ(get({7, 7}, {8, 8}, qvp8u, qvpInterpolationSuper), qvpStatusSize);
  EXPECT_EQ(get({8, 8}, {INT32_MAX, 8}, qvp8u, qvpInterpolationLinear, 1), qvpStatusSizeOverflow);
  EXPECT_EQ(bytes, 0);
  int image = 0;
  EXPECT_EQ(get({80, 8}, {31, 5}, qvp16u, qvpInterpolationLanczos, 1), qvpStatusAntialiasIgnored);
  qvpiResizeGetSize_8u({80, 8}, {31, 5}, qvpInterpolationLanczos, 0, &image, &init);
  EXPECT_EQ(bytes, 128 + 2 * image);
  EXPECT_EQ(qvpiResize422GetSize({8, 8}, {5, 8}, qvp8u, 2, 0, &bytes, &init), qvpStatusSize);
}

TEST(FrameResize, ChecksInitsInOrder) {
  alignas(64) uint8_t memory[8192];
  Qvp8u buffer[64];
  auto* const spec = reinterpret_cast<QvpiResizeChromaSpec*>(memory);
  const auto lanczos = [&](QvpiSize s, QvpiSize d, int type, unsigned lobes, int site, int place) {
    return qvpiResize422LanczosInit(s, d, type, lobes, site, place, spec, buffer);
  };
  EXPECT_EQ(qvpiResize422LanczosInit({0, 0}, {2, 2}, 0, 0, 0, 0, spec, nullptr), qvpStatusNullPointer);
  EXPECT_EQ(lanczos({12, 6}, {2, 2}, qvp8u, 3, qvpChromaLeft, qvpLumaSecond), 0);
  EXPECT_EQ(lanczos({0, -1}, {2, 2}, 0, 0, 9, 9), qvpStatusNoOperation);
  int bytes = 0;
  EXPECT_EQ(qvpiResize422GetBufferSize(spec, {2, 2}, &bytes), 0) << "a length of 0 leaves the record";
  EXPECT_EQ(qvpiResize420GetBufferSize(spec, {2, 2}, &bytes), qvpStatusContextMatch);
  EXPECT_EQ(lanczos({13, 5}, {2, 2}, 0, 0, 9, 9), qvpStatusSize);
  EXPECT_EQ(qvpiResize422GetBufferSize(spec, {2, 2}, &bytes), qvpStatusContextMatch);
  EXPECT_EQ(lanczos({12, 5}, {2, 2}, qvp32f, 1, 9, 9), qvpStatusDataType);
  EXPECT_EQ(lanczos({12, 5}, {2, 2}, qvp8u, 1, 9, 9), qvpStatusNotSupportedMode);
  EXPECT_EQ(lanczos({12, 5}, {2, 2}, qvp8u, 3, 9, 9), qvpStatusSize);
  EXPECT_EQ(lanczos({12, 6}, {2, 2}, qvp8u, 3, 3, 9), qvpStatusNotSupportedMode);
  EXPECT_EQ(lanczos({12, 6}, {2, 2}, qvp8u, 3, 2, 2), qvpStatusChannelOrder);
}

TEST(FrameResize, ChecksCallsInOrder) {
  const Manner m{qvpInterpolationLinear};
  const Record words({"P3"}, m, {16, 16}, {10, 10}, qvp16u), bytes({"P3"}, m, {16, 16}, {10, 10}, qvp8u);
  const Frame<uint16_t> src({"P3"}, {16, 16}, 0, test::Guard::kAfter), dst({"P3"}, {10, 10}, 0, test::Guard::kAfter);
  Qvp8u buffer[4096], foreign[256] = {};
  const int odd[] = {32, 17, 16};
  const Qvp16u* from[] = {src.data[0], src.data[1], src.data[2]};
  const auto call = [&](const int* step, QvpiPoint at, QvpiSize size, int border, const void* spec) {
    return qvpiResize420Linear_16u_P3R(from, step, dst.data, dst.step, at, size, border,
                                       static_cast<const QvpiResizeChromaSpec*>(spec), buffer);
  };
  for (const int border : {0, 2, 6, 0x101, 0x10, -1}) {
    EXPECT_EQ(call(nullptr, {1, 1}, {0, 0}, border, nullptr), qvpStatusBorder) << border;
  }
  for (const Qvp16u*& plane : from) {
    const Qvp16u* const kept = std::exchange(plane, nullptr);
    EXPECT_EQ(call(odd, {1, 1}, {0, -1}, 1, foreign), qvpStatusNullPointer);
    plane = kept;
  }
  EXPECT_EQ(call(nullptr, {1, 1}, {0, -1}, 1, foreign), qvpStatusNullPointer);
  EXPECT_EQ(call(odd, {1, 1}, {0, -1}, 1, foreign), qvpStatusNoOperation);
  EXPECT_EQ(call(odd, {1, 1}, {1, -1}, 1, foreign), qvpStatusContextMatch);
  EXPECT_EQ(call(odd, {1, -1}, {1, -1}, 4, words.get()), qvpStatusSize);
  EXPECT_EQ(call(odd, {1, -1}, {1, 1}, 3, words.get()), qvpStatusStep);
  EXPECT_EQ(call(src.step, {1, 10}, {1, 1}, 3, words.get()), qvpStatusOutOfRange);
  EXPECT_EQ(call(src.step, {2, 1}, {1, 1}, 3, bytes.get()), qvpStatusMisalignedOffset);
  EXPECT_EQ(call(src.step, {2, 2}, {1, 1}, 3, bytes.get()), qvpStatusContextMatch);
  EXPECT_EQ(qvpiResize420Super_16u_P3R(from, src.step, dst.data, dst.step, {0, 0}, {1, 1}, words.get(), buffer),
            qvpStatusContextMatch);
  EXPECT_EQ(call(src.step, {0, 0}, {11, 4}, 0x33, words.get()), qvpStatusSizeWarning);
}

// What a tile reads lies in the rectangle that is told for it, widened by the border: pixels elsewhere do not count.
TEST(FrameResize, ReadsWhatItTells) {
  for (const int method : {qvpInterpolationLinear, qvpInterpolationLanczos, qvpInterpolationSuper}) {
    for (const int site : {qvpChromaCentre, qvpChromaLeft, qvpChromaTopLeft}) {
      const Manner m{method, 3, site};
      const Format format{"P2"};
      const QvpiSize from{61, 45}, to{38, 31};
      const Record record(format, m, from, to, qvp8u);
      QvpiBorderSize border{};
      ASSERT_EQ(qvpiResize420GetBorderSize(record.get(), &border), 0);
      for (int x = 0; x < to.width; x += 10) {
        const QvpiRect tile{x, 12, std::min(10, to.width - x), 6};
        QvpiPoint at{};
        QvpiSize size{};
        ASSERT_EQ(qvpiResize420GetSrcRoi(record.get(), tile, &at, &size), 0);
        const Frame<uint8_t> src(format, from, 0, test::Guard::kAfter), dst(format, to, 0, test::Guard::kAfter);
        const Frame<uint8_t> other(format, from, 0, test::Guard::kAfter), again(format, to, 0, test::Guard::kAfter);
        for (const Component& c : format.Components()) {
          const int half = c.isChroma ? 2 : 1;
          const QvpiSize n = format.SizeOf(from, c.isChroma);
          for (int i = 0; i < n.width * n.height; ++i) {
            const int column = i % n.width * half, row = i / n.width * half;
            const bool isTold = column >= at.x - static_cast<int>(border.left) &&
                                row >= at.y - static_cast<int>(border.top) &&
                                column < at.x + size.width + static_cast<int>(border.right) &&
                                row < at.y + size.height + static_cast<int>(border.bottom);
            if (isTold)
              *other.At(c.plane, c.offset + c.stride * (i % n.width), i / n.width) = src(c, i % n.width, i / n.width);
          }
        }
        ASSERT_EQ(RunTile(src, dst, m, record, tile), 0);
        ASSERT_EQ(RunTile(other, again, m, record, tile), 0);
        for (const Component& c : format.Components()) {
          const QvpiSize n = format.SizeOf({tile.width, tile.height}, c.isChroma);
          const int half = c.isChroma ? 2 : 1;
          for (int i = 0; i < n.width * n.height; ++i) {
            const int column = tile.x / half + i % n.width, row = tile.y / half + i / n.width;
            ASSERT_EQ(dst(c, column, row), again(c, column, row)) << m << ", tile at " << x << ", plane " << c.plane;
          }
        }
      }
    }
  }
}

}  // namespace
