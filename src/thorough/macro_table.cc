// SPDX-License-Identifier: MIT
// The macros that the sources of a run define, as far as they can matter to declarations.
#include "thorough/macro_table.h"

#include <algorithm>
#include <cstring>

#include "base/character_class.h"
#include "cfamily/main_words.h"
#include "thorough/source_text.h"
#include "vocabulary/main_tokens.h"

namespace vexltags::thorough {
namespace {

constexpr std::size_t kNone = std::string_view::npos;
constexpr std::size_t kLongestDefinition = 16384;
/// A name with more definitions than this is redefined for each use; further ones are ignored.
constexpr std::uint32_t kMostDefinitions = 64;
constexpr std::size_t kBlock = std::size_t{1} << 16;

/// Keywords of compilers and of related languages, in terms of the vocabulary.
constexpr std::string_view kCompilerWords = R"(
#define __extension__
#define __inline inline
#define __inline__ inline
#define __forceinline inline
#define __const const
#define __const__ const
#define __volatile volatile
#define __volatile__ volatile
#define __signed signed
#define __signed__ signed
#define __restrict
#define __restrict__
#define restrict
#define _Noreturn
#define __thread
#define _Thread_local
#define _Complex
#define __complex__
#define _Atomic(x) x
#define _Static_assert static_assert
#define __typeof decltype
#define __typeof__ decltype
#define typeof decltype
#define typeof_unqual decltype
#define __int64 long
#define __int128 long
#define __int128_t long
#define _Pragma(x)
#define __attribute(x)
#define __attribute__(x)
#define __declspec(x)
#define __asm(...)
#define __asm__(...)
#define asm(...)
#define alignas(...)
#define _Alignas(...)
#define __cdecl
#define __stdcall
#define __fastcall
#define __thiscall
#define __vectorcall
#define __pascal
#define __unaligned
#define __ptr64
#define __w64
#define _Nullable_result
#define __unused
#define __builtin_va_list long
)";

bool IsWord(char c) { return kLettersAndDigits[static_cast<unsigned char>(c)]; }
bool IsLetter(char c) { return kLetters[static_cast<unsigned char>(c)]; }
bool IsBlank(char c) { return c == ' ' || c == '\t'; }

/// The offset of what follows the parentheses that open at `at`, without blanks; the size of `body`
/// where they are too long.
std::size_t PastParentheses(std::string_view body, std::size_t at) {
  constexpr std::size_t kLongest = 256;
  const std::size_t end = std::min(body.size(), at + kLongest);
  int open = 0;
  for (; at < end; ++at) {
    if (body[at] == '(') ++open;
    if (body[at] == ')' && --open == 0) break;
  }
  for (++at; at < end && IsBlank(body[at]); ++at) {
  }
  return at < end ? at : body.size();
}

/// True for a body that begins like a method of Objective-C: a sign, a type in parentheses, a word.
bool BeginsMethod(std::string_view body) {
  if (body[0] != '-' && body[0] != '+') return false;
  std::size_t at = 1;
  while (at < body.size() && IsBlank(body[at])) ++at;
  if (at == body.size() || body[at] != '(') return false;
  at = PastParentheses(body, at);
  return at < body.size() && IsLetter(body[at]);
}

/// True for a body that begins like the name and the parameters of a pointer to a function:
/// `(*name) parameters`.
bool BeginsPointer(std::string_view body) {
  if (!body.starts_with("(*")) return false;
  const std::size_t past = PastParentheses(body, 0);
  return past < body.size() && (body[past] == '(' || IsLetter(body[past]));
}

/// True for a body that can be more than an expression, by how it begins.
bool CanDeclare(std::string_view body, bool isFunction) {
  if (body.empty()) return true;
  if (isFunction && (BeginsMethod(body) || BeginsPointer(body))) return true;
  const char c = body[0];
  if (IsLetter(c) || c == '{' || c == '}' || c == ';' || c == ':' || c == '[' || c == '@') {
    return true;
  }
  return isFunction && (c == '#' || c == '~');
}

/// What the names of macros for versions have in them.
constexpr std::string_view kVersionParts[] = {"VERSION", "MAJOR",    "MINOR",
                                              "PATCH",   "REVISION", "ABI"};
constexpr ByteTable<bool> MakeVersionPartTable() {
  ByteTable<bool> table{};
  for (const std::string_view part : kVersionParts) {
    table[static_cast<unsigned char>(part[0])] = true;
  }
  return table;
}
constexpr ByteTable<bool> kBeginsVersionPart = MakeVersionPartTable();

/// True for the number of a version, which may become part of the name of a namespace.
bool IsVersion(std::string_view name, std::string_view body) {
  constexpr std::size_t kLongest = 6;
  if (body.empty() || body[0] < '0' || body[0] > '9') return false;
  std::size_t end = 0;
  while (end < body.size() && !IsBlank(body[end]) && body[end] != '/') ++end;
  if (body.find('/', end) != kNone) body = body.substr(0, end);
  if (body.size() > kLongest) return false;
  for (; !name.empty(); name.remove_prefix(1)) {
    if (!kBeginsVersionPart[static_cast<unsigned char>(name[0])]) continue;
    for (const std::string_view part : kVersionParts) {
      if (part[0] == name[0] && name.starts_with(part)) return true;
    }
  }
  return false;
}

/// True for a body that only names or calls something that is not a keyword and does not look like
/// a macro: `puts`, `puts(text)`. It declares nothing.
bool IsPlainAlias(const MacroDefinition& definition, std::string_view body) {
  std::size_t length = 0;
  bool hasLowerCase = false;
  while (length < body.size() && IsWord(body[length])) {
    hasLowerCase |= body[length] >= 'a' && body[length] <= 'z';
    ++length;
  }
  if (length == 0 || !hasLowerCase || body[0] == '_') return false;
  const auto* const word = reinterpret_cast<const unsigned char*>(body.data());
  if (ClassifyMainWord(word, length) != kMainId) return false;
  // The name may be that of a parameter.
  const std::string_view name = body.substr(0, length);
  if (definition.parameters.find(name) != kNone) return false;
  std::size_t at = length;
  while (at < body.size() && IsBlank(body[at])) ++at;
  if (at == body.size()) return true;
  if (body[at] != '(') return false;
  // The call must be all that there is.
  int open = 0;
  for (; at < body.size(); ++at) {
    if (body[at] == '#' || body[at] == '{' || body[at] == ';') return false;
    if (body[at] == '(') ++open;
    if (body[at] == ')' && --open == 0) break;
  }
  return at + 1 >= body.size();
}

}  // namespace

