// The general filter against a direct convolution.
#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <string>
#include <vector>

#include "qvpi.h"
#include "tests/support/guarded.h"

namespace {
using test::Block;
using test::Guard;

template <class T>
struct TypeOf;
#define TYPE(type, code, bits)                        \
  template <>                                         \
  struct TypeOf<Qvp##type> {                          \
    static constexpr QvpDataType kCode = code;        \
    static auto Filter(int channels) { return bits; } \
  };
#define LAYOUTS(type)                             \
  channels == 1   ? qvpiFilterBorder_##type##_C1R \
  : channels == 3 ? qvpiFilterBorder_##type##_C3R \
                  : qvpiFilterBorder_##type##_C4R
TYPE(8u, qvp8u, LAYOUTS(8u))
TYPE(16u, qvp16u, LAYOUTS(16u))
TYPE(16s, qvp16s, LAYOUTS(16s))
TYPE(32f, qvp32f, LAYOUTS(32f))
TYPE(64f, qvp64f, channels == 1 ? qvpiFilterBorder_64f_C1R : nullptr)

// A kernel, and what is asked of Init and SetMode.
template <class K>
struct Filter {
  QvpiSize size;
  std::vector<K> kernel;
  int divisor = 1;
  QvpRoundMode mode = qvpRoundNear;
  int offset = 0;
};

QvpStatus Init(const Filter<Qvp16s>& f, QvpDataType type, int channels, QvpiFilterBorderSpec* spec) {
  return qvpiFilterBorderInit_16s(f.kernel.data(), f.size, f.divisor, type, channels, f.mode, spec);
}
QvpStatus Init(const Filter<Qvp32f>& f, QvpDataType type, int channels, QvpiFilterBorderSpec* spec) {
  return qvpiFilterBorderInit_32f(f.kernel.data(), f.size, type, channels, f.mode, spec);
}
QvpStatus Init(const Filter<Qvp64f>& f, QvpDataType type, int channels, QvpiFilterBorderSpec* spec) {
  return qvpiFilterBorderInit_64f(f.kernel.data(), f.size, type, channels, f.mode, spec);
}

// A record and a buffer of the reported sizes, before unreadable pages; the record may begin anywhere.
template <class K>
class Prepared {
 public:
  Prepared(const Filter<K>& f, QvpiSize roi, QvpDataType type, int channels) {
    int spec = 0, buffer = 0;
    EXPECT_EQ(qvpiFilterBorderGetSize(f.size, roi, type, TypeOf<K>::kCode, channels, &spec, &buffer), 0);
    static int phase = 0;
    specSize_ = spec;
    phase_ = phase = (phase + 7) % 64;
    spec_ = std::make_unique<Block>(spec + phase_);
    buffer_ = std::make_unique<Block>(buffer);
    EXPECT_EQ(Init(f, type, channels, get()), 0);
    if (f.offset != 0) {
      EXPECT_EQ(qvpiFilterBorderSetMode(qvpAlgHintFast, f.offset, get()), 0);
    }
  }
  QvpiFilterBorderSpec* get() const { return reinterpret_cast<QvpiFilterBorderSpec*>(spec_->data() + phase_); }
  Qvp8u* buffer() const { return buffer_->data(); }

 private:
  int specSize_, phase_;
  std::unique_ptr<Block> spec_, buffer_;
};

// Where pixel i of n stands, of which `before` and `after` more are in memory; -1 - n for the constant.
constexpr int kConstant = INT32_MIN;
int Position(int kind, int i, int n, int before, int after) {
  const int first = -before, last = n - 1 + after;
  if (i >= first && i <= last) return i;
  if (kind == qvpBorderConst) return kConstant;
  if (kind != qvpBorderMirror || first == last) return std::clamp(i, first, last);
  while (i < first || i > last) i = i < first ? 2 * first - i : 2 * last - i;
  return i;
}

template <class T>
T Saturated(long double v) {
  if (std::isnan(v)) return std::numeric_limits<T>::lowest();
  return static_cast<T>(std::clamp<long double>(v, std::numeric_limits<T>::lowest(), std::numeric_limits<T>::max()));
}

template <class T, class F>
T Rounded(F v, QvpRoundMode mode) {
  if constexpr (std::is_floating_point_v<T>) return static_cast<T>(v);
  return Saturated<T>(mode == qvpRoundZero ? std::trunc(v) : mode == qvpRoundNear ? std::nearbyint(v) : std::round(v));
}

