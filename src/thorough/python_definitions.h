// SPDX-License-Identifier: MIT
// Finds the classes and functions of a Python file in its text, without a grammar.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace vexltags::thorough {

/// A class or a function.
struct PythonDefinition {
  std::string_view name;  ///< As it is in the source.
  bool isClass = false;
  int depth = 0;  ///< In how many other definitions it is.
  int line = 0;   ///< The 1-based line of the name.
};

/// Reads a file line by line. `def` and `class` are reserved words: at the beginning of a line that
/// is not inside a string they define something, even where a bracket seems to be open. Every
/// statement, not only a definition, closes the definitions that are indented as much or more.
///
/// The source must outlive the object. All calls together take time linear in its length.
class PythonDefinitions {
 public:
  explicit PythonDefinitions(std::string_view source);

  /// Goes on to the next definition; false at the end of the file.
  bool Next(PythonDefinition& definition);

 private:
  unsigned char At(std::size_t place) const {
    return place < text.size() ? static_cast<unsigned char>(text[place]) : '\0';
  }
  int ReadIndentation();
  bool ReadDefinition(PythonDefinition& definition);
  void ReadRestOfLine();
  void ReadString();
  void ReadLineEnd();
  void SkipBlanks();
  std::string_view ReadWord();

  std::string_view text;
  std::size_t at = 0;
  int line = 1;
  int brackets = 0;            ///< That are open.
  bool isContinued = false;    ///< The line before ended in a backslash.
  bool wasDefinition = false;  ///< The current line began with one.
  std::vector<int> indents;    ///< Of the open definitions.
  bool isOpenForGood[2] = {};  ///< Whether a long string in `"` or `'` has no end.
};

}  // namespace vexltags::thorough
