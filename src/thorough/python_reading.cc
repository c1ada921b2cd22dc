// SPDX-License-Identifier: MIT
// The reading of Python files.
#include "thorough/python_reading.h"

#include <string>

#include "python/python_tags_parser.h"
#include "thorough/python_definitions.h"

namespace vexltags::thorough {

void PythonReading::PrepareText(pANTLR3_INPUT_STREAM input) {
  source = {static_cast<const char*>(input->data), input->sizeBuf};
  input->sizeBuf = 0;
}

bool PythonReading::PrepareTokens(TokenTable& /*tokens*/) { return true; }

void PythonReading::Parse(ItemParser& parser) {
  auto& builder = parser.TagBuilder<PythonTagsParser>();
  PythonDefinitions definitions(source);
  for (PythonDefinition definition; definitions.Next(definition);) {
    const std::string name(definition.name);
    if (definition.isClass) {
      builder.DumpClassDef(name, definition.depth, definition.line);
    } else {
      builder.DumpFuncDef(name, definition.depth, definition.line);
    }
  }
}

}  // namespace vexltags::thorough
