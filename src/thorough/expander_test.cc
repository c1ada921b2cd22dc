// SPDX-License-Identifier: MIT
// Tests of expanding macros.
#include "thorough/expander.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "vocabulary/main_tokens.h"

namespace vexltags::thorough {
namespace {

class ExpanderTest : public testing::Test {
 protected:
  void Learn(std::string_view text, std::uint32_t file = 1) {
    macros.Learn(text, file, [](std::string_view) {});
  }

  std::vector<Word> WordsOf(std::string_view text) {
    MacroDefinition use;
    use.body = text;
    std::vector<Word> words;
    MacroBodies uses;
    for (const BodyToken& token : uses.Of(use).tokens) {
      words.push_back({token.type, token.text, 1, -1, 1});
    }
    return words;
  }

  /// What the use of a macro in file 1 expands to, joined by blanks.
  std::string Expand(const std::string& use) {
    expander.BeginFile(1, paths);
    return ExpandOn(use);
  }

  /// The same without a new file; "failed" where the budget does not suffice.
  std::string ExpandOn(const std::string& use) {
    const std::vector<Word> words = WordsOf(use);
    const MacroDefinition* definition = expander.Find(words.at(0).text);
    if (definition == nullptr) return "none";
    Arguments arguments;
    if (definition->isFunction) arguments = SplitArguments(words, 2).first;
    Word first;
    first.text = "before";
    std::vector<Word> expansion{first};
    if (!expander.Expand(*definition, arguments, 7, expansion)) {
      EXPECT_EQ(expansion.size(), 1U) << "a failure leaves the result as it was";
      return "failed";
    }
    std::string result;
    for (std::size_t i = 1; i < expansion.size(); ++i) {
      EXPECT_EQ(expansion[i].line, 7U);
      EXPECT_EQ(expansion[i].index, -1);
      if (i > 1) result += ' ';
      result += expansion[i].text;
    }
    return result;
  }

  /// The body of the definition of `name` that serves `file`.
  std::string Chosen(std::string_view name, std::uint32_t file) {
    expander.BeginFile(file, paths);
    const MacroDefinition* found = expander.Find(name);
    return found == nullptr ? "none" : std::string(found->body);
  }

