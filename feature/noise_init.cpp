// Records of noise.
#include <cmath>

#include "feature/noise_record.h"
#include "qvpi.h"

namespace {
using namespace qvp;
using noise::Kind;
using noise::Record;

constexpr int kSpecBytes = 2 * kRecordBoundary;

struct Key {
  Qvp32u seed, stream;
};

// Clears a record and lets fill(record) check its parameters and write the rest.
template <class Fill>
QvpStatus Init(QvpiNoiseSpec* spec, Kind kind, Key key, const Fill& fill) {
  return InitRecordIn<Record>(spec, [&](Record& record) -> QvpStatus {
    if (const QvpStatus failed = fill(record)) return failed;
    record.kind = kind;
    record.seed = key.seed;
    record.stream = key.stream;
    return qvpStatusNoError;
  });
}

// Both parameters of noise of floats.
template <class Check>
QvpStatus InitScaled(QvpiNoiseSpec* spec, Kind kind, Key key, float offset, float scale, const Check& check) {
  return Init(spec, kind, key, [&](Record& record) -> QvpStatus {
    if (const QvpStatus failed = check()) return failed;
    std::memset(&record, 0, kRecordBoundary);
    record.offset = offset;
    record.scale = scale;
    return qvpStatusNoError;
  });
}

bool IsFinite(double v) { return std::isfinite(static_cast<float>(v)); }
// NaN is neither.
bool IsDeviation(double v) { return v >= 0 && IsFinite(v); }
QvpStatus StatusOf(bool isValid) { return isValid ? qvpStatusNoError : qvpStatusBadArgument; }

}  // namespace

QvpStatus qvpiNoiseGetSize(int* pSpecSize) {
  if (pSpecSize == nullptr) return qvpStatusNullPointer;
  *pSpecSize = kSpecBytes;
  return qvpStatusNoError;
}

QvpStatus qvpiNoiseUniformInit(Qvp64f low, Qvp64f high, Qvp32u seed, Qvp32u stream, QvpiNoiseSpec* pSpec) {
  const auto least = static_cast<float>(low), width = static_cast<float>(high) - least;
  return InitScaled(pSpec, Kind::kUniform, {seed, stream}, least, width, [&]() -> QvpStatus {
    if (!IsFinite(low) || !IsFinite(high) || !std::isfinite(width)) return qvpStatusBadArgument;
    return low > high ? qvpStatusRange : qvpStatusNoError;
  });
}

QvpStatus qvpiNoiseGaussInit(Qvp64f mean, Qvp64f sigma, Qvp32u seed, Qvp32u stream, QvpiNoiseSpec* pSpec) {
  return InitScaled(pSpec, Kind::kGauss, {seed, stream}, static_cast<float>(mean), static_cast<float>(sigma),
                    [&] { return StatusOf(IsFinite(mean) && IsDeviation(sigma)); });
}

QvpStatus qvpiNoiseSpeckleInit(Qvp64f sigma, Qvp32u seed, Qvp32u stream, QvpiNoiseSpec* pSpec) {
  return InitScaled(pSpec, Kind::kSpeckle, {seed, stream}, 0, static_cast<float>(sigma),
                    [&] { return StatusOf(IsDeviation(sigma)); });
}

QvpStatus qvpiNoiseShotInit(Qvp64f gain, Qvp64f sigma, Qvp32u seed, Qvp32u stream, QvpiNoiseSpec* pSpec) {
  const float variance = static_cast<float>(sigma) * static_cast<float>(sigma);
  return InitScaled(pSpec, Kind::kShot, {seed, stream}, static_cast<float>(gain), variance,
                    [&] { return StatusOf(IsDeviation(gain) && IsDeviation(sigma) && std::isfinite(variance)); });
}

QvpStatus qvpiNoiseSaltPepperInit(Qvp64f level, Qvp64f saltShare, Qvp64f pepper, Qvp64f salt, Qvp32u seed,
                                  Qvp32u stream, QvpiNoiseSpec* pSpec) {
  return Init(pSpec, Kind::kSaltPepper, {seed, stream}, [&](Record& record) -> QvpStatus {
    if (!(level >= 0 && level < 1)) return qvpStatusNoiseRange;
    if (!(saltShare >= 0 && saltShare <= 1) || std::isnan(pepper) || std::isnan(salt)) return qvpStatusBadArgument;
    std::memset(&record, 0, kRecordBoundary);
    record.hit = static_cast<uint32_t>(level * 0x1p32);
    record.top = static_cast<uint32_t>(level * saltShare * 0x1p32);
    record.pepper = pepper;
    record.salt = salt;
    return qvpStatusNoError;
  });
}
