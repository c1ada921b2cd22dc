// SPDX-License-Identifier: MIT
// Alternates between the scanner and the generated lexer.
#include "engine/token_feed.h"

#include "engine/std_string.h"

namespace vexltags {
namespace {

/// Reads one token with the generated lexer, like the runtime's loop but without a token object.
void Step(pANTLR3_LEXER lexer, TokenTable& table) {
  pANTLR3_RECOGNIZER_SHARED_STATE state = lexer->rec->state;
  pANTLR3_INPUT_STREAM input = lexer->input;
  const auto* start = static_cast<const unsigned char*>(input->nextChar);
  state->channel = ANTLR3_TOKEN_DEFAULT_CHANNEL;
  state->tokenStartCharIndex = reinterpret_cast<ANTLR3_MARKER>(start);
  state->tokenStartCharPositionInLine = input->charPositionInLine;
  state->tokenStartLine = static_cast<ANTLR3_INT32>(input->line);
  state->text = nullptr;
  state->token = nullptr;
  state->error = ANTLR3_FALSE;
  state->failed = ANTLR3_FALSE;

  lexer->mTokens(lexer->ctx);

  if (state->error == ANTLR3_TRUE) {
    state->failed = ANTLR3_TRUE;
    lexer->rec->reportError(lexer->rec);
    lexer->recover(lexer);
    table.AddDropped(start, static_cast<const unsigned char*>(input->nextChar));
    return;
  }
  const bool isVisible = state->channel == ANTLR3_TOKEN_DEFAULT_CHANNEL;
  if (table.KeepsPlaces()) table.AddPlace(state->tokenStartCharPositionInLine, isVisible);
  if (!isVisible) {
    table.AddHidden(state->type);
  } else {
    const auto* end = static_cast<const unsigned char*>(input->nextChar);
    if (state->text == nullptr) {
      table.Add(state->type, start, end, state->tokenStartLine);
    } else {
      table.Add(state->type, start, end, state->tokenStartLine, stdString(state->text));
    }
  }
}

}  // namespace

void FillTokenTable(pANTLR3_LEXER lexer, Scanner scan, TokenTable& table) {
  pANTLR3_INPUT_STREAM input = lexer->input;
  const auto* begin = static_cast<const unsigned char*>(input->data);
  ScanCursor cursor{
      begin, begin + input->sizeBuf, begin, input->line, begin - input->charPositionInLine, 0};
  for (;;) {
    if (scan != nullptr) {
      scan(cursor, table);
      input->nextChar = const_cast<unsigned char*>(cursor.at);
      input->line = cursor.line;
      input->charPositionInLine = static_cast<ANTLR3_INT32>(cursor.at - cursor.columnZero);
    }
    if (cursor.at >= cursor.end) break;
    Step(lexer, table);
    cursor.at = static_cast<const unsigned char*>(input->nextChar);
    cursor.line = input->line;
    cursor.columnZero = cursor.at - input->charPositionInLine;
  }
  lexer->rec->state->errorCount += cursor.errors;
  table.Finish(input->line);
}

}  // namespace vexltags
