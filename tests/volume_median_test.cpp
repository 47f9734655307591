// Medians of cuboids against sorted voxels, of volumes, of exchanged steps, and of planes in any order.
#include <algorithm>
#include <cstring>
#include <vector>

#include "gtest/gtest.h"
#include "tests/support/bordered.h"
#include "tests/support/voxels.h"

namespace {
using test::Block;
using test::Element;
using test::Export;
using test::Name;
using test::Surrounded;
using test::Voxels;

// A number in the order of voxels.
int64_t OrderOf(const Element& element, const uint8_t* voxel) {
  if (element.isInteger) return static_cast<int64_t>(element.read(voxel));
  int32_t bits;
  std::memcpy(&bits, voxel, sizeof(bits));
  return bits ^ ((bits >> 31) & 0x7FFFFFFF);
}

const uint8_t* MedianAt(const Surrounded& src, const Element& element, QvprVolume mask, const uint8_t* constant, int x,
                        int y, int z) {
  std::vector<std::pair<int64_t, const uint8_t*>> covered;
  for (int w = -mask.depth / 2; w <= mask.depth / 2; ++w) {
    for (int v = -mask.height / 2; v <= mask.height / 2; ++v) {
      for (int u = -mask.width / 2; u <= mask.width / 2; ++u) {
        const uint8_t* const found = src.At(x + u, y + v, z + w);
        const uint8_t* const voxel = found ? found : constant;
        covered.emplace_back(OrderOf(element, voxel), voxel);
      }
    }
  }
  const auto middle = covered.begin() + covered.size() / 2;
  std::nth_element(covered.begin(), middle, covered.end());
  return middle->second;
}

int BufferSize(QvprVolume mask, QvprVolume size, QvpDataType type) {
  int bytes = 0;
  EXPECT_EQ(qvprFilterMedianBorderGetBufferSize(mask, size, type, &bytes), 0);
  EXPECT_LE(bytes, (4 << 20) + int64_t{64} * (size.width + 64) * mask.height * mask.depth);
  return bytes;
}

struct Request {
  QvprVolume size, mask;
  int border;
  bool isCoronal = false;
};

void CheckResult(const Export& function, const Request& r, const Surrounded& src, const uint8_t* constant,
                 const Voxels& dst) {
  const Element& element = Name(function.name).From();
  dst.ForEach([&](int x, int y, int z) {
    const uint8_t* const expected = MedianAt(src, element, r.mask, constant, x, y, z);
    ASSERT_EQ(std::memcmp(dst.At(x, y, z), expected, element.bytes), 0)
        << function.name << ' ' << test::Shown(r.size) << " mask " << test::Shown(r.mask) << " border " << r.border
        << " at " << x << ',' << y << ',' << z;
  });
}

// Any bits of integers, and floats at which something changes.
test::Real AnyVoxel(const Element& element, test::Random& random) {
  return element.isInteger ? test::ModestVoxel(element, random) : test::EdgeValue(element, random);
}

void Check(const Export& function, const Request& r) {
  const Element& element = Name(function.name).From();
  const QvprPoint reach{r.mask.width / 2, r.mask.height / 2, r.mask.depth / 2};
  const Surrounded src(r.size, reach, reach, r.border, element.bytes, r.isCoronal);
  const Voxels dst(r.size, element.bytes, 0, r.isCoronal);
  src.all.Fill(element, AnyVoxel);
  const uint8_t constant[4] = {200, 100, 50, 66};
  const Block buffer(BufferSize(r.mask, r.size, element.code));
  test::VolumeCall call(function);
  call.Add("pSrc", src.all, src.origin());
  call.Add("pDst", dst);
  ASSERT_EQ(call({{"dstVolume", r.size},
                  {"maskVolume", r.mask},
                  {"borderType", r.border},
                  {"borderValue", {constant}},
                  {"pBuffer", {buffer.data()}}}),
            0)
      << function.name;
  CheckResult(function, r, src, constant, dst);
}

constexpr int kFlags = qvpBorderInMemVolume;
constexpr QvprVolume kMasks[] = {{3, 3, 3}, {1, 1, 1}, {1, 3, 5}, {5, 1, 3}, {7, 3, 1}, {5, 5, 5}};

TEST(VolumeMedians, EveryMemberMaskAndBorder) {
  int turn = 0;
  for (const Export* function : test::FunctionsOf({"qvprFilterMedianBorder"})) {
    for (const QvprVolume mask : kMasks) {
      for (const QvprVolume size : {QvprVolume{1, 1, 1}, {5, 4, 3}, {37, 2, 2}, {66, 3, 2}}) {
        ++turn;
        const int flags = kFlags & (0x1111 * turn + turn * 16);
        const int kind = turn % 2 ? qvpBorderConst : qvpBorderReplicate;
        Check(*function, {size, mask, turn % 5 ? kind | flags : +qvpBorderInMemVolume, turn % 3 == 0});
      }
    }
  }
}

TEST(VolumeMedians, LargeMasksWideBlocksAndEveryFace) {
  const Export &bytes = test::FunctionNamed("qvprFilterMedianBorder_8u_C1V"),
               &words = test::FunctionNamed("qvprFilterMedianBorder_16s_C1PV");
  Check(bytes, {{40, 3, 2}, {7, 7, 7}, qvpBorderReplicate});
  Check(bytes, {{3, 2, 2}, {9, 5, 31}, qvpBorderConst});
  Check(bytes, {{1100, 2, 1}, {3, 3, 3}, qvpBorderReplicate});
  Check(words, {{1100, 2, 1}, {3, 1, 3}, qvpBorderConst});
  for (int face = 0; face < 6; ++face) {
    const int flag = face < 4 ? 0x10 << face : 0x1000 << (face - 4);
    Check(words, {{9, 4, 3}, {3, 3, 3}, qvpBorderConst | flag});
  }
}

TEST(VolumeMedians, KnownValues) {
  const Qvp8u ones[27] = {1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1}, zero = 0;
  Qvp8u found[27];
  const Block buffer(BufferSize({3, 3, 3}, {3, 3, 3}, qvp8u));
  ASSERT_EQ(qvprFilterMedianBorder_8u_C1V(ones, 3, 9, found, 3, 9, {3, 3, 3}, {3, 3, 3}, qvpBorderConst, &zero,
                                          buffer.data()),
            0);
  EXPECT_EQ(std::count(found, found + 27, 1), 7);
  const float row[] = {1, NAN, 2};
  float medians[3];
  const Block ofRow(BufferSize({3, 1, 1}, {3, 1, 1}, qvp32f));
  ASSERT_EQ(qvprFilterMedianBorder_32f_C1V(row, 12, 12, medians, 12, 12, {3, 1, 1}, {3, 1, 1}, qvpBorderReplicate,
                                           nullptr, ofRow.data()),
            0);
  EXPECT_EQ(medians[0], 1);
  EXPECT_EQ(medians[1], 2);
  EXPECT_EQ(medians[2], 2);
}

TEST(VolumeMedians, HasLimitsOfMasksAndNoNullPlanes) {
  Qvp16u voxels[2] = {5, 6}, found[2];
  Qvp8u buffer[64];
  const Qvp16u *source[] = {voxels, nullptr, voxels}, *const *const planes = source + 1;
  Qvp16u *to[] = {found, nullptr}, *const *const results = to;
  const auto filter = [&](QvprVolume size, QvprVolume mask, int border = qvpBorderReplicate) {
    return qvprFilterMedianBorder_16u_C1PV(planes, 2, results, 2, size, mask, border, nullptr, buffer);
  };
  EXPECT_EQ(filter({1, 1, 1}, {1, 1, 3}), qvpStatusNullPointer);  // plane 0 of source
  source[1] = voxels;
  source[0] = nullptr;
  EXPECT_EQ(filter({1, 1, 1}, {1, 1, 3}, qvpBorderReplicate | qvpBorderInMemFront), qvpStatusNullPointer);
  EXPECT_EQ(filter({1, 1, 2}, {1, 1, 1}), qvpStatusNullPointer);  // of destination
  for (const QvprVolume mask : {QvprVolume{2, 1, 1}, {181, 183, 1}, {INT32_MAX, 1, 1}}) {
    EXPECT_EQ(filter({1, 1, 1}, mask), qvpStatusMaskSize) << test::Shown(mask);
  }
  EXPECT_EQ(filter({1, 1, 1}, {1, 1, 1}, qvpBorderReplicate | 0x4000), qvpStatusBorder);
}

}  // namespace
