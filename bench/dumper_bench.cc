// SPDX-License-Identifier: MIT
// Benchmarks the tag sink: collecting, sorting and writing tag lines.
#include <benchmark/benchmark.h>

#include <cstdint>
#include <iterator>
#include <string>
#include <vector>

#include "base/options.h"
#include "output/dumper.h"

namespace {

constexpr std::size_t kLines = 20000;

/// Tag lines like those of C headers: grouped by file, with common name prefixes.
std::vector<std::string> Lines() {
  static const char* const kHeads[] = {"SDL_", "gtk_widget_", "pthread_", "XML_PARSE_", "k", "_"};
  std::vector<std::string> lines;
  std::uint64_t random = 1;
  for (std::size_t i = 0; i < kLines; ++i) {
    random = random * 6364136223846793005U + 1442695040888963407U;
    lines.push_back(kHeads[(random >> 33) % std::size(kHeads)] + std::to_string(random >> 40) +
                    "\t/usr/include/library/part" + std::to_string(i / 100) + ".h\t" +
                    std::to_string(i % 100 * 7 + 1) + ";\"\tp\n");
  }
  return lines;
}

std::int64_t SizeOf(const std::vector<std::string>& lines) {
  std::int64_t size = 0;
  for (const std::string& line : lines) size += static_cast<std::int64_t>(line.size());
  return size;
}

void Collect(benchmark::State& state) {
  const std::vector<std::string> lines = Lines();
  for (auto step : state) {
    vexltags::Dumper dumper;
    for (const std::string& line : lines) dumper.Print(line);
    benchmark::DoNotOptimize(dumper.Lines().size());
  }
  state.SetBytesProcessed(state.iterations() * SizeOf(lines));
}
BENCHMARK(Collect);

/// Collects lines in several pieces, as the tag builders print them.
void CollectPieces(benchmark::State& state) {
  for (auto step : state) {
    vexltags::Dumper dumper;
    for (std::size_t i = 0; i < kLines; ++i) {
      dumper.PrintFormat("%s\t%s\t%d;\"\t%c", "some_function_name", "/usr/include/library/part.h",
                         static_cast<int>(i), 'p');
      dumper.Print("\tclass:ns::Holder");
      dumper.Print("\n");
    }
    benchmark::DoNotOptimize(dumper.Lines().size());
  }
  state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(kLines));
}
BENCHMARK(CollectPieces);

/// Collects the lines, sorts them in order `range(0)` and writes them to /dev/null. Subtract
/// `Collect` to get the time of sorting and writing.
void CollectAndDump(benchmark::State& state) {
  const std::vector<std::string> lines = Lines();
  vexltags::Options options;
  options.sort = static_cast<std::int32_t>(state.range(0));
  for (auto step : state) {
    vexltags::Dumper dumper;
    dumper.SetOutput("/dev/null");
    for (const std::string& line : lines) dumper.Print(line);
    if (dumper.Dump(options) != 0) state.SkipWithError("cannot write");
  }
  state.SetBytesProcessed(state.iterations() * SizeOf(lines));
}
BENCHMARK(CollectAndDump)->ArgName("sort")->Arg(0)->Arg(1)->Arg(2);

}  // namespace

BENCHMARK_MAIN();
