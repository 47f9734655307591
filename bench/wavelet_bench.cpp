// Wavelet transforms of one level. No peer has them: beside them stand their products and sums alone, and a copy.
#include <cstring>

#include "bench/image.h"

namespace {
using namespace bench;

// As many products and sums for each float as an image of `floats` takes, in registers: any work of that kind takes so
// long at least.
void MultiplyAndAdd(size_t floats, int products) {
  using Vector = float __attribute__((vector_size(32)));
  constexpr int kSums = 10;
  Vector sums[kSums] = {}, factor = sums[0] + 1.0f;
  for (size_t i = 0; i < floats * products; i += kSums * sizeof(Vector) / sizeof(float)) {
    for (Vector& sum : sums) {
      __asm__ volatile("" : "+x"(factor));  // made anew
      Vector product = factor * factor;
      __asm__ volatile("" : "+x"(product));  // never fused
      sum = sum + product;
    }
  }
  for (Vector& sum : sums) __asm__ volatile("" : : "x"(sum));
}

struct Bank {
  const char* name;
  QvpiWaveletKind kind;
  int products;  // for each pixel, rows and columns together
};
constexpr Bank kHaar{"Haar", qvpWaveletHaar, 4}, kCdf53{"5/3", qvpWaveletCdf53, 8}, kCdf97{"9/7", qvpWaveletCdf97, 16};

using Call = decltype(&qvpiWaveletFwd_32f_C1R);

void AddTransform(const std::string& what, const Bank& bank, QvpiSize size, int channels, Call call, double ofCopy,
                  double ofSums) {
  const Image<float> a(size, channels), b(size, channels);
  a.mat.setTo(1);
  QvpiWaveletBank filters;
  int specBytes, bufferBytes;
  Require(qvpiWaveletGetBank_32f(bank.kind, &filters));
  Require(qvpiWaveletGetSize_32f(&filters, &specBytes));
  const auto record = Pixels<uint8_t>(specBytes);
  auto* const spec = reinterpret_cast<QvpiWaveletSpec_32f*>(record.get());
  Require(qvpiWaveletInit_32f(&filters, qvpBorderMirror, spec));
  Require(qvpiWaveletGetBufferSize_32f(spec, size, channels, &bufferBytes));
  const auto buffer = Pixels<uint8_t>(bufferBytes);
  const size_t bytes = a.bytes();
  Add({Name(what + ' ' + bank.name + " C" + std::to_string(channels), size),
       {bytes, bytes},
       [=] {
         (void)record;
         Require(call(a.data(), a.step, b.data(), b.step, size, 1, spec, buffer.get()));
       },
       {{"a copy", [=] { std::memcpy(b.data(), a.data(), bytes); }, ofCopy},
        {"products and sums alone", [=] { MultiplyAndAdd(bytes / sizeof(float), bank.products); }, ofSums}}});
}

const bool kAdded = [] {
  for (const QvpiSize size : {kTile, kVga, kHd, kLarge}) {
    for (const Bank& bank : {kHaar, kCdf53, kCdf97}) {
      const bool isAsked = size.width == kHd.width;
      const double ofCopy = isAsked && bank.products == 4 ? 0.6 : 0, ofSums = isAsked && bank.products > 4 ? 0.55 : 0;
      AddTransform("wavelets", bank, size, 1, qvpiWaveletFwd_32f_C1R, ofCopy, ofSums);
      AddTransform("wavelets", bank, size, 3, qvpiWaveletFwd_32f_C3R, ofCopy, ofSums);
      if (!isAsked) continue;
      AddTransform("inverse wavelets", bank, size, 1, qvpiWaveletInv_32f_C1R, 0, 0);
      AddTransform("inverse wavelets", bank, size, 3, qvpiWaveletInv_32f_C3R, 0, 0);
    }
  }
  for (const QvpiSize size : kSmallest) AddTransform("wavelets", kCdf97, size, 1, qvpiWaveletFwd_32f_C1R, 0, 0);
  return true;
}();

}  // namespace
