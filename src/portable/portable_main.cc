// SPDX-License-Identifier: MIT
// The command line of vexltags-portable.
#include <stdlib.h>
#include <sys/stat.h>
#include <unistd.h>

#include <climits>
#include <cstdio>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "driver/version.h"
#include "portable/rewrite.h"

namespace vexltags {
namespace {

constexpr char kUsage[] =
    R"(Usage: vexltags-portable [file]
       vexltags-portable -i file...

Rewrites a tags file of vexltags for readers that are strict about the format.
Without a file, or for "-", reads standard input. Writes to standard output.

  -i, --in-place                   Rewrite the files themselves.
  -h, --help                       Show help.
  -v, --version                    Show version.
)";

struct CloseFile {
  void operator()(std::FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, CloseFile>;

int Fail(const char* what, const std::string& path) {
  std::fprintf(stderr, "error %s %s\n", what, path.c_str());
  return -1;
}

int Show(const char* text) {
  std::fputs(text, stdout);
  return std::fflush(stdout) == 0 ? 0 : Fail("writing", "<stdout>");
}

RewriteOptions OptionsFor(const std::string& inputName) {
  const char* home = std::getenv("HOME");
  std::string directory = home == nullptr ? "" : home;
  while (directory.size() > 1 && directory.back() == '/') directory.pop_back();
  return {directory, inputName};
}

/// Rewrites to standard output; `path` is "-" for standard input.
int Filter(const std::string& path) {
  File file;
  std::FILE* input = stdin;
  if (path != "-") {
    file.reset(std::fopen(path.c_str(), "rbe"));
    if (!file) return Fail("opening", path);
    input = file.get();
  }
  FileWriter output;
  output.OpenStandardOutput();
  const int status = RewriteTags(input, OptionsFor(path == "-" ? "<stdin>" : path), output);
  // What was read before a line that is no tag goes out all the same, as in any filter.
  if (!output.Close()) return Fail("writing", "<stdout>");
  return status;
}

/// Rewrites the file `path`, behind a link the file that it leads to. On failure the file stays as
/// it was.
int RewriteInPlace(const std::string& path) {
  char resolved[PATH_MAX];
  const File file(realpath(path.c_str(), resolved) ? std::fopen(resolved, "rbe") : nullptr);
  struct stat status;
  if (!file || fstat(fileno(file.get()), &status) != 0) return Fail("opening", path);
  std::string scratch = std::string(resolved) + ".XXXXXX";
  const int descriptor = mkstemp(scratch.data());
  if (descriptor < 0) return Fail("opening", scratch);
  const bool sameMode = fchmod(descriptor, status.st_mode & 07777) == 0;
  close(descriptor);
  FileWriter output;
  int result = -1;
  if (!sameMode || !output.OpenFile(scratch, FileWriter::Mode::Truncate)) {
    Fail("opening", scratch);
  } else {
    result = RewriteTags(file.get(), OptionsFor(path), output);
    // A failed write shows here as well.
    const bool closed = output.Close();
    if (!closed || (result == 0 && std::rename(scratch.c_str(), resolved) != 0)) {
      result = Fail("writing", path);
    }
  }
  if (result != 0) unlink(scratch.c_str());
  return result;
}

int Run(const std::vector<std::string>& arguments) {
  bool inPlace = false;
  bool optionsEnded = false;
  std::vector<std::string> paths;
  for (const std::string& arg : arguments) {
    if (optionsEnded || arg == "-" || !arg.starts_with('-')) {
      paths.push_back(arg);
    } else if (arg == "--") {
      optionsEnded = true;
    } else if (arg == "-i" || arg == "--in-place") {
      inPlace = true;
    } else if (arg == "-h" || arg == "--help") {
      return Show(kUsage);
    } else if (arg == "-v" || arg == "--version") {
      return Show((std::string("vexltags-portable v") + kVersion + "\n").c_str());
    } else {
      std::fprintf(stderr, "unknown option %s\n", arg.c_str());
      return -1;
    }
  }
  if (!inPlace) {
    if (paths.size() > 1) {
      std::fprintf(stderr, "one file expected, saw %s too\n", paths[1].c_str());
      return -1;
    }
    return Filter(paths.empty() ? "-" : paths[0]);
  }
  if (paths.empty()) {
    std::fputs("expected a file to rewrite in place\n", stderr);
    return -1;
  }
  int result = 0;
  for (const std::string& path : paths) {
    if (RewriteInPlace(path) != 0) result = -1;
  }
  return result;
}

}  // namespace
}  // namespace vexltags

int main(int argc, char** argv) {
  return vexltags::Run(std::vector<std::string>(argv + (argc > 0 ? 1 : 0), argv + argc));
}