MacroTable::MacroTable() {
  Learn(kCompilerWords, 0, [](std::string_view) {});
}

void MacroTable::NoteInclude(std::uint32_t file) {
  constexpr std::size_t kMostConditions = 16;
  std::vector<std::uint32_t>& known = includes[file];
  if (known.size() < kMostConditions) {
    known.push_back(conditions.Current());
  } else {
    known.back() = 0;  // Included everywhere.
  }
}

Truth MacroTable::ConditionOf(const MacroDefinition& definition, Dialect dialect) const {
  const Truth truth = conditions.Of(definition.condition, dialect);
  const auto found = includes.find(definition.file);
  if (found == includes.end()) return truth;
  Truth likeliest = Truth::False;
  for (const std::uint32_t condition : found->second) {
    likeliest = std::max(likeliest, conditions.Of(condition, dialect));
  }
  return std::min(truth, likeliest);
}

std::string_view MacroTable::Store(std::string_view text) {
  if (text.empty()) return {};
  if (text.size() > room) {
    const std::size_t size = std::max(kBlock, text.size());
    blocks.push_back(std::make_unique_for_overwrite<char[]>(size));
    next = blocks.back().get();
    room = size;
  }
  std::memcpy(next, text.data(), text.size());
  const std::string_view stored(next, text.size());
  next += text.size();
  room -= text.size();
  return stored;
}

std::size_t MacroTable::NextDirective(std::string_view text, std::size_t from) {
  while ((from = text.find('#', from)) != kNone) {
    std::size_t before = from;
    while (before > 0 && IsBlank(text[before - 1])) --before;
    std::size_t word = from + 1;
    if (before == 0 || text[before - 1] == '\n' || text[before - 1] == '\r') {
      while (word < text.size() && IsBlank(text[word])) ++word;
      return word;
    }
    from = word;
  }
  return kNone;
}

