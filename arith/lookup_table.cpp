// Look-up tables of the caller's, one for each channel.
#include "arith/table_rows.h"
#include "base/check.h"
#include "base/export.h"
#include "base/scalar.h"

namespace {
using namespace qvp;

template <class T>
QvpStatus LookUp(const Image<const T>& src, const Image<T>& dst, Size roi, const Tables<T>& tables) {
  const T* const last = tables[ProcessedChannels(dst.layout) - 1];
  const QvpStatus failed = Validate<kPointers, kSize, kSteps>(roi, {src, dst}, {tables[0], tables[1], tables[2], last});
  if (!failed) MapThroughTables(tables, src, dst, roi);
  return failed;
}

template <class T>
QvpStatus LookUpOne(const Image<const T>& src, const Image<T>& dst, Size roi, const T* table) {
  return LookUp(src, dst, roi, {table, table, table, table});
}

template <class T>
QvpStatus LookUpEach(const Image<const T>& src, const Image<T>& dst, Size roi, const T* const* pointers) {
  if (pointers == nullptr) return qvpStatusNullPointer;
  Tables<T> tables = {};
  for (int c = 0; c < ProcessedChannels(dst.layout); ++c) tables[c] = LoadScalar(pointers + c);
  return LookUp(src, dst, roi, tables);
}

}  // namespace

#define ONE_TABLE(type) QVP_BOTH_PLACES(qvpiLookupTable, , type, C1, LookUpOne, (const Qvp##type* pTable), (pTable))
#define EACH_TABLE(type, layout) \
  QVP_BOTH_PLACES(qvpiLookupTable, , type, layout, LookUpEach, (const Qvp##type* const* pTable), (pTable))
#define TABLES(type)   \
  ONE_TABLE(type)      \
  EACH_TABLE(type, C3) \
  EACH_TABLE(type, C4) \
  EACH_TABLE(type, AC4)

TABLES(8u)
TABLES(16u)
