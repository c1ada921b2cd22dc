// SPDX-License-Identifier: MIT
// Converts the runtime's strings and tokens to standard strings.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include <antlr3.h>

namespace vexltags {

/// A standard string that converts implicitly from the runtime's string object. A null runtime
/// string becomes an empty string.
class stdString : public std::string {
 public:
  stdString() = default;
  // Implicit conversions, so that an action can assign any kind of string.
  stdString(const std::string& text) : std::string(text) {}
  stdString(std::string&& text) noexcept : std::string(std::move(text)) {}
  stdString(const char* text) : std::string(text) {}
  stdString(pANTLR3_STRING text);

  stdString& operator=(const std::string& text);
  stdString& operator=(std::string&& text) noexcept;
  stdString& operator=(const char* text);
  stdString& operator=(pANTLR3_STRING text);

  stdString& operator+=(const std::string& text);
  stdString& operator+=(const char* text);
};

/// Returns the text of `token` as the runtime reports it: its replaced text, "<EOF>" at the end of
/// the file, or else the input characters that it spans; nothing for a null token or one without
/// text. The characters belong to the input or the runtime and live as long as the recogniser.
std::optional<std::string_view> TokenView(pANTLR3_COMMON_TOKEN token);

/// Copies the text of `token` to `text`. Returns false and leaves `text` unchanged if there is
/// none.
bool TokenText(pANTLR3_COMMON_TOKEN token, std::string& text);

/// Returns the text of `token`; empty for a null token or one without text.
std::string TokenString(pANTLR3_COMMON_TOKEN token);

/// Returns the 1-based source line of `token`, or -1 for a null token.
int TokenLine(pANTLR3_COMMON_TOKEN token);

}  // namespace vexltags
