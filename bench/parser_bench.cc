// SPDX-License-Identifier: MIT
// Benchmarks lexer, parser and tag builder together: text to tag lines, for each language.
#include <benchmark/benchmark.h>
#include <stdlib.h>
#include <unistd.h>

#include <cstdint>
#include <cstdio>
#include <fstream>
#include <memory>
#include <string>

#include "driver/language.h"
#include "driver/source_file.h"
#include "engine/stack_guard.h"
#include "output/dumper.h"
#include "sample_text.h"

namespace {

constexpr std::size_t kSize = 256 * 1024;

/// A temporary folder; removed on destruction.
class Folder {
 public:
  Folder() {
    if (mkdtemp(path) == nullptr) std::perror("mkdtemp");
  }
  ~Folder() { rmdir(path); }
  Folder(const Folder&) = delete;
  Folder& operator=(const Folder&) = delete;
  std::string File(const std::string& name) const { return std::string(path) + "/" + name; }

 private:
  char path[32] = "/tmp/vexltags-bench-XXXXXX";
};

// Each iteration reads the file; that takes about a thousandth of its time.
void Run(benchmark::State& state, const std::string& path, const std::string& text) {
  vexltags::SourceFile source;
  std::unique_ptr<vexltags::LanguageReader> reader;
  std::ofstream(path, std::ios::binary) << text;
  const vexltags::Options options;
  const vexltags::Language& language = vexltags::LanguageOf(path);
  std::size_t lines = 0;
  vexltags::RecognizerCounts counts;
  for (auto step : state) {
    if (!source.Read(path)) {
      state.SkipWithError("cannot read the sample");
      break;
    }
    vexltags::Dumper dumper;
    if (!reader) reader = language.newReader(source.Input());
    counts = reader->Run(options, dumper, path, nullptr);
    lines = dumper.Lines().size();
  }
  unlink(path.c_str());
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(text.size()));
  state.counters["lines"] = static_cast<double>(lines);
  state.counters["errors"] = counts.lexerErrors + counts.parserErrors;
}

int RunAll(int argc, char** argv) {
  const Folder folder;
  for (const std::string language : vexltags::bench::kLanguages) {
    const std::string path = folder.File("sample") + vexltags::bench::SuffixOf(language);
    benchmark::RegisterBenchmark(("Recognizer/" + language).c_str(), Run, path,
                                 vexltags::bench::SampleText(language, kSize));
  }
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  return vexltags::RunOnLargeStack([argc, argv] { return RunAll(argc, argv); });
}
