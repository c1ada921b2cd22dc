// SPDX-License-Identifier: MIT
// A new file that replaces an existing one in one step.
#include "output/replacement_file.h"

#include <fcntl.h>
#include <limits.h>
#include <stdlib.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdio>

namespace vexltags {

bool ReplacementFile::Create(const std::string& target) {
  char resolved[PATH_MAX];
  struct stat status;
  if (realpath(target.c_str(), resolved) == nullptr || stat(resolved, &status) != 0 ||
      !S_ISREG(status.st_mode)) {
    return false;
  }
  targetPath = resolved;
  path = targetPath + ".XXXXXX";
  descriptor = mkostemp(path.data(), O_CLOEXEC);
  if (descriptor < 0) {
    path.clear();
    return false;
  }
  keepsOwner = fchown(descriptor, status.st_uid, status.st_gid) == 0;
  // A file with another owner must not keep the set-user-ID and set-group-ID bits.
  if (fchmod(descriptor, status.st_mode & (keepsOwner ? 07777 : 0777)) == 0) return true;
  close(descriptor);
  Discard();
  return false;
}

bool ReplacementFile::TakePlace() {
  if (path.empty() || std::rename(path.c_str(), targetPath.c_str()) != 0) return false;
  path.clear();
  return true;
}

void ReplacementFile::Discard() {
  if (!path.empty()) unlink(path.c_str());
  path.clear();
}

}  // namespace vexltags
