# VHS view at a title that begins with 49: EditMode is left at 1, so that the fields are open and Reset asks.
film 1 Title="49th Parallel" Director="Michael Powell" Format="V"
sorted
start
click mnuByVHS
see state EditMode 1
click txtDirector
see focus txtDirector
click cmdReset
box question "Reelora Prima" "You have not saved your work.  To save it now hit Yes." No
see state EditMode 0
