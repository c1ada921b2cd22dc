// SPDX-License-Identifier: MIT
// The tags of a file as callers of ctags expect them.
#include "ctags/file_tags.h"

#include <map>
#include <optional>
#include <set>
#include <unordered_map>
#include <utility>

#include "ctags/blocks.h"
#include "ctags/names.h"
#include "ctags/signature.h"
#include "formats/source_lines.h"
#include "formats/swift_scope_kinds.h"
#include "formats/tag_record.h"
#include "output/kinds.h"

namespace vexltags::ctags {
namespace {

bool IsCFamily(const Language& language) { return IndexOf(language) <= kObjectiveC; }

bool IsFunction(char kind) {
  return kind == kind_letter::kFunctionDefinition || kind == kind_letter::kFunctionDeclaration;
}

bool IsMethod(char kind) {
  return kind == kind_letter::kInstanceMethodDeclaration ||
         kind == kind_letter::kClassMethodDeclaration ||
         kind == kind_letter::kInstanceMethodDefinition ||
         kind == kind_letter::kClassMethodDefinition;
}

bool IsAccessor(char kind) {
  return kind == kind_letter::kDeclaredAccessor || kind == kind_letter::kSynthesizedAccessor;
}

/// The letter of output/kinds.h for the word of a scope; a blank for other words.
char LetterOfScope(std::string_view word) {
  if (word == "enum") return kind_letter::kEnum;
  if (word == "function") return kind_letter::kFunctionDefinition;
  for (long kind = kClassKind; kind <= kConceptKind; ++kind) {
    if (word == ScopeKindName(kind)) return ScopeKindLetter(kind);
  }
  return ' ';
}

/// Converts the records of one file.
class Converter {
 public:
  Converter(const Language& language, std::string_view text, bool isHeader, const Details& details)
      : language(language), text(text), lines(text), isHeader(isHeader), details(details) {
    if (IsCFamily(language) && (details.access || details.ends)) blocks.emplace(text);
  }

  std::vector<Tag> Convert(std::vector<TagRecord>& records) {
    if (IndexOf(language) == kSwift) AddSwiftScopeKinds(records);
    for (const TagRecord& record : records) Register(record);
    for (const TagRecord& record : records) Add(record);
    return std::move(tags);
  }

 private:
  /// Records what later tags need to know of `record`.
  void Register(const TagRecord& record) {
    const std::string name = PlainName(record.name, language);
    if (IsFunction(record.kind)) ++functions[{record.line, name}];
    if (LetterOfKindWord(record.kind) == ' ') return;
    const std::string scope = PlainScope(record.scope, language);
    scopes.emplace(scope.empty() ? name : scope + Separator() + name, record.kind);
    if (const Blocks::Block* block = BlockOfType(record, name)) types.emplace(block, record.kind);
  }

  /// `kind` if something can have it as its scope, in Python also a method; a blank otherwise.
  char LetterOfKindWord(char kind) const {
    switch (kind) {
      case kind_letter::kClass:
      case kind_letter::kStruct:
      case kind_letter::kUnion:
      case kind_letter::kEnum:
      case kind_letter::kNamespace:
        return kind;
      case kind_letter::kMember:
      case kind_letter::kFunctionDefinition:
        return IndexOf(language) == kPython ? kind : ' ';
      default:
        return ' ';
    }
  }

  /// Between the names of a scope as `vexltags` writes it.
  std::string Separator() const { return IsCFamily(language) ? "::" : "."; }

  void Add(const TagRecord& record) {
    Tag tag;
    const SourceLine source = lines.Line(record.line);
    tag.line = record.line < 1 ? 1 : record.line;
    tag.text = source.text;
    tag.offset = source.offset;
    tag.name = PlainName(record.name, language);
    tag.typeref = record.typeref;
    tag.category = CategoryOf(record.scope, language);
    SetScope(record, tag);
    const char letter = LetterOf(record, tag);
    tag.kind = KindOf(language, letter);
    if (tag.kind == nullptr) return;
    if (details.signatures || details.ends) SetSignature(record, tag);
    if (details.ends && blocks) SetEnd(record, tag);
    if (details.access && blocks) SetAccess(tag);
    SetFileScope(letter, tag);
    AddAnonymousScopes(tag);
    const std::string category = CategoryOf(record.name, language);
    if (category.empty()) {
      tags.push_back(std::move(tag));
      return;
    }
    tag.category = category;
    Tag own = tag;
    tags.push_back(std::move(tag));
    own.scope = own.name;
    own.scopeKind = own.kind->name;
    own.name = std::exchange(own.category, {});
    own.kind = KindWithLetter(language, 'C');
    tags.push_back(std::move(own));
  }

