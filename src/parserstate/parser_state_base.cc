// SPDX-License-Identifier: MIT
// Keeps track of open scopes and braces, and writes the tags of enums.
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
  if (!classStack.empty()) {
    classStack.pop_back();
    scopeText.Close();
  } else if (options->dumpErrors) {
    std::fprintf(stderr, "error -- no class to close, %s:%d\n", FileField().c_str(), line);
  }
}

void ParserStateBase::DumpEnum(const Name& name) {
  if (options->debugDump) {
    std::printf("enum: %s| %s:%d\n", name.text.c_str(), FileField().c_str(), name.line);
    return;
  }
  PrintCollapsed(name.text);
  PrintPosition(name.line, {&kind_letter::kEnum, 1});
  if (!CurrentNamespaceName().empty()) PrintScope(CurrentNamespaceKindName());
  dumper->Print("\n");
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
  PrintCollapsed(name.text);
  dumper->PrintPiece({"\t",
                      FileField(),
                      "\t",
                      std::to_string(name.line),
                      ";\"\t",
                      {&kind_letter::kEnumerator, 1},
                      "\tenum:",
                      CollapsedScopeForPiece(),
                      "\n"});
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
  if (curlyStack.empty()) {
    if (options->dumpErrors) {
      std::fprintf(stderr, "error -- } imballance %s:%d\n", FileField().c_str(), line);
    }
    return CurlyType::Function;
  }
  const CurlyType type = curlyStack.back().first;
  if (--curlyStack.back().second == 0) curlyStack.pop_back();

  if (type == CurlyType::Namespace || (type == CurlyType::Class && semicolonFollows)) {
    PopClass(line);
    return type;
  }
  if (type == CurlyType::Class) {
    if (options->dumpErrors) {
      std::fprintf(stderr, "error -- class terminator }; expected, missing semicolon %s:%d\n",
                   FileField().c_str(), line);
    }
    return CurlyType::Function;
  }
  return type;
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

const std::string& ParserStateBase::FileField() const {
  // A relative one is asked for each time: while there is no $HOME, each tag says so.
  if (fileField.empty() || options->tagRelative) fileField = dumper->FileName(*options, fileName);
  return fileField;
}

void ParserStateBase::OpenScope(const TypeDescriptor& descriptor) {
  classStack.push_back(descriptor);
  scopeText.Open(descriptor.name);
}

void ParserStateBase::PrintCollapsed(const std::string& name) const {
  if (HasWhitespace(name)) {
    dumper->Print(CollapseWhitespace(name, " "));
  } else {
    dumper->Print(name);
  }
}

std::string ParserStateBase::CollapsedForPiece(const std::string& text) {
  if (text.size() <= Dumper::kLongestPiece) return CollapseWhitespace(text, " ");
  // White space only shrinks, so what was too long may still be, or fit after all.
  std::string collapsed = CollapseWhitespace(text.substr(0, 4 * Dumper::kLongestPiece), " ");
  return collapsed.size() > Dumper::kLongestPiece ? collapsed : CollapseWhitespace(text, " ");
}

void ParserStateBase::PrintPosition(int line, std::string_view letter) const {
  dumper->PrintPiece({"\t", FileField(), "\t", std::to_string(line), ";\"\t", letter});
}

void ParserStateBase::PrintScope(std::string_view word) const {
  dumper->PrintPiece({"\t", word, ":", CollapsedScopeForPiece()});
}

}  // namespace vexltags
