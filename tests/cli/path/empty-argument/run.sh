# SPDX-License-Identifier: MIT
# An empty argument is an input path that cannot be indexed; the others still are.
"$VEXLTAGS" '' a.py -f tags
"$VEXLTAGS" ''
