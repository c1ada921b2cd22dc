// SPDX-License-Identifier: MIT
// Implements the macros of generated code: speculative parses with kept outcomes, and the runtime's
// most frequent operations in place.
#pragma once

#include <antlr3.h>

#include <algorithm>
#include <cstddef>
#include <string>
#include <type_traits>

#include "engine/error_recovery.h"
#include "engine/follow_stack.h"
#include "engine/loop_runs.h"
#include "engine/rule_result.h"
#include "engine/stack_guard.h"
#include "engine/std_string.h"
#include "engine/token_table.h"
#include "engine/trial_table.h"

namespace vexltags {

/// A plain build reads the runtime's own token stream.
#ifdef VEXLTAGS_PLAIN
constexpr bool kReadsTable = false;
#else
constexpr bool kReadsTable = true;
#endif

/// The index of the next token.
template <class Context>
inline std::size_t PositionOf(Context* ctx) {
  if (kReadsTable) return ctx->tokens->Position();
  pANTLR3_INT_STREAM stream = ctx->pParser->tstream->istream;
  return static_cast<std::size_t>(stream->index(stream));
}

template <class Context>
inline void SeekTo(Context* ctx, std::size_t token) {
  if (kReadsTable) return ctx->tokens->Seek(token);
  pANTLR3_INT_STREAM stream = ctx->pParser->tstream->istream;
  stream->seek(stream, static_cast<ANTLR3_MARKER>(token));
}

/// A speculative parse of a predicate's fragment, or of a rule within one. If the outcome at this
/// token is known from an earlier parse, it takes effect at once; otherwise it is kept at the end.
///
/// A speculative parse has one side effect on the recogniser: a matched token clears the mark "in
/// error recovery". A known outcome repeats it, because error counts must not depend on what was
/// kept. The time limit changes how rules end, so exceeding it discards all outcomes.
template <unsigned kNumber, class Context>
class SpeculativeParse {
 public:
  static_assert(kNumber < TrialTable::kNumbers);

  /// Begins at the current token.
  explicit SpeculativeParse(Context* context)
      : ctx(context), state(context->pParser->rec->state), start(PositionOf(context)) {
    TrialTable& trials = *ctx->trials;
    trials.SetGivenUp(ctx->fileState->Aborted());
    if (state->backtracking == 0) trials.Commit(start);
    known = trials.Find(kNumber, start);
    if (known.known) {
      trials.reach = std::max(trials.reach, known.reach);
      if (known.matched) state->errorRecovery = ANTLR3_FALSE;
      return;
    }
    inRecovery = state->errorRecovery;
    state->errorRecovery = ANTLR3_TRUE;
    outerReach = trials.reach;
    trials.reach = start;
  }
  SpeculativeParse(const SpeculativeParse&) = delete;
  SpeculativeParse& operator=(const SpeculativeParse&) = delete;

  /// The outcome of an earlier parse. If it is not `known`, this one has to run, up to `End`.
  const TrialTable::Outcome& Known() const { return known; }
  std::size_t Start() const { return start; }

  /// Keeps the outcome; the current token is the one where the parse ended.
  void End() {
    const bool matched = state->errorRecovery == ANTLR3_FALSE;
    if (!matched) state->errorRecovery = inRecovery;
    TrialTable& trials = *ctx->trials;
    const std::size_t end = PositionOf(ctx);
    const std::size_t reach = std::max(trials.reach, end);
    trials.Keep(kNumber, start, {true, !state->failed, matched, end, reach});
    trials.reach = std::max(outerReach, reach);
  }

