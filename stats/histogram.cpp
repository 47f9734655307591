// Histograms. Three ways lead to the same counts:
//   a table of all values, from which the bins are added up: 8-bit and 16-bit integers
//   a guess by arithmetic, put right by the levels next to it: bins of equal width
//   a binary search among the levels: all other floats
#include "base/byte_counts.h"
#include "base/check.h"
#include "base/export.h"
#include "base/map.h"
#include "base/rows.h"
#include "stats/histogram_spec.h"
#include "stats/reduction.h"

namespace {
using namespace qvp;

template <class T>
T Read(const T* from, ptrdiff_t i = 0) {
  T value;
  std::memcpy(&value, from + i, sizeof(T));
  return value;
}
void AddTo(uint32_t* counts, ptrdiff_t i, uint32_t n) {
  const uint32_t sum = Read(counts, i) + n;
  std::memcpy(counts + i, &sum, sizeof(sum));
}

template <class T>
using LevelOf = std::conditional_t<std::is_integral_v<T>, int32_t, float>;

// What a call counts, and where to.
template <class T>
struct Task {
  const Image<const T>& src;
  Size roi;
  uint32_t* const* counts;
  const HistogramRecord& record;

  int channels() const { return Channels(src.layout); }
  uint32_t* Counts(int channel) const { return Read(counts, channel); }
};

// Adds up the bins of a channel from how often each value occurs, count(index) for the value lowest + index.
template <class T, class Count>
void AddBins(const Task<T>& task, int channel, const Count& count) {
  constexpr int64_t kLowest = std::numeric_limits<T>::lowest(), kValues = int64_t{1} << (8 * sizeof(T));
  const auto place = [&](ptrdiff_t k) {
    return std::clamp<int64_t>(task.record.template Level<int32_t>(channel, k) - kLowest, 0, kValues);
  };
  int64_t first = place(0);
  for (ptrdiff_t k = 0, bins = task.record.Bins(channel); k < bins; ++k) {
    const int64_t end = place(k + 1);
    uint32_t sum = 0;
    for (int64_t i = first; i < end; ++i) sum += count(i);
    AddTo(task.Counts(channel), k, sum);
    first = end;
  }
}

template <int kTables>
void CountBytes(const Task<uint8_t>& task) {
  ByteCounts<kTables> counts;
  const int channels = task.channels();
  Rows(task.src).ForEach(task.roi, [&](ptrdiff_t pixels, const uint8_t* row) { counts.Add(row, pixels * channels); });
  for (int c = 0; c < channels; ++c) {
    const auto values = counts.Of(c, channels);
    AddBins(task, c, [&](int64_t value) { return values[value]; });
  }
}

// `buffer` has 65536 counters for each channel.
template <class T>
void CountWords(const Task<T>& task, uint32_t* buffer) {
  constexpr int kValues = 65536, kLowest = std::numeric_limits<T>::lowest();
  const int channels = task.channels();
  std::memset(buffer, 0, sizeof(uint32_t) * kValues * channels);
  Rows(task.src).ForEach(task.roi, [&](ptrdiff_t pixels, const T* row) {
    for (int c = 0; c < channels; ++c) {
      uint32_t* const table = buffer + c * kValues - kLowest;
      for (ptrdiff_t i = c; i < pixels * channels; i += channels) AddTo(table, Read(row, i), 1);
    }
  });
  for (int c = 0; c < channels; ++c) {
    AddBins(task, c, [&](int64_t i) { return Read(buffer, c * kValues + i); });
  }
}

// Bins of equal width. The levels of a channel stand in a table between -inf and +inf, so that what is outside of them
// has bins too, which are dropped.
class GuessedBins {
 public:
  static constexpr int kMostLevels = 512, kTurns = 4;

  // Whether each guess is less than one bin away from the right one, by how far the levels may be from equidistant
  // ones, in widths of a bin.
  template <class L>
  bool Open(const HistogramRecord& record, int channel) {
    const int n = record.Levels(channel);
    if (n > kMostLevels) return false;
    const double first = record.Level<L>(channel, 0), last = record.Level<L>(channel, n - 1),
                 width = (last - first) / (n - 1);
    const double largest = std::max(-first, std::max(first, last));
    const double rounding = largest * 0x1p-23 + (std::is_integral_v<L> ? 1 : 0);
    margin = static_cast<float>(rounding / width + n * 0x1p-21);
    if (!(width > 0x1p-100 && width < 0x1p100 && margin < 0.25f)) return false;
    levels_ = n;
    lower = static_cast<float>(first);
    scale = static_cast<float>(1 / width);
    top = static_cast<float>(n);
    table_[0] = -__builtin_inff();
    for (int k = 0; k < n; ++k) table_[k + 1] = static_cast<float>(record.Level<L>(channel, k));
    table_[n + 1] = __builtin_inff();
    std::memset(counts_, 0, sizeof(counts_));
    return true;
  }

