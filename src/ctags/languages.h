// SPDX-License-Identifier: MIT
// The languages and kinds by the names and letters that callers of ctags use.
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

#include "ctags/selection.h"

namespace vexltags::ctags {

/// A kind of a language. Its name is the word in JSON, in scopes, and with `--fields=K`; it is on
/// if its tags are written unless options say otherwise.
using Kind = Choice;

/// A language as callers of ctags know it. C, C++, ObjectiveC and Python have the letters and names
/// that Universal Ctags gives them; Swift, which it does not read, has those of tags files.
struct Language {
  std::string_view name;
  std::span<const std::string_view> aliases;   ///< In lower case.
  std::span<const std::string_view> suffixes;  ///< Of its files, each with its dot.
  std::string_view probePath;                  ///< A path that selects the language in the indexer.
  std::string_view separator;                  ///< Between the names of a scope.
  std::span<const Kind> kinds;
};

/// The number of languages, and their places in `Languages`.
enum LanguageIndex : std::size_t { kC, kCxx, kObjectiveC, kPython, kSwift, kLanguageCount };

/// Returns all languages, in the order of `LanguageIndex`.
std::span<const Language> Languages();

/// Returns the place of `language`, one of `Languages`.
std::size_t IndexOf(const Language& language);

/// Returns the language with this name or alias, in upper or lower case; null if there is none.
const Language* FindLanguage(std::string_view name);

/// Returns the language of a file by the suffix of its path or, for a file without a suffix, by the
/// first line of its contents: an interpreter of Python, or a mode line of Emacs. Returns null for
/// any other file. Headers are C++, whatever they contain.
const Language* LanguageOfPath(std::string_view path);
const Language* LanguageOfFirstLine(std::string_view text);

/// Returns whether `path` has the suffix of a C or C++ header.
bool IsHeader(std::string_view path);

/// Returns the kind of `language` for the letter of a `vexltags` tag (output/kinds.h); null if the
/// language has none. An accessor is a property.
const Kind* KindOf(const Language& language, char rawLetter);

/// Returns the kind of `language` with this letter; null if there is none.
const Kind* KindWithLetter(const Language& language, char letter);

/// Returns `text` with `A` to `Z` in lower case.
std::string Lower(std::string_view text);

}  // namespace vexltags::ctags
