// SPDX-License-Identifier: MIT
// Hashes of texts, to recognise content that has not changed.
#pragma once

#include <cstdint>
#include <string_view>

namespace vexltags {

/// Returns the 64-bit XXH3 hash of `text`, the same on every machine.
std::uint64_t ContentHash(std::string_view text);

}  // namespace vexltags
