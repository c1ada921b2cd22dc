// SPDX-License-Identifier: MIT
// Indexes a file: resolves its path, reads it, runs the recogniser and reports.
#include "driver/process.h"

#include <sys/stat.h>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <string>

#include <antlr3.h>

#include "base/clock.h"
#include "base/paths.h"
#include "base/text.h"

namespace vexltags {
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

Indexer::Indexer(const Options& options, const std::vector<std::string>& paths) : options(options) {
  if (options.thorough) session.emplace(options, paths);
}

LanguageReader& Indexer::ReaderOf(const Language& language) {
  for (const auto& [newReader, reader] : readers) {
    if (newReader == language.newReader) return *reader;
  }
  readers.emplace_back(language.newReader, language.newReader(source.Input()));
  return *readers.back().second;
}

int Indexer::Process(const std::string& path, Dumper& dumper) {
  const std::string resolved = path.empty() ? "<stdin>" : resolver.Resolve(path);
  const std::string stored =
      EscapePath(CanonicalizeHome(resolved.c_str(), options.cannonicalPaths));
  if (path.empty()) {
    std::fputs("reading from stdin not yet implemented\n", stderr);
    return -1;
  }
  if (!source.Read(resolved)) {
    struct stat status;
    const bool isThere = stat(resolved.c_str(), &status) == 0;
    std::fprintf(stderr, "failed %s %s %s\n", isThere ? "reading" : "opening", path.c_str(),
                 resolved.c_str());
    return -1;
  }

  std::int32_t lastLine = -1;
  if (options.checkForFilesWithAbortedParse) dumper.SetPrintObserver(LastLineObserver{&lastLine});

  const Language& language = LanguageOf(path);
  Reading* const reading =
      session && language.reading ? (*session.*language.reading)(path) : nullptr;

  const long long start = microseconds();
  const RecognizerCounts counts = ReaderOf(language).Run(options, dumper, stored, reading);
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
