// SPDX-License-Identifier: MIT
// Tests of parameters that are found in the source.
#include "ctags/signature.h"

#include <gtest/gtest.h>

namespace vexltags::ctags {
namespace {

std::string Of(std::string_view text, std::string_view name, Syntax syntax = Syntax::kC,
               std::size_t index = 0, std::size_t count = 1) {
  return SignatureOf(text, {name, 0, index, count}, syntax);
}

TEST(Signature, CollapsesBlanksAndComments) {
  EXPECT_EQ(Of("int f ( int  a ,\n\tchar *b /* c */ ) { }", "f"), "(int a, char *b)");
  EXPECT_EQ(Of("int f(int a, // first\n      int b);", "f"), "(int a, int b)");
  EXPECT_EQ(Of("int f()", "f"), "()");
  EXPECT_EQ(Of("int f\n  (void)", "f"), "(void)");
}

TEST(Signature, KeepsStringsAndBrackets) {
  EXPECT_EQ(Of("int f(char c = ')', const char *s = \"a  )\\\"\");", "f"),
            "(char c = ')', const char *s = \"a  )\\\"\")");
  EXPECT_EQ(Of("void f(int (*g)(int), int a[ 3 ], S s = {1, {2;}});", "f"),
            "(int (*g)(int), int a[3], S s = {1, {2;}})");
  EXPECT_EQ(Of("void f(int n = 1'000);", "f"), "(int n = 1'000)");
}

TEST(Signature, FindsTheName) {
  EXPECT_EQ(Of("Foo Foo::Foo(Foo f) {}", "Foo"), "(Foo f)");
  EXPECT_EQ(Of("int off(int a), f(int b);", "f"), "(int b)");
  EXPECT_EQ(Of("int f(int n) { return n ? f(n - 1) : 0; }", "f"), "(int n)");
  EXPECT_EQ(Of("Shape::~Shape() {}", "~Shape"), "()");
  EXPECT_EQ(Of("bool operator==(A a) const;", "operator =="), "(A a) const");
  EXPECT_EQ(Of("int operator ()(int a);", "operator ()"), "(int a)");
  EXPECT_EQ(Of("template <> int f<A<int>, 3>(int a);", "f"), "(int a)");
  EXPECT_EQ(Of("int (f)(int a);", "f"), "");
}

TEST(Signature, DistinguishesFunctionsOfOneName) {
  constexpr std::string_view kTwo = "void f(int); void f(char);";
  EXPECT_EQ(Of(kTwo, "f", Syntax::kC, 0, 2), "(int)");
  EXPECT_EQ(Of(kTwo, "f", Syntax::kC, 1, 2), "(char)");
  EXPECT_EQ(Of("void f(int); void f(char) { f(1); }", "f", Syntax::kC, 1, 2), "");
}

TEST(Signature, IsEmptyIfInDoubt) {
  EXPECT_EQ(Of("MAKE(f)", "f"), "");
  EXPECT_EQ(Of("int f", "f"), "");
  EXPECT_EQ(Of("int f(int a", "f"), "");
  EXPECT_EQ(Of("int f(int a; int b)", "f"), "");
  EXPECT_EQ(Of("int f(\n#if X\nint a)", "f"), "");
  EXPECT_EQ(Of("int f(int a]", "f"), "");
  EXPECT_EQ(Of("int f(char *s = \"a\n\")", "f"), "");
  EXPECT_EQ(Of("int f(/* int a)", "f"), "");
  EXPECT_EQ(Of("int f(char *s = R\"x()x\")", "f"), "");
  EXPECT_EQ(Of("int g()\nint f()", "f"), "");
  EXPECT_EQ(Of("", "f"), "");
  EXPECT_EQ(Of("int f()", ""), "");
  EXPECT_EQ(Of("int f(" + std::string(5000, ' ') + ")", "f"), "");
  EXPECT_EQ(Of("int f(" + std::string(1200, 'a') + ")", "f"), "");
  EXPECT_EQ(Of(std::string_view("int f(\0)", 8), "f"), "");
}

TEST(Signature, ReadsPython) {
  EXPECT_EQ(Of("def f(self, x=')',  # why\n      *y): pass", "f", Syntax::kPython),
            "(self, x=')', *y)");
  EXPECT_EQ(Of("async def f ( ): pass", "f", Syntax::kPython), "()");
  EXPECT_EQ(Of("x = f(1)", "f", Syntax::kPython), "");
  EXPECT_EQ(Of("def f(x='''a'''): pass", "f", Syntax::kPython), "");
}

TEST(Signature, ReadsSwift) {
  EXPECT_EQ(Of("func move<T>(to p: T, _ q: [Int] = []) -> Int", "move", Syntax::kSwift),
            "(to p: T, _ q: [Int] = [])");
  EXPECT_EQ(Of("  init?(a: Int) {}", "init", Syntax::kSwift), "(a: Int)");
  EXPECT_EQ(Of("func == (a: A, b: A)", "==", Syntax::kSwift), "(a: A, b: A)");
  EXPECT_EQ(Of("deinit {}", "deinit", Syntax::kSwift), "");
}

TEST(Signature, ReadsMacros) {
  EXPECT_EQ(MacroSignature("#define MAX(a,  b) (a)", 0, "MAX"), "(a, b)");
  EXPECT_EQ(MacroSignature("# define F(a, ...) \\\n a", 0, "F"), "(a, ...)");
  EXPECT_EQ(MacroSignature("#define N (3)", 0, "N"), "");
  EXPECT_EQ(MacroSignature("#define N", 0, "N"), "");
  EXPECT_EQ(MacroSignature("#undef N(a)", 0, "N"), "");
}

TEST(Signature, ReadsMethods) {
  EXPECT_EQ(MethodSignature("- (void)setWidth:(int)w height:(NSString *)h;", 0, "setWidth:height:"),
            "(int,NSString *)");
  EXPECT_EQ(MethodSignature("+ (id)view { return a ? b : c; }", 0, "view"), "()");
  EXPECT_EQ(MethodSignature("- (void)run:(void (^)(int a))block\n{", 0, "run:"),
            "(void (^)(int a))");
  EXPECT_EQ(MethodSignature("- (void)put:x;", 0, "put:"), "");
  EXPECT_EQ(MethodSignature("- (void)put:(int)x and:(int)y;", 0, "put:"), "");
  EXPECT_EQ(MethodSignature("METHOD(put:)", 0, "put:"), "");
}

}  // namespace
}  // namespace vexltags::ctags
