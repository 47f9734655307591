/** @file statistics.hpp
 *  Histograms and moments.
 */
#ifndef QVPI_STATISTICS_HPP
#define QVPI_STATISTICS_HPP

#include <span>

#include "qvpi/operations/stats.hpp"
#include "qvpi/record.hpp"

namespace qvp {
inline namespace QVP_ERRORS {

/** Counts pixels by bins of equal width: `Histogram<Qvp8u> h(256, 0, 256); h(image); h.counts()[17];`
 *
 *  Bin i of n has the values from low + i * (high - low) / n up to, and without, where bin i + 1 begins. 8u, 16u, 16s
 *  and 32f of 1, 3 and 4 channels.
 */
template <class T, int kChannels = 1>
class Histogram : public Recorded {
  static_assert(
      requires(In<T, kChannels> view) { calls::histogram(view, {}, {}, {}); },
      "qvp::Histogram is for 8u, 16u, 16s and 32f with 1, 3 and 4 channels");

 public:
  Histogram(int bins, Qvp32f low, Qvp32f high) : bins_(bins) {
    levels_.fill(bins < 0x7FFFFFFF ? bins + 1 : bins);
    made(prepare(low, high));
  }

  /** Counts the pixels of an image; counts of the one before are forgotten. */
  Status operator()(In<T, kChannels> src) {
    std::array<Qvp32u*, kChannels> places;
    for (int i = 0; i < kChannels; ++i) places[i] = place(i);
    const QvpStatus status = ready(true);
    if (status < 0) return detail::finish(status);
    return detail::finish(detail::call_with(
        own_, [&](int* bytes) { return size(src.size(), bytes); },
        [&](Qvp8u* work) { return calls::histogram(src, places.data(), spec<QvpiHistogramSpec>(), work); }));
  }

  /** How many pixels each bin has, of a channel. */
  std::span<const Qvp32u> counts(int channel = 0) const {
    if (!status().ok() || channel < 0 || channel >= kChannels) return {};
    return {place(channel), std::size_t(bins_)};
  }

 private:
  Qvp32u* place(int channel) const {
    return reinterpret_cast<Qvp32u*>(counts_.data()) + std::ptrdiff_t{channel} * bins_;
  }

  QvpStatus size(QvpiSize image, int* buffer, int* record = nullptr) const {
    int unused = 0;
    return qvpiHistogramGetBufferSize(detail::kDataType<T>, image, levels_.data(), kChannels, 1,
                                      record ? record : &unused, buffer);
  }

  QvpStatus prepare(Qvp32f low, Qvp32f high) {
    int record = 0, unused = 0;
    const QvpStatus status = size({1, 1}, &unused, &record);
    if (status < 0) return status;
    const QvpSizeL bytes = QvpSizeL{kChannels} * bins_ * sizeof(Qvp32u);
    if (!counts_.reserve(bytes)) return qvpStatusMemoryAllocation;
    std::fill_n(counts_.data(), bytes, Qvp8u{0});
    std::array<Qvp32f, kChannels> lowest, highest;
    lowest.fill(low), highest.fill(high);
    return make(record, 0, [&](Qvp8u* memory, Qvp8u*) {
      return qvpiHistogramUniformInit(detail::kDataType<T>, lowest.data(), highest.data(), levels_.data(), kChannels,
                                      reinterpret_cast<QvpiHistogramSpec*>(memory));
    });
  }

  int bins_;
  std::array<int, kChannels> levels_;
  Buffer counts_;
};

/** The moments of an image, up to the third order: `Moments m(image); m.spatial(1, 0) / m.spatial(0, 0);` */
class Moments : public Recorded {
 public:
  /** 8u, 16u and 32f of 1, 3 and 4 channels. */
  template <detail::HasPixels Source>
  explicit Moments(const Source& src, HintAlgorithm hint = HintAlgorithm::fast) {
    const auto view = detail::view_of(src);
    using Pixels = In<typename decltype(view)::Number, decltype(view)::layout>;
    static_assert(
        requires(Pixels pixels) { calls::moments64f(pixels, nullptr); },
        "qvp::Moments is for 8u, 16u and 32f with 1, 3 and 4 channels");
    made(prepare(hint, [&](State* state) { return calls::moments64f(Pixels(view), state); }));
  }

  /** The sum of x^m y^n times the pixel, with the first pixel at `offset`. */
  Result<double> spatial(int m, int n, int channel = 0, QvpiPoint offset = {0, 0}) const {
    return value([&](double* result) { return qvpiGetSpatialMoment_64f(state(), m, n, channel, offset, result); });
  }
  /** The same with x and y from the centre of mass on. */
  Result<double> central(int m, int n, int channel = 0) const {
    return value([&](double* result) { return qvpiGetCentralMoment_64f(state(), m, n, channel, result); });
  }
  /** Central moments that do not change with the image's size. */
  Result<double> normalized(int m, int n, int channel = 0) const {
    return value([&](double* result) { return qvpiGetNormalizedCentralMoment_64f(state(), m, n, channel, result); });
  }
  /** Hu's seven numbers, which do not change when the image is turned either. */
  Result<std::array<double, 7>> hu(int channel = 0) const {
    std::array<double, 7> result = {};
    const QvpStatus status = ready(true);
    return detail::finish(status < 0 ? status : qvpiGetHuMoments_64f(state(), channel, result.data()), result);
  }

 private:
  using State = QvpiMomentState_64f;
  const State* state() const { return spec<State>(); }

  template <class Fill>
  QvpStatus prepare(HintAlgorithm hint, Fill fill) {
    int bytes = 0;
    const QvpStatus status = qvpiMomentGetStateSize_64f(int(hint), &bytes);
    if (status < 0) return status;
    return make(bytes, 0, [&](Qvp8u* memory, Qvp8u*) {
      auto* state = reinterpret_cast<State*>(memory);
      const QvpStatus made = qvpiMomentInit_64f(state, int(hint));
      return made < 0 ? made : fill(state);
    });
  }

  template <class Ask>
  Result<double> value(Ask ask) const {
    double result = 0;
    const QvpStatus status = ready(true);
    return detail::finish(status < 0 ? status : ask(&result), result);
  }
};

}  // namespace QVP_ERRORS
}  // namespace qvp

#endif
