// SPDX-License-Identifier: MIT
// Remembers how the trial parses of one file ended: storage in blocks that follow the parse.
#include "parserstate/trial_table.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace vexltags {

void TrialTable::Keep(unsigned predicate, std::size_t token, bool success, bool matched) {
  const std::size_t block = token / kTokensPerBlock;
  if (block < firstBlock) return;
  const std::size_t slot = block - firstBlock;
  if (slot >= blocks.size()) blocks.resize(slot + 1);
  if (!blocks[slot]) {
    if (spare.empty()) {
      blocks[slot] = std::make_unique<Block>();
    } else {
      blocks[slot] = std::move(spare.back());
      spare.pop_back();
      std::memset(blocks[slot]->cells, 0, sizeof blocks[slot]->cells);
    }
  }
  std::uint8_t& cell = blocks[slot]->cells[Cell(predicate, token)];
  const unsigned bits = kKnown | (success ? kSuccess : 0) | (matched ? kMatched : 0);
  cell =
      static_cast<std::uint8_t>((cell & ~(kMask << Shift(predicate))) | (bits << Shift(predicate)));
}

void TrialTable::Release(std::size_t upToBlock) {
  const std::size_t count = std::min(upToBlock - firstBlock, blocks.size());
  for (std::size_t i = 0; i < count; ++i) {
    if (blocks[i] && spare.size() < 4) spare.push_back(std::move(blocks[i]));
  }
  blocks.erase(blocks.begin(), blocks.begin() + static_cast<std::ptrdiff_t>(count));
  firstBlock = upToBlock;
}

void TrialTable::Clear() {
  for (auto& block : blocks) block.reset();
}

}  // namespace vexltags
