// The module qvpi._call: calls exported functions with numpy arrays, with less overhead than Python code could have.
//
// A Call is a function with a plan: what each operand that Python passes must be, and from which operand each parameter
// in C is made. The plan comes from the package's Python code; this file knows arrays, but no function.
#define PY_SSIZE_T_CLEAN
#include "call.h"

#include <Python.h>
#include <limits.h>
#include <math.h>
#include <stddef.h>
#define NPY_NO_DEPRECATED_API NPY_1_7_API_VERSION
#include <numpy/arrayobject.h>

enum { kMaxOperands = 20, kMaxParameters = 24, kMaxChannels = 4 };

// Kinds of operands.
enum {
    kImage = 'I',     // an array of rows, (H, W) or (H, W, C)
    kMemory = 'M',    // a contiguous array that a parameter points to, or None
    kConstants = 'C', // a number for each channel, or one for all, or None
    kNumber = 'N',    // an integer or a float
    kPair = 'P',      // (width, height) or (x, y)
    kQuad = 'Q',      // (x, y, width, height)
};

// Flags of operands.
enum {
    kWritten = 1,   // an image or memory that the function writes
    kSameSize = 2,  // an image that has the size of all others with this flag
    kInPlace = 4,   // a written image that may be one of the sources
    kOptional = 8,  // an image that may be None
    kAnyFloat = 16, // numbers that may be NaN
    kUnused = 32,   // the function has no such parameter: 0 or None
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

typedef struct {
    char* data;
    npy_intp step, width, height, rowBytes;
} Image;

// What the operands of one call were found to be.
typedef union {
    Image image;
    const void* memory;
    double constants[kMaxChannels];  // in the type of elements
    int64_t integer;
    double real;
    npy_intp numbers[4];
} Value;

static PyObject* onStatus;      // called with what is no success
static PyObject* sharesMemory;  // numpy.shares_memory

static const char* Label(const Call* self, int i) { return PyUnicode_AsUTF8(PyTuple_GET_ITEM(self->labels, i)); }

static int Fail(const Call* self, int i, PyObject* exception, const char* what) {
    PyErr_Format(exception, "%s: %s %s", self->function->name, Label(self, i), what);
    return -1;
}

// ---- arrays as images

static int ChannelsOf(PyArrayObject* a) { return PyArray_NDIM(a) == 3 ? (int)PyArray_DIM(a, 2) : 1; }

// Rows lie anywhere, but within a row there are no gaps.
static int HasPackedRows(PyArrayObject* a) {
    const int last = PyArray_NDIM(a) - 1;
    const npy_intp element = PyArray_ITEMSIZE(a);
    if (last == 1) return PyArray_STRIDE(a, 1) == element || PyArray_DIM(a, 1) == 1;
    return (PyArray_STRIDE(a, 2) == element || PyArray_DIM(a, 2) == 1) &&
           (PyArray_STRIDE(a, 1) == element * PyArray_DIM(a, 2) || PyArray_DIM(a, 1) == 1);
}

static int WrongType(const Call* self, int i, PyArrayObject* a) {
    PyArray_Descr* wanted = PyArray_DescrFromType(self->operands[i].type);
    PyErr_Format(PyExc_TypeError, "%s: %s has dtype %S, expected %S", self->function->name, Label(self, i),
                 (PyObject*)PyArray_DESCR(a), (PyObject*)wanted);
    Py_XDECREF(wanted);
    return -1;
}

static int CheckImage(const Call* self, int i, PyObject* object) {
    const Operand* operand = &self->operands[i];
    if (!PyArray_Check(object)) return Fail(self, i, PyExc_TypeError, "is no numpy array");
    PyArrayObject* a = (PyArrayObject*)object;
    if (PyArray_NDIM(a) != 2 && PyArray_NDIM(a) != 3)
        return Fail(self, i, PyExc_TypeError, "must have the shape (H, W) or (H, W, C)");
    if (PyArray_TYPE(a) != operand->type || !PyArray_ISNOTSWAPPED(a)) return WrongType(self, i, a);
    if (PyArray_NDIM(a) == 3 && PyArray_DIM(a, 2) != operand->channels)
        return Fail(self, i, PyExc_ValueError, "has another number of channels than the call takes");
    if (PyArray_NDIM(a) == 2 && operand->channels != 1)
        return Fail(self, i, PyExc_ValueError, "must have the shape (H, W, C), with the channels of the call");
    if (PyArray_SIZE(a) == 0) return Fail(self, i, PyExc_ValueError, "has no pixels");
    if (!HasPackedRows(a))
        return Fail(self, i, PyExc_TypeError,
                    "has gaps within its rows: pass numpy.ascontiguousarray(...) of it, or copy=True");
    if ((operand->flags & kWritten) && !PyArray_ISWRITEABLE(a))
        return Fail(self, i, PyExc_ValueError, "is read-only");
    return 0;
}

static int ImageOf(const Call* self, int i, PyObject* object, Image* image) {
    if (object == Py_None && (self->operands[i].flags & kOptional)) {
        *image = (Image){0};
        return 0;
    }
    if (CheckImage(self, i, object) < 0) return -1;
    PyArrayObject* a = (PyArrayObject*)object;
    image->data = PyArray_BYTES(a);
    image->height = PyArray_DIM(a, 0);
    image->width = PyArray_DIM(a, 1);
    image->rowBytes = image->width * ChannelsOf(a) * PyArray_ITEMSIZE(a);
    // The stride of a single row may be anything that numpy likes; some functions want it to be a row's length.
    image->step = PyArray_STRIDE(a, 0);
    if (image->height == 1 && image->step < image->rowBytes) image->step = image->rowBytes;
    if (image->width > INT_MAX || image->height > INT_MAX || image->step > INT_MAX || image->step < INT_MIN)
        return Fail(self, i, PyExc_ValueError, "is larger than 2147483647 pixels or bytes along one side");
    return 0;
}

// ---- overlaps

// First and last byte, with rows in either direction.
static const char* First(const Image* m) { return m->step < 0 ? m->data + m->step * (m->height - 1) : m->data; }
static const char* End(const Image* m) {
    return (m->step < 0 ? m->data : m->data + m->step * (m->height - 1)) + m->rowBytes;
}

// A result may be stored over a source at the same place, where each pixel depends on that at its own place only.
static int CheckOverlap(const Call* self, int written, int read, const Value* values, PyObject* const* objects) {
    const Image *out = &values[written].image, *in = &values[read].image;
    if (!in->data || !out->data || First(out) >= End(in) || First(in) >= End(out)) return 0;
    const int isSame = out->data == in->data && out->step == in->step && out->rowBytes == in->rowBytes;
    if (isSame && (self->operands[written].flags & kInPlace)) return 0;
    PyObject* answer = PyObject_CallFunctionObjArgs(sharesMemory, objects[written], objects[read], NULL);
    if (!answer) return -1;
    const int shared = PyObject_IsTrue(answer);
    Py_DECREF(answer);
    return shared ? Fail(self, written, PyExc_ValueError, "overlaps with another array of the call") : 0;
}

static int CheckImages(const Call* self, const Value* values, PyObject* const* objects) {
    const Image* size = NULL;
    for (int i = 0; i < self->operandCount; ++i) {
        const Operand* operand = &self->operands[i];
        const Image* image = &values[i].image;
        if (operand->kind != kImage || !image->data) continue;
        if (operand->flags & kSameSize) {
            if (!size) size = image;
            if (size->width != image->width || size->height != image->height)
                return Fail(self, i, PyExc_ValueError, "has another height or width than the call needs");
        }
        if (!(operand->flags & kWritten)) continue;
        for (int k = 0; k < self->operandCount; ++k)
            if (k != i && self->operands[k].kind == kImage && CheckOverlap(self, i, k, values, objects) < 0) return -1;
    }
    return 0;
}

// ---- numbers

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

static int NumberOf(const Call* self, int i, PyObject* object, Value* value) {
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
        case NPY_UBYTE: case NPY_BYTE: return 1;
        case NPY_USHORT: case NPY_SHORT: return 2;
        case NPY_DOUBLE: return 8;
        default: return 4;
    }
}

