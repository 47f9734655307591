// The iterative least-squares filter against its iterations in double, whose systems conjugate gradients solve.
#include <cmath>

#include "tests/support/bordered.h"
#include "tests/support/same.h"

namespace {
using test::Export;
using test::Name;
using test::Prepared;
using test::Real;

struct Demand {
  float lambda = 1, power = 0.8f, eps = 1e-4f;
  int iterations = 4;
};

using Plane = std::vector<double>;

// A plane with its width; what is beyond its edges is reflected, so that no difference reaches over them.
class Solver {
 public:
  Solver(const Demand& demand, QvpiSize size) : demand_(demand), size_(size) {
    const double c = demand.power * std::pow(double{demand.eps}, demand.power / 2.0 - 1);
    beta_ = static_cast<float>(c * demand.lambda / 2);
  }

  Plane Filter(const Plane& f) const {
    Plane v(f.size());
    for (int i = 0; i < demand_.iterations; ++i) {
      Plane u = f;
      for (size_t k = 0; k < u.size(); ++k) u[k] += v[k];
      v = Solve(Balance([&](size_t a, size_t b) { return Pull(u[b] - u[a], v[b] - v[a]); }));
    }
    return v;
  }

 private:
  double Pull(double g, double dv) const {
    const double kappa = static_cast<double>(demand_.lambda) * demand_.power / 2;
    return beta_ * dv - kappa * g * std::pow(g * g + demand_.eps, demand_.power / 2.0 - 1);
  }

  // t(previous) - t for each pixel, where flow(a, b) tells t between neighbours.
  template <class Flow>
  Plane Balance(const Flow& flow) const {
    const size_t w = size_.width, n = w * size_.height;
    Plane r(n);
    for (size_t k = 0; k < n; ++k) {
      for (const auto& [next, isThere] : {std::pair{k + 1, k % w + 1 < w}, {k + w, k + w < n}}) {
        if (!isThere) continue;
        const double t = flow(k, next);
        r[k] -= t;
        r[next] += t;
      }
    }
    return r;
  }

  Plane Apply(const Plane& v) const {
    Plane sum = Balance([&](size_t a, size_t b) { return beta_ * (v[b] - v[a]); });
    for (size_t k = 0; k < v.size(); ++k) sum[k] += v[k];
    return sum;
  }

  Plane Solve(Plane r) const {
    const auto dot = [](const Plane& a, const Plane& b) {
      double sum = 0;
      for (size_t k = 0; k < a.size(); ++k) sum += a[k] * b[k];
      return sum;
    };
    Plane x(r.size()), p = r;
    double square = dot(r, r);
    for (const double enough = 1e-26 * square; square > enough;) {
      const Plane q = Apply(p);
      const double step = square / dot(p, q);
      for (size_t k = 0; k < r.size(); ++k) x[k] += step * p[k], r[k] -= step * q[k];
      const double next = dot(r, r);
      for (size_t k = 0; k < r.size(); ++k) p[k] = r[k] + next / square * p[k];
      square = next;
    }
    return x;
  }

