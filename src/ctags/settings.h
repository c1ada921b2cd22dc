// SPDX-License-Identifier: MIT
// The settings of a run of vexltags-ctags.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "ctags/languages.h"
#include "ctags/selection.h"
#include "formats/tags_line.h"

namespace vexltags::ctags {

/// The forms of output.
enum class Format : std::uint8_t { kTags, kJson, kXref, kEtags };

/// Which lines of a tags file are written.
enum class Order : std::uint8_t { kUnsorted, kByBytes, kFoldedCase };

/// Paths relative to the folder of the tags file instead of the working directory.
enum class TagRelative : std::uint8_t {
  kNo,      ///< As given.
  kYes,     ///< If given as relative paths.
  kAlways,  ///< All.
  kNever,   ///< None; all become absolute.
};

/// The mode in which requests come from standard input.
enum class Interactive : std::uint8_t {
  kOff,
  kDefault,
  kSandbox,  ///< Without access to files.
};

/// What a command line and the files of options say. Filled once, read-only afterwards.
struct Settings {
  Settings();

  std::vector<std::string> paths;  ///< Files and folders, in order.
  std::vector<std::string> lists;  ///< Files that list such paths; `-` is standard input.
  std::string outputPath;          ///< `-` is standard output; empty is the default of the format.
  Format format = Format::kTags;
  bool isExuberant = false;  ///< Tags in the older form, without escapes.
  std::string xformat;       ///< The template of xref lines.
  Address address = Address::kPattern;
  Order order = Order::kByBytes;
  TagRelative tagRelative = TagRelative::kNo;
  Interactive interactive = Interactive::kOff;
  bool append = false;
  bool recurse = false;
  bool followLinks = true;
  long maxDepth = -1;  ///< Levels of folders that are entered; negative for no limit.
  bool isQuiet = false;
  bool hasPseudoChoice = false;  ///< An option decided on header lines.

  Selection fields;
  Selection extras;
  std::vector<Selection> kinds;  ///< What is written of each language, by `LanguageIndex`.
  std::array<bool, kLanguageCount> languages;
  const Language* forced = nullptr;  ///< The language of all files; null if their paths decide.
  /// Suffixes with a dot, or whole names, that select a language before the built-in ones do.
  std::vector<std::pair<std::string, const Language*>> mappings;
  std::vector<std::string> exclusions;
  std::vector<std::string> exceptions;  ///< From the exclusions.

  /// Returns whether the output shows the field `name`, whose letter is `letter`.
  bool Shows(std::string_view name, char letter) const;
};

}  // namespace vexltags::ctags
