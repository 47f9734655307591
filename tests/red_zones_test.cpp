// Where pages cannot be protected, marks around blocks stand in for them: what is written beside a block is reported.
#include <gtest/gtest-spi.h>

#include "tests/support/guarded.h"

#if !QVP_CAN_PROTECT
namespace {

TEST(RedZones, ReportWhatIsWrittenBesideABlock) {
  constexpr ptrdiff_t kBytes = 1000, kFarthest = 256;
  for (const test::Guard guard : {test::Guard::kAfter, test::Guard::kBefore}) {
    for (const ptrdiff_t place : {-kFarthest, ptrdiff_t{-1}, kBytes, kBytes + kFarthest - 1}) {
      EXPECT_NONFATAL_FAILURE(test::Block(kBytes, guard).data()[place] ^= 1, "red zone");
    }
    for (const ptrdiff_t place : {ptrdiff_t{0}, kBytes - 1}) test::Block(kBytes, guard).data()[place] ^= 1;
  }
}

}  // namespace
#elif defined(_WIN32)
// Has to fail, or a crash in an emulator would go unnoticed.
TEST(Guards, DISABLED_EndAProgramThatReadsThem) {
  const test::Block block(1000);
  static_cast<void>(*const_cast<const volatile uint8_t*>(block.data() + 1000));
}
#endif
