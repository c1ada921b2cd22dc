// SPDX-License-Identifier: MIT
// Indexes one file: path, language by suffix, recogniser, reports.
#include "driver/process.h"

#include <sys/stat.h>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <string>

#include <antlr3.h>

#include "base/clock.h"
#include "base/path_resolver.h"
#include "base/paths.h"
#include "base/text.h"
#include "driver/language.h"
#include "driver/source_file.h"

namespace vexltags {
namespace {

/// The path as tags name it, and as files are opened by it. Keeps what was given when the file
/// cannot be resolved, so that a half-resolved prefix is never indexed by mistake.
std::string ResolvePath(const std::string& path) {
  static PathResolver resolver;  // One for the run: it remembers the folder of the last file.
  return path.empty() ? "<stdin>" : resolver.Resolve(path);
}

}  // namespace

void LastLineObserver::operator()(const std::string& line) {
  if (line.empty() || line[0] == '!') return;
  const std::size_t semicolon = line.find(';');
  if (semicolon == std::string::npos) return;
  const std::size_t tab = line.rfind('\t', semicolon);
  if (tab == std::string::npos) return;
  std::int64_t number = 0;
  for (std::size_t i = tab + 1; i < semicolon; ++i) {
    if (line[i] < '0' || line[i] > '9') return;
    if (number < INT32_MAX) number = number * 10 + (line[i] - '0');
  }
  if (number > INT32_MAX) number = INT32_MAX;
  if (number > *lastLine) *lastLine = static_cast<std::int32_t>(number);
}

int Process(const std::string& path, const Options& options, Dumper& dumper) {
  const std::string resolved = ResolvePath(path);
  const std::string stored =
      EscapePath(CanonicalizeHome(resolved.c_str(), options.cannonicalPaths));
  if (path.empty()) {
    std::fputs("reading from stdin not yet implemented\n", stderr);
    return -1;
  }
  static SourceFile source;  // One for the run: its buffer and its recognisers are used again.
  if (!source.Read(resolved)) {
    struct stat status;
    const bool isThere = stat(resolved.c_str(), &status) == 0;
    std::fprintf(stderr, "failed %s %s %s\n", isThere ? "reading" : "opening", path.c_str(),
                 resolved.c_str());
    return -1;
  }

  std::int32_t lastLine = -1;
  if (options.checkForFilesWithAbortedParse) dumper.SetPrintObserver(LastLineObserver{&lastLine});

  const long long start = microseconds();
  const RecognizerCounts counts = LanguageOf(path).run(source.Input(), options, dumper, stored);
  const long long end = microseconds();
  if (options.time) {
    std::printf("Time: %lldus\n", end - start);
    std::fflush(stdout);
  }
  const auto lastRead = static_cast<std::int32_t>(source.Input()->line);
  if ((counts.lexerErrors != 0 || counts.parserErrors != 0) &&
      options.checkForFilesWithAbortedParse && lastLine < lastRead - 20) {
    std::printf(
        "Parse aborted? Errors encountered while parsing file: %s %d lines, last symbol at line "
        "%d\n",
        path.c_str(), lastRead, lastLine);
  }
  return 0;
}

}  // namespace vexltags
