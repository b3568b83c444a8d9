# Next after a search in a genre view continues with the first key and the genre asked for before.
film 1 Title="Alien" Genre="SF"
film 2 Title="Brazil" Genre="DR" Director="Aa"
film 3 Title="Casablanca" Genre="DR"
film 4 Title="Zulu" Genre="WE"
sorted
start
click mnuFindGenre
input "Search For Genre" "Enter Genre To Search:  Use 2 Letter Abbreviation \n\rAA  Action Adventure\n\rCO  "
+ "Comedy\n\rDR  Drama" "dr"
see txtTitle "Brazil"
click mnuFindDirector
input "Search For Director" "Enter Director. To Search: " "aa"
see state SearchState 1
see state KeyFilePos 0
click cmdNext
see txtTitle "Brazil"
see state KeyFilePos 2
see state SearchState 3
