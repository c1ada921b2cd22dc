// SPDX-License-Identifier: MIT
// Finds the kind of the Swift type that a tag stands in, from the tags of the types themselves.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <unordered_map>

#include "portable/tag_line.h"

namespace vexltags {

/// True for a tag of a Swift file, by the path's suffix.
bool IsSwift(std::string_view path);

/// True when `field` has a key: letters and a colon at its front.
bool HasKey(std::string_view field);

/// The types of all Swift files of a tags file.
class SwiftScopes {
 public:
  /// Remembers `tag` if it is a type: a class, struct, enum, protocol or extension. `path` is that
  /// of its file, in whatever form, as long as it is the same for all tags of the file.
  void Add(std::string_view path, const TagLine& tag);

  /// The key for the scope `name` of a tag on 1-based `line` of the file `path`: the kind of the
  /// type of that name that begins last before the tag or on its line. "scope" if there is none.
  std::string_view KeyOf(std::string_view path, std::string_view name, long line) const;

 private:
  /// The letter of the last type that begins on a line, by line.
  using Letters = std::map<long, char>;
  /// By path, a tab, and the dotted name of the type.
  std::unordered_map<std::string, Letters> types;
};

}  // namespace vexltags
