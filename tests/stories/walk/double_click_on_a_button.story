# A double click on a button is two clicks.
film 1 Title="Alien" Format="D"
film 2 Title="Brazil" Format="D"
film 3 Title="Ran" Format="D"
start
dblclick cmdNext
see txtTitle "Ran"
dblclick cmdPrevious
see txtTitle "Alien"
dblclick cmdPrevious
beep
box warning "" "Top of file encountered!" OK
beep
box warning "" "Top of file encountered!" OK
see txtTitle "Alien"
