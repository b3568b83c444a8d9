# The list's Back straight after a search asks for the key before the first, which stops the program.
films 1 25 Title="Film ##" Director="Aa"
sorted
start
click mnuAllTitles
click mnuFindDirector
input "Search For Director" "Enter Director. To Search: " "aa"
click cmdPrev20
stop "Bad record number"
