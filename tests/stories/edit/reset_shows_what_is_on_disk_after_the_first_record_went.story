# Reset reads record 1 again.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdNext
click cmdReset
click cmdEdit
click txtTitle
type "s"
click cmdReset
box question "Reelora Prima" "You have not saved your work.  To save it now hit Yes." No
see txtTitle "Alien"
