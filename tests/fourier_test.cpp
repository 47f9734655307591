// Fourier transforms against their definition in long double, and operations on packed spectra.
#include <array>
#include <cmath>
#include <complex>
#include <limits>
#include <vector>

#include "tests/support/name.h"

namespace {
using test::Block;
using test::Guard;
using Value = std::complex<double>;

// A record and a work buffer of exactly the reported sizes, at odd addresses before pages that cannot be read.
template <class Spec>
struct Plan {
  template <class GetSize, class Init, class... Size>
  Plan(GetSize getSize, Init init, int flag, Size... size) {
    int specBytes = 0, initBytes = -1, bufferBytes = 0;
    EXPECT_EQ(getSize(size..., flag, 0, &specBytes, &initBytes, &bufferBytes), qvpStatusNoError);
    EXPECT_EQ(initBytes, 0);
    record = std::make_unique<Block>(specBytes);
    buffer = std::make_unique<Block>(bufferBytes);
    EXPECT_EQ(init(size..., flag, 0, spec(), nullptr), qvpStatusNoError);
  }
  Spec* spec() const { return reinterpret_cast<Spec*>(record->data()); }
  Qvp8u* work() const { return buffer->data(); }
  std::unique_ptr<Block> record, buffer;
};
using RealPlan = Plan<QvpiDFTSpec_R_32f>;
using ComplexPlan = Plan<QvpiDFTSpec_C_32fc>;
using RealPowerPlan = Plan<QvpiFFTSpec_R_32f>;
using ComplexPowerPlan = Plan<QvpiFFTSpec_C_32fc>;

RealPlan RealOf(QvpiSize size, int flag) { return {qvpiDFTGetSize_R_32f, qvpiDFTInit_R_32f, flag, size}; }
ComplexPlan ComplexOf(QvpiSize size, int flag) { return {qvpiDFTGetSize_C_32fc, qvpiDFTInit_C_32fc, flag, size}; }

// Numbers in [-1, 1).
void Fill(test::Image<float>& image, int samples, int height) {
  test::Random random(samples * 31 + height);
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < samples; ++x)
      image.Put(x, y, static_cast<float>(static_cast<int32_t>(random.Next()) * 0x1p-31));
  }
}

// The definition, of lines `stride` apart.
void TransformLine(std::vector<Value>& all, size_t first, size_t stride, int n, int sign) {
  std::vector<std::complex<long double>> turns(n), out(n);
  for (int k = 0; k < n; ++k) turns[k] = std::polar(1.0L, sign * 2 * acosl(-1.0L) * k / n);
  for (int k = 0; k < n; ++k) {
    for (int j = 0; j < n; ++j) {
      out[k] += std::complex<long double>(all[first + j * stride]) * turns[int64_t{k} * j % n];
    }
  }
  for (int k = 0; k < n; ++k) all[first + k * stride] = Value(out[k]);
}

std::vector<Value> Definition(std::vector<Value> x, QvpiSize size, int sign) {
  for (int y = 0; y < size.height; ++y) TransformLine(x, size_t{1} * y * size.width, 1, size.width, sign);
  for (int c = 0; c < size.width; ++c) TransformLine(x, c, size.width, size.height, sign);
  return x;
}

std::vector<Value> RealPixels(const test::Image<float>& image, QvpiSize size, int channels, int channel) {
  std::vector<Value> x;
  for (int i = 0; i < size.width * size.height; ++i) {
    x.emplace_back(image(i % size.width * channels + channel, i / size.width));
  }
  return x;
}

// Element (row, column) of the packed form of a whole spectrum.
double Packed(const std::vector<Value>& x, QvpiSize s, int row, int column) {
  const auto at = [&](int u, int v) { return x[size_t{1} * v * s.width + u]; };
  const bool isEnd = column == 0 || (s.width % 2 == 0 && column == s.width - 1);
  if (!isEnd) return column % 2 ? at((column + 1) / 2, row).real() : at(column / 2, row).imag();
  const int u = column == 0 ? 0 : s.width / 2;
  if (row == 0) return at(u, 0).real();
  if (s.height % 2 == 0 && row == s.height - 1) return at(u, s.height / 2).real();
  return row % 2 ? at(u, (row + 1) / 2).real() : at(u, row / 2).imag();
}

