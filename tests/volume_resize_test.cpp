// Resizing of volumes against its definition in double, of tiles and planes in any order against the whole, and of
// single planes against the functions for images.
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
using test::Surrounded;
using test::Voxels;

struct Method {
  int interpolation;
  float b = 0, c = 0;
  unsigned lobes = 0;

  int Reach() const {
    switch (interpolation) {
      case qvpInterpolationLinear: return 1;
      case qvpInterpolationCubic: return 2;
      case qvpInterpolationLanczos: return static_cast<int>(lobes);
      default: return 0;
    }
  }
  double Windowed(double t) const {
    const double x = M_PI * t;
    return t == 0 ? 1 : t >= lobes ? 0 : std::sin(x) * std::sin(x / lobes) * lobes / (x * x);
  }
  double Kernel(double t) const {
    if (t >= Reach()) return 0;
    if (interpolation == qvpInterpolationLinear) return 1 - t;
    if (interpolation == qvpInterpolationLanczos) {  // between the entries of a table
      const double unit = lobes == 2 ? 200 : 100, i = std::floor(t * unit);
      return Windowed(i / unit) + (Windowed((i + 1) / unit) - Windowed(i / unit)) * (t * unit - i);
    }
    if (t < 1) return ((12 - 9 * b - 6 * c) * t * t * t + (-18 + 12 * b + 6 * c) * t * t + 6 - 2 * b) / 6;
    return ((-b - 6 * c) * t * t * t + (6 * b + 30 * c) * t * t + (-12 * b - 48 * c) * t + 8 * b + 24 * c) / 6;
  }
};
const Method kNearest{qvpInterpolationNearest}, kLinear{qvpInterpolationLinear}, kSuper{qvpInterpolationSuper},
    kSpline{qvpInterpolationCubic, 0, 0.5f}, kSmooth{qvpInterpolationCubic, 1 / 3.0f, 1 / 3.0f},
    kTwoLobes{qvpInterpolationLanczos, 0, 0, 2}, kThreeLobes{qvpInterpolationLanczos, 0, 0, 3};

struct Tap {
  int at;
  double weight;
};
std::vector<Tap> TapsOf(const Method& method, int n, int m, int d) {
  std::vector<Tap> taps;
  const double ratio = static_cast<double>(n) / m, at = (d + 0.5) * ratio - 0.5;
  if (method.interpolation == qvpInterpolationNearest) return {{((2 * d + 1) * n - 1) / (2 * m), 1}};
  if (n == m && method.b == 0) return {{d, 1}};
  if (method.interpolation == qvpInterpolationSuper) {
    for (int i = d * n / m; i * m < (d + 1) * n; ++i) {
      taps.push_back({i, static_cast<double>(std::min((i + 1) * m, (d + 1) * n) - std::max(i * m, d * n)) / n});
    }
    return taps;
  }
  double sum = 0;
  const int first = static_cast<int>(std::floor(at)) - method.Reach() + 1;
  for (int i = first; i < first + 2 * method.Reach(); ++i) {
    taps.push_back({i, method.Kernel(std::abs(at - i))});
    sum += taps.back().weight;
  }
  for (Tap& tap : taps) tap.weight /= sum;
  return taps;
}

QvpStatus Init(const Method& m, QvprVolume src, QvprVolume dst, QvpDataType type, QvprResizeSpec* spec) {
  switch (m.interpolation) {
    case qvpInterpolationNearest: return qvprResizeNearestInit(src, dst, type, spec);
    case qvpInterpolationLinear: return qvprResizeLinearInit(src, dst, type, spec);
    case qvpInterpolationCubic: return qvprResizeCubicInit(src, dst, type, m.b, m.c, spec);
    case qvpInterpolationLanczos: return qvprResizeLanczosInit(src, dst, type, m.lobes, spec);
    default: return qvprResizeSuperInit(src, dst, type, spec);
  }
}

