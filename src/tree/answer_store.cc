// SPDX-License-Identifier: MIT
// Maps the file in large parts, also past its present end, so that few of them are needed.
#include "tree/answer_store.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>

#include "tree/messages.h"

namespace vexltags::tree {
namespace {

constexpr std::size_t kMapping = std::size_t{1} << 26;

}  // namespace

AnswerStore::~AnswerStore() {
  for (const Mapping& mapping : mappings) munmap(const_cast<char*>(mapping.bytes), mapping.size);
  Close();
}

void AnswerStore::Close() {
  if (file >= 0) close(file);
  file = -1;
  isOpen = false;
}

bool AnswerStore::Create() {
  file = memfd_create("vexltags-tree answers", MFD_CLOEXEC);
  isOpen = file >= 0;
  return isOpen;
}

bool AnswerStore::Append(std::string_view bytes) {
  // What is there of an answer is never complete, so nothing may follow it.
  isOpen = isOpen && WriteAll(file, bytes);
  return isOpen;
}

std::string_view AnswerStore::From(std::size_t begin) {
  struct stat status;
  if (file < 0 || fstat(file, &status) != 0) return {};
  const auto end = static_cast<std::size_t>(status.st_size);
  if (end <= begin) return {};
  if (mappings.empty() || mappings.back().begin + mappings.back().size < end) {
    static const auto kPage = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
    Mapping mapping;
    mapping.begin = begin / kPage * kPage;
    mapping.size = std::max(kMapping, (end - mapping.begin) * 2) / kPage * kPage;
    void* const bytes =
        mmap(nullptr, mapping.size, PROT_READ, MAP_SHARED, file, static_cast<off_t>(mapping.begin));
    if (bytes == MAP_FAILED) return {};
    mapping.bytes = static_cast<const char*>(bytes);
    mappings.push_back(mapping);
  }
  const Mapping& mapping = mappings.back();
  return {mapping.bytes + (begin - mapping.begin), end - begin};
}

}  // namespace vexltags::tree
