// SPDX-License-Identifier: MIT
// A table of suffixes.
#include "formats/language_names.h"

namespace vexltags {

std::string_view LanguageName(std::string_view path) {
  struct Row {
    std::string_view suffix;
    std::string_view language;
  };
  constexpr Row kRows[] = {{".py", "Python"}, {".pyx", "Python"},   {".swift", "Swift"},
                           {".c", "C"},       {".m", "ObjectiveC"}, {".mm", "ObjectiveC"}};
  for (const Row& row : kRows) {
    if (path.ends_with(row.suffix)) return row.language;
  }
  return "C++";
}

}  // namespace vexltags
