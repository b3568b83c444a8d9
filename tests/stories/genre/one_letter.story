# One letter hits every code that contains it, in the second place, too; it has no words.
film 1 Title="Alien" Genre="CO"
film 2 Title="Brazil" Genre="DO"
film 3 Title="Casablanca" Genre="DR"
film 4 Title="Dune" Genre="FO"
film 5 Title="Zulu" Genre="WE"
sorted
start
click mnuFindGenre
input "Search For Genre" "Enter Genre To Search:  Use 2 Letter Abbreviation \n\rAA  Action Adventure\n\rCO  "
+ "Comedy\n\rDR  Drama" "o"
see txtTitle "Alien"
see state MatchPos 2
see lblHead "Viewing Files For   Alphabetically"
click cmdNext
see txtTitle "Brazil"
click cmdNext
see txtTitle "Dune"
