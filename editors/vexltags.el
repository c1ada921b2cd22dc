;;; vexltags.el --- Look up definitions in the nearest tags file  -*- lexical-binding: t -*-
;; SPDX-License-Identifier: MIT
(require 'xref)

(defun vexltags-definitions (name)
  "The definitions of NAME in the nearest `tags' file at or above the current directory."
  (let ((folder (locate-dominating-file default-directory "tags")) found)
    (unless folder (user-error "No tags file above %s" default-directory))
    (with-temp-buffer
      (insert-file-contents (expand-file-name "tags" folder))
      ;; The name of a Swift function includes its labels: move(to:).
      (while (re-search-forward
              (format "^%s\\((.*)\\)?\t\\([^\t\n]+\\)\t\\([0-9]+\\);\"\t\\(.*\\)$"
                      (regexp-quote name))
              nil t)
        (push (xref-make (concat name (match-string 1) "  " (match-string 4))
                         (xref-make-file-location
                          (expand-file-name (match-string 2) folder)
                          (string-to-number (match-string 3)) 0))
              found)))
    (nreverse found)))

(defun vexltags-xref-backend () 'vexltags)
(cl-defmethod xref-backend-identifier-at-point ((_ (eql 'vexltags)))
  (thing-at-point 'symbol t))
(cl-defmethod xref-backend-definitions ((_ (eql 'vexltags)) name)
  (vexltags-definitions name))
(cl-defmethod xref-backend-identifier-completion-table ((_ (eql 'vexltags))) nil)
(add-hook 'xref-backend-functions #'vexltags-xref-backend)
(provide 'vexltags)
;;; vexltags.el ends here
