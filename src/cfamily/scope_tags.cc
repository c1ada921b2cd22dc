// SPDX-License-Identifier: MIT
// Scopes, braces and qualified names of the C family, and the tags of class-like scopes.
#include <algorithm>
#include <cstddef>
#include <cstdio>

#include "base/text.h"
#include "cfamily/vexl_tags_parser.h"
#include "output/kinds.h"
#include "parserstate/append.h"

namespace vexltags {

const std::string& VexlTagsParser::CurrentNamespaceName() const { return JoinedScope(); }

std::string VexlTagsParser::NamespaceNameToShow() const {
  return options->debugDump ? JoinedScope() : CollapsedForPiece(JoinedScope());
}

bool VexlTagsParser::HasScope() const { return !JoinedScope().empty(); }

void VexlTagsParser::PushFunctionLCurly() { PushCurly(CurlyType::Function); }

void VexlTagsParser::PushOtherLCurly() { PushCurly(CurlyType::Other); }

bool VexlTagsParser::InFunctionCurlies() const {
  return !curlyStack.empty() && curlyStack.back().first == CurlyType::Function;
}

bool VexlTagsParser::InFunctionCurliesDeep() const {
  return std::any_of(curlyStack.begin(), curlyStack.end(),
                     [](const auto& entry) { return entry.first == CurlyType::Function; });
}

bool VexlTagsParser::InClassCurlies() const {
  return !curlyStack.empty() && curlyStack.back().first == CurlyType::Class;
}

bool VexlTagsParser::InObjc() const {
  if (classStack.empty()) return false;
  const long kind = classStack.back().kind;
  return kind == kInterfaceKind || kind == kProtocolKind || kind == kImplementationKind;
}

bool VexlTagsParser::CurrentNamespaceIsTyperef() const {
  return HasScope() && classStack.back().isTypedef;
}

std::string VexlTagsParser::NextAnonName() { return "__anon" + std::to_string(++anonCount); }

std::int32_t VexlTagsParser::AnonCount() { return anonCount; }

void VexlTagsParser::SetAnonCount(std::int32_t count) { anonCount = count; }

const std::string& VexlTagsParser::AppendWithSpace(std::string& text, std::string_view piece) {
  return vexltags::AppendWithSpace(text, piece);
}

std::pair<std::string, std::string> VexlTagsParser::GetNamespaceAndName(
    const std::string& name) const {
  std::string scope = CurrentNamespaceName();
  std::size_t start = 0;
  int depth = 0;
  for (std::size_t i = 0; i < name.size(); ++i) {
    if (name[i] == '<') {
      ++depth;
    } else if (name[i] == '>') {
      --depth;
    } else if (depth == 0 && name.compare(i, 2, "::") == 0) {
      if (!scope.empty()) scope += "::";
      scope.append(name, start, i - start);
      start = i + 2;
      ++i;
    }
  }
  return {scope, name.substr(start)};
}

void VexlTagsParser::DumpClass(const TypeDescriptor& descriptor, int line) const {
  if (options->debugDump) {
    std::printf("class: %s", descriptor.name.c_str());
    PrintReadablePosition(line);
    return;
  }
  Tag tag{.name = descriptor.name, .line = line, .kind = ScopeKindLetter(descriptor.kind)};
  if (!HasQualifier(descriptor.name)) {
    tag.fields[0] = InnermostScopeField();
    Emit(tag);
    return;
  }
  const auto [scope, plainName] = GetNamespaceAndName(descriptor.name);
  const std::string shownScope = CollapseWhitespace(scope, " ");
  tag.name = plainName;
  if (!scope.empty()) tag.fields[0] = ScopeField(ScopeWord(), shownScope);
  Emit(tag);
}

bool VexlTagsParser::HasQualifier(const std::string& name) {
  return name.find("::") != std::string::npos;
}

const char* VexlTagsParser::ScopeWord() const {
  return ScopeKindName(HasScope() ? classStack.back().kind : kClassKind);
}

}  // namespace vexltags
