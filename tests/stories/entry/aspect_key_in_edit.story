# A character typed into the aspect in Edit is dropped, and Save gets the focus.
film 1 Title="49th Parallel, The" Format="V" Genre="WE"
film 2 Title="Area 49" Format="D" Genre="DR"
sorted
start
click mnuByDVD
see state EditMode 6
click txtLetter
click mnuByTitle
see focus txtLetter
type "x"
see focus cmdSave
see txtLetter ""
