#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Draws a saved result as a bar chart: how much of what compilers declare each indexer finds.

  chart.py bench/results/recall-NAME.json OUT.svg
"""
import html
import json
import sys

LEFT, BARS, RIGHT = 210, 380, 150
BAR, GAP, TOP = 12, 10, 84
COLOURS = ("ctags", "plain", "thorough")
STYLE = """  <style>
    text { font: 13px system-ui, sans-serif; fill: #24292f }
    .title { font-size: 15px; font-weight: 600 } .small { font-size: 10px; fill: #6e7781 }
    .ctags { fill: #a8b1ba } .plain { fill: #9ec5f0 } .thorough { fill: #2f6fb3 }
    .grid { stroke: #d0d7de; stroke-width: 1 }
    @media (prefers-color-scheme: dark) {
      text { fill: #e6edf3 } .small { fill: #9198a1 } .grid { stroke: #3d444d }
      .ctags { fill: #6e7681 } .plain { fill: #1f4a7a } .thorough { fill: #58a6ff }
    }
  </style>"""


def percent(value):
    return "–" if value is None else "%.1f" % value


def svg(data):
    titles, rows = data["variants"], data["rows"]
    step = len(titles) * BAR + GAP
    bottom = TOP + step * len(rows)
    width, height = LEFT + BARS + RIGHT, bottom + 36
    out = ['<svg xmlns="http://www.w3.org/2000/svg" width="%d" height="%d" viewBox="0 0 %d %d" '
           'role="img" aria-label="Declarations found, in per cent">' %
           (width, height, width, height), STYLE,
           '  <text class="title" x="12" y="24">Declarations found, in per cent of what compilers '
           'declare</text>',
           '  <text class="small" x="12" y="41">Numbers: declarations found / tags that are right'
           '</text>']
    x = 12
    for title, colour in zip(titles, COLOURS):
        out.append('  <rect class="%s" x="%d" y="52" width="12" height="12" rx="2"/>' % (colour, x))
        out.append('  <text x="%d" y="62">%s</text>' % (x + 18, html.escape(title)))
        x += 40 + 8 * len(title)
    for mark in range(0, 101, 20):
        at = LEFT + BARS * mark / 100
        out.append('  <line class="grid" x1="%.1f" y1="%d" x2="%.1f" y2="%d"/>' %
                   (at, TOP - 4, at, bottom))
        out.append('  <text class="small" x="%.1f" y="%d" text-anchor="middle">%d</text>' %
                   (at, bottom + 12, mark))
    for index, row in enumerate(rows):
        y = TOP + step * index
        out.append('  <text x="%d" y="%d" text-anchor="end">%s</text>' %
                   (LEFT - 10, y + len(titles) * BAR / 2 + 4, html.escape(row["title"])))
        for place, (title, colour) in enumerate(zip(titles, COLOURS)):
            score = row["scores"].get(title)
            if score is None:
                continue
            top = y + place * BAR
            out.append('  <rect class="%s" x="%d" y="%d" width="%.1f" height="%d" rx="1"/>' %
                       (colour, LEFT, top, BARS * (score["recall"] or 0) / 100, BAR - 1))
            out.append('  <text class="small" x="%d" y="%d">%s / %s</text>' %
                       (LEFT + BARS + 12, top + BAR - 1, percent(score["recall"]),
                        percent(score["precision"])))
    out.append('  <text class="small" x="12" y="%d">%s</text>' % (height - 6, html.escape(
        " · ".join(data["about"].values()))))
    return "\n".join(out + ["</svg>", ""])


def write(data, path):
    with open(path, "w", encoding="utf-8") as file:
        file.write(svg(data))


if __name__ == "__main__":
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    with open(sys.argv[1], encoding="utf-8") as source:
        write(json.load(source), sys.argv[2])
