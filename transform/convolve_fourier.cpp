// Convolution as a product of spectra: overlapping tiles of the image by the kernel, of floats as floats, of integers
// as doubles, whose sums are whole numbers once they are rounded.
#include <algorithm>

#include "base/border.h"
#include "base/lanes.h"
#include "base/scalar.h"
#include "signal/plane_samples.h"
#include "signal/tiling.h"
#include "transform/convolve.h"

namespace qvp::convolution {
namespace {
using dft::Parts;
using dft::PartsFor;
using dft::Tiling;
using dft::TilingFor;

template <class T>
using Number = std::conditional_t<std::is_same_v<T, float>, float, double>;
template <class T>
using Transform = dft::PlaneTransform<Number<T>>;

template <class T>
constexpr bool kIsInteger = !std::is_same_v<T, float>;
template <class T>
constexpr int kLargest = std::is_signed_v<T> ? 32768 : 255;

// A pixel is 256 high + low.
enum class Part { kWhole, kHigh, kLow };

template <class V>
HWY_INLINE V PartOf(Part part, V v) {
  const hn::DFromV<V> d;
  if (part == Part::kWhole) return v;
  const V high = hn::ShiftRight<8>(hn::Add(v, hn::Set(d, 128)));
  return part == Part::kHigh ? high : hn::Sub(v, hn::ShiftLeft<8>(high));
}

struct Tilings {
  Tiling across, down;

  template <class T>
  static Tilings For(Size image, Size kernel) {
    constexpr int kLines = Transform<T>::kLines;
    return {TilingFor(image.width, kernel.width, kLines), TilingFor(image.height, kernel.height, 2 * kLines)};
  }
  int64_t Area() const { return int64_t{across.side} * down.side; }
};

// The most parts that pixels of the type need.
template <class T>
Parts MostParts(const Tilings& tilings, Size kernel) {
  if constexpr (!kIsInteger<T>) return {1, 1};
  const double pixels = static_cast<double>(kernel.width) * static_cast<double>(kernel.height);
  return PartsFor(tilings.Area(), kLargest<T>, {pixels * kLargest<T> * kLargest<T>, pixels * (128 * 128)});
}

// Planes of the work buffer: the tile, a spectrum for each part of the kernel, and, if there are parts, their results
// and sums.
constexpr int PlaneCount(Parts parts) { return parts.kernel == 1 ? 2 : 5; }

template <class T>
class FourierConvolution {
 public:
  FourierConvolution(const Convolution<T>& call, const Tilings& tilings)
      : call_(call), tilings_(tilings), transform_(tilings.across.side, tilings.down.side) {
    transform_.Start(call.buffer);
    block_ = reinterpret_cast<F*>(call.buffer + transform_.TableBytes());
    planes_ = call.buffer + transform_.TableBytes() + transform_.BlockBytes();
  }

  void Run(int channel) {
    call_.image.channel = call_.kernel.channel = channel;
    parts_ = PartsOfKernel();
    const bool isWhole = parts_.kernel == 1;
    tile_ = PlaneAt(0);
    result_ = isWhole ? tile_ : PlaneAt(3);
    sums_ = isWhole ? tile_ : PlaneAt(4);  // are not read of a whole kernel
    const F scale = F{1} / (static_cast<F>(transform_.width()) * static_cast<F>(transform_.half()));
    for (int k = 0; k < parts_.kernel; ++k) {
      spectra_[k] = PlaneAt(1 + k);
      Put(call_.kernel, 0, 0, PartAt(k, parts_.kernel), spectra_[k]);
      transform_.TransformRows(scale, spectra_[k]);
    }
    const auto [width, height] = call_.roi;
    for (ptrdiff_t y = 0; y < height; y += tilings_.down.Step(height)) {
      for (ptrdiff_t x = 0; x < width; x += tilings_.across.Step(width)) ConvolveTile(x, y);
    }
  }

