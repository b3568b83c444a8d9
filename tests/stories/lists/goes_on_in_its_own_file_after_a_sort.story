# A sort leaves its last key file open and ViewKind changed; the list goes on in the file that it was opened on.
films 1 30 Title="Film ##" Format="V"
films 31 90 Title="Film ##" Format="D"
sorted
start
click mnuAllTitles
see Text1(19) "Film 20"
click mnuSort
beep
beep
beep
beep
see state ViewKind "DVDpra"
click cmdNext20
see Text1(0) "Film 21"
see Text1(19) "Film 40"
