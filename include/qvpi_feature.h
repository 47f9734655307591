/** @file qvpi_feature.h
 *  Features that describe an image: histograms of oriented gradients.
 *
 *  The conventions of every function are told in qvpi_core.h.
 */
#ifndef QVPI_FEATURE_H
#define QVPI_FEATURE_H

#include "qvptypes.h"

#ifdef __cplusplus
extern "C" {
#endif

#ifdef __cplusplus
}
#endif

#endif
