# A key that leads past the end leaves the film before on the screen; a save there fills the slots between with
# blanks.
film 1 Title="Alien" Format="D"
film 2 Title="Brazil" Format="D"
key Titlepra.Dat "Casablanca" 5
count Titlepra 1
start
click mnuByTitle
see state CurrentRecNo 5
see txtTitle "Alien"
click cmdEdit
click cmdSave
see length Recpra.Dat 3245
see film 5 Title "Alien"
see film 5 Tail "\r\n"
see film 3 Tail ""
see film 4 Title ""
see film 4 Tail ""
see state RecordCount 2
