# A view of a key file of two keys and one byte has no end; past the last key no new one is read.
each VIEW  FORMAT KIND
row  title D      Title
row  dvd   D      DVD
row  laser L      Laser
row  vhs   V      VHS

film 1 Title="Alien" Format="{FORMAT}"
film 2 Title="Brazil" Format="{FORMAT}"
file {KIND}pra.Dat "Alien                                   0000001\r\nBrazil                                  "
+ "0000002\r\nX"
count {KIND}pra 2
start
see length {KIND}pra.Dat 99
click mnuBy{KIND}
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
see state ViewKind "{KIND}"
