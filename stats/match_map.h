// Maps of scores: all results of a call, from its tiles.
#pragma once

#include "qvptypes.h"
#include "stats/match.h"

namespace qvp::matching {

template <class T>
struct Match {
  Image<const T> src;
  Size srcSize;
  Image<const T> tpl;
  Size tplSize;
  Image<float> dst;
  Size roi;
  ptrdiff_t x, y;  // of the first window's first pixel in the image
  Norm norm;
  bool isByFourier;
};

// Bytes of the work buffer, from a boundary on, for a number of channels that may become one result.
template <class T>
ByteCount MapBytes(Size roi, Size tpl, int channels, bool isByFourier);

template <class T>
void MapScores(const Match<T>& call, uint8_t* buffer);

}  // namespace qvp::matching
