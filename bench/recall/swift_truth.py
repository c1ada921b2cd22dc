# SPDX-License-Identifier: MIT
"""What tree-sitter's grammar finds in Swift files. It runs in node, which reads a list of files."""
import json
import os
import re
import shutil
import subprocess

import truth

_SCRIPT = os.path.join(os.path.dirname(os.path.abspath(__file__)), "swift_truth.js")


def missing(npm):
    """What has to be installed, or None."""
    if shutil.which("node") is None:
        return "node"
    if not npm or not os.path.isdir(os.path.join(npm, "tree-sitter-swift")):
        return "the npm packages tree-sitter and tree-sitter-swift (see --npm)"
    return None


def read_all(paths, npm):
    """The truths of all files by path. Lines in which the grammar lost its way count as lines that
    no compiler saw."""
    run = subprocess.run(["node", _SCRIPT, npm], input="\n".join(paths), encoding="utf-8",
                         capture_output=True, check=True)
    truths = {}
    for line in run.stdout.splitlines():
        data = json.loads(line)
        found = truths[data["path"]] = truth.FileTruth(data["path"])
        for number, names, kind, parent, need in data["declarations"]:
            names = [re.sub(r"\s", "", name) for name in names]
            found.add(number, names, kind, [parent], truth.NEEDED if need else truth.OPTIONAL)
        found.errors = [(number, "syntax error") for number in data["errors"]]
    return truths
