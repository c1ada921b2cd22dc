// SPDX-License-Identifier: MIT
// The work of a worker.
#include "tree/worker.h"

#include <optional>

#include "cache/content_hash.h"

namespace vexltags::tree {

Answer ReadFacts(const std::string& path) {
  Answer answer;
  answer.forFacts = true;
  const std::optional<std::string> text = ReadSource(path);
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
  for (;;) {
    const std::uint32_t number = place.next.fetch_add(1);
    if (number >= place.requests.size()) return;
    place.current = number;
    const Request& request = place.requests[number];
    Answer answer;
    if (request.forFacts) {
      answer = ReadFacts(request.job.path);
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
