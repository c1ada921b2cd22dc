// SPDX-License-Identifier: MIT
// Benchmarks the lexers: text to token table, for each language.
#include <benchmark/benchmark.h>

#include <cstdint>
#include <string>

#include "lexers.h"
#include "sample_text.h"

namespace {

using vexltags::TokenTable;
using vexltags::bench::Lex;

constexpr std::size_t kSize = 256 * 1024;

Lex LexerOf(const std::string& language) {
  if (language == "swift") return vexltags::bench::LexSwift;
  if (language == "python") return vexltags::bench::LexPython;
  return vexltags::bench::LexMain;
}

void Run(benchmark::State& state, const std::string& language, bool byHand) {
  std::string text = vexltags::bench::SampleText(language, kSize);
  unsigned char name[] = "bench";
  const auto bytes = reinterpret_cast<pANTLR3_UINT8>(text.data());
  const pANTLR3_INPUT_STREAM input =
      antlr3StringStreamNew(bytes, ANTLR3_ENC_8BIT, static_cast<ANTLR3_UINT32>(text.size()), name);
  {
    TokenTable table(input);
    if (language == "swift") table.KeepNeighbours();
    const Lex lex = LexerOf(language);
    for (auto step : state) {
      input->reset(input);
      table.Reset();
      benchmark::DoNotOptimize(lex(input, table, byHand));
    }
    state.counters["tokens"] = static_cast<double>(table.Count());
  }
  input->close(input);
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(text.size()));
}

}  // namespace

int main(int argc, char** argv) {
  for (const std::string language : vexltags::bench::kLanguages) {
    for (const bool byHand : {true, false}) {
      const std::string name = (byHand ? "Lexer/" : "GeneratedLexer/") + language;
      benchmark::RegisterBenchmark(name.c_str(), Run, language, byHand);
    }
  }
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  benchmark::RunSpecifiedBenchmarks();
}
