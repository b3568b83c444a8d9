# The list's Back after a search has closed its file opens it again and continues from the position.
films 1 90 Title="Film ##" Format="D" Director="Aa"
films 1 30 Title="Film ##" Format="V" Director="Aa"
sorted
start
click mnualldvd
click cmdNext20
click cmdPrev20
see Text1(0) "Film 31"
see Text1(19) "Film 50"
click mnuFindDirector
input "Search For Director" "Enter Director. To Search: " "aa"
click cmdNext20
click cmdNext20
click cmdNext20
see state KeyFilePos 3
click cmdPrev20
beep
box warning "" "Top of file encountered!" OK
see Text1(19) "Film 32"
see Text1(18) "Film 31"
