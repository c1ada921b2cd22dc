# SPDX-License-Identifier: MIT
"""What Python's own parser finds in a file: classes and functions, at any depth."""
import ast
import warnings

import truth


def read(path):
    """The truth of one file. A file that does not parse has an error."""
    found = truth.FileTruth(path)
    with open(path, "rb") as file:
        source = file.read()
    try:
        with warnings.catch_warnings():
            warnings.simplefilter("ignore")
            tree = ast.parse(source, path)
    except (SyntaxError, ValueError, RecursionError) as error:
        found.errors.append((getattr(error, "lineno", 0) or 0, str(error)))
        return found
    pending = [(tree, "")]
    while pending:
        node, scope = pending.pop()
        for child in ast.iter_child_nodes(node):
            if isinstance(child, (ast.ClassDef, ast.FunctionDef, ast.AsyncFunctionDef)):
                kind = "class" if isinstance(child, ast.ClassDef) else "function"
                found.add(child.lineno, [child.name], kind, [scope], truth.NEEDED)
                pending.append((child, child.name))
            else:
                pending.append((child, scope))
    return found
