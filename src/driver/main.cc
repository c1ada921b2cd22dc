// SPDX-License-Identifier: MIT
// Hands argv to the run and its result to the shell.
#include "driver/run.h"

int main(int argc, char** argv) { return vexltags::Run(argc, argv); }
