# A save leaves the view and its place as they are.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
sorted
start
click mnuByTitle
click cmdEdit
click cmdSave
see state ViewKind "Title"
see state KeyFilePos 1
see frmPage1 "Reelora Prima Record  1/ 2      Title Sorted All Formats"
click cmdNext
see txtTitle "Brazil"
