// Look-up tables, look-ups through levels and palettes.
#include <algorithm>
#include <array>
#include <opencv2/imgproc.hpp>

#include "bench/image.h"

namespace {
using namespace bench;

constexpr QvpiSize kSizes[] = {kTile, kVga, kHd, kLarge};

// Entries of an image, as a table of the peer's has them.
template <class T>
Image<T> Entries(int count, int channels = 1) {
  return Image<T>({count, 1}, channels);
}

void Tables(QvpiSize size) {
  const auto one = Entries<uint8_t>(256), three = Entries<uint8_t>(256, 3);
  const Image<uint8_t> a(size, 1), b(size, 1), c(size, 3), d(size, 3);
  Add({Name("table 8u C1", size),
       {a.bytes(), b.bytes()},
       [=] { Require(qvpiLookupTable_8u_C1R(a.data(), a.step, b.data(), b.step, size, one.data())); },
       {{"OpenCV LUT", [=] { cv::LUT(a.mat, one.mat, b.mat); }, 1.5}}});
  const auto same = [=] {
    const Qvp8u* const tables[3] = {one.data(), one.data(), one.data()};
    Require(qvpiLookupTable_8u_C3R(c.data(), c.step, d.data(), d.step, size, tables));
  };
  Add({Name("table 8u C3, one table", size),
       {c.bytes(), d.bytes()},
       same,
       {{"OpenCV LUT", [=] { cv::LUT(c.mat, one.mat, d.mat); }, 1.5}}});
  const auto each = [=] {
    const Qvp8u* const tables[3] = {three.data(), three.data() + 256, three.data() + 512};
    Require(qvpiLookupTable_8u_C3R(c.data(), c.step, d.data(), d.step, size, tables));
  };
  Add({Name("table 8u C3, three tables", size),
       {c.bytes(), d.bytes()},
       each,
       {{"OpenCV LUT", [=] { cv::LUT(c.mat, three.mat, d.mat); }, 2.5}}});
}

void WideTable(QvpiSize size) {
  const auto table = Entries<uint16_t>(65536);
  const Image<uint16_t> a(size, 1), b(size, 1);
  const auto plainly = [=] {
    const size_t n = a.bytes() / sizeof(uint16_t);
    const uint16_t *from = a.data(), *of = table.data();
    uint16_t* to = b.data();
    for (size_t i = 0; i < n; ++i) to[i] = of[from[i]];
  };
  Add({Name("table 16u C1", size),
       {a.bytes(), b.bytes()},
       [=] { Require(qvpiLookupTable_16u_C1R(a.data(), a.step, b.data(), b.step, size, table.data())); },
       {{"plain loop", plainly, 1.0}}});
}

// A curve in floats, with the record made of it.
struct Curve {
  std::vector<float> levels, values;
  std::shared_ptr<uint8_t[]> record;
  QvpiLookupMethod method;

  Curve(int n, QvpiLookupMethod m) : method(m) {
    for (int k = 0; k < n; ++k) {
      levels.push_back(256.0f * static_cast<float>(k * k + 3 * n * k) / static_cast<float>(4 * n * n));
      values.push_back(static_cast<float>(k * 37 % 101));
    }
    const float *x = levels.data(), *y = values.data();
    int bytes;
    Require(qvpiLookupGetSize(qvp32f, method, &n, 1, &bytes));
    record = Pixels<uint8_t>(bytes);
    Require(qvpiLookupInit(qvp32f, method, &x, &y, &n, 1, spec()));
  }
  QvpiLookupSpec* spec() const { return reinterpret_cast<QvpiLookupSpec*>(record.get()); }

