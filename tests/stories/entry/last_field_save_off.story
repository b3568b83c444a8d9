# With Auto Save off the last field of a new film only says so.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdNew
click optnoteson
click txtRatings
click lblHead
key Tab
see lblSorting "AUTO SAVE IS OFF!  When the last text box is filled in and the tab key pressed, you will have to "
+ "manually save and sort this record."
see state SortStarted 1
see state EditMode 1
see state NewMode 1
see length Recpra.Dat 1298
see missing Last
see state ViewKind ""
see focus optnoteson
