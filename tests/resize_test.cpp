// Resize: every member against a scalar reference in double, and what holds for tiles, records and threads.

#include <cmath>
#include <functional>
#include <numeric>

#include "tests/support/name.h"
#include "tests/support/reference.h"
#include "tests/support/threads.h"

namespace {

enum class Kind { k8u, k16u, k16s, k32f, k64f };

const test::Element& ElementOf(Kind kind) {
  static const test::Element* const kAll[] = {&test::ElementOf("8u"), &test::ElementOf("16u"), &test::ElementOf("16s"),
                                              &test::ElementOf("32f"), &test::ElementOf("64f")};
  return *kAll[static_cast<int>(kind)];
}
QvpDataType TypeOf(Kind kind) { return ElementOf(kind).code; }

// A method with its parameters.
struct Method {
  std::string name;
  QvpiInterpolationType interpolation;
  bool isAntialiasing = false;
  double b = 0, c = 0;
  int lobes = 0;
  double shift[2] = {};

  int Reach() const {
    return interpolation == qvpInterpolationLinear ? 1 : interpolation == qvpInterpolationCubic ? 2 : lobes;
  }
};

const Method kNearest{"Nearest", qvpInterpolationNearest}, kLinear{"Linear", qvpInterpolationLinear},
    kCubic{"Cubic", qvpInterpolationCubic, false, 1 / 3.0f, 1 / 3.0f},
    kSharp{"Cubic", qvpInterpolationCubic, false, 0, 0.75}, kWild{"Cubic", qvpInterpolationCubic, false, 0, 9},
    kLanczos2{"Lanczos", qvpInterpolationLanczos, false, 0, 0, 2},
    kLanczos3{"Lanczos", qvpInterpolationLanczos, false, 0, 0, 3}, kSuper{"Super", qvpInterpolationSuper},
    kShifted{"Super", qvpInterpolationSuper, false, 0, 0, 0, {0.25, -1.5}},
    kSmoothLinear{"Antialiasing", qvpInterpolationLinear, true},
    kSmoothCubic{"Antialiasing", qvpInterpolationCubic, true, 0, 0.5},
    kSmoothLanczos{"Antialiasing", qvpInterpolationLanczos, true, 0, 0, 3};
const Method kAll[] = {kNearest,  kLinear, kCubic,   kSharp,        kWild,        kLanczos2,
                       kLanczos3, kSuper,  kShifted, kSmoothLinear, kSmoothCubic, kSmoothLanczos};

// One exported function, in both widths of lengths.
struct Call {
  const test::Export* function;
  QvpStatus operator()(const void* src, int srcStep, void* dst, int dstStep, QvpiPoint at, QvpiSize size, int border,
                       const QvpiResizeSpec* spec, Qvp8u* buffer) const {
    return (*function)({{"pSrc", {src, srcStep}},
                        {"pDst", {dst, dstStep}},
                        {"dstOffset", at},
                        {"dstSize", size},
                        {"border", border},
                        {"pBorderValue", {nullptr, 0}},
                        {"pSpec", {spec}},
                        {"pBuffer", {buffer}}});
  }
};
struct Member {
  std::string name;  // ResizeCubic_16u_C3
  Kind kind;
  int channels, bytes;
  Call call, wide;
};

const std::vector<Member>& Members() {
  static const std::vector<Member> all = [] {
    std::vector<Member> members;
    for (const test::Export* function : test::FamilyOf(
             {"ResizeNearest", "ResizeSuper", "ResizeLinear", "ResizeCubic", "ResizeLanczos", "ResizeAntialiasing"})) {
      const test::Name name(function->name);
      if (name.isWide) continue;
      Kind kind = Kind::k8u;
      while (ElementOf(kind).name != name.type) kind = static_cast<Kind>(static_cast<int>(kind) + 1);
      const auto& exports = test::Exports();
      const auto wide = std::find_if(exports.begin(), exports.end(),
                                     [&](const test::Export& other) { return other.name == function->name + "_L"; });
      EXPECT_NE(wide, exports.end()) << function->name;
      members.push_back({function->name.substr(4, function->name.size() - 5),
                         kind,
                         name.channels,
                         name.From().bytes,
                         {function},
                         {&*wide}});
    }
    return members;
  }();
  return all;
}

std::vector<Member> MembersOf(const Method& method) {
  std::vector<Member> members;
  for (const Member& m : Members()) {
    if (m.name.starts_with("Resize" + method.name + "_")) members.push_back(m);
  }
  return members;
}

const Member& Find(std::string_view name) {
  for (const Member& m : Members()) {
    if (m.name == std::string("Resize").append(name)) return m;
  }
  throw std::invalid_argument(std::string(name));
}

// A record in exactly the reported memory, which ends at an unreadable page, or at a given place.
class Record {
 public:
  Record(const Method& m, Kind kind, QvpiSize src, QvpiSize dst, bool isWide = false, uint8_t* at = nullptr)
      : isWide_(isWide), at_(at) {
    int size = 0, init = 0;
    if (kind == Kind::k64f && !m.isAntialiasing) {
      EXPECT_EQ(qvpiResizeGetSize_64f(src, dst, m.interpolation, 0, &size, &init), 0);
    } else {
      EXPECT_EQ(qvpiResizeGetSize_8u(src, dst, m.interpolation, m.isAntialiasing, &size, &init), 0);
    }
    block_ = std::make_unique<test::Block>(size);
    test::Block initBuffer(init);
    status_ = isWide ? InitWide(m, TypeOf(kind), {src.width, src.height}, {dst.width, dst.height}, initBuffer.data())
                     : Init(m, kind, src, dst, initBuffer.data());
  }

  QvpiResizeSpec* get() const { return reinterpret_cast<QvpiResizeSpec*>(at_ ? at_ : block_->data()); }
  const test::Block& block() const { return *block_; }
  QvpStatus status() const { return status_; }
  QvpiPoint SourceOf(QvpiPoint tile) const {
    QvpiPoint at{};
    EXPECT_EQ(qvpiResizeGetSrcOffset_64f(get(), tile, &at), 0);
    return at;
  }
  size_t BufferSize(QvpiSize tile, int channels) const {
    int size = 0;
    QvpSizeL wide = 0;
    EXPECT_GE(isWide_ ? qvpiResizeGetBufferSize_L(get(), {tile.width, tile.height}, channels, &wide)
                      : qvpiResizeGetBufferSize_8u(get(), tile, channels, &size),
              0);
    return isWide_ ? wide : size;
  }

