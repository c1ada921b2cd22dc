// SPDX-License-Identifier: MIT
// What takes the place of the runtime's own operations where an error is met.
#include "parserstate/error_recovery.h"

#include "parserstate/follow_stack.h"
#include "parserstate/token_stream.h"

namespace vexltags {
namespace {

// The runtime's two ways to report, a parser's and a lexer's, without the display.

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

pANTLR3_BITSET CombineFollows(pANTLR3_BASE_RECOGNIZER recognizer, ANTLR3_BOOLEAN) {
  const pANTLR3_TOKEN_STREAM tokens = static_cast<pANTLR3_PARSER>(recognizer->super)->tstream;
  const FollowStack::Union all = TokenStream::Of(tokens).Follows().All();
  const pANTLR3_BITSET set = antlr3BitsetNew(0);  // Has room for 512 bits.
  if (set == nullptr) return nullptr;
  for (std::size_t word = 0; word < all.size(); ++word) set->blist.bits[word] = all[word];
  return set;
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

void RecoverByFollowStack(pANTLR3_BASE_RECOGNIZER parser) {
  parser->combineFollows = CombineFollows;
}

void ResetState(pANTLR3_RECOGNIZER_SHARED_STATE state) {
  FreeReportedErrors(state);
  state->error = ANTLR3_FALSE;
  state->failed = ANTLR3_FALSE;
  state->errorRecovery = ANTLR3_FALSE;
  state->errorCount = 0;
  state->lastErrorIndex = -1;
  state->backtracking = 0;
  // Made by the first token that recovery inserts, over the strings of the file it was in.
  if (state->tokFactory != nullptr && state->tokSource == nullptr) {
    state->tokFactory->close(state->tokFactory);
    state->tokFactory = nullptr;
  }
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
