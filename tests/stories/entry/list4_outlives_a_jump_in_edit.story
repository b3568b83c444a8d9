# A jump by the menu leaves the aspect list as it is: its choice stands in for the aspect of the film that comes.
film 1 Title="Alien" Format="D" Letter="T"
film 2 Title="Solaris" Format="D" Letter="P"
start
click cmdEdit
click txtLetter
see focus List4
see txtLetter "Wide Screen"
click mnuLast
see txtTitle "Solaris"
see txtLetter "Wide Screen"
