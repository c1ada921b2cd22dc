// SPDX-License-Identifier: MIT
// Skips comments and looks at the first directive.
#include "sources/header_guess.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>

namespace vexltags {
namespace {

constexpr std::size_t kNone = std::string_view::npos;

bool IsNameStart(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_'; }

bool IsNameCharacter(char c) { return IsNameStart(c) || (c >= '0' && c <= '9'); }

std::string_view Trimmed(std::string_view text) {
  const std::size_t start = text.find_first_not_of(" \t\r");
  if (start == kNone) return "";
  return text.substr(start, text.find_last_not_of(" \t\r") - start + 1);
}

/// Removes the first line of `text` and returns it without its newline.
std::string_view TakeLine(std::string_view& text) {
  const std::size_t end = std::min(text.find('\n'), text.size());
  const std::string_view line = text.substr(0, end);
  text.remove_prefix(std::min(end + 1, text.size()));
  return line;
}

/// Returns whether `line` has a mode line of Emacs, `-*- C++ -*-` or `-*- mode: C++; … -*-`, for a
/// language of the C family.
bool HasModeLine(std::string_view line) {
  const std::size_t start = line.find("-*-");
  if (start == kNone) return false;
  const std::size_t end = line.find("-*-", start + 3);
  if (end == kNone) return false;
  std::string mode(line.substr(start + 3, end - start - 3));
  std::transform(mode.begin(), mode.end(), mode.begin(),
                 [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; });
  std::string_view name = mode;
  const std::size_t key = name.find("mode:");
  if (key != kNone) name.remove_prefix(key + 5);
  name = Trimmed(name.substr(0, name.find(';')));
  return name == "c++" || name == "c" || name == "objc";
}

/// Returns what follows white space and comments at the start of `text`; empty if a comment is not
/// closed.
std::string_view AfterComments(std::string_view text) {
  for (;;) {
    text.remove_prefix(std::min(text.find_first_not_of(" \t\r\n\f"), text.size()));
    if (text.starts_with("//")) {
      TakeLine(text);
    } else if (text.starts_with("/*")) {
      const std::size_t end = text.find("*/", 2);
      if (end == kNone) return "";
      text.remove_prefix(end + 2);
    } else {
      return text;
    }
  }
}

/// Returns whether `line` is a directive. Comments of other languages start with `#` too, so the
/// word has to follow it directly.
bool IsDirective(std::string_view line) {
  if (!line.starts_with('#')) return false;
  line.remove_prefix(1);
  const std::size_t length = static_cast<std::size_t>(
      std::find_if_not(line.begin(), line.end(), IsNameCharacter) - line.begin());
  const std::string_view word = line.substr(0, length);
  const bool isSeparated = line.size() > length && (line[length] == ' ' || line[length] == '\t');
  const std::string_view rest = Trimmed(line.substr(length));
  if (rest.empty()) return false;
  if (word == "include" || word == "import") {
    return (rest[0] == '<' && rest.find('>') != kNone) ||
           (rest[0] == '"' && rest.find('"', 1) != kNone);
  }
  if (word == "pragma")
    return rest == "once" || rest.starts_with("once ") || rest.starts_with("GCC ");
  if (word == "if") {
    return rest[0] == '!' || rest[0] == '(' || rest.starts_with("defined") ||
           rest.starts_with("__");
  }
  if (!isSeparated || !IsNameStart(rest[0])) return false;
  if (word == "define") return true;
  if (word != "ifndef" && word != "ifdef") return false;
  const auto nameEnd = std::find_if_not(rest.begin(), rest.end(), IsNameCharacter);
  const std::string_view after =
      Trimmed(rest.substr(static_cast<std::size_t>(nameEnd - rest.begin())));
  return after.empty() || after.starts_with("/");
}

}  // namespace

bool LooksLikeHeader(std::string_view text) {
  text = text.substr(0, kHeaderGuessBytes);
  if (text.find('\0') != kNone || text.starts_with("#!")) return false;
  if (text.starts_with("\xEF\xBB\xBF")) text.remove_prefix(3);
  std::string_view rest = text;
  for (int line = 0; line < 2; ++line) {
    if (HasModeLine(TakeLine(rest))) return true;
  }
  rest = AfterComments(text);
  return IsDirective(TakeLine(rest));
}

std::string ReadStart(const std::string& path) {
  const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NOCTTY | O_NONBLOCK);
  if (file < 0) return "";
  std::string text(kHeaderGuessBytes, '\0');
  const ssize_t length = read(file, text.data(), text.size());
  close(file);
  text.resize(length < 0 ? 0 : static_cast<std::size_t>(length));
  return text;
}

}  // namespace vexltags