class Record {
 public:
  Record(const Method& method, QvprVolume src, QvprVolume dst, QvpDataType type)
      : memory_(SizeOf(method, src, dst, type)) {
    EXPECT_EQ(Init(method, src, dst, type, spec()), 0);
  }
  QvprResizeSpec* spec() const { return reinterpret_cast<QvprResizeSpec*>(memory_.data()); }
  int BufferSize(QvprVolume tile) const {
    int bytes = 0;
    EXPECT_GE(qvprResizeGetBufferSize(spec(), tile, &bytes), 0);
    return bytes;
  }

 private:
  static int SizeOf(const Method& method, QvprVolume src, QvprVolume dst, QvpDataType type) {
    int bytes = 0;
    EXPECT_EQ(qvprResizeGetSize(src, dst, type, method.interpolation, &bytes), 0);
    return bytes;
  }

  Block memory_;
};

struct Request {
  Method method;
  QvprVolume from, to;
  int border = qvpBorderReplicate;
  bool isCoronal = false;
};

// Of a form, of the tile at a point.
void Run(const Export& function, const Record& record, Surrounded& src, Voxels& dst, QvprPoint at, int border) {
  const bool isOfPlanes = function.name.ends_with("PV");
  const Block buffer(record.BufferSize(dst.size));
  Planes from(src.all, src.origin().z), to(dst, 0);
  std::vector<test::Named> arguments = {{"srcStep", isOfPlanes ? from.step() : src.all.step},
                                        {"srcPlaneStep", src.all.planeStep},
                                        {"dstStep", isOfPlanes ? to.step() : dst.step},
                                        {"dstPlaneStep", dst.planeStep},
                                        {"dstOffset", at},
                                        {"dstVolume", dst.size},
                                        {"borderType", border},
                                        {"pSpec", {record.spec()}},
                                        {"pBuffer", {buffer.data()}}};
  arguments.push_back({"pSrc", {isOfPlanes ? from.at(src.origin().x, src.origin().y) : src.first()}});
  arguments.push_back({"pDst", {isOfPlanes ? to.at(0, 0) : dst.block.data()}});
  ASSERT_EQ(function(arguments), 0) << function.name;
  if (isOfPlanes) to.CopyBack();
}

double ToleranceOf(const Element& element, const Request& r) {
  const double largest = element.isInteger ? static_cast<double>(element.highest) : 100;
  const bool isOfBytes = element.bytes == 1 && r.method.interpolation == qvpInterpolationLinear;
  const double relative = r.method.interpolation == qvpInterpolationNearest ? 0
                          : r.method.interpolation == qvpInterpolationSuper ? 3e-6
                                                                            : 1e-6;
  return (isOfBytes ? 0.57 : element.isInteger ? 0.5 : 0) + relative * largest;
}

void CheckResult(const Export& function, const Request& r, const Surrounded& src, const Voxels& dst) {
  const Element& element = Name(function.name).From();
  const double tolerance = ToleranceOf(element, r);
  dst.ForEach([&](int x, int y, int z) {
    double sum = 0;
    for (const Tap& w : TapsOf(r.method, r.from.depth, r.to.depth, z)) {
      for (const Tap& v : TapsOf(r.method, r.from.height, r.to.height, y)) {
        for (const Tap& u : TapsOf(r.method, r.from.width, r.to.width, x)) {
          const double voxel = static_cast<double>(element.read(src.At(u.at, v.at, w.at)));
          sum += u.weight * v.weight * w.weight * voxel;
        }
      }
    }
    if (element.isInteger) {
      sum = std::clamp(sum, static_cast<double>(element.lowest), static_cast<double>(element.highest));
    }
    ASSERT_NEAR(static_cast<double>(element.read(dst.At(x, y, z))), sum, tolerance)
        << function.name << " by " << r.method.interpolation << " from " << r.from.width << 'x' << r.from.height << 'x'
        << r.from.depth << " to " << r.to.width << 'x' << r.to.height << 'x' << r.to.depth << " border " << r.border
        << " at " << x << ',' << y << ',' << z;
  });
}

void Fill(const Element& element, const Voxels& voxels) {
  test::Random random(voxels.size.width);
  voxels.ForEach([&](int x, int y, int z) {
    if (element.isInteger) return random.Fill(voxels.At(x, y, z), element.bytes);
    element.write(voxels.At(x, y, z), static_cast<int>(random.Next() % 20001) / 100.0 - 100);
  });
}

