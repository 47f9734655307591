// Every function refuses what its documentation says that it refuses, by the first of the checks that fails, and leaves
// its outputs alone then.
#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <cmath>

#include "tests/support/name.h"

namespace {
using test::Argument;
using test::Export;
using test::Exports;
using test::Name;
using test::Parameter;
using test::Scene;

constexpr QvpiSize kRoi{37, 5};

bool Contains(std::string_view text, std::string_view part) { return text.find(part) != std::string_view::npos; }
bool IsRecord(std::string_view type) { return Contains(type, "Spec") || Contains(type, "State"); }
bool IsImage(const Export& function, size_t place) {
  return place + 1 < function.parameters.size() && function.parameters[place + 1].name.ends_with("Step");
}
// Whether sizes are nothing but numbers to it.
bool IsQuery(const Export& function) {
  return Contains(function.name, "GetSize") || Contains(function.name, "BufferSize") ||
         Contains(function.name, "DescriptorSize");
}

const void* RecordOfOtherType(std::string_view type) {
  static const Scene lookup(test::FunctionNamed("qvpiLookup_8u_C1R"), kRoi, 1),
      noise(test::FunctionNamed("qvpiNoise_8u_C1R"), kRoi, 1);
  const Scene& scene = Contains(type, "Lookup") ? noise : lookup;
  return scene.arguments[scene.function().Find("pSpec")].pointer;
}

// What may be refused at a place, and does no harm where it is not: nothing here tells of more memory than there is.
class WrongArguments {
 public:
  WrongArguments(const Export& function, size_t place, const Argument& right)
      : function_(function), place_(place), right_(right), type_(function.parameters[place].type) {
    if (type_.ends_with("*") || type_.ends_with("]")) {
      AddPointers();
    } else if (type_ == "int" || type_ == "QvpSizeL") {
      AddNumbers(function.parameters[place].name);
    } else if (type_ == "Qvp32f" || type_ == "Qvp64f" || type_ == "double") {
      for (const double value : {double{NAN}, double{INFINITY}, -1.0, 0.0}) Add(&Argument::number, value);
    } else {
      AddSelectorsAndSizes();
    }
  }
  std::vector<Argument> list;

 private:
  void Add(test::Number Argument::*member, test::Number value) {
    list.push_back(right_);
    list.back().*member = value;
  }
  void AddPointer(const void* pointer) {
    list.push_back(right_);
    list.back().pointer = pointer;
  }

  // Null; what is no record; arrays of zeros, and of NaN or negative numbers, but for steps, which may be negative.
  void AddPointers() {
    static std::vector<uint8_t> zeros(1 << 20), ones(1 << 20, 0xFF);
    const bool isRecord = IsRecord(type_);
    const bool isArray = type_.starts_with("const") && !IsImage(function_, place_) && !type_.ends_with("* const*");
    const bool isConstant = function_.parameters[place_].name == "pBorderValue" && function_.Has("borderType");
    if (!function_.MayBeNull(place_) || isConstant) AddPointer(nullptr);
    if (isRecord && !Contains(function_.name, "Init")) {
      AddPointer(zeros.data());
      AddPointer(RecordOfOtherType(type_));
    }
    if (isRecord || !isArray) return;
    AddPointer(zeros.data());
    if (!function_.parameters[place_].name.ends_with("Step")) AddPointer(ones.data());
  }

  // A number of quarter turns is any, and tells the shape of the destination.
  void AddNumbers(std::string_view name) {
    if (name.ends_with("Step")) {
      for (const int step : {0, 1, static_cast<int>(right_.number) - 1}) Add(&Argument::number, step);
    } else if (name != "turns") {
      Add(&Argument::number, name == "divisor" ? 0 : -1);
      if (IsQuery(function_)) Add(&Argument::number, 1000);
    }
  }

  void AddSelectorsAndSizes() {
    for (const auto member : {&Argument::number, &Argument::second, &Argument::third, &Argument::fourth,
                              &Argument::fifth, &Argument::sixth}) {
      Add(member, -1);
    }
    Contains(type_, "Size") || Contains(type_, "Volume") ? AddSizes() : AddSelectors();
  }

