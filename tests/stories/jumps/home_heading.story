# In the home state the showing puts the New hint over the heading of a jump.
films 1 3 Title="Film #"
start
click cmdReset
click mnuFile
input "Reelora Prima" "Enter File No To Search:" "2"
see lblHead "To write a new record click \"New\" button or ALT \"W\""
click mnuLast
see lblHead "To write a new record click \"New\" button or ALT \"W\""
