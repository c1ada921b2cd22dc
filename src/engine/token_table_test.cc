// SPDX-License-Identifier: MIT
// Tests of the token table and of the runtime's view on it.
#include "engine/token_table.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include "engine/std_string.h"

namespace vexltags {
namespace {

constexpr unsigned kWord = 7, kMark = 9, kBlank = 60;

// The text "ab $c\n.d" as: word "ab", hidden blank, dropped "$", word "c", hidden line end, mark
// ".", word "d".
class TokenTableTest : public testing::Test {
 protected:
  TokenTableTest() {
    unsigned char name[] = "test";
    input = antlr3StringStreamNew(text, ANTLR3_ENC_8BIT, 8, name);
  }
  ~TokenTableTest() override { input->close(input); }

  void Fill(TokenTable& table) const {
    table.KeepNeighbours();
    table.Add(kWord, text, text + 2, 1);
    table.AddHidden(kBlank);
    table.AddDropped(text + 3, text + 4);
    table.Add(kWord, text + 4, text + 5, 1);
    table.AddHidden(kBlank);
    table.Add(kMark, text + 6, text + 7, 2);
    table.Add(kWord, text + 7, text + 8, 2);
    table.Finish(2);
  }

  unsigned char text[9] = {'a', 'b', ' ', '$', 'c', '\n', '.', 'd', 0};
  pANTLR3_INPUT_STREAM input = nullptr;
};

TEST_F(TokenTableTest, ShowsPlacesOfTokensOnRequest) {
  TokenTable table(input);
  Fill(table);
  EXPECT_EQ(table.LT(3)->charPosition, 0);
  EXPECT_EQ(table.LT(3)->index, 2);

  table.Reset();
  table.KeepPlaces();
  // Columns of the first line begin at -1.
  const struct {
    std::int32_t column;
    bool isVisible;
  } places[] = {{-1, true}, {1, false}, {3, true}, {4, false}, {0, true}, {1, true}};
  for (const auto& place : places) table.AddPlace(place.column, place.isVisible);
  Fill(table);
  std::string shown;
  for (int k = 1; k <= 4; ++k) {
    const pANTLR3_COMMON_TOKEN token = table.LT(k);
    shown += std::to_string(token->charPosition) + "#" + std::to_string(token->index) + " ";
  }
  EXPECT_EQ(shown, "-1#0 3#2 0#4 1#5 ");
}

TEST_F(TokenTableTest, LooksAheadAndBehindAndStopsAtTheEnd) {
  TokenTable table(input);
  Fill(table);
  ASSERT_EQ(table.Count(), 4U);
  EXPECT_EQ(table.LA(1), kWord);
  EXPECT_EQ(table.LA(3), kMark);
  EXPECT_EQ(table.LA(5), ANTLR3_TOKEN_EOF);
  EXPECT_EQ(table.LA(100), ANTLR3_TOKEN_EOF);
  EXPECT_EQ(table.TypeBehind(1), 0U);
  table.Seek(3);
  EXPECT_EQ(table.TypeBehind(1), kMark);
  EXPECT_EQ(table.TypeBehind(3), kWord);
  EXPECT_EQ(table.TypeBehind(4), 0U);
  table.Consume();
  table.Consume();
  EXPECT_EQ(table.Position(), 4U);
  EXPECT_EQ(table.LA(1), ANTLR3_TOKEN_EOF);
}

TEST_F(TokenTableTest, MakesTokensOnDemand) {
  TokenTable table(input);
  Fill(table);
  EXPECT_EQ(TokenString(table.LT(1)), "ab");
  EXPECT_EQ(TokenLine(table.LT(3)), 2);
  EXPECT_EQ(table.LT(-1), nullptr);
  table.Seek(4);
  EXPECT_EQ(TokenString(table.LT(-1)), "d");
  EXPECT_EQ(table.LT(1)->type, static_cast<ANTLR3_UINT32>(ANTLR3_TOKEN_EOF));
  EXPECT_EQ(table.NextLine(), 2);
}

TEST_F(TokenTableTest, DescribesTokensByIndex) {
  TokenTable table(input);
  Fill(table);
  EXPECT_EQ(table.TypeAt(0), kWord);
  EXPECT_EQ(table.TypeAt(2), kMark);
  EXPECT_EQ(table.LineAt(1), 1U);
  EXPECT_EQ(table.LineAt(2), 2U);
  EXPECT_EQ(table.TextAt(0), "ab");
  EXPECT_EQ(table.TextAt(3), "d");
  EXPECT_EQ(table.OffsetAt(0), 0U);
  EXPECT_EQ(table.OffsetAt(3), 7U);
  table.Add(kMark, text + 6, text + 7, 5, "other");
  table.Finish(5);
  EXPECT_EQ(table.TextAt(4), "other");
  EXPECT_EQ(table.TextAt(1), "c");
}

TEST_F(TokenTableTest, TokensLiveForTheNextOnesAndNotLonger) {
  TokenTable table(input);
  Fill(table);
  const pANTLR3_COMMON_TOKEN first = table.Token(0);
  for (std::size_t i = 1; i < TokenTable::kMadeTokens; ++i) table.Token(3);
  EXPECT_EQ(TokenString(first), "ab");
  table.Token(3);
  EXPECT_EQ(TokenString(first), "d");
}

TEST_F(TokenTableTest, MadeUpTokensStandOnTheLineOfTheNextOne) {
  TokenTable table(input);
  Fill(table);
  table.Seek(2);
  const pANTLR3_COMMON_TOKEN token = table.MadeUp(33, "<missing X>");
  EXPECT_EQ(token->type, 33U);
  EXPECT_EQ(TokenString(token), "<missing X>");
  EXPECT_EQ(TokenLine(token), 2);
  EXPECT_EQ(TokenString(table.Token(0)), "ab");
  table.Seek(4);
  EXPECT_EQ(TokenLine(table.MadeUp(33, "x")), 2);
  table.Reset();
  table.Finish(1);
  EXPECT_EQ(table.MadeUp(33, "x"), nullptr);
}

TEST_F(TokenTableTest, HoldsTheNextFileAfterAReset) {
  TokenTable table(input);
  Fill(table);
  EXPECT_EQ(TokenString(table.LT(1)), "ab");
  table.Reset();
  EXPECT_EQ(table.Count(), 0U);
  table.Add(kMark, text + 6, text + 7, 5, "other");
  table.Finish(6);
  EXPECT_EQ(table.Position(), 0U);
  EXPECT_EQ(TokenString(table.LT(1)), "other");
  EXPECT_EQ(TokenLine(table.LT(1)), 5);
  EXPECT_EQ(table.LA(2), ANTLR3_TOKEN_EOF);
}

TEST_F(TokenTableTest, GrowsBeyondItsGuess) {
  TokenTable table(input);
  constexpr std::size_t kMany = 5000;
  for (std::size_t i = 0; i < kMany; ++i) {
    table.Add(kWord + i % 2, text, text + 1, static_cast<unsigned>(i));
  }
  table.Finish(1);
  ASSERT_EQ(table.Count(), kMany);
  for (std::size_t i = 0; i < kMany; ++i) {
    table.Seek(i);
    ASSERT_EQ(table.LA(1), kWord + i % 2);
    ASSERT_EQ(table.NextLine(), static_cast<int>(i));
  }
}

TEST_F(TokenTableTest, FindsReplacedTextsInAnyOrder) {
  TokenTable table(input);
  for (int i = 0; i < 20; ++i) {
    if (i % 3 == 0) {
      table.Add(kMark, text, text + 1, 1, "m" + std::to_string(i));
    } else {
      table.Add(kWord, text, text + 2, 1);
    }
  }
  table.Finish(1);
  for (const std::size_t i : {0, 1, 19, 18, 3, 2, 9, 9, 10, 0, 15}) {
    EXPECT_EQ(TokenString(table.Token(i)), i % 3 == 0 ? "m" + std::to_string(i) : "ab") << i;
  }
}

TEST_F(TokenTableTest, TextHoldsHiddenTokensButNothingDropped) {
  TokenTable table(input);
  Fill(table);
  EXPECT_EQ(table.Text(0, 0), "ab");
  EXPECT_EQ(table.Text(0, 1), "ab c");
  EXPECT_EQ(table.Text(0, 3), "ab c\n.d");
  EXPECT_EQ(table.Text(2, 3), ".d");
}

TEST_F(TokenTableTest, TextLacksWhatWasDroppedInSeveralPieces) {
  TokenTable table(input);
  table.Add(kWord, text, text + 1, 1);
  table.AddDropped(text + 1, text + 2);
  table.AddDropped(text + 2, text + 3);
  table.AddDropped(text + 3, text + 3);
  table.Add(kMark, text + 3, text + 3, 1, "name");
  table.AddDropped(text + 3, text + 4);
  table.Add(kWord, text + 4, text + 5, 1);
  table.AddDropped(text + 6, text + 7);
  table.Add(kWord, text + 7, text + 8, 2);
  table.Finish(2);
  EXPECT_EQ(table.Text(0, 2), "anamec");
  EXPECT_EQ(table.Text(0, 0), "a");
  EXPECT_EQ(table.Text(1, 3), "namec\nd");
}

TEST_F(TokenTableTest, ReplacedTextTakesThePlaceOfTheCharacters) {
  TokenTable table(input);
  table.Add(kWord, text, text + 2, 1);
  table.Add(kMark, text + 2, text + 6, 1, "name");
  table.Add(kWord, text + 7, text + 8, 2);
  table.Finish(2);
  EXPECT_EQ(table.Text(0, 2), "abname.d");
  EXPECT_EQ(TokenString(table.Token(1)), "name");
  EXPECT_EQ(TokenString(table.Token(2)), "d");
}

TEST_F(TokenTableTest, KnowsRawNeighbours) {
  constexpr auto kEnd = static_cast<unsigned>(ANTLR3_TOKEN_EOF);
  TokenTable table(input);
  Fill(table);
  EXPECT_EQ(table.RawType(-1), kEnd);
  EXPECT_EQ(table.RawType(0), kWord);
  EXPECT_EQ(table.RawType(1), kBlank);
  table.Seek(1);
  EXPECT_EQ(table.RawType(-1), kBlank);
  table.Seek(2);
  EXPECT_EQ(table.RawType(-1), kBlank);
  EXPECT_EQ(table.RawType(0), kMark);
  EXPECT_EQ(table.RawType(1), kWord);
  EXPECT_EQ(table.RawType(2), kEnd);
  table.Seek(3);
  EXPECT_EQ(table.RawType(-1), kMark);
  table.Seek(4);
  EXPECT_EQ(table.RawType(-1), kWord);
  EXPECT_EQ(table.RawType(0), kEnd);
}

}  // namespace
TEST_F(TokenTableTest, KnowsRawTypesAsFarAsTokensAreAdjacent) {
  constexpr auto kEnd = static_cast<unsigned>(ANTLR3_TOKEN_EOF);
  TokenTable table(input);
  table.KeepNeighbours();
  table.Add(kMark, text, text + 1, 1);
  table.Add(kWord, text + 1, text + 2, 1);
  table.AddHidden(kBlank);
  table.AddHidden(kMark);
  table.Add(kWord, text + 3, text + 4, 1);
  table.Add(kMark, text + 4, text + 5, 1);
  table.Add(kWord, text + 5, text + 6, 1);
  table.Finish(1);
  const struct {
    std::size_t position;
    std::vector<unsigned> types;  ///< From offset 0 on.
  } cases[] = {
      {0, {kMark, kWord, kBlank, kEnd, kEnd, kEnd, kEnd}},
      {1, {kWord, kBlank, kEnd, kEnd, kEnd, kEnd}},
      {2, {kWord, kMark, kWord, kEnd, kEnd}},
      {3, {kMark, kWord, kEnd, kEnd}},
      {4, {kWord, kEnd, kEnd}},
      {5, {kEnd, kEnd, kEnd}},
  };
  for (const auto& c : cases) {
    table.Seek(c.position);
    for (std::size_t offset = 0; offset < c.types.size(); ++offset) {
      EXPECT_EQ(table.RawType(static_cast<int>(offset)), c.types[offset])
          << offset << " from " << c.position;
    }
  }
}

}  // namespace vexltags
