# SPDX-License-Identifier: MIT
# An unreadable list does not take the paths before it away.
"$VEXLTAGS" a.py -L missing -f tags
