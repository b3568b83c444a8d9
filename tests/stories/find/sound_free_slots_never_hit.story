# Sound search: a free slot never hits, also for a blank.
film 1 Title="Film"
film 2 Title=""
film 3 Title="Film 3" Sound="Anna Karina"
start
click mnuSound
input "Search For Sound" "Enter Sound To Search: \n\rTHX Dolby Etc." " "
see state CurrentRecNo 3
