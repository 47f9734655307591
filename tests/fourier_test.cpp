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
using Image = test::Image<float>;
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

// With the arguments that most functions have.
template <class Of = RealPlan>
void Call(const std::string& name, const Image& in, const Image& out, const Of& plan) {
  ASSERT_EQ(
      test::CallNamed(
          name, {{"pSrc", in}, {"pDst", out}, {"pSrcDst", out}, {"pSpec", {plan.spec()}}, {"pBuffer", {plan.work()}}}),
      qvpStatusNoError)
      << name;
}

// Numbers in [-1, 1).
void Fill(Image& image, int samples, int height) {
  test::Random random(samples * 31 + height);
  for (int i = 0; i < samples * height; ++i) {
    image.Put(i % samples, i / samples, static_cast<float>(static_cast<int32_t>(random.Next()) * 0x1p-31));
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

// Of an image of complex numbers, or of real ones; one channel of several.
std::vector<Value> ComplexPixels(const Image& image, QvpiSize size) {
  std::vector<Value> x;
  for (int i = 0; i < size.width * size.height; ++i) {
    x.emplace_back(image(i % size.width * 2, i / size.width), image(i % size.width * 2 + 1, i / size.width));
  }
  return x;
}
std::vector<Value> RealPixels(const Image& image, QvpiSize size, int channels = 1, int channel = 0) {
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

void ExpectNear(const std::vector<Value>& result, const std::vector<Value>& expected, QvpiSize s, const char* what) {
  double error = 0, power = 0;
  for (size_t i = 0; i < expected.size(); ++i) {
    error += std::norm(result[i] - expected[i]);
    power += std::norm(expected[i]);
  }
  const double bound = 4 * 0x1p-24 * std::max(1.0, std::log2(1.0 * s.width * s.height));
  EXPECT_LE(std::sqrt(error), bound * std::sqrt(power)) << what << ' ' << s.width << 'x' << s.height;
}

void TestReal(QvpiSize s) {
  const RealPlan plan = RealOf(s, 2);
  Image image(s.width, s.height, 5), spectrum(s.width, s.height, 9), back(s.width, s.height, 3);
  Fill(image, s.width, s.height);
  Call("qvpiDFTFwd_RToPack_32f_C1R", image, spectrum, plan);
  Call("qvpiDFTInv_PackToR_32f_C1R", spectrum, back, plan);
  const auto pixels = RealPixels(image, s), expected = Definition(pixels, s, -1);
  std::vector<Value> packed;
  for (int i = 0; i < s.width * s.height; ++i) packed.emplace_back(Packed(expected, s, i / s.width, i % s.width));
  ExpectNear(RealPixels(spectrum, s), packed, s, "forward");
  ExpectNear(RealPixels(back, s), pixels, s, "forward and back");
}

void TestComplex(QvpiSize s) {
  const ComplexPlan plan = ComplexOf(s, 8);
  Image image(2 * s.width, s.height, 5), spectrum(2 * s.width, s.height, 9);
  Fill(image, 2 * s.width, s.height);
  for (const bool isForward : {true, false}) {
    Call(isForward ? "qvpiDFTFwd_CToC_32fc_C1R" : "qvpiDFTInv_CToC_32fc_C1R", image, spectrum, plan);
    const auto expected = Definition(ComplexPixels(image, s), s, isForward ? -1 : 1);
    ExpectNear(ComplexPixels(spectrum, s), expected, s, "complex");
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
  constexpr QvpiSize kSizes[] = {{509, 3},  {3, 509}, {1, 361},  {37 * 8, 9}, {128, 64}, {120, 90},
                                 {143, 62}, {74, 41}, {1024, 2}, {2, 1018},   {97, 97}};
  for (const QvpiSize s : kSizes) {
    TestReal(s);
    TestComplex(s);
  }
}

TEST(Fourier, KeepsThePowerOfAnImage) {  // Parseval's theorem, at sizes whose definition would take too long
  for (const QvpiSize s : {QvpiSize{512, 256}, {509, 120}, {96, 1000}, {1021, 64}}) {
    const ComplexPlan plan = ComplexOf(s, 4);
    Image image(2 * s.width, s.height, 5), spectrum(2 * s.width, s.height, 3);
    Fill(image, 2 * s.width, s.height);
    Call("qvpiDFTFwd_CToC_32fc_C1R", image, spectrum, plan);
    const auto power = [&](const Image& of) {
      double sum = 0;
      for (const Value& v : ComplexPixels(of, s)) sum += std::norm(v);
      return sum;
    };
    EXPECT_NEAR(power(spectrum) / power(image), 1, 1e-5) << s.width << 'x' << s.height;
  }
}

// Lines and channels go through the transform side by side in the lanes of vectors.
TEST(Fourier, SpreadsNaNOverItsOwnChannelOnly) {
  for (const QvpiSize s : {QvpiSize{32, 16}, {30, 21}, {17, 8}}) {
    const RealPlan plan = RealOf(s, 8);
    Image image(3 * s.width, s.height, 5), clean(3 * s.width, s.height, 1), out(clean);
    Fill(image, 3 * s.width, s.height);
    Call("qvpiDFTFwd_RToPack_32f_C3R", image, clean, plan);
    image.Put(3 * (s.width - 2) + 1, s.height / 2, NAN);
    Call("qvpiDFTFwd_RToPack_32f_C3R", image, out, plan);
    for (int i = 0; i < 3 * s.width * s.height; ++i) {
      const int x = i % (3 * s.width), y = i / (3 * s.width);
      ASSERT_TRUE(x % 3 == 1 ? std::isnan(out(x, y)) : test::SameBits(out(x, y), clean(x, y))) << x << ',' << y;
    }
  }
}

// Lengths whose lines are transformed one by one; a cosine has one frequency.
TEST(Fourier, TransformsLongLines) {
  for (const QvpiSize s : {QvpiSize{1 << 18, 1}, {2 * 65537, 2}, {1, 65539}}) {
    const RealPlan plan = RealOf(s, 1);
    const int n = std::max(s.width, s.height), frequency = n / 5;
    Image image(s.width, s.height, 0);
    for (int i = 0; i < s.width * s.height; ++i) {
      const double turns = static_cast<double>(int64_t{i % n} * frequency % n) / n;
      image.Put(i % s.width, i / s.width, static_cast<float>(std::cos(2 * M_PI * turns)));
    }
    Call("qvpiDFTFwd_RToPack_32f_C1IR", image, image, plan);
    for (int i = 0; i < n; ++i) {
      const float got = s.width == 1 ? image(0, i) : image(i, 0);
      ASSERT_NEAR(got, i == 2 * frequency - 1 ? 0.5 : 0, 1e-6) << s.width << 'x' << s.height << ' ' << i;
    }
  }
}

Image ChannelOf(const Image& image, QvpiSize s, int channels, int channel) {
  Image one(s.width, s.height, channel);
  for (int i = 0; i < s.width * s.height; ++i) {
    one.Put(i % s.width, i / s.width, image(i % s.width * channels + channel, i / s.width));
  }
  return one;
}

std::string ForOneChannel(std::string name) { return name.replace(name.rfind('_'), std::string::npos, "_C1R"); }

TEST(Fourier, OfPowersOfTwoIsTheGeneralOneInEveryLayoutFlagAndInPlace) {
  const QvpiSize s{32, 16};
  for (const test::Export* power : test::FunctionsOf({"FFTFwd_RToPack", "FFTInv_PackToR"})) {
    const test::Name name(power->name);
    if (name.inPlace) continue;
    const std::string general = std::string(power->name).replace(4, 3, "DFT");
    for (const int flag : {1, 2, 4, 8}) {
      const RealPowerPlan plan(qvpiFFTGetSize_R_32f, qvpiFFTInit_R_32f, flag, 5, 4);
      const RealPlan generalPlan = RealOf(s, flag);
      Image in(s.width * name.channels, s.height, 5);
      Fill(in, s.width * name.channels, s.height);
      const Image out(in), other(in), self(in);
      Call(power->name, in, out, plan);
      Call(general, in, other, generalPlan);
      Call(std::string(power->name).insert(power->name.size() - 1, "I"), in, self, plan);
      for (int c = 0; c < name.channels; ++c) {
        const auto of = [&](const Image& image) { return RealPixels(image, s, name.channels, c); };
        const Image one(s.width, s.height, 2);
        Call(ForOneChannel(general), ChannelOf(in, s, name.channels, c), one, generalPlan);
        const bool isAlpha = c >= name.written;
        EXPECT_EQ(of(out), isAlpha ? of(in) : RealPixels(one, s)) << power->name << ' ' << flag;
        EXPECT_EQ(of(other), of(out)) << general;
        EXPECT_EQ(of(self), of(out)) << power->name << " in place";
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

// Of two spectra by the library: what is made of them, from the whole spectra that packed ones stand for.
void CheckPacked(QvpiSize s) {
  Image a(s.width, s.height, 5), b(s.width, s.height, 1);
  const Image whole(2 * s.width, s.height, 3), made(s.width, s.height, 2);
  const auto make = [&](const std::string& name, const Image& src, const Image& dst) {
    const Block buffer(s.width * 4 + 64);
    ASSERT_EQ(
        test::CallNamed(
            "qvpi" + name,
            {{"pSrc", src}, {"pSrc1", src}, {"pSrc2", b}, {"pDst", dst}, {"roiSize", s}, {"pBuffer", {buffer.data()}}}),
        0);
  };
  const auto extended = [&](const Image& image) {
    make("PackToCplxExtend_32f32fc_C1R", image, whole);
    return ComplexPixels(whole, s);
  };
  for (Image* image : {&a, &b}) {
    Fill(*image, s.width, s.height);
    Call("qvpiDFTFwd_RToPack_32f_C1IR", *image, *image, RealOf(s, 8));
    b.Put(0, 0, 3);
  }
  const auto xb = extended(b), xa = extended(a);
  make("CplxExtendToPack_32fc32f_C1R", whole, made);
  EXPECT_EQ(RealPixels(made, s), RealPixels(a, s));
  make("MulPack_32f_C1R", a, made);
  const auto product = extended(made);
  make("MulPackConj_32f_C1R", a, made);
  const auto conjugate = extended(made);
  const Image magnitude(made), phase(made);
  make("MagnitudePack_32f_C1R", a, magnitude);
  make("PhasePack_32f_C1R", a, phase);
  for (int i = 0; i < s.width * s.height; ++i) {
    const int x = i % s.width, y = i / s.width;
    const double error = 1e-6 * (std::abs(xa[i]) * std::abs(xb[i]) + 1e-30);
    ASSERT_EQ(a(x, y), Packed(xa, s, y, x)) << s.width << 'x' << s.height;
    ASSERT_EQ(xa[i], std::conj(xa[(s.height - y) % s.height * s.width + (s.width - x) % s.width]));
    ASSERT_LE(std::abs(product[i] - xa[i] * xb[i]), error);
    ASSERT_LE(std::abs(conjugate[i] - xa[i] * std::conj(xb[i])), error);
    ASSERT_FLOAT_EQ(magnitude(x, y), static_cast<float>(std::abs(xa[i])));
    ASSERT_NEAR(phase(x, y), std::arg(xa[i]), 3e-7);
  }
}

// Long sides are processed in pieces.
TEST(PackedSpectrum, ExtendsPacksMultipliesAndShows) {
  for (int n = 0; n < 81; ++n) CheckPacked({n % 9 + 1, n / 9 + 1});
  CheckPacked({300, 3}), CheckPacked({2, 531});
}

TEST(PackedSpectrum, TreatsEachChannelAlone) {
  const QvpiSize s{6, 5};
  for (const test::Export* function : test::FunctionsOf({"MulPack", "MulPackConj"})) {
    const test::Name name(function->name);
    if (name.inPlace) continue;
    Image a(s.width * name.channels, s.height, 5), b(s.width * name.channels, s.height, 1), both(a);
    Fill(both, s.width * name.channels, s.height), Fill(a, s.width * name.channels, s.height);
    Fill(b, s.width * name.channels, s.height), b.Put(0, 0, 3), b.Put(9, 2, -3);
    const Image before(both), one(s.width, s.height, 3);
    const auto multiply = [&](const std::string& by, const Image& first, const Image& second, const Image& dst) {
      ASSERT_EQ(test::CallNamed(by, {{"pSrc1", first}, {"pSrc2", second}, {"pDst", dst}, {"roiSize", s}}), 0) << by;
    };
    multiply(function->name, a, b, both);
    for (int c = 0; c < name.channels; ++c) {
      const auto of = [&](const Image& image) { return ChannelOf(image, s, name.channels, c); };
      multiply(ForOneChannel(function->name), of(a), of(b), one);
      const auto expected = c < name.written ? RealPixels(one, s) : RealPixels(before, s, name.channels, c);
      EXPECT_EQ(RealPixels(both, s, name.channels, c), expected) << function->name;
    }
  }
}

TEST(PackedSpectrum, ShowsExtremes) {
  constexpr float kInfinity = std::numeric_limits<float>::infinity(), kLarge = 3e38f, kPi = 3.14159265f;
  const QvpiSize s{3, 1};
  Qvp8u buffer[76];
  float shown[3];
  constexpr std::array<float, 4> kCases[] = {{kLarge, 0, kLarge, 0},
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
                                             {NAN, 1, NAN, NAN}};
  for (const auto& [re, im, magnitude, phase] : kCases) {
    const float packed[3] = {-7, re, im};
    qvpiMagnitudePack_32f_C1R(packed, 12, shown, 12, s, buffer);
    EXPECT_EQ(shown[0], 7);
    EXPECT_TRUE(test::AreSame(shown[1], magnitude)) << re << ' ' << im << ' ' << shown[1];
    qvpiPhasePack_32f_C1R(packed, 12, shown, 12, s);
    EXPECT_EQ(shown[0], kPi);
    EXPECT_TRUE(std::isnan(phase) ? std::isnan(shown[1]) : shown[1] == phase) << re << ' ' << im << ' ' << shown[1];
  }
  int bytes = 0;
  EXPECT_EQ(qvpiMagnitudePackGetBufferSize_32f(2, s, &bytes), qvpStatusNumChannels);
  EXPECT_EQ(qvpiMagnitudePackGetBufferSize_32f(3, s, &bytes), qvpStatusNoError);
  EXPECT_EQ(bytes, 76);
}

}  // namespace