// The whole, and then a tile of it, which has the same bits.
void Check(const Export& function, const Request& r) {
  const Element& element = Name(function.name).From();
  const int reach = r.method.Reach();
  Surrounded src(r.from, {reach, reach, reach}, {reach, reach, reach}, r.border, element.bytes, r.isCoronal);
  Fill(element, src.all);
  Voxels whole(r.to, element.bytes, 0, r.isCoronal);
  const Record record(r.method, r.from, r.to, element.code);
  Run(function, record, src, whole, {0, 0, 0}, r.border);
  CheckResult(function, r, src, whole);
  const QvprPoint at{r.to.width / 3, r.to.height / 2, r.to.depth / 3};
  Voxels tile({(r.to.width - at.x + 1) / 2, r.to.height - at.y, r.to.depth - at.z}, element.bytes, 1, false);
  Run(function, record, src, tile, at, r.border);
  tile.ForEach([&](int x, int y, int z) {
    ASSERT_EQ(std::memcmp(tile.At(x, y, z), whole.At(at.x + x, at.y + y, at.z + z), element.bytes), 0)
        << function.name << " by " << r.method.interpolation << " at " << x << ',' << y << ',' << z;
  });
}

const Method kMethods[] = {kNearest, kLinear, kSpline, kSmooth, kTwoLobes, kThreeLobes, kSuper};

// Enlargement, reduction, axes left alone, and single voxels; averages only reduce.
TEST(VolumeResize, EveryMemberMethodAndBorder) {
  constexpr QvprVolume kSizes[][2] = {{{5, 4, 3}, {9, 7, 8}},   {{1, 1, 1}, {3, 2, 2}},    {{40, 9, 7}, {23, 4, 5}},
                                      {{37, 5, 4}, {37, 5, 7}}, {{6, 8, 5}, {20, 8, 5}},   {{66, 3, 4}, {33, 3, 2}},
                                      {{7, 9, 2}, {7, 4, 2}},   {{150, 3, 3}, {16, 3, 1}}, {{2, 2, 6}, {2, 2, 9}}};
  int turn = 0;
  for (const Export* function : test::FunctionsOf({"qvprResize"})) {
    for (const Method& method : kMethods) {
      for (const auto& [from, to] : kSizes) {
        const bool isReduction = from.width >= to.width && from.height >= to.height && from.depth >= to.depth;
        if (method.interpolation == qvpInterpolationSuper && !isReduction) continue;
        ++turn;
        const int kind = turn % 2 ? qvpBorderMirror : qvpBorderReplicate, flags = 0x1111 * turn + turn * 16;
        const int border = turn % 7 == 0 ? +qvpBorderInMemVolume : kind | (flags & qvpBorderInMemVolume);
        Check(*function, {method, from, to, border, turn % 3 == 0});
      }
    }
  }
}

TEST(VolumeResize, StripsOfLargePlanes) {
  for (const char* name : {"qvprResize_8u_C1V", "qvprResize_16s_C1V"}) {
    Check(test::FunctionNamed(name), {kLinear, {70, 40, 3}, {1500, 50, 2}});
    Check(test::FunctionNamed(name), {kSpline, {700, 40, 3}, {900, 30, 2}, qvpBorderMirror});
    Check(test::FunctionNamed(name), {kSuper, {1100, 9, 3}, {700, 7, 3}});
  }
}

// What exceeds the caches goes past them, as the same voxels.
TEST(VolumeResize, LargeResultsEqualTheirPlanes) {
  constexpr QvprVolume kFrom{90, 100, 30}, kTo{601, 640, 60};
  constexpr QvprVolume kPlane{kTo.width, kTo.height, 1};
  std::vector<float> src(size_t{90} * 100 * 30), whole(size_t{601} * 640 * 60), plane(size_t{601} * 640);
  test::Random random(2);
  for (float& voxel : src) voxel = static_cast<float>(random.Next() % 1000);
  const Record record(kLinear, kFrom, kTo, qvp32f);
  const Block buffer(record.BufferSize(kTo));
  const auto resize = [&](std::vector<float>& to, int z, QvprVolume size) {
    return qvprResize_32f_C1V(src.data(), 4 * 90, 4 * 90 * 100, to.data(), 4 * 601, 4 * 601 * 640, {0, 0, z}, size,
                              qvpBorderReplicate, record.spec(), buffer.data());
  };
  ASSERT_EQ(resize(whole, 0, kTo), 0);
  for (int z = 0; z < kTo.depth; ++z) {
    ASSERT_EQ(resize(plane, z, kPlane), 0);
    ASSERT_EQ(std::memcmp(plane.data(), &whole[plane.size() * z], plane.size() * sizeof(float)), 0) << z;
  }
}

