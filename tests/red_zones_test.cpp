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
#endif
