# A list that continues after a search has closed its file opens that file again, whichever list's menu item
# continues with it.
films 1 30 Title="Film ##" Format="V" Director="Aa"
films 31 90 Title="Film ##" Format="D" Director="Aa"
sorted
start
click mnualldvd
click cmdNext20
see Text1(0) "Film 51"
see Text1(19) "Film 70"
click mnuFindDirector
input "Search For Director" "Enter Director. To Search: " "aa"
see state KeyFilePos 0
click cmdNext20
click cmdNext20
see state KeyFilePos 2
click mnuAllTitles
see Text1(0) "Film 32"
see Text1(19) "Film 51"
see state ViewKind "DVD"
