// SPDX-License-Identifier: MIT
// Tests of the directive predicates and of the scans over dropped conditional text.
#include "cfamily/directives.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <random>
#include <string>

namespace vexltags {
namespace {

constexpr std::size_t kNone = std::string_view::npos;

struct PrefixCase {
  std::string_view text;
  bool matches;
};

void ExpectPrefixes(bool (*predicate)(std::string_view), std::initializer_list<PrefixCase> cases) {
  for (const PrefixCase& each : cases) {
    EXPECT_EQ(predicate(each.text), each.matches) << each.text;
    // The result is the same with text after it, and a text that ends early is harmless.
    EXPECT_EQ(predicate(std::string(each.text) + "\n#endif\n"), each.matches) << each.text;
    if (!each.matches) continue;
    EXPECT_FALSE(predicate(each.text.substr(1))) << each.text;
    EXPECT_FALSE(predicate(each.text.substr(0, 3))) << each.text;
    EXPECT_FALSE(predicate("")) << each.text;
  }
}

TEST(Directives, IfZeroMatch) {
  ExpectPrefixes(IfZeroMatch, {{"#if 0", true},
                               {"#if 0 // off", true},
                               {"#if 00", true},
                               {"#if 0x10", true},
                               {"#if 0 || defined(X)", true},
                               {"#if 0 + 1", true},
                               {"#\t if \t0", true},
                               {"#if (0)", false},
                               {"#if !1", false},
                               {"#if 1", false},
                               {"#if0", false},
                               {" #if 0", false},
                               {"#ifdef 0", false},
                               {"#elif 0", false},
                               {"#if \\\n0", false},
                               {"if 0", false}});
}

TEST(Directives, IfDefinedWellKnownNegative) {
  ExpectPrefixes(IfDefinedWellKnownNegative, {{"#ifdef _LIBCPP_HAS_NO_THREADS", true},
                                              {"#ifdef _LIBCPP_CXX03_LANG", true},
                                              {"# \tifdef\t _LIBCPP_CXX03_LANG", true},
                                              {"#ifdef _LIBCPP_HAS_NO_THREADS_X", true},
                                              {"#ifdef _LIBCPP_HAS_NO_THREAD", false},
                                              {"#ifdef _LIBCPP_CXX03_LAN", false},
                                              {"#ifndef _LIBCPP_CXX03_LANG", false},
                                              {"#if defined(_LIBCPP_CXX03_LANG)", false},
                                              {"#ifdef FOO", false},
                                              {" #ifdef _LIBCPP_CXX03_LANG", false}});
}

TEST(Directives, ElifZeroMatch) {
  ExpectPrefixes(ElifZeroMatch, {{"#elif 0", true},
                                 {"# elif\t01", true},
                                 {"#elif0", false},
                                 {"#elif 1", false},
                                 {"#else 0", false},
                                 {" #elif 0", false}});
}

TEST(Directives, EndifMatch) {
  for (const std::string_view text : {"#endif", " \t#endif", "# \tendif", "  #  endifx // a"}) {
    EXPECT_TRUE(EndifMatch(text)) << text;
  }
  for (const std::string_view text : {"", " ", "#", "#endi", "#else", "#elif", "#if", "a #endif"}) {
    EXPECT_FALSE(EndifMatch(text)) << text;
  }
}

TEST(Directives, EndifOrElifOrElseMatch) {
  for (const std::string_view text :
       {"#endif", "#else", "#elif", "\t # \telse", "#elsewhere", "#endifx", "#elif0"}) {
    EXPECT_TRUE(EndifOrElifOrElseMatch(text)) << text;
  }
  for (const std::string_view text : {"", " ", "#", "#el", "#els", "#if", "#define", "x#else"}) {
    EXPECT_FALSE(EndifOrElifOrElseMatch(text)) << text;
  }
}

TEST(Directives, EndOfLogicalLine) {
  EXPECT_EQ(EndOfLogicalLine("ab\ncd", 0), 3u);
  EXPECT_EQ(EndOfLogicalLine("ab\ncd", 3), 5u);
  EXPECT_EQ(EndOfLogicalLine("a\r\nb", 0), 2u);
  EXPECT_EQ(EndOfLogicalLine("a\\\nb\nc", 0), 5u);
  EXPECT_EQ(EndOfLogicalLine("a\\\r\nb\nc", 0), 6u);
  EXPECT_EQ(EndOfLogicalLine("a\\\rb\nc", 0), 5u);
  EXPECT_EQ(EndOfLogicalLine("a\\\\\nb\nc", 0), 6u);
  EXPECT_EQ(EndOfLogicalLine("a\\ \nb", 0), 4u);
  EXPECT_EQ(EndOfLogicalLine("a\\", 0), 2u);
  EXPECT_EQ(EndOfLogicalLine("a\\\n", 0), 3u);
  EXPECT_EQ(EndOfLogicalLine("", 0), 0u);
}

TEST(Directives, EndOfComment) {
  const auto end = [](std::string_view text, std::size_t pos) {
    ConditionalMemo memo;
    return EndOfComment(text, pos, memo);
  };
  EXPECT_EQ(end("/**/", 0), 4u);
  EXPECT_EQ(end("x/* a\n*/ */", 1), 8u);
  EXPECT_EQ(end("/*/ */", 0), 6u);
  EXPECT_EQ(end("/*/", 0), kNone);
  EXPECT_EQ(end("/* a", 0), kNone);
  EXPECT_EQ(end("// a\nb", 0), 5u);
  EXPECT_EQ(end("// a\r\nb", 0), 6u);
  EXPECT_EQ(end("// a\rb", 0), 5u);
  EXPECT_EQ(end("// a \\\nb", 0), 7u);
  EXPECT_EQ(end("// a", 0), kNone);
  EXPECT_EQ(end("/ a\n", 0), kNone);
  EXPECT_EQ(end("/", 0), kNone);
}

TEST(Directives, CommentCloseIsRightInAnyOrderOfCalls) {
  const std::string_view text = "ab*/cd*/ef";
  ConditionalMemo memo;
  for (const std::size_t from : {0u, 2u, 3u, 6u, 1u, 7u, 9u, 0u, 8u}) {
    EXPECT_EQ(memo.CommentClose(text, from), text.find("*/", from)) << from;
  }
}

// Returns what a scan from the start of `text` leaves, "none" when it finds no end.
std::string RestAfter(std::size_t (*scan)(std::string_view, std::size_t, ConditionalMemo&),
                      std::string_view text) {
  ConditionalMemo memo;
  const std::size_t end = scan(text, 0, memo);
  return end == kNone ? "none" : std::string(text.substr(end));
}

TEST(Directives, EndOfIfZeroBody) {
  const auto rest = [](std::string_view text) { return RestAfter(EndOfIfZeroBody, text); };
  EXPECT_EQ(rest("a\n#endif x\nb\n"), "b\n");
  EXPECT_EQ(rest("a\n#else\nb\n"), "b\n");
  EXPECT_EQ(rest("a\n#elif X\nb\n"), "b\n");
  EXPECT_EQ(rest("a\n#elif 0\nb\n#else\nc\n"), "c\n");
  EXPECT_EQ(rest(" \t# endif\nb"), "b");
  EXPECT_EQ(rest("#if X\n#else\n#endif\na\n#else\nb\n"), "b\n");
  EXPECT_EQ(rest(" #if X\n#endif\na\n"), "a\n");
  EXPECT_EQ(rest("#if X\na\n#else\nb\n"), "b\n");
  EXPECT_EQ(rest("/*\n#endif\n*/#endif\nb\n"), "b\n");
  EXPECT_EQ(rest("a /*\n#endif\nb */\n"), "b */\n");
  EXPECT_EQ(rest("a \\\n#endif\n#else\nb\n"), "b\n");
  EXPECT_EQ(rest("#endif"), "");
  EXPECT_EQ(rest("a\r\n#endif\r\nb"), "\nb");
  EXPECT_EQ(rest("a\n"), "none");
  EXPECT_EQ(rest(""), "none");
  EXPECT_EQ(rest("#elif 0\na\n"), "none");
}

TEST(Directives, EndOfConditional) {
  const auto rest = [](std::string_view text) { return RestAfter(EndOfConditional, text); };
  EXPECT_EQ(rest("a\n#else\n#elif 0\n #endif\nb\n"), "b\n");
  EXPECT_EQ(rest("#ifdef A\n#if B\n#endif\n#endif\n#endif\nb\n"), "b\n");
  EXPECT_EQ(rest(" #if A\n#endif\nb\n"), "b\n");
  EXPECT_EQ(rest("#if A\n#endif\nb\n"), "none");
  EXPECT_EQ(rest("//#endif\n/#endif\n"), "none");
  EXPECT_EQ(rest("#endif"), "");
  EXPECT_EQ(rest(""), "none");
}

// The rules of dropped text as plain recursion: what each scan promises, without optimisations.
class Model {
 public:
  explicit Model(std::string_view text) : text_(text) {}

