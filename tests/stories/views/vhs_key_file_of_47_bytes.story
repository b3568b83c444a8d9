# VHS view of a key file of 47 bytes: the end found after the film shown is reported in a plain box, and the view
# stays.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
file VHSpra.Dat "Alien                                   0000001"
count VHSpra 1
start
click mnuByVHS
see txtTitle "Alien"
see state KeyFilePos 1
click cmdNext
beep
box none "" "End of file!" OK
see state ViewKind "VHS"
see state KeyFilePos 2
see txtTitle "Alien"
click cmdNext
see state KeyFilePos 3
see txtTitle "Alien"
