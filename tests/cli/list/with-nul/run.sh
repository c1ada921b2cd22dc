# SPDX-License-Identifier: MIT
# NUL bytes and newlines both end a path, in any mix; a blank ends none.
cp c.py 'c d.py'
printf 'b.py\0a.py\n\0c d.py\n\n' | "$VEXLTAGS" --sort=no -f tags -L -
