// What operands of a call must be, what they are found to be, and what is said of those that are refused.
#ifndef QVPI_PYTHON_OPERANDS_H
#define QVPI_PYTHON_OPERANDS_H

#define PY_SSIZE_T_CLEAN
#include <Python.h>
#define NPY_NO_DEPRECATED_API NPY_1_7_API_VERSION
#define PY_ARRAY_UNIQUE_SYMBOL qvpi_numpy
#ifndef QVPI_IMPORTS_NUMPY
#define NO_IMPORT_ARRAY  // one file does it for all
#endif
#include <numpy/arrayobject.h>

#include "call.h"

enum { kMaxOperands = 20, kMaxParameters = 24, kMaxChannels = 4 };

// Kinds of operands.
enum {
  kImage = 'I',      // an array of rows, (H, W) or (H, W, C)
  kVolume = 'V',     // an array of planes, (D, H, W)
  kMemory = 'M',     // a contiguous array that a parameter points to, or None
  kConstants = 'C',  // a number for each channel, or one for all, or None
  kNumber = 'N',     // an integer or a float
  kPair = 'P',       // (width, height) or (x, y)
  kQuad = 'Q',       // (x, y, width, height)
  kTriple = 'T',     // (width, height, depth) or (x, y, z)
  kSextuple = 'S',   // (x, y, z, width, height, depth)
};

// Flags of operands.
enum {
  kWritten = 1,    // an image or memory that the function writes
  kSameSize = 2,   // an image that has the size of all others with this flag
  kInPlace = 4,    // a written image that may be one of the sources
  kOptional = 8,   // an image that may be None
  kAnyFloat = 16,  // numbers that may be NaN
  kUnused = 32,    // the function has no such parameter: 0 or None
};

typedef struct {
  char kind;
  char type;      // numpy's number of the type of elements
  char channels;  // of an image; how many constants; the number that None stands for, -1 for none
  char flags;
} Operand;

typedef struct {
  char code;  // which field of Argument, and of which width: see SetArgument
  unsigned char operand;
} Slot;

typedef struct {
  PyObject_HEAD vectorcallfunc vectorcall;
  const Function* function;
  PyObject* labels;  // of the operands, for messages
  int operandCount, slotCount;
  Operand operands[kMaxOperands];
  Slot slots[kMaxParameters];
} Call;

// An image, or a volume: an image is one plane.
typedef struct {
  char* data;
  npy_intp step, planeStep, width, height, depth, rowBytes;
} Image;

// What the operands of one call were found to be.
typedef union {
  Image image;
  const void* memory;
  double constants[kMaxChannels];  // in the type of elements
  int64_t integer;
  double real;
  npy_intp numbers[6];
} Value;

// Sets an exception that names the function and the operand; -1.
int Fail(const Call* self, int i, PyObject* exception, const char* what);
int WrongType(const Call* self, int i, PyArrayObject* a);

static inline int IsArrayOfRows(const Operand* operand) { return operand->kind == kImage || operand->kind == kVolume; }

static inline int ChannelsOf(PyArrayObject* a) { return PyArray_NDIM(a) == 3 ? (int)PyArray_DIM(a, 2) : 1; }

// Each takes one operand: 0, or -1 with an exception.
int ImageOf(const Call* self, int i, PyObject* object, Image* image);
int NumberOf(const Call* self, int i, PyObject* object, Value* value);
int ConstantsOf(const Call* self, int i, PyObject* object, Value* value);
int NumbersOf(const Call* self, int i, PyObject* object, int count, npy_intp* numbers);

// Compares the sizes of all images, and looks that no result overlaps with what is read.
int CheckImages(const Call* self, const Value* values, PyObject* const* objects);

extern PyObject* sharesMemory;  // numpy.shares_memory

#endif
