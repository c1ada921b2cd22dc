// SPDX-License-Identifier: MIT
// Allocates the blocks and copies lines into them.
#include "output/line_store.h"

#include <algorithm>
#include <cstring>

namespace vexltags {
namespace {
constexpr std::size_t kFirstBlock = std::size_t{1} << 14;
constexpr std::size_t kBlock = std::size_t{1} << 20;
}  // namespace

void LineStore::Add(std::string_view line) {
  const std::size_t size = line.size() + 1;
  if (size > room) {
    room = std::max(size, blocks.empty() ? kFirstBlock : kBlock);
    blocks.push_back(std::make_unique_for_overwrite<char[]>(room));
    next = blocks.back().get();
  }
  std::memcpy(next, line.data(), line.size());
  next[line.size()] = '\0';
  lines.emplace_back(next, line.size());
  next += size;
  room -= size;
}

}  // namespace vexltags
