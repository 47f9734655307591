// Arrays as images and volumes: their rows, sizes, overlaps.
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
static int HasPackedRows(const Operand* operand, PyArrayObject* a) {
  const int last = PyArray_NDIM(a) - 1;
  const npy_intp element = PyArray_ITEMSIZE(a);
  if (last == 1 || operand->kind == kVolume) return PyArray_STRIDE(a, last) == element || PyArray_DIM(a, last) == 1;
  return (PyArray_STRIDE(a, 2) == element || PyArray_DIM(a, 2) == 1) &&
         (PyArray_STRIDE(a, 1) == element * PyArray_DIM(a, 2) || PyArray_DIM(a, 1) == 1);
}

static int CheckShape(const Call* self, int i, PyArrayObject* a) {
  const Operand* operand = &self->operands[i];
  const int dimensions = PyArray_NDIM(a);
  if (operand->kind == kVolume)
    return dimensions == 3 ? 0 : Fail(self, i, PyExc_TypeError, "must have the shape (D, H, W)");
  if (dimensions != 2 && dimensions != 3)
    return Fail(self, i, PyExc_TypeError, "must have the shape (H, W) or (H, W, C)");
  if (dimensions == 3 && PyArray_DIM(a, 2) != operand->channels)
    return Fail(self, i, PyExc_ValueError, "has another number of channels than the call takes");
  if (dimensions == 2 && operand->channels != 1)
    return Fail(self, i, PyExc_ValueError, "must have the shape (H, W, C), with the channels of the call");
  return 0;
}

static int CheckImage(const Call* self, int i, PyObject* object) {
  const Operand* operand = &self->operands[i];
  if (!PyArray_Check(object)) return Fail(self, i, PyExc_TypeError, "is no numpy array");
  PyArrayObject* a = (PyArrayObject*)object;
  if (PyArray_TYPE(a) != operand->type || !PyArray_ISNOTSWAPPED(a)) return WrongType(self, i, a);
  if (CheckShape(self, i, a) < 0) return -1;
  if (PyArray_SIZE(a) == 0) return Fail(self, i, PyExc_ValueError, "has no pixels");
  if (!HasPackedRows(operand, a))
    return Fail(self, i, PyExc_TypeError,
                "has gaps within its rows: pass numpy.ascontiguousarray(...) of it, or copy=True");
  if ((operand->flags & kWritten) && !PyArray_ISWRITEABLE(a)) return Fail(self, i, PyExc_ValueError, "is read-only");
  return 0;
}

static int FitsInt(npy_intp number) { return number <= INT_MAX && number >= INT_MIN; }

static int CheckLengths(const Call* self, int i, const Image* m) {
  if (FitsInt(m->width) && FitsInt(m->height) && FitsInt(m->depth) && FitsInt(m->step) && FitsInt(m->planeStep))
    return 0;
  return Fail(self, i, PyExc_ValueError, "is larger than 2147483647 pixels or bytes along one side");
}

int ImageOf(const Call* self, int i, PyObject* object, Image* image) {
  if (object == Py_None && (self->operands[i].flags & kOptional)) {
    *image = (Image){0};
    return 0;
  }
  if (CheckImage(self, i, object) < 0) return -1;
  PyArrayObject* a = (PyArrayObject*)object;
  const int rows = self->operands[i].kind == kVolume;  // the axis of rows
  image->data = PyArray_BYTES(a);
  image->depth = rows ? PyArray_DIM(a, 0) : 1;
  image->height = PyArray_DIM(a, rows);
  image->width = PyArray_DIM(a, rows + 1);
  image->rowBytes = image->width * (rows ? 1 : ChannelsOf(a)) * PyArray_ITEMSIZE(a);
  // The stride of a single row or plane may be anything that numpy likes; some functions want a row's length.
  image->step = PyArray_STRIDE(a, rows);
  if (image->height == 1 && image->step < image->rowBytes) image->step = image->rowBytes;
  image->planeStep = image->depth == 1 ? image->rowBytes : PyArray_STRIDE(a, 0);
  return CheckLengths(self, i, image);
}

// ---- overlaps

// First and last byte, with rows and planes in either direction.
static npy_intp ToLast(npy_intp step, npy_intp count) { return step * (count - 1); }
static npy_intp Below(npy_intp offset) { return offset < 0 ? offset : 0; }
static npy_intp Above(npy_intp offset) { return offset > 0 ? offset : 0; }
static const char* First(const Image* m) {
  return m->data + Below(ToLast(m->step, m->height)) + Below(ToLast(m->planeStep, m->depth));
}
static const char* End(const Image* m) {
  return m->data + Above(ToLast(m->step, m->height)) + Above(ToLast(m->planeStep, m->depth)) + m->rowBytes;
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
    if (!IsArrayOfRows(operand) || !image->data) continue;
    if (operand->flags & kSameSize) {
      if (!size) size = image;
      if (size->width != image->width || size->height != image->height)
        return Fail(self, i, PyExc_ValueError, "has another height or width than the call needs");
      if (size->depth != image->depth) return Fail(self, i, PyExc_ValueError, "has another depth than the call needs");
    }
    if (!(operand->flags & kWritten)) continue;
    for (int k = 0; k < self->operandCount; ++k)
      if (k != i && IsArrayOfRows(&self->operands[k]) && CheckOverlap(self, i, k, values, objects) < 0) return -1;
  }
  return 0;
}
