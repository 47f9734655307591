// What memory filters take, and their records: by the queries and the Init that their names lead to.
#pragma once

#include <string>
#include <vector>

#include "tests/support/exports.h"

namespace test {

// The functions that prepare a filter, with what it is asked for by name, which they share with it.
class Preparation {
 public:
  // Functions without images are asked about bytes of one channel.
  Preparation(const Export& function, QvpiSize roi, std::vector<Named> demand);

  struct Sizes {
    int spec = 0, buffer = 0;
  };
  // Throws std::runtime_error if they are refused.
  Sizes sizes() const;
  // `kind` is that of an Init of several: _16s. Throws as well.
  void Init(void* spec, const char* kind = "") const;

 private:
  std::string family_;
  std::vector<Named> demand_;
};

}  // namespace test
