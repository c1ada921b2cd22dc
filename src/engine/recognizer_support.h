// SPDX-License-Identifier: MIT
// Replaces operations of the recogniser runtime in the generated recognisers, each with its reason.
//
// A grammar includes it first in its @members section, that is, behind the generator's own macros,
// which it redefines; the project headers that it stands on come in by the grammar's @includes. Two
// replacements mend what the generator gets wrong, one keeps the outcomes of trials. All others
// only save time: a build with VEXLTAGS_PLAIN goes without them and has to give the same tags and
// the same error counts, which tests/runners/differential.py checks.
#pragma once

#include "engine/parser_ops.h"

// --- What the generator gets wrong ---

// REWIND also sets the place that REWINDLAST goes back to. A prediction that asks several
// predicates goes back to its start between them by REWINDLAST; stock leaves lastMarker at the last
// nested mark, so the second predicate would be tried at a wrong token or character.
#undef REWIND
#define REWIND(m)                  \
  do {                             \
    ISTREAM->rewind(ISTREAM, (m)); \
    ISTREAM->lastMarker = (m);     \
  } while (0)

// A failed set test in a lexer rule costs one character, which the runtime's token loop drops.
// Stock's LRECOVER would drop a second one in the rule itself.
#undef LRECOVER
#define LRECOVER()

// --- Trials: see RunTrial ---

namespace vexltags {
/// The first number that __COUNTER__ gives to a rule or predicate of this file. The rules come
/// first.
constexpr unsigned kFirstTrial = __COUNTER__ + 1;
}  // namespace vexltags
#define VEXL_TRIAL(ctx, fragment) \
  (vexltags::RunTrial<__COUNTER__ - vexltags::kFirstTrial>(ctx, fragment))
#define VEXL_LEXER_TRIAL(ctx, fragment) (vexltags::RunLexerTrial(ctx, fragment))

// The rules of a parser are compiled twice: once to act, once to try (see trials.cc.in). The ones
// that act are entered outside trials only, and for a predicate they call the ones that try; these
// have no actions, no values, no labels and no follow sets, and never leave a trial.
#if defined(VEXLTAGS_TRIALS)
#define VEXL_PREDICATE(parser, predicate)                                                          \
  static ANTLR3_BOOLEAN predicate(p##parser ctx) { return VEXL_TRIAL(ctx, predicate##_fragment); } \
  ANTLR3_BOOLEAN predicate##_trial(void* context) {                                                \
    return predicate(static_cast<p##parser>(context));                                             \
  }
#elif defined(VEXLTAGS_PLAIN) || !defined(PARSER)
#define VEXL_PREDICATE(parser, predicate) \
  static ANTLR3_BOOLEAN predicate(p##parser ctx) { return VEXL_TRIAL(ctx, predicate##_fragment); }
#else
#define VEXL_ACTS_ONLY
#define VEXL_PREDICATE(parser, predicate)          \
  ANTLR3_BOOLEAN predicate##_trial(void* context); \
  static ANTLR3_BOOLEAN predicate(p##parser ctx) { return predicate##_trial(ctx); }
#endif

#if defined(VEXLTAGS_TRIALS)
#undef BACKTRACKING
#define BACKTRACKING 1
// Within a trial a rule fails by this mark only; no exception is made.
#undef HASEXCEPTION
#define HASEXCEPTION() false
#elif defined(VEXL_ACTS_ONLY)
#undef BACKTRACKING
#define BACKTRACKING 0
// The mark of a failed trial is taken back at its end.
#undef HASFAILED
#define HASFAILED() false
#endif

// --- Depth: a rule that may not go deeper fails as on a syntax error ---

#define VEXL_TOO_DEEP() (vexltags::StackIsLow() && (vexltags::FailForDepth(RECOGNIZER), true))

// --- Time ---

// Rules with the option `memoize` remember how they went within trials, and so do long loops.
#ifndef VEXLTAGS_TRIALS
#define VEXL_RULE_MEMO(ctx)
#define VEXL_REPEATED() false
#define VEXL_LOOP(ctx, decision)
#define VEXL_LOOP_IS_KNOWN() false
#else
#define VEXL_LOOP(ctx, decision) \
  vexltags::LoopMemo<std::remove_pointer_t<decltype(ctx)>> loopMemo(ctx, decision)
#define VEXL_LOOP_IS_KNOWN() loopMemo.JoinsKnownRun()
#define VEXL_RULE_MEMO(ctx)                                                                     \
  vexltags::RuleMemo<__COUNTER__ - vexltags::kFirstTrial, std::remove_pointer_t<decltype(ctx)>> \
  ruleMemo(ctx)
#define VEXL_REPEATED() ruleMemo.Repeat()
#endif

#ifdef VEXLTAGS_PLAIN

#define VEXL_MATCH(type, follow) MATCHT(type, follow)
#define VEXL_PREDICT(ctx, dfa) dfa.predict(ctx, RECOGNIZER, ISTREAM, &dfa)

#elif defined(PARSER)

// The token stream is a flat table; the runtime's own access goes through three function pointers.
#undef LA
#define LA(k) (ctx->tokens->LA(k))
// A label on a set takes its token by LT.
#undef LT
#define LT(k) (BACKTRACKING > 0 ? nullptr : ctx->tokens->LT(k))
#undef CONSUME
#define CONSUME() (ctx->tokens->Consume())
#undef INDEX
#define INDEX() (static_cast<ANTLR3_MARKER>(ctx->tokens->Position()))
#undef SEEK
#define SEEK(index) (ctx->tokens->Seek(static_cast<std::size_t>(index)))
#undef MARK
#define MARK() (ISTREAM->lastMarker = INDEX())
#undef REWIND
#define REWIND(m) (SEEK(m), ISTREAM->lastMarker = (m))
#undef REWINDLAST
#define REWINDLAST() SEEK(ISTREAM->lastMarker)

// A matching token is the common case and settled here; the runtime makes a token object for each
// match, wanted or not, so a match without a label has a form of its own.
#undef MATCHT
#ifdef VEXLTAGS_TRIALS
#define MATCHT(type, follow) (vexltags::TryToken(ctx, type), nullptr)
#define VEXL_MATCH(type, follow) (vexltags::TryToken(ctx, type))
#else
#define MATCHT(type, follow) (vexltags::MatchLabelled(ctx, type, follow))
#define VEXL_MATCH(type, follow) (vexltags::MatchToken(ctx, type, follow))
#endif

#define VEXL_PREDICT(ctx, dfa) (vexltags::Predict(ctx, dfa))

// The follow sets on the rule stack serve error recovery only.
#undef FOLLOWPUSH
#undef FOLLOWPOP
#ifdef VEXLTAGS_TRIALS
#define FOLLOWPUSH(set)
#define FOLLOWPOP()
#else
#define FOLLOWPUSH(set) (ctx->follows->Push(&(set)))
#define FOLLOWPOP() (ctx->follows->Pop())
#endif

#else

// Characters are read where they lie.
#undef LA
#define LA(k) (vexltags::LookAtCharacter(INPUT, k))
#undef CONSUME
#define CONSUME() (vexltags::ConsumeCharacter(INPUT))
#undef MATCHC
#define MATCHC(c) (vexltags::MatchCharacter(LEXER, c))

#define VEXL_PREDICT(ctx, dfa) dfa.predict(ctx, RECOGNIZER, ISTREAM, &dfa)

#endif
