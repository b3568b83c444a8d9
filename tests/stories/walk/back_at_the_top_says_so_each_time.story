# Back on record 1 beeps, says so and stays; the heading is the one that Back leaves.
film 1 Title="Alien"
film 2 Title="Brazil"
start
click cmdPrevious
beep
box warning "" "Top of file encountered!" OK
see lblHead "To Write A New Record Click New or press Alt W "
click cmdPrevious
beep
box warning "" "Top of file encountered!" OK
see state CurrentRecNo 1
see txtTitle "Alien"
