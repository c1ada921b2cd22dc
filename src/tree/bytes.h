// SPDX-License-Identifier: MIT
// Bytes that an object owns, or that something else keeps for it.
#pragma once

#include <string>
#include <string_view>
#include <utility>

namespace vexltags::tree {

/// Results are large, and mostly stay where a worker put them.
class Bytes {
 public:
  Bytes() = default;
  Bytes(std::string bytes) : owned(std::move(bytes)) {}
  /// Refers to bytes that must outlive the object and its copies.
  static Bytes Kept(std::string_view bytes) {
    Bytes result;
    result.kept = bytes;
    result.isKept = true;
    return result;
  }

  std::string_view View() const { return isKept ? kept : std::string_view(owned); }
  operator std::string_view() const { return View(); }
  friend bool operator==(const Bytes& bytes, std::string_view other) {
    return bytes.View() == other;
  }

 private:
  std::string owned;
  std::string_view kept;
  bool isKept = false;
};

}  // namespace vexltags::tree
