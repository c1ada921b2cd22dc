// SPDX-License-Identifier: MIT
// One parameter of a function or method, and lists of them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "parserstate/name.h"

namespace vexltags {

/// What the grammars keep of a parameter. `line` is 1-based, -1 while unknown.
struct Param {
  std::string type;
  std::string name;
  std::int32_t line = -1;

  Param() = default;
  Param(std::nullptr_t) {}  // NOLINT: generated rule code starts results from null
  Param(std::string newType, std::string newName, std::int32_t newLine)
      : type(std::move(newType)), name(std::move(newName)), line(newLine) {}

  /// Copies name and line; the type does not change.
  Param& operator=(const Name& other);
  /// Resets to the empty parameter.
  Param& operator=(std::nullptr_t);
};

/// Parameters in source order.
struct ParamList {
  std::vector<Param> params;

  ParamList() = default;
  ParamList(std::nullptr_t) {}  // NOLINT
  ParamList& operator=(std::nullptr_t);
  void Add(Param param) { params.push_back(std::move(param)); }
};

}  // namespace vexltags
