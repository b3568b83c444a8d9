# Cinema search's flag is cleared by another search.
film 1 Title="Film 1" Cinematographer="Nobody"
film 2 Title="Film 2" Cinematographer="Anna Karina"
film 3 Title="Film 3" Cinematographer="Banana Split"
film 4 Title="Film 4" Cinematographer="karina"
start
click mnuCinema
input "Search For Cinematographer" "Enter Cinematographer To Search: " "karin"
click cmdMatch
see state ResumeCinema 1
click mnuFindStar
input "Search For Star" "Enter Star To Search: " ""
see state ResumeCinema 0
see state ResumeStar 0
