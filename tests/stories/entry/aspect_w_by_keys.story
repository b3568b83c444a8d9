# "Wide Screen" chosen with the arrow keys is stored as W.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdNew
click txtLetter
see txtLetter "Wide Screen"
key Alt+S
see film 3 Letter "W"
see txtLetter "Wide Screen"
