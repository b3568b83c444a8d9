# A small d is shown in capitals and so becomes the word; a small v has no word.
film 1 Title="Alien" Format="d"
film 2 Title="Brazil" Format="v"
start
see txtFormat "DVD"
click cmdNext
see txtFormat "V"
