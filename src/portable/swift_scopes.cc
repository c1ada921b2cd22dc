// SPDX-License-Identifier: MIT
// Records the types of Swift files by their full names.
#include "portable/swift_scopes.h"

#include <cstddef>
#include <iterator>

#include "output/kinds.h"

namespace vexltags {
namespace {

/// The key of a scope with this kind letter; empty if the letter is not that of a type.
std::string_view KeyOfLetter(char letter) {
  if (letter == kind_letter::kEnum) return ScopeKindName(kEnumKind);
  for (const long kind : {kClassKind, kStructKind, kProtocolKind, kExtensionKind}) {
    if (letter == ScopeKindLetter(kind)) return ScopeKindName(kind);
  }
  return "";
}

bool IsLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }

std::string FullName(std::string_view path, std::string_view scope, std::string_view name) {
  std::string result(path);
  result += '\t';
  result += scope;
  if (!scope.empty() && !name.empty()) result += '.';
  result += name;
  return result;
}

}  // namespace

bool IsSwift(std::string_view path) { return path.ends_with(".swift"); }

bool HasKey(std::string_view field) {
  std::size_t length = 0;
  while (length < field.size() && IsLetter(field[length])) ++length;
  return length > 0 && length < field.size() && field[length] == ':';
}

void SwiftScopes::Add(std::string_view path, const TagLine& tag) {
  const std::string_view kind = Field(tag.fields, 0);
  if (kind.size() != 1) return;
  std::string_view scope = Field(tag.fields, 1);
  if (HasKey(scope)) scope.remove_prefix(scope.find(':') + 1);
  Add(path, tag.name, kind[0], scope, LineNumber(tag));
}

void SwiftScopes::Add(std::string_view path, std::string_view name, char kind,
                      std::string_view scope, long line) {
  if (KeyOfLetter(kind).empty()) return;
  types[FullName(path, scope, name)].insert_or_assign(line, kind);
}

std::string_view SwiftScopes::KeyOf(std::string_view path, std::string_view name, long line) const {
  const auto found = types.find(FullName(path, name, ""));
  if (found == types.end()) return "scope";
  const auto behind = found->second.upper_bound(line);
  return behind == found->second.begin() ? "scope" : KeyOfLetter(std::prev(behind)->second);
}

}  // namespace vexltags
