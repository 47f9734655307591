// Entry points of libFuzzer. Other builds are modules named in QVPI_FUZZ_BUILDS, with colons between; what was reached
// is written to the file QVPI_FUZZ_REACH.
#include <cstdio>
#include <cstdlib>
#include <sstream>

#include "tests/fuzz/trial.h"

extern "C" size_t LLVMFuzzerMutate(uint8_t* data, size_t size, size_t mostBytes);

namespace {

struct Reach {
  uint64_t calls = 0, successes = 0;
};

std::vector<Reach>& Reached() {
  static std::vector<Reach> reached(test::Exports().size());
  return reached;
}

void WriteReach() {
  const char* const path = std::getenv("QVPI_FUZZ_REACH");
  FILE* const file = path ? std::fopen(path, "w") : nullptr;
  if (!file) return;
  for (size_t i = 0; i < Reached().size(); ++i) {
    const auto& [calls, successes] = Reached()[i];
    std::fprintf(file, "%s %llu %llu\n", test::Exports()[i].name.c_str(), static_cast<unsigned long long>(calls),
                 static_cast<unsigned long long>(successes));
  }
  std::fclose(file);
}

fuzz::Workshop& TheWorkshop() {
  static fuzz::Workshop& workshop = *[] {
    auto* const made = new fuzz::Workshop;
    const char* const builds = std::getenv("QVPI_FUZZ_BUILDS");
    std::istringstream list(builds ? builds : "");
    std::vector<std::string> files;
    for (std::string file; std::getline(list, file, ':');) files.push_back(file);
    made->others = fuzz::LoadBuilds(files);
    std::atexit(WriteReach);
    return made;
  }();
  return workshop;
}

}  // namespace

// With the usual quarantine of freed memory, trials are half as fast.
extern "C" const char* __asan_default_options() { return "quarantine_size_mb=1:malloc_context_size=0"; }
// Rows that overlap are left to another build, whose copies between them are not looked at.
extern "C" const char* __asan_default_suppressions() { return "interceptor_via_lib:calls_v"; }

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  fuzz::Choices choices(data, size);
  const size_t function = fuzz::FunctionFor(choices.Next<uint32_t>());
  Reach& reach = Reached()[function];
  ++reach.calls;
  const auto status = fuzz::Try(function, choices, TheWorkshop());
  reach.successes += status && *status >= 0;
  return status ? 0 : -1;
}

// One change in eight is a new scene of the next function, so that all are reached in turn; another takes the input to
// any other function.
extern "C" size_t LLVMFuzzerCustomMutator(uint8_t* data, size_t size, size_t mostBytes, unsigned seed) {
  static size_t next = 0;
  const size_t functions = test::Exports().size();
  const uint32_t scene[] = {fuzz::NumberFor(next % functions), seed / 8 * 0x9E3779B1u};  // its region and seed
  if (seed % 8 == 0 && mostBytes >= sizeof(scene)) {
    ++next;
    std::memcpy(data, scene, sizeof(scene));
    return sizeof(scene);
  }
  size = LLVMFuzzerMutate(data, size, mostBytes);
  const uint32_t number = fuzz::NumberFor(seed / 8 % functions);
  if (seed % 8 == 1 && size >= sizeof(number)) std::memcpy(data, &number, sizeof(number));
  return size;
}