 private:
  Context* ctx;
  pANTLR3_RECOGNIZER_SHARED_STATE state;
  std::size_t start;
  TrialTable::Outcome known;
  std::size_t outerReach = 0;
  ANTLR3_BOOLEAN inRecovery = ANTLR3_FALSE;
};

/// Evaluates a predicate of a parser: returns whether `fragment` parses from the current token on.
/// Does not change the position.
template <unsigned kPredicate, class Context>
ANTLR3_BOOLEAN RunTrial(Context* ctx, void (*fragment)(Context*)) {
  SpeculativeParse<kPredicate, Context> parse(ctx);
  if (parse.Known().known) return parse.Known().success;
  pANTLR3_RECOGNIZER_SHARED_STATE state = ctx->pParser->rec->state;
  pANTLR3_INT_STREAM stream = ctx->pParser->tstream->istream;
  const auto start = static_cast<ANTLR3_MARKER>(parse.Start());
  state->backtracking++;
  stream->lastMarker = start;
  fragment(ctx);
  parse.End();
  const bool success = !state->failed;
  SeekTo(ctx, parse.Start());
  stream->lastMarker = start;
  state->backtracking--;
  state->failed = ANTLR3_FALSE;
  return success;
}

/// Created at the start of a rule with the option `memoize` in a speculative parse. If the rule's
/// outcome at this token is known, the constructor applies it.
template <unsigned kRule, class Context>
class RuleMemo {
 public:
  explicit RuleMemo(Context* ctx) : parse(ctx) {
    if (!parse.Known().known) return;
    if (parse.Known().success) {
      ctx->tokens->Seek(parse.Known().end);
    } else {
      ctx->pParser->rec->state->failed = ANTLR3_TRUE;
    }
  }
  ~RuleMemo() {
    if (!parse.Known().known) parse.End();
  }
  RuleMemo(const RuleMemo&) = delete;
  RuleMemo& operator=(const RuleMemo&) = delete;

  /// Returns whether the outcome was known, so that the rule must return.
  bool Repeat() const { return parse.Known().known; }

