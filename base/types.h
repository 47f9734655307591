// Selectors of pixel types.
#pragma once

#include <cstdint>
#include <type_traits>

#include "qvptypes.h"

namespace qvp {

// The selector of a pixel type.
template <class T>
constexpr QvpDataType DataTypeOf() {
  if constexpr (std::is_same_v<T, double>) return qvp64f;
  if constexpr (std::is_same_v<T, float>) return qvp32f;
  if constexpr (sizeof(T) == sizeof(uint8_t)) return qvp8u;
  if constexpr (sizeof(T) == sizeof(uint16_t)) return std::is_signed_v<T> ? qvp16s : qvp16u;
}

}  // namespace qvp
