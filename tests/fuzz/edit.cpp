#include "tests/fuzz/edit.h"

#include <algorithm>
#include <cmath>

namespace fuzz {
namespace {
using test::Argument;
using test::Element;
using test::Number;
using test::Real;
using test::Scene;

bool IsAny(std::string_view text, std::initializer_list<std::string_view> list) {
  return std::find(list.begin(), list.end(), text) != list.end();
}

// Whole numbers that say nothing about memory; all others may tell how much there is.
bool IsFree(std::string_view name) {
  return IsAny(name, {"scaleFactor", "flag",     "flags",    "weight",       "divisor", "offset",     "mOrd",
                      "nOrd",        "nChannel", "numLobes", "antialiasing", "uniform", "smoothEdge", "interpolation",
                      "eps",         "turns",    "levels",   "minPeriod",    "seed",    "stream",     "frame"});
}

Number AnyInteger(Choices& choices) {
  constexpr int64_t kEdges[] = {0, -1, INT32_MIN, INT32_MAX, 1, 32, INT32_MIN + 1, INT32_MAX - 1, 65536, 1 << 30};
  const int how = choices.In(0, 3);
  return how == 0 ? choices.Any(kEdges) : how == 1 ? choices.Next<int8_t>() : choices.Next<int32_t>();
}

// Zero and below, which is refused, or no more than it was.
Number AtMost(int64_t present, Choices& choices) {
  constexpr int kRefused[] = {0, -1, INT32_MIN, -7};
  if (choices.In(0, 3) == 0) return choices.Any(kRefused);
  return present < 1 ? present : 1 + choices.Next<uint16_t>() % present;
}

double AnyReal(Choices& choices) {
  constexpr double kEdges[] = {NAN, INFINITY, -INFINITY, 0, -0.0, 1, -1, 0.5, 255.5, 0x1p-140, -0x1p31, 3e38, 1e300};
  const int how = choices.In(0, 3);
  return how < 2 ? choices.Any(kEdges) : how == 2 ? choices.Next<int16_t>() / 16.0 : double{choices.Next<float>()};
}

// Selectors that say nothing about memory.
bool IsFreeSelector(std::string_view type) {
  return IsAny(type, {"QvpCmpOp", "QvpDataType", "QvpHintAlgorithm", "QvpNormType", "QvpRoundMode", "QvpiAxis",
                      "QvpiBorderType", "QvpiInterpolationType", "QvpiLBPMode", "QvpiLookupMethod", "QvpiMatchNorm",
                      "QvpiWarpDirection", "QvpiWaveletKind", "QvpiWindow"});
}

// The values of selectors lie between 0 and 20; that of a border keeps the sides that are in memory. Any other
// parameter may be a size.
Number AnySelector(std::string_view type, Number present, Choices& choices) {
  constexpr int kRefused[] = {-1, INT32_MIN};
  if (!IsFreeSelector(type)) return choices.Any(kRefused);
  const Number any = choices.In(0, 3) < 3 ? Number(choices.In(-1, 20)) : AnyInteger(choices);
  if (type != "QvpiBorderType") return any;
  return (int{any} & ~qvpBorderInMem) | (int{present} & qvpBorderInMem);
}

// Whether a work buffer is for the sizes that it was asked for alone: smaller images may need more.
bool HasBufferOfItsSizes(const Scene& scene) { return scene.Has("Convolve") || scene.Has("Match"); }

void EditSize(const Scene& scene, Argument& size, bool isFree, Choices& choices) {
  Number& side = choices.In(0, 1) ? size.second : size.number;
  side = isFree ? AnyInteger(choices) : AtMost(HasBufferOfItsSizes(scene) ? 0 : int64_t{side}, choices);
}

// A mask's buffer is for that mask alone.
void EditVolume(Argument& volume, bool isMask, bool isFree, Choices& choices) {
  Number* const lengths[] = {&volume.number, &volume.second, &volume.third};
  Number& length = *choices.Any(lengths);
  length = isFree ? AnyInteger(choices) : AtMost(isMask ? 0 : int64_t{length}, choices);
}

// Places that say nothing about memory: moments are about any, and images made by formulas are of any part.
bool IsFreePlace(const Scene& scene, std::string_view name) {
  const bool isOfWhole = scene.Has("Ramp") || scene.Has("Jaehne") || scene.Has("Noise");
  return IsAny(name, {"roiOffset", "dstRoiOffset"}) || (isOfWhole && name == "dstOffset");
}

// An offset beyond the destination is refused, unless it may be any.
void EditPoint(Argument& point, bool isFree, Choices& choices) {
  constexpr int kOutside[] = {-1, INT32_MIN, INT32_MAX, -100};
  Number& along = choices.In(0, 1) ? point.second : point.number;
  along = isFree ? AnyInteger(choices) : Number(choices.Any(kOutside));
}

void EditRect(Argument& rect, Choices& choices) {
  Number* const sides[] = {&rect.number, &rect.second, &rect.third, &rect.fourth, &rect.fifth, &rect.sixth};
  *choices.Any(sides) = AnyInteger(choices);
}

// Numbers that are no memory of the scene: those of a table of coefficients, or four.
size_t CountOf(std::string_view type) { return type.find("[3]") != type.npos ? 9 : type.ends_with(']') ? 8 : 4; }

const Element* NumbersOf(std::string_view type) {
  if (!IsConst(type) || IsListOfPlanes(type)) return nullptr;
  if (type.starts_with("const double")) return &test::ElementOf("64f");
  return type == "const int*" ? &test::ElementOf("32s") : test::PointedAt(type);
}

// One of the numbers that a pointer points at. Those of whole numbers may count what other pointers point at.
void EditNumbers(const Scene& scene, size_t place, Argument& argument, Choices& choices, const Zone& spare) {
  const auto& [type, name] = scene.function().parameters[place];
  const Element* const element = NumbersOf(type);
  if (!element || !argument.pointer || name.ends_with("Step")) return;  // steps of planes fit what is in memory
  const auto pieces = scene.Pieces();
  const Scene::Piece* const piece = PieceAt(pieces, argument.pointer);
  const size_t bytes = piece ? piece->size : CountOf(type) * element->bytes;
  uint8_t* const numbers = piece ? piece->data : spare.end() - bytes;
  if (!piece) argument.pointer = std::memcpy(numbers, argument.pointer, bytes);
  uint8_t* const at = numbers + choices.Next<uint16_t>() % (bytes / element->bytes) * element->bytes;
  if (type == "const int*" && name != "dstOrder") {
    element->write(at, Real(AtMost(static_cast<int64_t>(element->read(at)), choices)));
  } else if (element->isInteger) {
    element->write(at, std::clamp(Real(AnyInteger(choices)), element->lowest, element->highest));
  } else {
    element->write(at, AnyReal(choices));
  }
}

void EditPointer(const Scene& scene, size_t place, Argument& argument, Choices& choices, const Zone& spare) {
  if (choices.In(0, 3) == 0) {
    argument.pointer = nullptr;
  } else if (!IsImage(scene.function(), place)) {
    EditNumbers(scene, place, argument, choices, spare);
  }
}

}  // namespace

bool IsQuery(const test::Export& function) {
  const auto isStep = [](const test::Parameter& parameter) { return parameter.name.ends_with("Step"); };
  return function.name.find("Get") != std::string::npos &&
         std::none_of(function.parameters.begin(), function.parameters.end(), isStep);
}

const Scene::Piece* PieceAt(const std::vector<Scene::Piece>& pieces, const void* address) {
  for (const Scene::Piece& piece : pieces) {
    if (address >= piece.data && address < piece.data + piece.size) return &piece;
  }
  return nullptr;
}

void EditArgument(const Scene& scene, std::vector<Argument>& arguments, Choices& choices, const Zone& spare) {
  const size_t place = choices.Next() % arguments.size();
  const auto& [type, name] = scene.function().parameters[place];
  const bool isQuery = IsQuery(scene.function());
  Argument& argument = arguments[place];
  if (IsPointer(type)) {
    EditPointer(scene, place, argument, choices, spare);
  } else if (type.starts_with("QvpiSize")) {
    EditSize(scene, argument, isQuery, choices);
  } else if (type.starts_with("QvpiPoint") || type.starts_with("QvprPoint")) {
    EditPoint(argument, isQuery || IsFreePlace(scene, name), choices);
  } else if (type.starts_with("QvprVolume")) {
    EditVolume(argument, name == "maskVolume", isQuery, choices);
  } else if (type.starts_with("QvpiRect") || type.starts_with("QvprCuboid")) {
    EditRect(argument, choices);
  } else if (IsAny(type, {"Qvp32f", "Qvp64f", "double"})) {
    argument.number = AnyReal(choices);
  } else if (IsAny(type, {"int", "Qvp32u", "QvpSizeL"})) {
    if (name.ends_with("Step")) return;  // chosen with the image
    argument.number = isQuery || IsFree(name) ? AnyInteger(choices) : AtMost(argument.number, choices);
  } else if (test::PointedAt(type)) {
    argument.number = AnyInteger(choices);  // a pixel
  } else {
    argument.number = AnySelector(type, argument.number, choices);
  }
}

}  // namespace fuzz