 private:
  using F = Number<T>;
  static constexpr int kLines = Transform<T>::kLines;
  using D = hn::CappedTag<F, kLines>;
  static constexpr ptrdiff_t kLanes = hn::MaxLanes(D()), kRowStep = 2 * kLines;

  template <class P>
  static P* Below(P* pixel, ptrdiff_t bytes) {
    using Byte = std::conditional_t<std::is_const_v<P>, const uint8_t, uint8_t>;
    return reinterpret_cast<P*>(reinterpret_cast<Byte*>(pixel) + bytes);
  }
  F* PlaneAt(int k) const {
    return reinterpret_cast<F*>(planes_ + static_cast<ptrdiff_t>(transform_.PlaneBytes() * k));
  }
  static Part PartAt(int k, int count) { return count == 1 ? Part::kWhole : k == 0 ? Part::kHigh : Part::kLow; }

  // ---- Pixels to numbers.

  HWY_INLINE static hn::Vec<D> Load(const T* from, Part part) {
    if constexpr (kIsInteger<T>) {
      const hn::Rebind<int32_t, D> ints;
      return hn::PromoteTo(D(), PartOf(part, LoadWide(ints, from)));
    } else {
      return hn::LoadU(D(), from);
    }
  }
  // Transforms columns of a plane that begins at (x, y).
  void Put(const Plane<T>& plane, ptrdiff_t x, ptrdiff_t y, Part part, F* to) const {
    dft::PutSamples(
        transform_, plane, x, y, [part](const T* from) HWY_ATTR { return Load(from, part); }, block_, to);
  }

  // ---- Numbers to pixels.

  // What becomes of the results of a transform: they are one of several summands.
  struct Summand {
    F weight;
    bool isFirst, isLast;
  };

  template <bool kIsOnly>
  HWY_INLINE hn::Vec<D> Summed(hn::Vec<D> v, const Summand& summand, F* sums) const {
    if constexpr (kIsInteger<T>) {
      v = hn::Round(v);
      if (kIsOnly) return v;
      v = hn::Mul(v, hn::Set(D(), summand.weight));
      if (!summand.isFirst) v = hn::Add(hn::LoadU(D(), sums), v);
      if (!summand.isLast) hn::StoreU(v, D(), sums);
    }
    return v;
  }
  // Whole numbers of 2^53 or more are rounded, but their quotients are saturated, whatever the divisor. Of others, a
  // quotient that is no tie is too far from one to be rounded to it. All NaN become one.
  HWY_INLINE void Store(hn::Vec<D> v, T* to) const {
    if constexpr (kIsInteger<T>) {
      const auto quotient = hn::Div(v, hn::Set(D(), static_cast<F>(call_.divisor)));
      hn::StoreU(Narrow<T>(D(), quotient), hn::Rebind<T, D>(), to);
    } else {
      hn::StoreU(hn::Or(v, hn::VecFromMask(D(), hn::IsNaN(v))), D(), to);
    }
  }

  // A tile's results: rows and columns of the transform, and the pixel that the first of them is.
  struct Results {
    Extent columns, rows;
    T* first;

    T* At(ptrdiff_t column, ptrdiff_t row, const Convolution<T>& call) const {
      const ptrdiff_t pixels = column - columns.begin;
      return Below(first, (row - rows.begin) * call.dst.step) + pixels * call.image.channels();
    }
  };

  // From each second row of the block: rows of the transform, kLines columns of it.
  template <bool kIsOnly>
  void StoreRows(const F* from, ptrdiff_t column, Extent rows, const Summand& summand, const Results& results) const {
    const ptrdiff_t begin = std::max<ptrdiff_t>(results.columns.begin - column, 0),
                    end = std::min<ptrdiff_t>(results.columns.end - column, kLines);
    const bool isDirect = call_.image.channels() == 1 && end - begin == kLines;
    T staged[kLines];
    T* row = results.At(column + begin, rows.begin, call_);
    F* sums = sums_ + rows.begin * transform_.width() + column;
    for (ptrdiff_t y = rows.begin; y < rows.end; ++y, from += kRowStep, sums += transform_.width()) {
      T* const to = isDirect ? row : staged;
      for (ptrdiff_t lane = 0; lane < kLines; lane += kLanes) {
        const auto v = Summed<kIsOnly>(hn::LoadU(D(), from + lane), summand, sums + lane);
        if (kIsOnly || summand.isLast) Store(v, to + lane);
      }
      if (!isDirect && summand.isLast) PutSamples(staged + begin, end - begin, call_.image.channels(), row);
      row = Below(row, call_.dst.step);
    }
  }

