# SPDX-License-Identifier: MIT
# The plug-in taglist in the real Vim, with vexltags-ctags as its ctags: what its window lists.
. "$VEXLTAGS_SOURCE/tests/shared/ctags.sh"
plugin=/usr/share/vim-scripts/taglist/plugin/taglist.vim
command -v vim >/dev/null || { echo "vim is not installed"; exit 77; }
[ -e $plugin ] || { echo "taglist (vim-scripts) is not installed"; exit 77; }
cat >vimrc <<EOF
let g:Tlist_Ctags_Cmd = '$ctags'
let g:tlist_objc_settings =
  \ 'objc;i:interface;I:implementation;P:protocol;m:method;c:class method;p:property'
let g:tlist_swift_settings = 'swift;c:class;s:struct;Y:protocol;Z:extension;f:function'
filetype on
source $plugin
EOF
list() {
  rm -f window
  vim -N -i NONE -n -es -u vimrc -c "edit $1" -c "set filetype=$2" -c TlistOpen \
    -c 'call writefile(getline(3, "$"), "window")' -c 'qa!' >messages 2>&1 </dev/null || true
  sed 's| (.*||' window
}
list shape.h cpp
list view.m objc
list tool.py python
list body.swift swift
