#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Compares the recognisers with and without what only saves time: tags, error counts and messages.

usage: differential.py --fast PROBE --plain PROBE [PATH...]

Each PATH is a file or a folder, which is walked; the default is all inputs of the golden, token and
command-line cases. The two programs are src/testing/recognizer_probe.cc, built twice. A file for
which the plain one needs more than --seconds is named and left out. The status is 1 if any other
file differs.

Both programs run with and without --dumpErrors. It adds messages, which have to be equal but for
the addresses of characters. Tags and counts stay the same, although the generated lexers then read
what otherwise the scanners read.
"""
import argparse
import pathlib
import re
import subprocess
import sys
import tempfile

ROOT = pathlib.Path(__file__).resolve().parent.parent
BATCH = 200


def inputs(paths):
    for path in paths:
        if path.is_dir():
            yield from sorted(p for p in path.rglob("*") if p.is_file() and not p.is_symlink())
        else:
            yield path


def extent(addresses):
    """The number of characters between the two addresses, of which 32 bits are printed."""
    start, stop = map(int, addresses.groups())
    return b"(%d characters)" % ((stop - start + 1) % 2**32)


def run(probe, options, files, seconds):
    """The program's output for the files, and its status; None if it takes too long."""
    with tempfile.NamedTemporaryFile("w", encoding="utf-8", errors="surrogateescape") as names:
        names.write("".join(f"{file}\n" for file in files))
        names.flush()
        try:
            done = subprocess.run([probe, *options, "-L", names.name], stdout=subprocess.PIPE,
                                  stderr=subprocess.PIPE, timeout=seconds)
        except subprocess.TimeoutExpired:
            return None
    messages = re.sub(rb"\(Start: (-?[1-9]\d*)-Stop: (-?[1-9]\d*)\)", extent, done.stderr)
    return done.stdout + f"status {done.returncode}\n".encode(), messages


def agree(args, files):
    """Whether all runs over the files agree; None when the plain program takes too long."""
    results = []
    for options in ([], ["--dumpErrors"]):
        fast = run(args.fast, options, files, args.seconds * 10)
        if fast is None:
            return False
        plain = run(args.plain, options, files,
                    args.seconds if len(files) == 1 else args.seconds * 5)
        if plain is None:
            return None
        results += [fast, plain]
    silent, plain_silent, shown, plain_shown = results
    return silent == plain_silent and shown == plain_shown and silent[0] == shown[0]


def compare(args, files):
    """The files that differ, and those for which the plain program takes too long."""
    result = agree(args, files)
    if result:
        return [], []
    if len(files) == 1:
        return ([], files) if result is None else (files, [])
    half = len(files) // 2
    left, right = compare(args, files[:half]), compare(args, files[half:])
    return left[0] + right[0], left[1] + right[1]


def main():
    parser = argparse.ArgumentParser(description=__doc__.split("\n")[0])
    parser.add_argument("--fast", required=True)
    parser.add_argument("--plain", required=True)
    parser.add_argument("--seconds", type=float, default=20)
    parser.add_argument("paths", nargs="*", type=pathlib.Path,
                        default=[ROOT / name for name in ("cases", "tokens", "cli", "shared")])
    args = parser.parse_args()
    files = [file for file in inputs(args.paths) if "\n" not in str(file)]
    differing, slow = [], []
    for start in range(0, len(files), BATCH):
        batch = compare(args, files[start:start + BATCH])
        differing += batch[0]
        slow += batch[1]
    for file in slow:
        print(f"left out, too slow for the plain recognisers: {file}")
    for file in differing:
        print(f"DIFFERS {file}")
    print(f"{len(files)} files, {len(differing)} differ, {len(slow)} left out")
    return 1 if differing or not files else 0


if __name__ == "__main__":
    sys.exit(main())
