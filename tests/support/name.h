// What the name of an exported function says: qvpi<operation>_<type>_<layout>[I]R[_L].
#pragma once

#include <string>
#include <vector>

#include "tests/support/exports.h"

namespace test {

struct Name {
  std::string operation, type, layout;
  bool inPlace = false;
  int channels = 0, written = 0;  // of a pixel, and those that are not kept

  explicit Name(const std::string& name) {
    const size_t last = name.rfind('_'), middle = name.rfind('_', last - 1);
    operation = name.substr(4, middle - 4);
    type = name.substr(middle + 1, last - middle - 1);
    inPlace = name.ends_with("IR");
    layout = name.substr(last + 1, name.size() - last - 1 - (inPlace ? 2 : 1));
    channels = layout.back() - '0';
    written = layout == "AC4" ? 3 : channels;
  }
};

// Calls use.template operator()<T>() with the type that a name spells.
template <class Use>
void WithType(const std::string& type, const Use& use) {
  if (type == "8u") use.template operator()<uint8_t>();
  if (type == "16u") use.template operator()<uint16_t>();
  if (type == "16s") use.template operator()<int16_t>();
  if (type == "32s") use.template operator()<int32_t>();
  if (type == "32f") use.template operator()<float>();
}

// The exported functions whose operation is one of those given.
inline std::vector<const Export*> FunctionsOf(const std::vector<std::string>& operations) {
  std::vector<const Export*> found;
  for (const Export& function : Exports()) {
    if (function.name.ends_with("R") &&
        std::find(operations.begin(), operations.end(), Name(function.name).operation) != operations.end()) {
      found.push_back(&function);
    }
  }
  return found;
}

}  // namespace test
