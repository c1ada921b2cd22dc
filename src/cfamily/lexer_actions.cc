// SPDX-License-Identifier: MIT
// Skips dropped text in the lexer's input, and sets the text and channel of tokens.
#include "cfamily/lexer_actions.h"

#include <algorithm>
#include <string>

namespace vexltags {
namespace {

constexpr ANTLR3_UINT32 kHiddenChannel = 99;

const char* Begin(pANTLR3_INPUT_STREAM input) { return static_cast<const char*>(input->data); }

const char* Next(pANTLR3_INPUT_STREAM input) { return static_cast<const char*>(input->nextChar); }

std::string_view WholeText(pANTLR3_INPUT_STREAM input) { return {Begin(input), input->sizeBuf}; }

std::size_t Offset(pANTLR3_INPUT_STREAM input) {
  return static_cast<std::size_t>(Next(input) - Begin(input));
}

// Consumes the input up to `offset`. Line and column are as after consuming each character.
void AdvanceTo(pANTLR3_INPUT_STREAM input, std::size_t offset) {
  const std::string_view eaten = WholeText(input).substr(Offset(input), offset - Offset(input));
  char* const target = static_cast<char*>(input->nextChar) + eaten.size();
  const std::size_t newline = eaten.rfind('\n');
  if (newline == std::string_view::npos) {
    input->charPositionInLine += static_cast<ANTLR3_INT32>(eaten.size());
  } else {
    const std::size_t column = eaten.size() - newline - 1;
    input->line += static_cast<ANTLR3_UINT32>(std::count(eaten.begin(), eaten.end(), '\n'));
    input->charPositionInLine = static_cast<ANTLR3_INT32>(column);
    input->currentLine = target - column;
  }
  input->nextChar = target;
}

using Scan = std::size_t (*)(std::string_view text, std::size_t pos, ConditionalMemo& memo);

bool Eat(pANTLR3_INPUT_STREAM input, ConditionalMemo* memo, Scan scan) {
  ConditionalMemo unshared;
  const std::string_view text = WholeText(input);
  const std::size_t end = scan(text, Offset(input), memo != nullptr ? *memo : unshared);
  const bool closed = end != std::string_view::npos;
  AdvanceTo(input, closed ? end : text.size());
  return closed;
}

/// The character at a place, which the runtime keeps as a number.
pANTLR3_UINT8 CharAt(ANTLR3_MARKER place) {
  return reinterpret_cast<pANTLR3_UINT8>(place);  // NOLINT(*-no-int-to-ptr)
}

}  // namespace

std::string_view CharsAhead(pANTLR3_INPUT_STREAM input) {
  return WholeText(input).substr(Offset(input));
}

bool EatIfZeroBody(pANTLR3_INPUT_STREAM input, ConditionalMemo* memo) {
  return Eat(input, memo, EndOfIfZeroBody);
}

bool EatToEndif(pANTLR3_INPUT_STREAM input, ConditionalMemo* memo) {
  return Eat(input, memo, EndOfConditional);
}

bool CCommentAhead(pANTLR3_INPUT_STREAM input, ConditionalMemo* memo) {
  ConditionalMemo unshared;
  return CharsAhead(input).starts_with("/*") &&
         EndOfComment(WholeText(input), Offset(input), memo != nullptr ? *memo : unshared) !=
             std::string_view::npos;
}

pANTLR3_STRING TextSince(pANTLR3_INPUT_STREAM input, ANTLR3_MARKER start) {
  const pANTLR3_UINT8 begin = CharAt(start);
  const auto size = static_cast<ANTLR3_UINT32>(static_cast<pANTLR3_UINT8>(input->nextChar) - begin);
  return input->strFactory->newPtr(input->strFactory, begin, size);
}

void HideFilteredWord(pANTLR3_LEXER lexer, const TagsLexerState* state) {
  if (state == nullptr || state->filterTokens.empty()) return;
  const auto* const begin =
      reinterpret_cast<const char*>(CharAt(lexer->rec->state->tokenStartCharIndex));
  const std::string word(begin, Next(lexer->input));
  if (state->filterTokens.contains(word.c_str())) lexer->rec->state->channel = kHiddenChannel;
}

}  // namespace vexltags
