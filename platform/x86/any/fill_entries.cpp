// Of the build for every x86-64: puts the code of the best level that this machine supports into the entries, before
// anything else of the program runs. What runs earlier still finds the code of the lowest level there.
#include <cstdint>

#include "platform/x86/cpu_levels.h"
#ifdef _WIN32
#include "platform/x86/any/windows.h"
#else
#include "platform/x86/any/elf.h"
#endif

namespace {

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
  if (from < to) MakePagesReadOnly(from, static_cast<size_t>(to - from));
}

}  // namespace

void qvpi_fill_entries() {
  const int level = qvp::ChosenLevel(qvp::LevelOf(ownGetFeature()), Wanted().text);
  if (level > kLowest) FillFor(level, BeginOfEntries(), EndOfEntries());
  MakeReadOnly(BeginOfEntries(), EndOfEntries());
}
