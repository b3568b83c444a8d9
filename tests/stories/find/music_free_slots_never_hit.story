# Music search: a free slot never hits, also for a blank.
film 1 Title="Film"
film 2 Title=""
film 3 Title="Film 3" Music="Anna Karina"
start
click mnuMusic
input "Search For Music Composer" "Enter Music Composer To Search: " " "
see state CurrentRecNo 3
