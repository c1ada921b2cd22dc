// SPDX-License-Identifier: MIT
// Determines the kind of the Swift type that encloses a tag, from the types' own tags.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <unordered_map>

#include "portable/tag_line.h"

namespace vexltags {

/// Returns whether `path` has the suffix of a Swift file.
bool IsSwift(std::string_view path);

/// Returns whether `field` has a key, that is, begins with letters and a colon.
bool HasKey(std::string_view field);

/// The types in all Swift files of a tags file.
class SwiftScopes {
 public:
  /// Records `tag` if it is a type: a class, struct, enum, protocol or extension. `path` identifies
  /// its file and must be spelled the same for all tags of the file.
  void Add(std::string_view path, const TagLine& tag);
  /// The same for a tag that is already taken apart; `scope` has no key.
  void Add(std::string_view path, std::string_view name, char kind, std::string_view scope,
           long line);

  /// Returns the key for the scope `name` of a tag on 1-based `line` of the file `path`: the kind
  /// of the last type of that name that begins before or on that line, or "scope" if there is none.
  std::string_view KeyOf(std::string_view path, std::string_view name, long line) const;

 private:
  /// For each line, the kind letter of the last type that begins on it.
  using Letters = std::map<long, char>;
  /// The key is the path, a tab, and the dotted name of the type.
  std::unordered_map<std::string, Letters> types;
};

}  // namespace vexltags
