// Image allocation, the version record, and the companion library.
#include <gtest/gtest.h>

#ifdef __linux__
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#endif

#include <climits>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <string>

#include "qvpcore.h"
#include "qvpi.h"

// A refused allocation is part of the tests, not a fault that the sanitizer should end them for.
extern "C" const char* __asan_default_options();
extern "C" const char* __asan_default_options() { return "allocator_may_return_null=1"; }

namespace {

template <class Length, class T>
void CheckLayout(T* (*allocate)(Length, Length, Length*), int pixelBytes) {
  Length step = -1;
  for (const Length width : {1, 5, 64, 100}) {
    T* image = allocate(width, 3, &step);
    ASSERT_NE(image, nullptr);
    EXPECT_EQ(reinterpret_cast<uintptr_t>(image) % 64, 0u);
    EXPECT_EQ(step, (width * pixelBytes + 63) / 64 * 64);
    std::memset(static_cast<void*>(image), 1, 3 * step);
    qvpiFree(image);
  }
  for (const auto& [width, height] : {std::pair{0, 3}, {3, -1}}) {
    step = -1;
    EXPECT_EQ(allocate(width, height, &step), nullptr);
    EXPECT_EQ(step, 0);
  }
  EXPECT_EQ(allocate(3, 3, nullptr), nullptr);
}

TEST(Malloc, EveryMember) {
#define LAYOUT(type, layout, channels)                                               \
  CheckLayout<int>(qvpiMalloc_##type##_##layout, channels * int{sizeof(Qvp##type)}); \
  CheckLayout<QvpSizeL>(qvpiMalloc_##type##_##layout##_L, channels * int{sizeof(Qvp##type)});
#define LAYOUTS(type) \
  LAYOUT(type, C1, 1) LAYOUT(type, C2, 2) LAYOUT(type, C3, 3) LAYOUT(type, C4, 4) LAYOUT(type, AC4, 4)
  LAYOUTS(8u) LAYOUTS(16u) LAYOUTS(16s) LAYOUTS(32s) LAYOUTS(32f) LAYOUTS(32sc) LAYOUTS(32fc)
}

TEST(Malloc, RefusesWhatItsStepCannotTell) {
  const auto expect = [](const auto& allocate, auto width, auto height, auto expected) {
    auto step = expected;
    step = -1;
    EXPECT_EQ(allocate(width, height, &step), nullptr);
    EXPECT_EQ(step, expected) << width;
  };
  expect(qvpiMalloc_8u_C1, INT_MAX, 1, 0);                  // a row of so many bytes cannot be rounded up
  expect(qvpiMalloc_8u_C1, INT_MAX - 63, 2, INT_MAX - 63);  // the row fits, the image does not: the step stays
  expect(qvpiMalloc_8u_C1, 46341, 46341, 46400);
  expect(qvpiMalloc_32f_C3, INT_MAX / 12 + 1, 1, 0);
  expect(qvpiMalloc_32fc_C4, INT_MAX, 1, 0);
  expect(qvpiMalloc_8u_C1_L, PTRDIFF_MAX, 1, QvpSizeL{0});
  expect(qvpiMalloc_32s_C4_L, PTRDIFF_MAX / 8, 1, QvpSizeL{0});
  expect(qvpiMalloc_8u_C1_L, PTRDIFF_MAX / 2, 4, QvpSizeL{PTRDIFF_MAX / 2 / 64 * 64 + 64});
}

TEST(Malloc, GivesImagesBeyondTwoGigabytes) {
  if (sizeof(void*) < 8) GTEST_SKIP() << "no address space for it";
  QvpSizeL step = 0;
  Qvp8u* const image = qvpiMalloc_8u_C1_L(1 << 30, 4, &step);
  ASSERT_NE(image, nullptr);
  EXPECT_EQ(step, 1 << 30);
  for (int y = 0; y < 4; ++y) image[y * step + (1 << 30) - 1] = 7;
  qvpiFree(image);
}

#if defined(__linux__)
// Of a process that may have no more memory. The step is told all the same.
TEST(Malloc, GivesNullWhereMemoryEnds) {
#if defined(__has_feature)
#if __has_feature(address_sanitizer)
  GTEST_SKIP() << "the sanitizer reserves memory of its own";
#endif
#endif
  const pid_t child = fork();
  if (child == 0) {
    const rlimit limit{1 << 20, 1 << 20};
    int step = 0;
    bool isRefused = setrlimit(RLIMIT_AS, &limit) == 0 && qvpMalloc(1 << 30) == nullptr;
    isRefused &= qvpiMalloc_8u_C1(32000, 32000, &step) == nullptr && step == 32000;
    _exit(isRefused ? 0 : 1);
  }
  int result = 0;
  ASSERT_EQ(waitpid(child, &result, 0), child);
  EXPECT_TRUE(WIFEXITED(result) && WEXITSTATUS(result) == 0) << result;
}
#endif

TEST(Version, NamesTheBuild) {
  const QvpLibraryVersion* version = qvpiGetLibVersion();
  EXPECT_EQ(version->major, 2021);
  EXPECT_EQ(version->minor, 11);
  EXPECT_EQ(version->build, -854557950);
  EXPECT_STREQ(version->Version, "2021.11.0 (r0xcd107b02)");
  EXPECT_STREQ(version->BuildDate, "Jan 30 2024");
  // The folder that the loader is sent to has the name of the build.
  const char* path = getenv("LD_LIBRARY_PATH");
  if (path != nullptr) {
    const std::string cpu = std::filesystem::path(path).filename();
    EXPECT_EQ(version->targetCpu, cpu);
    EXPECT_TRUE(std::string(version->Name).ends_with("(" + cpu + ")")) << version->Name;
  }
  if (std::string(version->targetCpu) == "g9") {
    EXPECT_STREQ(version->Name, "qvpIP AVX (g9)");
  }
}

TEST(Companion, AllocatesAlignedBlocks) {
  for (const int length : {1, 63, 64, 65, 100000}) {
    void* block = qvpMalloc(length);
    ASSERT_NE(block, nullptr);
    EXPECT_EQ(reinterpret_cast<uintptr_t>(block) % 64, 0u);
    qvpFree(block);
  }
  EXPECT_EQ(qvpMalloc(0), nullptr);
  EXPECT_EQ(qvpMalloc(-1), nullptr);
  EXPECT_EQ(qvpMalloc_L(PTRDIFF_MAX), nullptr);
  EXPECT_EQ(qvpMalloc_L(PTRDIFF_MIN), nullptr);
  qvpFree(nullptr);
}

#if defined(__x86_64__) || defined(__i386__)
// The kernel's own account of the caches and features.
TEST(Companion, KnowsTheProcessor) {
  int size = 0;
  ASSERT_EQ(qvpGetMaxCacheSizeB(&size), qvpStatusNoError);
  long largest = 0;
  for (int i = 0; i < 8; ++i) {
    const std::string folder = "/sys/devices/system/cpu/cpu0/cache/index" + std::to_string(i) + "/";
    std::string type, text;
    if (std::ifstream(folder + "type") >> type && type != "Instruction" && std::ifstream(folder + "size") >> text) {
      largest = std::max(largest, std::stol(text) * (text.back() == 'M' ? 1L << 20 : 1L << 10));
    }
  }
  if (largest > 0) {
    EXPECT_EQ(size, largest);
  }
  EXPECT_EQ(qvp_get_cache_line_size(), 64);
  std::ifstream info("/proc/cpuinfo");
  const std::string text((std::istreambuf_iterator<char>(info)), {});
  constexpr std::pair<uint64_t, const char*> kFeatures[] = {
      {qvpFeatureSSE42, "sse4_2"}, {qvpFeatureAVX, "avx"},  {qvpFeatureAVX2, "avx2"},
      {qvpFeatureFMA, "fma"},      {qvpFeatureBMI, "bmi2"}, {qvpFeatureAVX512, "avx512vl"}};
  for (const auto& [bit, flag] : kFeatures) {
    EXPECT_EQ((ownGetFeature() & bit) != 0, text.find(std::string(" ") + flag + " ") != std::string::npos) << flag;
  }
}
#else
// Programs are not shown the caches, and need no more than the baseline.
TEST(Companion, KnowsTheProcessor) {
  int size = -1;
  EXPECT_EQ(qvpGetMaxCacheSizeB(&size), qvpStatusNotSupportedMode);
  EXPECT_EQ(size, -1);
  const int line = qvp_get_cache_line_size();
  EXPECT_TRUE(line >= 16 && line <= 256 && (line & (line - 1)) == 0) << line;
  EXPECT_EQ(ownGetFeature(), 0u);
}
#endif

TEST(Companion, RefusesANullPointer) { EXPECT_EQ(qvpGetMaxCacheSizeB(nullptr), qvpStatusNullPointer); }

TEST(Companion, HasATextForEveryStatus) {
  int known = 0;
  for (int status = -400; status < 400; ++status) {
    const std::string text = qvpGetStatusString(status);
    const bool unknown = text == "Unknown status value.";
    known += !unknown;
    EXPECT_TRUE(unknown || (text.starts_with("qvpStatus") && text.find(": ") != std::string::npos)) << text;
  }
  EXPECT_EQ(known, 51);
  EXPECT_STREQ(qvpGetStatusString(qvpStatusNullPointer), "qvpStatusNullPointer: A required pointer is null.");
}

}  // namespace
