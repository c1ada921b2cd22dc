// SPDX-License-Identifier: MIT
// Tags of the usual form, which can be written without taking their fields apart.
#pragma once

#include <string>
#include <string_view>

#include "formats/tags_line.h"

namespace vexltags {

/// A tag whose line in the tags format has the fields that its raw line has. The views refer to
/// memory of the caller.
struct PlainTag {
  std::string_view name;
  std::string_view path;    ///< As it is to be written; it has no tab and no newline.
  std::string_view number;  ///< The digits of the line.
  std::string_view fields;  ///< The letter of the kind and what follows it.
  std::string_view text;    ///< The source line; all of it is readable, see readable_text.h.
};

/// Splits `rest`, what follows the file field of a raw line, into number and fields of `tag`.
/// Returns false if `AppendTagsLine` would write the fields in another way.
bool ReadPlainTag(std::string_view rest, PlainTag& tag);

/// Does the same for a `rest` that is known to be such.
void SplitPlainTag(std::string_view rest, PlainTag& tag);

/// Appends the line that `AppendTagsLine` appends.
void AppendPlainTag(std::string& out, const PlainTag& tag, Address address);

}  // namespace vexltags
