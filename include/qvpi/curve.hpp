/** @file curve.hpp
 *  Tone curves.
 */
#ifndef QVPI_CURVE_HPP
#define QVPI_CURVE_HPP

#include <span>

#include "qvpi/operations/arith.hpp"
#include "qvpi/record.hpp"

namespace qvp {
inline namespace QVP_ERRORS {

/** A curve through levels, the same for all channels: `Curve<Qvp8u> curve(levels, values); curve(src, dst);`
 *
 *  A pixel at levels[i], which increase, becomes values[i]; the method tells what is between. 8u, 16u, 16s and 32f of
 * 1, 3 and 4 channels. Source and destination may be one image.
 */
template <class T>
class Curve : public Recorded {
 public:
  Curve(std::span<const Qvp32f> levels, std::span<const Qvp32f> values, LookupMethod method = LookupMethod::linear) {
    made(levels.size() == values.size() ? prepare(levels, values, int(method)) : qvpStatusSize);
  }

  template <detail::HasPixels Source, detail::HasPixels Destination>
  Status operator()(const Source& src, Destination&& dst) const {
    const auto to = detail::view_of(dst);
    static_assert(
        std::is_same_v<typename decltype(to)::Number, T> && requires { calls::lookup(src, to, nullptr); },
        "qvp::Curve is for images of its type, 8u, 16u, 16s or 32f");
    const QvpStatus status = ready(true);
    return detail::finish(status < 0 ? status : calls::lookup(src, to, spec<QvpiLookupSpec>()));
  }

 private:
  QvpStatus prepare(std::span<const Qvp32f> levels, std::span<const Qvp32f> values, int method) {
    constexpr QvpDataType kType = detail::kDataType<T>;
    const int count = static_cast<int>(levels.size());
    int bytes = 0;
    const QvpStatus status = qvpiLookupGetSize(kType, method, &count, 1, &bytes);
    if (status < 0) return status;
    return make(bytes, 0, [&](Qvp8u* memory, Qvp8u*) {
      const Qvp32f *const at[] = {levels.data()}, *const become[] = {values.data()};
      return qvpiLookupInit(kType, method, at, become, &count, 1, reinterpret_cast<QvpiLookupSpec*>(memory));
    });
  }
};

}  // namespace QVP_ERRORS
}  // namespace qvp

#endif
