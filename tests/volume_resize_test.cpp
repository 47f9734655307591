// Resizing of volumes against its definition in double, of tiles and planes in any order against the whole, and of
// single planes against the functions for images.
#include <cmath>
#include <vector>

#include "tests/support/resizes.h"
#include "tests/support/voxels.h"

namespace {
using test::Block;
using test::CallNamed;
using test::Element;
using test::Export;
using test::kCubic;
using test::kLanczos2;
using test::kLanczos3;
using test::kLinear;
using test::kNearest;
using test::kSpline;
using test::kSuper;
using test::Name;
using test::Resizing;
using test::Surrounded;
using test::Voxels;

class Record {
 public:
  Record(const Resizing& m, QvprVolume src, QvprVolume dst, QvpDataType type) {
    int bytes = 0;
    std::vector<test::Named> arguments = {
        {"srcVolume", src}, {"dstVolume", dst}, {"dataType", type},    {"interpolation", m.interpolation},
        {"valueB", m.b},    {"valueC", m.c},    {"numLobes", m.lobes}, {"pSpecSize", {&bytes}}};
    EXPECT_EQ(CallNamed("qvprResizeGetSize", arguments), 0);
    memory_ = std::make_unique<Block>(bytes);
    arguments.push_back({"pSpec", {spec()}});
    EXPECT_EQ(CallNamed(std::string("qvprResize") + m.name + "Init", arguments), 0);
  }
  QvprResizeSpec* spec() const { return reinterpret_cast<QvprResizeSpec*>(memory_->data()); }
  int BufferSize(QvprVolume tile) const {
    int bytes = 0;
    EXPECT_GE(qvprResizeGetBufferSize(spec(), tile, &bytes), 0);
    return bytes;
  }

