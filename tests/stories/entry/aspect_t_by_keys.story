# "TV 1.33:1" chosen with the arrow keys is stored as T.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdNew
click txtLetter
key Down
key Down
see txtLetter "TV 1.33:1"
key Alt+S
see film 3 Letter "T"
see txtLetter "TV 1.33:1"
