// The module qvpi._call: calls exported functions with numpy arrays, with less overhead than Python code could have.
//
// A Call is a function with a plan: what each operand that Python passes must be, and from which operand each parameter
// in C is made. The plan comes from the package's Python code; these files know arrays, but no function.
#define QVPI_IMPORTS_NUMPY
#include <stddef.h>

#include "operands.h"

static PyObject* onStatus;  // called with what is no success

static int MemoryOf(const Call* self, int i, PyObject* object, const void** memory) {
  const Operand* operand = &self->operands[i];
  *memory = NULL;
  if (object == Py_None) return 0;
  if (!PyArray_Check(object)) return Fail(self, i, PyExc_TypeError, "is no numpy array");
  PyArrayObject* a = (PyArrayObject*)object;
  if (PyArray_TYPE(a) != operand->type || !PyArray_ISNOTSWAPPED(a)) return WrongType(self, i, a);
  if (!PyArray_IS_C_CONTIGUOUS(a)) return Fail(self, i, PyExc_TypeError, "must be contiguous");
  if (PyArray_SIZE(a) < operand->channels) return Fail(self, i, PyExc_ValueError, "has too few elements");
  if ((operand->flags & kWritten) && !PyArray_ISWRITEABLE(a)) return Fail(self, i, PyExc_ValueError, "is read-only");
  *memory = PyArray_DATA(a);
  return 0;
}

static int ValueOf(const Call* self, int i, PyObject* object, Value* value) {
  const Operand* operand = &self->operands[i];
  if (operand->flags & kUnused) {
    if (object == Py_None) return 0;
    if (PyLong_Check(object) && PyObject_IsTrue(object) == 0) return 0;
    return Fail(self, i, PyExc_TypeError, "has no meaning for these arrays");
  }
  switch (operand->kind) {
    case kImage:
    case kVolume: return ImageOf(self, i, object, &value->image);
    case kMemory: return MemoryOf(self, i, object, &value->memory);
    case kConstants: return ConstantsOf(self, i, object, value);
    case kNumber: return NumberOf(self, i, object, value);
    case kPair: return NumbersOf(self, i, object, 2, value->numbers);
    case kTriple: return NumbersOf(self, i, object, 3, value->numbers);
    case kQuad: return NumbersOf(self, i, object, 4, value->numbers);
    default: return NumbersOf(self, i, object, 6, value->numbers);
  }
}

// ---- the call

static const void* PointerTo(const Operand* operand, const Value* value, PyObject* object) {
  if (IsArrayOfRows(operand)) return value->image.data;
  if (operand->kind == kConstants) return object == Py_None ? NULL : value->constants;
  return value->memory;
}

static void SetArgument(Argument* argument, char code, const Operand* operand, const Value* value, PyObject* object) {
  const Image* image = &value->image;
  const npy_intp* n = value->numbers;
  const int isArray = IsArrayOfRows(operand);
  const int width = (int)(isArray ? image->width : n[0]), height = (int)(isArray ? image->height : n[1]);
  const int depth = (int)(isArray ? image->depth : n[2]);
  switch (code) {
    case 'p': argument->pointer = PointerTo(operand, value, object); break;
    case 's': argument->integer = image->step; break;
    case 't': argument->integer = image->planeStep; break;
    case 'i': argument->integer = value->integer; break;
    case 'f': argument->real = value->real; break;
    case 'z': argument->asQvpiSize = (QvpiSize){width, height}; break;
    case 'o': argument->asQvpiPoint = (QvpiPoint){(int)n[0], (int)n[1]}; break;
    case 'r': argument->asQvpiRect = (QvpiRect){(int)n[0], (int)n[1], (int)n[2], (int)n[3]}; break;
    case 'e': argument->asQvpiRect = (QvpiRect){0, 0, width, height}; break;
    case 'v': argument->asQvprVolume = (QvprVolume){width, height, depth}; break;
    case 'q': argument->asQvprPoint = (QvprPoint){(int)n[0], (int)n[1], (int)n[2]}; break;
    case 'c':
      argument->asQvprCuboid = (QvprCuboid){(int)n[0], (int)n[1], (int)n[2], (int)n[3], (int)n[4], (int)n[5]};
      break;
    case 'd': argument->asQvprCuboid = (QvprCuboid){0, 0, 0, width, height, depth}; break;
  }
}

static PyObject* Invoke(PyObject* object, PyObject* const* operands, size_t count, PyObject* keywords) {
  const Call* self = (const Call*)object;
  if (keywords || PyVectorcall_NARGS(count) != self->operandCount)
    return PyErr_Format(PyExc_TypeError, "%s takes %d operands", self->function->name, self->operandCount);
  Value values[kMaxOperands];
  for (int i = 0; i < self->operandCount; ++i)
    if ((self->operands[i].kind != kConstants || operands[i] != Py_None || (self->operands[i].flags & kUnused)) &&
        ValueOf(self, i, operands[i], &values[i]) < 0)
      return NULL;
  if (CheckImages(self, values, operands) < 0) return NULL;
  Argument arguments[kMaxParameters];
  for (int i = 0; i < self->slotCount; ++i) {
    const int k = self->slots[i].operand;
    SetArgument(&arguments[i], self->slots[i].code, &self->operands[k], &values[k], operands[k]);
  }
  int status;
  Py_BEGIN_ALLOW_THREADS status = self->function->call(self->function->code, arguments);
  Py_END_ALLOW_THREADS if (status == 0) Py_RETURN_NONE;
  return PyObject_CallFunction(onStatus, "is", status, self->function->name);
}

