#include "tests/fuzz/builds.h"

#include <dlfcn.h>

#include <cstdio>

namespace fuzz {

std::vector<Build> LoadBuilds(const std::vector<std::string>& files) {
  constexpr char kList[] = "_ZN4test6kCallsE";  // test::kCalls
  std::vector<Build> builds;
  for (const std::string& file : files) {
    void* const module = dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL);
    const void* const calls = module ? dlsym(module, kList) : nullptr;
    if (calls) {
      builds.push_back({file, static_cast<const test::Call*>(calls)});
    } else {
      std::fprintf(stderr, "%s\n", dlerror());
    }
  }
  return builds;
}

}  // namespace fuzz
