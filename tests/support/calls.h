// The rows of the list of functions as they are derived from the public headers: a table without constructors, whose
// file is compiled without optimisation, in seconds.
#pragma once

#include "tests/support/exports.h"

namespace test {

struct Call {
  const char *name, *parameters;  // "type|name" of each parameter, with semicolons between
  QvpStatus statuses[16];         // other than success, in the documented order; ends with that
  QvpStatus (*call)(const Argument*);
};

// Ends with a row without a name.
extern const Call kCalls[];

// A structure of two to six numbers.
template <class T>
T As(const Argument& a) {
  if constexpr (requires(T t) { t.z, t.width; }) {
    return {int{a.number}, int{a.second}, int{a.third}, int{a.fourth}, int{a.fifth}, int{a.sixth}};
  } else if constexpr (
      requires(T t) { t.z; } || requires(T t) { t.depth; }) {
    return {int{a.number}, int{a.second}, int{a.third}};
  } else if constexpr (requires(T t) { t.x, t.width; }) {
    return {static_cast<decltype(T::x)>(a.number), static_cast<decltype(T::x)>(a.second),
            static_cast<decltype(T::x)>(a.third), static_cast<decltype(T::x)>(a.fourth)};
  } else if constexpr (requires(T t) { t.x; }) {
    return {static_cast<decltype(T::x)>(a.number), static_cast<decltype(T::x)>(a.second)};
  } else {
    return {static_cast<decltype(T::width)>(a.number), static_cast<decltype(T::width)>(a.second)};
  }
}

}  // namespace test
