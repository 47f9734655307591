// Warps and remaps of volumes against their formula in double, by tiles, planes and exchanged steps.
#include <algorithm>
#include <cmath>
#include <cstring>
#include <vector>

#include "gtest/gtest.h"
#include "tests/support/bordered.h"
#include "tests/support/voxels.h"

namespace {
using test::Block;
using test::Element;
using test::Export;
using test::Name;
using test::Planes;
using test::Real;
using test::Surrounded;
using test::Voxels;
using Matrix = double[3][4];

struct Point {
  double at[3];
};

// What a point is given: its value, or none.
struct Sampler {
  const Surrounded& src;
  const Element& element;
  int interpolation;
  double b, c, constant;

  int taps() const {
    return interpolation == qvpInterpolationNearest ? 1 : interpolation == qvpInterpolationLinear ? 2 : 4;
  }
  double Voxel(const int (&at)[3]) const {
    const uint8_t* const voxel = src.At(at[0], at[1], at[2]);
    return voxel ? static_cast<double>(element.read(voxel)) : constant;
  }
  double ValueAt(const Point& p) const {
    int first[3];
    double weights[3][4], sum = 0;
    for (int k = 0; k < 3; ++k) {
      const double x = std::clamp(p.at[k], -1e6, 1e6), whole = std::floor(x);
      const double f = x - whole;
      first[k] = static_cast<int>(whole) - (taps() - 1) / 2 + (taps() == 1 && f >= 0.5);
      for (int i = 0; i < taps(); ++i) {
        weights[k][i] = taps() == 1 ? 1 : taps() == 2 ? (i ? f : 1 - f) : test::CubicWeight(f + 1 - i, b, c);
      }
    }
    for (int i = 0; i < taps() * taps() * taps(); ++i) {
      const int x = i % taps(), y = i / taps() % taps(), z = i / taps() / taps();
      sum += weights[0][x] * weights[1][y] * weights[2][z] * Voxel({first[0] + x, first[1] + y, first[2] + z});
    }
    return sum;
  }
  double Error(double largest) const {
    if (taps() == 1) return 0;
    const double rounding = element.isInteger ? 0.5 : 0;
    if (taps() == 2 && element.bytes == 1) return rounding + 0.036;
    return rounding + (taps() == 2 ? 4e-7 : 1e-6) * largest;
  }
};

double Fill(const Surrounded& src, const Element& element) {
  test::Random random(src.size.width);
  double largest = 0;
  src.all.ForEach([&](int x, int y, int z) {
    const Real value = element.isInteger ? element.lowest + random.Next() % int(element.highest - element.lowest + 1)
                                         : Real(static_cast<float>(random.Next() % 20001) / 100 - 100);
    element.write(src.all.At(x, y, z), value);
    largest = std::max(largest, std::fabs(static_cast<double>(value)));
  });
  return largest;
}

// ---- Warps.

struct Manner {
  QvprVolume src, dst;
  int interpolation, border;
  bool isForward = false, isCoronal = false;
  double b = 0, c = 0.5;
};

constexpr double kValue = 77.4;
constexpr int kLeft = 33;  // what the destination holds

class Record {
 public:
  Record(const Manner& m, QvpDataType type, const Matrix& matrix) : spec_(SizeOf(m, type, matrix)) {
    const auto init = m.interpolation == qvpInterpolationNearest ? qvprWarpAffineNearestInit : qvprWarpAffineLinearInit;
    const int direction = m.isForward ? qvpWarpForward : qvpWarpBackward;
    const QvpStatus status =
        m.interpolation == qvpInterpolationCubic
            ? qvprWarpAffineCubicInit(m.src, m.dst, type, matrix, direction, m.b, m.c, m.border, &kValue, spec())
            : init(m.src, m.dst, type, matrix, direction, m.border, &kValue, spec());
    EXPECT_EQ(status, 0);
  }
  QvprWarpSpec* spec() const { return reinterpret_cast<QvprWarpSpec*>(spec_.data()); }
  int BufferSize(QvprVolume tile) const {
    int bytes = 0;
    EXPECT_EQ(qvprWarpGetBufferSize(spec(), tile, &bytes), 0);
    return bytes;
  }

