// Cosine transforms of blocks of 8 x 8 pixels, in lanes of floats: eight rows of a block are eight vectors, or twice as
// many of four lanes.
#include <algorithm>

#include "base/check.h"
#include "base/export.h"
#include "base/map.h"
#include "base/scalar.h"
#include "qvpi.h"
#include "signal/dft_tiles.h"

namespace {
using namespace qvp;
using dft::kLanes, dft::kTile, dft::Lanes, dft::V;

constexpr int kSide = 8, kValues = kSide * kSide, kParts = kSide / kLanes;

// sqrt(2) cos(m pi / 16)
constexpr float k1 = 0x1.63150cp+0f, k2 = 0x1.4e7aeap+0f, k3 = 0x1.2d062ep+0f, k5 = 0x1.92469cp-1f, k6 = 0x1.1517a8p-1f,
                k7 = 0x1.1a855ep-2f;

HWY_INLINE V Times(V x, float factor) { return hn::Mul(x, hn::Set(Lanes(), factor)); }

// Lines of eight values that are lanes of eight vectors, and as many in each further part.
struct Block {
  V at[kSide][kParts];

  template <class Line>
  HWY_INLINE void ForEachPart(const Line& line) {
    for (int p = 0; p < kParts; ++p) {
      V x[kSide];
      for (int i = 0; i < kSide; ++i) x[i] = at[i][p];
      line(x);
      for (int i = 0; i < kSide; ++i) at[i][p] = x[i];
    }
  }

  HWY_INLINE void Transpose() {
    Block turned;
    if constexpr (kParts == 1) {
      for (int half = 0; half < 2; ++half) {
        V four[kTile];
        for (int t = 0; t < kTile; ++t)
          four[t] = half ? Upper(at[t][0], at[t + kTile][0]) : Lower(at[t][0], at[t + kTile][0]);
        dft::Transpose(four);
        for (int t = 0; t < kTile; ++t) turned.at[half * kTile + t][0] = four[t];
      }
    } else {
      for (int quarter = 0; quarter < 4; ++quarter) {
        const int down = quarter / 2, across = quarter % 2;
        V four[kTile];
        for (int t = 0; t < kTile; ++t) four[t] = at[down * kTile + t][across];
        dft::Transpose(four);
        for (int t = 0; t < kTile; ++t) turned.at[across * kTile + t][down] = four[t];
      }
    }
    *this = turned;
  }

  // All values, after of(vector, row, part), one row behind the other.
  template <class T, class Of>
  HWY_INLINE void NarrowTo(T* to, const Of& of) const {
    constexpr int kVectors = kVectorsAtOnce<T, float>;
    const hn::CappedTag<T, kVectors * kLanes> narrow;
    for (int g = 0; g < kSide * kParts / kVectors; ++g) {
      const auto part = [&](ptrdiff_t k) HWY_ATTR {
        const int i = g * kVectors + static_cast<int>(k), row = i / kParts, p = i % kParts;
        return of(at[row][p], row, p);
      };
      hn::StoreU(NarrowParts<T>(Lanes(), part), narrow, to + g * kVectors * kLanes);
    }
  }

 private:
  static HWY_INLINE V Lower(V a, V b) {
    if constexpr (kParts == 1) return hn::ConcatLowerLower(Lanes(), b, a);
    return a;
  }
  static HWY_INLINE V Upper(V a, V b) {
    if constexpr (kParts == 1) return hn::ConcatUpperUpper(Lanes(), b, a);
    return a;
  }
};

// The transform of a line, 8 times as large as the orthonormal one when it has gone both ways.
HWY_INLINE void Forward(V (&x)[kSide]) {
  V s[4], d[4];
  for (int i = 0; i < 4; ++i) {
    s[i] = hn::Add(x[i], x[7 - i]);
    d[i] = hn::Sub(x[i], x[7 - i]);
  }
  const V a0 = hn::Add(s[0], s[3]), a1 = hn::Add(s[1], s[2]), b0 = hn::Sub(s[0], s[3]), b1 = hn::Sub(s[1], s[2]);
  x[0] = hn::Add(a0, a1);
  x[4] = hn::Sub(a0, a1);
  x[2] = hn::Add(Times(b0, k2), Times(b1, k6));
  x[6] = hn::Sub(Times(b0, k6), Times(b1, k2));
  x[1] = hn::Add(hn::Add(Times(d[0], k1), Times(d[1], k3)), hn::Add(Times(d[2], k5), Times(d[3], k7)));
  x[3] = hn::Sub(hn::Sub(Times(d[0], k3), Times(d[1], k7)), hn::Add(Times(d[2], k1), Times(d[3], k5)));
  x[5] = hn::Add(hn::Sub(Times(d[0], k5), Times(d[1], k1)), hn::Add(Times(d[2], k7), Times(d[3], k3)));
  x[7] = hn::Add(hn::Sub(Times(d[0], k7), Times(d[1], k5)), hn::Sub(Times(d[2], k3), Times(d[3], k1)));
}

HWY_INLINE void Inverse(V (&x)[kSide]) {
  const V e0 = hn::Add(x[0], x[4]), e1 = hn::Sub(x[0], x[4]);
  const V f0 = hn::Add(Times(x[2], k2), Times(x[6], k6)), f1 = hn::Sub(Times(x[2], k6), Times(x[6], k2));
  const V g[4] = {hn::Add(e0, f0), hn::Add(e1, f1), hn::Sub(e1, f1), hn::Sub(e0, f0)};
  const V h[4] = {hn::Add(hn::Add(Times(x[1], k1), Times(x[3], k3)), hn::Add(Times(x[5], k5), Times(x[7], k7))),
                  hn::Sub(hn::Sub(Times(x[1], k3), Times(x[3], k7)), hn::Add(Times(x[5], k1), Times(x[7], k5))),
                  hn::Add(hn::Sub(Times(x[1], k5), Times(x[3], k1)), hn::Add(Times(x[5], k7), Times(x[7], k3))),
                  hn::Add(hn::Sub(Times(x[1], k7), Times(x[3], k5)), hn::Sub(Times(x[5], k3), Times(x[7], k1)))};
  for (int i = 0; i < 4; ++i) {
    x[i] = hn::Add(g[i], h[i]);
    x[7 - i] = hn::Sub(g[i], h[i]);
  }
}

// What each coefficient is multiplied by.
struct Factors {
  HWY_ALIGN float at[kValues];

