# Genre list: the heading has the genre's name of the film before the last row.
films 1 20 Title="Film ##" Genre="DR"
film 19 Title="Film 19" Genre="DO"
film 20 Title="Film 20" Genre="DR"
sorted
start
click mnuFindAllGenre
input "Search" "Enter Genre To Search:  Use 2 Letter Abreviation\n\rExamples\n\rAA  Action Adventure \n\rDR  "
+ "Drama\n\rCO  Comedy\n\rupper or lower case" "d"
see lblHead "Viewing All Documentary Files Alphabetically"
see Text2(18) "              Documentary"
see Text2(19) "              Drama"
