# SPDX-License-Identifier: MIT
# Help after valid options indexes nothing, whatever follows it.
"$VEXLTAGS" >page
"$VEXLTAGS" --time -f tags a.py --help --sort | cmp page -
test ! -e tags
