#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Measures what indexers find against what compilers declare. See README.md here.

  recall.py --program build/release/vexltags [CORPUS...]
"""
import argparse
import atexit
import concurrent.futures
import gzip
import hashlib
import json
import os
import re
import shutil
import sys
import tempfile

sys.dont_write_bytecode = True
import clang_truth
import corpora
import indexers
import measure
import python_truth
import report
import stubs
import swift_truth
import truth

HERE = os.path.dirname(os.path.abspath(__file__))
ROOT = os.path.dirname(os.path.dirname(HERE))
_BASE = ("-ferror-limit=0", "-w", "-fno-spell-checking")
_LANGUAGES = {"c++": ("-x", "c++"), "c": ("-x", "c"), "objc": ("-x", "objective-c")}

_readers = {}


def _read(key, wanted, flags, sources, path, done):
    """One file in a worker process. `sources`, if given, are the files that replace headers
    that are missing."""
    if key not in _readers:
        clang_truth.load()
        _readers.clear()
        maker = None
        if sources:
            folder = tempfile.mkdtemp()
            atexit.register(shutil.rmtree, folder, True)
            maker = stubs.Stubs(folder, sources)
        _readers[key] = clang_truth.Reader(wanted, flags, maker)
    return {p: found.to_json() for p, found in _readers[key].read(path, done).items()}


def _begin(nice):
    os.nice(nice)
    sys.setrecursionlimit(100000)


def _order(paths):
    """Those first that include most of the others: what they include need not be parsed again."""
    ends = {}
    for path in paths:
        parts = path.split("/")
        for count in range(1, 4):
            ends.setdefault("/".join(parts[-count:]), path)
    includes = {}
    for path in paths:
        with open(path, "rb") as file:
            names = re.findall(rb'^[ \t]*#[ \t]*include[ \t]*[<"]([^">]+)[">]', file.read(), re.M)
        found = set()
        for name in names:
            parts = name.decode("utf-8", "surrogateescape").split("/")
            target = ends.get("/".join(parts[-3:]))
            if target:
                found.add(target)
        includes[path] = found

    def closure(path):
        seen, stack = {path}, [path]
        while stack:
            for one in includes[stack.pop()] - seen:
                seen.add(one)
                stack.append(one)
        return len(seen)

    sizes = {path: closure(path) for path in paths}
    return sorted(paths, key=lambda path: -sizes[path])


def clang_configuration(corpus, paths, flags, npm, pool, jobs, progress):
    """The truths of one configuration by path: the clean one, or the last that was seen."""
    key = (corpus.name, flags)
    full = [*_LANGUAGES[corpus.language], *_BASE,
            *(flag.replace("{npm}", npm or "") for flag in flags)]
    sources = corpus.headers(npm) if corpus.stubs else ()
    best, clean = {}, set()
    waiting = iter(_order(paths))
    running = {}
    exhausted = False
    count = 0
    while True:
        while not exhausted and len(running) < jobs:
            path = next((p for p in waiting if p not in clean), None)
            if path is None:
                exhausted = True
                break
            running[pool.submit(_read, key, paths, full, sources, path, frozenset(clean))] = path
        if not running:
            break
        finished, _ = concurrent.futures.wait(running, return_when="FIRST_COMPLETED")
        for future in finished:
            path = running.pop(future)
            count += 1
            progress("%s %s: %d read, %d of %d clean" % (corpus.name, " ".join(flags)[:40], count,
                                                          len(clean), len(paths)))
            for name, data in future.result().items():
                found = truth.FileTruth.from_json(name, data)
                if found.is_clean():
                    if name in clean:
                        best[name].merge(found)
                    else:
                        best[name] = found
                    clean.add(name)
                elif name not in clean and (name not in best or name == path):
                    best[name] = found
    return best


def clang_truths(corpus, paths, options, progress):
    """The truth of all configurations together, by path."""
    merged = {}
    with concurrent.futures.ProcessPoolExecutor(options.jobs, initializer=_begin,
                                                initargs=(options.nice,)) as pool:
        for flags in corpus.configurations:
            seen = clang_configuration(corpus, paths, tuple(flags), options.npm, pool,
                                       options.jobs, progress)
            for path, found in seen.items():
                old = merged.get(path)
                if old is None or found.is_clean() and not old.is_clean():
                    merged[path] = found
                elif found.is_clean():
                    old.merge(found)
    return merged


def _identity(corpus, paths):
    digest = hashlib.sha256()
    digest.update(repr((truth.VERSION[corpus.language], corpus.name, corpus.configurations,
                        corpus.language)).encode())
    for path in paths:
        state = os.stat(path)
        digest.update(("%s %d %d\n" % (path, state.st_size, state.st_mtime_ns)).encode(
            "utf-8", "surrogateescape"))
    return digest.hexdigest()[:16]


def cache_of(corpus, paths, options):
    return os.path.join(options.cache, "%s-%s.json.gz" % (corpus.name, _identity(corpus, paths)))


def truths_of(corpus, paths, options, progress):
    """The truth of each file, from the cache if nothing has changed since it was made."""
    name = cache_of(corpus, paths, options)
    if os.path.exists(name) and not options.fresh:
        with gzip.open(name, "rt", encoding="utf-8") as file:
            return {path: truth.FileTruth.from_json(path, data)
                    for path, data in json.load(file).items()}
    if corpus.language == "python":
        found = {path: python_truth.read(path) for path in paths}
    elif corpus.language == "swift":
        found = swift_truth.read_all(paths, options.npm)
    else:
        found = clang_truths(corpus, paths, options, progress)
    os.makedirs(options.cache, exist_ok=True)
    with gzip.open(name + ".new", "wt", encoding="utf-8") as file:
        json.dump({path: one.to_json() for path, one in found.items()}, file)
    os.replace(name + ".new", name)
    return found


def judge(corpus, paths, truths, variant, npm):
    """(score, CPU seconds) of one variant on one corpus. Headers that belong to the sources are
    indexed with them, since they define macros, but not judged."""
    more = corpus.headers(npm) if corpus.stubs else []
    ambiguous = measure.ambiguous_macros(paths + more)
    tags, seconds, _ = variant.run(paths + more, corpus.ctags or (), corpus.language)
    score = measure.Score()
    for path in paths:
        known = truths.get(path)
        if known is None or not known.is_clean():
            continue
        with open(path, encoding="utf-8", errors="replace", newline="\n") as file:
            lines = file.read().split("\n")
        measure.judge(score, known, tags.get(path, ()), lines, ambiguous)
    return score, seconds


def missing_for(corpus, options):
    """What has to be installed to know the truth of `corpus`, or None."""
    if corpus.language == "python":
        return None
    return swift_truth.missing(options.npm) if corpus.language == "swift" else clang_truth.load()


def variants_of(options):
    found = []
    if not options.no_ctags:
        found.append(indexers.Variant("ctags", options.ctags, is_ctags=True))
    found.append(indexers.Variant("vexltags", options.program))
    for text in options.variant or ["thorough=--thorough"]:
        title, extra = text.split("=", 1)
        found.append(indexers.Variant(title, options.program, extra.split()))
    usable = []
    for variant in found:
        if variant.refuses():
            print("%s: the program refuses %s" % (variant.title, " ".join(variant.extra)),
                  file=sys.stderr)
        else:
            usable.append(variant)
    return usable


def main():
    parser = argparse.ArgumentParser(description=__doc__.split("\n")[0])
    parser.add_argument("corpus", nargs="*", help="names of corpora; all if none is given")
    parser.add_argument("--program", default=os.path.join(ROOT, "build/release/vexltags"))
    parser.add_argument("--ctags", default="ctags")
    parser.add_argument("--no-ctags", action="store_true")
    parser.add_argument("--variant", action="append", metavar="TITLE=OPTIONS",
                        help="one more run of the program, with these options")
    parser.add_argument("--misses", metavar="TITLE", help="list what this variant lost")
    parser.add_argument("--wrong", metavar="TITLE", help="list its tags that are wrong")
    parser.add_argument("--scopes", metavar="TITLE", help="list its scopes that are wrong")
    parser.add_argument("--limit", type=int, default=40, help="groups in a list (default: 40)")
    parser.add_argument("--dirty", action="store_true",
                        help="list the errors of the files that the compiler could not read")
    parser.add_argument("--list", action="store_true", help="list the corpora")
    parser.add_argument("--npm", metavar="DIR", help="the node_modules folder of npm's packages")
    parser.add_argument("--jobs", type=int, default=2)
    parser.add_argument("--nice", type=int, default=5, help="of the compiler (default: 5)")
    parser.add_argument("--fresh", action="store_true", help="do not use the cached truth")
    parser.add_argument("--save", metavar="NAME",
                        help="keep the results in bench/results/recall-NAME.*, and draw them")
    parser.add_argument("--cached", action="store_true",
                        help="leave out corpora whose truth is not in the cache")
    parser.add_argument("--verbose", action="store_true")
    parser.add_argument("--cache", default=os.path.join(
        os.environ.get("XDG_CACHE_HOME") or os.path.expanduser("~/.cache"), "vexltags-recall"))
    options = parser.parse_args()

    if options.list:
        for corpus in corpora.CORPORA:
            print("%-12s %5d files  %s" % (corpus.name, len(corpus.files(options.npm)),
                                           corpus.package))
        return 0

    def progress(text):
        if options.verbose:
            print(text, file=sys.stderr)
        elif sys.stderr.isatty():
            print("\r\033[K" + text[:100], end="", file=sys.stderr, flush=True)

    names = {corpus.name for corpus in corpora.CORPORA}
    for name in options.corpus:
        if name not in names:
            sys.exit("no such corpus: " + name)
    variants = variants_of(options)
    rows = []
    for corpus in corpora.CORPORA:
        if options.corpus and corpus.name not in options.corpus:
            continue
        paths = corpus.files(options.npm)
        if not paths:
            print("%s: not installed; %s %s brings it" % (
                corpus.name, "the npm package" if corpus.npm else "the package", corpus.package),
                file=sys.stderr)
            continue
        missing = missing_for(corpus, options)
        if missing:
            print("%s: needs %s" % (corpus.name, missing), file=sys.stderr)
            continue
        if options.cached and not os.path.exists(cache_of(corpus, paths, options)):
            continue
        truths = truths_of(corpus, paths, options, progress)
        progress("")
        row = report.Row(corpus, paths, truths)
        if options.dirty:
            report.print_errors(truths, options.limit)
        for variant in variants:
            if variant.is_ctags and corpus.ctags is None:
                continue
            score, seconds = judge(corpus, paths, truths, variant, options.npm)
            row.add(variant.title, score, seconds)
        report.print_row(row)
        for title, score in row.scores.items():
            if title == options.misses:
                report.print_misses(score, truths, options.limit)
            if title == options.wrong:
                report.print_group("wrong tags", score.wrongs, options.limit)
            if title == options.scopes:
                report.print_group("wrong scopes", score.scopes, options.limit)
        rows.append(row)
    if options.save and rows:
        report.save(rows, [variant.title for variant in variants], options.save, ROOT,
                    (options.program, options.ctags))
    return 0


if __name__ == "__main__":
    sys.exit(main())
