# "Last" past the last slot shows it, reports the end and resets.
films 1 4 Title="Film #" Genre="SF" Format="D"
file Last "5\r\n"
start
click cmdNext
click mnuLastEntry
box warning "Reelora Prima " "End of file!" OK
see state CurrentRecNo 1
see txtTitle "Film 1"
see lblHead "To write a new record click \"New\" button or ALT \"W\""
