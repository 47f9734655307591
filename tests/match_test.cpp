// Template matching against its sums: every type, layout, shape, norm and method, on images that end at unreadable
// pages.
#include <cmath>
#include <limits>
#include <vector>

#include "gtest/gtest.h"
#include "tests/support/exports.h"
#include "tests/support/name.h"
#include "tests/support/operand.h"

namespace {
using test::Block;
using test::Element;
using test::Export;
using test::Name;
using test::Operand;
using test::Real;
using test::Samples;

// Centred sums of large templates need more than 64 bits; without such a type those are not tested.
#ifdef __SIZEOF_INT128__
using Exact = __int128;
#else
using Exact = long long;
#endif
constexpr bool kHasLong = sizeof(Exact) > 8;

enum class Content { kRandom, kExtremes, kFlat, kNearlyFlat };

Real ValueOf(Content content, const Element& element, test::Random& random) {
  if (content == Content::kFlat) return element.isInteger ? element.highest : 0.3f;
  if (content == Content::kNearlyFlat) return element.highest - (random.Next() % 64 == 0);
  if (content == Content::kExtremes) {
    const bool isLow = random.Next() % 2 != 0;
    return element.isInteger ? (isLow ? element.lowest : element.highest) : isLow ? 1000.25f : 1003.5f;
  }
  return test::AnyPixel(element, random);
}

struct Request {
  const Operand &src, &tpl;
  QvpiMatchShape shape;
  QvpiMatchNorm norm;
  QvpiMethod method;

  int n() const { return tpl.size.width * tpl.size.height; }
  int sign() const { return shape == qvpMatchFull ? 1 : -1; }
  QvpiSize size() const {
    if (shape == qvpMatchSame) return src.size;
    return {src.size.width + sign() * (tpl.size.width - 1), src.size.height + sign() * (tpl.size.height - 1)};
  }
  int Offset(int side) const { return shape == qvpMatchFull ? side - 1 : shape == qvpMatchSame ? (side - 1) / 2 : 0; }
};

// A window's score: numerator / denominator, and an error that the numerator may have.
struct Score {
  double numerator, denominator, error = 0;

  double value(bool isDistance) const {
    if (denominator != 0 || std::isnan(denominator)) return numerator / denominator;
    return numerator == 0 || !isDistance ? 0 : std::numeric_limits<double>::infinity();
  }
};

// Of what channels one result is made.
struct Group {
  int first, count;
};

Score Scored(QvpiMatchNorm norm, int n, double numerator, double a, double b) {
  return {numerator, (norm & qvpMatchNormed) != 0 ? std::sqrt(a * b) : (norm & qvpMatchCentred) != 0 ? double(n) : 1.0};
}

Score ExactScore(const Request& request, bool isDistance, Group group, int left, int top) {
  const auto& [src, tpl, shape, norm, method] = request;
  Exact p = 0, a = 0, b = 0, st = 0, ss = 0, tt = 0;
  for (int c = group.first; c < group.first + group.count; ++c) {
    int64_t sum = 0, ofTemplate = 0;
    for (int j = 0; j < tpl.size.height; ++j) {
      for (int i = 0; i < tpl.size.width; ++i) {
        const auto s = static_cast<int64_t>(src.At(left + i, top + j, c)), t = static_cast<int64_t>(tpl.At(i, j, c));
        p += s * t, a += s * s, b += t * t;
        sum += s, ofTemplate += t;
      }
    }
    st += Exact(sum) * ofTemplate, ss += Exact(sum) * sum, tt += Exact(ofTemplate) * ofTemplate;
  }
  const int n = request.n();
  if ((norm & qvpMatchCentred) != 0) p = n * p - st, a = n * a - ss, b = n * b - tt;
  const Exact numerator = isDistance ? a - 2 * p + b : p;
  return Scored(norm, n, double(numerator), double(a), double(b));
}

// The sum of numbers by doubling.
double Doubled(const std::vector<double>& numbers) {
  std::vector<double> sums = numbers;
  int digit = 31 - __builtin_clz(static_cast<unsigned>(numbers.size()));
  for (size_t k = 1; digit-- > 0;) {
    const size_t next = 2 * k + (numbers.size() >> digit & 1);
    for (size_t i = 0; i + next <= numbers.size(); ++i) {
      sums[i] += sums[i + k];
      if (next % 2 != 0) sums[i] += numbers[i + 2 * k];
    }
    k = next;
  }
  return sums[0];
}
template <class At>
double DoubledOver(QvpiSize size, const At& at) {
  std::vector<double> rows;
  for (int j = 0; j < size.height; ++j) {
    std::vector<double> row;
    for (int i = 0; i < size.width; ++i) row.push_back(at(i, j));
    rows.push_back(Doubled(row));
  }
  return Doubled(rows);
}

// What of the definition for floats is the same for all windows.
struct RealTemplate {
  Group group;
  double less[4] = {}, samples[4] = {}, squares = 0, most = 0;

