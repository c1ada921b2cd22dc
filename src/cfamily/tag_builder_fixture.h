// SPDX-License-Identifier: MIT
// A test fixture: a C-family tag builder for the file "a.h", and what it writes.
#pragma once

#include <gtest/gtest.h>

#include <cstdio>
#include <string>

#include "cfamily/declarations.h"

namespace vexltags {

class TagBuilderTest : public testing::Test {
 protected:
  Options options;
  Dumper dumper;
  VexlTagsParser builder{options, dumper, "a.h"};

  /// Opens a scope without writing a tag.
  void Open(const std::string& name, long kind) {
    builder.PushClass(TypeDescriptor(name, kind, 1));
  }

  /// The tag lines written since the last call, as one text.
  std::string Tags() {
    std::string all;
    for (; seen < dumper.Lines().size(); ++seen) all += dumper.Lines()[seen];
    return all;
  }

  /// What `action` prints to standard output under `--debugDump`. Fails if it writes a tag.
  template <class Action>
  std::string Readable(Action action) {
    options.debugDump = true;
    testing::internal::CaptureStdout();
    action();
    std::fflush(stdout);
    const std::string printed = testing::internal::GetCapturedStdout();
    options.debugDump = false;
    EXPECT_EQ(Tags(), "");
    return printed;
  }

  /// A list of names, the n-th on line n.
  static VectorOfName Names(std::initializer_list<const char*> texts) {
    VectorOfName list;
    for (const char* text : texts) {
      list.Add(Name(text, static_cast<std::int32_t>(list.names.size()) + 1));
    }
    return list;
  }

 private:
  std::size_t seen = 0;
};

}  // namespace vexltags
