// SPDX-License-Identifier: MIT
// Tests of blocks of which no more than the braces are read as tokens.
#include "thorough/skipped_block.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "cfamily/main_scanner.h"
#include "testing/scan_fixture.h"
#include "vocabulary/main_tokens.h"

namespace vexltags::thorough {
namespace {

/// Reads all tokens that the scanner knows, with blocks skipped.
void Scan(ScanCursor& cursor, TokenTable& table) {
  for (;;) {
    ScanMainToBrace(cursor, table);
    if (cursor.at == cursor.end || *cursor.at != '{') return;
    if (SkipBlock(cursor, table)) continue;
    table.Add(kMainLCurly, cursor.at, cursor.at + 1, cursor.line);
    ++cursor.at;
  }
}

/// The texts of the braces in `source`, with what has been skipped.
std::vector<std::string> Braces(const std::string& source) {
  std::vector<std::string> braces;
  for (const std::string& token : testing_support::ScanText(Scan, source).tokens) {
    const std::string text = token.substr(token.find(':', token.find(':') + 1) + 1);
    if (text[0] == '{' || text[0] == '}') braces.push_back(text);
  }
  return braces;
}

using Texts = std::vector<std::string>;

TEST(SkipBlock, TakesBodiesOfFunctions) {
  EXPECT_EQ(Braces("int f(int a) { return a; } int b;"), (Texts{"{ return a; ", "}"}));
  EXPECT_EQ(Braces("int A::f() const { if (b) { c(); } }"), (Texts{"{ if (b) { c(); } ", "}"}));
  EXPECT_EQ(Braces("A::A() : b(1), c(2) { d(); }"), (Texts{"{ d(); ", "}"}));
  EXPECT_EQ(Braces("int f() noexcept { a(); }"), (Texts{"{ a(); ", "}"}));
  EXPECT_EQ(Braces("int f() _NOEXCEPT { a(); }"), (Texts{"{ a(); ", "}"}));
  EXPECT_EQ(Braces("auto f() -> A<b> { c(); }"), (Texts{"{ c(); ", "}"}));
  EXPECT_EQ(Braces("struct a *f(void) { b(); }"), (Texts{"{ b(); ", "}"}));
  EXPECT_EQ(Braces("template <class T, class U> void f() const { a(); }"), (Texts{"{ a(); ", "}"}));
  EXPECT_EQ(Braces("- (void)a { b(); }"), (Texts{"{ b(); ", "}"}));
  EXPECT_EQ(Braces("+ (void)a:(int)b c:(int)d { e(); }"), (Texts{"{ e(); ", "}"}));
}

TEST(SkipBlock, TakesInitializers) {
  EXPECT_EQ(Braces("int a[] = { 1, 2 };"), (Texts{"{ 1, 2 ", "}"}));
  EXPECT_EQ(Braces("struct a b = { .c = { 1 } };"), (Texts{"{ .c = { 1 } ", "}"}));
  EXPECT_EQ(Braces("auto f = [](int a) { return a; };"), (Texts{"{ return a; ", "}"}));
}

TEST(SkipBlock, LeavesBlocksOfDeclarations) {
  for (const char* head : {"namespace a", "namespace", "extern \"C\"", "struct a",
                           "class a : public b", "class A(1) b", "struct a<b>", "enum a",
                           "enum class a : int", "enum", "typedef enum A(b)", "f(a, b)", ""}) {
    const bool isCall = std::string(head) == "f(a, b)";
    const Texts expected = isCall ? Texts{"{ int b; ", "}"} : Texts{"{", "}"};
    EXPECT_EQ(Braces(std::string(head) + " { int b; }"), expected) << head;
  }
  // In the parentheses of a call, which may be that of a macro.
  EXPECT_EQ(Braces("A(int f() { b(); })"), (Texts{"{", "}"}));
}

TEST(SkipBlock, AddsASemicolonIfThereAreAny) {
  const auto Types = [](const std::string& source) {
    std::string types;
    for (const std::string& token : testing_support::ScanText(Scan, source).tokens) {
      types += std::stoul(token) == kMainSemicolon ? ';' : '.';
    }
    return types;
  };
  EXPECT_EQ(Types("f() { a; b; }"), "....;.");
  EXPECT_EQ(Types("f() { a }"), ".....");
}

TEST(SkipBlock, CountsLines) {
  const auto scanned = testing_support::ScanText(Scan, "f() {\n a;\r\n /*\n*/ b;\n} c");
  EXPECT_EQ(scanned.line, 5U);
  EXPECT_TRUE(scanned.tokens[3].starts_with(std::to_string(kMainLCurly) + ":1:"));
  EXPECT_TRUE(scanned.tokens[4].starts_with(std::to_string(kMainSemicolon) + ":5:"));
}

TEST(SkipBlock, LeavesWhatHasNoEnd) {
  EXPECT_EQ(Braces("f() { a"), (Texts{"{"}));
  EXPECT_EQ(Braces("f() { g() { } "), (Texts{"{", "{", "}"}));
  // The inner block is before the place that a search has reached, so it is not searched again.
  EXPECT_EQ(Braces("f() { if (a) { b; } \n#define C\n } g() { d; }"),
            (Texts{"{", "{", "}", "}", "{ d; ", "}"}));
}

TEST(SkipBlock, LeavesEmptyBlocks) {
  EXPECT_EQ(Braces("f() {}"), (Texts{"{", "}"}));
  EXPECT_EQ(Braces("f() { }"), (Texts{"{ ", "}"}));
}

TEST(ScanMainToBrace, StopsAtEachBraceThatOpens) {
  const auto scanned = testing_support::ScanText(ScanMainToBrace, "} a {");
  EXPECT_EQ(scanned.tokens.size(), 2U);
  EXPECT_EQ(scanned.stopped, 4U);
}

}  // namespace
}  // namespace vexltags::thorough
