# SPDX-License-Identifier: MIT
# Options alone leave nothing to index; no path is named.
status=0
"$VEXLTAGS" --sort=yes --debugDumpFilenames -f tags || status=$?
test ! -e tags
exit $status
