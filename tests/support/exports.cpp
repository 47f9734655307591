#include "tests/support/exports.h"

#include <algorithm>
#include <stdexcept>

namespace test {
namespace {

constexpr ptrdiff_t kLargestPixel = 16;

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

Scene::Scene(const Export& function, QvpiSize roi, uint64_t seed) : function_(function), random_(seed) {
  const auto& parameters = function.parameters;
  for (size_t i = 0; i < parameters.size(); ++i) {
    const auto& [type, name] = parameters[i];
    const bool isImage = i + 1 < parameters.size() && parameters[i + 1].name.ends_with("Step");
    Argument argument;
    if (isImage) {
      argument.pointer = ImageFor(parameters[i], StepOf(roi.width, i) * size_t{1} * roi.height);
    } else if (name.ends_with("Step")) {
      argument.number = StepOf(roi.width, i - 1);
    } else if (name == "roiSize") {
      argument = {nullptr, roi.width, roi.height};
    } else if (name == "dstOrder") {
      static constexpr int kOrder[] = {2, 0, 1, 3};
      argument.pointer = kOrder;
    } else if (name == "value" || name == "val") {
      static constexpr uint8_t kValues[kLargestPixel] = {17, 34, 51, 68, 85, 102, 119, 136, 9, 8, 7, 6, 5, 4, 3, 2};
      argument = {kValues, 23};
    } else if (name == "flags") {
      argument.number = static_cast<int>(seed % 4);
    } else {
      throw std::invalid_argument(function.name + " has a parameter " + std::string(name));
    }
    arguments.push_back(argument);
  }
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
