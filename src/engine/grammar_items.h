// SPDX-License-Identifier: MIT
// Implements `ItemParser` for a generated parser.
#pragma once

#include <any>

#include "engine/reading.h"

namespace vexltags {

/// Lets the generated parser of `Grammar` (see `Recognizers`) read runs of items.
template <class Grammar>
class GrammarItems final : public ItemParser {
 public:
  /// `parser` must be ready to read its first token.
  explicit GrammarItems(typename Grammar::Parser* parser) : parser(parser) {}

  TokenTable& Tokens() override { return *parser->tokens; }

  void ReadItems() override {
    if (!StopsAtTimeLimit()) Grammar::ReadItems(parser);
  }

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