  HWY_INLINE V Of(int row, int part) const { return hn::Load(Lanes(), at + row * kSide + part * kLanes); }
};

// A block of pixels from a row of coefficients, and back. Bytes are taken as differences from 128.
template <class Pixel, class Coefficient>
struct BlockTransform {
  static HWY_INLINE V LoadPixels(const Pixel* from) {
    const V v = LoadWide(Lanes(), from);
    if constexpr (sizeof(Pixel) == 1) return hn::Sub(v, hn::Set(Lanes(), 128.0f));
    return v;
  }
  static HWY_INLINE V ScaledPixels(V v) {
    const V scaled = Times(v, 0.125f);
    if constexpr (sizeof(Pixel) == 1) return hn::Add(hn::Round(scaled), hn::Set(Lanes(), 128.0f));
    return scaled;
  }

  static void MakeCoefficients(const Pixel* from, ptrdiff_t step, const Factors& factors, Coefficient* to) {
    Block b;
    for (int r = 0; r < kSide; ++r) {
      for (int p = 0; p < kParts; ++p) b.at[r][p] = LoadPixels(dft::At(from, r * step) + p * kLanes);
    }
    b.Transpose();
    b.ForEachPart(Forward);
    b.Transpose();
    b.ForEachPart(Forward);
    b.NarrowTo(to, [&](V x, int v, int p) HWY_ATTR { return hn::Mul(x, factors.Of(v, p)); });
  }

  template <bool kIsQuantised>
  static void MakePixels(const Coefficient* from, const Factors& factors, Pixel* to, ptrdiff_t step) {
    Block b;
    for (int v = 0; v < kSide; ++v) {
      for (int p = 0; p < kParts; ++p) {
        b.at[v][p] = LoadWide(Lanes(), from + v * kSide + p * kLanes);
        if constexpr (kIsQuantised) b.at[v][p] = hn::Mul(b.at[v][p], factors.Of(v, p));
      }
    }
    b.ForEachPart(Inverse);
    b.Transpose();
    b.ForEachPart(Inverse);
    b.Transpose();
    StoreRows(b, to, step);
  }

 private:
  static HWY_INLINE void StoreRows(const Block& b, Pixel* to, ptrdiff_t step) {
    if constexpr (std::is_same_v<Pixel, float>) {
      for (int r = 0; r < kSide; ++r) {
        for (int p = 0; p < kParts; ++p)
          hn::StoreU(ScaledPixels(b.at[r][p]), Lanes(), dft::At(to, r * step) + p * kLanes);
      }
    } else {
      HWY_ALIGN Pixel rows[kValues];
      b.NarrowTo(rows, [](V x, int, int) HWY_ATTR { return ScaledPixels(x); });
      for (int r = 0; r < kSide; ++r) std::memcpy(dft::At(to, r * step), rows + r * kSide, kSide * sizeof(Pixel));
    }
  }
};

// A block at the right or lower edge: what is left of it, and room for all of it.
template <class T>
struct EdgeBlock {
  static constexpr ptrdiff_t kStep = kSide * sizeof(T);
  T at[kValues];

