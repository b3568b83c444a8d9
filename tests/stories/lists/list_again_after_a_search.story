# A search closes the list's key file; the list chosen again while it goes on opens it and continues from the
# position.
films 1 45 Title="Film ##" Genre="DR" Format="D" Director="Nobody"
sorted
start
click mnualldvd
click cmdNext20
click mnuFindDirector
input "Search For Director" "Enter Director. To Search: " "nobody"
see state KeyFilePos 0
see state PageMode 4
click cmdNext20
see state KeyFilePos 1
click mnualldvd
see Text1(0) "Film 01"
see Text1(19) "Film 20"
see state KeyFilePos 20
