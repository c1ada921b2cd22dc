// SPDX-License-Identifier: MIT
// The runtime's token stream over a token table.
#pragma once

#include <map>
#include <string>

#include <antlr3.h>

#include "engine/follow_stack.h"
#include "engine/token_table.h"

namespace vexltags {

/// Lets the runtime's parser functions (recovery, error display) read a `TokenTable` as they would
/// read their own token stream. A position in the stream counts visible tokens only.
class TokenStream {
 public:
  /// `table` and `lexer`, whose token source is named in messages, must outlive the stream.
  TokenStream(TokenTable& table, pANTLR3_LEXER lexer);
  TokenStream(const TokenStream&) = delete;
  TokenStream& operator=(const TokenStream&) = delete;

  /// What a generated parser is built on.
  pANTLR3_COMMON_TOKEN_STREAM Stream() { return &common; }

  TokenTable& Table() { return table; }
  /// The follow sets of the rules that the parser is in.
  FollowStack& Follows() { return follows; }

  /// The text of a token that recovery makes up, by its type and name; lives as long as the stream.
  const char* MissingText(unsigned type, const unsigned char* name);

  /// The stream behind the runtime's interface, which must have come from `Stream`.
  static TokenStream& Of(pANTLR3_TOKEN_STREAM tokens) {
    // The one field of the stream object that nothing of the runtime uses in a parser.
    return *static_cast<TokenStream*>(
        static_cast<pANTLR3_COMMON_TOKEN_STREAM>(tokens->super)->super);
  }

 private:
  TokenTable& table;
  FollowStack follows;
  std::map<unsigned, std::string> missingTexts;
  ANTLR3_COMMON_TOKEN_STREAM common;
  ANTLR3_TOKEN_STREAM tokens;
  ANTLR3_INT_STREAM ints;
};

}  // namespace vexltags
