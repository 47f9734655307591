// What the parameters of copies into a border and of the general filter mean.
#include <array>
#include <stdexcept>

#include "tests/support/lessons.h"

namespace test {
namespace {

bool Has(const Scene& scene, const char* part) { return scene.function().name.find(part) != std::string::npos; }

QvpDataType TypeOf(const Scene& scene) {
  return Has(scene, "_8u")    ? qvp8u
         : Has(scene, "_16u") ? qvp16u
         : Has(scene, "_16s") ? qvp16s
         : Has(scene, "_64f") ? qvp64f
                              : qvp32f;
}
int ChannelsOf(const Scene& scene) { return Has(scene, "C4") ? 4 : Has(scene, "C3") ? 3 : 1; }
int PixelBytes(const Scene& scene) {
  const int element = Has(scene, "_8u") ? 1 : Has(scene, "_16") ? 2 : 4;
  return element * ChannelsOf(scene);
}

// The region of a scene is the destination; the source lies in its middle.
QvpiSize SourceSize(QvpiSize dst) { return {std::max(1, dst.width - 7), std::max(1, dst.height - 3)}; }
int Before(int dst, int src) { return (dst - src) / 2; }

bool LearnCopyBorder(Scene& scene, std::string_view name, Argument& argument) {
  const QvpiSize dst = scene.roi(), src = SourceSize(dst);
  const int top = Before(dst.height, src.height), left = Before(dst.width, src.width);
  if (name == "srcRoiSize") {
    argument = {nullptr, src.width, src.height};
  } else if (name == "dstRoiSize") {
    argument = {nullptr, dst.width, dst.height};
  } else if (name == "topBorderHeight") {
    argument = {nullptr, top};
  } else if (name == "leftBorderWidth") {
    argument = {nullptr, left};
  } else if (name == "srcDstStep") {
    argument = {nullptr, dst.width * 16 + 5};
  } else if (name == "pSrcDst") {
    const int step = dst.width * 16 + 5;
    argument = {scene.Output(size_t{1} * step * dst.height) + top * step + left * PixelBytes(scene)};
  } else {
    return false;
  }
  return true;
}

constexpr QvpiSize kKernel{3, 4};

// The type of the kernel that a record is made from; integers where the type of the image leaves the choice.
QvpDataType KernelTypeOf(QvpDataType type) { return type == qvp64f || type == qvp32f ? type : qvp16s; }

struct Sizes {
  int spec, buffer;
};
Sizes SizesFor(const Scene& scene, QvpDataType type, QvpDataType kernelType) {
  Sizes sizes;
  if (qvpiFilterBorderGetSize(kKernel, scene.roi(), type, kernelType, ChannelsOf(scene), &sizes.spec, &sizes.buffer)) {
    throw std::runtime_error("qvpiFilterBorderGetSize");
  }
  return sizes;
}

template <class T>
const T* Kernel() {
  static const std::array<T, 12> kernel = {1, 2, 3, -4, 5, 6, 7, 8, -9, 10, 11, 12};
  return kernel.data();
}

const void* RecordFor(Scene& scene, QvpDataType type) {
  const QvpDataType kernelType = KernelTypeOf(type);
  auto* spec = reinterpret_cast<QvpiFilterBorderSpec*>(scene.Input(SizesFor(scene, type, kernelType).spec));
  const int channels = ChannelsOf(scene);
  const QvpStatus status =
      kernelType == qvp16s ? qvpiFilterBorderInit_16s(Kernel<Qvp16s>(), kKernel, 50, type, channels, qvpRoundNear, spec)
      : kernelType == qvp32f ? qvpiFilterBorderInit_32f(Kernel<Qvp32f>(), kKernel, type, channels, qvpRoundNear, spec)
                             : qvpiFilterBorderInit_64f(Kernel<Qvp64f>(), kKernel, type, channels, qvpRoundNear, spec);
  if (status) throw std::runtime_error("qvpiFilterBorderInit");
  return spec;
}

bool LearnInit(Scene& scene, std::string_view name, Argument& argument) {
  const QvpDataType kernelType = Has(scene, "Init_16s") ? qvp16s : Has(scene, "Init_64f") ? qvp64f : qvp32f;
  const QvpDataType type = kernelType == qvp16s ? qvp8u : kernelType;
  if (name == "pKernel") {
    argument = {kernelType == qvp16s   ? static_cast<const void*>(Kernel<Qvp16s>())
                : kernelType == qvp32f ? static_cast<const void*>(Kernel<Qvp32f>())
                                       : static_cast<const void*>(Kernel<Qvp64f>())};
  } else if (name == "pSpec") {
    // No output: a refused Init takes its identification away.
    argument = {scene.Input(SizesFor(scene, type, kernelType).spec)};
  } else if (name == "dataType") {
    argument = {nullptr, type};
  } else if (name == "roundMode") {
    argument = {nullptr, qvpRoundNear};
  } else {
    return false;
  }
  return true;
}

bool LearnFilter(Scene& scene, std::string_view name, Argument& argument) {
  const int width = scene.roi().width;
  if (name == "kernelSize") {
    argument = {nullptr, kKernel.width, kKernel.height};
  } else if (name == "dstRoiSize") {
    argument = {nullptr, width, scene.roi().height};
  } else if (name == "numChannels" || name == "divisor" || name == "hint") {
    argument = {nullptr, 1};
  } else if (name == "offset") {
    argument = {nullptr, 3};
  } else if (name == "dataType" || name == "kernelType") {
    argument = {nullptr, qvp32f};
  } else if (name == "pSpecSize" || name == "pBufferSize") {
    argument = {scene.Output(sizeof(int))};
  } else if (name == "pSpec") {
    argument = {RecordFor(scene, Has(scene, "SetMode") ? qvp8u : TypeOf(scene))};
  } else if (name == "borderType") {
    argument = {nullptr, width == 64 ? qvpBorderMirror : width == 201 ? qvpBorderReplicate : qvpBorderConst};
  } else if (name == "borderValue") {
    argument = {scene.Input(4 * sizeof(double))};
  } else if (name == "pBuffer") {
    argument = {scene.Input(SizesFor(scene, TypeOf(scene), KernelTypeOf(TypeOf(scene))).buffer)};
  } else {
    return false;
  }
  return true;
}

}  // namespace

bool FilterLesson(Scene& scene, size_t place, Argument& argument) {
  const std::string_view name = scene.function().parameters[place].name;
  if (Has(scene, "qvpiFilterBorderInit") && LearnInit(scene, name, argument)) return true;
  if (Has(scene, "qvpiFilterBorder")) return LearnFilter(scene, name, argument);
  return Has(scene, "Border_") && Has(scene, "qvpiCopy") && LearnCopyBorder(scene, name, argument);
}

}  // namespace test
