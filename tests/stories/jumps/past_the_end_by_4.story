# A number past the last slot shows that slot first, then the end under a title with a blank after it, then record 1.
films 1 3 Title="Film #"
start
click mnuFile
input "Reelora Prima" "Enter File No To Search:" "4"
box warning "Reelora Prima " "End of file!" OK
see state CurrentRecNo 1
see state ScanRecNo 4
see txtTitle "Film 1"
see lblHead "To write a new record click \"New\" button or ALT \"W\""
