# A key whose number is 0 stops a genre view with the focus on the title; the film on the screen stays.
film 1 Title="Alien" Genre="SF"
film 2 Title="Brazil" Genre="SF"
key Titlepra.Dat "Nobody" 0
key Titlepra.Dat "Alien" 1
count Titlepra 2
start
click mnuFindGenre
input "Search For Genre" "Enter Genre To Search:  Use 2 Letter Abbreviation \n\rAA  Action Adventure\n\rCO  "
+ "Comedy\n\rDR  Drama" "sf"
see focus txtTitle
see txtTitle "Alien"
see state CurrentRecNo 1
see state ScanRecNo 0
see lblHead "Viewing Files For Science Fiction Alphabetically"
