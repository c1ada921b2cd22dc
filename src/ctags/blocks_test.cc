// SPDX-License-Identifier: MIT
// Tests of blocks in braces and access labels.
#include "ctags/blocks.h"

#include <gtest/gtest.h>

namespace vexltags::ctags {
namespace {

/// Returns the line on which the block of the type `X` in `text` ends; 0 if it has none.
long EndOfX(std::string_view text) {
  const Blocks blocks(text);
  const Blocks::Block* block = blocks.OfType(text.find('X') + 1);
  return block == nullptr || block->close == Blocks::npos ? 0 : blocks.LineOf(block->close);
}

TEST(Blocks, EndAtTheirBraces) {
  EXPECT_EQ(EndOfX("struct X { int a; };"), 1);
  EXPECT_EQ(EndOfX("struct X : B {\n  void f() { {} }\n\n};\n"), 4);
  EXPECT_EQ(EndOfX("struct X;\nstruct Y {};\n"), 0);
  EXPECT_EQ(EndOfX("struct X {\n"), 0);
  EXPECT_EQ(EndOfX("struct X /* { */ {\n}\n"), 2);
}

TEST(Blocks, SkipWhatIsNoCode) {
  EXPECT_EQ(EndOfX("struct X {\n// }\n/* } */\n\"}\\\"}\" '}' '\\'' u'}'\n}\n"), 5);
  EXPECT_EQ(EndOfX("struct X {\nR\"a(})\")a\"\n1'000'000\n}\n"), 4);
  EXPECT_EQ(EndOfX("struct X {\n#define Y }\\\n}\n}\n"), 4);
  EXPECT_EQ(EndOfX("struct X {\n'don\n}\n"), 3);
}

TEST(Blocks, ReadOneBranchOfAConditional) {
  EXPECT_EQ(EndOfX("struct X {\n#if A\nvoid f() {\n#else\nvoid g() {\n#endif\n}\n}\n"), 8);
  EXPECT_EQ(EndOfX("struct X {\n#if 0\n{\n# elif A\n}\n#else\n}\n#endif\n}\n"), 5);
  EXPECT_EQ(EndOfX("struct X {\n#if 0\n#if A\n}\n#endif\n#endif\n}\n"), 7);
  EXPECT_EQ(EndOfX("struct X {\n#if A\n#elif B\n}\n#if C\n}\n#endif\n#else\n}\n#endif\n}\n"), 11);
  EXPECT_EQ(EndOfX("struct X {\n#if 0x1\n}\n#endif\n"), 3);
  EXPECT_EQ(EndOfX("struct X {\n#if 0\n"), 0);
}

TEST(Blocks, BelongToFunctions) {
  const auto end = [](std::string_view text) {
    const Blocks blocks(text);
    const Blocks::Block* block = blocks.OfFunction(text.find(')') + 1);
    return block == nullptr ? 0 : blocks.LineOf(block->close);
  };
  EXPECT_EQ(end("int f() const noexcept\n{\n}\n"), 3);
  EXPECT_EQ(end("auto f() -> a::B<C> & {\n}\n"), 2);
  EXPECT_EQ(end("X() : a{1} {\n}\n"), 0);
  EXPECT_EQ(end("int f();\nint g() {}\n"), 0);
  EXPECT_EQ(end("int f() = delete; {}"), 0);
  EXPECT_EQ(end("int f()"), 0);
}

TEST(Blocks, AreAroundPlaces) {
  constexpr std::string_view kText = "a { b { c } d } e";
  const Blocks blocks(kText);
  EXPECT_EQ(blocks.Around(kText.find('a')), nullptr);
  EXPECT_EQ(blocks.Around(kText.find('b'))->open, 2U);
  EXPECT_EQ(blocks.Around(kText.find('c'))->open, 6U);
  EXPECT_EQ(blocks.Around(kText.find('d'))->open, 2U);
  EXPECT_EQ(blocks.Around(kText.find('e')), nullptr);
}

TEST(Blocks, HaveAccessLabels) {
  constexpr std::string_view kText =
      "class X { a1; public: b1; struct N : public B::C { private: c1; }; d1;\n"
      "protected slots : e1; signals: f1; private /* no */; g1; };";
  const Blocks blocks(kText);
  const auto access = [&](std::string_view name) {
    const std::size_t at = kText.find(name);
    return blocks.AccessAt(*blocks.Around(at), at);
  };
  EXPECT_EQ(access("a1"), "");
  EXPECT_EQ(access("b1"), "public");
  EXPECT_EQ(access("c1"), "private");
  EXPECT_EQ(access("d1"), "public");
  EXPECT_EQ(access("e1"), "protected");
  EXPECT_EQ(access("f1"), "public");
  EXPECT_EQ(access("g1"), "public");
}

}  // namespace
}  // namespace vexltags::ctags
