// SPDX-License-Identifier: MIT
// The line that shows how far long work is.
#include "tree/progress.h"

#include <unistd.h>

#include <cstdio>

#include "base/clock.h"

namespace vexltags::tree {
namespace {

constexpr std::int64_t kFirstAfter = 400000;
constexpr std::int64_t kInterval = 100000;
constexpr double kMega = 1e6;

}  // namespace

std::string ProgressText(const std::string& verb, std::size_t filesDone, std::size_t files,
                         std::int64_t bytesDone, std::int64_t bytes, std::int64_t micros) {
  char text[160];
  const double rate = micros > 0 ? static_cast<double>(bytesDone) / static_cast<double>(micros) : 0;
  const double left = rate > 0 ? static_cast<double>(bytes - bytesDone) / rate / kMega : 0;
  std::snprintf(text, sizeof text, "%s %zu of %zu files, %.1f of %.1f MB, %.1f MB/s, %.0f s left",
                verb.c_str(), filesDone, files, static_cast<double>(bytesDone) / kMega,
                static_cast<double>(bytes) / kMega, rate, left);
  return text;
}

Progress::Progress(bool isQuiet) : isTerminal(!isQuiet && isatty(STDERR_FILENO) != 0) {}

void Progress::Begin(const std::string& newVerb, std::size_t fileCount, std::int64_t byteCount) {
  verb = newVerb;
  files = fileCount;
  bytes = byteCount;
  filesDone = 0;
  bytesDone = 0;
  start = microseconds();
}

void Progress::Add(std::int64_t count) {
  ++filesDone;
  bytesDone += count;
}

void Progress::Tick() {
  if (!isTerminal) return;
  const std::int64_t now = microseconds();
  if (now - start < kFirstAfter || now - shownAt < kInterval) return;
  shownAt = now;
  isShown = true;
  std::fprintf(stderr, "\r%s\x1b[K",
               ProgressText(verb, filesDone, files, bytesDone, bytes, now - start).c_str());
  std::fflush(stderr);
}

void Progress::Clear() {
  if (isShown) std::fputs("\r\x1b[K", stderr);
  isShown = false;
}

}  // namespace vexltags::tree