 private:
  static int SizeOf(const Manner& m, QvpDataType type, const Matrix& matrix) {
    int bytes = 0;
    EXPECT_EQ(qvprWarpAffineGetSize(m.src, m.dst, type, matrix, m.interpolation,
                                    m.isForward ? qvpWarpForward : qvpWarpBackward, m.border, &bytes),
              0);
    EXPECT_EQ(bytes, 576);
    return bytes;
  }
  Block spec_;
};

struct Warp {
  const Export& function;
  const Manner& manner;
  const Element& element;
  bool isOfPlanes;
  Surrounded src;
  Record record;

  Warp(const Export& f, const Manner& m, const Matrix& matrix)
      : function(f),
        manner(m),
        element(Name(f.name).From()),
        isOfPlanes(f.name.ends_with("PV")),
        src(m.src, ReachOf(m), ReachOf(m), m.border, element.bytes, m.isCoronal),
        record(m, element.code, matrix) {}
  static QvprPoint ReachOf(const Manner& m) {
    const int reach = m.interpolation == qvpInterpolationNearest  ? 0
                      : m.interpolation == qvpInterpolationLinear ? 1
                                                                  : 2;
    return {reach, reach, reach};
  }

  // A tile of the destination; one that reaches beyond it is cut.
  QvpStatus Run(const Voxels& dst, QvprPoint at, QvprVolume size) const {
    const Block buffer(record.BufferSize(size));
    Planes from(src.all, src.origin().z), to(dst, at.z);
    const test::Argument source =
        isOfPlanes ? test::Argument(from.at(src.origin().x, src.origin().y)) : test::Argument(src.first());
    const test::Argument target =
        isOfPlanes ? test::Argument(to.at(at.x, at.y)) : test::Argument(dst.At(at.x, at.y, at.z));
    const QvpStatus status = function({{"pSrc", source},
                                       {"srcStep", isOfPlanes ? from.step() : src.all.step},
                                       {"srcPlaneStep", src.all.planeStep},
                                       {"pDst", target},
                                       {"dstStep", isOfPlanes ? to.step() : dst.step},
                                       {"dstPlaneStep", dst.planeStep},
                                       {"dstOffset", Argument(at)},
                                       {"dstVolume", size},
                                       {"pSpec", {record.spec()}},
                                       {"pBuffer", {buffer.data()}}});
    if (isOfPlanes) to.CopyBack();
    return status;
  }

