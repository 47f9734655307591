#include "tests/support/preparation.h"

#include <stdexcept>
#include <utility>

#include "tests/support/name.h"

namespace test {
namespace {

// qvpiFilterGaussBorder of qvpiFilterGaussBorder_8u_C1R and of its Init. Erosion and dilation have one preparation, and
// so have the filters with fixed kernels.
std::string FamilyOf(const Export& function) {
  std::string name = function.name.substr(0, function.name.find('_'));
  for (const std::string_view end : {"Init", "SetMode"}) {
    if (name.ends_with(end)) name.resize(name.size() - end.size());
  }
  const bool isMorphology = name.ends_with("ErodeBorder") || name.ends_with("DilateBorder");
  if (isMorphology) return "qvpiFilterMorphologyBorder";
  const bool hasOwn = FindFunction(name + "GetSize") || FindFunction(name + "GetBufferSize");
  return hasOwn ? name : "qvpiFilterFixedBorder";
}

}  // namespace

Preparation::Preparation(const Export& function, QvpiSize roi, std::vector<Named> demand)
    : family_(FamilyOf(function)), demand_(std::move(demand)) {
  const Name name(function.name);
  const bool isImage = !name.layout.empty();
  const QvpDataType from = isImage ? name.From().code : +qvp8u, to = isImage ? name.To().code : +qvp8u;
  demand_.insert(demand_.end(), {{"roiSize", roi},
                                 {"dstRoiSize", roi},
                                 {"dataType", from},
                                 {"srcType", from},
                                 {"dstType", to},
                                 {"numChannels", isImage ? name.channels : 1}});
}

Preparation::Sizes Preparation::sizes() const {
  Sizes sizes;
  std::vector<Named> arguments = demand_;
  arguments.insert(arguments.end(), {{"pSpecSize", {&sizes.spec}}, {"pBufferSize", {&sizes.buffer}}});
  const bool hasRecord = FindFunction(family_ + "GetSize") != nullptr;
  if (CallNamed(family_ + (hasRecord ? "GetSize" : "GetBufferSize"), arguments)) {
    throw std::runtime_error("sizes of " + family_);
  }
  return sizes;
}

void Preparation::Init(void* spec, const char* kind) const {
  std::vector<Named> arguments = demand_;
  arguments.push_back({"pSpec", {spec}});
  if (CallNamed(family_ + "Init" + kind, arguments)) throw std::runtime_error(family_ + "Init");
}

}  // namespace test
