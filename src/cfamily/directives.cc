// SPDX-License-Identifier: MIT
// Predicates for conditional directives, and scans by lines for their ends.
#include "cfamily/directives.h"

#include "base/byte_search.h"
#include "base/character_class.h"

namespace vexltags {
namespace {

constexpr std::size_t kNone = std::string_view::npos;

void SkipBlanks(std::string_view& ahead) {
  std::size_t n = 0;
  while (n < ahead.size() && IsBlank(ahead[n])) ++n;
  ahead.remove_prefix(n);
}

bool Skip(std::string_view& ahead, std::string_view word) {
  if (!ahead.starts_with(word)) return false;
  ahead.remove_prefix(word.size());
  return true;
}

// Removes `#`, blanks and `word` from the front of `ahead`.
bool SkipDirective(std::string_view& ahead, std::string_view word) {
  if (!Skip(ahead, "#")) return false;
  SkipBlanks(ahead);
  return Skip(ahead, word);
}

// The same with at least one blank after the word.
bool SkipDirectiveWithArgument(std::string_view& ahead, std::string_view word) {
  if (!SkipDirective(ahead, word) || ahead.empty() || !IsBlank(ahead[0])) return false;
  SkipBlanks(ahead);
  return true;
}

// The offset past the line end at `pos`; `pos` itself when there is none.
std::size_t SkipLineEnd(std::string_view text, std::size_t pos) {
  const char* const begin = text.data();
  return static_cast<std::size_t>(PastLineEnd(begin + pos, begin + text.size()) - begin);
}

// True for the opening of a nested conditional, which has no blanks before the `#`.
bool OpensConditional(std::string_view ahead) { return SkipDirective(ahead, "if"); }

// Returns the offset past the `#endif` line of the conditional that opens at `pos`; npos when there
// is none, which is recorded in `memo`.
std::size_t EndOfNestedConditional(std::string_view text, std::size_t pos, ConditionalMemo& memo) {
  std::vector<std::size_t> passes;  // The offsets that the scan has passed in open conditionals.
  std::vector<std::size_t> open_passes;  // The size of `passes` at the start of each open one.
  while (pos < text.size()) {
    if (!open_passes.empty()) {
      if (memo.IsUnclosedFrom(pos)) break;
      passes.push_back(pos);
    }
    const std::string_view ahead = text.substr(pos);
    const char c = ahead[0];
    if (c == '/') {
      const std::size_t end = EndOfComment(text, pos, memo);
      pos = end != kNone ? end : EndOfLogicalLine(text, pos);
    } else if ((c == '#' || IsBlank(c)) && EndifMatch(ahead)) {
      pos = EndOfLogicalLine(text, pos);
      passes.resize(open_passes.back());
      open_passes.pop_back();
      if (open_passes.empty()) return pos;
    } else {
      if (c == '#' && OpensConditional(ahead)) open_passes.push_back(passes.size());
      pos = EndOfLogicalLine(text, pos);
    }
  }
  memo.MarkUnclosed(passes, text.size());
  return kNone;
}

}  // namespace

bool IfZeroMatch(std::string_view ahead) {
  return SkipDirectiveWithArgument(ahead, "if") && ahead.starts_with('0');
}

bool IfDefinedWellKnownNegative(std::string_view ahead) {
  return SkipDirectiveWithArgument(ahead, "ifdef") &&
         (ahead.starts_with("_LIBCPP_HAS_NO_THREADS") || ahead.starts_with("_LIBCPP_CXX03_LANG"));
}

bool ElifZeroMatch(std::string_view ahead) {
  return SkipDirectiveWithArgument(ahead, "elif") && ahead.starts_with('0');
}

bool EndifMatch(std::string_view ahead) {
  SkipBlanks(ahead);
  return SkipDirective(ahead, "endif");
}

bool EndifOrElifOrElseMatch(std::string_view ahead) {
  SkipBlanks(ahead);
  if (!Skip(ahead, "#")) return false;
  SkipBlanks(ahead);
  return ahead.starts_with("endif") || ahead.starts_with("else") || ahead.starts_with("elif");
}

std::size_t ConditionalMemo::CommentClose(std::string_view text, std::size_t from) {
  const bool known = searched_ && search_from_ <= from && from <= search_hit_;
  if (!known) {
    searched_ = true;
    search_from_ = from;
    search_hit_ = text.find("*/", from);
  }
  return search_hit_;
}

void ConditionalMemo::MarkUnclosed(const std::vector<std::size_t>& positions, std::size_t size) {
  unclosed_.resize(size);
  for (const std::size_t position : positions) unclosed_[position] = true;
}

std::size_t EndOfLogicalLine(std::string_view text, std::size_t pos) {
  while (pos < text.size()) {
    const char c = text[pos++];
    if (IsLineEnd(c)) break;
    if (c == '\\') pos = SkipLineEnd(text, pos);
  }
  return pos;
}

std::size_t EndOfComment(std::string_view text, std::size_t pos, ConditionalMemo& memo) {
  const std::string_view ahead = text.substr(pos);
  if (ahead.starts_with("/*")) {
    const std::size_t close = memo.CommentClose(text, pos + 2);
    return close == kNone ? kNone : close + 2;
  }
  if (!ahead.starts_with("//")) return kNone;
  while (pos < text.size() && !IsLineEnd(text[pos])) ++pos;
  return pos < text.size() ? SkipLineEnd(text, pos) : kNone;
}

std::size_t EndOfConditional(std::string_view text, std::size_t pos, ConditionalMemo& memo) {
  // An unclosed nested conditional extends to the end of the text, and so does everything around
  // it. A count is therefore enough.
  std::size_t open = 1;
  while (pos < text.size()) {
    const std::string_view ahead = text.substr(pos);
    const char c = ahead[0];
    std::size_t end = kNone;
    if (c == '/') {
      end = EndOfComment(text, pos, memo);
    } else if (c == '#' && OpensConditional(ahead)) {
      ++open;
    } else if ((c == '#' || IsBlank(c)) && EndifMatch(ahead)) {
      --open;
    }
    pos = end != kNone ? end : EndOfLogicalLine(text, pos);
    if (open == 0) return pos;
  }
  return kNone;
}

std::size_t EndOfIfZeroBody(std::string_view text, std::size_t pos, ConditionalMemo& memo) {
  while (pos < text.size()) {
    std::string_view ahead = text.substr(pos);
    const char c = ahead[0];
    std::size_t end = kNone;
    if (c == '/') {
      end = EndOfComment(text, pos, memo);
    } else if (c == '#' && OpensConditional(ahead)) {
      // An unclosed one is an ordinary line.
      end = EndOfNestedConditional(text, pos, memo);
    } else if ((c == '#' || IsBlank(c)) && EndifOrElifOrElseMatch(ahead)) {
      SkipBlanks(ahead);
      if (!ElifZeroMatch(ahead)) return EndOfLogicalLine(text, pos);
    }
    pos = end != kNone ? end : EndOfLogicalLine(text, pos);
  }
  return kNone;
}

}  // namespace vexltags
