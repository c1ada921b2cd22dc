// SPDX-License-Identifier: MIT
// Tests of the writer of tag lines: which texts appear, which are cut, and where a line ends.
#include "parserstate/tag.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace vexltags {
namespace {

using Lines = std::vector<std::string>;
using Pieces = Tag::Pieces;

Lines LinesOf(const Tag& tag) {
  Dumper dumper;
  WriteTag(dumper, tag);
  return dumper.Lines();
}

TEST(WriteTag, PutsTheFieldsOfTheRecordInOrder) {
  const Tag tag{.name = "f",
                .line = 12,
                .kind = 'm',
                .file = "a.c",
                .fields = {TyperefField("struct", "T"), ScopeField("class", "A::B")}};
  EXPECT_EQ(LinesOf(tag), Lines{"f\ta.c\t12;\"\tm\ttyperef:struct:T\tclass:A::B\n"});
}

TEST(WriteTag, EachFieldHasItsForm) {
  const struct {
    TagField field;
    const char* text;
  } cases[] = {
      {TagField(), ""},
      {ScopeField("class", "A"), "\tclass:A"},
      {ScopeField("", "A"), "\t:A"},
      {ScopeField("", ""), "\t:"},
      {BareScopeField("A.B"), "\tA.B"},
      {EnumField("E"), "\tenum:E"},
      {TyperefField("struct:S"), "\ttyperef:struct:S"},
      {TyperefField("", "S"), "\ttyperef::S"},
  };
  for (const auto& c : cases) {
    for (const Pieces pieces : {Pieces::kSeparate, Pieces::kPlainFile, Pieces::kOne}) {
      for (const TagField& field : {c.field, Plain(c.field)}) {
        const Tag tag{.name = "f",
                      .line = 1,
                      .kind = 'k',
                      .pieces = pieces,
                      .file = "a.c",
                      .fields = {field}};
        EXPECT_EQ(LinesOf(tag), Lines{std::string("f\ta.c\t1;\"\tk") + c.text + "\n"});
      }
    }
  }
}

TEST(WriteTag, OnlyTheNameItselfIsCollapsed) {
  const Tag tag{.name = " \n new\t[]  ",
                .line = 1,
                .kind = 'f',
                .prefix = "operator ",
                .suffix = "( a: )",
                .file = "a  b.c"};
  EXPECT_EQ(LinesOf(tag), Lines{"operator  new []( a: )\ta  b.c\t1;\"\tf\n"});
}

TEST(WriteTag, TheTextOfANameIsNeverCut) {
  const std::string text(5000, 'x');
  const Tag tag{.name = text, .line = 1, .kind = 'f', .prefix = text, .suffix = text, .file = "a"};
  EXPECT_EQ(LinesOf(tag), Lines{text + text + text + "\ta\t1;\"\tf\n"});
}

TEST(WriteTag, ALongPathTakesThePlaceOfLineAndLetter) {
  const std::string path(1020, 'p');  // 1 + 1020 + 1 + 1 bytes fill a piece of 1023.
  const Tag tag{.name = "f", .line = 12, .kind = 'k', .file = path, .fields = {EnumField("E")}};
  EXPECT_EQ(LinesOf(tag), Lines{"f\t" + path + "\t1\tenum:E\n"});
}

TEST(WriteTag, APlainPathIsNotCut) {
  const std::string path(5000, 'p');
  const Tag tag{.name = "f", .line = 12, .kind = 'k', .pieces = Pieces::kPlainFile, .file = path};
  EXPECT_EQ(LinesOf(tag), Lines{"f\t" + path + "\t12;\"\tk\n"});
}

TEST(WriteTag, APlainPathThatEndsInANewlineEndsTheLine) {
  Tag tag{.name = "f", .line = 12, .kind = 'k', .pieces = Pieces::kPlainFile, .file = "a\\\n"};
  EXPECT_EQ(LinesOf(tag), (Lines{"f\ta\\\n", "\t12;\"\tk\n"}));
  tag.pieces = Pieces::kSeparate;
  EXPECT_EQ(LinesOf(tag), Lines{"f\ta\\\n\t12;\"\tk\n"});
}

TEST(WriteTag, EachFormattedFieldIsCutOnItsOwn) {
  const std::string text(5000, 'x');
  const Tag tag{.name = "f",
                .line = 1,
                .kind = 'k',
                .file = "a",
                .fields = {ScopeField("class", text), TyperefField(text)}};
  EXPECT_EQ(LinesOf(tag), Lines{"f\ta\t1;\"\tk\tclass:" + text.substr(0, 1023 - 7) +
                                "\ttyperef:" + text.substr(0, 1023 - 9) + "\n"});
}

TEST(WriteTag, APlainFieldIsNotCut) {
  const std::string text(5000, 'x');
  const Tag tag{.name = "f",
                .line = 1,
                .kind = 'k',
                .file = "a",
                .fields = {Plain(ScopeField("class", text))}};
  EXPECT_EQ(LinesOf(tag), Lines{"f\ta\t1;\"\tk\tclass:" + text + "\n"});
}

TEST(WriteTag, ALineInOnePieceCanLoseItsNewline) {
  const std::string file = "a.c";
  const std::size_t room = 1023 - std::string("\ta.c\t1;\"\te\tenum:\n").size();
  for (const std::size_t length : {room, room + 1, room + 2}) {
    const std::string scope(length, 's');
    Dumper dumper;
    const Tag tag{.name = "f",
                  .line = 1,
                  .kind = 'e',
                  .pieces = Pieces::kOne,
                  .file = file,
                  .fields = {EnumField(scope)}};
    WriteTag(dumper, tag);
    const std::string shown = "f\ta.c\t1;\"\te\tenum:" + scope.substr(0, room + 1);
    if (length == room) {
      EXPECT_EQ(dumper.Lines(), Lines{shown + "\n"});
    } else {
      EXPECT_EQ(dumper.Lines(), Lines{});
      dumper.Print("next\n");
      EXPECT_EQ(dumper.Lines(), Lines{shown + "next\n"});
    }
  }
}

TEST(WriteTag, AFormattedTextEndsAtANulByteAndANameDoesNot) {
  const std::string text("x\0y", 3);
  Tag tag{.name = text, .line = 1, .kind = 'k', .file = "a", .fields = {ScopeField("class", text)}};
  EXPECT_EQ(LinesOf(tag), Lines{text + "\ta\t1;\"\tk\tclass:x\n"});
  tag.fields[0] = Plain(tag.fields[0]);
  EXPECT_EQ(LinesOf(tag), Lines{text + "\ta\t1;\"\tk\tclass:" + text + "\n"});
  tag.pieces = Pieces::kOne;
  EXPECT_EQ(LinesOf(tag), Lines{text + "\ta\t1;\"\tk\tclass:x\n"});
}

}  // namespace
}  // namespace vexltags
