// SPDX-License-Identifier: MIT
// Takes a tag line apart.
#include "formats/tag_record.h"

#include "portable/swift_scopes.h"
#include "portable/tag_line.h"

namespace vexltags {
namespace {

constexpr std::string_view kTyperef = "typeref:";

}  // namespace

bool ReadRawTag(std::string_view line, TagRecord& tag) {
  TagLine parts;
  if (ParseTagLine(line, parts) != LineForm::kTag || !parts.numbered) return false;
  const std::string_view kind = Field(parts.fields, 0);
  if (kind.size() != 1) return false;
  tag.name = parts.name;
  tag.line = static_cast<std::int32_t>(LineNumber(parts));
  tag.kind = kind[0];
  tag.scopeKind = tag.scope = tag.typeref = std::string_view();
  for (int index = 1;; ++index) {
    const std::string_view field = Field(parts.fields, index);
    if (field.empty()) return true;
    if (field.starts_with(kTyperef)) {
      tag.typeref = field.substr(kTyperef.size());
    } else if (HasKey(field)) {
      const std::size_t colon = field.find(':');
      tag.scopeKind = field.substr(0, colon);
      tag.scope = field.substr(colon + 1);
    } else {
      tag.scope = field;
    }
  }
}

}  // namespace vexltags
