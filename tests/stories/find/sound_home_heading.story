# Sound search after a reset: the heading behind a hit is the search's own all the same.
film 1 Title="Film 1" Sound="Nobody"
film 2 Title="Film 2" Sound="Anna Karina"
film 3 Title="Film 3" Sound="Banana Split"
film 4 Title="Film 4" Sound="karina"
start
click cmdReset
click mnuSound
input "Search For Sound" "Enter Sound To Search: \n\rTHX Dolby Etc." "karin"
see lblHead "Viewing Sound Recording in Anna Karina"
see state CurrentRecNo 2
