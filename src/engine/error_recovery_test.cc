// SPDX-License-Identifier: MIT
// Compares error recovery with that of the runtime.
#include "engine/error_recovery.h"

#include <gtest/gtest.h>

#include <array>
#include <memory>
#include <optional>
#include <string>
#include <tuple>
#include <vector>

#include "engine/std_string.h"
#include "engine/token_stream.h"
#include "engine/token_test_support.h"

namespace vexltags {
namespace {

constexpr unsigned kA = 4, kB = 5, kC = 6;

/// A parser without rules that reads tokens "a", "b" and "c" of three types, one per line.
class Parser {
 public:
  Parser(const std::string& text, bool isSilent)
      : maker(text), lexer(antlr3LexerNewStream(ANTLR3_SIZE_HINT, maker.Input(), nullptr)) {
    const auto* begin = static_cast<const unsigned char*>(maker.Input()->data);
    table = std::make_unique<TokenTable>(maker.Input());
    for (unsigned i = 0; i < text.size(); ++i) {
      table->Add(kA + static_cast<unsigned>(text[i] - 'a'), begin + i, begin + i + 1, i + 1);
    }
    table->Finish(static_cast<unsigned>(text.size()) + 1);
    stream = std::make_unique<TokenStream>(*table, lexer);
    parser = antlr3ParserNewStream(ANTLR3_SIZE_HINT, stream->Stream()->tstream, nullptr);
    parser->rec->state->tokenNames = names;
    SilenceErrors(parser->rec);
    if (isSilent) {
      RecoverByFollowStack(parser->rec, true);
    } else {
      // Keeps the runtime's recovery; only the follow sets come from the stack.
      const auto recover = parser->rec->recover;
      RecoverByFollowStack(parser->rec, false);
      parser->rec->recover = recover;
    }
  }
  ~Parser() {
    FreeReportedErrors(parser->rec->state);
    if (parser->rec->state->tokFactory != nullptr) {
      parser->rec->state->tokFactory->close(parser->rec->state->tokFactory);
      parser->rec->state->tokFactory = nullptr;
    }
    parser->free(parser);
    lexer->free(lexer);
  }
  Parser(const Parser&) = delete;
  Parser& operator=(const Parser&) = delete;

  pANTLR3_BASE_RECOGNIZER Recognizer() { return parser->rec; }
  TokenTable& Table() { return *table; }
  FollowStack& Follows() { return stream->Follows(); }

  /// Runs a rule that matches one token of type a. Returns its text and line, and whether it
  /// failed.
  std::tuple<std::optional<std::string>, int, bool> Rule(pANTLR3_BITSET_LIST follow) {
    pANTLR3_BASE_RECOGNIZER rec = Recognizer();
    const auto token = static_cast<pANTLR3_COMMON_TOKEN>(rec->match(rec, kA, follow));
    std::optional<std::string> text;
    if (token != nullptr) text = TokenString(token);
    const int line = TokenLine(token);
    const bool failed = rec->state->error == ANTLR3_TRUE;
    if (failed) {
      rec->reportError(rec);
      rec->recover(rec);
    }
    return {text, line, failed};
  }

  std::tuple<std::size_t, unsigned, ANTLR3_MARKER, bool> State() {
    const pANTLR3_RECOGNIZER_SHARED_STATE state = Recognizer()->state;
    return {table->Position(), state->errorCount, state->lastErrorIndex,
            state->errorRecovery == ANTLR3_TRUE};
  }

