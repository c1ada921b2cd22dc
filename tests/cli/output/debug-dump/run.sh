# SPDX-License-Identifier: MIT
# The debug form writes nothing for Python, and the tags file has only its header.
"$VEXLTAGS" --debugDump -f tags a.py
