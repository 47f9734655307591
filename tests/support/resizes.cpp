#include "tests/support/resizes.h"

#include <cmath>

namespace test {
namespace {

// What a piece of a row covers, or the sample beside it.
std::vector<Tap> AreaOf(double begin, double end, int length) {
  if (end <= 0) return {{0, 1}};
  if (begin >= length) return {{length - 1, 1}};
  std::vector<Tap> taps;
  begin = std::max(0.0, begin), end = std::min<double>(length, end);
  for (int i = static_cast<int>(begin); i < end; ++i) {
    const double covered = std::min(end, i + 1.0) - std::max<double>(begin, i);
    if (covered > 1e-9) taps.push_back({i, covered / (end - begin)});
  }
  return taps;
}

// Between the entries of a table.
double LanczosAt(double t, int lobes) {
  const double unit = lobes == 2 ? 200 : 100, i = std::floor(t * unit);
  const double first = LanczosWeight(i / unit, lobes), next = LanczosWeight((i + 1) / unit, lobes);
  return first + (next - first) * (t * unit - i);
}

double KernelAt(const Resizing& m, double t) {
  t = std::fabs(t);
  if (m.Is(qvpInterpolationLinear)) return std::max(0.0, 1 - t);
  return m.Is(qvpInterpolationLanczos) ? LanczosAt(t, m.lobes) : CubicWeight(t, m.b, m.c);
}

// How far before the last possible address memory begins: at every second call that, else anywhere.
int NextPhase() {
  static int calls = 0;
  ++calls;
  return calls % 2 * (calls * 7 % 64);
}

// Averages have no kernel that could be smoothed.
std::string InitOf(const Resizing& m, std::string_view type, bool isWide) {
  const bool isShifted = m.shift[0] != 0 || m.shift[1] != 0;
  const std::string init = "qvpi" + m.Operation() + (m.isAntialiasing ? m.name : isShifted ? "Shift" : "") + "Init";
  if (isWide) return init + "_L";
  return m.isAntialiasing && type != "64f" ? init : init + "_" + std::string(type);
}

}  // namespace

int Resizing::Reach() const {
  return Is(qvpInterpolationLinear) ? 1 : Is(qvpInterpolationCubic) ? 2 : Is(qvpInterpolationLanczos) ? lobes : 0;
}

bool Resizing::Fits(int from, int to) const {
  return from >= std::max(1, 2 * Reach()) && (!Is(qvpInterpolationSuper) || to <= from);
}

std::vector<Tap> TapsOf(const Resizing& m, const Axis& axis, int d) {
  if (m.Is(qvpInterpolationNearest)) {
    return {{static_cast<int>(((2 * int64_t{d} + 1) * axis.from - 1) / (2 * axis.to)), 1}};
  }
  const double ratio = static_cast<double>(axis.from) / axis.to;
  if (m.Is(qvpInterpolationSuper)) return AreaOf((d - axis.shift) * ratio, (d + 1 - axis.shift) * ratio, axis.length);
  const double centre = (d + axis.origin) * axis.from / axis.to - axis.origin;
  const double scale = m.isAntialiasing ? std::max(1.0, ratio) : 1, reach = m.Reach() * scale;
  std::vector<Tap> taps;
  double sum = 0;
  for (int i = static_cast<int>(std::floor(centre - reach)); i <= centre + reach + 1; ++i) {
    const double weight = KernelAt(m, (i - centre) / scale);
    if (std::fabs(weight) < 1e-12) continue;
    taps.push_back({i, weight});
    sum += weight;
  }
  for (Tap& tap : taps) tap.weight /= sum;
  return taps;
}

std::vector<std::vector<Tap>> AllTapsOf(const Resizing& method, const Axis& axis, int n) {
  std::vector<std::vector<Tap>> all;
  for (int d = 0; d < n; ++d) all.push_back(TapsOf(method, axis, d));
  return all;
}

QvpStatus InitResize(const Resizing& m, std::string_view type, QvpiSize from, QvpiSize to, bool isWide, void* spec,
                     uint8_t* buffer) {
  return CallNamed(InitOf(m, type, isWide), {{"srcSize", from},
                                             {"dstSize", to},
                                             {"dataType", ElementOf(type).code},
                                             {"valueB", m.b},
                                             {"valueC", m.c},
                                             {"numLobes", m.lobes},
                                             {"shiftX", m.shift[0]},
                                             {"shiftY", m.shift[1]},
                                             {"pSpec", {spec}},
                                             {"pInitBuf", {buffer}}});
}

ImageResize::ImageResize(const Resizing& m, std::string_view type, QvpiSize from, QvpiSize to, bool isWide)
    : type_(type), to_(to), isWide_(isWide) {
  int size = 0, init = 0;
  const bool isOfDoubles = type == "64f" && !m.isAntialiasing;
  EXPECT_EQ(
      CallNamed(isOfDoubles ? "qvpiResizeGetSize_64f" : "qvpiResizeGetSize_8u", {{"srcSize", from},
                                                                                 {"dstSize", to},
                                                                                 {"interpolation", m.interpolation},
                                                                                 {"antialiasing", m.isAntialiasing},
                                                                                 {"pSpecSize", {&size}},
                                                                                 {"pInitBufSize", {&init}}}),
      0);
  memory_ = std::make_unique<Block>(size + NextPhase());
  const Block buffer(init);
  status_ = InitResize(m, type, from, to, isWide, spec(), buffer.data());
}

QvpStatus ImageResize::Query(const std::string& query, const std::vector<Named>& arguments) const {
  std::vector<Named> all = {{"pSpec", {spec()}}};
  all.insert(all.end(), arguments.begin(), arguments.end());
  return CallNamed("qvpiResizeGet" + query + (isWide_ ? "_L" : "_" + type_), all);
}

Reach ImageResize::ReachOf() const {
  QvpiBorderSize size{};
  EXPECT_EQ(Query("BorderSize", {{"pBorderSize", {&size}}}), 0);
  return {static_cast<int>(size.left), static_cast<int>(size.top), static_cast<int>(size.right),
          static_cast<int>(size.bottom)};
}

QvpiPoint ImageResize::SourceOf(QvpiPoint tile) const {
  QvpiPoint at{};
  QvpiPointL wide{};
  EXPECT_EQ(Query("SrcOffset", {{"dstOffset", tile}, {"pSrcOffset", {isWide_ ? static_cast<void*>(&wide) : &at}}}), 0);
  return isWide_ ? QvpiPoint{static_cast<int>(wide.x), static_cast<int>(wide.y)} : at;
}

size_t ImageResize::BufferSize(QvpiSize tile, int channels) const {
  int size = 0;
  QvpSizeL wide = 0;
  EXPECT_GE(Query("BufferSize", {{"dstSize", tile},
                                 {"numChannels", channels},
                                 {"pBufSize", {isWide_ ? static_cast<void*>(&wide) : &size}}}),
            0);
  return isWide_ ? wide : size;
}

QvpStatus ImageResize::operator()(const Export& function, const Argument& src, const Argument& dst, QvpiRect tile,
                                  int border) const {
  const Block buffer(BufferSize({tile.width, tile.height}, Name(function.name).channels) + NextPhase());
  return function({{"pSrc", src},
                   {"pDst", dst},
                   {"dstOffset", QvpiPoint{tile.x, tile.y}},
                   {"dstSize", QvpiSize{tile.width, tile.height}},
                   {"border", border},
                   {"pBorderValue", {nullptr, 0}},
                   {"pSpec", {spec()}},
                   {"pBuffer", {buffer.data()}}});
}

Samples Resized(const Export& function, const ImageResize& resize, const Bordered& src) {
  const QvpiSize to = resize.to();
  const QvpiPoint at = resize.SourceOf({0, 0});
  Samples dst(src.element(), to.width * src.region.channels, to.height, 3 * src.element().bytes);
  EXPECT_EQ(
      resize(function, {src.At(at.x, at.y), src.image.step()}, dst, {0, 0, to.width, to.height}, src.region.border), 0)
      << function.name;
  return dst;
}

}  // namespace test
