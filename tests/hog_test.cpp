// Histograms of oriented gradients against their definition in double precision.
#include <cmath>
#include <limits>
#include <vector>

#include "tests/support/reference.h"

namespace {
using test::Block;
using test::Guard;

constexpr QvpiHOGConfig kPeople{0, 8, 16, 8, 9, 4.0f, 0.2f, {64, 128}};

// A record of the reported size at an odd address, at most a byte before a page that cannot be read.
struct Record {
  explicit Record(const QvpiHOGConfig& config) {
    int bytes = 0;
    EXPECT_EQ(qvpiHOGGetSize(&config, &bytes), qvpStatusNoError);
    block = std::make_unique<Block>(bytes + 1 - bytes % 2);
    EXPECT_EQ(qvpiHOGInit(&config, spec()), qvpStatusNoError);
  }
  QvpiHOGSpec* spec() const { return reinterpret_cast<QvpiHOGSpec*>(block->data()); }
  std::unique_ptr<Block> block;
};

// An image with a rim of one pixel in memory around its region.
template <class T>
struct Picture {
  Picture(QvpiSize s, int c, double amplitude) : size(s), channels(c), pixels((s.width + 2) * c, s.height + 2, 5) {
    test::Random random(s.width * 7 + c);
    for (int y = 0; y < s.height + 2; ++y) {
      for (int x = 0; x < (s.width + 2) * c; ++x) {
        const double v = std::fmod(random.Next() * 1e-4, 1.0) * amplitude;
        pixels.Put(x, y, static_cast<T>(std::is_signed_v<T> ? v - amplitude / 2 : v));
      }
    }
  }
  const T* data() const { return reinterpret_cast<const T*>(pixels.bytes() + pixels.step()) + channels; }

  double At(int x, int y, int c, int border, const T* outside) const {
    const int kind = border & 15;
    const auto beyond = [&](int side) { return border & side ? 1 : 0; };
    x = test::BorderPosition(kind, x, -beyond(qvpBorderInMemLeft), size.width - 1 + beyond(qvpBorderInMemRight));
    y = test::BorderPosition(kind, y, -beyond(qvpBorderInMemTop), size.height - 1 + beyond(qvpBorderInMemBottom));
    return x == test::kConstant || y == test::kConstant ? outside[c] : pixels((x + 1) * channels + c, y + 1);
  }

