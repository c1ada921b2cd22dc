// SPDX-License-Identifier: MIT
// Hashes of texts, to recognise content that has not changed.
#include "cache/content_hash.h"

#define XXH_INLINE_ALL
#include <xxhash.h>

namespace vexltags {

std::uint64_t ContentHash(std::string_view text) { return XXH3_64bits(text.data(), text.size()); }

}  // namespace vexltags