 private:
  SpeculativeParse<kRule, Context> parse;
};

/// Evaluates a predicate of a lexer. Its outcome is not kept, since it is needed only once.
template <class Context>
ANTLR3_BOOLEAN RunLexerTrial(Context* ctx, void (*fragment)(Context*)) {
  pANTLR3_RECOGNIZER_SHARED_STATE state = ctx->pLexer->rec->state;
  pANTLR3_INT_STREAM stream = ctx->pLexer->input->istream;
  state->backtracking++;
  const ANTLR3_MARKER start = stream->mark(stream);
  fragment(ctx);
  const bool success = !state->failed;
  stream->rewind(stream, start);
  stream->lastMarker = start;
  state->backtracking--;
  state->failed = ANTLR3_FALSE;
  return success;
}

// Functions for grammar actions -----------------------------------------------------------------

/// Returns the 1-based line of the next token, or of the end of the file after the last.
template <class Context>
int NextLine(Context* ctx) {
  if (kReadsTable) return ctx->tokens->NextLine();
  return TokenLine(ctx->pParser->tstream->_LT(ctx->pParser->tstream, 1));
}

/// Returns the index of the last token matched.
template <class Context>
ANTLR3_MARKER LastIndex(Context* ctx) {
  if (kReadsTable) return static_cast<ANTLR3_MARKER>(ctx->tokens->Position()) - 1;
  return ctx->pParser->tstream->_LT(ctx->pParser->tstream, -1)->index;
}

/// Returns the type of the `k`th token back, 1 being the last matched; 0 before the first.
template <class Context>
ANTLR3_UINT32 TypeBehind(Context* ctx, int k) {
  if (kReadsTable) return ctx->tokens->TypeBehind(static_cast<std::size_t>(k));
  const pANTLR3_COMMON_TOKEN token = ctx->pParser->tstream->_LT(ctx->pParser->tstream, -k);
  return token == nullptr ? 0 : token->type;
}

/// Skips balanced brackets as an eater for this kind would, if the next token opens one that is
/// closed. In a speculative parse also fails as the eater would if it is not closed. Returns false
/// if the rule must run: the next token is another one, or the failure is to be reported.
template <class Context>
bool StepOverBrackets(Context* ctx, ANTLR3_UINT32 open, ANTLR3_UINT32 close) {
  if (!kReadsTable || ctx->tokens->LA(1) != open) return false;
  pANTLR3_RECOGNIZER_SHARED_STATE state = ctx->pParser->rec->state;
  const std::size_t partner = ctx->tokens->Partner(open, close);
  if (partner != TokenTable::kNoPartner) {
    ctx->tokens->Seek(partner + 1);
  } else if (state->backtracking > 0) {
    state->failed = ANTLR3_TRUE;
  } else {
    return false;
  }
  state->errorRecovery = ANTLR3_FALSE;
  return true;
}

/// Returns the texts of the tokens from index `first` to `last`, including hidden ones in between.
/// Characters that the lexer dropped belong to no token and are not in the text.
template <class Context>
std::string TextBetween(Context* ctx, ANTLR3_MARKER first, ANTLR3_MARKER last) {
  if (last < first) return std::string();
  if (kReadsTable) {
    return ctx->tokens->Text(static_cast<std::size_t>(first), static_cast<std::size_t>(last));
  }
  std::string text;
  pANTLR3_TOKEN_STREAM stream = ctx->pParser->tstream;
  for (ANTLR3_MARKER i = first; i <= last; ++i) {
    text += TokenString(stream->get(stream, static_cast<ANTLR3_UINT32>(i)));
  }
  return text;
}

// Parsers -----------------------------------------------------------------------------------------

/// Matches a token without a label in an acting rule. The runtime handles a mismatch.
template <class Context>
inline void MatchToken(Context* ctx, ANTLR3_UINT32 type, pANTLR3_BITSET_LIST follow) {
  pANTLR3_BASE_RECOGNIZER recognizer = ctx->pParser->rec;
  if (ctx->tokens->LA(1) == type) {
    ctx->tokens->Consume();
    recognizer->state->errorRecovery = ANTLR3_FALSE;
  } else {
    recognizer->match(recognizer, type, follow);
  }
}

/// Matches a token for a label in an acting rule.
template <class Context>
inline void* MatchLabelled(Context* ctx, ANTLR3_UINT32 type, pANTLR3_BITSET_LIST follow) {
  pANTLR3_BASE_RECOGNIZER recognizer = ctx->pParser->rec;
  if (ctx->tokens->LA(1) != type || type == ANTLR3_TOKEN_EOF) {
    return recognizer->match(recognizer, type, follow);
  }
  const pANTLR3_COMMON_TOKEN token = ctx->tokens->Next();
  ctx->tokens->Consume();
  recognizer->state->errorRecovery = ANTLR3_FALSE;
  return token;
}

/// Matches a token in a speculative rule.
template <class Context>
inline void TryToken(Context* ctx, ANTLR3_UINT32 type) {
  pANTLR3_RECOGNIZER_SHARED_STATE state = ctx->pParser->rec->state;
  if (ctx->tokens->LA(1) == type) {
    ctx->tokens->Consume();
    state->errorRecovery = ANTLR3_FALSE;
  } else {
    state->failed = ANTLR3_TRUE;
  }
}

/// The steps of one prediction; see `PredictionMemo`.
class LongPrediction {
 public:
  LongPrediction(TokenTable& table, unsigned number) : tokens(table), decision(number) {}

  /// Called before each step. If the rest of the path is known, skips to its end.
  void JoinKnownPath(std::int32_t& state) {
    if (++steps > PredictionMemo::kFreeSteps && remembers) Join(state);
  }
  /// Called before a predicate, whose result does not depend on tables alone.
  void Forget() { remembers = false; }
  /// Called where the automaton stops, before the parser goes back.
  void End(std::int32_t state) {
    if (steps > PredictionMemo::kFreeSteps && remembers) {
      tokens.Predictions().Keep(decision, state, tokens.Position());
    }
  }

 private:
  __attribute__((noinline)) void Join(std::int32_t& state) {
    std::size_t token = tokens.Position();
    const bool isFirst = steps == PredictionMemo::kFreeSteps + 1;
    if (!tokens.Predictions().Join(decision, isFirst, state, token)) return;
    tokens.Seek(token);
    remembers = false;  // The path that it joined is already kept.
  }

