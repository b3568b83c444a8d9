# The title bar and the heading of the view of Title.
film 1 Title="Zulu" Format="D"
film 2 Title="Alien" Format="X"
film 3 Title="Brazil" Format="V"
film 4 Title="Cabaret" Format="L"
sorted
start
click mnuByTitle
see state ViewKind "Title"
see frmPage1 "Reelora Prima Record  2/ 4      Title Sorted All Formats"
see lblHead "Viewing All Titles Alphabetically"
