// SPDX-License-Identifier: MIT
// Tests of preparing the tokens of C-family files.
#include "thorough/declaration_pass.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "testing/main_words.h"

namespace vexltags::thorough {
namespace {

/// The texts of the tokens of `source` after the pass, with a blank between two. `macros` are the
/// definitions that the file can use, which are in file number `file`, 0 for the same file.
std::string Prepared(std::string_view source, std::string_view macros = "",
                     Dialect dialect = Dialect::Cxx, std::uint32_t file = 0) {
  testing_support::MainText text(source);
  EXPECT_TRUE(text.IsComplete()) << source;
  const std::vector<std::string> paths{"test.cc", "other.h"};
  MacroTable table;
  table.Learn(macros, file, [](std::string_view) {});
  MacroBodies bodies;
  Expander expander(table, bodies);
  expander.BeginFile(0, paths);
  TokenEdits edits;
  TokenTable& tokens = text.Tokens();
  DeclarationPass(tokens, edits, expander, dialect).Run();
  tokens.Apply(edits);
  std::string prepared;
  for (std::size_t i = 0; i < tokens.Count(); ++i) {
    std::string_view token = tokens.TextAt(i);
    // Keywords that the pass inserts end with a blank.
    if (token.ends_with(' ')) token.remove_suffix(1);
    if (!prepared.empty()) prepared += ' ';
    prepared += token;
  }
  return prepared;
}

TEST(DeclarationPass, LeavesBodiesAsTheyAre) {
  EXPECT_EQ(Prepared(""), "");
  EXPECT_EQ(Prepared("int f() { int a = 1; { b(); } }"), "int f ( ) { int a = 1 ; { b ( ) ; } }");
  EXPECT_EQ(Prepared("int f(int a) const { return A{1}.b; }"),
            "int f ( ) { return A { 1 } . b ; }");
}

TEST(DeclarationPass, RepairsDeclarationsAtEveryLevel) {
  EXPECT_EQ(
      Prepared("int a = 1; namespace b { int c = {2}; class D : E { int f : 3; }; } int g{4};"),
      "int a ; namespace b { int c ; class D { int f ; } ; } int g ;");
  EXPECT_EQ(Prepared("extern \"C\" { int a = 1; }"), "extern \"C\" { int a ; }");
}

TEST(DeclarationPass, SplitsNamespaces) {
  EXPECT_EQ(Prepared("namespace a::b { int c; } int d;"),
            "namespace a { namespace b { int c ; } } int d ;");
  EXPECT_EQ(Prepared("namespace a::b::c {}"), "namespace a { namespace b { namespace c { } } }");
}

TEST(DeclarationPass, KnowsTheClassOfAConstructor) {
  EXPECT_EQ(Prepared("class A { A(int); MADE(a); };"), "class A { A ( ) ; } ;");
}

TEST(DeclarationPass, TakesTheCallOfAnotherFilesMacroForAFunction) {
  constexpr std::string_view kMacros = "#define add(a, b) __extension__({ const int c = a; })\n";
  constexpr std::uint32_t kOther = 1;
  EXPECT_EQ(Prepared("int add(A a, int b);", kMacros, Dialect::C, kOther), "int add ( ) ;");
  EXPECT_EQ(Prepared("int add(A a, int b) { }", kMacros, Dialect::C, kOther), "int add ( ) { }");
  constexpr std::string_view kMakers =
      "#define field(a) a __attribute__((x))\n#define ADD(a) const a\n";
  EXPECT_EQ(Prepared("int field(a);", kMakers, Dialect::C, kOther), "int a ;");
  EXPECT_EQ(Prepared("int ADD(A a);", kMakers, Dialect::C, kOther), "int const A a ;");
  EXPECT_EQ(Prepared("int field(A a);", kMakers, Dialect::C), "int a ;");
}

TEST(DeclarationPass, ShortensAccessLabels) {
  EXPECT_EQ(Prepared("class A { public slots: void f(); private: int a; };"),
            "class A { public : void f ( ) ; private : int a ; } ;");
}

TEST(DeclarationPass, ReadsEnumsWhole) {
  EXPECT_EQ(Prepared("enum A { B, C } d; int e = 2;"), "enum A { B , C } d ; int e ;");
}

TEST(DeclarationPass, ReadsOldStyleHeads) {
  EXPECT_EQ(Prepared("int f(a, b) int a; char b; { return a; } int c = 1;", "", Dialect::C),
            "int f ( ) { return a ; } int c ;");
}

TEST(DeclarationPass, RemovesTheBracesAroundInstanceVariables) {
  EXPECT_EQ(Prepared("@interface A : B { int c; }\n- (void)d;\n@end int e = 1;"),
            "@interface A int c ; - d ; @end int e ;");
}

TEST(DeclarationPass, EndsTheHeadOfAnInterfaceWithItsLine) {
  EXPECT_EQ(Prepared("@interface A : B\nint c = 1;\n- (void)d;\n@end"),
            "@interface A int c ; - d ; @end");
}

TEST(DeclarationPass, ExpandsMacrosThatDeclare) {
  EXPECT_EQ(
      Prepared("BEGIN_A int b; END_A int c;", "#define BEGIN_A namespace a {\n#define END_A }\n"),
      "namespace a { int b ; } int c ;");
  EXPECT_EQ(Prepared("FIELD(int, a) FIELD(char, b)", "#define FIELD(t, n) t n = 0;\n"),
            "int a ; char b ;");
  EXPECT_EQ(Prepared("NOTHING int a;", "#define NOTHING\n"), "int a ;");
}

TEST(DeclarationPass, ExpandsNoMacrosInBodies) {
  EXPECT_EQ(Prepared("void f() { NOTHING; }", "#define NOTHING\n"), "void f ( ) { NOTHING ; }");
}

TEST(DeclarationPass, RemovesCallsThatDeclareNothing) {
  EXPECT_EQ(Prepared("CHECK(a); int b;", "#define CHECK(x) check_that(x)\n"), "int b ;");
}

TEST(DeclarationPass, PassesOverBlocksThatStayOpen) {
  EXPECT_EQ(Prepared("int f() { if (a) { int b = 1;"), "int f ( ) { if ( a ) { int b = 1 ;");
}

TEST(DeclarationPass, ExpandsMacrosThatMakeMethods) {
  EXPECT_EQ(Prepared("@implementation A\nM(f) @end", "#define M(n) -(id)n:(id)a { b; }\n"),
            "@implementation A - f : a { } @end");
  EXPECT_EQ(Prepared("int a = M(f);", "#define M(n) -(id)n\n"), "int a ;");
}

TEST(DeclarationPass, DeclaresNothingThatTheCounterNames) {
  EXPECT_EQ(Prepared("J(a, __COUNTER__); int b;", "#define J(x, y) int x##y\n"), "int b ;");
}

TEST(DeclarationPass, KnowsNamespacesWithNames) {
  EXPECT_EQ(Prepared("namespace a { enum { B } c; }"), "namespace a { enum { B } ; int c ; }");
  EXPECT_EQ(Prepared("namespace { enum { B } c; } extern \"C\" { enum { D } e; }"),
            "namespace { enum { B } c ; } extern \"C\" { enum { D } e ; }");
}

TEST(DeclarationPass, ReadsClassesAfterCallsOfMacros) {
  EXPECT_EQ(Prepared("SINCE(3) DECLARE(a, b)\nstruct _A { int c; };"), "struct _A { int c ; } ;");
  EXPECT_EQ(Prepared("int f(a) struct A a; { b; } int c;", "", Dialect::C),
            "int f ( ) { b ; } int c ;");
}

TEST(DeclarationPass, ReadsTryBlocksAsBodies) {
  EXPECT_EQ(Prepared("A::A(int b) try : c(b) { d; } catch (...) { e; } int f;"),
            "A :: A ( ) { d ; } int f ;");
}

TEST(DeclarationPass, ExpandsMacrosThatNameFunctions) {
  EXPECT_EQ(Prepared("int NAME(int a); int x = NAME;", "#define NAME f\n"), "int f ( ) ; int x ;");
  EXPECT_EQ(
      Prepared("int NAME(f(int)); class A { NAME(A(int)); NAME(B(int)); };", "#define NAME(x) x\n"),
      "int f ( ) ; class A { A ( ) ; } ;");
  EXPECT_EQ(Prepared("int swap(int a) { }", "#define swap(x) atomic_swap(x)\n"),
            "int swap ( ) { }");
}

}  // namespace
}  // namespace vexltags::thorough
