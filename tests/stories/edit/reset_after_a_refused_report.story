# Reset ends the waiting of a report that was not printed.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
sorted
start
click mnuShort
box question ANY ANY No
see state PrintPending 1
click cmdReset
see state PrintPending 0
see lblHead "To write a new record click \"New\" button or ALT \"W\""
