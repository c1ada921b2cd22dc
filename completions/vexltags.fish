# SPDX-License-Identifier: MIT
# Completion of vexltags and vexltags-portable for fish.

# Options of the form `--option=value` do not accept a blank before the value. So each choice is a whole
# word; it is offered, without file names, once a hyphen has been typed.
set -l option 'string match -q -- "-*" (commandline -ct)'
complete -c vexltags -f -n 'string match -q -- "--*=*" (commandline -ct)'
complete -c vexltags -s h -l help -d 'Show help'
complete -c vexltags -s v -l version -d 'Show version'
complete -c vexltags -l dumpErrors -d 'Print parse errors to standard error'
complete -c vexltags -l debugDump -d 'Print tags in verbose debug format'
complete -c vexltags -l debugDumpFilenames -d 'Print the paths of indexed files to standard error'
complete -c vexltags -l debugDumpFilesWithHugeOutput -d 'Report files with very many declarations'
complete -c vexltags -l time -d 'Print the time that each file takes'
complete -c vexltags -n $option -a '--tag-relative --tag-relative=yes --tag-relative=no' -d 'Write paths relative to the working directory'
complete -c vexltags -n $option -a '--cannonical-paths --cannonical-paths=yes --cannonical-paths=no' -d 'Write ~ for the home directory'
complete -c vexltags -n $option -a '--checkForFilesWithAbortedParse --checkForFilesWithAbortedParse=yes --checkForFilesWithAbortedParse=no' -d 'Report files whose tags end early'
complete -c vexltags -n $option -a '--reportIfLonger=' -d 'Report files that take longer, in seconds'
complete -c vexltags -n $option -a '--abortIfLonger=' -d 'Give up on files that take longer, in seconds'
complete -c vexltags -n $option -a '--sort=yes --sort=no --sort=foldcase' -d 'Sort order of the tags'
complete -c vexltags -n $option -a '--append --append=yes --append=no' -d 'Keep the entries of the output file'
complete -c vexltags -x -s I -l filterToken -d 'Comma-separated tokens to ignore'
complete -c vexltags -r -F -s L -d 'Read input paths from a file, - for standard input'
complete -c vexltags -r -F -s f -d 'Write to a file, - for standard output'
complete -c vexltags -l thorough -d 'Find more declarations than the plain rules do'
complete -c vexltags -n $option -a '--macros=' -d 'With --thorough, learn macros from a file or folder'
complete -c vexltags -n 'string match -q -- "--macros=*" (commandline -ct)' -a "--macros=(__fish_complete_path (string replace -- --macros= '' (commandline -ct)))"
complete -c vexltags -l exclude -d 'Ignored, with a message'
complete -c vexltags -l c-kinds -d 'Ignored'
complete -c vexltags -l excmd=number -d 'Ignored'
complete -c vexltags -l language-force -d 'Ignored'

complete -c vexltags-portable -s i -l in-place -d 'Rewrite the files in place'
complete -c vexltags-portable -s h -l help -d 'Show help'
complete -c vexltags-portable -s v -l version -d 'Show version'
