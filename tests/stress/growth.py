#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Prints how time and memory grow with the size of nested, repeated and unclosed input.

Each family of inputs is indexed at sizes n, 2n and 4n. Twice the size should cost at most twice the
time; the last column is the growth of time from 2n to 4n, 2.0 for linear cost and 4.0 for squared.
This is a tool, not a test: a test that measures time fails on a busy machine.

    tests/stress/growth.py build/release/vexltags              every family at n = 25000
    tests/stress/growth.py build/release/vexltags -n 5000 swift
                                                        the families with "swift" in their name
"""
import argparse
import os
import resource
import signal
import subprocess
import sys
import tempfile
import time

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
from growth_families import families  # noqa: E402


def run(program, arguments, path, limit, memory):
    """Seconds of processor time, peak MiB and how the run ended ("" for normally)."""
    def limits():
        resource.setrlimit(resource.RLIMIT_AS, (memory, memory))
        resource.setrlimit(resource.RLIMIT_CORE, (0, 0))
        resource.setrlimit(resource.RLIMIT_CPU, (limit, limit + 1))
    child = subprocess.Popen([program, *arguments, path], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                             stdin=subprocess.DEVNULL, preexec_fn=limits)
    _, status, usage = os.wait4(child.pid, 0)
    child.returncode = 0
    seconds = usage.ru_utime + usage.ru_stime
    end = ""
    if os.WIFSIGNALED(status):
        number = os.WTERMSIG(status)
        end = "over time" if number in (signal.SIGXCPU, signal.SIGKILL) else f"signal {number}"
    elif os.WEXITSTATUS(status) != 0:
        end = f"status {os.WEXITSTATUS(status)}"
    return seconds, usage.ru_maxrss / 1024, end


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("program")
    parser.add_argument("words", nargs="*", help="only families with one of these in their name")
    parser.add_argument("-n", type=int, default=25000, help="the first of the three sizes")
    parser.add_argument("--seconds", type=int, default=20, help="the most that one run may take")
    parser.add_argument("--gib", type=float, default=8, help="address space of one run")
    parser.add_argument("--thorough", action="store_true", help="read with --thorough")
    parser.add_argument("--all", action="store_true", help="show the linear families too")
    options = parser.parse_intermixed_args()
    program = os.path.abspath(options.program)
    arguments = ["--thorough"] if options.thorough else []
    sizes = [options.n, 2 * options.n, 4 * options.n]
    print("%-46s %8s %8s %8s %8s %7s" % ("family", *("n=%d" % n for n in sizes), "MiB", "growth"))
    steep = 0
    with tempfile.TemporaryDirectory() as folder:
        for name, suffix, maker in families():
            if options.words and not any(word in name for word in options.words):
                continue
            times, peak, end = [], 0, ""
            for size in sizes:
                path = os.path.join(folder, "input" + suffix)
                with open(path, "w", encoding="latin-1", newline="") as file:
                    file.write(maker(size))
                seconds, mib, end = run(program, arguments, path, options.seconds,
                                        int(options.gib * 2**30))
                times.append(seconds)
                peak = max(peak, mib)
                if end:
                    break
            growth = times[-1] / max(times[-2], 0.01) if len(times) > 1 else 0.0
            bad = bool(end) or (growth > 3.2 and times[-1] > 0.1)
            steep += bad
            cells = ["%.2f" % t for t in times] + ["-"] * (3 - len(times))
            if bad or options.all:
                print("%-46s %8s %8s %8s %8d %7.1f  %s" % (name, *cells, peak, growth, end),
                      flush=True)
    print(f"{steep} families grow faster than their input or end badly")
    return 0


if __name__ == "__main__":
    sys.exit(main())
