// SPDX-License-Identifier: MIT
// Tests of the actions at the end of each C and C++ construct.
#include "cfamily/declarations.h"

#include <gtest/gtest.h>

#include <string>

#include "cfamily/tag_builder_fixture.h"

namespace vexltags {
namespace {

class DeclarationsTest : public TagBuilderTest {
 protected:
  static FunctionPrototype Function(const std::string& name) {
    FunctionPrototype function;
    function.SetName(Name(name, 3));
    return function;
  }
  const TypeDescriptor kInt{"int", 0, 1};
};

TEST_F(DeclarationsTest, AFriendIsTaggedOnlyIfItIsDefined) {
  const struct {
    bool isFriend, isDefinition;
    const char* tag;
  } cases[] = {
      {false, false, "f\ta.h\t3;\"\tp\n"},
      {false, true, "f\ta.h\t3;\"\tf\n"},
      {true, false, ""},
      {true, true, "f\ta.h\t3;\"\tf\n"},
  };
  for (const auto& c : cases) {
    builder.inTypedef = true;
    EndFunction(builder, Function("f"), c.isFriend, c.isDefinition);
    EXPECT_EQ(Tags(), c.tag);
    EXPECT_FALSE(builder.inTypedef);
    FunctionPrototype markedInItsHead = Function("f");
    markedInItsHead.isFriend = c.isFriend;
    EndFunction(builder, std::move(markedInItsHead), false, c.isDefinition);
    EXPECT_EQ(Tags(), c.tag);
  }
}

TEST_F(DeclarationsTest, NothingIsTaggedInAFunctionBody) {
  builder.PushFunctionLCurly();
  builder.inTypedef = true;
  EndFunction(builder, Function("f"), false, true);
  EXPECT_FALSE(builder.inTypedef);
  builder.inTypedef = true;
  EndSimpleDeclaration(builder, kInt, Names({"a"}));
  EXPECT_FALSE(builder.inTypedef);
  EndTypedef(builder, kInt, Names({"T"}));
  EndAlias(builder, Name("T", 1), kInt);
  EndConcept(builder, Name("C", 1), "T");
  OpenClass(builder, TypeDescriptor("S", kStructKind, 1));
  EXPECT_EQ(builder.CurrentNamespaceName(), "S");
  CloseScopeWithDeclarators(builder, Names({"a"}), 2);
  EXPECT_EQ(builder.CurrentNamespaceName(), "");
  EXPECT_EQ(Tags(), "");
}

TEST_F(DeclarationsTest, ADeclarationIsAVariableAMemberOrATypedef) {
  EndSimpleDeclaration(builder, kInt, Names({"a", "b"}));
  EXPECT_EQ(Tags(), "a\ta.h\t1;\"\tv\nb\ta.h\t2;\"\tv\n");
  builder.inTypedef = true;
  EndSimpleDeclaration(builder, kInt, Names({"T", "U"}));
  EXPECT_EQ(Tags(), "T\ta.h\t1;\"\tt\nU\ta.h\t2;\"\tt\n");
  EXPECT_FALSE(builder.inTypedef);
  Open("C", kClassKind);
  EndSimpleDeclaration(builder, kInt, Names({"a"}));
  EXPECT_EQ(Tags(), "a\ta.h\t1;\"\tm\tclass:C\n");
  builder.PushOtherLCurly();
  EndSimpleDeclaration(builder, kInt, Names({"a"}));
  EXPECT_EQ(Tags(), "a\ta.h\t1;\"\tv\tclass:C\n");
}

TEST_F(DeclarationsTest, ATypedefEndsAPendingOneAndAnAliasDoesNot) {
  builder.inTypedef = true;
  EndAlias(builder, Name("A", 4), kInt);
  EXPECT_EQ(Tags(), "A\ta.h\t4;\"\tt\n");
  EXPECT_TRUE(builder.inTypedef);
  EndTypedef(builder, kInt, Names({"T", "U"}));
  EXPECT_EQ(Tags(), "T\ta.h\t1;\"\tt\nU\ta.h\t2;\"\tt\n");
  EXPECT_FALSE(builder.inTypedef);
}

TEST_F(DeclarationsTest, AConcept) {
  EndConcept(builder, Name("C", 4), "T");
  EXPECT_EQ(Tags(), "C\ta.h\t4;\"\tC\n");
}

TEST_F(DeclarationsTest, ANameWithoutALineIsDropped) {
  VectorOfName names;
  names.Add(Name("", -1));
  names.Add(Name("b", 2));
  EndSimpleDeclaration(builder, kInt, names);
  EXPECT_EQ(Tags(), "b\ta.h\t2;\"\tv\n");
  builder.inTypedef = true;
  EndSimpleDeclaration(builder, kInt, names);
  EXPECT_EQ(Tags(), "b\ta.h\t2;\"\tt\n");
  EndTypedef(builder, kInt, names);
  EXPECT_EQ(Tags(), "b\ta.h\t2;\"\tt\n");
  EndAlias(builder, Name(), kInt);
  EndConcept(builder, Name(), "T");
  DeclareEnumName(builder, TypeDescriptor("E", kEnumKind, 1), Name());
  CloseScopeWithDeclarators(builder, names, 3);
  EXPECT_EQ(Tags(), "b\ta.h\t2;\"\tv\n");
}

TEST_F(DeclarationsTest, TheTextOfAFunctionPointer) {
  Param pointer;
  BeginFunctionPointer(pointer, TypeDescriptor("void", 0, 5));
  EXPECT_EQ(pointer.line, 5);
  pointer.type += "(*";
  pointer = Name("cb", 6);
  pointer.type += ")";
  ParamList params;
  SetUnnamedParam(params.params.emplace_back(), TypeDescriptor("const char*", 0, 7));
  AddVariadicParam(params, 8);
  EXPECT_EQ(params.params[0].line, 7);
  EXPECT_EQ(params.params[1].line, 8);
  EndFunctionPointer(builder, pointer, params, "const");
  EXPECT_EQ(pointer.type, "void(*)");
  options.debugDump = true;
  EndFunctionPointer(builder, pointer, params, "const");
  options.debugDump = false;
  EXPECT_EQ(pointer.type, "void(*)( @const char*@, ...)const");

  TypeDescriptor type;
  VectorOfName names;
  SetFunctionPointer(pointer, type, names);
  EXPECT_EQ(type.name, pointer.type);
  EXPECT_EQ(type.kind, 0);
  EndSimpleDeclaration(builder, type, names);
  EXPECT_EQ(Tags(), "cb\ta.h\t6;\"\tv\n");
  EXPECT_EQ(FunctionPointerType(pointer).line, 6);
}

TEST_F(DeclarationsTest, TemplateTextIsAppendedUnlessTheNameHasArguments) {
  const struct {
    const char *name, *head, *result;
  } cases[] = {
      {"C", "", "C"},           {"C", "T", "C<T>"},
      {"S", "T, N", "S<T, N>"}, {"C<int>", "anon_value", "C<int>"},
      {"a::C", "T", "a::C<T>"}, {"N<T>::C", "U", "N<T>::C<U>"},
  };
  for (const auto& c : cases) {
    TypeDescriptor descriptor;
    descriptor.isAnonymous = true;
    NameClass(descriptor, Name(c.name, 4), c.head);
    EXPECT_EQ(descriptor.name, c.result);
    EXPECT_EQ(descriptor.line, 4);
    EXPECT_FALSE(descriptor.isAnonymous);
  }
}

TEST_F(DeclarationsTest, AClassIsTaggedInTheScopeAroundIt) {
  OpenClass(builder, TypeDescriptor("N", kNamespaceKind, 1));
  OpenClass(builder, TypeDescriptor("S", kStructKind, 2));
  EXPECT_EQ(Tags(), "N\ta.h\t1;\"\tn\nS\ta.h\t2;\"\ts\tnamespace:N\n");
  EXPECT_TRUE(builder.InClassCurlies());
}

TEST_F(DeclarationsTest, AnUnnamedClassOpensAScopeWithoutATag) {
  TypeDescriptor descriptor;
  descriptor.kind = kStructKind;
  NameAnonymousClass(descriptor, 8);
  EXPECT_TRUE(descriptor.isAnonymous);
  EXPECT_EQ(descriptor.line, 8);
  EXPECT_EQ(descriptor.name.substr(0, 6), "__anon");
  OpenClass(builder, descriptor);
  EXPECT_EQ(Tags(), "");
  EXPECT_EQ(builder.CurrentNamespaceName(), descriptor.name);
}

TEST_F(DeclarationsTest, TheMacroForNamespaceStdHasNoTag) {
  OpenStdNamespace(builder, 1);
  EXPECT_EQ(Tags(), "");
  OpenClass(builder, TypeDescriptor("X", kClassKind, 2));
  EXPECT_EQ(Tags(), "X\ta.h\t2;\"\tc\tnamespace:std\n");
  CloseScope(builder, 3);
  EXPECT_EQ(builder.PopRCurly(false, 4), ParserStateBase::CurlyType::Namespace);
}

TEST_F(DeclarationsTest, NamesAfterABraceHaveTheClosedTypeAndTheScopeAroundIt) {
  Open("N", kNamespaceKind);
  OpenClass(builder, TypeDescriptor("S", kStructKind, 1));
  OpenClass(builder, TypeDescriptor("U", kUnionKind, 2));
  Tags();
  CloseScopeWithDeclarators(builder, Names({"a", "b"}), 3);
  EXPECT_EQ(Tags(),
            "a\ta.h\t1;\"\tm\tstruct:N::S\ttyperef:union:N::S::U\n"
            "b\ta.h\t2;\"\tm\tstruct:N::S\ttyperef:union:N::S::U\n");
  builder.inTypedef = true;
  CloseScopeWithDeclarators(builder, Names({"c"}), 4);
  EXPECT_EQ(Tags(), "c\ta.h\t1;\"\tv\ttyperef:struct:N::S\n");
  EXPECT_FALSE(builder.inTypedef);
  EXPECT_EQ(builder.CurrentNamespaceName(), "N");
}

TEST_F(DeclarationsTest, ATypedefOfAnUnnamedStructRefersToItsMadeUpName) {
  TypeDescriptor descriptor;
  descriptor.kind = kStructKind;
  descriptor.isTypedef = true;
  NameAnonymousClass(descriptor, 1);
  OpenClass(builder, descriptor);
  CloseScopeWithDeclarators(builder, Names({"T"}), 2);
  EXPECT_EQ(Tags(), "T\ta.h\t1;\"\tt\ttyperef:struct:" + descriptor.name + "\n");
}

TEST_F(DeclarationsTest, AStrayBraceWithNamesStillDeclaresThem) {
  CloseScopeWithDeclarators(builder, Names({"a"}), 2);
  EXPECT_EQ(Tags(), "a\ta.h\t1;\"\tv\n");
}

TEST_F(DeclarationsTest, ABraceWithASemicolonEndsAPendingTypedef) {
  builder.inTypedef = true;
  Open("S", kStructKind);
  CloseScope(builder, 2);
  EXPECT_FALSE(builder.inTypedef);
  EXPECT_EQ(builder.CurrentNamespaceName(), "");
}

TEST_F(DeclarationsTest, AnEnumIsTheScopeOfItsEnumerators) {
  TypeDescriptor descriptor(kEnumKind, Name("E", 1));
  NameEnum(descriptor, 9);
  EXPECT_FALSE(descriptor.isAnonymous);
  EXPECT_EQ(descriptor.line, 1);
  builder.OpenEnum(descriptor);
  builder.DumpEnumerator(Name("A", 2));
  CloseEnum(builder, 3);
  EXPECT_EQ(Tags(), "E\ta.h\t1;\"\tg\nA\ta.h\t2;\"\te\tenum:E\n");
  EXPECT_EQ(builder.CurrentNamespaceName(), "");
}

TEST_F(DeclarationsTest, AnUnnamedEnumHasNoTagOfItsOwn) {
  TypeDescriptor descriptor(kEnumKind, Name());
  NameEnum(descriptor, 9);
  EXPECT_TRUE(descriptor.isAnonymous);
  EXPECT_EQ(descriptor.line, 9);
  builder.OpenEnum(descriptor);
  builder.DumpEnumerator(Name("A", 2));
  EXPECT_EQ(Tags(), "A\ta.h\t2;\"\te\tenum:" + descriptor.name + "\n");
}

TEST_F(DeclarationsTest, ANameAfterAnEnumIsAVariableOrTypedefButNotAMember) {
  TypeDescriptor descriptor("E", kEnumKind, 1);
  Open("C", kClassKind);
  DeclareEnumName(builder, descriptor, Name("x", 2));
  EXPECT_EQ(Tags(), "x\ta.h\t2;\"\tv\ttyperef:enum:E\n");
  descriptor.isTypedef = true;
  DeclareEnumName(builder, descriptor, Name("T", 2));
  EXPECT_EQ(Tags(), "T\ta.h\t2;\"\tt\ttyperef:enum:E\n");
}

TEST_F(DeclarationsTest, TheLongNameOfAClosedTypeIsCut) {
  const std::string name(3000, 'N');
  Open(name, kStructKind);
  CloseScopeWithDeclarators(builder, Names({"a"}), 2);
  const std::string field = ("\ttyperef:struct:" + name).substr(0, 1023);
  EXPECT_EQ(Tags(), "a\ta.h\t1;\"\tv" + field + "\n");
  EXPECT_EQ(Readable([&] {
              Open(name, kStructKind);
              CloseScopeWithDeclarators(builder, Names({"a"}), 2);
            }),
            "global: " + name + " a| a.h:1\n");
}

}  // namespace
}  // namespace vexltags
