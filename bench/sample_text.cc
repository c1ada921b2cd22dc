// SPDX-License-Identifier: MIT
// Source text of any length for the micro-benchmarks.
#include "sample_text.h"

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <vector>

namespace vexltags::bench {
namespace {

std::vector<std::string> BlocksOf(const std::string& language) {
  std::ifstream file(std::string(VEXLTAGS_BENCH_SAMPLES) + "/" + language + ".txt");
  std::vector<std::string> blocks(1);
  for (std::string line; std::getline(file, line);) {
    if (line == "%%") {
      blocks.emplace_back();
    } else {
      blocks.back() += line + '\n';
    }
  }
  if (blocks.size() > 1) return blocks;
  std::fprintf(stderr, "no sample of %s in %s\n", language.c_str(), VEXLTAGS_BENCH_SAMPLES);
  std::exit(1);
}

void AppendBlock(std::string& text, const std::string& block, std::size_t number) {
  static const char* const kWords[] = {"alpha", "buffer", "engine", "matrix", "queue", "window"};
  const std::string word = kWords[number % std::size(kWords)];
  for (std::size_t at = 0; at < block.size(); ++at) {
    const char next = at + 1 < block.size() && block[at] == '@' ? block[at + 1] : '\0';
    if (next == 'N') text += std::to_string(number);
    if (next == 'W') text += word;
    if (next == 'N' || next == 'W') {
      ++at;
    } else {
      text += block[at];
    }
  }
}

}  // namespace

std::string SampleText(const std::string& language, std::size_t size) {
  const std::vector<std::string> blocks = BlocksOf(language);
  const std::size_t middle = blocks.size() - 2;
  std::string text;
  AppendBlock(text, blocks.front(), 0);
  std::size_t number = 0;
  for (; text.size() < size; ++number) AppendBlock(text, blocks[1 + number % middle], number);
  AppendBlock(text, blocks.back(), number);
  return text;
}

const char* SuffixOf(const std::string& language) {
  if (language == "c") return ".h";
  if (language == "cxx") return ".hpp";
  if (language == "objc") return ".m";
  return language == "swift" ? ".swift" : ".py";
}

}  // namespace vexltags::bench
