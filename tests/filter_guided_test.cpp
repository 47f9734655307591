// Guided filters against their formulas, operation by operation.
#include <cmath>

#include "tests/support/bordered.h"

namespace {
using test::Bordered;
using test::Export;
using test::Name;
using test::Real;

bool IsColor(const Export& function) { return function.name.find("Color") != std::string::npos; }

template <class F>
struct Grid {
  int width, height;
  std::vector<F> values;

  Grid(int w, int h) : width(w), height(h), values(size_t{1} * w * h) {}
  F& operator()(int x, int y) { return values[size_t{1} * y * width + x]; }
  F operator()(int x, int y) const { return values[size_t{1} * y * width + x]; }
};

template <class F, class Value>
Grid<F> Made(int width, int height, const Value& value) {
  Grid<F> grid(width, height);
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) grid(x, y) = value(x, y);
  }
  return grid;
}

// Sums of n successive values along one axis: P1 = p, P2m(x) = Pm(x) + Pm(x + m), and of the bits of n, from the
// smallest on, the sum of a part and of what is behind it.
template <class F>
Grid<F> SumsAlong(const Grid<F>& grid, int n, int dx, int dy) {
  Grid<F> powers = grid, sums(grid.width - (n - 1) * dx, grid.height - (n - 1) * dy);
  bool isFirst = true;
  for (int m = 1, offset = n; m <= n; m *= 2) {
    if (n & m) {
      offset -= m;
      sums = Made<F>(sums.width, sums.height, [&](int x, int y) {
        const F part = powers(x + offset * dx, y + offset * dy);
        return isFirst ? part : part + sums(x, y);
      });
      isFirst = false;
    }
    if (2 * m > n) break;
    powers = Made<F>(powers.width - m * dx, powers.height - m * dy,
                     [&](int x, int y) { return powers(x, y) + powers(x + m * dx, y + m * dy); });
  }
  return sums;
}
template <class F>
Grid<F> Sums(const Grid<F>& grid, QvpiSize mask) {
  return SumsAlong(SumsAlong(grid, mask.width, 1, 0), mask.height, 0, 1);
}

// Exact for integers, but for one rounding.
double Difference(double n, uint64_t s, uint64_t u, uint64_t v) {
  return static_cast<double>(static_cast<int64_t>(static_cast<uint64_t>(n) * s - u * v));
}
double Difference(double n, double s, double u, double v) { return n * s - u * v; }

double Over(double dividend, double divisor) { return divisor > 0 ? dividend / divisor : 0; }

// One channel of results by planes of the guide and the source. S holds sums of pixels, F coefficients and theirs.
template <class S, class F>
class Definition {
 public:
  using Pixel = std::function<Real(int x, int y)>;

  Definition(QvpiSize roi, QvpiSize mask, double eps, double unit, std::vector<Pixel> guides, const Pixel& source)
      : roi_(roi), mask_(mask), n_(double(mask.width) * mask.height), e_(eps * ((unit * n_) * (unit * n_))) {
    guides_ = static_cast<int>(guides.size());
    guides.push_back(source);
    for (const Pixel& pixel : guides) {
      planes_.push_back(
          Made<S>(roi.width + 2 * (mask.width - 1), roi.height + 2 * (mask.height - 1),
                  [&](int x, int y) { return static_cast<S>(pixel(x - (mask.width - 1), y - (mask.height - 1))); }));
      sums_.push_back(Sums(planes_.back(), mask));
    }
    for (int i = 0; i < guides_; ++i) {
      for (int j = i; j <= guides_; ++j) products_[i].push_back(Sums(Product(i, j), mask));
    }
    for (int k = 0; k <= guides_; ++k) coefficients_.emplace_back(sums_[0].width, sums_[0].height);
    for (int y = 0; y < sums_[0].height; ++y) {
      for (int x = 0; x < sums_[0].width; ++x) Solve(x, y);
    }
    for (Grid<F>& grid : coefficients_) grid = Sums(grid, mask);
  }

  Real At(int x, int y) const {
    const auto guide = [&](int k) { return static_cast<F>(planes_[k](x + mask_.width - 1, y + mask_.height - 1)); };
    F total = coefficients_[0](x, y) * guide(0);
    for (int k = 1; k < guides_; ++k) total += coefficients_[k](x, y) * guide(k);
    return (total + coefficients_[guides_](x, y)) / static_cast<F>(n_);
  }

