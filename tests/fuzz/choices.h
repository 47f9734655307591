// What the bytes of a fuzzer's input say, taken one after the other. Where they end, zeros follow; a choice of zero is
// always the plain one.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <iterator>

namespace fuzz {

class Choices {
 public:
  Choices(const uint8_t* bytes, size_t size) : at_(bytes), end_(bytes + size) {}

  template <class T = uint8_t>
  T Next() {
    T value{};
    const size_t n = static_cast<size_t>(end_ - at_) < sizeof(T) ? end_ - at_ : sizeof(T);
    std::memcpy(&value, at_, n);
    at_ += n;
    return value;
  }
  // A number in [first, last], a range of at most 256.
  int In(int first, int last) { return first + Next() % (last - first + 1); }
  template <class List>
  auto Any(const List& list) {
    return std::data(list)[Next() % std::size(list)];
  }

 private:
  const uint8_t *at_, *end_;
};

}  // namespace fuzz
