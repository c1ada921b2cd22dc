# SPDX-License-Identifier: MIT
# Directories, FIFOs, sockets and devices are refused at once and the rest is indexed; the null
# device is an empty file.
mkdir folder.py
mkfifo pipe.py
"$PYTHON" -c 'import socket; socket.socket(socket.AF_UNIX).bind("socket.py")'
ln -s missing dangling.py
ln -s loop.py loop.py
ln -s /dev/null null.py
"$VEXLTAGS" -f tags folder.py a.py pipe.py socket.py /dev/full dangling.py loop.py null.py 2>messages
sed "s|$HOME|HOME|" messages
