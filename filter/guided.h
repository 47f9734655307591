// Calls of the guided filters: their checks, and the walk down each block of columns. Lines of both images are summed
// under the mask as they come, each row of sums gives one of coefficients, which are summed in turn, and the middle of
// these sums lies as far above as the mask reaches: each line is looked at once.
#pragma once

#include "base/map.h"
#include "filter/guided_moments.h"
#include "filter/means.h"
#include "filter/window_check.h"

namespace qvp::filter {

inline constexpr int kLongestGuidedSide = 255;

// Of lines and sums of a block of columns.
inline constexpr int64_t kGuidedCacheBytes = 262144;

constexpr bool IsGuidedMask(QvpiSize mask) {
  const auto isSide = [](int n) { return n >= 1 && n <= kLongestGuidedSide && n % 2 == 1; };
  return isSide(mask.width) && isSide(mask.height);
}

template <class T>
struct GuidedCall {
  Image<const T> src, guide;
  Image<T> dst;
  Size roi;
  QvpiSize mask;
  float eps;
  QvpiBorderType border;
  uint8_t* buffer;

  QvpStatus Check() const {
    if (const QvpStatus failed = Validate<kPointers, kSize>(roi, {src, guide, dst}, {buffer})) return failed;
    if (!CoversRow(src, roi) || !CoversRow(guide, roi) || !CoversRow(dst, roi)) return qvpStatusStep;
    if (!IsGuidedMask(mask)) return qvpStatusMaskSize;
    if (!(eps >= 0 && eps <= std::numeric_limits<float>::max())) return qvpStatusEps;
    return CheckBorder(border, {BorderKind::kReplicate, BorderKind::kMirror});
  }
  bool IsItsOwnGuide() const { return src.data == guide.data && src.step == guide.step; }

  // What coefficients reach, and what their sums do.
  BorderedImage<T> Bordered(const Image<const T>& image) const {
    constexpr T kNone[4] = {};
    const ptrdiff_t x = mask.width - 1, y = mask.height - 1;
    return WithBorder<T>(image, roi, border, kNone, {x, y, x, y});
  }
};

// What a block of columns keeps, for a mask and so many channels of a sample's kind; it grows with both.
template <class T, class Model>
struct GuidedPlan {
  using Coefficient = typename Model::Coefficient;

  static constexpr int64_t kFewestColumns = 64;

  QvpiSize mask;
  int channels;

  // Lines of the window and that which it leaves, zeros, a guide's line with its planes together, results whose alpha
  // is kept.
  RowBytes Rows() const {
    return BytesOfRows<T>((mask.height + 2) * Model::kPlanes + Model::kGuides + 1, kLineSpare) +
           GuidedMoments<T, Model>::Bytes(mask) + WindowSums<Coefficient>::Bytes(mask, Model::kCoefficients);
  }
  int64_t Beyond() const { return 2 * (int64_t{mask.width} - 1); }
  int64_t MostColumns() const {
    return std::max({kGuidedCacheBytes / (Rows().ofSample * channels).value(), 4 * Beyond(), kFewestColumns});
  }
  ByteCount BytesOf(ByteCount columns) const {
    const ByteCount tables = ByteCount(4 * Beyond() * int64_t{sizeof(int32_t)}) + 8 * kRecordBoundary;
    return Rows().For((columns + Beyond()) * channels) + tables;
  }
  // Of a whole row, or of what blocks have at most: the cache's bytes, or columns that grow with the mask.
  ByteCount WorkBytes(int64_t width) const {
    const ByteCount ofBlocks = BytesOf(4 * Beyond() + kFewestColumns) + kGuidedCacheBytes;
    return std::min(BytesOf(width).value(), ofBlocks.value());
  }
};

template <class T, class Model>
class GuidedBlock {
 public:
  GuidedBlock(const GuidedCall<T>& call, Extent columns)
      : call_(call),
        model_(static_cast<double>(call.mask.width) * call.mask.height, call.eps),
        channels_(Channels(call.src.layout)),
        samples_((columns.end - columns.begin) * channels_),
        beyond_((call.mask.width - 1) * channels_),
        guide_(call.Bordered(call.guide)),
        source_(call.Bordered(call.src)),
        guideRows_(guide_, Reached(columns), false),
        sourceRows_(source_, Reached(columns), false),
        lineStep_(PlaneSamples<T>(samples_ + 2 * beyond_, kLineSpare)),
        moments_(call.mask, channels_, samples_ + beyond_),
        sums_(call.mask, channels_, Model::kCoefficients, samples_),
        out_(AsBytes(call.dst).data + columns.begin * call.dst.PixelBytes()) {}

