// SPDX-License-Identifier: MIT
// Writes tags in the forms that callers of ctags read.
#include "ctags/writers.h"

#include <algorithm>
#include <cstddef>
#include <nlohmann/json.hpp>
#include <optional>

#include "base/version.h"
#include "portable/portable_path.h"

namespace vexltags::ctags {
namespace {

constexpr char kHexDigits[] = "0123456789abcdef";

bool NeedsEscape(char c) { return static_cast<unsigned char>(c) < ' ' || c == '\x7f' || c == '\\'; }

/// Returns an Ex search for the line of `tag`. Readers take `;"` and a tab for its end, so it ends
/// before these.
std::string PatternOf(const Tag& tag) {
  std::string pattern;
  AppendSearchPattern(pattern, tag.text);
  if (const std::size_t end = pattern.find(";\"\t"); end != std::string::npos) {
    pattern.resize(end);
    pattern += '/';
  }
  return pattern;
}

std::string AddressOf(const Tag& tag, const Settings& settings) {
  std::string number = std::to_string(tag.line);
  std::string pattern = PatternOf(tag);
  // An empty search would find the next line.
  const bool hasPattern = pattern != "/^/" && pattern != "/^$/" && tag.kind != &InputFileKind();
  if (settings.address == Address::kLine || !hasPattern) return number;
  if (settings.address == Address::kPattern) return pattern;
  return std::to_string(tag.line - 1) + ";" + pattern;
}

std::string ExtrasOf(const Tag& tag) {
  std::string extras;
  const auto add = [&extras](bool on, const char* name) {
    if (!on) return;
    if (!extras.empty()) extras += ',';
    extras += name;
  };
  add(tag.isFileScope, "fileScope");
  add(tag.kind == &InputFileKind(), "inputFile");
  add(tag.isQualified, "qualified");
  add(tag.isAnonymous, "anonymous");
  return extras;
}

void AppendField(std::string& out, std::string_view key, std::string_view value) {
  out += '\t';
  out += key;
  out += ':';
  AppendEscaped(out, value);
}

/// The source line of `tag` with single blanks.
std::string Compact(const Tag& tag) {
  std::string compact;
  for (const char c : tag.text) {
    const bool isBlank = c == ' ' || c == '\t' || c == '\r';
    if (!isBlank) {
      compact += c;
    } else if (!compact.empty() && compact.back() != ' ') {
      compact += ' ';
    }
  }
  return compact;
}

/// The value of a field of an xref line; nothing if there is no such field.
std::optional<std::string> XrefValue(std::string_view field, const Tag& tag,
                                     const std::string& path, const Language& language) {
  const auto is = [field](std::string_view letter, std::string_view name) {
    return field == letter || field == name;
  };
  if (is("N", "name")) return tag.name;
  if (is("F", "input")) return path;
  if (is("P", "pattern")) return PatternOf(tag);
  if (is("C", "compact")) return Compact(tag);
  if (is("K", "kind") || field == "z") return std::string(tag.kind->name);
  if (field == "k") return std::string(1, tag.kind->letter);
  if (is("n", "line")) return std::to_string(tag.line);
  if (is("S", "signature")) return tag.signature;
  if (is("s", "scope") || field == "Z") return tag.scope;
  if (is("p", "scopeKind")) return std::string(tag.scopeKind);
  if (is("t", "typeref")) return tag.typeref;
  if (is("l", "language")) return std::string(language.name);
  if (is("a", "access")) return std::string(tag.access);
  if (is("e", "end")) return tag.end == 0 ? std::string() : std::to_string(tag.end);
  if (is("f", "file")) return std::string(tag.isFileScope ? "file" : "");
  if (is("E", "extras")) return ExtrasOf(tag);
  if (is("r", "roles")) return std::string("def");
  for (const Choice& choice : FieldChoices()) {
    if (field == choice.name || field == std::string(1, choice.letter)) return std::string();
  }
  return std::nullopt;
}

}  // namespace

void AppendEscaped(std::string& out, std::string_view text) {
  for (const char c : text) {
    if (!NeedsEscape(c)) {
      out += c;
    } else if (c == '\\') {
      out += "\\\\";
    } else if (c == '\t') {
      out += "\\t";
    } else if (c == '\n') {
      out += "\\n";
    } else if (c == '\r') {
      out += "\\r";
    } else {
      out += "\\x";
      out += kHexDigits[static_cast<unsigned char>(c) >> 4];
      out += kHexDigits[static_cast<unsigned char>(c) & 15];
    }
  }
}

bool AppendTagsFormat(std::string& out, const Tag& tag, const std::string& path,
                      const Language& language, const Settings& settings) {
  const Selection& fields = settings.fields;
  if (settings.isExuberant) {
    if (!FitsInLine(path)) return false;
    out += tag.name;
    out += '\t';
    out += path;
  } else {
    // What begins with `!` would pass for a header line.
    if (tag.name.starts_with('!')) out += "\\x21";
    AppendEscaped(out, std::string_view(tag.name).substr(tag.name.starts_with('!') ? 1 : 0));
    out += '\t';
    AppendEscaped(out, path);
  }
  out += '\t';
  out += AddressOf(tag, settings);
  std::string rest;
  if (fields.Has("kindLetter") || fields.Has("kindName")) {
    rest += '\t';
    if (fields.Has("kind")) rest += "kind:";
    if (fields.Has("kindName")) {
      rest += tag.kind->name;
    } else {
      rest += tag.kind->letter;
    }
  }
  if (fields.Has("line")) AppendField(rest, "line", std::to_string(tag.line));
  if (fields.Has("language")) AppendField(rest, "language", language.name);
  if (fields.Has("scopeName") && !tag.scope.empty()) {
    std::string key(fields.Has("scope") ? "scope:" : "");
    key += tag.scopeKind;
    AppendField(rest, key, tag.scope);
  }
  if (fields.Has("typeref") && !tag.typeref.empty()) AppendField(rest, "typeref", tag.typeref);
  if (fields.Has("file") && tag.isFileScope) AppendField(rest, "file", "");
  if (fields.Has("access") && !tag.access.empty()) AppendField(rest, "access", tag.access);
  if (fields.Has("signature") && !tag.signature.empty()) {
    AppendField(rest, "signature", tag.signature);
  }
  if (fields.Has("roles")) AppendField(rest, "roles", "def");
  if (fields.Has("extras")) {
    if (const std::string extras = ExtrasOf(tag); !extras.empty()) {
      AppendField(rest, "extras", extras);
    }
  }
  if (fields.Has("end") && tag.end != 0) AppendField(rest, "end", std::to_string(tag.end));
  if (fields.Has("category") && !tag.category.empty()) AppendField(rest, "category", tag.category);
  out += ";\"";
  out += rest;
  out += '\n';
  return true;
}

void AppendJsonFormat(std::string& out, const Tag& tag, const std::string& path,
                      const Language& language, const Settings& settings) {
  const Selection& fields = settings.fields;
  nlohmann::ordered_json object = {{"_type", "tag"}};
  if (fields.Has("name")) object["name"] = tag.name;
  if (fields.Has("input")) object["path"] = path;
  if (fields.Has("pattern") && tag.kind != &InputFileKind()) object["pattern"] = PatternOf(tag);
  if (fields.Has("language")) object["language"] = language.name;
  if (fields.Has("line")) object["line"] = tag.line;
  if (fields.Has("file") && tag.isFileScope) object["file"] = true;
  if (fields.Has("typeref") && !tag.typeref.empty()) object["typeref"] = tag.typeref;
  if (fields.Has("access") && !tag.access.empty()) object["access"] = tag.access;
  if (fields.Has("end") && tag.end != 0) object["end"] = tag.end;
  if (fields.Has("signature") && !tag.signature.empty()) object["signature"] = tag.signature;
  if (fields.Has("kindLetter") || fields.Has("kindName") || fields.Has("kind")) {
    object["kind"] = tag.kind->name;
  }
  const bool hasScope = fields.Has("scopeName") || fields.Has("scope") || fields.Has("scopeKind");
  if (hasScope && !tag.scope.empty()) {
    object["scope"] = tag.scope;
    object["scopeKind"] = tag.scopeKind;
  }
  if (fields.Has("roles")) object["roles"] = "def";
  if (fields.Has("extras")) {
    if (const std::string extras = ExtrasOf(tag); !extras.empty()) object["extras"] = extras;
  }
  if (fields.Has("category") && !tag.category.empty()) object["category"] = tag.category;
  out += object.dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
  out += '\n';
}

void AppendXrefFormat(std::string& out, const Tag& tag, const std::string& path,
                      const Language& language, const Settings& settings) {
  constexpr std::size_t kWidest = 1000;
  const std::string_view format = settings.xformat;
  for (std::size_t i = 0; i < format.size(); ++i) {
    if (format[i] != '%') {
      out += format[i];
      continue;
    }
    const std::size_t start = i++;
    const bool isLeft = i < format.size() && format[i] == '-';
    if (isLeft) ++i;
    std::size_t width = 0;
    for (; i < format.size() && format[i] >= '0' && format[i] <= '9'; ++i) {
      width = std::min(width * 10 + static_cast<std::size_t>(format[i] - '0'), kWidest);
    }
    std::string_view field = format.substr(i, 1);
    if (field == "%") {
      out += '%';
      continue;
    }
    if (field == "{") {
      const std::size_t end = format.find('}', i);
      if (end != std::string_view::npos) {
        field = format.substr(i + 1, end - i - 1);
        i = end;
      }
    }
    const std::optional<std::string> value = XrefValue(field, tag, path, language);
    if (!value) {
      out += format.substr(start, i + 1 - start);
      continue;
    }
    const std::string padding(width > value->size() ? width - value->size() : 0, ' ');
    if (!isLeft) out += padding;
    out += *value;
    if (isLeft) out += padding;
  }
  out += '\n';
}

void AppendHeader(std::string& out, const Settings& settings, const std::string& folder) {
  const char mark = settings.order == Order::kUnsorted  ? '0'
                    : settings.order == Order::kByBytes ? '1'
                                                        : '2';
  out += "!_TAG_FILE_FORMAT\t2\t/extended format/\n!_TAG_FILE_SORTED\t";
  out += mark;
  out += "\t/0=unsorted, 1=sorted, 2=foldcase/\n";
  if (!settings.isExuberant) {
    for (const Language& language : Languages()) {
      if (!settings.languages[IndexOf(language)]) continue;
      for (const Kind& kind : language.kinds) {
        if (!settings.kinds[IndexOf(language)].Has(kind)) continue;
        out += "!_TAG_KIND_DESCRIPTION!";
        out += language.name;
        out += '\t';
        out += kind.letter;
        out += ',';
        out += kind.name;
        out += "\t/";
        out += kind.description;
        out += "/\n";
      }
    }
    out += "!_TAG_OUTPUT_EXCMD\t";
    out += settings.address == Address::kLine      ? "number"
           : settings.address == Address::kPattern ? "pattern"
                                                   : "combineV2";
    out += "\t/number, pattern, mixed, or combineV2/\n";
    out += "!_TAG_OUTPUT_FILESEP\tslash\t/slash or backslash/\n";
    out += "!_TAG_OUTPUT_MODE\tu-ctags\t/u-ctags or e-ctags/\n!_TAG_PROC_CWD\t";
    AppendEscaped(out, folder);
    if (!folder.ends_with('/')) out += '/';
    out += "\t//\n";
  } else {
    out += "!_TAG_OUTPUT_MODE\te-ctags\t/u-ctags or e-ctags/\n";
  }
  out += "!_TAG_PROGRAM_NAME\tvexltags-ctags\t//\n!_TAG_PROGRAM_VERSION\t";
  out += kVersion;
  out += "\t//\n";
}

}  // namespace vexltags::ctags