// Plane by plane as the functions for images, to the bit.
TEST(VolumeResize, DepthLeftAloneIsAnImage) {
  constexpr int kWidth = 41, kHeight = 23, kTo = 30;
  std::vector<Qvp16u> src(kWidth * kHeight), found(kTo * kTo), expected(kTo * kTo);
  test::Random random(1);
  for (Qvp16u& voxel : src) voxel = static_cast<Qvp16u>(random.Next());
  for (const int height : {30, 17}) {
    int bytes = 0, init = 0;
    ASSERT_EQ(qvpiResizeGetSize_16u({kWidth, kHeight}, {kTo, height}, qvpInterpolationLanczos, 0, &bytes, &init), 0);
    const Block memory(bytes), first(std::max(init, 1));
    auto* const spec = reinterpret_cast<QvpiResizeSpec*>(memory.data());
    const auto compare = [&](const Method& method, auto resize) {
      const Record record(method, {kWidth, kHeight, 1}, {kTo, height, 1}, qvp16u);
      const Block buffer(record.BufferSize({kTo, height, 1}));
      ASSERT_EQ(qvprResize_16u_C1V(src.data(), 2 * kWidth, 1, found.data(), 2 * kTo, 1, {0, 0, 0}, {kTo, height, 1},
                                   qvpBorderReplicate, record.spec(), buffer.data()),
                0);
      int work = 0;
      ASSERT_EQ(qvpiResizeGetBufferSize_16u(spec, {kTo, height}, 1, &work), 0);
      const Block room(work);
      ASSERT_EQ(resize(room.data()), 0);
      EXPECT_EQ(std::memcmp(found.data(), expected.data(), size_t{2} * kTo * height), 0) << method.interpolation;
    };
    const auto bordered = [&](auto function) {
      return [=, &src, &expected](Qvp8u* room) {
        return function(src.data(), 2 * kWidth, expected.data(), 2 * kTo, {0, 0}, {kTo, height}, qvpBorderReplicate,
                        nullptr, spec, room);
      };
    };
    qvpiResizeLinearInit_16u({kWidth, kHeight}, {kTo, height}, spec);
    compare(kLinear, bordered(qvpiResizeLinear_16u_C1R));
    qvpiResizeCubicInit_32f({kWidth, kHeight}, {kTo, height}, 0, 0.5f, spec, first.data());
    compare(kSpline, bordered(qvpiResizeCubic_16u_C1R));
    qvpiResizeLanczosInit_32f({kWidth, kHeight}, {kTo, height}, 3, spec, first.data());
    compare(kThreeLobes, bordered(qvpiResizeLanczos_16u_C1R));
    if (height > kHeight) continue;
    qvpiResizeSuperInit_16u({kWidth, kHeight}, {kTo, height}, spec);
    compare(kSuper, [&](Qvp8u* room) {
      return qvpiResizeSuper_16u_C1R(src.data(), 2 * kWidth, expected.data(), 2 * kTo, {0, 0}, {kTo, height}, spec,
                                     room);
    });
  }
}

// Along z, of a column of voxels.
template <class T>
std::vector<int> Column(const Method& method, const std::vector<T>& src, int n, QvpDataType type) {
  const int from = static_cast<int>(src.size());
  std::vector<T> dst(n);
  const Record record(method, {1, 1, from}, {1, 1, n}, type);
  const Block buffer(record.BufferSize({1, 1, n}));
  const auto resize = [&](auto function) {
    EXPECT_EQ(function(src.data(), 1, sizeof(T), dst.data(), 1, sizeof(T), {0, 0, 0}, {1, 1, n}, qvpBorderReplicate,
                       record.spec(), buffer.data()),
              0);
  };
  if constexpr (sizeof(T) == 1) resize(qvprResize_8u_C1V);
  if constexpr (sizeof(T) == 2) resize(qvprResize_16s_C1V);
  return {dst.begin(), dst.end()};
}

