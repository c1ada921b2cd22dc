// SPDX-License-Identifier: MIT
// The words that were looked up while a file was read, which are all that its result depends on
// apart from its content.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "thorough/macro_table.h"
#include "thorough/session.h"

namespace vexltags::tree {

/// A hash of a word. Words with the same hash are taken for the same, which costs time, not tags.
using WordHash = std::uint32_t;
WordHash HashOf(std::string_view word);

/// Collects the words that one file looks up.
class Lookups : public thorough::LookupObserver {
 public:
  Lookups() { Clear(); }
  void OnLookup(std::string_view name, bool isFound) override;
  void Clear();

  /// The hashes as bytes, in no particular order.
  std::string Hashes() const;
  /// The words that are unknown and look like macros.
  const std::vector<std::string>& Unknown() const { return unknown; }

 private:
  /// A word of at most sixteen bytes, as two overlapping parts and its size. No word is all zero.
  struct ShortWord {
    std::uint64_t first = 0;
    std::uint64_t last = 0;
    std::size_t size = 0;

    bool operator==(const ShortWord&) const = default;
  };
  static constexpr std::size_t kRecent = 256;

  static ShortWord ShortWordOf(std::string_view name);
  /// Returns whether the word has just been seen, which holds for most.
  bool IsRecent(std::string_view name);
  bool Insert(WordHash hash);
  void Grow();

  std::array<ShortWord, kRecent> recent;
  std::vector<WordHash> places;  ///< A hash table; 0 is an empty place.
  std::size_t count = 0;
  std::vector<std::string> unknown;
};

/// What the session knows of each word: a hash of its definitions with their files, in order.
/// Sorted by word.
using MacroDigests = std::vector<std::pair<WordHash, std::uint64_t>>;
MacroDigests DigestsOf(thorough::Session& session);

/// Digests as bytes, and back.
std::string EncodeDigests(const MacroDigests& digests);
MacroDigests DecodeDigests(std::string_view bytes);

/// Returns the words, sorted, whose digests are not the same in both.
std::vector<WordHash> ChangedWords(const MacroDigests& before, const MacroDigests& after);

/// A set of words, to find out which files look one of them up.
class WordSet {
 public:
  explicit WordSet(const std::vector<WordHash>& words);
  /// Returns whether `lookups`, as `Hashes` gives them, has any of the words.
  bool HasAnyOf(std::string_view lookups) const;

 private:
  static constexpr std::size_t kBits = std::size_t{1} << 16;

  std::vector<WordHash> words;
  std::vector<bool> filter;  ///< By the last bits of a hash: whether a word has them.
};

}  // namespace vexltags::tree
