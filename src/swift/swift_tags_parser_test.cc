// SPDX-License-Identifier: MIT
// Tests of the Swift tag builder.
#include "swift/swift_tags_parser.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "engine/token_test_support.h"

namespace vexltags {
namespace {

using Lines = std::vector<std::string>;
using CurlyType = ParserStateBase::CurlyType;
using TypeDescriptor = ParserStateBase::TypeDescriptor;

class SwiftTagsParserTest : public testing::Test {
 protected:
  static ParamList Labels(const std::vector<std::string>& labels) {
    ParamList list;
    for (const std::string& label : labels) list.Add(Param("", label, 1));
    return list;
  }

  Options options;
  Dumper dumper;
  SwiftTagsParser builder{options, dumper, "a.swift"};
};

TEST_F(SwiftTagsParserTest, WritesAFunctionWithItsLabels) {
  builder.DumpSwiftFunction("move", Labels({"to:", "by:"}), 3);
  builder.DumpSwiftFunction("f", Labels({"_", "y:"}), 4);
  builder.DumpSwiftFunction("f", ParamList(), 5);
  builder.DumpSwiftFunction("+", Labels({"a:", "b:"}), 6);
  EXPECT_EQ(dumper.Lines(),
            (Lines{"move(to:,by:)\ta.swift\t3;\"\tf\n", "f(_,y:)\ta.swift\t4;\"\tf\n",
                   "f()\ta.swift\t5;\"\tf\n", "+(a:,b:)\ta.swift\t6;\"\tf\n"}));
}

TEST_F(SwiftTagsParserTest, WritesDeinitWithoutParentheses) {
  builder.DumpSwiftFunction("deinit", Labels({"a:"}), 2);
  builder.DumpSwiftFunction("init", ParamList(), 3);
  EXPECT_EQ(dumper.Lines(), (Lines{"deinit\ta.swift\t2;\"\tf\n", "init()\ta.swift\t3;\"\tf\n"}));
}

TEST_F(SwiftTagsParserTest, UsesTextAndLineOfAKeyword) {
  TokenMaker maker("init deinit subscript");
  builder.DumpKeywordFunction(maker.Span(0, 4, 7));
  builder.DumpKeywordFunction(maker.Span(5, 6, 8));
  builder.DumpKeywordFunction(maker.Span(12, 9, 9));
  EXPECT_EQ(dumper.Lines(), (Lines{"init()\ta.swift\t7;\"\tf\n", "deinit\ta.swift\t8;\"\tf\n",
                                   "subscript()\ta.swift\t9;\"\tf\n"}));
}

TEST_F(SwiftTagsParserTest, CollapsesWhiteSpaceInNamesAndScopes) {
  builder.DumpSwiftFunction("+ \n +", ParamList(), 1);
  builder.OpenType(kExtensionKind, Name("A\t B", 2));
  builder.DumpNamed(kVariableKind, Name("x", 3));
  EXPECT_EQ(dumper.Lines(), (Lines{"+ +()\ta.swift\t1;\"\tf\n", "A B\ta.swift\t2;\"\tZ\n",
                                   "x\ta.swift\t3;\"\tV\tA B\n"}));
}

TEST_F(SwiftTagsParserTest, HasALetterForEachKind) {
  const std::string letters = "csuetnXYwbVZC";
  for (long kind = 0; kind <= 14; ++kind) {
    builder.Dump(TypeDescriptor("x", kind, 1));
    const std::string letter =
        kind >= 1 && kind <= 13 ? letters.substr(static_cast<std::size_t>(kind) - 1, 1) : " ";
    EXPECT_EQ(dumper.Lines().back(), "x\ta.swift\t1;\"\t" + letter + "\n") << kind;
  }
}

TEST_F(SwiftTagsParserTest, DumpOpensNoScope) {
  builder.Dump(TypeDescriptor("A", kClassKind, 1));
  EXPECT_EQ(builder.CurrentNamespaceName(), "");
}

TEST_F(SwiftTagsParserTest, DumpClassHasTwoLetters) {
  builder.DumpClass(TypeDescriptor("A", kClassKind, 1));
  builder.DumpClass(TypeDescriptor("B", kStructKind, 2));
  builder.DumpClass(TypeDescriptor("C", kProtocolKind, 3));
  EXPECT_EQ(dumper.Lines(),
            (Lines{"A\ta.swift\t1;\"\tc\n", "B\ta.swift\t2;\"\ts\n", "C\ta.swift\t3;\"\ts\n"}));
}

TEST_F(SwiftTagsParserTest, JoinsScopesWithDots) {
  builder.OpenType(kExtensionKind, Name("A.B", 1));
  builder.OpenType(kStructKind, Name("C", 1));
  builder.DumpNamed(kVariableKind, Name("x", 2));
  builder.DumpSwiftFunction("f", ParamList(), 3);
  EXPECT_EQ(builder.CurrentNamespaceName(), "A.B.C");
  EXPECT_EQ(dumper.Lines(),
            (Lines{"A.B\ta.swift\t1;\"\tZ\n", "C\ta.swift\t1;\"\ts\tA.B\n",
                   "x\ta.swift\t2;\"\tV\tA.B.C\n", "f()\ta.swift\t3;\"\tf\tA.B.C\n"}));
}

TEST_F(SwiftTagsParserTest, WritesEnumsLikeTheBase) {
  builder.OpenType(kClassKind, Name("A", 1));
  builder.OpenEnum(Name("E", 2));
  builder.DumpEnumerator(Name("a", 3));
  EXPECT_EQ(dumper.Lines(), (Lines{"A\ta.swift\t1;\"\tc\n", "E\ta.swift\t2;\"\tg\tclass:A\n",
                                   "a\ta.swift\t3;\"\te\tenum:A.E\n"}));
}

TEST_F(SwiftTagsParserTest, WritesOneTagForEachName) {
  VectorOfName names;
  names.Add(Name("a", 1));
  names.Add(Name("b", 2));
  builder.DumpEach(kConstantKind, names);
  builder.DumpEach(kConstantKind, VectorOfName());
  EXPECT_EQ(dumper.Lines(), (Lines{"a\ta.swift\t1;\"\tb\n", "b\ta.swift\t2;\"\tb\n"}));
}

TEST_F(SwiftTagsParserTest, AClosingBraceClosesTheInnermostScope) {
  builder.OpenType(kClassKind, Name("A", 1));
  builder.OpenType(kStructKind, Name("B", 1));
  EXPECT_EQ(builder.PopRCurly(2), CurlyType::Class);
  EXPECT_EQ(builder.CurrentNamespaceName(), "A");
  EXPECT_EQ(builder.PopRCurly(3), CurlyType::Class);
  EXPECT_EQ(builder.CurrentNamespaceName(), "");
}

TEST_F(SwiftTagsParserTest, AnUnmatchedBraceIsIgnoredByDefault) {
  testing::internal::CaptureStderr();
  EXPECT_EQ(builder.PopRCurly(2), CurlyType::Function);
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST_F(SwiftTagsParserTest, AnUnmatchedBraceIsReportedOnRequest) {
  options.dumpErrors = true;
  testing::internal::CaptureStderr();
  EXPECT_EQ(builder.PopRCurly(2), CurlyType::Function);
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "error -- } imbalance a.swift:2\n");
  builder.OpenType(kClassKind, Name("A", 3));
  builder.PopRCurly(4);
  EXPECT_EQ(builder.CurrentNamespaceName(), "");
}

TEST_F(SwiftTagsParserTest, DebugDumpAffectsOnlyEnums) {
  options.debugDump = true;
  builder.DumpSwiftFunction("f", ParamList(), 1);
  builder.OpenType(kClassKind, Name("A", 2));
  builder.DumpNamed(kConstantKind, Name("x", 3));
  testing::internal::CaptureStdout();
  builder.OpenEnum(Name("E", 4));
  builder.DumpEnumerator(Name("a", 5));
  EXPECT_EQ(testing::internal::GetCapturedStdout(),
            "enum: E| a.swift:4\nenumerator: a, enum:A.E| a.swift:5\n");
  EXPECT_EQ(dumper.Lines(), (Lines{"f()\ta.swift\t1;\"\tf\n", "A\ta.swift\t2;\"\tc\n",
                                   "x\ta.swift\t3;\"\tb\tA\n"}));
}

TEST_F(SwiftTagsParserTest, WarnsOnceAtTheTenThousandthDeclaration) {
  options.debugDumpFilesWithHugeOutput = true;
  testing::internal::CaptureStderr();
  for (int i = 0; i < 4999; ++i) builder.DumpNamed(kConstantKind, Name("x", 1));
  for (int i = 0; i < 5000; ++i) builder.DumpSwiftFunction("f", ParamList(), 1);
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
  testing::internal::CaptureStderr();
  builder.DumpClass(TypeDescriptor("A", kClassKind, 1));
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            "a.swift -- more than 10000 declarations seen so far\n");
  testing::internal::CaptureStderr();
  builder.DumpNamed(kConstantKind, Name("x", 1));
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

}  // namespace
}  // namespace vexltags
