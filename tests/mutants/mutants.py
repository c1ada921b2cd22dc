#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Changes the sources in one place at a time and runs the tests, to find rules that no test holds.

    tests/mutants/mutants.py --list --only grammar:swift           which mutations there are
    tests/mutants/mutants.py --sample 300 --seed 1                 run a sample
    tests/mutants/mutants.py --only src/cfamily --results x.jsonl  run those of one folder
    tests/mutants/mutants.py --again                               run the survivors of the file again
    tests/mutants/mutants.py --report                              what the results file says

Each mutation is tried by the golden cases, the token cases, the unit tests, the comparison of the
fast and the plain recognisers and the command-line cases, in this order, up to the first failure.
The sources stay as they are: the work is done on a copy in --work. Results are appended to a file
of JSON lines; a mutation that is in the file is not run again. A survivor that tests/mutants/
equivalent.txt explains counts as equivalent.

Mutations of C++ conditions are compiled into one program that chooses one at run time. A mutation
of a grammar has a build of its own: some seconds of generating and compiling without optimisation.
"""
import argparse
import collections
import json
import os
import pathlib
import random
import re
import resource
import shutil
import signal
import subprocess
import sys
import time

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))

import cxx_mutations  # noqa: E402
import grammar_mutations  # noqa: E402

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
HERE = "tests/mutants"
GRAMMARS = {"main": ["c", "cxx", "objc"], "swift": ["swift"], "python": ["python"]}
# The languages of the golden cases that the code of a folder can change; for any other, all.
LANGUAGES = {"src/cfamily": GRAMMARS["main"], "src/swift": ["swift"], "src/python": ["python"]}
FOLDERS = "base output portable engine parserstate python cfamily swift grammars driver".split()
STAGES = ["cases", "tokens", "unit", "differential", "cli"]
# What a mutant may take: address space in bytes, seconds for one stage and for one case.
MEMORY = 6 << 30
STAGE_SECONDS = {"unit": 120, "tokens": 120}
OTHER_STAGE_SECONDS = 600
CASE_SECONDS = 20


def output_of(*command):
    return subprocess.run(command, cwd=ROOT, capture_output=True, text=True, check=True).stdout


def source_files():
    for name in output_of("git", "ls-files", "src").split():
        path = pathlib.PurePosixPath(name)
        if path.suffix not in (".cc", ".h") or str(path.parent.name) not in FOLDERS:
            continue
        if not path.stem.endswith(("_test", "_fixture", "_support")) or name.endswith(
            "recognizer_support.h"
        ):
            yield name


def text_of(file, texts={}):
    """A source as it was at first sight: the working tree may change while the mutants run."""
    if file not in texts:
        texts[file] = (ROOT / file).read_text(encoding="utf-8")
    return texts[file]


def all_mutations():
    """Every mutation of every grammar and every hand-written source, in the order of the files."""
    result = []
    for name in GRAMMARS:
        file = f"src/grammars/{name}.g"
        result += grammar_mutations.mutations(file, text_of(file))
    for file in source_files():
        result += cxx_mutations.mutations(file, text_of(file))
    return result


def group_of(mutation):
    """`grammar:NAME` or the folder of a source."""
    path = pathlib.PurePosixPath(mutation.file)
    return f"grammar:{path.stem}" if path.suffix == ".g" else str(path.parent)


def selected(options):
    chosen = all_mutations()
    if options.only:
        chosen = [m for m in chosen
                  if any(group_of(m).startswith(only) or m.file == only for only in options.only)]
    if options.id:
        chosen = [m for m in chosen if m.ident in options.id]
    if options.operator:
        chosen = [m for m in chosen if m.operator in options.operator]
    if options.sample and options.sample < len(chosen):
        places = sorted(random.Random(options.seed).sample(range(len(chosen)), options.sample))
        chosen = [chosen[place] for place in places]
    return chosen


def equivalents():
    """The explanations of survivors, by identity or by `operator:NAME` for all of one kind."""
    result = {}
    path = ROOT / HERE / "equivalent.txt"
    for line in path.read_text(encoding="utf-8").splitlines() if path.exists() else []:
        if line.strip() and not line.startswith("#"):
            ident, reason = line.split(None, 1)
            result[ident] = reason
    return result


class Tree:
    """A copy of the sources, and builds of it."""

    def __init__(self, folder):
        self.folder = folder
        self.sources = folder / "source"

    def update(self):
        """Makes the copy equal to the working tree; touches only the files that differ."""
        names = [name for name in output_of("git", "ls-files", "-z").split("\0") if name]
        wanted = set(names)
        for path in sorted(self.sources.rglob("*")):
            if not path.is_dir() and path.relative_to(self.sources).as_posix() not in wanted:
                path.unlink()
        for name in names:
            source, copy = ROOT / name, self.sources / name
            if not source.exists() and not source.is_symlink():
                continue
            if source.is_symlink():
                copy.parent.mkdir(parents=True, exist_ok=True)
                copy.unlink(missing_ok=True)
                copy.symlink_to(os.readlink(source))
            else:
                self.write(name, source.read_bytes())
                shutil.copymode(source, copy)

    def write(self, name, data):
        path = self.sources / name
        if not path.exists() or path.read_bytes() != data:
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_bytes(data)

    def build(self, name, targets, **settings):
        """Whether the targets build, and what the build says. Configures when it has to."""
        folder = self.folder / name
        if not (folder / "build.ninja").exists():
            folder.mkdir(parents=True, exist_ok=True)
            cache = ["-D", "CMAKE_CXX_COMPILER_LAUNCHER=ccache"] if shutil.which("ccache") else []
            for key, value in settings.items():
                cache += ["-D", f"{key}={value}"]
            subprocess.run(
                ["cmake", "-S", self.sources, "-B", folder, "-G", "Ninja", "-D",
                 "CMAKE_BUILD_TYPE=Debug", "-D", "CMAKE_CXX_FLAGS_DEBUG=-O0", *cache],
                check=True, stdout=subprocess.DEVNULL)
        # A generated folder inside the copy would be taken for that of a source archive.
        env = dict(os.environ, CCACHE_BASEDIR="/", CCACHE_NOHASHDIR="1")
        done = subprocess.run(["ninja", "-C", folder, "-j", "1", *targets], env=env, text=True,
                              stdout=subprocess.PIPE, stderr=subprocess.STDOUT, errors="replace")
        return done.returncode == 0, done.stdout


def environment(**more):
    return dict(os.environ, HOME="/nonexistent", LC_ALL="C", **more)


def limit_memory():
    resource.setrlimit(resource.RLIMIT_AS, (MEMORY, MEMORY))


def failure_of(command, env, folder, seconds):
    """Why the command fails, in a line; empty when it does not."""
    process = subprocess.Popen([str(part) for part in command], cwd=folder, env=env,
                               stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                               stderr=subprocess.STDOUT, start_new_session=True,
                               preexec_fn=limit_memory)
    try:
        text = process.communicate(timeout=seconds)[0].decode("utf-8", "replace")
    except subprocess.TimeoutExpired:
        os.killpg(process.pid, signal.SIGKILL)
        process.communicate()
        return "does not end"
    if process.returncode == 0:
        return ""
    shown = re.search(r"^(FAILED.*|FIXED.*|\[  FAILED  \].*|DIFFERS.*)$", text, re.MULTILINE)
    return shown.group(1)[:160] if shown else f"status {process.returncode}"


def unnumbered(fields):
    """A tag line's fields without its path, and without the numbers of generated names."""
    return tuple(re.sub(rb"(?<=anon)(\w*?)\d+", rb"\1", field) for field in (fields[0], fields[2]))


