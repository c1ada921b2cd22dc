// SPDX-License-Identifier: MIT
// Starts the program with posix_spawn and reads two pipes.
#include "sources/child_process.h"

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstddef>

namespace vexltags {
namespace {

std::vector<char*> Pointers(const std::vector<std::string>& texts) {
  std::vector<char*> pointers;
  pointers.reserve(texts.size() + 1);
  for (const std::string& text : texts) pointers.push_back(const_cast<char*>(text.c_str()));
  pointers.push_back(nullptr);
  return pointers;
}

}  // namespace

ChildProcess::Pipe::Pipe() { isOpen = pipe2(ends, O_CLOEXEC) == 0; }

void ChildProcess::Pipe::CloseWriter() {
  if (isOpen && ends[1] >= 0) close(ends[1]);
  ends[1] = -1;
}

void ChildProcess::Pipe::Close() {
  CloseWriter();
  if (isOpen) close(ends[0]);
  isOpen = false;
}

ChildProcess::ChildProcess(const std::vector<std::string>& command,
                           const std::vector<std::string>& environment) {
  if (!output.IsOpen() || !errors.IsOpen()) return;
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
  posix_spawn_file_actions_adddup2(&actions, output.Writer(), STDOUT_FILENO);
  posix_spawn_file_actions_adddup2(&actions, errors.Writer(), STDERR_FILENO);
  const int problem = posix_spawnp(&child, command[0].c_str(), &actions, nullptr,
                                   Pointers(command).data(), Pointers(environment).data());
  posix_spawn_file_actions_destroy(&actions);
  if (problem != 0) child = -1;
  output.CloseWriter();
  errors.CloseWriter();
}

ChildProcess::~ChildProcess() {
  // What it still prints then has no reader.
  output.Close();
  errors.Close();
  ChildResult ignored;
  Wait(ignored);
}

ChildResult ChildProcess::Finish() {
  ChildResult result;
  if (child < 0) return result;
  result.started = true;
  ReadAll(result);
  Wait(result);
  return result;
}

void ChildProcess::ReadAll(ChildResult& result) {
  struct pollfd waiting[] = {{output.Reader(), POLLIN, 0}, {errors.Reader(), POLLIN, 0}};
  std::string* texts[] = {&result.output, &result.errors};
  std::vector<char> buffer(std::size_t{1} << 16);
  while (waiting[0].fd >= 0 || waiting[1].fd >= 0) {
    if (poll(waiting, 2, -1) < 0 && errno != EINTR) return;
    for (int i = 0; i < 2; ++i) {
      if (waiting[i].fd < 0 || waiting[i].revents == 0) continue;
      const ssize_t length = read(waiting[i].fd, buffer.data(), buffer.size());
      if (length > 0) {
        texts[i]->append(buffer.data(), static_cast<std::size_t>(length));
      } else if (length == 0 || errno != EINTR) {
        waiting[i].fd = -1;
      }
    }
  }
}

void ChildProcess::Wait(ChildResult& result) {
  if (child < 0) return;
  int status = 0;
  pid_t ended = -1;
  do {
    ended = waitpid(child, &status, 0);
  } while (ended < 0 && errno == EINTR);
  child = -1;
  if (ended < 0) {
    // Our own caller has the system discard exit statuses (it ignores SIGCHLD).
    result.status = result.errors.empty() ? 0 : -1;
  } else if (WIFEXITED(status)) {
    result.status = WEXITSTATUS(status);
  }
}

ChildResult RunChild(const std::vector<std::string>& command,
                     const std::vector<std::string>& environment) {
  return ChildProcess(command, environment).Finish();
}

}  // namespace vexltags
