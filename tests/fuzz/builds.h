// Other builds of the library beside that which the program is linked with: modules with the list of calls, each of
// which has a library within itself.
#pragma once

#include <string>
#include <vector>

#include "tests/support/calls.h"

namespace fuzz {

struct Build {
  std::string file;
  const test::Call* calls;
};

// Files that are not there are told and left out.
std::vector<Build> LoadBuilds(const std::vector<std::string>& files);

}  // namespace fuzz
