// SPDX-License-Identifier: MIT
// Splits a stream of paths at newlines and NUL bytes.
#include "driver/input_list.h"

#include <cstdio>

namespace vexltags {
namespace {

void ReadEntries(std::FILE* stream, std::vector<std::string>& paths) {
  std::string entry;
  char buffer[1 << 16];
  for (std::size_t size; (size = std::fread(buffer, 1, sizeof buffer, stream)) != 0;) {
    std::size_t start = 0;
    for (std::size_t i = 0; i < size; ++i) {
      if (buffer[i] != '\n' && buffer[i] != '\0') continue;
      entry.append(buffer + start, i - start);
      start = i + 1;
      if (!entry.empty()) paths.push_back(std::move(entry));
      entry.clear();
    }
    entry.append(buffer + start, size - start);
  }
  if (!entry.empty()) paths.push_back(std::move(entry));
}

}  // namespace

void ReadInputList(const std::string& listPath, bool showName, std::vector<std::string>& paths) {
  if (listPath.empty()) {
    ReadEntries(stdin, paths);
    return;
  }
  std::FILE* stream = std::fopen(listPath.c_str(), "rbe");
  if (showName) std::fprintf(stderr, "Indexing: %s\n", listPath.c_str());
  if (stream == nullptr) return;
  ReadEntries(stream, paths);
  std::fclose(stream);
}

}  // namespace vexltags
