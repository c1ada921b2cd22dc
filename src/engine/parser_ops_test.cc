// SPDX-License-Identifier: MIT
// Tests of the speculative parse behind a predicate, and of its kept outcome.
#include "engine/parser_ops.h"

#include <gtest/gtest.h>

#include "engine/token_test_support.h"

namespace vexltags {
namespace {

constexpr ANTLR3_UINT32 kWord = 7, kMark = 9;

struct FileState {
  bool Aborted() const { return aborted; }
  bool aborted = false;
};

/// What a generated parser has as its context, over the tokens "a" and "b", a word and a mark.
class Context {
 public:
  Context() : maker("ab"), table(maker.Input()) {
    const auto* text = static_cast<const unsigned char*>(maker.Input()->data);
    table.Add(kWord, text, text + 1, 1);
    table.Add(kMark, text + 1, text + 2, 1);
    table.Finish(1);
    stream.istream = &index;
    parser.rec = &recognizer;
    parser.tstream = &stream;
    recognizer.state = &state;
  }
  Context(const Context&) = delete;
  Context& operator=(const Context&) = delete;

 private:
  TokenMaker maker;
  TokenTable table;
  TrialTable outcomes;
  FileState file;
  ANTLR3_PARSER parser{};
  ANTLR3_BASE_RECOGNIZER recognizer{};
  ANTLR3_TOKEN_STREAM stream{};
  ANTLR3_INT_STREAM index{};

 public:
  ANTLR3_RECOGNIZER_SHARED_STATE state{};
  int runs = 0;
  // The members that generated parsers have.
  ANTLR3_PARSER* pParser = &parser;
  TokenTable* tokens = &table;
  TrialTable* trials = &outcomes;
  FileState* fileState = &file;
};

void Words(Context* ctx) {
  ++ctx->runs;
  TryToken(ctx, kWord);
  if (!ctx->state.failed) TryToken(ctx, kWord);
}

void Mark(Context* ctx) {
  ++ctx->runs;
  TryToken(ctx, kMark);
}

TEST(RunTrial, RunsOnceForEachPlaceAndGoesBack) {
  Context ctx;
  for (int i = 0; i < 2; ++i) {
    EXPECT_FALSE(RunTrial<1>(&ctx, Mark));
    EXPECT_EQ(ctx.tokens->Position(), 0U);
    EXPECT_EQ(ctx.state.failed, ANTLR3_FALSE);
    EXPECT_EQ(ctx.state.backtracking, 0U);
  }
  EXPECT_EQ(ctx.runs, 1);
  ctx.tokens->Seek(1);
  EXPECT_TRUE(RunTrial<1>(&ctx, Mark));
  EXPECT_EQ(ctx.tokens->Position(), 1U);
  EXPECT_EQ(ctx.runs, 2);
}

// The mark decides whether the next error is reported, so a kept outcome has to do to it what the
// parse did, or the number of reported errors depends on what is kept.
TEST(RunTrial, AMatchedTokenEndsErrorRecoveryAlsoWhenTheOutcomeIsRepeated) {
  Context ctx;
  for (int i = 0; i < 2; ++i) {
    ctx.state.errorRecovery = ANTLR3_TRUE;
    EXPECT_FALSE(RunTrial<1>(&ctx, Words));
    EXPECT_EQ(ctx.state.errorRecovery, ANTLR3_FALSE) << "run " << i;
  }
  EXPECT_EQ(ctx.runs, 1);
}

TEST(RunTrial, WithoutAMatchedTokenErrorRecoveryStaysAsItWas) {
  for (const ANTLR3_BOOLEAN before : {ANTLR3_TRUE, ANTLR3_FALSE}) {
    Context ctx;
    for (int i = 0; i < 2; ++i) {
      ctx.state.errorRecovery = before;
      EXPECT_FALSE(RunTrial<1>(&ctx, Mark));
      EXPECT_EQ(ctx.state.errorRecovery, before) << "run " << i;
    }
    EXPECT_EQ(ctx.runs, 1);
  }
}

TEST(RunTrial, GivingTheFileUpForgetsOutcomes) {
  Context ctx;
  EXPECT_FALSE(RunTrial<1>(&ctx, Mark));
  ctx.fileState->aborted = true;
  EXPECT_FALSE(RunTrial<1>(&ctx, Mark));
  EXPECT_EQ(ctx.runs, 2);
}

void RememberedWords(Context* ctx) {
  ++ctx->runs;
  RuleMemo<2, Context> memo(ctx);
  if (memo.Repeat()) return;
  TryToken(ctx, kWord);
  if (!ctx->state.failed) TryToken(ctx, kWord);
}

void RememberedMark(Context* ctx) {
  RuleMemo<3, Context> memo(ctx);
  if (memo.Repeat()) return;
  TryToken(ctx, kMark);
}

TEST(RuleMemo, RepeatsWhatTheRuleDidToErrorRecovery) {
  for (int first = 0; first < 2; ++first) {
    Context ctx;
    for (int i = 0; i < 2; ++i) {
      ctx.state.errorRecovery = ANTLR3_TRUE;
      ctx.state.failed = ANTLR3_FALSE;
      ctx.tokens->Seek(0);
      (first == 0 ? RememberedWords : RememberedMark)(&ctx);
      EXPECT_EQ(ctx.state.failed, ANTLR3_TRUE);
      EXPECT_EQ(ctx.state.errorRecovery, first == 0 ? ANTLR3_FALSE : ANTLR3_TRUE) << "run " << i;
    }
  }
}

}  // namespace
}  // namespace vexltags
