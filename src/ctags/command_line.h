// SPDX-License-Identifier: MIT
// Parses the arguments of vexltags-ctags.
#pragma once

#include <cstdint>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "ctags/settings.h"

namespace vexltags::ctags {

/// How a run continues after its arguments: index, end with status 0, or end as failed.
enum class ParseResult : std::uint8_t { kRun, kDone, kFailed };

/// Parses arguments in order, each of which can change what earlier ones set. The options of ctags
/// have forms that libraries for command lines do not offer: values that add to earlier ones,
/// names that contain a language, `-f-` and `-nf -`, and files of options in their place.
class CommandLine {
 public:
  /// `settings` must outlive the object.
  explicit CommandLine(Settings& settings) : settings(settings) {}

  /// Reads the users' files of options, unless the first argument is `--options=NONE`, and then
  /// `arguments`, which do not include the name of the program. Prints what options such as
  /// `--version` ask for to standard output. Reports errors and unknown options, each once, to
  /// standard error.
  ParseResult Parse(const std::vector<std::string>& arguments);

 private:
  struct LongOption {
    std::string_view name;
    ParseResult (CommandLine::*apply)(std::string_view name, std::string_view value);
    bool needsValue = false;  ///< `--name` alone is an error.
  };
  static const LongOption kLongOptions[];

  ParseResult ParseAll(const std::vector<std::string>& arguments);
  ParseResult ParseShort(const std::vector<std::string>& arguments, std::size_t& index);
  ParseResult ApplyShort(char letter, std::string_view value);
  ParseResult ParseLong(std::string_view argument);
  ParseResult ApplyLanguageOption(std::string_view name, std::string_view value);
  ParseResult ReadOptions(const std::string& path, bool mustExist);
  ParseResult ReadUserOptions();
  void ApplyKinds(const Language& language, std::string_view value);
  void Unknown(const std::string& option);
  void ReportChoices(const std::vector<std::string>& unknown, std::string_view option);
  ParseResult Invalid(std::string_view name);

  // The options by their names; `value` is empty if there is none.
  ParseResult Append(std::string_view name, std::string_view value);
  ParseResult Exclude(std::string_view name, std::string_view value);
  ParseResult ExcludeException(std::string_view name, std::string_view value);
  ParseResult Excmd(std::string_view name, std::string_view value);
  ParseResult Extras(std::string_view name, std::string_view value);
  ParseResult Fields(std::string_view name, std::string_view value);
  ParseResult FormatNumber(std::string_view name, std::string_view value);
  ParseResult Ignore(std::string_view name, std::string_view value);
  ParseResult InteractiveMode(std::string_view name, std::string_view value);
  ParseResult Langmap(std::string_view name, std::string_view value);
  ParseResult LanguageForce(std::string_view name, std::string_view value);
  ParseResult LanguageList(std::string_view name, std::string_view value);
  ParseResult Links(std::string_view name, std::string_view value);
  ParseResult List(std::string_view name, std::string_view value);
  ParseResult MaxDepth(std::string_view name, std::string_view value);
  ParseResult OptionsFile(std::string_view name, std::string_view value);
  ParseResult OptionsMaybe(std::string_view name, std::string_view value);
  ParseResult OutputFormat(std::string_view name, std::string_view value);
  ParseResult Quiet(std::string_view name, std::string_view value);
  ParseResult Recurse(std::string_view name, std::string_view value);
  ParseResult Sort(std::string_view name, std::string_view value);
  ParseResult TagRelativeTo(std::string_view name, std::string_view value);
  ParseResult Xformat(std::string_view name, std::string_view value);

  Settings& settings;
  std::set<std::string> reported;      ///< Unknown options.
  std::vector<std::string> openFiles;  ///< Files of options that are being read.
};

}  // namespace vexltags::ctags
