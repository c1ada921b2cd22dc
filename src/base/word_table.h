// SPDX-License-Identifier: MIT
// Maps the words of a language to their token types, by a hash table made at compile time.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

#include "base/character_class.h"

namespace vexltags {

/// A text and the token type that it has in a grammar.
struct Keyword {
  std::string_view text;
  unsigned type = 0;
};

/// True for a text of letters, digits and `_` that does not begin with a digit.
constexpr bool IsWord(std::string_view text) {
  if (text.empty() || !kLetters[static_cast<unsigned char>(text[0])]) return false;
  for (const char c : text) {
    if (!kLettersAndDigits[static_cast<unsigned char>(c)]) return false;
  }
  return true;
}

/// Up to `kCapacity` words. Filled at compile time, where a word too many is an error.
template <std::size_t kCapacity>
class WordTable {
 public:
  constexpr WordTable() = default;

  /// Adds those of `keywords` that are words.
  template <std::size_t kCount>
  constexpr explicit WordTable(const Keyword (&keywords)[kCount]) {
    for (const Keyword& keyword : keywords) {
      if (IsWord(keyword.text)) Add(keyword.text, keyword.type);
    }
  }

  /// Adds a word of fewer than 64 characters, which is not copied and not in the table yet.
  constexpr void Add(std::string_view text, unsigned type) {
    lengths |= std::uint64_t{1} << text.size();
    std::uint8_t& first = firsts[Slot(text, text.size())];
    entries[++count] = {text.data(), static_cast<std::uint16_t>(text.size()),
                        static_cast<std::uint16_t>(type), first};
    first = static_cast<std::uint8_t>(count);
  }

  /// The type of the word of `length` characters at `word`, of which there is at least one;
  /// `otherwise` when the table does not have it.
  unsigned Find(const unsigned char* word, std::size_t length, unsigned otherwise) const {
    if (length >= kLengthLimit || (lengths >> length & 1) == 0) return otherwise;
    for (std::uint8_t i = firsts[Slot(word, length)]; i != 0; i = entries[i].next) {
      const Entry& entry = entries[i];
      if (entry.length == length && std::memcmp(entry.text, word, length) == 0) return entry.type;
    }
    return otherwise;
  }

 private:
  static_assert(kCapacity < 256);
  static constexpr std::size_t kSlots = 512;
  static constexpr std::size_t kLengthLimit = 64;

  struct Entry {
    const char* text = nullptr;
    std::uint16_t length = 0;
    std::uint16_t type = 0;
    std::uint8_t next = 0;  ///< The index of the next entry of the same slot; 0 for none.
  };

  template <class Word>
  static constexpr std::size_t Slot(const Word& word, std::size_t length) {
    return (static_cast<unsigned char>(word[0]) * 5U +
            static_cast<unsigned char>(word[length / 2]) * 23U +
            static_cast<unsigned char>(word[length - 1]) * 71U + length * 113U) %
           kSlots;
  }

  std::uint64_t lengths = 0;                  ///< Bit `n` is set when some word has `n` characters.
  std::array<std::uint8_t, kSlots> firsts{};  ///< The index of the first entry of each slot.
  std::array<Entry, kCapacity + 1> entries{};  ///< From index 1 on.
  std::size_t count = 0;
};

}  // namespace vexltags
