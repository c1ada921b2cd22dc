// SPDX-License-Identifier: MIT
// Runs the grammar of C, C++ and Objective-C over one file.
#pragma once

#include <string>

#include "engine/recognizer.h"

namespace vexltags {

/// Indexes `input` as C, C++ or Objective-C, which share one grammar; see `RunRecognizer`.
RecognizerCounts RunMain(pANTLR3_INPUT_STREAM input, const Options& options, Dumper& dumper,
                         const std::string& stored);

}  // namespace vexltags
