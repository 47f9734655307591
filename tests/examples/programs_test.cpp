// Runs the programs of examples/programs on pictures of which it is known what has to come out.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <numeric>

#include "examples/programs/picture.hpp"
#include "tests/cpp/picture.h"

namespace {

namespace fs = std::filesystem;
using Photo = qvp::Image<Qvp8u, 3>;
using Gray = qvp::Image<Qvp8u>;

struct Outcome {
  int result;
  std::string output;
};

// Each test has a folder of its own, with its inputs and what programs write.
class Programs : public testing::Test {
 protected:
  Programs() : folder_(testing::UnitTest::GetInstance()->current_test_info()->name()) {
    fs::remove_all(folder_);
    fs::create_directories(folder_);
  }

  std::string In(const std::string& name) const { return (folder_ / name).string(); }

  template <class... Words>
  Outcome Start(const std::string& program, const Words&... words) const {
    std::string command = QVP_PROGRAMS "/" + program;
    ((command += " " + std::string(words)), ...);
    FILE* pipe = popen((command + " 2>&1").c_str(), "r");
    Outcome run;
    for (int c = std::fgetc(pipe); c != EOF; c = std::fgetc(pipe)) run.output += static_cast<char>(c);
    run.result = WEXITSTATUS(pclose(pipe));
    return run;
  }

