// SPDX-License-Identifier: MIT
// Tests of tracking scopes and of the tags of enums.
#include "parserstate/parser_state_base.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "engine/token_test_support.h"
#include "parserstate/line_pieces_test_support.h"

namespace vexltags {
namespace {

using testing_support::ExpectSamePieces;
using testing_support::Shown;
using testing_support::TagTexts;
using Type = ParserStateBase::TypeDescriptor;
using Curly = ParserStateBase::CurlyType;
using Curlies = std::vector<std::pair<Curly, std::int32_t>>;
using Names = std::vector<std::string>;

// A builder that joins the open classes by "::" and shows its stacks.
class Builder : public ParserStateBase {
 public:
  using ParserStateBase::ParserStateBase;
  using ParserStateBase::PushCurly;

  const std::string& CurrentNamespaceName() const override { return JoinedScope(); }
  void PopClass(int line) override {
    poppedLines.push_back(line);
    ParserStateBase::PopClass(line);
  }

  const Curlies& OpenCurlies() const { return curlyStack; }
  Names OpenClasses() const {
    Names names;
    for (const Type& type : classStack) names.push_back(type.name);
    return names;
  }

  std::vector<int> poppedLines;
};

class ParserStateBaseTest : public testing::Test {
 protected:
  Options options;
  Dumper dumper;
  Builder builder{options, dumper, "~/a.c"};
};

TEST_F(ParserStateBaseTest, NestedClassesShareOneCurlyEntry) {
  builder.PushClass(Type("A", kClassKind, 1));
  builder.PushClass(Type("B", kEnumKind, 2));
  EXPECT_EQ(builder.OpenCurlies(), (Curlies{{Curly::Class, 2}}));
  EXPECT_EQ(builder.PopRCurly(true, 3), Curly::Class);
  EXPECT_EQ(builder.OpenCurlies(), (Curlies{{Curly::Class, 1}}));
  EXPECT_EQ(builder.OpenClasses(), Names{"A"});
  EXPECT_EQ(builder.PopRCurly(true, 4), Curly::Class);
  EXPECT_EQ(builder.OpenCurlies(), Curlies{});
  EXPECT_EQ(builder.OpenClasses(), Names{});
  EXPECT_EQ(builder.poppedLines, (std::vector<int>{3, 4}));
}

TEST_F(ParserStateBaseTest, ANamespaceInAClassAddsAnEntry) {
  builder.PushClass(Type("A", kClassKind, 1));
  builder.PushClass(Type("n", kNamespaceKind, 2));
  builder.PushClass(Type("m", kNamespaceKind, 3));
  builder.PushClass(Type("B", kClassKind, 4));
  EXPECT_EQ(builder.OpenCurlies(),
            (Curlies{{Curly::Class, 1}, {Curly::Namespace, 2}, {Curly::Class, 1}}));
  EXPECT_EQ(builder.CurrentNamespaceName(), "A::n::m::B");
}

TEST_F(ParserStateBaseTest, ABraceClosesANamespaceWithOrWithoutASemicolon) {
  for (const bool semicolonFollows : {false, true}) {
    builder.PushClass(Type("n", kNamespaceKind, 1));
    EXPECT_EQ(builder.PopRCurly(semicolonFollows, 2), Curly::Namespace);
    EXPECT_EQ(builder.OpenClasses(), Names{});
    EXPECT_EQ(builder.OpenCurlies(), Curlies{});
  }
}

TEST_F(ParserStateBaseTest, OtherBracesCloseNoScope) {
  builder.PushClass(Type("A", kClassKind, 1));
  for (const Curly type : {Curly::Function, Curly::Other}) {
    builder.PushCurly(type);
    builder.PushCurly(type);
    EXPECT_EQ(builder.PopRCurly(true, 2), type);
    EXPECT_EQ(builder.OpenCurlies(), (Curlies{{Curly::Class, 1}, {type, 1}}));
    EXPECT_EQ(builder.PopRCurly(false, 2), type);
  }
  EXPECT_EQ(builder.OpenCurlies(), (Curlies{{Curly::Class, 1}}));
  EXPECT_EQ(builder.OpenClasses(), Names{"A"});
  EXPECT_TRUE(builder.poppedLines.empty());
}

TEST_F(ParserStateBaseTest, CurlyTypesHaveFixedNumbers) {
  EXPECT_EQ(static_cast<int>(Curly::Class), 1);
  EXPECT_EQ(static_cast<int>(Curly::Namespace), 2);
  EXPECT_EQ(static_cast<int>(Curly::Function), 3);
}

TEST_F(ParserStateBaseTest, AnUnmatchedBraceIsReportedOnRequest) {
  for (const bool dumpErrors : {false, true}) {
    options.dumpErrors = dumpErrors;
    testing::internal::CaptureStderr();
    EXPECT_EQ(builder.PopRCurly(true, 17), Curly::Function);
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              dumpErrors ? "error -- } imballance ~/a.c:17\n" : "");
  }
}

TEST_F(ParserStateBaseTest, AClassWithoutItsSemicolonStaysOpen) {
  for (const bool dumpErrors : {false, true}) {
    Builder fresh(options, dumper, "~/a.c");
    options.dumpErrors = dumpErrors;
    fresh.PushClass(Type("A", kClassKind, 1));
    testing::internal::CaptureStderr();
    EXPECT_EQ(fresh.PopRCurly(false, 9), Curly::Function);
    EXPECT_EQ(
        testing::internal::GetCapturedStderr(),
        dumpErrors ? "error -- class terminator }; expected, missing semicolon ~/a.c:9\n" : "");
    EXPECT_EQ(fresh.OpenClasses(), Names{"A"});
    EXPECT_EQ(fresh.OpenCurlies(), Curlies{});
    EXPECT_EQ(fresh.CurrentNamespaceName(), "A");
  }
}

TEST_F(ParserStateBaseTest, ClosingNoClassIsReportedOnRequest) {
  for (const bool dumpErrors : {false, true}) {
    options.dumpErrors = dumpErrors;
    testing::internal::CaptureStderr();
    builder.PopClass(5);
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              dumpErrors ? "error -- no class to close, ~/a.c:5\n" : "");
    EXPECT_EQ(builder.OpenClasses(), Names{});
  }
}

