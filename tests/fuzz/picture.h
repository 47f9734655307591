// The images of a call, laid out anew: any step, at either end of memory that cannot be read beyond, gaps poisoned.
#pragma once

#include <optional>
#include <vector>

#include "tests/fuzz/choices.h"
#include "tests/fuzz/zone.h"
#include "tests/support/exports.h"

namespace fuzz {

inline bool IsPointer(std::string_view type) { return type.ends_with('*') || type.ends_with(']'); }
inline bool IsConst(std::string_view type) { return type.starts_with("const"); }
inline bool IsListOfPlanes(std::string_view type) { return type.ends_with("* const*"); }
// The parameter is an image's pointer: its step follows. Images that share a step stay as the scene has them.
bool IsImage(const test::Export& function, size_t place);
// A volume's planes stay as the scene has them: as many as it chooses, and those in front of the first.
inline bool IsStackOfPlanes(const test::Export& function, size_t place) {
  return function.name.starts_with("qvpr") && IsListOfPlanes(function.parameters[place].type);
}

struct Span {
  uint8_t* data;
  size_t size;
};

struct Picture {
  size_t place;          // of its pointer among the parameters
  const void** pointed;  // where the call finds the pointer: an argument, or a plane's in a list
  bool isWritten;
  const test::Element* element;
  ptrdiff_t rows = 0, rowBytes = 0;           // what the call may touch
  ptrdiff_t originRow = 0, originColumn = 0;  // what the pointer points at, which has neighbours in memory
  ptrdiff_t step = 0;
  uint8_t* first = nullptr;  // row; that with the highest address if the step is negative
  const Zone* zone = nullptr;
  bool isShared = false;  // a source in the memory of the destination

  ptrdiff_t extent() const { return (rows - 1) * std::abs(step) + rowBytes; }
  uint8_t* Row(ptrdiff_t y) const { return first + y * step; }
  uint8_t* low() const { return step < 0 ? Row(rows - 1) : first; }
  uint8_t* pointer() const { return Row(originRow) + originColumn; }
  // All rows, and what is checked around them.
  Span Around() const;
  // Rows lie in the same bytes, so that what they hold in the end depends on the order of writing.
  bool IsOverlapping() const { return rows > 1 && std::abs(step) < rowBytes; }

  void ChooseStep(Choices& choices);
  void PlaceIn(const Zone& in, Choices& choices);
  // Makes the rows of this source those of a destination, or the same bytes from another place on.
  void Share(const Picture& destination, ptrdiff_t shift);
  void Fill(const uint8_t* bytes, size_t size) const;
  template <class Use>
  void ForEachRow(const Use& use) const {
    for (ptrdiff_t y = 0; y < rows; ++y) use(Row(y));
  }
};

// The picture that the arguments describe, whose pixels are a piece of the scene's memory. Empty where the piece has no
// whole number of rows.
std::optional<Picture> PictureOf(const test::Scene& scene, const std::vector<test::Argument>& arguments, size_t place,
                                 const void*& pointer, const test::Scene::Piece& piece);

}  // namespace fuzz
