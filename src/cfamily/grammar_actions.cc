// SPDX-License-Identifier: MIT
// Reads text from tokens and builds types word by word.
#include "cfamily/grammar_actions.h"

#include "cfamily/type_text.h"
#include "engine/std_string.h"

namespace vexltags {

Name NameOf(pANTLR3_COMMON_TOKEN token) {
  Name name;
  name = token;
  return name;
}

void AppendTypeWord(Name& type, pANTLR3_COMMON_TOKEN word) {
  AppendWithSpace(type.text, TokenString(word));
  type.line = TokenLine(word);
}

void AppendTypeName(TypeDescriptor& type, const Name& name) {
  AppendWithSpace(type.name, name.text);
  type.line = name.line;
}

void AppendSpecifiers(TypeDescriptor& type, const TypeDescriptor& specifiers) {
  AppendWithSpace(type.name, specifiers.name);
  type.line = specifiers.line;
}

std::string ParenthesizedNames(const ParamList& list) {
  std::string text = "(";
  text += ConcatenateNamesUsingSeparator(list.params, ", ");
  text += ")";
  return text;
}

void EndObjcInterfacePart(VexlTagsParser& builder, const Name& name, const Name& category,
                          bool isInterface, bool isForward) {
  if (!isForward) OpenObjcInterface(builder, name, category, isInterface);
}

}  // namespace vexltags
