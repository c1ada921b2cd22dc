// SPDX-License-Identifier: MIT
// The blocks in braces of a C-family file, and the access labels in them.
#include "ctags/blocks.h"

#include <algorithm>

namespace vexltags::ctags {
namespace {

bool IsBlank(char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n' || c == '\f'; }

bool IsWord(char c) {
  return c == '_' || (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') ||
         static_cast<unsigned char>(c) >= 0x80;
}

std::size_t WordEnd(std::string_view text, std::size_t at) {
  while (at < text.size() && IsWord(text[at])) ++at;
  return at;
}

std::size_t SkipBlanks(std::string_view text, std::size_t at) {
  while (at < text.size() && IsBlank(text[at])) ++at;
  return at;
}

/// Returns the offset after the comment at `at`; `at` if there is none.
std::size_t SkipComment(std::string_view text, std::size_t at) {
  const std::string_view rest = text.substr(at, 2);
  if (rest == "//") return std::min(text.find('\n', at), text.size());
  if (rest != "/*") return at;
  const std::size_t end = text.find("*/", at + 2);
  return end == std::string_view::npos ? text.size() : end + 2;
}

/// Returns the end of the directive at `at`, after its newline and those with a backslash before.
std::size_t DirectiveEnd(std::string_view text, std::size_t at) {
  for (;;) {
    const std::size_t end = text.find('\n', at);
    if (end == std::string_view::npos) return text.size();
    std::size_t last = end;
    if (last > at && text[last - 1] == '\r') --last;
    if (last == at || text[last - 1] != '\\') return end + 1;
    at = end + 1;
  }
}

/// Returns the name of the directive whose `#` is at `at`.
std::string_view DirectiveName(std::string_view text, std::size_t at) {
  std::size_t start = at + 1;
  while (start < text.size() && (text[start] == ' ' || text[start] == '\t')) ++start;
  return text.substr(start, WordEnd(text, start) - start);
}

bool IsFalse(std::string_view text, std::size_t at) {
  const std::string_view name = DirectiveName(text, at);
  const auto start = static_cast<std::size_t>(name.data() - text.data()) + name.size();
  const std::string_view line =
      text.substr(start, std::min(text.find('\n', at), text.size()) - start);
  const std::size_t first = line.find_first_not_of(" \t");
  return name == "if" && first != std::string_view::npos && line[first] == '0' &&
         (first + 1 == line.size() || !IsWord(line[first + 1]));
}

}  // namespace

Blocks::Blocks(std::string_view text) : text(text) {
  for (std::size_t at = text.find('\n'); at != npos; at = text.find('\n', at + 1)) {
    newlines.push_back(at);
  }
  std::vector<std::size_t> open;
  bool isLineStart = true;
  for (std::size_t at = 0; at < text.size();) {
    const char c = text[at];
    if (c == '#' && isLineStart) {
      at = SkipDirective(at);
      continue;
    }
    isLineStart = c == '\n' || (isLineStart && IsBlank(c));
    if (const std::size_t end = SkipComment(text, at); end != at) {
      at = end;
    } else if (c == '"' || c == '\'') {
      at = SkipQuoted(at);
    } else if (IsWord(c)) {
      at = AddWord(at, open);
    } else {
      if (c == '{') {
        const std::size_t parent = open.empty() ? npos : open.back();
        open.push_back(blocks.size());
        blocks.push_back({at, npos, parent});
      } else if (c == '}' && !open.empty()) {
        blocks[open.back()].close = at;
        open.pop_back();
      }
      ++at;
    }
  }
}

std::size_t Blocks::SkipDirective(std::size_t at) {
  const std::string_view name = DirectiveName(text, at);
  // What follows the first branch, up to `#endif`, is left out.
  if (name == "else" || name == "elif" || name == "elifdef" || name == "elifndef") {
    at = SkipBranches(DirectiveEnd(text, at));
    while (at < text.size() && DirectiveName(text, at) != "endif") {
      at = SkipBranches(DirectiveEnd(text, at));
    }
  } else if (IsFalse(text, at)) {
    at = SkipBranches(DirectiveEnd(text, at));
  }
  return at < text.size() ? DirectiveEnd(text, at) : at;
}

/// Returns the offset of the `#` that ends the branch that begins at `at`.
std::size_t Blocks::SkipBranches(std::size_t at) const {
  int depth = 0;
  while (at < text.size()) {
    std::size_t start = at;
    while (start < text.size() && (text[start] == ' ' || text[start] == '\t')) ++start;
    if (start < text.size() && text[start] == '#') {
      const std::string_view name = DirectiveName(text, start);
      if (name.starts_with("if")) {
        ++depth;
      } else if (depth == 0 && (name.starts_with("el") || name == "endif")) {
        return start;
      } else if (name == "endif") {
        --depth;
      }
    }
    at = DirectiveEnd(text, start);
  }
  return at;
}

std::size_t Blocks::SkipQuoted(std::size_t at) const {
  const char quote = text[at];
  if (quote == '\'') {
    // In a number it separates digits; after a word such as `L` it begins a character.
    std::size_t start = at;
    while (start > 0 && IsWord(text[start - 1])) --start;
    if (start < at && text[start] >= '0' && text[start] <= '9') return at + 1;
  }
  if (quote == '"' && at > 0 && text[at - 1] == 'R') {
    const std::size_t start = text.find('(', at);
    if (start != npos && start - at <= 17) {
      const std::string end = ")" + std::string(text.substr(at + 1, start - at - 1)) + "\"";
      const std::size_t found = text.find(end, start);
      if (found != npos) return found + end.size();
    }
  }
  for (std::size_t i = at + 1; i < text.size() && text[i] != '\n'; ++i) {
    if (text[i] == '\\') {
      ++i;
    } else if (text[i] == quote) {
      return i + 1;
    }
  }
  // A quote without an end, such as one in a macro, is a character like others.
  return at + 1;
}

std::size_t Blocks::AddWord(std::size_t at, const std::vector<std::size_t>& open) {
  const std::size_t end = WordEnd(text, at);
  const std::string_view word = text.substr(at, end - at);
  std::string_view access = word;
  // Signals of Qt.
  if (word == "signals" || word == "Q_SIGNALS") access = "public";
  if (open.empty() || (access != "public" && access != "protected" && access != "private")) {
    return end;
  }
  std::size_t next = SkipBlanks(text, end);
  // Another word, such as `slots`, can come before the colon.
  next = SkipBlanks(text, WordEnd(text, next));
  if (text.substr(next, 1) == ":" && text.substr(next, 2) != "::") {
    labels.push_back({at, open.back(), access});
  }
  return end;
}

const Blocks::Block* Blocks::BlockAt(std::size_t open) const {
  const auto found = std::ranges::lower_bound(blocks, open, {}, &Block::open);
  return found == blocks.end() || found->open != open ? nullptr : &*found;
}

const Blocks::Block* Blocks::OfType(std::size_t offset) const {
  for (std::size_t at = offset; at < text.size();) {
    if (const std::size_t end = SkipComment(text, at); end != at) {
      at = end;
      continue;
    }
    if (text[at] == '{') return BlockAt(at);
    if (text[at] == ';' || text[at] == '}' || text[at] == '#') return nullptr;
    ++at;
  }
  return nullptr;
}

const Blocks::Block* Blocks::OfFunction(std::size_t offset) const {
  for (std::size_t at = offset; at < text.size();) {
    if (const std::size_t end = SkipComment(text, at); end != at) {
      at = end;
      continue;
    }
    const char c = text[at];
    if (c == '{') return BlockAt(at);
    if (text.substr(at, 2) == "::" || text.substr(at, 2) == "->") {
      at += 2;
      continue;
    }
    if (!IsBlank(c) && !IsWord(c) && c != '&' && c != '*' && c != '<' && c != '>') return nullptr;
    ++at;
  }
  return nullptr;
}

const Blocks::Block* Blocks::Around(std::size_t offset) const {
  const auto after = std::ranges::lower_bound(blocks, offset, {}, &Block::open);
  if (after == blocks.begin()) return nullptr;
  auto index = static_cast<std::size_t>(after - blocks.begin()) - 1;
  while (index != npos && blocks[index].close < offset) index = blocks[index].parent;
  return index == npos ? nullptr : &blocks[index];
}

long Blocks::LineOf(std::size_t offset) const {
  return std::ranges::lower_bound(newlines, offset) - newlines.begin() + 1;
}

std::string_view Blocks::AccessAt(const Block& block, std::size_t offset) const {
  const auto index = static_cast<std::size_t>(&block - blocks.data());
  auto label = std::ranges::lower_bound(labels, offset, {}, &Label::offset);
  while (label != labels.begin()) {
    --label;
    if (label->offset < block.open) break;
    if (label->block == index) return label->access;
  }
  return {};
}

}  // namespace vexltags::ctags
