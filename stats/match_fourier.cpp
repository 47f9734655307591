// Products of spectra: overlapping tiles of the image by the template turned by 180 degrees.
#include "stats/match_fourier.h"

#include "base/lanes.h"
#include "base/row_vectors.h"
#include "base/scalar.h"
#include "signal/plane_samples.h"
#include "stats/match_lanes.h"

namespace qvp::matching {
namespace {
using Row = dft::BlockRow<double>;

constexpr ptrdiff_t kMostSide = 1024, kMostPieceSide = 512;
constexpr int kLines = Row::kLines;

// On random, two-valued, constant, striped and chirped images the sums of 16 bits are within 2e-3 of whole numbers, of
// 8 bits within 2e-7.
constexpr ptrdiff_t kMostWords = 16384, kWordSide = 128;

template <class T>
Size PieceOf(Size tpl) {
  const Size most{std::min(tpl.width, kMostPieceSide), std::min(tpl.height, kMostPieceSide)};
  if (sizeof(T) != 2 || most.width * most.height <= kMostWords) return most;
  const ptrdiff_t width = most.height < kWordSide ? kMostWords / most.height : kWordSide;
  const ptrdiff_t across = std::min(most.width, width);
  return {across, std::min(most.height, kMostWords / across)};
}

// Adds numbers of a plane to sums: of integers they are whole ones once they are rounded.
template <class T, class D>
HWY_INLINE void AddNumbers(D d, const double* from, Sum<T>* to) {
  auto v = hn::LoadU(d, from);
  if constexpr (std::is_same_v<Sum<T>, int64_t>) {
    const hn::Rebind<int64_t, D> ints;
    hn::StoreU(hn::Add(hn::LoadU(ints, to), ToWhole(d, v)), ints, to);
  } else {
    if constexpr (!kIsFloat<T>) v = hn::Round(v);
    hn::StoreU(hn::Add(hn::LoadU(d, to), v), d, to);
  }
}

}  // namespace

template <class T>
SpectralPlan SpectralPlan::For(Size results, Size tpl) {
  const Size piece = PieceOf<T>(tpl);
  return {piece, dft::OverlapTilingFor(results.width, piece.width, kLines, kMostSide),
          dft::OverlapTilingFor(results.height, piece.height, 2 * kLines, kMostSide)};
}

int64_t SpectralPlan::TileBytes(int elementBytes) const {
  return ByteCount(int64_t{across.side} * down.side * elementBytes).RoundedTo(kRecordBoundary).value();
}

ByteCount SpectralPlan::Bytes(Size tpl, int channels, int elementBytes) const {
  const dft::PlaneTransform<double> transform(across.side, down.side);
  const int spectra = IsWhole(tpl) ? channels : 1;
  return ByteCount(transform.TableBytes()) + transform.BlockBytes() +
         ByteCount(piece.width * piece.height * int64_t{sizeof(double)}).RoundedTo(kRecordBoundary) +
         ByteCount(transform.PlaneBytes()) * (1 + spectra) + (channels > 1 ? TileBytes(elementBytes) : 0);
}

template <class T>
SpectralSums<T>::SpectralSums(const SpectralPlan& plan, const ChannelSet<T>& channels, int mostChannels,
                              uint8_t* memory)
    : plan_(plan), channels_(channels), transform_(plan.across.side, plan.down.side) {
  transform_.Start(memory);
  block_ = reinterpret_cast<double*>(memory + transform_.TableBytes());
  planes_ = memory + transform_.TableBytes() + transform_.BlockBytes();
  rotated_ = reinterpret_cast<double*>(planes_);
  planes_ +=
      ByteCount(plan.piece.width * plan.piece.height * int64_t{sizeof(double)}).RoundedTo(kRecordBoundary).value();
  const bool isWhole = plan.IsWhole(channels.tpl[0].size);
  neighbours_ = reinterpret_cast<T*>(PlaneAt(isWhole ? 1 + mostChannels : 2));
  if (!isWhole) return;
  for (int c = 0; c < channels.count; ++c) Transformed(c, 0, 0, PlaneAt(1 + c));
}

template <class T>
double* SpectralSums<T>::PlaneAt(int k) const {
  return reinterpret_cast<double*>(planes_ + static_cast<ptrdiff_t>(transform_.PlaneBytes() * k));
}

// Of the piece of the template at (x, y).
template <class T>
void SpectralSums<T>::Transformed(int channel, ptrdiff_t x, ptrdiff_t y, double* spectrum) const {
  const Plane<T>& tpl = channels_.tpl[channel];
  const Size size{std::min(plan_.piece.width, tpl.size.width - x), std::min(plan_.piece.height, tpl.size.height - y)};
  double* to = rotated_ + size.width * size.height;
  for (ptrdiff_t j = 0; j < size.height; ++j) {
    for (ptrdiff_t i = 0; i < size.width; ++i) {
      *--to = static_cast<double>(LoadScalar(tpl.At(x + i, y + j))) - channels_.less[channel];
    }
  }
  const Plane<double> plane{View<const double>(rotated_, size.width * int64_t{sizeof(double)}, Layout::kC1), size};
  dft::PutSamples(
      transform_, plane, 0, 0, [](const double* from) HWY_ATTR { return hn::LoadU(Row::D(), from); }, block_, spectrum);
  transform_.TransformRows(1.0 / (static_cast<double>(transform_.width()) * static_cast<double>(transform_.half())),
                           spectrum);
}

// The samples of a tile that begins at (x, y), which becomes where they are in a plane of neighbours.
template <class T>
Plane<T> SpectralSums<T>::Neighbours(const Plane<T>& plane, ptrdiff_t& x, ptrdiff_t& y) const {
  if (plane.channels() == 1) return plane;
  const ptrdiff_t left = std::max<ptrdiff_t>(x, 0), top = std::max<ptrdiff_t>(y, 0);
  const ptrdiff_t right = std::min(x + plan_.across.side, plane.size.width),
                  bottom = std::min(y + plan_.down.side, plane.size.height);
  const Size size{std::max<ptrdiff_t>(right - left, 0), std::max<ptrdiff_t>(bottom - top, 0)};
  for (ptrdiff_t row = 0; row < size.height && size.width > 0; ++row) {
    CopySamples(plane.At(left, top + row), plane.channels(), size.width, neighbours_ + row * size.width);
  }
  x -= left, y -= top;
  return {View<const T>(neighbours_, size.width * ptrdiff_t{sizeof(T)}, Layout::kC1), size};
}

// Adds the sums of a piece, of which the first right one is the last of the piece's side.
template <class T>
void SpectralSums<T>::AddPiece(int channel, ptrdiff_t x, ptrdiff_t y, const double* spectrum,
                               const Tile<T>& tile) const {
  const Size tpl = channels_.tpl[channel].size;
  const ptrdiff_t left = std::min(plan_.piece.width, tpl.width - x) - 1,
                  top = std::min(plan_.piece.height, tpl.height - y) - 1;
  double* const plane = PlaneAt(0);
  const auto less = hn::Set(Row::D(), channels_.less[channel]);
  ptrdiff_t firstColumn = tile.x + x, firstRow = tile.y + y;
  const Plane<T> image = Neighbours(channels_.image[channel], firstColumn, firstRow);
  dft::PutSamples(
      transform_, image, firstColumn, firstRow,
      [less](const T* from) HWY_ATTR { return hn::Sub(LoadWide(Row::D(), from), less); }, block_, plane);
  transform_.MultiplyRows(spectrum, true, plane, plane);
  const Extent columns{left, left + tile.size.width}, rows{top, top + tile.size.height};
  dft::GetRows(transform_, plane, columns, rows, block_, [&](const double* from, ptrdiff_t column, Extent of) {
    const ptrdiff_t begin = std::max<ptrdiff_t>(columns.begin - column, 0),
                    end = std::min<ptrdiff_t>(columns.end - column, kLines);
    for (ptrdiff_t row = of.begin; row < of.end; ++row, from += Row::kRowStep) {
      auto* const to = tile.Row(row - top) + (column - left);
      if (end - begin < kLines) {
        matching::Sum<T> staged[kLines] = {};
        for (ptrdiff_t i = 0; i < kLines; i += Row::kLanes) AddNumbers<T>(Row::D(), from + i, staged + i);
        for (ptrdiff_t i = begin; i < end; ++i) to[i] += staged[i];
      } else {
        for (ptrdiff_t i = 0; i < kLines; i += Row::kLanes) AddNumbers<T>(Row::D(), from + i, to + i);
      }
    }
  });
}

template <class T>
void SpectralSums<T>::Sum(const Tile<T>& tile) const {
  for (ptrdiff_t y = 0; y < tile.size.height; ++y) std::fill_n(tile.Row(y), tile.size.width, matching::Sum<T>{});
  const Size tpl = channels_.tpl[0].size, piece = plan_.piece;
  const bool isWhole = plan_.IsWhole(tpl);
  for (int c = 0; c < channels_.count; ++c) {
    for (ptrdiff_t y = 0; y < tpl.height; y += piece.height) {
      for (ptrdiff_t x = 0; x < tpl.width; x += piece.width) {
        double* const spectrum = PlaneAt(isWhole ? 1 + c : 1);
        if (!isWhole) Transformed(c, x, y, spectrum);
        AddPiece(c, x, y, spectrum, tile);
      }
    }
  }
}

#define QVP_INSTANTIATE(T)                                \
  template SpectralPlan SpectralPlan::For<T>(Size, Size); \
  template class SpectralSums<T>;
QVP_INSTANTIATE(uint8_t)
QVP_INSTANTIATE(uint16_t)
QVP_INSTANTIATE(int16_t)
QVP_INSTANTIATE(float)

}  // namespace qvp::matching
