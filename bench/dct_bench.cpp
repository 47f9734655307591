// Cosine transforms of blocks.
#include <fftw3.h>

#include <vector>

#include "bench/image.h"

namespace {
using namespace bench;

// All blocks of an image, as floats at their places: the peer converts nothing.
fftwf_plan PlanBlocks(QvpiSize size, const Image<float>& from, const Image<float>& to, fftwf_r2r_kind kind) {
  const int across = size.width / 8, down = size.height / 8;
  const fftwf_iodim lines[] = {{8, size.width, 8}, {8, 1, 1}};
  const fftwf_iodim blocks[] = {{down, 8 * size.width, 64 * across}, {across, 8, 64}};
  const fftwf_r2r_kind kinds[] = {kind, kind};
  return fftwf_plan_guru_r2r(2, lines, 2, blocks, from.data(), to.data(), kinds, FFTW_MEASURE);
}

QvpiSize OfBlocks(QvpiSize size) { return {size.width * 8, (size.height + 7) / 8}; }

template <class From, class To, class Call>
void AddBlocks(const std::string& name, QvpiSize size, Call call, double atLeast) {
  const bool isForward = name.front() != 'i';
  const Image<From> src(isForward ? size : OfBlocks(size), 1);
  const Image<To> dst(isForward ? OfBlocks(size) : size, 1);
  const Image<float> from(size, 1), to(OfBlocks(size), 1);
  const fftwf_plan plan = PlanBlocks(size, from, to, isForward ? FFTW_REDFT10 : FFTW_REDFT01);
  Add({Name(name, size),
       {src.bytes(), dst.bytes()},
       [=] { Require(call(src.data(), src.step, dst.data(), dst.step, size)); },
       {{"FFTW, measured plan of all blocks", [=] { fftwf_execute(plan), (void)from, (void)to; }, atLeast}}});
}

// The peer transforms one block at a call.
void AddSingle(QvpiSize size) {
  const Image<float> a(size, 1), b(OfBlocks(size), 1), c(size, 1);
  a.mat.setTo(1);
  Add({Name("DCT of blocks 32f, by blocks", size),
       {a.bytes(), b.bytes()},
       [=] { Require(qvpiDCTBlocksFwd_32f_C1R(a.data(), a.step, b.data(), b.step, size)); },
       {{"OpenCV dct of each block",
         [=] {
           for (int y = 0; y + 8 <= size.height; y += 8) {
             for (int x = 0; x + 8 <= size.width; x += 8) cv::dct(a.mat({x, y, 8, 8}), c.mat({x, y, 8, 8}));
           }
         },
         30}}});
}

template <class Call>
auto Quantised(Call call) {
  return [call](auto... arguments) {
    static const std::vector<Qvp16u> kSteps(64, 16);
    return call(arguments..., kSteps.data());
  };
}

const bool kAdded = [] {
  for (const QvpiSize size : {QvpiSize{16, 16}, kTile, kVga, QvpiSize{1920, 1080}, QvpiSize{8000, 6000}}) {
    const double least = size.width >= kVga.width ? 4 : 1;
    AddBlocks<float, float>("DCT of blocks 32f", size, qvpiDCTBlocksFwd_32f_C1R, least);
    AddBlocks<uint8_t, int16_t>("DCT of blocks 8u16s", size, qvpiDCTBlocksFwd_8u16s_C1R, least);
    AddBlocks<int16_t, uint8_t>("inverse DCT of blocks 16s8u", size, qvpiDCTBlocksInv_16s8u_C1R, least);
  }
  AddBlocks<float, float>("inverse DCT of blocks 32f", kHd, qvpiDCTBlocksInv_32f_C1R, 4);
  AddBlocks<uint8_t, int16_t>("DCT of blocks 8u16s, quantised", kHd, Quantised(qvpiDCTBlocksQuantFwd_8u16s_C1R), 3.5);
  AddBlocks<int16_t, uint8_t>("inverse DCT of blocks 16s8u, quantised", kHd, Quantised(qvpiDCTBlocksQuantInv_16s8u_C1R),
                              3.5);
  AddSingle(kHd);
  return true;
}();

}  // namespace
