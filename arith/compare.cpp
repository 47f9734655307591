// Comparison of two images, or of an image with a constant, into a mask of bytes: 255 where the relation holds for all
// channels of a pixel.
#include "base/blocks.h"
#include "base/check.h"
#include "base/export.h"
#include "base/map.h"
#include "base/pack.h"
#include "base/rows.h"

namespace {
using namespace qvp;

using Mask = hn::ScalableTag<uint8_t>;
constexpr ptrdiff_t kMaskLanes = hn::MaxLanes(Mask());

// Relations give all bits of the lanes where they hold. NaN stands in none to anything.
struct Less {
  template <class D, class V = hn::Vec<D>>
  HWY_INLINE V operator()(D d, V a, V b) const {
    if constexpr (std::is_unsigned_v<hn::TFromD<D>>) {
      return hn::Not(hn::VecFromMask(d, hn::Eq(hn::Max(a, b), a)));
    } else {
      return hn::VecFromMask(d, hn::Lt(a, b));
    }
  }
};
struct LessOrEqual {
  template <class D, class V = hn::Vec<D>>
  HWY_INLINE V operator()(D d, V a, V b) const {
    if constexpr (std::is_integral_v<hn::TFromD<D>>) {
      return hn::VecFromMask(d, hn::Eq(hn::Min(a, b), a));
    } else {
      return hn::VecFromMask(d, hn::Le(a, b));
    }
  }
};
struct Equal {
  template <class D, class V = hn::Vec<D>>
  HWY_INLINE V operator()(D d, V a, V b) const {
    return hn::VecFromMask(d, hn::Eq(a, b));
  }
};
struct Within {
  float eps;
  template <class D, class V = hn::Vec<D>>
  HWY_INLINE V operator()(D d, V a, V b) const {
    return hn::VecFromMask(d, hn::Le(hn::Abs(hn::Sub(a, b)), hn::Set(d, eps)));
  }
};
template <class Relation>
struct Exchanged {
  template <class D, class V = hn::Vec<D>>
  HWY_INLINE V operator()(D d, V a, V b) const {
    return Relation()(d, b, a);
  }
};

// Lanes of all ones or all zeros to bytes: part(k) is the k-th of as many vectors as fill one of bytes.
template <class T, class Part>
HWY_INLINE hn::Vec<Mask> Narrowed(const Part& part) {
  const hn::ScalableTag<int16_t> d16;
  const hn::ScalableTag<int32_t> d32;
  if constexpr (sizeof(T) == 1) {
    return hn::BitCast(Mask(), part(0));
  } else if constexpr (sizeof(T) == 2) {
    return InOrder<2>(hn::BitCast(Mask(), Packed(int8_t(), hn::BitCast(d16, part(0)), hn::BitCast(d16, part(1)))));
  } else {
    const auto low = Packed(int16_t(), hn::BitCast(d32, part(0)), hn::BitCast(d32, part(1)));
    const auto high = Packed(int16_t(), hn::BitCast(d32, part(2)), hn::BitCast(d32, part(3)));
    return InOrder<4>(hn::BitCast(Mask(), Packed(int8_t(), low, high)));
  }
}

// What a relation compares with: the other image's row, or values of the channels.
template <class D>
struct OtherRow {
  const hn::TFromD<D>* row;
  HWY_INLINE hn::Vec<D> At(ptrdiff_t i, ptrdiff_t) const { return hn::LoadU(D(), row + i); }
  OtherRow Staged(Partial<hn::TFromD<D>>& stage, size_t n) const {
    std::memcpy(stage.lanes, row, n * sizeof(hn::TFromD<D>));
    return {stage.lanes};
  }
};
template <class D>
struct Constants {
  const PerChannel<D>* values;
  HWY_INLINE hn::Vec<D> At(ptrdiff_t, ptrdiff_t phase) const { return values->From(phase); }
  Constants Staged(Partial<hn::TFromD<D>>&, size_t) const { return *this; }
};

// The mask bytes of a vector of samples, of which `phase` tells the channels.
template <class T, class Relation, class Other>
HWY_INLINE hn::Vec<Mask> MaskAt(const Relation& relation, const T* src, const Other& other, ptrdiff_t i,
                                ptrdiff_t phase) {
  const hn::ScalableTag<T> d;
  constexpr ptrdiff_t kLanes = hn::MaxLanes(hn::ScalableTag<T>());
  return Narrowed<T>([&](ptrdiff_t k) HWY_ATTR {
    return relation(d, hn::LoadU(d, src + i + k * kLanes), other.At(i + k * kLanes, phase + k * kLanes));
  });
}

// One mask byte for each of n samples. The first one belongs to the first channel.
template <class T, class Relation, class Other>
HWY_INLINE void MaskSamples(const Relation& relation, const T* src, const Other& other, uint8_t* mask, ptrdiff_t n) {
  if (n < kMaskLanes) {
    const Partial<T> left(src, n);
    Partial<T> right;
    Partial<uint8_t> out;
    hn::StoreU(MaskAt(relation, left.lanes, other.Staged(right, n), 0, 0), Mask(), out.lanes);
    return out.CopyTo(mask, n);
  }
  const auto at = [&](ptrdiff_t i, ptrdiff_t phase) HWY_ATTR { return MaskAt(relation, src, other, i, phase); };
  ForEachVectorInPlace<3, kMaskLanes>(n, at, [&](ptrdiff_t i, auto v) HWY_ATTR { hn::StoreU(v, Mask(), mask + i); });
}

// Of three blocks, which hold 16 pixels of three channels: the channel c, pixel after pixel. Its bytes lie at other
// places in each block, so that together they take one.
template <int c>
HWY_INLINE hn::Vec<Mask> ChannelOfThree(const hn::Vec<Mask> (&blocks)[3]) {
  alignas(16) static constexpr auto kThirds = [] {
    std::array<std::array<uint8_t, kBlockBytes>, 2> thirds{};
    for (int k = 0; k < 2; ++k) {
      for (int i = 0; i < kBlockBytes; ++i) thirds[k][i] = (kBlockBytes * k + i) % 3 == c ? 0xFF : 0;
    }
    return thirds;
  }();
  alignas(16) static constexpr auto kOrder = [] {
    std::array<uint8_t, kBlockBytes> order{};
    for (int i = 0; i < kBlockBytes; ++i) order[i] = static_cast<uint8_t>((3 * i + c) % kBlockBytes);
    return order;
  }();
  const Mask d;
  const auto isIn = [&](int k) HWY_ATTR { return hn::LoadDup128(d, kThirds[k].data()); };
  const auto channel = hn::IfVecThenElse(isIn(0), blocks[0], hn::IfVecThenElse(isIn(1), blocks[1], blocks[2]));
  return hn::TableLookupBytes(channel, hn::LoadDup128(d, kOrder.data()));
}

// The mask bytes of a vector of pixels from those of their channels, whose k-th vector is part(k).
struct OfThree {
  static constexpr int kChannels = 3;

