#include "tests/fuzz/picture.h"

#include <algorithm>
#include <array>

#include "tests/support/name.h"

namespace fuzz {
namespace {
using test::Argument;
using test::Export;
using test::Scene;

// Channels of the pixels in an image of a layout such as C3P3 or C3C: those of the source stand first.
int ChannelsOf(std::string_view layout, bool isDestination) {
  const size_t digit = isDestination ? layout.find_last_of("1234") : layout.find_first_of("1234");
  return layout[digit - 1] == 'P' ? 1 : layout[digit] - '0';
}

// Of the function's sizes the one that an image has, by the names of the parameters; -1 where none tells.
int SizeFor(const Export& function, std::string_view image) {
  const bool isSource = image.starts_with("pSrc") && !image.starts_with("pSrcDst");
  const bool isInPlace = image == "pSrcDst";
  using Names = std::array<const char*, 3>;
  static constexpr Names kOfSource{"srcRoiSize", "srcSize", "roiSize"}, kInPlace{"roiSize", "roiSize", "roiSize"},
      kOfDestination{"dstRoiSize", "dstSize", "roiSize"};
  const Names& names = isSource ? kOfSource : isInPlace ? kInPlace : kOfDestination;
  const std::string itsOwn = 's' + std::string(image.substr(std::min<size_t>(image.size(), 2))) + "Size";  // src1Size
  if (const int place = function.Find(itsOwn); isSource && place >= 0) return place;
  for (const char* name : names) {
    if (const int place = function.Find(name); place >= 0) return place;
  }
  return -1;
}

// Neighbours of a region may be in memory, or a record tells how much of the source there is.
bool ReadsBeyond(const Export& function) {
  return function.Has("border") || function.Has("borderType") || function.Has("borderID") || function.Has("pSpec");
}

bool IsTurned(const Scene& scene, const std::vector<Argument>& arguments) {
  const int flip = scene.function().Find("flip"), turns = scene.function().Find("turns");
  if (turns >= 0) return int{arguments[turns].number} % 2 != 0;
  return scene.Has("Transpose") || (flip >= 0 && int{arguments[flip].number} >= qvpAxis45);
}

// Whether an image has the coefficients of blocks of 8 x 8 pixels, each block's 64 in a row.
bool HoldsBlocks(const Scene& scene, bool isDestination) {
  return scene.Has("DCTBlocks") && isDestination == scene.Has("Fwd");
}

// Bytes of a row: pixels of the width, or bits from an offset on.
ptrdiff_t RowBytes(ptrdiff_t width, ptrdiff_t pixel, const Scene& scene, const std::vector<Argument>& arguments,
                   bool isDestination) {
  const int bit = scene.function().Find(isDestination ? "dstBitOffset" : "srcBitOffset");
  return bit < 0 ? width * pixel : (width + (int{arguments[bit].number} & 7) + 7) / 8;
}

// The region alone, if the names of layout and parameters tell it. `before` bytes of memory lie before the pointer.
bool IsRegion(const Scene& scene, const std::vector<Argument>& arguments, ptrdiff_t before, Picture& picture) {
  const Export& function = scene.function();
  const auto& [type, name] = function.parameters[picture.place];
  const test::Name parts(function.name);
  const bool isDestination = name == "pDst", isInPlace = name == "pSrcDst";
  const bool isSource = (name.starts_with("pSrc") && !isInPlace) || name == "pGuide";
  const int top = function.Find("topBorderHeight"), left = function.Find("leftBorderWidth");
  const bool isFramed = isInPlace && top >= 0 && left >= 0;  // the pointer is at what lies in the frame
  const int size = SizeFor(function, isFramed ? "pDst" : name);
  if (parts.layout.empty() || size < 0 || (before != 0 && !isFramed)) return false;
  if (isSource && ReadsBeyond(function)) return false;
  ptrdiff_t width = std::max<ptrdiff_t>(1, arguments[size].number);
  picture.rows = std::max<ptrdiff_t>(1, arguments[size].second);
  if (isDestination && IsTurned(scene, arguments)) std::swap(width, picture.rows);
  if (HoldsBlocks(scene, isDestination)) {
    width = (width + 7) / 8 * 64;
    picture.rows = (picture.rows + 7) / 8;
  }
  const int channels = isSource || isDestination || isInPlace ? ChannelsOf(parts.layout, isDestination) : 1;
  const bool isComplex = type.find("fc") != std::string_view::npos || type.find("sc") != std::string_view::npos;
  const ptrdiff_t pixel = channels * picture.element->bytes * (isComplex ? 2 : 1);
  picture.rowBytes = RowBytes(width, pixel, scene, arguments, isDestination);
  if (!isFramed) return true;
  picture.originRow = std::clamp<ptrdiff_t>(arguments[top].number, 0, picture.rows - 1);
  picture.originColumn = std::clamp<ptrdiff_t>(arguments[left].number, 0, width - 1) * pixel;
  return true;
}

// Steps around that of packed rows, beneath it, and far beyond it. With a single row any step will do.
ptrdiff_t StepFor(Choices& choices, ptrdiff_t rowBytes, ptrdiff_t rows, int element) {
  constexpr int kAny[] = {0, -1, 1, INT32_MAX, INT32_MIN, 7};
  switch (choices.In(0, 15)) {
    default: return rowBytes + choices.Next() % 64 * element;
    case 8:
    case 9: return rowBytes;
    case 10: return rowBytes + choices.Next() % 64;
    case 11: return -(rowBytes + choices.Next() % 64 * element);
    case 12: return choices.Next() % rowBytes / element * element;
    case 13: return -(choices.Next() % rowBytes);
    case 14: return rowBytes + ptrdiff_t{choices.Next()} * 64;
    case 15: return rows == 1 ? choices.Any(kAny) : rowBytes;
  }
}

}  // namespace

bool IsImage(const Export& function, size_t place) {
  const auto& parameters = function.parameters;
  if (place + 1 >= parameters.size() || !IsPointer(parameters[place].type)) return false;
  if (place > 0 && parameters[place - 1].type == parameters[place].type) return false;  // the step is the other's too
  const auto& [type, name] = parameters[place + 1];
  return name.ends_with("Step") && !IsPointer(type) && test::PointedAt(parameters[place].type);
}

Span Picture::Around() const {
  constexpr ptrdiff_t kMargin = 64;
  uint8_t* const from = std::max(zone->begin(), low() - kMargin);
  uint8_t* const to = std::min(zone->end(), low() + extent() + kMargin);
  return {from, static_cast<size_t>(to - from)};
}

void Picture::ChooseStep(Choices& choices) {
  step = StepFor(choices, rowBytes, rows, element->bytes);
  if (extent() > static_cast<ptrdiff_t>(Zone::kBytes / 4)) step = rowBytes;
}

void Picture::PlaceIn(const Zone& in, Choices& choices) {
  zone = &in;
  const int where = choices.Next();  // at the upper end, at the lower one, or at any phase
  uint8_t* const lowest = where % 2 == 0 ? zone->end() - extent() : zone->begin() + where / 4 * (where / 2 % 2);
  first = step < 0 && rows > 1 ? lowest - (rows - 1) * step : lowest;
}

void Picture::Share(const Picture& destination, ptrdiff_t shift) {
  const uint8_t* const lowest = destination.low() + shift;
  const bool fits = lowest >= destination.zone->begin() && lowest + destination.extent() <= destination.zone->end();
  zone = destination.zone;
  step = destination.step;
  first = destination.first + (fits ? shift : 0);
  isShared = true;
}

// The bytes are taken again and again until all rows are full.
void Picture::Fill(const uint8_t* bytes, size_t size) const {
  ptrdiff_t at = 0;
  ForEachRow([&](uint8_t* row) {
    for (ptrdiff_t i = 0; i < rowBytes;) {
      const ptrdiff_t n = std::min(rowBytes - i, static_cast<ptrdiff_t>(size) - at);
      std::memcpy(row + i, bytes + at, n);
      i += n;
      at = (at + n) % static_cast<ptrdiff_t>(size);
    }
  });
}

std::optional<Picture> PictureOf(const Scene& scene, const std::vector<Argument>& arguments, size_t place,
                                 const void*& pointer, const Scene::Piece& piece) {
  const ptrdiff_t step = arguments[place + 1].number, before = static_cast<const uint8_t*>(pointer) - piece.data;
  const auto& [type, name] = scene.function().parameters[place];
  Picture picture{.place = place, .pointed = &pointer, .isWritten = !IsConst(type), .element = test::PointedAt(type)};
  if (IsRegion(scene, arguments, before, picture)) return picture;
  if (step < 1 || piece.size % step != 0) return {};
  picture.rows = piece.size / step;
  picture.rowBytes = step;
  picture.originRow = before / step;
  picture.originColumn = before % step;
  return picture;
}

}  // namespace fuzz
