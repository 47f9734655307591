// The quality index against its formula.
#include <cmath>

#include "tests/support/name.h"
#include "tests/support/reference.h"

namespace {
using test::Argument;
using test::Export;
using test::Name;
using test::Real;
using test::Samples;

struct Index {
  Real value;
  bool isUndefined;
};

Index IndexOf(Real n, Real x, Real y, Real xx, Real yy, Real xy) {
  const double c = static_cast<double>(n * xy - x * y), v = static_cast<double>(n * xx - x * x + (n * yy - y * y));
  const double sx = static_cast<double>(x), sy = static_cast<double>(y), m = sx * sx + sy * sy;
  return {(v == 0 ? 1 : 2 * c / v) * (m == 0 ? 1 : 2 * (sx * sy) / m), v == 0 || m == 0};
}

// Sums of so few integers, and products of sums, are exact in long double.
Index Expected(const Samples& a, const Samples& b, int channels, int c) {
  Real n = 0, x = 0, y = 0, xx = 0, yy = 0, xy = 0;
  for (int row = 0; row < a.height(); ++row) {
    for (int i = c; i < a.width(); i += channels) {
      const Real u = a(i, row), v = b(i, row);
      n += 1, x += u, y += v, xx += u * u, yy += v * v, xy += u * v;
    }
  }
  return IndexOf(n, x, y, xx, yy, xy);
}

QvpStatus Call(const Export& function, const Samples& a, const Samples& b, QvpiSize roi, double* values) {
  return function({{"pSrc1", a}, {"pSrc2", b}, {"roiSize", roi}, {"pValue", {values}}});
}

// Images by turns of any pixels, of a few levels alike in both, of the ends of the type, and flat ones.
void FillPair(Samples& a, Samples& b, int turn) {
  test::Random random(turn);
  const test::Element& e = a.element();
  const Real low = e.isInteger ? e.lowest : -1000, high = e.isInteger ? e.highest : 3000;
  for (int y = 0; y < a.height(); ++y) {
    for (int x = 0; x < a.width(); ++x) {
      const Real any = std::floor(low + random.Next() * 0x1p-32L * (high - low)), level = 20 + random.Next() % 5;
      const Real ends[] = {low, high};
      a.Put(x, y, turn % 4 == 0 ? any : turn % 4 == 1 ? level : turn % 4 == 2 ? ends[random.Next() % 2] : 17);
      b.Put(x, y, turn % 4 == 0 ? any - any / 3 : turn % 4 == 1 ? level + random.Next() % 2 : ends[random.Next() % 2]);
    }
  }
}

void Check(const Export& function, QvpiSize size, int turn) {
  const Name name(function.name);
  const test::Guard guard = turn % 3 ? test::Guard::kAfter : test::Guard::kBefore;
  Samples a(name.From(), size.width * name.channels, size.height, 3, guard),
      b(name.From(), size.width * name.channels, size.height, 6, guard);
  FillPair(a, b, turn);
  double values[] = {-9, -9, -9, -9};
  const QvpStatus status = Call(function, a, b, size, values);
  bool isUndefined = false;
  for (int c = 0; c < name.written; ++c) {
    const Index expected = Expected(a, b, name.channels, c);
    isUndefined |= expected.isUndefined;
    const double tolerance = name.From().isInteger ? 0 : 1e-11;
    ASSERT_NEAR(values[c], static_cast<double>(expected.value), tolerance)
        << function.name << ' ' << size.width << 'x' << size.height << " channel " << c << " turn " << turn;
  }
  EXPECT_EQ(status, isUndefined ? qvpStatusQualityIndex : qvpStatusNoError) << function.name << " turn " << turn;
  if (name.written == 3) EXPECT_EQ(values[3], -9);
}

TEST(QualityIndex, EveryMemberEqualsItsFormula) {
  int turn = 0;
  for (const Export* function : test::FunctionsOf({"QualityIndex"})) {
    for (const int width : {1, 2, 3, 7, 15, 16, 17, 31, 40, 64, 65, 100, 130, 260}) {
      for (int i = 0; i < 4; ++i, ++turn) Check(*function, {width, 1 + turn * 5 % 9}, turn);
    }
  }
}

// Rows of an even period that begin two samples apart are the same row again and again.
template <class T, class Call>
void CheckMany(Call call, QvpiSize size, const T (&a)[2], const T (&b)[2], double tolerance) {
  std::vector<T> x(size.width + 2 * size.height), y(x.size());
  for (size_t i = 0; i < x.size(); ++i) x[i] = a[i % 2], y[i] = b[i % 2];
  double value = 0;
  ASSERT_EQ(call(x.data(), 2 * sizeof(T), y.data(), 2 * sizeof(T), size, &value), 0);
  const auto pair = [&](const T(&u)[2], const T(&v)[2]) {
    return (static_cast<Real>(u[0]) * v[0] + static_cast<Real>(u[1]) * v[1]) / 2;
  };
  const T ones[2] = {1, 1};
  // Means in place of sums: each denominator is N^2 times larger, like what is above it.
  EXPECT_NEAR(value,
              static_cast<double>(IndexOf(1, pair(a, ones), pair(b, ones), pair(a, a), pair(b, b), pair(a, b)).value),
              tolerance);
}

TEST(QualityIndex, SumsOfManyPixelsAreExact) {
  const QvpiSize many{1 << 16, 1 << 11};
  CheckMany<Qvp8u>(qvpiQualityIndex_8u_C1R, many, {255, 0}, {255, 254}, 4e-16);
  CheckMany<Qvp8u>(qvpiQualityIndex_8u_C1R, many, {255, 255}, {255, 254}, 4e-16);
  CheckMany<Qvp16u>(qvpiQualityIndex_16u_C1R, many, {65535, 0}, {65535, 65534}, 4e-16);
  CheckMany<Qvp16u>(qvpiQualityIndex_16u_C1R, many, {65535, 65534}, {0, 1}, 4e-16);
  CheckMany<Qvp16s>(qvpiQualityIndex_16s_C1R, many, {-32768, -32768}, {-32768, 32767}, 4e-16);
  CheckMany<Qvp8u>(qvpiQualityIndex_8u_C1R, {1 << 16, (1 << 16) + 9}, {255, 0}, {255, 254}, 1e-12);  // in blocks
}

// Samples are counted through all rows, so that the bits depend neither on steps nor on widths.
TEST(QualityIndex, FloatsHaveOneOrder) {
  std::vector<float> a(4800), b(4800);
  test::Random random(5);
  for (size_t i = 0; i < a.size(); ++i)
    a[i] = static_cast<float>(random.Next()) * 1e-6f, b[i] = a[i] + static_cast<float>(random.Next()) * 1e-7f;
  double whole, parts;
  EXPECT_EQ(qvpiQualityIndex_32f_C1R(a.data(), 4800 * 4, b.data(), 4800 * 4, {4800, 1}, &whole), 0);
  for (const int width : {1, 5, 100, 600}) {
    Samples x(test::ElementOf("32f"), width, 4800 / width, 7);
    x.Fill([&](int i, int row) { return a[row * width + i]; });
    EXPECT_EQ(qvpiQualityIndex_32f_C1R(x.As<float>(), x.step(), b.data(), width * 4, {width, 4800 / width}, &parts), 0);
    EXPECT_EQ(parts, whole) << width;
  }
  for (const float bad : {NAN, INFINITY}) {
    for (const int at : {0, 4799}) {
      auto spoilt = a;
      spoilt[at] = bad;
      EXPECT_EQ(qvpiQualityIndex_32f_C1R(spoilt.data(), 400, b.data(), 400, {100, 48}, &parts), 0);
      EXPECT_TRUE(std::isnan(parts));
    }
  }
  const std::vector<float> flat(4800, 1e7f), other(4800, 2e7f);
  double values[3];
  EXPECT_EQ(qvpiQualityIndex_32f_C3R(flat.data(), 480, other.data(), 480, {40, 40}, values), qvpStatusQualityIndex);
  for (const double value : values) EXPECT_EQ(value, 0.8);
}

TEST(QualityIndex, KnownValues) {
  const auto index = [](std::vector<Qvp16s> a, std::vector<Qvp16s> b) {
    Index found{};
    double value;
    found.isUndefined = qvpiQualityIndex_16s_C1R(a.data(), 99, b.data(), 99, {static_cast<int>(a.size()), 1}, &value) ==
                        qvpStatusQualityIndex;
    found.value = value;
    return found;
  };
  EXPECT_EQ(index({1, 2, 3, 4}, {2, 2, 4, 4}).value, Real{160.0 / 183});
  EXPECT_EQ(index({0, 255}, {255, 0}).value, -1);
  EXPECT_EQ(index({5, 9, -3}, {5, 9, -3}).value, 1);
  EXPECT_FALSE(index({5, 9, -3}, {5, 9, -3}).isUndefined);
  const std::pair<Index, double> undefined[] = {
      {index({10, 10}, {20, 20}), 0.8}, {index({0, 0}, {0, 0}), 1}, {index({-1, 1}, {-1, 1}), 1}};
  for (const auto& [found, value] : undefined) {
    EXPECT_EQ(found.value, value);
    EXPECT_TRUE(found.isUndefined);
  }
}

}  // namespace
