// SPDX-License-Identifier: MIT
// Prints the tags and the recognisers' error counts of files: a test aid that shows whether two
// builds of the recognisers agree.
//
//   recognizer_probe FILE...     for each file a line "path: N lexer errors, N parser errors, line
//   N",
//                                then its tags
//   recognizer_probe -L LIST     the same for the paths in LIST, one a line
#include <cstdio>
#include <cstring>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

#include "driver/language.h"
#include "driver/source_file.h"

namespace {

void Probe(const std::string& path) {
  vexltags::Options options;
  options.sort = 0;
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
  if (argc == 3 && std::strcmp(argv[1], "-L") == 0) {
    std::ifstream list(argv[2]);
    for (std::string path; std::getline(list, path);) Probe(path);
    return 0;
  }
  for (int i = 1; i < argc; ++i) Probe(argv[i]);
  return 0;
}
