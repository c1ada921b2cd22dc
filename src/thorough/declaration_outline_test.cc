// SPDX-License-Identifier: MIT
// Tests of finding the parts of a declaration.
#include "thorough/declaration_outline.h"

#include <gtest/gtest.h>

#include <string>

#include "testing/main_words.h"

namespace vexltags::thorough {
namespace {

using testing_support::MainText;

/// Each part that `source` has, as "part=index", in the order of the fields of `Outline`. The first
/// word is only listed if it is not at 0.
std::string Parts(const std::string& source) {
  const MainText text(source);
  EXPECT_TRUE(text.IsComplete()) << source;
  const Outline outline(text.Words());
  std::string parts;
  const auto add = [&parts](const char* name, std::size_t at) {
    if (at == kNoWord) return;
    parts += (parts.empty() ? "" : " ") + std::string(name) + "=" + std::to_string(at);
  };
  if (outline.begin != 0) add("begin", outline.begin);
  add("class", outline.classKey);
  add("enum", outline.enumKey);
  add("namespace", outline.namespaceKey);
  add("operator", outline.operatorWord);
  add("assign", outline.assign);
  add("arrow", outline.arrow);
  add("params", outline.params);
  add("past", outline.pastParams);
  add("colon", outline.colon);
  add("comma", outline.comma);
  add("pointer", outline.pointer);
  add("result", outline.result);
  add("name", outline.name);
  return parts;
}

std::size_t BracketEnd(const char* source, std::size_t open) {
  return PastBracket(MainText(source).Words(), open);
}
std::size_t AngleEnd(const char* source, std::size_t open) {
  return PastAngle(MainText(source).Words(), open);
}
bool IsMacro(const char* source) { return LooksLikeMacro(MainText(source).Words().at(0)); }

TEST(DeclarationOutline, FindsTheEndOfABracket) {
  EXPECT_EQ(BracketEnd("a(b[c](d))e", 1), 10U);
  EXPECT_EQ(BracketEnd("a(b[c](d))e", 3), 6U);
  EXPECT_EQ(BracketEnd("a()", 1), 3U);
  EXPECT_EQ(BracketEnd("a(b[c]", 1), 6U);  // Stays open.
}

TEST(DeclarationOutline, FindsTheEndOfATemplateList) {
  EXPECT_EQ(AngleEnd("a<b> c;", 1), 4U);
  EXPECT_EQ(AngleEnd("a<b<c>> d;", 1), 7U);
  EXPECT_EQ(AngleEnd("a<b<c>, d(e < f)> g;", 1), 14U);
  EXPECT_EQ(AngleEnd("a<>;", 1), 3U);
  EXPECT_EQ(AngleEnd("a<b>= 1;", 1), 4U);
  EXPECT_EQ(AngleEnd("template <class T, bool b = x < y> z;", 1), 12U);  // A comparison.
}

TEST(DeclarationOutline, EndsNoTemplateListPastTheDeclaration) {
  EXPECT_EQ(AngleEnd("a < b; c > d", 1), 1U);
  EXPECT_EQ(AngleEnd("a < b) c > d", 1), 1U);
  EXPECT_EQ(AngleEnd("a < b", 1), 1U);
}

TEST(DeclarationOutline, ComparesPlaces) {
  const MainText text("a b(");
  const Words words = text.Words();
  EXPECT_FALSE(AreAdjacent(words.at(0), words.at(1)));
  EXPECT_TRUE(AreAdjacent(words.at(1), words.at(2)));
}

TEST(DeclarationOutline, KnowsMacrosByTheirLetters) {
  for (const char* source : {"AB", "A_1", "_A", "API_EXPORT", "A1"}) {
    EXPECT_TRUE(IsMacro(source)) << source;
  }
  for (const char* source : {"A", "Ab", "aB", "API_x", "_", "__", "_1", "int", "(", "1"}) {
    EXPECT_FALSE(IsMacro(source)) << source;
  }
}

TEST(DeclarationOutline, FindsParameters) {
  EXPECT_EQ(Parts("int f(int a) const;"), "params=2 past=6");
  EXPECT_EQ(Parts("auto f() -> int;"), "arrow=4 params=2 past=4");
  EXPECT_EQ(Parts("A(int b) : c(b), d(1)"), "params=1 past=5 colon=5 comma=10");
  EXPECT_EQ(Parts("a::B<int>::B(int)"), "params=8 past=11");
  EXPECT_EQ(Parts("int f(int a, int b = 1)"), "params=2 past=11");
}

TEST(DeclarationOutline, FindsNamesInParentheses) {
  EXPECT_EQ(Parts("int (f)(int);"), "params=4 past=7");
  EXPECT_EQ(Parts("int (*f)(int);"), "pointer=1");
  EXPECT_EQ(Parts("int (A::*f)(int);"), "pointer=1");
  EXPECT_EQ(Parts("void (^f)(int);"), "pointer=1");
  EXPECT_EQ(Parts("int (*f)[3];"), "pointer=1");
}

TEST(DeclarationOutline, FindsFunctionsWhoseResultsArePointers) {
  EXPECT_EQ(Parts("int (*f(int))(char);"), "params=4 past=7 result=1 name=3");
  EXPECT_EQ(Parts("int (*A::f() const)[3] {"), "params=6 past=8 result=1 name=3");
  EXPECT_EQ(Parts("A (&f(B (&b)[3]))[3];"), "params=4 past=14 result=1 name=3");
  EXPECT_EQ(Parts("int (**f)(int);"), "pointer=1");
  EXPECT_EQ(Parts("int (*f[2])(int);"), "pointer=1");
  EXPECT_EQ(Parts("typedef int (*f(int))(int);"), "pointer=2");
  EXPECT_EQ(Parts("int (*f(int));"), "pointer=1");
}

TEST(DeclarationOutline, FindsOperators) {
  EXPECT_EQ(Parts("bool operator()(int) const;"), "operator=1 params=4 past=7");
  EXPECT_EQ(Parts("int operator[](int);"), "operator=1 params=4 past=7");
  EXPECT_EQ(Parts("bool operator==(A b);"), "operator=1 params=3 past=7");
  EXPECT_EQ(Parts("bool operator<(A b);"), "operator=1 params=3 past=7");
  EXPECT_EQ(Parts("A operator<<(int);"), "operator=1 params=3 past=6");
  EXPECT_EQ(Parts("A operator>>(int);"), "operator=1 params=4 past=7");
  EXPECT_EQ(Parts("A operator=(A) = default;"), "operator=1 assign=6 params=3 past=6");
  EXPECT_EQ(Parts("void operator delete[](void* p);"), "operator=1 params=5 past=10");
  EXPECT_EQ(Parts("operator bool() const;"), "operator=0 params=2 past=4");
  EXPECT_EQ(Parts("operator A<int>() const;"), "operator=0 params=5 past=7");
}

TEST(DeclarationOutline, SkipsTemplateHeads) {
  EXPECT_EQ(Parts("template <class T> void f(T);"), "begin=5 params=7 past=10");
  EXPECT_EQ(Parts("template <class T> template <class U> void A<T>::f(U);"),
            "begin=10 params=17 past=20");
  EXPECT_EQ(Parts("template <class T> class A {"), "begin=5 class=5");
  EXPECT_EQ(Parts("template <class T> requires A<T> && B<T> void f(T);"),
            "begin=15 params=17 past=20");
  EXPECT_EQ(Parts("template <class T> requires (A<T>) void f(T);"), "begin=12 params=14 past=17");
}

TEST(DeclarationOutline, FindsKeys) {
  EXPECT_EQ(Parts("class A : public B {"), "class=0 colon=2");
  EXPECT_EQ(Parts("typedef struct A {"), "class=1");
  EXPECT_EQ(Parts("enum A : int {"), "enum=0 colon=2");
  EXPECT_EQ(Parts("inline namespace a {"), "namespace=1");
}

TEST(DeclarationOutline, FindsInitialisersAndBitFields) {
  EXPECT_EQ(Parts("int a = f(1), b;"), "assign=2 comma=7");
  EXPECT_EQ(Parts("int a : 3, b : 4;"), "colon=2 comma=4");
  EXPECT_EQ(Parts("int a = b ? c : d;"), "assign=2");
  EXPECT_EQ(Parts("int a[b(1)];"), "");
}

TEST(DeclarationOutline, LooksPastTemplateLists) {
  EXPECT_EQ(Parts("std::map<int, A(int)> a;"), "");
  EXPECT_EQ(Parts("A<class B> c;"), "");
}

}  // namespace
}  // namespace vexltags::thorough
