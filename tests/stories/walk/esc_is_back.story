# Esc runs Back and leaves the focus where it is.
film 1 Title="Alien"
film 2 Title="Brazil"
start
click cmdNext
see focus cmdNext
key Esc
see txtTitle "Alien"
see focus cmdNext
