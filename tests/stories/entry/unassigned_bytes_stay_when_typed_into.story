# Bytes without a character in the code page and control bytes stay in a field that is typed into.
film 1 Title="Fran\x90ois" Director="A\x09B\x01\x81\x8d\x8f\x9dC" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdEdit
click txtTitle
type " II"
see txtTitle "Fran\x90ois II"
click txtDirector
type "!"
click cmdSave
see film 1 Title "Fran\x90ois II"
see film 1 Director "A\x09B\x01\x81\x8d\x8f\x9dC!"
