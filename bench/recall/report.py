# SPDX-License-Identifier: MIT
"""Tables and lists of what was measured."""
import collections
import datetime
import json
import os
import re
import subprocess

import chart


class Row:
    """The results of one corpus, by title of the variant."""

    def __init__(self, corpus, paths, truths):
        self.corpus, self.files = corpus, len(paths)
        self.clean = sum(1 for path in paths if path in truths and truths[path].is_clean())
        self.scores, self.seconds = {}, {}

    def add(self, title, score, seconds):
        self.scores[title], self.seconds[title] = score, seconds


def percent(value):
    return "–" if value is None else "%.2f" % value


def print_row(row):
    print("%s: %d files, %d judged" % (row.corpus.title, row.files, row.clean))
    print("  %-22s %9s %9s %9s %9s %9s %9s %9s %7s" % (
        "", "recall", "precision", "scopes", "needed", "lost", "wrong", "unknown", "seconds"))
    for title, score in row.scores.items():
        print("  %-22s %9s %9s %9s %9d %9d %9d %9d %7.2f" % (
            title, percent(score.recall()), percent(score.precision()), percent(score.scope()),
            score.needed, score.needed - score.found, score.wrong, score.unknown,
            row.seconds[title]))


class _Lines:
    """The lines of source files."""

    def __init__(self):
        self._path, self._lines = None, []

    def get(self, path, line):
        if path != self._path:
            with open(path, encoding="utf-8", errors="replace", newline="\n") as file:
                self._lines = file.read().split("\n")
            self._path = path
        return " ".join(self._lines[line - 1].split()) if line <= len(self._lines) else ""


def print_group(title, entries, limit):
    """Entries grouped by the text of their line, in which the name is replaced: lines of the same
    form are likely to have the same cause."""
    lines, groups = _Lines(), collections.defaultdict(list)
    for path, line, name, kind in entries:
        text = lines.get(path, line)
        word = re.split(r"[ (<:]", name)[0]
        form = re.sub(r"\b%s\b" % re.escape(word), "@", text) if word else text
        groups[re.sub(r"\d+", "0", form)].append((path, line, name, kind, text))
    print("%s: %d in %d groups" % (title, len(entries), len(groups)))
    for members in sorted(groups.values(), key=lambda group: -len(group))[:limit]:
        path, line, name, kind, text = members[0]
        print("%6d  %s" % (len(members), text[:150]))
        print("        %s:%d  %s (%s)" % (path, line, name, kind))


def print_misses(score, truths, limit):
    """First the runs of declarations that were lost one after the other, since one cause costs all
    that come after it; then all that was lost, by the text of the line."""
    lost = {}
    for path, line, name, _ in score.misses:
        lost.setdefault(path, set()).add((line, name))
    runs = []
    for path, gone in lost.items():
        run, before = [], 0
        for key in sorted(k for k, v in truths[path].declarations.items() if v[0] == 2):
            if key in gone:
                run.append(key)
                continue
            if run:
                runs.append((len(run), path, before, run[0], run[-1]))
            run, before = [], key[0]
        if run:
            runs.append((len(run), path, before, run[0], run[-1]))
    runs.sort(reverse=True)
    lines = _Lines()
    print("runs of lost declarations: %d; the longest:" % len(runs))
    for count, path, before, first, last in runs[:limit]:
        print("%6d  %s:%d-%d  after line %d: %s" % (count, path, first[0], last[0], before,
                                                    first[1]))
        print("        %s" % lines.get(path, first[0])[:150])
    print_group("lost", score.misses, limit)


def print_errors(truths, limit):
    """Why files are not judged."""
    count = collections.Counter()
    example = {}
    for path, found in truths.items():
        for line, text in found.errors:
            form = re.sub(r"'[^']*'", "'…'", text)
            count[form] += 1
            example.setdefault(form, "%s:%d %s" % (path, line, text))
    for form, number in count.most_common(limit):
        print("%6d  %s" % (number, example[form]))


def _first_line(*command):
    try:
        run = subprocess.run(command, capture_output=True, text=True, check=False)
    except OSError:
        return ""
    return run.stdout.split("\n")[0].strip()


def save(rows, titles, name, root, programs):
    """Writes bench/results/recall-NAME.{json,md} and doc/recall.svg. `programs` are vexltags and
    ctags."""
    data = {
        "about": {
            "date": datetime.date.today().isoformat(),
            "commit": _first_line("git", "-C", root, "rev-parse", "--short", "HEAD"),
            "ctags": _first_line(programs[1], "--version").split("(")[0].split(",")[0],
        },
        "variants": titles,
        "rows": [{
            "key": row.corpus.name, "title": row.corpus.title, "package": row.corpus.package,
            "files": row.files, "judged": row.clean,
            "scores": {title: dict(score.to_json(), seconds=round(row.seconds[title], 3))
                       for title, score in row.scores.items()},
        } for row in rows],
    }
    base = os.path.join(root, "bench", "results", "recall-" + name)
    with open(base + ".json", "w", encoding="utf-8") as file:
        json.dump(data, file, indent=1, ensure_ascii=False)
        file.write("\n")
    with open(base + ".md", "w", encoding="utf-8") as file:
        file.write(_markdown(data))
    chart.write(data, os.path.join(root, "doc", "recall.svg"))


def _markdown(data):
    lines = ["# Recall: " + ", ".join(data["about"].values()), "",
             "Declarations found / tags that are right / right tags whose innermost scope is right,"
             " in", "per cent, against what compilers declare. "
             "[How it is measured](../recall/README.md).", "",
             "| corpus | files judged | declarations | " + " | ".join(data["variants"]) + " |",
             "|---|---|---|" + "---|" * len(data["variants"])]
    for row in data["rows"]:
        needed = max(score["needed"] for score in row["scores"].values())
        cells = []
        for title in data["variants"]:
            score = row["scores"].get(title)
            cells.append(" / ".join(percent(score[key]) for key in ("recall", "precision", "scope"))
                         if score else "–")
        lines.append("| %s | %d of %d | %d | %s |" % (
            row["title"], row["judged"], row["files"], needed, " | ".join(cells)))
    return "\n".join(lines) + "\n"
