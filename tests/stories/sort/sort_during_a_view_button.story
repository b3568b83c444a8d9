# A sort by the button leaves every view.
film 1 Title="Solaris" Format="D"
film 2 Title="alien" Format="L"
film 3 Title="Ran" Format="V"
film 4 Title="Brazil" Format="V"
film 5 Title="Zelig" Format="D"
sorted
start
click mnuByTitle
see state KeyFilePos 1
click cmdSort
beep
beep
beep
beep
see state ViewKind ""
see state KeyFilePos 0
see state CurrentRecNo 1
click mnuByTitle
see txtTitle "alien"
