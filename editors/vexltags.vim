" SPDX-License-Identifier: MIT
" Set-up of Vim and Neovim for tags files written by vexltags.
" Look for `tags` in the directory of the source and its parents, then in the working directory.
set tags=./tags;,tags
" Jump to names that begin with the word under the cursor: Swift's move(to:), Objective-C's move:.
nnoremap <Leader>] :execute 'tjump /^' . expand('<cword>') . '\>'<CR>
