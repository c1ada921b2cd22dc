// SPDX-License-Identifier: MIT
// Replaces the runtime's error reporting and recovery.
#include "engine/error_recovery.h"

#include "engine/follow_stack.h"
#include "engine/token_stream.h"

namespace vexltags {
namespace {

// The runtime's two report functions, of parsers and lexers, without the display.

void CountParserError(pANTLR3_BASE_RECOGNIZER recognizer) {
  pANTLR3_RECOGNIZER_SHARED_STATE state = recognizer->state;
  if (state->errorRecovery != ANTLR3_TRUE) {
    state->errorRecovery = ANTLR3_TRUE;
    state->errorCount++;
  }
  FreeReportedErrors(state);
}

void CountLexerError(pANTLR3_BASE_RECOGNIZER recognizer) {
  recognizer->state->errorCount++;
  FreeReportedErrors(recognizer->state);
}

// The runtime's recovery, with the token table and the follow stack. The original allocates
// bitsets, exception records and token factories for each error, and accesses tokens through
// function pointers.

TokenStream& StreamOf(pANTLR3_BASE_RECOGNIZER recognizer) {
  return TokenStream::Of(static_cast<pANTLR3_PARSER>(recognizer->super)->tstream);
}

pANTLR3_BITSET CombineFollows(pANTLR3_BASE_RECOGNIZER recognizer, ANTLR3_BOOLEAN) {
  const FollowStack::Union all = StreamOf(recognizer).Follows().All();
  const pANTLR3_BITSET set = antlr3BitsetNew(0);  // Has room for 512 bits.
  if (set == nullptr) return nullptr;
  for (std::size_t word = 0; word < all.size(); ++word) set->blist.bits[word] = all[word];
  return set;
}

void Recover(pANTLR3_BASE_RECOGNIZER recognizer) {
  pANTLR3_RECOGNIZER_SHARED_STATE state = recognizer->state;
  TokenTable& tokens = StreamOf(recognizer).Table();
  // A second error at the same token: drop the token, to guarantee progress.
  if (state->lastErrorIndex == static_cast<ANTLR3_MARKER>(tokens.Position())) tokens.Consume();
  state->lastErrorIndex = static_cast<ANTLR3_MARKER>(tokens.Position());
  const FollowStack::Union all = StreamOf(recognizer).Follows().All();
  while (tokens.LA(1) != ANTLR3_TOKEN_EOF && !FollowStack::Has(all, tokens.LA(1))) {
    tokens.Consume();
  }
  state->error = ANTLR3_FALSE;
  state->failed = ANTLR3_FALSE;
}

// Returns whether the next token can follow the missing one. `follow` is the follow set within the
// rule; if it contains the end of the rule, the follow sets of the enclosing rules count, too.
bool IsMissing(TokenStream& stream, pANTLR3_BITSET_LIST follow) {
  if (follow == nullptr) return false;
  FollowStack::Union viable{};
  FollowStack::Add(viable, *follow);
  if (FollowStack::Has(viable, ANTLR3_EOR_TOKEN_TYPE)) {
    FollowStack::Remove(viable, ANTLR3_EOR_TOKEN_TYPE);
    const FollowStack::Union all = stream.Follows().All();
    for (std::size_t word = 0; word < all.size(); ++word) viable[word] |= all[word];
  }
  return FollowStack::Has(viable, stream.Table().LA(1)) ||
         FollowStack::Has(viable, ANTLR3_EOR_TOKEN_TYPE);
}

// Generated code writes to the record of an error, but a silenced parser never reads it.
void KeepSharedException(pANTLR3_EXCEPTION) {}
pANTLR3_EXCEPTION SharedException() {
  static ANTLR3_EXCEPTION exception;
  exception.freeEx = KeepSharedException;
  exception.nextException = nullptr;
  return &exception;
}

void RaiseError(pANTLR3_BASE_RECOGNIZER recognizer) {
  recognizer->state->exception = SharedException();
  recognizer->state->error = ANTLR3_TRUE;
}

void* RecoverFromMismatchedToken(pANTLR3_BASE_RECOGNIZER recognizer, ANTLR3_UINT32 type,
                                 pANTLR3_BITSET_LIST follow) {
  pANTLR3_RECOGNIZER_SHARED_STATE state = recognizer->state;
  TokenStream& stream = StreamOf(recognizer);
  TokenTable& tokens = stream.Table();
  pANTLR3_COMMON_TOKEN matched = nullptr;
  state->exception = SharedException();
  if (tokens.LA(2) == type) {
    tokens.Consume();
    matched = tokens.LT(1);
    tokens.Consume();
  } else if (IsMissing(stream, follow)) {
    matched = tokens.MadeUp(type, stream.MissingText(type, state->tokenNames[type]));
  } else {
    state->error = ANTLR3_TRUE;
    return nullptr;
  }
  recognizer->reportError(recognizer);
  state->error = ANTLR3_FALSE;
  return matched;
}

}  // namespace

void dummyErrorDumper(pANTLR3_BASE_RECOGNIZER, pANTLR3_UINT8*) {}

void FreeReportedErrors(pANTLR3_RECOGNIZER_SHARED_STATE state) {
  pANTLR3_EXCEPTION exception = state->exception;
  while (exception != nullptr) {
    pANTLR3_EXCEPTION next = exception->nextException;
    exception->freeEx(exception);
    exception = next;
  }
  state->exception = nullptr;
}

void SilenceErrors(pANTLR3_BASE_RECOGNIZER recognizer) {
  recognizer->displayRecognitionError = dummyErrorDumper;
  recognizer->reportError =
      recognizer->type == ANTLR3_TYPE_LEXER ? CountLexerError : CountParserError;
}

void RecoverByFollowStack(pANTLR3_BASE_RECOGNIZER parser, bool isSilent) {
  parser->combineFollows = CombineFollows;
  parser->recover = Recover;
  if (!isSilent) return;
  parser->exConstruct = RaiseError;
  parser->recoverFromMismatchedToken = RecoverFromMismatchedToken;
}

void ResetState(pANTLR3_RECOGNIZER_SHARED_STATE state) {
  FreeReportedErrors(state);
  state->error = ANTLR3_FALSE;
  state->failed = ANTLR3_FALSE;
  state->errorRecovery = ANTLR3_FALSE;
  state->errorCount = 0;
  state->lastErrorIndex = -1;
  state->backtracking = 0;
}

void FailForDepth(pANTLR3_BASE_RECOGNIZER recognizer) {
  pANTLR3_RECOGNIZER_SHARED_STATE state = recognizer->state;
  if (state->backtracking > 0) {
    state->failed = ANTLR3_TRUE;
    return;
  }
  recognizer->exConstruct(recognizer);
  state->exception->type = ANTLR3_NO_VIABLE_ALT_EXCEPTION;
  state->exception->message = const_cast<char*>("nested too deeply");
}

}  // namespace vexltags
