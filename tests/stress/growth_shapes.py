# SPDX-License-Identifier: MIT
"""Shapes of input that grow: each returns a function from a size to a text."""


def nested(opening, closing, core="1", head="", tail=";"):
    return lambda n: head + opening * n + core + closing * n + tail + "\n"


def repeated(piece, head="", tail="\n"):
    return lambda n: head + piece * n + tail


def numbered(piece, head="", tail="\n"):
    """`piece` with each {i} replaced by its number."""
    return lambda n: head + "".join(piece.replace("{i}", str(i)) for i in range(n)) + tail
