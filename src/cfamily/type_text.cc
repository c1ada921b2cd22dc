// SPDX-License-Identifier: MIT
// Joins, splits and classifies the text of types and names.
#include "cfamily/type_text.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <string_view>
#include <utility>

#include "base/text.h"

namespace vexltags {
namespace {

constexpr const char* kAnonymousParameter = "anon_value";

bool IsLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_'; }
bool IsDigit(char c) { return c >= '0' && c <= '9'; }

}  // namespace

bool LooksLikeSimpleTypeName(const std::string& text) {
  return !text.empty() && IsLetter(text.front()) &&
         std::all_of(text.begin(), text.end(), [](char c) { return IsLetter(c) || IsDigit(c); });
}

bool IsBuiltInType(const std::string& text) {
  static constexpr std::string_view kWords[] = {
      "char", "char16_t", "char32_t", "wchar_t", "bool",   "short", "int",
      "long", "signed",   "unsigned", "float",   "double", "void",
  };
  return std::find(std::begin(kWords), std::end(kWords), text) != std::end(kWords);
}

bool IsWellKnownType(const std::string& text) {
  return text == "size_t" || text == "ssize_t" || text == "ptrdiff_t";
}

void SplitNameQualifier(const std::string& text, std::string& name, std::string& qualifier) {
  const std::size_t colons = text.rfind("::");
  const bool isQualified = colons != std::string::npos && colons + 2 < text.size();
  std::string before = isQualified ? text.substr(0, colons) : std::string();
  name = isQualified ? text.substr(colons + 2) : text;
  qualifier = std::move(before);
}

std::string AppendQualifier(const std::string& text, const std::string& qualifier, bool always) {
  std::string result = text;
  if (!result.empty() && (always || !qualifier.empty())) result += "::";
  return result += qualifier;
}

std::string TemplateArgumentText(std::string text) {
  ReplaceAll(text, "\n", " ");
  ReplaceAll(text, "\r", " ");
  return text;
}

std::string TemplateParameterText(const std::string& name) {
  return name.empty() ? kAnonymousParameter : name;
}

std::string ValueParameterText(const std::string& type, const std::string& name) {
  if (!name.empty()) return name;
  const bool mayBeName =
      LooksLikeSimpleTypeName(type) && !IsBuiltInType(type) && !IsWellKnownType(type);
  return mayBeName ? type : kAnonymousParameter;
}

}  // namespace vexltags
