# New is refused during a search, in silence, until the reset.
film 1 Title="Film 1" Director="Aa"
start
click mnuFindDirector
input "Search For Director" "Enter Director. To Search: " "aa"
click cmdNew
see state NewMode 0
click cmdReset
click cmdNew
see state NewMode 1
