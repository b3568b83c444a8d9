# Find By File No.: Cancel resets the screen.
films 1 3 Title="Film #"
sorted
start
click mnuByTitle
click cmdNext
click mnuFile
input "Reelora Prima" "Enter File No To Search:" cancel
see state CurrentRecNo 1
see state ViewKind ""
see state KeyFilePos 0
see state ViewState 0
see lblHead "To write a new record click \"New\" button or ALT \"W\""
see txtTitle "Film 1"
