// SPDX-License-Identifier: MIT
// Tables of suffixes and names.
#include "sources/source_suffixes.h"

#include <strings.h>

#include <algorithm>
#include <cstddef>
#include <string>

namespace vexltags {
namespace {

struct Row {
  std::string_view name;
  LanguageSet languages;
};

constexpr Row kSuffixes[] = {
    {"c", kC},           {"h", kAnyHeader}, {"cc", kCxx},    {"cpp", kCxx},    {"cxx", kCxx},
    {"c++", kCxx},       {"cp", kCxx},      {"hh", kCxx},    {"hpp", kCxx},    {"hxx", kCxx},
    {"h++", kCxx},       {"hp", kCxx},      {"inl", kCxx},   {"ipp", kCxx},    {"tcc", kCxx},
    {"tpp", kCxx},       {"txx", kCxx},     {"ixx", kCxx},   {"cppm", kCxx},   {"m", kObjectiveC},
    {"mm", kObjectiveC}, {"swift", kSwift}, {"py", kPython}, {"pyx", kPython},
};

constexpr Row kNames[] = {
    {"c", kC},
    {"c++", kCxx},
    {"cpp", kCxx},
    {"cplusplus", kCxx},
    {"objc", kObjectiveC},
    {"objectivec", kObjectiveC},
    {"objective-c", kObjectiveC},
    {"swift", kSwift},
    {"python", kPython},
    {"all", kAllLanguages},
};

bool EqualsIgnoringCase(std::string_view a, std::string_view b) {
  return a.size() == b.size() && strncasecmp(a.data(), b.data(), a.size()) == 0;
}

std::string_view NameOf(std::string_view path) { return path.substr(path.rfind('/') + 1); }

}  // namespace

LanguageSet LanguagesOfSuffix(std::string_view path) {
  const std::string_view name = NameOf(path);
  const std::size_t dot = name.rfind('.');
  if (dot == name.npos) return 0;
  const std::string_view suffix = name.substr(dot + 1);
  for (const Row& row : kSuffixes) {
    if (suffix == row.name) return row.languages;
    // As elsewhere, a suffix in upper case does not tell C from C++.
    if ((row.languages & kAnyHeader) != 0 && EqualsIgnoringCase(suffix, row.name)) {
      return row.languages == kC ? kC | kCxx : row.languages;
    }
  }
  return 0;
}

bool HasNoSuffix(std::string_view path) { return NameOf(path).find('.') == path.npos; }

std::string_view ParseLanguages(std::string_view names, LanguageSet& set) {
  LanguageSet result = 0;
  while (!names.empty()) {
    const std::size_t comma = std::min(names.find(','), names.size());
    const std::string_view name = names.substr(0, comma);
    names.remove_prefix(std::min(comma + 1, names.size()));
    if (name.empty()) continue;
    const Row* row = std::find_if(std::begin(kNames), std::end(kNames), [name](const Row& known) {
      return EqualsIgnoringCase(known.name, name);
    });
    if (row == std::end(kNames)) return name;
    result |= row->languages;
  }
  if (result == 0) return ",";
  set = result;
  return "";
}

}  // namespace vexltags