  // The last column and row come again.
  void Fill(const T* from, ptrdiff_t step, int width, int height) {
    for (int i = 0; i < kValues; ++i) {
      std::memcpy(at + i, dft::At(from, std::min(i / kSide, height - 1) * step) + std::min(i % kSide, width - 1),
                  sizeof(T));
    }
  }
  void CopyTo(T* to, ptrdiff_t step, int width, int height) const {
    for (int r = 0; r < height; ++r) std::memcpy(dft::At(to, r * step), at + r * kSide, width * sizeof(T));
  }
};

// visit(pixels, coefficients, width, height) for each block.
template <class P, class C, class Visit>
void ForEachBlock(Size roi, const Image<P>& pixels, const Image<C>& coefficients, const Visit& visit) {
  for (ptrdiff_t y = 0; y < roi.height; y += kSide) {
    P* const row = pixels.Row(y);
    C* const blocks = coefficients.Row(y / kSide);
    const int height = static_cast<int>(std::min<ptrdiff_t>(kSide, roi.height - y));
    for (ptrdiff_t x = 0; x < roi.width; x += kSide) {
      visit(row + x, blocks + x * kSide, static_cast<int>(std::min<ptrdiff_t>(kSide, roi.width - x)), height);
    }
  }
}

bool IsWhole(int width, int height) { return width == kSide && height == kSide; }

template <class P, class C>
void ForwardBlocks(Size roi, const Image<const P>& src, const Image<C>& dst, const Factors& factors) {
  ForEachBlock(roi, src, dst, [&](const P* from, C* to, int width, int height) {
    if (IsWhole(width, height)) return BlockTransform<P, C>::MakeCoefficients(from, src.step, factors, to);
    EdgeBlock<P> edge;
    edge.Fill(from, src.step, width, height);
    BlockTransform<P, C>::MakeCoefficients(edge.at, edge.kStep, factors, to);
  });
}

template <bool kIsQuantised, class C, class P>
void InverseBlocks(Size roi, const Image<const C>& src, const Image<P>& dst, const Factors& factors) {
  using Transform = BlockTransform<P, C>;
  ForEachBlock(roi, dst, src, [&](P* to, const C* from, int width, int height) {
    if (IsWhole(width, height)) return Transform::template MakePixels<kIsQuantised>(from, factors, to, dst.step);
    EdgeBlock<P> edge;
    Transform::template MakePixels<kIsQuantised>(from, factors, edge.at, edge.kStep);
    edge.CopyTo(to, dst.step, width, height);
  });
}

template <class P, class C>
QvpStatus MakeBlocks(const Image<const P>& src, const Image<C>& dst, Size roi) {
  if (const QvpStatus failed = Validate<kPointers, kSize, kSteps>(roi, {src, dst})) return failed;
  Factors eighth;
  std::fill(std::begin(eighth.at), std::end(eighth.at), 0.125f);
  ForwardBlocks(roi, src, dst, eighth);
  return qvpStatusNoError;
}

// The reciprocals are those of floats; an eighth of them is exact.
template <class P, class C>
QvpStatus MakeQuantised(const Image<const P>& src, const Image<C>& dst, Size roi, const Qvp16u* quantizer) {
  if (const QvpStatus failed = Validate<kPointers, kSize, kSteps>(roi, {src, dst}, {quantizer})) return failed;
  Factors factors;
  for (int i = 0; i < kValues; ++i) {
    const auto entry = static_cast<float>(LoadScalar(quantizer + i));
    if (entry == 0) return qvpStatusDivideByZeroError;
    factors.at[i] = 1.0f / entry * 0.125f;
  }
  ForwardBlocks(roi, src, dst, factors);
  return qvpStatusNoError;
}

template <class C, class P>
QvpStatus MakePixels(const Image<const C>& src, const Image<P>& dst, Size roi) {
  if (const QvpStatus failed = Validate<kPointers, kSize, kSteps>(roi, {src, dst})) return failed;
  InverseBlocks<false>(roi, src, dst, {});
  return qvpStatusNoError;
}

template <class C, class P>
QvpStatus MakePixelsOfQuantised(const Image<const C>& src, const Image<P>& dst, Size roi, const Qvp16u* quantizer) {
  if (const QvpStatus failed = Validate<kPointers, kSize, kSteps>(roi, {src, dst}, {quantizer})) return failed;
  Factors factors;
  for (int i = 0; i < kValues; ++i) factors.at[i] = LoadScalar(quantizer + i);
  InverseBlocks<true>(roi, src, dst, factors);
  return qvpStatusNoError;
}

}  // namespace

#define BLOCKS(name, types, from, to, impl) QVP_CONVERT(qvpiDCTBlocks##name##_##types##_C1R, from, to, C1, impl, (), ())
#define QUANTISED(name, types, from, to, impl) \
  QVP_CONVERT(qvpiDCTBlocksQuant##name##_##types##_C1R, from, to, C1, impl, (const Qvp16u quantizer[64]), (quantizer))
BLOCKS(Fwd, 8u16s, 8u, 16s, MakeBlocks)
BLOCKS(Fwd, 16s, 16s, 16s, MakeBlocks)
BLOCKS(Fwd, 32f, 32f, 32f, MakeBlocks)
BLOCKS(Inv, 16s8u, 16s, 8u, MakePixels)
BLOCKS(Inv, 16s, 16s, 16s, MakePixels)
BLOCKS(Inv, 32f, 32f, 32f, MakePixels)
QUANTISED(Fwd, 8u16s, 8u, 16s, MakeQuantised)
QUANTISED(Fwd, 16s, 16s, 16s, MakeQuantised)
QUANTISED(Inv, 16s8u, 16s, 8u, MakePixelsOfQuantised)
QUANTISED(Inv, 16s, 16s, 16s, MakePixelsOfQuantised)
