// SPDX-License-Identifier: MIT
// What `--thorough` knows of a whole run, and the reading that it has for each file.
#include "thorough/session.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <filesystem>
#include <functional>
#include <memory>
#include <memory_resource>
#include <set>
#include <system_error>
#include <utility>

namespace vexltags::thorough {
namespace {

constexpr std::size_t kMostFiles = 200000;
constexpr off_t kLargestFile = off_t{1} << 28;
/// How many folders up a quoted include is looked for.
constexpr int kMostParents = 8;
/// How many places includes are looked for in, over all files.
constexpr std::size_t kMostPlaces = std::size_t{1} << 20;
/// Longer paths cannot be opened.
constexpr std::size_t kLongestPath = 4096;

bool IsCFamily(const std::string& path) {
  return !path.ends_with(".py") && !path.ends_with(".pyx") && !path.ends_with(".swift");
}

bool IsFile(const std::string& path) {
  struct stat status;
  return stat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode);
}

/// Appends the parts of `path` to `normal`, which is empty or ends with a slash, without `.`, and
/// without `..` as far as there is a folder to leave: headers that include each other must not make
/// ever longer paths.
void AppendParts(std::string_view path, std::string& normal) {
  while (!path.empty()) {
    const std::size_t slash = path.find('/');
    const std::string_view part = path.substr(0, slash);
    path.remove_prefix(slash == std::string_view::npos ? path.size() : slash + 1);
    if (part.empty() || part == ".") continue;
    const bool canLeave = !normal.empty() && normal != "../" && !normal.ends_with("/../");
    if (part == ".." && canLeave) {
      if (normal != "/") normal.resize(normal.rfind('/', normal.size() - 2) + 1);
      continue;
    }
    normal += part;
    if (slash != std::string_view::npos) normal += '/';
  }
}

/// The path without `.` and, as far as possible, without `..`.
std::string Normal(std::string_view path) {
  std::string normal = path.starts_with('/') ? "/" : "";
  AppendParts(path, normal);
  return normal;
}

/// Reads files into a buffer.
class FileReader {
 public:
  std::optional<std::string_view> Read(const std::string& path, bool isIncluded) {
    const int file = open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (file < 0) return std::nullopt;
    std::optional<std::string_view> text;
    struct stat status;
    if (fstat(file, &status) == 0 && S_ISREG(status.st_mode) && status.st_size < kLargestFile) {
      // By links, a header can be found under any number of paths.
      const bool isNew = identities.emplace(status.st_dev, status.st_ino).second;
      if (isNew || !isIncluded) text = ReadText(file, static_cast<std::size_t>(status.st_size));
    }
    close(file);
    return text;
  }

 private:
  /// Reads at most `expected` bytes of an open file.
  std::string_view ReadText(int file, std::size_t expected) {
    if (expected > room) {
      buffer = std::make_unique_for_overwrite<char[]>(expected);
      room = expected;
    }
    std::size_t size = 0;
    while (size < expected) {
      const ssize_t count = read(file, buffer.get() + size, expected - size);
      if (count < 0 && errno == EINTR) continue;
      if (count <= 0) break;
      size += static_cast<std::size_t>(count);
    }
    return {buffer.get(), size};
  }

  std::pmr::monotonic_buffer_resource memory;
  std::pmr::set<std::pair<dev_t, ino_t>> identities{&memory};  // Of the files that were read.
  std::unique_ptr<char[]> buffer;
  std::size_t room = 0;
};

/// Sets the functions that are missing to those that ask the file system.
SessionSources Complete(SessionSources sources) {
  if (!sources.text) {
    sources.text = [reader = std::make_shared<FileReader>()](const std::string& path,
                                                             bool isIncluded) {
      return reader->Read(path, isIncluded);
    };
  }
  if (!sources.isFile) sources.isFile = IsFile;
  return sources;
}

}  // namespace

