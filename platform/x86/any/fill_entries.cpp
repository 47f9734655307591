// Of the build for every x86-64: puts the code of the best level that this machine supports into the entries, before
// anything else of the program runs. What runs earlier still finds the code of the lowest level there.
#include <sys/mman.h>

#include <cstdint>
#include <cstdlib>

#include "platform/x86/cpu_levels.h"

namespace {

constexpr int kLowest = 2, kHighest = 4;

// As tools/derive.py lays it out: the code that the stub jumps to, and the way from each word to that of a higher
// level. What fills up the last page is zero.
struct Entry {
  const char* code;
  int32_t higher[kHighest - kLowest];
};

void FillFor(int level, Entry* first, Entry* end) {
  for (Entry* entry = first; entry != end; ++entry) {
    const int32_t* const way = &entry->higher[level - kLowest - 1];
    if (entry->code != nullptr) entry->code = reinterpret_cast<const char*>(way) + *way;
  }
}

// Those pages that hold nothing but entries: all of them in the shared library, most often none in a program.
void MakeReadOnly(Entry* first, Entry* end) {
  constexpr uintptr_t kPage = 4096;
  char* const from = reinterpret_cast<char*>(first) + (-reinterpret_cast<uintptr_t>(first) & (kPage - 1));
  char* const to = reinterpret_cast<char*>(end) - (reinterpret_cast<uintptr_t>(end) & (kPage - 1));
  if (from < to) mprotect(from, static_cast<size_t>(to - from), PROT_READ);
}

}  // namespace

extern "C" {
// Bounds from the linker. They are null if it found all entries to be unused.
[[gnu::weak, gnu::visibility("hidden")]] extern Entry __start_qvpi_entries[];
[[gnu::weak, gnu::visibility("hidden")]] extern Entry __stop_qvpi_entries[];
// Linked into every program that has an entry.
[[gnu::visibility("hidden"), gnu::constructor(0)]] void qvpi_fill_entries();
}

// Programs with more rights than their user do not listen to the environment.
void qvpi_fill_entries() {
  const int level = qvp::ChosenLevel(qvp::LevelOf(ownGetFeature()), secure_getenv("QVPI_CPU"));
  if (level > kLowest) FillFor(level, __start_qvpi_entries, __stop_qvpi_entries);
  MakeReadOnly(__start_qvpi_entries, __stop_qvpi_entries);
}