TEST_F(ParserStateBaseTest, TheKindIsThatOfTheInnermostScope) {
  EXPECT_EQ(builder.CurrentNamespaceKind(), 0);
  EXPECT_EQ(builder.CurrentNamespaceKindName(), "");
  builder.PushClass(Type("n", kNamespaceKind, 1));
  builder.PushClass(Type("E", kEnumKind, 1));
  EXPECT_EQ(builder.CurrentNamespaceKind(), kEnumKind);
  EXPECT_EQ(builder.CurrentNamespaceKindName(), "enum");
}

TEST_F(ParserStateBaseTest, AScopeWithoutANameHasNoKind) {
  builder.PushClass(Type("", kEnumKind, 1));
  EXPECT_EQ(builder.CurrentNamespaceKind(), 0);
  EXPECT_EQ(builder.CurrentNamespaceKindName(), "");
}

TEST_F(ParserStateBaseTest, TheBaseHasNoScopes) {
  const ParserStateBase base(options, dumper, "a.c");
  EXPECT_EQ(base.CurrentNamespaceName(), "implement me");
  EXPECT_EQ(base.CurrentNamespaceKind(), 0);
}

TEST(NameSpaceKind, LettersAndNamesFollowTheNumber) {
  std::string letters;
  std::string names;
  for (long kind = 0; kind <= 14; ++kind) {
    letters += ParserStateBase::NameSpaceSelector(kind);
    names += ParserStateBase::NameSpaceKindName(kind) + ",";
  }
  EXPECT_EQ(letters, " csuetnXYwbVZC ");
  EXPECT_EQ(names,
            ",class,struct,union,enum,,namespace,interface,protocol,implementation,constant,"
            "variable,extension,concept,,");
}

