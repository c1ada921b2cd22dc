# SPDX-License-Identifier: MIT
# When every file fails, the output is not touched.
cp old tags
status=0
"$VEXLTAGS" -f tags missing.py gone.py || status=$?
"$VEXLTAGS" -f other missing.py || test ! -e other
exit $status
