# Alt N and Alt B walk; the button takes the focus.
film 1 Title="Alien"
film 2 Title="Brazil"
start
key Alt+N
see txtTitle "Brazil"
see focus cmdNext
key Alt+B
see txtTitle "Alien"
see focus cmdPrevious
key Enter
beep
box warning "" "Top of file encountered!" OK
key Space
beep
box warning "" "Top of file encountered!" OK
