// SPDX-License-Identifier: MIT
// Benchmarks the tag sink: writing, collecting and sorting tag lines.
#include <benchmark/benchmark.h>

#include <cstdint>
#include <iterator>
#include <string>
#include <vector>

#include "base/options.h"
#include "output/dumper.h"
#include "parserstate/tag.h"

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

/// Collects the lines of tags, as the tag builders write them.
void CollectTags(benchmark::State& state) {
  for (auto step : state) {
    vexltags::Dumper dumper;
    for (std::size_t i = 0; i < kLines; ++i) {
      vexltags::Tag tag;
      tag.name = "some_function_name";
      tag.file = "/usr/include/library/part.h";
      tag.line = static_cast<std::int32_t>(i) + 1;
      tag.kind = 'p';
      tag.fields[0] = vexltags::ScopeField("class", "ns::Holder");
      vexltags::WriteTag(dumper, tag);
    }
    benchmark::DoNotOptimize(dumper.Lines().size());
  }
  state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(kLines));
}
BENCHMARK(CollectTags);

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
