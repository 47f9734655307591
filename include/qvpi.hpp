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
 */
#ifndef QVPI_HPP
#define QVPI_HPP

#include "qvpi/operations/arith.hpp"
#include "qvpi/operations/core.hpp"
#include "qvpi/operations/denoise.hpp"
#include "qvpi/operations/feature.hpp"
#include "qvpi/operations/filter.hpp"
#include "qvpi/operations/geometry.hpp"
#include "qvpi/operations/stats.hpp"
#include "qvpi/operations/transform.hpp"

#endif