static PyObject* MakeCall(PyTypeObject* type, PyObject* args, PyObject* keywords) {
  int index;
  const char *operands, *slots;
  Py_ssize_t operandBytes, slotBytes;
  PyObject* labels;
  if (!PyArg_ParseTuple(args, "iO!y#y#", &index, &PyTuple_Type, &labels, &operands, &operandBytes, &slots, &slotBytes))
    return NULL;
  const size_t operandCount = (size_t)operandBytes / sizeof(Operand), slotCount = (size_t)slotBytes / sizeof(Slot);
  if (operandCount > kMaxOperands || slotCount > kMaxParameters || PyTuple_GET_SIZE(labels) != (Py_ssize_t)operandCount)
    return PyErr_Format(PyExc_ValueError, "a plan that cannot be");
  Call* self = (Call*)type->tp_alloc(type, 0);
  if (!self) return NULL;
  self->vectorcall = Invoke;
  self->function = &kFunctions[index];
  self->labels = Py_NewRef(labels);
  self->operandCount = (int)operandCount;
  self->slotCount = (int)slotCount;
  memcpy(self->operands, operands, operandBytes);
  memcpy(self->slots, slots, slotBytes);
  return (PyObject*)self;
}

static void DropCall(PyObject* self) {
  Py_XDECREF(((Call*)self)->labels);
  Py_TYPE(self)->tp_free(self);
}

static PyObject* Describe(PyObject* self) {
  return PyUnicode_FromFormat("<call of %s>", ((const Call*)self)->function->name);
}

static PyTypeObject CallType = {
    PyVarObject_HEAD_INIT(NULL, 0).tp_name = "qvpi._call.Call",
    .tp_doc = "An exported function with the plan of its operands.",
    .tp_basicsize = sizeof(Call),
    .tp_flags = Py_TPFLAGS_DEFAULT | Py_TPFLAGS_HAVE_VECTORCALL,
    .tp_new = MakeCall,
    .tp_dealloc = DropCall,
    .tp_repr = Describe,
    .tp_call = PyVectorcall_Call,
    .tp_vectorcall_offset = offsetof(Call, vectorcall),
};

// ---- functions of the module

static PyObject* Key(PyObject* module, PyObject* object) {
  if (!PyArray_CheckExact(object)) return PyLong_FromLong(-1);
  PyArrayObject* a = (PyArrayObject*)object;
  const int dimensions = PyArray_NDIM(a);
  if ((dimensions != 2 && dimensions != 3) || !PyArray_ISNOTSWAPPED(a) || ChannelsOf(a) > 99)
    return PyLong_FromLong(-1);
  return PyLong_FromLong(PyArray_TYPE(a) * 100 + ChannelsOf(a));
}

// Not initialised: for results, which are written whole.
static PyObject* Empty(PyObject* module, PyObject* const* args, Py_ssize_t count) {
  if (count != 3 || !PyArray_Check(args[0]) || PyArray_NDIM((PyArrayObject*)args[0]) < 2)
    return PyErr_Format(PyExc_TypeError, "empty(like, type, channels)");
  PyArrayObject* like = (PyArrayObject*)args[0];
  const long type = PyLong_AsLong(args[1]), channels = PyLong_AsLong(args[2]);
  npy_intp shape[3] = {PyArray_DIM(like, 0), PyArray_DIM(like, 1), channels};
  const int isSame = channels == ChannelsOf(like);
  const int dimensions = isSame ? PyArray_NDIM(like) : channels == 1 ? 2 : 3;
  return PyArray_EMPTY(dimensions, shape, (int)type, 0);
}

static PyObject* Names(PyObject* module, PyObject* nothing) {
  PyObject* list = PyList_New(0);
  for (const Function* f = kFunctions; list && f->name; ++f) {
    PyObject* row = Py_BuildValue("(ss)", f->name, f->parameters);
    if (!row || PyList_Append(list, row) < 0) Py_CLEAR(list);
    Py_XDECREF(row);
  }
  return list;
}

static PyObject* SetOnStatus(PyObject* module, PyObject* callable) {
  Py_XSETREF(onStatus, Py_NewRef(callable));
  Py_RETURN_NONE;
}

static PyMethodDef kMethods[] = {
    {"key", Key, METH_O, "100 * numpy's number of the dtype + channels; -1 for what is no plain image."},
    {"empty", (PyCFunction)(void (*)(void))Empty, METH_FASTCALL,
     "An array of this one's size, of a type and channels."},
    {"names", Names, METH_NOARGS, "Name and parameters of every function that returns a status."},
    {"set_on_status", SetOnStatus, METH_O, "What is called with a status that is no success, and a function's name."},
    {0},
};

static struct PyModuleDef kModule = {PyModuleDef_HEAD_INIT, .m_name = "_call", .m_size = -1, .m_methods = kMethods};

PyMODINIT_FUNC PyInit__call(void) {
  import_array();
  if (PyType_Ready(&CallType) < 0) return NULL;
  PyObject* numpy = PyImport_ImportModule("numpy");
  if (!numpy) return NULL;
  sharesMemory = PyObject_GetAttrString(numpy, "shares_memory");
  Py_DECREF(numpy);
  PyObject* module = PyModule_Create(&kModule);
  if (!sharesMemory || !module || PyModule_AddObjectRef(module, "Call", (PyObject*)&CallType) < 0) return NULL;
  return module;
}
