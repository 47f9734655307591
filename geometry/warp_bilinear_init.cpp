// Bilinear warps: sizes and records.
#include "base/export.h"
#include "geometry/warp_init.h"

namespace qvp::warp {
namespace {

// The map from the source, or a square, whose inverse tells points; `quad` is its image.
void FillSolved(const BilinearMap& map, const Quadrangle& quad, Record& record) {
  record.solved = map;
  record.side = IsTurnedOver(quad) ? -1 : 1;
  for (double& coefficient : record.solved.c[1]) coefficient *= record.side;
}

// By coefficients. Those to the destination are inverted, for which the map must be one to one on the image; those to
// the source may fold.
class BilinearTransform {
 public:
  BilinearTransform(const Setup& setup, const double (*coeffs)[4], QvpiWarpDirection direction)
      : map_(coeffs), isForward_(direction == qvpWarpForward) {
    corners_ = map_(CornersOf(isForward_ ? setup.src : setup.dst));
  }

  QvpStatus Check() const {
    if (!map_.IsFinite()) return qvpStatusCoefficient;
    if (!isForward_) return FlatCornersOf(corners_) == 4 ? qvpStatusCoefficient : qvpStatusNoError;
    const Shape shape = ShapeOf(corners_);
    if (shape == Shape::kDegenerate) return qvpStatusCoefficient;
    return shape == Shape::kConvex ? qvpStatusNoError : qvpStatusQuad;
  }

  void FillTo(Record& record) const {
    record.kind = isForward_ ? Kind::kBilinear : Kind::kBilinearBack;
    for (int i = 0; i < 2; ++i) {
      record.twist[i] = map_.c[i][0];
      std::copy(map_.c[i] + 1, map_.c[i] + 4, record.c[i]);
    }
    record.isShift = IsShift(record.c, record.twist);
    if (!isForward_) return;
    for (auto& row : record.c) row[2] = record.isShift ? -row[2] : row[2];
    FillSolved(map_, corners_, record);
  }

 private:
  BilinearMap map_;
  bool isForward_;
  Quadrangle corners_;
};

// Corners of one quadrangle to those of another.
struct QuadTransform {
  Quadrangle from, to;

  QvpStatus Check() const { return CheckQuads(from, to); }
  void FillTo(Record& record) const {
    record.kind = Kind::kBilinearQuad;
    record.toSource = BilinearTo(from);
    FillSolved(BilinearTo(to), to, record);
  }
};

// There are no wide functions for doubles.
Setup For(Setup setup, Form form) {
  setup.takesDoubles = form == Form::kPlain;
  return setup;
}

template <class Out>
QvpStatus GetMatrixSize(const Setup& setup, QvpiBorderType border, const double (*coeffs)[4],
                        QvpiWarpDirection direction, Out* recordSize, Out* initSize, Form form) {
  return GetSize(For(setup, form), border, coeffs != nullptr, recordSize, initSize, [&]() -> QvpStatus {
    if (const QvpStatus failed = CheckDirection(direction)) return failed;
    return BilinearTransform(setup, coeffs, direction).Check();
  });
}

template <class Out>
QvpStatus GetQuadSize(const Setup& setup, QvpiBorderType border, const double (*srcQuad)[2], const double (*dstQuad)[2],
                      Out* recordSize, Out* initSize, Form form) {
  return GetSize(For(setup, form), border, srcQuad && dstQuad, recordSize, initSize, [&] {
    return QuadTransform{Quadrangle(srcQuad), Quadrangle(dstQuad)}.Check();
  });
}

QvpStatus InitMatrix(const Setup& setup, const Options& options, const double (*coeffs)[4], QvpiWarpDirection direction,
                     QvpiWarpSpec* spec, const void* initBuffer, Form form) {
  const auto transform = [&] { return BilinearTransform(setup, coeffs, direction); };
  const auto check = [&]() -> QvpStatus {
    if (const QvpStatus failed = CheckDirection(direction)) return failed;
    if (const QvpStatus failed = transform().Check()) return failed;
    return CheckOptions(setup, options);
  };
  const auto fill = [&](Record& record) { transform().FillTo(record); };
  return Init(For(setup, form), options, coeffs != nullptr, spec, initBuffer, form, check, fill);
}

QvpStatus InitQuad(const Setup& setup, const Options& options, const double (*srcQuad)[2], const double (*dstQuad)[2],
                   QvpiWarpSpec* spec, const void* initBuffer, Form form) {
  const auto transform = [&] { return QuadTransform{Quadrangle(srcQuad), Quadrangle(dstQuad)}; };
  const auto check = [&]() -> QvpStatus {
    if (const QvpStatus failed = transform().Check()) return failed;
    return CheckOptions(setup, options);
  };
  const auto fill = [&](Record& record) { transform().FillTo(record); };
  return Init(For(setup, form), options, srcQuad && dstQuad, spec, initBuffer, form, check, fill);
}

}  // namespace
}  // namespace qvp::warp

using namespace qvp::warp;

#define FUNCTIONS(SUFFIX, Width, OutType, form)                                                    \
  QVP_WARP_MATRIX_SIZE(qvpiWarpBilinearGetSize, 2, 4, GetMatrixSize, SUFFIX, Width, OutType, form) \
  QVP_WARP_QUAD_SIZE(qvpiWarpBilinearQuadGetSize, GetQuadSize, SUFFIX, Width, OutType, form)       \
  QVP_WARP_MATRIX_INITS(qvpiWarpBilinear, 2, 4, InitMatrix, SUFFIX, Width, form)                   \
  QVP_WARP_QUAD_INITS(qvpiWarpBilinearQuad, InitQuad, SUFFIX, Width, form)

FUNCTIONS(, , int, Form::kPlain)
FUNCTIONS(_L, L, QvpSizeL, Form::kWide)
