// SPDX-License-Identifier: MIT
// Tests of the Python tag builder.
#include "python/python_tags_parser.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "base/text.h"
#include "parserstate/line_pieces_test_support.h"

namespace vexltags {
namespace {

class PythonTagsParserTest : public testing::Test {
 protected:
  Options options;
  Dumper dumper;
  PythonTagsParser builder{options, dumper, "a.py"};

  std::vector<std::string> Lines() const { return dumper.Lines(); }
};

TEST_F(PythonTagsParserTest, ADefDirectlyInsideAClassIsAMethod) {
  builder.DumpClassDef("A", 0, 1);
  builder.DumpFuncDef("f", 4, 2);
  EXPECT_EQ(Lines(), (std::vector<std::string>{"A\ta.py\t1;\"\tc\n",  //
                                               "f\ta.py\t2;\"\tm\tclass:A\n"}));
}

TEST_F(PythonTagsParserTest, DefinitionsOfEqualIndentationAreSiblings) {
  builder.DumpClassDef("A", 0, 1);
  builder.DumpFuncDef("f", 4, 2);
  builder.DumpFuncDef("g", 4, 3);
  builder.DumpFuncDef("h", 0, 4);
  EXPECT_EQ(Lines()[2], "g\ta.py\t3;\"\tm\tclass:A\n");
  EXPECT_EQ(Lines()[3], "h\ta.py\t4;\"\tf\n");
}

TEST_F(PythonTagsParserTest, TheFieldHasTheInnermostKindAndTheWholePath) {
  builder.DumpClassDef("A", 0, 1);
  builder.DumpFuncDef("f", 1, 2);
  builder.DumpFuncDef("g", 2, 3);
  builder.DumpClassDef("B", 3, 4);
  builder.DumpFuncDef("h", 4, 5);
  EXPECT_EQ(Lines()[2], "g\ta.py\t3;\"\tf\tfunction:A.f\n");
  EXPECT_EQ(Lines()[3], "B\ta.py\t4;\"\tc\tfunction:A.f.g\n");
  EXPECT_EQ(Lines()[4], "h\ta.py\t5;\"\tm\tclass:A.f.g.B\n");
}

TEST_F(PythonTagsParserTest, PopNamespaceClosesScopesOfAtLeastThatWidth) {
  builder.PushNamespace("a", 0, 1);
  builder.PushNamespace("b", 4, 0);
  builder.PushNamespace("c", 8, 0);
  builder.PopNamespace(4);
  builder.DumpFuncDef("d", 4, 9);
  EXPECT_EQ(Lines()[0], "d\ta.py\t9;\"\tm\tclass:a\n");
}

TEST(PythonTagsParserDebugDump, WritesNothingButTracksScopes) {
  Options options;
  options.debugDump = true;
  Dumper dumper;
  PythonTagsParser builder(options, dumper, "a.py");
  builder.DumpClassDef("A", 0, 1);
  builder.DumpFuncDef("f", 4, 2);
  EXPECT_TRUE(dumper.Lines().empty());
  options.debugDump = false;
  builder.DumpFuncDef("g", 8, 3);
  ASSERT_EQ(dumper.Lines().size(), 1U);
  EXPECT_EQ(dumper.Lines()[0], "g\ta.py\t3;\"\tf\tfunction:A.f\n");
}

TEST(PythonLinePieces, NothingIsCut) {
  using testing_support::ExpectSamePieces;
  using testing_support::TagTexts;
  // A Python name is an identifier, so there is no white space to collapse.
  const auto isWord = [](const std::string& text) { return !HasWhitespace(text); };
  ExpectSamePieces(
      [&](Dumper& dumper, const TagTexts& texts) {
        if (!isWord(texts.name) || !isWord(texts.scope)) return;
        const Options options;
        PythonTagsParser builder(options, dumper, texts.path);
        if (!texts.scope.empty()) builder.PushNamespace(texts.scope, 0, 1);
        builder.DumpFuncDef(texts.name, 4, 12);
      },
      [&](Dumper& dumper, const TagTexts& texts) {
        if (!isWord(texts.name) || !isWord(texts.scope)) return;
        dumper.Print(texts.name);
        dumper.Print("\t");
        dumper.Print(texts.path);
        dumper.PrintFormat("\t%d;\"\t%c", 12, texts.scope.empty() ? 'f' : 'm');
        if (!texts.scope.empty()) dumper.Print("\tclass:" + texts.scope);
        dumper.Print("\n");
      });
}

}  // namespace
}  // namespace vexltags
