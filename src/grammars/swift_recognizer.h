// SPDX-License-Identifier: MIT
// The reader of Swift.
#pragma once

#include "engine/language_reader.h"

namespace vexltags {

/// Makes a reader of Swift.
std::unique_ptr<LanguageReader> NewSwiftReader(pANTLR3_INPUT_STREAM input);

}  // namespace vexltags
