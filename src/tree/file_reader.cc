// SPDX-License-Identifier: MIT
// Reads one file after the other, in a worker.
#include "tree/file_reader.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <unordered_set>
#include <vector>

#include "cache/content_hash.h"
#include "cfamily/vexl_tags_parser.h"
#include "driver/command_line.h"
#include "formats/plain_tag.h"
#include "formats/readable_text.h"
#include "formats/swift_scope_kinds.h"
#include "formats/tag_record.h"
#include "portable/swift_scopes.h"
#include "tree/tag_entry.h"

namespace vexltags::tree {
namespace {

constexpr std::string_view kAnon = "__anon";
constexpr std::size_t kMostUnknownWords = 50;

/// True if other numbers in its made-up names could change where the line is cut.
bool IsNearlyCut(std::string_view line) {
  std::size_t longest = line.size();
  for (std::size_t at = line.find(kAnon); at != std::string_view::npos;
       at = line.find(kAnon, at + 1)) {
    longest += 10;
  }
  return longest != line.size() && longest + 24 > Dumper::kLongestPiece;
}

/// Cuts long texts, but not within a character.
std::string_view Shortened(std::string_view text) {
  if (text.size() <= kMostText) return text;
  std::size_t length = kMostText;
  while (length > kMostText - 4 && (static_cast<unsigned char>(text[length]) & 0xC0) == 0x80) {
    --length;
  }
  return text.substr(0, length);
}

bool IsAscii(std::string_view text) {
  std::uint64_t all = 0;
  std::size_t i = 0;
  for (std::uint64_t word = 0; i + sizeof word <= text.size(); i += sizeof word) {
    std::memcpy(&word, text.data() + i, sizeof word);
    all |= word;
  }
  for (; i < text.size(); ++i) all |= static_cast<unsigned char>(text[i]) & 0x80U;
  return (all & 0x8080808080808080) == 0;
}

bool IsUtf8(const TagEntry& entry) {
  return Utf8Length(entry.text) == entry.text.size() &&
         Utf8Length(entry.name) == entry.name.size() && Utf8Length(entry.rest) == entry.rest.size();
}

/// The options of `vexltags` without arguments.
Options DefaultOptions() {
  CommandLine commandLine;
  ScanCommandLine({"-"}, commandLine);
  return commandLine.options;
}

}  // namespace

std::optional<std::string_view> ReadSource(const std::string& path, std::string& buffer) {
  const int file = open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
  if (file < 0) return std::nullopt;
  std::optional<std::string_view> text;
  struct stat status;
  if (fstat(file, &status) == 0 && S_ISREG(status.st_mode)) {
    const auto expected = static_cast<std::size_t>(status.st_size);
    if (buffer.size() < expected) buffer.resize(expected);
    ssize_t count = 0;
    std::size_t size = 0;
    while (size < expected) {
      count = read(file, buffer.data() + size, expected - size);
      if (count < 0 && errno == EINTR) continue;
      if (count <= 0) break;
      size += static_cast<std::size_t>(count);
    }
    if (count >= 0) text = std::string_view(buffer).substr(0, size);
  }
  close(file);
  return text;
}

FileReader::FileReader(thorough::Session* session) : options(DefaultOptions()), session(session) {
  options.thorough = session != nullptr;
  if (session != nullptr) {
    indexer.emplace(options, *session);
  } else {
    indexer.emplace(options, std::vector<std::string>());
  }
}

FileReader::~FileReader() {
  if (session != nullptr) session->Macros().SetLookupObserver(nullptr);
}

FileResult FileReader::Read(const FileJob& job, const KnownFile* known) {
  FileResult result;
  FileInfo& info = result.info;
  std::string entries;
  lookups.Clear();
  if (session != nullptr) {
    session->Macros().SetLookupObserver(job.wantsLookups ? &lookups : nullptr);
  }
  Dumper dumper;
  const std::int32_t start = std::max(job.anonStart, 0);
  VexlTagsParser::SetAnonCount(start);
  const FileOutcome outcome = indexer->Index(
      job.path, dumper, [this](std::string_view bytes) { text = bytes; }, known);
  info.stored = outcome.stored;
  if (!outcome.isRead) {
    info.status = FileStatus::kUnreadable;
    return result;
  }
  info.hash = ContentHash(text);
  info.size = static_cast<std::int64_t>(text.size());
  info.anonCount = VexlTagsParser::AnonCount() - start;
  info.lexerErrors = outcome.counts.lexerErrors;
  info.parserErrors = outcome.counts.parserErrors;
  info.lines = outcome.lines;
  info.skipped = outcome.skipped.count;
  info.firstSkipped = static_cast<std::int32_t>(outcome.skipped.firstLine);
  info.rest = dumper.Pending();
  info.tagCount = static_cast<std::uint32_t>(dumper.LinesInOrder().size());

  bool isFixed = info.anonCount > 0 && (job.anonStart >= 0 || text.find(kAnon) != text.npos);
  lines.SetText(text);
  std::vector<TagRecord> swift;
  const bool isSwift = IsSwift(job.path);
  if (isSwift) {
    for (const std::string_view line : dumper.LinesInOrder()) {
      TagRecord record;
      ReadRawTag(line.substr(0, line.size() - 1), record);
      swift.push_back(record);
    }
    AddSwiftScopeKinds(swift);
  }
  const bool isAscii = IsAscii(text);
  const bool hasNul = text.find('\0') != text.npos;
  const bool isReadable = isAscii && !hasNul && text.find('\r') == text.npos;
  std::size_t index = 0;
  for (const std::string_view whole : dumper.LinesInOrder()) {
    const std::string_view line = whole.substr(0, whole.size() - 1);
    TagEntry entry;
    SplitRawLine(line, info.stored, entry);
    if (!entry.isWhole) {
      const std::int32_t number = LineOf(entry.rest);
      const FoundLine source = lines.Line(number);
      entry.text = Shortened(source.text);
      entry.offset = source.offset;
      info.lastTag = std::max(info.lastTag, number);
    }
    if (isSwift) {
      // Only a kind that the raw line does not have.
      TagRecord plain;
      if (ReadRawTag(line, plain) && plain.scopeKind.empty()) {
        entry.scopeKind = swift[index].scopeKind;
      }
    }
    ++index;
    PlainTag plain;
    entry.isPlain = !entry.isWhole && entry.scopeKind.empty() && !entry.text.empty() &&
                    (isReadable || ReadableText(entry.text).size() == entry.text.size()) &&
                    ReadPlainTag(entry.rest, plain);
    info.hasOddLines |=
        entry.isWhole || line.find('\n') != line.npos || (hasNul && line.find('\0') != line.npos);
    info.isUtf8 = info.isUtf8 && (isAscii || IsUtf8(entry));
    isFixed = isFixed || (info.anonCount > 0 && IsNearlyCut(line));
    AppendEntry(entries, entry);
  }
  isFixed = isFixed || (info.anonCount > 0 && !info.rest.empty());
  if (isFixed) info.anonStart = start;
  result.entries = std::move(entries);
  if (job.wantsLookups) result.lookups = lookups.Hashes();
  // Unknown macros can be the reason for what could not be read.
  if (info.skipped > 0 || info.parserErrors > 0) info.unknownWords = UnknownWords(dumper);
  return result;
}

std::string FileReader::UnknownWords(const Dumper& dumper) const {
  std::unordered_set<std::string_view> names;
  for (const std::string_view line : dumper.LinesInOrder()) {
    names.insert(line.substr(0, line.find('\t')));
  }
  std::string words;
  std::size_t count = 0;
  for (const std::string& word : lookups.Unknown()) {
    if (names.contains(word)) continue;
    words += word + '\n';
    if (++count == kMostUnknownWords) break;
  }
  return words;
}

}  // namespace vexltags::tree