 private:
  Grid<S> Product(int i, int j) const {
    return Made<S>(planes_[0].width, planes_[0].height,
                   [&](int x, int y) { return planes_[i](x, y) * planes_[j](x, y); });
  }
  double Moment(int i, int j, int x, int y) const {
    const double m = Difference(n_, products_[i][j - i](x, y), sums_[i](x, y), sums_[j](x, y));
    return i == j ? m + e_ : m;
  }
  void Solve(int x, int y) {
    const auto m = [&](int i, int j) { return Moment(i - 1, j - 1, x, y); };
    double a[3];
    if (guides_ == 1) {
      a[0] = Over(m(1, 2), m(1, 1));
    } else {
      const double d1 = m(1, 1), l21 = Over(m(1, 2), d1), l31 = Over(m(1, 3), d1), d2 = m(2, 2) - l21 * m(1, 2),
                   t = m(2, 3) - l31 * m(1, 2), l32 = Over(t, d2), d3 = (m(3, 3) - l31 * m(1, 3)) - l32 * t,
                   z2 = m(2, 4) - l21 * m(1, 4), z3 = (m(3, 4) - l31 * m(1, 4)) - l32 * z2;
      a[2] = Over(z3, d3);
      a[1] = Over(z2, d2) - l32 * a[2];
      a[0] = (Over(m(1, 4), d1) - l21 * a[1]) - l31 * a[2];
    }
    double rest = static_cast<double>(sums_[guides_](x, y));
    for (int k = 0; k < guides_; ++k) {
      coefficients_[k](x, y) = static_cast<F>(a[k]);
      rest -= coefficients_[k](x, y) * static_cast<double>(sums_[k](x, y));
    }
    coefficients_[guides_](x, y) = static_cast<F>(rest / n_);
  }

  QvpiSize roi_, mask_;
  double n_, e_;
  int guides_;
  std::vector<Grid<S>> planes_, sums_, products_[3];
  std::vector<Grid<F>> coefficients_;
};

// What is filtered; a guide that is null is the source.
struct Scenes {
  Bordered source;
  std::unique_ptr<Bordered> guide;

  Scenes(const Export& function, QvpiSize mask, test::Region region, bool hasGuide)
      : source(Name(function.name).From(), Reach(mask), region) {
    if (IsColor(function)) region.channels = 3;
    if (hasGuide || IsColor(function)) guide = std::make_unique<Bordered>(source.element(), Reach(mask), region);
  }
  const Bordered& Guide() const { return guide ? *guide : source; }
  void Fill(const auto& value) {
    source.image.Fill(value);
    if (guide) guide->image.Fill([&](int x, int y) { return value(x + 1, y + 1); });
  }

 private:
  static test::Reach Reach(QvpiSize mask) { return {mask.width - 1, mask.height - 1, mask.width - 1, mask.height - 1}; }
};

auto FilterAll(const Export& function, const Scenes& scenes, QvpiSize mask, float eps) {
  const Bordered& guide = scenes.Guide();
  return test::FilterAll(function, scenes.source, mask, test::kAmple,
                         {{"pGuide", {guide.At(0, 0), guide.image.step()}}, {"maskSize", mask}, {"eps", eps}});
}

template <class S, class F>
void CheckAs(const Export& function, const Scenes& scenes, QvpiSize mask, float eps) {
  const Name name(function.name);
  const double unit = !name.From().isInteger ? 1 : name.From().bytes == 1 ? 255 : 65535;
  std::vector<Definition<S, F>> channels;
  for (int c = 0; c < name.written; ++c) {
    const auto pixels = [](const Bordered& scene, int channel) {
      return [&scene, channel](int x, int y) { return scene.Pixel(x, y, channel); };
    };
    std::vector<typename Definition<S, F>::Pixel> guides;
    for (int k = 0; k < (IsColor(function) ? 3 : 1); ++k) guides.push_back(pixels(scenes.Guide(), c + k));
    channels.emplace_back(scenes.source.region.size, mask, eps, unit, guides, pixels(scenes.source, c));
  }
  test::ExpectResults(
      function, scenes.source, FilterAll(function, scenes, mask, eps),
      [&](int x, int y, int c) { return test::Converted(name.To(), channels[c].At(x, y)); },
      test::Shown(mask) + " eps " + std::to_string(eps) + (scenes.guide ? " with a guide" : " by itself"));
}
void Check(const Export& function, const Scenes& scenes, QvpiSize mask, float eps) {
  const test::Element& type = scenes.source.element();
  !type.isInteger   ? CheckAs<double, double>(function, scenes, mask, eps)
  : type.bytes == 1 ? CheckAs<uint64_t, float>(function, scenes, mask, eps)
                    : CheckAs<uint64_t, double>(function, scenes, mask, eps);
}

