// SPDX-License-Identifier: MIT
// The tag builder of Python.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "parserstate/parser_state_base.h"

namespace vexltags {

/// Turns the `class` and `def` statements of a file into tags. Only these statements affect scopes:
/// each closes the scopes whose indentation is not smaller than its own.
class PythonTagsParser : public ParserStateBase {
 public:
  /// An open class or function.
  struct Namespace {
    std::string name;
    std::int32_t isClass;  ///< 1 for a class, 0 for a function.
    std::int32_t indent;   ///< Width of the indentation; a tab counts as one blank.
  };

  PythonTagsParser(const Options& options, Dumper& dumper, std::string fileName);
  ~PythonTagsParser() override;

  /// Writes the tag of a class and opens it as a scope. `line` is 1-based.
  void DumpClassDef(const std::string& name, int indent, int line);
  /// Writes the tag of a function, or of a method directly inside a class, and opens it as a scope.
  void DumpFuncDef(const std::string& name, int indent, int line);

  /// Closes scopes, innermost first, while their indentation is at least `indent`.
  void PopNamespace(int indent);
  void PushNamespace(const std::string& name, int indent, int isClass);
  /// Prints the scope field; nothing at the top level. Nothing calls it: a `Tag` contains its
  /// field.
  void DumpNamespace();

 private:
  /// Writes a tag, but not under `--debugDump`.
  void DumpDefinition(const std::string& name, int line, char letter) const;
  /// The start of the scope field; empty at the top level.
  std::string_view ScopeKey() const;
  /// The names of the open definitions, outermost first.
  std::string ScopePath() const;

  std::vector<Namespace> namespaces;
};

/// The width of an indentation token: its length in bytes.
int IndentWidth(pANTLR3_COMMON_TOKEN token);

}  // namespace vexltags
