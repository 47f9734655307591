// Parameters of norms, sums, extrema, dot products, histograms and moments.
#include "tests/support/lessons.h"

namespace test {
namespace {

constexpr const char* kOperations[] = {"qvpiNorm", "qvpiSum",     "qvpiMean",      "qvpiMin",
                                       "qvpiMax",  "qvpiDotProd", "qvpiHistogram", "qvpiMoments64f"};
constexpr int kLevels = 9, kRows = 5, kLength = 77;

float NumberAt(Random& random) { return static_cast<float>(static_cast<int>(random.Next() % 200001) - 100000) / 64; }

// Floats that can be added up without an infinity or NaN on the way.
template <class T>
T* Numbers(Scene& scene, size_t n) {
  T* const numbers = reinterpret_cast<T*>(scene.Input(n * sizeof(T)));
  for (size_t i = 0; i < n; ++i) {
    const T number = NumberAt(scene.random());
    std::memcpy(numbers + i, &number, sizeof(T));
  }
  return numbers;
}

// Room for pointers, and the same random bytes for pointers of any width.
template <class T>
T** PointersIn(Scene& scene, size_t n) {
  return reinterpret_cast<T**>(scene.Input(n * sizeof(uint64_t)));
}

template <class T>
const void* RowsOf(Scene& scene) {
  const T** const rows = PointersIn<const T>(scene, kRows);
  for (int k = 0; k < kRows; ++k) {
    const T* const row = Numbers<T>(scene, kLength);
    std::memcpy(rows + k, &row, sizeof(row));
  }
  return rows;
}

QvpDataType TypeIn(const std::string& function) {
  if (function.find("_32f_") != std::string::npos) return qvp32f;
  if (function.find("_16s_") != std::string::npos) return qvp16s;
  return function.find("_16u_") != std::string::npos ? qvp16u : qvp8u;
}

// Four channels of evenly spread levels, also for what takes fewer.
const void* HistogramRecord(Scene& scene, QvpDataType type) {
  const float lower[4] = {-1500, 0, 3, 10}, upper[4] = {1500, 200, 120, 60000};
  const int levels[4] = {kLevels, kLevels, kLevels, kLevels};
  auto* const spec = reinterpret_cast<QvpiHistogramSpec*>(scene.Input(64 + 4 * 4 * kLevels));
  qvpiHistogramUniformInit(type, lower, upper, levels, 4, spec);
  return spec;
}

// An array of pointers to arrays of kLevels numbers.
const void* Arrays(Scene& scene, bool isOutput) {
  void** const arrays = PointersIn<void>(scene, 4);
  for (int c = 0; c < 4; ++c) {
    auto* const numbers = reinterpret_cast<float*>(isOutput ? scene.Output(4 * kLevels) : scene.Input(4 * kLevels));
    for (int k = 0; k < kLevels && !isOutput; ++k) numbers[k] = static_cast<float>(k * k) + 0.25f;
    arrays[c] = numbers;
  }
  return arrays;
}

// Computed from a small image, so that there is something to ask.
const void* Moments(Scene& scene, bool isFilled) {
  auto* const state = reinterpret_cast<QvpiMomentState_64f*>(scene.Output(400));
  qvpiMomentInit_64f(state, qvpAlgHintFast);
  const uint8_t pixels[12] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 250};
  if (isFilled) qvpiMoments64f_8u_C1R(pixels, 4, {4, 3}, state);
  return state;
}

const void* NumbersOfLevels(Scene& scene, int first, int difference) {
  float* const bounds = reinterpret_cast<float*>(scene.Input(4 * sizeof(float)));
  for (int c = 0; c < 4; ++c) bounds[c] = static_cast<float>(first + c * difference);
  return bounds;
}

bool LearnHistogram(Scene& scene, std::string_view type, std::string_view name, Argument& argument) {
  const std::string& function = scene.function().name;
  if (name == "nLevels") {
    int* const levels = reinterpret_cast<int*>(scene.Input(4 * sizeof(int)));
    std::fill_n(levels, 4, kLevels);
    argument.pointer = levels;
  } else if (name == "dataType") {
    argument.number = qvp16u;
  } else if (name == "numChannels") {
    argument.number = 3;
  } else if (name == "uniform") {
    argument.number = 1;
  } else if (name == "pLevels") {
    argument.pointer = Arrays(scene, function == "qvpiHistogramGetLevels");
  } else if (name == "pHist") {
    argument.pointer = Arrays(scene, true);
  } else if (name == "lowerLevel" || name == "upperLevel") {
    argument.pointer = NumbersOfLevels(scene, name == "lowerLevel" ? 3 : 300, 10);
  } else if (name == "pSpec") {
    argument.pointer = type.starts_with("const") ? HistogramRecord(scene, TypeIn(function)) : scene.Input(400);
  } else if (name == "pBuffer") {
    argument.pointer = scene.Input(4 * 262144);
  } else if (name == "pSpecSize" || name == "pBufferSize") {
    argument.pointer = scene.Output(sizeof(int));
  } else {
    return false;
  }
  return true;
}

bool LearnMoments(Scene& scene, std::string_view type, std::string_view name, Argument& argument) {
  const std::string& function = scene.function().name;
  if (name == "pState") {
    argument.pointer = Moments(scene, type.starts_with("const"));
  } else if (name == "mOrd" || name == "nOrd") {
    argument.number = name == "mOrd" ? 2 : 1;
  } else if (name == "nChannel" || name == "hint") {
    argument.number = 0;
  } else if (name == "roiOffset") {
    argument.number = 5;
    argument.second = -7;
  } else if (name == "pHm" || (name == "pValue" && function.starts_with("qvpiGet"))) {
    argument.pointer = scene.Output(7 * sizeof(double));
  } else if (name == "pSize" && function == "qvpiMomentGetStateSize_64f") {
    argument.pointer = scene.Output(sizeof(int));
  } else {
    return false;
  }
  return true;
}

bool LearnColumns(Scene& scene, std::string_view name, Argument& argument) {
  const bool isDouble = scene.function().name == "qvpiDotProdCol_64f_L2";
  if (name == "ppSrcRow") {
    argument.pointer = isDouble ? RowsOf<double>(scene) : RowsOf<float>(scene);
  } else if (name == "pTaps") {
    argument.pointer =
        isDouble ? static_cast<const void*>(Numbers<double>(scene, kRows)) : Numbers<float>(scene, kRows);
  } else if (name == "pDst") {
    argument.pointer = scene.Output(kLength * (isDouble ? sizeof(double) : sizeof(float)));
  } else {
    argument.number = name == "numRows" ? kRows : kLength;
  }
  return true;
}

}  // namespace

bool StatsLesson(Scene& scene, size_t place, Argument& argument) {
  const auto& [type, name] = scene.function().parameters[place];
  const std::string& function = scene.function().name;
  if (function.starts_with("qvpiDotProdCol_")) return LearnColumns(scene, name, argument);
  if (function.starts_with("qvpiHistogram") && LearnHistogram(scene, type, name, argument)) return true;
  if (function.find("Moment") != std::string::npos && LearnMoments(scene, type, name, argument)) return true;
  const bool isOurs = std::any_of(std::begin(kOperations), std::end(kOperations),
                                  [&](const char* operation) { return function.starts_with(operation); });
  if (!isOurs) return false;
  if (type == "const Qvp32f*" && name.starts_with("pSrc")) {
    const size_t rowBytes = scene.roi().width * size_t{16} + 17 * (place + 1);
    argument.pointer = Numbers<float>(scene, rowBytes * scene.roi().height / sizeof(float) + 1);
  } else if (name == "hint") {
    argument.number = scene.random().Next() % 4;
  } else if (type.ends_with("*") && !type.starts_with("const")) {
    argument.pointer = scene.Output(4 * sizeof(double));
  } else {
    return false;
  }
  return true;
}

}  // namespace test
