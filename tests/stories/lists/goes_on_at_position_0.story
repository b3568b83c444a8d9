# A list that is gone on with straight after a search asks for the key before the first, which stops the program.
films 1 45 Title="Film ##" Director="Aa"
sorted
start
click mnuAllTitles
click cmdNext20
click mnuFindDirector
input "Search For Director" "Enter Director. To Search: " "aa"
click mnuAllTitles
stop "Bad record number"
