# Tab into the genre selects the first row of its list, as a click does.
film 1 Title="Alien" Format="V" Genre="WE"
film 2 Title="Brazil" Format="V"
start
click cmdEdit
click txtNumReel
key Tab
see focus List1
see List1.ListIndex 0
see txtGenre "AA"
