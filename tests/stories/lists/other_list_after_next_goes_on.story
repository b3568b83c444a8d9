# Another list chosen after Next is no fresh one: it continues in the open key file from the last row, under the old
# kind.
films 1 60 Title="Film ##" Genre="DR" Format="D"
film 1 Title="Film 01" Genre="DR" Format="V"
sorted
start
click mnuAllTitles
click cmdNext20
see state KeyFilePos 40
click mnuAllVHS
see Text1(0) "Film 40"
see Text1(19) "Film 59"
see state ViewKind "Title"
see state PageMode 4
see state VHSCount "1"
