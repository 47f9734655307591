// Which stored floats of a packed spectrum are which frequency, and its numbers in runs.
#pragma once

#include <algorithm>
#include <cstring>

#include "base/map.h"

namespace qvp::packed {

// ---- The layout: which stored floats are which frequency.

struct Place {
  ptrdiff_t row, column;
};
constexpr Place operator+(Place a, Place b) { return {a.row + b.row, a.column + b.column}; }
constexpr Place operator*(ptrdiff_t n, Place a) { return {n * a.row, n * a.column}; }

// Complex numbers along a row or a column.
inline constexpr ptrdiff_t kMostNumbers = 128;
struct Run {
  Place re, im, next;              // the parts of the first number, and how far it is to those of the next
  Place frequency, nextFrequency;  // the same for (v, u)
  ptrdiff_t count;                 // kMostNumbers or fewer

  Run From(ptrdiff_t i) const {
    return {re + i * next, im + i * next,
            next,          frequency + i * nextFrequency,
            nextFrequency, std::min(kMostNumbers, count - i)};
  }
  Place LastFrequency() const { return frequency + (count - 1) * nextFrequency; }
};

// Calls real(channel, frequency, place) for each entry that is real by symmetry and visit(channel, run) for runs of all
// other ones, each processed channel of an entry or a run after the other.
template <class Real, class Visit>
void ForEachRun(Size roi, Layout layout, const Real& real, const Visit& visit) {
  const auto inChannels = [&](const auto& function, const auto&... arguments) {
    for (int c = 0; c < ProcessedChannels(layout); ++c) function(c, arguments...);
  };
  const auto inRuns = [&](const Run& line) {
    for (ptrdiff_t i = 0; i < line.count; i += kMostNumbers) inChannels(visit, line.From(i));
  };
  const ptrdiff_t w = roi.width, h = roi.height;
  for (ptrdiff_t column = 0; column < w; column += std::max<ptrdiff_t>(w - 1, 1)) {
    if (column != 0 && w % 2 != 0) break;  // odd widths have no last real column
    const ptrdiff_t u = column == 0 ? 0 : w / 2;
    inChannels(real, Place{0, u}, Place{0, column});
    inRuns({{1, column}, {2, column}, {2, 0}, {1, u}, {1, 0}, (h - 1) / 2});
    if (h % 2 == 0) inChannels(real, Place{h / 2, u}, Place{h - 1, column});
  }
  for (ptrdiff_t v = 0; v < h; ++v) inRuns({{v, 1}, {v, 2}, {0, 2}, {v, 1}, {0, 1}, (w - 1) / 2});
}

// One channel of an image, whose floats need not be aligned.
template <class T>
struct Channel {
  using Byte = std::conditional_t<std::is_const_v<T>, const uint8_t, uint8_t>;
  Byte* data;
  ptrdiff_t step, pitch;

  Channel(const Image<T>& image, int channel)
      : data(reinterpret_cast<Byte*>(image.data + channel)), step(image.step), pitch(image.PixelBytes()) {}
  ptrdiff_t Distance(Place to) const { return to.row * step + to.column * pitch; }
  Byte* At(Place place) const { return data + Distance(place); }
  float Get(Place place) const {
    float value;
    std::memcpy(&value, At(place), sizeof(value));
    return value;
  }
  void Put(Place place, float value) const { std::memcpy(At(place), &value, sizeof(value)); }
};

// ---- The numbers of a run, in order and their parts apart.

using D = hn::ScalableTag<float>;
inline constexpr ptrdiff_t kLanes = hn::MaxLanes(D());

struct Numbers {
  HWY_ALIGN float re[kMostNumbers], im[kMostNumbers];
};

inline void Gather(const uint8_t* from, ptrdiff_t stride, ptrdiff_t n, float* to) {
  QVP_SCATTERED
  for (ptrdiff_t i = 0; i < n; ++i) std::memcpy(to + i, from + i * stride, sizeof(float));
}
inline void Scatter(const float* from, ptrdiff_t n, uint8_t* to, ptrdiff_t stride) {
  if (stride == sizeof(float)) return static_cast<void>(std::memcpy(to, from, n * sizeof(float)));
  QVP_SCATTERED
  for (ptrdiff_t i = 0; i < n; ++i) std::memcpy(to + i * stride, from + i, sizeof(float));
}

// Whether numbers lie side by side, as pairs of floats.
constexpr bool ArePairs(ptrdiff_t fromReToIm, ptrdiff_t stride) {
  return fromReToIm == sizeof(float) && stride == 2 * sizeof(float);
}

inline void Load(const uint8_t* re, const uint8_t* im, ptrdiff_t stride, ptrdiff_t n, Numbers& to) {
  ptrdiff_t i = 0;
  if (ArePairs(im - re, stride)) {
    for (; i + kLanes <= n; i += kLanes) {
      hn::Vec<D> parts[2];
      hn::LoadInterleaved2(D(), reinterpret_cast<const float*>(re + i * stride), parts[0], parts[1]);
      hn::Store(parts[0], D(), to.re + i);
      hn::Store(parts[1], D(), to.im + i);
    }
  }
  Gather(re + i * stride, stride, n - i, to.re + i);
  Gather(im + i * stride, stride, n - i, to.im + i);
}

inline void Store(const Numbers& from, ptrdiff_t n, uint8_t* re, uint8_t* im, ptrdiff_t stride) {
  ptrdiff_t i = 0;
  if (ArePairs(im - re, stride)) {
    for (; i + kLanes <= n; i += kLanes) {
      hn::StoreInterleaved2(hn::Load(D(), from.re + i), hn::Load(D(), from.im + i), D(),
                            reinterpret_cast<float*>(re + i * stride));
    }
  }
  Scatter(from.re + i, n - i, re + i * stride, stride);
  Scatter(from.im + i, n - i, im + i * stride, stride);
}

inline void LoadPacked(const Channel<const float>& from, const Run& run, Numbers& to) {
  Load(from.At(run.re), from.At(run.im), from.Distance(run.next), run.count, to);
}
inline void StorePacked(const Numbers& from, const Run& run, const Channel<float>& to) {
  Store(from, run.count, to.At(run.re), to.At(run.im), to.Distance(run.next));
}

}  // namespace qvp::packed