// n / d, by whole numbers.
template <class T>
T Quotient(int64_t n, int64_t d, QvpRoundMode mode) {
  if (d < 0) n = -n, d = -d;
  const int64_t m = std::abs(n), whole = m / d, rest = m % d;
  const bool isUp =
      mode != qvpRoundZero && (2 * rest > d || (2 * rest == d && (mode == qvpRoundFinancial || whole % 2 == 1)));
  return Saturated<T>(static_cast<long double>((n < 0 ? -1 : 1) * (whole + isUp)));
}

// The taps of one result, in the order in which they are added up: coefficient and pixel.
template <class T, class K, class Tap>
void ForEachTap(const Filter<K>& f, const Tap& tap) {
  for (int j = 0; j < f.size.height; ++j) {
    for (int i = 0; i < f.size.width; ++i) {
      tap(f.kernel[f.size.width * f.size.height - 1 - j * f.size.width - i], i - (f.size.width - 1) / 2,
          j - (f.size.height - 1) / 2);
    }
  }
}

bool StaysInteger(QvpDataType type, QvpiSize kernel, int channels) {
  return type == qvp8u || (type == qvp16s && channels == 1 && kernel.width >= 3 && kernel.height >= 2);
}

template <class T, class K, class Pixel>
T Expected(const Filter<K>& f, int channels, const Pixel& pixel) {
  if constexpr (std::is_same_v<K, Qvp16s>) {
    if (StaysInteger(TypeOf<T>::kCode, f.size, channels)) {
      int64_t sum = int64_t{f.offset} * f.divisor;
      ForEachTap<T>(f, [&](K k, int i, int j) { sum += static_cast<int64_t>(k) * static_cast<int64_t>(pixel(i, j)); });
      return Quotient<T>(sum, f.divisor, f.mode);
    }
  }
  using F = std::conditional_t<std::is_same_v<K, double>, double, float>;
  volatile F sum = 0;  // each product and each sum is rounded, whatever the compiler would like
  ForEachTap<T>(f, [&](K k, int i, int j) {
    const volatile F product = static_cast<F>(static_cast<double>(k) / f.divisor) * static_cast<F>(pixel(i, j));
    sum = sum + product;
  });
  return Rounded<T, F>(sum + static_cast<F>(f.offset), f.mode);
}

struct Region {
  QvpiSize size;
  int channels;
  QvpiBorderType border;
};

// The image holds just what may be read: the region, and on the sides in memory what the kernel reaches.
template <class T>
struct Scene {
  int left, top, right, bottom;
  Region region;
  test::Image<T> image;

  Scene(QvpiSize kernel, const Region& r, Guard guard)
      : left(r.border & qvpBorderInMemLeft ? (kernel.width - 1) / 2 : 0),
        top(r.border & qvpBorderInMemTop ? (kernel.height - 1) / 2 : 0),
        right(r.border & qvpBorderInMemRight ? kernel.width / 2 : 0),
        bottom(r.border & qvpBorderInMemBottom ? kernel.height / 2 : 0),
        region(r),
        image((left + r.size.width + right) * r.channels, top + r.size.height + bottom, 3, guard) {
    if constexpr (std::is_floating_point_v<T>) {
      test::Random random(7);
      for (int y = 0; y < top + r.size.height + bottom; ++y) {
        for (int i = 0; i < (left + r.size.width + right) * r.channels; ++i) {
          image.Put(i, y, static_cast<T>(static_cast<int>(random.Next())) / 1000);
        }
      }
    }
  }
  const T* first() const { return At(0, 0); }
  const T* At(int x, int y) const {
    return reinterpret_cast<const T*>(image.bytes() + (top + y) * image.step()) + (left + x) * region.channels;
  }
  T Pixel(int x, int y, int c, const T* value) const {
    const int kind = region.border & 15;
    const int column = Position(kind, x, region.size.width, left, right),
              row = Position(kind, y, region.size.height, top, bottom);
    if (column == kConstant || row == kConstant) return value[c];
    return image((left + column) * region.channels + c, top + row);
  }
};

