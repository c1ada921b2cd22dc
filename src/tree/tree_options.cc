// SPDX-License-Identifier: MIT
// The options of vexltags-tree.
#include "tree/tree_options.h"

#include <sys/stat.h>

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <map>
#include <thread>

#include "base/version.h"
#include "tree/project_top.h"

namespace vexltags::tree {
namespace {

constexpr int kBadUsage = 2;
constexpr int kMostJobs = 256;

/// A pattern of `--exclude` or `--include`, in the order of the command line.
using Patterns = std::vector<std::pair<bool, std::string>>;

const std::map<std::string, Format> kFormats = {{"tags", Format::kTags},
                                                {"raw", Format::kRaw},
                                                {"json", Format::kJson},
                                                {"etags", Format::kEtags}};
const std::map<std::string, Address> kAddresses = {
    {"combined", Address::kCombined}, {"line", Address::kLine}, {"pattern", Address::kPattern}};
const std::map<std::string, int> kSorts = {{"no", 0}, {"yes", 1}, {"foldcase", 2}};

/// Where the tags file is if nothing says so: at the top of what is read.
std::string DefaultOutput(const TreeOptions& options) {
  std::string name = options.style.format == Format::kEtags  ? "TAGS"
                     : options.style.format == Format::kJson ? "tags.json"
                                                             : "tags";
  if (options.folders.size() != 1) return name;
  struct stat status;
  const std::string& folder = options.folders[0];
  if (stat(folder.c_str(), &status) != 0 || !S_ISDIR(status.st_mode)) return name;
  return folder.ends_with('/') ? folder + name : folder + "/" + name;
}

/// Goes to the top of the project that contains the working directory, if there is one.
void EnterProjectTop(TreeOptions& options) {
  const std::string top = ProjectTop();
  if (top.empty()) return;
  std::error_code error;
  const std::filesystem::path here = std::filesystem::current_path(error);
  for (std::string& path : options.macros) path = (here / path).lexically_normal();
  std::filesystem::current_path(top, error);
  if (error) return;
  options.calledFrom = here;
  options.output = top + "/" + DefaultOutput(options);
}

/// A check that names the values that there are.
template <class Value>
CLI::Validator OneOf(const std::map<std::string, Value>& values) {
  std::string names;
  for (const auto& [name, value] : values) names += (names.empty() ? "" : "|") + name;
  return {[values, names](std::string& text) {
            return values.contains(text) ? std::string() : "one of " + names + " is needed";
          },
          ""};
}

}  // namespace

std::optional<TreeOptions> ParseTreeOptions(int argc, const char* const* argv, int& status) {
  TreeOptions options;
  CLI::App app("Writes a tags file of all sources in and below a folder, and keeps it fresh.",
               "vexltags-tree");
  app.set_version_flag("-v,--version", std::string("vexltags-tree v") + kVersion);
  app.set_help_flag("-h,--help", "Show help.");
  app.get_formatter()->column_width(32);
  std::string format = "tags";
  std::string address = "combined";
  std::string sort = "yes";
  std::string languages;
  std::string hosts;
  bool noCache = false;
  bool noGit = false;
  Patterns patterns;
  app.add_option("DIR", options.folders,
                 "Folders and files to read; the whole git work tree if none.")
      ->type_name("");
  app.add_option("-f,--output", options.output,
                 "The file to write, - for standard output; tags in DIR if not given.")
      ->type_name("FILE");
  app.add_option("--format", format, "tags, raw, json or etags.")
      ->type_name("FORMAT")
      ->check(OneOf(kFormats));
  app.add_option("--address", address, "combined, line or pattern: how a tag finds its line.")
      ->type_name("FORM")
      ->check(OneOf(kAddresses));
  app.add_option("--sort", sort, "yes, foldcase or no.")->type_name("ORDER")->check(OneOf(kSorts));
  app.add_option("-j,--jobs", options.jobs,
                 "Worker processes; one for each processor if not given.")
      ->type_name("N")
      ->check(CLI::Range(1, kMostJobs));
  app.add_option_function<std::vector<std::string>>(
         "--exclude",
         [&patterns](const std::vector<std::string>& values) {
           for (const std::string& value : values) patterns.emplace_back(true, value);
         },
         "Leave out what this pattern of .gitignore matches.")
      ->type_name("PATTERN")
      ->expected(1)
      ->allow_extra_args(false)
      ->trigger_on_parse();
  app.add_option_function<std::vector<std::string>>(
         "--include",
         [&patterns](const std::vector<std::string>& values) {
           for (const std::string& value : values) patterns.emplace_back(false, value);
         },
         "Read what this pattern matches, even if it is ignored.")
      ->type_name("PATTERN")
      ->expected(1)
      ->allow_extra_args(false)
      ->trigger_on_parse();
  app.add_option("--languages", languages, "Only these of C,C++,ObjectiveC,Swift,Python.")
      ->type_name("LIST");
  app.add_option("--macros", options.macros, "Learn macros from this file or folder too.")
      ->type_name("PATH")
      ->expected(1)
      ->allow_extra_args(false)
      ->take_all();
  app.add_flag("--exact", options.isExact, "Read by the grammars alone, as vexltags does.");
  app.add_flag("--list", options.listsOnly, "List the files that would be read.");
  app.add_flag("--no-git", noGit, "Search the folders even in a git work tree.");
  app.add_flag("--no-cache", noCache, "Read everything, and remember nothing.");
  app.add_flag("-q,--quiet", options.isQuiet, "Show errors only.");
  app.add_flag("--report", options.wantsReport,
               "Show where reading broke off, and on what macros.");
  app.add_flag("--watch", options.watches, "Keep the file fresh until interrupted.");
  app.add_option("--hosts", hosts, "Read on these machines, through GNU parallel and ssh.")
      ->type_name("LIST");
  app.add_flag("--send", options.sendsFiles,
               "Send the sources to the hosts, which do not have them.");
  app.add_flag("--worker", options.isWorker)->group("");
  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    const bool isMistake = error.get_exit_code() != 0;
    if (isMistake) {
      std::fprintf(stderr, "vexltags-tree: %s\n", error.what());
    } else {
      app.exit(error);
    }
    status = isMistake ? kBadUsage : 0;
    return std::nullopt;
  }
  options.style.format = kFormats.at(format);
  options.style.address = kAddresses.at(address);
  options.style.sort = kSorts.at(sort);
  options.usesCache = !noCache;
  options.sources.useGit = !noGit;
  for (const auto& [isExclude, pattern] : patterns) {
    options.sources.patterns.Add(isExclude ? pattern : "!" + pattern);
  }
  if (!languages.empty()) {
    const std::string_view unknown = ParseLanguages(languages, options.sources.languages);
    if (!unknown.empty()) {
      std::fprintf(stderr, "vexltags-tree: unknown language %s\n", std::string(unknown).c_str());
      status = kBadUsage;
      return std::nullopt;
    }
  }
  for (std::size_t at = 0; at < hosts.size();) {
    const std::size_t end = std::min(hosts.find(',', at), hosts.size());
    if (end > at) options.hosts.push_back(hosts.substr(at, end - at));
    at = end + 1;
  }
  if (options.folders.empty() && options.output.empty() && !noGit && !options.isWorker) {
    EnterProjectTop(options);
  }
  if (options.output.empty()) options.output = DefaultOutput(options);
  if (options.jobs == 0) {
    options.jobs = std::clamp(static_cast<int>(std::thread::hardware_concurrency()), 1, kMostJobs);
  }
  if (options.watches && options.output == "-") {
    std::fputs("vexltags-tree: --watch needs a file to write\n", stderr);
    status = kBadUsage;
    return std::nullopt;
  }
  std::string& identity = options.identity;
  identity = options.isExact ? "exact" : "thorough";
  const auto add = [&identity](const std::string& part) { identity += '\0' + part; };
  add(languages);
  add(noGit ? "no git" : "git");
  for (const std::string& folder : options.folders) add("in " + folder);
  for (const auto& [isExclude, pattern] : patterns) add((isExclude ? "not " : "and ") + pattern);
  for (const std::string& path : options.macros) add("macros " + path);
  return options;
}

}  // namespace vexltags::tree
