// Histograms of oriented gradients against their definition in double precision.
#include <cmath>
#include <limits>
#include <vector>

#include "tests/support/reference.h"

namespace {
using test::Block;
using test::Guard;

constexpr QvpiHOGConfig kPeople{0, 8, 16, 8, 9, 4.0f, 0.2f, {64, 128}};

// A record in memory of exactly the reported size, at an odd address, before a page that cannot be read.
struct Record {
  explicit Record(const QvpiHOGConfig& config) {
    int bytes = 0;
    EXPECT_EQ(qvpiHOGGetSize(&config, &bytes), qvpStatusNoError);
    block = std::make_unique<Block>(bytes + bytes % 2 + 1);
    data = block->data() + bytes % 2 + 1;
    EXPECT_EQ(qvpiHOGInit(&config, spec()), qvpStatusNoError);
  }
  QvpiHOGSpec* spec() const { return reinterpret_cast<QvpiHOGSpec*>(data); }
  std::unique_ptr<Block> block;
  uint8_t* data;
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

// Buffer and descriptors of exactly the reported sizes, each on both sides of unreadable pages in turn.
template <class T>
void Check(Function<T> hog, const QvpiHOGConfig& config, QvpiSize size, int channels, double amplitude, int border,
           const std::vector<QvpiPoint>& locations) {
  const Picture<T> picture(size, channels, amplitude);
  const Record record(config);
  int bufferBytes = 0, descriptorBytes = 0;
  ASSERT_EQ(qvpiHOGGetBufferSize(record.spec(), size, &bufferBytes), qvpStatusNoError);
  ASSERT_EQ(qvpiHOGGetDescriptorSize(record.spec(), &descriptorBytes), qvpStatusNoError);
  const T outside[3] = {static_cast<T>(amplitude / 3), 1, static_cast<T>(amplitude / 5)};
  std::vector<double> expected;
  for (const QvpiPoint at : locations) {
    const auto one = Descriptor(picture, at, config, border, outside);
    expected.insert(expected.end(), one.begin(), one.end());
  }
  ASSERT_EQ(expected.size() * sizeof(float), descriptorBytes * locations.size());
  const Guard guard = border % 2 ? Guard::kAfter : Guard::kBefore;
  const Block buffer(bufferBytes, guard), dst(descriptorBytes * locations.size(), guard);
  ASSERT_EQ(hog(picture.data(), picture.pixels.step(), size, locations.data(), static_cast<int>(locations.size()),
                reinterpret_cast<float*>(dst.data()), record.spec(), border, outside, buffer.data()),
            qvpStatusNoError);
  for (size_t i = 0; i < expected.size(); ++i) {
    float value;
    std::memcpy(&value, dst.data() + i * sizeof(float), sizeof(float));
    ASSERT_NEAR(value, expected[i], 2e-4) << "at " << i << " border " << border << " amplitude " << amplitude;
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
  const Record record(config);
  const Block buffer(12 * 312 * 48);
  std::vector<float> all(locations.size() * 3 * 2 * 36), one(3 * 2 * 36);
  const uint8_t outside = 0;
  const auto call = [&](const QvpiPoint* at, size_t n, float* dst) {
    return qvpiHOG_8u32f_C1R(picture.data(), picture.pixels.step(), picture.size, at, static_cast<int>(n), dst,
                             record.spec(), qvpBorderReplicate, &outside, buffer.data());
  };
  ASSERT_EQ(call(locations.data(), locations.size(), all.data()), qvpStatusNoError);
  for (size_t i = 0; i < locations.size(); ++i) {
    ASSERT_EQ(call(&locations[i], 1, one.data()), qvpStatusNoError);
    ASSERT_EQ(std::memcmp(one.data(), all.data() + i * one.size(), one.size() * sizeof(float)), 0) << "window " << i;
  }
}

TEST(Hog, SkipsWindowsBeyondTheTrimmedRegion) {
  const QvpiHOGConfig config{0, 2, 4, 4, 3, 2.0f, 0.2f, {8, 4}};  // the region of 11 x 6 is trimmed to 8 x 4
  const Record record(config);
  const Picture<uint8_t> picture({11, 6}, 1, 256);
  const Block buffer(12 * 11 * 6);
  const uint8_t outside = 0;
  const QvpiPoint locations[] = {{1, 0}, {0, 0}, {0, 1}, {-1, 0}, {0, -1}, {INT32_MAX, 0}, {0, 0}};
  float dst[3 * 24], expected[24];
  std::fill_n(dst, 72, -1.0f);
  const auto call = [&](const QvpiPoint* at, int n, float* to) {
    return qvpiHOG_8u32f_C1R(picture.data(), picture.pixels.step(), picture.size, at, n, to, record.spec(),
                             qvpBorderReplicate, &outside, buffer.data());
  };
  ASSERT_EQ(call(locations, 7, dst), qvpStatusNoError);
  ASSERT_EQ(call(nullptr, 1, expected), qvpStatusNoError);
  EXPECT_EQ(std::memcmp(dst, expected, sizeof(expected)), 0);
  EXPECT_EQ(std::memcmp(dst + 24, expected, sizeof(expected)), 0);
  for (int i = 48; i < 72; ++i) EXPECT_EQ(dst[i], -1);
}

// A square of 16 pixels with one float or three to a pixel, one window of 7 x 7 blocks of 4 x 4 pixels, and its
// descriptor.
class FloatWindow {
 public:
  explicit FloatWindow(int channels) : channels_(channels) { std::fill_n(pixels_, 16 * 16 * 3, 3.5f); }

  float& At(int x, int y, int c = 0) { return pixels_[(y * 16 + x) * channels_ + c]; }

  const std::vector<float>& Describe() {
    const float outside[3] = {};
    const auto hog = channels_ == 1 ? qvpiHOG_32f_C1R : qvpiHOG_32f_C3R;
    EXPECT_EQ(hog(pixels_, 16 * channels_ * static_cast<int>(sizeof(float)), {16, 16}, nullptr, 1, descriptor_.data(),
                  record_.spec(), qvpBorderReplicate, outside, buffer_.data()),
              qvpStatusNoError);
    return descriptor_;
  }

  // The values of the block that is `across` and `down` from the first.
  static std::vector<float> BlockAt(const std::vector<float>& descriptor, int across, int down) {
    const auto first = descriptor.begin() + (down * 7 + across) * 36;
    return {first, first + 36};
  }

 private:
  Record record_{QvpiHOGConfig{0, 2, 4, 2, 9, 2.0f, 0.2f, {16, 16}}};
  Block buffer_{12 * 16 * 16};
  int channels_;
  float pixels_[16 * 16 * 3];
  std::vector<float> descriptor_ = std::vector<float>(7 * 7 * 36);
};

TEST(Hog, DescribesConstantImagesByZeros) {
  FloatWindow window(1);
  for (const float v : window.Describe()) ASSERT_EQ(v, 0);
}

// A pixel that is not finite spoils the gradients of its four neighbours, and with them all blocks that have one.
TEST(Hog, BlocksWithGradientsThatAreNotFiniteAreNaN) {
  constexpr float kInf = std::numeric_limits<float>::infinity();
  for (const int channels : {1, 3}) {
    for (const float bad : {NAN, -NAN, kInf, -kInf, 1e20f}) {
      for (int c = 0; c < channels; ++c) {
        for (const int x : {0, 6, 15}) {
          FloatWindow window(channels);
          for (int y = 0; y < 16; ++y) window.At(y, y, (c + 1) % channels) = static_cast<float>(y);
          const std::vector<float> clean = window.Describe();
          window.At(x, 7, c) = bad;
          const std::vector<float> spoilt = window.Describe();
          for (int down = 0; down < 7; ++down) {
            for (int across = 0; across < 7; ++across) {
              const int left = 2 * across, top = 2 * down;
              const auto has = [&](int px, int py) { return px >= left && px < left + 4 && py >= top && py < top + 4; };
              const bool isBeside = has(x - 1, 7) || has(x + 1, 7) || has(x, 6) || has(x, 8);
              const bool isEdge = (x == 0 || x == 15) && has(x, 7);  // the border repeats the pixel
              const auto block = FloatWindow::BlockAt(spoilt, across, down);
              if (isBeside || isEdge) {
                for (const float v : block) ASSERT_TRUE(std::isnan(v)) << bad << " block " << across << ',' << down;
              } else {
                ASSERT_EQ(block, FloatWindow::BlockAt(clean, across, down)) << bad;
              }
            }
          }
        }
      }
    }
  }
}

// Lengths do not overflow where gradients do not: descriptors do not hang on the magnitude.
TEST(Hog, DescribesLargePixelsLikeSmallOnes) {
  const auto describe = [](const QvpiHOGConfig& config, float factor) {
    const Record record(config);
    const QvpiSize size = config.winSize;
    const Block buffer(size_t{12} * size.width * size.height);
    std::vector<float> src(size_t{1} * size.width * size.height), dst(4 * config.nbins);
    test::Random random(3);
    for (float& v : src) v = (static_cast<float>(random.Next() % 2001) - 1000) / 1000 * factor;
    const float outside = 0;
    EXPECT_EQ(qvpiHOG_32f_C1R(src.data(), size.width * static_cast<int>(sizeof(float)), size, nullptr, 1, dst.data(),
                              record.spec(), qvpBorderMirror, &outside, buffer.data()),
              qvpStatusNoError);
    return dst;
  };
  for (const QvpiHOGConfig& config :
       {QvpiHOGConfig{0, 2, 4, 2, 9, 2.0f, 0.2f, {4, 4}}, QvpiHOGConfig{0, 16, 32, 16, 4, 100.0f, 9.0f, {32, 32}}}) {
    const std::vector<float> small = describe(config, 1e6f), large = describe(config, 1e18f);
    for (size_t i = 0; i < small.size(); ++i) ASSERT_NEAR(large[i], small[i], 1e-5);
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
