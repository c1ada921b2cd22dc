// SPDX-License-Identifier: MIT
// The tag builder of Python: scopes from indentation widths.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "parserstate/parser_state_base.h"

namespace vexltags {

/// Turns the `class` and `def` statements of one file into tags. Only these change the scope: one
/// closes when the next of them stands at the same or a smaller indentation.
class PythonTagsParser : public ParserStateBase {
 public:
  /// An open class or function.
  struct Namespace {
    std::string name;
    std::int32_t isClass;  ///< 1 for a class, 0 for a function.
    std::int32_t indent;   ///< Width of the indentation; a tab counts as one, like a blank.
  };

  PythonTagsParser(const Options& options, Dumper& dumper, std::string fileName);
  ~PythonTagsParser() override;

  /// Writes the tag of a class and opens it. `indent` is its width, `line` 1-based.
  void DumpClassDef(const std::string& name, int indent, int line);
  /// Writes the tag of a function, or of a method when a class is innermost, and opens it.
  void DumpFuncDef(const std::string& name, int indent, int line);

  /// Closes every scope from the innermost on whose indentation is at least `indent`.
  void PopNamespace(int indent);
  void PushNamespace(const std::string& name, int indent, int isClass);
  /// Prints the scope field alone; nothing at the top level. Nothing calls it: a `Tag` carries its
  /// field.
  void DumpNamespace();

 private:
  /// Writes a tag, except under `--debugDump`.
  void DumpDefinition(const std::string& name, int line, char letter) const;
  /// What opens the scope field; empty at the top level.
  std::string_view ScopeKey() const;
  /// The names of the open definitions, outermost first.
  std::string ScopePath() const;

  std::vector<Namespace> namespaces;
};

/// The width of an indentation token: its length in bytes.
int IndentWidth(pANTLR3_COMMON_TOKEN token);

}  // namespace vexltags
