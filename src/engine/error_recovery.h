// SPDX-License-Identifier: MIT
// Replaces the runtime's error reporting and recovery.
#pragma once

#include <antlr3.h>

namespace vexltags {

/// An error display that prints nothing. Errors are still counted and recovered from.
void dummyErrorDumper(pANTLR3_BASE_RECOGNIZER recognizer, pANTLR3_UINT8* tokenNames);

/// Frees the exception records of errors that were reported. The runtime would keep them until the
/// recogniser is freed.
void FreeReportedErrors(pANTLR3_RECOGNIZER_SHARED_STATE state);

/// Silences a recogniser: errors are not displayed, and their records are freed once they have been
/// reported.
void SilenceErrors(pANTLR3_BASE_RECOGNIZER recognizer);

/// Lets a parser that reads a `TokenStream` recover with the stream's token table and
/// `FollowStack`. The result is that of the runtime, token by token. `isSilent` is for a silenced
/// parser: its errors have no records.
void RecoverByFollowStack(pANTLR3_BASE_RECOGNIZER parser, bool isSilent);

/// Resets a recogniser's state for the next file.
void ResetState(pANTLR3_RECOGNIZER_SHARED_STATE state);

/// Makes a rule fail because of its depth: as a failed speculative parse, or as a syntax error.
void FailForDepth(pANTLR3_BASE_RECOGNIZER recognizer);

}  // namespace vexltags
