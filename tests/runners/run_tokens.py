#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Runs the token cases: tests/tokens/CONSTRUCT/CASE/input.c through main_tokens against expected.txt.

usage: run_tokens.py MAIN_TOKENS [CONSTRUCT/CASE...]

Cases are found at any depth and named by their path below tests/tokens. A case may have `args`, one
option per line. `main_tokens --types` has to print the tokens of the vocabulary with their numbers.
Prints a diff for each case that differs; the status is 1 if any does.
"""
import difflib
import pathlib
import re
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent / "tokens"
VOCABULARY = ROOT.parent.parent / "src/grammars/main.vocab"


def types():
    """The token types that the runtime reserves, and those of the vocabulary."""
    names = {0: "<invalid>", 1: "<EOR>", 2: "<DOWN>", 3: "<UP>"}
    for line in VOCABULARY.read_text("ascii").splitlines():
        token = re.match(r"(\w+|'.+')=(\d+)", line)
        if token:
            names[int(token.group(2))] = token.group(1)
    return "".join(f"{number} {names[number]}\n" for number in sorted(names)).encode()


def differs(name, command, expected):
    run = subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, timeout=60)
    if run.returncode == 0 and run.stdout == expected:
        return False
    print(f"FAILED {name} (status {run.returncode}): {' '.join(map(str, command))}")
    diff = difflib.unified_diff(
        expected.decode("latin-1").split("\n"),
        run.stdout.decode("latin-1").split("\n"),
        "expected", "got", lineterm="")
    print("\n".join(diff))
    return True


def main():
    if len(sys.argv) < 2:
        sys.exit(__doc__)
    program = pathlib.Path(sys.argv[1]).resolve()
    chosen = sys.argv[2:] or sorted(path.parent.relative_to(ROOT).as_posix() for path in ROOT.rglob("input.c"))
    if not chosen:
        sys.exit(f"no cases in {ROOT}")
    failed = differs("types", [program, "--types"], types())
    for name in chosen:
        case = ROOT / name
        args_path = case / "args"
        args = args_path.read_text().split("\n")[:-1] if args_path.exists() else []
        failed |= differs(name, [program, *args, case / "input.c"], (case / "expected.txt").read_bytes())
    print(f"{len(chosen)} token cases, {'some failed' if failed else 'all passed'}")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
