# A save in a genre view shows the heading again, now with the name of the genre on the screen.
film 1 Title="Alien" Genre="SF" Format="D"
film 2 Title="Brazil" Genre="DR" Format="D"
sorted
start
click mnuFindGenre
input "Search For Genre" "Enter Genre To Search:  Use 2 Letter Abbreviation \n\rAA  Action Adventure\n\rCO  "
+ "Comedy\n\rDR  Drama" "sf"
see frmPage1 "Reelora Prima Record  1/ 2      Genre Sorted"
click cmdSave
see lblHead "Viewing All Science Fiction Files Alphabetically"