 private:
  QvpStatus Init(const Method& m, Kind kind, QvpiSize s, QvpiSize d, Qvp8u* buffer) {
    const auto b = static_cast<float>(m.b), c = static_cast<float>(m.c);
    const bool is8u = kind == Kind::k8u, is64f = kind == Kind::k64f;
    if (m.isAntialiasing && m.interpolation == qvpInterpolationLinear)
      return (is64f ? qvpiResizeAntialiasingLinearInit_64f : qvpiResizeAntialiasingLinearInit)(s, d, get(), buffer);
    if (m.isAntialiasing && m.interpolation == qvpInterpolationCubic)
      return (is64f ? qvpiResizeAntialiasingCubicInit_64f : qvpiResizeAntialiasingCubicInit)(s, d, b, c, get(), buffer);
    if (m.isAntialiasing)
      return (is64f ? qvpiResizeAntialiasingLanczosInit_64f : qvpiResizeAntialiasingLanczosInit)(s, d, m.lobes, get(),
                                                                                                 buffer);
    switch (m.interpolation) {
      case qvpInterpolationNearest: return qvpiResizeNearestInit_16s(s, d, get());
      case qvpInterpolationLinear:
        return (is8u    ? qvpiResizeLinearInit_8u
                : is64f ? qvpiResizeLinearInit_64f
                        : qvpiResizeLinearInit_16u)(s, d, get());
      case qvpInterpolationCubic:
        return (is8u ? qvpiResizeCubicInit_8u : qvpiResizeCubicInit_16s)(s, d, b, c, get(), buffer);
      case qvpInterpolationSuper: return qvpiResizeSuperShiftInit_32f(s, d, m.shift[0], m.shift[1], get());
      default: return (is8u ? qvpiResizeLanczosInit_8u : qvpiResizeLanczosInit_32f)(s, d, m.lobes, get(), buffer);
    }
  }
  QvpStatus InitWide(const Method& m, QvpDataType type, QvpiSizeL s, QvpiSizeL d, Qvp8u* buffer) {
    const auto b = static_cast<float>(m.b), c = static_cast<float>(m.c);
    if (m.isAntialiasing && m.interpolation == qvpInterpolationLinear)
      return qvpiResizeAntialiasingLinearInit_L(s, d, type, get(), buffer);
    if (m.isAntialiasing && m.interpolation == qvpInterpolationCubic)
      return qvpiResizeAntialiasingCubicInit_L(s, d, type, b, c, get(), buffer);
    if (m.isAntialiasing) return qvpiResizeAntialiasingLanczosInit_L(s, d, type, m.lobes, get(), buffer);
    switch (m.interpolation) {
      case qvpInterpolationNearest: return qvpiResizeNearestInit_L(s, d, type, get());
      case qvpInterpolationLinear: return qvpiResizeLinearInit_L(s, d, type, get());
      case qvpInterpolationCubic: return qvpiResizeCubicInit_L(s, d, type, b, c, get(), buffer);
      case qvpInterpolationSuper: return qvpiResizeSuperInit_L(s, d, type, get());
      default: return qvpiResizeLanczosInit_L(s, d, type, m.lobes, get(), buffer);
    }
  }

  bool isWide_;
  uint8_t* at_;
  std::unique_ptr<test::Block> block_;
  QvpStatus status_;
};

// ---- The reference

struct Tap {
  long position;
  double weight;
};

double KernelAt(const Method& m, double t) {
  if (m.interpolation == qvpInterpolationLinear) return std::max(0.0, 1 - std::fabs(t));
  return m.interpolation == qvpInterpolationLanczos ? test::LanczosWeight(t, m.lobes) : test::CubicWeight(t, m.b, m.c);
}

std::vector<Tap> TapsOf(const Method& m, long source, long destination, long d, double shift) {
  std::vector<Tap> taps;
  if (m.interpolation == qvpInterpolationNearest) return {{((2 * d + 1) * source - 1) / (2 * destination), 1}};
  const double ratio = static_cast<double>(source) / destination;
  if (m.interpolation == qvpInterpolationSuper) {
    const double begin = std::max(0.0, (d - shift) * ratio), end = std::min<double>(source, (d + 1 - shift) * ratio);
    if (end <= 0) return {{0, 1}};
    if (begin >= source) return {{source - 1, 1}};
    for (long i = 0; i < source; ++i) {
      const double covered = std::min(end, i + 1.0) - std::max<double>(begin, i);
      if (covered > 1e-9) taps.push_back({i, covered / (end - begin)});
    }
    return taps;
  }
  const double centre = (d + 0.5) * source / destination - 0.5, scale = m.isAntialiasing ? std::max(1.0, ratio) : 1;
  double sum = 0;
  for (long i = static_cast<long>(centre - 1e-9 - m.Reach() * scale) - 1; i < centre + m.Reach() * scale + 1; ++i) {
    const double w = KernelAt(m, (i - centre) / scale);
    if (std::fabs(w) < 1e-12) continue;
    taps.push_back({i, w});
    sum += w;
  }
  for (Tap& tap : taps) tap.weight /= sum;
  return taps;
}

// A sample of memory.
double Get(Kind kind, const uint8_t* p) { return static_cast<double>(ElementOf(kind).read(p)); }
void Put(Kind kind, uint8_t* p, double value) { ElementOf(kind).write(p, value); }

// A random source image with `margin` pixels around the part that is resized.
class Source {
 public:
  Source(const Member& m, QvpiSize size, int margin, int gap = 0)
      : m_(m),
        margin_(margin),
        image_((size.width + 2 * margin) * m.channels * m.bytes, size.height + 2 * margin, gap * m.bytes) {
    if (m.kind != Kind::k32f && m.kind != Kind::k64f) return;
    test::Random random(11);
    for (int y = 0; y < size.height + 2 * margin; ++y) {
      for (int x = 0; x < (size.width + 2 * margin) * m.channels; ++x)
        Put(m.kind, image_.bytes() + y * image_.step() + x * m.bytes, random.Next() % 20001 / 100.0 - 100);
    }
  }

  int step() const { return image_.step(); }
  const uint8_t* At(long x, long y) const {
    return image_.bytes() + (y + margin_) * image_.step() + (x + margin_) * m_.channels * m_.bytes;
  }
  double Sample(long x, long y, int c) const { return Get(m_.kind, At(x, y) + c * m_.bytes); }

