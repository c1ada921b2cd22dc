// SPDX-License-Identifier: MIT
// Hands argv to the run and its result to the shell.
#include "driver/run.h"
#include "engine/stack_guard.h"

int main(int argc, char** argv) {
  return vexltags::RunOnLargeStack([argc, argv] { return vexltags::Run(argc, argv); });
}
