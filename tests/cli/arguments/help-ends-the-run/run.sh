# SPDX-License-Identifier: MIT
# Help behind good options indexes nothing, whatever stands behind it.
"$VEXLTAGS" >page
"$VEXLTAGS" --time -f tags a.py --help --sort | cmp page -
test ! -e tags
