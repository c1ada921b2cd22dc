# SPDX-License-Identifier: MIT
# A file with an error whose last tag is more than 20 lines above its end is reported.
# A class without a name is an error; the comments below it bring the file to 21 and 22 lines.
{ echo 'def f(): pass'; echo 'class'; } >head
{ cat head; for i in 1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18; do echo '#'; done; } >near.py
{ cat near.py; echo '#'; } >far.py
{ for i in 1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18 19; do echo '#'; done; } >plain.py
{ echo class; cat plain.py; } >untagged.py
"$VEXLTAGS" -f tags near.py far.py plain.py untagged.py
"$VEXLTAGS" --checkForFilesWithAbortedParse --tag-relative near.py far.py plain.py untagged.py
"$VEXLTAGS" --checkForFilesWithAbortedParse=no -f other far.py
