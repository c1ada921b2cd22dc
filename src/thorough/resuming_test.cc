// SPDX-License-Identifier: MIT
// Tests of resuming after stray tokens, with a parser that takes tokens of one type as items.
#include "thorough/resuming.h"

#include <gtest/gtest.h>

#include <any>
#include <string>
#include <vector>

namespace vexltags::thorough {
namespace {

constexpr unsigned kItem = 4, kStray = 5;

/// Takes each run of `kItem` as items and remembers where they are.
class FakeParser : public ItemParser {
 public:
  explicit FakeParser(TokenTable& tokens) : tokens(tokens) {}

  TokenTable& Tokens() override { return tokens; }
  void ReadItems() override {
    for (; tokens.LA(1) == kItem; tokens.Consume()) items.push_back(tokens.Position());
  }

  std::vector<std::size_t> items;

 private:
  std::any AnyTagBuilder() override { return {}; }

  TokenTable& tokens;
};

/// Where `ParseResuming` finds items among tokens: `i` for one that is an item, anything else for
/// not.
std::vector<std::size_t> ItemsOf(std::string text) {
  unsigned char name[] = "test";
  const auto size = static_cast<ANTLR3_UINT32>(text.size());
  const pANTLR3_INPUT_STREAM input = antlr3StringStreamNew(
      reinterpret_cast<pANTLR3_UINT8>(text.data()), ANTLR3_ENC_8BIT, size, name);
  std::vector<std::size_t> items;
  {
    TokenTable tokens(input);
    const auto* data = static_cast<const unsigned char*>(input->data);
    for (std::size_t i = 0; i < text.size(); ++i) {
      tokens.Add(text[i] == 'i' ? kItem : kStray, data + i, data + i + 1, 1);
    }
    tokens.Finish(1);
    FakeParser parser(tokens);
    ParseResuming(parser);
    EXPECT_EQ(tokens.Position(), tokens.Count()) << text;
    items = parser.items;
  }
  input->close(input);
  return items;
}

using Places = std::vector<std::size_t>;

TEST(Resuming, ReadsEveryItemOfACleanFile) {
  EXPECT_EQ(ItemsOf("iii"), (Places{0, 1, 2}));
  EXPECT_EQ(ItemsOf("i"), Places{0});
}

TEST(Resuming, SkipsStrayTokensWhereverTheyAre) {
  EXPECT_EQ(ItemsOf("xi"), Places{1});
  EXPECT_EQ(ItemsOf("ix"), Places{0});
  EXPECT_EQ(ItemsOf("iixxixi"), (Places{0, 1, 4, 6}));
  EXPECT_EQ(ItemsOf("xxx"), Places{});
}

TEST(Resuming, ReadsNothingFromAnEmptyFile) { EXPECT_EQ(ItemsOf(""), Places{}); }

}  // namespace
}  // namespace vexltags::thorough
