// Calls that must not compile, one for each number that WRONG can be.
#include "qvpi.hpp"

void Call(qvp::Image<Qvp8u, 3>& color, qvp::Image<Qvp16u>& gray, const qvp::Image<Qvp8u>& constant) {
#if WRONG == 1
  qvp::add(color, gray, color);
#elif WRONG == 2
  qvp::fill(constant, 1);
#elif WRONG == 3
  qvp::transpose(color.view().channel(0), color);
#elif WRONG == 4
  (void)qvp::otsu(gray);
#elif WRONG == 5
  qvp::Image<Qvp8u> copy = constant;
#else
  qvp::add(color, color, color);
  qvp::add(gray, gray, gray);
  (void)qvp::sum(constant);
#endif
}
