// SPDX-License-Identifier: MIT
// Writes the tags file from the old one after small changes.
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <optional>
#include <utility>

#include "tree/refresh.h"

namespace vexltags::tree {
namespace {

constexpr std::size_t kMostChanges = 64;

/// A file in memory, as long as the object exists.
class MappedFile {
 public:
  explicit MappedFile(const std::string& path) {
    file = open(path.c_str(), O_RDONLY | O_CLOEXEC);
    struct stat info;
    if (file >= 0 && fstat(file, &info) == 0 && info.st_size > 0) {
      status = info;
      size = static_cast<std::size_t>(info.st_size);
      bytes = mmap(nullptr, size, PROT_READ, MAP_PRIVATE, file, 0);
    }
  }
  ~MappedFile() {
    if (bytes != MAP_FAILED) munmap(bytes, size);
    if (file >= 0) close(file);
  }
  MappedFile(const MappedFile&) = delete;
  MappedFile& operator=(const MappedFile&) = delete;

  /// Of the file that is mapped, whatever the path leads to now.
  const std::optional<struct stat>& Status() const { return status; }
  int Descriptor() const { return file; }
  std::string_view Text() const {
    return bytes == MAP_FAILED ? std::string_view()
                               : std::string_view(static_cast<const char*>(bytes), size);
  }

 private:
  int file = -1;
  std::optional<struct stat> status;
  void* bytes = MAP_FAILED;
  std::size_t size = 0;
};

}  // namespace

bool Refresh::WritePatched(OutputFile& output) {
  if (!tagsChanged || style.format == Format::kJson || OrderOf(style) == TagOrder::kFiles) {
    return false;
  }
  const MappedFile old(options.output);
  const nlohmann::json record = OutputRecord(old.Status());
  if (record.is_null() || record.value("isUtf8", !style.isUtf8) != style.isUtf8) return false;
  std::vector<PatchLine> removed;
  std::vector<PatchLine> added;
  if (!FindChanges(removed, added) || IsDamaged()) return false;
  PatchSink sink;
  sink.write = [&output](std::string_view bytes) { return output.Write(bytes); };
  sink.copy = [&output, &old](std::size_t begin, std::size_t size) {
    return output.Copy(old.Descriptor(), begin, size);
  };
  return PatchTags(old.Text(), std::move(removed), std::move(added), style, sink);
}

bool Refresh::FindChanges(std::vector<PatchLine>& removed, std::vector<PatchLine>& added) {
  std::vector<const CachedFile*> before;
  for (const CachedFile& row : rows) {
    if (row.resultHash != 0) before.push_back(&row);
  }
  const auto byPath = [](const CachedFile* a, const CachedFile* b) { return a->path < b->path; };
  std::sort(before.begin(), before.end(), byPath);
  std::int32_t oldBase = 0;
  std::int32_t newBase = 0;
  std::size_t changes = 0;
  auto old = before.begin();
  const auto append = [this](const std::string& path, const FileInfo& info, std::string_view tags,
                             std::int32_t base, std::vector<PatchLine>& lines) {
    if (NeedsNumbers(info, base)) tags = entries.emplace_back(RenumberAnon(tags, base));
    return AppendPatchLines(Tagged(path, info, tags), style, lines);
  };
  const auto remove = [&](const CachedFile& row) {
    FileInfo info;
    if (++changes > kMostChanges || !DecodeInfo(row.info, info)) return false;
    const std::string& tags = entries.emplace_back(cache->Blob(row.id, BlobKind::kResult));
    const bool isDone =
        !IsDamaged() &&
        append(row.path, info, tags, std::exchange(oldBase, oldBase + info.anonCount), removed);
    return isDone;
  };
  for (std::size_t i = 0; i < sourceCount; ++i) {
    const TreeFile& file = files[i];
    for (; old != before.end() && (*old)->path < file.path; ++old) {
      if (!remove(**old)) return false;
    }
    const bool wasThere = old != before.end() && (*old)->path == file.path;
    const InfoHead head = file.Head();
    if (file.IsRead() && head.isOdd) return false;
    if (wasThere && file.hasResult && !file.result) {
      if (head.anonCount > 0 && oldBase != newBase) return false;
      oldBase += head.anonCount;
      newBase += head.anonCount;
      ++old;
      continue;
    }
    if (wasThere && !remove(**old++)) return false;
    if (!file.IsRead()) continue;
    const FileInfo& info = file.result->info;
    if (++changes > kMostChanges ||
        !append(file.path, info, file.result->entries,
                std::exchange(newBase, newBase + info.anonCount), added)) {
      return false;
    }
  }
  for (; old != before.end(); ++old) {
    if (!remove(**old)) return false;
  }
  return true;
}

}  // namespace vexltags::tree
