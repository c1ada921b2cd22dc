// SPDX-License-Identifier: MIT
// The languages that are built in, and which file is of which.
#pragma once

#include <string>

#include "engine/language_reader.h"
#include "thorough/session.h"

namespace vexltags {

/// One row of the language table.
struct Language {
  const char* suffix;  ///< Exact end of the path; empty for the row that takes everything else.
  const char* name;
  NewLanguageReader newReader;
  /// What gives a file its reading for `--thorough`; null for a language that has none.
  Reading* (thorough::Session::*reading)(const std::string& path) = nullptr;
};

/// The language of a file, by the end of its path as it was given, exact and case-sensitive. What
/// is neither Python nor Swift is of the C family.
const Language& LanguageOf(const std::string& path);

}  // namespace vexltags
