// Erosion and dilation by a mask: the extremes of its chords (Urbach, Wilkinson 2008). Each row of the source becomes a
// line of levels, the extremes of 1, 2, 4... pixels from every place on; a chord is the overlap of two of them.
#include "filter/morphology.h"

#include "base/export.h"
#include "filter/extreme_rows.h"
#include "filter/window_check.h"

namespace qvp::filter {
namespace {

struct Chords {
  const MorphologyRecord& record;
  ptrdiff_t channels;
};

template <class Op, class T>
class ChordKernel {
 public:
  static void Across(const void* context, const void* source, void* line, ptrdiff_t samples) {
    const Chords& c = *static_cast<const Chords*>(context);
    E* level = static_cast<E*>(line);
    Rows::Load(source, samples, level);
    ptrdiff_t shift = c.channels, n = samples - shift;
    for (int l = 1; l < c.record.levels; ++l, level += samples, shift *= 2, n -= shift) {
      Double(level, shift, n, level + samples);
    }
  }

  static void Down(const void* context, const Window& window, const ResultRows& rows) {
    const Chords& c = *static_cast<const Chords*>(context);
    const Places places{reinterpret_cast<const E* const*>(window.lines),
                        window.samples + (c.record.width - 1) * c.channels, c.channels};
    const Chord *const pairs = c.record.Chords(), *const singles = pairs + c.record.pairs,
                       *const end = singles + c.record.singles;
    MakeRow<kDown, kLanes>(
        window.samples, reinterpret_cast<E*>(rows.upper[0]), [=](auto count, ptrdiff_t i, E* to) HWY_ATTR {
          hn::Vec<D> v[count];
          const E* const first = places.Of(*pairs, pairs->column) + i;
          Unrolled<count>([&](auto k) QVP_INLINED { v[k] = hn::LoadU(D(), first + k * kLanes); });
          const auto take = [&](const E* from) QVP_INLINED {
            Unrolled<count>([&](auto k) QVP_INLINED { v[k] = Op::Of(v[k], hn::LoadU(D(), from + k * kLanes)); });
          };
          for (const Chord* chord = pairs; chord != singles; ++chord) {
            take(places.Of(*chord, chord->column) + i);
            take(places.Of(*chord, chord->second) + i);
          }
          for (const Chord* chord = singles; chord != end; ++chord) take(places.Of(*chord, chord->column) + i);
          Unrolled<count>([&](auto k) QVP_INLINED { hn::StoreU(ResultOf<Op, T>(v[k]), D(), to + k * kLanes); });
        });
  }

 private:
  using Rows = ExtremeRows<Op, T>;
  using E = typename Rows::E;
  using D = typename Rows::D;
  static constexpr ptrdiff_t kLanes = Rows::kLanes;
  static constexpr int kAcross = 2, kDown = 8;  // vectors at a time

  // A level from the one before it.
  static void Double(const E* from, ptrdiff_t shift, ptrdiff_t n, E* to) {
    ForEachVectors<kAcross, kLanes>(n, [=](auto count, ptrdiff_t i) HWY_ATTR {
      Unrolled<count>([&](auto v) QVP_INLINED {
        const E* const first = from + i + v * kLanes;
        hn::StoreU(Op::Of(hn::LoadU(D(), first), hn::LoadU(D(), first + shift)), D(), to + i + v * kLanes);
      });
    });
  }

  // Where windows are, for the first result of a row.
  struct Places {
    const E* const* lines;
    ptrdiff_t levelStep, channels;

    HWY_INLINE const E* Of(const Chord& chord, ptrdiff_t column) const {
      return lines[chord.row] + chord.level * levelStep + column * channels;
    }
  };
};

template <class Op, class T>
QvpStatus Morph(const Image<const T>& src, const Image<T>& dst, Size roi, QvpiBorderType border, const T* value,
                const QvpiFilterMorphologyBorderSpec* spec, uint8_t* buffer) {
  if (const QvpStatus failed = CheckWindow(src, dst, roi, border, value, {spec, buffer})) return failed;
  if (!IsBorderOf({BorderKind::kReplicate, BorderKind::kMirror, BorderKind::kConst}, border)) return qvpStatusBorder;
  const MorphologyRecord& r = *MorphologyRecord::At(spec);
  if (r.identification != MorphologyRecord::kIdentification) return qvpStatusContextMatch;
  auto windows = WindowsOn(src, roi, border, value, r.reach(), buffer);
  windows.outputs[0] = AsBytes(dst);
  const ptrdiff_t channels = Channels(src.layout);
  if (r.isFull) {
    FilterRectangles<Op, T>(windows, r.width, r.height);
    return qvpStatusNoError;
  }
  const Chords chords{r, channels};
  using Kernel = ChordKernel<Op, T>;
  FilterWindows(windows, {.context = &chords,
                          .across = Kernel::Across,
                          .down = Kernel::Down,
                          .elementBytes = r.levels * static_cast<int>(sizeof(T)),
                          .rowsAtOnce = 1,
                          .keepsReach = true});
  return qvpStatusNoError;
}

}  // namespace
}  // namespace qvp::filter

using namespace qvp;
using namespace qvp::filter;

#define MORPH(name, op, type, layout)                                                                                \
  QvpStatus qvpiFilter##name##Border_##type##_##layout##R(                                                           \
      const Qvp##type* pSrc, int srcStep, Qvp##type* pDst, int dstStep, QvpiSize roiSize, QvpiBorderType borderType, \
      const Qvp##type* borderValue, const QvpiFilterMorphologyBorderSpec* pSpec, Qvp8u* pBuffer) {                   \
    return Morph<op, Qvp##type>({pSrc, srcStep, Layout::k##layout}, {pDst, dstStep, Layout::k##layout}, roiSize,     \
                                borderType, borderValue, pSpec, pBuffer);                                            \
  }
#define MORPHS(type, layout)        \
  MORPH(Erode, Least, type, layout) \
  MORPH(Dilate, Greatest, type, layout)
QVP_EACH_LAYOUT(MORPHS, 8u)
QVP_EACH_LAYOUT(MORPHS, 16u)
QVP_EACH_LAYOUT(MORPHS, 16s)
QVP_EACH_LAYOUT(MORPHS, 32f)