struct Difference {
  double error = 0, power = 0;
  void Add(double got, double expected) {
    error += (got - expected) * (got - expected);
    power += expected * expected;
  }
  void ExpectSmall(QvpiSize s, const char* what) const {
    const double bound = 4 * 0x1p-24 * std::max(1.0, std::log2(1.0 * s.width * s.height));
    EXPECT_LE(std::sqrt(error), bound * std::sqrt(power)) << what << ' ' << s.width << 'x' << s.height;
  }
};

void TestReal(QvpiSize s) {
  const RealPlan plan = RealOf(s, 2);
  test::Image<float> image(s.width, s.height, 5), spectrum(s.width, s.height, 9), back(s.width, s.height, 3);
  Fill(image, s.width, s.height);
  ASSERT_EQ(qvpiDFTFwd_RToPack_32f_C1R(image.data(), image.step(), spectrum.data(), spectrum.step(), plan.spec(),
                                       plan.work()),
            qvpStatusNoError);
  ASSERT_EQ(
      qvpiDFTInv_PackToR_32f_C1R(spectrum.data(), spectrum.step(), back.data(), back.step(), plan.spec(), plan.work()),
      qvpStatusNoError);
  const auto expected = Definition(RealPixels(image, s, 1, 0), s, -1);
  Difference forward, both;
  for (int y = 0; y < s.height; ++y) {
    for (int x = 0; x < s.width; ++x) {
      forward.Add(spectrum(x, y), Packed(expected, s, y, x));
      both.Add(back(x, y), image(x, y));
    }
  }
  forward.ExpectSmall(s, "forward");
  both.ExpectSmall(s, "forward and back");
}

void TestComplex(QvpiSize s) {
  const ComplexPlan plan = ComplexOf(s, 8);
  test::Image<float> image(2 * s.width, s.height, 5), spectrum(2 * s.width, s.height, 9);
  Fill(image, 2 * s.width, s.height);
  const auto in = reinterpret_cast<const Qvp32fc*>(image.data());
  const auto out = reinterpret_cast<Qvp32fc*>(spectrum.data());
  std::vector<Value> pixels;
  for (int i = 0; i < s.width * s.height; ++i) {
    pixels.emplace_back(image(i % s.width * 2, i / s.width), image(i % s.width * 2 + 1, i / s.width));
  }
  for (const auto transform : {qvpiDFTFwd_CToC_32fc_C1R, qvpiDFTInv_CToC_32fc_C1R}) {
    ASSERT_EQ(transform(in, image.step(), out, spectrum.step(), plan.spec(), plan.work()), qvpStatusNoError);
    const auto expected = Definition(pixels, s, transform == qvpiDFTFwd_CToC_32fc_C1R ? -1 : 1);
    Difference difference;
    for (int i = 0; i < s.width * s.height; ++i) {
      difference.Add(spectrum(i % s.width * 2, i / s.width), expected[i].real());
      difference.Add(spectrum(i % s.width * 2 + 1, i / s.width), expected[i].imag());
    }
    difference.ExpectSmall(s, "complex");
  }
}

TEST(Fourier, EqualsItsDefinitionForAllSmallSizes) {
  for (int h = 1; h <= 16; ++h) {
    for (int w = 1; w <= 16; ++w) {
      TestReal({w, h});
      TestComplex({w, h});
    }
  }
}

TEST(Fourier, EqualsItsDefinitionForLargerAndPrimeSizes) {
  for (int n = 17; n <= 40; ++n) {
    TestReal({n, 57 - n});
    TestComplex({57 - n, n});
  }
  for (const QvpiSize s : {QvpiSize{509, 3},
                           {3, 509},
                           {1, 361},
                           {37 * 8, 9},
                           {128, 64},
                           {120, 90},
                           {143, 62},
                           {74, 41},
                           {1024, 2},
                           {2, 1018},
                           {97, 97}}) {
    TestReal(s);
    TestComplex(s);
  }
}

