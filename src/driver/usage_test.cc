// SPDX-License-Identifier: MIT
// Tests of the usage text and the version line, and of their agreement with the command line.
#include "driver/usage.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <sstream>
#include <string>
#include <vector>

#include "driver/command_line.h"

namespace vexltags {
namespace {

std::string OutputOf(void (*print)()) {
  testing::internal::CaptureStdout();
  print();
  return testing::internal::GetCapturedStdout();
}

/// Returns the text between `before`, which must be at the start of `text`, and `after`.
std::string Between(const std::string& text, const std::string& before, const std::string& after) {
  EXPECT_TRUE(text.starts_with(before)) << text;
  const std::size_t end = text.find(after, before.size());
  EXPECT_NE(end, std::string::npos) << text;
  return text.substr(before.size(), end - before.size());
}

/// Returns whether `text` is a date of the form "Mar 16 2025" or "Mar  6 2025".
bool IsDate(const std::string& text) {
  const std::string form = "Aaa 99 9999";
  if (text.size() != form.size() || text[4] == '0') return false;
  for (std::size_t i = 0; i < form.size(); ++i) {
    const auto c = static_cast<unsigned char>(text[i]);
    const bool fits = form[i] == 'A'   ? std::isupper(c) != 0
                      : form[i] == 'a' ? std::islower(c) != 0
                      : form[i] == '9' ? std::isdigit(c) != 0 || (i == 4 && c == ' ')
                                       : c == ' ';
    if (!fits) return false;
  }
  return true;
}

TEST(Version, IsOneLineWithNameVersionAndBuildDate) {
  const std::string text = OutputOf(Version);
  const std::string date = Between(text, "vexltags v 0.78a3, ", "\n");
  EXPECT_TRUE(IsDate(date)) << date;
  EXPECT_EQ(text.find('\n'), text.size() - 1);
}

TEST(Usage, BeginsWithBannerLanguagesAndBuildDate) {
  const std::string text = OutputOf(Usage);
  EXPECT_TRUE(text.starts_with("vexltags v0.78a3")) << text;
  const std::string rest = text.substr(text.find('\n') + 1);
  const std::string date = Between(
      rest, "Supported languages: C++, Obj-C, Swift, Python \nBuilt: ",
      "\nUsage: vexltags [options] [files]\n\n  -h, --help                       Show help.\n");
  EXPECT_TRUE(IsDate(date)) << date;
}

TEST(Usage, HasTheBuildDateOfTheVersionLine) {
  const std::string version = OutputOf(Version);
  const std::string date = version.substr(version.find(", ") + 2);
  EXPECT_NE(OutputOf(Usage).find("\nBuilt: " + date), std::string::npos);
}

TEST(Usage, KeepsBlanksAtLineEnds) {
  const std::string text = OutputOf(Usage);
  EXPECT_NE(text.find("Python \n"), std::string::npos);
  EXPECT_NE(text.find("\n  -I <token>                       \n"), std::string::npos);
  EXPECT_TRUE(text.ends_with("Print indexed file name to stderr\n"));
}

/// Returns the options at the beginning of the lines of `text`: `-x` and `--word`, without values.
std::vector<std::string> NamedOptions(const std::string& text) {
  std::vector<std::string> result;
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line);) {
    std::istringstream words(line);
    for (std::string word; words >> word && word.starts_with('-');) {
      const auto end = std::find_if(word.begin(), word.end(), [](unsigned char c) {
        return c != '-' && std::isalpha(c) == 0;
      });
      result.emplace_back(word.begin(), end);
    }
  }
  return result;
}

TEST(Usage, ListsAllOptionsExceptNine) {
  std::vector<std::string> expected = OptionSpellings();
  for (const char* silent :
       {"--time", "--debugDumpFilesWithHugeOutput", "--checkForFilesWithAbortedParse", "--exclude",
        "--c-kinds", "--excmd=number", "--language-force", "--thorough", "--macros="}) {
    EXPECT_EQ(std::erase(expected, silent), 1U) << silent;
  }
  std::vector<std::string> named = NamedOptions(OutputOf(Usage));
  std::sort(expected.begin(), expected.end());
  std::sort(named.begin(), named.end());
  EXPECT_EQ(named, expected);
}

}  // namespace
}  // namespace vexltags
