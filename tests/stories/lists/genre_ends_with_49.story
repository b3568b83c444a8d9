# Genre list whose last title begins with 49: EditMode is left at 1, so that the reset at its end asks about unsaved
# work.
film 1 Title="49th Parallel" Genre="DR" Format="D"
sorted
start
click mnuFindAllGenre
input "Search" "Enter Genre To Search:  Use 2 Letter Abreviation\n\rExamples\n\rAA  Action Adventure \n\rDR  "
+ "Drama\n\rCO  Comedy\n\rupper or lower case" "dr"
beep
box none "" "End of file!" OK
box question "Reelora Prima" "You have not saved your work.  To save it now hit Yes." No
see state EditMode 0
see film 1 Title "49th Parallel"
