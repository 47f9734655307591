// Pixels within a range of colors, replaced by another image, by a constant, or made clear in a composite.
#include "arith/straight.h"
#include "base/export.h"
#include "base/scalar.h"

namespace {
using namespace qvp;
using namespace qvp::layers;

// All bits of the elements within the range. Unsigned lanes have minimum and maximum on every CPU, but no order.
template <class V>
HWY_INLINE V Inside(V v, V lower, V upper) {
  const hn::DFromV<V> d;
  return hn::VecFromMask(d, hn::And(hn::Eq(hn::Max(v, lower), v), hn::Eq(hn::Min(v, upper), v)));
}

// Four values of a pixel as a word, to be repeated along a vector: those given, and the last one of them or `alpha`.
template <class T>
using Word = hn::TFromD<WordTag<T>>;
template <class T>
Word<T> WordOf(const T* values, Layout layout, T alpha) {
  T four[4] = {alpha, alpha, alpha, alpha};
  for (int c = 0; c < ProcessedChannels(layout); ++c) four[c] = LoadScalar(values + c);
  for (int c = 1; c < 4 && layout == Layout::kC1; ++c) four[c] = four[0];
  Word<T> word;
  std::memcpy(&word, four, sizeof(word));
  return word;
}
template <class T>
HWY_INLINE Vector<T> Repeated(Word<T> word) {
  return hn::BitCast(hn::ScalableTag<T>(), hn::Set(WordTag<T>(), word));
}

// A range of one channel, or of four that an alpha is always within.
template <class T>
class Range {
 public:
  Range(const T* lower, const T* upper, Layout layout)
      : lower_(WordOf<T>(lower, layout, 0)), upper_(WordOf<T>(upper, layout, kMost<T>)) {}

  HWY_INLINE Vector<T> Elements(Vector<T> v) const { return Inside(v, Repeated<T>(lower_), Repeated<T>(upper_)); }
  HWY_INLINE Vector<T> Pixels(Vector<T> v) const {
    const WordTag<T> words;
    const auto elements = hn::BitCast(words, Elements(v));
    const auto all = hn::Eq(elements, hn::Set(words, static_cast<Word<T>>(~Word<T>{0})));
    return hn::BitCast(hn::ScalableTag<T>(), hn::VecFromMask(words, all));
  }

 private:
  Word<T> lower_, upper_;
};

// ---- Three channels. A piece of the row goes twice: each element on its own, into bytes that stay in the first-level
// cache, and then each with those of its pixel, which are up to two places away on either side.

template <class T>
class KeyOfThree {
 public:
  KeyOfThree(const T* lower, const T* upper)
      : lower_(d, lower, Layout::kC3),
        upper_(d, upper, Layout::kC3),
        before2_(d, kBut2, Layout::kC3),
        before1_(d, kBut12, Layout::kC3),
        after1_(d, kBut01, Layout::kC3),
        after2_(d, kBut0, Layout::kC3) {}

  // to = inside ? other : src, where other(at, more...) is a vector.
  template <class Other, class... S>
  HWY_INLINE void operator()(ptrdiff_t n, T* to, const T* src, const Other& other, const S*... more) const {
    T room[kPiece + 4];
    std::memset(room, 0, sizeof(room[0]) * 2);
    T* const inside = room + 2;
    for (ptrdiff_t i = 0; i < n; i += kPiece) {
      const ptrdiff_t piece = std::min(kPiece, n - i);
      std::memset(inside + piece, 0, sizeof(room[0]) * 2);
      Mark(piece, inside, src + i);
      Choose(piece, to + i, inside, src + i, other, (more + i)...);
    }
  }

 private:
  static constexpr hn::ScalableTag<T> d{};
  static constexpr ptrdiff_t kPiece = 3072 / sizeof(T);
  // Ones where the neighbor at that distance is of another pixel, by channel.
  static constexpr T kBut2[] = {kMost<T>, kMost<T>, 0}, kBut12[] = {kMost<T>, 0, 0}, kBut01[] = {0, 0, kMost<T>},
                     kBut0[] = {0, kMost<T>, kMost<T>};

  HWY_NOINLINE void Mark(ptrdiff_t n, T* inside, const T* src) const {
    const auto mark = [this](const auto& at, auto v) HWY_ATTR { return Inside(v, at(lower_), at(upper_)); };
    MapRowWith<false>(d, inside, n, mark, src);
  }
  template <class Other, class... S>
  HWY_INLINE void Choose(ptrdiff_t n, T* to, const T* inside, const T* src, const Other& other,
                         const S*... more) const {
    const auto choose = [&](const auto& at, auto b2, auto b1, auto own, auto a1, auto a2, auto v, auto... w) HWY_ATTR {
      const auto before = hn::And(hn::Or(b2, at(before2_)), hn::Or(b1, at(before1_)));
      const auto after = hn::And(hn::Or(a1, at(after1_)), hn::Or(a2, at(after2_)));
      return hn::IfVecThenElse(hn::And(own, hn::And(before, after)), other(at, w...), v);
    };
    MapRowWith<false>(d, to, n, choose, inside - 2, inside - 1, inside, inside + 1, inside + 2, src, more...);
  }

