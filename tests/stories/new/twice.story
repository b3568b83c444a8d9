# New pressed twice makes the collection grow twice.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdNew
see state RecordCount 3
click cmdNew
see state RecordCount 4
see state CurrentRecNo 4
see length Recpra.Dat 1298
