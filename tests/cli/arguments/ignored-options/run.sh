# SPDX-License-Identifier: MIT
# Four options are accepted and do nothing; none takes a value.
"$VEXLTAGS" --exclude a.py --c-kinds=+p b.py --excmd=number --language-force c.py -f tags
"$VEXLTAGS" --language-force C a.py -f other
cat other
