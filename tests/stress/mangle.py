#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Damages every golden input in many ways and runs the program on the results.

    tests/stress/mangle.py --program build/asan/vexltags                   a sample, seconds
    tests/stress/mangle.py --program build/asan/vexltags --every           all of it, an hour or so
    tests/stress/mangle.py --program build/asan/vexltags --thorough        with --thorough

Each input is cut at either end, has a byte dropped, doubled or replaced at each place, and is run with
the suffix of every grammar. The tags are not checked. A run fails if it ends by a signal, with a
status other than 0, with a sanitizer's report or not at all. Files are processed in batches; a batch
that fails is halved until one file is left, which is reduced while it still fails and kept with
--keep. A program built with sanitizers finds more.
"""
import argparse
import concurrent.futures
import os
import pathlib
import random
import subprocess
import sys
import tempfile

CASES = pathlib.Path(__file__).resolve().parent.parent / "cases"
SUFFIXES = [".cc", ".mm", ".swift", ".py"]
# Bytes with a meaning to some grammar, and some with none.
BYTES = b"\0\xff\xe9\r\n\t \\\"'`(){}[]<>;:,.=*&/#@_a0"
PIECES = [b"/*", b"*/", b"//", b'"""', b"'''", b"#if 0\n", b"#endif\n", b"#else\n", b"\\(", b"::",
          b"template<", b"@interface ", b"@end", b"operator", b"func ", b"class ", b"def ", b"\r\n",
          b"#define A A A\n", b"#define A(x) x##x {\n", b"#else\n#endif\n", b"A(", b"@a(", b"->", b"[[", b"]]", b"R\"(", b"#\"", b"typedef ", b"((((", b"{{{{", b"A<A<A<"]


def mutations(text):
    """Every damaged form of `text`, as a list of functions that make it."""
    made = [lambda: text]
    for i in range(len(text)):
        made.append(lambda i=i: text[:i])
        made.append(lambda i=i: text[i:])
        made.append(lambda i=i: text[:i] + text[i + 1:])
        made.append(lambda i=i: text[:i] + text[i:i + 1] + text[i:])
        for byte in BYTES:
            made.append(lambda i=i, byte=byte: text[:i] + bytes([byte]) + text[i + 1:])
        for piece in PIECES:
            made.append(lambda i=i, piece=piece: text[:i] + piece + text[i:])
    made.append(lambda: text * 50)
    made.append(lambda: text.replace(b"\n", b"\r"))
    made.append(lambda: text.replace(b"\n", b""))
    made.append(lambda: text[::-1])
    return made


def damaged(options):
    """Pairs of a suffix and a damaged text."""
    source = random.Random(options.seed)
    paths = sorted(CASES.rglob("input.*"))
    for path in paths:
        text = path.read_bytes()
        made = mutations(text)
        own = path.suffix
        for suffix in [own] + [s for s in SUFFIXES if s != own]:
            yield suffix, text
            count = options.sample if suffix == own else max(1, options.sample // 4)
            chosen = made if options.every and suffix == own else source.sample(
                made, min(len(made), count * (10 if options.every else 1)))
            for make in chosen:
                yield suffix, make()


def fails(options, folder, files):
    """Why the program fails on the files; empty when it does not."""
    command = [options.program, "--sort=no", "-f", os.path.join(folder, "tags"), *files]
    if options.thorough:
        command.insert(1, "--thorough")
    environment = dict(os.environ, HOME="/nonexistent")
    try:
        done = subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                              stdin=subprocess.DEVNULL, env=environment,
                              timeout=options.seconds * (1 + len(files) / 20))
    except subprocess.TimeoutExpired:
        return "does not end"
    text = done.stdout.decode("latin-1")
    if done.returncode != 0 or "Sanitizer" in text or "runtime error" in text:
        return f"status {done.returncode}: {text[-1500:]}"
    return ""


def one_that_fails(options, folder, files):
    """The first single file of `files` that fails alone, and why; None when only many do."""
    if len(files) == 1:
        return files[0], fails(options, folder, files)
    half = len(files) // 2
    for part in (files[:half], files[half:]):
        if fails(options, folder, part):
            return one_that_fails(options, folder, part)
    return None


def shrink(options, folder, suffix, text):
    """A smaller text that still fails."""
    path = os.path.join(folder, "shrunk" + suffix)

    def still_fails(candidate):
        pathlib.Path(path).write_bytes(candidate)
        return fails(options, folder, [path]) != ""
    size = len(text) // 2
    while size >= 1:
        at = 0
        while at < len(text):
            candidate = text[:at] + text[at + size:]
            if still_fails(candidate):
                text = candidate
            else:
                at += size
        size //= 2
    return text


def run_batch(options, batch):
    """Runs the program over one batch of (suffix, text). Returns findings as texts."""
    with tempfile.TemporaryDirectory(prefix="vexltags-mangle-") as folder:
        files = []
        for number, (suffix, text) in enumerate(batch):
            path = os.path.join(folder, f"{number}{suffix}")
            pathlib.Path(path).write_bytes(text)
            files.append(path)
        why = fails(options, folder, files)
        if not why:
            return []
        found = one_that_fails(options, folder, files)
        if found is None:
            return [f"a batch of {len(files)} files, though none of its halves: {why}"]
        path, why = found
        suffix = pathlib.Path(path).suffix
        text = shrink(options, folder, suffix, pathlib.Path(path).read_bytes())
        if options.keep:
            os.makedirs(options.keep, exist_ok=True)
            name = f"mangled-{abs(hash(text)) % 10**8}{suffix}"
            pathlib.Path(options.keep, name).write_bytes(text)
        return [f"input{suffix} {text[:300]!r}: {why}"]


def batches(options):
    batch, size = [], 0
    for item in damaged(options):
        batch.append(item)
        size += len(item[1])
        if len(batch) == options.batch or size > 10**7:
            yield batch
            batch, size = [], 0
    if batch:
        yield batch


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--program", required=True)
    parser.add_argument("--thorough", action="store_true", help="run the program with --thorough")
    parser.add_argument("--every", action="store_true", help="every damage instead of a sample")
    parser.add_argument("--sample", type=int, default=24, help="damages per input and grammar")
    parser.add_argument("--seed", type=int, default=1, help="chooses the sample")
    parser.add_argument("--batch", type=int, default=500, help="files in one run of the program")
    parser.add_argument("--seconds", type=float, default=10, help="for a run over one file")
    parser.add_argument("--jobs", type=int, default=2)
    parser.add_argument("--keep", help="folder for what failed, shrunk")
    options = parser.parse_args()
    options.program = os.path.abspath(options.program)
    findings, files = [], 0
    with concurrent.futures.ThreadPoolExecutor(options.jobs) as pool:
        pending = set()
        for batch in batches(options):
            files += len(batch)
            pending.add(pool.submit(run_batch, options, batch))
            if len(pending) >= 4 * options.jobs:
                done, pending = concurrent.futures.wait(
                    pending, return_when=concurrent.futures.FIRST_COMPLETED)
                findings += [text for future in done for text in future.result()]
        findings += [text for future in pending for text in future.result()]
    for text in findings:
        print("FAILED " + text)
    print(f"{files} damaged files, {len(findings)} findings")
    return 1 if findings or files == 0 else 0


if __name__ == "__main__":
    sys.exit(main())
