# In a genre view the title bar says so; the heading comes from the view itself once the film is shown.
film 1 Title="Alien" Genre="SF"
film 2 Title="Brazil" Genre="SF"
film 3 Title="Zulu" Genre="DR"
sorted
start
click mnuFindGenre
input "Search For Genre" "Enter Genre To Search:  Use 2 Letter Abbreviation \n\rAA  Action Adventure\n\rCO  "
+ "Comedy\n\rDR  Drama" "sf"
see frmPage1 "Reelora Prima Record  1/ 3      Genre Sorted"
see lblHead "Viewing Files For Science Fiction  Alphabetically"
