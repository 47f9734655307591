/** @file qvpi.h
 *  All of qvpIP's functions.
 */
#ifndef QVPI_H
#define QVPI_H

#include "qvpi_arith.h"
#include "qvpi_core.h"
#include "qvpi_denoise.h"
#include "qvpi_feature.h"
#include "qvpi_filter.h"
#include "qvpi_geometry.h"
#include "qvpi_stats.h"
#include "qvpi_transform.h"
#include "qvpi_volume.h"

#endif
