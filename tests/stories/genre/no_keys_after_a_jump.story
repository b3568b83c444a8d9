# Without keys the view begins with the record number used last.
film 1 Title="Alien" Genre="SF"
film 2 Title="Brazil" Genre="SF"
film 3 Title="Zulu" Genre="DR"
start
click mnuFile
input "Reelora Prima" "Enter File No To Search:" "2"
click mnuFindGenre
input "Search For Genre" "Enter Genre To Search:  Use 2 Letter Abbreviation \n\rAA  Action Adventure\n\rCO  "
+ "Comedy\n\rDR  Drama" "sf"
see txtTitle "Brazil"
see state KeyFilePos 1
see state RowCursor 1
