/** @file qvpi.h
 *  All of qvpIP's functions.
 */
#ifndef QVPI_H
#define QVPI_H

#include "qvpi_core.h"

#endif
