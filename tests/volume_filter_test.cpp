// The general filter of volumes against its formula, of volumes, of exchanged steps, and of planes in any order.
#include <algorithm>
#include <cmath>
#include <cstring>
#include <vector>

#include "gtest/gtest.h"
#include "tests/support/bordered.h"
#include "tests/support/voxels.h"

namespace {
using test::Element;
using test::Export;
using test::Name;
using test::Prepared;
using test::Surrounded;
using test::Voxels;

enum class Kind { kIntegers, kFloats, kSeparable };

struct Request {
  QvprVolume size, kernel;
  QvprPoint anchor;
  Kind kind;
  int border;
  int largest = 99;  // coefficient
  int divisor = 7;
  QvpRoundMode mode = qvpRoundNear;
  bool isCoronal = false;
};

int CellsOf(QvprVolume k) { return k.width * k.height * k.depth; }

std::vector<Qvp16s> IntegersFor(const Request& r) {
  test::Random random(r.kernel.width + 3 * r.divisor);
  std::vector<Qvp16s> kernel(CellsOf(r.kernel));
  for (auto& k : kernel) k = static_cast<Qvp16s>(static_cast<int>(random.Next() % (2 * r.largest + 1)) - r.largest);
  return kernel;
}
// Coefficients of the kernel, or of its three factors one after the other.
std::vector<float> FloatsFor(const Request& r) {
  const bool isSeparable = r.kind == Kind::kSeparable;
  std::vector<float> kernel(isSeparable ? r.kernel.width + r.kernel.height + r.kernel.depth : CellsOf(r.kernel));
  test::Random random(r.kernel.height);
  for (auto& k : kernel) k = static_cast<float>(static_cast<int>(random.Next() % 2001) - 700) / 1500;
  return kernel;
}

QvpStatus Init(const Request& r, QvpDataType type, QvprFilterBorderSpec* spec) {
  const auto floats = FloatsFor(r);
  if (r.kind == Kind::kFloats) {
    return qvprFilterBorderInit_32f(floats.data(), r.kernel, r.anchor, type, r.mode, spec);
  }
  if (r.kind == Kind::kSeparable) {
    const float* const y = floats.data() + r.kernel.width;
    return qvprFilterBorderSeparableInit_32f(floats.data(), y, y + r.kernel.height, r.kernel, r.anchor, type, r.mode,
                                             spec);
  }
  return qvprFilterBorderInit_16s(IntegersFor(r).data(), r.kernel, r.anchor, r.divisor, type, r.mode, spec);
}

Prepared PreparedFor(const Request& r, QvpDataType type) {
  int spec = 0, buffer = 0;
  const QvpDataType kernelType = r.kind == Kind::kIntegers ? qvp16s : qvp32f;
  EXPECT_EQ(qvprFilterBorderGetSize(r.kernel, r.size, type, kernelType, &spec, &buffer), 0);
  const auto [kw, kh, kd] = r.kernel;
  const auto aligned = [](int n) { return (n + 63) / 64 * 64; };
  EXPECT_EQ(spec, 192 + aligned(8 * kw * kh * kd) + aligned(8 * kw * (kh / 2 + 1) * kd));
  EXPECT_LE(buffer, (4 << 20) + int64_t{64} * (kw + 64) * (kh + 1) * kd);
  Prepared prepared(spec, buffer);
  EXPECT_EQ(Init(r, type, prepared.record<QvprFilterBorderSpec>()), 0);
  return prepared;
}

// One sum of the terms of cells in the order of the source: from the last cell to the first.
template <class Sum, class Term>
Sum SumOf(int n, const Term& term) {
  Sum sum = 0;
  for (int i = n - 1; i >= 0; --i) sum = sum + term(i);
  return sum;
}

class Reference {
 public:
  Reference(const Request& r, const Surrounded& src, const Element& element, const uint8_t* constant)
      : r_(r), src_(src), element_(element), constant_(constant), integers_(IntegersFor(r)), floats_(FloatsFor(r)) {}

  test::Real At(int x, int y, int z) const {
    if (r_.kind == Kind::kIntegers) {
      return test::Quotient(element_, Cells<int64_t>(integers_, x, y, z), r_.divisor, r_.mode);
    }
    const float sum = r_.kind == Kind::kFloats ? Cells<float>(floats_, x, y, z) : Separable(x, y, z);
    return test::Converted(element_, sum, r_.mode);
  }

