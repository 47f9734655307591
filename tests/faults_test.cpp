// What a caller's surroundings may do to the code of any function, and it to them: little stack, signals in the middle,
// flags of floating-point exceptions that somebody else has left.
#include <gtest/gtest.h>

#ifdef __linux__
#include <sys/time.h>

#include <csignal>
#endif

#include "tests/support/control.h"
#include "tests/support/exports.h"

namespace {
using test::Export;
using test::Exports;
using test::Scene;

constexpr QvpiSize kRoi{37, 5};

// Sanitizers take some of the stack, and put off signals.
#if defined(__has_feature)
#if __has_feature(address_sanitizer) || __has_feature(thread_sanitizer)
constexpr bool kHasSanitizer = true;
#else
constexpr bool kHasSanitizer = false;
#endif
#else
constexpr bool kHasSanitizer = false;
#endif

// Marks this much of the stack below the caller, or tells how much of it has been written to since.
constexpr int kMarked = 1 << 17, kWords = kMarked / sizeof(uint64_t);
__attribute__((noinline)) int MarkStack(bool isBefore) {
  constexpr uint64_t kMark = 0x5A5AA5A55A5AA5A5;
  volatile uint64_t stack[kWords];
  int unused = 0;
  if (isBefore) {
    for (volatile uint64_t& word : stack) word = kMark;
  } else {
    while (unused < kWords && stack[unused] == kMark) ++unused;
  }
  return kMarked - unused * static_cast<int>(sizeof(uint64_t));
}

int StackOf(const Scene& scene) {
  MarkStack(true);
  scene.Call();
  return MarkStack(false);
}

// Programs choose the size of a thread's stack, for WebAssembly that of the whole program, and nothing tells there when
// it is too small: newer releases of emscripten take 64 KiB.
TEST(EveryKernel, NeedsLittleStack) {
  if (kHasSanitizer) GTEST_SKIP();
#ifdef __wasm__
  constexpr int kMost = 48 << 10;
#else
  constexpr int kMost = 64 << 10;
#endif
  int most = 0, beyond16K = 0;
  for (const Export& function : Exports()) {
    const int wide = StackOf(Scene(function, {1030, 2}, 7)), high = StackOf(Scene(function, {67, 41}, 7));
    const int bytes = std::max(wide, high);
    EXPECT_LE(bytes, kMost) << function.name;
    most = std::max(most, bytes);
    beyond16K += bytes > 16 << 10;
  }
  RecordProperty("bytes", most);
  RecordProperty("beyond16K", beyond16K);
}

// Whoever has computed before may have left flags of exceptions.
TEST(EveryKernel, TakesNoNoticeOfExceptionFlags) {
  for (const Export& function : Exports()) {
    const Scene expected(function, kRoi, 10), scene(function, kRoi, 10);
    const QvpStatus status = expected.Call();
    test::RaiseExceptionFlags();
    EXPECT_EQ(scene.Call(), status) << function.name;
    EXPECT_EQ(scene.HashOfOutputs(), expected.HashOfOutputs()) << function.name;
  }
}

#ifdef __linux__
volatile std::sig_atomic_t signals = 0;

// Changes what a call may have in use: vector registers, and the stack below it.
void Disturb(int) {
  volatile uint8_t stack[1024];
  for (volatile uint8_t& byte : stack) byte = 0xC3;
#if defined(__x86_64__) || defined(__i386__)
  __asm__ volatile(
      "pcmpeqd %%xmm0, %%xmm0\n\tpcmpeqd %%xmm1, %%xmm1\n\tpcmpeqd %%xmm2, %%xmm2\n\tpcmpeqd %%xmm3, %%xmm3\n\t"
      "pcmpeqd %%xmm4, %%xmm4\n\tpcmpeqd %%xmm5, %%xmm5\n\tpcmpeqd %%xmm6, %%xmm6\n\tpcmpeqd %%xmm7, %%xmm7"
      :
      :
      : "xmm0", "xmm1", "xmm2", "xmm3", "xmm4", "xmm5", "xmm6", "xmm7");
#elif defined(__aarch64__)
  __asm__ volatile("movi v0.16b, #255\n\tmovi v1.16b, #255\n\tmovi v16.16b, #255\n\tmovi v31.16b, #255"
                   :
                   :
                   : "v0", "v1", "v16", "v31");
#endif
  signals = signals + 1;
}

// Sends signals to this process at 10 kHz.
class Alarm {
 public:
  Alarm() {
    struct sigaction action = {};
    action.sa_handler = Disturb;
    action.sa_flags = SA_RESTART;
    sigaction(SIGALRM, &action, &former_);
    SetTimer(100);
  }
  ~Alarm() {
    SetTimer(0);
    sigaction(SIGALRM, &former_, nullptr);
  }

 private:
  static void SetTimer(int microseconds) {
    const itimerval timer{{0, microseconds}, {0, microseconds}};
    setitimer(ITIMER_REAL, &timer, nullptr);
  }
  struct sigaction former_;
};

using Contents = std::vector<std::vector<uint8_t>>;
Contents ContentsOf(const Scene& scene) {
  Contents contents;
  for (const Scene::Piece& piece : scene.Pieces()) contents.emplace_back(piece.data, piece.data + piece.size);
  return contents;
}
void Restore(const Scene& scene, const Contents& contents) {
  const std::vector<Scene::Piece> pieces = scene.Pieces();
  for (size_t i = 0; i < pieces.size(); ++i) std::memcpy(pieces[i].data, contents[i].data(), contents[i].size());
}

// Calls until a signal has come in the middle of one. False if none does for long.
bool CallUntilDisturbed(const Scene& scene, QvpStatus* status) {
  const Contents contents = ContentsOf(scene);
  for (const int first = signals; signals - first < 50;) {
    Restore(scene, contents);
    const int before = signals;
    *status = scene.Call();
    if (signals != before) return true;
  }
  return false;
}

TEST(EveryKernel, GivesTheSameWithASignalInTheMiddle) {
  if (kHasSanitizer) GTEST_SKIP();
  const Alarm alarm;
  int disturbed = 0;
  for (const Export& function : Exports()) {
    const Scene expected(function, {259, 3}, 11), scene(function, {259, 3}, 11);
    QvpStatus status;
    disturbed += CallUntilDisturbed(scene, &status);
    EXPECT_EQ(expected.Call(), status) << function.name;
    EXPECT_EQ(scene.HashOfOutputs(), expected.HashOfOutputs()) << function.name;
  }
  RecordProperty("disturbed", disturbed);
  EXPECT_GE(disturbed, static_cast<int>(Exports().size()) / 2);
}
#endif

}  // namespace
