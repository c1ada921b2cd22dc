// SPDX-License-Identifier: MIT
// Writes the tags of a tree in the format that was asked for.
#include "tree/tag_format.h"

#include <algorithm>
#include <atomic>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <thread>

#include "formats/etags.h"
#include "formats/json.h"
#include "formats/plain_tag.h"
#include "formats/tag_record.h"
#include "output/line_order.h"
#include "output/line_store.h"
#include "output/tags_format.h"

namespace vexltags::tree {
namespace {

constexpr std::size_t kChunk = 4096;  ///< Tags that a thread writes at once.
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

/// Writes tags in several threads. Each thread takes the next chunk of them, makes its text while
/// others write theirs, and waits for its turn.
class ChunkWriter {
 public:
  ChunkWriter(std::span<const TaggedFile> files, std::span<const TagPlace> places,
              const OutputStyle& style, const ByteSink& sink)
      : files(files), places(places), style(style), sink(sink) {}

  bool Run(int threads) {
    if (places.size() < 2 * kChunk) threads = 1;
    std::vector<std::thread> others;
    for (int i = 1; i < threads; ++i) others.emplace_back([this] { WriteChunks(); });
    WriteChunks();
    for (std::thread& other : others) other.join();
    return isGood;
  }

 private:
  void WriteChunks() {
    TagFormatter formatter(style);
    std::string text;
    for (;;) {
      const std::size_t number = next.fetch_add(1);
      const std::size_t begin = number * kChunk;
      if (begin >= places.size()) return;
      AppendTags(text, formatter, places.subspan(begin, std::min(kChunk, places.size() - begin)));
      std::unique_lock<std::mutex> lock(mutex);
      isMyTurn.wait(lock, [this, number] { return turn == number; });
      isGood = isGood && sink(text);
      ++turn;
      isMyTurn.notify_all();
      if (!isGood) return;
      text.clear();
    }
  }

  void AppendTags(std::string& text, TagFormatter& formatter, std::span<const TagPlace> chunk) {
    for (std::size_t i = 0; i < chunk.size(); ++i) {
      if (chunk.size() - i > kAhead) {
        const TagPlace& soon = chunk[i + kAhead];
        const char* const bytes = files[soon.file].entries.data() + soon.at;
        __builtin_prefetch(bytes);
        __builtin_prefetch(bytes + kCacheLine);
      }
      const TaggedFile& file = files[chunk[i].file];
      std::size_t at = chunk[i].at;
      TagEntry entry;
      if (ReadEntry(file.entries, at, entry)) formatter.Append(text, file, entry);
    }
  }

  std::span<const TaggedFile> files;
  std::span<const TagPlace> places;
  const OutputStyle& style;
  const ByteSink& sink;
  std::atomic<std::size_t> next = 0;
  std::mutex mutex;
  std::condition_variable isMyTurn;
  std::size_t turn = 0;  ///< The number of the chunk that is to be written next.
  bool isGood = true;
};

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
  if (style.format == Format::kTags && entry.isPlain) {
    PlainTag tag;
    SplitPlainTag(entry.rest, tag);
    tag.name = entry.name;
    tag.path = file.field;
    tag.text = entry.text;
    return AppendPlainTag(out, tag, style.address);
  }
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
  return ChunkWriter(files, places, style, sink).Run(threads);
}

}  // namespace vexltags::tree
