# SPDX-License-Identifier: MIT
# A path with a blank is written as it is; one that no line can hold is left out with a message.
tab=$(printf '\t')
newline='
'
for name in 'with blank' "with${tab}tab" "with${newline}newline" 'back\slash'; do
  cp a.py "$name.py"
done
"$VEXLTAGS" --tag-relative *.py | "$VEXLTAGS_PORTABLE" >tags
