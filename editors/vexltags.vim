" SPDX-License-Identifier: MIT
" The set-up of Vim and Neovim for tags files of vexltags.
" The file `tags` in the folder of the source or above it, or in the working directory.
set tags=./tags;,tags
" Jump to what begins with the word under the cursor: for Swift's move(to:) and Objective-C's move:.
nnoremap <Leader>] :execute 'tjump /^' . expand('<cword>') . '\>'<CR>
