// SPDX-License-Identifier: MIT
// Collects the output of a run and writes it.
#include "ctags/tags_output.h"

#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <cstring>
#include <filesystem>
#include <system_error>
#include <utility>

#include "ctags/messages.h"
#include "ctags/text_file.h"
#include "ctags/writers.h"
#include "output/file_writer.h"
#include "portable/tag_line.h"

namespace vexltags::ctags {
namespace {

constexpr std::string_view kHeaderStart = "!_TAG_";

/// Returns whether `line` can be the first line of a file that this format replaces.
bool LooksLikeTags(std::string_view line, Format format) {
  // A section of Emacs' tables begins with a form feed.
  if (format == Format::kEtags) return line.starts_with('\f');
  if (format != Format::kTags) return true;
  if (line.starts_with(kHeaderStart)) return true;
  TagLine tag;
  if (ParseTagLine(line, tag) != LineForm::kTag || tag.address.empty()) return false;
  const char first = tag.address.front();
  return (first >= '0' && first <= '9') || first == '/' || first == '?';
}

}  // namespace

std::string OutputPathOf(const Settings& settings) {
  if (settings.outputPath == "-") return {};
  if (!settings.outputPath.empty()) return settings.outputPath;
  switch (settings.format) {
    case Format::kTags:
      return "tags";
    case Format::kEtags:
      return "TAGS";
    default:
      return {};
  }
}

TagsOutput::TagsOutput(const Settings& settings)
    : settings(settings), path(OutputPathOf(settings)) {}

bool TagsOutput::Prepare() {
  if (path.empty()) return true;
  struct stat status;
  if (stat(path.c_str(), &status) != 0) {
    if (errno == ENOENT) return true;
    Report("cannot open tag file \"" + path + "\" : " + std::strerror(errno));
    return false;
  }
  // A device has nothing to lose.
  if (S_ISCHR(status.st_mode)) return true;
  if (!S_ISREG(status.st_mode)) {
    Report("cannot open tag file \"" + path + "\" : not a regular file");
    return false;
  }
  std::string text;
  if (const int reason = ReadText(path, text); reason != 0) {
    Report("cannot open tag file \"" + path + "\" : " + std::strerror(reason));
    return false;
  }
  const std::string_view first = std::string_view(text).substr(0, text.find('\n'));
  if (!text.empty() && !LooksLikeTags(first, settings.format)) {
    Report("\"" + path + "\" doesn't look like a tag file; I refuse to overwrite it.");
    return false;
  }
  if (!settings.append) return true;
  return KeepOldLines(text);
}

bool TagsOutput::KeepOldLines(std::string_view text) {
  if (settings.format != Format::kTags) {
    oldText = text;
    if (!oldText.empty() && !oldText.ends_with('\n')) oldText += '\n';
    return true;
  }
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t end = std::min(text.find('\n', at), text.size());
    const std::string_view line = text.substr(at, end - at);
    at = end + 1;
    // The header is written anew.
    if (line.empty() || line.starts_with(kHeaderStart)) continue;
    Add(std::string(line) + '\n', std::min(line.find('\t'), line.size()));
  }
  return true;
}

void TagsOutput::Add(std::string line, std::size_t nameLength) {
  lines.push_back({std::move(line), nameLength});
}

bool TagsOutput::Write() {
  std::string header;
  const bool isTags = settings.format == Format::kTags;
  const bool hasHeader =
      isTags && settings.extras.Has("pseudo") && (!path.empty() || settings.hasPseudoChoice);
  std::error_code error;
  if (hasHeader) AppendHeader(header, settings, std::filesystem::current_path(error));
  if (isTags) {
    SortForReaders(lines, settings.order == Order::kByBytes      ? '1'
                          : settings.order == Order::kFoldedCase ? '2'
                                                                 : '0');
  } else if (settings.format != Format::kEtags && settings.order != Order::kUnsorted) {
    std::stable_sort(lines.begin(), lines.end(),
                     [](const NamedLine& a, const NamedLine& b) { return a.text < b.text; });
  }
  FileWriter writer;
  if (path.empty()) {
    writer.OpenStandardOutput();
  } else if (!writer.OpenFile(path, FileWriter::Mode::Replace)) {
    Report("cannot open tag file \"" + path + "\" : " + std::strerror(errno));
    return false;
  }
  writer.Write(header);
  writer.Write(oldText);
  for (const NamedLine& line : lines) writer.Write(line.text);
  if (writer.Close()) return true;
  Report("cannot write " + (path.empty() ? "standard output" : "tag file \"" + path + "\""));
  writer.Abandon();
  return false;
}

}  // namespace vexltags::ctags
