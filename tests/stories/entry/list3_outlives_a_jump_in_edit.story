# A jump by the menu leaves the format list as it is: its choice stands in for the format of the film that comes.
film 1 Title="Alien" Format="V"
film 2 Title="Solaris" Format="L"
start
click cmdEdit
click txtFormat
see focus List3
see txtFormat "DVD"
click mnuLast
see txtTitle "Solaris"
see txtFormat "DVD"