// One number stands for every channel.
static int ConstantsOf(const Call* self, int i, PyObject* object, Value* value) {
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

static int NumbersOf(const Call* self, int i, PyObject* object, int count, npy_intp* numbers) {
    if (!PyTuple_Check(object) || PyTuple_GET_SIZE(object) != count)
        return Fail(self, i, PyExc_TypeError, count == 2 ? "must be a pair of integers" : "must be four integers");
    for (int k = 0; k < count; ++k) {
        int64_t number;
        if (IntegerOf(self, i, PyTuple_GET_ITEM(object, k), &number) < 0) return -1;
        if (number > INT_MAX || number < INT_MIN)
            return Fail(self, i, PyExc_ValueError, "is beyond 2147483647");
        numbers[k] = (npy_intp)number;
    }
    return 0;
}

static int MemoryOf(const Call* self, int i, PyObject* object, const void** memory) {
    const Operand* operand = &self->operands[i];
    *memory = NULL;
    if (object == Py_None) return 0;
    if (!PyArray_Check(object)) return Fail(self, i, PyExc_TypeError, "is no numpy array");
    PyArrayObject* a = (PyArrayObject*)object;
    if (PyArray_TYPE(a) != operand->type || !PyArray_ISNOTSWAPPED(a)) return WrongType(self, i, a);
    if (!PyArray_IS_C_CONTIGUOUS(a)) return Fail(self, i, PyExc_TypeError, "must be contiguous");
    if (PyArray_SIZE(a) < operand->channels) return Fail(self, i, PyExc_ValueError, "has too few elements");
    if ((operand->flags & kWritten) && !PyArray_ISWRITEABLE(a))
        return Fail(self, i, PyExc_ValueError, "is read-only");
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
        case kImage: return ImageOf(self, i, object, &value->image);
        case kMemory: return MemoryOf(self, i, object, &value->memory);
        case kConstants: return ConstantsOf(self, i, object, value);
        case kNumber: return NumberOf(self, i, object, value);
        case kPair: return NumbersOf(self, i, object, 2, value->numbers);
        default: return NumbersOf(self, i, object, 4, value->numbers);
    }
}

