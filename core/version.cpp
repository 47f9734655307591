// The version record. Release numbers are the same for every build; CPU code and name come from the build's table row.
#include "qvpi.h"

namespace {
constexpr QvpLibraryVersion kVersion = {
    QVP_RELEASE_MAJOR, QVP_RELEASE_MINOR, QVP_RELEASE_UPDATE,           static_cast<int>(0xCD107B02),
    QVP_CPU_CODE,      QVP_BUILD_NAME,    QVP_RELEASE " (r0xcd107b02)", "Jan 30 2024"};
}  // namespace

const QvpLibraryVersion* qvpiGetLibVersion() { return &kVersion; }
