// Classes that own records, beside the C functions or numbers that are known.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

#include "tests/cpp/picture.h"

namespace {

using qvp::Image;
using qvp::InterpolationType;
using qvp::Resizer;
using test::Noise;
using test::Refused;
using test::Same;

TEST(Resizer, GivesWhatCGivesWithItsParameters) {
  const QvpiSize src{40, 30}, dst{70, 17};
  const auto picture = Noise<Qvp8u, 3>(src);
  Image<Qvp8u, 3> got(dst), expected(dst);
  int size = 0, init = 0;
  qvpiResizeGetSize_8u(src, dst, qvpInterpolationCubic, 0, &size, &init);
  qvp::Buffer record(size), temporary(init), work(1 << 20);
  auto* spec = reinterpret_cast<QvpiResizeSpec*>(record.data());
  ASSERT_EQ(qvpiResizeCubicInit_8u(src, dst, 0.3F, 0.6F, spec, temporary.data()), qvpStatusNoError);
  ASSERT_EQ(qvpiResizeSetMode(qvpAlgHintAccurate, spec), qvpStatusNoError);
  ASSERT_EQ(qvpiResizeCubic_8u_C3R(picture.data(), picture.step(), expected.data(), expected.step(), {0, 0}, dst,
                                   qvpBorderMirror, nullptr, spec, work.data()),
            qvpStatusNoError);
  qvp::resize(
      picture, got,
      {.method = InterpolationType::cubic, .border = qvp::BorderType::mirror, .b = 0.3F, .c = 0.6F, .accurate = true});
  EXPECT_TRUE(Same(got, expected));
}

TEST(Resizer, HasEveryMethodAndTheSameByTiles) {
  const QvpiSize src{61, 47}, dst{29, 23};
  const auto picture = Noise<Qvp16u>(src);
  std::vector<Image<Qvp16u>> results;
  for (const bool antialias : {false, true}) {
    for (const auto method : {InterpolationType::nearest, InterpolationType::linear, InterpolationType::cubic,
                              InterpolationType::lanczos, InterpolationType::super}) {
      if (antialias && (method == InterpolationType::nearest || method == InterpolationType::super)) continue;
      Resizer<Qvp16u> resizer(src, dst, {.method = method, .antialias = antialias});
      Image<Qvp16u> whole(dst), tiles(dst);
      resizer(picture, whole);
      qvp::Buffer buffer;
      for (const QvpiRect part : {QvpiRect{0, 0, 13, 23}, QvpiRect{13, 0, 16, 9}, QvpiRect{13, 9, 16, 14}}) {
        resizer.tile(picture, tiles.view(part), {part.x, part.y}, buffer);
      }
      EXPECT_TRUE(Same(whole, tiles)) << int(method) << antialias;
      for (const auto& other : results) EXPECT_FALSE(Same(whole, other)) << int(method) << antialias;
      results.push_back(std::move(whole));
    }
  }
}

TEST(Resizer, RefusesWhatItWasNotMadeFor) {
  Resizer<Qvp8u> resizer({8, 8}, {4, 4});
  const Image<Qvp8u> src(8, 8), other(9, 8);
  Image<Qvp8u> dst(4, 4), small(3, 4);
  qvp::Buffer buffer;
  EXPECT_EQ(Refused([&] { resizer(other, dst); }), qvpStatusSize);
  EXPECT_EQ(Refused([&] { resizer(src, small); }), qvpStatusSize);
  EXPECT_EQ(Refused([&] { resizer.tile(src, small, {2, 0}, buffer); }), qvpStatusSize);
  EXPECT_EQ(Refused([] { Resizer<Qvp8u>({8, 8}, {0, 4}); }), qvpStatusSize);
  EXPECT_EQ(Refused([] {
              Resizer<Qvp8u>({8, 8}, {4, 4}, {.method = InterpolationType::lanczos, .lobes = 7});
            }),
            qvpStatusNotSupportedMode);
  EXPECT_NE(Refused([] { Resizer<Qvp64f>({8, 8}, {4, 4}, {.method = InterpolationType::super}); }), 0);
}

TEST(Filter, OfEachKindGivesNumbersThatAreKnown) {
  const QvpiSize size{5, 5};
  Image<Qvp16s> point(size), dst(size);
  qvp::fill(point, 0);
  point.row(2)[2] = 100;
  const Qvp16s taps[] = {1, 2, 3, 4, 5, 6, 7, 8, 9}, row[] = {1, 2, 3}, column[] = {1, 0, 2};
  qvp::Filter<Qvp16s>::kernel({3, 3}, taps, 10)(point, dst);
  EXPECT_EQ(dst.row(1)[1] * 100 + dst.row(1)[3], 10 * 100 + 30) << "a convolution spreads the kernel as it is";
  qvp::Filter<Qvp16s>::separable(row, column)(point, dst);
  EXPECT_EQ(dst.row(3)[3] * 1000 + dst.row(3)[1], 600 * 1000 + 200);
  EXPECT_EQ(dst.row(2)[2], 0);
  const Qvp8u cross[] = {0, 1, 0, 1, 1, 1, 0, 1, 0};
  qvp::Filter<Qvp16s>::dilate({3, 3}, cross, {1, 1})(point, dst);
  EXPECT_EQ(qvp::sum(dst), 500);
  qvp::Filter<Qvp16s>::erode({3, 3}, cross, {1, 1})(point, dst, qvp::BorderType::constant, {-7});
  EXPECT_EQ(qvp::sum(dst), 16 * -7);
}

TEST(Filter, OfFloatsAndColorsGivesWhatCGives) {
  const QvpiSize size{33, 21};
  const auto picture = Noise<Qvp8u, 3>(size);
  Image<Qvp8u, 3> got(size), expected(size);
  int record_bytes = 0, work_bytes = 0;
  qvpiFilterGaussBorderGetSize({7, 5}, size, qvp8u, 3, &record_bytes, &work_bytes);
  qvp::Buffer record(record_bytes), work(work_bytes);
  auto* spec = reinterpret_cast<QvpiFilterGaussBorderSpec*>(record.data());
  ASSERT_EQ(qvpiFilterGaussBorderInit({7, 5}, 1.5F, 0.8F, qvp8u, 3, spec), qvpStatusNoError);
  const Qvp8u value[] = {9, 8, 7};
  ASSERT_EQ(qvpiFilterGaussBorder_8u_C3R(picture.data(), picture.step(), expected.data(), expected.step(), size,
                                         qvpBorderConst, value, spec, work.data()),
            qvpStatusNoError);
  auto gauss = qvp::Filter<Qvp8u, 3>::gauss({7, 5}, 1.5F, 0.8F);
  gauss(picture, got, qvp::BorderType::constant, {9, 8, 7});
  EXPECT_TRUE(Same(got, expected));
  gauss(picture.view({0, 0, 9, 9}), got.view({0, 0, 9, 9}));  // a filter is for every size

  const auto bilateral = qvp::Filter<Qvp8u, 3>::bilateral(3, 20, 2);
  bilateral(picture, got, qvp::BorderType::replicate, {}, work);
  EXPECT_LT(qvp::norm_diff_inf(picture, got)[0], 250);
  EXPECT_GT(qvp::norm_diff_inf(picture, got)[0], 0);
  const std::vector<Qvp32f> thirds(3, 1 / 3.0F), ninths(9, 1 / 9.0F);
  qvp::Filter<Qvp8u, 3>::separable(thirds, thirds)(picture, got);
  qvp::Filter<Qvp8u, 3>::kernel({3, 3}, ninths)(picture, expected);
  EXPECT_LE(qvp::norm_diff_inf(expected, got)[1], 1);
  EXPECT_EQ(Refused([&] { qvp::Filter<Qvp8u, 3>::kernel({3, 4}, ninths); }), qvpStatusSize);
  EXPECT_EQ(Refused([&] { qvp::Filter<Qvp8u, 3>::gauss({4, 3}, 1); }), qvpStatusMaskSize);
}

TEST(Warp, MovesByAMatrixAndByTiles) {
  const QvpiSize size{31, 27};
  const auto picture = Noise<Qvp8u, 3>(size);
  Image<Qvp8u, 3> affine(size), perspective(size), tiles(size);
  const qvp::Matrix<2, 3> shift{{{1, 0, 5}, {0, 1, 3}}};
  for (const auto method : {InterpolationType::nearest, InterpolationType::linear, InterpolationType::cubic}) {
    qvp::Warp<Qvp8u, 3>(size, size, shift, {.method = method, .value = {1, 2, 3}})(picture, affine);
    EXPECT_TRUE(Same(affine.view().view({5, 3, 26, 24}), Image<Qvp8u, 3>(Noise<Qvp8u, 3>(size)).view({0, 0, 26, 24})));
    EXPECT_EQ(affine.row(0)[2], 3);
    const qvp::Matrix<2, 3> turn{{{0.9, 0.3, 2}, {-0.2, 1.1, 4}}};
    const qvp::Matrix<3, 3> same_turn{{{0.9, 0.3, 2}, {-0.2, 1.1, 4}, {0, 0, 1}}};
    const qvp::WarpOptions options{
        .method = method, .direction = qvp::WarpDirection::backward, .border = qvp::BorderType::replicate};
    qvp::Warp<Qvp8u, 3>(size, size, turn, options)(picture, affine);
    const qvp::Warp<Qvp8u, 3> warp(size, size, same_turn, options);
    qvp::Buffer buffer;
    warp(picture, perspective, buffer);
    EXPECT_LE(qvp::norm_diff_inf(affine, perspective)[2], 1) << int(method);
    warp.tile(picture, tiles.view({0, 0, 31, 10}), {0, 0}, buffer);
    warp.tile(picture, tiles.view({0, 10, 31, 17}), {0, 10}, buffer);
    EXPECT_TRUE(Same(tiles, perspective));
  }
  EXPECT_EQ(Refused([&] { qvp::Warp<Qvp8u>(size, size, qvp::Matrix<2, 3>{}); }), qvpStatusCoefficient);
  EXPECT_EQ(Refused([&] { qvp::Warp<Qvp8u, 3>(size, {9, 9}, shift)(picture, affine); }), qvpStatusSize);
}

TEST(Warp, GivesWhatCGivesWithItsParameters) {
  const QvpiSize src{40, 30}, dst{50, 45};
  const double matrix[3][3] = {{1.1, 0.2, 3}, {-0.1, 1.3, 2}, {1e-3, 2e-3, 1}};
  const auto picture = Noise<Qvp16s>(src);
  Image<Qvp16s> got(dst), expected(dst);
  qvp::fill(got, -5);
  qvp::fill(expected, -5);
  int size = 0, init = 0;
  qvpiWarpPerspectiveGetSize(src, dst, qvp16s, matrix, qvpInterpolationCubic, qvpWarpForward, qvpBorderTransparent,
                             &size, &init);
  qvp::Buffer record(size), temporary(init), work(1 << 20);
  auto* spec = reinterpret_cast<QvpiWarpSpec*>(record.data());
  ASSERT_EQ(qvpiWarpPerspectiveCubicInit(src, dst, qvp16s, matrix, qvpWarpForward, 1, 0.2, 0.6, qvpBorderTransparent,
                                         nullptr, 1, spec, temporary.data()),
            qvpStatusNoError);
  ASSERT_EQ(qvpiWarpPerspectiveCubic_16s_C1R(picture.data(), picture.step(), expected.data(), expected.step(), {0, 0},
                                             dst, spec, work.data()),
            qvpStatusNoError);
  const qvp::Matrix<3, 3> same{{{1.1, 0.2, 3}, {-0.1, 1.3, 2}, {1e-3, 2e-3, 1}}};
  qvp::Warp<Qvp16s>(src, dst, same,
                    {.method = InterpolationType::cubic,
                     .border = qvp::BorderType::transparent,
                     .smooth_edge = true,
                     .b = 0.2,
                     .c = 0.6})(picture, got);
  EXPECT_TRUE(Same(got, expected));
}

TEST(Warp, TakesMatricesFromPointsAndQuadrangles) {
  const qvp::Quad from{{{0, 0}, {8, 0}, {8, 4}, {0, 4}}}, to{{{1, 2}, {17, 2}, {17, 10}, {1, 10}}};
  EXPECT_EQ(qvp::affine_transform(from, to), (qvp::Matrix<2, 3>{{{2, 0, 1}, {0, 2, 2}}}));
  EXPECT_NEAR(qvp::perspective_transform(from, to)[0][2], 1, 1e-12);
  const auto quarter = qvp::rotation(90, {5, 5}, {7, 9}, 2);
  EXPECT_NEAR(quarter[0][0] * 6 + quarter[0][1] * 5 + quarter[0][2], 7, 1e-12);
  EXPECT_NEAR(quarter[1][0] * 6 + quarter[1][1] * 5 + quarter[1][2], 7, 1e-12) << "up, by twice as much";
  EXPECT_EQ(Refused([&] { (void)qvp::perspective_transform(qvp::Quad{}, to); }), qvpStatusQuad);
}

TEST(Fourier, GoesThereAndBack) {
  const QvpiSize size{15, 8};
  const auto picture = Noise<Qvp32f, 3>(size);
  Image<Qvp32f, 3> spectrum(size), back(size);
  qvp::Fourier<Qvp32f, 3> real(size);
  real.forward(picture, spectrum);
  EXPECT_NEAR(spectrum.row(0)[1], qvp::sum(picture)[1], 0.01) << "the mean comes first, and forward divides by nothing";
  real.inverse(spectrum, back);
  EXPECT_LT(qvp::norm_diff_inf(picture, back)[2], 1e-3);

  Image<Qvp32fc> wave(size), result(size);
  for (int y = 0; y < 8; ++y) std::fill_n(wave.row(y), 15, Qvp32fc{0, 2});
  const qvp::Fourier<Qvp32fc> complex(size, qvp::FourierNorm::forward);
  qvp::Buffer buffer;
  complex.forward(wave, result, buffer);
  EXPECT_NEAR(result.row(0)->im, 2, 1e-6);
  EXPECT_NEAR(result.row(3)[4].im, 0, 1e-6);
  EXPECT_EQ(Refused([&] { real.forward(picture.view({0, 0, 14, 8}), spectrum); }), qvpStatusSize);
}

TEST(Cosine, GoesThereAndBack) {
  const auto picture = Noise<Qvp32f>({10, 6});
  Image<Qvp32f> spectrum(picture.size());
  qvp::Cosine cosine(picture.size());
  cosine.forward(picture, spectrum);
  EXPECT_NEAR(spectrum.row(0)[0], qvp::sum(picture) / std::sqrt(60.0), 0.01);
  cosine.inverse(spectrum, spectrum);
  EXPECT_LT(qvp::norm_diff_inf(picture, spectrum), 1e-3);
}

TEST(Curve, TakesPixelsThroughItsPoints) {
  Image<Qvp8u, 3> image(2, 1), dst(2, 1);
  qvp::fill(image, {0, 50, 200});
  const Qvp32f levels[] = {0, 100, 200}, values[] = {10, 20, 220};
  const qvp::Curve<Qvp8u> curve(levels, values);
  curve(image, dst);
  EXPECT_EQ(dst.row(0)[3] * 1000000 + dst.row(0)[4] * 1000 + dst.row(0)[5], 10015220);
  EXPECT_EQ(Refused([&] { qvp::Curve<Qvp8u>(levels, {values, 2}); }), qvpStatusSize);
}

TEST(Noise, IsThatOfThePlace) {
  Image<Qvp32f> image(200, 100), whole(200, 100), part(50, 30);
  qvp::fill(image, 100);
  for (const auto& noise : {qvp::Noise::uniform(-9, 9, 1), qvp::Noise::gauss(0, 5, 1), qvp::Noise::speckle(0.05, 1),
                            qvp::Noise::shot(0.3, 0, 1), qvp::Noise::salt_pepper(0.01, 0.5, 50, 150, 1)}) {
    noise(image, whole);
    EXPECT_NEAR(qvp::mean(whole), 100, 0.3);
    EXPECT_NEAR(qvp::norm_diff_l2(image, whole) / std::sqrt(20000.0), 5.2, 0.5);
    noise(image.view({0, 0, 50, 30}), part, 0, {120, 60});
    EXPECT_TRUE(Same(part.view(), whole.view({120, 60, 50, 30})));
  }
}

TEST(Histogram, CountsEachChannel) {
  Image<Qvp8u, 3> image(4, 2);
  qvp::fill(image, {10, 99, 100});
  qvp::Histogram<Qvp8u, 3> histogram(10, 0, 100);
  EXPECT_EQ(histogram.counts(2)[9], 0u) << "nothing was counted yet";
  histogram(image);
  histogram(image);
  EXPECT_EQ(histogram.counts(0)[1], 8u);
  EXPECT_EQ(histogram.counts(1)[9], 8u);
  EXPECT_EQ(histogram.counts(2)[9], 0u);
  EXPECT_EQ(histogram.counts(2).size(), 10u);
  EXPECT_EQ(Refused([] { qvp::Histogram<Qvp8u>(0, 0, 1); }), qvpStatusHistoLevels);
}

TEST(Moments, OfAPointTellItsPlace) {
  Image<Qvp8u> image(9, 7);
  qvp::fill(image, 0);
  image.row(4)[6] = 10;
  const qvp::Moments moments(image);
  EXPECT_EQ(moments.spatial(0, 0), 10);
  EXPECT_EQ(moments.spatial(1, 0), 60);
  EXPECT_EQ(moments.spatial(0, 1), 40);
  EXPECT_EQ(moments.spatial(0, 1, 0, {0, 100}), 1040);
  EXPECT_EQ(moments.central(2, 0), 0);
  EXPECT_EQ(moments.hu()[0], 0);
  EXPECT_LT(Refused([&] { (void)moments.central(9, 9); }), 0);
}

TEST(Hog, DescribesWindows) {
  const auto picture = Noise<Qvp8u>({40, 40});
  qvp::Hog hog({0, 8, 16, 8, 9, 8, 0.2F, {16, 16}});
  ASSERT_EQ(hog.length(), 36);
  std::vector<Qvp32f> two(72), one(36);
  const QvpiPoint windows[] = {{0, 0}, {9, 5}};
  hog(picture, windows, two);
  hog(picture, {windows + 1, 1}, one);
  EXPECT_EQ(one, std::vector<Qvp32f>(two.begin() + 36, two.end()));
  EXPECT_GT(one[0] + one[1], 0);
  EXPECT_EQ(Refused([&] { hog(picture, windows, one); }), qvpStatusSize);
}

}  // namespace
