// SPDX-License-Identifier: MIT
// Reads files for another machine.
#include "tree/host_worker.h"

#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <unordered_map>
#include <vector>

#include "base/version.h"
#include "thorough/session.h"
#include "tree/packing.h"

namespace vexltags::tree {
namespace {

constexpr int kRefused = 3;

std::string ReadAllInput() {
  std::string input;
  char buffer[1 << 16];
  for (;;) {
    const ssize_t count = read(STDIN_FILENO, buffer, sizeof buffer);
    if (count < 0 && errno == EINTR) continue;
    if (count <= 0) return input;
    input.append(buffer, static_cast<std::size_t>(count));
  }
}

int Refuse(const char* why) {
  std::fprintf(stderr, "vexltags-tree: %s\n", why);
  return kRefused;
}

}  // namespace

void AppendHostTask(std::string& out, const HostTask& task) {
  std::string head;
  Packer pack(head);
  pack(kVersion);
  pack(task.isExact);
  pack(task.sendsFiles);
  pack(task.learned);
  AppendFrame(out, head, task.folder);
}

std::optional<HostTask> ReadHostTask(const Frame& frame) {
  HostTask task;
  std::string_view version;
  Unpacker unpack(frame.head);
  unpack(version);
  unpack(task.isExact);
  unpack(task.sendsFiles);
  unpack(task.learned);
  if (!unpack.IsDone() || version != kVersion) return std::nullopt;
  task.folder = frame.body;
  return task;
}

int ServeMachine() {
  const std::string input = ReadAllInput();
  const std::optional<std::string_view> whole = Unseal(input);
  if (!whole) return Refuse("the task is damaged");
  std::string_view rest = *whole;
  Frame frame;
  if (!TakeFrame(rest, frame)) return Refuse("no task");
  const std::optional<HostTask> task = ReadHostTask(frame);
  if (!task) return Refuse("the task is of another version");
  if (!task->sendsFiles && chdir(task->folder.c_str()) != 0) {
    return Refuse("the tree is not on this machine");
  }
  std::vector<std::string> order;
  std::unordered_map<std::string_view, std::string_view> facts;
  for (std::uint32_t i = 0; i < task->learned; ++i) {
    if (!TakeFrame(rest, frame)) return Refuse("the task is incomplete");
    order.emplace_back(frame.head);
    facts.emplace(frame.head, frame.body);
  }
  thorough::SessionSources sources;
  sources.facts = [&](const std::string& path) -> std::optional<std::string_view> {
    const auto found = facts.find(path);
    if (found == facts.end()) return std::nullopt;
    return found->second;
  };
  thorough::Session session(order, sources);
  FileReader reader(task->isExact ? nullptr : &session);
  std::string answers;
  Frame known;
  while (TakeFrame(rest, frame)) {
    Request request;
    if (!ReadRequest(frame, request) || !TakeFrame(rest, known)) {
      return Refuse("the task is incomplete");
    }
    KnownFile file;
    file.stored = known.head;
    if (task->sendsFiles) file.text = known.body;
    Answer answer;
    answer.index = request.index;
    answer.result = reader.Read(request.job, &file);
    AppendAnswer(answers, answer);
  }
  if (!rest.empty()) return Refuse("the task is incomplete");
  return WriteAll(STDOUT_FILENO, Seal(answers)) ? 0 : 1;
}

}  // namespace vexltags::tree
