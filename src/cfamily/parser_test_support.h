// SPDX-License-Identifier: MIT
// A parser without rules, for tests of what grammars call.
#pragma once

#include <antlr3.h>

#include <vector>

#include "engine/token_table.h"
#include "engine/token_test_support.h"

namespace vexltags {

/// The part of a generated parser that is needed, during a speculative parse over tokens of the
/// given types.
struct FakeParser {
  explicit FakeParser(const std::vector<unsigned>& types) : maker(" "), table(maker.Input()) {
    const auto* at = static_cast<const unsigned char*>(maker.Input()->data);
    for (const unsigned type : types) table.Add(type, at, at, 1);
    table.Finish(1);
    state.backtracking = 1;
    state.errorRecovery = ANTLR3_TRUE;
    recognizer.state = &state;
    parser.rec = &recognizer;
  }

  TokenMaker maker;
  TokenTable table;
  ANTLR3_RECOGNIZER_SHARED_STATE state{};
  ANTLR3_BASE_RECOGNIZER recognizer{};
  ANTLR3_PARSER parser{};
  pANTLR3_PARSER pParser = &parser;
  TokenTable* tokens = &table;
};

}  // namespace vexltags
