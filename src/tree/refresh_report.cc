// SPDX-License-Identifier: MIT
// Reports why tags can be missing.
#include <algorithm>
#include <cstdio>
#include <map>

#include "tree/refresh.h"

namespace vexltags::tree {
namespace {

/// Files whose last tag is this many lines before their end may have been given up.
constexpr std::int32_t kLinesWithoutTags = 20;

}  // namespace

void Refresh::PrintReport() {
  std::FILE* const out = options.output == "-" ? stderr : stdout;
  std::map<std::string, std::pair<std::size_t, std::string>> unknown;
  for (std::size_t i = 0; i < sourceCount; ++i) {
    const TreeFile& file = files[i];
    FileInfo info;
    if (!file.IsRead() || (!file.result && !DecodeInfo(file.row.info, info))) continue;
    if (file.result) info = file.result->info;
    if (info.skipped > 0) {
      std::fprintf(
          out, "%s:%d: could not be read as a declaration; %u token%s skipped in the file\n",
          file.path.c_str(), info.firstSkipped, info.skipped, info.skipped == 1 ? "" : "s");
    } else if (options.isExact && info.lexerErrors + info.parserErrors > 0 &&
               info.lastTag < info.lines - kLinesWithoutTags) {
      std::fprintf(out, "%s:%d: the last tag of %d lines; reading broke off\n", file.path.c_str(),
                   info.lastTag, info.lines);
    }
    for (std::size_t at = 0; at < info.unknownWords.size();) {
      const std::size_t end = info.unknownWords.find('\n', at);
      auto& [count, path] = unknown[info.unknownWords.substr(at, end - at)];
      if (count++ == 0) path = file.path;
      at = end + 1;
    }
  }
  for (const auto& [word, seen] : unknown) {
    std::fprintf(
        out, "unknown macro? %s in %s%s\n", word.c_str(), seen.second.c_str(),
        seen.first == 1 ? "" : (" and " + std::to_string(seen.first - 1) + " more").c_str());
  }
  if (!session) return;
  std::map<std::string, std::string> learned;
  session->Macros().ForEach([&](std::string_view name, const thorough::MacroDefinition& first) {
    if (first.file != 0) learned.emplace(name, session->FileAt(first.file));
  });
  for (const auto& [name, path] : learned) {
    std::fprintf(out, "learned macro %s in %s\n", name.c_str(), path.c_str());
  }
  std::fflush(out);
}

}  // namespace vexltags::tree
