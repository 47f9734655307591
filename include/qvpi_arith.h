/** @file qvpi_arith.h
 *  Pixel-wise arithmetic, conversion, threshold and comparison.
 *
 *  The conventions of every function are told in qvpi_core.h.
 */
#ifndef QVPI_ARITH_H
#define QVPI_ARITH_H

#include "qvptypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#ifdef __cplusplus
}
#endif

#endif
