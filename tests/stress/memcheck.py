#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Runs the program under valgrind over every golden input: no invalid access, no leak.

    tests/stress/memcheck.py --program build/dev/vexltags

Each input is read whole, cut in the middle, and by every other grammar. The program must not be
built with sanitizers. Takes some minutes; --sample 10 takes every tenth file. With --thorough the
program runs with that option.
"""
import argparse
import concurrent.futures
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile

HERE = pathlib.Path(__file__).resolve().parent
CASES = HERE.parent / "cases"
SUFFIXES = [".c", ".cc", ".mm", ".swift", ".py"]
COMMAND = ["valgrind", "--quiet", "--leak-check=full", "--errors-for-leak-kinds=all",
           "--show-leak-kinds=all", "--error-exitcode=99", f"--suppressions={HERE}/memcheck.supp"]


def texts(sample):
    """Pairs of a suffix and a text, every `sample`-th of them."""
    made = []
    for path in sorted(CASES.rglob("input.*")):
        text = path.read_bytes()
        made.append((path.suffix, text))
        made.append((path.suffix, text[:len(text) // 2]))
        made += [(suffix, text) for suffix in SUFFIXES if suffix != path.suffix]
    return made[::sample]


def run_batch(program, always, batch):
    """Runs valgrind over one batch. Returns what it reports, empty for nothing."""
    with tempfile.TemporaryDirectory(prefix="vexltags-memcheck-") as folder:
        names = []
        for number, (suffix, text) in enumerate(batch):
            names.append(f"{number}{suffix}")
            pathlib.Path(folder, names[-1]).write_bytes(text)
        # Sorted, then appended to, so that writing and reading tags is checked as well.
        for more in ([], ["--append"]):
            done = subprocess.run([*COMMAND, program, *always, "-f", "tags", *more, *names], cwd=folder,
                                  stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                                  stdin=subprocess.DEVNULL, check=False)
            if done.returncode != 0 or done.stdout:
                return f"status {done.returncode}: {done.stdout.decode('latin-1')[:3000]}"
        return ""


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--program", required=True)
    parser.add_argument("--thorough", action="store_true", help="run the program with --thorough")
    parser.add_argument("--sample", type=int, default=1, help="take every N-th file")
    parser.add_argument("--batch", type=int, default=100, help="files in one run of the program")
    parser.add_argument("--jobs", type=int, default=2)
    options = parser.parse_args()
    if shutil.which("valgrind") is None:
        sys.exit("this needs valgrind")
    program = os.path.abspath(options.program)
    always = ["--thorough"] if options.thorough else []
    made = texts(options.sample)
    batches = [made[i:i + options.batch] for i in range(0, len(made), options.batch)]
    with concurrent.futures.ThreadPoolExecutor(options.jobs) as pool:
        reports = [text for text in pool.map(lambda batch: run_batch(program, always, batch), batches)
                   if text]
    for text in reports:
        print("FAILED " + text)
    print(f"{len(made)} files, {len(reports)} reports")
    return 1 if reports or not made else 0


if __name__ == "__main__":
    sys.exit(main())