TEST(VolumeResize, KnownValues) {
  using Numbers = std::vector<int>;
  const std::vector<Qvp8u> bytes = {0, 1, 2, 3, 4, 5};
  const auto first = [&](int n) { return std::vector<Qvp8u>(bytes.begin(), bytes.begin() + n); };
  EXPECT_EQ(Column(kNearest, first(4), 2, qvp8u), (Numbers{0, 2}));
  EXPECT_EQ(Column(kNearest, first(5), 3, qvp8u), (Numbers{0, 2, 4}));
  EXPECT_EQ(Column(kNearest, first(2), 5, qvp8u), (Numbers{0, 0, 0, 1, 1}));
  EXPECT_EQ(Column<Qvp16s>(kLinear, {0, 100}, 4, qvp16s), (Numbers{0, 25, 75, 100}));
  EXPECT_EQ(Column<Qvp8u>(kLinear, {0, 100}, 4, qvp8u), (Numbers{0, 25, 75, 100}));
  EXPECT_EQ(Column<Qvp16s>(kSuper, {10, 20, 60}, 2, qvp16s), (Numbers{13, 47}));
  EXPECT_EQ(Column<Qvp8u>(kSuper, {10, 20, 60}, 2, qvp8u), (Numbers{13, 47}));
  const Qvp8u cube[] = {0, 36, 72, 108, 144, 180, 216, 252};
  Qvp8u found[27];
  const Record record(kLinear, {2, 2, 2}, {3, 3, 3}, qvp8u);
  const Block buffer(record.BufferSize({3, 3, 3}));
  ASSERT_EQ(qvprResize_8u_C1V(cube, 2, 4, found, 3, 9, {0, 0, 0}, {3, 3, 3}, qvpBorderReplicate, record.spec(),
                              buffer.data()),
            0);
  constexpr int kPlane[] = {0, 18, 36, 36, 54, 72, 72, 90, 108};
  for (int i = 0; i < 27; ++i) EXPECT_EQ(found[i], kPlane[i % 9] + i / 9 * 72) << i;
}

// What a tile reads tells which planes may be null.
TEST(VolumeResize, ReadsNoMoreThanItTells) {
  const Record known(kLinear, {4, 4, 4}, {8, 8, 8}, qvp16u);
  QvprCuboid cuboid{};
  ASSERT_EQ(qvprResizeGetSrcCuboid(known.spec(), {0, 0, 2, 8, 8, 2}, &cuboid), 0);
  EXPECT_EQ(cuboid.z, 0);
  EXPECT_EQ(cuboid.depth, 3);
  for (const Method& method : kMethods) {
    for (const auto& [from, to] : {std::pair{9, 5}, {5, 5}, {7, 3}, {4, 9}, {1, 3}}) {
      if (method.interpolation == qvpInterpolationSuper && from < to) continue;
      const Record record(method, {3, 3, from}, {2, 2, to}, qvp16u);
      const Block buffer(record.BufferSize({2, 2, to}));
      for (int z = 0; z < to; ++z) {
        ASSERT_EQ(qvprResizeGetSrcCuboid(record.spec(), {0, 0, z, 2, 2, 1}, &cuboid), 0);
        Qvp16u voxels[9] = {}, found[4];
        std::vector<const Qvp16u*> planes(from);
        for (int k = cuboid.z; k < cuboid.z + cuboid.depth; ++k) planes.at(k) = voxels;
        Qvp16u* const results[] = {found};
        for (const int border : {qvpBorderReplicate, qvpBorderMirror}) {
          EXPECT_EQ(qvprResize_16u_C1PV(planes.data(), 6, results, 4, {0, 0, z}, {2, 2, 1}, border, record.spec(),
                                        buffer.data()),
                    0)
              << method.interpolation << ' ' << from << " to " << to << " at " << z;
        }
      }
    }
  }
}

