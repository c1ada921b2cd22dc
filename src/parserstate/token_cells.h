// SPDX-License-Identifier: MIT
// Storage by token for what a parse remembers ahead of the place where it stands.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <deque>
#include <memory>
#include <utility>
#include <vector>

namespace vexltags {

/// Holds `kPerToken` cells for each token, zero until written. Memory follows the parse: what lies
/// in front of the committed token is given back, and only stretches in which a cell was written
/// are held at all.
template <class Cell, std::size_t kPerToken>
class TokenCells {
 public:
  /// The cells of the token with index `token`; null when none of its stretch was ever written.
  const Cell* Find(std::size_t token) const {
    const std::size_t block = token / kTokensPerBlock;
    if (block < firstBlock || block - firstBlock >= blocks.size()) return nullptr;
    const Block* held = blocks[block - firstBlock].get();
    return held == nullptr ? nullptr : held->data() + token % kTokensPerBlock * kPerToken;
  }

  /// The same for writing; null only in front of the committed token.
  Cell* Make(std::size_t token) {
    const std::size_t block = token / kTokensPerBlock;
    if (block < firstBlock) return nullptr;
    const std::size_t slot = block - firstBlock;
    if (slot >= blocks.size()) blocks.resize(slot + 1);
    if (!blocks[slot]) {
      if (spare.empty()) {
        blocks[slot] = std::make_unique<Block>();
      } else {
        blocks[slot] = std::move(spare.back());
        spare.pop_back();
        blocks[slot]->fill(Cell{});
      }
    }
    return blocks[slot]->data() + token % kTokensPerBlock * kPerToken;
  }

  /// Tells that nobody asks about a token in front of `token` again.
  void Commit(std::size_t token) {
    if (token / kTokensPerBlock > firstBlock) Release(token / kTokensPerBlock);
  }

  /// Forgets everything; tokens count from 0 again.
  void Reset() {
    Release(firstBlock + blocks.size());
    firstBlock = 0;
  }

  /// Forgets everything but where the parse stands.
  void Clear() {
    for (auto& block : blocks) block.reset();
  }

 private:
  static constexpr std::size_t kTokensPerBlock = 16;
  using Block = std::array<Cell, kTokensPerBlock * kPerToken>;

  void Release(std::size_t upToBlock) {
    const std::size_t count = std::min(upToBlock - firstBlock, blocks.size());
    for (std::size_t i = 0; i < count; ++i) {
      if (blocks[i] && spare.size() < kSpare) spare.push_back(std::move(blocks[i]));
    }
    blocks.erase(blocks.begin(), blocks.begin() + static_cast<std::ptrdiff_t>(count));
    firstBlock = upToBlock;
  }

  static constexpr std::size_t kSpare = 8;
  std::size_t firstBlock = 0;
  std::deque<std::unique_ptr<Block>> blocks;  ///< blocks[i] holds block number firstBlock + i.
  std::vector<std::unique_ptr<Block>> spare;  ///< Given back, for the next use.
};

}  // namespace vexltags
