// Calls in C++ and the same in C: tests/cpp/no_cost.py compares their instructions.
#include "qvpi.hpp"

namespace {

QvpStatus Checked(QvpStatus status) {
#if QVP_THROWS
  if (status < 0) qvp::detail::fail(status);
#endif
  return status;
}

}  // namespace

extern "C" {

QvpStatus cpp_add(const Qvp8u* a, int a_step, const Qvp8u* b, int b_step, Qvp8u* dst, int dst_step, QvpiSize size,
                  int scale) {
  return qvp::add(qvp::In<Qvp8u, 3>(a, a_step, size), qvp::In<Qvp8u, 3>(b, b_step, size),
                  qvp::Out<Qvp8u, 3>(dst, dst_step, size), scale)
      .code();
}

QvpStatus c_add(const Qvp8u* a, int a_step, const Qvp8u* b, int b_step, Qvp8u* dst, int dst_step, QvpiSize size,
                int scale) {
  return Checked(qvpiAdd_8u_C3RSfs(a, a_step, b, b_step, dst, dst_step, size, scale));
}

QvpStatus cpp_threshold(const Qvp32f* src, int src_step, Qvp32f* dst, int dst_step, QvpiSize size, Qvp32f value) {
  return qvp::threshold(qvp::In<Qvp32f>(src, src_step, size), qvp::Out<Qvp32f>(dst, dst_step, size), value,
                        qvp::CmpOp::less)
      .code();
}

QvpStatus c_threshold(const Qvp32f* src, int src_step, Qvp32f* dst, int dst_step, QvpiSize size, Qvp32f value) {
  return Checked(qvpiThreshold_32f_C1R(src, src_step, dst, dst_step, size, value, qvpCmpLess));
}

}  // extern "C"
