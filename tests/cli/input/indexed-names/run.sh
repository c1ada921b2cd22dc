# SPDX-License-Identifier: MIT
# --debugDumpFilenames names the list file and each path as given, including those that fail.
printf './b.py\nmissing.py\n' >list
"$VEXLTAGS" --debugDumpFilenames a.py -L list -f tags
echo c.py | "$VEXLTAGS" --debugDumpFilenames -L - -f other