  template <class Part>
  HWY_INLINE hn::Vec<Mask> operator()(const Part& part) const {
    hn::Vec<Mask> blocks[3] = {part(0), part(1), part(2)};
    DealBlocks(blocks);
    return hn::And(hn::And(ChannelOfThree<0>(blocks), ChannelOfThree<1>(blocks)), ChannelOfThree<2>(blocks));
  }
};
struct OfFour {
  static constexpr int kChannels = 4;
  uint32_t ignored;  // ones where an alpha channel is

  template <class Part>
  HWY_INLINE hn::Vec<Mask> operator()(const Part& part) const {
    const hn::ScalableTag<uint32_t> d;
    const auto alpha = hn::Set(d, ignored), ones = hn::Set(d, 0xFFFFFFFF);
    return Narrowed<uint32_t>(
        [&](ptrdiff_t k) HWY_ATTR { return hn::VecFromMask(d, hn::Eq(hn::Or(hn::BitCast(d, part(k)), alpha), ones)); });
  }
};

// Fewer pixels than a vector has, by way of the masks of their channels.
template <class Merged, class T, class Relation, class Other>
HWY_NOINLINE void MaskFewPixels(Merged merged, const Relation& relation, const T* src, Other other, uint8_t* dst,
                                ptrdiff_t pixels) {
  HWY_ALIGN uint8_t masks[Merged::kChannels * kMaskLanes] = {};
  MaskSamples(relation, src, other, masks, pixels * Merged::kChannels);
  Partial<uint8_t> out;
  const auto part = [&](ptrdiff_t k) HWY_ATTR { return hn::Load(Mask(), masks + k * kMaskLanes); };
  hn::StoreU(merged(part), Mask(), out.lanes);
  out.CopyTo(dst, pixels);
}

template <class Merged, class T, class Relation, class Other>
HWY_NOINLINE void MaskChannels(Merged merged, const Relation& relation, const T* src, Other other, uint8_t* dst,
                               ptrdiff_t pixels) {
  if (pixels < kMaskLanes) return MaskFewPixels(merged, relation, src, other, dst, pixels);
  constexpr ptrdiff_t kChannels = Merged::kChannels;
  const auto at = [&](ptrdiff_t i, ptrdiff_t phase) HWY_ATTR {
    return merged([&](ptrdiff_t k) HWY_ATTR {
      return MaskAt(relation, src, other, i * kChannels + k * kMaskLanes, phase * kChannels + k * kMaskLanes);
    });
  };
  ForEachVectorInPlace<1, kMaskLanes>(pixels, at,
                                      [&](ptrdiff_t i, auto v) HWY_ATTR { hn::StoreU(v, Mask(), dst + i); });
}

template <class T, class Relation, class Other>
HWY_INLINE void MaskPixels(const Relation& relation, Layout layout, const T* src, const Other& other, uint8_t* dst,
                           ptrdiff_t pixels) {
  if (Channels(layout) == 1) return MaskSamples(relation, src, other, dst, pixels);
  if (Channels(layout) == 3) return MaskChannels(OfThree(), relation, src, other, dst, pixels);
  MaskChannels(OfFour{KeepsAlpha(layout) ? 0xFF000000 : 0}, relation, src, other, dst, pixels);
}

template <class T, class Relation>
QvpStatus CompareImages(const Relation& relation, const Image<const T>& a, const Image<const T>& b, const Bytes& dst,
                        Size roi) {
  Rows(a, b, dst).ForEach(roi, [&](ptrdiff_t pixels, const T* x, const T* y, uint8_t* to) {
    MaskPixels(relation, a.layout, x, OtherRow<hn::ScalableTag<T>>{y}, to, pixels);
  });
  return qvpStatusNoError;
}

template <class T, class Relation>
QvpStatus CompareConstant(const Relation& relation, const Image<const T>& src, const T* values, const Bytes& dst,
                          Size roi) {
  const hn::ScalableTag<T> d;
  const PerChannel<decltype(d)> constants(d, values, src.layout);
  Rows(src, dst).ForEach(roi, [&](ptrdiff_t pixels, const T* x, uint8_t* to) {
    MaskPixels(relation, src.layout, x, Constants<decltype(d)>{&constants}, to, pixels);
  });
  return qvpStatusNoError;
}

// A relation that does not exist is silently none: the call succeeds and writes nothing.
template <class T>
QvpStatus Compare(const Image<const T>& a, const Image<const T>& b, const Bytes& dst, Size roi, QvpCmpOp relation) {
  if (const QvpStatus failed = Validate<kPointers, kSize>(roi, {a, b, dst})) return failed;
  if (relation == qvpCmpLess) return CompareImages(Less(), a, b, dst, roi);
  if (relation == qvpCmpLessEq) return CompareImages(LessOrEqual(), a, b, dst, roi);
  if (relation == qvpCmpEq) return CompareImages(Equal(), a, b, dst, roi);
  if (relation == qvpCmpGreaterEq) return CompareImages(LessOrEqual(), b, a, dst, roi);
  if (relation == qvpCmpGreater) return CompareImages(Less(), b, a, dst, roi);
  return qvpStatusNoError;
}

template <class T>
QvpStatus CompareC(const T* values, const Image<const T>& src, const Bytes& dst, Size roi, QvpCmpOp relation) {
  if (const QvpStatus failed = Validate<kPointers, kSize>(roi, {src, dst}, {values})) return failed;
  if (relation == qvpCmpLess) return CompareConstant(Less(), src, values, dst, roi);
  if (relation == qvpCmpLessEq) return CompareConstant(LessOrEqual(), src, values, dst, roi);
  if (relation == qvpCmpEq) return CompareConstant(Equal(), src, values, dst, roi);
  if (relation == qvpCmpGreaterEq) return CompareConstant(Exchanged<LessOrEqual>(), src, values, dst, roi);
  if (relation == qvpCmpGreater) return CompareConstant(Exchanged<Less>(), src, values, dst, roi);
  return qvpStatusNoError;
}

QvpStatus EqualEps(const Image<const Qvp32f>& a, const Image<const Qvp32f>& b, const Bytes& dst, Size roi, float eps) {
  if (const QvpStatus failed = Validate<kPointers, kSize>(roi, {a, b, dst})) return failed;
  if (!(eps >= 0)) return qvpStatusEps;
  return CompareImages(Within{eps}, a, b, dst, roi);
}

QvpStatus EqualEpsC(const Qvp32f* values, const Image<const Qvp32f>& src, const Bytes& dst, Size roi, float eps) {
  if (const QvpStatus failed = Validate<kPointers, kSize>(roi, {src, dst}, {values})) return failed;
  if (!(eps >= 0)) return qvpStatusEps;
  return CompareConstant(Within{eps}, src, values, dst, roi);
}

}  // namespace

#define COMPARE_TWO(name, impl, last, type, layout) \
  QVP_TWO_TO_ONE(name##_##type##_##layout##R, type, 8u, layout, C1, impl, (last parameter), (parameter))
#define COMPARE_CONSTANT(name, impl, last, type, layout) \
  QVP_WITH_VALUES(name##_##type##_##layout##R, type, type, 8u, layout, C1, impl, (last parameter), (parameter))
#define COMPARE(type)                                                \
  QVP_EACH_LAYOUT(COMPARE_TWO, qvpiCompare, Compare, QvpCmpOp, type) \
  QVP_EACH_LAYOUT(COMPARE_CONSTANT, qvpiCompareC, CompareC, QvpCmpOp, type)

COMPARE(8u)
COMPARE(16u)
COMPARE(16s)
COMPARE(32f)
QVP_EACH_LAYOUT(COMPARE_TWO, qvpiCompareEqualEps, EqualEps, Qvp32f, 32f)
QVP_EACH_LAYOUT(COMPARE_CONSTANT, qvpiCompareEqualEpsC, EqualEpsC, Qvp32f, 32f)
