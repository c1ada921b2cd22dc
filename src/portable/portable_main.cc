// SPDX-License-Identifier: MIT
// The command line of vexltags-portable.
#include <stdlib.h>
#include <sys/stat.h>
#include <unistd.h>

#include <climits>
#include <cstdio>
#include <memory>
#include <new>
#include <string>
#include <string_view>
#include <vector>

#include "base/version.h"
#include "portable/rewrite.h"

namespace vexltags {
namespace {

constexpr char kUsage[] =
    R"(Usage: vexltags-portable [file]
       vexltags-portable -i file...

Rewrites a vexltags tags file for readers that are strict about the format.
Reads standard input if the file is "-" or missing. Writes to standard output.

  -i, --in-place                   Rewrite the files in place.
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

int Refuse(const std::string& path, const char* why) {
  std::fprintf(stderr, "%s %s\n", path.c_str(), why);
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
  // As in any filter, the lines before a malformed one are still written.
  if (!output.Close()) return Fail("writing", "<stdout>");
  return status;
}

/// Rewrites the file at `path` or, for a symbolic link, the file it refers to. On failure the file
/// is unchanged.
int RewriteInPlace(const std::string& path) {
  char resolved[PATH_MAX];
  struct stat status;
  if (!realpath(path.c_str(), resolved) || stat(resolved, &status) != 0) {
    return Fail("opening", path);
  }
  // Opening a pipe would block, and a device cannot be replaced by a file.
  if (!S_ISREG(status.st_mode)) return Refuse(path, "is not a regular file");
  const File file(std::fopen(resolved, "rbe"));
  if (!file) return Fail("opening", path);
  FileWriter output;
  if (!output.OpenReplacement(path)) return Fail("creating a temporary file for", path);
  const int result = RewriteTags(file.get(), OptionsFor(path), output);
  if (result == 0) output.Close();
  return output.HasFailed() ? Fail("writing", path) : result;
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
      std::fprintf(stderr, "unexpected second file %s\n", paths[1].c_str());
      return -1;
    }
    return Filter(paths.empty() ? "-" : paths[0]);
  }
  if (paths.empty()) {
    std::fputs("-i needs at least one file\n", stderr);
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
  try {
    return vexltags::Run(std::vector<std::string>(argv + (argc > 0 ? 1 : 0), argv + argc));
  } catch (const std::bad_alloc&) {
    std::fputs("out of memory\n", stderr);
    return -1;
  }
}
