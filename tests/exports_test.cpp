// What holds for every function alike: no system call, no change of the floating-point control state, and any alignment
// of the stack.
#include "tests/support/exports.h"

#include <gtest/gtest.h>

#ifdef __linux__
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#endif

#include "qvpcore.h"
#include "tests/support/control.h"

namespace {
using test::Export;
using test::Exports;
using test::Scene;

constexpr QvpiSize kRoi{37, 5};

TEST(EveryFunction, LeavesTheFloatingPointControlStateAlone) {
  for (const bool isUnusual : {false, true}) {
    for (const Export& function : Exports()) {
      Scene scene(function, kRoi, 4);
      const test::Control usual = test::GetControl();
      const test::Control control = isUnusual ? test::TowardZeroWithoutSubnormals(usual) : usual;
      test::SetControl(control);
      const QvpStatus status = scene.Call();
      const test::Control after = test::GetControl();
      test::SetControl(usual);
      EXPECT_GE(status, 0) << function.name;
      EXPECT_EQ(after, control) << function.name;
    }
  }
}

#ifdef __i386__
// Calls with the stack `phase` bytes off a multiple of 16. The calls are compiled to keep the alignment that it finds.
QvpStatus CallAtPhase(const Export& function, const test::Argument* arguments, int phase) {
  QvpStatus status;
  __asm__ volatile(
      "movl %%esp, %%esi\n\tandl $-16, %%esp\n\tsubl %2, %%esp\n\tpushl %3\n\tcall *%1\n\tmovl %%esi, %%esp"
      : "=a"(status)
      : "r"(function.call), "r"(phase), "r"(arguments)
      : "esi", "ecx", "edx", "memory", "cc");
  return status;
}

TEST(EveryFunction, WorksAtEveryAlignmentOfTheStack) {
  for (const Export& function : Exports()) {
    Scene expected(function, kRoi, 5);
    const QvpStatus status = expected.Call();
    ASSERT_GE(status, 0) << function.name;
    for (const int phase : {0, 4, 8, 12}) {
      Scene scene(function, kRoi, 5);
      EXPECT_EQ(CallAtPhase(function, scene.arguments.data(), phase), status) << function.name;
      EXPECT_EQ(scene.HashOfOutputs(), expected.HashOfOutputs()) << function.name << " phase " << phase;
    }
  }
}
#endif

#ifdef __linux__
// In strict mode any system call but read, write and exit kills the process.
TEST(EveryFunction, MakesNoSystemCall) {
#if defined(__has_feature)
#if __has_feature(address_sanitizer)
  GTEST_SKIP() << "the sanitizer makes system calls of its own";
#endif
#endif
  int cache;
  qvpGetMaxCacheSizeB(&cache);  // what it has to find out, it keeps
  std::vector<std::unique_ptr<Scene>> scenes;
  for (const Export& function : Exports()) scenes.push_back(std::make_unique<Scene>(function, kRoi, 6));
  std::vector<Qvp8u> large(1 << 20);  // so large that the cache size is asked for
  constexpr int kNoStrictMode = 2;
  const pid_t child = fork();
  if (child == 0) {
    if (prctl(PR_SET_SECCOMP, SECCOMP_MODE_STRICT) != 0) _exit(kNoStrictMode);
    int failures = qvpiSet_8u_C1R(1, large.data(), 1024, {1024, 1024}) != qvpStatusNoError;
    for (const auto& scene : scenes) failures += scene->Call() < 0;
    syscall(SYS_exit, failures != 0);
  }
  int result = 0;
  ASSERT_EQ(waitpid(child, &result, 0), child);
  EXPECT_TRUE(WIFEXITED(result)) << "killed by signal " << WTERMSIG(result);
  if (WEXITSTATUS(result) == kNoStrictMode) GTEST_SKIP() << "emulators have no strict mode";
  EXPECT_EQ(WEXITSTATUS(result), 0);
}
#endif

}  // namespace