template <class T, class K>
void Check(const Filter<K>& f, const Region& r, Guard guard = Guard::kAfter) {
  const Scene<T> scene(f.size, r, guard);
  const test::Image<T> dst(r.size.width * r.channels, r.size.height, 5, guard);
  const Prepared<K> prepared(f, r.size, TypeOf<T>::kCode, r.channels);
  const T value[4] = {static_cast<T>(250), static_cast<T>(3), static_cast<T>(77), static_cast<T>(128)};
  ASSERT_EQ(TypeOf<T>::Filter(r.channels)(scene.first(), scene.image.step(), dst.data(), dst.step(), r.size, r.border,
                                          value, prepared.get(), prepared.buffer()),
            0);
  for (int y = 0; y < r.size.height; ++y) {
    for (int i = 0; i < r.size.width * r.channels; ++i) {
      const int x = i / r.channels, c = i % r.channels;
      const T expected =
          Expected<T>(f, r.channels, [&](int dx, int dy) { return scene.Pixel(x + dx, y + dy, c, value); });
      ASSERT_EQ(dst(i, y), expected) << "type " << TypeOf<T>::kCode << " kernel " << f.size.width << 'x'
                                     << f.size.height << " of " << TypeOf<K>::kCode << " divisor " << f.divisor
                                     << " mode " << f.mode << " offset " << f.offset << " border " << r.border
                                     << " region " << r.size.width << 'x' << r.size.height << " x " << r.channels
                                     << " at " << x << ',' << y;
    }
  }
}

// Coefficients of magnitudes up to `limit`.
template <class K>
Filter<K> RandomFilter(QvpiSize size, int limit, int divisor = 1, QvpRoundMode mode = qvpRoundNear, int offset = 0) {
  Filter<K> f{size, {}, divisor, mode, offset};
  test::Random random(size.width * 31 + size.height + limit);
  for (int i = 0; i < size.width * size.height; ++i) {
    const int k = static_cast<int>(random.Next() % (2 * limit + 1)) - limit;
    f.kernel.push_back(std::is_integral_v<K> ? static_cast<K>(k) : static_cast<K>(k) / 128);
  }
  return f;
}

template <class T, class K>
void CheckAllKernels(int limit, int divisor) {
  int turn = 0;
  for (int kw = 1; kw <= 9; ++kw) {
    for (int kh = 1; kh <= 9; ++kh) {
      for (const int channels : {1, 3, 4}) {
        if (sizeof(T) == 8 && channels > 1) continue;
        const QvpiBorderType kinds[] = {qvpBorderReplicate, qvpBorderMirror, qvpBorderConst};
        const int width = (1 + turn % 70) / (channels > 1 ? 2 : 1) + 1, height = 1 + turn % 11;
        Check<T>(RandomFilter<K>({kw, kh}, limit, divisor), {{width, height}, channels, kinds[turn % 3]},
                 turn % 2 ? Guard::kAfter : Guard::kBefore);
        ++turn;
      }
    }
  }
  Check<T>(RandomFilter<K>({15, 3}, limit, divisor), {{40, 20}, 1, qvpBorderMirror});
  Check<T>(RandomFilter<K>({3, 15}, limit, divisor), {{40, 20}, 1, qvpBorderReplicate});
}

TEST(FilterBorder, EveryTypeAndKernel) {
  CheckAllKernels<Qvp8u, Qvp16s>(2, 4);        // bytes in pairs
  CheckAllKernels<Qvp8u, Qvp16s>(1000, 1024);  // words in pairs
  CheckAllKernels<Qvp8u, Qvp32f>(100, 1);
  CheckAllKernels<Qvp16u, Qvp16s>(300, 999);
  CheckAllKernels<Qvp16u, Qvp32f>(100, 1);
  CheckAllKernels<Qvp16s, Qvp16s>(300, 4096);
  CheckAllKernels<Qvp16s, Qvp32f>(100, 1);
  CheckAllKernels<Qvp32f, Qvp32f>(100, 1);
  CheckAllKernels<Qvp64f, Qvp64f>(100, 1);
}

template <class T, class K>
void CheckAllBorders(int limit, int divisor) {
  for (int flags = 0; flags < 256; flags += 16) {
    for (const int kind : std::initializer_list<int>{qvpBorderReplicate, qvpBorderMirror, qvpBorderConst, 0}) {
      if (kind == 0 && flags != qvpBorderInMem) continue;
      for (const QvpiSize roi : {QvpiSize{1, 1}, {1, 9}, {7, 1}, {5, 4}, {70, 6}}) {
        for (const QvpiSize kernel : {QvpiSize{1, 3}, {2, 2}, {5, 5}, {7, 4}, {2, 9}}) {
          Check<T>(RandomFilter<K>(kernel, limit, divisor), {roi, 1, flags | kind}, Guard::kAfter);
        }
      }
    }
  }
}

