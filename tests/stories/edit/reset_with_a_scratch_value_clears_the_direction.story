# Reset with a scratch value of a view asks nothing and clears the direction.
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
see state EditMode 6
click cmdReset
see state NavDirection 0
see state EditMode 0
