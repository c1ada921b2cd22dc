// SPDX-License-Identifier: MIT
// Creates tokens of the recogniser runtime for unit tests.
#pragma once

#include <cstdint>
#include <string>

#include <antlr3.h>

namespace vexltags {

/// An input in memory and tokens that span parts of it. Both live as long as the object.
class TokenMaker {
 public:
  explicit TokenMaker(const std::string& text)
      : source(text),
        input(antlr3StringStreamNew(reinterpret_cast<pANTLR3_UINT8>(source.data()), ANTLR3_ENC_8BIT,
                                    static_cast<ANTLR3_UINT32>(source.size()),
                                    reinterpret_cast<pANTLR3_UINT8>(streamName.data()))),
        factory(antlr3TokenFactoryNew(input)) {}
  ~TokenMaker() {
    factory->close(factory);
    input->close(input);
  }
  TokenMaker(const TokenMaker&) = delete;
  TokenMaker& operator=(const TokenMaker&) = delete;

  /// A token of `length` characters from `offset`, as from a lexer.
  pANTLR3_COMMON_TOKEN Span(std::size_t offset, std::size_t length, std::uint32_t line) {
    pANTLR3_COMMON_TOKEN token = Plain(line);
    token->start =
        reinterpret_cast<ANTLR3_MARKER>(input->data) + static_cast<ANTLR3_MARKER>(offset);
    token->stop = token->start + static_cast<ANTLR3_MARKER>(length) - 1;
    return token;
  }
  /// A token with a text of its own, as from error recovery. `text` must outlive the token.
  pANTLR3_COMMON_TOKEN WithText(std::string& text, std::uint32_t line) {
    pANTLR3_COMMON_TOKEN token = Plain(line);
    token->setText8(token, reinterpret_cast<pANTLR3_UINT8>(text.data()));
    return token;
  }
  /// A token without text.
  pANTLR3_COMMON_TOKEN WithoutText(std::uint32_t line) {
    pANTLR3_COMMON_TOKEN token = Plain(line);
    token->input = nullptr;
    return token;
  }
  /// A token without a position.
  pANTLR3_COMMON_TOKEN Plain(std::uint32_t line) {
    pANTLR3_COMMON_TOKEN token = factory->newToken(factory);
    token->setType(token, 5);
    token->setLine(token, line);
    return token;
  }

  pANTLR3_INPUT_STREAM Input() const { return input; }

 private:
  std::string source;
  std::string streamName = "test";
  pANTLR3_INPUT_STREAM input;
  pANTLR3_TOKEN_FACTORY factory;
};

}  // namespace vexltags
