// SPDX-License-Identifier: MIT
// Sets of fields, extras and kinds that option values select letter by letter.
#include "ctags/selection.h"

#include <cstddef>

namespace vexltags::ctags {
namespace {

// Letters and names are those of Universal Ctags, so that its option values work. Members without
// an effect are there because callers name them.
constexpr Choice kFields[] = {
    {'N', "name", true, "name of the tag"},
    {'F', "input", true, "source file"},
    {'P', "pattern", true, "search pattern"},
    {'C', "compact", false, "source line with single blanks (xref only)"},
    {'E', "extras", false, "why an additional tag is there"},
    {'K', "kindName", false, "kind as a word"},
    {'R', "marker", false, "no effect"},
    {'S', "signature", false, "parameters of a function"},
    {'T', "epoch", true, "no effect"},
    {'Z', "scope", false, "scope after the key \"scope:\""},
    {'a', "access", false, "access of members of C++ classes"},
    {'e', "end", false, "last line of a definition in the C family"},
    {'f', "file", true, "mark of what only its file can use"},
    {'i', "inherits", false, "no effect"},
    {'k', "kindLetter", true, "kind as a letter"},
    {'l', "language", false, "language of the source file"},
    {'m', "implementation", false, "no effect"},
    {'n', "line", false, "line number"},
    {'o', "nth", false, "no effect"},
    {'p', "scopeKind", false, "kind of the scope (JSON and xref)"},
    {'r', "roles", false, "\"def\", since every tag is a definition"},
    {'s', "scopeName", true, "scope"},
    {'t', "typeref", true, "type that a typedef refers to"},
    {'x', "xpath", false, "no effect"},
    {'z', "kind", false, "kind after the key \"kind:\""},
    {'-', "category", true, "category of an Objective-C class"},
};

constexpr Choice kExtras[] = {
    {'F', "fileScope", true, "tags of what only its file can use"},
    {'f', "inputFile", false, "a tag for each source file"},
    {'g', "guest", false, "no effect"},
    {'p', "pseudo", true, "header lines"},
    {'q', "qualified", false, "a second tag with the scopes in its name"},
    {'r', "reference", false, "no effect"},
    {'s', "subparser", true, "no effect"},
    {'-', "anonymous", true, "no effect"},
};

static_assert(std::size(kFields) <= 64 && std::size(kExtras) <= 64);

}  // namespace

Selection::Selection(std::span<const Choice> choices) : choices(choices) {
  for (const Choice& choice : choices) Set(choice.name, choice.isOn);
}

bool Selection::Has(std::string_view name) const {
  for (std::size_t i = 0; i < choices.size(); ++i) {
    if (choices[i].name == name) return (members >> i & 1) != 0;
  }
  return false;
}

void Selection::Set(std::string_view name, bool on) {
  for (std::size_t i = 0; i < choices.size(); ++i) {
    const std::uint64_t bit = std::uint64_t{1} << i;
    if (choices[i].name == name) members = on ? members | bit : members & ~bit;
  }
}

std::vector<std::string> Selection::Apply(std::string_view value) {
  std::vector<std::string> unknown;
  bool on = true;
  if (!value.starts_with('+') && !value.starts_with('-')) members = 0;
  for (std::size_t i = 0; i < value.size(); ++i) {
    const char letter = value[i];
    if (letter == '+' || letter == '-') {
      on = letter == '+';
      continue;
    }
    std::string_view name;
    if (letter == '{') {
      const std::size_t end = value.find('}', i);
      if (end == std::string_view::npos) {
        unknown.emplace_back(value.substr(i));
        break;
      }
      name = value.substr(i + 1, end - i - 1);
      i = end;
    }
    bool isKnown = false;
    for (const Choice& choice : choices) {
      const bool fits = letter == '*'   ? true
                        : letter == '{' ? choice.name == name
                                        : choice.letter == letter;
      if (!fits) continue;
      Set(choice.name, on);
      isKnown = true;
    }
    if (!isKnown) unknown.push_back(letter == '{' ? std::string(name) : std::string(1, letter));
  }
  return unknown;
}

std::span<const Choice> FieldChoices() { return kFields; }

std::span<const Choice> ExtraChoices() { return kExtras; }

}  // namespace vexltags::ctags
