// SPDX-License-Identifier: MIT
// Tests that facts teach a macro table the same as their text.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

#include "thorough/macro_table.h"

namespace vexltags::thorough {
namespace {

/// Everything that a table knows after learning a text, or facts, and the includes in between.
std::string Learned(std::string_view text, bool isFacts = false) {
  MacroTable table;
  std::string all;
  const auto include = [&](std::string_view path) {
    all += "<" + std::string(path) + ">";
    table.NoteInclude(1);
  };
  if (isFacts) {
    table.LearnFacts(text, 1, include);
  } else {
    table.Learn(text, 1, include);
  }
  std::vector<std::string> names;
  table.ForEach([&](std::string_view name, const MacroDefinition& first) {
    std::string chain(name);
    for (const MacroDefinition* i = &first; i != nullptr; i = table.Next(*i)) {
      chain += "|" + std::to_string(i->file) + (i->isFunction ? "(" : " ");
      chain += std::string(i->parameters) + ")" + std::string(i->body);
      for (const std::uint32_t number : {i->condition, i->begin, i->end, i->depth}) {
        chain += " " + std::to_string(number);
      }
      for (const Dialect dialect : {Dialect::C, Dialect::Cxx, Dialect::Unknown}) {
        chain += " " + std::to_string(static_cast<int>(table.ConditionOf(*i, dialect)));
      }
    }
    names.push_back(chain);
  });
  std::sort(names.begin(), names.end());
  for (const std::string& name : names) all += name + "\n";
  return all;
}

std::string LearnedFromFacts(std::string_view text) {
  return Learned(MacroTable::Facts(text), true);
}

TEST(MacroFacts, TeachTheSameAsTheirText) {
  const std::string longBlanks(16380, ' ');
  for (const std::string& text : {
           std::string("#define A int"),
           std::string("#define A int\\"),
           std::string("#define A int\\\r"),
           std::string("#define A int\r\r\n#define B long\r\n"),
           std::string("#define A int \\\n#define B long\n#define C char\n"),
           std::string("#define A 1 \\\n#define B long\n#define C char\n"),
           std::string("#define A{\n#define B(x){x}\n#define C(x\n#define D(\\\nx)y;\n"),
           std::string("#define A\n#define A int\n#define A\n"),
           std::string("x\n  # \tdefine A /* long\n#define B */ int\n"),
           std::string("#define A int\r#define B long\n"),
           std::string("#include \"a\r#define X class y\"\n#include \"b\r#include \"c\"\n"),
           std::string("#include \"a.h\"\n#define A\n#include \"b.h\" // \"c.h\"\n#include \"d"),
           std::string("#define A\0B int\n", 16) + std::string("#define C a\0b\n", 14),
           std::string("/* a\n#define A int\n*/ b /* c */\n#define B long\n"),
           std::string("#define A int /* a\n#define B long\n b */ c */\n#define C char\n"),
           std::string("#define A int /* a\n b */ \\\n long /*\n*/ x\n#define B long\n"),
           std::string("# /* a */ define A int\n#define B long /* b\n"),
           std::string("// /* a\n#define A int\n/* */\n#define B long\n"),
           std::string(
               "#if 0\n#define A int\n#else\n#define A long\n#endif\n#undef A\nx\n#define A\n"),
           "#define A" + longBlanks + "{\n",
           "#define A" + longBlanks + "{}}}\n",
           "#define A{" + longBlanks + "}}}\n",
           "#define A int /* a\n" + longBlanks + "b */ c\n#define B long\n",
           "#define A int /* a\n" + longBlanks + longBlanks + "b */ c\n#define B long\n",
           std::string("#define A int // \\\n#define B long /* a\n b */ c\n#define C char\n"),
       }) {
    EXPECT_EQ(LearnedFromFacts(text), Learned(text)) << text.substr(0, 80);
  }
}

TEST(MacroFacts, OfAnyTextTeachTheSame) {
  static constexpr std::string_view kPieces[] = {
      "#",      "define",    "include",   " ",          "\n",     "\r\n",
      "\r",     "\\\n",      "\\",        "A",          "B",      "(x)",
      "(",      "\"",        "int",       "{",          "//",     "/*",
      "*/",     "\t",        "#undef A",  "1",          "_MINOR", "puts",
      "\n#if ", "\n#if 0\n", "\n#else\n", "\n#endif\n", "\n/*\n", "\n#define A ",
      "x\n"};
  std::uint32_t seed = 1;
  for (int round = 0; round < 20000; ++round) {
    std::string text;
    for (int i = 0; i < 24; ++i) {
      seed = seed * 1664525 + 1013904223;
      text += kPieces[(seed >> 16) % std::size(kPieces)];
    }
    ASSERT_EQ(LearnedFromFacts(text), Learned(text)) << text;
  }
}

TEST(MacroFacts, LeaveOutWhatIsNotLearned) {
  const std::string text = "int x; /* a */\n#define B /* b */ {\nint y;\n#include \"d.h\" // d\n";
  const std::string facts = MacroTable::Facts(text);
  EXPECT_EQ(facts.find("int"), std::string::npos);
  EXPECT_EQ(facts.find("/* a"), std::string::npos);
  EXPECT_NE(facts.find("#define B /* b */ {"), std::string::npos);
  EXPECT_EQ(MacroTable::Facts("int x;\n"), "");
}

TEST(MacroFacts, AreComparedWithoutTheirPlaces) {
  const auto areSame = [](std::string_view text, std::string_view other) {
    return MacroTable::HaveSameDirectives(MacroTable::Facts(text), MacroTable::Facts(other));
  };
  EXPECT_TRUE(areSame("#define A {\nint a;\n#if B\n", "\n\n#define A {\nint b, c;\n#if B\n"));
  EXPECT_TRUE(areSame("", "int a;\n"));
  EXPECT_FALSE(areSame("#define A {\n", "#define A }\n"));
  EXPECT_FALSE(areSame("#define A {\n", "#define A {\nx\n#define B\n"));
  EXPECT_FALSE(areSame("", "#define A {\n"));
}

TEST(MacroFacts, MayBeDamaged) {
  const std::string facts = MacroTable::Facts("a\n#define B {\n#define C }\n");
  constexpr std::size_t kSecondPart = 31;  // Its numbers are before it.
  for (std::size_t size = 0; size < facts.size(); ++size) {
    MacroTable table;
    const std::size_t before = table.Count();
    table.LearnFacts(facts.substr(0, size), 1, [](std::string_view) {});
    EXPECT_LE(table.Count() - before, size <= kSecondPart ? 1U : 2U) << size;
  }
}

}  // namespace
}  // namespace vexltags::thorough
