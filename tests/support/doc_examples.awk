#!/usr/bin/awk -f
# Usage: doc_examples.awk FOLDER DOCUMENT…     writes each Lisp example of the documents to a file of the folder
BEGIN { folder = ARGV[1]; ARGV[1] = "" }
/^```lisp$/ { inside = 1; file = sprintf("%s/%02d.lsp", folder, ++count); printf "; %s, line %d\n", FILENAME, FNR > file; next }
/^```$/     { inside = 0 }
inside      { print > file }
