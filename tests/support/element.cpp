#include "tests/support/element.h"

#include <cmath>
#include <iterator>
#include <limits>
#include <stdexcept>
#include <string>

namespace test {
namespace {

template <class T>
constexpr Element Make(std::string_view name, QvpDataType code = 0) {
  using L = std::numeric_limits<T>;
  const auto read = [](const uint8_t* from) -> Real {
    T value;
    std::memcpy(&value, from, sizeof(T));
    return value;
  };
  const auto write = [](uint8_t* to, Real v) {
    const T value = static_cast<T>(v);
    std::memcpy(to, &value, sizeof(T));
  };
  return {name, code, int{sizeof(T)}, L::is_integer, L::lowest(), L::max(), read, write};
}

const Element kElements[] = {Make<uint8_t>("8u", qvp8u),   Make<int8_t>("8s"),         Make<uint16_t>("16u", qvp16u),
                             Make<int16_t>("16s", qvp16s), Make<uint32_t>("32u"),      Make<int32_t>("32s"),
                             Make<float>("32f", qvp32f),   Make<double>("64f", qvp64f)};

Real RandomBits(const Element& element, Random& random) {
  uint8_t bits[8];
  random.Fill(bits, sizeof(bits));
  return element.read(bits);
}

Real SmallNumber(Random& random, int bits, int below) {
  return std::ldexp(static_cast<Real>(static_cast<int>(random.Next()) >> (32 - bits)), -below);
}

}  // namespace

Real Element::Stored(Real value) const {
  uint8_t bytes[8];
  write(bytes, value);
  return read(bytes);
}

const Element* TakeElement(std::string_view& text) {
  for (const Element& element : kElements) {
    if (!text.starts_with(element.name)) continue;
    text.remove_prefix(element.name.size());
    return &element;
  }
  return nullptr;
}

const Element& ElementOf(std::string_view name) {
  if (const Element* element = TakeElement(name)) return *element;
  throw std::invalid_argument("no type " + std::string(name));
}

const Element* PointedAt(std::string_view type) {
  const size_t start = type.find("Qvp");
  if (start == std::string_view::npos) return nullptr;
  type.remove_prefix(start + 3);
  return TakeElement(type);
}

bool AreSame(Real a, Real b) {
  if (std::isnan(a) || std::isnan(b)) return std::isnan(a) && std::isnan(b);
  return a == b && std::signbit(a) == std::signbit(b);
}

Real EdgeValue(const Element& element, Random& random) {
  const uint32_t r = random.Next(), choice = r >> 8;
  if (element.isInteger) {
    const Real edges[] = {element.lowest, element.highest, 0,     1,  2,  3,     127, 128, 255, 256,
                          32767,          32768,           65535, -1, -2, -32767};
    const Real value = edges[choice % std::size(edges)];
    const bool fits = value >= element.lowest && value <= element.highest;
    return r % 2 == 0 && fits ? value : RandomBits(element, random);
  }
  const Real edges[] = {
      0.0L,           -0.0L, 1,        -2.5L,     0.5L,   1e-40L,        -1e-45L, 16777216, element.highest,
      element.lowest, NAN,   INFINITY, -INFINITY, 255.5L, 2147483648.0L, -1};
  switch (r % 8) {
    case 0: return element.Stored(edges[choice % std::size(edges)]);
    case 1: return SmallNumber(random, 8, 1);
    case 2: return RandomBits(element, random);
    default: return element.Stored(SmallNumber(random, 32, 20));
  }
}

Real PlainValue(const Element& element, Random& random) {
  if (element.isInteger) return EdgeValue(element, random);
  const uint32_t r = random.Next();
  return r % 8 == 0 ? 0.0L : r % 8 == 1 ? SmallNumber(random, 8, 1) : SmallNumber(random, 24, 8);
}

}  // namespace test