  void SetScope(const TagRecord& record, Tag& tag) {
    if (record.scope.empty()) return SetScopeOfType(tag);
    tag.scope = PlainScope(record.scope, language);
    char letter = LetterOfScope(record.scopeKind);
    // What is defined outside its class is written as if it were in a class or namespace.
    if (letter == kind_letter::kClass || letter == kind_letter::kNamespace ||
        letter == kind_letter::kFunctionDefinition) {
      if (const auto found = scopes.find(tag.scope); found != scopes.end()) {
        letter = found->second;
      } else if (letter == kind_letter::kNamespace &&
                 IsQualifiedIn(tag.text, tag.name, tag.scope)) {
        letter = kind_letter::kClass;
      }
    }
    const Kind* kind = letter == ' ' ? nullptr : KindOf(language, letter);
    tag.scopeKind = kind == nullptr ? record.scopeKind : kind->name;
  }

  /// A line with a type has no scope; it is that of the type, which the same declaration defines.
  void SetScopeOfType(Tag& tag) const {
    const std::size_t start = tag.typeref.find(':');
    const std::size_t end = tag.typeref.rfind("::");
    if (start == std::string::npos || end == std::string::npos || end <= start) return;
    tag.scope = PlainScope(tag.typeref.substr(start + 1, end - start - 1), language);
    const auto found = scopes.find(tag.scope);
    const Kind* kind = found == scopes.end() ? nullptr : KindOf(language, found->second);
    if (kind != nullptr) {
      tag.scopeKind = kind->name;
    } else if (tag.scope.find("__anon") != std::string::npos) {
      tag.scopeKind = "struct";
    } else {
      tag.scope.clear();
    }
  }

  /// The letter of output/kinds.h that decides on the kind of `tag`.
  char LetterOf(const TagRecord& record, const Tag& tag) const {
    if (IsAccessor(record.kind) && tag.name.ends_with(':')) {
      return kind_letter::kInstanceMethodDeclaration;
    }
    if (!IsCFamily(language)) return record.kind;
    if (record.kind == kind_letter::kMember && tag.scope.empty()) return kind_letter::kVariable;
    const bool isExtern = record.kind == kind_letter::kVariable &&
                          tag.text.substr(0, 7) == "extern " &&
                          tag.text.find('=') == std::string_view::npos;
    return isExtern ? 'x' : record.kind;
  }

  /// The block of a type, or of a namespace; null if it is not known.
  const Blocks::Block* BlockOfType(const TagRecord& record, const std::string& name) const {
    if (!blocks || record.line < 1) return nullptr;
    const std::size_t at = FindName(text, lines.Line(record.line).offset, name);
    return at == Blocks::npos ? nullptr : blocks->OfType(at + name.size());
  }

  void SetEnd(const TagRecord& record, Tag& tag) const {
    if (record.line < 1) return;
    std::size_t close = Blocks::npos;
    const Blocks::Block* block = nullptr;
    if (LetterOfKindWord(record.kind) != ' ') {
      block = BlockOfType(record, tag.name);
    } else if (record.kind == kind_letter::kInterface || record.kind == kind_letter::kProtocol ||
               record.kind == kind_letter::kImplementation) {
      const std::size_t found = text.find("\n@end", tag.offset);
      if (found != Blocks::npos) close = found + 1;
    } else if (record.kind == kind_letter::kInstanceMethodDefinition ||
               record.kind == kind_letter::kClassMethodDefinition) {
      block = blocks->OfType(tag.offset);
    } else if (record.kind == kind_letter::kFunctionDefinition && parametersEnd != 0) {
      block = blocks->OfFunction(parametersEnd);
    }
    if (block != nullptr) close = block->close;
    if (close != Blocks::npos) tag.end = static_cast<std::int32_t>(blocks->LineOf(close));
  }

  /// Only what is directly in the braces of a type has access; what is defined elsewhere has none.
  void SetAccess(Tag& tag) const {
    if (IndexOf(language) != kCxx) return;
    const std::size_t at = FindName(text, tag.offset, tag.name);
    const Blocks::Block* block = at == Blocks::npos ? nullptr : blocks->Around(at);
    const auto type = types.find(block);
    if (block == nullptr || type == types.end()) return;
    if (type->second != kind_letter::kClass && type->second != kind_letter::kStruct &&
        type->second != kind_letter::kUnion) {
      return;
    }
    tag.access = blocks->AccessAt(*block, at);
    if (tag.access.empty()) {
      tag.access = type->second == kind_letter::kClass ? "private" : "public";
    }
  }

  void SetSignature(const TagRecord& record, Tag& tag) {
    parametersEnd = 0;
    if (record.line < 1) return;
    if (IsMethod(record.kind) && IndexOf(language) == kObjectiveC) {
      tag.signature = MethodSignature(text, tag.offset, tag.name);
    } else if (record.kind == kind_letter::kMacro) {
      tag.signature = MacroSignature(text, tag.offset, tag.name);
    } else if (IsFunction(record.kind) ||
               (IndexOf(language) == kPython && record.kind == kind_letter::kMember)) {
      const std::pair<std::int32_t, std::string> key(record.line, tag.name);
      FunctionPlace place{tag.name, tag.offset, 0, 1};
      if (IsFunction(record.kind)) {
        place.count = functions[key];
        place.index = seen[key]++;
      }
      const Syntax syntax = IndexOf(language) == kPython  ? Syntax::kPython
                            : IndexOf(language) == kSwift ? Syntax::kSwift
                                                          : Syntax::kC;
      tag.signature = SignatureOf(text, place, syntax, &parametersEnd);
      if (tag.signature.empty()) tag.signature = LabelsOf(record.name, language);
    }
  }

