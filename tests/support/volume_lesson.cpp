// Parameters of functions of volumes.
#include <algorithm>
#include <stdexcept>

#include "tests/support/lessons.h"
#include "tests/support/name.h"

namespace test {
namespace {

// The region of a scene is a plane of the destination; each scene has a depth and a border of its own.
struct Manner {
  QvprVolume src, dst;
  int top, left, front;
};
Manner MannerOf(const Scene& scene) {
  Random random = scene.choices();
  const auto less = [&](int side) { return std::max(1, side - static_cast<int>(random.Next() % 9)); };
  const auto before = [&](int dst, int src) { return static_cast<int>(random.Next() % (dst - src + 1)); };
  const QvprVolume dst{scene.roi().width, scene.roi().height, 1 + static_cast<int>(random.Next() % 6)};
  const QvprVolume src{less(dst.width), less(dst.height), less(dst.depth)};
  return {src, dst, before(dst.height, src.height), before(dst.width, src.width), before(dst.depth, src.depth)};
}

// Rows have room for any voxel, and planes for a row more than they have.
int StepOf(const QvprVolume& volume, size_t place) { return 8 * volume.width + 17 * static_cast<int>(place + 1); }
int PlaneStepOf(const QvprVolume& volume, size_t place) { return StepOf(volume, place) * (volume.height + 1); }

const void* Voxels(Scene& scene, size_t place, const QvprVolume& volume, Scene::Value value = EdgeValue) {
  const Parameter& parameter = scene.function().parameters[place];
  const int step = StepOf(volume, place), rows = (volume.height + 1) * volume.depth;
  const size_t bytes = size_t{1} * step * rows;
  uint8_t* const voxels = parameter.name == "pDst" ? scene.Output(bytes) : scene.Input(bytes);
  scene.FillRows(*PointedAt(parameter.type), voxels, step, rows, value);
  return voxels;
}

// Twelve numbers, the coefficients of a transform: in memory of the scene, which knows how many there are.
const void* Numbers(Scene& scene, const std::vector<double>& numbers) {
  uint8_t* const memory = scene.Input(numbers.size() * sizeof(double));
  std::memcpy(memory, numbers.data(), numbers.size() * sizeof(double));
  return memory;
}

// ---- Filters: voxels around the region are in memory on any face that a scene chooses.

constexpr int kReach = 3;  // of any mask, kernel or weights

struct FilterManner {
  QvprVolume size, mask;
  QvpiBorderType border;
  QvprPoint anchor;  // of a kernel as large as the mask
  bool isInteger, isSeparable;
};
FilterManner FilterMannerOf(const Scene& scene) {
  constexpr QvprVolume kMasks[] = {{3, 3, 3}, {1, 5, 3}, {5, 1, 1}, {3, 3, 5}, {1, 1, 1}};
  Random random = scene.choices();
  const QvprVolume size{scene.roi().width, scene.roi().height, 1 + static_cast<int>(random.Next() % 3)};
  const int kind = random.Next() % 2 ? qvpBorderConst : qvpBorderReplicate;
  const QvprVolume mask = kMasks[random.Next() % std::size(kMasks)];
  const int border = kind | (static_cast<int>(random.Next()) & qvpBorderInMemVolume);
  return {size,
          mask,
          border,
          {mask.width / 2, mask.height / 2, mask.depth / 2},
          random.Next() % 2 == 0 && !scene.Has("32f"),
          random.Next() % 2 == 0};
}
QvprVolume Around(const QvprVolume& size) {
  return {size.width + 2 * kReach, size.height + 2 * kReach, size.depth + 2 * kReach};
}
ptrdiff_t RegionAt(int step, const Element& element) { return kReach * (step + element.bytes); }

// The volume around the region, or pointers to its planes, of one size everywhere.
const void* Region(Scene& scene, size_t place, const QvprVolume& size, Scene::Value value = EdgeValue) {
  const Parameter& parameter = scene.function().parameters[place];
  const Element& element = *PointedAt(parameter.type);
  const QvprVolume around = Around(size);
  const int step = StepOf(around, place), planeStep = PlaneStepOf(around, place);
  auto* const voxels = static_cast<const uint8_t*>(Voxels(scene, place, around, value));
  const uint8_t* const first = voxels + RegionAt(step, element);
  if (!parameter.type.ends_with("* const*")) return first + ptrdiff_t{kReach} * planeStep;
  auto* const planes = reinterpret_cast<const void**>(scene.Input(around.depth * sizeof(uint64_t)));
  for (int z = 0; z < around.depth; ++z) planes[z] = first + ptrdiff_t{z} * planeStep;
  return planes + kReach;
}

// Volumes and their steps.
bool LearnVolumes(Scene& scene, size_t place, const QvprVolume& src, const QvprVolume& dst, Argument& argument) {
  const std::string_view name = scene.function().parameters[place].name;
  const QvprVolume& volume = name.starts_with("pSrc") || name.starts_with("src") ? src : dst;
  if (name == "pSrc" || name == "pDst") {
    argument = {Region(scene, place, volume)};
  } else if (name.ends_with("PlaneStep")) {
    argument = PlaneStepOf(Around(volume), place - 2);
  } else if (name.ends_with("Step")) {
    argument = StepOf(Around(volume), place - 1);
  } else {
    return false;
  }
  return true;
}

// What is the same for all filters.
bool FilterArgument(Scene& scene, size_t place, const FilterManner& m, Argument& argument) {
  const auto& [type, name] = scene.function().parameters[place];
  if (LearnVolumes(scene, place, m.size, m.size, argument)) return true;
  if (name == "borderValue") return argument = scene.Constants(type), true;
  return Choose(name,
                {{"dstVolume", m.size}, {"maskVolume", m.mask}, {"kernelVolume", m.mask}, {"borderType", m.border}},
                argument);
}

// ---- General filter

struct KernelSizes {
  int spec, buffer;
};
KernelSizes SizesOf(const FilterManner& m) {
  KernelSizes sizes{};
  qvprFilterBorderGetSize(m.mask, m.size, qvp8u, qvp32f, &sizes.spec, &sizes.buffer);
  return sizes;
}

// As many coefficients as the largest kernel has.
template <class K>
const K* Coefficients(Scene& scene, K unit) {
  constexpr int kMost = 45;
  auto* const kernel = reinterpret_cast<K*>(scene.Input(kMost * sizeof(K)));
  for (int i = 0; i < kMost; ++i) kernel[i] = static_cast<K>(static_cast<int>(scene.random().Next() % 201) - 70) * unit;
  return kernel;
}

const void* FilterRecordFor(Scene& scene, const FilterManner& m) {
  auto* const spec = reinterpret_cast<QvprFilterBorderSpec*>(scene.Input(SizesOf(m).spec));
  const QvpDataType type = Name(scene.function().name).From().code;
  const auto mode = static_cast<QvpRoundMode>(scene.Any({0, 1, 2}));
  QvpStatus failed;
  if (m.isInteger) {
    const auto* const kernel = Coefficients<Qvp16s>(scene, scene.Any({1, 300}));
    failed = qvprFilterBorderInit_16s(kernel, m.mask, m.anchor, scene.Any({1, 64, 700}), type, mode, spec);
  } else {
    const auto* const k = Coefficients(scene, 0.01f);
    failed = m.isSeparable ? qvprFilterBorderSeparableInit_32f(k, k + 5, k + 10, m.mask, m.anchor, type, mode, spec)
                           : qvprFilterBorderInit_32f(k, m.mask, m.anchor, type, mode, spec);
  }
  if (failed) throw std::runtime_error("qvprFilterBorderInit");
  return spec;
}

// ---- Resizing: the region of a scene is a plane of the whole destination.

struct ResizeManner {
  QvprVolume src, dst, tile;
  QvprPoint at;
  int method;
  float b;
  unsigned lobes;
  QvpiBorderType border;
};
constexpr std::pair<const char*, int> kNamedMethods[] = {{"Nearest", qvpInterpolationNearest},
                                                         {"Linear", qvpInterpolationLinear},
                                                         {"Cubic", qvpInterpolationCubic},
                                                         {"Lanczos", qvpInterpolationLanczos},
                                                         {"Super", qvpInterpolationSuper}};
const char* NameOf(int method) {
  return std::find_if(std::begin(kNamedMethods), std::end(kNamedMethods),
                      [&](const auto& m) { return m.second == method; })
      ->first;
}
ResizeManner ResizeMannerOf(const Scene& scene) {
  Random random = scene.choices();
  int method = kNamedMethods[random.Next() % std::size(kNamedMethods)].second;
  for (const auto& [name, named] : kNamedMethods) method = scene.Has(name) ? named : method;
  const QvprVolume dst{scene.roi().width, scene.roi().height, 1 + static_cast<int>(random.Next() % 3)};
  const auto along = [&](int n) {
    const int lengths[] = {n, n + 1 + n / 2, 2 * n, std::max(1, n / 2)};
    return lengths[random.Next() % (method == qvpInterpolationSuper ? 3 : 4)];
  };
  const QvprVolume src{along(dst.width), along(dst.height), along(dst.depth)};
  const auto before = [&](int n) { return static_cast<int>(random.Next() % n); };
  const QvprPoint at{before(dst.width), before(dst.height), before(dst.depth)};
  const int kind = random.Next() % 2 ? qvpBorderMirror : qvpBorderReplicate;
  const QvprVolume tile{dst.width - at.x, dst.height - at.y, dst.depth - at.z};
  return {src,
          dst,
          tile,
          at,
          method,
          random.Next() % 2 ? 0 : 0.25f,
          2 + random.Next() % 2,
          kind | (static_cast<int>(random.Next()) & qvpBorderInMemVolume)};
}

QvpDataType TypeOf(const Scene& scene) {
  return scene.Has("32f") ? qvp32f : scene.Has("16s") ? qvp16s : scene.Has("16u") ? qvp16u : qvp8u;
}

// Averages of fewer voxels than a scene asks for take a longer record.
int RecordBytes(const Scene& scene, const ResizeManner& m) {
  int bytes = 0, most = 0;
  qvprResizeGetSize(m.src, m.dst, TypeOf(scene), m.method, &bytes);
  qvprResizeGetSize(m.src, {1, 1, 1}, TypeOf(scene), m.method, &most);
  return scene.Has("Init") ? bytes + most : bytes;
}

const void* Record(Scene& scene, const ResizeManner& m) {
  const int bytes = RecordBytes(scene, m);
  if (scene.Has("Init")) return scene.Output(bytes);
  auto* const spec = reinterpret_cast<QvprResizeSpec*>(scene.Input(bytes));
  CallNamed(std::string("qvprResize") + NameOf(m.method) + "Init", {{"srcVolume", m.src},
                                                                    {"dstVolume", m.dst},
                                                                    {"dataType", TypeOf(scene)},
                                                                    {"valueB", m.b},
                                                                    {"valueC", 0.5},
                                                                    {"numLobes", m.lobes},
                                                                    {"pSpec", {spec}}});
  return spec;
}

const void* ResizeBuffer(Scene& scene, const ResizeManner& m) {
  const auto* const spec = static_cast<const QvprResizeSpec*>(scene.arguments[scene.function().Find("pSpec")].pointer);
  int bytes = 0;
  qvprResizeGetBufferSize(spec, m.tile, &bytes);
  return scene.Input(bytes);
}

// The volumes with their steps, and other memory.
bool ResizeMemory(Scene& scene, size_t place, const ResizeManner& m, Argument& argument) {
  const std::string_view name = scene.function().parameters[place].name;
  if (name == "pSrcCuboid") {
    argument = {scene.Output(sizeof(QvprCuboid))};
  } else if (name == "pSpec") {
    argument = {Record(scene, m)};
  } else if (name == "pBuffer") {
    argument = {ResizeBuffer(scene, m)};
  } else {
    return LearnVolumes(scene, place, m.src, m.tile, argument);
  }
  return true;
}

}  // namespace

bool VolumeKernelLesson(Scene& scene, size_t place, Argument& argument) {
  const auto& [type, name] = scene.function().parameters[place];
  const FilterManner m = FilterMannerOf(scene);
  if (FilterArgument(scene, place, m, argument)) return true;
  if (name == "dataType") {
    argument = scene.Any({qvp8u, qvp16u, qvp16s});
  } else if (name == "kernelType") {
    argument = scene.Any({qvp16s, qvp32f});
  } else if (name == "anchor") {
    argument = m.anchor;
  } else if (name.starts_with("pKernel")) {
    argument = {type == "const Qvp16s*" ? static_cast<const void*>(Coefficients<Qvp16s>(scene, 1))
                                        : Coefficients(scene, 0.01f)};
  } else if (name == "divisor") {
    argument = scene.Any({1, 16, -9});
  } else if (name == "pSpec" && type.starts_with("const")) {
    argument = {FilterRecordFor(scene, m)};
  } else if (name == "pSpec") {
    argument = {scene.Input(SizesOf(m).spec)};  // no output: a refused Init takes its identification away
  } else if (name == "pBuffer") {
    argument = {scene.Input(SizesOf(m).buffer)};
  } else {
    return false;
  }
  return true;
}

bool VolumeFilterLesson(Scene& scene, size_t place, Argument& argument) {
  const std::string_view name = scene.function().parameters[place].name;
  const FilterManner m = FilterMannerOf(scene);
  if (FilterArgument(scene, place, m, argument)) return true;
  if (name == "dataType") {
    argument = scene.Any({qvp8u, qvp16u, qvp16s, qvp32f});
  } else if (name == "pBuffer") {
    int bytes = 0;
    qvprFilterMedianBorderGetBufferSize(m.mask, m.size, qvp32f, &bytes);
    argument = {scene.Input(bytes)};
  } else {
    return false;
  }
  return true;
}

bool VolumeLesson(Scene& scene, size_t place, Argument& argument) {
  const std::string_view name = scene.function().parameters[place].name;
  const Manner m = MannerOf(scene);
  const QvprVolume& volume = name.starts_with("pSrc") || name.starts_with("src") ? m.src : m.dst;
  if (name == "pSrc" || name == "pDst") return argument = {Voxels(scene, place, volume)}, true;
  return Choose(name,
                {{"srcStep", StepOf(volume, place - 1)},
                 {"dstStep", StepOf(volume, place - 1)},
                 {"srcPlaneStep", PlaneStepOf(volume, place - 2)},
                 {"dstPlaneStep", PlaneStepOf(volume, place - 2)},
                 {"srcVolume", m.src},
                 {"dstVolume", m.dst},
                 {"topBorderHeight", m.top},
                 {"leftBorderWidth", m.left},
                 {"frontBorderDepth", m.front}},
                argument);
}

// ---- Warps and remaps: the source is a region with voxels around it.

struct WarpManner {
  QvprVolume src, dst;
  QvpiBorderType border;
  QvpiInterpolationType interpolation;
};
static WarpManner WarpMannerOf(const Scene& scene) {
  constexpr int kBorders[] = {qvpBorderReplicate, qvpBorderConst, qvpBorderTransparent, qvpBorderInMemVolume};
  constexpr int kMethods[] = {qvpInterpolationNearest, qvpInterpolationLinear, qvpInterpolationCubic};
  Random random = scene.choices();
  const auto any = [&](const auto& list) { return list[random.Next() % std::size(list)]; };
  const auto about = [&](int side) { return std::max(1, side + static_cast<int>(random.Next() % 7) - 3); };
  const QvprVolume dst{scene.roi().width, scene.roi().height, 1 + static_cast<int>(random.Next() % 3)};
  const QvprVolume src{about(dst.width), about(dst.height), about(dst.depth)};
  return {src, dst, any(kBorders), any(kMethods)};
}
static const std::vector<double>& CoefficientsOf(const Scene& scene) {
  static const std::vector<double> kSets[] = {{0.9, 0.3, -0.1, 0.5, -0.25, 1.1, 0.2, 1.25, 0.05, -0.3, 0.8, 0.4},
                                              {1, 0, 0, 1, 0, 1, 0, -1, 0, 0, 1, 0},
                                              {0, 1, 0, 0.25, 1, 0, 0, 0.5, 0, 0, -1, 1}};
  return kSets[scene.choices().Next() % std::size(kSets)];
}

static const void* WarpRecord(Scene& scene) {
  const WarpManner m = WarpMannerOf(scene);
  const Name name(scene.function().name);
  auto* const spec = scene.Input(576);  // no output: a refused Init changes it
  const double value = 77;
  CallNamed(std::string("qvprWarpAffine") + NameOf(m.interpolation) + "Init",
            {{"srcVolume", m.src},
             {"dstVolume", m.dst},
             {"dataType", name.layout.empty() ? qvp8u : name.From().code},
             {"coeffs", {Numbers(scene, CoefficientsOf(scene))}},
             {"direction", qvpWarpBackward},
             {"valueB", 0},
             {"valueC", 0.5},
             {"borderType", m.border},
             {"pBorderValue", {&value}},
             {"pSpec", {spec}}});
  return spec;
}

// Most points of maps lie in small sources.
static Real Coordinate(const Element&, Random& random) {
  return Real(static_cast<float>(random.Next() % 1000)) / 90 - 1;
}

// What the arguments of warps and of remaps are alike in.
static bool SampledLesson(Scene& scene, size_t place, Argument& argument) {
  const std::string_view name = scene.function().parameters[place].name;
  const WarpManner m = WarpMannerOf(scene);
  if (name.ends_with("Map")) return argument = {Region(scene, place, m.dst, Coordinate)}, true;
  return LearnVolumes(scene, place, m.src, m.dst, argument) ||
         Choose(name, {{"srcVolume", m.src}, {"dstVolume", m.dst}, {"interpolation", m.interpolation}}, argument);
}

bool VolumeWarpLesson(Scene& scene, size_t place, Argument& argument) {
  const auto& [type, name] = scene.function().parameters[place];
  const WarpManner m = WarpMannerOf(scene);
  if (name == "dataType") {
    argument = scene.Any({qvp8u, qvp16u, qvp16s, qvp32f});
  } else if (name == "coeffs") {
    argument = {Numbers(scene, CoefficientsOf(scene))};
  } else if (name == "direction") {
    argument = scene.Any({qvpWarpForward, qvpWarpBackward});
  } else if (name == "pBorderValue") {
    argument = {Numbers(scene, {77})};
  } else if (name == "pSpec") {
    argument = {type.starts_with("const") ? WarpRecord(scene) : scene.Output(576)};
  } else if (name == "pBuffer") {
    int bytes = 0;
    qvprWarpGetBufferSize(static_cast<const QvprWarpSpec*>(WarpRecord(scene)), m.dst, &bytes);
    argument = {scene.Input(bytes)};
  } else {
    return SampledLesson(scene, place, argument) ||
           Choose(name,
                  {{"dstOffset", QvprPoint{0, 0, 0}}, {"valueB", 0.25}, {"valueC", 0.5}, {"borderType", m.border}},
                  argument);
  }
  return true;
}

bool VolumeRemapLesson(Scene& scene, size_t place, Argument& argument) {
  const QvprVolume src = WarpMannerOf(scene).src;
  const QvprCuboid all{0, 0, 0, src.width, src.height, src.depth};
  return Choose(scene.function().parameters[place].name, {{"srcCuboid", all}}, argument) ||
         SampledLesson(scene, place, argument);
}

bool VolumeResizeLesson(Scene& scene, size_t place, Argument& argument) {
  const std::string_view name = scene.function().parameters[place].name;
  const ResizeManner m = ResizeMannerOf(scene);
  if (ResizeMemory(scene, place, m, argument)) return true;
  if (name == "dataType") return argument = scene.Any({qvp8u, qvp16u, qvp16s, qvp32f}), true;
  return Choose(name,
                {{"srcVolume", m.src},
                 {"dstVolume", scene.Has("GetSize") || scene.Has("Init") ? m.dst : m.tile},
                 {"dstOffset", m.at},
                 {"dstCuboid", QvprCuboid{m.at.x, m.at.y, m.at.z, m.tile.width, m.tile.height, m.tile.depth}},
                 {"interpolation", m.method},
                 {"numLobes", m.lobes},
                 {"valueB", m.b},
                 {"valueC", 0.5},
                 {"borderType", m.border}},
                argument);
}

bool SpaceLesson(Scene& scene, size_t place, Argument& argument) {
  const auto& [type, name] = scene.function().parameters[place];
  if (!type.starts_with("const") && type.ends_with(']')) {
    argument = {scene.Output(12 * sizeof(double))};
  } else if (name == "angle") {
    argument = scene.Any({10, 90, -135});
  } else if (name == "axis" || name == "center") {
    argument = {Numbers(scene, {1, -2, 0.5})};
  } else if (name == "corners") {
    argument = {Numbers(scene, {1, 2, 3, 9, 1, 4, 0, 8, 2, 2, 1, 7})};
  } else if (name == "srcCuboid") {
    argument = QvprCuboid{2, 0, 5, 9, 8, 7};
  } else if (type.starts_with("const")) {
    argument = {Numbers(scene, {0.9, 0.3, -0.1, -1.5, -0.25, 1.1, 0.2, 1.25, 0.1, -0.3, 0.8, 4})};
  } else {
    return false;
  }
  return true;
}

}  // namespace test
