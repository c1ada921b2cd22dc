// SPDX-License-Identifier: MIT
// Tests of the tags of functions: letters, names, scope fields, readable form.
#include "cfamily/function_prototype.h"

#include <gtest/gtest.h>

#include <string>

#include "cfamily/tag_builder_fixture.h"

namespace vexltags {
namespace {

class FunctionTagTest : public TagBuilderTest {
 protected:
  static FunctionPrototype Function(const std::string& name) {
    FunctionPrototype function;
    function.SetName(Name(name, 3));
    return function;
  }
  static FunctionPrototype Operator(const std::string& qualifier, const std::string& symbol) {
    FunctionPrototype function;
    function.SetOperator(qualifier, Name(symbol, 3));
    return function;
  }
  std::string TagOf(const FunctionPrototype& function) {
    function.DumpDeclDef(builder, function.line);
    return Tags();
  }
};

TEST_F(FunctionTagTest, WholeLine) {
  FunctionPrototype function = Function("foo");
  EXPECT_EQ(TagOf(function), "foo\ta.h\t3;\"\tp\n");
  function.isDefinition = true;
  EXPECT_EQ(TagOf(function), "foo\ta.h\t3;\"\tf\n");
  function.DumpDeclDef(builder, 12);
  EXPECT_EQ(Tags(), "foo\ta.h\t12;\"\tf\n");
}

TEST_F(FunctionTagTest, WithoutANameThereIsNoTag) {
  FunctionPrototype function;
  function.returnType = "int";
  EXPECT_EQ(TagOf(function), "");
  EXPECT_EQ(Readable([&] { function.DumpDeclDef(builder, 3); }), "");
}

TEST_F(FunctionTagTest, ATagLineShowsOnlyTheName) {
  FunctionPrototype function = Function("max");
  function.templateText = "T";
  function.linkage = "static inline";
  function.returnType = "T";
  function.constQualifier = "const";
  function.params.Add(Param("", "a", 3));
  function.isPure = true;
  EXPECT_EQ(TagOf(function), "max\ta.h\t3;\"\tp\n");
}

TEST_F(FunctionTagTest, OutsideAnyScopeTheQualifierIsTheClass) {
  EXPECT_EQ(TagOf(Function("A::f")), "f\ta.h\t3;\"\tp\tclass:A\n");
  EXPECT_EQ(TagOf(Function("A::B::~B")), "~B\ta.h\t3;\"\tp\tclass:A::B\n");
  EXPECT_EQ(TagOf(Function("A<B::C>::f")), "f\ta.h\t3;\"\tp\tclass:A<B::C>\n");
}

TEST_F(FunctionTagTest, TheFieldNamesTheKindOfTheInnermostScope) {
  const struct {
    long kind;
    const char* word;
  } cases[] = {
      {kClassKind, "class"},
      {kStructKind, "struct"},
      {kUnionKind, "union"},
      {kEnumKind, "enum"},
      {kTypeAliasKind, ""},
      {kNamespaceKind, "namespace"},
      {kInterfaceKind, "interface"},
      {kProtocolKind, "protocol"},
      {kImplementationKind, "implementation"},
  };
  for (const auto& c : cases) {
    Open("S", c.kind);
    EXPECT_EQ(TagOf(Function("f")), "f\ta.h\t3;\"\tp\t" + std::string(c.word) + ":S\n");
    builder.PopClass(1);
  }
}

TEST_F(FunctionTagTest, OpenScopesPrecedeTheQualifier) {
  Open("N", kNamespaceKind);
  EXPECT_EQ(TagOf(Function("A::f")), "f\ta.h\t3;\"\tp\tnamespace:N::A\n");
  Open("S", kStructKind);
  EXPECT_EQ(TagOf(Function("f")), "f\ta.h\t3;\"\tp\tstruct:N::S\n");
}

TEST_F(FunctionTagTest, OperatorsHaveTheWordAndTheirQualifier) {
  EXPECT_EQ(TagOf(Operator("", "+")), "operator +\ta.h\t3;\"\tp\n");
  EXPECT_EQ(TagOf(Operator("A::B", "->")), "operator ->\ta.h\t3;\"\tp\tclass:A::B\n");
  EXPECT_EQ(TagOf(Operator("", "<")), "operator <\ta.h\t3;\"\tp\n");
  Open("N", kNamespaceKind);
  EXPECT_EQ(TagOf(Operator("A", "()")), "operator ()\ta.h\t3;\"\tp\tnamespace:N::A\n");
  Open("C", kClassKind);
  EXPECT_EQ(TagOf(Operator("", "[]")), "operator []\ta.h\t3;\"\tp\tclass:N::C\n");
}

TEST_F(FunctionTagTest, AllocationOperatorsKeepTheBlankOfTheirSymbol) {
  EXPECT_EQ(TagOf(Operator("", " new")), "operator  new\ta.h\t3;\"\tp\n");
  EXPECT_EQ(TagOf(Operator("A", " delete[]")), "operator  delete[]\ta.h\t3;\"\tp\tclass:A\n");
}

TEST_F(FunctionTagTest, AConversionIsSplitLikeAnyQualifiedName) {
  EXPECT_EQ(TagOf(Operator("", "const char*")), "operator const char*\ta.h\t3;\"\tp\n");
  Open("A", kClassKind);
  EXPECT_EQ(TagOf(Operator("", "std::string")), "operator string\ta.h\t3;\"\tp\tclass:A::std\n");
}

TEST_F(FunctionTagTest, WhiteSpaceIsCollapsed) {
  EXPECT_EQ(TagOf(Function("A<int,\n\tchar>::f< x >")),
            "f< x >\ta.h\t3;\"\tp\tclass:A<int, char>\n");
  EXPECT_EQ(TagOf(Operator("A<int,\t  char>", "\n int")),
            "operator  int\ta.h\t3;\"\tp\tclass:A<int, char>\n");
}

TEST_F(FunctionTagTest, ReadableForm) {
  FunctionPrototype function = Function("f");
  EXPECT_EQ(Readable([&] { function.DumpDeclDef(builder, 3); }), "fdecl: [f]()| a.h:3\n");

  function.templateText = "T";
  function.linkage = "virtual";
  function.returnType = "int";
  function.params.Add(Param("", "a", 3));
  function.params.Add(Param("", "char", 3));
  function.constQualifier = "const";
  function.isPure = true;
  EXPECT_EQ(Readable([&] { function.DumpDeclDef(builder, 3); }),
            "fdecl: +T+ virtual -int- [f]( @a@,  @char@) const = 0| a.h:3\n");

  FunctionPrototype plus = Operator("A", "+");
  plus.isDefinition = true;
  EXPECT_EQ(Readable([&] { plus.DumpDeclDef(builder, 4); }), "fdef: [A::operator+]()| a.h:4\n");
}

TEST_F(FunctionTagTest, NullClearsTheRecord) {
  FunctionPrototype function = Operator("A", "+");
  function.isFriend = function.isPure = function.isDefinition = true;
  function = nullptr;
  EXPECT_EQ(function.name.text, "");
  EXPECT_EQ(function.name.line, -1);
  EXPECT_EQ(function.line, -1);
  EXPECT_EQ(function.qualifier, "");
  EXPECT_FALSE(function.isFriend || function.isPure || function.isDefinition ||
               function.isOperator);
  const FunctionPrototype made(nullptr);
  EXPECT_EQ(made.line, -1);
}

TEST(FlattenParamList, PutsTheNameAfterTheTypeBetweenAtSigns) {
  ParamList list;
  EXPECT_EQ(VexlTagsParser::FlattenParamList(list), "");
  list.Add(Param("", "a", 1));
  list.Add(Param("", "char", 1));
  EXPECT_EQ(VexlTagsParser::FlattenParamList(list), " @a@,  @char@");
  list.Add(Param("void(*)( @int@)", "cb", 1));
  list.Add(Param("...", "", 1));
  EXPECT_EQ(VexlTagsParser::FlattenParamList(list), " @a@,  @char@, void(*)( @int@) @cb@, ...");
}

}  // namespace
}  // namespace vexltags
