# SPDX-License-Identifier: MIT
# Without HOME each file causes a message, and its path stays whole.
here=$HOME
unset HOME
"$VEXLTAGS" a.py b.py >out
sed "s|$here|WHOLE|" out
"$VEXLTAGS" --cannonical-paths=no a.py >out
sed "s|$here|WHOLE|" out
