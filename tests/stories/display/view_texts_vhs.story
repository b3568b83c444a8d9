# The title bar and the heading of the view of VHS.
film 1 Title="Zulu" Format="D"
film 2 Title="Alien" Format="X"
film 3 Title="Brazil" Format="V"
film 4 Title="Cabaret" Format="L"
sorted
start
click mnuByVHS
see state ViewKind "VHS"
see frmPage1 "Reelora Prima Record  3/ 4        VHS  Sorted"
see lblHead "Viewing All VHS Titles Alphabetically"
