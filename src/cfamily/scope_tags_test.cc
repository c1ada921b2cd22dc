// SPDX-License-Identifier: MIT
// Tests of the scopes, braces, made-up names and class tags of the C family.
#include <cstdlib>
#include <string>
#include <utility>

#include "cfamily/tag_builder_fixture.h"

namespace vexltags {
namespace {

using ScopeTagsTest = TagBuilderTest;
using Curly = ParserStateBase::CurlyType;

TEST_F(ScopeTagsTest, ScopesAreJoinedFromTheOutermost) {
  EXPECT_EQ(builder.CurrentNamespaceName(), "");
  Open("a", kNamespaceKind);
  EXPECT_EQ(builder.CurrentNamespaceName(), "a");
  Open("B", kClassKind);
  EXPECT_EQ(builder.CurrentNamespaceName(), "a::B");
  EXPECT_EQ(builder.CurrentNamespaceKindName(), "class");
}

TEST_F(ScopeTagsTest, ANamespaceClosesWithoutASemicolonAndAClassWithOne) {
  Open("N", kNamespaceKind);
  Open("C", kClassKind);
  EXPECT_EQ(builder.PopRCurly(true, 5), Curly::Class);
  EXPECT_EQ(builder.CurrentNamespaceName(), "N");
  EXPECT_EQ(builder.PopRCurly(false, 6), Curly::Namespace);
  EXPECT_EQ(builder.CurrentNamespaceName(), "");
}

TEST_F(ScopeTagsTest, AnyOtherBraceClosesNoScope) {
  Open("N", kNamespaceKind);
  builder.PushOtherLCurly();
  builder.PushOtherLCurly();
  EXPECT_EQ(builder.PopRCurly(false, 5), Curly::Other);
  EXPECT_EQ(builder.PopRCurly(true, 6), Curly::Other);
  EXPECT_EQ(builder.CurrentNamespaceName(), "N");
  EXPECT_EQ(builder.PopRCurly(false, 7), Curly::Namespace);
}

TEST_F(ScopeTagsTest, OnlyTheInnermostBraceCountsAsAClass) {
  EXPECT_FALSE(builder.InClassCurlies());
  Open("C", kClassKind);
  EXPECT_TRUE(builder.InClassCurlies());
  builder.PushOtherLCurly();
  EXPECT_FALSE(builder.InClassCurlies());
  builder.PopRCurly(false, 2);
  EXPECT_TRUE(builder.InClassCurlies());
  Open("N", kNamespaceKind);
  EXPECT_FALSE(builder.InClassCurlies());
}

TEST_F(ScopeTagsTest, EveryScopeExceptANamespaceCountsAsAClass) {
  for (const long kind : {kClassKind, kStructKind, kUnionKind, kEnumKind, kInterfaceKind,
                          kProtocolKind, kImplementationKind}) {
    Open("S", kind);
    EXPECT_TRUE(builder.InClassCurlies()) << kind;
    builder.PopRCurly(true, 2);
  }
}

TEST_F(ScopeTagsTest, AFunctionBraceIsFoundBelowInnerOnes) {
  Open("C", kClassKind);
  EXPECT_FALSE(builder.InFunctionCurliesDeep());
  builder.PushFunctionLCurly();
  EXPECT_TRUE(builder.InFunctionCurlies());
  EXPECT_TRUE(builder.InFunctionCurliesDeep());
  Open("L", kStructKind);
  EXPECT_FALSE(builder.InFunctionCurlies());
  EXPECT_TRUE(builder.InFunctionCurliesDeep());
  builder.PopRCurly(true, 3);
  EXPECT_EQ(builder.PopRCurly(false, 4), Curly::Function);
  EXPECT_FALSE(builder.InFunctionCurliesDeep());
  EXPECT_EQ(builder.CurrentNamespaceName(), "C");
}

TEST_F(ScopeTagsTest, OnlyTheInnermostScopeCountsAsObjc) {
  EXPECT_FALSE(builder.InObjc());
  const std::pair<long, bool> cases[] = {
      {kClassKind, false},   {kNamespaceKind, false},     {kInterfaceKind, true},
      {kProtocolKind, true}, {kImplementationKind, true}, {kConstantKind, false},
  };
  for (const auto& [kind, expected] : cases) {
    Open("S", kind);
    EXPECT_EQ(builder.InObjc(), expected) << kind;
  }
}

TEST_F(ScopeTagsTest, OnlyTheInnermostScopeCountsAsATypedef) {
  EXPECT_FALSE(builder.CurrentNamespaceIsTyperef());
  TypeDescriptor marked("S", kStructKind, 1);
  marked.isTypedef = true;
  builder.PushClass(marked);
  EXPECT_TRUE(builder.CurrentNamespaceIsTyperef());
  Open("T", kStructKind);
  EXPECT_FALSE(builder.CurrentNamespaceIsTyperef());
}

TEST_F(ScopeTagsTest, ATypedefWithoutANameDoesNotCount) {
  TypeDescriptor marked("", kStructKind, 1);
  marked.isTypedef = true;
  builder.PushClass(marked);
  EXPECT_FALSE(builder.CurrentNamespaceIsTyperef());
}

TEST_F(ScopeTagsTest, MadeUpNamesAreNumberedAcrossFiles) {
  VexlTagsParser other(options, dumper, "b.h");
  const std::string first = builder.NextAnonName();
  const std::string second = other.NextAnonName();
  ASSERT_EQ(first.substr(0, 6), "__anon");
  EXPECT_EQ(second, "__anon" + std::to_string(std::stoi(first.substr(6)) + 1));
}

TEST_F(ScopeTagsTest, TheNumberOfMadeUpNamesCanBeSet) {
  const std::int32_t former = VexlTagsParser::AnonCount();
  VexlTagsParser::SetAnonCount(41);
  EXPECT_EQ(VexlTagsParser::NextAnonName(), "__anon42");
  EXPECT_EQ(VexlTagsParser::AnonCount(), 42);
  VexlTagsParser::SetAnonCount(former);
}

TEST(MadeUpNamesDeathTest, TheFirstOneOfARunIsNumber1) {
  testing::FLAGS_gtest_death_test_style = "threadsafe";  // a new process
  EXPECT_EXIT(
      {
        std::fputs(VexlTagsParser::NextAnonName().c_str(), stderr);
        std::exit(0);
      },
      testing::ExitedWithCode(0), "^__anon1$");
}

TEST_F(ScopeTagsTest, GetNamespaceAndNameSkipsAngleBrackets) {
  const struct {
    const char *text, *scope, *name;
  } cases[] = {
      {"", "", ""},
      {"f", "", "f"},
      {"A::f", "A", "f"},
      {"A::B::f", "A::B", "f"},
      {"A<B::C>::f", "A<B::C>", "f"},
      {"A<B<C::D>, E::F>::G<H::I>::f", "A<B<C::D>, E::F>::G<H::I>", "f"},
      {"f<A::B>", "", "f<A::B>"},
      {"A::", "A", ""},
      {"::f", "", "f"},
      {"::A::f", "A", "f"},
      {"a:b", "", "a:b"},
      {"A:::f", "A", ":f"},
      {"->", "", "->"},
      {"<", "", "<"},
      {"A<B::f", "", "A<B::f"},
      {"A>B::f", "", "A>B::f"},
  };
  for (const auto& c : cases) {
    const auto [scope, name] = builder.GetNamespaceAndName(c.text);
    EXPECT_EQ(scope, c.scope) << c.text;
    EXPECT_EQ(name, c.name) << c.text;
  }
  Open("N", kNamespaceKind);
  Open("M", kNamespaceKind);
  EXPECT_EQ(builder.GetNamespaceAndName("f").first, "N::M");
  EXPECT_EQ(builder.GetNamespaceAndName("A<B::C>::f").first, "N::M::A<B::C>");
}

TEST_F(ScopeTagsTest, AClassTagHasTheLetterOfItsKind) {
  const std::string letters = "csuetnXYwbVZC";
  for (long kind = 0; kind <= 14; ++kind) {
    builder.DumpClass(TypeDescriptor("S", kind, 1), 4);
    const char letter = kind >= 1 && kind <= 13 ? letters[static_cast<std::size_t>(kind - 1)] : ' ';
    EXPECT_EQ(Tags(), std::string("S\ta.h\t4;\"\t") + letter + "\n") << kind;
  }
}

TEST_F(ScopeTagsTest, AClassTagNamesTheScopeAroundIt) {
  builder.DumpClass(TypeDescriptor("A::B<C::D>", kStructKind, 1), 4);
  EXPECT_EQ(Tags(), "B<C::D>\ta.h\t4;\"\ts\tclass:A\n");
  Open("N", kNamespaceKind);
  builder.DumpClass(TypeDescriptor("S", kStructKind, 1), 5);
  EXPECT_EQ(Tags(), "S\ta.h\t5;\"\ts\tnamespace:N\n");
  builder.DumpClass(TypeDescriptor("A::S", kStructKind, 1), 6);
  EXPECT_EQ(Tags(), "S\ta.h\t6;\"\ts\tnamespace:N::A\n");
  Open("X", kTypeAliasKind);
  builder.DumpClass(TypeDescriptor("U", kUnionKind, 1), 7);
  EXPECT_EQ(Tags(), "U\ta.h\t7;\"\tu\t:N::X\n");
}

TEST_F(ScopeTagsTest, WhiteSpaceInAClassNameIsCollapsed) {
  builder.DumpClass(TypeDescriptor("A< x,\ty >::C<\n int>", kClassKind, 1), 4);
  EXPECT_EQ(Tags(), "C< int>\ta.h\t4;\"\tc\tclass:A< x, y >\n");
}

TEST_F(ScopeTagsTest, ReadableClass) {
  Open("N", kNamespaceKind);
  EXPECT_EQ(Readable([&] { builder.DumpClass(TypeDescriptor("A::B", kClassKind, 1), 4); }),
            "class: A::B| a.h:4\n");
}

}  // namespace
}  // namespace vexltags
