// Arrays as images: their rows, sizes, overlaps.
#include <limits.h>

#include "operands.h"

PyObject* sharesMemory;

static const char* Label(const Call* self, int i) { return PyUnicode_AsUTF8(PyTuple_GET_ITEM(self->labels, i)); }

int Fail(const Call* self, int i, PyObject* exception, const char* what) {
  PyErr_Format(exception, "%s: %s %s", self->function->name, Label(self, i), what);
  return -1;
}

int WrongType(const Call* self, int i, PyArrayObject* a) {
  PyArray_Descr* wanted = PyArray_DescrFromType(self->operands[i].type);
  PyErr_Format(PyExc_TypeError, "%s: %s has dtype %S, expected %S", self->function->name, Label(self, i),
               (PyObject*)PyArray_DESCR(a), (PyObject*)wanted);
  Py_XDECREF(wanted);
  return -1;
}

// Rows lie anywhere, but within a row there are no gaps.
static int HasPackedRows(PyArrayObject* a) {
  const int last = PyArray_NDIM(a) - 1;
  const npy_intp element = PyArray_ITEMSIZE(a);
  if (last == 1) return PyArray_STRIDE(a, 1) == element || PyArray_DIM(a, 1) == 1;
  return (PyArray_STRIDE(a, 2) == element || PyArray_DIM(a, 2) == 1) &&
         (PyArray_STRIDE(a, 1) == element * PyArray_DIM(a, 2) || PyArray_DIM(a, 1) == 1);
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
  if ((operand->flags & kWritten) && !PyArray_ISWRITEABLE(a)) return Fail(self, i, PyExc_ValueError, "is read-only");
  return 0;
}

int ImageOf(const Call* self, int i, PyObject* object, Image* image) {
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

int CheckImages(const Call* self, const Value* values, PyObject* const* objects) {
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