TEST(ConcatenateNames, PutsTheSeparatorBetweenNames) {
  using List = std::vector<Type>;
  const Type a("a", kClassKind, 1);
  const Type empty("", kClassKind, 1);
  EXPECT_EQ(ConcatenateNamesUsingSeparator(List{}, "."), "");
  EXPECT_EQ(ConcatenateNamesUsingSeparator(List{a}, "."), "a");
  EXPECT_EQ(ConcatenateNamesUsingSeparator(List{a, a, a}, "::"), "a::a::a");
  EXPECT_EQ(ConcatenateNamesUsingSeparator(List{empty, a, empty}, "."), ".a.");
}

TEST_F(ParserStateBaseTest, EnumsAreWrittenWithTheirScope) {
  builder.DumpEnum(Name("Color", 3));
  builder.PushClass(Type("W \t n", kClassKind, 4));
  builder.DumpEnum(Name("Shape", 5));
  builder.PushClass(Type("x", kTypeAliasKind, 6));
  builder.DumpEnum(Name(" Two\n\tLines \t", 7));
  EXPECT_EQ(dumper.Lines(), (Names{"Color\t~/a.c\t3;\"\tg\n", "Shape\t~/a.c\t5;\"\tg\tclass:W n\n",
                                   " Two Lines\t~/a.c\t7;\"\tg\t:W n::x\n"}));
}

TEST_F(ParserStateBaseTest, ALongScopeIsCut) {
  builder.PushClass(Type(std::string(2000, 's'), kClassKind, 1));
  builder.DumpEnum(Name(std::string(2000, 'e'), 2));
  const std::string field = "\tclass:" + std::string(1023 - 7, 's');
  EXPECT_EQ(dumper.Lines(), Names{std::string(2000, 'e') + "\t~/a.c\t2;\"\tg" + field + "\n"});
}

TEST_F(ParserStateBaseTest, EnumeratorsAreWrittenWithTheirEnum) {
  builder.PushClass(Type("n", kNamespaceKind, 1));
  builder.PushClass(Type("Color", kEnumKind, 2));
  builder.DumpEnumerator(Name("kRed", 7));
  builder.DumpEnumerator(Name("k\r\nBlue ", 8));
  EXPECT_EQ(dumper.Lines(), (Names{"kRed\t~/a.c\t7;\"\te\tenum:n::Color\n",
                                   "k Blue\t~/a.c\t8;\"\te\tenum:n::Color\n"}));
}

TEST_F(ParserStateBaseTest, AnEnumeratorOutsideAnyScopeGetsNoTag) {
  for (const bool dumpErrors : {false, true}) {
    for (const bool debugDump : {false, true}) {
      options.dumpErrors = dumpErrors;
      options.debugDump = debugDump;
      testing::internal::CaptureStdout();
      testing::internal::CaptureStderr();
      builder.DumpEnumerator(Name("kRed", 7));
      EXPECT_EQ(testing::internal::GetCapturedStderr(),
                dumpErrors ? "enumerator kRed ~/a.c 7, unexpected-not inside an enum\n" : "");
      EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
      EXPECT_EQ(dumper.Lines(), Names{});
    }
  }
}

TEST_F(ParserStateBaseTest, DebugDumpPrintsToStandardOutput) {
  options.debugDump = true;
  builder.PushClass(Type("n", kNamespaceKind, 1));
  builder.PushClass(Type("Color", kEnumKind, 2));
  testing::internal::CaptureStdout();
  builder.DumpEnum(Name("Color", 2));
  builder.DumpEnumerator(Name("kRed", 3));
  EXPECT_EQ(testing::internal::GetCapturedStdout(),
            "enum: Color| ~/a.c:2\nenumerator: kRed, enum:n::Color| ~/a.c:3\n");
  EXPECT_EQ(dumper.Lines(), Names{});
}

