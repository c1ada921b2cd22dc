// SPDX-License-Identifier: MIT
// What `--thorough` knows of a whole run, and the reading that it has for each file.
#include "thorough/session.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <system_error>

namespace vexltags::thorough {
namespace {

constexpr std::size_t kMostFiles = 200000;
constexpr off_t kLargestFile = off_t{1} << 28;
/// How many folders up a quoted include is looked for.
constexpr int kMostParents = 8;

bool IsCFamily(const std::string& path) {
  return !path.ends_with(".py") && !path.ends_with(".pyx") && !path.ends_with(".swift");
}

/// Reads a regular file whole; false for anything else.
bool ReadText(const std::string& path, std::string& text) {
  const int file = open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
  if (file < 0) return false;
  struct stat status;
  bool done = fstat(file, &status) == 0 && S_ISREG(status.st_mode) && status.st_size < kLargestFile;
  if (done) {
    text.resize(static_cast<std::size_t>(status.st_size));
    std::size_t size = 0;
    while (size < text.size()) {
      const ssize_t count = read(file, text.data() + size, text.size() - size);
      if (count < 0 && errno == EINTR) continue;
      if (count <= 0) break;
      size += static_cast<std::size_t>(count);
    }
    text.resize(size);
  }
  close(file);
  return done;
}

bool IsFile(const std::string& path) {
  struct stat status;
  return stat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode);
}

}  // namespace

Session::Session(const Options& options, const std::vector<std::string>& paths)
    : cfamily(macros, files) {
  for (const std::string& path : paths) {
    if (IsCFamily(path)) NumberOf(path);
  }
  for (const std::string& path : options.macroPaths) LearnPath(path);
  // The list grows as includes are found.
  for (std::uint32_t i = 1; i < files.size(); ++i) LearnFile(i);
  text = {};
  searched = {};
}

std::uint32_t Session::NumberOf(const std::string& path) {
  const auto [place, isNew] = numbers.emplace(std::filesystem::path(path).lexically_normal(),
                                              static_cast<std::uint32_t>(files.size()));
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

void Session::LearnFile(std::uint32_t number) {
  if (!ReadText(files[number], text)) return;
  macros.Learn(text, number, [this, number](std::string_view name) { FindInclude(number, name); });
}

void Session::FindInclude(std::uint32_t includer, std::string_view name) {
  if (files.size() >= kMostFiles) return;
  std::string folder = files[includer];
  for (int i = 0; i < kMostParents; ++i) {
    const std::size_t slash = folder.rfind('/', folder.size() < 2 ? 0 : folder.size() - 2);
    folder.resize(slash == std::string::npos ? 0 : slash + 1);
    // Without `..`, so that headers that include each other do not make ever longer paths.
    const std::string path = std::filesystem::path(folder + std::string(name)).lexically_normal();
    const auto [known, isNew] = searched.emplace(path, false);
    if (isNew) {
      known->second = numbers.contains(path) || IsFile(path);
      if (known->second) NumberOf(path);
    }
    if (known->second || folder.empty()) return;
  }
}

Reading* Session::CFamily(const std::string& path) {
  cfamily.SetFile(NumberOf(path));
  return &cfamily;
}

Reading* Session::Python(const std::string& /*path*/) { return &python; }

Reading* Session::Swift(const std::string& /*path*/) { return &swift; }

}  // namespace vexltags::thorough
