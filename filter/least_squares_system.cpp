// The linear system of the iterative least-squares filter. Elimination goes down the rows while they come from the
// transform, back substitution up while they go into the inverse one.
#include "filter/least_squares_system.h"

#include <algorithm>
#include <cstring>

#include "base/row_vectors.h"

namespace qvp::filter {
namespace {

using D = hn::ScalableTag<float>;

}  // namespace

LeastSquaresSystem::LeastSquaresSystem(const LeastSquaresRecord& record, uint8_t* buffer)
    : record_(record), width_(record.width), height_(record.height) {
  const LeastSquaresLayout layout(width_, height_, record.Plan());
  uint8_t* const first = AtBoundary(buffer);
  v_ = reinterpret_cast<float*>(first);
  pivots_ = reinterpret_cast<float*>(first + layout.plane.value());
  kept_ = reinterpret_cast<float*>(first + 2 * layout.plane.value());
  block_ = reinterpret_cast<float*>(first + 2 * layout.plane.value() + layout.row.value());
  FillPivots();
}

void LeastSquaresSystem::Clear() const { std::memset(v_, 0, width_ * height_ * sizeof(float)); }

// 1 / d of the rows, with d = 1 + beta lambda + beta (2, or 1 at an edge) - beta^2 / d of the row above, in double.
void LeastSquaresSystem::FillPivots() const {
  const double beta = record_.beta;
  const double* const eigenvalues = record_.Eigenvalues();
  double pivots[64];
  for (ptrdiff_t first = 0; first < width_; first += std::size(pivots)) {
    const ptrdiff_t n = std::min<ptrdiff_t>(width_ - first, std::size(pivots));
    std::fill(pivots, pivots + n, 0.0);
    for (ptrdiff_t y = 0; y < height_; ++y) {
      const double neighbours = (y > 0) + (y + 1 < height_), square = y > 0 ? beta * beta : 0;
      float* const to = pivots_ + y * width_ + first;
      for (ptrdiff_t k = 0; k < n; ++k) {
        pivots[k] = 1 / (1 + eigenvalues[first + k] + beta * neighbours - square * pivots[k]);
        to[k] = static_cast<float>(pivots[k]);
      }
    }
  }
}

void LeastSquaresSystem::TransformRows(dft::Direction direction, ptrdiff_t y, int count) const {
  dft::DftLines<float> rows{{}, sizeof(float), count};
  dft::DftLines<const float> sources{{}, sizeof(float), count};
  for (int i = 0; i < count; ++i) sources.at[i] = rows.at[i] = Row(y + i);
  dft::TransformLines(record_.Plan(), direction, sources, rows, block_);
}

void LeastSquaresSystem::AddAbove(const float* above, const float* pivots, float* row) const {
  const float beta = record_.beta;
  ForEachElement(D(), width_, [=](auto d, ptrdiff_t i) HWY_ATTR {
    const auto sum = hn::Add(hn::LoadU(d, row + i), hn::Mul(hn::Set(d, beta), hn::LoadU(d, above + i)));
    hn::StoreU(hn::Mul(sum, hn::LoadU(d, pivots + i)), d, row + i);
  });
}

void LeastSquaresSystem::AddBelow(const float* below, const float* pivots, float* row) const {
  const float beta = record_.beta;
  ForEachElement(D(), width_, [=](auto d, ptrdiff_t i) HWY_ATTR {
    const auto factor = hn::Mul(hn::Set(d, beta), hn::LoadU(d, pivots + i));
    hn::StoreU(hn::Add(hn::LoadU(d, row + i), hn::Mul(factor, hn::LoadU(d, below + i))), d, row + i);
  });
}

void LeastSquaresSystem::Eliminate(ptrdiff_t y, int count) const {
  TransformRows(dft::Direction::kForward, y, count);
  for (int i = 0; i < count; ++i) {
    float *const row = Row(y + i), *const pivots = pivots_ + (y + i) * width_;
    if (y + i > 0) {
      AddAbove(Row(y + i - 1), pivots, row);
    } else {
      ForEachElement(D(), width_, [=](auto d, ptrdiff_t k) HWY_ATTR {
        hn::StoreU(hn::Mul(hn::LoadU(d, row + k), hn::LoadU(d, pivots + k)), d, row + k);
      });
    }
  }
}

void LeastSquaresSystem::SubstituteRows(ptrdiff_t y, int count) const {
  for (int i = count - 1; i >= 0; --i) {
    if (y + i + 1 == height_) continue;
    AddBelow(i + 1 < count ? Row(y + i + 1) : kept_, pivots_ + (y + i) * width_, Row(y + i));
  }
  std::memcpy(kept_, Row(y), width_ * sizeof(float));
  TransformRows(dft::Direction::kInverse, y, count);
}

void LeastSquaresSystem::Substitute() const {
  for (ptrdiff_t end = height_; end > 0;) {
    const int count = static_cast<int>(std::min<ptrdiff_t>(end, RowsAtOnce()));
    SubstituteRows(end -= count, count);
  }
}

}  // namespace qvp::filter
