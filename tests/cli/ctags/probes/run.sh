# SPDX-License-Identifier: MIT
# What editors ask before they call: the version, the languages, the features and the help.
. "$VEXLTAGS_SOURCE/tests/shared/ctags.sh"
"$ctags" --version | grep -c 'Universal Ctags'
"$ctags" --version | grep -c 'Exuberant' || true
"$ctags" --list-languages
"$ctags" --list-features | grep '^json'
"$ctags" --help | grep -o '[+]interactive'
"$ctags" --list-kinds=objc
"$ctags" --list-kinds-full=c
status "$ctags" --list-kinds=cobol
"$ctags" --languages=-Python,Swift --list-languages
"$ctags" --list-maps=swift
"$ctags" --list-kinds | grep -c .
"$ctags" --list-fields | grep '^n'
"$ctags" --list-extras | grep '^q'
"$ctags" --exclude= --exclude='*.tmp' --list-excludes
