// SPDX-License-Identifier: MIT
// The tags of macros, typedefs, concepts, variables, members, and names behind a closing brace.
#include <cassert>
#include <cstdio>

#include "base/text.h"
#include "cfamily/type_text.h"
#include "cfamily/vexl_tags_parser.h"
#include "output/kinds.h"

namespace vexltags {
namespace {

/// True for the kinds that a typeref names: class, struct, union, enum.
bool IsTypeKind(long kind) {
  return kind == kClassKind || kind == kStructKind || kind == kUnionKind || kind == kEnumKind;
}

/// True for the kinds that a qualified variable can be a member of: class, struct, union,
/// namespace.
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

void VexlTagsParser::DumpMacro(const std::string& name, int line) const {
  if (options->debugDump) {
    std::printf("macro: %s", name.c_str());
    DebugPosition(line);
    return;
  }
  PrintCollapsed(name);
  dumper->PrintPiece(
      {"\t", FileField(), "\t", std::to_string(line), ";\"\t", {&kind_letter::kMacro, 1}, "\n"});
}

void VexlTagsParser::DumpTypedef(const std::string& name, const TypeDescriptor& type,
                                 int line) const {
  assert(line >= 0 && "name.fLine >= 0");
  if (options->debugDump) {
    std::printf("typedef: %s", name.c_str());
    DebugPosition(line);
    return;
  }
  PrintTagHead(name, line, kind_letter::kTypedef);
  if (IsTypeKind(type.kind)) {
    std::string typeText = type.name;
    dumper->PrintFormat("\ttyperef:%s", ReplaceAll(typeText, " ", ":").c_str());
  }
  PrintScopeField();
  dumper->Print("\n");
}

void VexlTagsParser::DumpConstraint(const std::string& name, const TypeDescriptor& /*type*/,
                                    int line) const {
  assert(line >= 0 && "n.fLine >= 0");
  if (options->debugDump) {
    std::printf("constraint: %s", name.c_str());
    DebugPosition(line);
    return;
  }
  PrintTagHead(name, line, kind_letter::kConstraint);
  PrintScopeField();
  dumper->Print("\n");
}

void VexlTagsParser::DumpDeclDef(bool isMember, const std::string& name, const TypeDescriptor& type,
                                 int line) {
  DumpTrackPerFileDeclVolume();
  if (options->debugDump) {
    std::printf("%s: %s %s", isMember ? "member" : "global", type.name.c_str(), name.c_str());
    DebugPosition(line);
    return;
  }
  std::string plainName, qualifier;
  SplitNameQualifier(name, plainName, qualifier);
  PrintCollapsed(plainName);
  dumper->Print("\t");
  dumper->Print(FileField());
  const char letter = VariableLetter(isMember);
  dumper->PrintPiece({"\t", std::to_string(line), ";\"\t", {&letter, 1}});
  const long kind = CurrentNamespaceKind();
  if (qualifier.empty()) {
    PrintScopeField();
  } else if (HoldsVariables(kind)) {
    const std::string scope = AppendQualifier(CurrentNamespaceName(), qualifier, false);
    dumper->PrintPiece({"\t", NameSpaceKindName(kind), ":", CollapsedForPiece(scope)});
  } else {
    dumper->Print("\tclass:");
    dumper->Print(CollapseWhitespace(qualifier, " "));
  }
  dumper->Print("\n");
}

void VexlTagsParser::DumpDeclaration(bool isMember, bool isTypedef, const std::string& name,
                                     long typeKind, const std::string& typeName, long scopeKind,
                                     const std::string& scopeName, int line) {
  assert(line >= 0 && "name.fLine >= 0");
  DumpTrackPerFileDeclVolume();
  if (options->debugDump) {
    std::printf("%s: %s %s", isMember ? "member" : "global", typeName.c_str(), name.c_str());
    DebugPosition(line);
    return;
  }
  PrintTagHead(name, line, isTypedef ? kind_letter::kTypedef : VariableLetter(isMember));
  if (isMember) {
    dumper->PrintPiece({"\t", NameSpaceKindName(scopeKind), ":", CollapsedForPiece(scopeName)});
  }
  if (!typeName.empty()) {
    dumper->PrintPiece(
        {"\ttyperef:", NameSpaceKindName(typeKind), ":", CollapsedForPiece(typeName)});
  }
  dumper->Print("\n");
}

}  // namespace vexltags