 private:
  TokenMaker maker;
  pANTLR3_LEXER lexer;
  std::unique_ptr<TokenTable> table;
  std::unique_ptr<TokenStream> stream;
  pANTLR3_PARSER parser = nullptr;
  unsigned char none[8] = "?", a[8] = "A", b[8] = "B", c[8] = "C";
  pANTLR3_UINT8 names[7] = {none, none, none, none, a, b, c};
};

constexpr ANTLR3_BITWORD Bit(unsigned type) { return ANTLR3_BITWORD{1} << type; }

TEST(ErrorRecovery, DropsATokenBeforeTheExpectedOne) {
  Parser parser("ba", true);
  EXPECT_EQ(parser.Rule(nullptr), std::make_tuple(std::optional<std::string>("a"), 2, false));
  EXPECT_EQ(parser.State(), std::make_tuple(std::size_t{2}, 1U, ANTLR3_MARKER{-1}, true));
}

TEST(ErrorRecovery, InsertsATokenBeforeOneThatCanFollow) {
  Parser parser("bc", true);
  ANTLR3_BITWORD bits[] = {Bit(kB)};
  ANTLR3_BITSET_LIST follow{bits, 1};
  EXPECT_EQ(parser.Rule(&follow),
            std::make_tuple(std::optional<std::string>("<missing A>"), 1, false));
  EXPECT_EQ(parser.State(), std::make_tuple(std::size_t{0}, 1U, ANTLR3_MARKER{-1}, true));
}

TEST(ErrorRecovery, OtherwiseSkipsToATokenThatCanFollow) {
  Parser parser("bbc", true);
  ANTLR3_BITWORD bits[] = {Bit(kC)};
  ANTLR3_BITSET_LIST follow{bits, 1};
  parser.Follows().Push(&follow);
  EXPECT_EQ(parser.Rule(nullptr), std::make_tuple(std::optional<std::string>(), -1, true));
  EXPECT_EQ(parser.State(), std::make_tuple(std::size_t{2}, 1U, ANTLR3_MARKER{0}, true));
}

// Tries all sequences of up to four tokens, with each kind of set after the token and on the stack,
// and runs the rule three times in a row, so that errors follow each other.
TEST(ErrorRecovery, AgreesWithTheRuntime) {
  std::vector<std::string> texts = {""};
  for (std::size_t i = 0; texts[i].size() < 4; ++i) {
    for (const char* token : {"a", "b", "c"}) texts.push_back(texts[i] + token);
  }
  texts.erase(texts.begin());  // In an empty file the runtime cannot insert a token.
  std::array<ANTLR3_BITWORD, 6> bits = {
      0,       Bit(kB),          Bit(ANTLR3_EOR_TOKEN_TYPE), Bit(ANTLR3_EOR_TOKEN_TYPE) | Bit(kC),
      Bit(kA), Bit(kB) | Bit(kC)};
  std::vector<ANTLR3_BITSET_LIST> sets;
  for (ANTLR3_BITWORD& word : bits) sets.push_back({&word, 1});
  for (const std::string& text : texts) {
    for (std::size_t after = 0; after <= sets.size(); ++after) {
      for (ANTLR3_BITSET_LIST& enclosing : sets) {
        Parser ours(text, true);
        Parser theirs(text, false);
        ours.Follows().Push(&enclosing);
        theirs.Follows().Push(&enclosing);
        const pANTLR3_BITSET_LIST follow = after < sets.size() ? &sets[after] : nullptr;
        for (int round = 0; round < 3; ++round) {
          ASSERT_EQ(ours.Rule(follow), theirs.Rule(follow))
              << text << ' ' << after << ' ' << round << ' ' << enclosing.bits[0];
          ASSERT_EQ(ours.State(), theirs.State())
              << text << ' ' << after << ' ' << round << ' ' << enclosing.bits[0];
        }
      }
    }
  }
}

TEST(FailForDepth, IsASyntaxErrorOutsideSpeculativeParses) {
  Parser parser("abc", true);
  const pANTLR3_RECOGNIZER_SHARED_STATE state = parser.Recognizer()->state;
  FailForDepth(parser.Recognizer());
  EXPECT_TRUE(state->error);
  ASSERT_NE(state->exception, nullptr);
  EXPECT_EQ(state->exception->type, static_cast<ANTLR3_UINT32>(ANTLR3_NO_VIABLE_ALT_EXCEPTION));
  EXPECT_FALSE(state->failed);
}

TEST(FailForDepth, OnlyFailsASpeculativeParse) {
  Parser parser("abc", true);
  const pANTLR3_RECOGNIZER_SHARED_STATE state = parser.Recognizer()->state;
  state->backtracking = 1;
  FailForDepth(parser.Recognizer());
  EXPECT_TRUE(state->failed);
  EXPECT_FALSE(state->error);
  state->backtracking = 0;
}

}  // namespace
}  // namespace vexltags
