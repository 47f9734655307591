// Benchmark rows: our call, the peer's call on the same work, and the machine's limit for the memory that the work
// touches, all measured in one run.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace bench {

// Bytes that any implementation has to read, to write, and to read and write back in place.
struct Traffic {
  size_t reads, writes, updates = 0;
  size_t Total() const { return reads + writes + 2 * updates; }
};

struct Peer {
  std::string name;
  std::function<void()> call;
  double atLeast = 0;  // what peer time / our time has to reach; 0 for no claim
};

struct Row {
  std::string name;
  Traffic traffic;
  std::function<void()> ours;
  std::vector<Peer> peers = {};
};

// Adds a row. Its parts are timed as "<name>/ours", "<name>/peer: <peer> >= <least>" and "<name>/limit".
void Add(Row row);

// Fails loudly: a benchmark of a refused call would measure nothing.
void Require(int status);

// Random bytes at a 64-byte boundary, alive as long as any row that uses them.
template <class T>
std::shared_ptr<T[]> Pixels(size_t count);

}  // namespace bench
