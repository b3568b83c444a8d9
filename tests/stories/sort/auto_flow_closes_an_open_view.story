# The view that is open while the last field loses the focus loses its file, and its position stays.
film 1 Title="Solaris" Format="D"
film 2 Title="alien" Format="L"
film 3 Title="Ran" Format="V"
film 4 Title="Brazil" Format="V"
film 5 Title="Zelig" Format="D"
file AutoSave "YES\r\n"
file AutoSort "YES\r\n"
start
click mnuSort
beep
beep
beep
beep
click cmdReset
click mnuByTitle
see state KeyFilePos 1
click cmdEdit
click optnoteson
click txtRatings
key Tab
beep
beep
beep
beep
see state ViewKind "DVDpra"
see state KeyFilePos 1
see state CurrentRecNo 2
see file Last " 2 \r\n"
