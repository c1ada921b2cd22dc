// SPDX-License-Identifier: MIT
// Finds the parameters of a function in its source.
#include "ctags/signature.h"

#include <algorithm>
#include <optional>
#include <vector>

namespace vexltags::ctags {
namespace {

constexpr std::size_t kLongestSource = 4096;
constexpr std::size_t kLongestSignature = 1000;
constexpr std::size_t kNone = std::string_view::npos;

bool IsBlank(char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r' || c == '\f'; }

bool IsWord(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' ||
         static_cast<unsigned char>(c) >= 0x80;
}

/// The end of the line at `at`, without its newline.
std::size_t LineEnd(std::string_view text, std::size_t at) {
  return std::min(text.find('\n', at), text.size());
}

std::size_t SkipBlanks(std::string_view text, std::size_t at) {
  while (at < text.size() && IsBlank(text[at])) ++at;
  return at;
}

/// Returns the end of `name` if it begins at `at`, with or without blanks between its parts.
std::size_t EndOfName(std::string_view text, std::size_t at, std::string_view name) {
  if (at > 0 && IsWord(name[0]) && IsWord(text[at - 1])) return kNone;
  for (std::size_t i = 0; i < name.size(); ++i) {
    const bool isInWord = i > 0 && IsWord(name[i]) && IsWord(name[i - 1]);
    if (name[i] == ' ') continue;
    if (!isInWord && i > 0) at = SkipBlanks(text, at);
    if (at >= text.size() || text[at] != name[i]) return kNone;
    ++at;
  }
  if (at < text.size() && IsWord(name.back()) && IsWord(text[at])) return kNone;
  return at;
}

/// Returns the end of the comment or string that begins at `at`; `at` itself if none does, and
/// nothing if it has no end. Sets `isComment`.
std::optional<std::size_t> EndOfToken(std::string_view text, std::size_t at, Syntax syntax,
                                      bool& isComment) {
  const std::string_view rest = text.substr(at);
  isComment = true;
  if (syntax == Syntax::kPython ? rest.starts_with('#') : rest.starts_with("//")) {
    return LineEnd(text, at);
  }
  if (syntax != Syntax::kPython && rest.starts_with("/*")) {
    const std::size_t end = text.find("*/", at + 2);
    if (end == kNone) return std::nullopt;
    return end + 2;
  }
  isComment = false;
  const char quote = rest[0];
  const bool isQuote = quote == '"' || (quote == '\'' && syntax != Syntax::kSwift);
  // In C++, a quote can separate digits.
  if (!isQuote || (quote == '\'' && syntax == Syntax::kC && at > 0 && IsWord(text[at - 1]))) {
    return at;
  }
  // A string of several lines, or one in raw form: rare here, and not worth a reader of its own.
  if (rest.starts_with(std::string(3, quote))) return std::nullopt;
  if (syntax == Syntax::kC && quote == '"' && at > 0 && text[at - 1] == 'R') return std::nullopt;
  for (std::size_t i = at + 1; i < text.size() && text[i] != '\n'; ++i) {
    if (text[i] == '\\') {
      ++i;
    } else if (text[i] == quote) {
      return i + 1;
    }
  }
  return std::nullopt;
}

/// Adds characters with single blanks between what white space or comments separate, and none
/// after an opening bracket or before a closing one or a comma.
class Collapser {
 public:
  void Add(std::string_view piece) {
    for (const char c : piece) {
      if (IsBlank(c)) {
        isPending = true;
        continue;
      }
      const bool isClosing = c == ')' || c == ',' || c == ']';
      const bool afterOpening = text.empty() || text.back() == '(' || text.back() == '[';
      if (isPending && !isClosing && !afterOpening) text += ' ';
      isPending = false;
      text += c;
    }
  }
  /// Adds a string as it is.
  void AddString(std::string_view piece) {
    Add(piece.substr(0, 1));
    text += piece.substr(1);
  }
  void Separate() { isPending = true; }
  std::string Take() { return std::move(text); }

 private:
  std::string text;
  bool isPending = false;
};

struct Parentheses {
  std::string text;
  std::size_t end = 0;  ///< After the closing one.
};

/// Reads from the opening parenthesis at `start` to the one that closes it.
std::optional<Parentheses> ReadParentheses(std::string_view text, std::size_t start,
                                           Syntax syntax) {
  text = text.substr(0, std::min(text.size(), start + kLongestSource));
  Collapser collapsed;
  std::vector<char> open;
  for (std::size_t at = start; at < text.size();) {
    bool isComment = false;
    const std::optional<std::size_t> end = EndOfToken(text, at, syntax, isComment);
    if (!end) return std::nullopt;
    if (*end > at) {
      if (isComment) {
        collapsed.Separate();
      } else {
        collapsed.AddString(text.substr(at, *end - at));
      }
      at = *end;
      continue;
    }
    const char c = text[at];
    if (c == '\\' && at + 1 < text.size() && (text[at + 1] == '\n' || text[at + 1] == '\r')) {
      ++at;
      continue;
    }
    const bool isControl = (static_cast<unsigned char>(c) < ' ' && !IsBlank(c)) || c == '\x7f';
    if (isControl || (c == ';' && open.size() < 2)) return std::nullopt;
    if (syntax == Syntax::kC && c == '#') return std::nullopt;
    if (c == '(' || c == '[' || c == '{') open.push_back(c == '(' ? ')' : c == '[' ? ']' : '}');
    collapsed.Add(text.substr(at, 1));
    ++at;
    if (c != ')' && c != ']' && c != '}') continue;
    if (open.empty() || open.back() != c) return std::nullopt;
    open.pop_back();
    if (!open.empty()) continue;
    Parentheses read{collapsed.Take(), at};
    if (read.text.size() > kLongestSignature) return std::nullopt;
    return read;
  }
  return std::nullopt;
}

/// Returns the offset after the template arguments or generic parameters at `at`, if there are any.
std::size_t SkipAngles(std::string_view text, std::size_t at) {
  if (at >= text.size() || text[at] != '<') return at;
  int depth = 0;
  for (std::size_t i = at; i < text.size() && i < at + kLongestSource; ++i) {
    if (text[i] == '<') ++depth;
    if (text[i] == '>' && text[i - 1] != '-' && --depth == 0) return i + 1;
    if (text[i] == ';' || text[i] == '{') break;
  }
  return at;
}

/// Returns where the parentheses after the name at `at` open; nothing if none do.
std::size_t OpeningAfter(std::string_view text, std::size_t at, Syntax syntax) {
  if (syntax == Syntax::kSwift && at < text.size() && (text[at] == '?' || text[at] == '!')) ++at;
  at = SkipBlanks(text, at);
  if (syntax != Syntax::kPython) at = SkipBlanks(text, SkipAngles(text, at));
  return at < text.size() && text[at] == '(' ? at : kNone;
}

/// Returns whether the word that ends before `at`, with blanks between, is `word`.
bool Follows(std::string_view text, std::size_t at, std::string_view word) {
  while (at > 0 && IsBlank(text[at - 1])) --at;
  return at >= word.size() && text.substr(at - word.size(), word.size()) == word &&
         (at == word.size() || !IsWord(text[at - word.size() - 1]));
}

}  // namespace

std::string SignatureOf(std::string_view text, const FunctionPlace& place, Syntax syntax,
                        std::size_t* parametersEnd) {
  if (place.name.empty() || place.offset >= text.size()) return {};
  const std::size_t lineEnd = LineEnd(text, place.offset);
  std::vector<std::size_t> openings;
  for (std::size_t at = place.offset; at < lineEnd; ++at) {
    const std::size_t end = EndOfName(text, at, place.name);
    if (end == kNone || end > lineEnd) continue;
    const bool isInit = place.name == "init" || place.name == "subscript";
    if (syntax == Syntax::kPython && !Follows(text, at, "def")) continue;
    if (syntax == Syntax::kSwift && !isInit && !Follows(text, at, "func")) continue;
    const std::size_t opening = OpeningAfter(text, end, syntax);
    if (opening != kNone) openings.push_back(opening);
  }
  // A single function is the first: what follows can call it.
  if (openings.empty() || (place.count > 1 && openings.size() != place.count)) return {};
  std::optional<Parentheses> read = ReadParentheses(text, openings[place.index], syntax);
  if (!read) return {};
  if (parametersEnd != nullptr) *parametersEnd = read->end;
  if (syntax == Syntax::kC) {
    const std::size_t next = SkipBlanks(text, read->end);
    if (EndOfName(text, next, "const") != kNone) read->text += " const";
  }
  return std::move(read->text);
}

std::size_t FindName(std::string_view text, std::size_t offset, std::string_view name) {
  if (name.empty()) return kNone;
  const std::size_t lineEnd = LineEnd(text, offset);
  for (std::size_t at = offset; at < lineEnd; ++at) {
    if (EndOfName(text, at, name) != kNone) return at;
  }
  return kNone;
}

std::string MacroSignature(std::string_view text, std::size_t offset, std::string_view name) {
  if (name.empty()) return {};
  const std::size_t lineEnd = LineEnd(text, offset);
  for (std::size_t at = offset; at < lineEnd; ++at) {
    const std::size_t end = EndOfName(text, at, name);
    if (end == kNone || !Follows(text, at, "define")) continue;
    // A parenthesis after a blank belongs to the body.
    if (end >= lineEnd || text[end] != '(') return {};
    const std::optional<Parentheses> read = ReadParentheses(text, end, Syntax::kC);
    return read ? read->text : std::string();
  }
  return {};
}

std::string MethodSignature(std::string_view text, std::size_t offset, std::string_view selector) {
  const auto wanted = std::ranges::count(selector, ':');
  std::string signature = "(";
  std::ptrdiff_t found = 0;
  const std::size_t last = std::min(text.size(), offset + kLongestSource);
  std::size_t at = SkipBlanks(text, offset);
  if (at >= last || (text[at] != '-' && text[at] != '+')) return {};
  while (at < last && text[at] != ';' && text[at] != '{') {
    bool isComment = false;
    const std::optional<std::size_t> end = EndOfToken(text, at, Syntax::kC, isComment);
    if (!end || text[at] == '#') return {};
    if (*end > at) {
      at = *end;
      continue;
    }
    const bool isColon = text[at] == ':';
    ++at;
    if (!isColon) continue;
    at = SkipBlanks(text, at);
    if (at >= last || text[at] != '(') return {};
    const std::optional<Parentheses> type = ReadParentheses(text, at, Syntax::kC);
    if (!type) return {};
    if (found++ > 0) signature += ',';
    signature += std::string_view(type->text).substr(1, type->text.size() - 2);
    at = type->end;
  }
  if (found != wanted || signature.size() > kLongestSignature) return {};
  return signature + ")";
}

}  // namespace vexltags::ctags
