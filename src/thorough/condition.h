// SPDX-License-Identifier: MIT
// Evaluates the condition of a conditional directive as far as it is known.
#pragma once

#include <cstdint>
#include <string_view>

namespace vexltags::thorough {

/// What is known of a condition. `Likely` and `Unlikely` are guesses from the names of platforms:
/// good enough to choose one of two branches, never to drop the only one.
enum class Truth : std::uint8_t { False, Unlikely, Unknown, Likely, True };

/// Which language the file is in, as far as its name says.
enum class Dialect : std::uint8_t {
  Cxx,      ///< `__cplusplus` is defined.
  C,        ///< It is not.
  Unknown,  ///< A header: it may be.
};

/// The dialect that the suffix of `path` says.
Dialect DialectOf(std::string_view path);

/// The truth of the expression of an `#if` or `#elif`, without the directive's name. Integers,
/// `defined`, `__cplusplus` and the names of other platforms are known, everything else is not.
Truth EvaluateCondition(std::string_view expression, Dialect dialect);

/// The truth of an `#ifdef` of the macro that `argument` begins with.
Truth IsDefined(std::string_view argument, Dialect dialect);

/// The truth of the contrary.
Truth Not(Truth truth);

}  // namespace vexltags::thorough
