// SPDX-License-Identifier: MIT
// Tests of learning macros from texts.
#include "thorough/macro_table.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace vexltags::thorough {
namespace {

void Learn(MacroTable& table, std::string_view text, std::uint32_t file = 1) {
  table.Learn(text, file, [](std::string_view) {});
}

/// The definition of `name` in a table that learned `text` alone: its body, with its parameters
/// before it if it has parentheses; "none" if there is none.
std::string Defined(std::string_view text, std::string_view name) {
  MacroTable table;
  Learn(table, text);
  const MacroDefinition* found = table.Find(name);
  if (found == nullptr) return "none";
  const std::string body(found->body);
  return found->isFunction ? "(" + std::string(found->parameters) + ")" + body : body;
}

TEST(MacroTable, LearnsObjects) {
  EXPECT_EQ(Defined("#define A class B", "A"), "class B");
  EXPECT_EQ(Defined("int x;\n  #\tdefine\tA   int\n", "A"), "int");
  EXPECT_EQ(Defined("#define A\n", "A"), "");
  EXPECT_EQ(Defined("#define A", "A"), "");
  EXPECT_EQ(Defined("#define A {\r\n#define B }\r\n", "A"), "{");
  EXPECT_EQ(Defined("#define A {\r\n#define B }\r\n", "B"), "}");
  EXPECT_EQ(Defined("#define A (x) int", "A"), "none") << "a parenthesis after a blank is body";
  EXPECT_EQ(Defined("#define A int", "B"), "none");
}

TEST(MacroTable, LearnsFunctions) {
  EXPECT_EQ(Defined("#define A(x, y) class x y;", "A"), "(x, y)class x y;");
  EXPECT_EQ(Defined("#define A() {", "A"), "(){");
  EXPECT_EQ(Defined("#define A(...)", "A"), "(...)");
  EXPECT_EQ(Defined("#define A(x) #x", "A"), "(x)#x");
  EXPECT_EQ(Defined("#define A(x\nint y;", "A"), "none");
}

TEST(MacroTable, LearnsContinuedLines) {
  EXPECT_EQ(Defined("#define A \\\n  int x; \\\n  int y;\n", "A"), "int x; \\\n  int y;");
  EXPECT_EQ(Defined("#define A \\\r\n  int x; \\\r\n  int y;\r\nz", "A").substr(0, 6), "int x;");
  EXPECT_EQ(Defined("#define A(x, \\\n y) int x;", "A"), "(x, \\\n y)int x;");
}

TEST(MacroTable, SkipsCommentsBeforeTheBody) {
  EXPECT_EQ(Defined("#define A // int\n", "A"), "");
  EXPECT_EQ(Defined("#define A /* int */ class\n", "A"), "class");
  EXPECT_EQ(Defined("#define A /* int\n", "A"), "");
}

TEST(MacroTable, LearnsOnlyDefinitions) {
  EXPECT_EQ(Defined("x #define A int", "A"), "none");
  EXPECT_EQ(Defined("#defined A int", "A"), "none");
  EXPECT_EQ(Defined("#define\nA int", "A"), "none");
  EXPECT_EQ(Defined("#define 1A int", "1A"), "none");
  EXPECT_EQ(Defined("#define", "A"), "none");
}

TEST(MacroTable, LeavesOutExpressions) {
  for (const char* body : {"1", "(1 + 2)", "\"text\"", "'c'", "-1", "&x", "*x"}) {
    EXPECT_EQ(Defined("#define A " + std::string(body), "A"), "none") << body;
    EXPECT_EQ(Defined("#define A(x) " + std::string(body), "A"), "none") << body;
  }
  EXPECT_EQ(Defined("#define print(x) puts(x)", "print"), "none");
  EXPECT_EQ(Defined("#define print puts", "print"), "none");
  EXPECT_EQ(Defined("#define PRINT(x) puts(x);", "PRINT"), "(x)puts(x);");
  EXPECT_EQ(Defined("#define SPACE detail", "SPACE"), "detail");
  EXPECT_EQ(Defined("#define LIB_VERSION 12", "LIB_VERSION"), "12");
}

TEST(MacroTable, NeverOverridesTheVocabulary) {
  MacroTable table;
  const std::size_t count = table.Count();
  for (const char* word : {"class", "struct", "int", "inline", "namespace", "enum", "operator"}) {
    Learn(table, "#define " + std::string(word) + " int");
    EXPECT_EQ(table.Find(word), nullptr) << word;
  }
  EXPECT_EQ(table.Count(), count);
}

TEST(MacroTable, PrefersTheWordsOfCompilers) {
  MacroTable table;
  Learn(table, "#define __inline__ class\n#define __declspec(x) { x }\n");
  const MacroDefinition* found = table.Find("__inline__");
  ASSERT_NE(found, nullptr);
  EXPECT_EQ(found->body, "inline");
  EXPECT_EQ(found->file, 0U);
  EXPECT_EQ(table.Next(*found), nullptr);
  found = table.Find("__declspec");
  ASSERT_NE(found, nullptr);
  EXPECT_EQ(found->body, "");
  EXPECT_EQ(table.Next(*found), nullptr);
}

TEST(MacroTable, ListsDefinitionsInTheOrderOfLearning) {
  MacroTable table;
  const std::size_t before = table.Count();
  Learn(table, "#define A int\n#define A int\n#define A long\n", 1);
  Learn(table, "#define A int\n", 2);
  EXPECT_EQ(table.Count(), before + 3) << "the same definition of the same file is kept once";
  std::vector<std::string> found;
  for (const MacroDefinition* i = table.Find("A"); i != nullptr; i = table.Next(*i)) {
    found.push_back(std::string(i->body) + ":" + std::to_string(i->file));
  }
  EXPECT_EQ(found, (std::vector<std::string>{"int:1", "long:1", "int:2"}));
}

TEST(MacroTable, KeepsItsOwnTexts) {
  MacroTable table;
  std::string text = "#define A(x) int x;";
  Learn(table, text);
  text.assign(text.size(), '?');
  const MacroDefinition* found = table.Find("A");
  ASSERT_NE(found, nullptr);
  EXPECT_EQ(found->parameters, "x");
  EXPECT_EQ(found->body, "int x;");
}

TEST(MacroTable, ReportsQuotedIncludes) {
  MacroTable table;
  std::vector<std::string> paths;
  table.Learn(
      "#include \"a/b.h\"\n # include\t\"c.h\" // d\n#include <e.h>\n#include \"f\n#include", 1,
      [&paths](std::string_view path) { paths.emplace_back(path); });
  EXPECT_EQ(paths, (std::vector<std::string>{"a/b.h", "c.h"}));
}

TEST(MacroTable, ReportsLookups) {
  struct Lookups : LookupObserver {
    void OnLookup(std::string_view name, bool isFound) override {
      seen += std::string(name) + (isFound ? "+" : "-");
    }
    std::string seen;
  };
  MacroTable table;
  Learn(table, "#define A int\n");
  Lookups lookups;
  table.Find("A");
  table.SetLookupObserver(&lookups);
  table.Find("A");
  table.Find("unknown");
  table.SetLookupObserver(nullptr);
  table.Find("A");
  EXPECT_EQ(lookups.seen, "A+unknown-");
}

TEST(MacroTable, BoundsTheDefinitionsOfOneName) {
  MacroTable table;
  const std::size_t before = table.Count();
  for (std::uint32_t file = 1; file <= 1000; ++file) Learn(table, "#define A int\n", file);
  EXPECT_LT(table.Count() - before, 100U);
  EXPECT_GT(table.Count() - before, 10U);
}

TEST(MacroTable, ReadsOnAfterACommentOfSeveralLines) {
  EXPECT_EQ(Defined("#define A /* a\n b */ int c; /* d\n */ ;\nint e;\n", "A"),
            "int c; /* d\n */ ;");
  EXPECT_EQ(Defined("#define A int b; // c /* d\nint e; /* f */\n", "A"), "int b; // c /* d");
  EXPECT_EQ(Defined("#define A int b; /* c\nint d;\n", "A"), "int b; /* c");
}

TEST(MacroTable, IgnoresComments) {
  EXPECT_EQ(Defined("/*\n#define A ;\n*/\n", "A"), "none");
  EXPECT_EQ(Defined("/* *//* a\n#define A ;\n */\n", "A"), "none");
  EXPECT_EQ(Defined("/* a */\n#define A ;\n/* b */\n", "A"), ";");
  EXPECT_EQ(Defined("// a/*.h\n#define A ;\n/* b */\n", "A"), ";");
  EXPECT_EQ(Defined("/* a\n#define A ;\n", "A"), ";") << "a comment that stays open";
  EXPECT_EQ(Defined("/**/\n#define A ;\n/*\n#define A {\n*/\n", "A"), ";");
}

TEST(MacroTable, LearnsVersions) {
  EXPECT_EQ(Defined("#define A_VERSION_MAJOR 3  // three\n", "A_VERSION_MAJOR"), "3  // three");
  EXPECT_EQ(Defined("#define A_LENGTH 3\n", "A_LENGTH"), "none");
}

TEST(MacroTable, LearnsMethods) {
  MacroTable table;
  table.Learn("#define A(t) - (t)name\n#define B(x) +(x) + 1\n#define C -(x)name\n", 1,
              [](std::string_view) {});
  EXPECT_NE(table.Find("A"), nullptr);
  EXPECT_EQ(table.Find("B"), nullptr);
  EXPECT_EQ(table.Find("C"), nullptr);
}

TEST(MacroTable, ReportsQuotedImports) {
  std::vector<std::string> paths;
  MacroTable table;
  table.Learn("#import \"a.h\"\n#import <b.h>\n", 1,
              [&paths](std::string_view path) { paths.emplace_back(path); });
  EXPECT_EQ(paths, std::vector<std::string>{"a.h"});
}

}  // namespace
}  // namespace vexltags::thorough
