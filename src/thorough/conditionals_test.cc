// SPDX-License-Identifier: MIT
// Tests of choosing the branches of conditionals that are read.
#include "thorough/conditionals.h"

#include <gtest/gtest.h>

#include <string>

namespace vexltags::thorough {
namespace {

/// What is left of `text` once the dropped stretches are blank, each run of blanks as one.
std::string Kept(std::string text, Dialect dialect = Dialect::Unknown) {
  std::uint32_t last = 0;
  for (const TextRange& range : DroppedText(text, dialect)) {
    EXPECT_LT(range.begin, range.end);
    EXPECT_LE(last, range.begin);
    last = range.end;
    for (std::uint32_t i = range.begin; i < range.end; ++i) text.at(i) = ' ';
  }
  std::string result;
  for (const char c : text) {
    const bool isBlank = c == ' ' || c == '\n' || c == '\r' || c == '\t';
    if (!isBlank) result += c;
    if (isBlank && !result.empty() && result.back() != ' ') result += ' ';
  }
  if (result.ends_with(' ')) result.pop_back();
  return result;
}

TEST(Conditionals, DropsNothingWithoutAChoice) {
  EXPECT_TRUE(DroppedText("int a;\n#define B\n", Dialect::C).empty());
  EXPECT_TRUE(DroppedText("#ifdef A\nint a;\n#endif\n", Dialect::C).empty());
  EXPECT_TRUE(DroppedText("#if 1\nint a;\n#endif\n", Dialect::C).empty());
}

TEST(Conditionals, KeepsAllBranchesOfWholeDeclarations) {
  EXPECT_EQ(Kept("int a;\n#ifdef X\nint b;\n#else\nlong b;\n#endif\nint c;"),
            "int a; int b; long b; int c;");
  EXPECT_EQ(Kept("#if X\nint f() {}\n#elif Y\nint g() {}\n#else\n#endif\nint c;"),
            "int f() {} int g() {} int c;");
  EXPECT_EQ(Kept("class A {\n#if X\nint b;\n#else\nint c;\n#endif\n};"),
            "class A { int b; int c; };");
  EXPECT_EQ(Kept("class A { public:\n#if X\nint b;\n#else\nint c;\n#endif\n};"),
            "class A { public: int b; int c; };");
}

TEST(Conditionals, KeepsAllEnumerators) {
  EXPECT_EQ(Kept("enum E { a,\n#if X\nb,\n#else\nc,\n#endif\nd };"), "enum E { a, b, c, d };");
}

TEST(Conditionals, KeepsDeclarationsAfterAMacroAlone) {
  EXPECT_EQ(Kept("A_MACRO(x)\n#if X\nint b;\n#else\nint c;\n#endif\n"), "A_MACRO(x) int b; int c;");
}

TEST(Conditionals, ChoosesABranchInsideADeclaration) {
  EXPECT_EQ(Kept("int f(\n#if X\nint a\n#else\nlong a\n#endif\n);"), "int f( int a );");
  EXPECT_EQ(Kept("int a =\n#if X\n1\n#else\n2\n#endif\n;"), "int a = 1 ;");
}

TEST(Conditionals, ChoosesAmongUnbalancedBranches) {
  EXPECT_EQ(Kept("#if X\nint f(int a) {\n#else\nint f(long a) {\n#endif\nreturn 0; }"),
            "int f(int a) { return 0; }");
  EXPECT_EQ(Kept("int a;\n#if X\n} {\n#else\nint b;\n#endif\n"), "int a; } {")
      << "a branch that closes what is open outside is not balanced";
}

TEST(Conditionals, PrefersWhatIsTrueThenWhatIsNotEmptyThenTheFirst) {
  EXPECT_EQ(Kept("int a =\n#if X\n1\n#elif 1\n2\n#else\n3\n#endif\n;"), "int a = 2 ;");
  EXPECT_EQ(Kept("int a =\n#if X\n#else\n2\n#endif\n;"), "int a = 2 ;");
  EXPECT_EQ(Kept("int a =\n#if X\n#error no\n#else\n2\n#endif\n;"), "int a = 2 ;");
  EXPECT_EQ(Kept("int a =\n#ifdef _WIN32\n1\n#else\n2\n#endif\n;"), "int a = 2 ;");
  EXPECT_EQ(Kept("int a =\n#ifndef _WIN32\n1\n#else\n2\n#endif\n;"), "int a = 1 ;");
  EXPECT_EQ(Kept("int a =\n#if 0\n1\n#else\n2\n#endif\n;"), "int a = 2 ;");
  EXPECT_EQ(Kept("int a =\n#if 1\n1\n#else\n2\n#endif\n;"), "int a = 1 ;");
}

TEST(Conditionals, FollowsTheDialect) {
  const std::string text = "int a =\n#ifdef __cplusplus\n1\n#else\n2\n#endif\n;";
  EXPECT_EQ(Kept(text, Dialect::Cxx), "int a = 1 ;");
  EXPECT_EQ(Kept(text, Dialect::C), "int a = 2 ;");
  EXPECT_EQ(Kept(text, Dialect::Unknown), "int a = 1 ;");
}

TEST(Conditionals, EvaluatesElifdefAndElifndef) {
  const std::string text = "int a =\n#if 0\n1\n#elifdef __cplusplus\n2\n#else\n3\n#endif\n;";
  EXPECT_EQ(Kept(text, Dialect::Cxx), "int a = 2 ;");
  EXPECT_EQ(Kept(text, Dialect::C), "int a = 3 ;");
  const std::string contrary = "int a =\n#if 0\n1\n#elifndef __cplusplus\n2\n#else\n3\n#endif\n;";
  EXPECT_EQ(Kept(contrary, Dialect::Cxx), "int a = 3 ;");
  EXPECT_EQ(Kept(contrary, Dialect::C), "int a = 2 ;");
}

TEST(Conditionals, DropsALoneBranchOnlyWhereItIsFalse) {
  EXPECT_EQ(Kept("int a;\n#if 0\nint b;\n#endif\nint c;"), "int a; int c;");
  EXPECT_EQ(Kept("int a;\n#ifdef __cplusplus\nint b;\n#endif\nint c;", Dialect::C),
            "int a; int c;");
  EXPECT_TRUE(DroppedText("#ifdef _WIN32\nint b;\n#endif\n", Dialect::C).empty());
  EXPECT_TRUE(DroppedText("#if X\nint b {\n#endif\n", Dialect::C).empty());
}

TEST(Conditionals, DropsFalseBranchesAmongOthers) {
  EXPECT_EQ(Kept("#if 0\nint a;\n#elif X\nint b;\n#else\nint c;\n#endif\n"), "int b; int c;");
  EXPECT_EQ(Kept("#if 1\nint a;\n#else\nint b;\n#endif\n"), "int a;");
}

TEST(Conditionals, Nests) {
  EXPECT_EQ(Kept("#if X\nint a;\n#if Y\nint b;\n#else\nint c;\n#endif\n#else\nint d;\n#endif\n"),
            "int a; int b; int c; int d;");
  EXPECT_EQ(Kept("int f(\n#if X\nint a,\n#if Y\nint b\n#else\nint c\n#endif\n#else\nint d\n"
                 "#endif\n);"),
            "int f( int a, int b );");
  EXPECT_EQ(Kept("#if 0\n#if X\nint a;\n#else\nint b;\n#endif\n#endif\nint c;"), "int c;");
}

TEST(Conditionals, CountsOnlyTheChosenBranchOfAnInnerConditional) {
  // Both inner branches open a brace, and one is read: the outer branch is balanced.
  EXPECT_EQ(Kept("#if X\n#if Y\nint f() {\n#else\nint g() {\n#endif\n}\n#else\nint h;\n#endif\n"),
            "int f() { } int h;");
}

TEST(Conditionals, KeepsDefinesOfBranchesThatMightBeRead) {
  EXPECT_EQ(Kept("int a =\n#if X\n1\n#else\n#define B 2\n2\n#define C 3\n#endif\n;"),
            "int a = 1 #define B 2 #define C 3 ;");
  EXPECT_EQ(Kept("int a;\n#if 0\n#define B 2\n#endif\n"), "int a;");
  EXPECT_EQ(Kept("int a =\n#if X\n1\n#else\n2\n#if 0\n#define A 1\n#endif\n#if Y\n"
                 "#define B \\\n 2\n#endif\n#endif\n;"),
            "int a = 1 #define B \\ 2 ;");
}

TEST(Conditionals, IgnoresCommentsAndLiterals) {
  EXPECT_EQ(Kept("#if X\nint a; // {\n#else\nlong a; /* { */\n#endif\n"),
            "int a; // { long a; /* { */");
  EXPECT_EQ(Kept("#if X\nchar* a = \"{\\\"{\";\n#else\nchar b = '{';\n#endif\n"),
            "char* a = \"{\\\"{\"; char b = '{';");
  EXPECT_EQ(Kept("#if X\nchar* a = R\"(\n#else\n{)\";\n#else\nint b;\n#endif\n"),
            "char* a = R\"( #else {)\"; int b;");
  EXPECT_EQ(Kept("#if X\nint a = 1'0;\n#else\nint b = 8'0;\n#endif\n"),
            "int a = 1'0; int b = 8'0;");
  EXPECT_EQ(Kept("/*\n#if 0\n*/ int a;\n#if 0\nb\n#endif\n"), "/* #if 0 */ int a;");
}

TEST(Conditionals, ReadsCarriageReturnsAndContinuedLines) {
  EXPECT_EQ(Kept("int a;\r\n#if X\r\nint b;\r\n#else\r\nint c;\r\n#endif\r\nint d;\r\n"),
            "int a; int b; int c; int d;");
  EXPECT_EQ(Kept("int a;\n#if 0 \\\n || 0\nint b;\n#endif\nint c;"), "int a; int c;");
  EXPECT_EQ(Kept("int a;\r\n#if 0 \\\r\n || 0\r\nint b;\r\n#endif\r\nint c;"), "int a; int c;");
}

TEST(Conditionals, IgnoresWhatHasNoBeginning) {
  EXPECT_TRUE(DroppedText("#else\nint a;\n#endif\n#elif 0\nint b;\n", Dialect::C).empty());
}

TEST(Conditionals, KeepsWhatIsNeverClosed) {
  EXPECT_TRUE(DroppedText("#if 0\nint a;\n#else\nint b {\n", Dialect::C).empty());
  EXPECT_EQ(Kept("#if X\n#if 0\nint a;\n#endif\nint b;"), "#if X int b;");
}

TEST(Conditionals, TakesLinearTimeForDeepNesting) {
  constexpr int kDeep = 100000;
  std::string lone, two, unclosed, elses = "#if 0\n";
  for (int i = 0; i < kDeep; ++i) {
    lone += "#if 0\n";
    two += "#if X\nf(\n#else\ng(\n";
    unclosed += "#if X\n";
    elses += "#else\n";
  }
  for (int i = 0; i < kDeep; ++i) two += "#define A\n";
  for (int i = 0; i < kDeep; ++i) {
    lone += "#endif\n";
    two += "#endif\n";
  }
  EXPECT_EQ(Kept(lone + "int a;"), "int a;");
  EXPECT_TRUE(DroppedText(unclosed, Dialect::C).empty());
  EXPECT_EQ(Kept(elses + "#endif\nint a;"), "int a;");
  std::string defines;
  for (int i = 0; i < kDeep; ++i) defines += " #define A";
  EXPECT_EQ(Kept(two), "f(" + defines);
}

TEST(Conditionals, KeepsAllBranchesThatEndWithAMacro) {
  EXPECT_EQ(Kept("#if X\nint a;\nEND_DECLS\n#else\nint b;\n#endif\n"), "int a; END_DECLS int b;");
  EXPECT_EQ(Kept("#if X\nint a; // b\nEND_DECLS\n#else\nBEGIN\n#include <a>\nEND_DECLS\n#endif\n"),
            "int a; // b END_DECLS BEGIN #include <a> END_DECLS");
  EXPECT_EQ(Kept("int a\n#if X\nSECTION\n#else\nOTHER\n#endif\n;"), "int a SECTION ;");
}

TEST(Conditionals, KeepsAllBranchesThatEndInterfaces) {
  EXPECT_EQ(Kept("#if X\n@interface A\n@end\n#else\n@interface B\n@end\n#endif\n"),
            "@interface A @end @interface B @end");
  EXPECT_EQ(Kept("int a =\n#if X\nfriend\n#else\nbend\n#endif\n;"), "int a = friend ;");
}

}  // namespace
}  // namespace vexltags::thorough
