// Erosion and dilation by a mask: the extremes of its chords (Urbach, Wilkinson 2008). Windows of 1, 2, 4... pixels are
// made across each row of the source, and a chord of two of them that overlap; down the lines, results take the chords
// of the mask's rows.
#include "filter/morphology.h"

#include "filter/extreme_rows.h"
#include "filter/window_call.h"

namespace qvp::filter {
namespace {

struct Chords {
  const MorphologyRecord& record;
  ptrdiff_t channels;
  uint8_t* levels;  // two rows

  const Chord* begin() const { return record.Chords(); }
  ptrdiff_t SamplesBeyond() const { return (record.width - 1) * channels; }
};

template <class Op, class T>
class ChordKernel {
 public:
  // ---- Lines of pixels.

  static void AcrossPixels(const void*, const void* source, void* line, ptrdiff_t samples) {
    Rows::Load(source, samples, static_cast<E*>(line));
  }

  // ---- Lines of spans, each as long as a row of results.

  static void AcrossSpans(const void* context, const void* source, void* line, ptrdiff_t samples) {
    const Chords& c = *static_cast<const Chords*>(context);
    ptrdiff_t shift = c.channels, n = samples + c.SamplesBeyond();
    E *to = reinterpret_cast<E*>(c.levels), *spare = to + LevelBytes(n, sizeof(E)).value() / ptrdiff_t{sizeof(E)};
    const E* level = static_cast<const E*>(source);
    if constexpr (std::is_same_v<T, float>) {
      Rows::Load(source, n, spare);
      level = spare;
    }
    int l = 0;
    for (int k = 0; k < c.record.spans; ++k) {
      const ChordSpan& span = c.record.spanAt[k];
      while (l < span.level) {
        const int up = l + 2 <= span.level ? 2 : 1;
        n -= up == 2 ? 3 * shift : shift;
        if (up == 2) {
          Rows::Quadruple(level, shift, n, to);
        } else {
          Overlap(level, level + shift, n, to);
        }
        l += up;
        shift <<= up;
        level = to;
        std::swap(to, spare);
      }
      Overlap(level + span.column * c.channels, level + span.second * c.channels, samples,
              static_cast<E*>(line) + k * samples);
    }
  }

  static void DownSpans(const void* context, const Window& window, const ResultRows& rows) {
    const Chords& c = *static_cast<const Chords*>(context);
    const MorphologyRecord& r = c.record;
    const SpanUse *const both = r.Uses(), *const upper = both + r.counts[0], *const lower = upper + r.counts[1];
    const SpanKernel kernel{{both, upper, lower, lower + r.counts[2]}, r.isDirect ? c.channels : window.samples};
    FilterGroups(kernel, reinterpret_cast<const E* const*>(window.lines), window.samples,
                 reinterpret_cast<T*>(rows.upper[0]), reinterpret_cast<T*>(rows.lower[0]));
  }

  // ---- Lines of all levels.

  static void AcrossLevels(const void* context, const void* source, void* line, ptrdiff_t samples) {
    const Chords& c = *static_cast<const Chords*>(context);
    E* level = static_cast<E*>(line);
    Rows::Load(source, samples, level);
    ptrdiff_t shift = c.channels, n = samples - shift;
    for (int l = 1; l < c.record.levels; ++l, level += samples, shift *= 2, n -= shift) {
      Overlap(level, level + shift, n, level + samples);
    }
  }

  static void DownLevels(const void* context, const Window& window, const ResultRows& rows) {
    const Chords& c = *static_cast<const Chords*>(context);
    const Places places{reinterpret_cast<const E* const*>(window.lines), window.samples + c.SamplesBeyond(),
                        c.channels};
    const Chord *const pairs = c.begin(), *const singles = pairs + c.record.counts[0],
                       *const end = singles + c.record.counts[1];
    MakeRow<4, kLanes>(
        window.samples, reinterpret_cast<E*>(rows.upper[0]), [=](auto count, ptrdiff_t i, E* to) HWY_ATTR {
          hn::Vec<D> v[count];
          Unrolled<count>([&](auto k) QVP_INLINED { v[k] = hn::Set(D(), Op::template kNeutral<E>); });
          const auto take = [&](const E* from) QVP_INLINED {
            Unrolled<count>([&](auto k) QVP_INLINED { v[k] = Op::Of(v[k], hn::LoadU(D(), from + i + k * kLanes)); });
          };
          for (const Chord* chord = pairs; chord != end; ++chord) {
            take(places.Of(*chord, chord->span.column));
            if (chord < singles) take(places.Of(*chord, chord->span.second));
          }
          Unrolled<count>([&](auto k) QVP_INLINED { hn::StoreU(ResultOf<Op, T>(v[k]), D(), to + k * kLanes); });
        });
  }

 private:
  using Rows = ExtremeRows<Op, T>;
  using E = typename Rows::E;
  using D = typename Rows::D;
  static constexpr ptrdiff_t kLanes = Rows::kLanes;

  // Of the elements of two rows, or of one at two places.
  static void Overlap(const E* a, const E* b, ptrdiff_t n, E* to) {
    ForEachVectors<4, kLanes>(n, [=](auto count, ptrdiff_t i) HWY_ATTR {
      Unrolled<count>([&](auto v) QVP_INLINED {
        const ptrdiff_t at = i + v * kLanes;
        hn::StoreU(Op::Of(hn::LoadU(D(), a + at), hn::LoadU(D(), b + at)), D(), to + at);
      });
    });
  }

