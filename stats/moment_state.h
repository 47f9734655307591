// The state that moments are kept in.
#pragma once

#include <cstddef>
#include <cstring>

#include "base/scalar.h"
#include "qvptypes.h"

namespace qvp::stats {

// The record, at any address of the caller: it is read and written by copying. Moments begin at byte 16 on every ABI.
struct MomentState {
  int32_t identification, hint, channels, unused;
  double moments[3][16];  // M(m, n) at m + 4 n

  static constexpr int kIdentification = 35;

  // A record of another family may be shorter.
  static bool IsAt(const QvpiMomentState_64f* p) {
    return LoadScalar(reinterpret_cast<const int32_t*>(p)) == kIdentification;
  }
  explicit MomentState(const QvpiMomentState_64f* from) { std::memcpy(this, from, sizeof(*this)); }
};
static_assert(sizeof(MomentState) == 400 && offsetof(MomentState, moments) == 16);

}  // namespace qvp::stats
