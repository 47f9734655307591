// The record of noise: what is drawn, and the key of the generator.
#pragma once

#include "base/record.h"

namespace qvp::noise {

enum class Kind : uint32_t { kUniform, kGauss, kSpeckle, kShot, kSaltPepper };

struct Record {
  static constexpr uint32_t kIdentification = 0x4E4F4953;

  uint32_t identification;
  Kind kind;
  uint32_t seed, stream;
  float offset,
      scale;          // uniform: the lower bound, the width; Gauss: mean, sigma; speckle: -, sigma; shot: gain, sigma^2
  uint32_t hit, top;  // words below hit are salt or pepper, of these those below top salt
  double pepper, salt;
};
static_assert(sizeof(Record) <= kRecordBoundary);

}  // namespace qvp::noise