def suspects(program, folder, tests, languages, env):
    """Names of golden cases, the likeliest to fail first: those whose inputs, all indexed in one run,
    give other tags than expected. None for certain: each case has still to be run by itself."""
    inputs = [path for language in languages
              for path in sorted((tests / "cases" / language).rglob("input.*"))
              if not (path.parent / "args").exists()]
    names = folder / "inputs"
    names.write_text("".join(f"{path}\n" for path in inputs))
    try:
        done = subprocess.run([program, "--sort=no", "-L", names, "-f", "-"], env=env, timeout=60,
                              stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                              stderr=subprocess.DEVNULL, preexec_fn=limit_memory)
    except subprocess.TimeoutExpired:
        return []
    found = collections.defaultdict(list)
    for line in done.stdout.split(b"\n"):
        fields = line.split(b"\t", 2)
        if len(fields) == 3:
            found[os.path.dirname(fields[1])].append(unnumbered(fields))
    result = []
    for path in inputs:
        expected = (path.parent / "expected.tags").read_bytes().split(b"\n")
        wanted = [unnumbered(f) for f in (line.split(b"\t", 2) for line in expected) if len(f) == 3]
        if found[os.fsencode(path.parent)] != wanted:
            result.append(path.parent.relative_to(tests / "cases").as_posix())
    return result[:3]


