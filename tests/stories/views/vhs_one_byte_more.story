# VHS view of a key file of two keys and one byte: there is no end; behind the last key no new one is read.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
file VHSpra.Dat "Alien                                   0000001\r\nBrazil                                  0000002\r\nX"
count VHSpra 2
start
see length VHSpra.Dat 99
click mnuByVHS
click cmdNext
see txtTitle "Brazil"
click cmdNext
see txtTitle "Brazil"
see state KeyFilePos 3
see state ScanRecNo 0
see focus txtTitle
click cmdNext
click cmdNext
click cmdNext
see state KeyFilePos 6
see state CurrentRecNo 2
see state ViewKind "VHS"
