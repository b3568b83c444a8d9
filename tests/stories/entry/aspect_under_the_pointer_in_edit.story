# In Edit of a tape the pointer over the aspect does nothing.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdEdit
click txtDirector
move txtLetter
see focus txtDirector
