// Every exported function that returns a status, as a list made from the public headers: names, parameters, and a way
// to call each with arguments made at run time. What must hold for all functions alike is tested once, over this list.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "qvpi.h"
#include "tests/support/guarded.h"

namespace test {

struct Parameter {
  std::string_view type, name;
};

// A pointer or up to four numbers.
struct Argument {
  const void* pointer = nullptr;
  ptrdiff_t number = 0, second = 0, third = 0, fourth = 0;
};

struct Export {
  std::string name;
  std::vector<Parameter> parameters;
  QvpStatus (*call)(const Argument*);

  // The place of a parameter by its name, or -1.
  int Find(std::string_view parameter) const;
};

const std::vector<Export>& Exports();

// Valid arguments for one call, with the memory that they point at: seeded, so equal on every build.
class Scene {
 public:
  // Throws std::invalid_argument for a parameter whose meaning is known neither here nor to a lesson.
  Scene(const Export& function, QvpiSize roi, uint64_t seed);

  std::vector<Argument> arguments;
  QvpStatus Call() const { return function_.call(arguments.data()); }
  // The bytes of all outputs. A float result that is NaN has no promised bits: all of them become one.
  std::vector<uint8_t> Outputs() const;
  uint64_t HashOfOutputs() const;

  // For lessons: memory that lives as long as the scene. Outputs are hashed; both are filled with random bytes.
  uint8_t* Input(size_t bytes) { return Add(inputs_, bytes); }
  uint8_t* Output(size_t bytes) { return Add(outputs_, bytes); }
  const Export& function() const { return function_; }
  QvpiSize roi() const { return roi_; }
  Random& random() { return random_; }

 private:
  struct Memory {
    std::unique_ptr<Block> block;
    size_t place;  // of the parameter that it belongs to
  };
  uint8_t* Add(std::vector<Memory>& list, size_t bytes);
  void UnifyNans(const Memory& output, uint8_t* bytes) const;
  const void* ImageFor(const Parameter& parameter, size_t bytes);
  Argument ArgumentFor(size_t place);

  const Export& function_;
  QvpiSize roi_;
  Random random_;
  size_t place_ = 0;  // of the parameter that an argument is made for
  std::vector<Memory> inputs_, outputs_;
  std::vector<std::unique_ptr<const void*[]>> planes_;
};

// What a family's parameters mean, where the general rules do not know: sets `argument` for the parameter at `place`
// and returns true, or returns false. Lessons come first, so that they can overrule.
using Lesson = bool (*)(Scene& scene, size_t place, Argument& argument);

}  // namespace test