  /// What a source file of C or C++ declares is its own, except variables and functions without
  /// `static`.
  void SetFileScope(char letter, Tag& tag) const {
    if (isHeader || IndexOf(language) > kCxx || letter == 'x') return;
    const bool isShared =
        letter == kind_letter::kFunctionDefinition || letter == kind_letter::kVariable;
    tag.isFileScope = !isShared || (StartsStatic(tag.text) && tag.scopeKind != "class" &&
                                    tag.scopeKind != "struct");
  }

  static bool StartsStatic(std::string_view line) {
    const std::size_t start = line.find_first_not_of(" \t");
    return start != std::string_view::npos && line.substr(start).starts_with("static ");
  }

  /// Adds a tag for each anonymous type in the scope of `tag` that has none yet.
  void AddAnonymousScopes(const Tag& tag) {
    if (!IsCFamily(language)) return;
    for (std::size_t at = tag.scope.find("__anon"); at != std::string::npos;
         at = tag.scope.find("__anon", at + 1)) {
      const std::size_t end = std::min(tag.scope.find("::", at), tag.scope.size());
      const std::string whole = tag.scope.substr(0, end);
      if (!anonymous.insert(whole).second || scopes.contains(whole)) continue;
      // Only the innermost scope has a kind; an outer one is at least something with members.
      const std::string_view word = end == tag.scope.size() ? tag.scopeKind : "struct";
      Tag type;
      type.kind = nullptr;
      for (const Kind& kind : language.kinds) {
        if (kind.name == word) type.kind = &kind;
      }
      if (type.kind == nullptr) continue;
      type.name = whole.substr(at);
      if (at > 2) {
        type.scope = whole.substr(0, at - 2);
        const auto outer = scopes.find(type.scope);
        const Kind* kind = outer == scopes.end() ? nullptr : KindOf(language, outer->second);
        type.scopeKind = kind == nullptr ? "struct" : kind->name;
      }
      type.isAnonymous = true;
      type.isFileScope = tag.isFileScope;
      const SourceLine source = lines.Line(OpeningLine(tag, word));
      type.line = OpeningLine(tag, word);
      type.text = source.text;
      type.offset = source.offset;
      tags.push_back(std::move(type));
    }
  }

  /// The line of the last `word` (such as "struct") at or above the first member of a type.
  std::int32_t OpeningLine(const Tag& member, std::string_view word) const {
    constexpr std::int32_t kFarthest = 50;
    for (std::int32_t line = member.line; line > 0 && line > member.line - kFarthest; --line) {
      if (lines.Line(line).text.find(word) != std::string_view::npos) return line;
    }
    return member.line;
  }

  const Language& language;
  std::string_view text;
  SourceLines lines;
  bool isHeader;
  Details details;
  std::optional<Blocks> blocks;                          ///< Only for details that need it.
  std::unordered_map<const Blocks::Block*, char> types;  ///< The letters of types by their blocks.
  std::size_t parametersEnd =
      0;  ///< Of the function whose signature was found last; 0 if none was.
  std::vector<Tag> tags;
  std::unordered_map<std::string, char> scopes;  ///< Full names of types and such: their letters.
  std::map<std::pair<std::int32_t, std::string>, std::size_t> functions;  ///< How many on a line.
  std::map<std::pair<std::int32_t, std::string>, std::size_t> seen;       ///< How many so far.
  std::set<std::string> anonymous;
};

}  // namespace

const Language& LanguageOfTags(const Language& language, const std::vector<std::string>& lines) {
  if (!IsCFamily(language)) return language;
  for (const std::string& line : lines) {
    TagRecord record;
    if (!ReadRawTag(std::string_view(line).substr(0, line.find('\n')), record)) continue;
    if (record.kind == kind_letter::kInterface || record.kind == kind_letter::kProtocol ||
        record.kind == kind_letter::kImplementation) {
      return Languages()[kObjectiveC];
    }
  }
  return language;
}

std::vector<Tag> MakeTags(const std::vector<std::string>& lines, std::string_view text,
                          const Language& language, bool isHeader, const Details& details) {
  std::vector<TagRecord> records;
  records.reserve(lines.size());
  for (const std::string& line : lines) {
    TagRecord record;
    std::string_view view = line;
    if (view.ends_with('\n')) view.remove_suffix(1);
    if (ReadRawTag(view, record) && !record.name.empty()) records.push_back(std::move(record));
  }
  return Converter(language, text, isHeader, details).Convert(records);
}

const Kind& InputFileKind() {
  static constexpr Kind kKind = {'F', "file", true, "source files"};
  return kKind;
}

}  // namespace vexltags::ctags