  // `memory` begins at a boundary.
  void Run(uint8_t* memory) {
    Start(memory);
    const ptrdiff_t reach = call_.mask.height - 1;
    for (ptrdiff_t line = 0; line < call_.roi.height + 2 * reach; ++line) {
      PrepareLine(line);
      moments_.Add(Line(line), line > reach ? Line(line - reach - 1) : PlaneRows<T>{zeros_, lineStep_});
      if (line >= reach) AddCoefficients();
      if (line >= 2 * reach) MakeResults(line - 2 * reach);
    }
  }

 private:
  using Rows = BorderRows<SingleRows<T, T>, T>;
  using Coefficient = typename Model::Coefficient;

  Extent Reached(Extent columns) const {
    const ptrdiff_t reach = call_.mask.width - 1;
    return {columns.begin - reach, columns.end + reach};
  }

  void Start(uint8_t* memory) {
    memory = sourceRows_.Start(guideRows_.Start(memory));
    memory = sums_.Start(moments_.Start(memory));
    zeros_ = reinterpret_cast<T*>(memory);
    std::fill_n(zeros_, Model::kPlanes * lineStep_, T{0});
    lines_ = zeros_ + Model::kPlanes * lineStep_;
    together_ = lines_ + (call_.mask.height + 1) * Model::kPlanes * lineStep_;
    colours_ = together_ + Model::kGuides * lineStep_;
  }

  // Of line y + reach of those that the first results need comes row y.
  PlaneRows<T> Line(ptrdiff_t line) const {
    return {lines_ + line % (call_.mask.height + 1) * Model::kPlanes * lineStep_, lineStep_};
  }
  void PrepareLine(ptrdiff_t line) {
    const ptrdiff_t y = line - (call_.mask.height - 1);
    const PlaneRows<T> planes = Line(line);
    T* const to = lines_ + (planes.first - lines_);
    if constexpr (Model::kGuides == 1) {
      guideRows_.Line(y, to);
    } else {
      Separate(guideRows_.Line(y, together_), to);
    }
    if constexpr (Model::kPlanes > Model::kGuides) sourceRows_.Line(y, to + Model::kSource * lineStep_);
  }
  HWY_NOINLINE void Separate(const T* colours, T* to) const {
    const hn::ScalableTag<T> d;
    for (ptrdiff_t i = 0; i < samples_ + 2 * beyond_; i += hn::MaxLanes(d)) {
      hn::Vec<decltype(d)> c0, c1, c2;
      hn::LoadInterleaved3(d, colours + 3 * i, c0, c1, c2);
      hn::StoreU(c0, d, to + i);
      hn::StoreU(c1, d, to + lineStep_ + i);
      hn::StoreU(c2, d, to + 2 * lineStep_ + i);
    }
  }

  HWY_NOINLINE void AddCoefficients() {
    const DoubleLanes d;
    const hn::Rebind<Coefficient, DoubleLanes> narrow;
    const auto reader = moments_.Reader();
    const Model model = model_;
    std::array<Coefficient*, Model::kCoefficients> to;
    for (int k = 0; k < Model::kCoefficients; ++k) to[k] = sums_.Values(k);
    ForEachVectors<1, ptrdiff_t{hn::MaxLanes(d)}>(samples_ + beyond_, [&](auto, ptrdiff_t i) QVP_INLINED {
      typename Model::Sums sums;
      Unrolled<Model::kTerms>([&](auto q) QVP_INLINED { sums[q] = reader.Get(q, i); });
      const auto coefficients = model.Solve(sums);
      Unrolled<Model::kCoefficients>(
          [&](auto k) QVP_INLINED { hn::StoreU(Narrow<Coefficient>(d, coefficients[k]), narrow, to[k] + i); });
    });
    sums_.Add();
  }

