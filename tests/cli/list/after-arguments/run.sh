# SPDX-License-Identifier: MIT
# Paths before -L come first; the last -L counts.
echo b.py >list
"$VEXLTAGS" --sort=no c.py -L nothing a.py -L list && exit 1
"$VEXLTAGS" --sort=no c.py a.py -L nothing -L list -f tags
