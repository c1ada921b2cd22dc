// SPDX-License-Identifier: MIT
// The fixed texts of the header lines.
#include "output/tags_format.h"

#include "base/version.h"

namespace vexltags {

std::string TagsHeader(std::int32_t sort) {
  return "!_TAG_FILE_FORMAT\t2\t/extended format/ \n"
         "!_TAG_FILE_SORTED\t" +
         std::to_string(sort) +
         " /0=unsorted, 1=sorted, 2=foldcase/ \n"
         "!_TAG_PROGRAM_NAME\tvexltags\n"
         "!_TAG_PROGRAM_VERSION\t" +
         kVersion + "\n";
}

}  // namespace vexltags