TEST(Fourier, KeepsThePowerOfAnImage) {  // Parseval's theorem, at sizes whose definition would take too long
  for (const QvpiSize s : {QvpiSize{512, 256}, {509, 120}, {96, 1000}, {1021, 64}}) {
    const ComplexPlan plan = ComplexOf(s, 4);
    test::Image<float> image(2 * s.width, s.height, 5), spectrum(2 * s.width, s.height, 3);
    Fill(image, 2 * s.width, s.height);
    const auto in = reinterpret_cast<const Qvp32fc*>(image.data());
    const auto out = reinterpret_cast<Qvp32fc*>(spectrum.data());
    ASSERT_EQ(qvpiDFTFwd_CToC_32fc_C1R(in, image.step(), out, spectrum.step(), plan.spec(), plan.work()), 0);
    double before = 0, after = 0;
    for (int i = 0; i < 2 * s.width * s.height; ++i) {
      const int x = i % (2 * s.width), y = i / (2 * s.width);
      before += std::pow(image(x, y), 2);
      after += std::pow(spectrum(x, y), 2);
    }
    EXPECT_NEAR(after / before, 1, 1e-5) << s.width << 'x' << s.height;
  }
}

// Lines and channels go through the transform side by side in the lanes of vectors.
TEST(Fourier, SpreadsNaNOverItsOwnChannelOnly) {
  for (const QvpiSize s : {QvpiSize{32, 16}, {30, 21}, {17, 8}}) {
    const RealPlan plan = RealOf(s, 8);
    test::Image<float> image(3 * s.width, s.height, 5), clean(3 * s.width, s.height, 1), out(clean);
    Fill(image, 3 * s.width, s.height);
    const auto transform = [&](test::Image<float>& to) {
      return qvpiDFTFwd_RToPack_32f_C3R(image.data(), image.step(), to.data(), to.step(), plan.spec(), plan.work());
    };
    ASSERT_EQ(transform(clean), 0);
    image.Put(3 * (s.width - 2) + 1, s.height / 2, std::numeric_limits<float>::quiet_NaN());
    ASSERT_EQ(transform(out), 0);
    for (int i = 0; i < 3 * s.width * s.height; ++i) {
      const int x = i % (3 * s.width), y = i / (3 * s.width);
      if (x % 3 == 1) {
        ASSERT_TRUE(std::isnan(out(x, y))) << x << ',' << y;
      } else {
        const float found = out(x, y), expected = clean(x, y);
        ASSERT_EQ(std::memcmp(&found, &expected, sizeof(found)), 0) << x << ',' << y;
      }
    }
  }
}

// Lengths whose lines are transformed one by one; a cosine has one frequency.
TEST(Fourier, TransformsLongLines) {
  for (const QvpiSize s : {QvpiSize{1 << 18, 1}, {2 * 65537, 2}, {1, 65539}}) {
    const RealPlan plan = RealOf(s, 1);
    const int n = std::max(s.width, s.height), frequency = n / 5;
    test::Image<float> image(s.width, s.height, 0);
    for (int i = 0; i < s.width * s.height; ++i) {
      const double turns = static_cast<double>(int64_t{i % n} * frequency % n) / n;
      image.Put(i % s.width, i / s.width, static_cast<float>(std::cos(2 * M_PI * turns)));
    }
    ASSERT_EQ(qvpiDFTFwd_RToPack_32f_C1IR(image.data(), image.step(), plan.spec(), plan.work()), 0);
    for (int i = 0; i < n; ++i) {
      const float got = s.width == 1 ? image(0, i) : image(i, 0);
      ASSERT_NEAR(got, i == 2 * frequency - 1 ? 0.5 : 0, 1e-6) << s.width << 'x' << s.height << ' ' << i;
    }
  }
}

const test::Export& Function(const std::string& name) {
  for (const test::Export& function : test::Exports()) {
    if (function.name == name) return function;
  }
  throw std::invalid_argument(name);
}

