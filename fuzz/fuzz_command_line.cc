// SPDX-License-Identifier: MIT
// Fuzz target: the command line scanner and the list of input paths.
//
// The input consists of the arguments, one per line, up to an empty line, and then the list file.
// The list is read from an unnamed file in memory; no file named by an argument is opened.
#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <string>
#include <string_view>
#include <vector>

#include "base/paths.h"
#include "base/text.h"
#include "driver/command_line.h"
#include "driver/input_list.h"

namespace {

/// Discards the output of the scanner, which would hide the fuzzer's own reports.
void SilenceOutput() {
  static std::FILE* const nowhere = std::freopen("/dev/null", "w", stdout);
  static_cast<void>(nowhere);
}

void Require(bool holds) {
  if (!holds) __builtin_trap();
}

void ReadList(std::string_view text) {
  const int file = memfd_create("list", MFD_CLOEXEC);
  if (file < 0) return;
  if (write(file, text.data(), text.size()) == static_cast<ssize_t>(text.size())) {
    std::vector<std::string> paths;
    vexltags::ReadInputList("/proc/self/fd/" + std::to_string(file), false, paths);
    for (const std::string& path : paths) {
      Require(!path.empty() && path.find('\n') == std::string::npos &&
              path.find('\0') == std::string::npos);
      const std::string escaped = vexltags::EscapePath(path);
      Require(escaped.size() >= path.size() && vexltags::EscapePath(escaped) == escaped);
      vexltags::CollapseWhitespace(path, " ");
    }
  }
  close(file);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  SilenceOutput();
  std::string_view text(reinterpret_cast<const char*>(data), size);
  std::vector<std::string> arguments;
  while (!text.empty() && text.front() != '\n') {
    const std::size_t end = text.find('\n');
    arguments.emplace_back(text.substr(0, end));
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
  }
  vexltags::CommandLine commandLine;
  const vexltags::ScanResult result = vexltags::ScanCommandLine(arguments, commandLine);
  Require(!arguments.empty() || result == vexltags::ScanResult::kDone);
  if (result == vexltags::ScanResult::kRun) {
    Require(commandLine.inputPaths.size() <= arguments.size());
    Require(commandLine.options.sort >= 0 && commandLine.options.sort <= 2);
  }
  ReadList(text);
  return 0;
}
