# A title key file of one key: its film is shown.
film 1 Title="Alien" Genre="SF"
film 2 Title="Brazil" Genre="SF"
key Titlepra.Dat "Alien" 1
count Titlepra 1
start
click mnuFindGenre
input "Search For Genre" "Enter Genre To Search:  Use 2 Letter Abbreviation \n\rAA  Action Adventure\n\rCO  "
+ "Comedy\n\rDR  Drama" "sf"
see txtTitle "Alien"
see lblHead "Viewing Files For Science Fiction  Alphabetically"
