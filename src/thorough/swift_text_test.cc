// SPDX-License-Identifier: MIT
// Tests of what is blanked in Swift source before the lexer reads it.
#include "thorough/swift_text.h"

#include <gtest/gtest.h>

#include <string>

namespace vexltags::thorough {
namespace {

/// The copy with each run of blanks as one. Checks that lengths and line ends are those of
/// `source`.
std::string Plain(const std::string& source) {
  SwiftText text;
  const std::string copy = text.Simplify(source);
  EXPECT_EQ(copy.size(), source.size()) << source;
  std::string result;
  for (std::size_t i = 0; i < copy.size() && i < source.size(); ++i) {
    const bool isLineEnd = source[i] == '\n' || source[i] == '\r';
    EXPECT_EQ(copy[i] == '\n' || copy[i] == '\r', isLineEnd) << source;
    if (copy[i] != ' ' || result.empty() || result.back() != ' ') result += copy[i];
  }
  return result;
}

TEST(SwiftText, LeavesPlainCode) {
  for (const char* code : {"", "let x = 1", "func f(a: Int) -> [B?] { a.b(c) }\n", "a\tb\r\nc",
                           "`class` = $0 + \\.path", "x = a / b / c", "a /= b", "(1, /)"}) {
    EXPECT_EQ(Plain(code), code);
  }
}

TEST(SwiftText, BlanksStrings) {
  EXPECT_EQ(Plain(R"_(a "b" c)_"), "a c");
  EXPECT_EQ(Plain(R"_(a "" c)_"), "a c");
  EXPECT_EQ(Plain(R"_(a "\"b\\" c)_"), "a c");
  EXPECT_EQ(Plain("a \"\"\"\n b \" \"\" {\n \"\"\" c"), "a \n \n c");
  EXPECT_EQ(Plain("a \"\"\"\n b \\\n \\\"\"\" \"\"\" c"), "a \n \n c");
  EXPECT_EQ(Plain("a \"open\nb"), "a \nb");
}

TEST(SwiftText, BlanksInterpolationsWithStringsInThem) {
  EXPECT_EQ(Plain(R"_(a "\(b["c"]) {" d)_"), "a d");
  EXPECT_EQ(Plain(R"_(a "\(b("\(c(")"))")) {" d)_"), "a d");
  EXPECT_EQ(Plain("a \"\"\"\n\\(b(\"\"\"\n)\n\"\"\"))\n\"\"\" d"), "a \n \n \n \n d");
  EXPECT_EQ(Plain("a \"\\(b(\n1))\" d"), "a \n d");
}

TEST(SwiftText, BlanksRawStrings) {
  EXPECT_EQ(Plain(R"_(a #"b"c"# d)_"), "a d");
  EXPECT_EQ(Plain(R"_(a ##"b"#\(c\#("##e)_"), "a e");
  EXPECT_EQ(Plain(R"_(a #"\"# d)_"), "a d");
  EXPECT_EQ(Plain(R"_(a #"\#(b("#"))"# d)_"), "a d");
  EXPECT_EQ(Plain(R"_(a #"""# d)_"), "a d");
  EXPECT_EQ(Plain("a #\"\"\"\n\"\"\" \\(\n\"\"\"# d"), "a \n \n d");
}

TEST(SwiftText, BlanksComments) {
  EXPECT_EQ(Plain("a // \"b\r\nc \"d // e\" // f"), "a // \"b\r\nc // f");
  EXPECT_EQ(Plain("a /* b /* { */ \n \" */ c"), "a \n c");
  EXPECT_EQ(Plain("a /* /* */ b\nc"), "a \n ");
}

TEST(SwiftText, BlanksAttributesWithTheirArguments) {
  EXPECT_EQ(Plain("@objc func f()"), " func f()");
  EXPECT_EQ(Plain(R"_(@A.B2<[C: D]>("}", { $0 ) } ) var x)_"), " } ) var x");
  EXPECT_EQ(Plain(R"_(@A(b: (")"), c) var x)_"), " var x");
  EXPECT_EQ(Plain("@available (iOS 13, *) func f"), " func f");
  EXPECT_EQ(Plain("@escaping (Int) -> Void"), " (Int) -> Void");
}

TEST(SwiftText, BlanksDirectivesAndDiagnostics) {
  EXPECT_EQ(Plain("#if A && swift(>=5)\nlet x\n#else // {\n#endif"), " \nlet x\n // {\n ");
  EXPECT_EQ(Plain("#error(\"{\") let"), " let");
  EXPECT_EQ(Plain("#!/usr/bin/swift {\nlet"), " \nlet");
  EXPECT_EQ(Plain("#Preview { x }"), " Preview { x }");
  EXPECT_EQ(Plain("if #available(iOS 13, *)"), "if available(iOS 13, *)");
}

TEST(SwiftText, BlanksRegularExpressions) {
  EXPECT_EQ(Plain(R"_(let a = /\{"(b)[/(]/ c)_"), "let a = (]/ c");
  EXPECT_EQ(Plain(R"_(let a = /\{"(b)\// c)_"), "let a = c");
  EXPECT_EQ(Plain("let a = #/ { \n } /# c"), "let a = \n c");
  EXPECT_EQ(Plain("return /{/"), "return ");
  EXPECT_EQ(Plain("a = b!/2 // (c"), "a = b!/2 // (c");
  EXPECT_EQ(Plain("a = +/2 / (c/"), "a = +/2 / (c/");
  EXPECT_EQ(Plain("func / (a: A)"), "func / (a: A)");
}

TEST(SwiftText, MakesNamesInAnyScriptWords) {
  EXPECT_EQ(Plain("let na\xC3\xAFve = 1"), "let na__ve = 1");
  EXPECT_EQ(Plain("\xEF\xBB\xBFlet x"), " let x");
  EXPECT_EQ(Plain("func `a b-c`()"), "func `a_b_c`()");
  EXPECT_EQ(Plain("func `4 b`()"), "func `__b`()");
  EXPECT_EQ(Plain("a ` b"), "a b");
  EXPECT_EQ(Plain("a'b\x01"
                  "c"),
            "a b c");
}

TEST(SwiftText, GoesOnAfterWhatIsOpen) {
  EXPECT_EQ(Plain("@A(b func f() {}"), " (b func f() {}");
  EXPECT_EQ(Plain("a \"\\(b\nc \"d\" e"), "a \nc e");
  EXPECT_EQ(Plain("a #/ b\nc"), "a b\nc");
}

TEST(SwiftText, ReadsDeeplyNestedTextInLinearTime) {
  for (const char* piece :
       {"//a\r", "@a(", "\"\\(", "/*", "#\"", "(", "`", "=/(", "#/", "\"\"\"\\(", "@a<"}) {
    std::string source;
    for (int i = 0; i < 100000; ++i) source += piece;
    SwiftText text;
    EXPECT_EQ(text.Simplify(source).size(), source.size());
  }
}

}  // namespace
}  // namespace vexltags::thorough
