# The title list continued from position 0 after Back in a genre view reports the top.
films 1 45 Title="Film ##" Genre="CO" Format="D" Director="Nobody"
sorted
start
click mnuFindGenre
input "Search For Genre" "Enter Genre To Search:  Use 2 Letter Abbreviation \n\rAA  Action Adventure\n\rCO  "
+ "Comedy\n\rDR  Drama" "co"
click cmdNext
click cmdPrevious
beep
box warning "" "Top of file encountered!" OK
click mnuAllTitles
click cmdNext20
click mnuFindDirector
input "Search For Director" "Enter Director. To Search: " "nobody"
see state KeyFilePos 0
click mnuAllTitles
beep
box warning "" "Top of file encountered!" OK
see state CurrentRecNo 1
see cmdNew.Visible yes
see state ListState 0