TEST(FilterBorder, EveryBorderAndSideInMemory) {
  CheckAllBorders<Qvp8u, Qvp16s>(2, 3);
  CheckAllBorders<Qvp16s, Qvp16s>(500, 100);
  CheckAllBorders<Qvp32f, Qvp32f>(100, 1);
}

// Regions that are cut into several blocks of columns.
TEST(FilterBorder, WideRegions) {
  for (const int width : {2048, 2049, 4500}) {
    for (const int kind : {qvpBorderReplicate, qvpBorderMirror, qvpBorderConst}) {
      Check<Qvp8u>(RandomFilter<Qvp16s>({3, 3}, 5, 9), {{width, 3}, 1, kind});
      Check<Qvp8u>(RandomFilter<Qvp16s>({4, 2}, 500, 9), {{width, 3}, 3, kind});
      Check<Qvp32f>(RandomFilter<Qvp32f>({6, 5}, 50), {{width, 3}, 1, kind});
    }
  }
  Check<Qvp8u>(RandomFilter<Qvp16s>({100, 1}, 5, 9), {{4097, 2}, 1, qvpBorderMirror});
  Check<Qvp16u>(RandomFilter<Qvp32f>({2, 70}, 5), {{331, 3}, 4, qvpBorderMirror});
}

// Quotients at and around ties, out of range, with an offset inside the rounding; sums of 16 and 32 bits and beyond.
TEST(FilterBorder, EveryRoundingAndDivisor) {
  for (const QvpRoundMode mode : {qvpRoundZero, qvpRoundNear, qvpRoundFinancial}) {
    for (const int divisor : {1,    2,    8,     256,     1 << 14,   1 << 20, 1 << 30, 3,  6,   7,        10,
                              1000, 6500, 99999, 8388609, INT32_MAX, -1,      -2,      -8, -10, INT32_MIN}) {
      for (const int limit : {1, 8, 60, 3000, 32766, 32767}) {
        for (const int offset : {0, 1, -3, 77, 100000}) {
          Check<Qvp8u>(RandomFilter<Qvp16s>({3, 3}, limit, divisor, mode, offset), {{40, 4}, 1, qvpBorderReplicate});
        }
        Check<Qvp16s>(RandomFilter<Qvp16s>({3, 2}, limit, divisor, mode), {{40, 4}, 1, qvpBorderReplicate});
        Check<Qvp16u>(RandomFilter<Qvp16s>({3, 2}, limit, divisor, mode, 5), {{40, 4}, 1, qvpBorderReplicate});
      }
    }
    Check<Qvp16u>(RandomFilter<Qvp32f>({3, 2}, 64, 1, mode, 9), {{40, 4}, 1, qvpBorderReplicate});
  }
}

// Pixels and coefficients at their limits: sums of 258 such taps leave 32 bits for 8u, of 3 for 16s.
template <class T>
void CheckExtremes(QvpiSize kernel, Qvp16s coefficient, int divisor) {
  const Filter<Qvp16s> f{kernel, std::vector<Qvp16s>(kernel.width * kernel.height, coefficient), divisor};
  const Prepared<Qvp16s> prepared(f, {40, 3}, TypeOf<T>::kCode, 1);
  for (const T pixel : {std::numeric_limits<T>::lowest(), std::numeric_limits<T>::max()}) {
    const std::vector<T> src(40 * 3, pixel);
    std::vector<T> dst(40 * 3);
    ASSERT_EQ(TypeOf<T>::Filter(1)(src.data(), 40 * sizeof(T), dst.data(), 40 * sizeof(T), {40, 3}, qvpBorderReplicate,
                                   nullptr, prepared.get(), prepared.buffer()),
              0);
    const T expected = Expected<T>(f, 1, [&](int, int) { return pixel; });
    for (const T result : dst) ASSERT_EQ(result, expected) << kernel.width << ' ' << coefficient << ' ' << divisor;
  }
}

TEST(FilterBorder, NeverWrapsAround) {
  for (const int coefficient : {INT16_MIN, -32767, -128, 127, 128, 32766, 32767}) {
    for (const int divisor : {1, 4096, 8421376, 100000000, -7}) {
      for (const QvpiSize kernel : {QvpiSize{1, 1}, {3, 2}, {16, 16}, {17, 17}}) {
        CheckExtremes<Qvp8u>(kernel, static_cast<Qvp16s>(coefficient), divisor);
        CheckExtremes<Qvp16s>(kernel, static_cast<Qvp16s>(coefficient), divisor);
      }
    }
  }
}