TEST(Fourier, OfPowersOfTwoIsTheGeneralOneInEveryLayoutFlagAndInPlace) {
  const QvpiSize s{32, 16};
  for (const test::Export* power : test::FunctionsOf({"FFTFwd_RToPack", "FFTInv_PackToR"})) {
    const test::Name name(power->name);
    if (name.inPlace) continue;
    std::string text = power->name;
    const test::Export& inPlace = Function(std::string(text).insert(text.size() - 1, "I"));
    const test::Export& general = Function(text.replace(4, 3, "DFT"));
    const test::Export& single = Function(text.replace(text.rfind('_'), std::string::npos, "_C1R"));
    for (const int flag : {1, 2, 4, 8}) {
      const RealPowerPlan plan(qvpiFFTGetSize_R_32f, qvpiFFTInit_R_32f, flag, 5, 4);
      const RealPlan generalPlan = RealOf(s, flag);
      const auto call = [&](const test::Export& function, const test::Image<float>& in, const test::Image<float>& out,
                            const auto& by) {
        ASSERT_EQ(
            function({{"pSrc", in}, {"pDst", out}, {"pSrcDst", out}, {"pSpec", {by.spec()}}, {"pBuffer", {by.work()}}}),
            0)
            << function.name;
      };
      test::Image<float> in(s.width * name.channels, s.height, 5), out(s.width * name.channels, s.height, 7),
          other(out), one(s.width, s.height, 1), oneOut(s.width, s.height, 2);
      Fill(in, s.width * name.channels, s.height);
      const test::Image<float> before(out), self(in);
      call(*power, in, out, plan);
      call(general, in, other, generalPlan);
      call(inPlace, in, self, plan);
      for (int c = 0; c < name.channels; ++c) {
        for (int i = 0; i < s.width * s.height; ++i) {
          one.Put(i % s.width, i / s.width, in(i % s.width * name.channels + c, i / s.width));
        }
        call(single, one, oneOut, generalPlan);
        for (int i = 0; i < s.width * s.height; ++i) {
          const int x = i % s.width * name.channels + c, y = i / s.width;
          const bool isAlpha = c >= name.written;
          ASSERT_TRUE(test::SameBits(out(x, y), isAlpha ? before(x, y) : oneOut(i % s.width, y)))
              << power->name << ' ' << flag;
          ASSERT_TRUE(test::SameBits(other(x, y), out(x, y))) << general.name;
          ASSERT_TRUE(test::SameBits(self(x, y), isAlpha ? in(x, y) : out(x, y))) << inPlace.name;
        }
      }
    }
  }
}

TEST(Fourier, ScalesByTheFlag) {
  for (const int flag : {1, 2, 4, 8}) {
    const ComplexPowerPlan plan(qvpiFFTGetSize_C_32fc, qvpiFFTInit_C_32fc, flag, 2, 4);
    std::vector<Qvp32fc> image(64, {3, 0});
    ASSERT_EQ(qvpiFFTFwd_CToC_32fc_C1IR(image.data(), 32, plan.spec(), plan.work()), 0);
    EXPECT_EQ(image[0].re, flag == 1 ? 3 : flag == 4 ? 3 * 8 : 3 * 64);
    EXPECT_EQ(image[0].im, 0);
    for (int i = 1; i < 64; ++i) EXPECT_EQ(image[i].re, 0);
    ASSERT_EQ(qvpiFFTInv_CToC_32fc_C1IR(image.data(), 32, plan.spec(), plan.work()), 0);
    for (const Qvp32fc& pixel : image) EXPECT_EQ(pixel.re, flag == 8 ? 3 * 64 : 3);
  }
}

