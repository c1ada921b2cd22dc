// SPDX-License-Identifier: MIT
// Selects the language of a file.
#pragma once

#include <string>

#include "engine/language_reader.h"
#include "thorough/session.h"

namespace vexltags {

/// One row of the language table.
struct Language {
  const char* suffix;  ///< The exact suffix of the path; empty for the row that matches every path.
  const char* name;
  NewLanguageReader newReader;
  /// Returns the `Reading` of a file for `--thorough`; null if the language has none.
  Reading* (thorough::Session::*reading)(const std::string& path) = nullptr;
};

/// Returns the language of a file by the suffix of its path as given, case-sensitively. Files that
/// are neither Python nor Swift belong to the C family.
const Language& LanguageOf(const std::string& path);

}  // namespace vexltags