 private:
  fs::path folder_;
};

// A picture no two places of which are alike, with edges as soft as those of photographs.
Photo Scene(QvpiSize size) {
  Photo scene(size);
  qvp::resize(test::Noise<Qvp8u, 3>({size.width / 6, size.height / 6}), scene,
              {.method = qvp::InterpolationType::cubic});
  return scene;
}

// The root of the mean of the squared differences.
double Distance(qvp::View<const Qvp8u, 3> a, qvp::View<const Qvp8u, 3> b) {
  const auto norms = qvp::norm_diff_l2(a, b);
  return std::hypot(norms[0], norms[1], norms[2]) / std::sqrt(3.0 * a.width() * a.height());
}

TEST_F(Programs, ThumbnailsFitAndFilesThatAreNoPicturesAreTold) {
  Save(In("tall.png"), Scene({300, 600}).view());
  Save(In("wide.jpg"), Scene({500, 120}).view());
  const Photo icon = Scene({40, 30});
  Save(In("icon.png"), icon.view());
  std::ofstream(In("broken.jpg")) << "no picture";
  std::ofstream(In("notes.txt")) << "no picture, and not called one";
  const Outcome run = Start("thumbnails", In(""), In("small"), "100");
  EXPECT_EQ(run.result, 1);
  EXPECT_NE(run.output.find("broken.jpg: "), std::string::npos) << run.output;
  EXPECT_NE(run.output.find("4 of 4"), std::string::npos) << run.output;
  EXPECT_EQ(std::distance(fs::directory_iterator(In("small")), {}), 3);
  const Photo tall = Load<3>(In("small/tall.png")), wide = Load<3>(In("small/wide.jpg"));
  EXPECT_EQ(tall.width() * 1000 + tall.height(), 50100);
  EXPECT_EQ(wide.width() * 1000 + wide.height(), 100024);
  EXPECT_TRUE(test::Same(Load<3>(In("small/icon.png")), icon)) << "small ones stay";
  EXPECT_EQ(Start("thumbnails", In(""), In(".")).result, 1) << "over the pictures";
  EXPECT_EQ(Load<3>(In("tall.png")).height(), 600);
}

// Twelve lines of 25 words, which are bars, in light that falls off to the right; turned by an angle.
Gray Page(double angle) {
  Gray page(640, 480), turned(page.size()), light(page.size());
  qvp::fill(page, 240);
  for (int line = 0; line < 12; ++line) {
    for (int word = 0; word < (line % 5 == 4 ? 11 : 25); ++word) {
      qvp::fill(page.view({120 + 16 * word, 100 + 24 * line, 8 + (5 * word + line) % 6, 10}), 20);
    }
  }
  qvp::Warp<Qvp8u> warp(page.size(), page.size(), qvp::rotation(angle, {320, 240}, {320, 240}), {.value = {240}});
  warp(page, turned);
  qvp::ramp(light, 255, -0.25, 0);
  qvp::multiply_full_scale(turned, light, turned);
  return turned;
}

TEST_F(Programs, AScanComesOutLevelWithoutItsShadowAndMargins) {
  for (const double angle : {-11.3, 0.0, 4.25}) {
    Save(In("scan.png"), Page(angle).view());
    const Outcome run = Start("clean_scan", In("scan.png"), In("clean.png"));
    ASSERT_EQ(run.result, 0) << run.output;
    EXPECT_NEAR(std::atof(run.output.c_str() + std::strlen("turned by ")), -angle, 0.11) << run.output;
    const Gray clean = Load<1>(In("clean.png"));
    EXPECT_NEAR(clean.width(), 16 * 24 + 13 + 2 * 16, 6);
    EXPECT_NEAR(clean.height(), 24 * 11 + 10 + 2 * 16, 4);
    int lines = 0, white = 0;
    for (int y = 1; y < clean.height(); ++y) {
      const auto mean = [&](int row) { return qvp::mean(clean.view({0, row, clean.width(), 1})); };
      lines += mean(y) < 200 && mean(y - 1) >= 200;
      white += mean(y) > 254;
    }
    EXPECT_EQ(lines, 12) << angle;
    EXPECT_GE(white, 11 * 10 + 20) << "between lines, and margins";
  }
}

TEST_F(Programs, APanoramaIsTheSceneOfBothPhotographs) {
  const Photo scene = Scene({780, 420});
  Photo right(420, 420);
  const qvp::Matrix<3, 3> camera{{{1.02, -0.02, -345}, {0.015, 1.01, -9}, {0.00003, 0.00001, 1}}};
  qvp::Warp<Qvp8u, 3> warp(scene.size(), right.size(), camera);
  warp(scene, right);
  Save(In("left.png"), scene.view({0, 0, 500, 420}));
  Save(In("right.png"), right.view());
  const Outcome run = Start("panorama", In("left.png"), In("right.png"), In("joined.png"));
  ASSERT_EQ(run.result, 0) << run.output;
  const Photo joined = Load<3>(In("joined.png"));
  ASSERT_GT(joined.width(), 700);
  ASSERT_GT(joined.height(), 380);
  double least = 1e9;  // how many rows were cut off at the top is the program's choice
  for (int top = 0; top + joined.height() <= 420; ++top) {
    least = std::min(least, Distance(joined, scene.view({0, top, joined.width(), joined.height()})));
  }
  EXPECT_LT(least, 5);
  EXPECT_EQ(Start("panorama", In("left.png"), In("left.png"), In("joined.png")).result, 1) << "nothing to be joined";
}

TEST_F(Programs, ATemplateIsFoundWhereItWasTakenFrom) {
  const Photo scene = Scene({320, 200});
  Photo part(40, 30);
  qvp::multiply(scene.view({123, 45, 40, 30}), {3, 3, 3}, part, 2);  // darker
  Save(In("scene.png"), scene.view());
  Save(In("part.png"), part.view());
  const Outcome run = Start("find_template", In("scene.png"), In("part.png"), In("marked.png"));
  EXPECT_EQ(run.output.substr(0, 9), "123 45 1.") << run.output;
  const Photo marked = Load<3>(In("marked.png"));
  for (const auto [x, y] : {QvpiPoint{123, 45}, QvpiPoint{162, 74}}) {
    const Qvp8u* pixel = marked.view().at(x, y);
    EXPECT_EQ(pixel[0] * 1000 + pixel[1] + pixel[2], 255000);
  }
  EXPECT_EQ(Start("find_template", In("part.png"), In("scene.png")).result, 1) << "larger than the picture";
}

TEST_F(Programs, ABlurIsUndone) {
  const Photo scene = Scene({300, 200});
  Photo blurred(scene.size());
  constexpr int kSide = 9;
  Qvp32f disc[kSide * kSide];
  for (int i = 0; i < kSide * kSide; ++i) disc[i] = std::hypot(i % kSide - 4, i / kSide - 4) <= 4 ? 1 : 0;
  const Qvp32f sum = std::accumulate(std::begin(disc), std::end(disc), 0.0F);
  for (Qvp32f& tap : disc) tap /= sum;
  qvp::Filter<Qvp8u, 3>::kernel({kSide, kSide}, disc)(scene, blurred);
  Save(In("blurred.png"), blurred.view());
  const Outcome run = Start("deblur", In("blurred.png"), In("sharp.png"), "4");
  ASSERT_EQ(run.result, 0) << run.output;
  EXPECT_LT(Distance(Load<3>(In("sharp.png")), scene), 0.6 * Distance(blurred, scene));
}

TEST_F(Programs, StripsGiveTheBytesOfWholeImages) {
  const Outcome run = Start("strips", "333", "211");
  EXPECT_EQ(run.result, 0);
  EXPECT_NE(run.output.find("All are equal."), std::string::npos) << run.output;
}

TEST_F(Programs, TellHowTheyAreCalledAndWhatIsMissing) {
  for (const std::string program : {"thumbnails", "clean_scan", "panorama", "find_template", "deblur", "strips"}) {
    const Outcome run = Start(program, "one");
    EXPECT_EQ(run.result, 2) << program;
    EXPECT_NE(run.output.find("usage: "), std::string::npos) << program;
  }
  for (const std::string program : {"panorama", "find_template", "deblur"}) {
    const Outcome run = Start(program, In("none.png"), In("none.png"), "3");
    EXPECT_EQ(run.result, 1) << program;
    EXPECT_NE(run.output.find("none.png: "), std::string::npos) << program << ": " << run.output;
  }
}

}  // namespace
