#include "tests/support/rights.h"

#include <cstdlib>

#if defined(_WIN32)
#define WIN32_LEAN_AND_MEAN
#include <windows.h>

size_t test::PageBytes() {
  SYSTEM_INFO info;
  GetSystemInfo(&info);
  return info.dwPageSize;
}

uint8_t* test::MapUnreadable(size_t bytes) {
  void* const pages = VirtualAlloc(nullptr, bytes, MEM_RESERVE | MEM_COMMIT, PAGE_NOACCESS);
  if (pages == nullptr) abort();
  return static_cast<uint8_t*>(pages);
}

void test::Unmap(uint8_t* pages, size_t) { VirtualFree(pages, 0, MEM_RELEASE); }

void test::MakeReadable(uint8_t* pages, size_t bytes, bool isWritable) {
  DWORD before;
  if (!VirtualProtect(pages, bytes, isWritable ? PAGE_READWRITE : PAGE_READONLY, &before)) abort();
}
#elif !defined(__wasm__)
#include <sys/mman.h>
#include <unistd.h>

size_t test::PageBytes() { return static_cast<size_t>(sysconf(_SC_PAGESIZE)); }

uint8_t* test::MapUnreadable(size_t bytes) {
  void* const pages = mmap(nullptr, bytes, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
  if (pages == MAP_FAILED) abort();
  return static_cast<uint8_t*>(pages);
}

void test::Unmap(uint8_t* pages, size_t bytes) { munmap(pages, bytes); }

void test::MakeReadable(uint8_t* pages, size_t bytes, bool isWritable) {
  if (mprotect(pages, bytes, isWritable ? PROT_READ | PROT_WRITE : PROT_READ) != 0) abort();
}
#endif
