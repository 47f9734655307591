/** @file qvpi.hpp
 *  All of qvpIP for C++20: images, views, and functions that find the C function for their types.
 *
 *  @code
 *    qvp::Image<Qvp8u, 3> image(640, 480), brighter(640, 480);
 *    qvp::fill(image, {10, 20, 30});
 *    qvp::add(image, {50, 50, 50}, brighter);
 *    double red = qvp::mean(brighter.view({0, 0, 64, 64}))[0];
 *  @endcode
 *
 *  An overload calls the C function of its types and does nothing else, but for comparing sizes where the compiler does
 *  not see that they are the same: a source that has another size than the destination is refused with qvpStatusSize.
 *  Descriptions, and what is refused, are those of the C functions. Operands come before destinations, and selectors are
 *  enumerations. Errors are exceptions, or results; see error.hpp. Include a header of qvpi/operations/ for less.
 *
 *  Left to C are volumes, video frames, images of one bit, `_L` sizes, and what has a record but no class here: wavelets,
 *  deconvolution, the least-squares filter, bilinear warps.
 */
#ifndef QVPI_HPP
#define QVPI_HPP

#include "qvpi/curve.hpp"
#include "qvpi/filter.hpp"
#include "qvpi/fourier.hpp"
#include "qvpi/hog.hpp"
#include "qvpi/noise.hpp"
#include "qvpi/operations/arith.hpp"
#include "qvpi/operations/core.hpp"
#include "qvpi/resizer.hpp"
#include "qvpi/statistics.hpp"
#include "qvpi/warp.hpp"

#endif
