// SPDX-License-Identifier: MIT
// The reader of C, C++ and Objective-C.
#pragma once

#include "engine/language_reader.h"

namespace vexltags {

/// Makes a reader of C, C++ and Objective-C, which share one grammar.
std::unique_ptr<LanguageReader> NewMainReader(pANTLR3_INPUT_STREAM input);

}  // namespace vexltags