  void MakeResults(ptrdiff_t y) {
    uint8_t* const row = out_ + y * call_.dst.step;
    const PlaneRows<T> lines = Line(y + call_.mask.height - 1);
    const PlaneRows<T> guides{lines.first + beyond_, lines.step};
    if (!KeepsAlpha(call_.dst.layout)) return MakeRowOf(guides, reinterpret_cast<T*>(row));
    MakeRowOf(guides, colours_);
    MapRow<true>(
        hn::ScalableTag<T>(), reinterpret_cast<T*>(row), samples_, [](auto v) HWY_ATTR { return v; },
        static_cast<const T*>(colours_));
  }
  HWY_NOINLINE void MakeRowOf(const PlaneRows<T>& guides, T* to) const {
    const hn::ScalableTag<Coefficient> d;
    constexpr ptrdiff_t kLanes = hn::MaxLanes(d);
    const auto parts = sums_.Parts();
    const auto divisor = hn::Set(d, static_cast<Coefficient>(model_.count));
    const ptrdiff_t step = sums_.PlaneStep();
    MakeRow<2, kLanes>(samples_, to, [&](auto count, ptrdiff_t start, T* out) QVP_INLINED {
      const auto pixels = [&](int plane, auto v)
                              QVP_INLINED { return LoadWide(d, guides[plane] + start + v * kLanes); };
      auto total = TreeSums<count>(d, parts, start);
      Unrolled<count>([&](auto v) QVP_INLINED { total[v] = hn::Mul(total[v], pixels(0, v)); });
      for (int k = 1; k < Model::kCoefficients; ++k) {
        const auto sums = TreeSums<count>(d, parts, k * step + start);
        Unrolled<count>([&](auto v) QVP_INLINED {
          const auto term = k == Model::kGuides ? sums[v] : hn::Mul(sums[v], pixels(k, v));
          total[v] = hn::Add(total[v], term);
        });
      }
      Unrolled<count>([&](auto v) QVP_INLINED {
        hn::StoreU(Narrow<T>(d, hn::Div(total[v], divisor)), hn::Rebind<T, decltype(d)>(), out + v * kLanes);
      });
    });
  }

  const GuidedCall<T>& call_;
  Model model_;
  int channels_;
  ptrdiff_t samples_, beyond_;  // of results, and what lines have on each side
  BorderedImage<T> guide_, source_;
  Rows guideRows_, sourceRows_;
  ptrdiff_t lineStep_;
  GuidedMoments<T, Model> moments_;
  WindowSums<Coefficient> sums_;
  uint8_t* out_;
  T *zeros_ = nullptr, *lines_ = nullptr, *together_ = nullptr, *colours_ = nullptr;
};

template <class T, class Model>
void FilterGuided(const GuidedCall<T>& call) {
  const int64_t width = call.roi.width;
  const int64_t most = GuidedPlan<T, Model>{call.mask, Channels(call.src.layout)}.MostColumns();
  const int64_t blocks = (width + most - 1) / most;
  for (int64_t b = 0; b < blocks; ++b) {
    GuidedBlock<T, Model> block(
        call, {static_cast<ptrdiff_t>(width * b / blocks), static_cast<ptrdiff_t>(width * (b + 1) / blocks)});
    block.Run(AtBoundary(call.buffer));
  }
}

// Bytes of the work buffer, for models by type.
template <template <class> class Model>
QvpStatus StoreGuidedBytes(QvpiSize mask, QvpiSize roi, QvpDataType type, int channels, int* size) {
  const auto store = [&](auto pixel) {
    using T = decltype(pixel);
    return (GuidedPlan<T, Model<T>>{mask, channels}.WorkBytes(roi.width) + kRecordBoundary).StoreTo(size);
  };
  if (type == qvp8u) return store(uint8_t());
  if (type == qvp16u) return store(uint16_t());
  return store(float());
}

inline QvpStatus CheckGuidedQuery(const int* size, QvpiSize mask, QvpiSize roi, QvpDataType type, int channels) {
  if (type == qvp16s) type = -1;  // what other filters know beside these types
  return CheckQuery(size, roi, IsGuidedMask(mask), type, channels);
}

}  // namespace qvp::filter

#define QVP_GUIDED(name, type, layout, guideLayout, impl)                                                         \
  QvpStatus qvpiFilter##name##Border_##type##_##layout##R(                                                        \
      const Qvp##type* pSrc, int srcStep, const Qvp##type* pGuide, int guideStep, Qvp##type* pDst, int dstStep,   \
      QvpiSize roiSize, QvpiSize maskSize, Qvp32f eps, QvpiBorderType borderType, Qvp8u* pBuffer) {               \
    return qvp::filter::impl(qvp::filter::GuidedCall<Qvp##type>{{pSrc, srcStep, qvp::Layout::k##layout},          \
                                                                {pGuide, guideStep, qvp::Layout::k##guideLayout}, \
                                                                {pDst, dstStep, qvp::Layout::k##layout},          \
                                                                roiSize,                                          \
                                                                maskSize,                                         \
                                                                eps,                                              \
                                                                borderType,                                       \
                                                                pBuffer});                                        \
  }
