# New writes nothing; a restart counts the slots by the file.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdNew
type "Zulu"
see state RecordCount 3
see length Recpra.Dat 1298
restart
see state RecordCount 2
see txtTitle "Alien"
