# "B & W" fills five of six characters.
film 1 Title="Alien" Color1="B & W"
film 2 Title="Brazil" Color1="Color"
start
see txtColor1 "B & W "
click cmdNext
see txtColor1 "Color "