std::string_view MacroTable::QuotedPath(std::string_view text, std::size_t at) {
  while (at < text.size() && IsBlank(text[at])) ++at;
  if (at >= text.size() || text[at] != '"') return {};
  std::size_t end = at + 1;
  while (end < text.size() && text[end] != '"' && text[end] != '\n') ++end;
  if (end == text.size() || text[end] != '"') return {};
  return text.substr(at + 1, end - at - 1);
}

std::size_t MacroTable::EndOfDefinition(std::string_view text, std::size_t at) {
  constexpr int kMostComments = 8;
  std::size_t end = EndOfLine(text, at);
  for (int i = 0; i < kMostComments && end - at <= kLongestDefinition; ++i) {
    const std::string_view rest = text.substr(at, end - at);
    // Most have no comment, and searching forward for one character is the fastest.
    if (rest.find('/') == kNone) break;
    const std::size_t open = rest.rfind("/*");
    if (open == kNone || rest.find("*/", open + 2) != kNone || rest.find("//") < open) break;
    if (EndsInString(rest.substr(0, open))) break;
    const std::size_t close = text.substr(0, end + kLongestDefinition).find("*/", end);
    if (close == kNone) break;
    end = EndOfLine(text, close + 2);
  }
  return end;
}

MacroTable::Comment MacroTable::NextComment(std::string_view text, std::size_t from,
                                            std::size_t limit) {
  constexpr std::size_t kLongestLine = 512;
  for (;;) {
    const std::size_t open = text.substr(0, limit).find("/*", from);
    if (open == kNone) return {kNone, kNone};
    // One after `//` or in a string is none.
    const std::size_t least = open > kLongestLine ? open - kLongestLine : 0;
    std::size_t line = open;
    while (line > least && text[line - 1] != '\n' && text[line - 1] != '\r') --line;
    const std::string_view before = text.substr(line, open - line);
    if (before.find("//") == kNone && !EndsInString(before)) {
      const std::size_t close = text.find("*/", open + 2);
      return {open, close == kNone ? kNone : close + 2};
    }
    from = open + 2;
  }
}

bool MacroTable::IsInComment(std::string_view text, std::size_t at) {
  while (pastComment <= at) {
    const Comment comment = NextComment(text, pastComment, at);
    if (comment.open == kNone) {
      // The last character may begin a comment.
      pastComment = std::max(pastComment, at > 0 ? at - 1 : 0);
      return false;
    }
    // One that stays open hides nothing.
    pastComment = comment.past;
  }
  return pastComment != kNone;
}

std::size_t MacroTable::EndOfLine(std::string_view text, std::size_t at) {
  // Up to the first line end without a backslash before it.
  std::size_t end = at;
  for (;;) {
    const std::size_t newline = std::min(text.find('\n', end), text.size());
    std::size_t last = newline;
    if (last > end && text[last - 1] == '\r') --last;
    if (last <= at || text[last - 1] != '\\' || newline >= text.size()) return newline;
    end = newline + 1;
  }
}

void MacroTable::LearnUndef(std::string_view text, std::size_t at, std::uint32_t file,
                            const Piece& piece) {
  while (at < text.size() && IsBlank(text[at])) ++at;
  const std::size_t begin = at;
  while (at < text.size() && IsWord(text[at])) ++at;
  const std::string_view name = text.substr(begin, at - begin);
  if (name.empty() || !MayHave(name)) return;
  const auto found = names.find(name);
  if (found == names.end() || definitions[found->second.last].file != file) return;
  for (std::uint32_t i = found->second.ofFile; i != 0; i = definitions[i].next) {
    MacroDefinition& known = definitions[i];
    // One that is under a condition of its own may never happen.
    if (known.file == file && known.end == MacroDefinition::kNoEnd &&
        conditions.Depth() <= known.depth) {
      known.end = static_cast<std::uint32_t>(begin + piece.moved);
    }
  }
}

