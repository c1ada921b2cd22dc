# SPDX-License-Identifier: MIT
# The home directory is written as a tilde unless told otherwise.
"$VEXLTAGS" a.py
"$VEXLTAGS" --cannonical-paths=no a.py | sed "s|$HOME|WHOLE|"
(cd / && HOME=/nonexistent "$VEXLTAGS" "$HOME/a.py" | sed "s|$HOME|WHOLE|")