  const Demand& demand_;
  QvpiSize size_;
  double beta_;
};

QvpiFilterLeastSquaresSpec* RecordIn(const Prepared& p) { return p.record<QvpiFilterLeastSquaresSpec>(); }

Prepared Prepare(const Demand& d, QvpiSize size, const Export& function) {
  const test::Preparation preparation(
      function, size, {{"lambda", d.lambda}, {"power", d.power}, {"eps", d.eps}, {"numIterations", d.iterations}});
  const auto [spec, buffer] = preparation.sizes();
  EXPECT_LE(spec, 256 * (size.width + size.height) + 16384);
  EXPECT_LE(buffer, 8LL * size.width * size.height + 256 * (size.width + size.height) + 65536);
  return Prepared(preparation);
}

void Apply(const Export& function, const test::Samples& src, const test::Samples& dst, const Prepared& prepared) {
  ASSERT_EQ(function({{"pSrc", src}, {"pDst", dst}, {"pSpec", {RecordIn(prepared)}}, {"pBuffer", {prepared.buffer()}}}),
            0);
}

double UnitOf(const test::Element& element) { return element.isInteger ? static_cast<double>(element.highest) : 1; }

void Check(const Export& function, const Demand& demand, QvpiSize size, double accuracy) {
  const Name name(function.name);
  const test::Element& element = name.From();
  const double unit = UnitOf(element);
  test::Samples src(element, size.width * name.channels, size.height, 8), dst(element, src.width(), size.height, 4);
  test::Random random(size.width + size.height);
  src.Fill([&](int x, int y) {
    const double edge = (x / name.channels + y) / 9 % 2 ? 0.7 : 0.1, noise = random.Next() % 1000 / 5000.0;
    return element.isInteger ? std::floor((edge + noise) * unit) : static_cast<float>(edge + noise);
  });
  const Prepared prepared = Prepare(demand, size, function);
  Apply(function, src, dst, prepared);
  for (int c = 0; c < name.channels; ++c) {
    Plane f(size_t{1} * size.width * size.height);
    for (size_t k = 0; k < f.size(); ++k) {
      f[k] = static_cast<double>(
                 src(static_cast<int>(k % size.width) * name.channels + c, static_cast<int>(k / size.width))) /
             unit;
    }
    const Plane v = Solver(demand, size).Filter(f);
    for (size_t k = 0; k < f.size(); ++k) {
      const int x = static_cast<int>(k % size.width) * name.channels + c, y = static_cast<int>(k / size.width);
      const double exact = std::clamp((f[k] + v[k]) * unit, 0.0, element.isInteger ? unit : 1e9);
      ASSERT_NEAR(static_cast<double>(dst(x, y)), exact, (element.isInteger ? 0.5 : 0) + accuracy * unit)
          << function.name << ' ' << test::Shown(size) << " power " << demand.power << " at " << x << ',' << y;
    }
  }
  Apply(function, src, src, prepared);
  ExpectSame(src, dst, function.name + " in place");
}

TEST(FilterLeastSquares, EveryMemberEqualsItsIterations) {
  constexpr QvpiSize kSizes[] = {{1, 1}, {1, 2},  {2, 1},  {1, 9},   {6, 1},  {2, 3},   {3, 2},   {5, 4},  {8, 8},
                                 {9, 7}, {16, 9}, {17, 8}, {31, 20}, {37, 3}, {50, 17}, {67, 11}, {130, 4}};
  for (const Export* function : test::FunctionsOf({"FilterLeastSquares"})) {
    for (const QvpiSize size : kSizes) Check(*function, {}, size, 1e-5);
  }
  const Export& function = test::FunctionNamed("qvpiFilterLeastSquares_32f_C1R");
  for (const Demand& d : {Demand{0, 0.8f, 1e-4f, 4},
                          {1, 2, 1, 1},
                          {0.1f, 0.2f, 1e-6f, 10},
                          {30, 1, 1e-3f, 3},
                          {1000, 2, 1e-20f, 2},
                          {1e-9f, 0.01f, 1e-8f, 5}}) {
    Check(function, d, {40, 30}, 1e-5);
  }
  Check(function, {16, 1, 1e-6f, 40}, {40, 30}, 1e-4);
}

TEST(FilterLeastSquares, KnownValues) {
  const auto filtered = [](const Demand& demand, std::vector<Real> row, bool isBytes, bool isColumn) {
    const Export& function =
        test::FunctionNamed(isBytes ? "qvpiFilterLeastSquares_8u_C1R" : "qvpiFilterLeastSquares_32f_C1R");
    const Name name(function.name);
    const int n = static_cast<int>(row.size());
    const QvpiSize size = isColumn ? QvpiSize{1, n} : QvpiSize{n, 1};
    test::Samples image(name.From(), size.width, size.height, 0);
    image.Fill([&](int x, int y) { return row[x + y]; });
    Apply(function, image, image, Prepare(demand, size, function));
    for (int i = 0; i < n; ++i) row[i] = isColumn ? image(0, i) : image(i, 0);
    return row;
  };
  const std::vector<Real> step{0, 0, 0, 1, 1, 1};
  for (const bool isColumn : {false, true}) {
    const auto expect = [&](const Demand& d, const std::vector<Real>& from, const std::vector<Real>& to) {
      const std::vector<Real> got = filtered(d, from, false, isColumn);
      for (size_t i = 0; i < to.size(); ++i) EXPECT_NEAR(static_cast<double>(got[i]), static_cast<double>(to[i]), 1e-6);
    };
    expect({}, step, {0.007463L, 0.007537L, 0.007687L, 0.992313L, 0.992463L, 0.992537L});
    expect({1, 0.8f, 1e-4f, 1}, step, {0.001905L, 0.001924L, 0.001962L});
    expect({1, 2, 1e-4f, 1}, {0, 0, 1, 0, 0}, {1 / 11.0L, 2 / 11.0L, 5 / 11.0L, 2 / 11.0L, 1 / 11.0L});
    EXPECT_EQ(filtered({0, 0.8f, 1e-4f, 4}, step, false, isColumn), step);
    EXPECT_EQ(filtered({}, {100, 104, 100, 200, 204, 200}, true, isColumn),
              (std::vector<Real>{104, 104, 104, 199, 199, 199}));
    EXPECT_EQ(filtered({}, std::vector<Real>(33, 0.3f), false, isColumn), std::vector<Real>(33, 0.3f));
  }
}

TEST(FilterLeastSquares, WhatIsNotFiniteSpoilsItsChannel) {
  const Export& function = test::FunctionNamed("qvpiFilterLeastSquares_32f_C3R");
  for (const float bad : {NAN, INFINITY}) {
    for (const float power : {0.5f, 2.0f}) {
      for (const QvpiSize size : {QvpiSize{21, 10}, {1, 1}}) {
        test::Samples image(test::ElementOf("32f"), 3 * size.width, size.height, 0);
        image.Fill([](int x, int y) { return x % 3 + y; });
        image.Put(1, 0, bad);
        Apply(function, image, image, Prepare({1, power, 1e-4f, 2}, size, function));
        for (int i = 0; i < 3 * size.width * size.height; ++i) {
          const Real got = image(i % (3 * size.width), i / (3 * size.width));
          EXPECT_EQ(std::isfinite(got), i % 3 != 1) << i;
          if (i % 3 == 1 && size.width > 1) {
            EXPECT_TRUE(std::isnan(got));
          }
        }
      }
    }
  }
}

TEST(FilterLeastSquares, HasBoundsOfParametersAndMemory) {
  int spec = 1, buffer = 1;
  for (const int width : {4099, 8209, 16411, 32771}) {  // primes above powers of two need the most
    ASSERT_EQ(qvpiFilterLeastSquaresGetSize({width, 1}, qvp8u, 1, &spec, &buffer), 0);
    EXPECT_LE(buffer, 264 * width + 256 + 65536);
    EXPECT_LE(spec, 256 * (width + 1) + 16384);
  }
  const test::Block block(8192);
  const auto init = [&](float lambda, float power, float eps, int iterations) {
    auto* const record = reinterpret_cast<QvpiFilterLeastSquaresSpec*>(block.data());
    return qvpiFilterLeastSquaresInit({4, 4}, lambda, power, eps, iterations, qvp8u, 1, record);
  };
  EXPECT_EQ(init(1, 2, 1e-20f, 100), 0);
  EXPECT_EQ(init(1, 2, 9e-21f, 100), qvpStatusEps);
  EXPECT_EQ(init(1, 1, 1, 101), qvpStatusBadArgument);
  EXPECT_EQ(init(1, 2.1f, 1, 1), qvpStatusBadArgument);
  EXPECT_EQ(init(1e8f, 1, 1, 1), qvpStatusBadArgument);
}

}  // namespace
