# SPDX-License-Identifier: MIT
# Completion of vexltags and vexltags-portable for fish.

# Where the program wants `=value`, a blank in front of the value would be an error: the choices are
# whole words here, which are offered once a hyphen has been typed, without files beside them.
set -l option 'string match -q -- "-*" (commandline -ct)'
complete -c vexltags -f -n 'string match -q -- "--*=*" (commandline -ct)'
complete -c vexltags -s h -l help -d 'Show help'
complete -c vexltags -s v -l version -d 'Show version'
complete -c vexltags -l dumpErrors -d 'Print parsing errors to standard error'
complete -c vexltags -l debugDump -d 'Output in verbose debug format'
complete -c vexltags -l debugDumpFilenames -d 'Print indexed file names to standard error'
complete -c vexltags -l debugDumpFilesWithHugeOutput -d 'Name files with very many declarations'
complete -c vexltags -l time -d 'Print the time that each file takes'
complete -c vexltags -n $option -a '--tag-relative --tag-relative=yes --tag-relative=no' -d 'Paths relative to the working directory'
complete -c vexltags -n $option -a '--cannonical-paths --cannonical-paths=yes --cannonical-paths=no' -d 'Use ~ for the home directory'
complete -c vexltags -n $option -a '--checkForFilesWithAbortedParse --checkForFilesWithAbortedParse=yes --checkForFilesWithAbortedParse=no' -d 'Report files whose tags stop early'
complete -c vexltags -n $option -a '--reportIfLonger=' -d 'Report files that take longer, in seconds'
complete -c vexltags -n $option -a '--abortIfLonger=' -d 'Give up on files that take longer, in seconds'
complete -c vexltags -n $option -a '--sort=yes --sort=no --sort=foldcase' -d 'Order of the tags'
complete -c vexltags -n $option -a '--append --append=yes --append=no' -d 'Add to the entries of the output file'
complete -c vexltags -x -s I -l filterToken -d 'Tokens to ignore, separated by commas'
complete -c vexltags -r -F -s L -d 'Read the input paths from a file, - for standard input'
complete -c vexltags -r -F -s f -d 'Write to a file, - for standard output'
complete -c vexltags -l exclude -d 'Ignored with a message'
complete -c vexltags -l c-kinds -d 'Ignored'
complete -c vexltags -l excmd=number -d 'Ignored'
complete -c vexltags -l language-force -d 'Ignored'

complete -c vexltags-portable -s i -l in-place -d 'Rewrite the files themselves'
complete -c vexltags-portable -s h -l help -d 'Show help'
complete -c vexltags-portable -s v -l version -d 'Show version'
