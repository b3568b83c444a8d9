# "Pan & Scan" chosen with the arrow keys is stored as P.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdNew
click txtLetter
key Down
see txtLetter "Pan & Scan"
key Alt+S
see film 3 Letter "P"
see txtLetter "Pan & Scan"
