// SPDX-License-Identifier: MIT
// Tests of the words of Swift.
#include "swift/swift_words.h"

#include <gtest/gtest.h>

#include "vocabulary/swift_tokens.h"

namespace vexltags {
namespace {

TEST(ClassifySwiftWord, KnowsEachKeyword) {
  int words = 0;
  for (const Keyword& literal : kSwiftLiterals) {
    if (!IsWord(literal.text)) continue;
    EXPECT_EQ(ClassifySwiftWord(literal.text), literal.type) << literal.text;
    ++words;
  }
  EXPECT_EQ(words, 64);
  EXPECT_EQ(ClassifySwiftWord("func"), kSwiftKw_func);
  EXPECT_EQ(ClassifySwiftWord("Self"), kSwiftKw_Self);
  EXPECT_EQ(ClassifySwiftWord("self"), kSwiftKw_self);
}

TEST(ClassifySwiftWord, KnowsWordsThatTheGrammarNames) {
  EXPECT_EQ(ClassifySwiftWord("any"), kSwiftAny);
  for (const char* word : {"e", "E"}) EXPECT_EQ(ClassifySwiftWord(word), kSwiftFloatingPointE);
  for (const char* word : {"p", "P"}) EXPECT_EQ(ClassifySwiftWord(word), kSwiftFloatingPointP);
}

TEST(ClassifySwiftWord, TreatsOtherWordsAsNames) {
  for (const char* word : {"funcs", "fun", "Func", "_", "x", "anyone", "ee", "e1", "SELF", "file",
                           "selector", "didSet", "get", "as", "is", "in", "return"}) {
    EXPECT_EQ(ClassifySwiftWord(word), kSwiftIdentifier) << word;
  }
}

TEST(ClassifySwiftHashWord, KnowsEachLiteral) {
  int words = 0;
  for (const Keyword& literal : kSwiftLiterals) {
    if (!literal.text.starts_with('#')) continue;
    EXPECT_EQ(ClassifySwiftHashWord(literal.text.substr(1)), literal.type) << literal.text;
    ++words;
  }
  EXPECT_EQ(words, 12);
}

TEST(ClassifySwiftHashWord, KnowsNoOtherWord) {
  for (const char* word : {"", "files", "File", "if", "func", "red", "sourceLocation"}) {
    EXPECT_EQ(ClassifySwiftHashWord(word), 0U) << word;
  }
}

}  // namespace
}  // namespace vexltags
