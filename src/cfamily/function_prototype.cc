// SPDX-License-Identifier: MIT
// Turns the head of a function into its tag or its readable form.
#include "cfamily/function_prototype.h"

#include <cstdio>

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
  Tag tag{
      .name = name.text,
      .line = tagLine,
      .kind = isDefinition ? kind_letter::kFunctionDefinition : kind_letter::kFunctionDeclaration,
      .pieces = Tag::Pieces::kPlainFile,
      .prefix = isOperator ? "operator " : ""};
  if (qualifier.empty() && !VexlTagsParser::HasQualifier(name.text)) {
    tag.fields[0] = Plain(parser.InnermostScopeField());
    parser.Emit(tag);
    return;
  }
  const auto [scope, plainName] = parser.GetNamespaceAndName(name.text);
  const std::string field =
      AppendQualifier(CollapseWhitespace(scope, " "), CollapseWhitespace(qualifier, " "), false);
  tag.name = plainName;
  if (!field.empty()) {
    // The qualifier of a member defined outside its class is all that says which class it is.
    const bool scopeOpen = !scope.empty() && !parser.classStack.empty();
    const long kind = scopeOpen ? parser.CurrentNamespaceKind() : kClassKind;
    tag.fields[0] = Plain(ScopeField(ScopeKindName(kind), field));
  }
  parser.Emit(tag);
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
  parser.PrintReadablePosition(tagLine);
}

}  // namespace vexltags
