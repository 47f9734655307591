// Bitwise operations and shifts: each member against one formula in 64 bits, over its whole grid.
#include <array>

#include "tests/support/elements.h"

namespace {
using test::Export;
using test::Name;
using test::Real;

// Constants or counts of the channels; two's complement makes numbers of any type of them.
using Values = std::array<uint32_t, 4>;

// What an operation, by its name without the C of a constant, makes of an element: floor of a quotient to the right,
// modulo 2^bits to the left. From 32 on, all counts are the same.
template <class T>
T Expected(std::string_view operation, T a, T b, uint32_t count) {
  const auto u = static_cast<int64_t>(a), v = static_cast<int64_t>(b);
  const int bits = static_cast<int>(std::min(count, 32u));
  if (operation == "And") return static_cast<T>(u & v);
  if (operation == "Or") return static_cast<T>(u | v);
  if (operation == "Xor") return static_cast<T>(u ^ v);
  if (operation == "Not") return static_cast<T>(-1 - v);
  if (operation == "ShiftLeft") return static_cast<T>(v * (int64_t{1} << bits));
  if (operation == "ShiftRight") return static_cast<T>((v - (v & ((int64_t{1} << bits) - 1))) / (int64_t{1} << bits));
  ADD_FAILURE() << "no formula for " << operation;
  return {};
}

template <class T>
void Check(const Export& function, int pixels, const Values& values) {
  const Name name(function.name);
  const bool hasConstant = function.Has("value"), isShift = name.operation.starts_with("Shift");
  const std::string operation = name.operation.substr(0, name.operation.size() - hasConstant);
  const int height = pixels == 7 ? 700 : 3;  // more narrow rows than go together
  T constants[4];
  for (int c = 0; c < 4; ++c) constants[c] = static_cast<T>(values[c]);
  const auto value = isShift ? test::Argument(values.data(), values[0]) : test::Argument(constants, constants[0]);
  test::CheckElements(
      function, {pixels, height}, {{"value", value}}, [](const test::Samples&) {},
      [&](Real a, Real b, int c) {
        return Expected<T>(operation, hasConstant ? constants[c] : static_cast<T>(a), static_cast<T>(b), values[c]);
      });
}

void CheckAll(std::initializer_list<std::string_view> operations, std::initializer_list<int> widths,
              const Values& values) {
  for (const Export* function : test::FunctionsOf(operations)) {
    test::WithType(Name(function->name).From(), [&]<class T>() {
      for (const int pixels : widths) Check<T>(*function, pixels, values);
    });
  }
}

TEST(Logic, CombinesBitsInEveryLaneOfEveryMember) {
  CheckAll({"And", "Or", "Xor", "AndC", "OrC", "XorC", "Not"}, {1, 2, 7, 15, 16, 17, 31, 33, 64, 67, 150},
           {0x8001F00F, 0x12345678, 0xFFFF0000, 0x55AA55AA});
}

TEST(Shift, ByOneCountForAllChannels) {
  for (uint32_t count = 0; count <= 40; ++count)
    CheckAll({"ShiftLeftC", "ShiftRightC"}, {1, 13, 37}, {count, count, count, count});
  CheckAll({"ShiftLeftC", "ShiftRightC"}, {1, 5, 16, 33, 70}, {UINT32_MAX, UINT32_MAX, UINT32_MAX, 3});
}

// Every count stands in every channel once, beside others; the alpha's of AC4 is none.
TEST(Shift, ByACountForEachChannel) {
  for (uint32_t count = 0; count <= 40; ++count)
    CheckAll({"ShiftLeftC", "ShiftRightC"}, {1, 11, 43}, {count, (count * 7 + 3) % 17, (count + 20) % 41, count / 2});
  CheckAll({"ShiftLeftC", "ShiftRightC"}, {1, 5, 16, 33, 70}, {0, UINT32_MAX, 1, 0});
}

TEST(Shift, FloorsNegativeNumbers) {
  const Qvp16s src[] = {-5, -1, -32768, 32767};
  Qvp16s dst[4];
  const auto shifted = [&](Qvp32u count) {
    EXPECT_EQ(qvpiShiftRightC_16s_C1R(src, 8, count, dst, 8, {4, 1}), qvpStatusNoError);
    return std::vector<int>(dst, dst + 4);
  };
  EXPECT_EQ(shifted(1), (std::vector<int>{-3, -1, -16384, 16383}));
  EXPECT_EQ(shifted(15), (std::vector<int>{-1, -1, -1, 0}));
  EXPECT_EQ(shifted(40), (std::vector<int>{-1, -1, -1, 0}));
}

}  // namespace
