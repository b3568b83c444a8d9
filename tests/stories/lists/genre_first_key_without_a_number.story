# A genre list whose first key has no number stops under the heading that it opened with.
film 1 Title="Alien"
film 2 Title="Brazil"
key Titlepra.Dat "Nobody" 0
count Titlepra 1
start
click cmdNext
click mnuFindAllGenre
input "Search" "Enter Genre To Search:  Use 2 Letter Abreviation\n\rExamples\n\rAA  Action Adventure \n\rDR  "
+ "Drama\n\rCO  Comedy\n\rupper or lower case" "dr"
see lblHead "    Viewing Files For Genre"
see focus txtTitle
see state CurrentRecNo 1
