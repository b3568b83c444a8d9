# A view at a deleted film keeps the genre name of the film before, and a save there leaves the slot free.
film 1 Title="Alien" Genre="SF" Format="V" Rating="PG" NumReel="2"
film 2
film 3 Title="Cube"
key Titlepra.Dat "Gone" 2
count Titlepra 1
start
click mnuByTitle
see txtTitle ""
see txtFormat ""
see txtGenre ""
see txtGenreList "Science Fiction"
see frmPage1 "Reelora Prima Record  2/ 3      Title Sorted All Formats"
click cmdEdit
click cmdSave
see film 2 Title ""
see film 2 Format ""
see film 2 NumReel ""
see film 2 Rating ""
click cmdReset
click cmdNew
see state CurrentRecNo 2
