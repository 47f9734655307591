// One level of a wavelet transform, of an image's corner: of rows and columns at once, or one after the other in place.
#pragma once

#include "base/row_ring.h"
#include "transform/wavelet_lines.h"
#include "transform/wavelet_sums.h"

namespace qvp::wavelet {

class Level {
 public:
  // Memory as planned, at a boundary.
  Level(const WaveletRecord& record, int channels, const WaveletPlan& plan, uint8_t* memory)
      : record_(record),
        plan_(plan),
        channels_(channels),
        lineFloats_(FloatsOf(plan.line)),
        memory_(reinterpret_cast<float*>(memory)),
        analysis_(record.Analysis()),
        synthesis_(record.Synthesis()),
        lowTaps_(record.synthesisLow, false),
        highTaps_(record.synthesisHigh, true),
        rowAnalysis_(AnalysisSums(record)),
        columnAnalysis_(rowAnalysis_) {
    const Lines lines = LinesAt(0);
    SetSources(
        analysis_, [&](ptrdiff_t place) { return lines.At(place); }, rowAnalysis_);
  }

  void Forward(const Image<const float>& src, const Image<float>& dst, Size size) {
    if (src.data != dst.data && size.height > 1 && plan_.rows > 0) return ForwardAtOnce(src, dst, size);
    for (ptrdiff_t y = 0; y < size.height; ++y) AnalyseRow(src.Row(y), size.width, dst.Row(y));
    if (size.height > 1) ForEachStrip(dst, size, [&](auto... strip) { AnalyseStrip(strip...); });
  }

  void Inverse(const Image<const float>& src, const Image<float>& dst, Size size) const {
    if (src.data != dst.data && size.height > 1) return InverseAtOnce(src, dst, size);
    if (size.height > 1) ForEachStrip(dst, size, [&](auto... strip) { SynthesiseStrip(strip...); });
    for (ptrdiff_t y = 0; y < size.height; ++y) {
      const Lines bands = LinesAt(0);
      bands.Gather(src.Row(y), size.width);
      SynthesiseLines(bands, size.width, dst.Row(y));
    }
  }

 private:
  static ptrdiff_t FloatsOf(ByteCount bytes) { return static_cast<ptrdiff_t>(bytes.value() / int64_t{sizeof(float)}); }
  Lines LinesAt(int i) const {
    float* const even = memory_ + i * lineFloats_ + plan_.FloatsBefore(channels_);
    return Lines(even, even + lineFloats_, channels_);
  }

  void AnalyseRow(const float* row, ptrdiff_t n, float* to) const {
    if (n == 1) {
      if (row != to) std::memcpy(to, row, channels_ * sizeof(float));
      return;
    }
    const Lines lines = LinesAt(0);
    lines.Split(row, n);
    lines.Extend(record_, analysis_, n);
    const ptrdiff_t low = LowOf(n) * channels_, high = HighOf(n) * channels_;
    StoreSums(Store::kOrdinary, {0, high}, to, to + low, rowAnalysis_);
    if (high < low) StoreSums(Store::kOrdinary, {high, low}, to, to, rowAnalysis_);
  }

  // Lines of a row's bands to the row.
  void SynthesiseLines(const Lines& bands, ptrdiff_t n, float* to) const {
    if (n == 1) return bands.Join(n, to);
    bands.Extend(record_, synthesis_, n);
    const Lines results = LinesAt(4);
    const ptrdiff_t low = LowOf(n) * channels_;
    StoreSums({0, low}, results.even(), results.odd(), lowTaps_.Sums([&](int k) { return bands.At(2 * k); }),
              highTaps_.Sums([&](int k) { return bands.At(2 * k + 1); }));
    results.Join(n, to);
  }

  // Each row is transformed once, and again for what lies beyond the ends, and read while it is in the caches.
  void ForwardAtOnce(const Image<const float>& src, const Image<float>& dst, Size size) {
    const RowRing<float> ring{memory_ + WaveletPlan::kLines * lineFloats_, FloatsOf(plan_.row), plan_.rows};
    const ptrdiff_t low = LowOf(size.height), n = size.width * channels_;
    const Store store = StoreForMoved(int64_t{2 * sizeof(float)} * n * size.height);
    const auto needs = [&](ptrdiff_t k) { return Extent{2 * k - analysis_.before, 2 * k + analysis_.behind + 1}; };
    const auto prepare = [&](ptrdiff_t y, ptrdiff_t end) {
      for (; y < end; ++y) AnalyseRow(src.Row(record_.PlaceOf(y, size.height)), size.width, ring.Row(y));
    };
    WalkDown(low, needs, prepare, [&](ptrdiff_t k) {
      const float* row = ring.Row(2 * k - analysis_.before);
      SetSources(
          analysis_, [&](int place) { return place == -analysis_.before ? row : row = ring.Next(row); },
          columnAnalysis_);
      StoreSums(store, {0, n}, dst.Row(k), dst.Row(2 * k + 1 < size.height ? low + k : k), columnAnalysis_);
    });
    Fence(store);
  }

