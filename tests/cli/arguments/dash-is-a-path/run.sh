# SPDX-License-Identifier: MIT
# A lone dash is not standard input but a file of that name.
status=0
"$VEXLTAGS" - || status=$?
echo $status
: >-
"$VEXLTAGS" -