 private:
  test::Real Voxel(int x, int y, int z) const {
    const uint8_t* const voxel = src_.At(x, y, z);
    return element_.read(voxel ? voxel : constant_);
  }
  template <class Sum, class Kernel>
  Sum Cells(const Kernel& kernel, int x, int y, int z) const {
    const auto [kw, kh, kd] = r_.kernel;
    const auto [ax, ay, az] = r_.anchor;
    return SumOf<Sum>(kw * kh * kd, [&, kw = kw, kh = kh, ax = ax, ay = ay, az = az](int cell) {
      const int i = cell % kw, j = cell / kw % kh, k = cell / kw / kh;
      return static_cast<Sum>(kernel[cell] * static_cast<Sum>(Voxel(x + ax - i, y + ay - j, z + az - k)));
    });
  }
  float Separable(int x, int y, int z) const {
    const float *const kx = floats_.data(), *const ky = kx + r_.kernel.width, *const kz = ky + r_.kernel.height;
    const auto across = [&](int v, int w) {
      return SumOf<float>(r_.kernel.width,
                          [&](int i) { return kx[i] * static_cast<float>(Voxel(x + r_.anchor.x - i, v, w)); });
    };
    const auto down = [&](int w) {
      return SumOf<float>(r_.kernel.height, [&](int j) { return ky[j] * across(y + r_.anchor.y - j, w); });
    };
    return SumOf<float>(r_.kernel.depth, [&](int k) { return kz[k] * down(z + r_.anchor.z - k); });
  }