TEST(VolumeResize, ChecksInOrder) {
  const Record record(kLinear, {4, 4, 4}, {8, 8, 8}, qvp16u);
  const Block buffer(record.BufferSize({8, 8, 8}));
  Qvp16u voxels[16] = {}, found[64];
  const Qvp16u* planes[] = {voxels, voxels, voxels, nullptr};
  Qvp16u* results[] = {found, nullptr};
  const auto resize = [&](int step, QvprVolume size, int border, const QvprResizeSpec* spec, QvprPoint at) {
    return qvprResize_16u_C1PV(planes, step, results, 16, at, size, border, spec, buffer.data());
  };
  const Record bytes(kLinear, {4, 4, 4}, {8, 8, 8}, qvp8u);
  EXPECT_EQ(resize(0, {0, 8, 1}, 0, nullptr, {-1, 0, 0}), qvpStatusNullPointer);
  EXPECT_EQ(resize(0, {0, 8, 1}, 0, record.spec(), {-1, 0, 0}), qvpStatusSize);
  EXPECT_EQ(resize(0, {8, 8, 1}, 0, record.spec(), {-1, 0, 0}), qvpStatusStep);
  for (const int border : {0, +qvpBorderConst, +qvpBorderInMem, qvpBorderMirror | 0x4000}) {
    EXPECT_EQ(resize(8, {8, 8, 1}, border, bytes.spec(), {-1, 0, 0}), qvpStatusBorder);
  }
  EXPECT_EQ(resize(8, {8, 8, 1}, qvpBorderMirror, bytes.spec(), {-1, 0, 0}), qvpStatusContextMatch);
  EXPECT_EQ(resize(8, {8, 8, 1}, qvpBorderMirror, record.spec(), {0, 0, 8}), qvpStatusOutOfRange);
  EXPECT_EQ(resize(8, {8, 8, 1}, qvpBorderMirror, record.spec(), {0, 0, 5}), qvpStatusNullPointer);  // plane 3
  EXPECT_EQ(resize(8, {8, 8, 2}, qvpBorderMirror, record.spec(), {0, 0, 0}), qvpStatusNullPointer);  // result 1
  EXPECT_EQ(resize(8, {9, 8, 1}, qvpBorderMirror, record.spec(), {0, 0, 0}), qvpStatusSizeWarning);
  int size = 7;
  EXPECT_EQ(qvprResizeGetSize({512, 512, 512}, {256, 256, 256}, qvp8u, qvpInterpolationLinear, &size), 0);
  EXPECT_EQ(size, 6464);
  EXPECT_EQ(qvprResizeGetSize({5, 5, 5}, {0, 5, 5}, qvp64f, 3, &size), qvpStatusSize);
  EXPECT_EQ(qvprResizeGetSize({5, 5, 5}, {5, 5, 5}, qvp64f, 3, &size), qvpStatusDataType);
  EXPECT_EQ(qvprResizeGetSize({5, 5, 5}, {5, 5, 5}, qvp8u, 3, &size), qvpStatusInterpolation);
  EXPECT_EQ(qvprResizeGetSize({5, 5, 5}, {5, 5, 6}, qvp8u, qvpInterpolationSuper, &size), qvpStatusSize);
  EXPECT_EQ(size, 6464);
  EXPECT_EQ(qvprResizeGetSize({33554432, 5, 5}, {5, 5, 5}, qvp8u, qvpInterpolationLinear, &size),
            qvpStatusSizeOverflow);
  EXPECT_EQ(size, 0);
  auto* const spec = record.spec();
  EXPECT_EQ(qvprResizeCubicInit({4, 4, 4}, {4, 4, 4}, qvp64f, NAN, 0, spec), qvpStatusDataType);
  EXPECT_EQ(qvprResizeCubicInit({4, 4, 4}, {4, 4, 4}, qvp8u, NAN, 0, spec), qvpStatusBadArgument);
  EXPECT_EQ(qvprResizeLanczosInit({4, 4, 4}, {4, 4, 4}, qvp8u, 4, spec), qvpStatusNotSupportedMode);
  EXPECT_EQ(qvprResizeGetBufferSize(spec, {8, 8, 8}, &size), qvpStatusContextMatch);
}

}  // namespace
