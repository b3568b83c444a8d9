# Without a sort there is no key and no record number either, which stops the program.
film 1 Title="Alien" Genre="SF"
start
click mnuFindGenre
input "Search For Genre" "Enter Genre To Search:  Use 2 Letter Abbreviation \n\rAA  Action Adventure\n\rCO  "
+ "Comedy\n\rDR  Drama" "sf"
stop "Bad record number"
