// SPDX-License-Identifier: MIT
// Runs vexltags-ctags on a large stack.
#include <string>
#include <vector>

#include "ctags/run.h"
#include "driver/run.h"
#include "engine/stack_guard.h"

int main(int argc, char** argv) {
  vexltags::PrepareProcess();
  return vexltags::RunOnLargeStack([argc, argv] {
    return vexltags::ctags::RunCtags(
        std::vector<std::string>(argv + (argc > 0 ? 1 : 0), argv + argc));
  });
}