 private:
  const Member& m_;
  int margin_;
  test::Image<uint8_t> image_;
};

double Reference(const Method& m, const Source& src, QvpiSize from, QvpiSize to, int border,
                 const QvpiBorderSize& reach, long x, long y, int c) {
  const int kind = border & 15;
  const auto flag = [border](int f, unsigned n) { return border & f ? static_cast<int>(n) : 0; };
  double sum = 0;
  for (const Tap& down : TapsOf(m, from.height, to.height, y, m.shift[1])) {
    const int row = test::BorderPosition(kind, static_cast<int>(down.position), -flag(qvpBorderInMemTop, reach.top),
                                         from.height - 1 + flag(qvpBorderInMemBottom, reach.bottom));
    for (const Tap& across : TapsOf(m, from.width, to.width, x, m.shift[0])) {
      const int column =
          test::BorderPosition(kind, static_cast<int>(across.position), -flag(qvpBorderInMemLeft, reach.left),
                               from.width - 1 + flag(qvpBorderInMemRight, reach.right));
      sum += down.weight * across.weight * src.Sample(column, row, c);
    }
  }
  return sum;
}

double Clamped(Kind kind, double v) {
  switch (kind) {
    case Kind::k8u: return std::clamp(v, 0.0, 255.0);
    case Kind::k16u: return std::clamp(v, 0.0, 65535.0);
    case Kind::k16s: return std::clamp(v, -32768.0, 32767.0);
    default: return v;
  }
}

// Rounding of weights and intermediate rows, as documented, and the interpolated table of Lanczos.
double Tolerance(const Method& m, const Member& member) {
  const double range = member.kind == Kind::k16u || member.kind == Kind::k16s ? 65536
                       : member.kind == Kind::k8u                             ? 256
                                                                              : 100;
  const double weights = m.interpolation == qvpInterpolationLanczos ? 4e-4 : m.c > 1 ? 2e-4 : 4e-6;
  if (m.interpolation == qvpInterpolationNearest) return 0;
  if (member.kind == Kind::k64f && !m.isAntialiasing) return 1e-10;
  const bool isFixed =
      member.kind == Kind::k8u && !m.isAntialiasing && m.interpolation != qvpInterpolationSuper && m.c <= 1;
  return range * weights + (member.kind == Kind::k32f || member.kind == Kind::k64f ? 0 : isFixed ? 1.0 : 0.5);
}

test::Image<uint8_t> Resized(const Member& member, const Record& record, const Source& src, QvpiSize to, int border,
                             bool isWide = false) {
  test::Image<uint8_t> dst(to.width * member.channels * member.bytes, to.height, 3 * member.bytes);
  test::Block buffer(record.BufferSize(to, member.channels));
  const QvpiPoint at = isWide ? QvpiPoint{0, 0} : record.SourceOf({0, 0});
  EXPECT_EQ((isWide ? member.wide : member.call)(src.At(at.x, at.y), src.step(), dst.data(), dst.step(), {0, 0}, to,
                                                 border, record.get(), buffer.data()),
            0)
      << member.name;
  return dst;
}

void Check(const Method& m, const Member& member, QvpiSize from, QvpiSize to, int border = qvpBorderReplicate,
           bool isWide = false) {
  const Record record(m, member.kind, from, to, isWide);
  ASSERT_EQ(record.status(), 0) << member.name;
  QvpiBorderSize reach{};
  ASSERT_EQ(isWide ? qvpiResizeGetBorderSize_L(record.get(), &reach) : qvpiResizeGetBorderSize_8u(record.get(), &reach),
            0);
  const Source src(member, from, (border & 0xF0) ? std::max(reach.left, reach.top) : 0, 2);
  const test::Image<uint8_t> dst = Resized(member, record, src, to, border, isWide);
  for (int y = 0; y < to.height; ++y) {
    for (int i = 0; i < to.width * member.channels; ++i) {
      const double exact =
          Clamped(member.kind, Reference(m, src, from, to, border, reach, i / member.channels, y, i % member.channels));
      const double got = Get(member.kind, dst.bytes() + y * dst.step() + i * member.bytes);
      ASSERT_NEAR(got, exact, Tolerance(m, member))
          << member.name << ' ' << m.interpolation << ' ' << from.width << 'x' << from.height << " to " << to.width
          << 'x' << to.height << " at " << i << ',' << y << " border " << border;
    }
  }
}

bool Fits(const Method& m, int source, int destination) {
  const int least = m.interpolation == qvpInterpolationNearest || m.interpolation == qvpInterpolationSuper ? 1
                    : m.interpolation == qvpInterpolationLinear                                            ? 2
                    : m.lobes == 3                                                                         ? 6
                                                                                                           : 4;
  return source >= least && (m.interpolation != qvpInterpolationSuper || destination <= source);
}

TEST(Resize, EveryMember) {
  for (const Method& m : kAll) {
    for (const Member& member : MembersOf(m)) {
      for (const int width : {7, 12, 40, 61, 97}) {
        Check(m, member, {width, 9}, {width * 3 / 5, 7});
        Check(m, member, {width, 13}, {std::max(1, width / 4), 3});
        if (m.interpolation != qvpInterpolationSuper) Check(m, member, {width, 7}, {width * 3 / 2, 10});
      }
      Check(m, member, {80, 6}, {5, 2});
      if (m.shift[0] == 0) Check(m, member, {50, 8}, {30, 6}, qvpBorderReplicate, true);
    }
  }
}

TEST(Resize, EveryPairOfLengths) {
  for (const Method& m : kAll) {
    const Member &byte = Find(m.name + "_8u_C1"), &real = Find(m.name + "_32f_C1");
    for (int source = 1; source <= 24; ++source) {
      for (int destination = 1; destination <= 24; ++destination) {
        if (!Fits(m, source, destination)) continue;
        Check(m, real, {source, source}, {destination, destination});
        Check(m, byte, {source, 6}, {destination, 6}, qvpBorderReplicate);
      }
    }
  }
}

TEST(Resize, EveryBorder) {
  for (const Method& m : {kLinear, kSharp, kLanczos2, kLanczos3, kSmoothLinear, kSmoothCubic, kSmoothLanczos}) {
    for (const char* layout : {"_8u_C1", "_8u_C3", "_32f_C4", "_16u_C1", "_16s_C3"}) {
      for (int flags = 0; flags < 256; flags += 16) {
        for (const int kind : {qvpBorderReplicate, qvpBorderMirror, qvpBorderReplicateAlt}) {
          Check(m, Find(m.name + layout), {9, 7}, {23, 15}, kind | flags);
          Check(m, Find(m.name + layout), {40, 9}, {27, 7}, kind | flags);
        }
      }
      Check(m, Find(m.name + layout), {7, 8}, {15, 11}, qvpBorderInMem);
    }
  }
}

// Linear 8u to the bit: two passes, each rounding half up.
TEST(Resize, LinearBytesAreExact) {
  for (const char* layout : {"Linear_8u_C1", "Linear_8u_C3", "Linear_8u_C4"}) {
    const Member& member = Find(layout);
    const QvpiSize narrow{61, 12}, wide{1600, 6};  // more samples than a strip has
    for (const QvpiSize to :
         {QvpiSize{37, 11}, {150, 40}, {16, 3}, {61, 12}, {244, 12}, {9, 5}, {1301, 4}, {1999, 7}}) {
      const QvpiSize from = to.width > 1000 ? wide : narrow;
      const Record record(kLinear, Kind::k8u, from, to);
      const Source src(member, from, 0);
      const test::Image<uint8_t> dst = Resized(member, record, src, to, qvpBorderReplicate);
      const auto tap = [](int n, int m, int d, int& i, int& w) {
        const double x = (d + 0.5) * (n / std::gcd(n, m)) / (m / std::gcd(n, m)) - 0.5;
        i = static_cast<int>(std::floor(x));
        w = static_cast<int>((x - i) * 16384 + 0.0000001);
      };
      for (int y = 0; y < to.height; ++y) {
        for (int x = 0; x < to.width * member.channels; ++x) {
          int row, column, wy, wx, h[2];
          tap(from.height, to.height, y, row, wy);
          tap(from.width, to.width, x / member.channels, column, wx);
          for (int k = 0; k < 2; ++k) {
            const long at = std::clamp(row + k, 0, from.height - 1);
            const double l = src.Sample(std::clamp(column, 0, from.width - 1), at, x % member.channels);
            const double r = src.Sample(std::clamp(column + 1, 0, from.width - 1), at, x % member.channels);
            h[k] = (static_cast<int>(l) * (16384 - wx) + static_cast<int>(r) * wx + 128) >> 8;
          }
          ASSERT_EQ(dst(x, y), (h[0] * (16384 - wy) + h[1] * wy + 524288) >> 20) << layout << ' ' << x << ',' << y;
        }
      }
    }
  }
}

// Averages of bytes are the nearest to the exact ones: of odd parts of areas there are no ties, of powers of two they
// go to even.
TEST(Resize, AveragesOfBytesAreExact) {
  const QvpiSize ratios[] = {{5, 3}, {3, 2}, {3, 1}, {7, 5}, {13, 3}, {15, 13}, {2, 1}, {4, 1}, {1, 1}};
  for (const QvpiSize across : ratios) {
    for (const QvpiSize down : ratios) {
      const int parts = across.width * down.width;
      if (parts % 2 == 0 && (across.height > 1 || down.height > 1 || (parts & (parts - 1)) != 0)) continue;
      const QvpiSize from{19 * across.width, 2 * down.width}, to{19 * across.height, 2 * down.height};
      for (const char* layout : {"Super_8u_C1", "Super_8u_C3", "Super_8u_C4"}) {
        const Member& member = Find(layout);
        const Record record(kSuper, Kind::k8u, from, to);
        const Source src(member, from, 0, 1);
        const test::Image<uint8_t> dst = Resized(member, record, src, to, 0);
        for (int y = 0; y < to.height; ++y) {
          for (int i = 0; i < to.width * member.channels; ++i) {
            const double exact = Reference(kSuper, src, from, to, 0, {}, i / member.channels, y, i % member.channels);
            ASSERT_EQ(dst(i, y), std::nearbyint(exact)) << layout << ' ' << across.width << ':' << across.height << ' '
                                                        << down.width << ':' << down.height << " at " << i << ',' << y;
          }
        }
      }
    }
  }
}

// Ratios at which bytes are brought to the lanes by other numbers of loads, from one for a whole vector to one for each
// sample, and rows that begin on either one of a pair.
TEST(Resize, RatiosOfBytes) {
  for (const char* layout : {"_8u_C1", "_8u_C3", "_8u_C4"}) {
    for (const Method& m : {kLinear, kSharp, kLanczos2, kLanczos3}) {
      for (const int width : {20, 60, 80, 100, 120, 150, 200, 260, 330, 420, 700, 1400}) {
        Check(m, Find(m.name + layout), {width, 7}, {100, 5}, qvpBorderMirror);
        Check(m, Find(m.name + layout), {width, 6}, {101, 9}, qvpBorderReplicate);
      }
    }
  }
}

// Rows that the floating-point kernels take in several pieces.
TEST(Resize, WideRows) {
  for (const char* type : {"_8u", "_16u", "_16s", "_32f"}) {
    for (const char* layout : {"_C1", "_C3", "_C4"}) {
      for (const Method& m : {kSmoothLinear, kSmoothCubic, kSharp, kLanczos3}) {
        Check(m, Find(m.name + type + layout), {900, 7}, {230, 3}, qvpBorderMirror);
      }
      Check(kSuper, Find(kSuper.name + type + layout), {2800, 4}, {1999, 3});
    }
  }
}

// A tile from a copy of nothing but its source rectangle and the border around it that lies in the image.
void CheckTile(const Member& member, const Record& record, const Source& src, QvpiSize from,
               const test::Image<uint8_t>& whole, QvpiRect tile, int border) {
  QvpiPoint at{};
  QvpiSize size{};
  QvpiBorderSize reach{};
  ASSERT_EQ(qvpiResizeGetSrcRoi_16u(record.get(), tile, &at, &size), 0);
  ASSERT_EQ(qvpiResizeGetBorderSize_16s(record.get(), &reach), 0);
  const int left = std::min<int>(reach.left, at.x), top = std::min<int>(reach.top, at.y);
  const int right = std::min<int>(reach.right, from.width - at.x - size.width),
            bottom = std::min<int>(reach.bottom, from.height - at.y - size.height);
  const int pixel = member.channels * member.bytes;
  ASSERT_GE(right, 0);
  ASSERT_GE(bottom, 0);
  test::Image<uint8_t> copy((left + size.width + right) * pixel, top + size.height + bottom, 0,
                            tile.x % 2 ? test::Guard::kBefore : test::Guard::kAfter);
  for (int y = 0; y < top + size.height + bottom; ++y) {
    std::memcpy(copy.bytes() + y * copy.step(), src.At(at.x - left, at.y - top + y), copy.step());
  }
  test::Image<uint8_t> out(tile.width * pixel, tile.height, member.bytes);
  test::Block buffer(record.BufferSize({tile.width, tile.height}, member.channels));
  ASSERT_EQ(member.call(copy.bytes() + top * copy.step() + left * pixel, copy.step(), out.data(), out.step(),
                        {tile.x, tile.y}, {tile.width, tile.height}, border, record.get(), buffer.data()),
            0);
  for (int y = 0; y < tile.height; ++y) {
    ASSERT_EQ(std::memcmp(out.bytes() + y * out.step(), whole.bytes() + (tile.y + y) * whole.step() + tile.x * pixel,
                          tile.width * pixel),
              0)
        << member.name << " tile " << tile.x << ',' << tile.y << ' ' << tile.width << 'x' << tile.height << " row "
        << y;
  }
}

TEST(Resize, TilesAreTheWhole) {
  const QvpiSize sizes[][2] = {{{53, 13}, {31, 9}}, {{9, 7}, {40, 19}}, {{64, 40}, {16, 10}}, {{61, 9}, {60, 8}}};
  for (const Method& m : kAll) {
    for (const Member& member : MembersOf(m)) {
      for (const auto& [from, to] : sizes) {
        if (!Fits(m, from.width, to.width)) continue;
        const Record record(m, member.kind, from, to);
        const Source src(member, from, 0);
        const int border = qvpBorderMirror;
        const test::Image<uint8_t> whole = Resized(member, record, src, to, border);
        for (const int side : {1, 2, 5, 17}) {
          for (int y = 0; y < to.height; y += side) {
            for (int x = 0; x < to.width; x += side + 2) {
              CheckTile(member, record, src, from, whole,
                        {x, y, std::min(side + 2, to.width - x), std::min(side, to.height - y)}, border);
            }
          }
        }
      }
    }
  }
}

// The mean of the pixels that a destination pixel covers, with ties to even; equal sizes and constants stay as they
// are.
TEST(Resize, AveragesAndIdentities) {
  const Qvp8u src[] = {1, 1, 0, 2, 3, 3, 255, 255, 0, 0, 3, 1, 3, 3, 255, 254};
  Qvp8u dst[4];
  const Record record(kSuper, Kind::k8u, {8, 2}, {4, 1});
  test::Block buffer(record.BufferSize({4, 1}, 1));
  ASSERT_EQ(qvpiResizeSuper_8u_C1R(src, 8, dst, 4, {0, 0}, {4, 1}, record.get(), buffer.data()), 0);
  EXPECT_EQ((std::vector<int>{dst[0], dst[1], dst[2], dst[3]}),
            (std::vector<int>{0, 2, 3, 255}));  // 0.5, 1.5, 3, 254.75
  const Record same(kLinear, Kind::k32f, {4, 3}, {4, 3});
  const float values[12] = {1, INFINITY, 2, NAN, 3, 4, -INFINITY, 5, 6, 7, 8, 9};
  float out[12];
  ASSERT_EQ(qvpiResizeLinear_32f_C1R(values, 16, out, 16, {0, 0}, {4, 3}, 1, nullptr, same.get(), buffer.data()), 0);
  EXPECT_EQ(std::memcmp(values, out, sizeof(out)), 0);
  for (const Method& m : {kLinear, kCubic, kSharp, kWild, kLanczos2, kLanczos3, kSuper, kShifted, kSmoothLinear,
                          kSmoothCubic, kSmoothLanczos}) {
    for (const char* layout : {"_8u_C1", "_8u_C3"}) {
      const Member& member = Find(m.name + layout);
      const Record r(m, Kind::k8u, {71, 30}, {43, 11});
      const std::vector<uint8_t> flat(71 * 30 * 3, 201);
      std::vector<uint8_t> result(43 * 11 * member.channels), work(r.BufferSize({43, 11}, 3));
      ASSERT_EQ(member.call(flat.data(), 71 * 3, result.data(), 43 * member.channels, {0, 0}, {43, 11}, 1, r.get(),
                            work.data()),
                0);
      EXPECT_TRUE(std::all_of(result.begin(), result.end(), [](uint8_t v) { return v == 201; }))
          << member.name << m.interpolation;
    }
  }
}

// Calls a member with a whole image of equal pixels, and checks every result.
void CheckConstant(const Method& m, const Member& member, QvpiSize from, QvpiSize to, double value, double tolerance) {
  const Record record(m, member.kind, from, to);
  ASSERT_EQ(record.status(), 0);
  const size_t samples = size_t{1} * from.width * from.height * member.channels;
  std::vector<uint8_t> src(samples * member.bytes), work(record.BufferSize(to, member.channels));
  for (size_t i = 0; i < samples; ++i) Put(member.kind, src.data() + i * member.bytes, value);
  std::vector<uint8_t> dst(size_t{1} * to.width * to.height * member.channels * member.bytes);
  const QvpiPoint at = record.SourceOf({0, 0});
  const int pixel = member.channels * member.bytes;
  ASSERT_EQ(member.call(src.data() + (size_t{1} * at.y * from.width + at.x) * pixel, from.width * pixel, dst.data(),
                        to.width * pixel, {0, 0}, to, 1, record.get(), work.data()),
            0);
  const double stored = Get(member.kind, src.data());
  for (size_t i = 0; i < dst.size(); i += member.bytes) {
    ASSERT_NEAR(Get(member.kind, dst.data() + i), stored, tolerance)
        << member.name << ' ' << from.width << 'x' << from.height << " to " << to.width << 'x' << to.height;
  }
}

// Averages of equal pixels are these pixels, however many: exactly in integers, and within 2 units of the last place in
// 32f. The same for kernels that are widened a thousand times, but for the floats.
TEST(Resize, ConstantsStay) {
  const QvpiSize sizes[][2] = {{{1000, 1}, {1, 1}}, {{1000, 900}, {1, 1}}, {{48, 270}, {25, 1}}, {{190, 34}, {170, 17}},
                               {{110, 7}, {90, 5}}, {{36, 90}, {17, 31}},  {{5000, 3}, {7, 3}},  {{97, 61}, {13, 9}}};
  for (const auto& [from, to] : sizes) {
    for (const Method& m : {kSuper, kShifted, kSmoothLinear, kSmoothCubic, kSmoothLanczos}) {
      if (!Fits(m, std::min(from.width, from.height), 1)) continue;
      for (const char* layout : {"_C1", "_C3", "_C4"}) {
        if (from.width * from.height > 100000 && layout[2] != '1') continue;
        CheckConstant(m, Find(m.name + "_8u" + layout), from, to, 255, 0);
        CheckConstant(m, Find(m.name + "_16u" + layout), from, to, 40001, 0);
        CheckConstant(m, Find(m.name + "_16u" + layout), from, to, 65535, 0);
        CheckConstant(m, Find(m.name + "_16s" + layout), from, to, -32767, 0);
        const double ulps = m.interpolation == qvpInterpolationSuper ? 2 : 8;
        for (const float value : {0.1f, 0.99999994f, 3.4e38f}) {
          const double ulp = std::nextafter(value, INFINITY) - value;
          if (value < 1 || m.interpolation == qvpInterpolationSuper)
            CheckConstant(m, Find(m.name + "_32f" + layout), from, to, value, ulps * ulp);
        }
      }
    }
  }
}

// Sums of any number of whole rows and columns, with partly covered ones beside them and without.
TEST(Resize, ConstantsStayAtEveryRatio) {
  for (int n = 1; n <= 40; ++n) {
    const QvpiSize sizes[][2] = {{{3 * n + 2, 3 * n + 1}, {3, 3}}, {{n + 9, 2 * n}, {2, 2}}, {{11, 7 * n + 3}, {9, 7}}};
    for (const auto& [from, to] : sizes) {
      if (from.width < to.width || from.height < to.height) continue;
      for (const float value : {0.1f, 1.9999999f, 1.3333333f, 1.6000001f, 3.4e38f}) {
        const double ulp = std::nextafter(value, INFINITY) - value;
        for (const char* layout : {"_C1", "_C3"})
          CheckConstant(kSuper, Find(std::string("Super_32f") + layout), from, to, value, 2 * ulp);
      }
      CheckConstant(kSuper, Find("Super_16u_C1"), from, to, 65535, 0);
    }
  }
}

// Averages of integers are the exact ones, rounded to the nearest, with ties to even.
TEST(Resize, AveragesOfWordsAreExact) {
  const QvpiSize ratios[] = {{2, 1}, {3, 2}, {4, 3}, {6, 5}, {5, 1}, {16, 1}, {40, 3}, {9, 2}, {270, 1}};
  for (const QvpiSize across : ratios) {
    for (const QvpiSize down : ratios) {
      const QvpiSize from{3 * across.width, down.width}, to{3 * across.height, down.height};
      for (const char* layout : {"Super_16u_C1", "Super_16s_C3", "Super_8u_C4"}) {
        const Member& member = Find(layout);
        const Record record(kSuper, member.kind, from, to);
        const Source src(member, from, 0, 1);
        const test::Image<uint8_t> dst = Resized(member, record, src, to, 0);
        for (int i = 0; i < to.width * member.channels; ++i) {
          double sum = 0;
          for (const Tap& v : TapsOf(kSuper, from.height, to.height, 0, 0)) {
            for (const Tap& h : TapsOf(kSuper, from.width, to.width, i / member.channels, 0)) {
              sum += std::round(v.weight * down.width) * std::round(h.weight * across.width) *
                     src.Sample(h.position, v.position, i % member.channels);
            }
          }
          ASSERT_EQ(Get(member.kind, dst.bytes() + i * member.bytes), std::nearbyint(sum / (across.width * down.width)))
              << layout << ' ' << across.width << ':' << across.height << ' ' << down.width << ':' << down.height
              << " at " << i;
        }
      }
    }
  }
}

// Means are finite where a sum or a difference is not, and infinities and NaN stay in the areas that cover them.
TEST(Resize, AveragesOfExtremeFloats) {
  const float big = 3.4e38f, inf = INFINITY;
  for (const QvpiSize to : {QvpiSize{3, 5}, {2, 2}, {4, 2}, {6, 5}, {5, 3}, {1, 1}}) {
    for (const float other : {-big, big, inf, -inf, NAN}) {
      float src[10][12], dst[5][6];
      std::fill_n(src[0], 120, 1.0f);
      src[0][0] = big;
      src[1][1] = other;
      const Record record(kSuper, Kind::k32f, {12, 10}, to);
      std::vector<uint8_t> work(record.BufferSize(to, 1));
      ASSERT_EQ(qvpiResizeSuper_32f_C1R(src[0], 48, dst[0], 24, {0, 0}, to, record.get(), work.data()), 0);
      const double w = 12.0 / to.width, h = 10.0 / to.height;
      const double exact = (double{big} + other + w * h - 2) / (w * h);
      for (int y = 0; y < to.height; ++y) {
        for (int x = 0; x < to.width; ++x) {
          const float got = dst[y][x];
          const std::string at = std::to_string(other) + ' ' + std::to_string(x) + ',' + std::to_string(y);
          if (x > 0 || y > 0) {
            ASSERT_EQ(got, 1) << at;
          } else if (std::isfinite(exact)) {
            ASSERT_NEAR(got, exact, 1e-6 * big) << at;
          } else {
            ASSERT_EQ(std::isnan(got), std::isnan(exact)) << at;
            ASSERT_TRUE(std::isnan(got) || got == exact) << at;
          }
        }
      }
    }
  }
}

// Weights of doubles keep their bits far from the image's beginning, where positions themselves have few left.
TEST(Resize, DoublesAreInterpolatedToTheLastBits) {
  const int n = 3000001, m = 2000003;
  const Record linear(kLinear, Kind::k64f, {n, 2}, {m, 1}), smooth(kSmoothLinear, Kind::k64f, {n, 2}, {m, 1});
  std::vector<double> src(2 * size_t{n}), dst(m);
  for (int i = 0; i < n; ++i) src[i] = src[n + i] = i % 2;
  for (const Record* record : {&linear, &smooth}) {
    std::vector<uint8_t> work(record->BufferSize({m, 1}, 1));
    const auto resize = record == &linear ? qvpiResizeLinear_64f_C1R : qvpiResizeAntialiasing_64f_C1R;
    ASSERT_EQ(resize(src.data(), n * 8, dst.data(), m * 8, {0, 0}, {m, 1}, 1, nullptr, record->get(), work.data()), 0);
    for (int d = 10; d < m - 10; d += 997) {
      const int64_t of2m = (2 * int64_t{d} + 1) * n - m,
                    first = of2m / (2 * int64_t{m});  // the position, in units of 1 / (2 m)
      long double expected = 0, sum = 0;
      for (int64_t i = first - 2; i < first + 4; ++i) {
        const long double distance = std::fabs(static_cast<long double>(of2m - 2 * m * i) / (2.0L * m));
        const long double scale = record == &linear ? 1 : static_cast<long double>(n) / m;
        const long double w = std::max(0.0L, 1 - distance / scale);
        expected += w * src[i];
        sum += w;
      }
      ASSERT_NEAR(dst[d], static_cast<double>(expected / sum), 1e-15) << d;
    }
  }
}

// Any failure of an Init makes the record that was there unusable, and changes nothing else; an empty size leaves it.
TEST(Resize, FailedInitsClearRecords) {
  std::vector<Qvp8u> memory(1 << 14), buffer(64);
  auto* spec = reinterpret_cast<QvpiResizeSpec*>(memory.data());
  Qvp8u* const b = buffer.data();
  const QvpiSize n{8, 8}, small{1, 1}, none{0, 8};
  const QvpiSizeL nL{8, 8}, longL{0x2000000, 8};
  const std::function<QvpStatus()> failing[] = {
      [&] {
        return qvpiResizeNearestInit_8u({-1, 1}, n, spec);
      },
      [&] { return qvpiResizeLinearInit_32f(small, n, spec); },
      [&] { return qvpiResizeLinearInit_L(nL, nL, 2, spec); },
      [&] { return qvpiResizeNearestInit_L(longL, nL, qvp8u, spec); },
      [&] { return qvpiResizeCubicInit_8u(n, n, 0, 0.5f, spec, nullptr); },
      [&] { return qvpiResizeCubicInit_16u(n, n, NAN, 0.5f, spec, b); },
      [&] { return qvpiResizeAntialiasingCubicInit_L(nL, nL, qvp32f, 0, NAN, spec, b); },
      [&] { return qvpiResizeAntialiasingCubicInit_64f(n, n, INFINITY, 0, spec, b); },
      [&] { return qvpiResizeLanczosInit_8u(n, n, 4, spec, b); },
      [&] {
        return qvpiResizeSuperInit_8u(n, {9, 8}, spec);
      },
      [&] { return qvpiResizeSuperShiftInit_8u(n, n, NAN, 0, spec); },
      [&] { return qvpiResizeAntialiasingLinearInit(none, n, spec, nullptr); },
      [&] { return qvpiResizeAntialiasingLinearInit(small, n, spec, b); },
  };
  int size = 0;
  for (const auto& init : failing) {
    ASSERT_EQ(qvpiResizeLinearInit_8u(n, n, spec), 0);
    const std::vector<Qvp8u> before = memory;
    ASSERT_LT(init(), 0);
    ASSERT_EQ(qvpiResizeGetBufferSize_8u(spec, n, 1, &size), qvpStatusContextMatch) << &init - failing;
    const auto changed = std::mismatch(before.begin(), before.end(), memory.begin()).first - before.begin();
    ASSERT_TRUE(std::equal(before.begin() + changed + 4, before.end(), memory.begin() + changed + 4));
  }
  ASSERT_EQ(qvpiResizeLinearInit_8u(n, n, spec), 0);
  EXPECT_EQ(qvpiResizeLanczosInit_8u(none, n, 4, spec, b), qvpStatusNoOperation);
  EXPECT_EQ(qvpiResizeGetBufferSize_8u(spec, n, 1, &size), 0);
}

// Memory of `size` bytes whose first one is `start` bytes behind a multiple of 64, between marked bytes.
class Placed {
 public:
  Placed(size_t size, int start) : bytes_(size + 192, kMark), size_(size) {
    const auto address = reinterpret_cast<uintptr_t>(bytes_.data());
    at_ = (64 - address % 64) + start;
  }
  uint8_t* data() { return bytes_.data() + at_; }
  bool IsIntactAround() const {
    const auto isMark = [](uint8_t v) { return v == kMark; };
    return std::all_of(bytes_.begin(), bytes_.begin() + at_, isMark) &&
           std::all_of(bytes_.begin() + at_ + size_, bytes_.end(), isMark);
  }