  // Codes that are none, all kinds of borders, all types where nothing is made for them, and places far outside.
  void AddSelectors() {
    Add(&Argument::number, 0x10F);
    if (Contains(type_, "Border")) {
      for (int kind = 0; kind < 8; ++kind) Add(&Argument::number, kind);
    }
    if (type_ == "QvpDataType" && IsQuery(function_)) {
      for (int type = qvp8u; type <= qvp64f; ++type) Add(&Argument::number, type);
    }
    const std::string_view name = function_.parameters[place_].name;
    if (name == "dstOffset" || name == "dstRoiOffset" || name == "anchor") {
      for (const auto member : {&Argument::number, &Argument::second, &Argument::third}) Add(member, 1 << 20);
    }
  }

  void AddSizes() {
    const bool isMask = Contains(function_.parameters[place_].name, "mask");
    const int huge = INT_MAX - 100 + static_cast<int>(place_);  // a filter is larger than its image
    for (const auto member : {&Argument::number, &Argument::second}) Add(member, 0);
    if (isMask) Add(&Argument::second, int{right_.second} - 1);
    // Records of warps have one size.
    if (!IsQuery(function_) && !(Contains(function_.name, "Warp") && Contains(function_.name, "Init"))) return;
    list.push_back(QvprVolume{huge, huge, huge});
    if (Contains(function_.name, "Resize")) {  // averages only reduce, each axis
      for (const auto member : {&Argument::number, &Argument::second, &Argument::third}) Add(member, 1 << 20);
    }
    if (isMask) list.insert(list.end(), {QvpiSize{1, 257}, QvpiSize{1, 1025}});
  }

