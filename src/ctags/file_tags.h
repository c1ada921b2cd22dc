// SPDX-License-Identifier: MIT
// The tags of a file as callers of ctags expect them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "ctags/languages.h"

namespace vexltags::ctags {

/// A tag with its texts.
struct Tag {
  std::string name;            ///< An identifier, an operator, or a selector.
  const Kind* kind = nullptr;  ///< One of the kinds of the file's language, or `InputFileKind`.
  std::int32_t line = 0;       ///< 1-based.
  std::string_view text;       ///< The source line; a view into the text of the file.
  std::size_t offset = 0;      ///< Of `text` in the file.
  std::string_view scopeKind;  ///< The word of a kind; empty without a scope.
  std::string scope;           ///< The names of the scopes, joined by `Language::separator`.
  std::string typeref;         ///< Such as "struct:geo::Point".
  std::string signature;       ///< "(int a)"; empty if there is none or if it is not known.
  std::string_view access;     ///< "public", "protected" or "private"; empty if it is not known.
  std::int32_t end = 0;        ///< The last line of the definition; 0 if it is not known.
  std::string category;        ///< The Objective-C category; empty if there is none.
  bool isFileScope = false;    ///< Only its file can use it.
  bool isAnonymous = false;    ///< A type without a name.
  bool isQualified = false;    ///< An additional tag whose name has the scopes.
};

/// What of tags takes time to find, and is left out unless it is asked for.
struct Details {
  bool signatures = false;
  bool access = false;  ///< Of C++.
  bool ends = false;    ///< Of the C family.
};

/// Returns the language of a C-family file with these lines of `vexltags`: Objective-C if they have
/// a class or protocol of it, else `language`. Other languages are returned as they are.
const Language& LanguageOfTags(const Language& language, const std::vector<std::string>& lines);

/// Converts `lines`, the lines that `vexltags` wrote for a file with this `text`, in their order,
/// which the result keeps:
///   - kinds are those of `language`; tags of other kinds are left out;
///   - names have no template arguments, protocols, labels or categories;
///   - the kind of a scope is that of its tag in the file, where there is one;
///   - each anonymous type with members has a tag, before the first of these.
/// A line without a name is left out. The tags have views into `text`. `isHeader` decides what
/// other files can use.
std::vector<Tag> MakeTags(const std::vector<std::string>& lines, std::string_view text,
                          const Language& language, bool isHeader, const Details& details);

/// The kind of the tag that a source file itself can have.
const Kind& InputFileKind();

}  // namespace vexltags::ctags
