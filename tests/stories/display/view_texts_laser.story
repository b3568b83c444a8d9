# The title bar and the heading of the view of Laser.
film 1 Title="Zulu" Format="D"
film 2 Title="Alien" Format="X"
film 3 Title="Brazil" Format="V"
film 4 Title="Cabaret" Format="L"
sorted
start
click mnuByLaser
see state ViewKind "Laser"
see frmPage1 "Reelora Prima Record  4/ 4      Laser Sorted"
see lblHead "Viewing All Laser Titles Alphabetically"
