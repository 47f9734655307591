// Where the entries lie and how they are filled in DLLs and programs for Windows.
#pragma once

#define WIN32_LEAN_AND_MEAN
#include <windows.h>

#include "platform/x86/any/entry.h"

// Linked into every program that has an entry.
extern "C" void qvpi_fill_entries();

namespace {

// The linker sorts what lies in a section by what follows the dollar: these, of zeros, lie around the entries.
[[gnu::section(".qvpi$a")]] Entry before[1] = {};
[[gnu::section(".qvpi$z")]] Entry after[1] = {};

// Hides from the compiler that the two are objects of their own, between which it need not expect any.
inline Entry* Bound(Entry* entry) {
  __asm__("" : "+r"(entry));
  return entry;
}
inline Entry* BeginOfEntries() { return Bound(before); }
inline Entry* EndOfEntries() { return Bound(after); }

// The level that the environment asks for; none if its text has no room here.
struct Wanted {
  char text[8] = "";
  Wanted() { GetEnvironmentVariableA("QVPI_CPU", text, sizeof text); }
};

inline void MakePagesReadOnly(void* from, size_t bytes) {
  DWORD rights;
  VirtualProtect(from, bytes, PAGE_READONLY, &rights);
}

inline int FillAtLoad() {
  qvpi_fill_entries();
  return 0;
}
// The C library calls what is named here before every constructor, and in a DLL when that is loaded.
[[gnu::section(".CRT$XIB"), gnu::used]] int (*const fillAtLoad)() = FillAtLoad;

}  // namespace