// Tiles whose inner sides are in memory, filtered with one buffer of the whole image.
template <class T, class K>
void CheckTiles(const Filter<K>& f, QvpiSize size, QvpiSize tile, int kind) {
  const Scene<T> scene(f.size, {size, 1, kind}, Guard::kAfter);
  const test::Image<T> whole(size.width, size.height, 0), tiled(size.width, size.height, 1);
  const Prepared<K> prepared(f, size, TypeOf<T>::kCode, 1);
  const T value[1] = {static_cast<T>(99)};
  const auto filter = TypeOf<T>::Filter(1);
  ASSERT_EQ(filter(scene.first(), scene.image.step(), whole.data(), whole.step(), size, kind, value, prepared.get(),
                   prepared.buffer()),
            0);
  for (int y = 0; y < size.height; y += tile.height) {
    for (int x = 0; x < size.width; x += tile.width) {
      const QvpiSize part{std::min(tile.width, size.width - x), std::min(tile.height, size.height - y)};
      // A side is in memory if as many pixels as the kernel reaches are.
      const int flags = (y > 0 ? qvpBorderInMemTop : 0) | (x > 0 ? qvpBorderInMemLeft : 0) |
                        (y + part.height < size.height ? qvpBorderInMemBottom : 0) |
                        (x + part.width < size.width ? qvpBorderInMemRight : 0);
      ASSERT_EQ(filter(scene.At(x, y), scene.image.step(), reinterpret_cast<T*>(tiled.bytes() + y * tiled.step()) + x,
                       tiled.step(), part, flags | kind, value, prepared.get(), prepared.buffer()),
                0);
    }
  }
  for (int y = 0; y < size.height; ++y) {
    for (int x = 0; x < size.width; ++x) ASSERT_EQ(whole(x, y), tiled(x, y)) << x << ',' << y;
  }
}

TEST(FilterBorder, TilesEqualTheWhole) {
  for (const int kind : {qvpBorderReplicate, qvpBorderMirror, qvpBorderConst}) {
    for (const QvpiSize tile : {QvpiSize{16, 8}, {32, 24}, {96, 8}}) {
      CheckTiles<Qvp8u>(RandomFilter<Qvp16s>({5, 5}, 3, 16), {96, 48}, tile, kind);
      CheckTiles<Qvp16s>(RandomFilter<Qvp16s>({15, 3}, 300, 77), {96, 48}, tile, kind);
      CheckTiles<Qvp32f>(RandomFilter<Qvp32f>({4, 6}, 300), {96, 48}, tile, kind);
    }
    CheckTiles<Qvp32f>(RandomFilter<Qvp32f>({4, 4}, 300), {34, 18}, {32, 16}, kind);  // the least for even sides
  }
}

TEST(FilterBorder, IntegerResultsOfFloatsSaturateAndNaNIsTheLowest) {
  const float nan = std::numeric_limits<float>::quiet_NaN(), inf = std::numeric_limits<float>::infinity();
  for (const float k : {nan, inf, -inf, 1e30f, -1e30f, 2.5f, -0.5f}) {
    for (const QvpRoundMode mode : {qvpRoundZero, qvpRoundNear, qvpRoundFinancial}) {
      Check<Qvp8u>(Filter<Qvp32f>{{1, 1}, {k}, 1, mode}, {{40, 2}, 1, qvpBorderReplicate});
      Check<Qvp16s>(Filter<Qvp32f>{{1, 1}, {k}, 1, mode}, {{40, 2}, 1, qvpBorderReplicate});
    }
  }
}

// Sums begin with +0, and no coefficient makes a NaN or an infinity vanish.
TEST(FilterBorder, ZerosArePositiveAndNaNSpreads) {
  const float nan = std::numeric_limits<float>::quiet_NaN(), inf = std::numeric_limits<float>::infinity();
  const float src[3][5] = {{-0.0f, -0.0f, -0.0f, 2, 3}, {-0.0f, -0.0f, -0.0f, 2, nan}, {-0.0f, 1, 2, 3, inf}};
  const Prepared<Qvp32f> identity({{3, 1}, {0, 1, 0}}, {5, 3}, qvp32f, 1);
  float dst[3][5];
  ASSERT_EQ(qvpiFilterBorder_32f_C1R(src[0], 20, dst[0], 20, {5, 3}, qvpBorderReplicate, nullptr, identity.get(),
                                     identity.buffer()),
            0);
  EXPECT_FALSE(std::signbit(dst[0][1]));
  EXPECT_EQ(dst[0][4], 3);
  for (const int y : {1, 2}) {
    EXPECT_EQ(dst[y][2], src[y][2]);
    EXPECT_TRUE(std::isnan(dst[y][3]) && std::isnan(dst[y][4])) << y;
  }
}

