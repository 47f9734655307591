/** @file error.hpp
 *  What becomes of a status: an exception, or a result where exceptions are off.
 *
 *  Statuses below 0 are errors: the call was refused and wrote nothing. With exceptions they are thrown as Error.
 *  Without, which the compiler's option -fno-exceptions or the macro QVP_NO_EXCEPTIONS tells, functions return a Status
 *  or, if they have a value, a Result; both must be looked at. Statuses above 0 are warnings of a call that did its
 *  work: Status has them either way.
 */
#ifndef QVPI_ERROR_HPP
#define QVPI_ERROR_HPP

#include "qvpcore.h"

#if defined(QVP_NO_EXCEPTIONS) || !defined(__cpp_exceptions)
#define QVP_THROWS 0
#define QVP_ERRORS errors_returned
#define QVP_LOOK_AT [[nodiscard]]
#else
#define QVP_THROWS 1
#define QVP_ERRORS errors_thrown
#define QVP_LOOK_AT
#include <stdexcept>
#endif

// Programs may have sources of both kinds: the inner namespace keeps their functions apart.
namespace qvp {
inline namespace QVP_ERRORS {

/** What a call without a value returns. */
class QVP_LOOK_AT Status {
 public:
  constexpr Status(QvpStatus code = qvpStatusNoError) : code_(code) {}

  constexpr QvpStatus code() const { return code_; }
  /** Whether the call did its work. */
  constexpr bool ok() const { return code_ >= 0; }
  /** The constant's name and a sentence. */
  const char* what() const { return qvpGetStatusString(code_); }

 private:
  QvpStatus code_;
};

#if QVP_THROWS

/** A refused call. what() has the constant's name and a sentence. */
class Error : public std::runtime_error {
 public:
  explicit Error(QvpStatus status) : std::runtime_error(qvpGetStatusString(status)), status_(status) {}
  QvpStatus status() const { return status_; }

 private:
  QvpStatus status_;
};

/** What a call with a value returns: the value. */
template <class Value>
using Result = Value;

namespace detail {

[[noreturn, gnu::cold, gnu::noinline]] inline void fail(QvpStatus status) { throw Error(status); }

inline Status finish(QvpStatus status) {
  if (status < 0) fail(status);
  return status;
}

template <class Value>
Value finish(QvpStatus status, const Value& value) {
  if (status < 0) fail(status);
  return value;
}

}  // namespace detail

#else

/** What a call with a value returns: the value, or the reason why there is none. */
template <class Value>
class QVP_LOOK_AT Result {
 public:
  constexpr Result(QvpStatus status, const Value& value) : status_(status), value_(value) {}

  constexpr Status status() const { return status_; }
  constexpr bool has_value() const { return status_ >= 0; }
  constexpr explicit operator bool() const { return has_value(); }
  /** The value, which stands for nothing unless has_value(). */
  constexpr const Value& operator*() const { return value_; }
  constexpr const Value* operator->() const { return &value_; }
  constexpr Value value_or(const Value& other) const { return has_value() ? value_ : other; }

 private:
  QvpStatus status_;
  Value value_;
};

namespace detail {

constexpr Status finish(QvpStatus status) { return status; }

template <class Value>
constexpr Result<Value> finish(QvpStatus status, const Value& value) {
  return {status, value};
}

}  // namespace detail

#endif

}  // namespace QVP_ERRORS
}  // namespace qvp

#endif