  PerChannel<hn::ScalableTag<T>> lower_, upper_, before2_, before1_, after1_, after2_;
};

// ---- Calls

template <class T>
QvpStatus ColorKey(const Image<const T>& src, const Image<const T>& other, const Image<T>& dst, Size roi,
                   const T* lower, const T* upper) {
  if (const QvpStatus failed = Validate<kPointers, kSize, kSteps>(roi, {src, other, dst}, {lower, upper}))
    return failed;
  if (!AreOrdered(lower, upper, dst.layout)) return qvpStatusRange;
  const hn::ScalableTag<T> d;
  if (dst.layout == Layout::kC3) {
    const auto row = [key = KeyOfThree<T>(lower, upper)](ptrdiff_t n, T* to, const T* a, const T* b) HWY_ATTR {
      key(
          n, to, a, [](const auto&, auto w) HWY_ATTR { return w; }, b);
    };
    ForEachPiece(roi, row, dst, src, other);
    return qvpStatusNoError;
  }
  const Range<T> range(lower, upper, dst.layout);
  const auto one = [range](auto v, auto w) HWY_ATTR { return hn::IfVecThenElse(range.Elements(v), w, v); };
  const auto four = [range](auto v, auto w) HWY_ATTR { return hn::IfVecThenElse(range.Pixels(v), w, v); };
  dst.layout == Layout::kC1 ? MapOneChannel(d, one, roi, dst, src, other) : MapImages(d, four, roi, dst, src, other);
  return qvpStatusNoError;
}

template <class T>
QvpStatus ColorKeyC(const T* values, const Image<const T>& src, const Image<T>& dst, Size roi, const T* lower,
                    const T* upper) {
  if (const QvpStatus failed = Validate<kPointers, kSize, kSteps>(roi, {src, dst}, {values, lower, upper}))
    return failed;
  if (!AreOrdered(lower, upper, dst.layout)) return qvpStatusRange;
  const hn::ScalableTag<T> d;
  if (dst.layout == Layout::kC3) {
    const auto row = [key = KeyOfThree<T>(lower, upper), constant = PerChannel(d, values, dst.layout)](
                         ptrdiff_t n, T* to, const T* from)
                         HWY_ATTR { key(n, to, from, [&](const auto& at) HWY_ATTR { return at(constant); }); };
    ForEachPiece(roi, row, dst, src);
    return qvpStatusNoError;
  }
  const Range<T> range(lower, upper, dst.layout);
  const Word<T> word = WordOf<T>(values, dst.layout, 0);
  const auto one = [=](auto v) HWY_ATTR { return hn::IfVecThenElse(range.Elements(v), Repeated<T>(word), v); };
  const auto four = [=](auto v) HWY_ATTR { return hn::IfVecThenElse(range.Pixels(v), Repeated<T>(word), v); };
  dst.layout == Layout::kC1 ? MapOneChannel(d, one, roi, dst, src) : MapImages(d, four, roi, dst, src);
  return qvpStatusNoError;
}

// Pixels within the range lose their alpha on the way.
template <class T>
QvpStatus ColorKeyComposite(const Image<const T>& a, const Image<const T>& b, const Image<T>& dst, Size roi,
                            const T* lower, const T* upper, QvpiCompositeOp op) {
  if (const QvpStatus failed = Validate<kPointers, kSize, kSteps>(roi, {a, b, dst}, {lower, upper})) return failed;
  if (!AreOrdered(lower, upper, Layout::kAC4)) return qvpStatusRange;
  if (!IsOperator(op)) return qvpStatusAlphaType;
  constexpr T kAlpha[] = {0, 0, 0, kMost<T>};
  const auto composite = [range = Range<T>(lower, upper, Layout::kAC4), straight = Straight<T>(op),
                          alpha = WordOf<T>(kAlpha, Layout::kC4, 0)](auto v, auto w) HWY_ATTR {
    const auto keyed = hn::AndNot(hn::And(range.Pixels(v), Repeated<T>(alpha)), v);
    return ToWords<T>(straight(FromWords<T>(keyed), FromWords<T>(w)));
  };
  MapImages(hn::ScalableTag<T>(), composite, roi, WithAlpha(dst), WithAlpha(a), WithAlpha(b));
  return qvpStatusNoError;
}

}  // namespace

#define BOUNDS(type, layout) (QVP_VALUES_##layout(type) lowerBound, QVP_VALUES_##layout(type) upperBound)
#define COLOR_KEYS(type, layout)                                                          \
  QVP_BINARY_FORM(qvpiColorKey, , type, layout, ColorKey, BOUNDS(type, layout),           \
                  (Values(lowerBound), Values(upperBound)))                               \
  QVP_CONSTANT_FORM(qvpiColorKeyC, , type, type, layout, ColorKeyC, BOUNDS(type, layout), \
                    (Values(lowerBound), Values(upperBound)))
#define KEYED_COMPOSITE(type)                                                                         \
  QVP_BINARY_FORM(qvpiColorKeyComposite, , type, AC4, ColorKeyComposite,                              \
                  (const Qvp##type lowerBound[3], const Qvp##type upperBound[3], QvpiCompositeOp op), \
                  (lowerBound, upperBound, op))

QVP_EACH_LAYOUT(COLOR_KEYS, 8u)
COLOR_KEYS(16u, C1)
COLOR_KEYS(16u, C3)
COLOR_KEYS(16u, AC4)
KEYED_COMPOSITE(8u)
KEYED_COMPOSITE(16u)
