# SPDX-License-Identifier: MIT
# With options alone there is nothing to index; the message names no path.
status=0
"$VEXLTAGS" --sort=yes --debugDumpFilenames -f tags || status=$?
test ! -e tags
exit $status
