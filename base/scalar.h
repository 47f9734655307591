// Scalars at any address, and small arithmetic of scalars.
#pragma once

#include <cstddef>
#include <cstring>
#include <type_traits>

namespace qvp {

// Callers' arrays and samples may lie at any address.
template <class T>
T LoadScalar(const T* from) {
  T value;
  std::memcpy(&value, from, sizeof(T));
  return value;
}
template <class T>
void StoreScalar(T* to, std::type_identity_t<T> value) {
  std::memcpy(to, &value, sizeof(T));
}

// The largest integer that is not above x, which is in range.
constexpr ptrdiff_t FloorOf(double x) {
  const auto whole = static_cast<ptrdiff_t>(x);
  return static_cast<double>(whole) > x ? whole - 1 : whole;
}

}  // namespace qvp
