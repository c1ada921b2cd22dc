// SPDX-License-Identifier: MIT
// Writes the tags of a tree in the format that was asked for.
#include "tree/tag_format.h"

#include <algorithm>
#include <deque>
#include <thread>

#include "formats/etags.h"
#include "formats/json.h"
#include "formats/language_names.h"
#include "formats/tag_record.h"
#include "output/line_order.h"
#include "output/line_store.h"
#include "output/tags_format.h"

namespace vexltags::tree {
namespace {

constexpr std::size_t kChunk = 8192;  ///< Tags that a thread writes at once.
constexpr std::size_t kAhead = 8;     ///< How many tags ahead memory is fetched.
constexpr std::size_t kCacheLine = 64;

bool HasOddLines(std::span<const TaggedFile> files) {
  return std::any_of(files.begin(), files.end(),
                     [](const TaggedFile& file) { return file.hasOddLines || !file.rest.empty(); });
}

/// Writes raw lines of any form as one run of `vexltags` does: what a file leaves of a line is the
/// start of the next line.
bool WriteOddRawLines(std::span<const TaggedFile> files, int sort, const ByteSink& sink) {
  LineStore store;
  std::string line;
  for (const TaggedFile& file : files) {
    TagEntry entry;
    for (std::size_t at = 0; ReadEntry(file.entries, at, entry);) {
      AppendRawLine(line, entry, file.field);
      store.Add(line);
      line.clear();
    }
    line += file.rest;
  }
  SortLines(store.Lines(), sort);
  std::string out;
  for (const std::string_view text : store.Lines()) {
    out += text;
    if (out.size() < (std::size_t{1} << 20)) continue;
    if (!sink(out)) return false;
    out.clear();
  }
  return sink(out);
}

bool WriteSections(std::span<const TaggedFile> files, const OutputStyle& style,
                   const ByteSink& sink) {
  TagFormatter formatter(style);
  std::string out;
  for (const TaggedFile& file : files) {
    out.clear();
    formatter.AppendSection(out, file);
    if (!sink(out)) return false;
  }
  return true;
}

/// Writes chunks of tags in several threads, and puts them out in order while the next ones are
/// written.
bool WriteChunks(std::span<const TaggedFile> files, std::span<const TagPlace> places,
                 const OutputStyle& style, int threads, const ByteSink& sink) {
  const auto count = static_cast<std::size_t>(places.size() < 2 * kChunk ? 1 : threads);
  std::vector<TagFormatter> formatters(count, TagFormatter(style));
  std::vector<std::string> texts(count);
  std::vector<std::string> done(count);
  std::size_t from = 0;
  const auto write = [&](std::size_t number) {
    std::string& text = texts[number];
    text.clear();
    const std::size_t begin = std::min(places.size(), from + number * kChunk);
    const std::size_t end = std::min(places.size(), begin + kChunk);
    for (std::size_t i = begin; i < end; ++i) {
      if (end - i > kAhead) {
        const TagPlace& next = places[i + kAhead];
        const char* const bytes = files[next.file].entries.data() + next.at;
        __builtin_prefetch(bytes);
        __builtin_prefetch(bytes + kCacheLine);
      }
      const TaggedFile& file = files[places[i].file];
      std::size_t at = places[i].at;
      TagEntry entry;
      ReadEntry(file.entries, at, entry);
      formatters[number].Append(text, file, entry);
    }
  };
  bool isGood = true;
  while (isGood && from < places.size()) {
    std::vector<std::thread> writers;
    for (std::size_t i = count > 1 ? 0 : 1; i < count; ++i) writers.emplace_back(write, i);
    if (count == 1) write(0);
    for (const std::string& text : done) isGood = isGood && sink(text);
    for (std::thread& writer : writers) writer.join();
    texts.swap(done);
    from += count * kChunk;
  }
  for (const std::string& text : done) isGood = isGood && sink(text);
  return isGood;
}

}  // namespace

TagOrder OrderOf(const OutputStyle& style) {
  if (style.sort == 0 || style.format == Format::kEtags) return TagOrder::kFiles;
  if (style.sort == 1) return TagOrder::kBytes;
  return style.format == Format::kRaw ? TagOrder::kFoldDown : TagOrder::kFoldUp;
}

TieOrder TiesOf(const OutputStyle& style) {
  return style.format == Format::kRaw ? TieOrder::kBytes : TieOrder::kLines;
}

std::string HeaderOf(const OutputStyle& style) {
  std::string header;
  if (style.format == Format::kRaw) header = TagsHeader(style.sort);
  if (style.format == Format::kTags) {
    AppendTagsHeader(header, static_cast<char>('0' + style.sort), style.isUtf8);
  }
  return header;
}

bool TagFormatter::ReadRecord(const TaggedFile& file, const TagEntry& entry, std::string& text,
                              TagRecord& tag) {
  // Some file field: the real one is not needed.
  text.clear();
  AppendRawLine(text, entry, "-");
  text.pop_back();
  tag.scopeKind = tag.scope = tag.typeref = {};
  if (!ReadRawTag(text, tag)) return false;
  if (!entry.scopeKind.empty()) tag.scopeKind = entry.scopeKind;
  tag.path = file.field;
  tag.language = file.language;
  tag.text = entry.text;
  tag.offset = entry.offset;
  return true;
}

void TagFormatter::Append(std::string& out, const TaggedFile& file, const TagEntry& entry) {
  if (style.format == Format::kRaw) return AppendRawLine(out, entry, file.field);
  if (!ReadRecord(file, entry, line, record)) return;
  if (style.format == Format::kJson) {
    AppendJson(out, record);
  } else {
    AppendTagsLine(out, record, style.address);
  }
}

void TagFormatter::AppendSection(std::string& out, const TaggedFile& file) {
  std::deque<std::string> lines;
  std::vector<TagRecord> tags;
  TagEntry entry;
  for (std::size_t at = 0; ReadEntry(file.entries, at, entry);) {
    TagRecord tag;
    if (ReadRecord(file, entry, lines.emplace_back(), tag)) tags.push_back(tag);
  }
  AppendEtagsSection(out, file.field, tags);
}

bool WriteAllTags(std::span<TaggedFile> files, const OutputStyle& style, int threads,
                  const ByteSink& sink) {
  if (!sink(HeaderOf(style))) return false;
  if (style.format == Format::kEtags) return WriteSections(files, style, sink);
  if (style.format == Format::kRaw && HasOddLines(files)) {
    return WriteOddRawLines(files, style.sort, sink);
  }
  RankFiles(files);
  const std::vector<TagPlace> places = SortTags(files, OrderOf(style), TiesOf(style), threads);
  return WriteChunks(files, places, style, threads, sink);
}

}  // namespace vexltags::tree
