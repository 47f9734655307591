// Banks of wavelet filters, records and buffers.
#include <cstring>

#include "qvpi.h"
#include "transform/wavelet.h"

namespace {
using namespace qvp;
using namespace qvp::wavelet;

constexpr float kHalfRoot = 0x1.6a09e6p-1f;

// Orthogonal filters, low and high: high[j] = (-1)^j low[L - 1 - j]. Synthesis is by the same.
constexpr float kHaar[2][2] = {{kHalfRoot, kHalfRoot}, {kHalfRoot, -kHalfRoot}};
constexpr float kDaubechies4[2][4] = {{0.482962913f, 0.836516304f, 0.224143868f, -0.129409523f},
                                      {-0.129409523f, -0.224143868f, 0.836516304f, -0.482962913f}};
constexpr float kDaubechies6[2][6] = {
    {0.332670553f, 0.806891509f, 0.459877502f, -0.13501102f, -0.085441274f, 0.035226292f},
    {0.035226292f, 0.085441274f, -0.13501102f, -0.459877502f, 0.806891509f, -0.332670553f}};
constexpr float kDaubechies8[2][8] = {
    {0.230377813f, 0.714846571f, 0.630880768f, -0.027983769f, -0.187034812f, 0.030841382f, 0.032883012f, -0.010597402f},
    {-0.010597402f, -0.032883012f, 0.030841382f, 0.187034812f, -0.027983769f, -0.630880768f, 0.714846571f,
     -0.230377813f}};

// Symmetric ones.
constexpr float kRoot = 0x1.6a09e6p+0f;
constexpr float kCdf53Low[] = {-kRoot / 8, kRoot / 4, 3 * kRoot / 4, kRoot / 4, -kRoot / 8};
constexpr float kCdf53High[] = {-kRoot / 4, kRoot / 2, -kRoot / 4};
constexpr float kCdf53SynthesisLow[] = {kRoot / 4, kRoot / 2, kRoot / 4};
constexpr float kCdf53SynthesisHigh[] = {-kRoot / 8, -kRoot / 4, 3 * kRoot / 4, -kRoot / 4, -kRoot / 8};
constexpr float kCdf97Low[] = {0.037828456f, -0.023849465f, -0.110624404f, 0.377402856f, 0.852698679f,
                               0.377402856f, -0.110624404f, -0.023849465f, 0.037828456f};
constexpr float kCdf97High[] = {0.064538883f,  -0.040689418f, -0.418092273f, 0.788485616f,
                                -0.418092273f, -0.040689418f, 0.064538883f};
constexpr float kCdf97SynthesisLow[] = {-0.064538883f, -0.040689418f, 0.418092273f, 0.788485616f,
                                        0.418092273f,  -0.040689418f, -0.064538883f};
constexpr float kCdf97SynthesisHigh[] = {0.037828456f,  0.023849465f,  -0.110624404f, -0.377402856f, 0.852698679f,
                                         -0.377402856f, -0.110624404f, 0.023849465f,  0.037828456f};

template <int kLength>
QvpiWaveletBank Orthogonal(const float (&filters)[2][kLength]) {
  const QvpiWaveletFilter low{filters[0], kLength, kLength / 2 - 1}, high{filters[1], kLength, kLength / 2};
  return {low, high, low, high};
}
template <int kLength>
QvpiWaveletFilter Centred(const float (&taps)[kLength]) {
  return {taps, kLength, kLength / 2};
}

QvpStatus FindBank(QvpiWaveletKind kind, QvpiWaveletBank* bank) {
  switch (kind) {
    case qvpWaveletHaar: *bank = Orthogonal(kHaar); break;
    case qvpWaveletDaubechies4: *bank = Orthogonal(kDaubechies4); break;
    case qvpWaveletDaubechies6: *bank = Orthogonal(kDaubechies6); break;
    case qvpWaveletDaubechies8: *bank = Orthogonal(kDaubechies8); break;
    case qvpWaveletCdf53:
      *bank = {Centred(kCdf53Low), Centred(kCdf53High), Centred(kCdf53SynthesisLow), Centred(kCdf53SynthesisHigh)};
      break;
    case qvpWaveletCdf97:
      *bank = {Centred(kCdf97Low), Centred(kCdf97High), Centred(kCdf97SynthesisLow), Centred(kCdf97SynthesisHigh)};
      break;
    default: return qvpStatusNotSupportedMode;
  }
  return qvpStatusNoError;
}

QvpStatus CheckBank(const QvpiWaveletBank& bank) {
  const QvpiWaveletFilter* const filters[] = {&bank.analysisLow, &bank.analysisHigh, &bank.synthesisLow,
                                              &bank.synthesisHigh};
  for (const QvpiWaveletFilter* f : filters) {
    if (f->pTaps == nullptr) return qvpStatusNullPointer;
  }
  for (const QvpiWaveletFilter* f : filters) {
    if (f->length < 1 || f->length > kMostTaps) return qvpStatusMaskSize;
  }
  for (const QvpiWaveletFilter* f : filters) {
    if (f->anchor < 0 || f->anchor >= f->length) return qvpStatusAnchor;
  }
  return qvpStatusNoError;
}

void Store(const QvpiWaveletFilter& from, Filter& to) {
  to.length = from.length;
  to.anchor = from.anchor;
  std::memset(to.taps, 0, sizeof(to.taps));
  std::memcpy(to.taps, from.pTaps, from.length * sizeof(float));
}

}  // namespace

