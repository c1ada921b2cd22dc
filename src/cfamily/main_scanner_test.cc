// SPDX-License-Identifier: MIT
// Tests of the C-family scanner: its tokens, and what it leaves to the generated lexer.
#include "cfamily/main_scanner.h"

#include <gtest/gtest.h>

#include <cstring>

#include "cfamily/main_words.h"
#include "testing/scan_fixture.h"
#include "vocabulary/main_tokens.h"

namespace vexltags {
namespace {

using testing_support::Scanned;
using testing_support::ScanText;
using Tokens = std::vector<std::string>;

Scanned Scan(const std::string& text) { return ScanText(ScanMain, text); }

unsigned Classify(const char* word) {
  return ClassifyMainWord(reinterpret_cast<const unsigned char*>(word), std::strlen(word));
}

TEST(ClassifyMainWord, KnowsKeywordsNamesAndPossibleMacros) {
  const struct {
    const char* word;
    unsigned type;
  } kRows[] = {
      {"_LIBCPP_END_NAMESPACE_STD", kMainEndNamespaceStd},
      {"typedef", kMainKw_typedef},
      {"volatile", kMainKw_volatile},
      {"far", kMainKw_far},
      {"FAR", kMainKw_FAR},
      {"_NOEXCEPT_DEBUG", kMainNoexceptDebug},
      {"IBOutlet", kMainKw_IBOutlet},
      {"union", kMainKw_union},
      {"int", kMainKw_int},
      {"intx", kMainId},
      {"in", kMainId},
      {"x", kMainId},
      {"getter", kMainId},
      {"NS_ENU", kMainId},
      {"CF_RETURNS_RETAIN", kMainId},
      {"__attribut", kMainId},
      {"UNIT_TES", kMainId},
      {"NS_ENUM", kMainMaybeMacro},
      {"CF_ENUM_AVAILABLE", kMainMaybeMacro},
      {"CF_RETURNS_RETAINEDX", kMainMaybeMacro},
      {"_LIBCPP_INLINE", kMainMaybeMacro},
      {"UNIT_TEST_ONLY", kMainMaybeMacro},
      {"__attribute__", kMainMaybeMacro},
      {"DEPRECATED_IN_MAC_OS_X_VERSION_10_5", kMainMaybeMacro},
      {"_ALIGNAS", kMainMaybeMacro},
  };
  for (const auto& row : kRows) EXPECT_EQ(Classify(row.word), row.type) << row.word;
}

TEST(ScanMain, ReadsTheLongestOperator) {
  const struct {
    const char* text;
    Tokens tokens;
  } kRows[] = {
      {"<=> <= <<= << <", {"61:1:<=>", "39:1:<=", "26:1:<<=", "40:1:<<", "16:1:<"}},
      {"->* -> -- -= -", {"47:1:->*", "54:1:->", "49:1:--", "24:1:-=", "42:1:-"}},
      {"p-->q", {"14:1:p", "49:1:--", "17:1:>", "14:1:q"}},
      {"a>>=b", {"14:1:a", "17:1:>", "27:1:>=", "14:1:b"}},
      {"++ += + && &= & || |= |",
       {"48:1:++", "23:1:+=", "41:1:+", "33:1:&&", "28:1:&=", "36:1:&", "32:1:||",
        "30:1:|=", "34:1:|"}},
      {"* *= % %= ^ ^= ! != = ==",
       {"43:1:*", "21:1:*=", "45:1:%", "25:1:%=", "35:1:^", "29:1:^=", "59:1:!",
        "37:1:!=", "20:1:=", "38:1:=="}},
      {":: : ... .* . / /= ~ ? , ; ( ) { } [ ]",
       {"50:1:::", "15:1::", "9:1:...", "46:1:.*", "53:1:.", "44:1:/", "22:1:/=", "58:1:~",
        "31:1:?", "8:1:,", "5:1:;", "6:1:(", "7:1:)", "10:1:{", "4:1:}", "51:1:[", "52:1:]"}},
  };
  for (const auto& row : kRows) {
    const Scanned scanned = Scan(row.text);
    EXPECT_EQ(scanned.tokens, row.tokens) << row.text;
    EXPECT_EQ(scanned.stopped, std::strlen(row.text)) << row.text;
  }
}

TEST(ScanMain, ReadsWholeNumbers) {
  for (const char* number :
       {"0", "1'000'000", "0x1F'FFul", "1.5e-3f", "1.e5L", "1.", "10ull", "1e9"}) {
    EXPECT_EQ(Scan(number).tokens, Tokens{std::string("55:1:") + number}) << number;
  }
  EXPECT_EQ(Scan("0b101").tokens, (Tokens{"55:1:0", "14:1:b101"}));
  EXPECT_EQ(Scan("1.5lf").tokens, (Tokens{"55:1:1.5l", "14:1:f"}));
}

TEST(ScanMain, ReadsNothingAfterTheText) {
  for (const char* number : {"7", "0x1F", "1'0", "1.5", "1.5e10", "1L", "1.5f"}) {
    EXPECT_EQ(Scan(number).tokens, Tokens{std::string("55:1:") + number}) << number;
  }
  EXPECT_EQ(Scan("#  ").stopped, 0U);
  EXPECT_EQ(Scan("a ").stopped, 2U);
  // Neither does what would complete an escape or a directive.
  EXPECT_EQ(ScanText(ScanMain, "\"a\\", "n\" b").stopped, 0U);
  EXPECT_EQ(ScanText(ScanMain, "# ", " undef a\nb").stopped, 0U);
}

TEST(ScanMain, ReadsLiterals) {
  EXPECT_EQ(Scan("\"a\\\"b\" c").tokens, (Tokens{"57:1:\"a\\\"b\"", "14:1:c"}));
  EXPECT_EQ(Scan("\"a\\\nb\" c").tokens, (Tokens{"57:1:\"a\\\nb\"", "14:2:c"}));
  EXPECT_EQ(Scan("'\\x41' 'ab'").tokens, (Tokens{"56:1:'\\x41'", "56:1:'ab'"}));
}

TEST(ScanMain, HidesCommentsAndDirectives) {
  const Scanned scanned =
      Scan("// a \\\nb /* c\n*/ d\n#include_next <x>\n# if 1 && \\\n 2\n#endif x\n#pragma y\r\nz");
  EXPECT_EQ(scanned.tokens, (Tokens{"14:2:b", "14:3:d", "14:9:z"}));
  EXPECT_EQ(scanned.errors, 0U);
}

TEST(ScanMain, HidesMacrosOfLibCpp) {
  EXPECT_EQ(Scan("_LIBCPP_INLINE int a").tokens, (Tokens{"148:1:int", "14:1:a"}));
  EXPECT_EQ(Scan("_LIBCPP_X(a(b)\n'\"') c").tokens, Tokens{"14:2:c"});
  EXPECT_EQ(Scan("_LIBCPP_X").stopped, 9U);
  // The prefix alone is a name, and longer arguments take longer to find: both are left to the
  // lexer.
  EXPECT_EQ(Scan("_LIBCPP_ a").stopped, 0U);
  EXPECT_EQ(Scan("_LIBCPP_X(" + std::string(600, 'a') + ")").stopped, 0U);
}

TEST(ScanMain, NamesMacrosAndSkipsTheirBodies) {
  EXPECT_EQ(Scan("#define FOO(a, b) \\\n x\nc").tokens, (Tokens{"60:1:FOO", "14:3:c"}));
  EXPECT_EQ(Scan("#define FOO /* a\nb */ 1\nc").tokens, (Tokens{"60:1:FOO", "14:3:c"}));
  EXPECT_EQ(Scan("#define FOO /* a\nb").tokens, (Tokens{"60:1:FOO", "14:2:b"}));
  EXPECT_EQ(Scan("#  define  BAR").tokens, (Tokens{"60:1:BAR"}));
  EXPECT_EQ(Scan("#define FOO\\\nc").tokens, (Tokens{"60:1:FOO", "14:2:c"}));
}

TEST(ScanMain, DropsUnknownCharacters) {
  const Scanned scanned = Scan(
      "a$b`c\\d\fe\x80"
      "f");
  EXPECT_EQ(scanned.tokens, (Tokens{"14:1:a", "14:1:b", "14:1:c", "14:1:d", "14:1:e", "14:1:f"}));
  EXPECT_EQ(scanned.errors, 5U);
}

TEST(ScanMain, LeavesWhatIsRareOrFails) {
  for (const char* rest : {"NS_ENUM(a, b)",
                           "_LIBCPP_X(a(b)",
                           "_LIBCPP_X (a)",
                           "_LIBCPP_BEGIN_NAMESPACE_FILES a",
                           "_LIBCPP_BEGIN_NAMESPACE_STD(x)",
                           "_LIBCPP_END_NAMESPACE_STD(",
                           "getter=",
                           "@end",
                           "[[x]]",
                           "..x",
                           "0x",
                           "1e",
                           "\"a\nb\"",
                           "\"\\e\"",
                           "''",
                           "'a",
                           "/* open",
                           "// no line end",
                           "#if 0\n",
                           "#ifdef _LIBCPP_CXX03_LANG\n",
                           "#else\n",
                           "#elif 1\n",
                           "#define 1",
                           "#line 3",
                           "#",
                           "#  "}) {
    const Scanned scanned = Scan(std::string("x ") + rest);
    EXPECT_EQ(scanned.stopped, 2U) << rest;
    EXPECT_EQ(scanned.tokens, Tokens{"14:1:x"}) << rest;
  }
}

}  // namespace
}  // namespace vexltags
