// Wavelet transforms of images against their definition.
#include <cmath>
#include <vector>

#include "gtest/gtest.h"
#include "tests/support/bordered.h"

namespace {
using test::Export;
using test::Name;
using test::Samples;

using Line = std::vector<float>;

QvpiWaveletBank BankOf(QvpiWaveletKind kind) {
  QvpiWaveletBank bank;
  EXPECT_EQ(qvpiWaveletGetBank_32f(kind, &bank), 0);
  return bank;
}

// ---- The definition

// Numbers of a line at any place.
class Endless {
 public:
  Endless(const Line& line, QvpiBorderType border)
      : line_(line), kind_(border == qvpBorderWrap ? test::kWrap : border) {}
  float operator[](int i) const { return line_[test::BorderPosition(kind_, i, 0, static_cast<int>(line_.size()) - 1)]; }

 private:
  const Line& line_;
  int kind_;
};

// A sum that its first product begins.
struct Sum {
  float value = 0;
  bool isBegun = false;
  void Add(float tap, float number) {
    const volatile float product = tap * number, sum = value + product;
    value = isBegun ? sum : product;
    isBegun = true;
  }
};

Line Analysed(const QvpiWaveletBank& bank, QvpiBorderType border, const Line& line) {
  const int n = static_cast<int>(line.size());
  if (n == 1) return line;
  const Endless x(line, border);
  Line bands;
  for (int i = 0; i < n; ++i) {
    const bool isHigh = i >= (n + 1) / 2;
    const QvpiWaveletFilter& f = isHigh ? bank.analysisHigh : bank.analysisLow;
    const int first = (isHigh ? 2 * (i - (n + 1) / 2) + 1 : 2 * i) - f.anchor;
    Sum sum;
    for (int j = 0; j < f.length; ++j) sum.Add(f.pTaps[j], x[first + j]);
    bands.push_back(sum.value);
  }
  return bands;
}

Line Synthesised(const QvpiWaveletBank& bank, QvpiBorderType border, const Line& bands) {
  const int n = static_cast<int>(bands.size());
  if (n == 1) return bands;
  Line mixed, line;
  for (int p = 0; p < n; ++p) mixed.push_back(bands[p % 2 ? (n + 1) / 2 + p / 2 : p / 2]);
  const Endless z(mixed, border);
  for (int i = 0; i < n; ++i) {
    Sum sums[2];
    for (int p = i - 70; p <= i + 70; ++p) {
      const QvpiWaveletFilter& f = p % 2 ? bank.synthesisHigh : bank.synthesisLow;
      const int t = i - p + f.anchor;
      if (t >= 0 && t < f.length) sums[p % 2 != 0].Add(f.pTaps[t], z[p]);
    }
    line.push_back(sums[0].value + sums[1].value);
  }
  return line;
}

// One channel of an image.
struct Plane {
  QvpiSize size;
  Line at;

  float& operator()(int x, int y) { return at[size_t{1} * y * size.width + x]; }

