// The build for every x86-64: which level a processor has, which one is taken, and that nobody can change it
// afterwards.
#include <gtest/gtest.h>

#include <cstring>
#include <fstream>
#include <sstream>
#include <string>

#ifdef _WIN32
#define WIN32_LEAN_AND_MEAN
#include <windows.h>
#endif

#include "platform/x86/cpu_levels.h"
#include "qvpi.h"

namespace {

// A processor and an operating system with exactly the bits that the ABI asks of level 4.
constexpr qvp::CpuWords kLevel4 = {
    1u << 0 | 1u << 9 | 1u << 12 | 1u << 19 | 1u << 20 | 1u << 22 | 1u << 23 | 1u << 28 | 1u << 29, 1u << 25 | 1u << 26,
    1u << 3 | 1u << 5 | 1u << 8 | 1u << 16 | 1u << 17 | 1u << 28 | 1u << 30 | 1u << 31, 1u << 5, 0xE6};

TEST(Levels, EachBitThatIsMissingTakesTheLevelsThatNeedIt) {
  EXPECT_EQ(qvp::LevelOf(qvp::FeaturesOf(kLevel4)), 4);
  EXPECT_EQ(qvp::LevelOf(qvp::FeaturesOf({})), 1);
  struct Lack {
    unsigned qvp::CpuWords::*word;
    int bit, level;
  };
  using Words = qvp::CpuWords;
  const Lack lacks[] = {
      {&Words::basicEdx, 25, 1},    {&Words::basicEdx, 26, 1},    {&Words::basicEcx, 0, 1},
      {&Words::basicEcx, 9, 1},     {&Words::basicEcx, 19, 1},    {&Words::basicEcx, 20, 1},
      {&Words::basicEcx, 23, 1},    {&Words::basicEcx, 12, 2},    {&Words::basicEcx, 22, 2},
      {&Words::basicEcx, 28, 2},    {&Words::basicEcx, 29, 2},    {&Words::extendedEbx, 3, 2},
      {&Words::extendedEbx, 5, 2},  {&Words::extendedEbx, 8, 2},  {&Words::amdEcx, 5, 2},
      {&Words::extendedEbx, 16, 3}, {&Words::extendedEbx, 17, 3}, {&Words::extendedEbx, 28, 3},
      {&Words::extendedEbx, 30, 3}, {&Words::extendedEbx, 31, 3},
  };
  for (const Lack& lack : lacks) {
    Words cpu = kLevel4;
    cpu.*lack.word &= ~(1u << lack.bit);
    EXPECT_EQ(qvp::LevelOf(qvp::FeaturesOf(cpu)), lack.level) << "without bit " << lack.bit;
  }
}

TEST(Levels, NeedTheOperatingSystemToSaveTheRegisters) {
  for (const auto& [state, level] :
       {std::pair{0, 2}, {2, 2}, {4, 2}, {6, 3}, {0xE0, 2}, {0x66, 3}, {0xA6, 3}, {0xC6, 3}, {0xE4, 2}, {0xE7, 4}}) {
    qvp::CpuWords cpu = kLevel4;
    cpu.savedState = static_cast<uint64_t>(state);
    EXPECT_EQ(qvp::LevelOf(qvp::FeaturesOf(cpu)), level) << state;
  }
}

TEST(Levels, CanBeLoweredAndNotRaised) {
  EXPECT_EQ(qvp::ChosenLevel(4, "v2"), 2);
  EXPECT_EQ(qvp::ChosenLevel(4, "v3"), 3);
  EXPECT_EQ(qvp::ChosenLevel(3, "v3"), 3);
  EXPECT_EQ(qvp::ChosenLevel(3, "v4"), 3);
  EXPECT_EQ(qvp::ChosenLevel(1, "v2"), 1);
  for (const char* nonsense :
       {static_cast<const char*>(nullptr), "", "v", "v1", "v5", "v22", "v2 ", "V2", "2", "v\xFF"}) {
    EXPECT_EQ(qvp::ChosenLevel(4, nonsense), 4);
  }
}

#ifdef _WIN32
bool IsReadOnly(uintptr_t address) {
  MEMORY_BASIC_INFORMATION info;
  EXPECT_NE(VirtualQuery(reinterpret_cast<const void*>(address), &info, sizeof info), 0u);
  return info.Protect == PAGE_READONLY;
}
constexpr unsigned char kStub[] = {0xFF, 0x25};  // a jump
#else
bool IsReadOnly(uintptr_t address) {
  std::ifstream maps("/proc/self/maps");
  for (std::string line; std::getline(maps, line);) {
    uintptr_t from = 0, to = 0;
    char dash = 0;
    std::string rights;
    std::istringstream(line) >> std::hex >> from >> dash >> to >> rights;
    if (from <= address && address < to) return rights == "r--p";
  }
  return false;
}
constexpr unsigned char kStub[] = {0xF3, 0x0F, 0x1E, 0xFA, 0xFF, 0x25};  // a landing mark and a jump
#endif

// Where the jump goes through, so many bytes behind the stub.
uintptr_t SlotOf(const void* stub) {
  const auto* code = static_cast<const unsigned char*>(stub);
  EXPECT_EQ(std::memcmp(code, kStub, sizeof kStub), 0);
  int32_t distance;
  std::memcpy(&distance, code + sizeof kStub, sizeof distance);
  return reinterpret_cast<uintptr_t>(code + sizeof kStub + sizeof distance) + static_cast<uintptr_t>(distance);
}

TEST(Entries, CannotBeChanged) {
  const void* const stubs[] = {reinterpret_cast<void*>(&qvpiGetLibVersion), reinterpret_cast<void*>(&qvpiSet_8u_C1R),
                               reinterpret_cast<void*>(&qvpiWarpPerspectiveLinear_8u_C3R)};
  for (const void* stub : stubs) {
#ifdef _WIN32
    stub = *reinterpret_cast<void**>(SlotOf(stub));  // the program has a jump of its own to that in the DLL
#endif
    EXPECT_TRUE(IsReadOnly(SlotOf(stub)));
  }
}

TEST(Entries, AreOfTheBestLevel) {
  EXPECT_EQ(qvpiGetLibVersion()->targetCpu[1] - '0', std::max(2, qvp::LevelOf(ownGetFeature())));
}

}  // namespace
