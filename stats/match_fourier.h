// Sums of products of windows and template from spectra, in double.
#pragma once

#include "signal/plane_transform.h"
#include "signal/tiling.h"
#include "stats/match.h"

namespace qvp::matching {

// How results are cut into tiles, and the template into pieces: those that a transform holds, and whose sums of words
// are whole numbers after rounding.
struct SpectralPlan {
  Size piece;
  dft::Tiling across, down;

  template <class T>
  static SpectralPlan For(Size results, Size tpl);

  Size MostResults() const { return {across.Step(0), down.Step(0)}; }
  // Spectra of the template are kept from tile to tile if it is one piece.
  bool IsWhole(Size tpl) const { return piece.width == tpl.width && piece.height == tpl.height; }
  // Of an image with elements of so many bytes.
  ByteCount Bytes(Size tpl, int channels, int elementBytes) const;
  // Of a tile of one channel.
  int64_t TileBytes(int elementBytes) const;
};

template <class T>
class SpectralSums {
 public:
  // Takes memory for as many channels, from a boundary on; the channels must stay.
  SpectralSums(const SpectralPlan& plan, const ChannelSet<T>& channels, int mostChannels, uint8_t* memory);

  // Writes sums of products.
  void Sum(const Tile<T>& tile) const;

 private:
  using Transform = dft::PlaneTransform<double>;

  double* PlaneAt(int k) const;
  Plane<T> Neighbours(const Plane<T>& plane, ptrdiff_t& x, ptrdiff_t& y) const;
  void Transformed(int channel, ptrdiff_t x, ptrdiff_t y, double* spectrum) const;
  void AddPiece(int channel, ptrdiff_t x, ptrdiff_t y, const double* spectrum, const Tile<T>& tile) const;

  const SpectralPlan& plan_;
  const ChannelSet<T>& channels_;
  Transform transform_;
  double *rotated_, *block_;
  T* neighbours_;
  uint8_t* planes_;
};
extern template class SpectralSums<uint8_t>;
extern template class SpectralSums<uint16_t>;
extern template class SpectralSums<int16_t>;
extern template class SpectralSums<float>;

}  // namespace qvp::matching
