# Find Last Record in Edit has Back again and leaves the edit on.
films 1 3 Title="Film #"
start
click cmdEdit
see cmdPrevious.Enabled no
click mnuLast
see cmdPrevious.Enabled yes
see cmdNext.Enabled no
see state EditMode 1
see txtTitle "Film 3"
