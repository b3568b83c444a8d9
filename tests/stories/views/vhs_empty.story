# VHS view of an empty key file says so in a plain box and resets.
film 1 Title="Alien"
film 2 Title="Brazil"
count VHSpra 1
file VHSpra.Dat ""
start
click cmdNext
click mnuByVHS
box none "" "There are No VHS Tapes in Library or Files need to Be Sorted" OK
see state CurrentRecNo 1
see state ViewKind ""
see state KeyFilePos 0
see state ViewState 0
see lblHead "To write a new record click \"New\" button or ALT \"W\""
see state NavDirection 0
see state PrintPending 0
click mnuByVHS
box none "" "There are No VHS Tapes in Library or Files need to Be Sorted" OK