  void Get(const Results& results, const Summand& summand) const {
    const auto store = summand.isFirst && summand.isLast ? &FourierConvolution::StoreRows<true>
                                                         : &FourierConvolution::StoreRows<false>;
    dft::GetRows(transform_, result_, results.columns, results.rows, block_,
                 [&](const F* from, ptrdiff_t x, Extent rows) { (this->*store)(from, x, rows, summand, results); });
  }

  // ---- Tiles.

  // The tile whose first result is at (x, y) of the destination.
  void ConvolveTile(ptrdiff_t x, ptrdiff_t y) const {
    constexpr F kWeights[] = {1, 256, 65536};
    const auto& [across, down] = tilings_;
    const Extent columns = across.ResultsAt(call_.x, x, call_.roi.width),
                 rows = down.ResultsAt(call_.y, y, call_.roi.height);
    const Results results{columns, rows, call_.dst.Row(y) + x * call_.image.channels() + call_.image.channel};
    const int last = parts_.image + parts_.kernel - 2;
    for (int i = 0; i < parts_.image; ++i) {
      Put(call_.image, across.BeginOf(call_.x + x), down.BeginOf(call_.y + y), PartAt(i, parts_.image), tile_);
      for (int k = 0; k < parts_.kernel; ++k) {
        transform_.MultiplyRows(spectra_[k], k == 0, tile_, result_);
        Get(results, {kWeights[last - i - k], i + k == 0, i + k == last});
      }
    }
  }

  Parts PartsOfKernel() const {
    if constexpr (!kIsInteger<T>) return {1, 1};
    double whole = 0, high = 0, low = 0;
    for (ptrdiff_t y = 0; y < call_.kernel.size.height; ++y) {
      for (ptrdiff_t x = 0; x < call_.kernel.size.width; ++x) {
        const int b = LoadScalar(call_.kernel.At(x, y)), top = (b + 128) >> 8, rest = b - top * 256;
        whole += static_cast<double>(int64_t{b} * b);
        high += static_cast<double>(top * top);
        low += static_cast<double>(rest * rest);
      }
    }
    return PartsFor(tilings_.Area(), kLargest<T>, {whole, std::max(high, low)});
  }

  Convolution<T> call_;
  const Tilings& tilings_;
  Transform<T> transform_;
  Parts parts_{};
  uint8_t* planes_;
  F *block_, *tile_ = nullptr, *result_ = nullptr, *sums_ = nullptr;
  F* spectra_[2] = {};
};

}  // namespace

template <class T>
ByteCount FourierBytes(Size image, Size kernel) {
  const Tilings tilings = Tilings::For<T>(image, kernel);
  const Transform<T> transform(tilings.across.side, tilings.down.side);
  return ByteCount(transform.PlaneBytes()) * PlaneCount(MostParts<T>(tilings, kernel)) + transform.TableBytes() +
         transform.BlockBytes();
}

template <class T>
void ConvolveByFourier(const Convolution<T>& call) {
  const Tilings tilings = Tilings::For<T>(call.image.size, call.kernel.size);
  FourierConvolution<T> convolution(call, tilings);
  for (int c = 0; c < call.image.channels(); ++c) convolution.Run(c);
}

#define QVP_INSTANTIATE(T)                        \
  template ByteCount FourierBytes<T>(Size, Size); \
  template void ConvolveByFourier(const Convolution<T>&);
QVP_INSTANTIATE(uint8_t)
QVP_INSTANTIATE(int16_t)
QVP_INSTANTIATE(float)

}  // namespace qvp::convolution
