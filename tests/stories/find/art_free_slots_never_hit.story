# Art search: a free slot never hits, also for a blank.
film 1 Title="Film"
film 2 Title=""
film 3 Title="Film 3" SetDirection="Anna Karina"
start
click mnuArt
input "Search Art Director" "Enter Art Director To Search: " " "
see state CurrentRecNo 3
