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
  if (options.thorough) session = &ownSession.emplace(options, paths);
}

Indexer::Indexer(const Options& options, thorough::Session& session)
    : options(options), session(&session) {}

LanguageReader& Indexer::ReaderOf(const Language& language) {
  for (const auto& [newReader, reader] : readers) {
    if (newReader == language.newReader) return *reader;
  }
  readers.emplace_back(language.newReader, language.newReader(source.Input()));
  return *readers.back().second;
}

Reading* Indexer::ReadingOf(const Language& language, const std::string& path) {
  return session != nullptr && language.reading ? (session->*language.reading)(path) : nullptr;
}

bool Indexer::IndexText(const std::string& path, const std::string& languagePath,
                        std::string_view text, Dumper& dumper) {
  if (!source.Take(path, text)) return false;
  const Language& language = LanguageOf(languagePath);
  ReaderOf(language).Run(options, dumper, "-", ReadingOf(language, path));
  return true;
}

FileOutcome Indexer::Index(const std::string& path, Dumper& dumper,
                           const std::function<void(std::string_view text)>& onText,
                           const KnownFile* known) {
  FileOutcome outcome;
  outcome.resolved = path.empty() ? "<stdin>" : resolver.Resolve(path);
  outcome.stored =
      known != nullptr
          ? known->stored
          : EscapePath(CanonicalizeHome(outcome.resolved.c_str(), options.cannonicalPaths));
  outcome.isRead =
      !path.empty() && (known != nullptr && known->text ? source.Take(path, *known->text)
                                                        : source.Read(outcome.resolved));
  if (!outcome.isRead) return outcome;
  if (onText) onText(source.Text());

  const Language& language = LanguageOf(path);
  Reading* const reading = ReadingOf(language, path);

  const long long start = microseconds();
  outcome.counts = ReaderOf(language).Run(options, dumper, outcome.stored, reading);
  outcome.microseconds = microseconds() - start;
  outcome.lines = static_cast<std::int32_t>(source.Input()->line);
  if (reading != nullptr && language.newReader == LanguageOf("").newReader) {
    outcome.skipped = session->Skipped();
  }
  return outcome;
}

int Indexer::Process(const std::string& path, Dumper& dumper) {
  std::int32_t lastLine = -1;
  const auto observe = [this, &dumper, &lastLine](std::string_view) {
    if (options.checkForFilesWithAbortedParse) dumper.SetPrintObserver(LastLineObserver{&lastLine});
  };
  const FileOutcome outcome = Index(path, dumper, observe);
  if (path.empty()) {
    std::fputs("reading from stdin not yet implemented\n", stderr);
    return -1;
  }
  if (!outcome.isRead) {
    struct stat status;
    const bool isThere = stat(outcome.resolved.c_str(), &status) == 0;
    std::fprintf(stderr, "failed %s %s %s\n", isThere ? "reading" : "opening", path.c_str(),
                 outcome.resolved.c_str());
    return -1;
  }
  if (options.time) {
    std::printf("Time: %lldus\n", static_cast<long long>(outcome.microseconds));
    std::fflush(stdout);
  }
  const RecognizerCounts& counts = outcome.counts;
  if ((counts.lexerErrors != 0 || counts.parserErrors != 0) &&
      options.checkForFilesWithAbortedParse && lastLine < outcome.lines - 20) {
    std::printf(
        "Parse aborted? Errors encountered while parsing file: %s %d lines, last symbol at line "
        "%d\n",
        path.c_str(), outcome.lines, lastLine);
  }
  return 0;
}

}  // namespace vexltags
