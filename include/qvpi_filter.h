/** @file qvpi_filter.h
 *  Borders, and filters over the neighbourhood of each pixel.
 *
 *  The conventions of every function are told in qvpi_core.h.
 */
#ifndef QVPI_FILTER_H
#define QVPI_FILTER_H

#include "qvptypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#ifdef __cplusplus
}
#endif

#endif
