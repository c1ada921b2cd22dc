// SPDX-License-Identifier: MIT
// Helpers for the text of types and qualified names.
#pragma once

#include <string>

namespace vexltags {

/// True for an ASCII identifier: a letter or `_`, then letters, digits and `_`.
bool LooksLikeSimpleTypeName(const std::string& text);
/// True for one of 13 built-in types of a single word, such as "char16_t"; false for "long int".
bool IsBuiltInType(const std::string& text);
/// True for "size_t", "ssize_t" and "ptrdiff_t".
bool IsWellKnownType(const std::string& text);

/// Splits `text` at its last "::", even inside angle brackets. Without one, or with one at the very
/// end, the whole text is the name and the qualifier is empty. The results may alias `text`.
void SplitNameQualifier(const std::string& text, std::string& name, std::string& qualifier);

/// Joins `text` and `qualifier` with "::" if neither is empty. With `always`, a non-empty text gets
/// its "::" even without a qualifier, as the prefix of a name.
std::string AppendQualifier(const std::string& text, const std::string& qualifier, bool always);

/// The text of a template argument list on one line: each line feed and carriage return becomes a
/// blank.
std::string TemplateArgumentText(std::string text);

/// What a template parameter adds to the name of its template: `name`, or "anon_value" if that is
/// empty.
std::string TemplateParameterText(const std::string& name);
/// The same for a value parameter such as `int N` or `Foo`: `name` if there is one, otherwise a
/// bare `type` that could be a name, such as `Foo`.
std::string ValueParameterText(const std::string& type, const std::string& name);

}  // namespace vexltags
