// When stores bypass the caches. This program stands in for the companion's cache query, so that the library takes the
// cache for as large as a test wants, and counts how often the library asks.
#include <dlfcn.h>
#include <gtest/gtest.h>

#include <optional>

#include "qvpcore.h"
#include "qvpi.h"
#include "tests/support/exports.h"

namespace {
std::optional<int> pretendedCache;
QvpStatus pretendedStatus = qvpStatusNoError;
int asked = 0;
}  // namespace

QvpStatus qvpGetMaxCacheSizeB(int* pSizeByte) {
  ++asked;
  if (pretendedStatus != qvpStatusNoError) return pretendedStatus;
  if (!pretendedCache) {
    using Query = QvpStatus (*)(int*);
    static const auto companion = reinterpret_cast<Query>(dlsym(RTLD_NEXT, "qvpGetMaxCacheSizeB"));
    return companion(pSizeByte);
  }
  if (pSizeByte == nullptr) return qvpStatusNullPointer;
  *pSizeByte = *pretendedCache;
  return qvpStatusNoError;
}

namespace {

class Streaming : public testing::Test {
 protected:
  void SetUp() override { asked = 0; }
  void TearDown() override {
    pretendedCache.reset();
    pretendedStatus = qvpStatusNoError;
  }
};

// A fill of more than 512 KiB asks once, a smaller one never; and only bytes of the region count, not those of gaps.
TEST_F(Streaming, FillsAskOnlyWhenLarge) {
  std::vector<Qvp8u> pixels(1 << 20);
  ASSERT_EQ(qvpiSet_8u_C1R(1, pixels.data(), 1024, {1024, 512}), qvpStatusNoError);
  ASSERT_EQ(qvpiSet_8u_C1R(1, pixels.data(), 1024, {512, 1024}), qvpStatusNoError);
  EXPECT_EQ(asked, 0);
  ASSERT_EQ(qvpiSet_8u_C1R(1, pixels.data(), 1024, {1024, 513}), qvpStatusNoError);
  EXPECT_EQ(asked, 1);
}

// The same bytes whichever way they are stored, in rows whose lengths are no multiple of a vector. One type of each
// width stands for the others, which share its kernels.
TEST_F(Streaming, ChangesNoResult) {
  constexpr QvpiSize kRoi{4099, 130}, kOfPixels{4099, 36};  // above 512 KiB by bytes, by pixels of 4
  for (const test::Export& function : test::Exports()) {
    const auto is = [&](const char* text) { return function.name.find(text) != std::string::npos; };
    if (!(is("qvpiSet_") || is("qvpiCopy_")) || !(is("_8u_") || is("_16u_") || is("_32f_")) || is("MR")) continue;
    pretendedStatus = qvpStatusNotSupportedMode;
    const QvpiSize roi = is("_8u_") || is("_C1") || is("P3") || is("P4") ? kRoi : kOfPixels;
    test::Scene ordinary(function, roi, 9), streamed(function, roi, 9);
    ASSERT_EQ(ordinary.Call(), qvpStatusNoError) << function.name;
    pretendedStatus = qvpStatusNoError;
    pretendedCache = 524289;
    ASSERT_EQ(streamed.Call(), qvpStatusNoError) << function.name;
    ASSERT_EQ(ordinary.HashOfOutputs(), streamed.HashOfOutputs()) << function.name;
  }
}

// Planes stream when all of their rows are aligned, and must not be streamed to otherwise: unaligned streaming stores
// end the process.
class Planes : public Streaming, public testing::WithParamInterface<int> {};

TEST_P(Planes, ComeBackMerged) {
  pretendedCache = 1 << 20;
  const QvpiSize roi{701, 600};
  const int step = 3 * 704, planeStep = 704, shift = GetParam();
  const auto allocate = [](int bytes) {
    return std::unique_ptr<Qvp8u, decltype(&qvpFree)>(static_cast<Qvp8u*>(qvpMalloc(bytes)), qvpFree);
  };
  const auto pixels = allocate(step * 601), merged = allocate(step * 601);
  const auto a = allocate(planeStep * 601), b = allocate(planeStep * 601), c = allocate(planeStep * 601);
  Qvp8u* const planes[] = {a.get() + shift, b.get(), c.get() + shift};
  test::Random(3).Fill(pixels.get(), step * 600);
  ASSERT_EQ(qvpiCopy_8u_C3P3R(pixels.get(), step, planes, planeStep, roi), qvpStatusNoError);
  ASSERT_EQ(qvpiCopy_8u_P3C3R(planes, planeStep, merged.get() + shift, step, roi), qvpStatusNoError);
  EXPECT_EQ(asked, shift == 0 ? 2 : 0);
  for (int y = 0; y < roi.height; ++y) {
    ASSERT_EQ(std::memcmp(pixels.get() + y * step, merged.get() + shift + y * step, 3 * roi.width), 0) << y;
  }
}

INSTANTIATE_TEST_SUITE_P(Streaming, Planes, testing::Values(0, 1, 16, 32));

}  // namespace
