// What the name of an exported function says: qvpi<operation>_<types>_<layout>[I|M]R[s|Sfs][_L].
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "tests/support/element.h"
#include "tests/support/exports.h"

namespace test {

struct Name {
  // Threshold_GT of qvpiThreshold_GT_8u_C1R; without underscores and what follows them, Threshold.
  std::string operation, family;
  std::string type;    // 8u, 8u16u
  std::string layout;  // C1, C3AC4, P3C3, C4C; empty where a name has none
  bool inPlace = false, isMasked = false, isWide = false;
  int channels = 0, written = 0;  // of a source pixel, and those that are not kept

  explicit Name(std::string_view name);
  // Of the pixels; where there are two types, of the source and of the destination.
  const Element& From() const;
  const Element& To() const;
};

// The exported functions on images whose operations are among those given, or all of them whose family is.
std::vector<const Export*> FunctionsOf(std::initializer_list<std::string_view> operations);
std::vector<const Export*> FamilyOf(std::initializer_list<std::string_view> families);
// Of an operation with sizes of 32 bits, that for pixels of a type and as many channels.
const Export& FunctionOf(std::string_view operation, const Element& element, int channels);

// Calls use.template operator()<T>() with the type that a name spells.
template <class Use>
void WithType(const Element& element, const Use& use) {
  if (element.name == "8u") use.template operator()<uint8_t>();
  if (element.name == "16u") use.template operator()<uint16_t>();
  if (element.name == "16s") use.template operator()<int16_t>();
  if (element.name == "32u") use.template operator()<uint32_t>();
  if (element.name == "32s") use.template operator()<int32_t>();
  if (element.name == "32f") use.template operator()<float>();
}

}  // namespace test
