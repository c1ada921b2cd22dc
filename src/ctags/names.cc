// SPDX-License-Identifier: MIT
// Names as callers of ctags expect them: identifiers that occur in the source.
#include "ctags/names.h"

#include <algorithm>
#include <cstddef>

namespace vexltags::ctags {
namespace {

bool IsWordCharacter(char c) {
  return c == '_' || (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

bool IsOperator(std::string_view name) {
  constexpr std::string_view kWord = "operator";
  if (!name.starts_with(kWord) || name.size() == kWord.size()) return false;
  return !IsWordCharacter(name[kWord.size()]);
}

/// Removes what is in angle brackets; returns `text` as it is if they do not match.
std::string WithoutAngles(std::string_view text) {
  std::string plain;
  int depth = 0;
  for (const char c : text) {
    if (c == '<') {
      ++depth;
    } else if (c == '>') {
      if (--depth < 0) return std::string(text);
    } else if (depth == 0) {
      plain += c;
    }
  }
  return depth == 0 && !plain.empty() ? plain : std::string(text);
}

}  // namespace

std::string PlainName(std::string_view name, const Language& language) {
  switch (IndexOf(language)) {
    case kPython:
      return std::string(name);
    case kSwift: {
      const std::size_t labels = name.find('(');
      return std::string(labels == 0 ? name : name.substr(0, labels));
    }
    case kObjectiveC: {
      const std::size_t category = name.find('(');
      if (category != 0 && !IsOperator(name)) name = name.substr(0, category);
      // After the parameters of a method with a variable number of them.
      if (name.ends_with(", ...")) name.remove_suffix(5);
      break;
    }
    default:
      break;
  }
  return IsOperator(name) ? std::string(name) : WithoutAngles(name);
}

std::string PlainScope(std::string_view scope, const Language& language) {
  if (IndexOf(language) == kPython || IndexOf(language) == kSwift) return std::string(scope);
  if (IndexOf(language) == kObjectiveC) scope = scope.substr(0, scope.find('('));
  return WithoutAngles(scope);
}

bool IsQualifiedIn(std::string_view line, std::string_view name, std::string_view scope) {
  const std::size_t last = scope.rfind("::");
  const std::string_view inner = last == std::string_view::npos ? scope : scope.substr(last + 2);
  const std::string_view word = name.substr(0, name.find(' '));
  if (inner.empty() || word.empty()) return false;
  for (std::size_t at = line.find(word); at != std::string_view::npos;
       at = line.find(word, at + 1)) {
    std::string_view before = line.substr(0, at);
    const auto trim = [&before] {
      while (before.ends_with(' ') || before.ends_with('\t')) before.remove_suffix(1);
    };
    trim();
    if (!before.ends_with("::")) continue;
    before.remove_suffix(2);
    trim();
    if (before.ends_with('>')) {
      int depth = 0;
      do {
        if (before.ends_with('>')) ++depth;
        if (before.ends_with('<')) --depth;
        before.remove_suffix(1);
      } while (depth > 0 && !before.empty());
      trim();
    }
    if (!before.ends_with(inner)) continue;
    before.remove_suffix(inner.size());
    if (before.empty() || !IsWordCharacter(before.back())) return true;
  }
  return false;
}

std::string CategoryOf(std::string_view name, const Language& language) {
  if (IndexOf(language) != kObjectiveC || IsOperator(name)) return {};
  const std::size_t start = name.find('(');
  const std::size_t end = name.find(')', std::min(start, name.size()));
  if (start == std::string_view::npos || end == std::string_view::npos) return {};
  return std::string(name.substr(start + 1, end - start - 1));
}

std::string LabelsOf(std::string_view name, const Language& language) {
  const std::size_t start = name.find('(');
  if (IndexOf(language) != kSwift || start == std::string_view::npos || start == 0) return {};
  if (!name.ends_with(')') || name.size() == start + 2) return {};
  const std::string_view labels = name.substr(start + 1, name.size() - start - 2);
  std::string signature = "(";
  for (std::size_t at = 0; at < labels.size();) {
    const std::size_t end = std::min(labels.find(',', at), labels.size());
    signature += labels.substr(at, end - at);
    if (!signature.ends_with(':')) signature += ':';
    at = end + 1;
  }
  return signature + ")";
}

}  // namespace vexltags::ctags