  // Each row or column of a corner by a function of lines.
  template <class Of>
  void Change(QvpiSize corner, bool isAcross, const Of& of) {
    const int lines = isAcross ? corner.height : corner.width, n = isAcross ? corner.width : corner.height;
    for (int l = 0; l < lines; ++l) {
      Line line;
      for (int i = 0; i < n; ++i) line.push_back(isAcross ? (*this)(i, l) : (*this)(l, i));
      line = of(line);
      for (int i = 0; i < n; ++i) (isAcross ? (*this)(i, l) : (*this)(l, i)) = line[i];
    }
  }
};

void Transform(const QvpiWaveletBank& bank, QvpiBorderType border, int levels, bool isForward, Plane& plane) {
  for (int i = 0; i < levels; ++i) {
    QvpiSize corner = plane.size;
    for (int level = isForward ? i : levels - 1 - i; level > 0; --level)
      corner = {(corner.width + 1) / 2, (corner.height + 1) / 2};
    for (const bool isAcross : {isForward, !isForward}) {
      plane.Change(corner, isAcross, [&](const Line& line) {
        return isForward ? Analysed(bank, border, line) : Synthesised(bank, border, line);
      });
    }
  }
}

// ---- Calls

test::Prepared Prepare(const QvpiWaveletBank& bank, QvpiBorderType border, QvpiSize size, int channels) {
  int spec = 0, buffer = 0;
  EXPECT_EQ(qvpiWaveletGetSize_32f(&bank, &spec), 0);
  const test::Prepared record(spec, 1);
  EXPECT_EQ(qvpiWaveletInit_32f(&bank, border, record.record<QvpiWaveletSpec_32f>()), 0);
  EXPECT_EQ(qvpiWaveletGetBufferSize_32f(record.record<QvpiWaveletSpec_32f>(), size, channels, &buffer), 0);
  EXPECT_LE(buffer, 300 * ((size.width + 128) * channels + size.height + 128));
  test::Prepared both(spec, buffer);
  EXPECT_EQ(qvpiWaveletInit_32f(&bank, border, both.record<QvpiWaveletSpec_32f>()), 0);
  return both;
}

QvpStatus Call(const Export& function, const Samples& src, const Samples& dst, QvpiSize size, int levels,
               const test::Prepared& prepared) {
  return function({{"pSrc", src},
                   {"pDst", dst},
                   {"pSrcDst", src},
                   {"roiSize", size},
                   {"levels", levels},
                   {"pSpec", {prepared.record<QvpiWaveletSpec_32f>()}},
                   {"pBuffer", {prepared.buffer()}}});
}

// All channels by one function, to the bit.
void Check(const Export& function, const QvpiWaveletBank& bank, QvpiBorderType border, QvpiSize size, int levels) {
  const Name name(function.name);
  const int channels = name.channels;
  const bool isInPlace = !function.Has("pDst"), isForward = function.name.find("Fwd") != std::string::npos;
  const test::Prepared prepared = Prepare(bank, border, size, channels);
  Samples src(name.From(), size.width * channels, size.height, 12),
      dst(name.From(), size.width * channels, size.height, 20);
  test::Random random(size.width * 100 + size.height + levels);
  src.Fill([&](int, int) { return test::PlainValue(name.From(), random); });
  const Samples before(src);
  ASSERT_EQ(Call(function, src, dst, size, levels, prepared), 0);
  for (int c = 0; c < channels; ++c) {
    Plane plane{size, {}};
    for (int y = 0; y < size.height; ++y) {
      for (int x = 0; x < size.width; ++x) plane.at.push_back(static_cast<float>(before(x * channels + c, y)));
    }
    Transform(bank, border, levels, isForward, plane);
    for (int y = 0; y < size.height; ++y) {
      for (int x = 0; x < size.width; ++x) {
        ASSERT_PRED2(test::AreSame, (isInPlace ? src : dst)(x * channels + c, y), plane(x, y))
            << function.name << ' ' << size.width << 'x' << size.height << " levels " << levels << " border " << border
            << " lengths " << bank.analysisLow.length << ' ' << bank.analysisHigh.length << " at " << x << ',' << y;
      }
    }
  }
}

const Export& Member(const std::string& end) { return test::FunctionNamed("qvpiWavelet" + end); }

// ---- Tests

TEST(Wavelet, EveryMemberBankAndBorder) {
  for (const Export* function : test::FunctionsOf({"WaveletFwd", "WaveletInv"})) {
    for (int kind = qvpWaveletHaar; kind <= qvpWaveletCdf97; ++kind) {
      const QvpiWaveletBank bank = BankOf(kind);
      Check(*function, bank, qvpBorderMirror, {37, 21}, 1 + kind % 3);
      Check(*function, bank, qvpBorderWrap, {24, 40}, 1 + kind % 3);
    }
  }
}

TEST(Wavelet, SizesAroundVectorsAndBlocks) {
  const QvpiWaveletBank bank = BankOf(qvpWaveletCdf97);
  for (const char* const name : {"Fwd_32f_C1R", "Inv_32f_C1R", "Fwd_32f_C1IR", "Inv_32f_C1IR"}) {
    for (int side = 1; side <= 35; ++side) Check(Member(name), bank, qvpBorderMirror, {side, 36 - side}, 1);
    for (const QvpiSize size : {QvpiSize{1, 1}, {1, 50}, {50, 1}, {2, 2}, {259, 11}, {17, 130}, {600, 2}}) {
      Check(Member(name), bank, qvpBorderMirror, size, 30);
    }
    for (const QvpiSize size : {QvpiSize{2, 2}, {1, 16}, {16, 1}, {64, 8}}) {
      Check(Member(name), bank, qvpBorderWrap, size, 1);
    }
  }
}

TEST(Wavelet, FiltersOfAnyLengthAndAnchor) {
  test::Random random(5);
  Line taps(256);
  for (float& tap : taps) tap = static_cast<float>(random.Next() % 2001) / 1000 - 1;
  for (int turn = 0; turn < 60; ++turn) {
    const auto any = [&](int i) {
      const int length =
          turn % 3 == 0 ? 1 + static_cast<int>(random.Next() % 3) : 1 + static_cast<int>(random.Next() % 64);
      const int anchors[] = {0, length - 1, static_cast<int>(random.Next()) & 63};
      return QvpiWaveletFilter{&taps[64 * i], length, std::min(anchors[random.Next() % 3], length - 1)};
    };
    const QvpiWaveletBank bank{any(0), any(1), any(2), any(3)};
    for (const char* const name : {"Fwd_32f_C1R", "Inv_32f_C3R", "Fwd_32f_C3IR", "Inv_32f_C1IR"}) {
      Check(Member(name), bank, qvpBorderMirror, {1 + turn % 7, 19 - turn % 6}, 2);
      Check(Member(name), bank, qvpBorderWrap, {12, 4 + turn % 2 * 4}, 2);
    }
  }
  const QvpiWaveletBank longest{
      {taps.data(), 64, 63}, {taps.data(), 64, 0}, {taps.data(), 64, 0}, {taps.data(), 64, 63}};
  for (const char* const name : {"Fwd_32f_C4R", "Inv_32f_C4R", "Fwd_32f_C1IR", "Inv_32f_C1IR"})
    Check(Member(name), longest, qvpBorderMirror, {9, 70}, 1);
}

Line Transformed(QvpiWaveletKind kind, QvpiBorderType border, QvpiSize size, Line pixels) {
  const test::Prepared prepared = Prepare(BankOf(kind), border, size, 1);
  EXPECT_EQ(qvpiWaveletFwd_32f_C1IR(pixels.data(), 4 * size.width, size, 1, prepared.record<QvpiWaveletSpec_32f>(),
                                    prepared.buffer()),
            0);
  return pixels;
}

TEST(Wavelet, KnownValues) {
  const auto expect = [](const Line& result, const Line& known) {
    ASSERT_EQ(result.size(), known.size());
    for (size_t i = 0; i < known.size(); ++i) EXPECT_NEAR(result[i], known[i], 2e-5) << i;
  };
  const auto line = [](QvpiWaveletKind kind, QvpiBorderType border, int n = 8) {
    Line numbers;
    for (int i = 1; i <= n; ++i) numbers.push_back(static_cast<float>(i));
    return Transformed(kind, border, {n, 1}, numbers);
  };
  expect(line(qvpWaveletCdf53, qvpBorderMirror), {1.414214f, 4.242641f, 7.071068f, 10.253048f, 0, 0, 0, 0.707107f});
  expect(line(qvpWaveletCdf53, qvpBorderMirror, 7), {1.414214f, 4.242641f, 7.071068f, 9.899495f, 0, 0, 0});
  expect(line(qvpWaveletCdf53, qvpBorderWrap), {2.828427f, 4.242641f, 7.071068f, 11.313708f, 0, 0, 0, 2.828427f});
  expect(line(qvpWaveletDaubechies4, qvpBorderWrap),
         {4.760279f, 3.725003f, 6.55343f, 10.417133f, -1.035276f, 0, 0, 3.863703f});
  expect(line(qvpWaveletCdf97, qvpBorderMirror),
         {1.886053f, 4.346256f, 6.995411f, 9.989171f, 0.176777f, 0, -0.129078f, 0.611709f});
  Line pixels;
  for (int i = 0; i < 16; ++i) pixels.push_back(static_cast<float>(i));
  expect(Transformed(qvpWaveletCdf53, qvpBorderMirror, {4, 4}, pixels),
         {0, 4.5f, 0, 1, 18, 22.5f, 0, 1, 0, 0, 0, 0, 4, 4, 0, 0});
  expect(Transformed(qvpWaveletHaar, qvpBorderMirror, {4, 4}, pixels),
         {5, 9, -1, -1, 21, 25, -1, -1, -4, -4, 0, 0, -4, -4, 0, 0});
}

// Which the numbers of a bank have to be right for.
TEST(Wavelet, ThereAndBackGivesTheImage) {
  const QvpiSize size{40, 32};
  const int n = 3 * size.width * size.height, step = 12 * size.width;
  Line pixels(n), bands(n), back(n);
  test::Random random(n);
  for (float& pixel : pixels) pixel = static_cast<float>(random.Next() % 2001) - 1000;
  for (int kind = qvpWaveletHaar; kind <= qvpWaveletCdf97; ++kind) {
    const bool isSymmetric = kind == qvpWaveletHaar || kind >= qvpWaveletCdf53;
    const auto border = isSymmetric ? qvpBorderMirror : qvpBorderWrap;
    const test::Prepared prepared = Prepare(BankOf(kind), border, size, 3);
    const auto* const spec = prepared.record<QvpiWaveletSpec_32f>();
    ASSERT_EQ(qvpiWaveletFwd_32f_C3R(pixels.data(), step, bands.data(), step, size, 3, spec, prepared.buffer()), 0);
    ASSERT_EQ(qvpiWaveletInv_32f_C3R(bands.data(), step, back.data(), step, size, 3, spec, prepared.buffer()), 0);
    for (int i = 0; i < n; ++i) ASSERT_NEAR(back[i], pixels[i], 16 * 0x1p-24 * 3 * 1000) << kind;
  }
}

// Beyond the caches rows bypass them; in place they never do.
TEST(Wavelet, LargeImagesAreTransformedAsInPlace) {
  const test::Element& element = test::ElementOf("32f");
  for (const int gap : {4, 20}) {
    const QvpiSize size{2103, 2001 + gap / 20};
    const test::Prepared prepared = Prepare(BankOf(qvpWaveletCdf53), qvpBorderMirror, size, 1);
    Samples src(element, size.width, size.height, 8), dst(element, size.width, size.height, gap);
    for (int y = 0; y < size.height; ++y) {
      for (int x = 0; x < size.width; ++x)
        src.As<float>()[ptrdiff_t{y} * src.step() / 4 + x] = static_cast<float>(x * y % 251);
    }
    ASSERT_EQ(Call(Member("Fwd_32f_C1R"), src, dst, size, 1, prepared), 0);
    ASSERT_EQ(Call(Member("Fwd_32f_C1IR"), src, src, size, 1, prepared), 0);
    for (int y = 0; y < size.height; ++y)
      ASSERT_EQ(std::memcmp(src.At(0, y), dst.At(0, y), size.width * sizeof(float)), 0) << y;
  }
}

TEST(Wavelet, RefusesLevelsThatDoNotDivideTheSizeAndWrongBanks) {
  QvpiWaveletBank bank = BankOf(qvpWaveletCdf53);
  const test::Prepared prepared = Prepare(bank, qvpBorderWrap, {8, 8}, 1);
  auto* const spec = prepared.record<QvpiWaveletSpec_32f>();
  float pixels[64] = {};
  const auto call = [&](QvpiSize size, int levels) {
    return qvpiWaveletInv_32f_C1R(pixels, 32, pixels, 32, size, levels, spec, prepared.buffer());
  };
  for (const int levels : {0, 31}) EXPECT_EQ(call({8, 8}, levels), qvpStatusBadArgument);
  EXPECT_EQ(call({8, 8}, 4), qvpStatusSize);
  EXPECT_EQ(call({6, 8}, 2), qvpStatusSize);
  EXPECT_EQ(call({8, 1}, 3), 0);
  int bytes = 7;
  for (const int border : {+qvpBorderReplicate, qvpBorderMirror | qvpBorderInMemTop}) {
    EXPECT_EQ(qvpiWaveletInit_32f(&bank, border, spec), qvpStatusBorder);
  }
  bank.synthesisHigh.anchor = 5;
  EXPECT_EQ(qvpiWaveletGetSize_32f(&bank, &bytes), qvpStatusAnchor);
  bank.analysisHigh.length = 65;
  EXPECT_EQ(qvpiWaveletGetSize_32f(&bank, &bytes), qvpStatusMaskSize);
  bank.synthesisLow.pTaps = nullptr;
  EXPECT_EQ(qvpiWaveletGetSize_32f(&bank, &bytes), qvpStatusNullPointer);
}

}  // namespace
