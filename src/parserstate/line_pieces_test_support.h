// SPDX-License-Identifier: MIT
// Texts that bring the pieces of a tag line to their limits, and a comparison with the documented
// format of each piece.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "base/options.h"
#include "base/text.h"
#include "output/dumper.h"

namespace vexltags::testing_support {

/// What one tag is made of, as it comes from the source.
struct TagTexts {
  std::string path, name, scope;
};

/// `name` or `scope` as a tag line shows it, unless a formatted piece cuts it.
inline std::string Shown(const std::string& text) { return CollapseWhitespace(text, " "); }

/// Names that are short, longer than a piece, or hold bytes that a piece treats in its own way.
inline std::vector<std::string> UnusualNames() {
  return {"f",
          std::string(1023, 'n'),
          std::string(2000, 'n'),
          std::string("a\0b", 3),
          " \n two\t words \n",
          "a" + std::string(5000, ' ') + "b",
          std::string(2000, 'n') + std::string("\0 x", 3)};
}

/// The same for the scope of a tag; the first is no scope at all.
inline std::vector<std::string> UnusualScopes() {
  std::vector<std::string> scopes = {"", "S"};
  for (std::size_t length = 1010; length <= 1023; ++length) scopes.emplace_back(length, 's');
  for (const std::string& name : UnusualNames()) scopes.push_back(name);
  return scopes;
}

/// Paths up to and beyond the length where the piece that holds one is cut, at each byte of what
/// follows the path; and one that ends in a newline.
inline std::vector<std::string> UnusualPaths() {
  std::vector<std::string> paths = {"a.c", "a.c\\\n", std::string(2000, 'p')};
  for (std::size_t length = 1000; length <= 1030; ++length) paths.emplace_back(length, 'p');
  for (std::size_t length = 1015; length <= 1025; ++length) {
    paths.push_back(std::string(length, 'p') + "\\\n");
  }
  return paths;
}

/// Checks `write(dumper, texts)`, which writes one tag, against `print(dumper, texts)`, which
/// prints the documented pieces, for all unusual paths, names and scopes. A line that the cut left
/// without its newline goes on into the next one in both.
template <class Write, class Print>
void ExpectSamePieces(Write write, Print print) {
  const auto check = [&](const TagTexts& texts) {
    Dumper actual, wanted;
    write(actual, texts);
    print(wanted, texts);
    actual.Print("|\n");
    wanted.Print("|\n");
    EXPECT_EQ(actual.Lines(), wanted.Lines())
        << "path of " << texts.path.size() << ", name of " << texts.name.size() << ", scope of "
        << texts.scope.size() << " bytes";
  };
  for (const std::string& path : UnusualPaths()) {
    check({path, "f", ""});
    check({path, std::string(2000, 'n'), "S"});
    check({path, "f", std::string(2000, 's')});
  }
  for (const std::string& name : UnusualNames()) {
    for (const std::string& scope : UnusualScopes()) check({"a.c", name, scope});
  }
}

}  // namespace vexltags::testing_support
