// SPDX-License-Identifier: MIT
// Work that is divided among threads.
#pragma once

#include <functional>
#include <thread>
#include <vector>

namespace vexltags::tree {

/// Calls `work` with each number below `threads`, each in a thread of its own, and waits for all.
inline void RunInThreads(int threads, const std::function<void(int number)>& work) {
  std::vector<std::thread> others;
  for (int i = 1; i < threads; ++i) others.emplace_back(work, i);
  work(0);
  for (std::thread& other : others) other.join();
}

}  // namespace vexltags::tree
