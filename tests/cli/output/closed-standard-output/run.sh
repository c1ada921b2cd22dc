# SPDX-License-Identifier: MIT
# A closed standard output is reported, and its descriptor is not taken for a file opened later.
status=0
"$VEXLTAGS" a.py >&- || status=$?
echo $status
"$VEXLTAGS" -f tags a.py <&- >&- 2>&-
status=0
"$VEXLTAGS" --time -f other a.py >&- || status=$?
echo $status
cmp tags other