// Floats take the offset of a record for 8-bit or 16-bit images, as those images do.
TEST(FilterBorder, FloatsTakeTheOffsetOfARecordForIntegers) {
  for (const QvpDataType type : {qvp8u, qvp16u}) {
    for (const int side : {1, 3, 5}) {
      Filter<Qvp32f> f = RandomFilter<Qvp32f>({side, side}, 100);
      f.offset = -37;
      const Prepared<Qvp32f> prepared(f, {70, 4}, type, 1);
      const Scene<Qvp32f> scene(f.size, {{70, 4}, 1, qvpBorderMirror}, Guard::kAfter);
      const test::Image<Qvp32f> dst(70, 4, 0);
      ASSERT_EQ(qvpiFilterBorder_32f_C1R(scene.first(), scene.image.step(), dst.data(), dst.step(), {70, 4},
                                         qvpBorderMirror, nullptr, prepared.get(), prepared.buffer()),
                0);
      for (int y = 0; y < 4; ++y) {
        for (int x = 0; x < 70; ++x) {
          const float expected =
              Expected<Qvp32f>(f, 1, [&](int i, int j) { return scene.Pixel(x + i, y + j, 0, nullptr); });
          ASSERT_EQ(dst(x, y), expected) << type << ' ' << side << " at " << x << ',' << y;
        }
      }
    }
  }
}

// A record for another type gives the same filter, with nothing beyond the images touched.
TEST(FilterBorder, RecordsOfOtherTypesAreSafe) {
  const Filter<Qvp16s> f = RandomFilter<Qvp16s>({3, 3}, 5, 7);
  const Prepared<Qvp16s> bytes(f, {40, 3}, qvp8u, 1);
  const test::Image<Qvp16u> src(40, 3, 0), dst(40, 3, 0);
  for (int y = 0; y < 3; ++y) {
    for (int x = 0; x < 40; ++x) const_cast<test::Image<Qvp16u>&>(src).Put(x, y, static_cast<Qvp16u>(x * 5 + y));
  }
  ASSERT_EQ(qvpiFilterBorder_16u_C1R(src.data(), src.step(), dst.data(), dst.step(), {40, 3}, qvpBorderReplicate,
                                     nullptr, bytes.get(), bytes.buffer()),
            0);
  for (int y = 0; y < 3; ++y) {
    for (int x = 0; x < 40; ++x) {
      int64_t sum = 0;
      ForEachTap<Qvp16u>(
          f, [&](Qvp16s k, int i, int j) { sum += k * src(std::clamp(x + i, 0, 39), std::clamp(y + j, 0, 2)); });
      ASSERT_EQ(dst(x, y), Quotient<Qvp16u>(sum, 7, qvpRoundNear)) << x << ',' << y;
    }
  }
  const Filter<Qvp64f> d = RandomFilter<Qvp64f>({3, 3}, 5);
  const Prepared<Qvp64f> doubles(d, {40, 3}, qvp64f, 1);
  EXPECT_EQ(qvpiFilterBorder_16u_C1R(src.data(), src.step(), dst.data(), dst.step(), {40, 3}, qvpBorderMirror, nullptr,
                                     doubles.get(), doubles.buffer()),
            0);
}

