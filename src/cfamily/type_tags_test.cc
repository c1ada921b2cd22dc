// SPDX-License-Identifier: MIT
// Tests of the tags of macros, typedefs, concepts, variables and names after a closing brace.
#include <string>

#include "cfamily/tag_builder_fixture.h"

namespace vexltags {
namespace {

using TypeTagsTest = TagBuilderTest;

TEST_F(TypeTagsTest, AMacroHasNoScope) {
  builder.DumpMacro("FOO", 3);
  EXPECT_EQ(Tags(), "FOO\ta.h\t3;\"\td\n");
  Open("C", kClassKind);
  builder.DumpMacro("BAR", 4);
  EXPECT_EQ(Tags(), "BAR\ta.h\t4;\"\td\n");
  EXPECT_EQ(Readable([&] { builder.DumpMacro("BAR", 4); }), "macro: BAR| a.h:4\n");
}

TEST_F(TypeTagsTest, ATypedefOfAPlainTypeHasNoTyperef) {
  builder.DumpTypedef("T", TypeDescriptor("struct foo", 0, 1), 2);
  EXPECT_EQ(Tags(), "T\ta.h\t2;\"\tt\n");
  builder.DumpTypedef("T", TypeDescriptor("N", kNamespaceKind, 1), 2);
  EXPECT_EQ(Tags(), "T\ta.h\t2;\"\tt\n");
}

TEST_F(TypeTagsTest, ATypedefOfAClassNamesItBeforeTheScope) {
  for (const long kind : {kClassKind, kStructKind, kUnionKind, kEnumKind}) {
    builder.DumpTypedef("T", TypeDescriptor("struct foo  bar", kind, 1), 2);
    EXPECT_EQ(Tags(), "T\ta.h\t2;\"\tt\ttyperef:struct:foo::bar\n") << kind;
  }
  Open("N", kNamespaceKind);
  builder.DumpTypedef("T", TypeDescriptor("struct foo", kStructKind, 1), 2);
  EXPECT_EQ(Tags(), "T\ta.h\t2;\"\tt\ttyperef:struct:foo\tnamespace:N\n");
}

TEST_F(TypeTagsTest, ATypedefInAScope) {
  Open("N", kNamespaceKind);
  Open("S<\tT >", kStructKind);
  builder.DumpTypedef("value\n type", TypeDescriptor("int", 0, 1), 2);
  EXPECT_EQ(Tags(), "value type\ta.h\t2;\"\tt\tstruct:N::S< T >\n");
  EXPECT_EQ(Readable([&] { builder.DumpTypedef("T", TypeDescriptor("int", 0, 1), 2); }),
            "typedef: T| a.h:2\n");
}

TEST_F(TypeTagsTest, AConceptHasAScopeFieldButNotItsHead) {
  builder.DumpConstraint("C", TypeDescriptor("T", 0, 1), 2);
  EXPECT_EQ(Tags(), "C\ta.h\t2;\"\tC\n");
  Open("N", kNamespaceKind);
  builder.DumpConstraint("C", TypeDescriptor("T", 0, 1), 2);
  EXPECT_EQ(Tags(), "C\ta.h\t2;\"\tC\tnamespace:N\n");
  EXPECT_EQ(Readable([&] { builder.DumpConstraint("C", TypeDescriptor("T", 0, 1), 2); }),
            "constraint: C| a.h:2\n");
}

TEST_F(TypeTagsTest, TheScopeOfAVariable) {
  const TypeDescriptor type("int", 0, 1);
  const struct {
    long kind;  // of the open scope S; 0 for none
    bool isMember;
    const char *name, *tag;
  } cases[] = {
      {0, false, "a", "a\ta.h\t2;\"\tv\n"},
      {0, true, "a", "a\ta.h\t2;\"\tm\n"},
      {0, false, "A::a", "a\ta.h\t2;\"\tv\tclass:A\n"},
      {0, false, "A::B::a", "a\ta.h\t2;\"\tv\tclass:A::B\n"},
      {kClassKind, true, "a", "a\ta.h\t2;\"\tm\tclass:S\n"},
      {kStructKind, true, "a", "a\ta.h\t2;\"\tm\tstruct:S\n"},
      {kUnionKind, true, "a", "a\ta.h\t2;\"\tm\tunion:S\n"},
      {kNamespaceKind, false, "a", "a\ta.h\t2;\"\tv\tnamespace:S\n"},
      {kTypeAliasKind, true, "a", "a\ta.h\t2;\"\tm\t:S\n"},
      {kProtocolKind, true, "a", "a\ta.h\t2;\"\tm\tprotocol:S\n"},
      {kClassKind, true, "A::a", "a\ta.h\t2;\"\tm\tclass:S::A\n"},
      {kStructKind, true, "A::a", "a\ta.h\t2;\"\tm\tstruct:S::A\n"},
      {kUnionKind, true, "A::a", "a\ta.h\t2;\"\tm\tunion:S::A\n"},
      {kNamespaceKind, false, "A::a", "a\ta.h\t2;\"\tv\tnamespace:S::A\n"},
      {kEnumKind, true, "A::a", "a\ta.h\t2;\"\tm\tclass:A\n"},
      {kImplementationKind, true, "A::a", "a\ta.h\t2;\"\tm\tclass:A\n"},
      {kInterfaceKind, true, "A< x,\t y>::a", "a\ta.h\t2;\"\tm\tclass:A< x, y>\n"},
  };
  for (const auto& c : cases) {
    if (c.kind != 0) Open("S", c.kind);
    builder.DumpDeclDef(c.isMember, c.name, type, 2);
    EXPECT_EQ(Tags(), c.tag);
    if (c.kind != 0) builder.PopClass(2);
  }
}

TEST_F(TypeTagsTest, AVariableNeverHasATyperef) {
  builder.DumpDeclDef(false, "a", TypeDescriptor("S", kStructKind, 1), 2);
  EXPECT_EQ(Tags(), "a\ta.h\t2;\"\tv\n");
}

TEST_F(TypeTagsTest, ReadableVariables) {
  const TypeDescriptor type("int*", 0, 1);
  EXPECT_EQ(Readable([&] { builder.DumpDeclDef(true, "a", type, 2); }), "member: int* a| a.h:2\n");
  EXPECT_EQ(Readable([&] { builder.DumpDeclDef(false, "a", type, 2); }), "global: int* a| a.h:2\n");
  EXPECT_EQ(Readable([&] {
              builder.DumpDeclaration(true, false, "a", kStructKind, "S", kClassKind, "C", 2);
            }),
            "member: S a| a.h:2\n");
  EXPECT_EQ(
      Readable([&] { builder.DumpDeclaration(false, true, "a", kStructKind, "S", 0, "", 2); }),
      "global: S a| a.h:2\n");
}

TEST_F(TypeTagsTest, ANameAfterABrace) {
  const struct {
    bool isMember, isTypedef;
    long typeKind;
    const char* typeName;
    const char* tag;
  } cases[] = {
      {false, false, kStructKind, "S", "a\ta.h\t2;\"\tv\ttyperef:struct:S\n"},
      {false, true, kStructKind, "S", "a\ta.h\t2;\"\tt\ttyperef:struct:S\n"},
      {true, false, kUnionKind, "N::\tU", "a\ta.h\t2;\"\tm\tclass:N::C D\ttyperef:union:N:: U\n"},
      {true, true, kEnumKind, "E", "a\ta.h\t2;\"\tt\tclass:N::C D\ttyperef:enum:E\n"},
      {false, false, 0, "", "a\ta.h\t2;\"\tv\n"},
      {false, false, kTypeAliasKind, "__anon7", "a\ta.h\t2;\"\tv\ttyperef::__anon7\n"},
  };
  for (const auto& c : cases) {
    builder.DumpDeclaration(c.isMember, c.isTypedef, "a", c.typeKind, c.typeName, kClassKind,
                            "N::C\nD", 2);
    EXPECT_EQ(Tags(), c.tag);
  }
}

TEST_F(TypeTagsTest, TheTenThousandthDeclarationOfAFileIsReportedOnce) {
  options.debugDumpFilesWithHugeOutput = true;
  const TypeDescriptor type("int", 0, 1);
  builder.DumpMacro("M", 1);
  builder.DumpTypedef("T", type, 1);
  builder.DumpClass(type, 1);
  testing::internal::CaptureStderr();
  for (int i = 0; i < 4999; ++i) {
    builder.DumpDeclDef(false, "a", type, 1);
    builder.DumpDeclaration(false, false, "a", kStructKind, "S", 0, "", 1);
  }
  builder.DumpDeclDef(false, "a", type, 1);
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
  testing::internal::CaptureStderr();
  builder.DumpDeclaration(false, false, "a", kStructKind, "S", 0, "", 1);
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            "a.h -- more than 10000 declarations seen so far\n");
  testing::internal::CaptureStderr();
  builder.DumpDeclDef(false, "a", type, 1);
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST_F(TypeTagsTest, ManyDeclarationsAreOnlyReportedOnRequest) {
  const TypeDescriptor type("int", 0, 1);
  testing::internal::CaptureStderr();
  for (int i = 0; i < 10001; ++i) builder.DumpDeclDef(false, "a", type, 1);
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

}  // namespace
}  // namespace vexltags
