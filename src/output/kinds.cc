// SPDX-License-Identifier: MIT
// The table of the scope-like kinds.
#include "output/kinds.h"

#include <iterator>

namespace vexltags {

namespace {

struct Row {
  ScopeKind kind;
  char letter;
  const char* word;
};

constexpr Row kRows[] = {
    {kNoKind, ' ', ""},
    {kClassKind, kind_letter::kClass, "class"},
    {kStructKind, kind_letter::kStruct, "struct"},
    {kUnionKind, kind_letter::kUnion, "union"},
    {kEnumKind, kind_letter::kEnumerator, "enum"},
    {kTypeAliasKind, kind_letter::kTypedef, ""},
    {kNamespaceKind, kind_letter::kNamespace, "namespace"},
    {kInterfaceKind, kind_letter::kInterface, "interface"},
    {kProtocolKind, kind_letter::kProtocol, "protocol"},
    {kImplementationKind, kind_letter::kImplementation, "implementation"},
    {kConstantKind, kind_letter::kConstant, "constant"},
    {kVariableKind, kind_letter::kSwiftVariable, "variable"},
    {kExtensionKind, kind_letter::kExtension, "extension"},
    {kConceptKind, kind_letter::kConstraint, "concept"},
};

constexpr bool RowsAreInOrder() {
  for (long i = 0; i < static_cast<long>(std::size(kRows)); ++i) {
    if (kRows[i].kind != i) return false;
  }
  return true;
}
static_assert(RowsAreInOrder());

const Row& Find(long kind) {
  const bool isKnown = kind >= 0 && kind < static_cast<long>(std::size(kRows));
  return kRows[isKnown ? kind : kNoKind];
}

}  // namespace

const char* ScopeKindName(long kind) { return Find(kind).word; }

char ScopeKindLetter(long kind) { return Find(kind).letter; }

char MethodKindLetter(bool isProperty, bool isDefinition, bool isClassMethod) {
  using namespace kind_letter;
  if (isProperty) return isDefinition ? kSynthesizedAccessor : kDeclaredAccessor;
  if (isDefinition) return isClassMethod ? kClassMethodDefinition : kInstanceMethodDefinition;
  return isClassMethod ? kClassMethodDeclaration : kInstanceMethodDeclaration;
}

}  // namespace vexltags
