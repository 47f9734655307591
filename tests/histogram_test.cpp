// Histograms: every way of counting against the definition, and records at any address.
#include <cmath>
#include <limits>

#include "tests/support/name.h"

namespace {
using test::Argument;
using test::Export;
using test::Name;

// A record made from levels, or from bounds, beginning at an odd address and ending at an unreadable page.
class Record {
 public:
  Record(QvpDataType type, const std::vector<std::vector<float>>& levels, bool isUniform) {
    std::vector<int> counts;
    std::vector<const float*> pointers;
    std::vector<float> lower, upper;
    for (const auto& l : levels) {
      counts.push_back(static_cast<int>(l.size()));
      pointers.push_back(l.data());
      lower.push_back(l.front());
      upper.push_back(l.back());
    }
    const int channels = static_cast<int>(levels.size());
    int bytes, buffer;
    EXPECT_EQ(qvpiHistogramGetBufferSize(type, {1, 1}, counts.data(), channels, isUniform, &bytes, &buffer), 0);
    size_t total = 64;
    for (const int n : counts) total += 4 * size_t(n);
    EXPECT_EQ(bytes, total);
    block = std::make_unique<test::Block>(bytes + 1 - bytes % 2);
    work = std::make_unique<test::Block>(buffer + 1);
    status = isUniform ? qvpiHistogramUniformInit(type, lower.data(), upper.data(), counts.data(), channels, Spec())
                       : qvpiHistogramInit(type, pointers.data(), counts.data(), channels, Spec());
    for (const int n : counts) stored.emplace_back(n);
    std::vector<float*> out;
    for (auto& s : stored) out.push_back(s.data());
    EXPECT_EQ(qvpiHistogramGetLevels(Spec(), out.data()), status < 0 ? qvpStatusBadArgument : qvpStatusNoError);
  }

  QvpiHistogramSpec* Spec() const { return reinterpret_cast<QvpiHistogramSpec*>(block->data()); }

