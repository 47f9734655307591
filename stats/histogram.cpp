// Histograms. Three ways lead to the same counts:
//   a table of all values, from which the bins are added up: 8-bit and 16-bit integers
//   a guess by arithmetic, put right by the levels next to it: bins of about equal width, however they were given
//   a binary search among the levels: all other floats
#include "base/byte_counts.h"
#include "base/check.h"
#include "base/export.h"
#include "base/types.h"
#include "stats/guessed_bins.h"

namespace {
using namespace qvp;
using namespace qvp::stats;

// Adds up the bins of a channel from how often each value occurs, count(index) for the value lowest + index.
template <class T, class Count>
void AddBins(const HistogramTask<T>& task, int channel, const Count& count) {
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
void CountBytes(const HistogramTask<uint8_t>& task) {
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
void CountWords(const HistogramTask<T>& task, uint32_t* buffer) {
  constexpr int kValues = 65536, kLowest = std::numeric_limits<T>::lowest();
  const int channels = task.channels();
  std::memset(buffer, 0, sizeof(uint32_t) * kValues * channels);
  Rows(task.src).ForEach(task.roi, [&](ptrdiff_t pixels, const T* row) {
    for (int c = 0; c < channels; ++c) {
      uint32_t* const table = buffer + c * kValues - kLowest;
      for (ptrdiff_t i = c; i < pixels * channels; i += channels) AddTo(table, LoadScalar(row + i), 1);
    }
  });
  for (int c = 0; c < channels; ++c) {
    AddBins(task, c, [&](int64_t i) { return LoadScalar(buffer + c * kValues + i); });
  }
}

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

// The levels of a channel, filled up with infinities to one less than a power of two: every search takes the same
// steps, in all lanes at once.
class LevelTable {
 public:
  static constexpr ptrdiff_t kMost = 1023, kBlock = 64;

  LevelTable(const HistogramRecord& record, int channel) {
    const ptrdiff_t n = record.Levels(channel);
    while (2 * half_ <= n) half_ *= 2;
    for (ptrdiff_t k = 0; k < 2 * half_ - 1; ++k) {
      levels_[k] = k < n ? record.Level<float>(channel, k) : __builtin_inff();
    }
  }

  // Counts n values that lie `step` apart.
  void Count(const float* values, ptrdiff_t step, ptrdiff_t n) {
    float block[kBlock] = {};
    int32_t levels[kBlock];
    for (ptrdiff_t i = 0; i < n; i += kBlock) {
      const ptrdiff_t m = std::min(n - i, kBlock);
      for (ptrdiff_t k = 0; k < m; ++k) block[k] = LoadScalar(values + (i + k) * step);
      FindLevels(block, levels);
      for (ptrdiff_t k = 0; k < m; ++k) ++counts_[levels[k]];
    }
  }
  void AddToBins(ptrdiff_t bins, uint32_t* counts) const {
    for (ptrdiff_t k = 0; k < bins; ++k) AddTo(counts, k, counts_[k + 1]);
  }

 private:
  // How many levels are not above each value of a block.
  void FindLevels(const float* values, int32_t* levels) const {
    const hn::ScalableTag<float> d;
    const hn::ScalableTag<int32_t> ints;
    for (ptrdiff_t i = 0; i < kBlock; i += hn::Lanes(d)) {
      const auto v = hn::LoadU(d, values + i);
      auto first = hn::Zero(ints);
      for (int32_t step = half_; step > 0; step /= 2) {
        const auto level = hn::GatherIndex(d, levels_, hn::Add(first, hn::Set(ints, step - 1)));
        const auto isUpTo = hn::VecFromMask(ints, hn::RebindMask(ints, hn::Le(level, v)));
        first = hn::Add(first, hn::And(isUpTo, hn::Set(ints, step)));
      }
      hn::StoreU(first, ints, levels + i);
    }
  }

  int32_t half_ = 1;
  float levels_[kMost];
  uint32_t counts_[kMost + 1] = {};
};

void CountOneByOne(const HistogramTask<float>& task, int channel, const float* row, ptrdiff_t pixels) {
  for (ptrdiff_t i = 0; i < pixels; ++i) {
    const ptrdiff_t k = LevelsUpTo(task.record, channel, LoadScalar(row + i * task.channels() + channel));
    if (k > 0 && k <= task.record.Bins(channel)) AddTo(task.Counts(channel), k - 1, 1);
  }
}

void CountBySearch(const HistogramTask<float>& task, int channel) {
  const ptrdiff_t bins = task.record.Bins(channel);
  if (bins >= LevelTable::kMost) {
    return Rows(task.src).ForEach(
        task.roi, [&](ptrdiff_t pixels, const float* row) { CountOneByOne(task, channel, row, pixels); });
  }
  LevelTable table(task.record, channel);
  Rows(task.src).ForEach(
      task.roi, [&](ptrdiff_t pixels, const float* row) { table.Count(row + channel, task.channels(), pixels); });
  table.AddToBins(bins, task.Counts(channel));
}

// Small regions are not worth a table of 65536 counters.
template <class T>
bool IsGuessed(const HistogramTask<T>& task) {
  return sizeof(T) == 4 || static_cast<int64_t>(task.roi.width) * task.roi.height < 65536;
}

template <class T>
bool CountByGuess(const HistogramTask<T>& task) {
  GuessedCounter<T> counter;
  if (!IsGuessed(task) || !counter.Open(task)) return false;
  counter.Count(task);
  return true;
}

template <class T>
void CountPixels(const HistogramTask<T>& task, uint32_t* buffer) {
  if constexpr (sizeof(T) == 1) {
    (task.channels() == 3 ? CountBytes<12> : CountBytes<8>)(task);
  } else if (!CountByGuess(task)) {
    if constexpr (sizeof(T) == 2) {
      CountWords(task, buffer);
    } else {
      for (int c = 0; c < task.channels(); ++c) CountBySearch(task, c);
    }
  }
}

template <class T>
QvpStatus Histogram(const Image<const T>& src, Size roi, uint32_t* const* counts, const QvpiHistogramSpec* spec,
                    const void* buffer) {
  if (const QvpStatus failed = Validate<kPointers>(roi, {src}, {counts, spec, buffer})) return failed;
  for (int c = 0; c < Channels(src.layout); ++c) {
    if (LoadScalar(counts + c) == nullptr) return qvpStatusNullPointer;
  }
  if (const QvpStatus failed = Validate<kSize>(roi, {src})) return failed;
  if (src.step < static_cast<int64_t>(roi.width) * src.PixelBytes()) return qvpStatusStep;
  const HistogramRecord record(spec);
  const HistogramHeader& header = record.header();
  if (!record.IsValid() || header.dataType != DataTypeOf<T>() || header.channels < Channels(src.layout)) {
    return qvpStatusBadArgument;
  }
  const HistogramTask<T> task{src, roi, counts, record};
  for (int c = 0; c < task.channels(); ++c) std::memset(task.Counts(c), 0, sizeof(uint32_t) * record.Bins(c));
  CountPixels(task, static_cast<uint32_t*>(const_cast<void*>(buffer)));
  return qvpStatusNoError;
}

}  // namespace

#define HISTOGRAM(type, layout)                      \
  QVP_REDUCE(qvpiHistogram, type, layout, Histogram, \
             (Qvp32u* const pHist[], const QvpiHistogramSpec* pSpec, Qvp8u* pBuffer), (pHist, pSpec, pBuffer))
#define HISTOGRAM_WITHOUT_BUFFER(type, layout)                                                                \
  QVP_REDUCE(qvpiHistogram, type, layout, Histogram, (Qvp32u* const pHist[], const QvpiHistogramSpec* pSpec), \
             (pHist, pSpec, pSpec))

QVP_C1_C3_C4(HISTOGRAM, 8u)
QVP_C1_C3_C4(HISTOGRAM, 16u)
QVP_C1_C3_C4(HISTOGRAM, 16s)
QVP_C1_C3_C4(HISTOGRAM_WITHOUT_BUFFER, 32f)
