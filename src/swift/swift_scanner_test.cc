// SPDX-License-Identifier: MIT
// Tests of the Swift scanner: its tokens, and what it leaves to the generated lexer.
#include "swift/swift_scanner.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "testing/scan_fixture.h"

namespace vexltags {
namespace {

using testing_support::Scanned;
using testing_support::ScanText;
using Tokens = std::vector<std::string>;

Tokens TokensOf(const std::string& text) {
  const Scanned scanned = ScanText(ScanSwift, text);
  EXPECT_EQ(scanned.stopped, text.size()) << text;
  EXPECT_EQ(scanned.errors, 0U) << text;
  return scanned.tokens;
}

/// Returns the offset at which the scanner stops in `text`.
std::size_t StopIn(const std::string& text) { return ScanText(ScanSwift, text).stopped; }

TEST(ScanSwift, ReadsWordsAndMarks) {
  EXPECT_EQ(TokensOf("func f<T>(a: [Int]?) -> B {}"),
            (Tokens{"68:1:func", "50:1:f", "8:1:<", "50:1:T", "9:1:>", "6:1:(", "50:1:a",
                    "11:1::", "19:1:[", "50:1:Int", "20:1:]", "15:1:?", "7:1:)", "91:1:->",
                    "50:1:B", "31:1:{", "5:1:}"}));
  EXPECT_EQ(TokensOf(";,=&!\\+*%|^~-"),
            (Tokens{"4:1:;", "10:1:,", "12:1:=", "13:1:&", "16:1:!", "21:1:\\", "35:1:+", "36:1:*",
                    "37:1:%", "38:1:|", "39:1:^", "40:1:~", "34:1:-"}));
}

TEST(ScanSwift, ReadsNothingAfterTheText) {
  EXPECT_EQ(TokensOf("$12"), Tokens{"50:1:$12"});
  EXPECT_EQ(TokensOf("a12"), Tokens{"50:1:a12"});
}

TEST(ScanSwift, ReadsDots) {
  EXPECT_EQ(TokensOf("a.b..c...d..<e..>....."),
            (Tokens{"50:1:a", "17:1:.", "50:1:b", "14:1:..", "50:1:c", "14:1:...", "50:1:d",
                    "14:1:..<", "46:1:e", "14:1:..", "9:1:>", "14:1:...", "14:1:.."}));
}

TEST(ScanSwift, ReadsNumbers) {
  EXPECT_EQ(TokensOf("1 1_0 0b10_ 0o17 0xF_f 1.5 1e5 1e+5 0x1p3"),
            (Tokens{"41:1:1", "41:1:1_0", "42:1:0b10_", "43:1:0o17", "44:1:0xF_f", "41:1:1",
                    "17:1:.", "41:1:5", "41:1:1", "50:1:e5", "41:1:1", "46:1:e", "35:1:+", "41:1:5",
                    "44:1:0x1", "50:1:p3"}));
}

TEST(ScanSwift, ReadsPrefixesOfNumbersWithoutDigits) {
  EXPECT_EQ(TokensOf("0b2 0b_ 0o8 0xg 0b"),
            (Tokens{"146:1:0b", "41:1:2", "146:1:0b", "50:1:_", "147:1:0o", "41:1:8", "145:1:0x",
                    "50:1:g", "146:1:0b"}));
}

TEST(ScanSwift, ReadsNamesWithMarks) {
  EXPECT_EQ(TokensOf("`func` $0 $12a $ ``1`"),
            (Tokens{"50:1:`func`", "50:1:$0", "50:1:$12", "50:1:a", "148:1:$", "52:1:`", "52:1:`",
                    "41:1:1", "52:1:`"}));
}

TEST(ScanSwift, DistinguishesRegularExpressionsFromDivisions) {
  EXPECT_EQ(TokensOf("a/b = /c/ (/)/"),
            (Tokens{"50:1:a", "33:1:/", "50:1:b", "12:1:=", "56:1:/", "50:1:c", "33:1:/", "6:1:(",
                    "33:1:/", "7:1:)", "33:1:/"}));
  EXPECT_EQ(TokensOf("/a"), (Tokens{"33:1:/", "50:1:a"}));
}

TEST(ScanSwift, HidesCommentsAndCountsTheirLines) {
  EXPECT_EQ(TokensOf("a // b\r\nc /* d\n/* \n*/ e */ f //\fg\vh"),
            (Tokens{"50:1:a", "50:2:c", "50:4:f"}));
  EXPECT_EQ(TokensOf("/*/ */*/**/"), (Tokens{"36:1:*"}));
}

TEST(ScanSwift, HidesAttributes) {
  EXPECT_EQ(TokensOf("@objc(a(b):) @objc  (c) @objc() @objc\n(d)"),
            (Tokens{"6:1:(", "7:1:)", "6:2:(", "50:2:d", "7:2:)"}));
  EXPECT_EQ(TokensOf("@A<B<C>> @A <D> @State2 @Foo(x) @objcMembers(y)"),
            (Tokens{"8:1:<", "50:1:D", "9:1:>", "41:1:2", "6:1:(", "50:1:x", "7:1:)", "6:1:(",
                    "50:1:y", "7:1:)"}));
  EXPECT_EQ(TokensOf("@available(a) @Environment(b) @ModelPublished(c) @_spi(d) e"),
            (Tokens{"46:1:e"}));
}

TEST(ScanSwift, RecognisesUnclosedAttributes) {
  EXPECT_EQ(TokensOf("@objc(a @objc(b) @objc(c"), (Tokens{"6:1:(", "50:1:a", "6:1:(", "50:1:c"}));
}

TEST(ScanSwift, HidesHashLines) {
  EXPECT_EQ(TokensOf("#if A && \\\n  b\nc\n#else d\\e\n#elseif\nf\n#endif"),
            (Tokens{"50:3:c", "50:6:f"}));
  EXPECT_EQ(TokensOf("#if a\\\r\nb\r\nc #ifdef\rd"), (Tokens{"50:3:c", "50:3:d"}));
  EXPECT_EQ(TokensOf("#warning(\"a (b)\")#error(\"c\")d"), (Tokens{"50:1:d"}));
}

TEST(ScanSwift, ReadsHashWords) {
  EXPECT_EQ(TokensOf("#file #filePath #selector"),
            (Tokens{"102:1:#file", "100:1:#filePath", "118:1:#selector"}));
}

TEST(ScanSwift, ReadsStrings) {
  EXPECT_EQ(TokensOf("\"\" \"a\\\"b\\\\\" \"\\(f(\")\"))\" \"\\u{1F}\\x41\\0\\'\\n\\r\\t\""),
            (Tokens{"22:1:\"\"", "22:1:\"a\\\"b\\\\\"", "22:1:\"\\(f(\")\"))\"",
                    "22:1:\"\\u{1F}\\x41\\0\\'\\n\\r\\t\""}));
}

TEST(ScanSwift, ReadsLongStrings) {
  EXPECT_EQ(TokensOf("\"\"\"\n\"a\" \"\"b\n\\(c(\"\"\"))\"\"\" d"),
            (Tokens{"22:1:\"\"\"\n\"a\" \"\"b\n\\(c(\"\"\"))\"\"\"", "50:3:d"}));
  // A quote consumes the backslash after it.
  EXPECT_EQ(TokensOf("\"\"\"\"\\(\"\"\" a"), (Tokens{"22:1:\"\"\"\"\\(\"\"\"", "50:1:a"}));
}

TEST(ScanSwift, ReadsRawStrings) {
  EXPECT_EQ(TokensOf("#\"a\"b\\(\n\"# #\"\\#(\"#\")\"# c"),
            (Tokens{"23:1:#\"a\"b\\(\n\"#", "23:2:#\"\\#(\"#\")\"#", "50:2:c"}));
}

TEST(ScanSwift, LeavesErrorsToTheGeneratedLexer) {
  EXPECT_EQ(StopIn("a \"b\nc\""), 2U);
  EXPECT_EQ(StopIn("a \"b\\qc\""), 2U);
  EXPECT_EQ(StopIn("a \"b\\u{}\""), 2U);
  EXPECT_EQ(StopIn("a \"b\\x1\""), 2U);
  EXPECT_EQ(StopIn("a \"b\\(c\""), 2U);
  EXPECT_EQ(StopIn("a \"\"\"b\n"), 2U);
  EXPECT_EQ(StopIn("a \"\"\"b\\\n\"\"\""), 2U);
  EXPECT_EQ(StopIn("a #\"b\""), 2U);
  EXPECT_EQ(StopIn("a /* /* */"), 2U);
  EXPECT_EQ(StopIn("a `b c"), 2U);
  EXPECT_EQ(StopIn("a @ b"), 2U);
  EXPECT_EQ(StopIn("a @B<c"), 2U);
  EXPECT_EQ(StopIn("a #warning (b)"), 2U);
  EXPECT_EQ(StopIn("a #warning(b"), 2U);
  EXPECT_EQ(StopIn("a #sourceLocation"), 2U);
  EXPECT_EQ(StopIn("a 'b'"), 2U);
  EXPECT_EQ(StopIn("a \xC3\xA9"), 2U);
}

}  // namespace
}  // namespace vexltags
