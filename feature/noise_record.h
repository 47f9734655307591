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
  // Uniform: the lower bound and the width; Gauss: mean and sigma; speckle: 0 and sigma; shot: gain and sigma^2.
  float offset, scale;
  // Words below `hit` are salt or pepper, those of them below `top` salt.
  uint32_t hit, top;
  double pepper, salt;
};
static_assert(sizeof(Record) <= kRecordBoundary);

}  // namespace qvp::noise
