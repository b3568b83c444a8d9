# "B & W" chosen with the arrow keys is stored.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdNew
click txtColor1
key Down
key Enter
see txtColor1 "B & W"
key Alt+S
see film 3 Color1 "B & W"
