# A letter V left on the screen by record 49 becomes the word right before the next film of the Title view is shown,
# and passes to that film; the file keeps its own.
film 1 Title="Alien" Format="D" Genre="CO"
film 49 Title="Brazil" Format="V" Genre="SF"
film 50 Title="Zulu" Format="D" Genre="CO"
sorted
start
click mnuFindGenre
input "Search For Genre" "Enter Genre To Search:  Use 2 Letter Abbreviation \n\rAA  Action Adventure\n\rCO  "
+ "Comedy\n\rDR  Drama" "sf"
see state EditMode 46
see txtFormat "V"
click mnuByTitle
see txtTitle "Alien"
see txtFormat "VHS"
see film 1 Format "D"
