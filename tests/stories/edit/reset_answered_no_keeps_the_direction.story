# Reset answered No leaves the direction of the last step.
film 1 Title="Film 1" Genre="DR"
film 2 Title="Film 2" Genre="DR"
film 3 Title="Film 3" Genre="DR"
film 4 Title="Film 4" Genre="DR"
film 5 Title="Film 5" Genre="DR"
sorted
start
click mnuFindGenre
input "Search For Genre" "Enter Genre To Search:  Use 2 Letter Abbreviation \n\rAA  Action Adventure\n\rCO  "
+ "Comedy\n\rDR  Drama" "dr"
click cmdNext
click cmdNext
click cmdPrevious
see state NavDirection 1
click cmdEdit
click cmdReset
box question "Reelora Prima" "You have not saved your work.  To save it now hit Yes." No
see state NavDirection 1
