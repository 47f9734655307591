// What functions refuse, and in which order they look.
#pragma once

#include <vector>

#include "tests/support/exports.h"

namespace test {

struct Fault {
  QvpStatus status;
  std::string_view parameter;
  Argument value;
  std::string_view only = {};  // for functions with this in their names
};

inline std::vector<const Export*> FunctionsWith(std::string_view start, std::string_view part) {
  std::vector<const Export*> functions;
  for (const Export& function : Exports()) {
    if (function.name.starts_with(start) && function.name.find(part) != std::string::npos)
      functions.push_back(&function);
  }
  return functions;
}

// Calls with the last fault, then with the one before it too, and so on: each hides all that come later. look(status)
// sees what a call has left.
template <class Look>
void ExpectInOrder(Scene& scene, const std::vector<Fault>& faults, const Look& look) {
  const Export& function = scene.function();
  for (auto fault = faults.rbegin(); fault != faults.rend(); ++fault) {
    const int place = function.Find(fault->parameter);
    if (place < 0 || function.name.find(fault->only) == std::string::npos) continue;
    scene.arguments[place] = fault->value;
    EXPECT_EQ(scene.Call(), fault->status) << function.name << ' ' << fault->parameter;
    look(fault->status);
  }
}

}  // namespace test
