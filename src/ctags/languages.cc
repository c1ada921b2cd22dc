// SPDX-License-Identifier: MIT
// The languages and kinds by the names and letters that callers of ctags use.
#include "ctags/languages.h"

#include <algorithm>
#include <utility>

namespace vexltags::ctags {
namespace {

using namespace std::string_view_literals;

constexpr Kind kKindsOfC[] = {
    {'d', "macro", true, "macro definitions"},
    {'e', "enumerator", true, "enumerators (values inside an enumeration)"},
    {'f', "function", true, "function definitions"},
    {'g', "enum", true, "enumeration names"},
    {'m', "member", true, "struct, and union members"},
    {'p', "prototype", false, "function prototypes"},
    {'s', "struct", true, "structure names"},
    {'t', "typedef", true, "typedefs"},
    {'u', "union", true, "union names"},
    {'v', "variable", true, "variable definitions"},
    {'x', "externvar", false, "external variable declarations"},
};
constexpr Kind kKindsOfCxx[] = {
    {'C', "concept", true, "concepts"},
    {'c', "class", true, "classes"},
    {'d', "macro", true, "macro definitions"},
    {'e', "enumerator", true, "enumerators (values inside an enumeration)"},
    {'f', "function", true, "function definitions"},
    {'g', "enum", true, "enumeration names"},
    {'m', "member", true, "class, struct, and union members"},
    {'n', "namespace", true, "namespaces"},
    {'p', "prototype", false, "function prototypes"},
    {'s', "struct", true, "structure names"},
    {'t', "typedef", true, "typedefs"},
    {'u', "union", true, "union names"},
    {'v', "variable", true, "variable definitions"},
    {'x', "externvar", false, "external variable declarations"},
};
constexpr Kind kKindsOfObjectiveC[] = {
    {'C', "category", true, "categories"},
    {'E', "field", true, "object fields"},
    {'I', "implementation", true, "class implementations"},
    {'M', "macro", true, "preprocessor macros"},
    {'P', "protocol", true, "protocols"},
    {'c', "class", true, "class methods"},
    {'e', "enum", true, "enumerations and their values"},
    {'f', "function", true, "functions"},
    {'i', "interface", true, "class interfaces"},
    {'m', "method", true, "object methods"},
    {'n', "namespace", true, "C++ namespaces"},
    {'p', "property", true, "properties"},
    {'s', "struct", true, "structures, unions, and C++ classes"},
    {'t', "typedef", true, "type aliases"},
    {'v', "var", true, "global variables"},
};
constexpr Kind kKindsOfPython[] = {
    {'c', "class", true, "classes"},
    {'f', "function", true, "functions"},
    {'m', "member", true, "class members"},
};
constexpr Kind kKindsOfSwift[] = {
    {'V', "variable", true, "variables"},   {'Y', "protocol", true, "protocols"},
    {'Z', "extension", true, "extensions"}, {'b', "constant", true, "constants"},
    {'c', "class", true, "classes"},        {'e', "enumerator", true, "enumeration cases"},
    {'f', "function", true, "functions"},   {'g', "enum", true, "enumerations"},
    {'s', "struct", true, "structures"},    {'t', "typealias", true, "type aliases"},
};

constexpr std::string_view kSuffixesOfC[] = {".c"};
constexpr std::string_view kSuffixesOfCxx[] = {
    ".c++", ".cc",  ".cp", ".cpp", ".cxx", ".h",   ".h++", ".hh",  ".hp",
    ".hpp", ".hxx", ".C",  ".H",   ".CPP", ".CXX", ".inl", ".ipp", ".tcc",
};
constexpr std::string_view kSuffixesOfObjectiveC[] = {".m", ".mm", ".objc", ".objcpp"};
constexpr std::string_view kSuffixesOfPython[] = {".py", ".pyx", ".pxd", ".pxi", ".python"};
constexpr std::string_view kSuffixesOfSwift[] = {".swift"};
constexpr std::string_view kHeaderSuffixes[] = {".h",   ".hh",  ".hp", ".hpp", ".hxx",
                                                ".h++", ".inl", ".H",  ".ipp", ".tcc"};

constexpr std::string_view kAliasesOfCxx[] = {"cpp"};
constexpr std::string_view kAliasesOfObjectiveC[] = {"objc", "objective-c", "objcpp"};

constexpr Language kLanguages[] = {
    {"C", {}, kSuffixesOfC, "x.c", "::", kKindsOfC},
    {"C++", kAliasesOfCxx, kSuffixesOfCxx, "x.cc", "::", kKindsOfCxx},
    {"ObjectiveC", kAliasesOfObjectiveC, kSuffixesOfObjectiveC, "x.m", ":", kKindsOfObjectiveC},
    {"Python", {}, kSuffixesOfPython, "x.py", ".", kKindsOfPython},
    {"Swift", {}, kSuffixesOfSwift, "x.swift", ".", kKindsOfSwift},
};
static_assert(std::size(kLanguages) == kLanguageCount);

/// Pairs of a letter of output/kinds.h and the letter of a language, for letters that differ.
using Letters = std::span<const std::pair<char, char>>;
constexpr std::pair<char, char> kLettersOfC[] = {{'c', 's'}};
constexpr std::pair<char, char> kLettersOfObjectiveC[] = {
    {'X', 'i'}, {'Y', 'P'}, {'w', 'I'}, {'i', 'm'}, {'o', 'm'}, {'I', 'c'},
    {'O', 'c'}, {'r', 'p'}, {'R', 'p'}, {'d', 'M'}, {'g', 'e'}, {'e', 'e'},
    {'p', 'f'}, {'m', 'E'}, {'c', 's'}, {'u', 's'}, {'C', 't'}, {'x', 'v'},
};

Letters LettersOf(const Language& language) {
  switch (IndexOf(language)) {
    case kC:
      return kLettersOfC;
    case kObjectiveC:
      return kLettersOfObjectiveC;
    default:
      return {};
  }
}

std::string_view SuffixOf(std::string_view path) {
  const std::string_view base = path.substr(path.rfind('/') + 1);
  const std::size_t dot = base.rfind('.');
  return dot == std::string_view::npos ? std::string_view() : base.substr(dot);
}

}  // namespace

std::span<const Language> Languages() { return kLanguages; }

std::size_t IndexOf(const Language& language) {
  return static_cast<std::size_t>(&language - kLanguages);
}

const Language* FindLanguage(std::string_view name) {
  const std::string wanted = Lower(name);
  for (const Language& language : kLanguages) {
    if (Lower(language.name) == wanted) return &language;
    if (std::ranges::find(language.aliases, wanted) != language.aliases.end()) return &language;
  }
  return nullptr;
}

const Language* LanguageOfPath(std::string_view path) {
  const std::string_view suffix = SuffixOf(path);
  for (const Language& language : kLanguages) {
    if (std::ranges::find(language.suffixes, suffix) != language.suffixes.end()) return &language;
  }
  return nullptr;
}

const Language* LanguageOfFirstLine(std::string_view text) {
  const std::string line = Lower(text.substr(0, std::min<std::size_t>(text.find('\n'), 200)));
  if (line.starts_with("#!") && line.find("python") != std::string::npos) {
    return &kLanguages[kPython];
  }
  const std::size_t start = line.find("-*-");
  if (start == std::string::npos) return nullptr;
  const std::size_t end = line.find("-*-", start + 3);
  if (end == std::string::npos) return nullptr;
  std::string_view mode = std::string_view(line).substr(start + 3, end - start - 3);
  if (const std::size_t key = mode.find("mode:"); key != std::string_view::npos) {
    mode.remove_prefix(key + 5);
    mode = mode.substr(0, mode.find(';'));
  }
  const std::size_t first = mode.find_first_not_of(' ');
  if (first == std::string_view::npos) return nullptr;
  return FindLanguage(mode.substr(first, mode.find_last_not_of(' ') + 1 - first));
}

bool IsHeader(std::string_view path) {
  const std::string_view suffix = SuffixOf(path);
  return std::ranges::find(kHeaderSuffixes, suffix) != std::end(kHeaderSuffixes);
}

const Kind* KindOf(const Language& language, char rawLetter) {
  for (const auto& [raw, letter] : LettersOf(language)) {
    if (raw == rawLetter) return KindWithLetter(language, letter);
  }
  return KindWithLetter(language, rawLetter);
}

const Kind* KindWithLetter(const Language& language, char letter) {
  const auto found = std::ranges::find(language.kinds, letter, &Kind::letter);
  return found == language.kinds.end() ? nullptr : &*found;
}

std::string Lower(std::string_view text) {
  std::string lower(text);
  for (char& c : lower) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  return lower;
}

}  // namespace vexltags::ctags
