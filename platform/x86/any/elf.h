// Where the entries lie and how they are filled in ELF files.
#pragma once

#include <sys/mman.h>

#include <cstdlib>

#include "platform/x86/any/entry.h"

extern "C" {
// Bounds from the linker. They are null if it found all entries to be unused.
[[gnu::weak, gnu::visibility("hidden")]] extern Entry __start_qvpi_entries[];
[[gnu::weak, gnu::visibility("hidden")]] extern Entry __stop_qvpi_entries[];
// Linked into every program that has an entry. Declared once: with a second declaration clang forgets the priority.
[[gnu::visibility("hidden"), gnu::constructor(0)]] void qvpi_fill_entries();
}

namespace {

inline Entry* BeginOfEntries() { return __start_qvpi_entries; }
inline Entry* EndOfEntries() { return __stop_qvpi_entries; }

// The level that the environment asks for. Programs with more rights than their user do not listen to it.
struct Wanted {
  const char* text = secure_getenv("QVPI_CPU");
};

inline void MakePagesReadOnly(void* from, size_t bytes) { mprotect(from, bytes, PROT_READ); }

}  // namespace