TEST(Fourier, TellsSizesUpToTheLargest) {
  int a = 5, b = 5, c = 5;
  EXPECT_EQ(qvpiFFTGetSize_R_32f(30, 1, 3, 0, &a, &b, &c), qvpStatusFftOrder);
  EXPECT_EQ(qvpiFFTGetSize_R_32f(1, 25, 1, 0, &a, &b, &c), qvpStatusSizeOverflow);
  EXPECT_EQ(c, 0);
  EXPECT_EQ(qvpiFFTGetSize_R_32f(26, 0, 1, 0, &a, &b, &c), qvpStatusNoError);
  EXPECT_EQ(qvpiFFTGetSize_R_32f(27, 0, 1, 0, &a, &b, &c), qvpStatusSizeOverflow);
  EXPECT_EQ(qvpiFFTGetSize_R_32f(0, 24, 1, 0, &a, &b, &c), qvpStatusNoError);
  EXPECT_EQ(qvpiFFTInit_R_32f(31, 1, 1, 0, nullptr, nullptr), qvpStatusFftOrder);
  EXPECT_EQ(qvpiFFTInit_R_32f(30, 1, 1, 0, nullptr, nullptr), qvpStatusNullPointer);
}

// The spectrum of each size, whole, from its packed form by the library. Long sides are processed in pieces.
TEST(PackedSpectrum, ExtendsPacksMultipliesAndShows) {
  std::vector<QvpiSize> sizes{{300, 3}, {2, 531}};
  for (int n = 0; n < 81; ++n) sizes.push_back({n % 9 + 1, n / 9 + 1});
  for (const QvpiSize s : sizes) {
    const RealPlan plan = RealOf(s, 8);
    test::Image<float> a(s.width, s.height, 5), b(s.width, s.height, 1), whole(2 * s.width, s.height, 3),
        packed(s.width, s.height, 2), product(s.width, s.height, 4), shown(s.width, s.height, 6);
    for (test::Image<float>* image : {&a, &b}) {
      Fill(*image, s.width, s.height);
      qvpiDFTFwd_RToPack_32f_C1IR(image->data(), image->step(), plan.spec(), plan.work());
      b.Put(0, 0, 3);
    }
    const auto complex = reinterpret_cast<Qvp32fc*>(whole.data());
    const auto extended = [&](const test::Image<float>& image) {
      EXPECT_EQ(qvpiPackToCplxExtend_32f32fc_C1R(image.data(), image.step(), complex, whole.step(), s), 0);
      std::vector<Value> x;
      for (int i = 0; i < s.width * s.height; ++i) {
        x.emplace_back(whole(i % s.width * 2, i / s.width), whole(i % s.width * 2 + 1, i / s.width));
      }
      return x;
    };
    const auto xb = extended(b), xa = extended(a);
    ASSERT_EQ(qvpiCplxExtendToPack_32fc32f_C1R(complex, whole.step(), packed.data(), packed.step(), s), 0);
    for (int i = 0; i < s.width * s.height; ++i) {
      const int x = i % s.width, y = i / s.width;
      ASSERT_EQ(a(x, y), Packed(xa, s, y, x)) << s.width << 'x' << s.height;
      ASSERT_EQ(packed(x, y), a(x, y));
      ASSERT_EQ(xa[i], std::conj(xa[(s.height - y) % s.height * s.width + (s.width - x) % s.width]));
    }
    for (const auto multiply : {qvpiMulPack_32f_C1R, qvpiMulPackConj_32f_C1R}) {
      ASSERT_EQ(multiply(a.data(), a.step(), b.data(), b.step(), product.data(), product.step(), s), 0);
      const auto got = extended(product);
      for (int i = 0; i < s.width * s.height; ++i) {
        const Value expected = xa[i] * (multiply == qvpiMulPack_32f_C1R ? xb[i] : std::conj(xb[i]));
        ASSERT_LE(std::abs(got[i] - expected), 1e-6 * (std::abs(xa[i]) * std::abs(xb[i]) + 1e-30));
      }
    }
    const Block buffer(s.width * 4 + 64);
    ASSERT_EQ(qvpiMagnitudePack_32f_C1R(a.data(), a.step(), shown.data(), shown.step(), s, buffer.data()), 0);
    for (int i = 0; i < s.width * s.height; ++i) {
      ASSERT_FLOAT_EQ(shown(i % s.width, i / s.width), static_cast<float>(std::abs(xa[i])));
    }
    ASSERT_EQ(qvpiPhasePack_32f_C1R(a.data(), a.step(), shown.data(), shown.step(), s), 0);
    for (int i = 0; i < s.width * s.height; ++i) {
      ASSERT_NEAR(shown(i % s.width, i / s.width), std::atan2(xa[i].imag(), xa[i].real()), 3e-7);
    }
  }
}

