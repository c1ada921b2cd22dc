// SPDX-License-Identifier: MIT
// Objective-C methods, property attributes, and lists of methods.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "parserstate/name.h"
#include "parserstate/param.h"

namespace vexltags {

/// One Objective-C method or property accessor.
struct MethodPrototype {
  std::string name;            ///< The whole selector.
  bool isClassMethod = false;  ///< Introduced by `+`.
  bool isDefinition = true;    ///< It has a body or comes from `@synthesize`.
  bool isProperty = false;     ///< An accessor made from `@property` or `@synthesize`.
  std::int32_t line = -1;      ///< 1-based, -1 while unknown.

  MethodPrototype() = default;
  /// Copies text and line; the flags keep their defaults.
  explicit MethodPrototype(const Name& other) : name(other.text), line(other.line) {}

  /// Copies text and line; the flags do not change.
  MethodPrototype& operator=(const Name& other);
  MethodPrototype& operator=(const Param& other);
};

/// Methods in source order.
struct MethodPrototypeList {
  std::vector<MethodPrototype> methods;

  MethodPrototypeList() = default;
  MethodPrototypeList(std::nullptr_t) {}  // NOLINT
  MethodPrototypeList& operator=(std::nullptr_t);
  void Add(const MethodPrototype& method) { methods.push_back(method); }
};

/// The attributes in the parentheses of `@property`.
struct PropertyAttributeInfo {
  std::string getter;
  std::string setter;
  bool readonly = false;
  std::int32_t line = -1;  ///< Nothing sets or reads it.

  PropertyAttributeInfo() = default;
  PropertyAttributeInfo(std::nullptr_t) {}  // NOLINT
  PropertyAttributeInfo& operator=(std::nullptr_t);
};

}  // namespace vexltags
