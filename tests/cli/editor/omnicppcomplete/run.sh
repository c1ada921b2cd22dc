# SPDX-License-Identifier: MIT
# The plug-in OmniCppComplete in the real Vim: the members that it offers after a dot, which it takes
# from scopes, access and signatures of the tags file.
. "$VEXLTAGS_SOURCE/tests/shared/ctags.sh"
plugin=/usr/share/vim-scripts/omnicppcomplete
command -v vim >/dev/null || { echo "vim is not installed"; exit 77; }
[ -d $plugin ] || { echo "omnicppcomplete (vim-scripts) is not installed"; exit 77; }
printf '#include "shape.h"\nint main() {\n  geo::Shape shape;\n  shape.\n}\n' >use.cc
"$ctags" -R --c++-kinds=+p --fields=+iaS --extra=+q .
cat >vimrc <<EOF
set nocompatible virtualedit=all tags=./tags omnifunc=omni#cpp#complete#Main
set runtimepath^=$plugin
edit use.cc
call omni#cpp#complete#Init()
call cursor(4, 9)
let start = omni#cpp#complete#Main(1, '')
let offered = omni#cpp#complete#Main(0, '')
call writefile([start] + map(offered, 'v:val.word . " " . v:val.kind . " " . v:val.menu'), 'offered')
EOF
vim -N -i NONE -n -es -u NONE -S vimrc -c 'qa!' >messages 2>&1 </dev/null || true
cat offered
