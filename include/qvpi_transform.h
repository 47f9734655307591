/** @file qvpi_transform.h
 *  Two-dimensional Fourier transforms and operations on their packed spectra.
 *
 *  The conventions of every function are told in qvpi_core.h.
 */
#ifndef QVPI_TRANSFORM_H
#define QVPI_TRANSFORM_H

#include "qvptypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#ifdef __cplusplus
}
#endif

#endif
