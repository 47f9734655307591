// What the table of functions, which is made from the headers, and the module that calls them have in common.
#ifndef QVPI_PYTHON_CALL_H
#define QVPI_PYTHON_CALL_H

#include <stdint.h>

#include "qvptypes.h"

// One argument of a function; its type tells which field is meant.
typedef union {
  const void* pointer;
  int64_t integer;
  double real;
  QvpiSize asQvpiSize;
  QvpiSizeL asQvpiSizeL;
  QvpiPoint asQvpiPoint;
  QvpiPointL asQvpiPointL;
  QvpiRect asQvpiRect;
  QvpiRectL asQvpiRectL;
  QvprVolume asQvprVolume;
  QvprPoint asQvprPoint;
  QvprCuboid asQvprCuboid;
} Argument;

typedef void (*Code)(void);

typedef struct {
  const char* name;
  const char* parameters;  // "type|name|length" of each, with semicolons between
  Code code;
  int (*call)(Code code, const Argument* arguments);
} Function;

extern const Function kFunctions[];  // the last has no name

#endif