TEST(PackedSpectrum, TreatsEachChannelAlone) {
  const QvpiSize s{6, 5};
  for (const bool keepsAlpha : {false, true}) {
    test::Image<float> a(s.width * 4, s.height, 5), b(s.width * 4, s.height, 1), both(s.width * 4, s.height, 3),
        one(s.width, s.height, 2), other(s.width, s.height, 7), product(s.width, s.height, 4);
    Fill(a, s.width * 4, s.height);
    Fill(b, s.width * 4, s.height);
    Fill(both, s.width * 4, s.height);
    const test::Image<float> before(both);
    const auto multiply = keepsAlpha ? qvpiMulPackConj_32f_AC4R : qvpiMulPackConj_32f_C4R;
    ASSERT_EQ(multiply(a.data(), a.step(), b.data(), b.step(), both.data(), both.step(), s), 0);
    for (int c = 0; c < 4; ++c) {
      for (int i = 0; i < s.width * s.height; ++i) {
        one.Put(i % s.width, i / s.width, a(i % s.width * 4 + c, i / s.width));
        other.Put(i % s.width, i / s.width, b(i % s.width * 4 + c, i / s.width));
      }
      ASSERT_EQ(qvpiMulPackConj_32f_C1R(one.data(), one.step(), other.data(), other.step(), product.data(),
                                        product.step(), s),
                0);
      for (int i = 0; i < s.width * s.height; ++i) {
        const int x = i % s.width, y = i / s.width;
        ASSERT_EQ(both(x * 4 + c, y), keepsAlpha && c == 3 ? before(x * 4 + c, y) : product(x, y));
      }
    }
  }
}

bool IsSame(float a, float b) { return a == b || (std::isnan(a) && std::isnan(b)); }

TEST(PackedSpectrum, ShowsExtremes) {
  constexpr float kInfinity = std::numeric_limits<float>::infinity(), kLarge = 3e38f, kPi = 3.14159265f;
  const float nan = std::numeric_limits<float>::quiet_NaN();
  const QvpiSize s{3, 1};
  Qvp8u buffer[76];
  float shown[3];
  for (const auto& [re, im, magnitude, phase] :
       std::vector<std::array<float, 4>>{{kLarge, 0, kLarge, 0},
                                         {-1, 0, 1, kPi},
                                         {-1, -0.0f, 1, kPi},
                                         {0, 0, 0, 0},
                                         {kInfinity, 1, kInfinity, 0},
                                         {kInfinity, 3e38f, kInfinity, 0},
                                         {-kInfinity, 3e38f, kInfinity, kPi},
                                         {-kInfinity, -kInfinity, kInfinity, -3 * kPi / 4},
                                         {2, kInfinity, kInfinity, kPi / 2},
                                         {kInfinity, kInfinity, kInfinity, kPi / 4},
                                         {1e-40f, 0, 1e-40f, 0},
                                         {0, -2, 2, -kPi / 2},
                                         {nan, 1, nan, nan}}) {
    const float packed[3] = {-7, re, im};
    qvpiMagnitudePack_32f_C1R(packed, 12, shown, 12, s, buffer);
    EXPECT_EQ(shown[0], 7);
    EXPECT_TRUE(IsSame(shown[1], magnitude)) << re << ' ' << im << ' ' << shown[1];
    qvpiPhasePack_32f_C1R(packed, 12, shown, 12, s);
    EXPECT_EQ(shown[0], kPi);
    EXPECT_TRUE(IsSame(shown[1], phase)) << re << ' ' << im << ' ' << shown[1];
  }
  int bytes = 0;
  EXPECT_EQ(qvpiMagnitudePackGetBufferSize_32f(2, s, &bytes), qvpStatusNumChannels);
  EXPECT_EQ(qvpiMagnitudePackGetBufferSize_32f(3, s, &bytes), qvpStatusNoError);
  EXPECT_EQ(bytes, 76);
}

}  // namespace
