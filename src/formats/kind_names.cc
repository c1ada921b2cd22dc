// SPDX-License-Identifier: MIT
// A table of kind letters.
#include "formats/kind_names.h"

#include "output/kinds.h"

namespace vexltags {

std::string_view KindName(char kind, std::string_view language) {
  using namespace kind_letter;
  switch (kind) {
    case kClass:
      return "class";
    case kStruct:
      return "struct";
    case kUnion:
      return "union";
    case kEnum:
      return "enum";
    case kEnumerator:
      return "enumerator";
    case kTypedef:
      return language == "Swift" ? "typealias" : "typedef";
    case kNamespace:
      return "namespace";
    case kInterface:
      return "interface";
    case kProtocol:
      return "protocol";
    case kImplementation:
      return "implementation";
    case kConstant:
      return "constant";
    case kSwiftVariable:
      return "variable";
    case kExtension:
      return "extension";
    case kConstraint:
      return "concept";
    case kFunctionDefinition:
      return "function";
    case kFunctionDeclaration:
      return "prototype";
    case kMember:
      return "member";
    case kVariable:
      return "variable";
    case kMacro:
      return "macro";
    case kInstanceMethodDeclaration:
    case kInstanceMethodDefinition:
      return "method";
    case kClassMethodDeclaration:
    case kClassMethodDefinition:
      return "classMethod";
    case kDeclaredAccessor:
    case kSynthesizedAccessor:
      return "property";
    default:
      return "";
  }
}

}  // namespace vexltags
