# After a click on the colour alone Reset clears the direction.
film 1 Title="Film 49 1" Genre="DR"
film 2 Title="Film 49 2" Genre="DR"
film 3 Title="Film 49 3" Genre="DR"
film 4 Title="Film 49 4" Genre="DR"
film 5 Title="Film 49 5" Genre="DR"
sorted
start
click mnuFindGenre
input "Search For Genre" "Enter Genre To Search:  Use 2 Letter Abbreviation \n\rAA  Action Adventure\n\rCO  "
+ "Comedy\n\rDR  Drama" "dr"
click cmdNext
click cmdNext
click cmdPrevious
see state NavDirection 1
click txtColor1
see focus txtColor1
click mnuSave
click txtColor1
box warning "Color/B & W" "Hit edit to change." OK
see state EditMode 0
see state ClearOnShow 2
see state NavDirection 1
click cmdReset
see state NavDirection 0
