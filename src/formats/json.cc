// SPDX-License-Identifier: MIT
// Fills in a JSON object in the order of Universal Ctags.
#include "formats/json.h"

#include <nlohmann/json.hpp>

#include "formats/kind_names.h"
#include "formats/readable_text.h"
#include "formats/tags_line.h"

namespace vexltags {

void AppendJson(std::string& out, const TagRecord& tag) {
  nlohmann::ordered_json object;
  const auto put = [&object](const char* key, std::string_view value) {
    if (!value.empty()) object[key] = value;
  };
  object["_type"] = "tag";
  object["name"] = tag.name;
  object["path"] = tag.path;
  if (tag.line >= 1 && !ReadableText(tag.text).empty()) {
    std::string pattern;
    AppendSearchPattern(pattern, tag.text);
    object["pattern"] = pattern;
  }
  put("language", tag.language);
  if (tag.line >= 1) object["line"] = tag.line;
  put("typeref", tag.typeref);
  put("kind", KindName(tag.kind, tag.language));
  put("scope", tag.scope);
  put("scopeKind", tag.scopeKind);
  out += object.dump(-1, ' ', false, nlohmann::ordered_json::error_handler_t::replace);
  out += '\n';
}

}  // namespace vexltags
