# New during Edit asks nothing and drops what was changed.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdEdit
click txtDirector
type "Nobody"
click cmdNew
see state NewMode 1
see txtDirector ""
see film 1 Director ""