  // A value is at most one entry away from its guess. NaN stays where it is guessed, at 0.
  int Corrected(float v, int guess) const { return guess + (v >= table_[guess + 1]) - (v < table_[guess]); }
  // The entries at guesses[0], guesses[step] and so on below n. They take turns in the tables.
  void Count(const int32_t* guesses, ptrdiff_t step, ptrdiff_t n) {
    ptrdiff_t i = 0;
    for (; i + (kTurns - 1) * step < n; i += kTurns * step) {
      for (int turn = 0; turn < kTurns; ++turn) ++counts_[turn][guesses[i + turn * step]];
    }
    for (; i < n; i += step) ++counts_[0][guesses[i]];
  }
  void AddToBins(uint32_t* counts) const {
    for (ptrdiff_t k = 0; k + 1 < levels_; ++k) {
      uint32_t sum = 0;
      for (const auto& table : counts_) sum += table[k + 1];
      AddTo(counts, k, sum);
    }
  }

  float lower = 0, scale = 0, top = 0, margin = 0;

 private:
  int levels_ = 0;
  float table_[kMostLevels + 2];
  uint32_t counts_[kTurns][kMostLevels + 2];
};

template <class T>
class GuessedCounter {
 public:
  bool Open(const Task<T>& task) {
    channels_ = task.channels();
    layout_ = task.src.layout;
    for (int c = 0; c < channels_; ++c) {
      if (!bins_[c].Open<LevelOf<T>>(task.record, c)) return false;
      lower_[c] = bins_[c].lower;
      scale_[c] = bins_[c].scale;
      top_[c] = bins_[c].top;
      margin_ = std::max(margin_, bins_[c].margin);
    }
    return true;
  }

  void Count(const Task<T>& task) {
    const PerChannel<D> lower(D(), lower_, layout_), scale(D(), scale_, layout_), top(D(), top_, layout_);
    Rows(task.src).ForEach(task.roi, [&](ptrdiff_t pixels, const T* row) {
      for (ptrdiff_t i = 0; i < pixels * channels_; i += kBlock) {
        const ptrdiff_t n = std::min(kBlock, pixels * channels_ - i);
        Guess(row + i, n, lower, scale, top);
        for (int c = 0; c < channels_; ++c) bins_[c].Count(guesses_ + c, channels_, n - c);
      }
    });
    for (int c = 0; c < channels_; ++c) bins_[c].AddToBins(task.Counts(c));
  }

 private:
  using D = hn::ScalableTag<float>;
  static constexpr ptrdiff_t kBlock = 768;  // a multiple of 12 lanes of every vector

  // Entry 1 is the first bin. The guess for NaN is 0. Levels are only looked at where a place is close to one.
  void Guess(const T* row, ptrdiff_t n, const PerChannel<D>& lower, const PerChannel<D>& scale,
             const PerChannel<D>& top) {
    const D d;
    const hn::Rebind<int32_t, D> ints;
    constexpr ptrdiff_t kLanes = hn::MaxLanes(d);
    const auto low = hn::Set(d, margin_), high = hn::Set(d, 1 - margin_);
    const auto guessAt = [&](ptrdiff_t i, ptrdiff_t lane) HWY_ATTR {
      const auto v = LoadUpTo(d, row + i, n - i);
      const auto place = hn::Add(hn::Mul(hn::Sub(v, lower.From(lane)), scale.From(lane)), hn::Set(d, 1.0f));
      const auto bounded = hn::Min(hn::Max(place, hn::Zero(d)), top.From(lane));
      const auto guess = hn::ConvertTo(ints, bounded);
      const auto fraction = hn::Sub(bounded, hn::ConvertTo(d, guess));
      hn::Store(guess, ints, guesses_ + i);
      if (HWY_UNLIKELY(!hn::AllFalse(d, hn::Or(hn::Lt(fraction, low), hn::Lt(high, fraction))))) Correct(v, i);
    };
    for (ptrdiff_t i = 0; i < n; i += 3 * kLanes) {
      for (ptrdiff_t lane = 0; lane < 3 * kLanes; lane += kLanes) guessAt(i + lane, lane);
    }
  }

  void Correct(hn::Vec<D> v, ptrdiff_t first) {
    HWY_ALIGN float values[hn::MaxLanes(D())];
    hn::Store(v, D(), values);
    for (int lane = 0, c = static_cast<int>(first % channels_); lane < static_cast<int>(hn::MaxLanes(D())); ++lane) {
      guesses_[first + lane] = bins_[c].Corrected(values[lane], guesses_[first + lane]);
      c = c + 1 == channels_ ? 0 : c + 1;
    }
  }

