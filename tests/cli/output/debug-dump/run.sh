# SPDX-License-Identifier: MIT
# The readable form has nothing to say about Python, and the tags file keeps only its header.
"$VEXLTAGS" --debugDump -f tags a.py
