/** @file record.hpp
 *  What the classes have in common that keep a record: what a function needs to have prepared.
 */
#ifndef QVPI_RECORD_HPP
#define QVPI_RECORD_HPP

#include "qvpi/call.hpp"

namespace qvp {

/** How a transform maps positions (x, y): rows of coefficients, as the C functions take them. */
template <std::size_t kRows, std::size_t kColumns>
using Matrix = std::array<std::array<double, kColumns>, kRows>;

namespace detail {

template <class T>
inline constexpr QvpDataType kDataType = 0;  // of types that records are not for
template <>
inline constexpr QvpDataType kDataType<Qvp8u> = qvp8u;
template <>
inline constexpr QvpDataType kDataType<Qvp16u> = qvp16u;
template <>
inline constexpr QvpDataType kDataType<Qvp16s> = qvp16s;
template <>
inline constexpr QvpDataType kDataType<Qvp32f> = qvp32f;
template <>
inline constexpr QvpDataType kDataType<Qvp64f> = qvp64f;

// Calls with a buffer of the size that a query writes.
template <class Query, class Call>
QvpStatus call_with(Buffer& buffer, Query query, Call call) {
  int bytes = 0;
  const QvpStatus status = query(&bytes);
  if (status < 0) return status;
  return buffer.reserve(bytes) ? call(buffer.data()) : qvpStatusMemoryAllocation;
}

}  // namespace detail

inline namespace QVP_ERRORS {

/** The base of the classes that keep a record. They can be moved and not copied.
 *
 *  A constructor throws if its arguments are refused. Without exceptions status() tells, and every call of the object
 *  is refused. A call whose last argument is a Buffer works in that one and is constant: any number of threads may
 *  share the object, each with a buffer of its own. Calls without use one that the object has.
 */
class Recorded {
 public:
  /** What the constructor's arguments led to. */
  Status status() const { return status_; }

 protected:
  /** Makes the record: `init` takes its memory, and that of a temporary buffer. */
  template <class Init>
  QvpStatus make(int record_bytes, int init_bytes, Init init) {
    Buffer temporary;
    const bool has_memory = record_.reserve(record_bytes) && temporary.reserve(init_bytes);
    return has_memory ? init(record_.data(), temporary.data()) : qvpStatusMemoryAllocation;
  }

  void made(QvpStatus status) {
    status_ = status == qvpStatusNoOperation ? qvpStatusSize : status;  // of nothing: there is no record
    (void)detail::finish(status_);
  }

  /** A status for a call: that of the record comes first. */
  QvpStatus ready(bool sizes_fit) const { return status_ < 0 ? status_ : sizes_fit ? qvpStatusNoError : qvpStatusSize; }

  template <class Spec>
  Spec* spec() const {
    return reinterpret_cast<Spec*>(record_.data());
  }

  Buffer own_;

 private:
  Buffer record_;
  QvpStatus status_ = qvpStatusContextMatch;
};

}  // namespace QVP_ERRORS
}  // namespace qvp

#endif