  int channels_ = 0;
  Layout layout_ = Layout::kC1;
  float lower_[4], scale_[4], top_[4], margin_ = 0;
  GuessedBins bins_[4];
  HWY_ALIGN int32_t guesses_[kBlock];
};

// The number of levels that are not above v.
template <class T>
ptrdiff_t LevelsUpTo(const HistogramRecord& record, int channel, T v) {
  ptrdiff_t first = 0, n = record.Levels(channel);
  while (n > 0) {
    const ptrdiff_t half = n / 2;
    const bool isUpTo = record.Level<LevelOf<T>>(channel, first + half) <= v;
    first = isUpTo ? first + half + 1 : first;
    n = isUpTo ? n - half - 1 : half;
  }
  return first;
}

void CountBySearch(const Task<float>& task) {
  const int channels = task.channels();
  Rows(task.src).ForEach(task.roi, [&](ptrdiff_t pixels, const float* row) {
    for (ptrdiff_t i = 0; i < pixels * channels; ++i) {
      const int c = static_cast<int>(i % channels);
      const ptrdiff_t k = LevelsUpTo(task.record, c, Read(row, i)) - 1;
      if (k >= 0 && k < task.record.Bins(c)) AddTo(task.Counts(c), k, 1);
    }
  });
}

// Small regions are not worth a table of 65536 counters.
template <class T>
bool IsGuessed(const Task<T>& task) {
  return task.record.header().isUniform &&
         (sizeof(T) == 4 || static_cast<int64_t>(task.roi.width) * task.roi.height < 65536);
}

template <class T>
bool CountByGuess(const Task<T>& task) {
  GuessedCounter<T> counter;
  if (!IsGuessed(task) || !counter.Open(task)) return false;
  counter.Count(task);
  return true;
}

template <class T>
void CountPixels(const Task<T>& task, uint32_t* buffer) {
  if constexpr (sizeof(T) == 1) {
    (task.channels() == 3 ? CountBytes<12> : CountBytes<8>)(task);
  } else if (!CountByGuess(task)) {
    if constexpr (sizeof(T) == 2) {
      CountWords(task, buffer);
    } else {
      CountBySearch(task);
    }
  }
}

template <class T>
constexpr QvpDataType kDataType = sizeof(T) == 1        ? qvp8u
                                  : sizeof(T) == 4      ? qvp32f
                                  : std::is_signed_v<T> ? qvp16s
                                                        : qvp16u;

template <class T>
QvpStatus Histogram(const Image<const T>& src, Size roi, uint32_t* const* counts, const QvpiHistogramSpec* spec,
                    const void* buffer) {
  if (const QvpStatus failed = Validate<kPointers>(roi, {src}, {counts, spec, buffer})) return failed;
  for (int c = 0; c < Channels(src.layout); ++c) {
    if (Read(counts, c) == nullptr) return qvpStatusNullPointer;
  }
  if (const QvpStatus failed = Validate<kSize>(roi, {src})) return failed;
  if (src.step < static_cast<int64_t>(roi.width) * src.PixelBytes()) return qvpStatusStep;
  const HistogramRecord record(spec);
  const HistogramHeader& header = record.header();
  if (!record.IsValid() || header.dataType != kDataType<T> || header.channels < Channels(src.layout)) {
    return qvpStatusBadArgument;
  }
  const Task<T> task{src, roi, counts, record};
  for (int c = 0; c < task.channels(); ++c) std::memset(task.Counts(c), 0, sizeof(uint32_t) * record.Bins(c));
  CountPixels(task, static_cast<uint32_t*>(const_cast<void*>(buffer)));
  return qvpStatusNoError;
}

}  // namespace

#define HISTOGRAM(type, layout)                                                                                 \
  QvpStatus qvpiHistogram_##type##_##layout##R(const Qvp##type* pSrc, int srcStep, QvpiSize roiSize,            \
                                               Qvp32u* const pHist[], const QvpiHistogramSpec* pSpec,           \
                                               Qvp8u* pBuffer) {                                                \
    return Histogram(Image<const Qvp##type>{pSrc, srcStep, Layout::k##layout}, roiSize, pHist, pSpec, pBuffer); \
  }
#define HISTOGRAM_WITHOUT_BUFFER(type, layout)                                                                \
  QvpStatus qvpiHistogram_##type##_##layout##R(const Qvp##type* pSrc, int srcStep, QvpiSize roiSize,          \
                                               Qvp32u* const pHist[], const QvpiHistogramSpec* pSpec) {       \
    return Histogram(Image<const Qvp##type>{pSrc, srcStep, Layout::k##layout}, roiSize, pHist, pSpec, pSpec); \
  }

QVP_C1_C3_C4(HISTOGRAM, 8u)
QVP_C1_C3_C4(HISTOGRAM, 16u)
QVP_C1_C3_C4(HISTOGRAM, 16s)
QVP_C1_C3_C4(HISTOGRAM_WITHOUT_BUFFER, 32f)
