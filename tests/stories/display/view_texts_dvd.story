# The title bar and the heading of the view of DVD.
film 1 Title="Zulu" Format="D"
film 2 Title="Alien" Format="X"
film 3 Title="Brazil" Format="V"
film 4 Title="Cabaret" Format="L"
sorted
start
click mnuByDVD
see state ViewKind "DVD"
see frmPage1 "Reelora Prima Record  1/ 4        DVD  Sorted"
see lblHead "Viewing All DVD Titles Alphabetically"