  TokenTable& tokens;
  unsigned decision;
  unsigned steps = 0;
  bool remembers = true;
};

/// Predicts an alternative by tables, as the runtime does, over the token table.
template <class Context>
int Predict(Context* ctx, ANTLR3_CYCLIC_DFA& dfa) {
  TokenTable& tokens = *ctx->tokens;
  pANTLR3_BASE_RECOGNIZER recognizer = ctx->pParser->rec;
  pANTLR3_RECOGNIZER_SHARED_STATE recognizerState = recognizer->state;
  pANTLR3_INT_STREAM stream = ctx->pParser->tstream->istream;
  const std::size_t start = tokens.Position();
  stream->lastMarker = static_cast<ANTLR3_MARKER>(start);

  ANTLR3_INT32 state = 0;
  LongPrediction path(tokens, static_cast<unsigned>(dfa.decisionNumber));
  for (;;) {
    path.JoinKnownPath(state);
    const ANTLR3_INT32 special = dfa.special[state];
    if (special >= 0) {
      path.Forget();
      state = dfa.specialStateTransition(ctx, recognizer, stream, &dfa, special);
      if (state < 0) break;
      tokens.Consume();
      continue;
    }
    if (dfa.accept[state] >= 1) {
      path.End(state);
      tokens.Seek(start);
      return dfa.accept[state];
    }
    const auto type = static_cast<ANTLR3_INT32>(tokens.LA(1));
    if (type >= dfa.min[state] && type <= dfa.max[state]) {
      const ANTLR3_INT32 next = dfa.transition[state][type - dfa.min[state]];
      if (next >= 0) {
        state = next;
      } else if (dfa.eot[state] >= 0) {
        state = dfa.eot[state];
      } else {
        break;
      }
      tokens.Consume();
      continue;
    }
    if (dfa.eot[state] >= 0) {
      state = dfa.eot[state];
      tokens.Consume();
      continue;
    }
    if (tokens.LA(1) == ANTLR3_TOKEN_EOF && dfa.eof[state] >= 0) {
      path.End(state);
      tokens.Seek(start);
      return dfa.accept[dfa.eof[state]];
    }
    break;
  }

  path.End(state);
  // No alternative. The error of a predicate is kept.
  if (state >= 0 || recognizerState->error != ANTLR3_TRUE) {
    if (recognizerState->backtracking > 0) {
      recognizerState->failed = ANTLR3_TRUE;
    } else {
      recognizer->exConstruct(recognizer);
      recognizerState->exception->type = ANTLR3_NO_VIABLE_ALT_EXCEPTION;
      recognizerState->exception->message = const_cast<ANTLR3_UCHAR*>(dfa.description);
      recognizerState->exception->decisionNum = dfa.decisionNumber;
      recognizerState->exception->state = static_cast<ANTLR3_UINT32>(state);
    }
  }
  tokens.Seek(start);
  return 0;
}

// Lexers ------------------------------------------------------------------------------------------

/// Returns the `k`th character ahead, 1 being the next. 0 and below look back, without a bound.
inline ANTLR3_UINT32 LookAtCharacter(pANTLR3_INPUT_STREAM input, ANTLR3_INT32 k) {
  const auto* at = static_cast<const unsigned char*>(input->nextChar) + k - 1;
  return at < static_cast<const unsigned char*>(input->data) + input->sizeBuf
             ? *at
             : ANTLR3_CHARSTREAM_EOF;
}

inline void ConsumeCharacter(pANTLR3_INPUT_STREAM input) {
  auto* at = static_cast<unsigned char*>(input->nextChar);
  if (at >= static_cast<unsigned char*>(input->data) + input->sizeBuf) return;
  input->charPositionInLine++;
  if (*at == input->newlineChar) {
    input->line++;
    input->charPositionInLine = 0;
    input->currentLine = at + 1;
  }
  input->nextChar = at + 1;
}

inline ANTLR3_BOOLEAN MatchCharacter(pANTLR3_LEXER lexer, ANTLR3_UCHAR c) {
  if (LookAtCharacter(lexer->input, 1) != c) return lexer->matchc(lexer, c);
  ConsumeCharacter(lexer->input);
  lexer->rec->state->failed = ANTLR3_FALSE;
  return ANTLR3_TRUE;
}

}  // namespace vexltags
