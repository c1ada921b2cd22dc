// SPDX-License-Identifier: MIT
// Source text of any length for the micro-benchmarks.
#pragma once

#include <cstddef>
#include <string>

namespace vexltags::bench {

/// The languages that there are samples of, as `bench/samples` names them.
inline constexpr const char* kLanguages[] = {"c", "cxx", "objc", "swift", "python"};

/// At least `size` bytes of `language`: the blocks of its sample in turn, each time with another
/// number in its names. Ends the program when the sample cannot be read.
std::string SampleText(const std::string& language, std::size_t size);

/// The suffix of its files, with the dot.
const char* SuffixOf(const std::string& language);

}  // namespace vexltags::bench