TEST(FilterBorder, SizesAndTheirChecksInOrder) {
  int spec = 5, buffer = 6;
  const auto sizes = [&](QvpiSize kernel, QvpiSize roi, QvpDataType type, QvpDataType kernelType, int channels, int* s,
                         int* b) { return qvpiFilterBorderGetSize(kernel, roi, type, kernelType, channels, s, b); };
  EXPECT_EQ(sizes({0, 3}, {9, 9}, 0, 0, 0, nullptr, nullptr), qvpStatusSize);
  EXPECT_EQ(sizes({3, 3}, {9, -1}, 0, 0, 0, nullptr, nullptr), qvpStatusSize);
  EXPECT_EQ(sizes({3, 3}, {9, 9}, qvp32f, qvp64f, 3, nullptr, nullptr), qvpStatusDataType);
  EXPECT_EQ(sizes({3, 3}, {9, 9}, qvp64f, qvp64f, 3, nullptr, nullptr), qvpStatusChannel);
  EXPECT_EQ(sizes({3, 3}, {9, 9}, qvp64f, qvp32f, 0, nullptr, nullptr), qvpStatusDataType);
  EXPECT_EQ(sizes({3, 3}, {9, 9}, qvp8u, qvp8u, 0, nullptr, nullptr), qvpStatusDataType);
  EXPECT_EQ(sizes({3, 3}, {9, 9}, qvp8u, qvp16s, 5, nullptr, nullptr), qvpStatusChannel);
  EXPECT_EQ(sizes({3, 3}, {9, 9}, qvp8u, qvp16s, 2, &spec, nullptr), qvpStatusNullPointer);
  EXPECT_EQ(spec, 5);
  EXPECT_EQ(sizes({3, 3}, {9, 9}, qvp32f, qvp16s, 2, &spec, &buffer), 0);
  EXPECT_EQ(spec, 64 * 15 + 64 + 191);
  EXPECT_EQ(sizes({3, 3}, {9, 9}, qvp64f, qvp64f, 1, &spec, &buffer), 0);
  EXPECT_EQ(spec, 128 + 191);
  EXPECT_EQ(sizes({30000, 30000}, {30000, 30000}, qvp8u, qvp16s, 1, &spec, &buffer), qvpStatusSizeOverflow);
  EXPECT_EQ(spec, 0);
  EXPECT_EQ(buffer, 0);
  EXPECT_EQ(sizes({INT32_MAX, INT32_MAX}, {INT32_MAX, INT32_MAX}, qvp32f, qvp32f, 4, &spec, &buffer),
            qvpStatusSizeOverflow);
}

TEST(FilterBorder, ChecksOfInitAndModeInOrder) {
  const Prepared<Qvp16s> prepared(RandomFilter<Qvp16s>({3, 3}, 5), {9, 9}, qvp8u, 1);
  const Qvp16s k[9] = {};
  const Qvp32f kf[9] = {};
  const Qvp64f kd[9] = {};
  QvpiFilterBorderSpec* const spec = prepared.get();
  EXPECT_EQ(qvpiFilterBorderInit_16s(nullptr, {0, 3}, 0, 0, 0, 9, spec), qvpStatusNullPointer);
  EXPECT_EQ(qvpiFilterBorderInit_16s(k, {0, 3}, 0, qvp32f, 0, 9, spec), qvpStatusSize);
  EXPECT_EQ(qvpiFilterBorderInit_16s(k, {3, 3}, 0, qvp32f, 0, 9, spec), qvpStatusDataType);
  EXPECT_EQ(qvpiFilterBorderInit_16s(k, {3, 3}, 0, qvp8u, 0, 9, spec), qvpStatusChannel);
  EXPECT_EQ(qvpiFilterBorderInit_16s(k, {3, 3}, 0, qvp8u, 1, 3, spec), qvpStatusRoundMode);
  EXPECT_EQ(qvpiFilterBorderInit_16s(k, {3, 3}, 0, qvp8u, 1, -1, spec), qvpStatusRoundMode);
  EXPECT_EQ(qvpiFilterBorderInit_16s(k, {3, 3}, 0, qvp8u, 1, 18, spec), qvpStatusDivisor);
  EXPECT_EQ(qvpiFilterBorderInit_16s(k, {3, 3}, 1, qvp8u, 4, 17, spec), 0);
  EXPECT_EQ(qvpiFilterBorderInit_16s(k, {3, 3}, 1, qvp16s, 1, 17, spec), 0);
  EXPECT_EQ(qvpiFilterBorderSetMode(qvpAlgHintFast, 1, spec), qvpStatusNotSupportedMode);
  EXPECT_EQ(qvpiFilterBorderInit_16s(k, {3, 3}, 1, qvp16u, 1, 17, spec), qvpStatusAccurateModeNotSupported);
  EXPECT_EQ(qvpiFilterBorderSetMode(qvpAlgHintFast, 1, spec), 0);
  EXPECT_EQ(qvpiFilterBorderInit_32f(kf, {3, 3}, qvp64f, 0, 9, spec), qvpStatusDataType);
  EXPECT_EQ(qvpiFilterBorderInit_32f(kf, {3, 3}, qvp32f, 5, 9, spec), qvpStatusChannel);
  EXPECT_EQ(qvpiFilterBorderInit_32f(kf, {3, 3}, qvp32f, 4, 19, spec), qvpStatusRoundMode);
  EXPECT_EQ(qvpiFilterBorderInit_32f(kf, {3, 3}, qvp32f, 4, 16, spec), qvpStatusAccurateModeNotSupported);
  EXPECT_EQ(qvpiFilterBorderSetMode(99, -1, spec), qvpStatusNotSupportedMode);
  EXPECT_EQ(qvpiFilterBorderInit_64f(kd, {3, 3}, qvp32f, 0, 0, spec), qvpStatusDataType);
  EXPECT_EQ(qvpiFilterBorderInit_64f(kd, {3, 3}, qvp64f, 2, 0, spec), qvpStatusChannel);
  EXPECT_EQ(qvpiFilterBorderInit_64f(kd, {3, 3}, qvp64f, 1, 0, spec), qvpStatusRoundMode);
  EXPECT_EQ(qvpiFilterBorderInit_64f(kd, {3, 3}, qvp64f, 1, 17, spec), 0);
  EXPECT_EQ(qvpiFilterBorderSetMode(qvpAlgHintFast, 0, spec), 0);
  EXPECT_EQ(qvpiFilterBorderSetMode(qvpAlgHintFast, 1, spec), qvpStatusNotSupportedMode);
}

