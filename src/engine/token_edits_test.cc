// SPDX-License-Identifier: MIT
// Tests of changes to the tokens of a filled table.
#include "engine/token_edits.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "engine/std_string.h"
#include "engine/token_table.h"

namespace vexltags {
namespace {

constexpr unsigned kWord = 7, kMark = 9, kBlank = 60, kOther = 61;

// The text "ab cd, (ef) gh": words, hidden blanks, and marks on line 3.
class TokenEditsTest : public testing::Test {
 protected:
  TokenEditsTest() {
    unsigned char name[] = "test";
    input = antlr3StringStreamNew(text, ANTLR3_ENC_8BIT, 14, name);
    table = std::make_unique<TokenTable>(input);
  }
  ~TokenEditsTest() override { input->close(input); }

  void Fill(bool keepsNeighbours = false) {
    if (keepsNeighbours) table->KeepNeighbours();
    Word(0, 2);
    table->AddHidden(kBlank);
    Word(3, 5);
    Mark(5);
    table->AddHidden(kBlank);
    Mark(7);
    Word(8, 10);
    Mark(10);
    table->AddHidden(kBlank);
    Word(12, 14);
    table->Finish(4);
  }
  void Word(int from, int to) { table->Add(kWord, text + from, text + to, 3); }
  void Mark(int at) { table->Add(kMark, text + at, text + at + 1, 3); }

  // Each token as its type and text.
  std::string Tokens() const {
    std::string result;
    for (std::size_t i = 0; i < table->Count(); ++i) {
      if (i > 0) result += ' ';
      table->Seek(i);
      result += std::to_string(table->LA(1)) + ":" + TokenString(table->LT(1));
    }
    return result;
  }

