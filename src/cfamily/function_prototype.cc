// SPDX-License-Identifier: MIT
// From a function's head to its tag line or its readable form.
#include "cfamily/function_prototype.h"

#include <cstdio>
#include <tuple>

#include "base/text.h"
#include "cfamily/type_text.h"
#include "cfamily/vexl_tags_parser.h"
#include "output/kinds.h"

namespace vexltags {

FunctionPrototype& FunctionPrototype::operator=(std::nullptr_t) {
  return *this = FunctionPrototype();
}

void FunctionPrototype::SetName(const Name& functionName) {
  name = functionName;
  line = functionName.line;
}

void FunctionPrototype::SetOperator(const std::string& classQualifier, const Name& symbol) {
  qualifier = classQualifier;
  SetName(symbol);
  isOperator = true;
}

void FunctionPrototype::DumpDeclDef(const VexlTagsParser& parser, int tagLine) const {
  if (name.text.empty()) return;
  if (parser.options->debugDump) {
    DebugDump(parser, tagLine);
    return;
  }
  std::string scope, plainName;
  const bool isPlain = qualifier.empty() && !VexlTagsParser::HasQualifier(name.text);
  if (!isPlain) std::tie(scope, plainName) = parser.GetNamespaceAndName(name.text);
  Dumper& dumper = *parser.dumper;
  if (isOperator) dumper.Print("operator ");
  parser.PrintCollapsed(isPlain ? name.text : plainName);
  dumper.Print("\t");
  dumper.Print(parser.FileField());
  const char letter =
      isDefinition ? kind_letter::kFunctionDefinition : kind_letter::kFunctionDeclaration;
  dumper.PrintPiece({"\t", std::to_string(tagLine), ";\"\t", {&letter, 1}});

  if (isPlain) {
    if (parser.HasScope()) {
      dumper.Print("\t");
      dumper.Print(VexlTagsParser::NameSpaceKindName(parser.classStack.back().kind));
      dumper.Print(":");
      dumper.Print(parser.CollapsedScope());
    }
    dumper.Print("\n");
    return;
  }
  const std::string field =
      AppendQualifier(CollapseWhitespace(scope, " "), CollapseWhitespace(qualifier, " "), false);
  if (!field.empty()) {
    // A member defined outside its class has nothing but its qualifier to tell the class by.
    const bool scopeOpen = !scope.empty() && !parser.classStack.empty();
    dumper.Print("\t");
    dumper.Print(scopeOpen ? parser.CurrentNamespaceKindName() : "class");
    dumper.Print(":");
    dumper.Print(field);
  }
  dumper.Print("\n");
}

void FunctionPrototype::DebugDump(const VexlTagsParser& parser, int tagLine) const {
  std::printf("%s: ", isDefinition ? "fdef" : "fdecl");
  if (!templateText.empty()) std::printf("+%s+ ", templateText.c_str());
  if (!linkage.empty()) std::printf("%s ", linkage.c_str());
  if (!returnType.empty()) std::printf("-%s- ", returnType.c_str());
  const std::string prefix = AppendQualifier(qualifier, "", true);
  std::printf(isOperator ? "[%soperator%s]" : "[%s%s]", prefix.c_str(), name.text.c_str());
  std::printf("(%s)", VexlTagsParser::FlattenParamList(params).c_str());
  if (!constQualifier.empty()) std::printf(" %s", constQualifier.c_str());
  if (isPure) std::printf(" = 0");
  parser.DebugPosition(tagLine);
}

}  // namespace vexltags