  std::size_t IfZeroBody(std::size_t pos) {
    pos = Loop(pos, EndifOrElifOrElseMatch);
    if (pos == text_.size()) return kNone;
    const bool again = ElifZeroMatch(text_.substr(pos));
    pos = Line(pos);
    return again ? IfZeroBody(pos) : pos;
  }

  std::size_t Conditional(std::size_t pos) {
    pos = Loop(pos, EndifMatch);
    return pos == text_.size() ? kNone : Line(pos);
  }

 private:
  using Closing = bool (*)(std::string_view);

  // Returns the offset of the closing `#`, or the end of the text.
  std::size_t Loop(std::size_t pos, Closing closing) {
    while (pos < text_.size()) {
      const std::string_view ahead = text_.substr(pos);
      const bool blank = ahead[0] == ' ' || ahead[0] == '\t';
      std::size_t end = kNone;
      if (ahead[0] == '/') end = Comment(pos);
      if (ahead[0] == '#') end = Nested(pos);
      if (end != kNone) {
        pos = end;
      } else if (ahead[0] == '#' && closing(ahead)) {
        return pos;
      } else if (blank && closing(ahead)) {
        ++pos;
      } else {
        pos = Line(pos);
      }
    }
    return pos;
  }

  std::size_t Nested(std::size_t pos) {
    std::size_t p = pos + 1;
    while (p < text_.size() && (text_[p] == ' ' || text_[p] == '\t')) ++p;
    return text_.substr(p).starts_with("if") ? Conditional(Line(pos)) : kNone;
  }

