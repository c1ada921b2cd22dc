// SPDX-License-Identifier: MIT
// A piece of source text with its line: the result of most grammar rules.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include <antlr3.h>

namespace vexltags {

struct Param;

/// A text and its 1-based source line, -1 while unknown.
///
/// Assigning or appending a token or a `Name` also copies its line, so a name built from several
/// tokens has the line of the last one. Appending plain text does not change the line.
struct Name {
  std::string text;
  std::int32_t line = -1;

  Name() = default;
  Name(std::string newText, std::int32_t newLine) : text(std::move(newText)), line(newLine) {}

  /// Copies the token's text and line. A null token clears the name; a token without text changes
  /// only the line.
  Name& operator=(pANTLR3_COMMON_TOKEN token);
  /// Copies the parameter's name and line.
  Name& operator=(const Param& param);

  Name& operator+=(pANTLR3_COMMON_TOKEN token);
  Name& operator+=(const Name& name);
  Name& operator+=(const std::string& piece);
  Name& operator+=(const char* piece);
};

/// A list of names in source order.
struct VectorOfName {
  std::vector<Name> names;

  VectorOfName() = default;
  VectorOfName(std::nullptr_t) {}  // NOLINT: generated rule code starts results from null
  VectorOfName& operator=(std::nullptr_t);
  void Add(const Name& name) { names.push_back(name); }
};

}  // namespace vexltags