  unsigned char text[15] = "ab cd, (ef) gh";
  pANTLR3_INPUT_STREAM input = nullptr;
  std::unique_ptr<TokenTable> table;
  TokenEdits edits;
};

TEST_F(TokenEditsTest, MovesThePlacesOfTokensWithThem) {
  table->KeepPlaces();
  for (const int column : {0, 3, 5, 7, 8, 10, 12}) table->AddPlace(column, true);
  Fill();
  edits.Hide(1, kOther);
  edits.Insert(3, kOther, "x", 3);
  edits.Insert(7, kOther, "y", 4);
  table->Apply(edits);
  std::string columns;
  for (int k = 1; k <= 8; ++k) columns += std::to_string(table->LT(k)->charPosition) + " ";
  EXPECT_EQ(columns, "0 5 7 7 8 10 12 12 ");
}

TEST_F(TokenEditsTest, NoChangeLeavesTheTableAndItsPosition) {
  Fill();
  table->Seek(3);
  table->Apply(edits);
  EXPECT_EQ(table->Position(), 3U);
  EXPECT_EQ(Tokens(), "7:ab 7:cd 9:, 9:( 7:ef 9:) 7:gh");
}

TEST_F(TokenEditsTest, HidesAndRetypes) {
  Fill();
  table->Seek(3);
  edits.Retype(0, kMark);
  edits.Hide(1, kBlank);
  edits.Retype(4, kOther, "longer");
  edits.Hide(6, kBlank);
  table->Apply(edits);
  EXPECT_EQ(table->Position(), 0U);
  EXPECT_EQ(table->Count(), 5U);
  EXPECT_EQ(Tokens(), "9:ab 9:, 9:( 61:longer 9:)");
  table->Seek(5);
  EXPECT_EQ(table->LA(1), ANTLR3_TOKEN_EOF);
  EXPECT_EQ(table->NextLine(), 4);
}

TEST_F(TokenEditsTest, InsertedTokensAreBeforeTheNextOrAfterTheLast) {
  Fill();
  edits.Insert(3, kOther, "x", 3);
  edits.Insert(7, kOther, "y", 4);
  table->Apply(edits);
  EXPECT_EQ(table->OffsetAt(3), 7U);
  EXPECT_EQ(table->OffsetAt(8), 14U);
}

TEST_F(TokenEditsTest, InsertsBeforeBetweenAndAfter) {
  Fill();
  edits.Insert(0, kOther, "x", 1);
  edits.Insert(0, kMark, "y", 2);
  edits.Hide(0, kBlank);
  edits.Insert(4, kOther, "z", 9);
  edits.Insert(7, kOther, "end", 8);
  EXPECT_EQ(edits.Insertions(), 4U);
  table->Apply(edits);
  EXPECT_EQ(Tokens(), "61:x 9:y 7:cd 9:, 9:( 61:z 7:ef 9:) 7:gh 61:end");
  EXPECT_EQ(TokenLine(table->Token(0)), 1);
  EXPECT_EQ(TokenLine(table->Token(5)), 9);
  EXPECT_EQ(TokenLine(table->Token(6)), 3);
  EXPECT_EQ(TokenLine(table->Token(9)), 8);
}

TEST_F(TokenEditsTest, RemovesSeveralTokensAtOnce) {
  for (const bool keepsNeighbours : {false, true}) {
    Fill(keepsNeighbours);
    edits.Insert(1, kWord, "new", 3);
    edits.Remove(1, 5, kBlank);
    table->Apply(edits);
    EXPECT_EQ(Tokens(), "7:ab 7:new 9:) 7:gh");
    EXPECT_EQ(table->Text(0, 3), "ab new ) gh");
    table->Reset();
    edits.Clear();
  }
}

TEST_F(TokenEditsTest, RangesKeepHiddenTextAndLoseRemovedText) {
  Fill();
  edits.Hide(2, kBlank);
  edits.Remove(4, 5, kBlank);
  edits.Insert(5, kWord, "new", 3);
  edits.Retype(6, kWord, "last");
  table->Apply(edits);
  EXPECT_EQ(Tokens(), "7:ab 7:cd 9:( 7:new 9:) 7:last");
  EXPECT_EQ(table->Text(0, 5), "ab cd, (new) last");
  EXPECT_EQ(table->Text(3, 3), "new");
  EXPECT_EQ(table->Text(2, 3), "(new");
  EXPECT_EQ(table->Text(3, 4), "new)");
}

TEST_F(TokenEditsTest, RemovedTextKeepsItsPlaceAmongDroppedText) {
  table->AddDropped(text, text + 1);
  Word(1, 2);
  Word(3, 5);
  table->AddDropped(text + 5, text + 6);
  Word(8, 10);
  table->Finish(4);
  edits.Remove(1, 2, kBlank);
  table->Apply(edits);
  EXPECT_EQ(table->Text(0, 1), "b  (ef");
}

TEST_F(TokenEditsTest, KeepsTextsThatReplaceCharacters) {
  table->Add(kWord, text, text + 2, 3, "first");
  Word(3, 5);
  table->Add(kWord, text + 8, text + 10, 3, "second");
  table->Finish(4);
  edits.Insert(0, kMark, "made", 3);
  edits.Hide(1, kBlank);
  edits.Retype(2, kOther);
  table->Apply(edits);
  EXPECT_EQ(Tokens(), "9:made 7:first 61:second");
  edits.Clear();
  EXPECT_TRUE(edits.IsEmpty());
  EXPECT_EQ(edits.Insertions(), 0U);
  edits.Hide(1, kBlank);
  table->Apply(edits);
  EXPECT_EQ(Tokens(), "9:made 61:second");
}

TEST_F(TokenEditsTest, NeighboursSeeWhatIsHidden) {
  Fill(true);
  edits.Insert(1, kMark, "m", 3);
  edits.Hide(4, kOther);
  table->Apply(edits);
  ASSERT_EQ(Tokens(), "7:ab 9:m 7:cd 9:, 9:( 9:) 7:gh");
  table->Seek(1);  // The blank stays before what is inserted.
  EXPECT_EQ(table->RawType(-1), kBlank);
  EXPECT_EQ(table->RawType(1), kWord);
  table->Seek(2);
  EXPECT_EQ(table->RawType(-1), kMark);
  EXPECT_EQ(table->RawType(1), kMark);
  EXPECT_EQ(table->RawType(2), kBlank);
  table->Seek(4);
  EXPECT_EQ(table->RawType(1), kOther);
  table->Seek(5);
  EXPECT_EQ(table->RawType(-1), kOther);
  EXPECT_EQ(table->RawType(1), kBlank);
}

TEST_F(TokenEditsTest, BracketsAreThoseOfTheNewTokens) {
  constexpr unsigned kOpen = 21, kClose = 22;
  table->Add(kOpen, text, text + 1, 1);
  Word(1, 2);
  table->Add(kClose, text + 3, text + 4, 1);
  table->Finish(1);
  EXPECT_EQ(table->Partner(kOpen, kClose), 2U);
  edits.Insert(1, kOpen, "(", 1);
  edits.Insert(2, kClose, ")", 1);
  table->Apply(edits);
  EXPECT_EQ(table->Partner(kOpen, kClose), 4U);
  table->Seek(1);
  EXPECT_EQ(table->Partner(kOpen, kClose), 3U);
}

TEST_F(TokenEditsTest, GrowsWithManyInsertions) {
  Fill(true);
  constexpr std::size_t kMany = 5000;
  for (std::size_t i = 0; i < kMany; ++i) edits.Insert(2, kOther, "i" + std::to_string(i), 5);
  table->Apply(edits);
  ASSERT_EQ(table->Count(), kMany + 7);
  EXPECT_EQ(TokenString(table->Token(1)), "cd");
  EXPECT_EQ(TokenString(table->Token(2)), "i0");
  EXPECT_EQ(TokenString(table->Token(kMany + 1)), "i4999");
  EXPECT_EQ(TokenString(table->Token(kMany + 2)), ",");
  EXPECT_EQ(TokenString(table->Token(kMany + 6)), "gh");
}

}  // namespace
}  // namespace vexltags
