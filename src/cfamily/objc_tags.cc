// SPDX-License-Identifier: MIT
// The tags of Objective-C methods, accessors and scopes.
#include <cstdio>
#include <string>

#include "base/text.h"
#include "cfamily/declarations.h"
#include "output/kinds.h"

namespace vexltags {
namespace {

/// `setCount:` for a property `count`.
std::string SetterName(const std::string& property) {
  std::string name = "set" + property + ":";
  char& first = name[3];  // the colon if the property has no name
  if (first >= 'a' && first <= 'z') first = static_cast<char>(first - 'a' + 'A');
  return name;
}

void OpenObjcScope(VexlTagsParser& builder, long kind, const Name& name, const Name& category) {
  TypeDescriptor descriptor(kind, name);
  if (!category.text.empty()) descriptor.name += "(" + category.text + ")";
  builder.DumpClass(descriptor, descriptor.line);
  builder.PushClass(descriptor);
}

}  // namespace

void VexlTagsParser::DumpMethod(const MethodPrototype& method) const {
  if (options->debugDump) {
    std::printf("implement %s:%d\n", "ParserState", 198);
    return;
  }
  Emit({.name = method.name,
        .line = method.line,
        .kind = MethodKindLetter(method.isProperty, method.isDefinition, method.isClassMethod),
        .fields = {Plain(ScopeField(ScopeKindName(CurrentNamespaceKind()), CollapsedScope()))}});
}

void PopulatePropertyMethodPrototypeList(const MethodPrototype& proto,
                                         const PropertyAttributeInfo& attrs, bool isDefinition,
                                         MethodPrototypeList& list) {
  MethodPrototype accessor = proto;
  accessor.isDefinition = isDefinition;
  accessor.isProperty = true;
  if (!attrs.getter.empty()) accessor.name = attrs.getter;
  list.Add(accessor);
  if (attrs.readonly) return;
  accessor.name = attrs.setter.empty() ? SetterName(proto.name) : attrs.setter;
  list.Add(accessor);
}

void MergePropertyAttribute(PropertyAttributeInfo& attributes, const PropertyAttributeInfo& later) {
  attributes.readonly = attributes.readonly || later.readonly;
  if (!later.getter.empty()) attributes.getter = later.getter;
  if (!later.setter.empty()) attributes.setter = later.setter;
}

void AddSynthesized(MethodPrototypeList& list, const Name& name) {
  PopulatePropertyMethodPrototypeList(MethodPrototype(name), PropertyAttributeInfo(), true, list);
}

void AddMethod(MethodPrototypeList& list, const MethodPrototype& method, bool isDefinition) {
  list.Add(method);
  list.methods.back().isDefinition = isDefinition;
}

void EndObjcMethod(VexlTagsParser& builder, const MethodPrototypeList& list) {
  if (builder.InObjc()) {
    for (const MethodPrototype& method : list.methods) builder.DumpMethod(method);
  }
  builder.inTypedef = false;
}

void OpenObjcInterface(VexlTagsParser& builder, const Name& name, const Name& category,
                       bool isInterface) {
  OpenObjcScope(builder, isInterface ? kInterfaceKind : kProtocolKind, name, category);
}

void OpenObjcImplementation(VexlTagsParser& builder, const Name& name, const Name& category) {
  OpenObjcScope(builder, kImplementationKind, name, category);
}

}  // namespace vexltags