 private:
  static constexpr uint8_t kMark = 0xA5;
  std::vector<uint8_t> bytes_;
  size_t size_, at_;
};

TEST(Resize, RecordsAndBuffersWorkAtEveryAddress) {
  const QvpiSize from{45, 6}, to{33, 5};
  for (const Method& m : kAll) {
    for (const char* type : {"_8u_C3", "_32f_C4"}) {
      const Member& member = Find(m.name + type);
      const Source src(member, from, 0);
      const Record plain(m, member.kind, from, to);
      const QvpiPoint at = plain.SourceOf({0, 0});
      const test::Image<uint8_t> expected = Resized(member, plain, src, to, 1);
      for (int start = 0; start < 64; ++start) {
        Placed spec(plain.block().size(), start), buffer(plain.BufferSize(to, member.channels), start);
        const Record record(m, member.kind, from, to, false, spec.data());
        test::Image<uint8_t> dst(to.width * member.channels * member.bytes, to.height, 0);
        ASSERT_EQ(member.call(src.At(at.x, at.y), src.step(), dst.data(), dst.step(), {0, 0}, to, 1, record.get(),
                              buffer.data()),
                  0);
        ASSERT_TRUE(spec.IsIntactAround() && buffer.IsIntactAround()) << member.name << ' ' << start;
        for (int y = 0; y < to.height; ++y) {
          ASSERT_EQ(std::memcmp(dst.bytes() + y * dst.step(), expected.bytes() + y * expected.step(), dst.step()), 0);
        }
      }
    }
  }
}

// Buffers of the reported size at an unreadable page, for widths at which tables and rows just fit.
TEST(Resize, BuffersAreLargeEnough) {
  for (const Method& m : kAll) {
    for (const Member& member : MembersOf(m)) {
      if (member.kind == Kind::k16s) continue;
      for (int width = 1; width <= 70; ++width) {
        for (const int wider : {width + 6, 3 * width + 6, 20 * width}) {
          const QvpiSize from{wider, 9}, to{width, 1 + width % 3};
          if (!Fits(m, wider, width)) continue;
          const Record record(m, member.kind, from, to);
          const Source src(member, from, 0);
          Resized(member, record, src, to, 1);
        }
      }
    }
  }
}

// The mode is switched after the Init buffer is gone, by a record that then belongs to either arithmetic.
TEST(Resize, SwitchesModes) {
  const QvpiSize from{57, 9}, to{41, 7};
  for (const Method& m : {kLinear, kCubic, kLanczos2, kLanczos3}) {
    const Member& member = Find(m.name + "_8u_C1");
    const Source src(member, from, 0);
    const Record record(m, Kind::k8u, from, to), accurate(m, Kind::k16u, from, to);
    const test::Image<uint8_t> fast = Resized(member, record, src, to, 3);
    ASSERT_EQ(qvpiResizeSetMode(qvpAlgHintAccurate, record.get()), 0);
    const test::Image<uint8_t> slow = Resized(member, record, src, to, 3), same = Resized(member, accurate, src, to, 3);
    EXPECT_EQ(std::memcmp(slow.bytes(), same.bytes(), slow.step() * (to.height - 1)), 0) << m.name;
    ASSERT_EQ(qvpiResizeSetMode(qvpAlgHintFast, record.get()), 0);
    const test::Image<uint8_t> again = Resized(member, record, src, to, 3);
    EXPECT_EQ(std::memcmp(fast.bytes(), again.bytes(), fast.step() * (to.height - 1)), 0) << m.name;
    EXPECT_EQ(qvpiResizeSetMode(qvpAlgHintFast, accurate.get()), qvpStatusNotSupportedMode);
    EXPECT_EQ(qvpiResizeSetMode(3, record.get()), qvpStatusNotSupportedMode);
  }
  for (const Method& m : {kNearest, kSuper, kSmoothLinear}) {
    const Record record(m, Kind::k8u, from, to);
    EXPECT_EQ(qvpiResizeSetMode(qvpAlgHintAccurate, record.get()), 0);
    EXPECT_EQ(qvpiResizeSetMode(qvpAlgHintFast, record.get()), qvpStatusNotSupportedMode);
  }
}

// Every kind of weights in every function: within the memory, and near the function's own.
TEST(Resize, RecordsOfOtherTypesWork) {
  const QvpiSize from{57, 9}, to{41, 7};
  for (const Method& m : {kLinear, kCubic, kLanczos3}) {
    for (const Member& member : MembersOf(m)) {
      const Source src(member, from, 0);
      const Record own(m, member.kind, from, to);
      const test::Image<uint8_t> expected = Resized(member, own, src, to, 1);
      for (const Kind kind : {Kind::k8u, Kind::k32f, Kind::k64f}) {
        if (kind == Kind::k64f && m.name != "Linear") continue;
        const Record other(m, kind, from, to);
        const test::Image<uint8_t> dst = Resized(member, other, src, to, 1);
        for (int i = 0; i < to.width * member.channels; ++i) {
          const auto at = [&](const auto& image) {
            return Get(member.kind, image.bytes() + 3 * image.step() + i * member.bytes);
          };
          ASSERT_NEAR(at(dst), at(expected),
                      member.kind == Kind::k8u ? 1
                      : member.bytes == 2      ? 24
                                               : 0.05)
              << member.name;
        }
      }
    }
  }
}

TEST(Resize, ThreadsShareAReadOnlyRecord) {
  const QvpiSize from{200, 60}, to{130, 48};
  for (const Method& m : {kNearest, kLinear, kLanczos3, kSuper, kSmoothCubic}) {
    const Member& member = Find(m.name + "_8u_C3");
    const Record record(m, Kind::k8u, from, to);
    const Source src(member, from, 0);
    const test::Image<uint8_t> expected = Resized(member, record, src, to, 1);
    test::Pages::SetReadOnly(record.get(), record.block().size(), true);
    test::Image<uint8_t> dst(to.width * 3, to.height, 0);
    test::InThreads(8, [&](int i) {
      const QvpiPoint at{0, i * 6};
      QvpiPoint place;
      qvpiResizeGetSrcOffset_8u(record.get(), at, &place);
      std::vector<uint8_t> buffer(record.BufferSize({to.width, 6}, 3));
      EXPECT_EQ(member.call(src.At(place.x, place.y), src.step(), dst.bytes() + at.y * dst.step(), dst.step(), at,
                            {to.width, 6}, 1, record.get(), buffer.data()),
                0);
    });
    test::Pages::SetReadOnly(record.get(), record.block().size(), false);  // pages are used again
    for (int y = 0; y < to.height; ++y) {
      ASSERT_EQ(std::memcmp(dst.bytes() + y * dst.step(), expected.bytes() + y * expected.step(), dst.step()), 0)
          << member.name;
    }
  }
}

TEST(Resize, SizeQueries) {
  int spec = 7, init = 7;
  const auto query = [&](QvpiSize s, QvpiSize d, int interpolation, int smooth = 0) {
    return qvpiResizeGetSize_32f(s, d, interpolation, smooth, &spec, &init);
  };
  EXPECT_EQ(query({0, 5}, {-1, 5}, 3), qvpStatusNoOperation);
  EXPECT_EQ(query({-1, 5}, {5, 5}, 3), qvpStatusSize);
  EXPECT_EQ(query({5, 5}, {5, 5}, 3), qvpStatusInterpolation);
  EXPECT_EQ(query({5, 5}, {5, 5}, 0), qvpStatusNotSupportedMode);
  EXPECT_EQ(query({1, 5}, {5, 5}, qvpInterpolationLinear), qvpStatusSize);
  EXPECT_EQ(query({3, 5}, {5, 5}, qvpInterpolationLanczos), qvpStatusSize);
  EXPECT_EQ(query({5, 5}, {6, 5}, qvpInterpolationSuper), qvpStatusSize);
  EXPECT_EQ(spec, 7);
  EXPECT_EQ(query({100, 70}, {33, 32}, qvpInterpolationNearest, 1), qvpStatusAntialiasIgnored);
  EXPECT_EQ(spec, 4 * (64 + 32) + 324);
  EXPECT_EQ(query({100, 70}, {33, 32}, qvpInterpolationLinear), 0);
  EXPECT_EQ(spec, 8 * (64 + 32) + 324);
  EXPECT_EQ(init, 64);
  EXPECT_EQ(query({100, 70}, {33, 32}, qvpInterpolationCubic), 0);
  EXPECT_EQ(spec, 20 * (64 + 32) + 324);
  EXPECT_EQ(query({5, 5}, {INT32_MAX, 5}, qvpInterpolationLinear), qvpStatusSizeOverflow);
  EXPECT_EQ(spec, 0);
  QvpSizeL wide = 7, wideInit = 7;
  EXPECT_EQ(qvpiResizeGetSize_L({5, 5}, {5, 5}, 2, 2, 0, &wide, &wideInit), qvpStatusDataType);
  EXPECT_EQ(qvpiResizeGetSize_L({5, 5}, {5, 5}, qvp64f, 6, 0, &wide, &wideInit), qvpStatusDataType);
  EXPECT_EQ(qvpiResizeGetSize_L({5, 5}, {5, 5}, qvp64f, 2, 1, &wide, &wideInit), qvpStatusNotSupportedMode);
  EXPECT_EQ(qvpiResizeGetSize_L({5, 0x2000000}, {5, 5}, qvp8u, 2, 1, &wide, &wideInit), qvpStatusSizeOverflow);
}

TEST(Resize, TileQueries) {
  const Record record(kLinear, Kind::k8u, {4, 4}, {16, 8});
  QvpiPoint at{};
  QvpiSize size{};
  const auto roi = [&](QvpiRect tile) { return qvpiResizeGetSrcRoi_8u(record.get(), tile, &at, &size); };
  EXPECT_EQ(roi({16, 0, 1, 1}), qvpStatusOutOfRange);
  EXPECT_EQ(roi({0, -1, 1, 1}), qvpStatusOutOfRange);
  EXPECT_EQ(roi({0, 0, 0, 1}), qvpStatusSize);
  EXPECT_EQ(roi({8, 4, 8, 9}), qvpStatusSizeWarning);
  EXPECT_EQ((std::vector<int>{at.x, at.y, size.width, size.height}), (std::vector<int>{2, 2, 2, 2}));
  EXPECT_EQ(roi({2, 0, 1, 1}), 0);
  EXPECT_EQ((std::vector<int>{at.x, size.width, size.height}), (std::vector<int>{0, 1, 1}));
  int bytes = 0;
  EXPECT_EQ(qvpiResizeGetBufferSize_8u(record.get(), {17, 8}, 3, &bytes), qvpStatusSizeWarning);
  EXPECT_EQ(bytes, 32 + 64 + 2 * 192 + 64);
  EXPECT_EQ(qvpiResizeGetBufferSize_8u(record.get(), {17, 8}, 5, &bytes), qvpStatusChannel);
  QvpSizeL wide = 0;
  EXPECT_EQ(qvpiResizeGetBufferSize_L(record.get(), {17, 8}, 3, &wide), qvpStatusContextMatch);
}

// The checks of calls and Inits, each with everything that comes later wrong too.
TEST(Resize, ChecksInOrder) {
  std::vector<Qvp8u> memory(4096);
  Qvp8u* const p = memory.data();
  const Record linear(kLinear, Kind::k8u, {8, 8}, {4, 4}), smooth(kSmoothLinear, Kind::k8u, {8, 8}, {4, 4}),
      wide(kLinear, Kind::k64f, {8, 8}, {4, 4}, true);
  const auto call = [&](const Qvp8u* src, QvpiPoint o, QvpiSize z, int border, const QvpiResizeSpec* spec) {
    return qvpiResizeLinear_8u_C1R(src, 8, p + 2048, 4, o, z, border, nullptr, spec, p + 2100);
  };
  const auto* foreign = reinterpret_cast<const QvpiResizeSpec*>(p + 1024);
  EXPECT_EQ(call(nullptr, {9, 9}, {0, 0}, 6, foreign), qvpStatusBorder);
  EXPECT_EQ(call(nullptr, {9, 9}, {0, 0}, 0x101, foreign), qvpStatusBorder);
  EXPECT_EQ(call(nullptr, {9, 9}, {0, 0}, 4, foreign), qvpStatusNullPointer);
  EXPECT_EQ(call(p, {9, 9}, {0, -1}, 1, foreign), qvpStatusNoOperation);
  EXPECT_EQ(call(p, {9, 9}, {1, -1}, 1, foreign), qvpStatusContextMatch);
  EXPECT_EQ(call(p, {9, 9}, {1, -1}, 1, wide.get()), qvpStatusContextMatch);
  EXPECT_EQ(call(p, {9, 9}, {1, -1}, 1, linear.get()), qvpStatusSize);
  EXPECT_EQ(call(p, {4, 0}, {1, 1}, 1, smooth.get()), qvpStatusOutOfRange);
  EXPECT_EQ(call(p, {3, 0}, {1, 1}, 1, smooth.get()), qvpStatusNotSupportedMode);
  EXPECT_EQ(call(p, {3, 0}, {2, 1}, 0xF1, linear.get()), qvpStatusSizeWarning);
  const auto* words = reinterpret_cast<const Qvp16u*>(p);
  auto* out = reinterpret_cast<Qvp16u*>(p + 2048);
  EXPECT_EQ(qvpiResizeLinear_16u_C1R(words, 17, out, 8, {4, 0}, {1, 1}, 1, nullptr, linear.get(), p + 2100),
            qvpStatusStep);
  EXPECT_EQ(qvpiResizeCubic_8u_C1R(p, 8, p, 8, {0, 0}, {1, 1}, 4, nullptr, linear.get(), p), qvpStatusContextMatch);
  EXPECT_EQ(qvpiResizeAntialiasing_8u_C1R(p, 8, p, 8, {0, 0}, {1, 1}, 4, nullptr, linear.get(), p),
            qvpStatusNotSupportedMode);
  EXPECT_EQ(qvpiResizeLinear_8u_C1R_L(p, 8, p, 8, {0, 0}, {1, 1}, 3, nullptr, wide.get(), p), qvpStatusBorder);
  EXPECT_EQ(qvpiResizeLinear_8u_C1R_L(p, 8, p, 8, {0, 0}, {1, 1}, 1, nullptr, wide.get(), p), qvpStatusContextMatch);

  auto* spec = reinterpret_cast<QvpiResizeSpec*>(p);
  EXPECT_EQ(qvpiResizeLanczosInit_8u({5, 5}, {0, 5}, 4, spec, p), qvpStatusNoOperation);
  EXPECT_EQ(qvpiResizeLanczosInit_8u({3, 5}, {5, 5}, 4, spec, p), qvpStatusSize);
  EXPECT_EQ(qvpiResizeLanczosInit_8u({5, 5}, {5, 5}, 4, spec, p), qvpStatusNotSupportedMode);
  EXPECT_EQ(qvpiResizeLanczosInit_8u({5, 5}, {5, 5}, 3, spec, p), qvpStatusSize);
  EXPECT_EQ(qvpiResizeCubicInit_8u({5, 5}, {5, 5}, NAN, 0, spec, p), qvpStatusBadArgument);
  EXPECT_EQ(qvpiResizeSuperInit_8u({5, 5}, {6, 5}, spec), qvpStatusSize);
  EXPECT_EQ(qvpiResizeSuperShiftInit_8u({5, 5}, {4, 5}, 0, INFINITY, spec), qvpStatusBadArgument);
  EXPECT_EQ(qvpiResizeNearestInit_L({5, 5}, {4, 0x2000000}, 2, spec), qvpStatusDataType);
  EXPECT_EQ(qvpiResizeNearestInit_L({5, 5}, {4, 0x2000000}, qvp8u, spec), qvpStatusSizeOverflow);
  EXPECT_TRUE(std::all_of(memory.begin(), memory.begin() + 1024, [](Qvp8u v) { return v == 0; }));
}

}  // namespace
