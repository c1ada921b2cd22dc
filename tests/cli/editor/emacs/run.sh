# SPDX-License-Identifier: MIT
# Emacs does not take the file for a tags table; with the Lisp of editors/emacs.md it finds definitions.
command -v emacs >/dev/null || { echo "emacs is not installed"; exit 77; }
cp -R "$VEXLTAGS_SOURCE/tests/shared/project/." .
sed -n '/^```elisp$/,/^```$/p' "$VEXLTAGS_SOURCE/editors/emacs.md" | sed '/^```/d' >init.el
cat >try.el <<'L'
(defun show (name)
  (princ (format "%s: %s %d\n" name (file-name-nondirectory (buffer-file-name)) (line-number-at-pos))))
(condition-case problem
    (progn (visit-tags-table (expand-file-name "tags")) (find-tag "Length"))
  (error (princ (format "%s\n" (replace-regexp-in-string "/.*/" "" (cadr problem))))))
(load (expand-file-name "init.el") nil t)
(find-file "tool.py")
(setq xref-backend-functions '(vexltags-xref-backend))
(dolist (name '("Length" "kSides" "color_" "isHidden" "free" "push" "Queue"))
  (xref-find-definitions name)
  (show name))
(princ (format "%S\n" (mapcar #'xref-item-summary (vexltags-definitions "move"))))
L
"$VEXLTAGS" shape.h shape.cc view.m body.swift tool.py 'a dir/other tool.py' |
  "$VEXLTAGS_PORTABLE" >tags
emacs -Q --batch -l try.el 2>messages || cat messages
