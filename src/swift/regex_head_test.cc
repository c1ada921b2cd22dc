// SPDX-License-Identifier: MIT
// Tests of the characters around a slash.
#include "swift/regex_head.h"

#include <gtest/gtest.h>

#include <memory>
#include <string_view>

namespace vexltags {
namespace {

/// A window between `before` and `after`. Both are copied into a buffer of exactly their size, so
/// that the address sanitizer reports reads outside it.
class Between {
 public:
  Between(std::string_view before, std::string_view after)
      : buffer_(new char[before.size() + after.size()]),
        next_(before.size()),
        size_(before.size() + after.size()) {
    before.copy(buffer_.get(), before.size());
    after.copy(buffer_.get() + next_, after.size());
  }
  CharacterWindow Window() const {
    return {buffer_.get(), buffer_.get() + next_, buffer_.get() + size_};
  }

 private:
  std::unique_ptr<char[]> buffer_;
  std::size_t next_;
  std::size_t size_;
};

TEST(CharacterWindow, CountsFromTheNextCharacter) {
  const Between place("ab", "cd");
  EXPECT_EQ(place.Window().At(1), 'c');
  EXPECT_EQ(place.Window().At(2), 'd');
  EXPECT_EQ(place.Window().At(0), 'b');
  EXPECT_EQ(place.Window().At(-1), 'a');
}

TEST(CharacterWindow, KnowsItsEdges) {
  const Between place("ab", "cd");
  EXPECT_EQ(place.Window().At(3), CharacterWindow::kEnd);
  EXPECT_EQ(place.Window().At(100), CharacterWindow::kEnd);
  EXPECT_EQ(place.Window().At(-2), CharacterWindow::kBeforeStart);
  EXPECT_EQ(place.Window().At(-100), CharacterWindow::kBeforeStart);
}

TEST(CharacterWindow, ReturnsHighBytesAsPositiveNumbers) {
  const Between place("\xE9", "\xFF");
  EXPECT_EQ(place.Window().At(0), 0xE9);
  EXPECT_EQ(place.Window().At(1), 0xFF);
}

TEST(PostfixedBy, ComparesForwards) {
  const Between place("ab", "cde");
  EXPECT_TRUE(PostfixedBy(place.Window(), 1, "cde"));
  EXPECT_TRUE(PostfixedBy(place.Window(), 2, "d"));
  EXPECT_TRUE(PostfixedBy(place.Window(), 0, "bcd"));
  EXPECT_TRUE(PostfixedBy(place.Window(), -1, "ab"));
  EXPECT_FALSE(PostfixedBy(place.Window(), 1, "cx"));
  EXPECT_FALSE(PostfixedBy(place.Window(), 1, "d"));
}

TEST(PostfixedBy, AlwaysFindsAnEmptyText) {
  const Between place("", "");
  EXPECT_TRUE(PostfixedBy(place.Window(), 1, ""));
  EXPECT_TRUE(PostfixedBy(place.Window(), 99, ""));
  EXPECT_TRUE(PostfixedBy(place.Window(), -99, ""));
}

TEST(PostfixedBy, StopsAtTheEdges) {
  const Between place("a", "b");
  EXPECT_FALSE(PostfixedBy(place.Window(), 1, "bc"));
  EXPECT_FALSE(PostfixedBy(place.Window(), 2, "c"));
  EXPECT_FALSE(PostfixedBy(place.Window(), -1, "a"));
}

TEST(PostfixedBy, MatchesNothingToANul) {
  const Between place("", std::string_view("\0b", 2));
  EXPECT_FALSE(PostfixedBy(place.Window(), 1, std::string_view("\0", 1)));
  EXPECT_FALSE(PostfixedBy(place.Window(), 1, std::string_view("\0b", 2)));
  EXPECT_TRUE(PostfixedBy(place.Window(), 2, "b"));
}

TEST(PrefixedBy, ComparesBackwards) {
  const Between place("abc", "d");
  EXPECT_TRUE(PrefixedBy(place.Window(), 0, "abc"));
  EXPECT_TRUE(PrefixedBy(place.Window(), 0, "c"));
  EXPECT_TRUE(PrefixedBy(place.Window(), -1, "ab"));
  EXPECT_TRUE(PrefixedBy(place.Window(), 1, "cd"));
  EXPECT_FALSE(PrefixedBy(place.Window(), 0, "bb"));
  EXPECT_FALSE(PrefixedBy(place.Window(), 0, "xbc"));
}

TEST(PrefixedBy, AlwaysFindsAnEmptyText) {
  const Between place("", "");
  EXPECT_TRUE(PrefixedBy(place.Window(), 0, ""));
  EXPECT_TRUE(PrefixedBy(place.Window(), -99, ""));
  EXPECT_TRUE(PrefixedBy(place.Window(), 99, ""));
}

TEST(PrefixedBy, StopsAtTheEdges) {
  const Between place("ab", "");
  EXPECT_FALSE(PrefixedBy(place.Window(), 0, "xab"));
  EXPECT_FALSE(PrefixedBy(place.Window(), -2, "a"));
  EXPECT_FALSE(PrefixedBy(place.Window(), 1, "b"));
}

TEST(PrefixedBy, MatchesNothingToANul) {
  const Between place(std::string_view("\0in", 3), "");
  EXPECT_FALSE(PrefixedBy(place.Window(), 0, std::string_view("\0in", 3)));
  EXPECT_TRUE(PrefixedBy(place.Window(), 0, "in"));
}

TEST(StartsExpression, AfterCertainCharactersAndWords) {
  const struct {
    std::string_view before;
    bool expected;
  } cases[] = {
      {"=", true},         {"(", true},          {",", true},       {":", true},
      {"x = ", true},      {"x =\t\r\n ", true}, {"case ", true},   {"case", true},
      {"showcase ", true}, {"in ", true},        {"begin\n", true}, {"in", true},
      {"return ", false},  {"[", false},         {"{", false},      {"a ", false},
      {"+ ", false},       {"ase ", false},      {"n ", false},     {"Case ", false},
      {"x)", false},       {"]", false},         {"case\v", false},
  };
  for (const auto& one : cases) {
    EXPECT_EQ(StartsExpression(Between(one.before, "/").Window()), one.expected) << one.before;
  }
}

TEST(StartsExpression, NeverAtTheStartOfTheInput) {
  EXPECT_FALSE(StartsExpression(Between("", "/a/").Window()));
  EXPECT_FALSE(StartsExpression(Between(" \n\t\r", "/a/").Window()));
}

TEST(StartsExpression, NeverAfterANul) {
  EXPECT_FALSE(StartsExpression(Between(std::string_view("=\0", 2), "/").Window()));
}

TEST(IsRegexHead, DependsOnBothSides) {
  const struct {
    std::string_view before;
    std::string_view after;
    bool expected;
  } cases[] = {
      {"x = ", "/ab/", true},   {"f(", "/ab/)", true},    {"(a, ", "/b/)", true},
      {"case ", "/x/:", true},  {"in ", "/x/", true},     {"a", "/b", false},
      {"a ", "/ b", false},     {"x = ", "/ 2", false},   {"x = ", "/\t2", false},
      {"x = ", "/\n", false},   {"x = ", "/\r\n", false}, {"x = ", "/)", false},
      {"x = ", "/*a*/", false}, {"", "/a/", false},       {"x = ", "/", true},
      {"x = ", "/\v/", true},
  };
  for (const auto& one : cases) {
    EXPECT_EQ(IsRegexHead(Between(one.before, one.after).Window()), one.expected)
        << one.before << one.after;
  }
}

}  // namespace
}  // namespace vexltags
