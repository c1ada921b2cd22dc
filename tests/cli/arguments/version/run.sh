# SPDX-License-Identifier: MIT
# The version line, and that it ends the run.
for option in -v --version --version=foo -verbose; do
  "$VEXLTAGS" -f tags a.py $option --sort |
    sed 's/, [A-Z][a-z][a-z] [ 1-3][0-9] [0-9][0-9][0-9][0-9]$/, DATE/'
done
test ! -e tags