  QvpStatus status;
  std::unique_ptr<test::Block> block, work;
  std::vector<std::vector<float>> stored;
};

template <class T>
void Check(const Export& function, const Record& record, const test::Image<T>& image, int pixels, int height) {
  const int channels = Name(function.name).channels;
  std::vector<std::vector<uint32_t>> counts;
  std::vector<uint32_t*> pointers;
  for (const auto& levels : record.stored) counts.emplace_back(levels.size(), 99);
  for (auto& c : counts) pointers.push_back(c.data());
  const Argument arguments[] = {{image.data()},    {nullptr, image.step()}, {nullptr, pixels, height},
                                {pointers.data()}, {record.Spec()},         {record.work->data()}};
  ASSERT_EQ(function.call(arguments), qvpStatusNoError) << function.name;
  for (int c = 0; c < channels; ++c) {
    const auto& levels = record.stored[c];
    std::vector<uint32_t> expected(levels.size(), 0);
    for (int i = 0; i < pixels * height; ++i) {
      const auto v = static_cast<double>(image(i % pixels * channels + c, i / pixels));
      const auto above = std::upper_bound(levels.begin(), levels.end(), v, [](double a, double b) { return a < b; });
      if (v >= levels.front() && v < levels.back()) ++expected[above - levels.begin() - 1];
    }
    expected.back() = 99;  // one count less than there are levels
    ASSERT_EQ(counts[c], expected) << function.name << ' ' << pixels << 'x' << height << " channel " << c;
  }
}

// Values at the levels and next to them, the ends of the type, and others.
template <class T>
T ValueAt(test::Random& random, const std::vector<float>& levels) {
  using L = std::numeric_limits<T>;
  const uint32_t r = random.Next();
  const float level = levels[(r >> 8) % levels.size()];
  if constexpr (!L::is_integer) {
    const T specials[] = {NAN, INFINITY, -INFINITY, L::lowest(), L::max(), 0, -0.0f, 1e-40f};
    if (r % 16 == 0) return specials[(r >> 4) % 8];
    return r % 4 == 0   ? level
           : r % 4 == 1 ? std::nextafter(level, -INFINITY)
           : r % 4 == 2 ? std::nextafter(level, INFINITY)
                        : levels[0] + (levels.back() - levels[0]) * static_cast<float>(r >> 8) * 0x1p-24f;
  } else {
    if (r % 8 == 0) return r & 8 ? L::lowest() : L::max();
    if (r % 4 == 1) return static_cast<T>(r >> 8);
    return static_cast<T>(std::clamp<double>(level + static_cast<int>(r % 3) - 1, L::lowest(), L::max()));
  }
}

// A vector is corrected if one of its values is close to a level: single pixels show what is done without others.
const std::vector<QvpiSize> kSmall{{1, 1}, {1, 1}, {1, 1}, {1, 1}, {1, 1}, {1, 1}, {1, 1}, {1, 1}, {37, 3}},
    kAll{{1, 1}, {37, 3}, {800, 2}, {300, 230}};

void CheckAll(const std::vector<std::vector<float>>& levels, bool isUniform,
              const std::vector<QvpiSize>& sizes = kAll) {
  for (const Export* function : test::FunctionsOf({"Histogram"})) {
    const Name name(function->name);
    const Record record(name.From().code, levels, isUniform);
    ASSERT_GE(record.status, 0) << function->name;
    static uint64_t seed = 0;
    test::WithType(name.From(), [&]<class T>() {
      for (const QvpiSize size : sizes) {
        const int samples = size.width * name.channels;
        test::Image<T> image(samples, size.height, 5);
        test::Random random(++seed);
        for (int i = 0; i < samples * size.height; ++i) {
          image.Put(i % samples, i / samples, ValueAt<T>(random, record.stored[i % samples % name.channels]));
        }
        Check(*function, record, image, size.width, size.height);
      }
    });
  }
}

std::vector<float> Growing(int n, float first, float factor) {
  std::vector<float> levels(n, first);
  for (int k = 1; k < n; ++k) levels[k] = levels[k - 1] + 0.5f + static_cast<float>(k % 7) * factor;
  return levels;
}

TEST(Histogram, CountsBetweenAnyLevels) {
  const std::vector<float> few{-4.5f, 0.5f, 10.2f, 256}, two{-10, 300}, many = Growing(103, -40, 1),
                                                                        most = Growing(700, -300, 0.3f);
  CheckAll({few, two, many, most}, false);
  CheckAll({4, Growing(1500, -300, 0.3f)}, false, {{37, 3}, {300, 2}});
}

TEST(Histogram, CountsInBinsOfEqualWidth) {
  const std::vector<float> bytes{0, 256}, halves{-4.5f, 4}, wide{-70000, 100000}, unit{0, 1};
  for (const int n : {2, 3, 4, 9, 11, 257, 600}) {
    std::vector<std::vector<float>> levels;
    for (const auto& bounds : {bytes, halves, wide, unit}) {
      levels.emplace_back(n, bounds[1]);
      levels.back()[0] = bounds[0];
    }
    CheckAll(levels, true);
  }
}

// The levels are so close that many of them are one number, or are far from where a guess sees them.
TEST(Histogram, DoesNotTrustGuessesBetweenCloseLevels) {
  std::vector<float> close(50, 1000001);
  close[0] = 1000000;
  const std::vector<float> subnormal{1e-42f, 0, 0, 0, 3e-42f}, widest{-3e38f, 0, 0, 3e38f}, few{5, 0, 0, 5.000002f};
  for (const auto& levels : {close, subnormal, widest, few}) CheckAll({4, levels}, true);
}

// Bounds of every size and sign, whose levels integers round: the bins of a small region are those of a large one.
TEST(Histogram, CountsInUniformBinsOfEveryOrigin) {
  std::vector<std::vector<float>> levels{{-10.9f, 0, 0, 51.5f}, {-3e9f, 0, 0, 6e9f}};
  levels.emplace_back(101, 20694.385926899507f);
  levels.back()[0] = -4066.6426491141465f;
  test::Random random(15);
  while (levels.size() % 4 != 0 || levels.size() < 160) {
    const float lower =
        std::ldexp(static_cast<float>(random.Next()) - 2e9f, -15 - static_cast<int>(random.Next() % 20));
    const int n = 2 + random.Next() % (random.Next() % 2 ? 8 : 300);
    const float width =
        std::ldexp(static_cast<float>(random.Next() % 1000000 + 1), -10 - static_cast<int>(random.Next() % 10));
    if (!(lower < lower + width * (n - 1))) continue;
    levels.emplace_back(n, lower + width * (n - 1));
    levels.back()[0] = lower;
  }
  for (size_t i = 0; i < levels.size(); i += 4) CheckAll({levels.begin() + i, levels.begin() + i + 4}, true, kSmall);
}

TEST(Histogram, RoundsLevelsOfIntegers) {
  EXPECT_EQ(Record(qvp8u, {{0.5f, 10.2f, 256}}, false).stored[0], (std::vector<float>{1, 11, 256}));
  EXPECT_EQ(Record(qvp16s, {{-1e30f, -0.5f, 0, 1e30f}}, false).stored[0],
            (std::vector<float>{-2147483648.0f, 0, 0, 2147483648.0f}));
  const Record narrow(qvp8u, {{0, 1, 2, 3, 4, 5, 6, 7, 4}}, true),
      halves(qvp16s, {{-4.5f, 0, 0, 0, 0, 0, 0, 0, 4}}, true);
  EXPECT_EQ(narrow.status, qvpStatusSizeWarning);
  EXPECT_EQ(halves.stored[0], (std::vector<float>{-4, -3, -2, -1, 0, 0, 1, 2, 4}));
  EXPECT_EQ(Record(qvp32f, {{0, 0, 0, 0, 4}}, true).status, qvpStatusNoError);
}

TEST(Histogram, RefusesLevelsThatDoNotRiseAndOtherRecords) {
  alignas(8) uint8_t bytes[128], record[128], buffer[1024];
  auto* const s = reinterpret_cast<QvpiHistogramSpec*>(record);
  const int two[1] = {2}, three[1] = {3}, four[1] = {4};
  const float rising[2] = {0, 9}, equal[3] = {0, 0, 1}, unknown[2] = {0, NAN}, infinite[1] = {INFINITY};
  const float *const even[1] = {rising}, *const flat[1] = {equal}, *const bad[1] = {unknown};
  uint32_t counts[2] = {7, 7};
  uint32_t* const hist[3] = {counts, counts, counts};
  ASSERT_EQ(qvpiHistogramInit(qvp8u, even, two, 1, s), qvpStatusNoError);
  auto* const words = reinterpret_cast<Qvp16u*>(bytes);
  EXPECT_EQ(qvpiHistogram_16u_C1R(words, 8, {4, 1}, hist, s, buffer), qvpStatusBadArgument);
  EXPECT_EQ(qvpiHistogram_8u_C3R(bytes, 12, {4, 1}, hist, s, buffer), qvpStatusBadArgument);
  EXPECT_EQ(counts[0], 7u);
  EXPECT_EQ(qvpiHistogramInit(qvp8u, flat, three, 1, s), qvpStatusRange);
  EXPECT_EQ(qvpiHistogramInit(qvp32f, bad, two, 1, s), qvpStatusRange);
  EXPECT_EQ(qvpiHistogramUniformInit(qvp32f, rising, unknown + 1, two, 1, s), qvpStatusRange);
  EXPECT_EQ(qvpiHistogramUniformInit(qvp32f, rising, rising, two, 1, s), qvpStatusRange);
  EXPECT_EQ(qvpiHistogramUniformInit(qvp32f, rising, infinite, four, 1, s), qvpStatusRange);
  EXPECT_EQ(qvpiHistogramUniformInit(qvp32f, rising, infinite, two, 1, s), qvpStatusNoError);
}

}  // namespace