TEST(FilterGuided, EveryMemberEqualsItsFormula) {
  constexpr QvpiSize kMasks[] = {{1, 1}, {3, 3}, {5, 5}, {9, 9}, {1, 7}, {9, 1}, {7, 3}, {15, 3}, {1, 31}};
  constexpr float kEps[] = {0.01f, 0, 1, 1e-5f};
  int turn = 0;
  for (const Export* function : test::FunctionsOf({"FilterGuidedBorder", "FilterGuidedColorBorder"})) {
    const Name name(function->name);
    for (const QvpiSize mask : kMasks) {
      for (int i = 0; i < 4; ++i, ++turn) {
        test::Region r = test::RegionOf(turn, name.channels, 2);
        if (mask.width * mask.height > 20) r.size.width = std::min(r.size.width, 70);
        Scenes scenes(*function, mask, r, i % 2 == 0);
        if (!name.From().isInteger) {
          test::Random random(turn);
          scenes.Fill([&](int, int) {
            return random.Next() % 97 == 0 && i == 2 ? EdgeValue(name.From(), random)
                                                     : static_cast<float>(random.Next() % 1000 / 999.0);
          });
        }
        Check(*function, scenes, mask, kEps[(turn + turn / 4) % 4]);
      }
    }
  }
}

// Sums and products at the ends of the types, and differences that are small beside them.
TEST(FilterGuided, LargeMasks) {
  for (const Export* function : test::FunctionsOf({"FilterGuidedBorder", "FilterGuidedColorBorder"})) {
    const Name name(function->name);
    if (name.channels > 1) continue;
    const int high = name.From().bytes == 1 ? 255 : name.From().bytes == 2 ? 65535 : 1;
    for (int pattern = 0; pattern < 4; ++pattern) {
      const bool isLargest = pattern == 2 && (!IsColor(*function) || name.From().bytes == 2);
      const QvpiSize mask = isLargest ? QvpiSize{255, 255} : QvpiSize{33, 129};
      Scenes scenes(*function, mask, {{20, 20}, 1, pattern == 2 ? qvpBorderMirror : qvpBorderReplicate}, pattern != 3);
      scenes.Fill([&](int x, int y) {
        return pattern == 0   ? Real(high)
               : pattern == 1 ? Real(x < 10 ? 0 : high)
               : pattern == 2 ? Real((x + y) % 2 ? high : 0)
                              : Real(high - (x * 7 + y * y) % 3);
      });
      constexpr float kEps[] = {0, 0.001f, 0, 1e-9f};
      Check(*function, scenes, mask, kEps[pattern]);
    }
  }
}

// Over a guide that is nearly flat the differences are all that counts.
TEST(FilterGuided, NearlyFlatGuides) {
  for (const char* const name : {"qvpiFilterGuidedBorder_16u_C1R", "qvpiFilterGuidedColorBorder_16u_C1R"}) {
    const Export& function = test::FunctionNamed(name);
    Scenes scenes(function, {9, 9}, {{70, 9}, 1, qvpBorderReplicate}, true);
    test::Random random(1);
    scenes.guide->image.Fill([&](int, int) { return 60000 + random.Next() % 3; });
    Check(function, scenes, {9, 9}, 0);
  }
}

TEST(FilterGuided, KnownValues) {
  const auto filtered = [](float eps) {
    const Export& function = test::FunctionNamed("qvpiFilterGuidedBorder_8u_C1R");
    Scenes scenes(function, {3, 1}, {{9, 1}, 1, qvpBorderReplicate}, false);
    scenes.Fill([](int x, int) { return x < 4 ? 0 : 100; });
    const test::Samples dst(test::ElementOf("8u"), 9, 1, 0);
    EXPECT_EQ(FilterAll(function, scenes, {3, 1}, eps)(dst), 0);
    std::vector<int> values;
    for (int x = 0; x < 9; ++x) values.push_back(static_cast<int>(dst(x, 0)));
    return values;
  };
  const std::vector<int> source{0, 0, 0, 0, 100, 100, 100, 100, 100};
  EXPECT_EQ(filtered(0), source);
  EXPECT_EQ(filtered(0.0001f), source);
  EXPECT_EQ(filtered(0.01f), (std::vector<int>{0, 0, 3, 8, 92, 97, 100, 100, 100}));
  EXPECT_EQ(filtered(1), (std::vector<int>{0, 0, 11, 32, 68, 89, 100, 100, 100}));
}

}  // namespace
