// Warps and remaps of volumes against their formula in double, by tiles, planes and exchanged steps.
#include <cmath>
#include <vector>

#include "tests/support/bordered.h"
#include "tests/support/voxels.h"
#include "tests/support/warped.h"

namespace {
using test::Block;
using test::CallNamed;
using test::Element;
using test::Export;
using test::Name;
using test::Rule;
using test::Samples;
using test::Surrounded;
using test::Voxels;
using Matrix = double[3][4];

constexpr double kValue = 77.4;
constexpr int kLeft = 33;  // what the destination holds

int TapsOf(int interpolation) {
  return interpolation == qvpInterpolationNearest ? 1 : interpolation == qvpInterpolationLinear ? 2 : 4;
}

struct Space {
  double at[3];
};

double ValueAt(const Surrounded& src, const Element& element, const Rule& rule, const Space& p) {
  const test::AxisWeights x(rule, p.at[0]), y(rule, p.at[1]), z(rule, p.at[2]);
  double sum = 0;
  for (int i = 0; i < rule.taps * rule.taps * rule.taps; ++i) {
    const int u = i % rule.taps, v = i / rule.taps % rule.taps, w = i / rule.taps / rule.taps;
    const uint8_t* const voxel = src.At(x.first + u, y.first + v, z.first + w);
    sum += x.weights[u] * y.weights[v] * z.weights[w] *
           (voxel ? static_cast<double>(element.read(voxel)) : rule.constant[0]);
  }
  return std::clamp<double>(sum, element.lowest, element.highest);
}

double ErrorOf(const Element& element, int taps) {
  const double rounding = element.isInteger ? 0.5 : 0, largest = element.isInteger ? double(element.highest) : 100;
  if (taps == 1) return 0;
  return rounding + (taps == 2 && element.bytes == 1 ? 0.036 : (taps == 2 ? 4e-7 : 1e-6) * largest);
}

// ---- Warps.

struct Manner {
  QvprVolume src, dst;
  int interpolation, border;
  bool isForward = false, isCoronal = false;
};

class Record {
 public:
  Record(const Manner& m, QvpDataType type, const Matrix& matrix) : spec_(576) {
    constexpr const char* kNames[] = {"", "Nearest", "Linear", "", "Cubic"};
    int bytes = 0;
    const std::vector<test::Named> arguments = {{"srcVolume", m.src},
                                                {"dstVolume", m.dst},
                                                {"dataType", type},
                                                {"coeffs", {matrix}},
                                                {"interpolation", m.interpolation},
                                                {"direction", m.isForward ? qvpWarpForward : qvpWarpBackward},
                                                {"valueB", 0},
                                                {"valueC", 0.5},
                                                {"borderType", m.border},
                                                {"pBorderValue", {&kValue}},
                                                {"pSpecSize", {&bytes}},
                                                {"pSpec", {spec()}}};
    EXPECT_EQ(CallNamed("qvprWarpAffineGetSize", arguments), 0);
    EXPECT_EQ(bytes, 576);
    EXPECT_EQ(CallNamed(std::string("qvprWarpAffine") + kNames[TapsOf(m.interpolation)] + "Init", arguments), 0);
  }
  QvprWarpSpec* spec() const { return reinterpret_cast<QvprWarpSpec*>(spec_.data()); }
  int BufferSize(QvprVolume tile) const {
    int bytes = 0;
    EXPECT_EQ(qvprWarpGetBufferSize(spec(), tile, &bytes), 0);
    return bytes;
  }
  // A tile of the destination; one that reaches beyond it is cut.
  QvpStatus operator()(const Export& function, const Surrounded& src, const Voxels& dst, QvprPoint at,
                       QvprVolume size) const {
    const Block buffer(BufferSize(size));
    test::VolumeCall call(function);
    call.Add("pSrc", src.all, src.origin());
    call.Add("pDst", dst, at);
    return call({{"dstOffset", at}, {"dstVolume", size}, {"pSpec", {spec()}}, {"pBuffer", {buffer.data()}}});
  }

