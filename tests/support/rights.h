// Pages and the rights to them. A system that refuses ends the test.
#pragma once

#include <cstddef>
#include <cstdint>

namespace test {

size_t PageBytes();
// Whole pages that can neither be read nor written.
uint8_t* MapUnreadable(size_t bytes);
void Unmap(uint8_t* pages, size_t bytes);
void MakeReadable(uint8_t* pages, size_t bytes, bool isWritable);

}  // namespace test
