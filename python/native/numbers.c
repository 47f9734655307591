// Numbers as the types of C have them: what does not fit is refused.
#include <limits.h>
#include <math.h>

#include "operands.h"

static int IntegerOf(const Call* self, int i, PyObject* object, int64_t* value) {
  PyObject* integer = PyNumber_Index(object);
  if (!integer && PyErr_ExceptionMatches(PyExc_TypeError)) {  // 3.0 is welcome
    PyErr_Clear();
    const double real = PyFloat_AsDouble(object);
    if (PyErr_Occurred() || real != floor(real) || fabs(real) >= 9007199254740992.0) {
      PyErr_Clear();
      return Fail(self, i, PyExc_TypeError, "must be an integer");
    }
    *value = (int64_t)real;
    return 0;
  }
  if (!integer) return -1;
  *value = PyLong_AsLongLong(integer);
  Py_DECREF(integer);
  if (*value == -1 && PyErr_Occurred()) {
    PyErr_Clear();
    return Fail(self, i, PyExc_ValueError, "is out of the range of its type");
  }
  return 0;
}

static int RealOf(const Call* self, int i, PyObject* object, double* value) {
  *value = PyFloat_AsDouble(object);
  if (*value == -1 && PyErr_Occurred()) {
    PyErr_Clear();
    return Fail(self, i, PyExc_TypeError, "must be a number");
  }
  if (isnan(*value) && !(self->operands[i].flags & kAnyFloat)) return Fail(self, i, PyExc_ValueError, "is NaN");
  return 0;
}

static int IsReal(int type) { return type == NPY_FLOAT || type == NPY_DOUBLE; }

static int IsInRange(int type, int64_t v) {
  switch (type) {
    case NPY_UBYTE: return v >= 0 && v <= UINT8_MAX;
    case NPY_BYTE: return v >= INT8_MIN && v <= INT8_MAX;
    case NPY_USHORT: return v >= 0 && v <= UINT16_MAX;
    case NPY_SHORT: return v >= INT16_MIN && v <= INT16_MAX;
    case NPY_UINT: return v >= 0 && v <= UINT32_MAX;
    case NPY_INT: return v >= INT32_MIN && v <= INT32_MAX;
    default: return 1;
  }
}

int NumberOf(const Call* self, int i, PyObject* object, Value* value) {
  const int type = self->operands[i].type;
  if (object == Py_None && self->operands[i].kind == kNumber && self->operands[i].channels >= 0) {
    value->integer = self->operands[i].channels;
    return 0;
  }
  if (IsReal(type)) return RealOf(self, i, object, &value->real);
  if (IntegerOf(self, i, object, &value->integer) < 0) return -1;
  if (!IsInRange(type, value->integer)) return Fail(self, i, PyExc_ValueError, "is out of the range of its type");
  return 0;
}

static void Store(int type, void* to, const Value* value) {
  switch (type) {
    case NPY_UBYTE: *(uint8_t*)to = (uint8_t)value->integer; break;
    case NPY_BYTE: *(int8_t*)to = (int8_t)value->integer; break;
    case NPY_USHORT: *(uint16_t*)to = (uint16_t)value->integer; break;
    case NPY_SHORT: *(int16_t*)to = (int16_t)value->integer; break;
    case NPY_UINT: *(uint32_t*)to = (uint32_t)value->integer; break;
    case NPY_INT: *(int32_t*)to = (int32_t)value->integer; break;
    case NPY_FLOAT: *(float*)to = (float)value->real; break;
    default: *(double*)to = value->real;
  }
}

static int SizeOfType(int type) {
  switch (type) {
    case NPY_UBYTE:
    case NPY_BYTE: return 1;
    case NPY_USHORT:
    case NPY_SHORT: return 2;
    case NPY_DOUBLE: return 8;
    default: return 4;
  }
}

// One number stands for every channel.
int ConstantsOf(const Call* self, int i, PyObject* object, Value* value) {
  const Operand* operand = &self->operands[i];
  char* to = (char*)value->constants;
  const int size = SizeOfType(operand->type);
  Value one;
  if (PyNumber_Check(object) && !PySequence_Check(object)) {
    if (NumberOf(self, i, object, &one) < 0) return -1;
    for (int c = 0; c < operand->channels; ++c) Store(operand->type, to + c * size, &one);
    return 0;
  }
  PyObject* sequence = PySequence_Fast(object, "");
  if (!sequence || PySequence_Fast_GET_SIZE(sequence) != operand->channels) {
    PyErr_Clear();
    Py_XDECREF(sequence);
    return Fail(self, i, PyExc_ValueError, "must be a number, or one number for each channel");
  }
  int result = 0;
  for (int c = 0; c < operand->channels && result == 0; ++c) {
    result = NumberOf(self, i, PySequence_Fast_GET_ITEM(sequence, c), &one);
    if (result == 0) Store(operand->type, to + c * size, &one);
  }
  Py_DECREF(sequence);
  return result;
}

int NumbersOf(const Call* self, int i, PyObject* object, int count, npy_intp* numbers) {
  static const char* const kWanted[] = {[2] = "must be a pair of integers",
                                        [3] = "must be three integers",
                                        [4] = "must be four integers",
                                        [6] = "must be six integers"};
  if (!PyTuple_Check(object) || PyTuple_GET_SIZE(object) != count)
    return Fail(self, i, PyExc_TypeError, kWanted[count]);
  for (int k = 0; k < count; ++k) {
    int64_t number;
    if (IntegerOf(self, i, PyTuple_GET_ITEM(object, k), &number) < 0) return -1;
    if (number > INT_MAX || number < INT_MIN) return Fail(self, i, PyExc_ValueError, "is beyond 2147483647");
    numbers[k] = (npy_intp)number;
  }
  return 0;
}
