/** @file qvpi_stats.h
 *  Numbers that sum up an image: norms, sums, extrema, dot products, histograms and moments.
 *
 *  The conventions of every function are told in qvpi_core.h.
 */
#ifndef QVPI_STATS_H
#define QVPI_STATS_H

#include "qvptypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#ifdef __cplusplus
}
#endif

#endif
