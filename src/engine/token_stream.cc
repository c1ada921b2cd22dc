// SPDX-License-Identifier: MIT
// Implements the runtime's token stream interface on a token table.
#include "engine/token_stream.h"

#include <cstring>

namespace vexltags {
namespace {

TokenTable& TableOf(pANTLR3_TOKEN_STREAM tokens) { return TokenStream::Of(tokens).Table(); }
TokenTable& TableOf(pANTLR3_INT_STREAM ints) {
  return TableOf(static_cast<pANTLR3_TOKEN_STREAM>(ints->super));
}

ANTLR3_UINT32 La(pANTLR3_INT_STREAM ints, ANTLR3_INT32 k) {
  if (k > 0) return TableOf(ints).LA(k);
  const pANTLR3_COMMON_TOKEN token = TableOf(ints).LT(k);
  return token == nullptr ? ANTLR3_TOKEN_INVALID : token->type;
}
ANTLR3_MARKER Index(pANTLR3_INT_STREAM ints) {
  return static_cast<ANTLR3_MARKER>(TableOf(ints).Position());
}
void Seek(pANTLR3_INT_STREAM ints, ANTLR3_MARKER index) {
  TableOf(ints).Seek(static_cast<std::size_t>(index));
}
ANTLR3_MARKER Mark(pANTLR3_INT_STREAM ints) { return ints->lastMarker = Index(ints); }
void RewindLast(pANTLR3_INT_STREAM ints) { Seek(ints, ints->lastMarker); }
void Release(pANTLR3_INT_STREAM, ANTLR3_MARKER) {}
void Consume(pANTLR3_INT_STREAM ints) { TableOf(ints).Consume(); }
ANTLR3_UINT32 Size(pANTLR3_INT_STREAM ints) {
  return static_cast<ANTLR3_UINT32>(TableOf(ints).Count());
}
pANTLR3_COMMON_TOKEN Lt(pANTLR3_TOKEN_STREAM tokens, ANTLR3_INT32 k) {
  return TableOf(tokens).LT(k);
}
pANTLR3_COMMON_TOKEN Get(pANTLR3_TOKEN_STREAM tokens, ANTLR3_UINT32 index) {
  return TableOf(tokens).Token(index);
}

}  // namespace

TokenStream::TokenStream(TokenTable& table, pANTLR3_LEXER lexer) : table(table) {
  std::memset(&common, 0, sizeof common);
  std::memset(&tokens, 0, sizeof tokens);
  std::memset(&ints, 0, sizeof ints);
  common.tstream = &tokens;
  common.super = this;
  common.channel = ANTLR3_TOKEN_DEFAULT_CHANNEL;
  tokens.super = &common;
  tokens.istream = &ints;
  tokens.tokenSource = lexer->rec->state->tokSource;
  tokens._LT = Lt;
  tokens.get = Get;
  ints.type = ANTLR3_TOKENSTREAM;
  ints.super = &tokens;
  ints._LA = La;
  ints.consume = Consume;
  ints.mark = Mark;
  ints.rewind = Seek;
  ints.rewindLast = RewindLast;
  ints.release = Release;
  ints.seek = Seek;
  ints.index = Index;
  ints.size = Size;
}

const char* TokenStream::MissingText(unsigned type, const unsigned char* name) {
  std::string& text = missingTexts[type];
  if (text.empty()) text = "<missing " + std::string(reinterpret_cast<const char*>(name)) + ">";
  return text.c_str();
}

}  // namespace vexltags
