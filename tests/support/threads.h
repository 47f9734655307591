// Work in several threads at once, or one after the other where there are none.
#pragma once

#ifdef __wasm__
namespace test {
template <class Work>
void InThreads(int n, const Work& work) {
  for (int i = 0; i < n; ++i) work(i);
}
}  // namespace test
#else
#include <thread>
#include <vector>

namespace test {
// work(0) to work(n - 1), each in a thread of its own.
template <class Work>
void InThreads(int n, const Work& work) {
  std::vector<std::thread> threads;
  for (int i = 0; i < n; ++i) threads.emplace_back([&work, i] { work(i); });
  for (std::thread& thread : threads) thread.join();
}
}  // namespace test
#endif
