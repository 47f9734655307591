// A program of a user of the installed library, in C++20.
#include <cstdio>
#include <qvpi.hpp>

int main() {
  qvp::Image<Qvp8u, 3> image(64, 48), half(32, 24);
  const bool is_done = qvp::fill(image, {1, 2, 3}).ok() && qvp::resize(image, half).ok();
  std::printf("%s\n%s\n", qvpiGetLibVersion()->targetCpu, qvp::Status(qvpStatusNullPointer).what());
  return is_done && half.row(23)[95] == 3 ? 0 : 1;
}
