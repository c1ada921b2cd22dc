// SPDX-License-Identifier: MIT
// Reads the text of tokens without allocating strings in the runtime.
#include "engine/std_string.h"

namespace vexltags {

namespace {

std::string_view View(pANTLR3_STRING text) {
  if (text == nullptr || text->chars == nullptr) return {};
  return {reinterpret_cast<const char*>(text->chars), text->len};
}

// Returns whether the token's text is a range of an input with one-byte characters. `stop` is the
// last character, inclusive. The runtime treats the start values 0 and -1 specially.
bool SpansBytes(const ANTLR3_COMMON_TOKEN& token) {
  return token.textState == ANTLR3_TEXT_NONE && token.input != nullptr &&
         token.input->encoding == ANTLR3_ENC_8BIT && token.start != 0 &&
         token.start != static_cast<ANTLR3_MARKER>(-1);
}

}  // namespace

stdString::stdString(pANTLR3_STRING text) : std::string(View(text)) {}

stdString& stdString::operator=(const std::string& text) {
  assign(text);
  return *this;
}

stdString& stdString::operator=(std::string&& text) noexcept {
  assign(std::move(text));
  return *this;
}

stdString& stdString::operator=(const char* text) {
  assign(text);
  return *this;
}

stdString& stdString::operator=(pANTLR3_STRING text) {
  assign(View(text));
  return *this;
}

stdString& stdString::operator+=(const std::string& text) {
  append(text);
  return *this;
}

stdString& stdString::operator+=(const char* text) {
  append(text);
  return *this;
}

std::optional<std::string_view> TokenView(pANTLR3_COMMON_TOKEN token) {
  if (token == nullptr) return std::nullopt;
  // All cases but the last do what the runtime does, without allocating a string object per call.
  if (token->textState == ANTLR3_TEXT_NONE && token->type == ANTLR3_TOKEN_EOF) return "<EOF>";
  if (SpansBytes(*token)) {
    const ANTLR3_MARKER end = token->stop + 1;
    if (end <= token->start) return std::string_view();
    // The runtime stores addresses as integers.
    const char* first = reinterpret_cast<const char*>(token->start);  // NOLINT(*-no-int-to-ptr)
    return std::string_view(first, static_cast<std::size_t>(end - token->start));
  }
  if (token->textState == ANTLR3_TEXT_CHARP) {
    return std::string_view(reinterpret_cast<const char*>(token->tokText.chars));
  }
  const pANTLR3_STRING text = token->getText(token);
  if (text == nullptr) return std::nullopt;
  return View(text);
}

bool TokenText(pANTLR3_COMMON_TOKEN token, std::string& text) {
  const std::optional<std::string_view> view = TokenView(token);
  if (view) text = *view;
  return view.has_value();
}

std::string TokenString(pANTLR3_COMMON_TOKEN token) {
  return std::string(TokenView(token).value_or(std::string_view()));
}

int TokenLine(pANTLR3_COMMON_TOKEN token) {
  return token == nullptr ? -1 : static_cast<int>(token->line);
}

}  // namespace vexltags
