// SPDX-License-Identifier: MIT
// The steps of a run.
#include "driver/run.h"

#include <fcntl.h>
#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <new>
#include <string_view>
#include <utility>
#include <vector>

#include "driver/command_line.h"
#include "driver/input_list.h"
#include "driver/process.h"

namespace vexltags {
namespace {

/// Ignores the signals of failed writes. The writes then return errors, which the writer reports.
void IgnoreWriteSignals() {
  std::signal(SIGPIPE, SIG_IGN);
  std::signal(SIGXFSZ, SIG_IGN);
}

/// Replaces standard streams that the caller closed by descriptors on which every read or write
/// fails. Otherwise the next opened file would get their number, and messages would end up in the
/// tags file.
void FillStandardStreams() {
  for (const int fd : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
    if (fcntl(fd, F_GETFD) != -1) continue;
    if (open("/dev/null", fd == STDIN_FILENO ? O_WRONLY : O_RDONLY) != fd) return;
  }
}

/// Ends the run when memory runs out, with the status of any failed run. Must not allocate.
[[noreturn]] void EndWithoutMemory() {
  static constexpr std::string_view kMessage = "out of memory\n";
  const ssize_t written = write(STDERR_FILENO, kMessage.data(), kMessage.size());
  static_cast<void>(written);
  _exit(255);
}

/// Indexes all paths in order. Returns 0 if at least one succeeded, otherwise the last result.
int IndexFiles(const std::vector<std::string>& paths, const Options& options, Dumper& dumper,
               const FileIndexer& indexFile) {
  bool anySucceeded = false;
  int result = 0;
  for (const std::string& path : paths) {
    if (options.debugDumpFilenames) std::fprintf(stderr, "Indexing: %s\n", path.c_str());
    result = indexFile(path, dumper);
    if (result == 0) anySucceeded = true;
  }
  return anySucceeded ? 0 : result;
}

/// Reports a failed write to standard output, unless the run has already failed.
int FinishStandardOutput(int status) {
  const bool written = std::fflush(stdout) == 0 && std::ferror(stdout) == 0;
  if (written || status != 0) return status;
  std::fputs("error writing <stdout>\n", stderr);
  return -1;
}

int RunToStatus(const std::vector<std::string>& arguments, FileIndexer indexFile) {
  CommandLine commandLine;
  switch (ScanCommandLine(arguments, commandLine)) {
    case ScanResult::kDone:
      return 0;
    case ScanResult::kFailed:
      return -1;
    case ScanResult::kRun:
      break;
  }
  const Options& options = commandLine.options;

  std::vector<std::string> paths = std::move(commandLine.inputPaths);
  if (commandLine.hasListFile) {
    ReadInputList(commandLine.listPath, options.debugDumpFilenames, paths);
  }

  Indexer indexer(options, paths);
  if (!indexFile) {
    indexFile = [&indexer](const std::string& path, Dumper& sink) {
      return indexer.Process(path, sink);
    };
  }
  Dumper dumper;
  if (commandLine.hasOutputFile) dumper.SetOutput(commandLine.outputPath);
  // If there are no paths, an empty path makes the indexer print the appropriate message.
  const int status =
      paths.empty() ? indexFile("", dumper) : IndexFiles(paths, options, dumper, indexFile);
  return status == 0 ? dumper.Dump(options) : status;
}

}  // namespace

void PrepareProcess() {
  IgnoreWriteSignals();
  FillStandardStreams();
  std::set_new_handler(EndWithoutMemory);
}

int Run(int argc, const char* const* argv, FileIndexer indexFile) {
  PrepareProcess();
  const std::vector<std::string> arguments(argv + (argc > 0 ? 1 : 0), argv + argc);
  return FinishStandardOutput(RunToStatus(arguments, std::move(indexFile)));
}

}  // namespace vexltags
