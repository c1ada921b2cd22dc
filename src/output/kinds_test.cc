// SPDX-License-Identifier: MIT
// Tests of the kinds: their letters, numbers and words.
#include "output/kinds.h"

#include <gtest/gtest.h>

#include <string>

namespace vexltags {
namespace {

TEST(ScopeKind, HasALetterAndANameForEachNumber) {
  const struct {
    long kind;
    char letter;
    const char* name;
  } cases[] = {
      {-1, ' ', ""},
      {0, ' ', ""},
      {1, 'c', "class"},
      {2, 's', "struct"},
      {3, 'u', "union"},
      {4, 'e', "enum"},
      {5, 't', ""},
      {6, 'n', "namespace"},
      {7, 'X', "interface"},
      {8, 'Y', "protocol"},
      {9, 'w', "implementation"},
      {10, 'b', "constant"},
      {11, 'V', "variable"},
      {12, 'Z', "extension"},
      {13, 'C', "concept"},
      {14, ' ', ""},
      {1L << 40, ' ', ""},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(ScopeKindLetter(c.kind), c.letter) << c.kind;
    EXPECT_STREQ(ScopeKindName(c.kind), c.name) << c.kind;
  }
}

TEST(MethodKindLetter, FollowsTheFlags) {
  const struct {
    bool isProperty;
    bool isDefinition;
    bool isClassMethod;
    char letter;
  } cases[] = {
      {false, false, false, 'i'}, {false, false, true, 'I'}, {false, true, false, 'o'},
      {false, true, true, 'O'},   {true, false, false, 'r'}, {true, false, true, 'r'},
      {true, true, false, 'R'},   {true, true, true, 'R'},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(MethodKindLetter(c.isProperty, c.isDefinition, c.isClassMethod), c.letter)
        << c.isProperty << c.isDefinition << c.isClassMethod;
  }
}

TEST(ScopeKind, HasANameForEachNumber) {
  const ScopeKind kinds[] = {kNoKind,        kClassKind,          kStructKind,    kUnionKind,
                             kEnumKind,      kTypeAliasKind,      kNamespaceKind, kInterfaceKind,
                             kProtocolKind,  kImplementationKind, kConstantKind,  kVariableKind,
                             kExtensionKind, kConceptKind};
  long number = 0;
  for (const ScopeKind kind : kinds) EXPECT_EQ(kind, number++);
  EXPECT_EQ(number, 14);
}

TEST(KindLetter, IsTheDocumentedOne) {
  using namespace kind_letter;
  const std::string letters = {kFunctionDefinition,
                               kFunctionDeclaration,
                               kMember,
                               kVariable,
                               kTypedef,
                               kMacro,
                               kConstraint,
                               kEnum,
                               kEnumerator,
                               kClass,
                               kStruct};
  EXPECT_EQ(letters, "fpmvtdCgecs");
}

}  // namespace
}  // namespace vexltags