// What a refused Init leaves is no record, whichever check failed.
TEST(FilterBorder, RefusedInitsLeaveNoRecord) {
  const Filter<Qvp16s> f = RandomFilter<Qvp16s>({3, 3}, 5);
  const Qvp32f kf[9] = {};
  const Qvp64f kd[9] = {};
  const std::function<QvpStatus(QvpiFilterBorderSpec*)> inits[] = {
      [&](auto* s) {
        return qvpiFilterBorderInit_16s(nullptr, {3, 3}, 1, qvp8u, 1, qvpRoundNear, s);
      },
      [&](auto* s) {
        return qvpiFilterBorderInit_16s(f.kernel.data(), {0, 3}, 1, qvp8u, 1, qvpRoundNear, s);
      },
      [&](auto* s) {
        return qvpiFilterBorderInit_16s(f.kernel.data(), {3, 3}, 0, qvp8u, 1, qvpRoundNear, s);
      },
      [&](auto* s) {
        return qvpiFilterBorderInit_32f(kf, {3, 3}, qvp8u, 1, 3, s);
      },
      [&](auto* s) {
        return qvpiFilterBorderInit_64f(kd, {3, 3}, qvp64f, 2, qvpRoundNear, s);
      },
  };
  std::vector<Qvp8u> src(81), dst(81, 77);
  for (const auto& init : inits) {
    const Prepared<Qvp16s> prepared(f, {9, 9}, qvp8u, 1);
    ASSERT_LT(init(prepared.get()), 0);
    EXPECT_EQ(qvpiFilterBorder_8u_C1R(src.data(), 9, dst.data(), 9, {9, 9}, qvpBorderReplicate, nullptr, prepared.get(),
                                      prepared.buffer()),
              qvpStatusContextMatch);
    EXPECT_EQ(qvpiFilterBorderSetMode(qvpAlgHintFast, 1, prepared.get()), qvpStatusContextMatch);
    for (const Qvp8u result : dst) ASSERT_EQ(result, 77);
  }
}

TEST(FilterBorder, ChecksOfTheCallInOrder) {
  const Prepared<Qvp16s> prepared(RandomFilter<Qvp16s>({3, 3}, 5), {9, 9}, qvp8u, 1);
  const test::Image<Qvp8u> src(90, 9, 0), dst(90, 9, 0), before(dst);
  const auto call = [&](int srcStep, int dstStep, QvpiSize roi, QvpiBorderType border) {
    return qvpiFilterBorder_8u_C4R(src.data(), srcStep, dst.data(), dstStep, roi, border, nullptr, prepared.get(),
                                   prepared.buffer());
  };
  EXPECT_EQ(call(0, 0, {0, 9}, qvpBorderConst), qvpStatusNullPointer);
  EXPECT_EQ(call(0, 0, {9, 0}, 0), qvpStatusSize);
  EXPECT_EQ(call(0, 90, {9, 9}, 0), qvpStatusStep);
  EXPECT_EQ(call(90, 8, {9, 9}, 0), qvpStatusStep);
  for (const int border : {0, 2, 4, 5, 7, 8, 15, 16, 0x70, 0x101, -1, 0xF2, 0xF4}) {
    EXPECT_EQ(call(90, 90, {9, 9}, border), qvpStatusBorder) << border;
  }
  EXPECT_EQ(std::memcmp(dst.bytes(), before.bytes(), 810), 0);
  EXPECT_EQ(call(90, 9, {9, 1}, qvpBorderReplicate), 0);  // a step of as many bytes as there are pixels
}

}  // namespace
