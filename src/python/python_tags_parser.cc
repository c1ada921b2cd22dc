// SPDX-License-Identifier: MIT
// The tag builder of Python: scopes from indentation widths.
#include "python/python_tags_parser.h"

#include <utility>

#include "engine/std_string.h"
#include "output/kinds.h"

namespace vexltags {

PythonTagsParser::PythonTagsParser(const Options& options, Dumper& dumper, std::string fileName)
    : ParserStateBase(options, dumper, std::move(fileName)) {}

PythonTagsParser::~PythonTagsParser() = default;

void PythonTagsParser::DumpClassDef(const std::string& name, int indent, int line) {
  PopNamespace(indent);
  DumpLine(name, line, kind_letter::kClass);
  PushNamespace(name, indent, 1);
}

void PythonTagsParser::DumpFuncDef(const std::string& name, int indent, int line) {
  PopNamespace(indent);
  const bool isMethod = !namespaces.empty() && namespaces.back().isClass == 1;
  DumpLine(name, line, isMethod ? kind_letter::kMember : kind_letter::kFunctionDefinition);
  PushNamespace(name, indent, 0);
}

void PythonTagsParser::DumpLine(const std::string& name, int line, char letter) {
  if (options->debugDump) return;
  dumper->Print(name);
  dumper->Print("\t");
  dumper->Print(FileField());
  dumper->PrintPiece({"\t", std::to_string(line), ";\"\t", {&letter, 1}});
  DumpNamespace();
  dumper->Print("\n");
}

void PythonTagsParser::PopNamespace(int indent) {
  while (!namespaces.empty() && namespaces.back().indent >= indent) namespaces.pop_back();
}

void PythonTagsParser::PushNamespace(const std::string& name, int indent, int isClass) {
  namespaces.push_back({name, isClass, indent});
}

void PythonTagsParser::DumpNamespace() {
  if (namespaces.empty()) return;
  dumper->Print(namespaces.back().isClass == 1 ? "\tclass:" : "\tfunction:");
  dumper->Print(ConcatenateNamesUsingSeparator(namespaces, "."));
}

int IndentWidth(pANTLR3_COMMON_TOKEN token) { return static_cast<int>(TokenString(token).size()); }

}  // namespace vexltags