QvpStatus qvpiWaveletGetBank_32f(QvpiWaveletKind wavelet, QvpiWaveletBank* pBank) {
  return pBank ? FindBank(wavelet, pBank) : qvpStatusNullPointer;
}

QvpStatus qvpiWaveletGetSize_32f(const QvpiWaveletBank* pBank, int* pSpecSize) {
  if (!pBank || !pSpecSize) return qvpStatusNullPointer;
  if (const QvpStatus failed = CheckBank(*pBank)) return failed;
  *pSpecSize = sizeof(WaveletRecord) + kRecordBoundary;
  return qvpStatusNoError;
}

QvpStatus qvpiWaveletInit_32f(const QvpiWaveletBank* pBank, QvpiBorderType borderType, QvpiWaveletSpec_32f* pSpec) {
  return InitRecordIn<WaveletRecord>(pSpec, [&](WaveletRecord& record) -> QvpStatus {
    if (!pBank) return qvpStatusNullPointer;
    if (const QvpStatus failed = CheckBank(*pBank)) return failed;
    if (borderType != qvpBorderMirror && borderType != qvpBorderWrap) return qvpStatusBorder;
    record.border = static_cast<BorderKind>(borderType);
    Store(pBank->analysisLow, record.analysisLow);
    Store(pBank->analysisHigh, record.analysisHigh);
    Store(pBank->synthesisLow, record.synthesisLow);
    Store(pBank->synthesisHigh, record.synthesisHigh);
    return qvpStatusNoError;
  });
}

QvpStatus qvpiWaveletGetBufferSize_32f(const QvpiWaveletSpec_32f* pSpec, QvpiSize roiSize, int numChannels,
                                       int* pBufferSize) {
  if (!pSpec || !pBufferSize) return qvpStatusNullPointer;
  if (roiSize.width < 1 || roiSize.height < 1) return qvpStatusSize;
  if (numChannels != 1 && numChannels != 3 && numChannels != 4) return qvpStatusNumChannels;
  const WaveletRecord& record = *RecordIn<WaveletRecord>(pSpec);
  if (record.identification != WaveletRecord::kIdentification) return qvpStatusContextMatch;
  return WaveletPlan(record, roiSize.width, roiSize.height, numChannels).Bytes().StoreTo(pBufferSize);
}
