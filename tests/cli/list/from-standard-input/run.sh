# SPDX-License-Identifier: MIT
# `-L -` reads the list from standard input.
printf 'b.py\na.py\n' | "$VEXLTAGS" --sort=no -f tags -L -
