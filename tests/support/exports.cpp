#include "tests/support/exports.h"

#include <algorithm>
#include <stdexcept>

#include "tests/support/calls.h"
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

// The parameters that a row of the table describes.
std::vector<Parameter> ParametersOf(std::string_view described) {
  std::vector<Parameter> parameters;
  while (!described.empty()) {
    const std::string_view one = described.substr(0, described.find(';'));
    const size_t middle = one.find('|');
    parameters.push_back({one.substr(0, middle), one.substr(middle + 1)});
    described.remove_prefix(std::min(described.size(), one.size() + 1));
  }
  return parameters;
}

}  // namespace

const std::vector<Export>& Exports() {
  static const std::vector<Export> exports = [] {
    std::vector<Export> list;
    for (const Call* row = kCalls; row->name; ++row)
      list.push_back({row->name, ParametersOf(row->parameters), row->call});
    return list;
  }();
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
  place_ = place;
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

uint8_t* Scene::Add(std::vector<Memory>& list, size_t bytes) {
  list.push_back({std::make_unique<Block>(bytes), place_});
  random_.Fill(list.back().block->data(), bytes);
  return list.back().block->data();
}

const void* Scene::ImageFor(const Parameter& parameter, size_t bytes) {
  const bool isOutput = parameter.name == "pDst" || parameter.name == "pSrcDst";
  const int planes = parameter.type.ends_with("* const*") ? 4 : 1;
  auto pointers = std::make_unique<const void*[]>(planes);
  for (int i = 0; i < planes; ++i) {
    uint8_t* const image = isOutput ? Output(bytes) : Input(bytes);
    if (parameter.name == "pMask") {  // half of the pixels
      for (size_t b = 0; b < bytes; ++b) image[b] &= static_cast<uint8_t>(-(image[b] >> 7));
    }
    pointers[i] = image;
  }
  if (planes == 1) return pointers[0];
  planes_.push_back(std::move(pointers));
  return planes_.back().get();
}

// Elements lie along rows, which begin at any address.
void Scene::UnifyNans(const Memory& output, uint8_t* bytes) const {
  const auto& parameters = function_.parameters;
  const std::string_view type = parameters[output.place].type;
  const size_t all = output.block->size(), next = output.place + 1;
  const bool isDouble = type.find("64f") != std::string_view::npos;
  if (!isDouble && type.find("32f") == std::string_view::npos) return;
  const bool hasStep = next < parameters.size() && parameters[next].name.ends_with("Step");
  const size_t step = hasStep ? arguments[next].number : all, element = isDouble ? 8 : 4;
  for (size_t row = 0; row < all; row += step) {
    for (size_t i = row; i + element <= std::min(row + step, all); i += element) {
      float single;
      double real;
      std::memcpy(&single, bytes + i, sizeof(single));
      std::memcpy(&real, bytes + i, isDouble ? sizeof(real) : 0);
      if (isDouble ? real != real : single != single) std::memset(bytes + i, 0xFF, element);
    }
  }
}

std::vector<uint8_t> Scene::Outputs() const {
  std::vector<uint8_t> bytes;
  for (const Memory& output : outputs_) {
    const size_t first = bytes.size();
    bytes.insert(bytes.end(), output.block->data(), output.block->data() + output.block->size());
    UnifyNans(output, bytes.data() + first);
  }
  return bytes;
}

uint64_t Scene::HashOfOutputs() const {
  std::vector<uint8_t> bytes = Outputs();
  bytes.resize((bytes.size() + 7) / 8 * 8);
  uint64_t hash = 14695981039346656037u;
  for (size_t i = 0; i < bytes.size(); i += sizeof(uint64_t)) {
    uint64_t eight;
    std::memcpy(&eight, bytes.data() + i, sizeof(eight));
    hash = (hash ^ eight) * 1099511628211u;
    hash ^= hash >> 29;
  }
  return hash;
}

}  // namespace test