def stages(mutation, build, tests, names, env):
    """Triples of a stage's name, the targets that it needs, and its command, which may be missing."""
    group = group_of(mutation) if mutation else ""
    languages = GRAMMARS.get(group[len("grammar:"):], LANGUAGES.get(group))
    if languages and "c" not in languages:
        names = [name for name in names if name != "tokens"]
    run_cases = [sys.executable, tests / "runners/run_cases.py", "--first", "--jobs", "1",
                 "--timeout", CASE_SECONDS, "--keep", build / "failed", "--program", build / "vexltags"]
    if build.name == "plain":
        run_cases += ["--without=--thorough"]  # A plain build has no tokens to change.
    made = {
        "tokens": (["main_tokens"], [sys.executable, tests / "runners/run_tokens.py",
                                     build / "main_tokens"]),
        "unit": (["vexltags_tests"], [build / "vexltags_tests", "--gtest_brief=1"]),
        "differential": (["recognizer_probe", "recognizer_probe_plain"],
                         [sys.executable, tests / "runners/differential.py", "--fast",
                          build / "recognizer_probe", "--plain", build / "recognizer_probe_plain"]),
    }
    # The cases of editors and shells take long and see less than the others.
    for topic in ("append", "arguments", "input", "list", "output", "path", "portable"):
        made[f"cli/{topic}"] = (["vexltags", "vexltags-portable"],
                                [*run_cases, "--kind", "cli", "--filter", f"cli/{topic}/"])
    chosen = languages or sum(GRAMMARS.values(), [])
    # Asked for only once the program is built.
    yield "cases", ["vexltags"], None
    for name in suspects(build / "vexltags", build, tests, chosen, env):
        yield "cases", [], [*run_cases, "--kind", "cases", "--filter", name]
    for name in ("tokens", "unit"):
        if name in names:
            yield name, *made.pop(name)
    for language in chosen:
        yield "cases", [], [*run_cases, "--kind", "cases", "--language", language]
    for name in [n for n in made if n.split("/")[0] in names]:
        yield name, *made[name]