  // What a program without a library would write.
  float At(float v) const {
    const auto k = std::upper_bound(levels.begin(), levels.end(), v) - levels.begin();
    if (k == 0) return values.front();
    if (k == static_cast<ptrdiff_t>(levels.size())) return values.back();
    const float u = (v - levels[k - 1]) / (levels[k] - levels[k - 1]), rise = values[k] - values[k - 1];
    return values[k - 1] + u * (method == qvpLookupLinear ? rise : rise * u * (3 - 2 * u));
  }
};

void Curves(QvpiSize size) {
  struct {
    const char* name;
    int levels;
    QvpiLookupMethod method;
    double atLeast;
  } const cases[] = {{"look-up 32f C1, linear, 16 levels", 16, qvpLookupLinear, 12},
                     {"look-up 32f C1, cubic, 200 levels", 200, qvpLookupCubic, 6}};
  for (const auto& c : cases) {
    const auto curve = std::make_shared<Curve>(c.levels, c.method);
    const Image<float> a(size, 1), b(size, 1);
    const size_t n = a.bytes() / sizeof(float);
    const auto noise = Pixels<uint16_t>(n);
    for (size_t i = 0; i < n; ++i) a.data()[i] = static_cast<float>(noise[i]) / 256;
    const auto plainly = [=] {
      std::transform(a.data(), a.data() + n, b.data(), [=](float v) { return curve->At(v); });
    };
    Add({Name(c.name, size),
         {a.bytes(), b.bytes()},
         [=] { Require(qvpiLookup_32f_C1R(a.data(), a.step, b.data(), b.step, size, curve->spec())); },
         {{"plain loop, upper_bound", plainly, c.atLeast}}});
  }
}

template <class S, class T>
void AddPalette(const char* name, QvpiSize size, int channels, int nBits, double atLeast, const char* peer,
                QvpStatus (*ours)(const S*, int, T*, int, QvpiSize, const T*, int),
                void (*theirs)(const cv::Mat& src, const cv::Mat& table, cv::Mat& dst)) {
  const auto palette = Entries<T>(1 << nBits, channels);
  const Image<S> a(size, 1);
  const Image<T> b(size, channels);
  Row row{Name(name, size), {a.bytes(), b.bytes()}, [=] {
            Require(ours(a.data(), a.step, b.data(), b.step, size, palette.data(), nBits));
          }};
  if (peer) row.peers = {{peer, [=] { theirs(a.mat, palette.mat, b.mat); }, atLeast}};
  Add(row);
}

void Palettes(QvpiSize size) {
  const auto lookUp = [](const cv::Mat& src, const cv::Mat& table, cv::Mat& dst) { cv::LUT(src, table, dst); };
  const auto colour = [](const cv::Mat& src, const cv::Mat& table, cv::Mat& dst) {
    cv::applyColorMap(src, dst, table.reshape(3, 256));
  };
  AddPalette<uint8_t, uint8_t>("palette 8u C1C3", size, 3, 8, 2.7, "OpenCV applyColorMap", qvpiPalette_8u_C1C3R,
                               colour);
  AddPalette<uint8_t, uint8_t>("palette 8u C1C4", size, 4, 8, 0, nullptr, qvpiPalette_8u_C1C4R, nullptr);
  AddPalette<uint8_t, uint16_t>("palette 8u16u C1", size, 1, 8, 1.1, "OpenCV LUT", qvpiPalette_8u16u_C1R, lookUp);
  AddPalette<uint8_t, uint16_t>("palette 8u16u C1C3", size, 3, 8, 0, nullptr, qvpiPalette_8u16u_C1C3R, nullptr);
  AddPalette<uint8_t, float>("palette 8u32f C1", size, 1, 8, 1.1, "OpenCV LUT", qvpiPalette_8u32f_C1R, lookUp);
  AddPalette<uint8_t, float>("palette 8u32f C1C3", size, 3, 8, 0, nullptr, qvpiPalette_8u32f_C1C3R, nullptr);
  AddPalette<uint16_t, uint8_t>("palette 16u8u C1, 12 bits", size, 1, 12, 0, nullptr, qvpiPalette_16u8u_C1R, nullptr);
  AddPalette<uint16_t, uint8_t>("palette 16u8u C1C3, 12 bits", size, 3, 12, 0, nullptr, qvpiPalette_16u8u_C1C3R,
                                nullptr);
}

// With rows that do not join.
void Overhead() {
  for (const QvpiSize size : kSmallest) {
    const QvpiSize wider{size.width + 1, size.height};
    const auto table = Entries<uint8_t>(256);
    const Image<uint8_t> a(wider, 1), b(wider, 1);
    const cv::Mat from = a.mat.colRange(0, size.width);
    Add({Name("table 8u C1, rows apart", size),
         {a.bytes(), b.bytes()},
         [=] { Require(qvpiLookupTable_8u_C1R(a.data(), a.step, b.data(), b.step, size, table.data())); },
         {{"OpenCV LUT", [=, to = b.mat.colRange(0, size.width)]() mutable { cv::LUT(from, table.mat, to); }}}});
    const auto curve = std::make_shared<Curve>(16, qvpLookupLinear);
    const Image<float> c(wider, 1), d(wider, 1);
    std::fill_n(c.data(), c.bytes() / sizeof(float), 100.0f);
    Add({Name("look-up 32f C1, linear, 16 levels, rows apart", size), {c.bytes(), d.bytes()}, [=] {
           Require(qvpiLookup_32f_C1R(c.data(), c.step, d.data(), d.step, size, curve->spec()));
         }});
  }
}

const bool kRegistered = [] {
  Overhead();
  for (const QvpiSize size : kSizes) {
    Tables(size);
    WideTable(size);
    Curves(size);
    Palettes(size);
  }
  return true;
}();

}  // namespace