  std::size_t Comment(std::size_t pos) {
    const std::string_view ahead = text_.substr(pos);
    if (ahead.starts_with("/*")) {
      const std::size_t close = text_.find("*/", pos + 2);
      return close == kNone ? kNone : close + 2;
    }
    if (!ahead.starts_with("//")) return kNone;
    const std::size_t end = text_.find_first_of("\r\n", pos);
    if (end == kNone) return kNone;
    return end + (text_.substr(end).starts_with("\r\n") ? 2 : 1);
  }

  std::size_t Line(std::size_t pos) {
    while (pos < text_.size()) {
      const std::string_view ahead = text_.substr(pos);
      if (ahead.starts_with("\\\r\n")) {
        pos += 3;
      } else if (ahead.starts_with("\\\n") || ahead.starts_with("\\\r")) {
        pos += 2;
      } else if (ahead[0] == '\n' || ahead[0] == '\r') {
        return pos + 1;
      } else {
        ++pos;
      }
    }
    return pos;
  }

  std::string_view text_;
};

TEST(Directives, ScansAgreeWithPlainRules) {
  constexpr std::string_view kPieces[] = {
      "#if X\n",   "#if X\n",   "#ifdef Y\r\n", "# if Z\n", " #if 0\n",  "#if 0\n",     "#else\n",
      "#elif 0\n", "#elif X\n", "#endif\n",     "#endif\n", " #endif\n", "#endif\r\n",  "#endif",
      "/*",        "*/",        "//",           "/",        "\\",        "\n",          "\r",
      "\r\n",      " ",         "\t",           "a\n",      "#\n",       "#define x\n", "b"};
  std::mt19937 random(20240607);
  int closed = 0;
  for (int round = 0; round < 1000; ++round) {
    std::string text;
    for (std::uint32_t n = random() % 24; n > 0; --n) {
      text += kPieces[random() % std::size(kPieces)];
    }
    Model model(text);
    ConditionalMemo shared;
    for (std::size_t pos = 0; pos <= text.size(); ++pos) {
      ConditionalMemo fresh;
      const std::size_t body = model.IfZeroBody(pos);
      ASSERT_EQ(EndOfIfZeroBody(text, pos, fresh), body) << text << "\nfrom " << pos;
      ASSERT_EQ(EndOfIfZeroBody(text, pos, shared), body) << text << "\nfrom " << pos;
      const std::size_t conditional = model.Conditional(pos);
      ASSERT_EQ(EndOfConditional(text, pos, fresh), conditional) << text << "\nfrom " << pos;
      ASSERT_EQ(EndOfConditional(text, pos, shared), conditional) << text << "\nfrom " << pos;
      closed += body != kNone;
    }
  }
  EXPECT_GT(closed, 5000);
}

std::string Repeat(std::string_view piece, int times) {
  std::string text;
  for (int i = 0; i < times; ++i) text += piece;
  return text;
}

// Each of these would take minutes if every opening were searched for its end anew.
TEST(Directives, DeepAndUnclosedOpeningsTakeLinearTime) {
  constexpr int kMany = 100000;
  const std::string opened = Repeat("#if X\n", kMany);
  ConditionalMemo nested;
  const std::string balanced = opened + Repeat("#endif\n", kMany) + "#endif\n";
  EXPECT_EQ(EndOfIfZeroBody(balanced, 0, nested), balanced.size());
  EXPECT_EQ(EndOfConditional(balanced, 0, nested), balanced.size());

  ConditionalMemo unclosed;
  EXPECT_EQ(EndOfConditional(opened, 0, unclosed), kNone);
  EXPECT_EQ(EndOfIfZeroBody(opened, 0, unclosed), kNone);
  const std::string closed_by_else = opened + "#else\n";
  ConditionalMemo other;
  EXPECT_EQ(EndOfIfZeroBody(closed_by_else, 0, other), closed_by_else.size());

  // A sequence of bodies, each with an unclosed conditional.
  const std::string bodies = Repeat("#if X\na\n#else\n#if 0\n", kMany);
  ConditionalMemo kept;
  std::size_t pos = 0;
  int count = 0;
  while (pos < bodies.size()) {
    pos = EndOfIfZeroBody(bodies, pos, kept);
    ASSERT_NE(pos, kNone);
    ++count;
    pos = EndOfLogicalLine(bodies, pos);
  }
  EXPECT_EQ(count, kMany);

  const std::string comments = Repeat("/* a\n", kMany) + "#endif\n";
  ConditionalMemo open_comments;
  EXPECT_EQ(EndOfIfZeroBody(comments, 0, open_comments), comments.size());
}

}  // namespace
}  // namespace vexltags
