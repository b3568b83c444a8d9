# VHS view of an empty key file clears the direction that Back in a genre view has left.
film 1 Title="Alien" Genre="SF"
film 2 Title="Brazil" Genre="SF"
film 3 Title="Cabaret" Genre="SF"
film 4 Title="Zulu" Genre="SF"
sorted
count VHSpra 1
start
click mnuFindGenre
input "Search For Genre" "Enter Genre To Search:  Use 2 Letter Abbreviation \n\rAA  Action Adventure\n\rCO  "
+ "Comedy\n\rDR  Drama" "sf"
click cmdNext
click cmdPrevious
beep
box warning "" "Top of file encountered!" OK
see state NavDirection 1
click mnuByVHS
box none "" "There are No VHS Tapes in Library or Files need to Be Sorted" OK
see state NavDirection 0
