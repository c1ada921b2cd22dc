// SPDX-License-Identifier: MIT
// The work of a worker.
#include "tree/worker.h"

#include <optional>
#include <string_view>

#include "cache/content_hash.h"

namespace vexltags::tree {
namespace {

/// How many small files a worker takes at once. They mostly are in one folder, whose path is then
/// resolved once.
constexpr std::uint32_t kFewFiles = 8;

}  // namespace

Answer ReadFacts(const std::string& path, std::string& buffer) {
  Answer answer;
  answer.forFacts = true;
  const std::optional<std::string_view> text = ReadSource(path, buffer);
  FileInfo& info = answer.result.info;
  if (!text) {
    info.status = FileStatus::kUnreadable;
    return answer;
  }
  info.hash = ContentHash(*text);
  info.size = static_cast<std::int64_t>(text->size());
  answer.facts = thorough::MacroTable::Facts(*text);
  return answer;
}

void Work(const Workplace& place, thorough::Session* session) {
  std::optional<FileReader> reader;
  std::string message;
  std::string buffer;
  std::uint32_t number = 0;
  for (std::uint32_t end = 0;; ++number) {
    if (number == end) {
      const std::uint32_t count = place.next < place.largeCount ? 1 : kFewFiles;
      number = place.next.fetch_add(count);
      end = number + count;
    }
    if (number >= place.requests.size()) return;
    place.current = number;
    const Request& request = place.requests[number];
    Answer answer;
    if (request.forFacts) {
      answer = ReadFacts(request.job.path, buffer);
    } else {
      if (!reader) reader.emplace(session);
      answer.result = reader->Read(request.job);
    }
    answer.index = number;
    message.clear();
    AppendAnswer(message, answer);
    if (!place.store.Append(message) && !WriteAll(place.output, message)) return;
  }
}

}  // namespace vexltags::tree
