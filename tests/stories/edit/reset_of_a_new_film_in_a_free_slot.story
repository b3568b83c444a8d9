# Reset of a new film in a free slot gives no count back.
film 1 Title="Alien"
film 2
film 3 Title="Brazil"
start
click cmdNew
see state CurrentRecNo 2
click cmdReset
box question "Reelora Prima" "You have not saved your work.  To save it now hit Yes." No
see state RecordCount 3