class Runner:
    def __init__(self, options):
        self.options = options
        self.work = pathlib.Path(options.work).resolve()
        self.tests = self.work / "rebuilt/source/tests"
        self.fast_is_checked = False

    def run_stages(self, tree, name, mutation, names, settings, env):
        """The verdict, the stage and the detail of one mutant, built in tree/name."""
        built = set()
        for stage, targets, command in stages(mutation, tree.folder / name, self.tests,
                                             names, env):
            if not built.issuperset(targets):
                done, log = tree.build(name, targets, **settings)
                if not done:
                    error = re.search(r"^.*\berror\b.*$", log, re.MULTILINE | re.IGNORECASE)
                    return "does not build", stage, error.group()[:160] if error else log[-160:]
                built.update(targets)
            why = failure_of(command, env, tree.folder,
                             STAGE_SECONDS.get(stage, OTHER_STAGE_SECONDS)) if command else ""
            if why:
                return "killed", stage, why
        return "survived", "", ""

    def judge_rebuilt(self, tree, mutation):
        """A mutation of a grammar: the plain recognisers first, which build in half the time."""
        original = text_of(mutation.file)
        tree.write(mutation.file, mutation.apply(original).encode())
        try:
            result = self.stages_of_build(tree, "plain", mutation)
            if result[0] != "survived":
                return result
        finally:
            tree.write(mutation.file, original.encode())
        if not self.fast_is_checked:
            self.fast_is_checked = True
            self.check_unchanged(self.stages_of_build(tree, "fast", None))
        tree.write(mutation.file, mutation.apply(original).encode())
        try:
            return self.stages_of_build(tree, "fast", mutation)
        finally:
            tree.write(mutation.file, original.encode())

    def stages_of_build(self, tree, name, mutation):
        names, settings = (["cases"], {"VEXLTAGS_PLAIN": "ON"}) if name == "plain" else (STAGES, {})
        return self.run_stages(tree, name, mutation, names, settings, environment())

    def prepare_switched(self, tree, mutations):
        """Builds the program with all the mutations in it. Gives a number for each that compiles."""
        # A number follows from the identity alone, so that a resumed run compiles nothing again.
        numbers = {mutation.ident: int(mutation.ident, 16) % 2**31 for mutation in mutations}
        header = tree.folder / "switch.h"
        header.parent.mkdir(parents=True, exist_ok=True)
        header.write_text(cxx_mutations.SWITCH)
        while True:
            for file in sorted({mutation.file for mutation in mutations}):
                text = text_of(file)
                tree.write(file, cxx_mutations.switched(file, text, numbers).encode())
            targets = ["vexltags", "vexltags-portable", "main_tokens", "vexltags_tests",
                       "recognizer_probe", "recognizer_probe_plain"]
            done, log = tree.build("fast", ["-k", "0", *targets], CMAKE_CXX_FLAGS=f"-include {header}")
            if done:
                return numbers
            # Lines keep their numbers in the switched text, so an error names its mutations.
            bad = {(name, int(line)) for name, line in
                   re.findall(r"source/(src/[^:\s]+):(\d+):\d+: error", log)}
            dropped = [m for m in mutations if (m.file, m.line) in bad and m.ident in numbers]
            if not dropped:
                sys.exit(f"the switched build fails:\n{log[-3000:]}")
            for mutation in dropped:
                del numbers[mutation.ident]

    def judge_switched(self, tree, mutation, number):
        if number is None:
            return "does not build", "", "the compiler has no mutation here"
        env = environment(VEXLTAGS_MUTANT=str(number))
        return self.run_stages(tree, "fast", mutation, STAGES, {}, env)

    def check_unchanged(self, result):
        verdict, stage, detail = result
        if verdict != "survived":
            sys.exit(f"the unchanged sources fail: {stage}: {detail}")

    def run(self, mutations, done, record):
        """Judges the mutations that are not in `done`."""
        version = output_of("git", "describe", "--always", "--dirty").strip()
        rebuilt = [m for m in mutations if m.file.endswith(".g")]
        switched = [m for m in mutations if not m.file.endswith(".g")]
        if all(m.ident in done for m in rebuilt):
            rebuilt = []
        if all(m.ident in done for m in switched):
            switched = []
        # The tests of the unswitched copy serve both.
        trees = {kind: Tree(self.work / kind) for kind in ("rebuilt", "switched")}
        trees["rebuilt"].update()
        if switched:
            tree = trees["switched"]
            tree.update()
            numbers = self.prepare_switched(tree, switched)
            self.check_unchanged(self.judge_switched(tree, None, -2))
            for mutation in (m for m in switched if m.ident not in done):
                self.one(mutation, record, version, lambda mutation: self.judge_switched(
                    tree, mutation, numbers.get(mutation.ident)))
        if rebuilt:
            tree = trees["rebuilt"]
            self.check_unchanged(self.stages_of_build(tree, "plain", None))
            for mutation in (m for m in rebuilt if m.ident not in done):
                self.one(mutation, record, version,
                         lambda mutation: self.judge_rebuilt(tree, mutation))

    def one(self, mutation, record, version, judge):
        start = time.monotonic()
        verdict, stage, detail = judge(mutation)
        # No path of this machine in what is kept.
        detail = re.sub(r"\S*" + re.escape(str(self.work)) + r"\S*", "…", detail)
        record({
            "id": mutation.ident, "file": mutation.file, "line": mutation.line,
            "operator": mutation.operator, "before": mutation.before, "after": mutation.after,
            "verdict": verdict, "stage": stage, "detail": detail, "version": version,
            "seconds": round(time.monotonic() - start, 1)})


