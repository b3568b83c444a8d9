# In a genre view New does nothing and says nothing.
film 1 Title="Film 1" Genre="DR"
film 2 Title="Film 2" Genre="DR"
film 3 Title="Film 3" Genre="DR"
sorted
start
click mnuFindGenre
input "Search For Genre" "Enter Genre To Search:  Use 2 Letter Abbreviation \n\rAA  Action Adventure\n\rCO  "
+ "Comedy\n\rDR  Drama" "dr"
see state SearchState 3
click cmdNew
see state NewMode 0
see state RecordCount 3
see txtTitle "Film 1"