 private:
  Block spec_;
};

test::Real Left(const Element&, test::Random&) { return kLeft; }

void Check(const Export& function, const Manner& m, const Matrix& backward, const Matrix& given) {
  const Element& element = Name(function.name).From();
  const int taps = TapsOf(m.interpolation), around = taps / 2;
  const Surrounded src(m.src, {around, around, around}, {around, around, around}, m.border, element.bytes, m.isCoronal);
  src.all.Fill(element, test::ModestVoxel);
  const Record warp(m, element.code, given);
  const Voxels whole(m.dst, element.bytes, 0, m.isCoronal), tiled(m.dst, element.bytes, 0, m.isCoronal);
  whole.Fill(element, Left), tiled.Fill(element, Left);
  ASSERT_EQ(warp(function, src, whole, {0, 0, 0}, m.dst), 0);
  const QvprVolume part{std::max(m.dst.width * 2 / 3, 1), std::max(m.dst.height / 2, 1), std::max(m.dst.depth / 2, 1)};
  for (int z = 0; z < m.dst.depth; z += part.depth) {
    for (int y = 0; y < m.dst.height; y += part.height) {
      for (int x = 0; x < m.dst.width; x += part.width) ASSERT_GE(warp(function, src, tiled, {x, y, z}, part), 0);
    }
  }
  const Rule rule{.taps = taps, .constant = {static_cast<double>(test::Converted(element, kValue))}};
  const bool isBounded = m.border == qvpBorderTransparent || m.border == qvpBorderInMemVolume;
  const int lengths[] = {m.src.width, m.src.height, m.src.depth}, reach = m.border == qvpBorderInMemVolume ? around : 0;
  whole.ForEach([&](int x, int y, int z) {
    Space p;
    bool isLeft = false;
    for (int k = 0; k < 3; ++k) {
      p.at[k] = (backward[k][0] * x + backward[k][1] * y) + (backward[k][2] * z + backward[k][3]);
      isLeft |= isBounded && !(p.at[k] >= -reach && p.at[k] <= lengths[k] - 1 + reach);
    }
    const double expected = isLeft ? kLeft : ValueAt(src, element, rule, p);
    ASSERT_NEAR(static_cast<double>(element.read(whole.At(x, y, z))), expected, isLeft ? 0 : ErrorOf(element, taps))
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

// A volume of one plane.
void WarpPlane(const Matrix& matrix, const Manner& m, const Samples& src, const Samples& dst) {
  const Record record(m, src.element().code, matrix);
  const Block buffer(record.BufferSize(m.dst));
  ASSERT_EQ(CallNamed("qvprWarpAffine_" + std::string(src.element().name) + "_C1V", {{"pSrc", src},
                                                                                     {"srcPlaneStep", 1},
                                                                                     {"pDst", dst},
                                                                                     {"dstPlaneStep", 1},
                                                                                     {"dstOffset", QvprPoint{0, 0, 0}},
                                                                                     {"dstVolume", m.dst},
                                                                                     {"pSpec", {record.spec()}},
                                                                                     {"pBuffer", {buffer.data()}}}),
            0);
}

// Where depth is left alone, each plane is the image warped, to the bit.
TEST(VolumeWarps, LeaveDepthAlone) {
  constexpr const char* kTypes[] = {"8u", "16u", "16s", "32f"};
  test::Random random(41);
  const auto number = [&](double low, double high) { return low + (high - low) * (random.Next() % 10007) / 10006; };
  for (int i = 0; i < 360; ++i) {
    const Element& element = test::ElementOf(kTypes[i % 4]);
    const bool isLarge = i % 3 == 0, isPlain = i % 5 == 0;  // small images are warped from a copy
    const QvpiSize from{isLarge ? 301 : 2 + int(random.Next() % 70), isLarge ? 170 : 2 + int(random.Next() % 50)},
        to{20 + int(random.Next() % 90), 40};
    const Manner m{{from.width, from.height, 1},
                   {to.width, to.height, 1},
                   kMethods[random.Next() % 3],
                   kBorders[random.Next() % 3]};
    const double turn = number(-3, 3), zoom = number(0.3, 2);
    const double c = isPlain ? 0.5 : zoom * std::cos(turn), s = isPlain ? 0.25 : zoom * std::sin(turn);
    const double x = number(-9, from.width), y = std::floor(number(-9, from.height));
    Samples src(element, from.width, from.height, 0), flat(element, to.width, to.height, 0), deep(flat);
    src.Fill([&](int, int) { return test::ModestVoxel(element, random); });
    for (Samples* dst : {&flat, &deep}) dst->Fill([](int, int) { return kLeft; });
    Rule rule{.taps = TapsOf(m.interpolation)};
    rule.constant[0] = kValue;
    test::ImageWarp({test::Kind::kAffine, {c, s, x, -s, c, y}}, element, 1, rule, m.border, from, to).Whole(src, flat);
    WarpPlane({{c, s, 0, x}, {-s, c, 0, y}, {0, 0, 1, 0}}, m, src, deep);
    ExpectSame(flat, deep, std::string(element.name) + " method " + std::to_string(m.interpolation));
  }
}

TEST(VolumeWarps, KnowTheirPlanesAndRecords) {
  Qvp16s voxel[4] = {}, found[4];
  Qvp8u buffer[256];
  const Record record({{2, 1, 2}, {2, 1, 1}, qvpInterpolationLinear, qvpBorderReplicate}, qvp16s, kTurned);
  const Qvp16s* planes[] = {voxel, nullptr};
  Qvp16s* results[] = {found};
  const auto warp = [&](QvprPoint at, QvprVolume size) {
    return qvprWarpAffine_16s_C1PV(planes, 4, results, 4, at, size, record.spec(), buffer);
  };
  EXPECT_EQ(warp({0, 0, 1}, {1, 1, 1}), qvpStatusOutOfRange);
  EXPECT_EQ(warp({0, 0, 0}, {1, 1, 1}), qvpStatusNullPointer);  // a plane
  planes[1] = voxel;
  EXPECT_EQ(warp({1, 0, 0}, {2, 1, 1}), qvpStatusSizeWarning);
}

// ---- Remap.

// Places in a volume of a length and around it, whole ones among them, and what is no place.
void FillMap(const Voxels& map, int length, test::Random& random) {
  map.ForEach([&](int x, int y, int z) {
    const int kind = static_cast<int>(random.Next() % 40);
    const float value = kind == 0   ? NAN
                        : kind == 1 ? INFINITY
                        : kind < 8  ? static_cast<float>(random.Next() % length)
                                    : static_cast<float>(random.Next() % (100 * length + 100)) / 100 - 0.5F;
    std::memcpy(map.At(x, y, z), &value, sizeof(value));
  });
}

void CheckRemap(const Export& function, int interpolation, bool isCoronal) {
  const Element& element = Name(function.name).From();
  const QvprVolume size{14, 9, 6}, result{70, 4, 3};
  const Surrounded src(size, {0, 0, 0}, {0, 0, 0}, qvpBorderReplicate, element.bytes, isCoronal);
  src.all.Fill(element, test::ModestVoxel);
  const Voxels dst(result, element.bytes, 0, isCoronal), u(result, 4, 8, isCoronal), v(result, 4, 8, isCoronal),
      w(result, 4, 8, isCoronal);
  const Voxels* const maps[] = {&u, &v, &w};
  test::Random random(interpolation);
  FillMap(u, size.width, random), FillMap(v, size.height, random), FillMap(w, size.depth, random);
  dst.Fill(element, Left);
  test::VolumeCall call(function);
  call.Add("pSrc", src.all), call.Add("pxMap", u), call.Add("pyMap", v), call.Add("pzMap", w), call.Add("pDst", dst);
  ASSERT_EQ(call({{"srcVolume", size},
                  {"srcCuboid", QvprCuboid{1, 0, 1, 12, 20, 4}},
                  {"dstVolume", result},
                  {"interpolation", interpolation}}),
            0);
  const Rule rule{.taps = TapsOf(interpolation), .c = interpolation == qvpInterpolationCubicClassic ? 0.75 : 0.5};
  const double low[] = {1, 0, 1}, high[] = {12, 8, 4};
  dst.ForEach([&](int i, int j, int k) {
    Space p;
    bool isLeft = false;
    for (int axis = 0; axis < 3; ++axis) {
      p.at[axis] = static_cast<double>(test::ElementOf("32f").read(maps[axis]->At(i, j, k)));
      isLeft |= !(p.at[axis] >= low[axis] && p.at[axis] <= high[axis]);
    }
    ASSERT_NEAR(static_cast<double>(element.read(dst.At(i, j, k))), isLeft ? kLeft : ValueAt(src, element, rule, p),
                isLeft ? 0 : ErrorOf(element, rule.taps))
        << function.name << ' ' << interpolation << " at " << i << ',' << j << ',' << k;
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

TEST(VolumeRemaps, KnowTheirBoundsAndPlanes) {
  const Qvp8u front = 10, back = 20, *planes[] = {&front, &back};
  const float zero = 0, *zeros[] = {&zero};
  const auto remap = [&](float z, QvprCuboid cuboid, int method) {
    const float* z_[] = {&z};
    Qvp8u found = kLeft, *to[] = {&found};
    const QvpStatus status =
        qvprRemap_8u_C1PV(planes, {1, 1, 2}, 1, cuboid, zeros, zeros, z_, 4, to, 1, {1, 1, 1}, method);
    return status == 0 ? found : status;
  };
  const QvprCuboid all{0, 0, 0, 1, 1, 2};
  EXPECT_EQ(remap(0.5F, all, qvpInterpolationLinear), 15);
  EXPECT_EQ(remap(1, all, qvpInterpolationLinear), 20);
  EXPECT_EQ(remap(std::nextafter(1.F, 2.F), all, qvpInterpolationLinear), kLeft);
  planes[1] = nullptr;
  EXPECT_EQ(remap(0, {0, 0, 2, 1, 1, 1}, qvpInterpolationCubic), qvpStatusNoIntersection);
  EXPECT_EQ(remap(0, {0, 0, 0, 1, 1, 1}, qvpInterpolationLinear), qvpStatusNullPointer);
  EXPECT_EQ(remap(0, {0, 0, 0, 1, 1, 1}, qvpInterpolationNearest), 10);
}

}  // namespace
