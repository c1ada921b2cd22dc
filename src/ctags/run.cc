// SPDX-License-Identifier: MIT
// The steps of a run of vexltags-ctags.
#include "ctags/run.h"

#include <cstdio>
#include <utility>

#include "ctags/command_line.h"
#include "ctags/indexing.h"
#include "ctags/interactive.h"
#include "ctags/messages.h"
#include "ctags/source_files.h"
#include "ctags/tags_output.h"

namespace vexltags::ctags {
namespace {

int RunInteractive(Settings& settings) {
  settings.format = Format::kJson;
  // Callers read these, whether they ask for them or not.
  for (const char* field : {"line", "language", "signature"}) settings.fields.Set(field, true);
  return AnswerRequests(settings);
}

int IndexAndWrite(const Settings& settings) {
  TagsOutput output(settings);
  std::vector<Source> sources;
  if (!FindSources(settings, sources) || !output.Prepare()) return kFailure;
  IndexSources(sources, settings, output.Path(), [&output](std::string line, std::size_t length) {
    output.Add(std::move(line), length);
  });
  return output.Write() ? 0 : kFailure;
}

}  // namespace

int RunCtags(const std::vector<std::string>& arguments) {
  Settings settings;
  switch (CommandLine(settings).Parse(arguments)) {
    case ParseResult::kFailed:
      return kFailure;
    case ParseResult::kDone:
      if (std::fflush(stdout) == 0 && std::ferror(stdout) == 0) return 0;
      return Fail("cannot write standard output");
    case ParseResult::kRun:
      break;
  }
  if (settings.interactive != Interactive::kOff) return RunInteractive(settings);
  return IndexAndWrite(settings);
}

}  // namespace vexltags::ctags
