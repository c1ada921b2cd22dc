# SPDX-License-Identifier: MIT
# A slow file is reported once; Python is never given up.
"$VEXLTAGS" --reportIfLonger=0.000001 --abortIfLonger=0.000001 -f tags a.py 2>messages
sed 's/[0-9][0-9]*\.[0-9][0-9][0-9][0-9]/SECONDS/' messages
"$VEXLTAGS" --reportIfLonger=1000 --abortIfLonger=1000 -f other a.py
"$VEXLTAGS" --reportIfLonger=0 --abortIfLonger=0 -f other a.py
"$VEXLTAGS" --reportIfLonger=abc -f other a.py
