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
  // Throws std::invalid_argument for a parameter whose meaning is not known here.
  Scene(const Export& function, QvpiSize roi, uint64_t seed);

  std::vector<Argument> arguments;
  QvpStatus Call() const { return function_.call(arguments.data()); }
  uint64_t HashOfOutputs() const;

 private:
  const void* ImageFor(const Parameter& parameter, size_t bytes);

  const Export& function_;
  Random random_;
  std::vector<std::unique_ptr<Block>> blocks_, outputs_;
  std::vector<std::unique_ptr<const void*[]>> planes_;
};

}  // namespace test
