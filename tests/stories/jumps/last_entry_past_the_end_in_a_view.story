# "Last" past the last slot in a view ends the view.
films 1 4 Title="Film #" Genre="SF" Format="D"
sorted
file Last "5\r\n"
start
click mnuByTitle
click cmdNext
click mnuLastEntry
box warning "Reelora Prima " "End of file!" OK
see state CurrentRecNo 1
see state ViewKind ""
see state KeyFilePos 0
see state ViewState 0
see lblHead "To write a new record click \"New\" button or ALT \"W\""