  // Two rows at a time as lines of bands, and these to rows.
  void InverseAtOnce(const Image<const float>& src, const Image<float>& dst, Size size) const {
    const ptrdiff_t low = LowOf(size.width) * channels_, n = size.width * channels_;
    const auto row = [&](ptrdiff_t place) {
      const ptrdiff_t inside = record_.PlaceOf(place, size.height);
      return src.Row(inside % 2 == 0 ? inside / 2 : LowOf(size.height) + inside / 2);
    };
    const Lines first = LinesAt(0), second = LinesAt(2);
    for (ptrdiff_t y = 0; y < size.height; y += 2) {
      const TwoSums lows = lowTaps_.Sums([&](int k) { return row(y + 2 * k); }),
                    highs = highTaps_.Sums([&](int k) { return row(y + 2 * k + 1); });
      StoreSums({0, low}, first.even(), second.even(), lows, highs);
      StoreSums({low, n}, first.odd() - low, second.odd() - low, lows, highs);
      SynthesiseLines(first, size.width, dst.Row(y));
      if (y + 1 < size.height) SynthesiseLines(second, size.width, dst.Row(y + 1));
    }
  }

  // visit(image at the column, floats, height) for columns side by side.
  template <class Visit>
  void ForEachStrip(const Image<float>& image, Size size, const Visit& visit) const {
    const ptrdiff_t n = size.width * channels_;
    for (ptrdiff_t i = 0; i < n; i += kStrip) {
      visit(View(image.data + i, image.step, image.layout), std::min(kStrip, n - i), size.height);
    }
  }

  // Copies a strip with what lies beyond its ends; rowOf(place) is where it is in the image. Returns place 0.
  template <class RowOf>
  const float* CopyStrip(const Image<float>& image, ptrdiff_t n, ptrdiff_t height, Span span,
                         const RowOf& rowOf) const {
    float* const first = memory_ + plan_.longest.before * kStrip;
    if (n < kStrip) std::memset(memory_, 0, plan_.strip.value());
    for (ptrdiff_t place = -span.before; place <= 2 * (LowOf(height) - 1) + span.behind; ++place) {
      const float* const from = image.Row(rowOf(record_.PlaceOf(place, height)));
      std::memcpy(first + place * kStrip, from, (n < kStrip ? n : kStrip) * sizeof(float));
    }
    return first;
  }

  void AnalyseStrip(const Image<float>& image, ptrdiff_t n, ptrdiff_t height) {
    const float* const first = CopyStrip(image, n, height, analysis_, [](ptrdiff_t place) { return place; });
    SetSources(
        analysis_, [&](ptrdiff_t place) { return first + place * kStrip; }, columnAnalysis_);
    const ptrdiff_t low = LowOf(height);
    for (ptrdiff_t k = 0; k < low; ++k) {
      StoreStrip(n, k, image.Row(k), image.Row(k < HighOf(height) ? low + k : k), columnAnalysis_);
    }
  }

  void SynthesiseStrip(const Image<float>& image, ptrdiff_t n, ptrdiff_t height) const {
    const float* const first = CopyStrip(image, n, height, synthesis_, [&](ptrdiff_t place) {
      return place % 2 == 0 ? place / 2 : LowOf(height) + place / 2;
    });
    const TwoSums lows = lowTaps_.Sums([&](int k) { return first + 2 * k * kStrip; }),
                  highs = highTaps_.Sums([&](int k) { return first + (2 * k + 1) * kStrip; });
    for (ptrdiff_t q = 0; q < LowOf(height); ++q) {
      StoreStrip(n, q, image.Row(2 * q), image.Row(std::min(2 * q + 1, height - 1)), lows, highs);
    }
  }

  // Pair k of a strip's results.
  template <class... Sums>
  static void StoreStrip(ptrdiff_t n, ptrdiff_t k, float* first, float* second, const Sums&... sums) {
    const hn::ScalableTag<float> d;
    constexpr int kCount = kStrip / hn::MaxLanes(d);
    const ptrdiff_t i = 2 * k * kStrip;
    if (n == kStrip) return StoreLanes<kCount>(d, i, first, second, sums...);
    float results[2][kStrip];
    StoreLanes<kCount>(d, i, results[0], results[1], sums...);
    std::memcpy(second, results[1], n * sizeof(float));
    std::memcpy(first, results[0], n * sizeof(float));
  }

  const WaveletRecord& record_;
  const WaveletPlan& plan_;
  int channels_;
  ptrdiff_t lineFloats_;
  float* memory_;
  Span analysis_, synthesis_;
  BandTaps lowTaps_, highTaps_;
  TwoSums rowAnalysis_, columnAnalysis_;
};

}  // namespace qvp::wavelet
