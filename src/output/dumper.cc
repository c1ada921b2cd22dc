// SPDX-License-Identifier: MIT
// Assembles tag lines and writes them when the run ends.
#include "output/dumper.h"

#include <sys/stat.h>

#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <optional>
#include <utility>

#include "base/paths.h"
#include "output/file_writer.h"
#include "output/line_order.h"
#include "output/relative_path.h"
#include "output/tags_format.h"

namespace vexltags {

void Dumper::SetOutput(const std::string& path) { outputPath = path; }

void Dumper::SetPrintObserver(std::function<void(const std::string&)> observer) {
  printObserver = std::move(observer);
}

void Dumper::CompleteLine() {
  if (printObserver) printObserver(pending);
  lines.Add(pending);
  pending.clear();
}

void Dumper::PrintFormat(const char* format, ...) {
  char buffer[kLongestPiece + 1];
  va_list arguments;
  va_start(arguments, format);
  const int length = std::vsnprintf(buffer, sizeof buffer, format, arguments);
  va_end(arguments);
  if (length >= 0) Print(buffer);
}

void Dumper::PrintPiece(std::initializer_list<std::string_view> parts) {
  std::size_t size = 0;
  for (const std::string_view part : parts) size += part.size();
  if (size <= kLongestPiece) {
    char piece[kLongestPiece];
    char* end = piece;
    for (const std::string_view part : parts) end += part.copy(end, part.size());
    if (std::memchr(piece, '\0', size) == nullptr) return Print({piece, size});
  }
  // A part ends at its first NUL byte, as a C string does.
  std::string piece;
  for (const std::string_view part : parts) piece += part.substr(0, part.find('\0'));
  Print(std::string_view(piece).substr(0, kLongestPiece));
}

std::string Dumper::FileName(const Options& options, const std::string& path) const {
  if (!options.tagRelative) return path;
  // The environment is read until it yields a value, and never again.
  static std::string home;
  static std::string cwd;
  if (home.empty()) {
    const std::optional<std::string> prefix = HomePrefix(options.cannonicalPaths);
    if (!prefix) std::puts("No $HOME!");
    home = prefix.value_or("");
  }
  if (cwd.empty()) cwd = WorkingDirectory();
  return RelativeToWorkingDirectory(path, home, cwd);
}

int Dumper::Dump(const Options& options) {
  bool exists = false;
  if (!outputPath.empty()) {
    struct stat info;
    exists = stat(outputPath.c_str(), &info) == 0;
    MakeParentDirForPathIfNeeded(outputPath);
  }
  const bool unsorted = options.sort == 0;
  const bool append = options.append && exists && unsorted;
  const bool merge = options.append && exists && !unsorted;
  const bool header = !(options.append && unsorted);

  const char* failed = merge && !ReadOldLines() ? "opening" : nullptr;
  if (failed == nullptr) {
    SortLines(lines.Lines(), options.sort);
    failed = Write(options, append, header);
  }
  if (failed == nullptr) return 0;
  std::fprintf(stderr, "error %s %s\n", failed,
               outputPath.empty() ? "<stdout>" : outputPath.c_str());
  return -1;
}

// Adds the lines of the existing file, except its header. False if it cannot be read.
bool Dumper::ReadOldLines() {
  std::ifstream file(outputPath, std::ios::binary);
  if (!file) return false;
  std::string line;
  while (std::getline(file, line)) {
    if (!line.empty() && line.front() != '!') lines.Add(line + '\n');
  }
  return !file.bad();
}

// What failed, as the message names it; null when nothing did.
const char* Dumper::Write(const Options& options, bool append, bool header) const {
  FileWriter writer;
  if (outputPath.empty()) {
    writer.OpenStandardOutput();
  } else if (!writer.OpenFile(outputPath,
                              append ? FileWriter::Mode::Append : FileWriter::Mode::Replace)) {
    return "opening";
  }

  bool good = !header || writer.Write(TagsHeader(options.sort));
  for (auto line = lines.Lines().begin(); good && line != lines.Lines().end(); ++line) {
    good = writer.Write(*line);
  }
  if (good && writer.Close()) return nullptr;
  writer.Abandon();
  return "writing";
}

}  // namespace vexltags
