# The genre view leaves the scratch value in EditMode like the others: record 49 gives 46.
film 1 Title="Alien" Genre="DR"
film 49 Title="Brazil" Genre="SF"
film 50 Title="Zulu" Genre="SF"
sorted
start
click mnuFindGenre
input "Search For Genre" "Enter Genre To Search:  Use 2 Letter Abbreviation \n\rAA  Action Adventure\n\rCO  "
+ "Comedy\n\rDR  Drama" "sf"
see txtTitle "Brazil"
see state EditMode 46
