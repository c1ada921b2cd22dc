// SPDX-License-Identifier: MIT
// Tracks open scopes and braces, and writes the tags of enums.
#include "parserstate/parser_state_base.h"

#include <cstdio>

#include "base/text.h"
#include "engine/std_string.h"
#include "output/kinds.h"

namespace vexltags {

namespace {

constexpr std::int32_t kManyDeclarations = 10000;

}  // namespace

void ParserStateBase::TypeDescriptor::ResetNameAndLine(const Name& other) {
  name = other.text;
  line = other.line;
}

void ParserStateBase::TypeDescriptor::ResetNameAndLine(const Param& other) {
  name = other.name;
  line = other.line;
}

void ParserStateBase::TypeDescriptor::ResetNameAndLine(pANTLR3_COMMON_TOKEN token) {
  if (token == nullptr) name.clear();
  TokenText(token, name);
  line = TokenLine(token);
}

ParserStateBase::TypeDescriptor& ParserStateBase::TypeDescriptor::operator+=(const Name& other) {
  name += other.text;
  line = other.line;
  return *this;
}

ParserStateBase::ParserStateBase(const Options& runOptions, Dumper& sink, std::string storedPath,
                                 std::string scopeSeparator)
    : options(&runOptions),
      dumper(&sink),
      fileName(std::move(storedPath)),
      scopeText(std::move(scopeSeparator)) {}

ParserStateBase::~ParserStateBase() = default;

const std::string& ParserStateBase::CurrentNamespaceName() const {
  static const std::string text = "implement me";
  return text;
}

void ParserStateBase::PushClass(const TypeDescriptor& descriptor) {
  OpenScope(descriptor);
  PushCurly(descriptor.kind == kNamespaceKind ? CurlyType::Namespace : CurlyType::Class);
}

void ParserStateBase::PopClass(int line) {
  if (classStack.empty()) {
    ReportError("no class to close,", line);
    return;
  }
  classStack.pop_back();
  scopeText.Close();
}

void ParserStateBase::DumpEnum(const Name& name) {
  if (options->debugDump) {
    std::printf("enum: %s| %s:%d\n", name.text.c_str(), FileField().c_str(), name.line);
    return;
  }
  Emit({.name = name.text,
        .line = name.line,
        .kind = kind_letter::kEnum,
        .fields = {InnermostScopeField()}});
}

void ParserStateBase::DumpEnumerator(const Name& name) {
  if (classStack.empty()) {
    if (options->dumpErrors) {
      std::fprintf(stderr, "enumerator %s %s %d, unexpected-not inside an enum\n",
                   name.text.c_str(), FileField().c_str(), name.line);
    }
    return;
  }
  if (options->debugDump) {
    std::printf("enumerator: %s, enum:%s| %s:%d\n", name.text.c_str(),
                CurrentNamespaceName().c_str(), FileField().c_str(), name.line);
    return;
  }
  Emit({.name = name.text,
        .line = name.line,
        .kind = kind_letter::kEnumerator,
        .pieces = Tag::Pieces::kOne,
        .fields = {EnumField(CollapsedScope())}});
}

void ParserStateBase::OpenEnum(const TypeDescriptor& descriptor) {
  if (!descriptor.isAnonymous) DumpEnum(Name(descriptor.name, descriptor.line));
  PushClass(descriptor);
}

long ParserStateBase::CurrentNamespaceKind() const {
  return classStack.empty() || CurrentNamespaceName().empty() ? kNoKind : classStack.back().kind;
}

std::string ParserStateBase::CurrentNamespaceKindName() const {
  return NameSpaceKindName(CurrentNamespaceKind());
}

std::string ParserStateBase::NameSpaceKindName(long kind) { return ScopeKindName(kind); }

std::string ParserStateBase::NameSpaceSelector(long kind) {
  return std::string(1, ScopeKindLetter(kind));
}

ParserStateBase::CurlyType ParserStateBase::PopRCurly(bool semicolonFollows, int line) {
  const std::optional<CurlyType> type = PopCurly();
  if (!type) {
    ReportError("} imballance", line);
    return CurlyType::Function;
  }
  if (*type == CurlyType::Class && !semicolonFollows) {
    ReportError("class terminator }; expected, missing semicolon", line);
    return CurlyType::Function;
  }
  if (*type == CurlyType::Class || *type == CurlyType::Namespace) PopClass(line);
  return *type;
}

void ParserStateBase::DumpTrackPerFileDeclVolume() {
  ++declarationCount;
  if (!options->debugDumpFilesWithHugeOutput || declarationCount != kManyDeclarations) return;
  std::fprintf(stderr, "%s -- more than %d declarations seen so far\n", FileField().c_str(),
               declarationCount);
}

void ParserStateBase::PushCurly(CurlyType type) {
  if (!curlyStack.empty() && curlyStack.back().first == type) {
    ++curlyStack.back().second;
  } else {
    curlyStack.emplace_back(type, 1);
  }
}

std::optional<ParserStateBase::CurlyType> ParserStateBase::PopCurly() {
  if (curlyStack.empty()) return std::nullopt;
  const CurlyType type = curlyStack.back().first;
  if (--curlyStack.back().second == 0) curlyStack.pop_back();
  return type;
}

void ParserStateBase::OpenScope(const TypeDescriptor& descriptor) {
  classStack.push_back(descriptor);
  scopeText.Open(descriptor.name);
}

const std::string& ParserStateBase::FileField() const {
  // A relative path is computed for each tag: while HOME is unset, each tag reports that.
  if (fileField.empty() || options->tagRelative) fileField = dumper->FileName(*options, fileName);
  return fileField;
}

void ParserStateBase::Emit(Tag tag) const {
  tag.file = FileField();
  WriteTag(*dumper, tag);
}

TagField ParserStateBase::InnermostScopeField() const {
  if (CurrentNamespaceName().empty()) return {};
  return ScopeField(ScopeKindName(CurrentNamespaceKind()), CollapsedScope());
}

std::string ParserStateBase::CollapsedForPiece(const std::string& text) {
  if (text.size() <= Dumper::kLongestPiece) return CollapseWhitespace(text, " ");
  // Collapsing only shortens a text, so a long one may need all of its bytes to fill a piece.
  const std::string_view start = std::string_view(text).substr(0, 4 * Dumper::kLongestPiece);
  std::string collapsed = CollapseWhitespace(start, " ");
  return collapsed.size() > Dumper::kLongestPiece ? collapsed : CollapseWhitespace(text, " ");
}

void ParserStateBase::PrintReadablePosition(int line) const {
  std::printf("| %s:%d\n", FileField().c_str(), line);
}

void ParserStateBase::ReportError(const char* message, int line) const {
  if (!options->dumpErrors) return;
  std::fprintf(stderr, "error -- %s %s:%d\n", message, FileField().c_str(), line);
}

}  // namespace vexltags