// ---- the call

static const void* PointerTo(const Operand* operand, const Value* value, PyObject* object) {
    if (operand->kind == kImage) return value->image.data;
    if (operand->kind == kConstants) return object == Py_None ? NULL : value->constants;
    return value->memory;
}

static void SetArgument(Argument* argument, char code, const Operand* operand, const Value* value, PyObject* object) {
    const Image* image = &value->image;
    const npy_intp* n = value->numbers;
    const int isImage = operand->kind == kImage;
    const npy_intp width = isImage ? image->width : n[0], height = isImage ? image->height : n[1];
    switch (code) {
        case 'p': argument->pointer = PointerTo(operand, value, object); break;
        case 's': argument->integer = image->step; break;
        case 'i': argument->integer = value->integer; break;
        case 'f': argument->real = value->real; break;
        case 'z': argument->asQvpiSize = (QvpiSize){(int)width, (int)height}; break;
        case 'o': argument->asQvpiPoint = (QvpiPoint){(int)n[0], (int)n[1]}; break;
        case 'r': argument->asQvpiRect = (QvpiRect){(int)n[0], (int)n[1], (int)n[2], (int)n[3]}; break;
        case 'e': argument->asQvpiRect = (QvpiRect){0, 0, (int)width, (int)height}; break;
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
    Py_BEGIN_ALLOW_THREADS
    status = self->function->call(self->function->code, arguments);
    Py_END_ALLOW_THREADS
    if (status == 0) Py_RETURN_NONE;
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
    {"empty", (PyCFunction)(void (*)(void))Empty, METH_FASTCALL, "An array of this one's size, of a type and channels."},
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
