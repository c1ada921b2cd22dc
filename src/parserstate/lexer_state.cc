// SPDX-License-Identifier: MIT
// The token filter's hash and the time limits of one file.
#include "parserstate/lexer_state.h"

#include <cstdio>
#include <cstring>

#include "base/clock.h"

namespace vexltags {

namespace {

double Seconds(std::int64_t microsecondCount) {
  return static_cast<double>(microsecondCount) / 1000000;
}

}  // namespace

std::size_t TagsLexerState::constCharHash::operator()(const char* text) const {
  std::uint64_t hash = 0xcbf29ce484222325;
  for (; *text != '\0'; ++text) {
    hash ^= static_cast<unsigned char>(*text);
    hash *= 0x100000001b3;
  }
  return hash;
}

bool TagsLexerState::equstr::operator()(const char* a, const char* b) const {
  return std::strcmp(a, b) == 0;
}

TagsLexerState::TagsLexerState(const std::string& path, long reportLimit, long abortLimit)
    : fileName(path),
      startTime(microseconds()),
      reportIfLonger(reportLimit),
      abortIfLonger(abortLimit) {}

TagsLexerState::~TagsLexerState() {
  if (reportIfLonger <= 0 || aborted) return;
  const std::int64_t elapsed = microseconds() - startTime;
  if (elapsed <= reportIfLonger) return;
  std::fprintf(stderr, "Spent %.4f parsing %s\n", Seconds(elapsed), fileName.c_str());
}

bool TagsLexerState::CheckRunningTooLong() const {
  if (abortIfLonger == 0) return false;
  if (aborted) return true;
  const std::int64_t elapsed = microseconds() - startTime;
  if (elapsed <= abortIfLonger) return false;
  std::fprintf(stderr, "Have been parsing %s for over %.4f seconds -- skipping\n", fileName.c_str(),
               Seconds(elapsed));
  aborted = true;
  return true;
}

bool TagsLexerState::CheckWatchdog(const std::string&) const {
  return limitsItems && CheckRunningTooLong();
}

}  // namespace vexltags
