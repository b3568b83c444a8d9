# Title view of a key file of 47 bytes: the test after the film shown divides by 49 and finds no end.
film 1 Title="Alien" Format="D"
film 2 Title="Brazil" Format="D"
file Titlepra.Dat "Alien                                   0000001"
count Titlepra 1
start
click mnuByTitle
see txtTitle "Alien"
see state KeyFilePos 1
click cmdNext
see state ViewKind "Title"
see state KeyFilePos 2
see txtTitle "Alien"
click cmdNext
see state KeyFilePos 3
see txtTitle "Alien"