 private:
  static test::Argument Argument(QvprPoint p) {
    test::Argument argument(p.x);
    argument.second = p.y;
    argument.third = p.z;
    return argument;
  }
};

void FillWith(const Voxels& dst, const Element& element) {
  dst.ForEach([&](int x, int y, int z) { element.write(dst.At(x, y, z), kLeft); });
}

void Check(const Export& function, const Manner& m, const Matrix& backward, const Matrix& given) {
  const Warp warp(function, m, given);
  const Element& element = warp.element;
  const double largest = Fill(warp.src, element);
  const Voxels whole(m.dst, element.bytes, 0, m.isCoronal), tiled(m.dst, element.bytes, 0, m.isCoronal);
  FillWith(whole, element), FillWith(tiled, element);
  ASSERT_EQ(warp.Run(whole, {0, 0, 0}, m.dst), 0);
  const QvprVolume part{std::max(m.dst.width * 2 / 3, 1), std::max(m.dst.height / 2, 1), std::max(m.dst.depth / 2, 1)};
  for (int z = 0; z < m.dst.depth; z += part.depth) {
    for (int y = 0; y < m.dst.height; y += part.height) {
      for (int x = 0; x < m.dst.width; x += part.width) ASSERT_GE(warp.Run(tiled, {x, y, z}, part), 0);
    }
  }
  const Sampler sampler{warp.src, element, m.interpolation,
                        m.b,      m.c,     static_cast<double>(test::Converted(element, kValue))};
  const bool isBounded = m.border == qvpBorderTransparent || m.border == qvpBorderInMemVolume;
  const int lengths[] = {m.src.width, m.src.height, m.src.depth},
            reach = m.border == qvpBorderInMemVolume ? Warp::ReachOf(m).x : 0;
  whole.ForEach([&](int x, int y, int z) {
    Point p;
    bool isWithin = true;
    for (int k = 0; k < 3; ++k) {
      p.at[k] = (backward[k][0] * x + backward[k][1] * y) + (backward[k][2] * z + backward[k][3]);
      isWithin = isWithin && p.at[k] >= -reach && p.at[k] <= lengths[k] - 1 + reach;
    }
    const auto found = static_cast<double>(element.read(whole.At(x, y, z)));
    const double exact = isBounded && !isWithin ? kLeft : sampler.ValueAt(p);
    const double saturated = std::clamp<double>(exact, element.lowest, element.highest);
    ASSERT_NEAR(found, saturated, isBounded && !isWithin ? 0 : sampler.Error(largest))
        << function.name << " method " << m.interpolation << " border " << m.border << " at " << x << ',' << y << ','
        << z;
    ASSERT_EQ(std::memcmp(whole.At(x, y, z), tiled.At(x, y, z), element.bytes), 0) << function.name << " in tiles";
  });
}

constexpr Matrix kTurned = {{0.83, 0.31, -0.12, -1.27}, {-0.27, 0.91, 0.22, 1.63}, {0.11, -0.24, 0.77, 0.88}};
constexpr int kMethods[] = {qvpInterpolationNearest, qvpInterpolationLinear, qvpInterpolationCubic};
constexpr int kBorders[] = {qvpBorderReplicate, qvpBorderConst, qvpBorderTransparent, qvpBorderInMemVolume};

TEST(VolumeWarps, EveryMemberMethodAndBorder) {
  int turn = 0;
  for (const Export* function : test::FunctionsOf({"qvprWarpAffine"})) {
    for (const int method : kMethods) {
      for (const int border : kBorders) {
        Check(*function, {{19, 14, 9}, {23, 11, 7}, method, border, false, ++turn % 3 == 0}, kTurned, kTurned);
      }
    }
    Check(*function, {{1, 1, 1}, {3, 2, 2}, qvpInterpolationCubic, qvpBorderConst}, kTurned, kTurned);
    Check(*function, {{150, 3, 5}, {140, 3, 3}, qvpInterpolationLinear, qvpBorderReplicate}, kTurned, kTurned);
  }
}

// Points in the middle between voxels, where fixed point is left, and slopes that are too steep for it.
TEST(VolumeWarps, TiesAndSteepSlopes) {
  constexpr Matrix kHalved = {{0.5, 0, 0, 0}, {0, 0.25, 0, 0.5}, {0, 0, 0.5, 0.25}};
  constexpr Matrix kSteep = {{4.3, 0.5, 0, -20}, {0.2, 0.75, 0, 0}, {0, 0.1, 1, 0.5}};
  for (const int method : kMethods) {
    for (const char* name : {"qvprWarpAffine_8u_C1V", "qvprWarpAffine_32f_C1PV"}) {
      const Export& function = test::FunctionNamed(name);
      Check(function, {{90, 9, 6}, {170, 20, 9}, method, qvpBorderConst}, kHalved, kHalved);
      Check(function, {{120, 9, 6}, {37, 9, 5}, method, qvpBorderTransparent}, kSteep, kSteep);
    }
  }
}

TEST(VolumeWarps, ForwardByTheInverse) {
  Matrix forward;
  ASSERT_EQ(qvprGetAffineInverse(kTurned, forward), 0);
  Matrix back;
  ASSERT_EQ(qvprGetAffineInverse(forward, back), 0);
  Check(test::FunctionNamed("qvprWarpAffine_16u_C1V"),
        {{12, 10, 8}, {12, 10, 8}, qvpInterpolationLinear, qvpBorderConst, true}, back, forward);
}

// Whole shifts copy, what is not finite too.
TEST(VolumeWarps, ShiftsCopy) {
  const Matrix shift = {{1, 0, 0, 1}, {0, 1, 0, 0}, {0, 0, 1, 0}};
  const float src[] = {1, INFINITY, NAN, 4};
  for (const int method : {qvpInterpolationLinear, qvpInterpolationCubic}) {
    const Record record({{4, 1, 1}, {4, 1, 1}, method, qvpBorderReplicate}, qvp32f, shift);
    float dst[4];
    const Block buffer(record.BufferSize({4, 1, 1}));
    ASSERT_EQ(qvprWarpAffine_32f_C1V(src, 16, 16, dst, 16, 16, {0, 0, 0}, {4, 1, 1}, record.spec(), buffer.data()), 0);
    EXPECT_EQ(dst[0], INFINITY);
    EXPECT_TRUE(std::isnan(dst[1]));
    EXPECT_EQ(dst[2], 4);
    EXPECT_EQ(dst[3], 4);
  }
}

// ---- Where depth is left alone, each plane is the image warped.

template <class T>
using WarpImage = QvpStatus (*)(const T*, int, T*, int, QvpiPoint, QvpiSize, const QvpiWarpSpec*, Qvp8u*);
template <class T>
using WarpVolume = QvpStatus (*)(const T*, int, int, T*, int, int, QvprPoint, QvprVolume, const QvprWarpSpec*, Qvp8u*);

template <class T>
struct Twins {
  QvpDataType type;
  WarpImage<T> nearest, linear, cubic;
  WarpVolume<T> volume;
};

template <class T>
std::vector<T> WarpedPlane(const Twins<T>& f, const std::vector<T>& src, const Manner& m, const double (&flat)[2][3]) {
  const QvpiSize from{m.src.width, m.src.height}, size{m.dst.width, m.dst.height};
  int bytes = 0, init = 0, work = 0;
  EXPECT_EQ(qvpiWarpAffineGetSize(from, size, f.type, flat, m.interpolation, qvpWarpBackward, m.border, &bytes, &init),
            0);
  const Block room(bytes), initRoom(init);
  auto* const spec = reinterpret_cast<QvpiWarpSpec*>(room.data());
  const auto other = m.interpolation == qvpInterpolationNearest ? qvpiWarpAffineNearestInit : qvpiWarpAffineLinearInit;
  EXPECT_EQ(m.interpolation == qvpInterpolationCubic
                ? qvpiWarpAffineCubicInit(from, size, f.type, flat, qvpWarpBackward, 1, m.b, m.c, m.border, &kValue, 0,
                                          spec, initRoom.data())
                : other(from, size, f.type, flat, qvpWarpBackward, 1, m.border, &kValue, 0, spec),
            0);
  EXPECT_EQ(qvpiWarpGetBufferSize(spec, size, &work), 0);
  const Block buffer(work);
  std::vector<T> dst(size.width * size.height, T{kLeft});
  const auto warp = m.interpolation == qvpInterpolationNearest  ? f.nearest
                    : m.interpolation == qvpInterpolationLinear ? f.linear
                                                                : f.cubic;
  EXPECT_EQ(warp(src.data(), from.width * int{sizeof(T)}, dst.data(), size.width * int{sizeof(T)}, {0, 0}, size, spec,
                 buffer.data()),
            0);
  return dst;
}

template <class T>
std::vector<T> WarpedVolume(const Twins<T>& f, const std::vector<T>& src, const Manner& m, const Matrix& space) {
  const Record record(m, f.type, space);
  const Block room(record.BufferSize(m.dst));
  std::vector<T> dst(m.dst.width * m.dst.height, T{kLeft});
  const int step = m.src.width * int{sizeof(T)}, dstStep = m.dst.width * int{sizeof(T)};
  EXPECT_EQ(f.volume(src.data(), step, step * m.src.height, dst.data(), dstStep, dstStep * m.dst.height, {0, 0, 0},
                     m.dst, record.spec(), room.data()),
            0);
  return dst;
}

template <class T>
void ExpectTwins(const Twins<T>& f) {
  test::Random random(sizeof(T) + 40);
  const auto number = [&](double low, double high) { return low + (high - low) * (random.Next() % 10007) / 10006; };
  for (int i = 0; i < 90; ++i) {
    const bool isLarge = i % 3 == 0;  // small images are warped from a copy
    const QvprVolume src{isLarge ? 301 : 2 + int(random.Next() % 70), isLarge ? 170 : 2 + int(random.Next() % 50), 1};
    constexpr int kMethods[] = {qvpInterpolationNearest, qvpInterpolationLinear, qvpInterpolationCubic};
    constexpr int kBorders[] = {qvpBorderReplicate, qvpBorderConst, qvpBorderTransparent};
    const Manner m{
        src, {20 + int(random.Next() % 90), 40, 1}, kMethods[random.Next() % 3], kBorders[random.Next() % 3]};
    const double turn = number(-3, 3), zoom = i % 5 == 0 ? 1 : number(0.3, 2);
    const double c = i % 5 == 0 ? 0.5 : zoom * std::cos(turn), s = i % 5 == 0 ? 0.25 : zoom * std::sin(turn);
    const double x = number(-9, src.width), y = std::floor(number(-9, src.height));
    const double flat[2][3] = {{c, s, x}, {-s, c, y}};
    std::vector<T> pixels(src.width * src.height);
    for (T& pixel : pixels) pixel = static_cast<T>(random.Next() % 60001);
    const Matrix space = {{c, s, 0, x}, {-s, c, 0, y}, {0, 0, 1, 0}};
    const std::vector<T> plane = WarpedPlane(f, pixels, m, flat), volume = WarpedVolume(f, pixels, m, space);
    const auto at = std::mismatch(plane.begin(), plane.end(), volume.begin());
    EXPECT_TRUE(at.first == plane.end()) << i << ": method " << m.interpolation << " border " << m.border << ", "
                                         << src.width << "x" << src.height << ", " << +*at.first << " and "
                                         << +*at.second << " at " << at.first - plane.begin();
  }
}

TEST(VolumeWarps, LeaveDepthAlone) {
  const auto expect = [](const auto& twins) { ExpectTwins(twins); };
#define TWINS(type)                                                                                         \
  expect(Twins<Qvp##type>{qvp##type, qvpiWarpAffineNearest_##type##_C1R, qvpiWarpAffineLinear_##type##_C1R, \
                          qvpiWarpAffineCubic_##type##_C1R, qvprWarpAffine_##type##_C1V})
  TWINS(8u);
  TWINS(16u);
  TWINS(16s);
  TWINS(32f);
#undef TWINS
}

TEST(VolumeWarps, ChecksInOrder) {
  Qvp16s voxel[4] = {}, found[4];
  Qvp8u buffer[256];
  const Record record({{2, 1, 2}, {2, 1, 1}, qvpInterpolationLinear, qvpBorderReplicate}, qvp16s, kTurned);
  const Qvp16s* planes[] = {voxel, nullptr};
  Qvp16s* results[] = {found};
  const auto warp = [&](int step, QvprPoint at, QvprVolume size, const QvprWarpSpec* spec) {
    return qvprWarpAffine_16s_C1PV(planes, step, results, 4, at, size, spec, buffer);
  };
  EXPECT_EQ(warp(0, {-1, 0, 0}, {0, 1, 1}, nullptr), qvpStatusNullPointer);
  EXPECT_EQ(warp(0, {-1, 0, 0}, {0, 1, 1}, record.spec()), qvpStatusSize);
  EXPECT_EQ(warp(0, {-1, 0, 0}, {1, 1, 1}, record.spec()), qvpStatusStep);
  EXPECT_EQ(warp(4, {-1, 0, 0}, {1, 1, 1}, record.spec()), qvpStatusOutOfRange);
  EXPECT_EQ(warp(4, {0, 0, 1}, {1, 1, 1}, record.spec()), qvpStatusOutOfRange);
  EXPECT_EQ(warp(4, {0, 0, 0}, {1, 1, 1}, record.spec()), qvpStatusNullPointer);  // a plane
  planes[1] = voxel;
  EXPECT_EQ(warp(4, {1, 0, 0}, {2, 1, 1}, record.spec()), qvpStatusSizeWarning);
  EXPECT_EQ(qvprWarpAffine_16u_C1V(reinterpret_cast<Qvp16u*>(voxel), 4, 4, reinterpret_cast<Qvp16u*>(found), 4, 4,
                                   {0, 0, 0}, {1, 1, 1}, record.spec(), buffer),
            qvpStatusContextMatch);

  int bytes = 0;
  const Matrix flat = {{1, 2, 3, 0}, {2, 4, 6, 0}, {1, 0, 1, 0}};
  const auto query = [&](QvprVolume src, int type, const Matrix& c, int method, int direction, int border) {
    return qvprWarpAffineGetSize(src, {1, 1, 1}, type, c, method, direction, border, &bytes);
  };
  EXPECT_EQ(query({0, 1, 1}, qvp64f, flat, 4, 9, 3), qvpStatusSize);
  EXPECT_EQ(query({1, 1, 1}, qvp64f, flat, 4, 9, 3), qvpStatusDataType);
  EXPECT_EQ(query({1, 1, 1}, qvp8u, flat, 4, 9, 3), qvpStatusCoefficient);
  EXPECT_EQ(query({1, 1, 1}, qvp8u, kTurned, 4, 9, 3), qvpStatusInterpolation);
  EXPECT_EQ(query({1, 1, 1}, qvp8u, kTurned, 2, 9, 3), qvpStatusWarpDirection);
  EXPECT_EQ(query({1, 1, 1}, qvp8u, kTurned, 2, qvpWarpForward, 3), qvpStatusBorder);
  EXPECT_EQ(query({1, 1, 33554432}, qvp8u, kTurned, 2, qvpWarpForward, 1), qvpStatusSizeOverflow);
}

// ---- Remap.

void CheckRemap(const Export& function, int interpolation, bool isCoronal) {
  const Element& element = Name(function.name).From();
  const bool isOfPlanes = function.name.ends_with("PV");
  const QvprVolume size{14, 9, 6}, result{70, 4, 3};
  const QvprCuboid cuboid{1, 0, 1, 12, 20, 4};
  const Surrounded src(size, {0, 0, 0}, {0, 0, 0}, qvpBorderReplicate, element.bytes, isCoronal);
  const double largest = Fill(src, element);
  const Voxels dst(result, element.bytes, 0, isCoronal);
  const std::vector<std::unique_ptr<Voxels>> maps = [&] {
    std::vector<std::unique_ptr<Voxels>> made;
    test::Random random(interpolation);
    const int most[] = {1400, 900, 600};
    for (const int m : most) {
      made.push_back(std::make_unique<Voxels>(result, 4, 8, isCoronal));
      made.back()->ForEach([&](int x, int y, int z) {
        const int kind = static_cast<int>(random.Next() % 40);
        const float value = kind == 0   ? NAN
                            : kind == 1 ? INFINITY
                            : kind < 8  ? static_cast<float>(random.Next() % (m / 100))
                                        : static_cast<float>(random.Next() % (m + 100)) / 100 - 0.5F;
        std::memcpy(made.back()->At(x, y, z), &value, sizeof(value));
      });
    }
    return made;
  }();
  FillWith(dst, element);
  Planes from(src.all, 0), to(dst, 0), x(*maps[0], 0), y(*maps[1], 0), z(*maps[2], 0);
  const auto at = [&](Planes& planes, const Voxels& volume) {
    return isOfPlanes ? test::Argument(planes.at(0, 0)) : test::Argument(volume.block.data());
  };
  ASSERT_EQ(function({{"pSrc", at(from, src.all)},
                      {"srcVolume", size},
                      {"srcStep", isOfPlanes ? from.step() : src.all.step},
                      {"srcPlaneStep", src.all.planeStep},
                      {"srcCuboid", cuboid},
                      {"pxMap", at(x, *maps[0])},
                      {"pyMap", at(y, *maps[1])},
                      {"pzMap", at(z, *maps[2])},
                      {"mapStep", isOfPlanes ? x.step() : maps[0]->step},
                      {"mapPlaneStep", maps[0]->planeStep},
                      {"pDst", at(to, dst)},
                      {"dstStep", isOfPlanes ? to.step() : dst.step},
                      {"dstPlaneStep", dst.planeStep},
                      {"dstVolume", result},
                      {"interpolation", interpolation}}),
            0);
  if (isOfPlanes) to.CopyBack();
  const bool isClassic = interpolation == qvpInterpolationCubicClassic;
  const Sampler sampler{src, element, isClassic ? +qvpInterpolationCubic : interpolation, 0, isClassic ? 0.75 : 0.5, 0};
  const double low[] = {1, 0, 1}, high[] = {12, 8, 4};
  dst.ForEach([&](int i, int j, int k) {
    Point p;
    bool isWithin = true;
    for (int axis = 0; axis < 3; ++axis) {
      float coordinate;
      std::memcpy(&coordinate, maps[axis]->At(i, j, k), sizeof(coordinate));
      p.at[axis] = coordinate;
      isWithin = isWithin && coordinate >= low[axis] && coordinate <= high[axis];
    }
    const auto found = static_cast<double>(element.read(dst.At(i, j, k)));
    if (!isWithin) {
      ASSERT_EQ(found, kLeft);
    } else {
      const double exact = std::clamp<double>(sampler.ValueAt(p), element.lowest, element.highest);
      ASSERT_NEAR(found, exact, sampler.Error(largest))
          << function.name << ' ' << interpolation << " at " << i << ',' << j << ',' << k;
    }
  });
}

TEST(VolumeRemaps, EveryMemberAndMethod) {
  for (const Export* function : test::FunctionsOf({"qvprRemap"})) {
    for (const int method :
         {+qvpInterpolationNearest, +qvpInterpolationLinear, +qvpInterpolationCubicClassic, +qvpInterpolationCubic}) {
      CheckRemap(*function, method, method == qvpInterpolationLinear);
    }
  }
}

TEST(VolumeRemaps, BoundsAndChecksInOrder) {
  const Qvp8u front = 10, back = 20, *planes[] = {&front, &back};
  const float zero = 0, *zeros[] = {&zero};
  const auto remap = [&](float z, QvprCuboid cuboid, int step, int method) {
    const float* z_[] = {&z};
    Qvp8u found = kLeft, *to[] = {&found};
    const QvpStatus status =
        qvprRemap_8u_C1PV(planes, {1, 1, 2}, 1, cuboid, zeros, zeros, z_, step, to, 1, {1, 1, 1}, method);
    return status == 0 ? found : status;
  };
  const QvprCuboid all{0, 0, 0, 1, 1, 2};
  EXPECT_EQ(remap(0.5F, all, 4, qvpInterpolationLinear), 15);
  EXPECT_EQ(remap(1, all, 4, qvpInterpolationLinear), 20);
  EXPECT_EQ(remap(std::nextafter(1.F, 2.F), all, 4, qvpInterpolationLinear), kLeft);
  EXPECT_EQ(remap(0, {0, -1, 0, 1, 1, 1}, 0, 3), qvpStatusSize);
  EXPECT_EQ(remap(0, all, 0, 3), qvpStatusStep);
  EXPECT_EQ(remap(0, {0, 0, 2, 1, 1, 1}, 4, 3), qvpStatusInterpolation);
  planes[1] = nullptr;
  EXPECT_EQ(remap(0, {0, 0, 2, 1, 1, 1}, 4, qvpInterpolationCubic), qvpStatusNoIntersection);
  EXPECT_EQ(remap(0, {0, 0, 0, 1, 1, 1}, 4, qvpInterpolationLinear), qvpStatusNullPointer);
  EXPECT_EQ(remap(0, {0, 0, 0, 1, 1, 1}, 4, qvpInterpolationNearest), 10);
}

}  // namespace