Session::Session(const Options& options, const std::vector<std::string>& paths,
                 SessionSources given)
    : sources(Complete(std::move(given))), cfamily(macros, files) {
  for (const std::string& path : paths) {
    if (IsCFamily(path)) NumberOf(path);
  }
  for (const std::string& path : options.macroPaths) LearnPath(path);
  const std::size_t count = files.size();
  // The list grows as includes are found.
  for (std::uint32_t i = 1; i < files.size(); ++i) LearnFile(i, i >= count);
  sources = {};
  searched = decltype(searched)(&memory);
  memory.release();
}

Session::Session(const std::vector<std::string>& files, SessionSources given)
    : sources(Complete(std::move(given))), cfamily(macros, this->files) {
  sources.isFile = [](const std::string&) { return false; };
  for (const std::string& path : files) NumberOf(path);
  for (std::uint32_t i = 1; i < this->files.size(); ++i) LearnFile(i, false);
  sources = {};
  searched = decltype(searched)(&memory);
  memory.release();
}

std::uint32_t Session::NumberOf(const std::string& path) {
  return NumberOfNormal(Normal(path), path);
}

std::uint32_t Session::NumberOfNormal(const std::string& normal, const std::string& path) {
  const auto [place, isNew] = numbers.emplace(normal, static_cast<std::uint32_t>(files.size()));
  if (isNew) files.push_back(path);
  return place->second;
}

void Session::LearnPath(const std::string& path) {
  std::error_code error;
  if (!std::filesystem::is_directory(path, error)) {
    NumberOf(path);
    return;
  }
  const auto options = std::filesystem::directory_options::skip_permission_denied;
  std::filesystem::recursive_directory_iterator it(path, options, error);
  std::vector<std::string> found;
  while (!error && it != std::filesystem::recursive_directory_iterator()) {
    if (it->is_regular_file(error) && IsCFamily(it->path())) found.push_back(it->path());
    it.increment(error);
  }
  std::sort(found.begin(), found.end());
  for (const std::string& file : found) NumberOf(file);
}

void Session::LearnFile(std::uint32_t number, bool isIncluded) {
  const std::string path = files[number];
  const auto text = sources.facts ? sources.facts(path) : sources.text(path, isIncluded);
  if (!text) return;
  const std::string folder = Normal(path.substr(0, path.rfind('/') + 1));
  const auto include = [&](std::string_view name) { FindInclude(folder, name); };
  if (sources.facts) {
    macros.LearnFacts(*text, number, include);
  } else {
    macros.Learn(*text, number, include);
  }
}

void Session::FindInclude(std::string_view includer, std::string_view name) {
  const std::uint32_t found = NumberOfInclude(includer, name);
  if (found != 0) macros.NoteInclude(found);
}

std::uint32_t Session::NumberOfInclude(std::string_view includer, std::string_view name) {
  if (includer.size() + name.size() > kLongestPath) return 0;
  std::string_view folder = includer;
  std::array<Search*, kMostParents> tried;  // None of them has the file.
  std::size_t count = 0;
  std::uint32_t number = 0;
  for (int left = kMostParents; left > 0; --left) {
    if (files.size() >= kMostFiles || searched.size() >= kMostPlaces) break;
    place.assign(folder);
    AppendParts(name, place);
    const auto [search, isNew] =
        searched.try_emplace(std::hash<std::string>()(place), Search{left, 0});
    Search& known = search->second;
    if (isNew && (numbers.contains(place) || sources.isFile(place))) {
      known.found = NumberOfNormal(place, place);
    }
    number = known.found;
    // An earlier search may have gone from here as far as this one would go.
    if (number != 0 || (!isNew && known.left >= left)) break;
    known.left = left;
    tried[count++] = &known;
    if (folder.empty()) break;
    const std::size_t slash = folder.rfind('/', folder.size() < 2 ? 0 : folder.size() - 2);
    folder = folder.substr(0, slash == std::string_view::npos ? 0 : slash + 1);
  }
  for (std::size_t i = 0; i < count; ++i) tried[i]->found = number;
  return number;
}

Reading* Session::CFamily(const std::string& path) {
  cfamily.SetFile(NumberOf(path));
  return &cfamily;
}

Reading* Session::Python(const std::string& /*path*/) { return &python; }

Reading* Session::Swift(const std::string& /*path*/) { return &swift; }

}  // namespace vexltags::thorough
