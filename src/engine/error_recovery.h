// SPDX-License-Identifier: MIT
// What takes the place of the runtime's own operations where an error is met.
#pragma once

#include <antlr3.h>

namespace vexltags {

/// The error display that shows nothing; errors are counted and recovered from all the same.
void dummyErrorDumper(pANTLR3_BASE_RECOGNIZER recognizer, pANTLR3_UINT8* tokenNames);

/// Gives back the records of errors that were already reported; the runtime would hold them until
/// the recogniser goes.
void FreeReportedErrors(pANTLR3_RECOGNIZER_SHARED_STATE state);

/// Silences a recogniser: nothing is displayed, and the record of an error lives no longer than the
/// error.
void SilenceErrors(pANTLR3_BASE_RECOGNIZER recognizer);

/// Lets a parser that reads a `TokenStream` recover by the stream's tables and its `FollowStack`:
/// as the runtime does, token by token. With `isSilent`, which is for a silenced parser, errors
/// have no records of their own.
void RecoverByFollowStack(pANTLR3_BASE_RECOGNIZER parser, bool isSilent);

/// Brings a recogniser's state back to that of a new one, for the next file.
void ResetState(pANTLR3_RECOGNIZER_SHARED_STATE state);

/// Makes a rule fail that may not go deeper: as a failed trial, or as a syntax error.
void FailForDepth(pANTLR3_BASE_RECOGNIZER recognizer);

}  // namespace vexltags
