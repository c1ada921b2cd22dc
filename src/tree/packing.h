// SPDX-License-Identifier: MIT
// Packs numbers and texts one after the other, and unpacks them again.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <type_traits>

#include "tree/varint.h"

namespace vexltags::tree {

/// Appends each value that it is called with to a text.
class Packer {
 public:
  explicit Packer(std::string& out) : out(out) {}

  void operator()(std::string_view text) {
    AppendVarint(out, text.size());
    out += text;
  }
  template <class Number>
  requires std::is_integral_v<Number> || std::is_enum_v<Number>
  void operator()(Number number) {
    // Of a negative number, only the bits of its type.
    if constexpr (std::is_same_v<Number, std::int32_t>) {
      AppendVarint(out, static_cast<std::uint32_t>(number));
    } else {
      AppendVarint(out, static_cast<std::uint64_t>(number));
    }
  }

 private:
  std::string& out;
};

/// Sets each value that it is called with to the next one of a text.
class Unpacker {
 public:
  explicit Unpacker(std::string_view text) : text(text) {}

  /// Sets `part` to a view into the text.
  void operator()(std::string_view& part) {
    const std::uint64_t size = ReadVarint(text, at);
    if (at > text.size() || size > text.size() - at) {
      at = text.size() + 1;
      return;
    }
    part = text.substr(at, size);
    at += size;
  }
  void operator()(std::string& part) {
    std::string_view view;
    (*this)(view);
    part = view;
  }
  template <class Number>
  requires std::is_integral_v<Number> || std::is_enum_v<Number>
  void operator()(Number& number) {
    if (at >= text.size()) at = text.size() + 1;
    number = static_cast<Number>(ReadVarint(text, at));
  }

  /// True if all values were there, and nothing else.
  bool IsDone() const { return at == text.size(); }

 private:
  std::string_view text;
  std::size_t at = 0;
};

}  // namespace vexltags::tree
