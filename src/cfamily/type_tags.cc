// SPDX-License-Identifier: MIT
// The tags of macros, typedefs, concepts, variables, members, and names after a closing brace.
#include <cassert>
#include <cstdio>

#include "base/text.h"
#include "cfamily/type_text.h"
#include "cfamily/vexl_tags_parser.h"
#include "output/kinds.h"

namespace vexltags {
namespace {

/// True for the kinds of types that a typeref field names.
bool IsTypeKind(long kind) {
  return kind == kClassKind || kind == kStructKind || kind == kUnionKind || kind == kEnumKind;
}

/// True for the kinds of scopes that can declare a variable with a qualified name.
bool HoldsVariables(long kind) {
  return kind == kClassKind || kind == kStructKind || kind == kUnionKind || kind == kNamespaceKind;
}

char VariableLetter(bool isMember) {
  return isMember ? kind_letter::kMember : kind_letter::kVariable;
}

}  // namespace

std::string VexlTagsParser::FlattenParamList(const ParamList& list) {
  std::string text;
  for (const Param& param : list.params) {
    if (&param != &list.params.front()) text += ", ";
    text += param.type;
    if (!param.name.empty()) text += " @" + param.name + "@";
  }
  return text;
}

void VexlTagsParser::DumpMacro(std::string_view name, int line) const {
  if (options->debugDump) {
    std::printf("macro: %s", std::string(name).c_str());
    PrintReadablePosition(line);
    return;
  }
  Emit({.name = name, .line = line, .kind = kind_letter::kMacro, .pieces = Tag::Pieces::kOne});
}

void VexlTagsParser::DumpTypedef(const std::string& name, const TypeDescriptor& type,
                                 int line) const {
  assert(line >= 0 && "name.fLine >= 0");
  if (options->debugDump) {
    std::printf("typedef: %s", name.c_str());
    PrintReadablePosition(line);
    return;
  }
  std::string typeText;
  TagField typeref;
  if (IsTypeKind(type.kind)) {
    typeText = type.name;
    typeref = TyperefField(ReplaceAll(typeText, " ", ":"));
  }
  Emit({.name = name,
        .line = line,
        .kind = kind_letter::kTypedef,
        .fields = {typeref, InnermostScopeField()}});
}

void VexlTagsParser::DumpConstraint(const std::string& name, const TypeDescriptor& /*type*/,
                                    int line) const {
  assert(line >= 0 && "n.fLine >= 0");
  if (options->debugDump) {
    std::printf("constraint: %s", name.c_str());
    PrintReadablePosition(line);
    return;
  }
  Emit({.name = name,
        .line = line,
        .kind = kind_letter::kConstraint,
        .fields = {InnermostScopeField()}});
}

void VexlTagsParser::DumpDeclDef(bool isMember, const std::string& name, const TypeDescriptor& type,
                                 int line) {
  DumpTrackPerFileDeclVolume();
  if (options->debugDump) {
    std::printf("%s: %s %s", isMember ? "member" : "global", type.name.c_str(), name.c_str());
    PrintReadablePosition(line);
    return;
  }
  std::string plainName, qualifier, scope;
  SplitNameQualifier(name, plainName, qualifier);
  TagField field;
  const long kind = CurrentNamespaceKind();
  if (qualifier.empty()) {
    field = InnermostScopeField();
  } else if (HoldsVariables(kind)) {
    scope = CollapsedForPiece(AppendQualifier(CurrentNamespaceName(), qualifier, false));
    field = ScopeField(ScopeKindName(kind), scope);
  } else {
    scope = CollapseWhitespace(qualifier, " ");
    field = Plain(ScopeField(ScopeKindName(kClassKind), scope));
  }
  Emit({.name = plainName,
        .line = line,
        .kind = VariableLetter(isMember),
        .pieces = Tag::Pieces::kPlainFile,
        .fields = {field}});
}

void VexlTagsParser::DumpDeclaration(bool isMember, bool isTypedef, const std::string& name,
                                     long typeKind, const std::string& typeName, long scopeKind,
                                     const std::string& scopeName, int line) {
  assert(line >= 0 && "name.fLine >= 0");
  DumpTrackPerFileDeclVolume();
  if (options->debugDump) {
    std::printf("%s: %s %s", isMember ? "member" : "global", typeName.c_str(), name.c_str());
    PrintReadablePosition(line);
    return;
  }
  std::string scope, type;
  Tag tag{.name = name,
          .line = line,
          .kind = isTypedef ? kind_letter::kTypedef : VariableLetter(isMember)};
  if (isMember) {
    scope = CollapsedForPiece(scopeName);
    tag.fields[0] = ScopeField(ScopeKindName(scopeKind), scope);
  }
  if (!typeName.empty()) {
    type = CollapsedForPiece(typeName);
    tag.fields[1] = TyperefField(ScopeKindName(typeKind), type);
  }
  Emit(tag);
}

}  // namespace vexltags
