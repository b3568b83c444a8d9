# In the home state the heading of Back gives way to the New hint; before the first reset it stays.
film 1 Title="Alien"
film 2 Title="Brazil"
start
click cmdNext
click cmdPrevious
see lblHead "To Write A New Record Click New or press Alt W "
click cmdReset
click cmdNext
click cmdPrevious
see state ViewState 0
see lblHead "To write a new record click \"New\" button or ALT \"W\""
