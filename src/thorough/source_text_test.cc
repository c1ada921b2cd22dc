// SPDX-License-Identifier: MIT
// Tests of walking through a text from directive to directive.
#include "thorough/source_text.h"

#include <gtest/gtest.h>

#include <string>

namespace vexltags::thorough {
namespace {

/// What the walk meets: the characters that it takes, and each directive's whole text in brackets.
std::string Walk(const std::string& text) {
  std::string result;
  SourceText source(text);
  const auto take = [&result](std::string_view piece) {
    EXPECT_FALSE(piece.empty() || piece.front() == ' ' || piece.back() == ' ') << piece;
    for (const char c : piece) {
      if (c != ' ') result += c;
    }
  };
  while (source.NextDirective(take)) {
    const Directive& found = source.Found();
    result += '[' + text.substr(found.begin, found.end - found.begin) + ']';
  }
  return result;
}

Directive First(std::string_view text) {
  SourceText source(text);
  EXPECT_TRUE(source.NextDirective([](std::string_view) {})) << text;
  return source.Found();
}

TEST(EndsInString, CountsQuotesWithoutBackslash) {
  EXPECT_FALSE(EndsInString(""));
  EXPECT_FALSE(EndsInString("#define A "));
  EXPECT_TRUE(EndsInString("#define A \"a"));
  EXPECT_TRUE(EndsInString("\""));
  EXPECT_FALSE(EndsInString("#define A \"a\" "));
  EXPECT_TRUE(EndsInString("\"a\\\"b"));
  EXPECT_FALSE(EndsInString("\"a\\\"b\""));
}

TEST(SourceText, KnowsTheKindsOfDirectives) {
  EXPECT_EQ(First("#if A").kind, DirectiveKind::If);
  EXPECT_EQ(First("#ifdef A").kind, DirectiveKind::Ifdef);
  EXPECT_EQ(First("#ifndef A").kind, DirectiveKind::Ifndef);
  EXPECT_EQ(First("#elif A").kind, DirectiveKind::Elif);
  EXPECT_EQ(First("#else").kind, DirectiveKind::Else);
  EXPECT_EQ(First("#endif").kind, DirectiveKind::Endif);
  EXPECT_EQ(First("#define A").kind, DirectiveKind::Define);
  EXPECT_EQ(First("#undef A").kind, DirectiveKind::Undef);
  EXPECT_EQ(First("#include <a>").kind, DirectiveKind::Include);
  EXPECT_EQ(First("#import <a>").kind, DirectiveKind::Include);
  EXPECT_EQ(First("#include_next <a>").kind, DirectiveKind::Include);
  EXPECT_EQ(First("#error a").kind, DirectiveKind::Error);
  EXPECT_EQ(First("#pragma once").kind, DirectiveKind::Other);
  EXPECT_EQ(First("#").kind, DirectiveKind::Other);
  EXPECT_EQ(First("#iffy").kind, DirectiveKind::Other);
}

TEST(SourceText, FindsADirectivesEnds) {
  const Directive found = First("a;\n  #\tif  X > 1\nb;");
  EXPECT_EQ(found.kind, DirectiveKind::If);
  EXPECT_EQ(found.begin, 5U);
  EXPECT_EQ(found.end, 16U);
  EXPECT_EQ(found.argument, "X > 1");
}

TEST(SourceText, TakesWhatIsNeitherBlankNorComment) {
  EXPECT_EQ(Walk("int a; /* b */ c // d\n\t{}\r\n"), "inta;c{}");
  EXPECT_EQ(Walk("a / b * c"), "a/b*c");
  EXPECT_EQ(Walk(""), "");
}

TEST(SourceText, FindsADirectiveOnlyAtTheBeginningOfALine) {
  EXPECT_EQ(Walk("a #if\n#if\n"), "a#if[#if]");
  EXPECT_EQ(Walk("/* c */ #if\n"), "[#if]");
  EXPECT_EQ(Walk("// #if\n/*\n#if\n*/a"), "a");
}

TEST(SourceText, TakesALiteralAsOneCharacter) {
  EXPECT_EQ(Walk("a(\"{ // \\\" #\", '{', '\\'');"), "a(\",',');");
  EXPECT_EQ(Walk("\"never closed {\nb"), "\"b");
  EXPECT_EQ(Walk("R\"({\n#if\n\" })\" b"), "R\"b");
  EXPECT_EQ(Walk("u8R\"x(\n)\" )y\" )x\" b"), "u8R\"b");
  EXPECT_EQ(Walk("L'{' u'{' U'{' u8'{'"), "L'u'U'u8'");
  EXPECT_EQ(Walk("\"a\\\n#if\" b"), "\"b");
}

TEST(SourceText, KnowsDigitSeparators) {
  EXPECT_EQ(Walk("1'000'000 {"), "1'000'000{");
  EXPECT_EQ(Walk("8'000 {"), "8'000{");
  EXPECT_EQ(Walk("0xF'8'0 {"), "0xF'8'0{");
}

TEST(SourceText, ContinuesADirective) {
  EXPECT_EQ(Walk("#if A \\\n B\nc"), "[#if A \\\n B]c");
  EXPECT_EQ(Walk("#if A \\\r\n B\r\nc"), "[#if A \\\r\n B\r]c");
  EXPECT_EQ(Walk("#if A /* \n */ B\nc"), "[#if A /* \n */ B]c");
  EXPECT_EQ(Walk("#if A // /*\nc"), "[#if A // /*]c");
  EXPECT_EQ(Walk("#if A // b \\\nd\nc"), "[#if A // b \\\nd]c");
  EXPECT_EQ(Walk("#if A /* never closed\nc"), "[#if A /* never closed]c");
  EXPECT_EQ(Walk("#if A"), "[#if A]");
}

TEST(SourceText, ContinuesALineComment) {
  EXPECT_EQ(Walk("a // b \\\n c\nd"), "ad");
  EXPECT_EQ(Walk("a // b \\\r\n c\r\nd"), "ad");
  EXPECT_EQ(Walk("#if A // b \\\r\n c\r\nd"), "[#if A // b \\\r\n c\r]d");
}

TEST(SourceText, FindsNoCommentInADirectivesString) {
  EXPECT_EQ(Walk("#define A \"/*\"\nc /* */"), "[#define A \"/*\"]c");
  EXPECT_EQ(Walk("#define A \"\\\"/*\"\nc /* */"), "[#define A \"\\\"/*\"]c");
  EXPECT_EQ(Walk("#define A '\"' /*\n*/ B\nc"), "[#define A '\"' /*\n*/ B]c");
  EXPECT_EQ(Walk("#error don't \"\nc"), "[#error don't \"]c");
}

TEST(SourceText, EndsOnWhatIsNeverClosed) {
  constexpr int kMany = 100000;
  std::string comments, strings, noStrings, directives;
  for (int i = 0; i < kMany; ++i) {
    comments += "#a /* b\n";
    strings += "R\"d(\n";
    noStrings += "R\"d\"\n";
    directives += "#\n";
  }
  EXPECT_EQ(Walk(comments).size(), kMany * std::string("[#a /* b]").size());
  EXPECT_EQ(Walk(strings).size(), kMany * std::string("R\"").size());
  EXPECT_EQ(Walk(noStrings).size(), kMany * std::string("R\"").size());
  EXPECT_EQ(Walk(directives).size(), kMany * std::string("[#]").size());
}

/// The text of the block at the first `{` up to its end; what `Position` leaves in brackets if it
/// has no end that can be found.
std::string Block(const std::string& text) {
  SourceText source(text);
  const std::size_t end = source.FindBlockEnd(text.find('{'));
  if (end == std::string::npos) return '[' + text.substr(source.Position()) + ']';
  return text.substr(text.find('{'), end + 1 - text.find('{'));
}

TEST(SourceText, FindsTheEndOfABlock) {
  EXPECT_EQ(Block("a { b; } c }"), "{ b; }");
  EXPECT_EQ(Block("a { b { c } { d { } } } e"), "{ b { c } { d { } } }");
  EXPECT_EQ(Block("{}"), "{}");
  EXPECT_EQ(Block("{ ( } )"), "{ ( }");
  EXPECT_EQ(Block("{ sixteen characters and more, then } }"),
            "{ sixteen characters and more, then }");
}

TEST(SourceText, LooksForBlocksPastCommentsAndLiterals) {
  EXPECT_EQ(Block("{ // }\n }"), "{ // }\n }");
  EXPECT_EQ(Block("{ /* } */ a / b }"), "{ /* } */ a / b }");
  EXPECT_EQ(Block("{ \"}\" '}' \"\\\"}\" }"), "{ \"}\" '}' \"\\\"}\" }");
  EXPECT_EQ(Block("{ R\"(})\" }"), "{ R\"(})\" }");
  EXPECT_EQ(Block("{ 1'000 } '"), "{ 1'000 }");
}

TEST(SourceText, LooksForBlocksPastDirectivesThatOnlyHide) {
  for (const char* line : {"#if A", "#ifdef A", "#ifndef A", "#endif", "#include <a>", "#undef A",
                           "#error don't }", "#pragma mark - }", "# if A // }", "#if A \\\n }"}) {
    const std::string text = std::string("{\n") + line + "\n}";
    EXPECT_EQ(Block(text), text) << line;
  }
  for (const char* line : {"#define A }", "#else", "#elif A", "#if 0", "#line 3", "# a", "#"}) {
    EXPECT_EQ(Block(std::string("{\n") + line + "\n}"), '[' + std::string(line) + "\n}]") << line;
  }
}

TEST(SourceText, FindsNoEndOfAnOpenBlock) {
  EXPECT_EQ(Block("{ a"), "[]");
  EXPECT_EQ(Block("{ { }"), "[]");
  EXPECT_EQ(Block("{ /* } "), "[]");
  EXPECT_EQ(Block("{ R\"( } "), "[]");
}

}  // namespace
}  // namespace vexltags::thorough