def read_results(path):
    """The results by identity; of several for one mutation the last."""
    results = {}
    if path.exists():
        for line in path.read_text(encoding="utf-8").splitlines():
            result = json.loads(line)
            results[result["id"]] = result
    explained = equivalents()
    for result in results.values():
        reason = explained.get(result["id"], explained.get(f"operator:{result['operator']}"))
        if result["verdict"] == "survived" and reason:
            result["verdict"], result["detail"] = "equivalent", reason
    return results


def one_line(text):
    return "`" + re.sub(r"\s+", " ", text).replace("|", "\\|")[:90] + "`" if text else "nothing"


def report(results):
    """The results as Markdown: a table by group, then the survivors."""
    verdicts = ["killed", "survived", "equivalent", "does not build"]
    counts = collections.defaultdict(collections.Counter)
    for result in results.values():
        path = pathlib.PurePosixPath(result["file"])
        group = f"grammar:{path.stem}" if path.suffix == ".g" else str(path.parent)
        counts[group][result["verdict"]] += 1
        counts["all"][result["verdict"]] += 1
    print("| Group | " + " | ".join(verdicts) + " | caught |\n|---|" + "---|" * (len(verdicts) + 1))
    for group in sorted(counts, key=lambda name: (name == "all", name)):
        row = counts[group]
        real = row["killed"] + row["survived"]
        share = f"{100 * row['killed'] / real:.1f} %" if real else ""
        print(f"| {group} | " + " | ".join(str(row[v]) for v in verdicts) + f" | {share} |")
    for verdict in ("survived", "equivalent"):
        listed = [result for result in results.values() if result["verdict"] == verdict]
        print(f"\n{verdict.capitalize()}: {len(listed)}\n")
        for result in sorted(listed, key=lambda r: (r["file"], r["line"])):
            print(f"- `{result['id']}` {result['file']}:{result['line']} {result['operator']}: "
                  f"{one_line(result['before'])} becomes {one_line(result['after'])}"
                  + (f". {result['detail']}" if result["detail"] else ""))


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--only", action="append",
                        help="grammar:NAME, a folder or a file; may be repeated")
    parser.add_argument("--id", action="append", help="this mutation alone; may be repeated")
    parser.add_argument("--operator", action="append", help="mutations of this kind alone")
    parser.add_argument("--sample", type=int, help="this many, chosen by --seed")
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--results", type=pathlib.Path, default=ROOT / HERE / "results/sample.jsonl")
    parser.add_argument("--work", default=ROOT / "build/mutants", help="where the copies are built")
    parser.add_argument("--list", action="store_true", help="print the mutations and run nothing")
    parser.add_argument("--again", action="store_true", help="run the survivors of the file again")
    parser.add_argument("--report", action="store_true", help="print the results and run nothing")
    options = parser.parse_args()

    results = read_results(options.results)
    if options.report:
        report(results)
        return 0
    if options.again:
        chosen = [m for m in all_mutations()
                  if results.get(m.ident, {}).get("verdict") == "survived"]
    else:
        chosen = selected(options)
    if options.list:
        for m in chosen:
            print(f"{m.ident} {m.file}:{m.line} {m.operator} {one_line(m.before)} {one_line(m.after)}")
        print(f"{len(chosen)} mutations", file=sys.stderr)
        return 0
    known = set() if options.again else set(results)
    left = sum(m.ident not in known for m in chosen)
    done = collections.Counter()

    def record(result):
        with open(options.results, "a", encoding="utf-8") as file:
            file.write(json.dumps(result, sort_keys=True) + "\n")
        done[result["verdict"]] += 1
        print(f"{sum(done.values())}/{left} {result['verdict']} {result['file']}:"
              f"{result['line']} {result['operator']} {result['stage']} {result['detail'][:80]}",
              flush=True)

    options.results.parent.mkdir(parents=True, exist_ok=True)
    Runner(options).run(chosen, known, record)
    print(", ".join(f"{count} {verdict}" for verdict, count in done.items()))
    return 0


if __name__ == "__main__":
    sys.exit(main())
