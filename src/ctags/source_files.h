// SPDX-License-Identifier: MIT
// Finds the sources that a run reads.
#pragma once

#include <string>
#include <vector>

#include "ctags/settings.h"

namespace vexltags::ctags {

/// A source and its language.
struct Source {
  std::string path;                    ///< As it is written to the tags file.
  const Language* language = nullptr;  ///< By its path; null if only its first line can tell.
};

/// Collects the sources of `settings`: its paths and the entries of its lists, in order. With
/// `recurse`, folders are entered, their entries sorted by bytes, a folder at most once on a way
/// through symbolic links; without it, they are passed over. Files of languages that are off,
/// excluded ones and those that are no sources are left out, and so is what cannot be opened, with
/// a message. Returns false, after a message, if a list cannot be read or nothing was named.
bool FindSources(const Settings& settings, std::vector<Source>& sources);

/// Returns the language of the file at `path` by the settings and its path; null if these cannot
/// tell.
const Language* LanguageBySettings(const std::string& path, const Settings& settings);

}  // namespace vexltags::ctags
