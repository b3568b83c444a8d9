# A move in the genre list stores the code that stood in the box; the new one waits for the save.
film 1 Title="Alien" Genre="WE"
start
click cmdEdit
click txtGenre
key Down
see txtGenre "AD"
key Tab
see focus cmdSave
click cmdEdit
see txtGenre "AA"
