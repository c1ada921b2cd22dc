# SPDX-License-Identifier: MIT
# The whole help page, and everything that leads to it.
"$VEXLTAGS" >page
sed 's/^Built: [A-Z][a-z][a-z] [ 1-3][0-9] [0-9][0-9][0-9][0-9]$/Built: DATE/' page
for option in -h --help -hello --help=all; do
  "$VEXLTAGS" $option | cmp page -
done
