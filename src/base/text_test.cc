// SPDX-License-Identifier: MIT
// Tests of the functions on strings.
#include "base/text.h"

#include <gtest/gtest.h>

#include <string>

namespace vexltags {
namespace {

TEST(EndsWith, ComparesTheSuffix) {
  const struct {
    const char* text;
    const char* suffix;
    bool expected;
  } cases[] = {
      {"a.py", ".py", true},
      {".py", ".py", true},
      {"a.PY", ".py", false},
      {"a.pyc", ".py", false},
      {"a.py.py", ".py", true},
      {"a.py.c", ".py", false},
      {"", "", true},
      {"a", "", true},
      {"", "a", false},
      {"py", ".py", false},
      {"--sort=yes", "=yes", true},
      {"--sort=yes=no", "=yes", false},
      {"--sort=yes", "=y", false},
      {"aaa", "aa", true},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(EndsWith(c.text, c.suffix), c.expected) << c.text << " | " << c.suffix;
  }
}

struct Replacement {
  const char* text;
  const char* from;
  const char* to;
  const char* expected;
};

TEST(ReplaceFirst, ReplacesOneOccurrence) {
  const Replacement cases[] = {
      {"abcabc", "abc", "x", "xabc"}, {"zabc", "abc", "", "z"}, {"abc", "x", "y", "abc"},
      {"abc", "", "x", "xabc"},       {"", "", "x", "x"},       {"", "a", "x", ""},
      {"aXb", "X", "aXb", "aaXbb"},
  };
  for (const Replacement& c : cases) {
    std::string text = c.text;
    std::string& result = ReplaceFirst(text, c.from, c.to);
    EXPECT_EQ(text, c.expected) << c.text << " | " << c.from;
    EXPECT_EQ(&result, &text);
  }
}

TEST(ReplaceAll, ReplacesEachOccurrenceOnce) {
  const Replacement cases[] = {
      {"aa", "a", "aa", "aaaa"},    {"aaa", "aa", "b", "ba"},     {"a.b.c", ".", "::", "a::b::c"},
      {"abc", "x", "y", "abc"},     {"abab", "ab", "", ""},       {"", "a", "b", ""},
      {"xay", "a", "bab", "xbaby"}, {"abc", "abc", "abc", "abc"}, {"abc", "", "x", "abc"},
  };
  for (const Replacement& c : cases) {
    std::string text = c.text;
    std::string& result = ReplaceAll(text, c.from, c.to);
    EXPECT_EQ(text, c.expected) << c.text << " | " << c.from;
    EXPECT_EQ(&result, &text);
  }
}

TEST(HasWhitespace, RecognizesFourCharacters) {
  for (const char* text : {" ", "a b", "a\tb", "a\nb", "ab\r"})
    EXPECT_TRUE(HasWhitespace(text)) << text;
  for (const char* text : {"", "ab", "a\vb", "a\fb", "\x01", "\xa0"}) {
    EXPECT_FALSE(HasWhitespace(text)) << text;
  }
  EXPECT_FALSE(HasWhitespace({"a\0b", 3}));
}

TEST(CollapseWhitespace, ReplacesEachRunByOneSeparator) {
  const struct {
    const char* text;
    const char* separator;
    const char* expected;
  } cases[] = {
      {"  a \t b\n", " ", " a b"}, {"", " ", ""},
      {" \t\r\n", " ", ""},        {"a", " ", "a"},
      {"a b", "", "ab"},           {"\ra\n\nb", "--", "--a--b"},
      {"a\fb\vc", " ", "a\fb\vc"}, {"operator\n  ()", " ", "operator ()"},
  };
  for (const auto& c : cases) EXPECT_EQ(CollapseWhitespace(c.text, c.separator), c.expected);
}

TEST(CollapseWhitespace, KeepsNonAsciiBytes) {
  EXPECT_EQ(CollapseWhitespace("\xc3\xa4 \xff\xa0", " "), "\xc3\xa4 \xff\xa0");
  EXPECT_EQ(CollapseWhitespace(std::string("a\0 b", 4), " "), std::string("a\0 b", 4));
}

}  // namespace
}  // namespace vexltags
