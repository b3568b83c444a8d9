# Next of a list without a full page only adds 1 to the position, which stays.
films 1 45 Title="Film ##" Genre="DR" Format="D" Director="Nobody"
sorted
start
click mnuAllTitles
click mnuFindDirector
input "Search For Director" "Enter Director. To Search: " "nobody"
see state RowCursor 21
see state KeyFilePos 0
click cmdNext20
see state KeyFilePos 1
click cmdNext20
see state KeyFilePos 2
see state PageMode 0
see Text1(0) "Film 01"
