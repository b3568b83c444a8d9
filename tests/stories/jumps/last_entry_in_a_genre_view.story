# Find Last Entry in a genre view leaves the view as it is.
films 1 4 Title="Film #" Genre="SF"
sorted
file Last "4\r\n"
start
click mnuFindGenre
input "Search For Genre" "Enter Genre To Search:  Use 2 Letter Abbreviation \n\rAA  Action Adventure\n\rCO  "
+ "Comedy\n\rDR  Drama" "sf"
click mnuLastEntry
see txtTitle "Film 4"
see lblHead "Viewing All  Files Alphabetically"
click cmdNext
see txtTitle "Film 2"
