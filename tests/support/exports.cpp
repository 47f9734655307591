#include "tests/support/exports.h"

#include <algorithm>
#include <bit>
#include <stdexcept>
#include <unordered_map>

#include "tests/support/calls.h"
#include "tests/support/lessons.h"
#include "tests/support/name.h"

namespace test {
namespace {

constexpr ptrdiff_t kLargestPixel = 16;

// The lesson of a function is that with the longest prefix of its name; the others follow the common rules alone.
constexpr struct {
  std::string_view prefix;
  Lesson lesson;
} kLessons[] = {
    {"qvpiApplyWindow", WindowFunctionLesson},
    {"qvpiBinToGray", ScaleLesson},
    {"qvpiColorKey", CompositeLesson},
    {"qvpiCompare", ThresholdLesson},
    {"qvpiComposite", CompositeLesson},
    {"qvpiComputeThreshold", ThresholdLesson},
    {"qvpiConvolve", ConvolveLesson},
    {"qvpiCopyConstBorder", CopyBorderLesson},
    {"qvpiCopyMirrorBorder", CopyBorderLesson},
    {"qvpiCopyReplicateBorder", CopyBorderLesson},
    {"qvpiCopyWrapBorder", CopyBorderLesson},
    {"qvpiCountInRange", ThresholdLesson},
    {"qvpiCplxExtendToPack", FourierLesson},
    {"qvpiDCT", FourierLesson},
    {"qvpiDCTBlocks", DctBlocksLesson},
    {"qvpiDFT", FourierLesson},
    {"qvpiDecimate420", FrameLesson},
    {"qvpiDeconvolve", DeconvolutionLesson},
    {"qvpiDiv", DivisionLesson},
    {"qvpiDotProd", ReductionLesson},
    {"qvpiDotProdCol", WeightedRowsLesson},
    {"qvpiFFT", FourierLesson},
    {"qvpiFilter", WindowLesson},
    {"qvpiFilterBilateral", BilateralLesson},
    {"qvpiFilterBorder", FilterLesson},
    {"qvpiFilterBorderInit", FilterInitLesson},
    {"qvpiFilterBox", SumsLesson},
    {"qvpiFilterDilate", ExtremesLesson},
    {"qvpiFilterErode", ExtremesLesson},
    {"qvpiFilterGauss", GaussLesson},
    {"qvpiFilterGuided", GuidedLesson},
    {"qvpiFilterLBP", PatternLesson},
    {"qvpiFilterLeastSquares", LeastSquaresLesson},
    {"qvpiFilterMax", ExtremesLesson},
    {"qvpiFilterMedian", MedianLesson},
    {"qvpiFilterMin", ExtremesLesson},
    {"qvpiFilterMorphology", ExtremesLesson},
    {"qvpiFilterSeparable", SeparableLesson},
    {"qvpiFilterSum", SumsLesson},
    {"qvpiFilterWiener", WienerLesson},
    {"qvpiGetAffine", TransformLesson},
    {"qvpiGetBilinear", TransformLesson},
    {"qvpiGetCentralMoment", MomentLesson},
    {"qvpiGetHuMoments", MomentLesson},
    {"qvpiGetNormalized", MomentLesson},
    {"qvpiGetPerspective", TransformLesson},
    {"qvpiGetRotate", TransformLesson},
    {"qvpiGetSpatialMoment", MomentLesson},
    {"qvpiGrayToBin", ScaleLesson},
    {"qvpiHOG", HogLesson},
    {"qvpiHistogram", HistogramLesson},
    {"qvpiJaehne", JaehneLesson},
    {"qvpiLookup", LookupLesson},
    {"qvpiLookupTable", TableLesson},
    {"qvpiMagnitudePack", FourierLesson},
    {"qvpiMatch", MatchLesson},
    {"qvpiMax", ReductionLesson},
    {"qvpiMean", ReductionLesson},
    {"qvpiMin", ReductionLesson},
    {"qvpiMirror", TurnLesson},
    {"qvpiMoment", MomentLesson},
    {"qvpiMulPack", FourierLesson},
    {"qvpiNoise", NoiseLesson},
    {"qvpiNorm", ReductionLesson},
    {"qvpiPackToCplxExtend", FourierLesson},
    {"qvpiPalette", TableLesson},
    {"qvpiPhasePack", FourierLesson},
    {"qvpiQualityIndex", ReductionLesson},
    {"qvpiRamp", RampLesson},
    {"qvpiRemap", RemapLesson},
    {"qvpiResize", ResizeLesson},
    {"qvpiResize420", FrameResizeLesson},
    {"qvpiResize422", FrameResizeLesson},
    {"qvpiRotateQuarter", TurnLesson},
    {"qvpiSSIM", SimilarityLesson},
    {"qvpiScale", ScaleLesson},
    {"qvpiSetWindow", WindowFunctionLesson},
    {"qvpiShift", ShiftLesson},
    {"qvpiSum", ReductionLesson},
    {"qvpiSwapChannels", OrderLesson},
    {"qvpiThreshold", ThresholdLesson},
    {"qvpiThresholdLocal", LocalThresholdLesson},
    {"qvpiTranspose", TurnLesson},
    {"qvpiWarp", WarpLesson},
    {"qvpiWavelet", WaveletLesson},
    {"qvprCopy", VolumeLesson},
    {"qvprFilterBorder", VolumeKernelLesson},
    {"qvprFilterMedian", VolumeFilterLesson},
    {"qvprGet", SpaceLesson},
    {"qvprRemap", VolumeRemapLesson},
    {"qvprResize", VolumeResizeLesson},
    {"qvprWarp", VolumeWarpLesson},
};

bool CommonRulesOnly(Scene&, size_t, Argument&) { return false; }

Lesson LessonFor(std::string_view function) {
  size_t longest = 0;
  Lesson lesson = CommonRulesOnly;
  for (const auto& row : kLessons) {
    if (!function.starts_with(row.prefix) || row.prefix.size() < longest) continue;
    longest = row.prefix.size();
    lesson = row.lesson;
  }
  return lesson;
}

// A row step with room for four channels, another for each place that an image has in the argument list. Rows then
// begin at every alignment.
int StepOf(const Export& function, int width, size_t place) {
  const Element* const element = PointedAt(function.parameters[place].type);
  return static_cast<int>(width * (element ? 4 * element->bytes : kLargestPixel) + 17 * (place + 1));
}

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

// Elements of kBytes each, chosen from 256 that lie one after the other.
template <int kBytes>
void ChooseEach(uint8_t* row, ptrdiff_t bytes, const uint8_t* values, Random& random) {
  for (ptrdiff_t i = 0; i + kBytes <= bytes; i += kBytes) {
    std::memcpy(row + i, values + (random.Next() >> 24) * kBytes, kBytes);
  }
}

}  // namespace

const std::vector<Export>& Exports() {
  static const std::vector<Export> exports = [] {
    std::vector<Export> list;
    for (const Call* row = kCalls; row->name; ++row)
      list.push_back({row->name, ParametersOf(row->parameters), row->statuses, row->call});
    return list;
  }();
  return exports;
}

const Export* FindFunction(const std::string& name) {
  static const auto all = [] {
    std::unordered_map<std::string_view, const Export*> functions;
    for (const Export& function : Exports()) functions[function.name] = &function;
    return functions;
  }();
  const auto found = all.find(name);
  return found == all.end() ? nullptr : found->second;
}

const Export& FunctionNamed(const std::string& name) {
  const Export* const function = FindFunction(name);
  return function ? *function : throw std::out_of_range(name);
}

int Export::Find(std::string_view parameter) const {
  const auto found =
      std::find_if(parameters.begin(), parameters.end(), [&](const auto& p) { return p.name == parameter; });
  return found == parameters.end() ? -1 : static_cast<int>(found - parameters.begin());
}

// No border kind that resizing knows takes a value, so that its border value is not looked at; Fourier transforms need
// no memory for their initialisation; each output of gradients may be left out.
bool Export::MayBeNull(size_t place) const {
  const Parameter& parameter = parameters[place];
  if (name.starts_with("qvpiFilterGradient")) {
    return !parameter.type.starts_with("const") && parameter.name != "pBuffer";
  }
  return parameter.name == "pBorderValue" || parameter.name == "pMemInit";
}

QvpStatus Export::operator()(const std::vector<Named>& given) const {
  std::vector<Argument> arguments;
  for (const Parameter& parameter : parameters) {
    const auto found =
        std::find_if(given.begin(), given.end(), [&](const Named& n) { return n.name == parameter.name; });
    if (found != given.end()) {
      arguments.push_back(found->value);
    } else if (parameter.name.ends_with("Step")) {
      arguments.emplace_back(arguments.back().number);
    } else {
      throw std::invalid_argument(name + " takes a " + std::string(parameter.name));
    }
  }
  return call(arguments.data());
}

Scene::Scene(const Export& function, QvpiSize roi, uint64_t seed)
    : function_(function), lesson_(LessonFor(function.name)), roi_(roi), seed_(seed), random_(seed) {
  for (size_t i = 0; i < function.parameters.size(); ++i) arguments.push_back(ArgumentFor(i));
}

Argument Scene::ArgumentFor(size_t place) {
  const auto& parameters = function_.parameters;
  const auto& [type, name] = parameters[place];
  place_ = place;
  Argument argument;
  if (lesson_(*this, place, argument)) return argument;
  if (place + 1 < parameters.size() && parameters[place + 1].name.ends_with("Step")) {
    return {ImageFor(place)};
  }
  if (name.ends_with("Step")) return StepOf(function_, roi_.width, place - 1);
  if (name == "roiSize") return roi_;
  if (name == "value" || name == "val") return Constants(type);
  if (name == "scaleFactor") {
    constexpr int kFactors[] = {0, 1, 3, -2, 8, -9, 15, 16, 17, 31, 33, -17, -33, 100, -100, INT32_MAX, INT32_MIN};
    return Any(kFactors);
  }
  if (name == "roundMode") return Any({qvpRoundZero, qvpRoundNear, qvpRoundFinancial});
  if (name == "hint") return Any({qvpAlgHintFast, qvpAlgHintAccurate});
  if (name == "flags") return Any({0, 1, 2, 3});
  if (name.ends_with("Size") && type.ends_with("*")) return {Output(2 * sizeof(int))};
  throw std::invalid_argument(function_.name + " has a parameter " + std::string(name));
}

uint8_t* Scene::Add(std::vector<Memory>& list, size_t bytes) {
  list.push_back({std::make_unique<Block>(bytes), place_});
  random_.Fill(list.back().block->data(), bytes);
  return list.back().block->data();
}

std::vector<Scene::Piece> Scene::Pieces() const {
  std::vector<Piece> pieces;
  for (const auto* list : {&inputs_, &outputs_}) {
    for (const auto& [block, place] : *list) pieces.push_back({block->data(), block->size(), place, list == &outputs_});
  }
  return pieces;
}

void Scene::FillRows(const Element& element, uint8_t* image, ptrdiff_t step, int height, Value value) {
  constexpr int kValues = 256, kMostBytes = 8;
  uint8_t values[kValues * kMostBytes];  // to choose from: making each costs more than most calls
  for (int k = 0; k < kValues; ++k) element.write(values + k * element.bytes, value(element, random_));
  constexpr decltype(&ChooseEach<1>) kChoose[] = {ChooseEach<1>, ChooseEach<2>, ChooseEach<4>, ChooseEach<8>};
  const auto choose = kChoose[std::countr_zero(static_cast<unsigned>(element.bytes))];
  for (int y = 0; y < height; ++y) choose(image + y * step, step, values, random_);
}

const void* Scene::ImageFor(size_t place, Value value) {
  const Parameter& parameter = function_.parameters[place];
  const int step = StepOf(function_, roi_.width, place);
  const bool isOutput = parameter.name == "pDst" || parameter.name == "pSrcDst", isMask = parameter.name == "pMask";
  const int planes = parameter.type.ends_with("* const*") ? 4 : 1;
  auto pointers = std::make_unique<const void*[]>(planes);
  for (int i = 0; i < planes; ++i) {
    const size_t bytes = size_t{1} * step * roi_.height;
    uint8_t* const image = isOutput ? Output(bytes) : Input(bytes);
    FillRows(*PointedAt(parameter.type), image, step, roi_.height, value);
    for (size_t b = 0; isMask && b < bytes; ++b) image[b] &= random_.Next() % 2 ? 255 : 0;
    pointers[i] = image;
  }
  if (planes == 1) return pointers[0];
  planes_.push_back(std::move(pointers));
  return planes_.back().get();
}

Argument Scene::Constants(std::string_view type, Value value) {
  const Element& element = *PointedAt(type);
  const Name name(function_.name);
  const int bytes = name.layout.empty() ? kLargestPixel : name.written * element.bytes;
  uint8_t* const constants = Input(bytes);
  for (int i = 0; i < bytes; i += element.bytes) element.write(constants + i, value(element, random_));
  return {constants, element.read(constants)};
}

// Elements lie along rows, which begin at any address.
void Scene::UnifyNans(const Memory& output, uint8_t* bytes) const {
  const auto& parameters = function_.parameters;
  const std::string_view type = parameters[output.place].type;
  const size_t all = output.block->size(), next = output.place + 1;
  const bool isDouble = type.find("64f") != std::string_view::npos;
  if (!isDouble && type.find("32f") == std::string_view::npos) return;
  const bool hasStep = next < parameters.size() && parameters[next].name.ends_with("Step");
  const size_t step = hasStep ? size_t{arguments[next].number} : all, element = isDouble ? 8 : 4;
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
