// SPDX-License-Identifier: MIT
// Scopes from indentation, and the tags of Python definitions.
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
  DumpDefinition(name, line, kind_letter::kClass);
  PushNamespace(name, indent, 1);
}

void PythonTagsParser::DumpFuncDef(const std::string& name, int indent, int line) {
  PopNamespace(indent);
  const bool isMethod = !namespaces.empty() && namespaces.back().isClass == 1;
  DumpDefinition(name, line, isMethod ? kind_letter::kMember : kind_letter::kFunctionDefinition);
  PushNamespace(name, indent, 0);
}

void PythonTagsParser::DumpDefinition(const std::string& name, int line, char letter) const {
  if (options->debugDump) return;
  const std::string scope = ScopePath();
  Emit({.name = name,
        .line = line,
        .kind = letter,
        .pieces = Tag::Pieces::kPlainFile,
        .fields = {Plain({.opening = ScopeKey(), .text = scope})}});
}

void PythonTagsParser::PopNamespace(int indent) {
  while (!namespaces.empty() && namespaces.back().indent >= indent) namespaces.pop_back();
}

void PythonTagsParser::PushNamespace(const std::string& name, int indent, int isClass) {
  namespaces.push_back({name, isClass, indent});
}

void PythonTagsParser::DumpNamespace() {
  dumper->Print(ScopeKey());
  dumper->Print(ScopePath());
}

std::string_view PythonTagsParser::ScopeKey() const {
  if (namespaces.empty()) return "";
  return namespaces.back().isClass == 1 ? "\tclass:" : "\tfunction:";
}

std::string PythonTagsParser::ScopePath() const {
  return ConcatenateNamesUsingSeparator(namespaces, ".");
}

int IndentWidth(pANTLR3_COMMON_TOKEN token) { return static_cast<int>(TokenString(token).size()); }

}  // namespace vexltags
