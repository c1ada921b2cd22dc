// SPDX-License-Identifier: MIT
// Prints the tags and the recognisers' error counts of files: a test aid that shows whether two
// builds of the recognisers agree.
//
//   recognizer_probe [--dumpErrors] FILE...
//   recognizer_probe [--dumpErrors] -L LIST     the paths in LIST, one a line
//
// For each file, prints a line "path: N lexer errors, N parser errors, line N", then its tags. With
// --dumpErrors, the messages of the recognisers go to standard error.
#include <cstdio>
#include <cstring>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

#include "driver/language.h"
#include "driver/source_file.h"

namespace {

void Probe(const std::string& path, const vexltags::Options& options) {
  vexltags::SourceFile source;
  if (!source.Read(path)) {
    std::printf("%s: unreadable\n", path.c_str());
    return;
  }
  vexltags::Dumper dumper;
  const std::unique_ptr<vexltags::LanguageReader> reader =
      vexltags::LanguageOf(path).newReader(source.Input());
  const vexltags::RecognizerCounts counts = reader->Run(options, dumper, path, nullptr);
  std::printf("%s: %u lexer errors, %u parser errors, line %u\n", path.c_str(), counts.lexerErrors,
              counts.parserErrors, source.Input()->line);
  for (const std::string& line : dumper.Lines()) std::fwrite(line.data(), 1, line.size(), stdout);
}

}  // namespace

int main(int argc, char** argv) {
  vexltags::Options options;
  options.sort = 0;
  int first = 1;
  if (argc > 1 && std::strcmp(argv[1], "--dumpErrors") == 0) {
    options.dumpErrors = true;
    ++first;
  }
  if (argc == first + 2 && std::strcmp(argv[first], "-L") == 0) {
    std::ifstream list(argv[first + 1]);
    for (std::string path; std::getline(list, path);) Probe(path, options);
    return 0;
  }
  for (int i = first; i < argc; ++i) Probe(argv[i], options);
  return 0;
}
