// Copies into a border: every member, every kind, borders wider than the source.
#include "tests/support/name.h"
#include "tests/support/reference.h"

namespace {
using test::Export;
using test::Guard;
using test::Name;
using Bytes = test::Image<uint8_t>;

struct Frame {
  QvpiSize src, dst;
  int top, left;
};

constexpr uint8_t kValue[16] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16};

// A copy, and the function of the same name that puts a border around an image in place.
struct Member {
  const Export& copy;
  const Export& around;
  Name name{copy.name};
  int pixel = name.channels * name.From().bytes, written = name.written * name.From().bytes;
  int kind = name.operation == "CopyConstBorder"    ? +qvpBorderConst
             : name.operation == "CopyMirrorBorder" ? +qvpBorderMirror
             : name.operation == "CopyWrapBorder"   ? test::kWrap
                                                    : +qvpBorderReplicate;

  QvpStatus Copy(const void* src, int srcStep, void* dst, int dstStep, const Frame& f) const {
    return copy(Arguments(f, {{"pSrc", {src, srcStep}}, {"pDst", {dst, dstStep}}}));
  }
  QvpStatus InPlace(void* image, int step, const Frame& f) const {
    return around(Arguments(f, {{"pSrcDst", {image, step}}}));
  }

 private:
  std::vector<test::Named> Arguments(const Frame& f, std::vector<test::Named> images) const {
    images.insert(images.end(), {{"srcRoiSize", f.src},
                                 {"dstRoiSize", f.dst},
                                 {"topBorderHeight", f.top},
                                 {"leftBorderWidth", f.left},
                                 {"value", {kValue, name.From().read(kValue)}}});
    return images;
  }
};

std::vector<Member> Members() {
  std::vector<Member> members;
  const auto all = test::FunctionsOf({"CopyConstBorder", "CopyMirrorBorder", "CopyReplicateBorder", "CopyWrapBorder"});
  for (const Export* function : all) {
    std::string name = function->name;
    if (Name(name).inPlace) continue;
    name.insert(name.rfind('R'), "I");
    const auto around = std::find_if(all.begin(), all.end(), [&](const Export* other) { return other->name == name; });
    EXPECT_NE(around, all.end()) << name;
    members.push_back({*function, **around});
  }
  return members;
}

// The byte of the result at row y and byte i, counted from the border's first pixel.
uint8_t Expected(const Member& m, const Frame& f, const Bytes& src, const Bytes& before, int y, int i) {
  const int x = i / m.pixel - f.left, row = y - f.top, within = i % m.pixel;
  if (within >= m.written) return before(i, y);
  const int column = test::BorderPosition(m.kind, x, 0, f.src.width - 1);
  const int line = test::BorderPosition(m.kind, row, 0, f.src.height - 1);
  if (column == test::kConstant || line == test::kConstant) return kValue[within];
  return src(column * m.pixel + within, line);
}

void Check(const Member& m, const Frame& f, int gap, Guard guard) {
  const Bytes src(f.src.width * m.pixel, f.src.height, gap + 2, guard), dst(f.dst.width * m.pixel, f.dst.height, gap);
  const Bytes before(dst), image(dst);
  uint8_t* const middle = image.data() + f.top * image.step() + f.left * m.pixel;
  for (int y = 0; y < f.src.height; ++y)
    std::memcpy(middle + y * image.step(), src.bytes() + y * src.step(), src.step() - gap - 2);
  const Bytes source(image);
  ASSERT_EQ(m.Copy(src.data(), src.step(), dst.data(), dst.step(), f), qvpStatusNoError) << m.copy.name;
  ASSERT_EQ(m.InPlace(middle, image.step(), f), qvpStatusNoError) << m.around.name;
  for (int y = 0; y < f.dst.height; ++y) {
    for (int i = 0; i < f.dst.width * m.pixel; ++i) {
      ASSERT_EQ(dst(i, y), Expected(m, f, src, before, y, i))
          << m.copy.name << ' ' << f.src.width << " byte " << i << ',' << y;
      ASSERT_EQ(image(i, y), Expected(m, f, src, source, y, i)) << m.around.name << ' ' << i << ',' << y;
    }
  }
}

TEST(CopyBorder, EveryMember) {
  const Frame frames[] = {{{1, 1}, {1, 1}, 0, 0},       {{1, 3}, {12, 9}, 2, 7},   {{4, 5}, {31, 30}, 11, 10},
                          {{7, 2}, {7, 9}, 3, 0},       {{23, 4}, {64, 4}, 0, 20}, {{40, 6}, {43, 9}, 1, 1},
                          {{64, 5}, {72, 13}, 4, 4},    {{65, 1}, {66, 2}, 0, 1},  {{130, 3}, {147, 8}, 2, 16},
                          {{9, 130}, {30, 140}, 5, 17}, {{16, 3}, {19, 4}, 1, 2},  {{6000, 12}, {6009, 14}, 1, 5}};
  for (const Member& m : Members()) {
    for (const Frame& f : frames) Check(m, f, f.src.width % 4, f.src.width % 2 ? Guard::kAfter : Guard::kBefore);
  }
}

// Of the destination, an image and the border before it leave nothing, or less.
TEST(CopyBorder, RefusesDestinationsThatAreTooSmall) {
  const Frame kTooSmall[] = {{{5, 3}, {9, 9}, -1, 0}, {{5, 3}, {9, 9}, 0, -1},        {{5, 3}, {7, 3}, 0, 3},
                             {{5, 3}, {5, 4}, 2, 0},  {{5, 3}, {9, 9}, INT32_MAX, 0}, {{5, 3}, {9, 9}, 0, INT32_MAX}};
  for (const Member& m : Members()) {
    const Bytes a(600, 3, 0), b(600, 3, 0), before(b);
    for (const Frame& f : kTooSmall) {
      EXPECT_EQ(m.Copy(a.data(), 600, b.data(), 600, f), qvpStatusSize) << m.copy.name;
      EXPECT_EQ(m.InPlace(b.data(), 600, f), qvpStatusSize) << m.copy.name;
    }
    EXPECT_EQ(std::memcmp(b.bytes(), before.bytes(), 1800), 0) << m.copy.name;
  }
}

// One pointer for source and destination: the border goes around it. A step of the source is then not even looked at,
// but where the border is wrapped; with a constant there is no such rule.
TEST(CopyBorder, OnePointerForBothIsTheFormInPlace) {
  for (const Member& m : Members()) {
    if (m.kind == qvpBorderConst) continue;
    const Frame f{{6, 3}, {11, 8}, 2, 3};
    const Bytes a(f.dst.width * m.pixel, f.dst.height, 1), b(a);
    const ptrdiff_t inside = f.top * a.step() + f.left * m.pixel;
    const bool checksFirst = m.kind == test::kWrap;
    ASSERT_EQ(m.InPlace(a.data() + inside, a.step(), f), 0);
    EXPECT_EQ(m.Copy(b.data() + inside, 0, b.data() + inside, b.step(), f), checksFirst ? qvpStatusStep : 0);
    if (checksFirst) {
      EXPECT_EQ(m.Copy(b.data() + inside, 1, b.data() + inside, b.step(), f), 0);
    }
    for (int y = 0; y < f.dst.height; ++y) {
      for (int i = 0; i < f.dst.width * m.pixel; ++i) ASSERT_EQ(a(i, y), b(i, y)) << m.copy.name;
    }
  }
}

}  // namespace
