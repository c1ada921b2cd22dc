// SPDX-License-Identifier: MIT
// Evaluates the condition of a conditional directive as far as it is known.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string_view>
#include <vector>

namespace vexltags::thorough {

/// What is known about a condition. `Likely` and `Unlikely` are guesses from the names of
/// platforms: they can decide between two branches, but never drop the only one.
enum class Truth : std::uint8_t { False, Unlikely, Unknown, Likely, True };

/// The language of a file, as far as its name shows it.
enum class Dialect : std::uint8_t {
  Cxx,      ///< `__cplusplus` is defined.
  C,        ///< It is not.
  Unknown,  ///< A header, where it may be defined.
};

/// A set of names that can take a name that was never added for one of its own, but not the other
/// way round.
class NameSet {
 public:
  void Add(std::string_view name) { bits[PlaceOf(name)] = true; }
  bool MayHave(std::string_view name) const { return bits[PlaceOf(name)]; }

 private:
  static constexpr std::size_t kSize = std::size_t{1} << 18;
  static std::size_t PlaceOf(std::string_view name) {
    return std::hash<std::string_view>()(name) & (kSize - 1);
  }
  std::vector<bool> bits = std::vector<bool>(kSize);
};

/// Returns the dialect of the file at `path`, by its suffix.
Dialect DialectOf(std::string_view path);

/// Returns the truth of `expression`, what follows the name of an `#if` or `#elif`. Integers,
/// `defined`, `__cplusplus` and the names of other platforms are known; everything else, arithmetic
/// included, is unknown, and so is an expression that is malformed or nests too deep. A name that
/// is not among `defined`, if that is given, is likely not to be defined, unless compilers may do
/// it.
Truth EvaluateCondition(std::string_view expression, Dialect dialect,
                        const NameSet* defined = nullptr);

/// Returns whether the macro whose name `argument` begins with is defined.
Truth IsDefined(std::string_view argument, Dialect dialect, const NameSet* defined = nullptr);

/// Returns the truth of the negated condition.
Truth Not(Truth truth);

}  // namespace vexltags::thorough
