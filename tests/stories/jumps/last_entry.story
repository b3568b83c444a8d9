# Find Last Entry shows the film whose number "Last" contains and changes no heading.
films 1 4 Title="Film #" Genre="SF" Format="D"
file Last "3\r\n"
start
click mnuLastEntry
see txtTitle "Film 3"
see state CurrentRecNo 3
see state LastEntryRecNo "3"
see lblHead "To write a new record click \"New\" button or ALT \"W\""
see frmPage1 "Reelora Prima Record  3/ 4      Title Non Sorted"