  // The same as FilterRows, but that the last vectors go together, too: they share what a use costs.
  template <class Kernel>
  static void FilterGroups(const Kernel& kernel, const E* const* lines, ptrdiff_t n, T* upper, T* lower) {
    if (n >= Kernel::kMost * kLanes) return FilterGroupsOf<Kernel::kMost>(kernel, lines, n, upper, lower);
    if (n >= 2 * kLanes) return FilterGroupsOf<2>(kernel, lines, n, upper, lower);
    FilterRows(kernel, lines, n, upper, lower);
  }
  template <int kCount, class Kernel>
  static void FilterGroupsOf(const Kernel& shared, const E* const* lines, ptrdiff_t n, T* upper, T* lower) {
    const Kernel kernel = shared;
    for (ptrdiff_t i = 0; i < n; i += kCount * kLanes) {
      const ptrdiff_t at = std::min(i, n - kCount * kLanes);
      kernel.template Run<kCount>(lines, at, upper + at, lower + at);
    }
  }

  // Two rows of results from the uses of lines.
  struct SpanKernel {
    static constexpr ptrdiff_t kLanes = Rows::kLanes;
    static constexpr int kVectors = 1, kMost = 6;
    const SpanUse* lists[4];  // where they begin: uses by both rows, by the upper one, by the lower one
    ptrdiff_t step;           // of spans in a line

    template <int kCount>
    HWY_INLINE void Run(const E* const* lines, ptrdiff_t at, T* upper, T* lower) const {
      hn::Vec<D> above[kCount], below[kCount];
      Unrolled<kCount>([&](auto k) QVP_INLINED { above[k] = hn::Set(D(), Op::template kNeutral<E>); });
      const auto take = [=, this](const SpanUse* use, hn::Vec<D>(&v)[kCount]) QVP_INLINED {
        const ptrdiff_t offset = use->span * step + at;
        const E *const *line = lines + use->line, *const *const end = line + use->count;
        for (; line != end; ++line) {
          Unrolled<kCount>([&](auto k)
                               QVP_INLINED { v[k] = Op::Of(v[k], hn::LoadU(D(), *line + offset + k * kLanes)); });
        }
      };
      for (const SpanUse* use = lists[0]; use != lists[1]; ++use) take(use, above);
      Unrolled<kCount>([&](auto k) QVP_INLINED { below[k] = above[k]; });
      for (const SpanUse* use = lists[1]; use != lists[2]; ++use) take(use, above);
      for (const SpanUse* use = lists[2]; use != lists[3]; ++use) take(use, below);
      Store(below, lower);
      Store(above, upper);
    }

    template <int kCount>
    static HWY_INLINE void Store(const hn::Vec<D> (&v)[kCount], T* to) {
      E* const out = reinterpret_cast<E*>(to);
      Unrolled<kCount>([&](auto k) QVP_INLINED { hn::StoreU(ResultOf<Op, T>(v[k]), D(), out + k * kLanes); });
    }
  };

  // Where windows are, for the first result of a row.
  struct Places {
    const E* const* lines;
    ptrdiff_t levelStep, channels;

    HWY_INLINE const E* Of(const Chord& chord, ptrdiff_t column) const {
      return lines[chord.row] + chord.span.level * levelStep + column * channels;
    }
  };
};

template <class Op, class T>
void FilterChords(Windows<BitsOf<T>> windows, const MorphologyRecord& record) {
  using Kernel = ChordKernel<Op, T>;
  const ptrdiff_t channels = windows.src.channels();
  const Chords chords{record, channels, AtBoundary(windows.buffer)};
  windows.buffer = chords.levels + 2 * LevelBytes((windows.roi.width + record.width) * channels, sizeof(T)).value();
  WindowKernel kernel{.context = &chords,
                      .across = Kernel::AcrossSpans,
                      .down = Kernel::DownSpans,
                      .elementBytes = record.spans * static_cast<int>(sizeof(T)),
                      .rowsAtOnce = 2,
                      .cacheBytes = kSecondCacheBytes};
  if (record.isDirect) {
    kernel.across = std::is_same_v<T, float> ? Kernel::AcrossPixels : nullptr;
    kernel.elementBytes = sizeof(T);
    kernel.keepsReach = true;
  } else if (record.spans == 0) {
    kernel.across = Kernel::AcrossLevels;
    kernel.down = Kernel::DownLevels;
    kernel.elementBytes = record.levels * static_cast<int>(sizeof(T));
    kernel.rowsAtOnce = 1;
    kernel.keepsReach = true;
  }
  FilterWindows(windows, kernel);
}

template <class Op, class T>
QvpStatus Morph(const WindowCall<T>& call, const QvpiFilterMorphologyBorderSpec* spec) {
  return FilterByRecord<MorphologyRecord>(call, spec, [&](const MorphologyRecord& r) {
    const auto windows = call.Reaching(r.reach());
    r.isFull ? FilterRectangles<Op, T>(windows, r.width, r.height) : FilterChords<Op, T>(windows, r);
  });
}

}  // namespace
}  // namespace qvp::filter

using namespace qvp;
using namespace qvp::filter;

#define MORPH(name, op, type, layout) \
  QVP_WINDOW_BY_RECORD(name, type, type, type, layout, Morph<op>, QvpiFilterMorphologyBorderSpec)
#define MORPHS(type, layout)        \
  MORPH(Erode, Least, type, layout) \
  MORPH(Dilate, Greatest, type, layout)
QVP_EACH_LAYOUT(MORPHS, 8u)
QVP_EACH_LAYOUT(MORPHS, 16u)
QVP_EACH_LAYOUT(MORPHS, 16s)
QVP_EACH_LAYOUT(MORPHS, 32f)