  QvpiSize size;
  int channels;
  test::Image<T> pixels;
};

// Adds a pixel's vote, by its weights, to the cells of a block.
void AddVote(std::vector<double>& cells, double gx, double gy, int i, int j, const QvpiHOGConfig& c) {
  double angle = std::atan2(gy, gx);
  if (angle < 0) angle += M_PI;
  if (angle >= M_PI) angle -= M_PI;
  const double place = angle * c.nbins / M_PI - 0.5, k = std::floor(place), magnitude = std::hypot(gx, gy);
  const double dx = i - c.blockSize / 2 + 0.5, dy = j - c.blockSize / 2 + 0.5;
  const double g = std::exp(-(dx * dx + dy * dy) / (2.0 * c.sigma * c.sigma));
  const auto share = [&](int at, int cell) {
    return std::max(0.0, 1 - std::fabs((at + 0.5) / c.cellSize - 0.5 - cell));
  };
  for (int cell = 0; cell < 4; ++cell) {
    const double w = g * share(i, cell % 2) * share(j, cell / 2) * magnitude;
    cells[cell * c.nbins + (static_cast<int>(k) + c.nbins) % c.nbins] += w * (1 - (place - k));
    cells[cell * c.nbins + (static_cast<int>(k) + 1) % c.nbins] += w * (place - k);
  }
}

void Normalise(std::vector<double>& v, double most) {
  for (const double bound : {most, std::numeric_limits<double>::infinity()}) {
    double sum = std::ldexp(1.0, -23);
    for (const double x : v) sum += x * x;
    for (double& x : v) x = std::min(x / std::sqrt(sum), bound);
  }
}

template <class T>
std::vector<double> BlockOf(const Picture<T>& p, int x0, int y0, const QvpiHOGConfig& c, int border, const T* outside) {
  std::vector<double> cells(4 * c.nbins);
  for (int j = 0; j < c.blockSize; ++j) {
    for (int i = 0; i < c.blockSize; ++i) {
      double gx = 0, gy = 0, longest = -1;
      for (int k = 0; k < p.channels; ++k) {
        const auto at = [&](int dx, int dy) { return p.At(x0 + i + dx, y0 + j + dy, k, border, outside); };
        const double h = at(1, 0) - at(-1, 0), v = at(0, 1) - at(0, -1);
        if (h * h + v * v > longest) longest = h * h + v * v, gx = h, gy = v;
      }
      AddVote(cells, gx, gy, i, j, c);
    }
  }
  Normalise(cells, c.l2thresh);
  return cells;
}

template <class T>
std::vector<double> Descriptor(const Picture<T>& p, QvpiPoint at, const QvpiHOGConfig& c, int border,
                               const T* outside) {
  const int across = (c.winSize.width - c.blockSize) / c.blockStride + 1;
  const int down = (c.winSize.height - c.blockSize) / c.blockStride + 1;
  const bool byColumns = c.cvCompatible != 0;
  std::vector<double> all;
  for (int n = 0; n < across * down; ++n) {
    const int bx = byColumns ? n / down : n % across, by = byColumns ? n % down : n / across;
    const auto cells = BlockOf(p, at.x + bx * c.blockStride, at.y + by * c.blockStride, c, border, outside);
    for (const int cell : byColumns ? std::vector{0, 2, 1, 3} : std::vector{0, 1, 2, 3}) {
      all.insert(all.end(), cells.begin() + cell * c.nbins, cells.begin() + (cell + 1) * c.nbins);
    }
  }
  return all;
}

template <class T>
using Function = QvpStatus (*)(const T*, int, QvpiSize, const QvpiPoint*, int, Qvp32f*, const QvpiHOGSpec*,
                               QvpiBorderType, const T*, Qvp8u*);

// The descriptors of windows; null stands for one at the origin. Their memory and the buffer are of the reported sizes,
// before and after unreadable pages.
template <class T>
std::vector<float> Describe(Function<T> hog, const Picture<T>& picture, const QvpiHOGConfig& config,
                            const std::vector<QvpiPoint>& locations, int border = qvpBorderReplicate,
                            const T* outside = nullptr) {
  const Record record(config);
  const T none[3] = {};
  const bool isOrigin = locations.size() == 1 && locations[0].x == 0 && locations[0].y == 0;
  int bufferBytes = 0, descriptorBytes = 0;
  EXPECT_EQ(qvpiHOGGetBufferSize(record.spec(), picture.size, &bufferBytes), qvpStatusNoError);
  EXPECT_EQ(qvpiHOGGetDescriptorSize(record.spec(), &descriptorBytes), qvpStatusNoError);
  const Guard guard = border % 2 ? Guard::kAfter : Guard::kBefore;
  const Block buffer(bufferBytes, guard), dst(descriptorBytes * locations.size(), guard);
  std::vector<float> result(dst.size() / sizeof(float), -1);
  std::memcpy(dst.data(), result.data(), dst.size());
  EXPECT_EQ(hog(picture.data(), picture.pixels.step(), picture.size, isOrigin ? nullptr : locations.data(),
                static_cast<int>(locations.size()), reinterpret_cast<float*>(dst.data()), record.spec(), border,
                outside ? outside : none, buffer.data()),
            qvpStatusNoError);
  std::memcpy(result.data(), dst.data(), dst.size());
  return result;
}

template <class T>
void Check(Function<T> hog, const QvpiHOGConfig& config, QvpiSize size, int channels, double amplitude, int border,
           const std::vector<QvpiPoint>& locations) {
  const Picture<T> picture(size, channels, amplitude);
  const T outside[3] = {static_cast<T>(amplitude / 3), 1, static_cast<T>(amplitude / 5)};
  std::vector<double> expected;
  for (const QvpiPoint at : locations) {
    const auto one = Descriptor(picture, at, config, border, outside);
    expected.insert(expected.end(), one.begin(), one.end());
  }
  const std::vector<float> result = Describe(hog, picture, config, locations, border, outside);
  ASSERT_EQ(result.size(), expected.size());
  for (size_t i = 0; i < expected.size(); ++i) {
    ASSERT_NEAR(result[i], expected[i], 2e-4) << "at " << i << " border " << border << " amplitude " << amplitude;
  }
}

TEST(Hog, AgreesWithItsDefinitionForEveryBorder) {
  const QvpiHOGConfig small{0, 4, 8, 4, 9, 3.0f, 0.2f, {16, 12}};
  for (const int kind : {qvpBorderReplicate, qvpBorderMirror, qvpBorderConst}) {
    for (int sides = 0; sides <= 0xF0; sides += 0x10) {
      Check<uint8_t>(qvpiHOG_8u32f_C1R, small, {16, 12}, 1, 256, kind | sides, {{0, 0}});
      Check<float>(qvpiHOG_32f_C3R, small, {21, 17}, 3, 4, kind | sides, {{0, 0}, {4, 4}, {3, 1}});
    }
  }
  Check<uint16_t>(qvpiHOG_16u32f_C1R, small, {16, 12}, 1, 65536, qvpBorderInMem, {{0, 0}});
}

TEST(Hog, AgreesWithItsDefinitionForEveryTypeAndGeometry) {
  for (const int compatible : {0, 1}) {
    for (const QvpiHOGConfig& base :
         {QvpiHOGConfig{0, 2, 4, 2, 2, 1.0f, 0.5f, {4, 10}}, QvpiHOGConfig{0, 3, 6, 6, 16, 100.0f, 0.1f, {18, 6}},
          QvpiHOGConfig{0, 16, 32, 16, 12, 8.0f, 9.0f, {48, 32}}}) {
      QvpiHOGConfig config = base;
      config.cvCompatible = compatible;
      const QvpiSize size{config.winSize.width + 3, config.winSize.height + 1};
      Check<uint8_t>(qvpiHOG_8u32f_C3R, config, size, 3, 256, qvpBorderReplicate, {{0, 0}});
      Check<uint16_t>(qvpiHOG_16u32f_C3R, config, size, 3, 65536, qvpBorderMirror, {{0, 0}});
      Check<int16_t>(qvpiHOG_16s32f_C1R, config, size, 1, 65536, qvpBorderReplicate, {{0, 0}});
      Check<int16_t>(qvpiHOG_16s32f_C3R, config, size, 3, 65536, qvpBorderConst, {{0, 0}});
      Check<float>(qvpiHOG_32f_C1R, config, size, 1, 1e15, qvpBorderReplicate, {{0, 0}});
    }
  }
  Check<uint8_t>(qvpiHOG_8u32f_C1R, kPeople, {64, 128}, 1, 256, qvpBorderReplicate, {{0, 0}});
}

// Wider than a piece of a row, and blocks that several windows share.
TEST(Hog, DescribesManyWindowsAsOneByOne) {
  std::vector<QvpiPoint> locations;
  for (int y = 0; y <= 24; y += 8) {
    for (int x = 0; x <= 280; x += 8) locations.push_back({x, y});
  }
  locations.push_back({3, 5});
  locations.push_back({8, 8});
  const QvpiHOGConfig config{0, 8, 16, 8, 9, 4.0f, 0.2f, {32, 24}};
  const Picture<uint8_t> picture({312, 48}, 1, 256);
  const std::vector<float> all = Describe(qvpiHOG_8u32f_C1R, picture, config, locations);
  for (size_t i = 0; i < locations.size(); ++i) {
    const std::vector<float> one = Describe(qvpiHOG_8u32f_C1R, picture, config, {locations[i]});
    ASSERT_EQ(std::memcmp(one.data(), all.data() + i * one.size(), one.size() * sizeof(float)), 0) << "window " << i;
  }
}

TEST(Hog, SkipsWindowsBeyondTheTrimmedRegion) {
  const QvpiHOGConfig config{0, 2, 4, 4, 3, 2.0f, 0.2f, {8, 4}};  // the region of 11 x 6 is trimmed to 8 x 4
  const Picture<uint8_t> picture({11, 6}, 1, 256);
  std::vector<float> expected = Describe(qvpiHOG_8u32f_C1R, picture, config, {{0, 0}});
  expected.insert(expected.end(), expected.begin(), expected.begin() + 24);
  expected.resize(7 * 24, -1);
  EXPECT_EQ(
      Describe(qvpiHOG_8u32f_C1R, picture, config, {{1, 0}, {0, 0}, {0, 1}, {-1, 0}, {0, -1}, {INT32_MAX, 0}, {0, 0}}),
      expected);
}

// One window of 7 x 7 blocks of 4 x 4 pixels.
constexpr QvpiHOGConfig kWindow{0, 2, 4, 2, 9, 2.0f, 0.2f, {16, 16}};

TEST(Hog, DescribesConstantImagesByZeros) {
  Picture<float> flat({16, 16}, 1, 0);
  for (int i = 0; i < 18 * 18; ++i) flat.pixels.Put(i % 18, i / 18, 3.5f);
  for (const float v : Describe(qvpiHOG_32f_C1R, flat, kWindow, {{0, 0}})) ASSERT_EQ(v, 0);
}

// A pixel that is not finite spoils the gradients of its four neighbours, and with them all blocks that have one. The
// border repeats a pixel at the edge, which spoils its own.
void ExpectSpoiltBlocks(int channels, int x, int channel, float bad) {
  const auto hog = channels == 1 ? qvpiHOG_32f_C1R : qvpiHOG_32f_C3R;
  Picture<float> picture({16, 16}, channels, 0);
  for (int y = 0; y < 16; ++y)
    picture.pixels.Put((y + 1) * channels + (channel + 1) % channels, y + 1, static_cast<float>(y));
  const std::vector<float> clean = Describe(hog, picture, kWindow, {{0, 0}});
  picture.pixels.Put((x + 1) * channels + channel, 8, bad);
  const std::vector<float> spoilt = Describe(hog, picture, kWindow, {{0, 0}});
  for (int block = 0; block < 49; ++block) {
    const int left = block % 7 * 2, top = block / 7 * 2;
    const auto has = [&](int px, int py) { return px >= left && px < left + 4 && py >= top && py < top + 4; };
    const bool isEdge = (x == 0 || x == 15) && has(x, 7);
    const bool isSpoilt = has(x - 1, 7) || has(x + 1, 7) || has(x, 6) || has(x, 8) || isEdge;
    for (int i = block * 36; i < block * 36 + 36; ++i) {
      ASSERT_TRUE(isSpoilt ? std::isnan(spoilt[i]) : spoilt[i] == clean[i]) << bad << " block " << block;
    }
  }
}

TEST(Hog, BlocksWithGradientsThatAreNotFiniteAreNaN) {
  for (const int channels : {1, 3}) {
    for (const float bad : {NAN, -NAN, INFINITY, -INFINITY, 1e20f}) {
      for (int c = 0; c < channels; ++c) {
        for (const int x : {0, 6, 15}) ExpectSpoiltBlocks(channels, x, c, bad);
      }
    }
  }
}

// Lengths do not overflow where gradients do not: descriptors do not hang on the magnitude.
TEST(Hog, DescribesLargePixelsLikeSmallOnes) {
  for (const QvpiHOGConfig& config :
       {QvpiHOGConfig{0, 2, 4, 2, 9, 2.0f, 0.2f, {4, 4}}, QvpiHOGConfig{0, 16, 32, 16, 4, 100.0f, 9.0f, {32, 32}}}) {
    const Picture<float> small(config.winSize, 1, 2e6), large(config.winSize, 1, 2e18);
    const std::vector<float> expected = Describe(qvpiHOG_32f_C1R, small, config, {{0, 0}}, qvpBorderMirror),
                             result = Describe(qvpiHOG_32f_C1R, large, config, {{0, 0}}, qvpBorderMirror);
    for (size_t i = 0; i < expected.size(); ++i) ASSERT_NEAR(result[i], expected[i], 1e-5);
  }
}

TEST(Hog, TellsSizesAndRefusesConfigurations) {
  int bytes = 0;
  EXPECT_EQ(qvpiHOGGetSize(&kPeople, &bytes), qvpStatusNoError);
  EXPECT_EQ(bytes, 4168);
  const Record record(kPeople);
  EXPECT_EQ(qvpiHOGGetDescriptorSize(record.spec(), &bytes), qvpStatusNoError);
  EXPECT_EQ(bytes, 3780 * 4);
  EXPECT_EQ(qvpiHOGGetBufferSize(record.spec(), {63, 128}, &bytes), qvpStatusSize);
  EXPECT_EQ(bytes, 3780 * 4);
  EXPECT_EQ(qvpiHOGGetBufferSize(record.spec(), {16384, 16384}, &bytes), qvpStatusSizeOverflow);
  EXPECT_EQ(bytes, 0);
  struct {
    void (*change)(QvpiHOGConfig&);
    QvpStatus status;
  } cases[] = {
      {[](QvpiHOGConfig& c) { c.cellSize = 1, c.blockSize = 2; }, qvpStatusNotSupportedMode},
      {[](QvpiHOGConfig& c) { c.cellSize = 17, c.blockSize = 34; }, qvpStatusNotSupportedMode},
      {[](QvpiHOGConfig& c) { c.blockSize = 24; }, qvpStatusNotSupportedMode},
      {[](QvpiHOGConfig& c) { c.blockStride = 0; }, qvpStatusNotSupportedMode},
      {[](QvpiHOGConfig& c) { c.blockStride = -8; }, qvpStatusNotSupportedMode},
      {[](QvpiHOGConfig& c) { c.blockStride = 12; }, qvpStatusNotSupportedMode},
      {[](QvpiHOGConfig& c) { c.nbins = 1; }, qvpStatusNotSupportedMode},
      {[](QvpiHOGConfig& c) { c.nbins = 17; }, qvpStatusNotSupportedMode},
      {[](QvpiHOGConfig& c) { c.sigma = 0; }, qvpStatusNotSupportedMode},
      {[](QvpiHOGConfig& c) { c.sigma = NAN; }, qvpStatusNotSupportedMode},
      {[](QvpiHOGConfig& c) { c.l2thresh = NAN, c.winSize.width = 70; }, qvpStatusNotSupportedMode},
      {[](QvpiHOGConfig& c) { c.winSize.width = 70; }, qvpStatusSize},
      {[](QvpiHOGConfig& c) { c.winSize.height = 8; }, qvpStatusSize},
      {[](QvpiHOGConfig& c) { c.winSize.height = INT32_MIN; }, qvpStatusSize},
  };
  for (const auto& c : cases) {
    QvpiHOGConfig config = kPeople;
    c.change(config);
    EXPECT_EQ(qvpiHOGGetSize(&config, &bytes), c.status);
    const Record filled(kPeople);
    EXPECT_EQ(qvpiHOGInit(&config, filled.spec()), c.status);
    EXPECT_EQ(qvpiHOGGetDescriptorSize(filled.spec(), &bytes), qvpStatusContextMatch);
  }
}

}  // namespace
