// SPDX-License-Identifier: MIT
// Tests of the actions within a construct.
#include "cfamily/grammar_actions.h"

#include <gtest/gtest.h>

#include "cfamily/tag_builder_fixture.h"
#include "engine/token_test_support.h"

namespace vexltags {
namespace {

TEST(GrammarActions, TheNameOfATokenHasItsTextAndLine) {
  TokenMaker tokens("enum kRed");
  const Name name = NameOf(tokens.Span(5, 4, 7));
  EXPECT_EQ(name.text, "kRed");
  EXPECT_EQ(name.line, 7);
}

TEST(GrammarActions, TheNameOfNoTokenIsEmpty) {
  const Name name = NameOf(nullptr);
  EXPECT_EQ(name.text, "");
  EXPECT_EQ(name.line, -1);
}

TEST(GrammarActions, TypeWordsKeepTheirOrderAndTheLastLine) {
  TokenMaker tokens("long unsigned int");
  Name type;
  AppendTypeWord(type, tokens.Span(0, 4, 3));
  AppendTypeWord(type, tokens.Span(5, 8, 3));
  AppendTypeWord(type, tokens.Span(14, 3, 4));
  EXPECT_EQ(type.text, "long unsigned int");
  EXPECT_EQ(type.line, 4);
}

TEST(GrammarActions, ATypeNameFollowsItsQualifiers) {
  TypeDescriptor type;
  AppendTypeName(type, Name("T::type", 2));
  EXPECT_EQ(type.name, "T::type");
  TypeDescriptor qualified("const struct", 0, -1);
  AppendTypeName(qualified, Name("foo", 9));
  EXPECT_EQ(qualified.name, "const struct foo");
  EXPECT_EQ(qualified.line, 9);
  EXPECT_EQ(qualified.kind, 0);
}

TEST(GrammarActions, FurtherSpecifiersSetTheLine) {
  TypeDescriptor type("const", 0, 1);
  AppendSpecifiers(type, TypeDescriptor("int", 0, 2));
  EXPECT_EQ(type.name, "const int");
  EXPECT_EQ(type.line, 2);
}

TEST(GrammarActions, ParametersInParenthesesHaveNoTypes) {
  ParamList list;
  EXPECT_EQ(ParenthesizedNames(list), "()");
  list.Add(Param("void(*)()", "done", 1));
  list.Add(Param("...", "", 1));
  list.Add(Param("", "char", 1));
  EXPECT_EQ(ParenthesizedNames(list), "(done, , char)");
}

using GrammarActionsOnScopes = TagBuilderTest;

TEST_F(GrammarActionsOnScopes, AnInterfaceIsTaggedAndOpened) {
  EndObjcInterfacePart(builder, Name("Foo", 3), Name("Bar", 3), true, false);
  EXPECT_EQ(Tags(), "Foo(Bar)\ta.h\t3;\"\tX\n");
  EXPECT_EQ(builder.CurrentNamespaceName(), "Foo(Bar)");
  EXPECT_TRUE(builder.InObjc());
}

TEST_F(GrammarActionsOnScopes, AProtocolHasItsOwnLetter) {
  EndObjcInterfacePart(builder, Name("Foo", 3), Name(), false, false);
  EXPECT_EQ(Tags(), "Foo\ta.h\t3;\"\tY\n");
  EXPECT_EQ(builder.CurrentNamespaceKindName(), "protocol");
}

TEST_F(GrammarActionsOnScopes, AForwardDeclarationHasNoTag) {
  EndObjcInterfacePart(builder, Name("Foo", 3), Name(), true, true);
  EXPECT_EQ(Tags(), "");
  EXPECT_EQ(builder.CurrentNamespaceName(), "");
}

}  // namespace
}  // namespace vexltags