  const Request& r_;
  const Surrounded& src_;
  const Element& element_;
  const uint8_t* constant_;
  std::vector<Qvp16s> integers_;
  std::vector<float> floats_;
};

test::Real SomeEdges(const Element& element, test::Random& random) {
  return (random.Next() % 16 == 0 ? test::EdgeValue : test::PlainValue)(element, random);
}

void CheckResult(const Export& function, const Request& r, const Reference& reference, const Voxels& dst) {
  const Element& element = Name(function.name).From();
  dst.ForEach([&](int x, int y, int z) {
    const test::Real found = element.read(dst.At(x, y, z)), expected = reference.At(x, y, z);
    ASSERT_TRUE(test::AreSame(found, expected))
        << found << " for " << expected << ' ' << function.name << ' ' << test::Shown(r.size) << " kernel "
        << test::Shown(r.kernel) << " kind " << static_cast<int>(r.kind) << " border " << r.border << " at " << x << ','
        << y << ',' << z;
  });
}

void Check(const Export& function, const Request& r) {
  const Element& element = Name(function.name).From();
  const auto [ax, ay, az] = r.anchor;
  const QvprPoint before{r.kernel.width - 1 - ax, r.kernel.height - 1 - ay, r.kernel.depth - 1 - az};
  const Surrounded src(r.size, before, r.anchor, r.border, element.bytes, r.isCoronal);
  const Voxels dst(r.size, element.bytes, 0, r.isCoronal);
  src.all.Fill(element, r.size.width % 4 == 1 ? SomeEdges : test::PlainValue);
  const uint8_t constant[4] = {200, 100, 50, 66};
  const Prepared prepared = PreparedFor(r, element.code);
  test::VolumeCall call(function);
  call.Add("pSrc", src.all, src.origin());
  call.Add("pDst", dst);
  ASSERT_EQ(call({{"dstVolume", r.size},
                  {"borderType", r.border},
                  {"borderValue", {constant}},
                  {"pSpec", {prepared.record<uint8_t>()}},
                  {"pBuffer", {prepared.buffer()}}}),
            0)
      << function.name;
  CheckResult(function, r, Reference(r, src, element, constant), dst);
}

constexpr QvprVolume kKernels[] = {{3, 3, 3}, {1, 1, 1}, {2, 4, 2}, {5, 1, 3}, {1, 3, 4}, {4, 2, 1}, {5, 4, 3}};
constexpr int kKinds[] = {qvpBorderReplicate, qvpBorderMirror, qvpBorderConst};

bool IsFloat(const Export& function) { return function.name.find("32f") != std::string::npos; }

TEST(VolumeFilters, EveryMemberKernelAnchorAndBorder) {
  int turn = 0;
  for (const Export* function : test::FunctionsOf({"qvprFilterBorder"})) {
    if (function->name.find("_C1") == std::string::npos) continue;
    for (const QvprVolume kernel : kKernels) {
      for (const QvprVolume size : {QvprVolume{1, 1, 1}, {5, 4, 3}, {37, 2, 2}, {66, 3, 2}, {149, 2, 1}}) {
        ++turn;
        const QvprPoint anchor{turn % kernel.width, turn / 2 % kernel.height, turn / 3 % kernel.depth};
        const int flags = qvpBorderInMemVolume & (0x1111 * turn + turn * 16);
        const int border = turn % 5 ? kKinds[turn % 3] | flags : +qvpBorderInMemVolume;
        Request r{size, kernel, anchor, IsFloat(*function) ? Kind::kFloats : Kind::kIntegers, border};
        r.mode = static_cast<QvpRoundMode>(turn % 3);
        r.isCoronal = turn % 4 == 0;
        constexpr int kDivisors[] = {7, 1, -64, 128, 2, 30000};
        r.divisor = kDivisors[turn % 6];
        r.largest = turn % 7 == 0 ? 32767 : 99;
        Check(*function, r);
        r.kind = turn % 2 ? Kind::kSeparable : Kind::kFloats;
        Check(*function, r);
      }
    }
  }
}

TEST(VolumeFilters, SeveralBlocksOfColumnsAndRows) {
  const Export &bytes = test::FunctionNamed("qvprFilterBorder_8u_C1V"),
               &floats = test::FunctionNamed("qvprFilterBorder_32f_C1PV");
  for (const int border : kKinds) {
    Check(bytes, {{1500, 2, 2}, {3, 3, 3}, {1, 1, 1}, Kind::kIntegers, border});
    Check(floats, {{1100, 2, 2}, {2, 3, 3}, {1, 0, 2}, Kind::kFloats, border});
    Check(floats, {{290, 70, 2}, {7, 3, 13}, {3, 0, 11}, Kind::kSeparable, border});
    Check(bytes, {{9, 600, 2}, {1, 2, 3}, {0, 1, 0}, Kind::kSeparable, border | qvpBorderInMemTop});
  }
}

// Filters one row with K = (1, 2, 3).
std::vector<int> Row(std::vector<Qvp16u> voxels, int anchor, int divisor, QvpRoundMode mode) {
  const Qvp16s kernel[] = {1, 2, 3};
  const Qvp16u zero = 0;
  const int n = static_cast<int>(voxels.size());
  const Request r{{n, 1, 1}, {3, 1, 1}, {anchor, 0, 0}, Kind::kIntegers, qvpBorderConst};
  const Prepared prepared = PreparedFor(r, qvp16u);
  auto* const spec = prepared.record<QvprFilterBorderSpec>();
  EXPECT_EQ(qvprFilterBorderInit_16s(kernel, r.kernel, r.anchor, divisor, qvp16u, mode, spec), 0);
  std::vector<Qvp16u> found(voxels.size());
  EXPECT_EQ(qvprFilterBorder_16u_C1V(voxels.data(), 2 * n, 1, found.data(), 2 * n, 1, r.size, qvpBorderConst, &zero,
                                     spec, prepared.buffer()),
            0);
  return {found.begin(), found.end()};
}

TEST(VolumeFilters, KnownValues) {
  EXPECT_EQ(Row({10, 20, 30}, 0, 1, qvpRoundNear), (std::vector{10, 40, 100}));
  EXPECT_EQ(Row({10, 20, 30}, 1, 1, qvpRoundNear), (std::vector{40, 100, 120}));
  EXPECT_EQ(Row({10, 20, 30}, 2, 1, qvpRoundNear), (std::vector{100, 120, 90}));
  EXPECT_EQ(Row({10, 20, 30}, 0, 8, qvpRoundZero), (std::vector{1, 5, 12}));
  EXPECT_EQ(Row({10, 20, 30}, 0, 8, qvpRoundNear), (std::vector{1, 5, 12}));
  EXPECT_EQ(Row({10, 20, 30}, 0, 8, qvpRoundFinancial), (std::vector{1, 5, 13}));
  EXPECT_EQ(Row({65535, 65535, 65535}, 0, 1, qvpRoundNear), (std::vector{65535, 65535, 65535}));
}

TEST(VolumeFilters, KnowTheirPlanesRecordsAndSizes) {
  const Request r{{4, 3, 2}, {3, 3, 3}, {1, 1, 1}, Kind::kIntegers, qvpBorderReplicate};
  const Prepared prepared = PreparedFor(r, qvp8u);
  auto* const spec = prepared.record<QvprFilterBorderSpec>();
  Qvp8u voxels[24] = {}, found[24] = {};
  const Qvp8u* source[3] = {voxels, voxels, nullptr};
  Qvp8u* to[2] = {found, found + 12};
  const auto filter = [&](QvpiBorderType border) {
    return qvprFilterBorder_8u_C1PV(source, 4, to, 4, {4, 3, 2}, border, nullptr, spec, prepared.buffer());
  };
  EXPECT_EQ(filter(qvpBorderMirror | qvpBorderInMemBack), qvpStatusNullPointer);
  EXPECT_EQ(filter(qvpBorderMirror), qvpStatusNoError);
  const Qvp16s kernel[27] = {};
  const auto init = [&](QvprVolume size, QvprPoint anchor, QvpDataType type) {
    return qvprFilterBorderInit_16s(kernel, size, anchor, 1, type, qvpRoundNear, spec);
  };
  for (const QvprPoint anchor : {QvprPoint{3, 0, 0}, {0, 3, 0}, {0, 0, 3}}) {
    EXPECT_EQ(init({3, 3, 3}, anchor, qvp8u), qvpStatusAnchor);
  }
  EXPECT_EQ(init({3, 3, 3}, {1, 1, 1}, qvp32f), qvpStatusDataType);
  EXPECT_EQ(init({33554432, 1, 1}, {1, 0, 0}, qvp8u), qvpStatusSizeOverflow);
  int bytes = 7, more = 7;
  EXPECT_EQ(qvprFilterBorderGetSize({3, 3, 3}, {1, 1, 1}, qvp32f, qvp16s, &bytes, &more), qvpStatusDataType);
  EXPECT_EQ(qvprFilterBorderGetSize({1, 1, 1}, {1, 1, 33554432}, qvp8u, qvp16s, &bytes, &more), qvpStatusSizeOverflow);
  EXPECT_EQ(bytes + more, 0);
}

}  // namespace
