// SPDX-License-Identifier: MIT
// Finds the parameters of a function in its source.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace vexltags::ctags {

/// How a language writes comments, strings and parameters.
enum class Syntax : unsigned char { kC, kPython, kSwift };

/// Where to look for a function.
struct FunctionPlace {
  std::string_view name;   ///< Without scopes, such as "operator ==".
  std::size_t offset = 0;  ///< Of its line in the text.
  std::size_t index = 0;   ///< Which of the functions of that name on the line, from 0.
  std::size_t count = 1;   ///< How many of that name there are on the line.
};

/// Returns the parameters in parentheses that follow the name of a function in `text`, with single
/// blanks for white space and without comments: "(int a, char *b)"; in C++ also the `const` that
/// follows. They can extend over lines. Returns an empty string if they are not certain:
/// the name is not on the line or has no parentheses after it, the line has more such places than
/// functions, a directive or an unmatched bracket is between, or they are very long.
/// Sets `*end` to the offset after them, if there are any and `end` is not null.
std::string SignatureOf(std::string_view text, const FunctionPlace& place, Syntax syntax,
                        std::size_t* end = nullptr);

/// Returns the parameters of the macro `name`, whose `#define` is on the line at `offset`; empty if
/// it has none.
std::string MacroSignature(std::string_view text, std::size_t offset, std::string_view name);

/// Returns the offset of `name`, as a whole word, on the line at `offset`; npos if it is not there.
std::size_t FindName(std::string_view text, std::size_t offset, std::string_view name);

/// Returns the types of the parameters of the Objective-C method with this selector, whose
/// declaration begins on the line at `offset`: "(int,NSString *)". Returns an empty string if the
/// source has another number of them than the selector.
std::string MethodSignature(std::string_view text, std::size_t offset, std::string_view selector);

}  // namespace vexltags::ctags
