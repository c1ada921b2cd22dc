// SPDX-License-Identifier: MIT
// Tests of the table of words.
#include "base/word_table.h"

#include <gtest/gtest.h>

#include <string>

namespace vexltags {
namespace {

constexpr Keyword kTexts[] = {
    {"if", 4}, {"->", 5},  {"while", 6}, {"#file", 7},
    {"0x", 8}, {"_if", 9}, {"IF", 10},   {"set=", 11},
};

unsigned Lookup(const auto& table, const std::string& word) {
  return table.Find(reinterpret_cast<const unsigned char*>(word.data()), word.size(), 99);
}

TEST(WordTable, FindsExactlyTheWordsAmongTheTexts) {
  static constexpr WordTable<std::size(kTexts)> kTable(kTexts);
  EXPECT_EQ(Lookup(kTable, "if"), 4U);
  EXPECT_EQ(Lookup(kTable, "while"), 6U);
  EXPECT_EQ(Lookup(kTable, "_if"), 9U);
  EXPECT_EQ(Lookup(kTable, "IF"), 10U);
  for (const char* other : {"->", "#file", "0x", "set=", "i", "iff", "whilE", "If", "f"}) {
    EXPECT_EQ(Lookup(kTable, other), 99U) << other;
  }
}

TEST(WordTable, HoldsWordsOfOneSlot) {
  // Equal in length and in the first, middle and last character, and so in their slot.
  static constexpr auto kTable = [] {
    WordTable<3> table;
    table.Add("aXbYc", 1);
    table.Add("aZbYc", 2);
    table.Add("aXbZc", 3);
    return table;
  }();
  EXPECT_EQ(Lookup(kTable, "aXbYc"), 1U);
  EXPECT_EQ(Lookup(kTable, "aZbYc"), 2U);
  EXPECT_EQ(Lookup(kTable, "aXbZc"), 3U);
  EXPECT_EQ(Lookup(kTable, "aZbZc"), 99U);
}

TEST(IsWord, TakesLettersDigitsAndUnderscores) {
  for (const char* word : {"a", "_", "a1", "char16_t", "_NOEXCEPT"})
    EXPECT_TRUE(IsWord(word)) << word;
  for (const char* other : {"", "1a", "getter=", "@property", "->", "a b", "\xc3\xa9"}) {
    EXPECT_FALSE(IsWord(other)) << other;
  }
}

}  // namespace
}  // namespace vexltags
