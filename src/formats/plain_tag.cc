// SPDX-License-Identifier: MIT
// Most tags of a tree are such, so this is where the time to write a tags file goes.
#include "formats/plain_tag.h"

#include <charconv>
#include <cstddef>
#include <cstdint>
#include <cstring>

#include "portable/swift_scopes.h"

namespace vexltags {
namespace {

constexpr std::string_view kAddressEnd = ";\"\t";
constexpr std::string_view kTyperef = "\ttyperef:";
constexpr std::string_view kLine = "\tline:";
/// More than all that is neither part of the tag nor of the pattern, which has escapes.
constexpr std::size_t kMostElse = 3 * kPatternLimit;

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

char* Put(char* out, std::string_view text) {
  std::memcpy(out, text.data(), text.size());
  return out + text.size();
}

/// Writes what `AppendSearchPattern` appends.
char* PutPattern(char* out, std::string_view text) {
  out = Put(out, "/^");
  const bool isEasy = text.size() <= kPatternLimit && text.back() != '$' &&
                      text.find('/') == text.npos && text.find('\\') == text.npos;
  if (isEasy) return Put(Put(out, text), "$/");
  const char* const start = out;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    const bool continuesCharacter = (static_cast<unsigned char>(c) & 0xC0) == 0x80;
    if (static_cast<std::size_t>(out - start) >= kPatternLimit && !continuesCharacter) {
      return Put(out, "/");
    }
    if (c == '\\' || c == '/' || (c == '$' && i + 1 == text.size())) *out++ = '\\';
    *out++ = c;
  }
  return Put(out, "$/");
}

}  // namespace

bool ReadPlainTag(std::string_view rest, PlainTag& tag) {
  constexpr std::size_t kMostDigits = 9;
  std::size_t length = 0;
  while (length < rest.size() && IsDigit(rest[length])) ++length;
  if (length == 0 || length > kMostDigits || rest[0] == '0') return false;
  if (rest.substr(length, kAddressEnd.size()) != kAddressEnd) return false;
  SplitPlainTag(rest, tag);
  std::string_view fields = tag.fields;
  if (fields.empty() || fields[0] == '\t') return false;
  fields.remove_prefix(1);
  if (fields.empty()) return true;
  if (fields[0] != '\t') return false;
  // A scope with its kind, then a type, or one of them; nothing is empty.
  if (!fields.starts_with(kTyperef)) {
    fields.remove_prefix(1);
    const std::size_t end = fields.find('\t');
    const std::string_view scope = fields.substr(0, end);
    if (!HasKey(scope) || scope.back() == ':') return false;
    if (end == fields.npos) return true;
    fields.remove_prefix(end);
  }
  return fields.starts_with(kTyperef) && fields.size() > kTyperef.size() &&
         fields.find('\t', 1) == fields.npos;
}

void SplitPlainTag(std::string_view rest, PlainTag& tag) {
  const std::size_t length = rest.find(';');
  tag.number = rest.substr(0, length);
  tag.fields = rest.substr(length + kAddressEnd.size());
}

void AppendPlainTag(std::string& out, const PlainTag& tag, Address address) {
  const std::size_t before = out.size();
  out.resize(before + tag.name.size() + tag.path.size() + tag.fields.size() + kMostElse);
  char* const start = out.data() + before;
  char* at = Put(start, tag.name);
  *at++ = '\t';
  at = Put(at, tag.path);
  *at++ = '\t';
  if (address == Address::kLine) {
    at = Put(at, tag.number);
  } else {
    if (address == Address::kCombined) {
      std::int32_t line = 0;
      std::from_chars(tag.number.data(), tag.number.data() + tag.number.size(), line);
      constexpr std::ptrdiff_t kMostDigits = 16;
      at = std::to_chars(at, at + kMostDigits, line - 1).ptr;
      *at++ = ';';
    }
    at = PutPattern(at, tag.text);
  }
  at = Put(at, kAddressEnd);
  *at++ = tag.fields[0];
  if (address != Address::kLine) at = Put(Put(at, kLine), tag.number);
  at = Put(at, tag.fields.substr(1));
  *at++ = '\n';
  out.resize(before + static_cast<std::size_t>(at - start));
}

}  // namespace vexltags
