// SPDX-License-Identifier: MIT
// The tables behind the tags file format.
#include "output/tags_format.h"

#include "base/version.h"

namespace vexltags {

namespace {

struct ScopeKind {
  char letter;
  const char* name;
};

// Indexed by kind number minus 1.
constexpr ScopeKind kScopeKinds[] = {
    {'c', "class"},     {'s', "struct"},   {'u', "union"},
    {'e', "enum"},      {'t', ""},         {'n', "namespace"},
    {'X', "interface"}, {'Y', "protocol"}, {'w', "implementation"},
    {'b', "constant"},  {'V', "variable"}, {'Z', "extension"},
    {'C', "concept"},
};
constexpr long kScopeKindCount = sizeof kScopeKinds / sizeof kScopeKinds[0];
constexpr ScopeKind kNoScope = {' ', ""};

const ScopeKind& FindScopeKind(long kind) {
  return kind >= 1 && kind <= kScopeKindCount ? kScopeKinds[kind - 1] : kNoScope;
}

}  // namespace

std::string TagsHeader(std::int32_t sort) {
  return "!_TAG_FILE_FORMAT\t2\t/extended format/ \n"
         "!_TAG_FILE_SORTED\t" +
         std::to_string(sort) +
         " /0=unsorted, 1=sorted, 2=foldcase/ \n"
         "!_TAG_PROGRAM_NAME\tvexltags\n"
         "!_TAG_PROGRAM_VERSION\t" +
         kVersion + "\n";
}

const char* ScopeKindName(long kind) { return FindScopeKind(kind).name; }

char ScopeKindLetter(long kind) { return FindScopeKind(kind).letter; }

char MethodKindLetter(bool isProperty, bool isDefinition, bool isClassMethod) {
  if (isProperty) return isDefinition ? 'R' : 'r';
  if (isDefinition) return isClassMethod ? 'O' : 'o';
  return isClassMethod ? 'I' : 'i';
}

}  // namespace vexltags
