// SPDX-License-Identifier: MIT
// The macros of generated recognisers, which replace operations of the runtime, with their reasons.
//
// A grammar includes this file first in its @members section, after the generator's own macros,
// which it redefines; the grammar's @includes section includes the project headers it depends on.
// Two replacements fix errors of the generator, and one memoises trials, that is, speculative
// parses. All others only save time: a build with VEXLTAGS_PLAIN omits them and must produce the
// same tags and error counts, which tests/runners/differential.py checks.
#pragma once

#include "engine/parser_ops.h"

// --- Fixes of the generator ---

// REWIND also sets the marker of REWINDLAST. A prediction with several predicates uses REWINDLAST
// to return to its start between them. The stock macro leaves lastMarker at the last nested mark,
// so the second predicate would be evaluated at a wrong token or character.
#undef REWIND
#define REWIND(m)                  \
  do {                             \
    ISTREAM->rewind(ISTREAM, (m)); \
    ISTREAM->lastMarker = (m);     \
  } while (0)

// A failed set in a lexer rule drops one character, in the runtime's token loop. The stock LRECOVER
// would drop a second one in the rule itself.
#undef LRECOVER
#define LRECOVER()

// --- Speculative parses: see RunTrial ---

namespace vexltags {
/// The first value of __COUNTER__ for a rule or predicate of this file. Rules precede predicates.
constexpr unsigned kFirstTrial = __COUNTER__ + 1;
}  // namespace vexltags
#define VEXL_TRIAL(ctx, fragment) \
  (vexltags::RunTrial<__COUNTER__ - vexltags::kFirstTrial>(ctx, fragment))
#define VEXL_LEXER_TRIAL(ctx, fragment) (vexltags::RunLexerTrial(ctx, fragment))

// The rules of a parser are compiled twice: as acting rules and as speculative rules (see
// trials.cc.in). Acting rules run only outside trials and call the speculative rules for a
// predicate. Speculative rules have no actions, values, labels or follow sets, and call only each
// other.
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
// In a trial a rule fails by setting the flag `failed` only, without an exception.
#undef HASEXCEPTION
#define HASEXCEPTION() false
#elif defined(VEXL_ACTS_ONLY)
#undef BACKTRACKING
#define BACKTRACKING 0
// The flag of a failed trial is cleared at its end.
#undef HASFAILED
#define HASFAILED() false
#endif

// --- Depth: a rule that would exceed the stack limit fails like on a syntax error ---

#define VEXL_TOO_DEEP() (vexltags::StackIsLow() && (vexltags::FailForDepth(RECOGNIZER), true))

// --- Speed ---

// Rules with the option `memoize` and long loops memoise their outcomes in trials.
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

// Accesses the flat token table directly; the runtime's macros use three function pointers.
#undef LA
#define LA(k) (ctx->tokens->LA(k))
// Labels on sets read their token with LT.
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

// Handles a matching token, the common case, inline. The runtime makes a token object for each
// match, so a match without a label has its own macro.
#undef MATCHT
#ifdef VEXLTAGS_TRIALS
#define MATCHT(type, follow) (vexltags::TryToken(ctx, type), nullptr)
#define VEXL_MATCH(type, follow) (vexltags::TryToken(ctx, type))
#else
#define MATCHT(type, follow) (vexltags::MatchLabelled(ctx, type, follow))
#define VEXL_MATCH(type, follow) (vexltags::MatchToken(ctx, type, follow))
#endif

#define VEXL_PREDICT(ctx, dfa) (vexltags::Predict(ctx, dfa))

// The stack of follow sets is used only by error recovery.
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

// Reads characters directly from the buffer.
#undef LA
#define LA(k) (vexltags::LookAtCharacter(INPUT, k))
#undef CONSUME
#define CONSUME() (vexltags::ConsumeCharacter(INPUT))
#undef MATCHC
#define MATCHC(c) (vexltags::MatchCharacter(LEXER, c))

#define VEXL_PREDICT(ctx, dfa) dfa.predict(ctx, RECOGNIZER, ISTREAM, &dfa)

#endif
