# A step with a scratch value in EditMode clears it.
film 1 Title="Alien"
film 49 Title="Brazil"
sorted
start
click mnuByTitle
click cmdNext
see state EditMode 46
click cmdPrevious
see state EditMode 0
see txtTitle "Alien"
