// SPDX-License-Identifier: MIT
// Source text of any length for the micro-benchmarks.
#pragma once

#include <cstddef>
#include <string>

namespace vexltags::bench {

/// The languages with a file in `bench/samples`, by file name.
inline constexpr const char* kLanguages[] = {"c", "cxx", "objc", "swift", "python"};

/// Returns at least `size` bytes of `language`: the blocks of its sample in turn, with different
/// names each time. Exits if the sample cannot be read.
std::string SampleText(const std::string& language, std::size_t size);

/// Returns the file suffix of `language`, with the dot.
const char* SuffixOf(const std::string& language);

}  // namespace vexltags::bench