  const Export& function_;
  size_t place_;
  Argument right_;
  std::string_view type_;
};

std::vector<uint8_t> ContentsOf(const Scene& scene) {
  std::vector<uint8_t> contents;
  for (const Scene::Piece& piece : scene.Pieces()) {
    contents.insert(contents.end(), piece.data, piece.data + piece.size);
  }
  return contents;
}

// What a refused call does to memory: nothing, but an Init that is given a record takes its identification, a word,
// away.
void ExpectUntouched(const Scene& scene, bool hasRecord, const std::vector<uint8_t>& before, const std::string& about) {
  const std::vector<uint8_t> after = ContentsOf(scene);
  const auto first = std::mismatch(after.begin(), after.end(), before.begin()).first;
  const auto end = std::mismatch(after.rbegin(), after.rend(), before.rbegin()).first.base();
  if (!hasRecord) {
    EXPECT_EQ(first, after.end()) << about;
  } else {
    EXPECT_TRUE(first < end && end - first <= ptrdiff_t{sizeof(uint32_t)} && std::count(first, end, 0) == end - first)
        << about;
  }
}

struct Refusal {
  size_t place;
  Argument argument;
  QvpStatus status;
};

// The refusals of a scene, each for one wrong argument.
std::vector<Refusal> RefusalsOf(Scene& scene) {
  const Export& function = scene.function();
  std::vector<Refusal> refusals;
  for (size_t place = 0; place < scene.arguments.size(); ++place) {
    const Argument right = scene.arguments[place];
    for (const Argument& wrong : WrongArguments(function, place, right).list) {
      const bool isInit = Contains(function.name, "Init"), isRecord = IsRecord(function.parameters[place].type);
      if (isInit) scene.Call();  // makes a record
      const std::vector<uint8_t> before = ContentsOf(scene);
      scene.arguments[place] = wrong;
      const QvpStatus status = scene.Call();
      scene.arguments[place] = right;
      if (status < 0) refusals.push_back({place, wrong, status});
      const std::string about = function.name + " with another " + std::string(function.parameters[place].name);
      if (status < 0 && !Contains(function.name, "Get")) ExpectUntouched(scene, isInit && !isRecord, before, about);
      const bool isRegion = function.parameters[place].name == "roiSize";
      const bool isEmpty = isRegion && (int{wrong.number} < 1 || int{wrong.second} < 1);
      EXPECT_TRUE(status == qvpStatusNullPointer || !right.pointer || wrong.pointer) << about;
      EXPECT_TRUE(status == qvpStatusSize || !isEmpty) << about;
      EXPECT_TRUE(status < 0 || !isRecord) << about;
    }
  }
  return refusals;
}

std::vector<QvpStatus> DocumentedBy(const Export& function) {
  const QvpStatus* end = function.statuses;
  while (*end != qvpStatusNoError) ++end;
  return {function.statuses, end};
}

// Of two wrong arguments the one tells the status whose check comes first. Where two checks have the same status, that
// is not known; a border value is looked at for one border type alone, and two wrong types may suit each other.
void ExpectFirst(Scene& scene, const std::vector<QvpStatus>& documented, const Refusal& one, const Refusal& other) {
  const auto isOnce = [&](QvpStatus status) { return std::count(documented.begin(), documented.end(), status) == 1; };
  const std::string_view first = scene.function().parameters[one.place].name,
                         second = scene.function().parameters[other.place].name;
  if (!isOnce(one.status) || !isOnce(other.status) || (first == "borderType" && second.ends_with("orderValue"))) return;
  const auto isType = [&](const Refusal& r) { return scene.function().parameters[r.place].type == "QvpDataType"; };
  if (isType(one) && isType(other)) return;
  const std::vector<Argument> right = scene.arguments;
  scene.arguments[one.place] = one.argument;
  scene.arguments[other.place] = other.argument;
  const QvpStatus both[] = {one.status, other.status};
  EXPECT_EQ(scene.Call(), *std::find_first_of(documented.begin(), documented.end(), both, both + 2))
      << scene.function().name << " with wrong " << first << " and " << second;
  scene.arguments = right;
}

constexpr QvpStatus kUsual[] = {
    qvpStatusNullPointer,   qvpStatusSize,          qvpStatusStep,         qvpStatusContextMatch,
    qvpStatusBorder,        qvpStatusDataType,      qvpStatusMaskSize,     qvpStatusChannel,
    qvpStatusRoundMode,     qvpStatusFftFlag,       qvpStatusNumChannels,  qvpStatusEps,
    qvpStatusLutLevels,     qvpStatusWeight,        qvpStatusHistoLevels,  qvpStatusFftOrder,
    qvpStatusAlgType,       qvpStatusNoiseRange,    qvpStatusStride,       qvpStatusMirrorFlip,
    qvpStatusInterpolation, qvpStatusWarpDirection, qvpStatusResizeFactor, qvpStatusDecimateFraction,
    qvpStatusChannelOrder,  qvpStatusAlphaType,     qvpStatusAnchor};

// Whether a status that is documented is about a parameter of this function, not of others in its group. Rows of bytes
// that are resampled may be any number of bytes apart.
bool IsOfItsOwn(const Export& function, QvpStatus status) {
  const bool isResampled = Contains(function.name, "Resize") || Contains(function.name, "Warp");
  std::string parameters;
  for (const Parameter& p : function.parameters) parameters.append(p.type).append(" ").append(p.name).append(", ");
  const auto has = [&](std::string_view part) { return Contains(parameters, part); };
  switch (status) {
    case qvpStatusSize: return has("Size") || has("Volume");
    case qvpStatusStep: return !has("const int* srcStep") && !(isResampled && Contains(function.name, "_8u"));
    case qvpStatusContextMatch: return has("const Qvpi") || has("const Qvpr");
    case qvpStatusBorder: return has("BorderType");
    case qvpStatusAnchor: return has("anchor");
    case qvpStatusChannelOrder: return has("Order") || has("lumaPlace");
    case qvpStatusDataType: return has("DataType");
    case qvpStatusInterpolation: return has("InterpolationType");
    case qvpStatusWarpDirection: return has("WarpDirection");
    default: return true;
  }
}

// A function that checks steps checks each. Those that resample may take any multiple of an element.
void ExpectEachStep(const Export& function, const std::vector<Refusal>& refusals) {
  if (Contains(function.name, "Resize") || Contains(function.name, "Warp")) return;
  for (size_t place = 0; place < function.parameters.size(); ++place) {
    if (!function.parameters[place].name.ends_with("Step")) continue;
    const auto isIt = [&](const Refusal& refusal) {
      return refusal.place == place && refusal.status == qvpStatusStep && int{refusal.argument.number} == 0;
    };
    EXPECT_TRUE(std::any_of(refusals.begin(), refusals.end(), isIt))
        << function.name << " takes any " << function.parameters[place].name;
  }
}

// One wrong argument after the other makes each of the usual statuses that a function documents. Of some it takes
// several.
void ExpectUsual(const Export& function, const std::vector<QvpStatus>& documented,
                 const std::vector<Refusal>& refusals) {
  for (const char* prefix : {"qvpiMirror", "qvpiHOG", "qvpiScaleC", "qvpiDeconvolveGetSize"}) {
    if (function.name.starts_with(prefix)) return;
  }
  for (const QvpStatus status : documented) {
    const bool isUsual = std::count(std::begin(kUsual), std::end(kUsual), status) > 0 && IsOfItsOwn(function, status);
    const auto isIt = [&](const Refusal& refusal) { return refusal.status == status; };
    EXPECT_TRUE(!isUsual || std::any_of(refusals.begin(), refusals.end(), isIt))
        << function.name << " never " << status;
    if (isUsual && status == qvpStatusStep) ExpectEachStep(function, refusals);
  }
}

TEST(EveryFunction, RefusesInTheDocumentedOrder) {
  for (const Export& function : Exports()) {
    const std::vector<QvpStatus> documented = DocumentedBy(function);
    Scene scene(function, kRoi, 13);
    const int border = function.Find("borderType");
    const bool hasConstant = function.Has("borderValue") || function.Has("pBorderValue");
    if (border >= 0 && hasConstant) scene.arguments[border] = qvpBorderConst;
    const std::vector<Refusal> refusals = RefusalsOf(scene);
    if (documented.empty()) continue;  // it refers to another
    ExpectUsual(function, documented, refusals);
    for (const Refusal& one : refusals) {
      EXPECT_TRUE(std::count(documented.begin(), documented.end(), one.status))
          << function.name << " tells " << one.status << " of " << function.parameters[one.place].name;
      for (const Refusal& other : refusals) {
        if (one.place < other.place) ExpectFirst(scene, documented, one, other);
      }
    }
  }
}

// Records of these families serve pixels of the type and of the number of channels that they were made for alone.
TEST(EveryFunction, RefusesRecordsForOtherPixels) {
  const auto isOfPixels = [](std::string_view type) {
    const auto names = {"Bilateral", "Gauss", "LeastSquares", "Separable", "QvpiWarp", "Qvpr"};
    return type.starts_with("const") &&
           std::any_of(names.begin(), names.end(), [&](auto n) { return Contains(type, n); });
  };
  for (const Export& function : Exports()) {
    const Name name(function.name);
    const int place = function.Find("pSpec");
    if (place < 0 || name.layout.empty() || !isOfPixels(function.parameters[place].type)) continue;
    Scene scene(function, kRoi, 1);
    const std::vector<uint8_t> before = ContentsOf(scene);
    for (const Export* other : test::FunctionsOf({name.operation})) {
      const Name made(other->name);
      if (made.isWide != name.isWide || (made.type == name.type && made.channels == name.channels)) continue;
      const Scene others(*other, kRoi, 1);
      scene.arguments[place] = others.arguments[other->Find("pSpec")];
      EXPECT_EQ(scene.Call(), qvpStatusContextMatch) << function.name << " with a record of " << other->name;
      EXPECT_EQ(ContentsOf(scene), before) << function.name << " with a record of " << other->name;
    }
  }
}

// Pointers that an array of them has for a call.
int PlanesOf(const std::string& function) {
  const Name name(function);
  if (!name.layout.empty()) return name.written;
  return function == "qvpiHistogramInit" || function == "qvpiLookupInit" ? 3 : 4;
}

TEST(EveryFunction, RefusesEachNullPlane) {
  for (const Export& function : Exports()) {
    for (size_t i = 0; i < function.parameters.size(); ++i) {
      if (!function.parameters[i].type.ends_with("* const*")) continue;
      for (int plane = 0; plane < PlanesOf(function.name); ++plane) {
        Scene scene(function, kRoi, 1);
        const_cast<const void**>(static_cast<const void* const*>(scene.arguments[i].pointer))[plane] = nullptr;
        EXPECT_EQ(scene.Call(), qvpStatusNullPointer) << function.name << " plane " << plane;
      }
    }
  }
}

}  // namespace
