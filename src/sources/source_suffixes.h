// SPDX-License-Identifier: MIT
// Which suffixes source files have.
#pragma once

#include <cstdint>
#include <string_view>

namespace vexltags {

/// A set of languages, one bit each.
using LanguageSet = std::uint8_t;
inline constexpr LanguageSet kC = 1;
inline constexpr LanguageSet kCxx = 2;
inline constexpr LanguageSet kObjectiveC = 4;
inline constexpr LanguageSet kSwift = 8;
inline constexpr LanguageSet kPython = 16;
inline constexpr LanguageSet kAnyHeader = kC | kCxx | kObjectiveC;
inline constexpr LanguageSet kAllLanguages = kAnyHeader | kSwift | kPython;

/// Returns the languages that a file of this name can be in, by its suffix; 0 if the suffix is not
/// one of source files. Suffixes of the C family match in upper case too. Those of Swift and Python
/// do not, since such a file would be read as C.
LanguageSet LanguagesOfSuffix(std::string_view path);

/// Returns whether the last component of `path` has no dot.
bool HasNoSuffix(std::string_view path);

/// Parses names of languages, separated by commas, into `set`: C, C++, ObjectiveC, Swift, Python,
/// in any case; also Cpp, CPlusPlus, ObjC, Objective-C and All. Returns the first name that is
/// unknown, with `set` unchanged; empty if all are known. An empty list is the unknown name ",".
std::string_view ParseLanguages(std::string_view names, LanguageSet& set);

}  // namespace vexltags
