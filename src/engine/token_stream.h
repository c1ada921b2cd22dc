// SPDX-License-Identifier: MIT
// Implements the runtime's token stream interface on a token table.
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
  /// `table` and `lexer` must outlive the stream. Messages name the token source of `lexer`.
  TokenStream(TokenTable& table, pANTLR3_LEXER lexer);
  TokenStream(const TokenStream&) = delete;
  TokenStream& operator=(const TokenStream&) = delete;

  /// Returns the stream from which a generated parser is constructed.
  pANTLR3_COMMON_TOKEN_STREAM Stream() { return &common; }

  TokenTable& Table() { return table; }
  /// Returns the follow sets of the active rules.
  FollowStack& Follows() { return follows; }

  /// Returns the text of an inserted token, given its type and name. It lives as long as the
  /// stream.
  const char* MissingText(unsigned type, const unsigned char* name);

  /// Returns the object that implements `tokens`, which must originate from `Stream`.
  static TokenStream& Of(pANTLR3_TOKEN_STREAM tokens) {
    // The only field of the stream object that the runtime never uses in a parser.
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