  RealTemplate(const Request& request, Group of) : group(of) {
    const Operand& tpl = request.tpl;
    for (int c = group.first; c < group.first + group.count; ++c) {
      const auto sum = [&](double offset) {
        return DoubledOver(tpl.size, [&](int i, int j) { return tpl.At(i, j, c) - offset; });
      };
      if ((request.norm & qvpMatchCentred) != 0) less[c] = static_cast<float>(sum(0) / request.n());
      samples[c] = sum(less[c]);
    }
    squares = SquaresOf(tpl, 0, 0, tpl.size);
    for (int j = 0; j < tpl.size.height; ++j) {
      for (int i = 0; i < tpl.size.width * group.count; ++i) {
        const int c = group.first + i % group.count;
        most = std::max(most, std::fabs(tpl.At(i / group.count, j, c) - less[c]));
      }
    }
  }

  double SquaresOf(const Operand& image, int x, int y, QvpiSize size) const {
    return DoubledOver(size, [&](int i, int j) {
      double sum = 0;
      for (int c = group.first; c < group.first + group.count; ++c) {
        const double s = image.At(x + i, y + j, c) - less[c];
        sum += s * s;
      }
      return sum;
    });
  }
};

Score RealScore(const Request& request, const RealTemplate& t, bool isDistance, int left, int top) {
  const auto& [src, tpl, shape, norm, method] = request;
  const int n = request.n(), end = t.group.first + t.group.count;
  const bool isCentred = (norm & qvpMatchCentred) != 0, isNormed = (norm & qvpMatchNormed) != 0;
  double p = 0, distance = 0, most = 0, ss[4] = {};
  for (int j = 0; j < tpl.size.height; ++j) {
    for (int i = 0; i < tpl.size.width; ++i) {
      for (int c = t.group.first; c < end; ++c) {
        const double s = src.At(left + i, top + j, c) - t.less[c], u = tpl.At(i, j, c) - t.less[c];
        p += s * u, distance += (s - u) * (s - u), most = std::max(most, std::fabs(s));
      }
    }
  }
  double a = t.SquaresOf(src, left, top, tpl.size), b = t.squares, error = 1e-12 * n * t.group.count * most * t.most;
  const bool isDirect = method == qvpMethodDirect;
  if (isCentred) {
    double st = 0, s2 = 0, t2 = 0;
    for (int c = t.group.first; c < end; ++c) {
      ss[c] = DoubledOver(tpl.size, [&](int i, int j) { return request.src.At(left + i, top + j, c) - t.less[c]; });
      st += ss[c] * t.samples[c], s2 += ss[c] * ss[c], t2 += t.samples[c] * t.samples[c];
    }
    const double all = n * a, ofTemplate = n * b;
    p = n * p - st, a = all - s2, b = ofTemplate - t2, error *= n;
    const bool isFlat = a <= 0x1p-40 * all, isTemplateFlat = b <= 0x1p-40 * ofTemplate;
    if (isNormed && isFlat) a = 0;
    if (isNormed && isTemplateFlat) b = 0;
    if (isNormed && (isFlat || isTemplateFlat)) p = error = 0;
  }
  const double numerator = !isDistance ? p : isCentred || !isDirect ? std::max((a - 2 * p) + b, 0.0) : distance;
  Score score = Scored(norm, n, numerator, a, b);
  if (!isDirect) score.error = isDistance ? 2 * error : error;
  return score;
}

int BufferSize(const Request& request) {
  const auto& [src, tpl, shape, norm, method] = request;
  int bytes = -1;
  EXPECT_EQ(
      qvpiMatchGetBufferSize(src.pixels.element().code, src.channels, src.size, tpl.size, shape, norm, method, &bytes),
      0);
  EXPECT_LE(bytes, (96 << 20) + 64 * (src.size.width + tpl.size.width + tpl.size.height) * src.channels);
  return bytes;
}

Samples Call(const Export& function, const Request& request) {
  const Name name(function.name);
  const auto& [src, tpl, shape, norm, method] = request;
  const bool isJoint = name.layout.ends_with("C1");
  const QvpiSize size = request.size();
  Samples dst(test::ElementOf("32f"), size.width * (isJoint ? 1 : src.channels), size.height, 8);
  dst.Fill([](int, int) { return 77; });
  const Block buffer(BufferSize(request));
  EXPECT_EQ(function({{"pSrc", src.pixels},
                      {"srcRoiSize", src.size},
                      {"pTpl", tpl.pixels},
                      {"tplRoiSize", tpl.size},
                      {"pDst", dst},
                      {"shape", shape},
                      {"norm", norm},
                      {"method", method},
                      {"pBuffer", {buffer.data()}}}),
            0)
      << function.name;
  return dst;
}

bool IsDistance(const Export& function) { return function.name.find("Distance") != std::string::npos; }

// Calls check(result, group, left, top) with each result and where its window begins.
template <class Check>
void ForEachResult(const Export& function, const Request& request, const Check& check) {
  const Name name(function.name);
  const QvpiSize size = request.size();
  if (size.width < 1 || size.height < 1) return;
  const Samples dst = Call(function, request);
  const int processed = name.layout.starts_with("AC4") ? 3 : request.src.channels;
  const bool isJoint = name.layout.ends_with("C1");
  const int step = isJoint ? 1 : request.src.channels;
  for (int y = 0; y < size.height; ++y) {
    for (int x = 0; x < size.width; ++x) {
      for (int c = 0; c < step; ++c) {
        const auto result = static_cast<float>(dst(x * step + c, y));
        if (c >= processed) {
          ASSERT_EQ(result, 77);
          continue;
        }
        check(result, isJoint ? Group{0, processed} : Group{c, 1}, x - request.Offset(request.tpl.size.width),
              y - request.Offset(request.tpl.size.height));
      }
    }
  }
}

std::string Told(const Export& function, const Request& request) {
  const auto& [src, tpl, shape, norm, method] = request;
  return function.name + " shape " + std::to_string(shape) + " norm " + std::to_string(norm) + " method " +
         std::to_string(method) + ", " + std::to_string(src.size.width) + 'x' + std::to_string(src.size.height) +
         " by " + std::to_string(tpl.size.width) + 'x' + std::to_string(tpl.size.height);
}

void ExpectDefinition(const Export& function, const Request& request) {
  const bool isDistance = IsDistance(function);
  SCOPED_TRACE(Told(function, request));
  const bool isInteger = request.src.pixels.element().isInteger;
  std::vector<RealTemplate> templates;
  ForEachResult(function, request, [&](float result, Group group, int left, int top) {
    if (isInteger) {
      const double score = ExactScore(request, isDistance, group, left, top).value(isDistance);
      ASSERT_EQ(result, static_cast<float>(score)) << left << ' ' << top << " of " << group.first;
      return;
    }
    for (int c = int(templates.size()); c <= group.first; ++c) templates.emplace_back(request, Group{c, group.count});
    const Score score = RealScore(request, templates[group.first], isDistance, left, top);
    const double value = score.value(isDistance);
    const double wanted = isDistance || score.denominator == 1 || (request.norm & qvpMatchNormed) == 0
                              ? value
                              : std::clamp(value, -1.0, 1.0);
    if (request.method == qvpMethodDirect || std::isinf(wanted) || score.denominator == 0) {
      ASSERT_EQ(result, static_cast<float>(wanted)) << left << ' ' << top << " of " << group.first;
    } else {
      ASSERT_NEAR(result, wanted, score.error / score.denominator + std::fabs(wanted) * 0x1p-23) << left << ' ' << top;
    }
  });
}

std::vector<const Export*> Matches() { return test::FunctionsOf({"MatchDistance", "MatchCorrelation"}); }
struct Pair {
  QvpiSize src, tpl;
};
constexpr Pair kPairs[] = {{{1, 1}, {1, 1}},    {{7, 5}, {3, 3}},  {{40, 9}, {5, 4}},  {{21, 12}, {2, 7}},
                           {{30, 22}, {13, 9}}, {{5, 20}, {8, 3}}, {{3, 3}, {11, 14}}, {{19, 2}, {19, 1}}};

TEST(Match, FollowsItsDefinition) {
  int turn = 0;
  for (const Export* function : Matches()) {
    const Name name(function->name);
    for (const Pair& pair : kPairs) {
      ++turn;
      Operand src(name.From(), pair.src, name.channels, 4), tpl(name.From(), pair.tpl, name.channels, 8);
      src.Fill(static_cast<Content>(turn % 3), turn), tpl.Fill(static_cast<Content>(turn % 7 / 3), turn + 1000);
      for (int choice = 0; choice < 24; ++choice) {
        const QvpiMethod method = choice % 2 ? qvpMethodDirect : qvpMethodFourier;
        ExpectDefinition(*function, {src, tpl, choice / 2 % 3, choice / 6, method});
        if (HasFatalFailure()) return;
      }
    }
  }
}

// Sums that leave 32 bits, numbers that leave doubles and 64 bits, and templates that transforms take in pieces. Of
// windows that are nearly flat hardly a digit is left; a flat channel adds nothing to those of others.
void ExpectExact(const char* name, const Pair& pair, std::initializer_list<QvpiMethod> methods) {
  const Name parts(name);
  if (!kHasLong && pair.tpl.width * pair.tpl.height > 4000) return;
  Operand src(parts.From(), pair.src, parts.channels, 2), tpl(parts.From(), pair.tpl, parts.channels, 6);
  for (const Content content : {Content::kExtremes, Content::kNearlyFlat}) {
    src.Fill(content, 1), tpl.Fill(content, 2);
    if (parts.channels == 3) src.Flatten(1), tpl.Flatten(1);
    for (const QvpiMatchNorm norm : {qvpMatchPlain, qvpMatchNormed, qvpMatchCentred, qvpMatchCoefficient}) {
      for (const QvpiMethod method : methods) {
        ExpectDefinition(test::FunctionNamed(name), {src, tpl, qvpMatchValid, norm, method});
      }
    }
  }
}

TEST(Match, LargeTemplatesAreExact) {
  constexpr Pair kLarge[] = {
      {{190, 181}, {187, 179}}, {{530, 70}, {525, 68}}, {{3, 700}, {2, 690}}, {{66, 45}, {61, 43}}};
  for (const auto name : {"qvpiMatchCorrelation_8u32f_C1R", "qvpiMatchDistance_16u32f_C1R",
                          "qvpiMatchCorrelation_16s32f_C1R", "qvpiMatchCorrelation_16u32f_C3C1R"}) {
    for (const Pair& pair : kLarge) ExpectExact(name, pair, {qvpMethodDirect, qvpMethodFourier});
  }
  ExpectExact("qvpiMatchDistance_16u32f_C1R", {{1101, 1100}, {1100, 1100}}, {qvpMethodDirect});
}

// Results of parts of an image are those of the whole: neither tiles nor blocks of columns show.
TEST(Match, TilesMeet) {
  constexpr QvpiSize kSize{1300, 150}, kTpl{6, 5};
  for (const char* type : {"8u", "16u", "32f"}) {
    const Element& element = test::ElementOf(type);
    const std::string types = type == std::string("32f") ? "32f" : type + std::string("32f");
    Operand src(element, kSize, 1, 4), tpl(element, kTpl, 1, 4);
    src.Fill(Content::kRandom, 1), tpl.Fill(Content::kRandom, 2);
    for (const char* operation : {"Distance", "Correlation"}) {
      const Export& function = test::FunctionNamed("qvpiMatch" + std::string(operation) + '_' + types + "_C1R");
      for (const QvpiMethod method : {qvpMethodDirect, qvpMethodFourier}) {
        ExpectDefinition(function, {src, tpl, qvpMatchSame, qvpMatchCoefficient, method});
      }
    }
  }
}

// One that is not finite spoils the results whose windows hold it, and no others.
TEST(Match, OthersThanNumbersStayInTheirWindows) {
  constexpr QvpiSize kSize{60, 50}, kTpl{12, 11};
  const Element& element = test::ElementOf("32f");
  Operand src(element, kSize, 1, 4), tpl(element, kTpl, 1, 4);
  src.Fill(Content::kRandom, 1), tpl.Fill(Content::kRandom, 2);
  for (const float special : {std::numeric_limits<float>::quiet_NaN(), std::numeric_limits<float>::infinity()}) {
    src.pixels.Put(30, 20, special);
    for (int choice = 0; choice < 16; ++choice) {
      const auto name = choice % 2 ? "qvpiMatchDistance_32f_C1R" : "qvpiMatchCorrelation_32f_C1R";
      const Request request{src, tpl, qvpMatchSame, choice / 4, choice / 2 % 2 ? qvpMethodDirect : qvpMethodFourier};
      ForEachResult(test::FunctionNamed(name), request, [&](float result, Group, int left, int top) {
        const bool isIn = left <= 30 && left + kTpl.width > 30 && top <= 20 && top + kTpl.height > 20;
        ASSERT_EQ(std::isfinite(result), !isIn)
            << Told(test::FunctionNamed(name), request) << ": " << left << ' ' << top;
      });
    }
  }
}

TEST(Match, KnownValues) {
  const Qvp8u src[] = {1, 2, 3, 4, 5, 6, 7, 8, 9}, tpl[] = {1, 0, 0, 2};
  const auto map = [&](auto function, QvpiMatchShape shape, QvpiMatchNorm norm) {
    int bytes = 0;
    EXPECT_EQ(qvpiMatchGetBufferSize(qvp8u, 1, {3, 3}, {2, 2}, shape, norm, qvpMethodAuto, &bytes), 0);
    const Block buffer(bytes);
    const int side = 2 + shape;
    std::vector<float> dst(side * side);
    EXPECT_EQ(function(src, 3, {3, 3}, tpl, 2, {2, 2}, dst.data(), side * 4, shape, norm, 0, buffer.data()), 0);
    return dst;
  };
  using Map = std::vector<float>;
  const auto correlation = qvpiMatchCorrelation_8u32f_C1R;
  EXPECT_EQ(map(correlation, qvpMatchValid, qvpMatchPlain), (Map{11, 14, 20, 23}));
  EXPECT_EQ(map(correlation, qvpMatchSame, qvpMatchPlain), (Map{11, 14, 3, 20, 23, 6, 7, 8, 9}));
  EXPECT_EQ(map(correlation, qvpMatchFull, qvpMatchPlain), (Map{2, 4, 6, 0, 8, 11, 14, 3, 14, 20, 23, 6, 0, 7, 8, 9}));
  EXPECT_EQ(map(correlation, qvpMatchValid, qvpMatchCentred), (Map{2, 2, 2, 2}));
  EXPECT_EQ(map(correlation, qvpMatchValid, qvpMatchCoefficient), Map(4, 0.38138503f));
  EXPECT_EQ(map(qvpiMatchDistance_8u32f_C1R, qvpMatchValid, qvpMatchPlain), (Map{29, 51, 119, 165}));
}

TEST(Match, RefusesSizesThatDoNotFit) {
  const QvpiSize one{1, 1}, tall{1, 2};
  int bytes = 7;
  const auto size = [&](QvpiSize src, QvpiSize tpl, QvpiMatchShape shape) {
    return qvpiMatchGetBufferSize(qvp32f, 1, src, tpl, shape, 0, 1, &bytes);
  };
  EXPECT_EQ(size(one, tall, 0), qvpStatusSize);
  EXPECT_EQ(size(one, {65536, 32768}, 1), qvpStatusSize);
  EXPECT_EQ(size({INT_MAX, 1}, {2, 1}, 2), qvpStatusSize);
  EXPECT_EQ(bytes, 7);
  EXPECT_EQ(size({INT_MAX, 1}, one, 0), qvpStatusNoError);
  EXPECT_EQ(size({1, INT_MAX}, {1, INT_MAX}, 0), qvpStatusSizeOverflow);
  EXPECT_EQ(bytes, 0);
  const Qvp8u pixel = 7;
  Qvp8u buffer[1];
  Qvp32f result;
  EXPECT_EQ(qvpiMatchDistance_8u32f_C1R(&pixel, 1, one, &pixel, 1, tall, &result, 4, 0, 0, 0, buffer), qvpStatusSize);
}

}  // namespace
