// SPDX-License-Identifier: MIT
// Implements the command line with an ordered table of options.
#include "driver/command_line.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <utility>

#include "base/text.h"
#include "driver/usage.h"

namespace vexltags {
namespace {

/// The handling of an argument that matches a row of the table.
enum class Take : std::uint8_t {
  kFlag,     ///< Sets `flag`.
  kSwitch,   ///< Sets `flag`, but only if the argument equals the spelling.
  kYesNo,    ///< Sets `flag`, or clears it for "=no".
  kSeconds,  ///< Stores the number after `=` in `limit`.
  kWord,     ///< Calls `action` with the argument itself.
  kValue,    ///< Calls `action` with the next argument, or fails with `complaint` if there is none.
  kIgnored,  ///< Does nothing.
};

using Action = ScanResult (*)(CommandLine& commandLine, const std::string& text);

/// A row of the table of options, constructed by the functions below.
struct Row {
  std::vector<std::string> spellings;
  Take take;
  bool Options::*flag = nullptr;
  std::int64_t Options::*limit = nullptr;
  Action action = nullptr;
  const char* complaint = nullptr;
};

Row Flag(const char* spelling, bool Options::*flag) { return {{spelling}, Take::kFlag, flag}; }

Row Switch(const char* spelling, bool Options::*flag) { return {{spelling}, Take::kSwitch, flag}; }

Row YesNo(const char* spelling, bool Options::*flag) { return {{spelling}, Take::kYesNo, flag}; }

Row Seconds(const char* spelling, std::int64_t Options::*limit) {
  return {{spelling}, Take::kSeconds, nullptr, limit};
}

Row Word(std::vector<std::string> spellings, Action action) {
  return {std::move(spellings), Take::kWord, nullptr, nullptr, action};
}

Row Value(std::vector<std::string> spellings, const char* complaint, Action action) {
  return {std::move(spellings), Take::kValue, nullptr, nullptr, action, complaint};
}

Row Ignored(const char* spelling) { return {{spelling}, Take::kIgnored}; }

ScanResult Fail(const std::string& message) {
  std::fprintf(stderr, "%s\n", message.c_str());
  return ScanResult::kFailed;
}

/// Returns whether a value was probably meant as an option. `-` alone is a value.
bool LooksLikeOption(const std::string& value) { return value.starts_with('-') && value != "-"; }

ScanResult ShowUsage(CommandLine&, const std::string&) {
  Usage();
  return ScanResult::kDone;
}

ScanResult ShowVersion(CommandLine&, const std::string&) {
  Version();
  return ScanResult::kDone;
}

ScanResult SetSort(CommandLine& commandLine, const std::string& arg) {
  constexpr std::pair<const char*, std::int32_t> kOrders[] = {
      {"=yes", 1}, {"=no", 0}, {"=foldcase", 2}};
  for (const auto& [ending, sort] : kOrders) {
    if (!EndsWith(arg, ending)) continue;
    commandLine.options.sort = sort;
    return ScanResult::kRun;
  }
  return Fail("--sort(=yes|=no|=foldcase) expected, " + arg);
}

/// Splits `value` at commas. Empty pieces count, except after a comma at the end.
ScanResult AddFilterTokens(CommandLine& commandLine, const std::string& value) {
  std::vector<std::string>& tokens = commandLine.options.filterTokens;
  std::size_t start = 0;
  for (std::size_t comma = value.find(','); comma != std::string::npos;
       comma = value.find(',', start)) {
    tokens.push_back(value.substr(start, comma - start));
    start = comma + 1;
  }
  if (start == 0 || start < value.size()) tokens.push_back(value.substr(start));
  return ScanResult::kRun;
}

ScanResult SetListFile(CommandLine& commandLine, const std::string& value) {
  if (LooksLikeOption(value)) {
    return Fail(" \"-L -\"  or \"-L <fileName>\" expected, saw " + value + " ");
  }
  commandLine.listPath = value == "-" ? "" : value;
  commandLine.hasListFile = true;
  return ScanResult::kRun;
}

ScanResult SetOutputFile(CommandLine& commandLine, const std::string& value) {
  if (LooksLikeOption(value)) {
    return Fail(" \"-f -\"  or \"-f <fileName>\" expected, saw " + value + " ");
  }
  if (commandLine.hasOutputFile) {
    return Fail(" an output file already specified earlier, attempting to reset to " + value + " ");
  }
  if (value == "-") return ScanResult::kRun;
  commandLine.outputPath = value;
  commandLine.hasOutputFile = true;
  return ScanResult::kRun;
}

ScanResult AddMacroPath(CommandLine& commandLine, const std::string& arg) {
  commandLine.options.macroPaths.push_back(arg.substr(arg.find('=') + 1));
  return ScanResult::kRun;
}

ScanResult SayIgnored(CommandLine&, const std::string&) {
  std::puts("--exclude directive ignored");
  return ScanResult::kRun;
}

ScanResult AddInputPath(CommandLine& commandLine, const std::string& arg) {
  if (commandLine.hasListFile) return Fail("unexpected path " + arg + ", -L already specified");
  commandLine.inputPaths.push_back(arg);
  return ScanResult::kRun;
}

/// Returns the options in the order of comparison. An argument matches the first row with a
/// spelling that is a prefix of it or, for a switch, equal to it. A name therefore precedes its own
/// prefixes, and the row that matches every argument, for input paths, is the last.
const std::vector<Row>& Table() {
  static const std::vector<Row> rows = {
      Word({"-h", "--help"}, ShowUsage),
      Word({"-v", "--version"}, ShowVersion),
      Flag("--dumpErrors", &Options::dumpErrors),
      Flag("--debugDumpFilenames", &Options::debugDumpFilenames),
      Flag("--debugDumpFilesWithHugeOutput", &Options::debugDumpFilesWithHugeOutput),
      Flag("--debugDump", &Options::debugDump),
      Flag("--time", &Options::time),
      YesNo("--tag-relative", &Options::tagRelative),
      YesNo("--cannonical-paths", &Options::cannonicalPaths),
      YesNo("--checkForFilesWithAbortedParse", &Options::checkForFilesWithAbortedParse),
      Seconds("--reportIfLonger", &Options::reportIfLonger),
      Seconds("--abortIfLonger", &Options::abortIfLonger),
      Word({"--sort"}, SetSort),
      YesNo("--append", &Options::append),
      Value({"--filterToken", "-I"}, "expected filter token", AddFilterTokens),
      Value({"-L"}, "expected input file path", SetListFile),
      Value({"-f"}, "expected output file path", SetOutputFile),
      Word({"--exclude"}, SayIgnored),
      Ignored("--c-kinds"),
      Ignored("--excmd=number"),
      Ignored("--language-force"),
      Switch("--thorough", &Options::thorough),
      Word({"--macros="}, AddMacroPath),
      Word({""}, AddInputPath),
  };
  return rows;
}

bool Matches(const Row& row, const std::string& arg, const std::string& spelling) {
  return row.take == Take::kSwitch ? arg == spelling : MatchArg(arg, spelling);
}

/// Returns the first row that matches `arg`, and the spelling that matches.
std::pair<const Row*, const std::string*> FindRow(const std::string& arg) {
  const Row* row = nullptr;
  const std::string* spelling = nullptr;
  for (auto it = Table().begin(); spelling == nullptr; ++it) {
    row = &*it;
    for (const std::string& candidate : row->spellings) {
      if (spelling == nullptr && Matches(*row, arg, candidate)) spelling = &candidate;
    }
  }
  return {row, spelling};
}

/// Converts to microseconds, truncated towards zero and clamped to 64 bits. NaN gives 0.
std::int64_t ToMicroseconds(double seconds) {
  const double result = seconds * 1000000;
  if (result != result) return 0;
  if (result >= 0x1p63) return std::numeric_limits<std::int64_t>::max();
  if (result < -0x1p63) return std::numeric_limits<std::int64_t>::min();
  return static_cast<std::int64_t>(result);
}

}  // namespace

bool MatchArg(const std::string& arg, const std::string& option) { return arg.starts_with(option); }

bool MatchArg(const std::string& arg, const std::string& option, bool& flag) {
  if (!MatchArg(arg, option)) return false;
  flag = true;
  return true;
}

bool MatchYesNoArg(const std::string& arg, const std::string& option, bool& flag) {
  if (!MatchArg(arg, option)) return false;
  flag = arg.compare(option.size(), 3, "=no") != 0;
  return true;
}

bool EndsWithEqualsNumber(const std::string& arg, double& number) {
  const std::size_t equals = arg.rfind('=');
  if (equals == std::string::npos || equals + 1 == arg.size()) return false;
  number = std::atof(arg.c_str() + equals + 1);
  return true;
}

std::vector<std::string> OptionSpellings() {
  std::vector<std::string> result;
  for (const Row& row : Table()) {
    for (const std::string& spelling : row.spellings) {
      if (!spelling.empty()) result.push_back(spelling);
    }
  }
  return result;
}

ScanResult ScanCommandLine(const std::vector<std::string>& arguments, CommandLine& commandLine) {
  if (arguments.empty()) return ShowUsage(commandLine, "");
  Options& options = commandLine.options;
  for (auto arg = arguments.begin(); arg != arguments.end(); ++arg) {
    const auto [row, spelling] = FindRow(*arg);
    ScanResult result = ScanResult::kRun;
    double seconds = 0;
    switch (row->take) {
      case Take::kFlag:
      case Take::kSwitch:
        MatchArg(*arg, *spelling, options.*row->flag);
        break;
      case Take::kYesNo:
        MatchYesNoArg(*arg, *spelling, options.*row->flag);
        break;
      case Take::kSeconds:
        if (!EndsWithEqualsNumber(*arg, seconds)) {
          return Fail(*spelling + "(=numberOfSeconds) expected, " + *arg);
        }
        options.*row->limit = ToMicroseconds(seconds);
        break;
      case Take::kWord:
        result = row->action(commandLine, *arg);
        break;
      case Take::kValue:
        if (arg + 1 == arguments.end()) return Fail(row->complaint);
        result = row->action(commandLine, *++arg);
        break;
      case Take::kIgnored:
        break;
    }
    if (result != ScanResult::kRun) return result;
  }
  std::vector<std::string>& tokens = options.filterTokens;
  std::sort(tokens.begin(), tokens.end());
  tokens.erase(std::unique(tokens.begin(), tokens.end()), tokens.end());
  if (options.append && !commandLine.hasOutputFile) {
    return Fail("\"--append=yes\" requested without an output file specified");
  }
  return ScanResult::kRun;
}

}  // namespace vexltags
