// SPDX-License-Identifier: MIT
// What the end of each C and C++ construct means for the tag builder.
#include "cfamily/declarations.h"

namespace vexltags {
namespace {

/// False for a name that no token has set, see declarations.h.
bool HasLine(const Name& name) { return name.line >= 0; }

}  // namespace

void EndFunction(VexlTagsParser& builder, FunctionPrototype&& prototype, bool isFriend,
                 bool isDefinition) {
  prototype.isDefinition = isDefinition;
  prototype.isFriend = prototype.isFriend || isFriend;
  const bool onlyFriend = prototype.isFriend && !isDefinition;
  if (!onlyFriend && !builder.InFunctionCurliesDeep()) {
    prototype.DumpDeclDef(builder, prototype.line);
  }
  builder.inTypedef = false;
}

void EndSimpleDeclaration(VexlTagsParser& builder, const TypeDescriptor& type,
                          const VectorOfName& names) {
  if (!builder.InFunctionCurliesDeep()) {
    for (const Name& name : names.names) {
      if (!HasLine(name)) continue;
      if (builder.inTypedef) {
        builder.DumpTypedef(name.text, type, name.line);
      } else {
        builder.DumpDeclDef(builder.InClassCurlies(), name.text, type, name.line);
      }
    }
  }
  builder.inTypedef = false;
}

void EndTypedef(VexlTagsParser& builder, const TypeDescriptor& type, const VectorOfName& names) {
  if (!builder.InFunctionCurliesDeep()) {
    for (const Name& name : names.names) {
      if (HasLine(name)) builder.DumpTypedef(name.text, type, name.line);
    }
  }
  builder.inTypedef = false;
}

void EndAlias(VexlTagsParser& builder, const Name& name, const TypeDescriptor& type) {
  if (builder.InFunctionCurliesDeep() || !HasLine(name)) return;
  builder.DumpTypedef(name.text, type, name.line);
}

void EndConcept(VexlTagsParser& builder, const Name& name, const std::string& headText) {
  if (builder.InFunctionCurliesDeep() || !HasLine(name)) return;
  builder.DumpConstraint(name.text, TypeDescriptor(headText, kNoKind, name.line), name.line);
}

TypeDescriptor FunctionPointerType(const Param& pointer) {
  return TypeDescriptor(pointer.type, kNoKind, pointer.line);
}

void SetFunctionPointer(const Param& pointer, TypeDescriptor& type, VectorOfName& names) {
  type = FunctionPointerType(pointer);
  names.Add(Name(pointer.name, pointer.line));
}

void BeginFunctionPointer(Param& pointer, const TypeDescriptor& type) {
  pointer.type = type.name;
  pointer.line = type.line;
}

void EndFunctionPointer(const VexlTagsParser& builder, Param& pointer, const ParamList& params,
                        const std::string& constQualifier) {
  if (!builder.ShowsTypeText()) return;
  pointer.type += '(';
  pointer.type += VexlTagsParser::FlattenParamList(params);
  pointer.type += ')';
  pointer.type += constQualifier;
}

void SetUnnamedParam(Param& param, const TypeDescriptor& type) {
  param.name = type.name;
  param.line = type.line;
}

void AddVariadicParam(ParamList& list, int line) { list.Add(Param("...", "", line)); }

void NameClass(TypeDescriptor& descriptor, const Name& name, const std::string& templateText) {
  descriptor.ResetNameAndLine(name);
  descriptor.isAnonymous = false;
  if (!templateText.empty() && !descriptor.name.ends_with('>')) {
    descriptor.name += "<" + templateText + ">";
  }
}

void NameAnonymousClass(TypeDescriptor& descriptor, int nextTokenLine) {
  descriptor.ResetNameAndLine(Name(VexlTagsParser::NextAnonName(), nextTokenLine));
  descriptor.isAnonymous = true;
}

void OpenClass(VexlTagsParser& builder, const TypeDescriptor& descriptor) {
  if (!descriptor.isAnonymous && !builder.InFunctionCurliesDeep()) {
    builder.DumpClass(descriptor, descriptor.line);
  }
  builder.PushClass(descriptor);
}

void OpenStdNamespace(VexlTagsParser& builder, int line) {
  builder.PushClass(TypeDescriptor("std", kNamespaceKind, line));
}

void CloseScope(VexlTagsParser& builder, int semicolonLine) {
  builder.PopRCurly(true, semicolonLine);
  builder.inTypedef = false;
}

void CloseScopeWithDeclarators(VexlTagsParser& builder, const VectorOfName& names,
                               int semicolonLine) {
  const long typeKind = builder.CurrentNamespaceKind();
  const std::string typeName = builder.NamespaceNameToShow();
  const bool isTypedef = builder.CurrentNamespaceIsTyperef();
  builder.PopRCurly(true, semicolonLine);
  if (!builder.InFunctionCurliesDeep()) {
    for (const Name& name : names.names) {
      if (!HasLine(name)) continue;
      builder.DumpDeclaration(builder.InClassCurlies(), isTypedef, name.text, typeKind, typeName,
                              builder.CurrentNamespaceKind(), builder.CurrentNamespaceName(),
                              name.line);
    }
  }
  builder.inTypedef = false;
}

void NameEnum(TypeDescriptor& descriptor, int nextTokenLine) {
  if (descriptor.name.empty()) {
    NameAnonymousClass(descriptor, nextTokenLine);
  } else {
    descriptor.isAnonymous = false;
  }
}

void CloseEnum(VexlTagsParser& builder, int braceLine) { builder.PopRCurly(true, braceLine); }

void DeclareEnumName(VexlTagsParser& builder, const TypeDescriptor& descriptor, const Name& name) {
  if (!HasLine(name)) return;
  builder.DumpDeclaration(false, descriptor.isTypedef, name.text, descriptor.kind, descriptor.name,
                          builder.CurrentNamespaceKind(), builder.CurrentNamespaceName(),
                          name.line);
}

}  // namespace vexltags
