// SPDX-License-Identifier: MIT
// Tests of the Python scanner: its tokens, and what it leaves to the generated lexer.
#include "python/python_scanner.h"

#include <gtest/gtest.h>

#include "testing/scan_fixture.h"

namespace vexltags {
namespace {

using testing_support::Scanned;
using testing_support::ScanText;
using Tokens = std::vector<std::string>;

Scanned Scan(const std::string& text) { return ScanText(ScanPython, text); }

TEST(ScanPython, ReadsWordsMarksAndIndentation) {
  const Scanned scanned = Scan("class A(b):\n    def f():\n");
  EXPECT_EQ(scanned.tokens,
            (Tokens{"20:1:class", "5:1:A", "18:1:(", "5:1:b", "19:1:)",
                    "17:1::", "4:2:    ", "21:2:def", "5:2:f", "18:2:(", "19:2:)", "17:2::"}));
  EXPECT_EQ(scanned.stopped, 25U);
  EXPECT_EQ(scanned.line, 3U);
  EXPECT_EQ(scanned.errors, 0U);
}

TEST(ScanPython, ReadsNothingAfterTheText) {
  const std::string text = "a\n  ";
  for (const unsigned char after : {'#', '\n', 'b'}) {
    const Scanned scanned = ScanText(ScanPython, text, std::string(1, static_cast<char>(after)));
    EXPECT_EQ(scanned.tokens, (Tokens{"5:1:a", "4:2:  "})) << after;
    EXPECT_EQ(scanned.stopped, text.size()) << after;
  }
}

TEST(ScanPython, CountsOneErrorForEachUnknownCharacter) {
  const Scanned scanned = Scan("\nx = [1]\n");
  EXPECT_EQ(scanned.tokens, (Tokens{"5:2:x"}));
  EXPECT_EQ(scanned.errors, 4U);
}

TEST(ScanPython, DropsThreeCharactersForAMinusWithoutArrow) {
  const Scanned scanned = Scan("\na -bcd ->\n");
  EXPECT_EQ(scanned.tokens, (Tokens{"5:2:a", "5:2:d", "22:2:->"}));
  EXPECT_EQ(scanned.errors, 1U);
}

TEST(ScanPython, DropsTheCharacterAfterTrailingBlanks) {
  const Scanned scanned = Scan("ab  \ncde\n");
  EXPECT_EQ(scanned.tokens, (Tokens{"5:1:ab", "5:2:de"}));
  EXPECT_EQ(scanned.errors, 1U);
}

TEST(ScanPython, HidesCommentsStringsAndBlankLines) {
  const Scanned scanned =
      Scan("a\n  # class\n   \n'def' \"\\\"\" r'' \"\"\"\nclass \" \"\" x\"\"\"\nb\n");
  EXPECT_EQ(scanned.tokens, (Tokens{"5:1:a", "5:6:b"}));
  EXPECT_EQ(scanned.errors, 0U);
}

TEST(ScanPython, LeavesErrorsOverSeveralCharacters) {
  EXPECT_EQ(Scan("a 'b\nc").stopped, 2U);
  EXPECT_EQ(Scan("a \"\"\"b\nc").stopped, 2U);
  EXPECT_EQ(Scan("a 'b\\").stopped, 2U);
  EXPECT_EQ(Scan("a\n# no line end").stopped, 2U);
  EXPECT_EQ(Scan("  class A:\n").stopped, 0U);
}

}  // namespace
}  // namespace vexltags