TEST_F(ParserStateBaseTest, TheTenThousandthDeclarationIsReportedOnce) {
  options.debugDumpFilesWithHugeOutput = true;
  testing::internal::CaptureStderr();
  for (int i = 0; i < 9999; ++i) builder.DumpTrackPerFileDeclVolume();
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
  testing::internal::CaptureStderr();
  builder.DumpTrackPerFileDeclVolume();
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            "~/a.c -- more than 10000 declarations seen so far\n");
  testing::internal::CaptureStderr();
  for (int i = 0; i < 10001; ++i) builder.DumpTrackPerFileDeclVolume();
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST_F(ParserStateBaseTest, ManyDeclarationsAreOnlyReportedOnRequest) {
  testing::internal::CaptureStderr();
  for (int i = 0; i < 10001; ++i) builder.DumpTrackPerFileDeclVolume();
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST(TypeDescriptor, ResetKeepsKindAndFlags) {
  TokenMaker tokens("tok");
  Type type("former", kClassKind, 1);
  type.isAnonymous = type.isScoped = type.isTypedef = true;

  type.ResetNameAndLine(Name("a", 2));
  EXPECT_EQ(type.name, "a");
  EXPECT_EQ(type.line, 2);
  type.ResetNameAndLine(Param("int", "b", 3));
  EXPECT_EQ(type.name, "b");
  EXPECT_EQ(type.line, 3);
  type.ResetNameAndLine(tokens.Span(0, 3, 4));
  EXPECT_EQ(type.name, "tok");
  EXPECT_EQ(type.line, 4);
  type.ResetNameAndLine(tokens.WithoutText(5));
  EXPECT_EQ(type.name, "tok");
  EXPECT_EQ(type.line, 5);
  type += Name("++", 6);
  EXPECT_EQ(type.name, "tok++");
  EXPECT_EQ(type.line, 6);
  type.ResetNameAndLine(static_cast<pANTLR3_COMMON_TOKEN>(nullptr));
  EXPECT_EQ(type.name, "");
  EXPECT_EQ(type.line, -1);

  const Type copy = type;
  EXPECT_EQ(copy.kind, kClassKind);
  EXPECT_TRUE(copy.isAnonymous && copy.isScoped && copy.isTypedef);
}

TEST(TypeDescriptor, IsNotAScopeByDefault) {
  const Type empty;
  EXPECT_EQ(empty.kind, 0);
  EXPECT_EQ(empty.line, -1);
  EXPECT_FALSE(empty.isAnonymous || empty.isScoped || empty.isTypedef);
  const Type named(kEnumKind, Name("E", 4));
  EXPECT_EQ(named.name, "E");
  EXPECT_EQ(named.kind, kEnumKind);
  EXPECT_EQ(named.line, 4);
}

// Writes a tag by `action` inside the scope of the texts, which is a class.
template <class Action>
auto InsideAClass(Action action) {
  return [action](Dumper& dumper, const TagTexts& texts) {
    const Options options;
    Builder builder(options, dumper, texts.path);
    builder.PushClass(Type(texts.scope, kClassKind, 1));
    action(builder, texts);
  };
}

TEST(EnumLinePieces, AnEnum) {
  ExpectSamePieces(InsideAClass([](Builder& builder, const TagTexts& texts) {
                     builder.DumpEnum(Name(texts.name, 12));
                   }),
                   [](Dumper& dumper, const TagTexts& texts) {
                     dumper.Print(Shown(texts.name));
                     dumper.PrintFormat("\t%s\t%d;\"\t%c", texts.path.c_str(), 12, 'g');
                     if (!texts.scope.empty()) {
                       dumper.PrintFormat("\t%s:%s", "class", Shown(texts.scope).c_str());
                     }
                     dumper.Print("\n");
                   });
}

TEST(EnumLinePieces, AnEnumeratorIsOnePieceAfterItsName) {
  ExpectSamePieces(InsideAClass([](Builder& builder, const TagTexts& texts) {
                     builder.DumpEnumerator(Name(texts.name, 12));
                   }),
                   [](Dumper& dumper, const TagTexts& texts) {
                     dumper.Print(Shown(texts.name));
                     dumper.PrintFormat("\t%s\t%d;\"\t%c\tenum:%s\n", texts.path.c_str(), 12, 'e',
                                        Shown(texts.scope).c_str());
                   });
}

}  // namespace
}  // namespace vexltags
