# After a jump in a search Back does nothing until the reset.
films 1 5 Title="Film #" Director="Aa"
start
click mnuFindDirector
input "Search For Director" "Enter Director. To Search: " "aa"
click mnuFile
input "Reelora Prima" "Enter File No To Search:" "4"
click cmdPrevious
see state CurrentRecNo 4
click cmdReset
click cmdNext
click cmdPrevious
see state CurrentRecNo 1
