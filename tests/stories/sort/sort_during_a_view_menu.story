# A sort from the menu during a view closes the view's file and keeps its position; the key file of the tapes is left
# open, and the view can be opened anew.
film 1 Title="Solaris" Format="D"
film 2 Title="alien" Format="L"
film 3 Title="Ran" Format="V"
film 4 Title="Brazil" Format="V"
film 5 Title="Zelig" Format="D"
sorted
start
click mnuByTitle
see txtTitle "alien"
see state ViewKind "Title"
see state KeyFilePos 1
click mnuSort
beep
beep
beep
beep
see state ViewKind "DVDpra"
see state KeyFilePos 1
see state CurrentRecNo 2
see txtTitle "alien"
click cmdReset
click mnuByTitle
see txtTitle "alien"
see state ViewKind "Title"