std::size_t MacroTable::LearnCondition(std::string_view text, std::size_t at) {
  std::size_t end = at;
  while (end < text.size() && IsWord(text[end])) ++end;
  const DirectiveKind kind = DirectiveKindOf(text.substr(at, end - at));
  if (kind == DirectiveKind::Other || kind == DirectiveKind::Error) return end;
  std::size_t argument = end;
  while (argument < text.size() && IsBlank(text[argument])) ++argument;
  end = EndOfLine(text, argument);
  conditions.Take(kind, text.substr(argument, end - argument));
  return end;
}

std::size_t MacroTable::LearnDefine(std::string_view text, std::size_t at, std::uint32_t file,
                                    const Piece& piece) {
  const std::size_t word = at;
  while (at < text.size() && IsBlank(text[at])) ++at;
  if (at == word || at == text.size() || !IsLetter(text[at])) return at;
  const std::size_t nameBegin = at;
  const auto* const bytes = reinterpret_cast<const unsigned char*>(text.data());
  at = static_cast<std::size_t>(EndOfWord(bytes + at, bytes + text.size()) - bytes);
  const std::string_view name = text.substr(nameBegin, at - nameBegin);

  conditions.AddDefined(name);
  const std::size_t end = EndOfDefinition(text.substr(0, piece.end), at);
  std::string_view rest = text.substr(at, end - at);
  if (rest.ends_with('\r')) rest.remove_suffix(1);
  if (rest.size() > kLongestDefinition) return end;

  MacroDefinition definition;
  definition.file = file;
  std::size_t bodyBegin = 0;
  if (!rest.empty() && rest[0] == '(') {
    const std::size_t close = rest.find(')');
    if (close == kNone) return end;
    definition.isFunction = true;
    definition.parameters = rest.substr(1, close - 1);
    bodyBegin = close + 1;
  }
  std::string_view body = rest.substr(bodyBegin);
  // Blanks, continued lines and comments before the body's first word.
  for (;;) {
    if (body.empty()) break;
    if (IsBlank(body[0]) || body[0] == '\\' || body[0] == '\n' || body[0] == '\r') {
      body.remove_prefix(1);
    } else if (body.starts_with("//")) {
      body = {};
    } else if (body.starts_with("/*")) {
      const std::size_t close = body.find("*/", 2);
      body = close == kNone ? std::string_view() : body.substr(close + 2);
    } else {
      break;
    }
  }
  const bool isVersion = !definition.isFunction && IsVersion(name, body);
  if (!isVersion && !CanDeclare(body, definition.isFunction)) return end;
  // A macro in capitals may give a namespace its name.
  const bool hasLowerCase =
      std::any_of(name.begin(), name.end(), [](char c) { return c >= 'a' && c <= 'z'; });
  if ((definition.isFunction || hasLowerCase) && IsPlainAlias(definition, body)) return end;
  if (ClassifyMainWord(reinterpret_cast<const unsigned char*>(name.data()), name.size()) !=
          kMainId &&
      name != "__attribute__" && !IsLibraryScope(name)) {
    return end;
  }
  if (IsInComment(text, word)) return end;
  const auto number = static_cast<std::uint32_t>(definitions.size());
  const auto found = names.find(name);
  if (found == names.end()) {
    names.emplace(Store(name), Definitions{number, number, number, 1});
    filter[FilterPlace(name)] = true;
  } else {
    Definitions& known = found->second;
    // Words of compilers are never redefined, and a repeated definition adds nothing.
    if (definitions[known.first].file == 0 || known.count == kMostDefinitions) return end;
    const bool isOfSameFile = definitions[known.last].file == file;
    for (std::uint32_t i = isOfSameFile ? known.ofFile : 0; i != 0; i = definitions[i].next) {
      const MacroDefinition& other = definitions[i];
      const bool isSame = other.end == MacroDefinition::kNoEnd && other.body == body &&
                          other.parameters == definition.parameters;
      if (isSame) return end;
    }
    if (!isOfSameFile) known.ofFile = number;
    definitions[known.last].next = number;
    known.last = number;
    ++known.count;
  }
  definition.condition = conditions.Current();
  definition.depth = static_cast<std::uint32_t>(conditions.Depth());
  definition.begin = static_cast<std::uint32_t>(nameBegin + piece.moved);
  definition.parameters = Store(definition.parameters);
  definition.body = Store(body);
  definitions.push_back(definition);
  return end;
}

}  // namespace vexltags::thorough