 private:
  std::unique_ptr<Block> memory_;
};

struct Request {
  Resizing method;
  QvprVolume from, to;
  int border = qvpBorderReplicate;
  bool isCoronal = false;
};

// The tile at a point.
void Run(const Export& function, const Record& record, const Surrounded& src, const Voxels& dst, QvprPoint at) {
  const Block buffer(record.BufferSize(dst.size));
  test::VolumeCall call(function);
  call.Add("pSrc", src.all, src.origin());
  call.Add("pDst", dst);
  ASSERT_EQ(call({{"dstOffset", at},
                  {"dstVolume", dst.size},
                  {"borderType", src.border},
                  {"pSpec", {record.spec()}},
                  {"pBuffer", {buffer.data()}}}),
            0)
      << function.name;
}

double ToleranceOf(const Element& element, const Resizing& m) {
  const double largest = element.isInteger ? static_cast<double>(element.highest) : 100;
  const bool isOfBytes = element.bytes == 1 && m.Is(qvpInterpolationLinear);
  const double relative = m.Is(qvpInterpolationNearest) ? 0 : m.Is(qvpInterpolationSuper) ? 3e-6 : 1e-6;
  return (isOfBytes ? 0.57 : element.isInteger ? 0.5 : 0) + relative * largest;
}

void CheckResult(const Export& function, const Request& r, const Surrounded& src, const Voxels& dst) {
  const Element& element = Name(function.name).From();
  const double tolerance = ToleranceOf(element, r.method);
  const auto across = AllTapsOf(r.method, {r.from.width, r.to.width}, r.to.width);
  const auto down = AllTapsOf(r.method, {r.from.height, r.to.height}, r.to.height);
  const auto deep = AllTapsOf(r.method, {r.from.depth, r.to.depth}, r.to.depth);
  dst.ForEach([&](int x, int y, int z) {
    double sum = 0;
    for (const test::Tap& w : deep[z]) {
      sum +=
          w.weight * Interpolated(across[x], down[y], [&](int u, int v) { return element.read(src.At(u, v, w.at)); });
    }
    if (element.isInteger) {
      sum = std::clamp(sum, static_cast<double>(element.lowest), static_cast<double>(element.highest));
    }
    ASSERT_NEAR(static_cast<double>(element.read(dst.At(x, y, z))), sum, tolerance)
        << function.name << " by " << r.method.name << " from " << test::Shown(r.from) << " to " << test::Shown(r.to)
        << " border " << r.border << " at " << x << ',' << y << ',' << z;
  });
}

// The whole, and then a tile of it, which has the same bits.
void Check(const Export& function, const Request& r) {
  const Element& element = Name(function.name).From();
  const int reach = r.method.Reach();
  const Surrounded src(r.from, {reach, reach, reach}, {reach, reach, reach}, r.border, element.bytes, r.isCoronal);
  src.all.Fill(element, test::ModestVoxel);
  const Voxels whole(r.to, element.bytes, 0, r.isCoronal);
  const Record record(r.method, r.from, r.to, element.code);
  Run(function, record, src, whole, {0, 0, 0});
  CheckResult(function, r, src, whole);
  const QvprPoint at{r.to.width / 3, r.to.height / 2, r.to.depth / 3};
  const Voxels tile({(r.to.width - at.x + 1) / 2, r.to.height - at.y, r.to.depth - at.z}, element.bytes, 1, false);
  Run(function, record, src, tile, at);
  tile.ForEach([&](int x, int y, int z) {
    ASSERT_EQ(std::memcmp(tile.At(x, y, z), whole.At(at.x + x, at.y + y, at.z + z), element.bytes), 0)
        << function.name << " by " << r.method.name << " at " << x << ',' << y << ',' << z;
  });
}

const Resizing kMethods[] = {kNearest, kLinear, kSpline, kCubic, kLanczos2, kLanczos3, kSuper};

// Enlargement, reduction, axes left alone, one and all, and single voxels; averages only reduce.
TEST(VolumeResize, EveryMemberMethodAndBorder) {
  constexpr QvprVolume kSizes[][2] = {{{5, 4, 3}, {9, 7, 8}},   {{1, 1, 1}, {3, 2, 2}},    {{40, 9, 7}, {23, 4, 5}},
                                      {{37, 5, 4}, {37, 5, 7}}, {{6, 8, 5}, {20, 8, 5}},   {{66, 3, 4}, {33, 3, 2}},
                                      {{7, 9, 2}, {7, 4, 2}},   {{150, 3, 3}, {16, 3, 1}}, {{2, 2, 6}, {2, 2, 9}},
                                      {{9, 4, 3}, {9, 4, 3}}};
  int turn = 0;
  for (const Export* function : test::FunctionsOf({"qvprResize"})) {
    for (const Resizing& method : kMethods) {
      for (const auto& [from, to] : kSizes) {
        const bool isReduction = from.width >= to.width && from.height >= to.height && from.depth >= to.depth;
        if (method.Is(qvpInterpolationSuper) && !isReduction) continue;
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
  constexpr QvpiSize kFrom{41, 23};
  const Element& words = test::ElementOf("16u");
  const test::Bordered src(words, {}, {kFrom, 1, qvpBorderReplicate}, test::Guard::kAfter, 0);
  for (const QvpiSize to : {QvpiSize{30, 30}, {30, 17}}) {
    for (const Resizing& m : {kLinear, kSpline, kLanczos3, kSuper}) {
      if (!m.Fits(kFrom.height, to.height)) continue;
      const test::Samples expected = Resized(FunctionOf(m, "16u", 1), test::ImageResize(m, "16u", kFrom, to), src);
      const test::Samples found(words, to.width, to.height, 0);
      const Record record(m, {kFrom.width, kFrom.height, 1}, {to.width, to.height, 1}, qvp16u);
      const Block buffer(record.BufferSize({to.width, to.height, 1}));
      ASSERT_EQ(
          qvprResize_16u_C1V(src.image.As<Qvp16u>(), src.image.step(), 1, found.As<Qvp16u>(), found.step(), 1,
                             {0, 0, 0}, {to.width, to.height, 1}, qvpBorderReplicate, record.spec(), buffer.data()),
          0);
      ExpectSame(found, expected, m.name);
    }
  }
}

// Along z, of a column of voxels.
template <class T>
std::vector<int> Column(const Resizing& method, const std::vector<T>& src, int n, QvpDataType type) {
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
  for (const Resizing& method : kMethods) {
    for (const auto& [from, to] : {std::pair{9, 5}, {5, 5}, {7, 3}, {4, 9}, {1, 3}}) {
      if (method.Is(qvpInterpolationSuper) && from < to) continue;
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
              << method.name << ' ' << from << " to " << to << " at " << z;
        }
      }
    }
  }
}

TEST(VolumeResize, KnowsItsPlanesAndSizes) {
  const Record record(kLinear, {4, 4, 4}, {8, 8, 8}, qvp16u);
  const Block buffer(record.BufferSize({8, 8, 8}));
  Qvp16u voxels[16] = {}, found[64];
  const Qvp16u* planes[] = {voxels, voxels, voxels, nullptr};
  Qvp16u* results[] = {found, nullptr};
  const auto resize = [&](QvprVolume size, QvprPoint at) {
    return qvprResize_16u_C1PV(planes, 8, results, 16, at, size, qvpBorderMirror, record.spec(), buffer.data());
  };
  EXPECT_EQ(resize({8, 8, 1}, {0, 0, 8}), qvpStatusOutOfRange);
  EXPECT_EQ(resize({8, 8, 1}, {0, 0, 5}), qvpStatusNullPointer);  // plane 3
  EXPECT_EQ(resize({8, 8, 2}, {0, 0, 0}), qvpStatusNullPointer);  // result 1
  EXPECT_EQ(resize({9, 8, 1}, {0, 0, 0}), qvpStatusSizeWarning);
  int size = 7;
  EXPECT_EQ(qvprResizeGetSize({512, 512, 512}, {256, 256, 256}, qvp8u, qvpInterpolationLinear, &size), 0);
  EXPECT_EQ(size, 6464);
  EXPECT_EQ(qvprResizeGetSize({5, 5, 5}, {5, 5, 6}, qvp8u, qvpInterpolationSuper, &size), qvpStatusSize);
  for (const int last : {33554431, 33554432}) {
    EXPECT_EQ(qvprResizeGetSize({last, 5, 5}, {5, 5, 5}, qvp8u, qvpInterpolationLinear, &size),
              last % 2 ? qvpStatusNoError : qvpStatusSizeOverflow);
  }
  EXPECT_EQ(size, 0);
}

}  // namespace
