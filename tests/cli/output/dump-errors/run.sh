# SPDX-License-Identifier: MIT
# Parse errors are silent unless asked for, and change no tag and no status.
"$VEXLTAGS" -f tags bad.py
"$VEXLTAGS" --dumpErrors -f other bad.py 2>messages
test -s messages
cmp tags other
"$VEXLTAGS" --dumpErrors -f other good.py
