#include "tests/support/exports.h"

#include <algorithm>
#include <stdexcept>

#include "tests/support/lessons.h"

namespace test {
namespace {

constexpr ptrdiff_t kLargestPixel = 16;

// One lesson a family, each in a file of its own: tests/support/<family>_lesson.cpp. Those that go by the function's
// name stand before those that go by the parameter's alone.
constexpr Lesson kLessons[] = {FilterLesson, FourierLesson, HogLesson,   ResizeLesson,
                               StatsLesson,  WarpLesson,    ArithLesson, ThresholdLesson};

// A row step with room for the largest pixel, another for each place that an image has in the argument list. Rows then
// begin at every alignment.
int StepOf(int width, size_t place) { return static_cast<int>(width * kLargestPixel + 17 * (place + 1)); }

template <class T>
T As(const Argument& a) {
  if constexpr (requires(T t) {
                  t.x;
                  t.width;
                }) {
    return {static_cast<decltype(T::x)>(a.number), static_cast<decltype(T::x)>(a.second),
            static_cast<decltype(T::x)>(a.third), static_cast<decltype(T::x)>(a.fourth)};
  } else if constexpr (requires(T t) { t.x; }) {
    return {static_cast<decltype(T::x)>(a.number), static_cast<decltype(T::x)>(a.second)};
  } else {
    return {static_cast<decltype(T::width)>(a.number), static_cast<decltype(T::width)>(a.second)};
  }
}

}  // namespace

const std::vector<Export>& Exports() {
  static const std::vector<Export> exports = {
#include "calls.h"
  };
  return exports;
}

int Export::Find(std::string_view parameter) const {
  const auto found =
      std::find_if(parameters.begin(), parameters.end(), [&](const auto& p) { return p.name == parameter; });
  return found == parameters.end() ? -1 : static_cast<int>(found - parameters.begin());
}

Scene::Scene(const Export& function, QvpiSize roi, uint64_t seed) : function_(function), roi_(roi), random_(seed) {
  for (size_t i = 0; i < function.parameters.size(); ++i) arguments.push_back(ArgumentFor(i));
}

Argument Scene::ArgumentFor(size_t place) {
  const auto& parameters = function_.parameters;
  const std::string_view name = parameters[place].name;
  Argument argument;
  for (const Lesson lesson : kLessons) {
    if (lesson(*this, place, argument)) return argument;
  }
  if (place + 1 < parameters.size() && parameters[place + 1].name.ends_with("Step")) {
    return {ImageFor(parameters[place], StepOf(roi_.width, place) * size_t{1} * roi_.height)};
  }
  if (name.ends_with("Step")) return {nullptr, StepOf(roi_.width, place - 1)};
  if (name == "roiSize") return {nullptr, roi_.width, roi_.height};
  if (name == "dstOrder") {
    static constexpr int kOrder[] = {2, 0, 1, 3};
    return {kOrder};
  }
  if (name == "value" || name == "val") {
    static constexpr uint8_t kValues[kLargestPixel] = {17, 34, 51, 68, 85, 102, 119, 136, 9, 8, 7, 6, 5, 4, 3, 2};
    return {kValues, 23};
  }
  if (name == "flags") return {nullptr, static_cast<int>(random_.Next() % 4)};
  throw std::invalid_argument(function_.name + " has a parameter " + std::string(name));
}

uint8_t* Scene::Add(std::vector<std::unique_ptr<Block>>& list, size_t bytes) {
  list.push_back(std::make_unique<Block>(bytes));
  random_.Fill(list.back()->data(), bytes);
  return list.back()->data();
}

const void* Scene::ImageFor(const Parameter& parameter, size_t bytes) {
  const bool isOutput = parameter.name == "pDst" || parameter.name == "pSrcDst";
  const int planes = parameter.type.ends_with("* const*") ? 4 : 1;
  auto pointers = std::make_unique<const void*[]>(planes);
  for (int i = 0; i < planes; ++i) {
    auto block = std::make_unique<Block>(bytes);
    random_.Fill(block->data(), block->size());
    if (parameter.name == "pMask") {  // half of the pixels
      for (size_t b = 0; b < block->size(); ++b) block->data()[b] &= static_cast<uint8_t>(-(block->data()[b] >> 7));
    }
    pointers[i] = block->data();
    (isOutput ? outputs_ : blocks_).push_back(std::move(block));
  }
  if (planes == 1) return pointers[0];
  planes_.push_back(std::move(pointers));
  return planes_.back().get();
}

uint64_t Scene::HashOfOutputs() const {
  uint64_t hash = 14695981039346656037u;
  for (const auto& block : outputs_) {
    for (size_t i = 0; i < block->size(); i += sizeof(uint64_t)) {
      uint64_t eight = 0;
      std::memcpy(&eight, block->data() + i, std::min(block->size() - i, sizeof(eight)));
      hash = (hash ^ eight) * 1099511628211u;
      hash ^= hash >> 29;
    }
  }
  return hash;
}

}  // namespace test
