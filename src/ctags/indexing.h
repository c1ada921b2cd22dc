// SPDX-License-Identifier: MIT
// Indexes sources and writes their tags to the output.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "base/options.h"
#include "ctags/file_tags.h"
#include "ctags/settings.h"
#include "ctags/source_files.h"

namespace vexltags::ctags {

/// Returns the options with which the indexer reads sources: thoroughly.
Options IndexerOptions();

/// Returns the details of tags that the output shows.
Details DetailsOf(const Settings& settings);

/// Takes a finished line, with its newline, and the length of the name at its start.
using LineSink = std::function<void(std::string line, std::size_t nameLength)>;

/// Writes those of `tags`, the tags of one file in `language`, which the settings ask for, to
/// `sink`, with the additional ones that `--extras` selects. `path` is what the lines say.
void WriteTags(const std::vector<Tag>& tags, const std::string& path, const Language& language,
               const Settings& settings, const LineSink& sink);

/// Indexes `sources` in order and writes their tags to `sink`. A file that cannot be read costs a
/// message and nothing else. `outputPath` is the tags file to whose folder paths can be relative;
/// empty for standard output.
void IndexSources(const std::vector<Source>& sources, const Settings& settings,
                  const std::string& outputPath, const LineSink& sink);

/// Returns `path` in the form in which the tags file `outputPath` has it.
std::string PathInTags(const std::string& path, const std::string& outputPath,
                       const Settings& settings);

}  // namespace vexltags::ctags
