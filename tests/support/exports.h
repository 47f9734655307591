// Every exported function that returns a status, as a list made from the public headers: names, parameters, and a way
// to call each with arguments made at run time. What must hold for all functions alike is tested once, over this list.
#pragma once

#include <cmath>
#include <initializer_list>
#include <iterator>
#include <memory>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

#include "qvpi.h"
#include "tests/support/element.h"
#include "tests/support/guarded.h"

namespace test {

struct Parameter {
  std::string_view type, name;
};

template <class T>
concept IsNumber = std::is_arithmetic_v<T> || std::is_enum_v<T>;

// A number for a parameter of any type: whole numbers stay exact, others are doubles.
class Number {
 public:
  template <IsNumber T>
  Number(T value) : real_(static_cast<double>(value)) {
    const bool isWhole = !std::is_floating_point_v<T> || std::abs(real_) < 0x1p62;
    if (isWhole) whole_ = static_cast<int64_t>(value);
  }
  template <IsNumber T>
  operator T() const {
    if constexpr (!std::is_floating_point_v<T>) return static_cast<T>(whole_);
    return static_cast<T>(real_);
  }

 private:
  int64_t whole_ = 0;
  double real_;
};

// A pointer, or up to six numbers; an image's pointer has its step beside it.
struct Argument {
  const void* pointer = nullptr;
  Number number = 0, second = 0, third = 0, fourth = 0, fifth = 0, sixth = 0;

  Argument() = default;
  Argument(const void* p, Number first = 0, Number next = 0, Number third_ = 0, Number last = 0)
      : pointer(p), number(first), second(next), third(third_), fourth(last) {}
  Argument(Number value) : number(value) {}
  template <IsNumber T>
  Argument(T value) : number(value) {}
  Argument(QvpiSize size) : number(size.width), second(size.height) {}
  Argument(QvpiPoint point) : number(point.x), second(point.y) {}
  Argument(QvprPoint point) : number(point.x), second(point.y), third(point.z) {}
  Argument(QvprVolume size) : number(size.width), second(size.height), third(size.depth) {}
  Argument(QvprCuboid c) : number(c.x), second(c.y), third(c.z), fourth(c.width), fifth(c.height), sixth(c.depth) {}
  template <class T>
  Argument(const Image<T>& image) : pointer(image.data()), number(image.step()) {}
};

struct Named {
  std::string_view name;
  Argument value;
};

struct Export {
  std::string name;
  std::vector<Parameter> parameters;
  const QvpStatus* statuses;  // other than success, in the documented order of the checks; ends with that
  QvpStatus (*call)(const Argument*);

  // The place of a parameter by its name, or -1.
  int Find(std::string_view parameter) const;
  bool Has(std::string_view parameter) const { return Find(parameter) >= 0; }
  // Whether a call succeeds although the pointer at a place is null.
  bool MayBeNull(size_t place) const;
  // Calls with those of the arguments that the function takes. A step that is not among them is that of its image.
  QvpStatus operator()(const std::vector<Named>& arguments) const;
};

const std::vector<Export>& Exports();
// By its whole name; null if there is none, or throws std::out_of_range.
const Export* FindFunction(const std::string& name);
const Export& FunctionNamed(const std::string& name);
// Calls it with those of the arguments that it takes.
inline QvpStatus CallNamed(const std::string& name, const std::vector<Named>& arguments) {
  return FunctionNamed(name)(arguments);
}

class Scene;
// What a family's parameters mean, where the common rules do not know: sets `argument` for the parameter at `place` and
// returns true, or returns false.
using Lesson = bool (*)(Scene& scene, size_t place, Argument& argument);

// Valid arguments for one call, with the memory that they point at: seeded, so equal on every build.
class Scene {
 public:
  // Throws std::invalid_argument for a parameter whose meaning neither the common rules know nor a lesson.
  Scene(const Export& function, QvpiSize roi, uint64_t seed);

  std::vector<Argument> arguments;
  QvpStatus Call() const { return function_.call(arguments.data()); }
  // The bytes of all outputs. A float result that is NaN has no promised bits: all of them become one.
  std::vector<uint8_t> Outputs() const;
  uint64_t HashOfOutputs() const;

  // The pieces of memory that the arguments point at, each with the place of its parameter.
  struct Piece {
    uint8_t* data;
    size_t size, place;
    bool isOutput;
  };
  std::vector<Piece> Pieces() const;

  // For lessons: memory that lives as long as the scene. Outputs are hashed; both are filled with random bytes.
  uint8_t* Input(size_t bytes) { return Add(inputs_, bytes); }
  uint8_t* Output(size_t bytes) { return Add(outputs_, bytes); }
  using Value = Real (*)(const Element&, Random&);
  void FillRows(const Element& element, uint8_t* image, ptrdiff_t step, int height, Value value = EdgeValue);
  // The image that a parameter points at, in the region's size, or an array of planes. Its step follows the common
  // rules.
  const void* ImageFor(size_t place, Value value = EdgeValue);
  // A constant for each channel of a pixel of the type that a parameter has, and the first as a number.
  Argument Constants(std::string_view type, Value value = EdgeValue);
  // Every fourth scene has values that are not finite, or whose sums are not, where a single one spoils a result.
  Value Mostly() { return roi_.width % 4 == 3 ? EdgeValue : PlainValue; }
  // One of a few numbers.
  template <class List = std::initializer_list<int>>
  int Any(const List& list) {
    return std::data(list)[random_.Next() % std::size(list)];
  }
  const Export& function() const { return function_; }
  bool Has(std::string_view part) const { return function_.name.find(part) != std::string::npos; }
  QvpiSize roi() const { return roi_; }
  // Choices that all arguments of the scene share: the same numbers at every call.
  Random choices() const { return Random(seed_ + 1000); }
  Random& random() { return random_; }

 private:
  struct Memory {
    std::unique_ptr<Block> block;
    size_t place;  // of the parameter that it belongs to
  };
  uint8_t* Add(std::vector<Memory>& list, size_t bytes);
  void UnifyNans(const Memory& output, uint8_t* bytes) const;
  Argument ArgumentFor(size_t place);

  const Export& function_;
  Lesson lesson_;
  QvpiSize roi_;
  uint64_t seed_;
  Random random_;
  size_t place_ = 0;  // of the parameter that an argument is made for
  std::vector<Memory> inputs_, outputs_;
  std::vector<std::unique_ptr<const void*[]>> planes_;
};

}  // namespace test
