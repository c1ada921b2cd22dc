// SPDX-License-Identifier: MIT
// Runs the program on a large stack.
#include "driver/run.h"
#include "engine/stack_guard.h"

int main(int argc, char** argv) {
  return vexltags::RunOnLargeStack([argc, argv] { return vexltags::Run(argc, argv); });
}
