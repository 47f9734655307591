/** @file qvpi_geometry.h
 *  Resize, warps, remap, mirror and transpose.
 *
 *  The conventions of every function are told in qvpi_core.h.
 */
#ifndef QVPI_GEOMETRY_H
#define QVPI_GEOMETRY_H

#include "qvptypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#ifdef __cplusplus
}
#endif

#endif
