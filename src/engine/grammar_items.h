// SPDX-License-Identifier: MIT
// Implements `ItemParser` for a generated parser.
#pragma once

#include <any>

#include "engine/follow_stack.h"
#include "engine/parser_ops.h"
#include "engine/reading.h"

namespace vexltags {

/// Drives the generated parser of `Grammar` (see `Recognizers`) item by item.
template <class Grammar>
class GrammarItems final : public ItemParser {
 public:
  /// `parser` must be ready to read its first token.
  explicit GrammarItems(typename Grammar::Parser* parser) : parser(parser) {}

  TokenTable& Tokens() override { return *parser->tokens; }

  void ReadItems() override {
    if (!StopsAtTimeLimit()) Grammar::ReadItems(parser);
  }

  bool ReadItem() override {
    if (StopsAtTimeLimit()) return false;
    const pANTLR3_RECOGNIZER_SHARED_STATE state = parser->pParser->rec->state;
    state->errorRecovery = ANTLR3_FALSE;  // So that an error directly after another one counts.
    const ANTLR3_UINT32 errorsBefore = state->errorCount;
    // Any token can follow an item, so recovery stops at the error.
    parser->follows->Push(FollowStack::AllTypes());
    Grammar::ReadItem(parser);
    parser->follows->Pop();
    return state->errorCount == errorsBefore;
  }

  bool ItemParses() override { return !StopsAtTimeLimit() && Grammar::TryItem(parser).parses; }

 private:
  std::any AnyTagBuilder() override { return parser->builder; }

  /// If the file has exceeded its time limit, seeks to its end and returns true. All rules would
  /// fail.
  bool StopsAtTimeLimit() {
    if (!parser->fileState->Aborted()) return false;
    Tokens().Seek(Tokens().Count());
    return true;
  }

  typename Grammar::Parser* parser;
};

}  // namespace vexltags
