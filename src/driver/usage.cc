// SPDX-License-Identifier: MIT
// The usage text and the version line.
#include "driver/usage.h"

#include <cstdio>

#include "base/version.h"

// The build system passes the date, so that builds are reproducible.
#ifndef VEXLTAGS_BUILD_DATE
#define VEXLTAGS_BUILD_DATE __DATE__
#endif

namespace vexltags {

void Usage() {
  std::printf("vexltags v%s, a tags file generator\n", kVersion);
  std::printf("Supported languages: C++, Obj-C, Swift, Python \n");
  std::printf("Built: %s\n", VEXLTAGS_BUILD_DATE);
  std::fputs(
      R"(Usage: vexltags [options] [files]

  -h, --help                       Show help.
  -v, --version                    Show version.
      --dumpErrors                 Print parsing errors to standard err.
      --debugDump                  Output in verbose debug format.
      --tag-relative(=yes|=no)     Output file paths relative to the tag file location.
      --cannonical-paths(=yes|=no) Use ~ for home.
      --sort(=yes|=no|=foldcase)   Sort resulting tags.
)"
      // A separate literal, because the line ends in blanks.
      "  -I <token>                       \n"
      R"(      --filterToken <token>        Add a comma-separated list of tokens to ignore by the parser.
  -L <fileName>                    Read a list of file paths to tag from a specified file. Use "-" to read the paths from <stdin>.
  -f <fileName>                    Write the output to a specified file. Use "-" to the output to <stdout> (default behavior).
      --append(=yes|=no)           Append output to entries already in existing output file
      --reportIfLonger=(seconds)   If parsing an individual file takes longer than specified, report the file to <stderr>
      --abortIfLonger=(seconds)    If parsing an individual file takes longer than specified, give up on parsing that file
      --debugDumpFilenames         Print indexed file name to stderr
)",
      stdout);
}

void Version() { std::printf("vexltags v %s, %s\n", kVersion, VEXLTAGS_BUILD_DATE); }

}  // namespace vexltags
