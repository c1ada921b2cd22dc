// SPDX-License-Identifier: MIT
// The loop of a worker.
#include "tree/worker.h"

#include <unistd.h>

#include <cerrno>
#include <optional>

#include "cache/content_hash.h"
#include "tree/messages.h"

namespace vexltags::tree {
namespace {

constexpr std::size_t kBuffer = std::size_t{1} << 16;

}  // namespace

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

bool ServeRequests(int input, int output, thorough::Session* session) {
  std::optional<FileReader> reader;
  std::string received;
  std::string answers;
  char buffer[kBuffer];
  for (;;) {
    const ssize_t count = read(input, buffer, sizeof buffer);
    if (count < 0 && errno == EINTR) continue;
    if (count <= 0) return true;
    received.append(buffer, static_cast<std::size_t>(count));
    std::string_view rest = received;
    for (Frame frame; TakeFrame(rest, frame);) {
      Request request;
      if (!ReadRequest(frame, request)) return false;
      Answer answer;
      if (request.forFacts) {
        answer = ReadFacts(request.job.path);
      } else {
        if (!reader) reader.emplace(session);
        answer.result = reader->Read(request.job);
      }
      answer.index = request.index;
      answers.clear();
      AppendAnswer(answers, answer);
      if (!WriteAll(output, answers)) return true;
    }
    received.erase(0, received.size() - rest.size());
  }
}

}  // namespace vexltags::tree
