// SPDX-License-Identifier: MIT
// Indexes sources and writes their tags to the output.
#include "ctags/indexing.h"

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <system_error>
#include <utility>

#include "ctags/messages.h"
#include "ctags/text_file.h"
#include "ctags/writers.h"
#include "driver/process.h"
#include "formats/etags.h"
#include "formats/tag_record.h"
#include "output/dumper.h"

namespace vexltags::ctags {
namespace {

namespace fs = std::filesystem;

/// Returns whether `tag` is one of those that the settings ask for.
bool IsWanted(const Tag& tag, const Language& language, const Settings& settings) {
  if (tag.kind != &InputFileKind() && !settings.kinds[IndexOf(language)].Has(*tag.kind)) {
    return false;
  }
  if (tag.isFileScope && !settings.extras.Has("fileScope")) return false;
  return !tag.isAnonymous || settings.extras.Has("anonymous");
}

void WriteEtags(const std::vector<Tag>& tags, const std::string& path, const Language& language,
                const Settings& settings, const LineSink& sink) {
  std::vector<TagRecord> records;
  for (const Tag& tag : tags) {
    if (!IsWanted(tag, language, settings)) continue;
    TagRecord& record = records.emplace_back();
    record.name = tag.name;
    record.line = tag.line;
    record.text = tag.text;
    record.offset = tag.offset;
  }
  std::string section;
  if (!AppendEtagsSection(section, path, records)) {
    Warn("file name \"" + path + "\" contains a newline, which the format cannot express");
  }
  if (!section.empty()) sink(std::move(section), 0);
}

}  // namespace

Options IndexerOptions() {
  Options options;
  options.sort = 0;
  options.thorough = true;
  return options;
}

Details DetailsOf(const Settings& settings) {
  return {.signatures = settings.Shows("signature", 'S'),
          .access = settings.Shows("access", 'a'),
          .ends = settings.Shows("end", 'e')};
}

void WriteTags(const std::vector<Tag>& tags, const std::string& path, const Language& language,
               const Settings& settings, const LineSink& sink) {
  if (settings.format == Format::kEtags) {
    WriteEtags(tags, path, language, settings, sink);
    return;
  }
  bool isReported = false;
  const auto write = [&](const Tag& tag) {
    std::string line;
    std::size_t nameLength = 0;
    switch (settings.format) {
      case Format::kJson:
        AppendJsonFormat(line, tag, path, language, settings);
        break;
      case Format::kXref:
        AppendXrefFormat(line, tag, path, language, settings);
        break;
      default:
        if (!AppendTagsFormat(line, tag, path, language, settings)) {
          if (!std::exchange(isReported, true)) {
            Warn("file name \"" + path + "\" contains a tab or newline, skipped");
          }
          return;
        }
        nameLength = line.find('\t');
    }
    sink(std::move(line), nameLength);
  };
  for (const Tag& tag : tags) {
    if (!IsWanted(tag, language, settings)) continue;
    write(tag);
    if (tag.scope.empty() || !settings.extras.Has("qualified") || language.separator == ":") {
      continue;
    }
    Tag qualified = tag;
    qualified.name = tag.scope + std::string(language.separator) + tag.name;
    qualified.isQualified = true;
    write(qualified);
  }
}

std::string PathInTags(const std::string& path, const std::string& outputPath,
                       const Settings& settings) {
  const bool isAbsolute = path.starts_with('/');
  std::error_code error;
  switch (settings.tagRelative) {
    case TagRelative::kNo:
      return path;
    case TagRelative::kNever:
      return isAbsolute ? path : fs::absolute(path, error).lexically_normal().string();
    case TagRelative::kYes:
      if (isAbsolute) return path;
      break;
    case TagRelative::kAlways:
      break;
  }
  if (outputPath.empty()) return path;
  const fs::path folder = fs::absolute(outputPath, error).lexically_normal().parent_path();
  const fs::path file = fs::absolute(path, error).lexically_normal();
  const fs::path relative = file.lexically_relative(folder);
  return relative.empty() ? path : relative.string();
}

void IndexSources(const std::vector<Source>& sources, const Settings& settings,
                  const std::string& outputPath, const LineSink& sink) {
  const Options options = IndexerOptions();
  std::vector<std::string> paths;
  for (const Source& source : sources) {
    const Language* language = source.language;
    if (language == nullptr || IndexOf(*language) <= kObjectiveC) paths.push_back(source.path);
  }
  Indexer indexer(options, paths);
  std::string text;
  for (const Source& source : sources) {
    if (const int reason = ReadText(source.path, text); reason != 0) {
      Warn("cannot open input file \"" + source.path + "\" : " + std::strerror(reason));
      continue;
    }
    const Language* language =
        source.language != nullptr ? source.language : LanguageOfFirstLine(text);
    if (language == nullptr) continue;
    Dumper dumper;
    if (!indexer.IndexText(source.path, std::string(language->probePath), text, dumper)) {
      Warn("input file \"" + source.path + "\" is too large");
      continue;
    }
    const std::vector<std::string> lines = dumper.Lines();
    if (settings.forced == nullptr) language = &LanguageOfTags(*language, lines);
    if (!settings.languages[IndexOf(*language)]) continue;
    const std::string path = PathInTags(source.path, outputPath, settings);
    std::vector<Tag> tags =
        MakeTags(lines, text, *language, IsHeader(source.path), DetailsOf(settings));
    if (settings.extras.Has("inputFile")) {
      Tag file;
      file.name = path.substr(path.rfind('/') + 1);
      file.kind = &InputFileKind();
      file.line = 1;
      file.text = std::string_view(text).substr(0, text.find('\n'));
      tags.push_back(std::move(file));
    }
    WriteTags(tags, path, *language, settings, sink);
  }
}

}  // namespace vexltags::ctags