  MacroTable macros;
  MacroBodies bodies;
  Expander expander{macros, bodies};
  std::vector<std::string> paths{"", "a/one.h", "b/two.h", "a/three.cc", "a/sub/four.h"};
};

TEST_F(ExpanderTest, SplitsArguments) {
  const std::vector<Word> words = WordsOf("F(a, (b, c), {d, e}, ) g");
  const auto [arguments, taken] = SplitArguments(words, 2);
  ASSERT_EQ(arguments.size(), 4U);
  EXPECT_EQ(arguments[0].size(), 1U);
  EXPECT_EQ(arguments[1].size(), 5U);
  EXPECT_EQ(arguments[2].size(), 5U);
  EXPECT_EQ(arguments[3].size(), 0U);
  EXPECT_EQ(taken, words.size() - 3);
  EXPECT_EQ(SplitArguments(WordsOf("F(a, (b)"), 2).second, 0U);
}

TEST_F(ExpanderTest, SubstitutesArguments) {
  Learn("#define OBJECT int x;\n#define F(a, b) a b; b\n");
  EXPECT_EQ(Expand("OBJECT"), "int x ;");
  EXPECT_EQ(Expand("F(int, y)"), "int y ; y");
  EXPECT_EQ(Expand("F(, )"), ";");
  EXPECT_EQ(Expand("F(A<(1, 2)>, y)"), "A < ( 1 , 2 ) > y ; y");
  EXPECT_EQ(Expand("F(int)"), "int ;") << "an argument that is missing is empty";
}

TEST_F(ExpanderTest, PrefersLikelyDefinitions) {
  Learn("#ifdef A_NO_B\n#define F {\n#else\n#define F enum\n#endif\n", 2);
  EXPECT_EQ(Expand("F"), "enum");
  Learn("#if OFF\n#define G ;\n#endif\n", 2);
  EXPECT_EQ(Expand("G"), ";") << "the only one";
}

TEST_F(ExpanderTest, PrefersFilesThatAreLikelyToBeIncluded) {
  macros.Learn("#ifdef _WIN32\n#include \"a\"\n#else\n#include \"b\"\n#endif\n", 1,
               [this](std::string_view name) { macros.NoteInclude(name == "a" ? 2 : 3); });
  Learn("#define F int a;\n", 2);
  Learn("#define F\n", 3);
  EXPECT_EQ(Expand("F"), "");
}

TEST_F(ExpanderTest, KnowsWhereDefinitionsOfTheFileEnd) {
  const std::string text = "#define X int a;\n X\n#undef X\n X\n#define X int b;\n X\n";
  Learn(text, 1);
  expander.BeginFile(1, paths);
  expander.SetText(text);
  const auto found = [&](std::size_t from) {
    const MacroDefinition* definition =
        expander.Find(std::string_view(text).substr(text.find("\n X", from) + 2, 1));
    return definition == nullptr ? "none" : std::string(definition->body);
  };
  EXPECT_EQ(found(0), "int a;");
  EXPECT_EQ(found(text.find("#undef")), "none");
  EXPECT_EQ(found(text.find("int b")), "int b;");
}

TEST_F(ExpanderTest, PrefersDefinitionsThatTakeTheArguments) {
  Learn("#define F(a, b) int a;\n#define F(a, b, c) int b;\n#define G(a) F(a, x, y)\n", 2);
  EXPECT_EQ(Expand("G(z)"), "int x ;");
}

TEST_F(ExpanderTest, KnowsTheLine) {
  Learn(
      "#define PASTE(a, b) a##b\n#define JOIN(a, b) PASTE(a, b)\n"
      "#define NAMED(x) int JOIN(x, __LINE__);\n");
  EXPECT_EQ(Expand("NAMED(a)"), "int a7 ;");
  EXPECT_EQ(Expand("PASTE(a, __LINE__)"), "a__LINE__") << "operands of ## are not expanded";
}

TEST_F(ExpanderTest, StringifiesAndPastes) {
  Learn(
      "#define TYPE long\n#define S(a) a s = #a;\n#define P(a, b) int a##b;\n"
      "#define Q(a) int get_##a##_x;\n");
  EXPECT_EQ(Expand("S(TYPE)"), "long s = \"TYPE\" ;");
  EXPECT_EQ(Expand("P(x, y)"), "int xy ;");
  EXPECT_EQ(Expand("P(x, )"), "int x ;");
  EXPECT_EQ(Expand("P(, y)"), "int y ;");
  EXPECT_EQ(Expand("P(TYPE, 1)"), "int TYPE1 ;") << "operands of ## are not expanded";
  EXPECT_EQ(Expand("Q(y)"), "int get_y_x ;");
}

TEST_F(ExpanderTest, PassesVariableArguments) {
  Learn(
      "#define V(f, ...) void f(__VA_ARGS__);\n#define N(f, args...) void f(args);\n"
      "#define C(f, ...) void f(int, ##__VA_ARGS__);\n");
  EXPECT_EQ(Expand("V(g, int a, int b)"), "void g ( int a , int b ) ;");
  EXPECT_EQ(Expand("V(g)"), "void g ( ) ;");
  EXPECT_EQ(Expand("N(g, int a, int b)"), "void g ( int a , int b ) ;");
  EXPECT_EQ(Expand("C(g, char, long)"), "void g ( int , char , long ) ;");
  EXPECT_EQ(Expand("C(g)"), "void g ( int ) ;");
}

TEST_F(ExpanderTest, ExpandsNestedUses) {
  Learn(
      "#define TYPE long\n#define INNER(x) TYPE x;\n#define OUTER(x) INNER(x) INNER(TYPE)\n"
      "#define NAMED int INNER;\n");
  EXPECT_EQ(Expand("OUTER(y)"), "long y ; long long ;");
  EXPECT_EQ(Expand("INNER(INNER(z))"), "long long z ; ;");
  EXPECT_EQ(Expand("NAMED"), "int INNER ;") << "a function without parentheses is a name";
}

TEST_F(ExpanderTest, NeverExpandsAMacroWithinItself) {
  Learn(
      "#define SELF int SELF;\n#define PING int PONG;\n#define PONG PING\n"
      "#define R(x) int R(x);\n");
  EXPECT_EQ(Expand("SELF"), "int SELF ;");
  EXPECT_EQ(Expand("PING"), "int PING ;");
  EXPECT_EQ(Expand("R(a)"), "int R ( a ) ;");
}

TEST_F(ExpanderTest, ChoosesTheFilesOwnDefinitionFirst) {
  Learn("#define M class X {", 1);
  Learn("#define M\n", 2);
  Learn("#define M int\n", 3);
  EXPECT_EQ(Chosen("M", 1), "class X {");
  EXPECT_EQ(Chosen("M", 2), "");
  EXPECT_EQ(Chosen("M", 3), "int");
}

TEST_F(ExpanderTest, RanksDefinitionsOfOtherFiles) {
  Learn("#define A int\n#define B int\n#define C int\n#define D int\n", 1);
  Learn("#define A\n#define B __attribute__((x))\n#define C\n#define D long\n", 2);
  Learn("#define C class X {\n", 3);
  EXPECT_EQ(Chosen("A", 4), "") << "an empty one before the rest";
  EXPECT_EQ(Chosen("B", 4), "__attribute__((x))");
  EXPECT_EQ(Chosen("C", 4), "class X {") << "one with braces before an empty one";
  EXPECT_EQ(Chosen("D", 4), "int") << "the first among equals";
}

TEST_F(ExpanderTest, KnowsLowerCaseNamesOnlyNearby) {
  Learn("#define thing int\n#define THING int\n#define _thing int\n", 2);
  Learn("#define other int\n", 4);
  EXPECT_EQ(Chosen("thing", 1), "none");
  EXPECT_EQ(Chosen("thing", 2), "int");
  EXPECT_EQ(Chosen("THING", 1), "int");
  EXPECT_EQ(Chosen("_thing", 1), "int");
  EXPECT_EQ(Chosen("other", 3), "int") << "defined in a folder within this one";
  EXPECT_EQ(Chosen("__inline", 1), "inline") << "compilers' words are known everywhere";
}

/// Macros `E0` to `E<count>`, each of which uses the one before it `uses` times.
std::string Chain(int count, int uses) {
  std::string text = "#define E0 int x;\n";
  for (int i = 1; i <= count; ++i) {
    text += "#define E" + std::to_string(i);
    for (int use = 0; use < uses; ++use) text += " E" + std::to_string(i - 1);
    text += '\n';
  }
  return text;
}

TEST_F(ExpanderTest, BoundsDepth) {
  Learn(Chain(1000, 1));
  EXPECT_EQ(Expand("E20"), "int x ;");
  EXPECT_EQ(Expand("E1000"), "failed");
}

TEST_F(ExpanderTest, BoundsSize) {
  Learn(Chain(40, 2));
  EXPECT_EQ(Expand("E1"), "int x ; int x ;");
  EXPECT_EQ(Expand("E40"), "failed");
  EXPECT_EQ(ExpandOn("E20"), "failed") << "the budget is that of the file";
  EXPECT_EQ(Expand("E1"), "int x ; int x ;") << "the next file has its own";
}

TEST_F(ExpanderTest, BoundsTheCostOfStrings) {
  std::string body, argument;
  for (int i = 0; i < 8000; ++i) body += "#a";
  for (int i = 0; i < 4000; ++i) argument += "b ";
  Learn("#define S(a) " + body + '\n');
  EXPECT_TRUE(Expand("S(" + argument + ")") == "failed");
}

/// Calls of `name` in arguments of each other.
std::string Nested(const std::string& name, int count) {
  std::string text;
  for (int i = 0; i < count; ++i) text += name + "(";
  return text + "x" + std::string(static_cast<std::size_t>(count), ')');
}

TEST_F(ExpanderTest, BoundsTheDepthOfCallsInArguments) {
  Learn("#define F(a) a\n");
  EXPECT_EQ(Expand(Nested("F", 100)), "x");
  EXPECT_EQ(Expand(Nested("F", 300)), "failed");
  EXPECT_EQ(ExpandOn(Nested("F", 100)), "x") << "the depth is that of one use";
}

TEST_F(ExpanderTest, BoundsTheCostOfCallsThatStayOpen) {
  std::string body;
  for (int i = 0; i < 2000; ++i) body += "G(";
  Learn("#define G(a) a\n#define F(a) " + body + '\n');
  EXPECT_EQ(Expand("F(x)"), "failed");
}

TEST_F(ExpanderTest, CutsLongNamesThatItPastes) {
  Learn("#define F(a) int a##a;\n");
  const std::string name(3000, 'n');
  EXPECT_EQ(Expand("F(" + name + ")"), "int " + std::string(4096, 'n') + " ;");
}

}  // namespace
}  // namespace vexltags::thorough
